#include "ado/TestDatabase.h"
#include "platform/ado/RowStore.h"

namespace {

class ValuesTest : public AdoTest {
 protected:
  ValuesTest() { Run("CREATE TABLE ID_V (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(200))"); }

  void Store(int id, const QString& text) {
    Run(QStringLiteral("INSERT INTO ID_V VALUES(%1, N'%2')")
            .arg(QString::number(id), connection.dialect().Escape(text)));
  }
};

TEST_F(ValuesTest, HostileTextsComeBackAsTheyAre) {
  const QStringList texts{"O'Brien",
                          "''",
                          "'; DROP TABLE ID_V; --",
                          "/* x */",
                          "N'x'",
                          R"(C:\)",
                          R"(\')",
                          R"(a\nb\%\_)",
                          "TOP 1 [NOTE] ID_v",
                          "?:x %1",
                          "\"q\" `b`",
                          "$$ $1 #",
                          " padded ",
                          "a\tb\nc\r\nd",
                          "\u00e9e\u0301",
                          "\u05e9\u05dc\u05d5\u05dd \u202e",
                          "\U0001f600 \U0001f469\u200d\U0001f680",
                          "Nevy\u0159\u00edzen\u00e9 \u4e2d\u6587"};
  for (int i = 0; i < texts.size(); ++i) {
    Store(i, texts[i]);
    EXPECT_EQ(Value(QStringLiteral("SELECT B FROM ID_V WHERE A = %1").arg(i)), texts[i]);
    EXPECT_EQ(Value("SELECT A FROM ID_V WHERE B = N'" + connection.dialect().Escape(texts[i]) + "'"),
              QString::number(i));
  }
  EXPECT_EQ(Count("ID_V"), texts.size());
}

TEST_F(ValuesTest, ANulOrHalfACharacterIsRefused) {
  EXPECT_EQ(ErrorOf([&] { Store(1, QString("a") + QChar(u'\0') + "b"); }).Number(), AdoNumber::TextRefused);
  EXPECT_EQ(ErrorOf([&] { Store(1, QString("a") + QChar(u'\xd83d')); }).Number(), AdoNumber::TextRefused);
  EXPECT_EQ(Count("ID_V"), 0);
}

TEST_F(ValuesTest, EqualIsExact) {
  Store(1, "Abc");
  EXPECT_EQ(Count("ID_V WHERE B = 'ABC'"), 0);
  EXPECT_EQ(Count("ID_V WHERE B = 'Abc'"), 1);
}

TEST_F(ValuesTest, PatternsIgnoreLetterCase) {
  Store(1, "Abc Library");
  EXPECT_EQ(Count("ID_V WHERE B LIKE N'abc%'"), 1);
  EXPECT_EQ(Count("ID_V WHERE B LIKE '%LIB%' AND A = 1"), 1);
  EXPECT_EQ(Count("ID_V WHERE B NOT LIKE '%LIB%'"), 0);
  EXPECT_EQ(Count("ID_V WHERE (B LIKE '%x%') OR B LIKE 'ABC _IBRARY'"), 1);
}

TEST_F(ValuesTest, PatternsIgnoreTheCaseOfAllLetters) {
  Store(1, "\u00c9COLE \u017d");
  EXPECT_EQ(Count("ID_V WHERE B LIKE N'\u00e9cole \u017e'"), 1);
  EXPECT_EQ(Count("ID_V WHERE B LIKE N'%\U0001f600%'"), 0);
}

TEST_F(ValuesTest, ABackslashInAPatternIsAnOrdinaryCharacter) {
  Store(1, R"(C:\Temp)");
  Store(2, "C:%Temp");
  EXPECT_EQ(Column(R"(SELECT A FROM ID_V WHERE B LIKE N'C:\%' ORDER BY A)"), "1");
  EXPECT_EQ(Column(R"(SELECT A FROM ID_V WHERE B LIKE '%\T%' ORDER BY A)"), "1");
  EXPECT_EQ(Column(R"(SELECT A FROM ID_V WHERE B LIKE '%\')"), "");
}

TEST_F(ValuesTest, DeleteWithoutFromAndInsertWithoutInto) {
  Run("INSERT  ID_V VALUES(1, 'a')");
  Run("INSERT ID_V (A, B) VALUES(2, 'b')");
  EXPECT_EQ(Run("DELETE ID_V WHERE A = 1"), 1);
  EXPECT_EQ(Run("DELETE  FROM ID_V"), 1);
}

TEST_F(ValuesTest, BracketsAreNames) {
  Run("INSERT INTO ID_V ([A],[B]) VALUES(1,N'a')");
  EXPECT_EQ(Value("SELECT [B] FROM ID_V WHERE [A]=1"), "a");
}

TEST_F(ValuesTest, NumbersInQuotesMatchNumbers) {
  Store(5, "x");
  EXPECT_EQ(Value("SELECT B FROM ID_V WHERE A = N'5'"), "x");
  EXPECT_EQ(Value("SELECT B FROM ID_V WHERE A IN (N'5', N'6')"), "x");
}

// --- Packed rows ---

TEST(RowStoreTest, KeepsTextsNullsAndEmptyTexts) {
  RowStore store(3);
  store.Add({QString("a"), QString(), QString("")});
  store.Add({QString(""), QString(), QString("\U0001f600")});
  ASSERT_EQ(store.Count(), 2u);
  EXPECT_EQ(store.Text(0, 0), "a");
  EXPECT_TRUE(store.Text(0, 1).isNull());
  EXPECT_TRUE(store.IsNull(0, 1));
  EXPECT_FALSE(store.Text(0, 2).isNull());
  EXPECT_EQ(store.Text(0, 2), "");
  EXPECT_FALSE(store.IsNull(1, 0));
  EXPECT_TRUE(store.IsNull(1, 1));
  EXPECT_EQ(store.Text(1, 2), QString("\U0001f600"));
}

TEST(RowStoreTest, ReplacesARow) {
  RowStore store(1);
  store.Add({QString("short")});
  store.Add({QString("second")});
  store.Replace(0, {QString(10000, u'x')});
  EXPECT_EQ(store.Text(0, 0).size(), 10000);
  EXPECT_EQ(store.Text(1, 0), "second");
}

TEST(RowStoreTest, ARowCostsLittleBesidesItsText) {
  constexpr size_t count = 100000;
  const std::vector<QString> cells(12, QString("eight ch"));
  RowStore store(12);
  for (size_t i = 0; i < count; ++i) store.Add(cells);
  const size_t text = count * 12 * 8 * sizeof(QChar);
  EXPECT_LT(store.Bytes(), text + count * 100);
}

}  // namespace
