#include <QSqlError>

#include "ado/AdoTest.h"

namespace {

// Native codes as the drivers give them; SQL Server's are checked here only, for it cannot be run.
struct Native {
  Engine engine;
  const char* code;
  quint32 number;
  const char* word;  // that the description must hold
};

const Native natives[] = {
    {Engine::Sqlite, "1555", AdoNumber::ConstraintBroken, "duplicate"},
    {Engine::Sqlite, "2067", AdoNumber::ConstraintBroken, "duplicate"},
    {Engine::Sqlite, "787", AdoNumber::ConstraintBroken, "REFERENCE"},
    {Engine::Sqlite, "1299", AdoNumber::ConstraintBroken, ""},
    {Engine::Sqlite, "275", AdoNumber::ConstraintBroken, ""},
    {Engine::Sqlite, "1", AdoNumber::TextRefused, ""},
    {Engine::Sqlite, "5", AdoNumber::Busy, "locked"},
    {Engine::Sqlite, "517", AdoNumber::Busy, "busy"},
    {Engine::Sqlite, "8", AdoNumber::Unspecified, ""},
    {Engine::PostgreSql, "23505", AdoNumber::ConstraintBroken, "duplicate"},
    {Engine::PostgreSql, "23503", AdoNumber::ConstraintBroken, "REFERENCE"},
    {Engine::PostgreSql, "23502", AdoNumber::ConstraintBroken, ""},
    {Engine::PostgreSql, "22001", AdoNumber::TextRefused, ""},
    {Engine::PostgreSql, "42P01", AdoNumber::TextRefused, ""},
    {Engine::PostgreSql, "40P01", AdoNumber::Busy, "busy"},
    {Engine::MariaDb, "1062", AdoNumber::ConstraintBroken, "duplicate"},
    {Engine::MariaDb, "1451", AdoNumber::ConstraintBroken, "REFERENCE"},
    {Engine::MariaDb, "1452", AdoNumber::ConstraintBroken, "REFERENCE"},
    {Engine::MariaDb, "4025", AdoNumber::ConstraintBroken, ""},
    {Engine::MariaDb, "1406", AdoNumber::TextRefused, ""},
    {Engine::MariaDb, "1213", AdoNumber::Busy, "busy"},
    {Engine::SqlServer, "2627", AdoNumber::ConstraintBroken, "duplicate"},
    {Engine::SqlServer, "2601;3621", AdoNumber::ConstraintBroken, "duplicate"},
    {Engine::SqlServer, "3621;547", AdoNumber::ConstraintBroken, "REFERENCE"},
    {Engine::SqlServer, "515", AdoNumber::ConstraintBroken, ""},
    {Engine::SqlServer, "208", AdoNumber::TextRefused, ""},
    {Engine::SqlServer, "547", AdoNumber::ConstraintBroken, "REFERENCE"},
    {Engine::SqlServer, "1205", AdoNumber::Busy, "busy"},
    {Engine::SqlServer, "1222", AdoNumber::Busy, "busy"},
    {Engine::SqlServer, "-2", AdoNumber::Busy, "busy"},
    {Engine::SqlServer, "0;-2", AdoNumber::Busy, "busy"},
};

// The type that QtSql gives is wrong on every driver: the code alone must decide.
QSqlError Error(const char* code) {
  return {"driver", "text", QSqlError::UnknownError, code};
}

TEST(ErrorIdentity, NativeCodesBecomeNumbersAndWords) {
  for (const Native& native : natives) {
    const AdoError error = Dialect::For(native.engine).Translate(Error(native.code), "here");
    EXPECT_EQ(error.Number(), native.number) << native.code;
    EXPECT_TRUE(error.Description().contains(native.word)) << native.code;
    EXPECT_FALSE(error.ConnectionLost()) << native.code;
    EXPECT_EQ(error.Source(), "here");
  }
}

TEST(ErrorIdentity, LostConnectionsAreTold) {
  const std::pair<Engine, const char*> lost[] = {{Engine::PostgreSql, "57P01"}, {Engine::PostgreSql, "57P05"},
                                                 {Engine::PostgreSql, "08006"}, {Engine::MariaDb, "2006"},
                                                 {Engine::MariaDb, "2013"},     {Engine::SqlServer, "10054"}};
  for (const auto& [engine, code] : lost) {
    EXPECT_TRUE(Dialect::For(engine).IsConnectionLost(Error(code))) << code;
    EXPECT_TRUE(Dialect::For(engine).Translate(Error(code), {}).ConnectionLost()) << code;
  }
}

// ODBC has no native code of its own for these.
TEST(ErrorIdentity, WhatSqlServersDriversSayInWords) {
  const Dialect& dialect = Dialect::For(Engine::SqlServer);
  const auto error = [](const char* text) { return QSqlError("driver", text, QSqlError::UnknownError, "0"); };
  EXPECT_EQ(dialect.Translate(error("Query timeout expired"), {}).Number(), AdoNumber::Busy);
  EXPECT_EQ(dialect.Translate(error("[HYT00] Timeout expired"), {}).Number(), AdoNumber::Busy);
  EXPECT_TRUE(dialect.IsConnectionLost(error("Communication link failure")));
  EXPECT_EQ(dialect.Translate(error("Invalid cursor state"), {}).Number(), AdoNumber::Unspecified);
}

TEST(ErrorIdentity, NumbersPrintAsSignedDecimals) {
  EXPECT_EQ(AdoError(AdoNumber::ConstraintBroken, "x", "y").NumberText(), "-2147217873");
  EXPECT_EQ(AdoError(AdoNumber::TextRefused, "x", "y").NumberText(), "-2147217900");
  EXPECT_STREQ(AdoError(0, QString("\u00e9"), "y").what(), "\xc3\xa9");
}

TEST(ErrorIdentity, RefusedDeletesAreKnownByNumber) {
  EXPECT_TRUE(AdoError(AdoNumber::ConstraintBroken, {}, {}).RefusedByReference());
  EXPECT_TRUE(AdoError(AdoNumber::RowReferenced, {}, {}).RefusedByReference());
  EXPECT_FALSE(AdoError(AdoNumber::TextRefused, {}, {}).RefusedByReference());
}

class EngineErrors : public AdoTest {
 protected:
  EngineErrors() {
    Run("CREATE TABLE ID_PARENT (CODE VARCHAR(3) NOT NULL PRIMARY KEY, NAME VARCHAR(50) UNIQUE)");
    Run("CREATE TABLE ID_CHILD (ID INTEGER NOT NULL PRIMARY KEY, CODE VARCHAR(3), "
        "FOREIGN KEY (CODE) REFERENCES ID_PARENT (CODE))");
    Run("INSERT INTO ID_PARENT VALUES('A', 'One')");
    Run("INSERT INTO ID_CHILD VALUES(1, 'A')");
  }
};

TEST_F(EngineErrors, DuplicateKeysHoldTheWord) {
  for (const char* sql : {"INSERT INTO ID_PARENT VALUES('A', 'Two')", "INSERT INTO ID_PARENT VALUES('B', 'One')"}) {
    const AdoError error = ErrorOf([&] { Run(sql); });
    EXPECT_EQ(error.Number(), AdoNumber::ConstraintBroken);
    EXPECT_TRUE(error.Description().contains("duplicate"));
    EXPECT_FALSE(error.Description().contains("REFERENCE "));
  }
}

TEST_F(EngineErrors, ForeignKeysHoldTheWord) {
  for (const char* sql : {"DELETE FROM ID_PARENT WHERE CODE = 'A'", "INSERT INTO ID_CHILD VALUES(2, 'Z')",
                          "UPDATE ID_PARENT SET CODE = 'C'"}) {
    const AdoError error = ErrorOf([&] { Run(sql); });
    EXPECT_EQ(error.Number(), AdoNumber::ConstraintBroken);
    EXPECT_TRUE(error.RefusedByReference());
    EXPECT_TRUE(error.Description().contains("REFERENCE"));
    EXPECT_FALSE(error.Description().contains("duplicate"));
  }
  EXPECT_EQ(Count("ID_PARENT"), 1);
}

TEST_F(EngineErrors, NullInAKeyBreaksAConstraint) {
  EXPECT_EQ(ErrorOf([&] { Run("INSERT INTO ID_PARENT VALUES(NULL, 'x')"); }).Number(), AdoNumber::ConstraintBroken);
}

TEST_F(EngineErrors, UnknownNamesAndWordsAreRefusedText) {
  for (const char* sql : {"DELETE FROM ID_NOT_THERE", "UPDATE ID_PARENT SET NO_COLUMN = 1", "DELET FROM ID_PARENT"}) {
    EXPECT_EQ(ErrorOf([&] { Run(sql); }).Number(), AdoNumber::TextRefused) << sql;
  }
  EXPECT_EQ(connection.State(), 1);
}

TEST_F(EngineErrors, ServersRefuseATextThatIsTooLong) {
  if (TestDatabase::TestEngine() == Engine::Sqlite) GTEST_SKIP() << "SQLite knows no length without a CHECK";
  EXPECT_EQ(ErrorOf([&] { Run("INSERT INTO ID_PARENT VALUES('ABCD', 'x')"); }).Number(), AdoNumber::TextRefused);
  EXPECT_EQ(Count("ID_PARENT"), 1);
}

TEST_F(EngineErrors, AFailureKnowsItsStatementAsItWasComposed) {
  const QString broken = "INSERT INTO ID_NOWHERE VALUES(N'x')";
  EXPECT_EQ(ErrorOf([&] { connection.Execute(broken); }).Statement(), broken);
  Recordset rows;
  const QString read = "SELECT TOP 1 A FROM ID_NOWHERE";
  EXPECT_EQ(ErrorOf([&] { rows.Open(connection, read); }).Statement(), read);
  const QString two = "SELECT 1; SELECT 2";
  EXPECT_EQ(ErrorOf([&] { connection.Execute(two); }).Statement(), two);
}

TEST_F(EngineErrors, AnErrorIsNotRememberedByTheNextStatement) {
  ErrorOf([&] { Run("DELETE FROM ID_NOT_THERE"); });
  EXPECT_EQ(Run("UPDATE ID_PARENT SET NAME = 'Two'"), 1);
}

// A trigger's text could pass for an entry of the log otherwise.
TEST(ErrorIdentity, AnEnginesTextIsOneLine) {
  const QSqlError error("", "no\n2026-01-01 00:00:00 AM  * forged\r\nend", QSqlError::StatementError, "1");
  const QString text = Dialect::For(Engine::Sqlite).Translate(error, "test").Description();
  EXPECT_EQ(text, QString::fromUtf8("no␊2026-01-01 00:00:00 AM  * forged␍␊end"));
}

}  // namespace
