// The road to SQL Server as far as it can be walked without one: the same driver of Qt, the same way of opening and
// the same statements for the catalogue, but PostgreSQL's ODBC driver and server at its end.
#include <QSqlError>
#include <ctime>

#include "ado/AdoTest.h"
#include "platform/ado/SqlServerDialect.h"

namespace {

// What the server at the end needs otherwise. Its driver has one native code for all errors of a statement.
class OverOdbc : public SqlServerDialect {
 public:
  QStringList SessionSetup(const ConnectionSettings& settings) const override {
    return Server().SessionSetup(settings);
  }
  QString SessionCheck() const override { return Server().SessionCheck(); }
  QString Carry(const QString& statement, const ConnectionSettings& settings) const override {
    return Server().Carry(statement, settings);
  }

 protected:
  Failure Classify(const QSqlError& error) const override {
    if (error.nativeErrorCode().split(u';').contains(QLatin1String("35"))) return Failure::Lost;
    const QString text = error.databaseText();
    if (text.contains(QLatin1String("duplicate key"))) return Failure::Duplicate;
    if (text.contains(QLatin1String("violates foreign key"))) return Failure::Reference;
    if (text.contains(QLatin1String("violates"))) return Failure::Constraint;
    if (text.contains(QLatin1String("timeout"))) return Failure::Busy;
    for (const char* refused : {"too long", "does not exist", "syntax error", "invalid input"}) {
      if (text.contains(QLatin1String(refused))) return Failure::Refused;
    }
    return SqlServerDialect::Classify(error);
  }

 private:
  static const Dialect& Server() { return Dialect::For(Engine::PostgreSql); }
};

const OverOdbc dialect;

class OdbcRoad : public AdoTest {
 protected:
  void SetUp() override {
    if (TestDatabase::TestEngine() != Engine::PostgreSql) GTEST_SKIP() << "the ODBC driver at hand is PostgreSQL's";
    odbc.Open();
    odbc.Execute("CREATE TABLE ID_PARENT (CODE VARCHAR(5) NOT NULL PRIMARY KEY, NAME VARCHAR(200))");
    odbc.Execute("CREATE TABLE ID_CHILD (ID INTEGER NOT NULL PRIMARY KEY, CODE VARCHAR(5) REFERENCES ID_PARENT)");
  }

  ConnectionSettings Settings(const QString& name) const {
    ConnectionSettings settings;
    settings.engine = Engine::SqlServer;
    settings.name = "DRIVER={PostgreSQL Unicode};SERVER=" + database.Settings().host + ";DATABASE=" + name;
    settings.user = database.Settings().user;
    return settings;
  }

  qint64 Execute(const QString& sql, int statements = 1) { return odbc.Execute(sql, statements); }
  QString Read(const QString& sql) { return Value(odbc, sql); }
  // Through the server's own driver, which knows nothing of ODBC.
  QString Stored(const QString& sql) { return Value(connection, sql); }
  QString Literal(const QString& text) { return "N'" + odbc.dialect().Escape(text) + "'"; }

  // Ends the session of ODBC alone.
  void Kill() {
    const QString pid = Read("SELECT pg_backend_pid()");
    ASSERT_EQ(Value("SELECT CASE WHEN pg_terminate_backend(" + pid + ", 5000) THEN 1 ELSE 0 END"), "1");
  }

  Connection odbc{Settings(database.Settings().name), dialect};
};

const QStringList Letters{"",
                          " ",
                          "  both ends  ",
                          "O'Brien",
                          "'; DROP TABLE ID_PARENT; --",
                          "N'x' ?:x {d '2024-01-01'} {fn USER()}",
                          R"(C:\ \' a\nb)",
                          "100% _ [a] $1",
                          "a\tb\nc\r\nd",
                          "Nevy\u0159\u00edzen\u00e9 \u4e2d\u6587 \ufb01",
                          "e\u0301 o\u0308 \u1e9b\u0323",
                          "\u05e9\u05dc\u05d5\u05dd \u0639\u0631\u0628\u064a \u202eabc\u202c",
                          "\U0001f600 \U0001f469\u200d\U0001f680 \U00020000",
                          "\ufeffmark \u00a0no break\u2028line\uffff"};

// --- Letters ---

TEST_F(OdbcRoad, LettersArriveAndComeBackAsTheyAre) {
  for (const QString& text : Letters) {
    Execute("DELETE FROM ID_PARENT");
    Execute("INSERT INTO ID_PARENT VALUES(N'A', " + Literal(text) + ")");
    EXPECT_EQ(Stored("SELECT NAME FROM ID_PARENT"), text);
    EXPECT_EQ(Read("SELECT NAME FROM ID_PARENT"), text);
    EXPECT_EQ(Read("SELECT CODE FROM ID_PARENT WHERE NAME = " + Literal(text)), "A");
    EXPECT_EQ(Read("SELECT CHAR_LENGTH(NAME) FROM ID_PARENT").toInt(), text.toUcs4().size());
  }
}

TEST_F(OdbcRoad, LettersOfAnotherDriverAreRead) {
  for (const QString& text : Letters) {
    Run("DELETE FROM ID_PARENT");
    Run("INSERT INTO ID_PARENT VALUES('A', " + Literal(text) + ")");
    EXPECT_EQ(Read("SELECT NAME FROM ID_PARENT"), text);
  }
}

// The driver hands long texts over in pieces: none may end in the middle of a letter, or be the last.
TEST_F(OdbcRoad, LongTextsAreWhole) {
  Execute("CREATE TABLE ID_LONG (ID INTEGER, NOTE TEXT, LIMITED VARCHAR(20000))");
  const QString pair = "\U0001f600";
  for (const int length : {1, 127, 128, 254, 255, 256, 1023, 4000, 4095, 4096, 8189, 8190, 8191, 16383, 20000}) {
    for (const QString& text : {QString(length, u'x'), QString(length - 1, u'x') + u'\u4e2d',
                                QString(length / 2, u'x') + pair.repeated(length / 2),
                                pair.repeated(length / 2) + QString(length % 2, u'y')}) {
      Execute("DELETE FROM ID_LONG");
      Execute("INSERT INTO ID_LONG VALUES(1, " + Literal(text) + ", " + Literal(text) + ")");
      EXPECT_TRUE(Stored("SELECT NOTE FROM ID_LONG") == text) << length;
      EXPECT_TRUE(Read("SELECT NOTE FROM ID_LONG") == text)
          << length << ": " << Read("SELECT NOTE FROM ID_LONG").size();
      EXPECT_TRUE(Read("SELECT LIMITED FROM ID_LONG") == text) << length;
    }
  }
}

TEST_F(OdbcRoad, NullIsNotAnEmptyText) {
  Execute("INSERT INTO ID_PARENT VALUES('A', NULL)");
  Execute("INSERT INTO ID_PARENT VALUES('B', N'')");
  EXPECT_EQ(Read("SELECT NAME FROM ID_PARENT WHERE CODE = 'A'"), "(null)");
  EXPECT_EQ(Read("SELECT NAME FROM ID_PARENT WHERE CODE = 'B'"), "");
  EXPECT_EQ(Read("SELECT COUNT(*) FROM ID_PARENT WHERE NAME IS NULL"), "1");
  EXPECT_EQ(Stored("SELECT CODE FROM ID_PARENT WHERE NAME = ''"), "B");
}

// --- Columns and values ---

TEST_F(OdbcRoad, TheCatalogueTellsTypesAndLengths) {
  Execute(
      "CREATE TABLE ID_TYPES (ID INTEGER NOT NULL, CODE VARCHAR(3), FIXED CHAR(2), PRICE NUMERIC(8,2), BORN DATE, "
      "CHANGED TIMESTAMP)");
  const auto& columns = odbc.Columns("ID_TYPES");
  const int types[] = {AdoType::Integer, AdoType::VarWChar, AdoType::WChar,
                       AdoType::Numeric, AdoType::Date,     AdoType::TimeStamp};
  const int sizes[] = {10, 3, 2, 8, 0, 0};
  ASSERT_EQ(columns.size(), std::size(types));
  for (size_t i = 0; i < columns.size(); ++i) {
    EXPECT_EQ(columns[i].type, types[i]) << i;
    EXPECT_EQ(columns[i].definedSize, sizes[i]) << i;
    EXPECT_EQ(columns[i].nullable, i != 0) << i;
  }
  EXPECT_EQ(columns[3].scale, 2);
  Recordset rows;
  rows.Open(odbc, "SELECT * FROM ID_TYPES");
  EXPECT_EQ(rows.Fields("CODE").DefinedSize(), 3);
  EXPECT_EQ(odbc.Tables(), QStringList({"ID_CHILD", "ID_PARENT", "ID_TYPES"}));
}

TEST_F(OdbcRoad, NumbersAndDatesAreRead) {
  Execute("CREATE TABLE ID_TYPES (ID INTEGER, PRICE NUMERIC(8,2), BORN DATE, CHANGED TIMESTAMP)");
  const QDateTime moment(QDate(2024, 3, 1), QTime(7, 8, 9));
  Execute("INSERT INTO ID_TYPES VALUES(N'-2147483648', 999999.10, " + odbc.dialect().DateLiteral(moment.date()) + ", " +
          odbc.dialect().DateTimeLiteral(moment) + ")");
  Recordset rows;
  rows.Open(odbc, "SELECT * FROM ID_TYPES");
  EXPECT_EQ(rows.Fields("ID").Value(), "-2147483648");
  EXPECT_EQ(rows.Fields("PRICE").Value(), "999999.10");
  EXPECT_EQ(rows.Fields("BORN").Value(), "2024-03-01");
  EXPECT_EQ(rows.Fields("CHANGED").Value(), "2024-03-01 07:08:09");
}

#ifndef Q_OS_WIN
TEST_F(OdbcRoad, AMomentThatTheClockLeavesOutIsRead) {
  const QByteArray zone = qgetenv("TZ");
  qputenv("TZ", "Europe/Berlin");
  tzset();
  EXPECT_EQ(Read("SELECT CAST('2024-03-31 02:30:00' AS TIMESTAMP)"), "2024-03-31 02:30:00");
  EXPECT_EQ(Read("SELECT CAST('2024-10-27 02:30:00' AS TIMESTAMP)"), "2024-10-27 02:30:00");
  zone.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", zone);
  tzset();
}
#endif

// --- Rows found ---

TEST_F(OdbcRoad, StatementsTellTheRowsTheyFound) {
  EXPECT_EQ(Execute("INSERT INTO ID_PARENT VALUES('A', 'One')"), 1);
  EXPECT_EQ(Execute("INSERT INTO ID_PARENT VALUES('B', 'Two'); INSERT INTO ID_PARENT VALUES('C', 'Two')", 2), 1);
  EXPECT_EQ(Execute("UPDATE ID_PARENT SET NAME = 'Two'"), 3);
  EXPECT_EQ(Execute("UPDATE ID_PARENT SET NAME = 'Two' WHERE CODE = 'B'"), 1);
  EXPECT_EQ(Execute("UPDATE ID_PARENT SET NAME = 'x' WHERE CODE = 'Z'"), 0);
  EXPECT_EQ(Execute("DELETE ID_PARENT WHERE CODE <> 'A'"), 2);
  EXPECT_EQ(Execute("DELETE FROM ID_PARENT WHERE CODE = 'Z'"), 0);
}

TEST_F(OdbcRoad, ARowChangedMeanwhileIsNotOverwritten) {
  Execute("INSERT INTO ID_PARENT VALUES('A', 'One')");
  Recordset rows;
  rows.LockType = Recordset::Pessimistic;
  rows.Open(odbc, "SELECT CODE, NAME FROM ID_PARENT");
  rows.SetValue("NAME", " Zwei ");
  rows.Update();
  EXPECT_EQ(Stored("SELECT NAME FROM ID_PARENT"), " Zwei ");
  Run("UPDATE ID_PARENT SET NAME = 'Three'");
  rows.SetValue("NAME", "Four");
  EXPECT_EQ(ErrorOf([&] { rows.Update(); }).Number(), AdoNumber::RowChanged);
}

TEST_F(OdbcRoad, ARecordsetIsFinishedWhenItIsOpen) {
  for (int i = 0; i < 100; ++i) Execute(QString("INSERT INTO ID_PARENT VALUES('%1', 'x')").arg(i));
  Recordset all, some;
  all.Open(odbc, "SELECT CODE FROM ID_PARENT");
  some.Open(odbc, "SELECT TOP 2 CODE FROM ID_PARENT ORDER BY CODE");
  EXPECT_EQ(Execute("DELETE FROM ID_PARENT"), 100);
  EXPECT_EQ(all.RecordCount(), 100);
  EXPECT_EQ(some.RecordCount(), 2);
}

// --- Errors ---

TEST_F(OdbcRoad, ErrorsArriveAsNumbers) {
  Execute("INSERT INTO ID_PARENT VALUES('A', 'One')");
  Execute("INSERT INTO ID_CHILD VALUES(1, 'A')");
  const struct {
    const char* sql;
    quint32 number;
    const char* word;
  } errors[] = {{"INSERT INTO ID_PARENT VALUES('A', 'x')", AdoNumber::ConstraintBroken, "duplicate"},
                {"DELETE FROM ID_PARENT", AdoNumber::ConstraintBroken, "REFERENCE"},
                {"INSERT INTO ID_CHILD VALUES(2, 'Z')", AdoNumber::ConstraintBroken, "REFERENCE"},
                {"INSERT INTO ID_PARENT VALUES(NULL, 'x')", AdoNumber::ConstraintBroken, "null"},
                {"INSERT INTO ID_PARENT VALUES('ABCDEF', 'x')", AdoNumber::TextRefused, "too long"},
                {"INSERT INTO ID_CHILD VALUES('x', NULL)", AdoNumber::TextRefused, "invalid"},
                {"DELETE FROM ID_NOT_THERE", AdoNumber::TextRefused, ""},
                {"DELET FROM ID_PARENT", AdoNumber::TextRefused, ""}};
  for (const auto& [sql, number, word] : errors) {
    const AdoError error = ErrorOf([&, text = sql] { Execute(text); });
    EXPECT_EQ(error.Number(), number) << sql;
    EXPECT_TRUE(error.Description().contains(word)) << sql << ": " << error.what();
    EXPECT_FALSE(error.ConnectionLost()) << sql;
    EXPECT_EQ(odbc.State(), Connection::Opened);
  }
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "1");
}

TEST_F(OdbcRoad, AnErrorOfASelectArrives) {
  EXPECT_EQ(ErrorOf([&] { Read("SELECT NO_COLUMN FROM ID_PARENT"); }).Number(), AdoNumber::TextRefused);
  EXPECT_EQ(Read("SELECT COUNT(*) FROM ID_PARENT"), "0");
}

TEST_F(OdbcRoad, WhatCannotBeOpenedIsToldWithoutThePassword) {
  ConnectionSettings settings = Settings("no_such_database");
  settings.password = "open sesame";
  const AdoError absent = ErrorOf([&] { Connection(settings, dialect).Open(); });
  EXPECT_TRUE(absent.Description().contains("no_such_database")) << absent.what();
  settings.name = "DRIVER={No Such Driver};SERVER=localhost;UID=x;PWD=open sesame";
  const AdoError driver = ErrorOf([&] { Connection(settings, dialect).Open(); });
  EXPECT_TRUE(driver.Description().contains("ODBC driver")) << driver.what();
  for (const AdoError& error : {absent, driver}) EXPECT_FALSE(error.Description().contains("sesame")) << error.what();
}

// A semicolon inside would begin the next word of the connection string.
TEST_F(OdbcRoad, APasswordIsNoPartOfTheConnectionString) {
  for (const char* password : {"x;DATABASE=no_such_database", "{x", "x}", "}x;DATABASE=no_such_database;PWD={", " x ",
                               "a=b", "\u00e9\U0001f600"}) {
    ConnectionSettings settings = Settings(database.Settings().name);
    settings.password = password;
    Connection other(settings, dialect);
    other.Open();
    EXPECT_EQ(Value(other, "SELECT current_database()"), database.Settings().name) << password;
  }
}

// --- Transactions ---

TEST_F(OdbcRoad, ATransactionIsStoredWholeOrNotAtAll) {
  odbc.BeginTrans();
  Execute("INSERT INTO ID_PARENT VALUES('A', 'x')");
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "0");
  odbc.CommitTrans();
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "1");
  odbc.BeginTrans();
  Execute("INSERT INTO ID_PARENT VALUES('B', 'x')");
  EXPECT_EQ(ErrorOf([&] { odbc.BeginTrans(); }).Number(), AdoNumber::Unspecified);
  odbc.RollbackTrans();
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "1");
  Execute("INSERT INTO ID_PARENT VALUES('C', 'x')");
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "2");
}

TEST_F(OdbcRoad, NothingOfAFailedTransactionIsStored) {
  odbc.BeginTrans();
  Execute("INSERT INTO ID_PARENT VALUES('A', 'x')");
  ErrorOf([&] { Execute("INSERT INTO ID_PARENT VALUES('A', 'y')"); });
  ErrorOf([&] { Execute("INSERT INTO ID_PARENT VALUES('B', 'y')"); });
  ErrorOf([&] { odbc.CommitTrans(); });
  EXPECT_FALSE(odbc.InTransaction());
  ErrorOf([&] { Execute("INSERT INTO ID_PARENT VALUES('C', 'x'); INSERT INTO ID_PARENT VALUES('C', 'y')", 2); });
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "0");
  EXPECT_EQ(Execute("INSERT INTO ID_PARENT VALUES('D', 'x')"), 1);
}

TEST_F(OdbcRoad, ALockIsNotWaitedForWithoutEnd) {
  Execute("INSERT INTO ID_PARENT VALUES('A', 'x')");
  Execute("SET lock_timeout = 300");
  Transaction held(connection);
  Run("UPDATE ID_PARENT SET NAME = 'y'");
  EXPECT_EQ(ErrorOf([&] { Execute("UPDATE ID_PARENT SET NAME = 'z'"); }).Number(), AdoNumber::Busy);
  held.Commit();
  EXPECT_EQ(Execute("UPDATE ID_PARENT SET NAME = 'z'"), 1);
}

// --- A lost link ---

TEST_F(OdbcRoad, TheStatementThatFindsTheLossFailsAndTheNextReopens) {
  Kill();
  EXPECT_TRUE(ErrorOf([&] { Execute("INSERT INTO ID_PARENT VALUES('A', 'x')"); }).ConnectionLost());
  EXPECT_EQ(odbc.State(), Connection::Closed);
  EXPECT_EQ(Execute("INSERT INTO ID_PARENT VALUES('A', 'x')"), 1);
  Kill();
  EXPECT_TRUE(ErrorOf([&] { Read("SELECT NAME FROM ID_PARENT"); }).ConnectionLost());
  EXPECT_EQ(Read("SELECT NAME FROM ID_PARENT"), "x");
  Kill();
  EXPECT_TRUE(ErrorOf([&] { odbc.Tables(); }).ConnectionLost());
  EXPECT_EQ(odbc.Tables().size(), 2);
}

TEST_F(OdbcRoad, TheNewSessionIsSetUpAsTheFirst) {
  Kill();
  ErrorOf([&] { Execute("DELETE FROM ID_PARENT"); });
  EXPECT_EQ(Read("SELECT current_setting('lock_timeout')"), "5s");
}

// A commit must not answer well when what it would store is gone.
TEST_F(OdbcRoad, ALossInsideATransactionStoresNothing) {
  odbc.BeginTrans();
  Execute("INSERT INTO ID_PARENT VALUES('A', 'x')");
  Kill();
  EXPECT_TRUE(ErrorOf([&] { Execute("INSERT INTO ID_PARENT VALUES('B', 'x')"); }).ConnectionLost());
  EXPECT_EQ(ErrorOf([&] { Execute("INSERT INTO ID_PARENT VALUES('C', 'x')"); }).Number(), AdoNumber::ObjectClosed);
  ErrorOf([&] { odbc.CommitTrans(); });
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "0");
  EXPECT_EQ(Execute("INSERT INTO ID_PARENT VALUES('D', 'x')"), 1);
}

TEST_F(OdbcRoad, ACommitOnADeadLinkFails) {
  odbc.BeginTrans();
  Execute("INSERT INTO ID_PARENT VALUES('A', 'x')");
  Kill();
  EXPECT_TRUE(ErrorOf([&] { odbc.CommitTrans(); }).ConnectionLost());
  EXPECT_FALSE(odbc.InTransaction());
  EXPECT_EQ(Read("SELECT COUNT(*) FROM ID_PARENT"), "0");
}

TEST_F(OdbcRoad, BeginFindsTheLossToo) {
  Kill();
  EXPECT_TRUE(ErrorOf([&] { odbc.BeginTrans(); }).ConnectionLost());
  odbc.BeginTrans();
  Execute("INSERT INTO ID_PARENT VALUES('A', 'x')");
  odbc.CommitTrans();
  EXPECT_EQ(Stored("SELECT COUNT(*) FROM ID_PARENT"), "1");
}

}  // namespace
