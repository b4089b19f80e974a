// What cannot be seen without the server, looked for in the text that it would be sent: the schema, the rows of the
// scripts, the statements of the tools.
#include <gtest/gtest.h>

#include <QSet>

#include "platform/ado/SqlServerDialect.h"
#include "platform/ado/SqlTokens.h"
#include "schema/ChangeRunner.h"
#include "schema/Languages.h"
#include "schema/SchemaSql.h"
#include "schema/SchemaStatements.h"
#include "schema/SqlScript.h"
#include "support/CarriedText.h"
#include "support/TestDatabase.h"
#include "tools/DatabaseCheck.h"
#include "tools/Users.h"

namespace {

const SchemaModel& Model() {
  return SchemaModel::Get();
}

QString Carried(const QString& statement) {
  ConnectionSettings settings;
  settings.keyOf = Content::OrderOf;
  return Dialect::For(Engine::SqlServer).Carry(statement, settings);
}

// The size of a key in bytes: two for each letter of a text.
int Bytes(const SchemaTable& table, const QStringList& columns) {
  int bytes = 0;
  for (const QString& name : columns) {
    const SchemaColumn& column = *table.Find(name);
    bytes += column.type == SchemaColumn::Text ? 2 * column.size : 9;
  }
  return bytes;
}

class Catalogue : public SqlServerDialect {
 public:
  using SqlServerDialect::ColumnsStatement;
  using SqlServerDialect::TablesStatement;
};

TEST(SqlServerText, SchemaAndRowsAreWritten) {
  const SchemaStatements statements(Engine::SqlServer, "dbo.");
  for (const SchemaTable& table : Model().tables) {
    WriteCarried(statements.Create(table, {"ENG", "FRE"}));
    WriteCarried(statements.Drop(table));
    for (const SchemaColumn& column : table.columns)
      if (column.language) WriteCarried(statements.AddColumn(table.name, InLanguage(column, "GER")));
  }
  for (const QString& index : statements.CreateIndexes(Model())) WriteCarried(index);
  for (const char* script : {"reference.sql", "sample.sql"}) {
    const QStringList rows = SqlScript::Statements(SqlScript::Text(script));
    EXPECT_GT(rows.size(), 20);
    for (const QString& row : rows) WriteCarried(row);
  }
  const Catalogue dialect;
  for (const QString& statement : dialect.SessionSetup({})) WriteCarried(statement);
  for (const QString& statement : {dialect.BeginStatement(), QString("COMMIT"), QString("ROLLBACK"),
                                   dialect.ColumnsStatement("ID_LIBRARY"), dialect.TablesStatement()})
    WriteCarried(statement);
}

TEST(SqlServerText, StatementsOfTheToolsAreWritten) {
  TestDatabase database(true);
  Connection connection(database.Settings());
  int written = 0;
  connection.AddObserver([&](const StatementRecord& record) {
    for (const QString& statement : SplitStatements(record.text))
      if (!statement.startsWith("ALTER TABLE")) WriteCarried(statement), ++written;
  });
  connection.Open();
  CheckDatabase(connection, true);
  Users::Add(connection, "some'one", "record");
  Users::SetPassword(connection, "some'one", "other");
  Users::SetRight(connection, "some'one", {"Tabulon", true, false, true});
  Users::List(connection);
  Users::RemoveRight(connection, "some'one", "Tabulon");
  Users::Remove(connection, "some'one");
  Languages::Add(connection, {"SPA", "Español"}, true);
  Languages::FillEmptyDescriptions(connection, Languages::Codes(connection));
  const SchemaTable& currencies = *Model().Find("ID_CURRENCY_CODE");
  const TableContent before = Content::Read(connection, currencies, {});
  TableContent after = before;
  ASSERT_GT(after.rows.size(), 3u);
  const auto description = static_cast<size_t>(after.Position("CURRENCY_CODE_DESC"));
  after.rows[0][description] = "Été";
  Row added = after.rows[1];
  added[0] = "QQQ";
  after.rows.push_back(added);
  Transaction transaction(connection);
  ChangeRunner(connection, false).Run({Compare(after, before)});
  connection.Execute("DELETE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = N'QQQ'");
  transaction.Commit();
  for (const SchemaTable& table : Model().tables) Content::Read(connection, table, {});
  EXPECT_GT(written, 100);
}

// A clustered key holds 900 bytes, another one 1,700; a table that could hold more takes the row that does not fit for
// an error.
TEST(SqlServerText, KeysFitTheirLimits) {
  for (const SchemaTable& table : Model().tables) {
    EXPECT_LE(Bytes(table, table.primaryKey), 900) << table.name.toStdString();
    for (const QStringList& key : table.uniqueKeys) EXPECT_LE(Bytes(table, key), 1700) << table.name.toStdString();
  }
  for (const SchemaIndex& index : Model().indexes)
    EXPECT_LE(Bytes(*Model().Find(index.table), index.columns), 1700) << index.name.toStdString();
}

// "May cause cycles or multiple cascade paths": no table may be reached by two ways of ON DELETE or ON UPDATE.
TEST(SqlServerText, ATableIsReachedByOneCascadeOnly) {
  for (const SchemaTable& table : Model().tables) {
    int cascades = 0;
    for (const SchemaForeignKey& key : table.foreignKeys) {
      if (!key.actions.contains("CASCADE")) continue;
      ++cascades;
      EXPECT_NE(key.table, table.name);
      for (const SchemaForeignKey& further : Model().Find(key.table)->foreignKeys)
        EXPECT_FALSE(further.actions.contains("CASCADE")) << table.name.toStdString();
    }
    EXPECT_LE(cascades, 1) << table.name.toStdString();
  }
}

// Names that are words of the language need brackets there.
TEST(SqlServerText, NoNameIsAReservedWord) {
  static const QSet<QString> reserved{
      "ADD",     "ALL",      "ALTER",     "AND",      "ANY",        "AS",       "ASC",      "BACKUP",   "BEGIN",
      "BETWEEN", "BREAK",    "BROWSE",    "BULK",     "BY",         "CASCADE",  "CASE",     "CHECK",    "CLOSE",
      "COLUMN",  "COMMIT",   "CREATE",    "CURRENT",  "CURSOR",     "DATABASE", "DEFAULT",  "DELETE",   "DENY",
      "DESC",    "DISK",     "DISTINCT",  "DROP",     "DUMP",       "ELSE",     "END",      "ERRLVL",   "ESCAPE",
      "EXEC",    "EXISTS",   "EXIT",      "EXTERNAL", "FETCH",      "FILE",     "FOR",      "FOREIGN",  "FROM",
      "FULL",    "FUNCTION", "GOTO",      "GRANT",    "GROUP",      "HAVING",   "HOLDLOCK", "IDENTITY", "IF",
      "IN",      "INDEX",    "INNER",     "INSERT",   "INTO",       "IS",       "JOIN",     "KEY",      "KILL",
      "LEFT",    "LIKE",     "LINENO",    "LOAD",     "MERGE",      "NATIONAL", "NOT",      "NULL",     "OF",
      "OFF",     "ON",       "OPEN",      "OPTION",   "OR",         "ORDER",    "OUTER",    "OVER",     "PERCENT",
      "PIVOT",   "PLAN",     "PRECISION", "PRIMARY",  "PRINT",      "PROC",     "PUBLIC",   "READ",     "REFERENCES",
      "RESTORE", "RETURN",   "REVERT",    "REVOKE",   "RIGHT",      "ROLLBACK", "RULE",     "SAVE",     "SCHEMA",
      "SELECT",  "SET",      "SHUTDOWN",  "SOME",     "STATISTICS", "TABLE",    "THEN",     "TO",       "TOP",
      "TRAN",    "TRIGGER",  "TRUNCATE",  "UNION",    "UNIQUE",     "UNPIVOT",  "UPDATE",   "USE",      "USER",
      "VALUES",  "VIEW",     "WAITFOR",   "WHEN",     "WHERE",      "WHILE",    "WITH",     "WITHIN",   "WRITETEXT"};
  for (const SchemaTable& table : Model().tables) {
    for (const SchemaColumn& column : table.columns)
      EXPECT_FALSE(reserved.contains(column.name)) << table.name.toStdString() << '.' << column.name.toStdString();
  }
}

// A literal without N is of the server's one code page, and a letter that it lacks becomes a question mark.
TEST(SqlServerText, LettersBeyondAsciiStandInNationalLiterals) {
  EXPECT_EQ(Carried("UPDATE ID_LIBRARY SET CITY = 'Zürich' WHERE LIBRARY_ID = 1"),
            "UPDATE ID_LIBRARY SET CITY = N'Zürich' WHERE LIBRARY_ID = 1");
}

// Texts of the tables compare letter by letter; a pattern names the collation that a search wants.
TEST(SqlServerText, APatternNamesItsCollation) {
  EXPECT_EQ(Carried("SELECT COUNT(*) FROM ID_LIBRARY WHERE LIBRARY LIKE '%a!_b%' ESCAPE '!'"),
            "SELECT COUNT(*) FROM ID_LIBRARY WHERE LIBRARY COLLATE Latin1_General_100_CI_AS_KS_WS_SC LIKE "
            "'%a!_b%' ESCAPE '!'");
}

// A column may stand once in an ORDER BY.
TEST(SqlServerText, NoColumnStandsTwiceInAnOrder) {
  EXPECT_EQ(Carried("SELECT * FROM ID_LIBRARY Order By library_id DESC"),
            "SELECT * FROM ID_LIBRARY Order By library_id DESC");
  EXPECT_EQ(Carried("SELECT D.DEPARTMENT FROM ID_DEPARTMENT D, ID_LIBRARY L WHERE L.LIBRARY_ID = D.LIBRARY_ID "
                    "ORDER BY L.LIBRARY_SYMBOL, D.DEPARTMENT"),
            "SELECT D.DEPARTMENT FROM ID_DEPARTMENT D, ID_LIBRARY L WHERE L.LIBRARY_ID = D.LIBRARY_ID ORDER BY "
            "L.LIBRARY_SYMBOL, D.DEPARTMENT, D.LIBRARY_ID, L.LIBRARY_ID");
}

// Moments are texts that every language and date format of a server reads alike.
TEST(SqlServerText, MomentsDependOnNoSetting) {
  const Dialect& dialect = Dialect::For(Engine::SqlServer);
  EXPECT_EQ(dialect.DateLiteral(QDate(2026, 2, 3)), "'20260203'");
  EXPECT_EQ(dialect.DateTimeLiteral(QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6))), "'2026-02-03T04:05:06'");
  EXPECT_TRUE(SchemaStatements(Engine::SqlServer, {}).Create(*Model().Find("ID_REQUEST"), {}).contains("DATETIME2(0)"));
}

// Without these a table with an index of a part of its rows takes no change, an error leaves half a transaction, a lock
// is waited for without end.
TEST(SqlServerText, TheSessionSetsWhatStatementsRelyOn) {
  const QStringList setup = Dialect::For(Engine::SqlServer).SessionSetup({});
  for (const char* statement :
       {"SET XACT_ABORT ON", "SET LOCK_TIMEOUT 5000", "SET ANSI_NULLS ON", "SET ANSI_PADDING ON",
        "SET ANSI_WARNINGS ON", "SET ARITHABORT ON", "SET CONCAT_NULL_YIELDS_NULL ON", "SET QUOTED_IDENTIFIER ON",
        "SET NUMERIC_ROUNDABORT OFF", "SET TRANSACTION ISOLATION LEVEL READ COMMITTED"})
    EXPECT_TRUE(setup.contains(statement)) << statement;
}

}  // namespace
