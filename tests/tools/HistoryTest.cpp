// Every change of settings and rights is recorded in the transaction that makes it, whoever makes it.
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include "tools/HistoryDesk.h"

namespace {

const QString AddCategory = "INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC) VALUES ('%1', 'Category')";
const QString NoteOfNobody = "UPDATE ID_LIBRARY SET NOTE = '%1' WHERE LIBRARY_ID = 9999999";

class HistoryTest : public HistoryDesk {};
class NoHistoryTest : public HistoryDesk {
 protected:
  void SetUp() override {
    ToolDesk::SetUp();
    UseDatabase();
  }
};

// --- on, off ---

TEST_F(NoHistoryTest, ASiteWithoutItHasNoTableAndNoTrigger) {
  EXPECT_TRUE(Client().Tables().filter("HISTORY").isEmpty());
  EXPECT_EQ(Objects(), QStringList());
  EXPECT_EQ(MustDo({"history", "status"}).out, "Changes are not recorded.\n");
  for (const char* action : {"off", "list"}) {
    const Result refused = Run({"history", action});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.err, "The site keeps no history. It begins with tabulon-db history on.\n");
  }
}

TEST_F(HistoryTest, OffTakesEverythingAway) {
  Execute(AddCategory.arg("Q"));
  const Result refused = Run({"history", "off"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_EQ(refused.err, "1 changes are recorded and would be lost. With --discard they are.\n");
  EXPECT_EQ(Changes(), 1);
  MustDo({"history", "off", "--discard"});
  Client().Close();
  EXPECT_TRUE(Client().Tables().filter("HISTORY").isEmpty());
  EXPECT_EQ(Objects(), QStringList());
}

TEST_F(HistoryTest, OnCompletesWhatIsMissing) {
  EXPECT_EQ(MustDo({"history", "on"}).out, "The recording was on already, and whole.\n");
  const QStringList objects = Objects();
  QString name;
  for (const QString& object : objects)
    if (object.startsWith("TH_PRINTER_", Qt::CaseInsensitive)) name = object;
  Client().Define(Client().dialect().recording().Drop({name, "ID_PRINTER", {}}, {}));
  const Result told = Run({"check"});
  EXPECT_EQ(told.exitCode, 1);
  EXPECT_TRUE(told.out.endsWith(
      "The history does not record all changes of ID_PRINTER; tabulon-db history on makes its triggers anew.\n"));
  EXPECT_EQ(Run({"history", "status"}).exitCode, 1);
  EXPECT_EQ(MustDo({"history", "on"}).out, "The recording was on already; 1 triggers were made anew.\n");
  EXPECT_EQ(QSet<QString>(objects.begin(), objects.end()), [&] {
    const QStringList now = Objects();
    return QSet<QString>(now.begin(), now.end());
  }());
  MustDo({"check"});
}

TEST_F(HistoryTest, AColumnThatOthersAddIsAGapUntilTheTriggersAreMadeAnew) {
  Client().Execute("ALTER TABLE ID_LIBRARY_CAT ADD COLUMN LIBRARY_CAT_DESC_ITA VARCHAR(50)");
  if (TestDatabase::TestEngine() != Engine::PostgreSql) {  // whose one function asks the row itself
    EXPECT_EQ(Run({"check"}).exitCode, 1);
  }
  MustDo({"history", "on"});
  MustDo({"check"});
  Execute("UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT_DESC_ITA = 'Biblioteca'");
  EXPECT_TRUE(Listed().contains("LIBRARY_CAT_DESC_ITA NULL -> \"Biblioteca\""));
}

TEST_F(HistoryTest, AnAddedLanguageIsRecordedWithItsDescriptions) {
  Execute(AddCategory.arg("Q"));
  MustDo({"add-language", "ITA", "Italian"});
  MustDo({"check"});
  const QString listed = Listed();
  EXPECT_TRUE(listed.contains("+ ID_LANGUAGE_CODE LANGUAGE_CODE \"ITA\"")) << listed.toStdString();
  EXPECT_TRUE(listed.contains("LIBRARY_CAT_DESC_ITA NULL -> \"Category\""));
}

TEST_F(HistoryTest, AProgramThatRunsWhenItGoesOffGoesOn) {
  const auto program = LoggedOn("katrin");
  program->Execute(AddCategory.arg("Q"));
  MustDo({"history", "off", "--discard"});
  EXPECT_EQ(program->Execute(AddCategory.arg("R")), 1);
  MustDo({"history", "on"});
  EXPECT_EQ(program->Execute(AddCategory.arg("S")), 1);
  EXPECT_EQ(Changes(), 1);
}

TEST_F(HistoryTest, PruneRemovesWhatWasBefore) {
  Execute(AddCategory.arg("Q"));
  const QString moment = Moment();
  Execute(AddCategory.arg("R"));
  EXPECT_EQ(MustDo({"history", "prune", "--before", moment}).out,
            "Removed 1 changes. The history begins with " + moment + " (UTC).\n");
  EXPECT_FALSE(Listed().contains("\"Q\""));
  EXPECT_TRUE(Listed().contains("\"R\""));
  const QString all = Moment();
  MustDo({"history", "prune", "--before", all});
  EXPECT_EQ(Changes(), 0);
  EXPECT_EQ(History::Since(Client()), all);
  EXPECT_EQ(Run({"history", "prune", "--before", "2999-01-01"}).exitCode, 1);
  EXPECT_EQ(Run({"history", "prune"}).exitCode, 2);
}

// --- Who and when ---

TEST_F(HistoryTest, OneActionIsOneTransaction) {
  const auto program = LoggedOn("katrin");
  program->Execute(AddCategory.arg("A"));
  program->Execute(AddCategory.arg("B"));
  {
    Transaction transaction(*program);
    program->Execute(AddCategory.arg("C"));
    program->Execute("UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT_DESC = 'Other' WHERE LIBRARY_CAT = 'A'");
    program->Execute("DELETE FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = 'B'");
    transaction.Commit();
  }
  program->Execute(AddCategory.arg("D") + "; " + AddCategory.arg("E"), 2);
  EXPECT_EQ(Listed(),
            "#  katrin  Tabulon\n"
            "    + ID_LIBRARY_CAT LIBRARY_CAT \"D\"\n        LIBRARY_CAT_DESC \"Category\"\n"
            "    + ID_LIBRARY_CAT LIBRARY_CAT \"E\"\n        LIBRARY_CAT_DESC \"Category\"\n"
            "#  katrin  Tabulon\n"
            "    + ID_LIBRARY_CAT LIBRARY_CAT \"C\"\n        LIBRARY_CAT_DESC \"Category\"\n"
            "    ~ ID_LIBRARY_CAT LIBRARY_CAT \"A\"\n        LIBRARY_CAT_DESC \"Category\" -> \"Other\"\n"
            "    - ID_LIBRARY_CAT LIBRARY_CAT \"B\"\n        LIBRARY_CAT_DESC \"Category\"\n"
            "#  katrin  Tabulon\n    + ID_LIBRARY_CAT LIBRARY_CAT \"B\"\n        LIBRARY_CAT_DESC \"Category\"\n"
            "#  katrin  Tabulon\n    + ID_LIBRARY_CAT LIBRARY_CAT \"A\"\n        LIBRARY_CAT_DESC \"Category\"");
}

TEST_F(HistoryTest, ATransactionThatIsRolledBackLeavesNothing) {
  const auto program = LoggedOn("katrin");
  {
    Transaction transaction(*program);
    program->Execute(AddCategory.arg("A"));
  }
  EXPECT_THROW(program->Execute(NoteOfNobody.arg(QString(101, 'x'))), AdoError);
  program->Execute(AddCategory.arg("B"));
  EXPECT_EQ(Listed(),
            "#  katrin  Tabulon\n    + ID_LIBRARY_CAT LIBRARY_CAT \"B\"\n        LIBRARY_CAT_DESC \"Category\"");
}

TEST_F(HistoryTest, TwoUsersStayApartAlsoBehindAReconnect) {
  const auto one = LoggedOn("katrin"), other = LoggedOn("O'Neill");
  for (const QString& round : QStringList{"1", "2"}) {
    one->Execute(AddCategory.arg("K" + round));
    other->Execute(AddCategory.arg("O" + round));
    one->Close();
    one->EnsureOpen();
    other->Close();
    other->EnsureOpen();
  }
  EXPECT_EQ(Ids({"--user", "katrin"}).size(), 2);
  EXPECT_EQ(Ids({"--user", "O'Neill"}).size(), 2);
  EXPECT_TRUE(Listed({"--user", "katrin"}).contains("\"K2\""));
  EXPECT_FALSE(Listed({"--user", "katrin"}).contains("\"O"));
}

TEST_F(HistoryTest, OtherProgramsAreKnownByTheirUserOfTheDatabase) {
  Execute(AddCategory.arg("A"));
  Client().BeginTrans();
  Execute(NoteOfNobody.arg("one"));
  Client().CommitTrans();
  const QStringList heads = Listed().split('\n').filter("#");
  ASSERT_EQ(heads.size(), 2);
  for (const QString& head : heads) EXPECT_TRUE(head.startsWith("#" + ForeignUser())) << head.toStdString();
}

// A program that was written before there was a history, on the engine's own interface.
TEST_F(HistoryTest, AProgramThatKnowsNothingOfItIsNotDisturbed) {
  const ConnectionSettings& settings = Client().Settings();
  {
    QSqlDatabase database = QSqlDatabase::addDatabase(Client().dialect().DriverName(), "foreign");
    database.setDatabaseName(settings.name);
    if (settings.engine == Engine::PostgreSql) database.setHostName(settings.host);
    if (settings.engine == Engine::MariaDb) database.setConnectOptions("UNIX_SOCKET=" + settings.host);
    database.setUserName(settings.user);
    ASSERT_TRUE(database.open()) << database.lastError().text().toStdString();
    const auto run = [&](const QString& sql) {
      QSqlQuery query(database);
      EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
      return query.numRowsAffected();
    };
    EXPECT_EQ(run("INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC) VALUES ('A', 'x'), ('B', 'y')"), 2);
    ASSERT_TRUE(database.transaction());
    EXPECT_EQ(run("UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT_DESC = 'z' WHERE LIBRARY_CAT IN ('A', 'B')"), 2);
    EXPECT_EQ(run("DELETE FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = 'B'"), 1);
    ASSERT_TRUE(database.commit());
  }
  QSqlDatabase::removeDatabase("foreign");
  EXPECT_EQ(Changes(), 5);
  // SQLite's triggers see statements of one millisecond, not transactions.
  EXPECT_GE(Ids().size(), settings.engine == Engine::Sqlite ? 1 : 2);
  EXPECT_LE(Ids().size(), settings.engine == Engine::Sqlite ? 3 : 2);
}

// --- Traps ---

TEST_F(HistoryTest, AStatementThatChangesNoValueIsNotRecorded) {
  Execute("UPDATE ID_LIBRARY SET NOTE = NOTE, WEIGHTING_FACTOR = WEIGHTING_FACTOR");
  Execute("UPDATE ID_LIBRARY SET LIBRARY_ID = LIBRARY_ID");
  Execute("DELETE FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = 'none'");
  EXPECT_EQ(Changes(), 0);
  EXPECT_EQ(Listed(), "No changes.");
}

TEST_F(HistoryTest, EmptyAndNothingAreTwoValues) {
  Execute(NoteOfNobody.arg(""));
  EXPECT_TRUE(Listed().contains("NOTE NULL -> \"\""));
}

TEST_F(HistoryTest, AKeyThatChangesIsARowGoneAndARowCome) {
  Execute(AddCategory.arg("OLD"));
  Execute("UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT = 'NEW', LIBRARY_CAT_DESC = 'b' WHERE LIBRARY_CAT = 'OLD'");
  EXPECT_EQ(Listed({"--most", "1"}).section('\n', 1),
            "    - ID_LIBRARY_CAT LIBRARY_CAT \"OLD\"\n        LIBRARY_CAT_DESC \"Category\"\n"
            "    + ID_LIBRARY_CAT LIBRARY_CAT \"NEW\"\n        LIBRARY_CAT_DESC \"b\"");
}

class HistoryCascadeTest : public HistoryTest {
 protected:
  void SetUp() override {
    HistoryTest::SetUp();
    for (const char* sql : {"INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE) VALUES ('QQ')",
                            "INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE) VALUES ('RR')",
                            "INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE) VALUES ('QQ', 'SEA')",
                            "INSERT INTO ID_EXCEPTION_NOTE VALUES ('QQ', 'SEA', 1, 'one')",
                            "INSERT INTO ID_EXCEPTION_NOTE VALUES ('QQ', 'SEA', 2, 'two')"})
      Execute(sql);
  }
  QStringList LinesOf(const QString& table) const {
    QStringList lines;
    for (const QString& line : Listed({"--most", "1"}).split('\n'))
      if (line.contains(table)) lines += line.trimmed();
    lines.sort();
    return lines;
  }
};

TEST_F(HistoryCascadeTest, RowsThatGoWithAnotherAreRecorded) {
  Execute("DELETE FROM ID_EXCEPTION_PROCESS WHERE EXCEPTION_CODE = 'QQ'");
  EXPECT_EQ(LinesOf("ID_EXCEPTION_NOTE"),
            (QStringList{R"(- ID_EXCEPTION_NOTE EXCEPTION_CODE "QQ", PROCESS_TYPE "SEA", EXCEPTION_NOTE_SEQ 1)",
                         R"(- ID_EXCEPTION_NOTE EXCEPTION_CODE "QQ", PROCESS_TYPE "SEA", EXCEPTION_NOTE_SEQ 2)"}));
}

TEST_F(HistoryCascadeTest, RowsThatAreRenamedWithAnotherAreRecorded) {
  Execute("UPDATE ID_EXCEPTION_PROCESS SET EXCEPTION_CODE = 'RR' WHERE EXCEPTION_CODE = 'QQ'");
  EXPECT_EQ(LinesOf("ID_EXCEPTION_NOTE"),
            (QStringList{R"(+ ID_EXCEPTION_NOTE EXCEPTION_CODE "RR", PROCESS_TYPE "SEA", EXCEPTION_NOTE_SEQ 1)",
                         R"(+ ID_EXCEPTION_NOTE EXCEPTION_CODE "RR", PROCESS_TYPE "SEA", EXCEPTION_NOTE_SEQ 2)",
                         R"(- ID_EXCEPTION_NOTE EXCEPTION_CODE "QQ", PROCESS_TYPE "SEA", EXCEPTION_NOTE_SEQ 1)",
                         R"(- ID_EXCEPTION_NOTE EXCEPTION_CODE "QQ", PROCESS_TYPE "SEA", EXCEPTION_NOTE_SEQ 2)"}));
  MustDo({"history", "undo", Ids({"--most", "1"}).value(0)});
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE", "EXCEPTION_CODE = 'QQ'"), 2);
}

// The triggers of MariaDB look one step down.
TEST(HistoryModel, NoCascadeGoesFurtherThanOneStep) {
  for (const SchemaTable& table : SchemaModel::Get().tables)
    for (const SchemaForeignKey& key : table.foreignKeys)
      for (const SchemaForeignKey& next : SchemaModel::Get().Find(key.table)->foreignKeys)
        EXPECT_TRUE(key.actions.isEmpty() || next.actions.isEmpty()) << table.name.toStdString();
}

TEST_F(HistoryTest, RowsThatReplaceRemovesAreRecorded) {
  if (TestDatabase::TestEngine() == Engine::PostgreSql) GTEST_SKIP() << "knows no REPLACE";
  Execute("INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC) VALUES (9999999, 'A', 'one')");
  Execute("INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC) VALUES (9999999, 'B', 'two')");
  Execute("REPLACE INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC) VALUES (9999999, 'A', 'two')");
  EXPECT_EQ(Count("ID_DEPARTMENT"), 1);
  const QStringList lines = Listed({"--most", "1"}).split('\n');
  EXPECT_EQ(lines.filter("- ID_DEPARTMENT").size() - lines.filter("+ ID_DEPARTMENT").size(), 1)
      << lines.join('\n').toStdString();
  MustDo({"history", "undo", Ids().value(0)});
  EXPECT_EQ(Ask("SELECT DEPARTMENT_DESC FROM ID_DEPARTMENT WHERE DEPARTMENT = 'A'"), "one");
  EXPECT_EQ(Ask("SELECT DEPARTMENT_DESC FROM ID_DEPARTMENT WHERE DEPARTMENT = 'B'"), "two");
}

TEST_F(HistoryTest, WhatSqliteIgnoresOrMergesIsNotTakenForReplaced) {
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "words of SQLite";
  const QString pair = "INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC) VALUES (9999999, '%1', '%2')";
  Execute("INSERT " + pair.arg("A", "one"));
  Execute("INSERT " + pair.arg("B", "two"));
  const int before = Changes("TRANSACTION_ID > 0");
  Client().Define("INSERT OR IGNORE " + pair.arg("C", "two"));
  EXPECT_EQ(Changes("TRANSACTION_ID > 0"), before);
  Execute("DELETE FROM ID_DEPARTMENT WHERE DEPARTMENT = 'B'");
  Execute("INSERT " + pair.arg("C", "two"));
  EXPECT_EQ(Changes("TRANSACTION_ID > 0"), before + 2);
  Execute("INSERT " + pair.arg("A", "x") +
          " ON CONFLICT (LIBRARY_ID, DEPARTMENT) DO UPDATE SET DEPARTMENT_DESC = 'merged'");
  EXPECT_TRUE(Listed({"--most", "1"}).contains("DEPARTMENT_DESC \"one\" -> \"merged\""));
  Client().Define("UPDATE OR REPLACE ID_DEPARTMENT SET DEPARTMENT_DESC = 'merged' WHERE DEPARTMENT = 'C'");
  const QString listed = Listed({"--most", "1"});
  EXPECT_TRUE(listed.contains("- ID_DEPARTMENT LIBRARY_ID 9999999, DEPARTMENT \"A\"")) << listed.toStdString();
  EXPECT_TRUE(listed.contains("DEPARTMENT_DESC \"two\" -> \"merged\"")) << listed.toStdString();
}

TEST_F(HistoryTest, RowsWithoutAKeyAreToldByTheirValues) {
  const QString add = "INSERT INTO ID_SERVICE_CODE (SERVICE_CODE, COUNTRY_REGION) VALUES ('Q', 'UK')";
  Execute(add);
  Execute(add);
  Execute("DELETE FROM ID_SERVICE_CODE WHERE SERVICE_CODE = 'Q'");
  MustDo({"history", "undo", Ids().value(0)});
  EXPECT_EQ(Count("ID_SERVICE_CODE", "SERVICE_CODE = 'Q'"), 2);
  MustDo({"history", "undo", Ids({"--text", "Q"}).last()});
  EXPECT_EQ(Count("ID_SERVICE_CODE", "SERVICE_CODE = 'Q'"), 1);
}

TEST_F(HistoryTest, SecretsAreRecordedAsChangedNeverWithTheirValues) {
  Execute(
      "UPDATE ID_LIBRARY SET USER_PASSWORD = 'hidden1', CREDIT_CARD_NUM = '4111222233334444' "
      "WHERE LIBRARY_ID = 9999999");
  Execute("UPDATE ID_LIBRARY SET USER_PASSWORD = 'hidden2' WHERE LIBRARY_ID = 9999999");
  const QString listed = Listed();
  EXPECT_TRUE(listed.contains("USER_PASSWORD NULL -> ***")) << listed.toStdString();
  EXPECT_TRUE(listed.contains("USER_PASSWORD *** -> ***"));
  for (const QStringList& row : SchemaSql::Rows(Client(), "SELECT OLD_VALUES, NEW_VALUES FROM ID_HISTORY_CHANGE"))
    for (const QString& cell : row)
      EXPECT_FALSE(cell.contains("hidden") || cell.contains("4111")) << cell.toStdString();
}

TEST_F(HistoryTest, HostileTextsComeBackAsTheyWere) {
  const QString text = QString::fromUtf8("a\"b\\c'd\te\nf\x01g\x7f é 😀 {\"x\":null} \xe2\x80\xa8 %1 \\u0041");
  Client().Execute(NoteOfNobody.arg(Client().dialect().Escape(text)));
  Client().Execute(NoteOfNobody.arg("other"));
  MustDo({"history", "undo", Ids().value(0)});
  EXPECT_EQ(Ask("SELECT NOTE FROM ID_LIBRARY WHERE LIBRARY_ID = 9999999"), text);
}

TEST_F(HistoryTest, TenThousandRowsAreOneTransaction) {
  MustDo({"export", "--tables", "ID_PRINTER", "printers.txt"});
  QFile file(Folder() + "/printers.txt");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  QString text = QString::fromUtf8(file.readAll());
  file.close();
  QString rows;
  for (int i = 0; i < 10000; ++i) rows += QStringLiteral("  row\n    PRINTER \"P%1\"\n    DEVICE \"lp%1\"\n").arg(i);
  text.replace("\nend", rows + "\nend");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text.toUtf8());
  file.close();
  MustDo({"apply", "printers.txt"});
  EXPECT_EQ(Changes(), 10000);
  ASSERT_EQ(Ids().size(), 1);
  MustDo({"history", "undo", Ids().value(0)});
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER LIKE 'P%'"), 0);
}

// --- A backup that is restored ---

class HistoryBackupTest : public HistoryTest {
 protected:
  void TearDown() override {
    HistoryTest::TearDown();
    if (!restored_.name.isEmpty()) TestDatabase::Remove(restored_);
  }
  static void MustRun(const QString& command) {
    QProcess shell;
    shell.start("bash", {"-o", "pipefail", "-c", command});
    ASSERT_TRUE(shell.waitForFinished(120000));
    ASSERT_EQ(shell.exitCode(), 0) << command.toStdString() << '\n' << shell.readAllStandardError().toStdString();
  }
  // By the means that the manual names, into another database, which the settings name from then on.
  void BackUpAndRestore() {
    const ConnectionSettings site = Client().Settings();
    restored_ = TestDatabase::FreshSettings(Folder());
    if (site.engine == Engine::Sqlite) {
      ASSERT_TRUE(QFile::copy(site.name, restored_.name));
    } else if (site.engine == Engine::PostgreSql) {
      const QString server = " -h " + site.host + " -U " + site.user + ' ';
      MustRun("createdb" + server + restored_.name + " && pg_dump -n public" + server + site.name + " | psql -q" +
              server + restored_.name);
    } else {
      const QString server = " --no-defaults -S " + site.host + " -u " + site.user + ' ';
      MustRun("mariadb-admin" + server + "create " + restored_.name + " && mariadb-dump --single-transaction" + server +
              site.name + " | mariadb" + server + restored_.name);
    }
    WriteSettings(TestDatabase::IniSection(restored_));
  }

  ConnectionSettings restored_;
};

TEST_F(HistoryBackupTest, GoesOnRecordingWhereItWas) {
  LoggedOn("katrin")->Execute(AddCategory.arg("A"));
  const QStringList before = Ids();
  BackUpAndRestore();
  ASSERT_FALSE(HasFailure());
  MustDo({"check"});
  Connection program(restored_);
  program.Tell("paul", "Tabulon");
  program.Open();
  for (const QString& code : QStringList{"B", "C"}) {
    Transaction transaction(program);
    program.Execute(AddCategory.arg(code));
    program.Execute(NoteOfNobody.arg(code));
    transaction.Commit();
  }
  EXPECT_EQ(Ids().size(), 3);
  EXPECT_EQ(Ids().last(), before.value(0));
  EXPECT_EQ(Ids({"--user", "paul"}).size(), 2);
  MustDo(QStringList{"history", "undo"} + Ids());
  EXPECT_EQ(SchemaSql::Values(program, "SELECT COUNT(*) FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT IN ('A', 'B', 'C')"),
            QStringList{"0"});
}

// --- What list finds ---

TEST_F(HistoryTest, ListFindsByUserTableRecordTextAndMoment) {
  const auto katrin = LoggedOn("katrin"), paul = LoggedOn("paul");
  katrin->Execute(AddCategory.arg("A"));
  paul->Execute(NoteOfNobody.arg("needle"));
  paul->Execute(AddCategory.arg("B"));
  const QStringList all = Ids();
  ASSERT_EQ(all.size(), 3);
  EXPECT_EQ(Ids({"--user", "paul"}), all.mid(0, 2));
  EXPECT_EQ(Ids({"--tables", "id_library"}), all.mid(1, 1));
  EXPECT_EQ(Ids({"--tables", "ID_LIBRARY,ID_LIBRARY_CAT"}), all);
  EXPECT_EQ(Ids({"--tables", "ID_LIBRARY_CAT", "--key", "A"}), all.mid(2));
  EXPECT_EQ(Ids({"--text", "needle"}), all.mid(1, 1));
  EXPECT_EQ(Ids({"--most", "1"}), all.mid(0, 1));
  EXPECT_EQ(Ids({"--from", History::Now(Client()).left(10)}).size() + Ids({"--to", "2000-01-01"}).size(), 3);
  EXPECT_EQ(Ids({"--to", History::Now(Client()).left(10)}), all);
  EXPECT_EQ(Ids({"--from", "2999-01-01"}), QStringList());
  for (const QStringList& wrong : {QStringList{"--from", "soon"},
                                   {"--key", "A"},
                                   {"--tables", "ID_USER"},
                                   {"--tables", "ID_DEPARTMENT", "--key", "A"},
                                   {"--most", "0"}})
    EXPECT_EQ(Run(QStringList{"history", "list"} + wrong).exitCode, 2) << wrong.join(' ').toStdString();
}

TEST_F(HistoryTest, RightsOfUsersAreRecorded) {
  MustDo({"user", "add", "katrin", "--password", "x"});
  MustDo({"user", "rights", "katrin", "Tabulon", "add"});
  EXPECT_TRUE(Listed().contains("+ ID_USER_FUNCTION USER_ID \"katrin\", FUNCTION_NAME \"Tabulon\""));
}

}  // namespace
