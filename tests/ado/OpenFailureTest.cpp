#include <QDir>
#include <QFile>

#include "ado/AdoTest.h"

namespace {

AdoError OpenError(const ConnectionSettings& settings) {
  Connection connection(settings);
  const AdoError error = ErrorOf([&] { connection.Open(); });
  EXPECT_EQ(connection.State(), 0);
  EXPECT_EQ(error.Source(), "Connection.Open");
  return error;
}

class SqliteOpen : public testing::Test {
 protected:
  ConnectionSettings File(const QString& name, const QByteArray& content) {
    ConnectionSettings settings;
    settings.name = folder.filePath(name);
    QFile file(settings.name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return settings;
  }
  QTemporaryDir folder;
};

TEST_F(SqliteOpen, AMissingFileIsAnErrorAndNotCreated) {
  ConnectionSettings settings;
  settings.name = folder.filePath("absent.db");
  const AdoError error = OpenError(settings);
  EXPECT_TRUE(error.Description().contains("absent.db"));
  EXPECT_TRUE(error.Description().contains("tabulon-db create"));
  EXPECT_FALSE(QFile::exists(settings.name));
}

TEST_F(SqliteOpen, NoNameAndAFolderAreErrors) {
  ConnectionSettings settings;
  EXPECT_TRUE(OpenError(settings).Description().contains("Name"));
  settings.name = folder.path();
  EXPECT_TRUE(OpenError(settings).Description().contains("folder"));
}

TEST_F(SqliteOpen, GarbageIsNoDatabase) {
  EXPECT_TRUE(OpenError(File("garbage.db", QByteArray(5000, 'x'))).Description().contains("not an SQLite database"));
}

TEST_F(SqliteOpen, AnEmptyFileIsAnEmptyDatabase) {
  Connection connection(File("empty file %20 #?.db", {}));
  connection.Open();
  connection.Execute("CREATE TABLE ID_A (A INTEGER)");
  EXPECT_EQ(connection.Tables(), QStringList("ID_A"));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("empty file %20 #?.db"));
}

TEST_F(SqliteOpen, ForeignKeysAreWatched) {
  Connection connection(File("keys.db", {}));
  connection.Open();
  connection.Execute("CREATE TABLE ID_A (A INTEGER PRIMARY KEY)");
  connection.Execute("CREATE TABLE ID_B (A INTEGER REFERENCES ID_A (A))");
  ErrorOf([&] { connection.Execute("INSERT INTO ID_B VALUES(1)"); });
}

TEST_F(SqliteOpen, AFileLockedByAnotherProgramIsBusy) {
  const ConnectionSettings settings = File("locked.db", {});
  Connection first(settings);
  first.Open();
  first.Execute("CREATE TABLE ID_A (A INTEGER)");
  first.Execute("PRAGMA locking_mode = EXCLUSIVE");
  first.Execute("INSERT INTO ID_A VALUES(1)");
  const AdoError error = OpenError(settings);
  EXPECT_EQ(error.Number(), AdoNumber::Busy);
  EXPECT_TRUE(error.Description().contains("locked"));
}

TEST_F(SqliteOpen, ADatabaseThatMayNotBeWrittenIsNoLostConnection) {
  Connection connection(File("read.db", {}));
  connection.Open();
  connection.Execute("CREATE TABLE ID_A (A INTEGER)");
  connection.Execute("PRAGMA query_only = ON");
  const AdoError error = ErrorOf([&] { connection.Execute("INSERT INTO ID_A VALUES(1)"); });
  EXPECT_EQ(error.Number(), AdoNumber::Unspecified);
  EXPECT_TRUE(error.Description().contains("readonly"));
  EXPECT_FALSE(error.ConnectionLost());
  EXPECT_EQ(connection.State(), 1);
}

class ServerOpen : public testing::Test {
 protected:
  void SetUp() override {
    if (TestDatabase::TestEngine() == Engine::Sqlite) GTEST_SKIP() << "about servers";
    settings = database.Settings();
    settings.password = "Secr3tWord";
  }
  EmptyDatabase database;
  ConnectionSettings settings;
};

TEST_F(ServerOpen, AnAbsentDatabaseIsNamed) {
  settings.password.clear();
  settings.name = "not_there";
  const AdoError error = OpenError(settings);
  EXPECT_TRUE(error.Description().contains("has no database \"not_there\"")) << error.what();
}

TEST_F(ServerOpen, AServerThatIsNotThere) {
  settings.host = "/tmp/tabulon-no-such-folder/s";
  const AdoError error = OpenError(settings);
  EXPECT_TRUE(error.Description().contains("Check that the server runs")) << error.what();
  EXPECT_FALSE(error.Description().contains(settings.password));
}

TEST_F(ServerOpen, ARefusedUserIsNamedAndNotThePassword) {
  settings.user = "nobody_known";
  const AdoError error = OpenError(settings);
  EXPECT_TRUE(error.Description().contains("nobody_known")) << error.what();
  EXPECT_FALSE(error.Description().contains(settings.password));
}

TEST_F(ServerOpen, NoNameIsAnError) {
  settings.name.clear();
  EXPECT_TRUE(OpenError(settings).Description().contains("Name"));
}

TEST(OpenFailure, ThePasswordIsTakenOutOfTheText) {
  ConnectionSettings settings;
  settings.engine = Engine::PostgreSql;
  settings.host = "/tmp/tabulon-no-such-folder";
  settings.name = "Secr3tWord";  // the text names the database
  settings.password = "Secr3tWord";
  EXPECT_FALSE(OpenError(settings).Description().contains("Secr3tWord"));
}

TEST(OpenFailure, AnOdbcSourceThatIsNotThere) {
  ConnectionSettings settings;
  settings.engine = Engine::SqlServer;
  settings.name = "no_such_source";
  settings.user = "sa";
  settings.password = "Secr3tWord";
  const AdoError error = OpenError(settings);
  EXPECT_TRUE(error.Description().contains("ODBC")) << error.what();
  EXPECT_FALSE(error.Description().contains(settings.password));
}

}  // namespace
