#include <QDir>
#include <QFile>

#include "platform/ado/Recordset.h"
#include "schema/SchemaModel.h"
#include "support/Texts.h"
#include "tools/ToolDesk.h"

namespace {

class CreateTest : public ToolDesk {};

TEST_F(CreateTest, MakesAMissingDatabaseThatPassesTheCheck) {
  UseFreshDatabase();
  const Result created = Run({"create"});
  EXPECT_EQ(created.exitCode, 0) << created.err.toStdString();
  EXPECT_TRUE(created.out.contains("Made 91 tables with the reference rows"));
  EXPECT_EQ(Run({"check"}).exitCode, 0);
  EXPECT_EQ(Count("ID_USER"), 0);
  EXPECT_EQ(Ask("SELECT LANGUAGE_CODE_DEFAULT FROM ID_LANGUAGE_CODE"), "Y");
  EXPECT_EQ(Ask("SELECT DELIV_METHOD_DESC_ENG FROM ID_DELIV_METHOD WHERE DELIV_METHOD = 'M'"), "Mail");
}

TEST_F(CreateTest, ADatabaseWithTablesOfTheSystemIsLeftAsItIs) {
  UseDatabase();
  Execute("DELETE FROM ID_PRINTER");
  Execute("INSERT INTO ID_PRINTER (PRINTER) VALUES ('ours')");
  for (const QStringList& arguments : {QStringList{"create"}, QStringList{"create", "--sample"}}) {
    const Result refused = Run(arguments);
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.err.contains("holds tables of Ostana already. Nothing was changed."));
  }
  EXPECT_EQ(Ask("SELECT PRINTER FROM ID_PRINTER"), "ours");
}

TEST_F(CreateTest, ADatabaseThatWasNotMadeToItsEndIsToldToBeSo) {
  UseFreshDatabase();
  ASSERT_EQ(Run({"create"}).exitCode, 0);
  EXPECT_FALSE(Run({"create"}).err.contains("It is not whole"));
  Execute("DROP TABLE ID_PRINTER");
  const Result refused = Run({"create"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("Nothing was changed.\nIt is not whole: tabulon-db check names what is missing."))
      << refused.err.toStdString();
}

TEST_F(CreateTest, TheSampleSitePassesTheCheckInThreeLanguages) {
  UseFreshDatabase();
  const Result created = Run({"create", "--sample"});
  EXPECT_EQ(created.exitCode, 0) << created.err.toStdString();
  EXPECT_TRUE(created.out.contains("Log on as user admin with the password secret."));
  const Result check = Run({"check"});
  EXPECT_EQ(check.exitCode, 0) << check.out.toStdString();
  EXPECT_FALSE(check.out.contains("Note:")) << check.out.toStdString();
  EXPECT_GE(Count("ID_LIBRARY", "LIBRARY_TYPE <> 'Z'"), 30);
  EXPECT_EQ(Count("ID_LANGUAGE_CODE"), 3);
  EXPECT_EQ(Ask("SELECT DELIV_METHOD_DESC_FRE FROM ID_DELIV_METHOD WHERE DELIV_METHOD = 'F'"), "Télécopie");
  EXPECT_EQ(Ask("SELECT DELIV_METHOD_DESC_GER FROM ID_DELIV_METHOD WHERE DELIV_METHOD = 'C'"), "Lieferdienst");
  EXPECT_TRUE(Run({"user", "list"}).out.contains("admin\n  Library Registration: add,update,delete\n"));
  // The counters stand behind what the rows use.
  EXPECT_GT(Ask("SELECT NEXT_LIBRARY FROM ID_NEXT_LIBRARY").toInt(),
            Ask("SELECT MAX(LIBRARY_ID) FROM ID_LIBRARY").toInt());
  EXPECT_GT(Ask("SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST").toInt(),
            Ask("SELECT MAX(SORT_KEY) FROM ID_REQUEST").toInt());
}

TEST_F(CreateTest, EveryDescriptionOfTheSampleIsFilledInEveryLanguage) {
  const TestDatabase sample(true);
  Connection connection(sample.Settings());
  connection.Open();
  for (const SchemaTable& table : SchemaModel::Get().tables) {
    for (const SchemaColumn& column : table.columns) {
      if (!column.language) continue;
      for (const char* language : {"ENG", "FRE", "GER"}) {
        Recordset rows;
        rows.Open(connection, "SELECT COUNT(*) FROM " + table.name + " WHERE " + LanguageColumn(column.name, language) +
                                  " IS NULL AND " + column.name + " IS NOT NULL");
        EXPECT_EQ(rows.Fields(0).Value(), "0") << table.name.toStdString() << ' ' << language;
      }
    }
  }
}

TEST_F(CreateTest, AnOwnerIsMadeWithTheTables) {
  const ConnectionSettings settings = UseFreshDatabase();
  WriteSettings(TestDatabase::IniSection(settings) + "OwnerPrefix=OSTANA\n");
  EXPECT_EQ(Run({"create"}).exitCode, 0);
  EXPECT_EQ(Run({"check"}).exitCode, 0);
  EXPECT_EQ(Run({"add-language", "FRE", "French"}).exitCode, 0);
  EXPECT_EQ(Run({"user", "add", "eva", "--password", "x"}).exitCode, 0);
}

TEST_F(CreateTest, AnSqliteFileIsMadeOnlyWhereItsFolderIs) {
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "a matter of SQLite's files";
  WriteSettings("[Database]\nEngine=SQLITE\nName=missing/ostana.db\n");
  const Result refused = Run({"create"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("could not be made")) << refused.err.toStdString();
  EXPECT_FALSE(QDir(Folder()).exists("missing"));
}

TEST_F(CreateTest, AFileThatIsNoDatabaseIsRefusedAndKept) {
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "a matter of SQLite's files";
  const QString path = Folder() + "/letter.txt";
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray("Dear colleague, this is no database. ").repeated(50));
  file.close();
  WriteSettings("[Database]\nEngine=SQLITE\nName=letter.txt\n");
  const Result refused = Run({"create"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("is not an SQLite database")) << refused.err.toStdString();
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().startsWith("Dear colleague"));
}

TEST_F(CreateTest, AServerThatDoesNotAnswerIsTold) {
  if (TestDatabase::TestEngine() == Engine::Sqlite) GTEST_SKIP() << "a matter of servers";
  ConnectionSettings settings = TestDatabase::FreshSettings({});
  settings.host = Folder();
  WriteSettings(TestDatabase::IniSection(settings));
  const Result refused = Run({"create"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("could not be opened")) << refused.err.toStdString();
}

}  // namespace
