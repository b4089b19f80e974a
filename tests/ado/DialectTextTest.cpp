#include <QSqlDatabase>

#include "ado/TestDatabase.h"
#include "platform/ado/SqlTokens.h"

namespace {

// One text of the system and what each engine gets of it; empty where it gets the text as it stands. "{" and "}" stand
// for what encloses an operand of LIKE there.
struct Golden {
  const char* text;
  const char* sqlite;
  const char* postgreSql;
  const char* mariaDb;
  const char* sqlServer;
};

const Golden goldens[] = {
    {"SELECT   * FROM ID_A", "", "", "", ""},
    {"INSERT INTO ID_A VALUES(N'a', n'b', 'N''c''', Null)", "INSERT INTO ID_A VALUES('a', 'b', 'N''c''', Null)",
     "INSERT INTO ID_A VALUES('a', 'b', 'N''c''', Null)", "INSERT INTO ID_A VALUES('a', 'b', 'N''c''', Null)", ""},
    {"SELECT N'a'N'b''c'", "SELECT 'a' 'b''c'", "SELECT 'a' 'b''c'", "SELECT 'a' 'b''c'", ""},
    {"INSERT  ID_A VALUES(1)", "INSERT  INTO ID_A VALUES(1)", "INSERT  INTO ID_A VALUES(1)",
     "INSERT  INTO ID_A VALUES(1)", ""},
    {"DELETE ID_A WHERE B = 'FROM'", "DELETE FROM ID_A WHERE B = 'FROM'", "DELETE FROM ID_A WHERE B = 'FROM'",
     "DELETE FROM ID_A WHERE B = 'FROM'", ""},
    {"delete   from ID_A", "", "", "", ""},
    {"SELECT TOP 1 LIBRARY_ID FROM ID_A WHERE B = N'TOP 1' ", "SELECT LIBRARY_ID FROM ID_A WHERE B = 'TOP 1' LIMIT 1 ",
     "SELECT LIBRARY_ID FROM ID_A WHERE B = 'TOP 1' LIMIT 1 ", "SELECT LIBRARY_ID FROM ID_A WHERE B = 'TOP 1' LIMIT 1 ",
     ""},
    {"SELECT A FROM ID_A WHERE A IN (SELECT DISTINCT TOP 2 B FROM ID_B ORDER BY B) AND C = 1",
     "SELECT A FROM ID_A WHERE A IN (SELECT DISTINCT B FROM ID_B ORDER BY B LIMIT 2) AND C = 1",
     "SELECT A FROM ID_A WHERE A IN (SELECT DISTINCT B FROM ID_B ORDER BY B NULLS FIRST LIMIT 2) AND C = 1",
     "SELECT A FROM ID_A WHERE A IN (SELECT DISTINCT B FROM ID_B ORDER BY B LIMIT 2) AND C = 1", ""},
    {"SELECT TOP FROM ID_A", "", "", "", ""},
    {"SELECT A FROM OSTANA.OSTANA.ID_A", "SELECT A FROM ID_A", "SELECT A FROM ID_A", "SELECT A FROM ID_A", ""},
    {"DELETE\"ID_A\"", "DELETE FROM \"ID_A\"", "DELETE FROM \"ID_A\"", "DELETE FROM \"ID_A\"", ""},
    {"SELECT [a b][c d],\"e\"[f g]", "SELECT \"a b\" \"c d\",\"e\" \"f g\"", "SELECT \"a b\" \"c d\",\"e\" \"f g\"",
     "SELECT \"a b\" \"c d\",\"e\" \"f g\"", ""},
    {"SELECT A FROM ID_A WHERE B LIKE 'x'ESCAPE '!'", "", "SELECT A FROM ID_A WHERE {B} LIKE {'x'}ESCAPE '!'",
     "SELECT A FROM ID_A WHERE {B} LIKE {'x'} COLLATE utf8mb4_bin ESCAPE '!'",
     "SELECT A FROM ID_A WHERE B COLLATE Latin1_General_100_CI_AS_KS_WS_SC LIKE 'x'ESCAPE '!'"},
    {"SELECT [NOTE],[a b],X.[N]'x' FROM ID_A X", "SELECT NOTE,\"a b\",X.N 'x' FROM ID_A X",
     "SELECT NOTE,\"a b\",X.N 'x' FROM ID_A X", "SELECT NOTE,\"a b\",X.N 'x' FROM ID_A X", ""},
    {"UPDATE OSTANA.id_cover_info SET A='OSTANA.id_x' where B=1", "UPDATE id_cover_info SET A='OSTANA.id_x' where B=1",
     "UPDATE id_cover_info SET A='OSTANA.id_x' where B=1", "UPDATE ID_COVER_INFO SET A='OSTANA.id_x' where B=1", ""},
    {"SELECT X.OSTANA, Y.A FROM Ostana.ID_A X, OSTANA.ID_B Y", "SELECT X.OSTANA, Y.A FROM ID_A X, ID_B Y",
     "SELECT X.OSTANA, Y.A FROM ID_A X, ID_B Y", "SELECT X.OSTANA, Y.A FROM ID_A X, ID_B Y", ""},
    {"SELECT A FROM ID_A WHERE B LIKE  N'x\\%' Order By B", "SELECT A FROM ID_A WHERE B LIKE  'x\\%' Order By B",
     "SELECT A FROM ID_A WHERE {B} LIKE  {'x\\%'} ESCAPE '' Order By B NULLS FIRST",
     "SELECT A FROM ID_A WHERE {B} LIKE  {'x\\%'} COLLATE utf8mb4_bin ESCAPE '\x1f' Order By B",
     "SELECT A FROM ID_A WHERE B COLLATE Latin1_General_100_CI_AS_KS_WS_SC LIKE  N'x\\%' Order By B"},
    {"SELECT A FROM ID_A WHERE (B NOT LIKE 'LIKE') AND X.C LIKE '%x'", "",
     "SELECT A FROM ID_A WHERE ({B} NOT LIKE {'LIKE'} ESCAPE '') AND {X.C} LIKE {'%x'} ESCAPE ''",
     "SELECT A FROM ID_A WHERE ({B} NOT LIKE {'LIKE'} COLLATE utf8mb4_bin ESCAPE '\x1f') AND {X.C} LIKE {'%x'} COLLATE "
     "utf8mb4_bin ESCAPE '\x1f'",
     "SELECT A FROM ID_A WHERE (B COLLATE Latin1_General_100_CI_AS_KS_WS_SC NOT LIKE 'LIKE') AND X.C COLLATE "
     "Latin1_General_100_CI_AS_KS_WS_SC LIKE '%x'"},
    {"SELECT A FROM ID_A WHERE TRIM(B) LIKE 'x!%' || C ESCAPE '!' OR B = 1", "",
     "SELECT A FROM ID_A WHERE {TRIM(B)} LIKE {'x!%' || C} ESCAPE '!' OR B = 1",
     "SELECT A FROM ID_A WHERE {TRIM(B)} LIKE {'x!%' || C} COLLATE utf8mb4_bin ESCAPE '!' OR B = 1",
     "SELECT A FROM ID_A WHERE TRIM(B) COLLATE Latin1_General_100_CI_AS_KS_WS_SC LIKE 'x!%' || C ESCAPE '!' OR B = 1"},
    {"SELECT A, (SELECT TOP 1 B FROM ID_B ORDER BY C DESC, D) FROM ID_A ORDER BY 1, B DESC",
     "SELECT A, (SELECT B FROM ID_B ORDER BY C DESC, D LIMIT 1) FROM ID_A ORDER BY 1, B DESC",
     "SELECT A, (SELECT B FROM ID_B ORDER BY C DESC NULLS LAST, D NULLS FIRST LIMIT 1) FROM ID_A ORDER BY 1 NULLS "
     "FIRST, B DESC NULLS LAST",
     "SELECT A, (SELECT B FROM ID_B ORDER BY C DESC, D LIMIT 1) FROM ID_A ORDER BY 1, B DESC", ""},
    {"UPDATE ID_A SET B = 'é' WHERE A LIKE'ü' AND C = 'u'", "",
     "UPDATE ID_A SET B = 'é' WHERE {A} LIKE {'ü'} ESCAPE '' AND C = 'u'",
     "UPDATE ID_A SET B = 'é' WHERE {A} LIKE {'ü'} COLLATE utf8mb4_bin ESCAPE '\x1f' AND C = 'u'",
     "UPDATE ID_A SET B = N'é' WHERE A COLLATE Latin1_General_100_CI_AS_KS_WS_SC LIKE N'ü' AND C = 'u'"},
    // Tables of a known key.
    {"SELECT   * FROM OSTANA.ID_K ORDER BY B", "SELECT   * FROM ID_K ORDER BY B, K1, K2",
     "SELECT   * FROM ID_K ORDER BY B NULLS FIRST, K1 NULLS FIRST, K2 NULLS FIRST",
     "SELECT   * FROM ID_K ORDER BY B, K1, K2", "SELECT   * FROM OSTANA.ID_K ORDER BY B, K1, K2"},
    {"SELECT TOP 1 A FROM id_k WHERE K1 = 1 ", "SELECT A FROM id_k WHERE K1 = 1 ORDER BY K1, K2 LIMIT 1 ",
     "SELECT A FROM id_k WHERE K1 = 1 ORDER BY K1 NULLS FIRST, K2 NULLS FIRST LIMIT 1 ",
     "SELECT A FROM ID_K WHERE K1 = 1 ORDER BY K1, K2 LIMIT 1 ",
     "SELECT TOP 1 A FROM id_k WHERE K1 = 1 ORDER BY K1, K2 "},
    {"SELECT X.A FROM ID_A Y INNER JOIN OSTANA.ID_K X ON X.K1 = Y.A, ID_K AS Z ORDER BY X.K2, Z.B DESC",
     "SELECT X.A FROM ID_A Y INNER JOIN ID_K X ON X.K1 = Y.A, ID_K AS Z ORDER BY X.K2, Z.B DESC, X.K1, Z.K1, Z.K2",
     "SELECT X.A FROM ID_A Y INNER JOIN ID_K X ON X.K1 = Y.A, ID_K AS Z ORDER BY X.K2 NULLS FIRST, Z.B DESC NULLS "
     "LAST, "
     "X.K1 NULLS FIRST, Z.K1 NULLS FIRST, Z.K2 NULLS FIRST",
     "SELECT X.A FROM ID_A Y INNER JOIN ID_K X ON X.K1 = Y.A, ID_K AS Z ORDER BY X.K2, Z.B DESC, X.K1, Z.K1, Z.K2",
     "SELECT X.A FROM ID_A Y INNER JOIN OSTANA.ID_K X ON X.K1 = Y.A, ID_K AS Z ORDER BY X.K2, Z.B DESC, X.K1, Z.K1, "
     "Z.K2"},
    {"SELECT DISTINCT X.A, B FROM ID_K X ORDER BY B", "SELECT DISTINCT X.A, B FROM ID_K X ORDER BY B, 1",
     "SELECT DISTINCT X.A, B FROM ID_K X ORDER BY B NULLS FIRST, 1 NULLS FIRST",
     "SELECT DISTINCT X.A, B FROM ID_K X ORDER BY B, 1", "SELECT DISTINCT X.A, B FROM ID_K X ORDER BY B, 1"},
    {"SELECT COUNT(*) FROM ID_K", "", "", "", ""},
    {"SELECT B, SUM(A) FROM ID_K GROUP BY B", "", "", "", ""},
    {"SELECT A FROM ID_K UNION SELECT B FROM ID_K", "", "", "", ""},
    {"UPDATE ID_K SET A = (SELECT B FROM ID_K)", "", "", "", ""},
    {"DELETE FROM ID_K", "", "", "", ""},
    {"DELETE FROM ID_A WHERE A IN (SELECT K1 FROM ID_K)", "", "", "", ""},
    {"INSERT INTO ID_A SELECT K1 FROM ID_K", "", "", "", ""},
    {"CREATE TABLE ID_A (TIMESTAMP VARCHAR(5), B TIMESTAMP NOT NULL, C VARCHAR(8000))", "", "",
     "CREATE TABLE ID_A (TIMESTAMP VARCHAR(5), B DATETIME NOT NULL, C VARCHAR(8000))",
     "CREATE TABLE ID_A (TIMESTAMP NVARCHAR(5), B DATETIME2(0) NOT NULL, C NVARCHAR(MAX))"},
};

const Engine engines[] = {Engine::Sqlite, Engine::PostgreSql, Engine::MariaDb, Engine::SqlServer};

QString Carried(Engine engine, const QString& text) {
  ConnectionSettings settings;
  settings.ownerPrefix = "OSTANA.";
  settings.keyOf = [](const QString& table) { return table == u"ID_K" ? QStringList({"K1", "K2"}) : QStringList(); };
  return Dialect::For(engine).Carry(text, settings);
}

QString Expected(Engine engine, QString text) {
  if (engine == Engine::PostgreSql) {
    text.replace("{", "replace(lower(translate(");
    text.replace("}",
                 ", 'İΣµıſ\u0345ςϐϑϕϖϰϱϵᲀᲁᲂᲃᲄᲅᲆᲇᲈẛ\u1FBE', "
                 "'iσμisισβθφπκρεвдосттъѣꙋṡι') "
                 "COLLATE "
                 "\"und-x-icu\"), 'ß', 'ss')");
  } else if (engine == Engine::MariaDb) {
    text.replace("{", "CONVERT(REPLACE(UPPER(LOWER(CONVERT(");
    text.replace("}", " USING utf8mb4) COLLATE utf8mb4_uca1400_as_ci)), 'ß', 'SS') USING utf8mb4)");
  }
  return text;
}

TEST(DialectText, EachEngineGetsItsOwnWords) {
  for (const Golden& golden : goldens) {
    const char* const expected[] = {golden.sqlite, golden.postgreSql, golden.mariaDb, golden.sqlServer};
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(Carried(engines[i], golden.text), Expected(engines[i], *expected[i] ? expected[i] : golden.text))
          << "engine " << i;
    }
  }
}

TEST(DialectText, CarriedAgainNothingChanges) {
  for (const Golden& golden : goldens) {
    for (const Engine engine : engines) {
      const QString once = Carried(engine, golden.text);
      EXPECT_EQ(Carried(engine, once), once);
    }
  }
  // No engine takes these; they must come to rest nevertheless.
  for (const char* broken : {"SELECT TOP 1 TOP 2 A FROM ID_A", "SELECT A FROM ID_A WHERE B LIKE C COLLATE",
                             "SELECT A FROM ID_A WHERE (B LIKE C COLLATE LIKE D)"}) {
    for (const Engine engine : engines) {
      const QString once = Carried(engine, broken);
      EXPECT_EQ(Carried(engine, once), once);
    }
  }
}

QStringList ValuesIn(const QString& sql) {
  QStringList values;
  for (const SqlToken& token : Tokenize(sql)) {
    if (token.kind == SqlToken::NationalLiteral) values += token.text.mid(1);
    if (token.kind == SqlToken::Literal) values += token.text;
  }
  return values;
}

TEST(DialectText, ValuesArriveAsTheyAre) {
  const QStringList values{"",
                           "'",
                           "''",
                           "N'x'",
                           "'; DELETE FROM ID_A; '",
                           "-- x",
                           "/* x */",
                           "C:\\",
                           "\\'",
                           "TOP 1",
                           "OSTANA.ID_A",
                           "[A]",
                           "SELECT TOP 1 A LIKE 'b'",
                           "\"q\"",
                           "`",
                           "$$",
                           "id_a",
                           "\n\t",
                           "\u00e9\u4e2d",
                           "\U0001f600",
                           "%_!",
                           "?:x",
                           "E'",
                           "{d 'x'}"};
  for (const Engine engine : engines) {
    const Dialect& dialect = Dialect::For(engine);
    QString text = "INSERT OSTANA.ID_A VALUES(";
    QStringList expected;
    for (int i = 0; i < values.size(); ++i) {
      const QString literal = "'" + dialect.Escape(values[i]) + "'";
      text += (i == 0 ? "" : ", ") + QString(i % 2 == 0 ? "N" : "") + literal;
      expected += literal;
    }
    text += ")";
    EXPECT_EQ(WhyRefused(text, 1), "");
    EXPECT_EQ(ValuesIn(Carried(engine, text)), expected);
  }
}

TEST(DialectText, OwnerOfTwoPartsIsDroppedWhole) {
  ConnectionSettings settings;
  settings.ownerPrefix = "ILL.dbo.";
  EXPECT_EQ(Dialect::For(Engine::Sqlite).Carry("SELECT * FROM ILL.dbo.ID_A, dbo.ID_B", settings),
            "SELECT * FROM ID_A, dbo.ID_B");
}

TEST(DialectText, DateLiterals) {
  const QDateTime moment(QDate(2024, 3, 1), QTime(7, 8, 9));
  for (const Engine engine : {Engine::Sqlite, Engine::PostgreSql, Engine::MariaDb}) {
    EXPECT_EQ(Dialect::For(engine).DateLiteral(moment.date()), "'2024-03-01'");
    EXPECT_EQ(Dialect::For(engine).DateTimeLiteral(moment), "'2024-03-01 07:08:09'");
  }
  EXPECT_EQ(Dialect::For(Engine::SqlServer).DateLiteral(moment.date()), "'20240301'");
  EXPECT_EQ(Dialect::For(Engine::SqlServer).DateTimeLiteral(moment), "'2024-03-01T07:08:09'");
}

// Qt's driver puts them into the connection string as they stand.
TEST(DialectText, UserAndPasswordOfOdbcAreEnclosedWhereTheyWouldEndTheirValue) {
  const std::pair<const char*, const char*> words[] = {
      {"", ""},       {"plain", "plain"}, {"a=b{c}", "a=b{c}"},         {"x;DATABASE=y", "{x;DATABASE=y}"},
      {"{x", "{{x}"}, {" x", "{ x}"},     {"x};PWD={y", "{x}};PWD={y}"}};
  QSqlDatabase database = QSqlDatabase::addDatabase("QODBC", "enclosed");
  for (const auto& [given, expected] : words) {
    ConnectionSettings settings;
    settings.engine = Engine::SqlServer;
    settings.name = "source";
    settings.user = settings.password = given;
    QString reason;
    EXPECT_TRUE(Dialect::For(Engine::SqlServer).Prepare(database, settings, &reason));
    EXPECT_EQ(database.userName(), expected);
    EXPECT_EQ(database.password(), expected);
  }
  database = QSqlDatabase();
  QSqlDatabase::removeDatabase("enclosed");
}

TEST(DialectText, DatabaseTypesAndDrivers) {
  const int types[] = {1, 2, 3, 5};
  const char* const drivers[] = {"QSQLITE", "QPSQL", "QMYSQL", "QODBC"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(Dialect::For(engines[i]).engine(), engines[i]);
    EXPECT_EQ(Dialect::For(engines[i]).DatabaseType(), types[i]);
    EXPECT_EQ(Dialect::For(engines[i]).DriverName(), drivers[i]);
    EXPECT_TRUE(Dialect::For(engines[i]).DriverPackage().startsWith("libqt6sql6-"));
  }
}

}  // namespace
