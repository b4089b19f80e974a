#include <map>

#include "ado/TestDatabase.h"
#include "platform/ado/SqliteLetters.h"

namespace {

QString Letter(char32_t letter) {
  return QString::fromUcs4(&letter, 1);
}

// Every letter of Unicode that has another case, and every one that is made of a letter and an accent.
std::vector<char32_t> AllLetters() {
  std::vector<char32_t> letters;
  for (char32_t c = 'A'; c <= QChar::LastValidCodePoint; ++c) {
    // Syllables of Korean are letters of no case, and eleven thousand.
    if (!QChar::isLetterOrNumber(c) || QChar::script(c) == QChar::Script_Hangul) continue;
    const bool cased = QChar::toLower(c) != c || QChar::toUpper(c) != c;
    if (cased || QChar::decompositionTag(c) == QChar::Canonical) letters.push_back(c);
  }
  return letters;
}

// The letter without its accents, small: what letters may be taken for one another.
QString Base(char32_t letter) {
  return Letter(QChar::toLower(Letter(letter).normalized(QString::NormalizationForm_KD).toUcs4().front()));
}

char32_t Capital(char32_t letter) {
  return letter == U'İ' ? U'I' : QChar::toUpper(QChar::toLower(letter));
}

class PatternTest : public AdoTest {
 protected:
  // Of these texts, those that the pattern finds, in their order.
  QStringList Found(const QString& pattern, const QStringList& texts) {
    Run("CREATE TABLE ID_P (N INTEGER NOT NULL PRIMARY KEY, T VARCHAR(60))");
    for (int i = 0; i < texts.size(); ++i)
      Run(QString("INSERT INTO ID_P VALUES(%1, N'%2')").arg(i).arg(connection.dialect().Escape(texts[i])));
    QStringList found;
    Recordset rows;
    for (rows.Open(connection, "SELECT T FROM ID_P WHERE T LIKE N'" + pattern + "' ORDER BY N"); !rows.EOF_();
         rows.MoveNext())
      found += rows.Fields(0).Value();
    rows.Close();
    Run("DROP TABLE ID_P");
    return found;
  }
};

TEST_F(PatternTest, LetterCaseDoesNotCountAndAccentsDoForAllOfUnicode) {
  Run("CREATE TABLE ID_L (N INTEGER NOT NULL PRIMARY KEY, T VARCHAR(5), B VARCHAR(5))");
  const std::vector<char32_t> letters = AllLetters();
  ASSERT_GT(letters.size(), 2800u);
  RecordProperty("letters", static_cast<int>(letters.size()));
  std::map<QString, std::vector<char32_t>> families;
  for (size_t i = 0; i < letters.size(); i += 100) {
    QStringList rows;
    for (size_t j = i; j < std::min(i + 100, letters.size()); ++j) {
      rows += QString("(%1, N'%2', N'%3')").arg(letters[j]).arg(Letter(letters[j]), Base(letters[j]));
      families[Base(letters[j])].push_back(letters[j]);
    }
    Run("INSERT INTO ID_L VALUES" + rows.join(", "));
  }
  QStringList expected, found;
  for (const auto& [base, family] : families) {
    for (const char32_t left : family)
      for (const char32_t right : family)
        if (Capital(left) == Capital(right)) expected += Letter(left) + Letter(right);
  }
  Recordset rows;
  rows.Open(connection, "SELECT X.T, Y.T FROM ID_L X, ID_L Y WHERE X.B = Y.B AND X.T LIKE Y.T");
  for (; !rows.EOF_(); rows.MoveNext()) found += rows.Fields(0).Value() + rows.Fields(1).Value();
  expected.sort();
  found.sort();
  QStringList tooFew, tooMany;
  std::set_difference(expected.begin(), expected.end(), found.begin(), found.end(), std::back_inserter(tooFew));
  std::set_difference(found.begin(), found.end(), expected.begin(), expected.end(), std::back_inserter(tooMany));
  EXPECT_EQ(tooFew.join(' '), "");
  EXPECT_EQ(tooMany.join(' '), "");
}

TEST_F(PatternTest, WordsOfManyScripts) {
  EXPECT_EQ(Found("%université%", {"Université X", "UNIVERSITÉ", "universite", "Universitè"}),
            QStringList({"Université X", "UNIVERSITÉ"}));
  EXPECT_EQ(Found("É%", {"EEE", "éa", "ÉB", "E\u0301C", "e"}), QStringList({"éa", "ÉB"}));
  EXPECT_EQ(Found("%jürgen%", {"Jürgen", "JÜRGEN", "Jurgen", "xjÜrgenx"}),
            QStringList({"Jürgen", "JÜRGEN", "xjÜrgenx"}));
  // What boxes make capitals of is found as it was typed.
  EXPECT_EQ(Found("%STRASSE%", {"Straße", "STRAẞE", "strasse", "Strase"}),
            QStringList({"Straße", "STRAẞE", "strasse"}));
  EXPECT_EQ(Found("%Straße", {"HAUPTSTRASSE", "Hauptstraßen"}), QStringList({"HAUPTSTRASSE"}));
  EXPECT_EQ(Found("ΟΔΟΣ%", {"οδος", "Οδοσα", "ΟΔΌΣ"}), QStringList({"οδος", "Οδοσα"}));
  EXPECT_EQ(Found("%ISPARTA%", {"ısparta", "Isparta", "İsparta"}), QStringList({"ısparta", "Isparta", "İsparta"}));
  EXPECT_EQ(Found("жук%", {"ЖУКОВ", "Жук", "жюк"}), QStringList({"ЖУКОВ", "Жук"}));
  EXPECT_EQ(Found("𐐨%", {"𐐀𐐁", "𐐨", "𐐁"}), QStringList({"𐐀𐐁", "𐐨"}));
}

TEST_F(PatternTest, WildcardsAndSignsThatAreNone) {
  EXPECT_EQ(Found("a_c", {"ABC", "a😀c", "ac", "abbc"}), QStringList({"ABC", "a😀c"}));
  EXPECT_EQ(Found("%a%b%c", {"aabbc", "xAxBxC", "acb", "abcd", "abcabc"}), QStringList({"aabbc", "xAxBxC", "abcabc"}));
  EXPECT_EQ(Found("a!_c%' ESCAPE '!", {"a_cd", "abcd"}), QStringList({"a_cd"}));
  EXPECT_EQ(Found("a\\%", {"a\\b", "ab", "a%"}), QStringList({"a\\b"}));
  EXPECT_EQ(Found("a", {"a ", "a", " a"}), QStringList({"a"}));
  EXPECT_EQ(Found("", {"", "a"}), QStringList({""}));
  EXPECT_EQ(Found("''%", {"'x", "x"}), QStringList({"'x"}));
}

TEST_F(PatternTest, NullIsNeverFoundAndNotIsTheContrary) {
  Run("CREATE TABLE ID_P (N INTEGER NOT NULL PRIMARY KEY, T VARCHAR(60))");
  Run("INSERT INTO ID_P VALUES(1, NULL); INSERT INTO ID_P VALUES(2, N'Ä'); INSERT INTO ID_P VALUES(3, N'A')", 3);
  EXPECT_EQ(Column("SELECT N FROM ID_P X WHERE X.T LIKE N'%' ORDER BY N"), "2,3");
  EXPECT_EQ(Column("SELECT N FROM ID_P WHERE (ID_P.T NOT LIKE N'ä') OR T LIKE 'x' ORDER BY N"), "3");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM ID_P WHERE COALESCE(T, N'É') LIKE N'é'"), "1");
}

TEST(SqliteLetters, AnEscapeBeforeTheEndIsNoSign) {
  EXPECT_TRUE(SqliteLetters::Fits("a", "a!", U'!'));
  EXPECT_TRUE(SqliteLetters::Fits("a%", "a!%", U'!'));
  EXPECT_FALSE(SqliteLetters::Fits("ab", "a!%", U'!'));
  EXPECT_TRUE(SqliteLetters::Fits("!", "!!", U'!'));
}

}  // namespace
