#include "ado/AdoTest.h"

namespace {

class LostConnectionTest : public AdoTest {
 protected:
  void SetUp() override {
    if (TestDatabase::TestEngine() == Engine::Sqlite) GTEST_SKIP() << "SQLite has no server to lose";
    Run("CREATE TABLE ID_A (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(20))");
  }
};

TEST_F(LostConnectionTest, TheStatementThatFindsItFailsAndTheNextReopens) {
  KillSession();
  const AdoError error = ErrorOf([&] { Run("INSERT INTO ID_A VALUES(1, 'x')"); });
  EXPECT_TRUE(error.ConnectionLost());
  EXPECT_EQ(error.Number(), AdoNumber::Unspecified);
  EXPECT_EQ(connection.State(), 0);
  EXPECT_EQ(Run("INSERT INTO ID_A VALUES(1, 'x')"), 1);
  EXPECT_EQ(connection.State(), 1);
}

TEST_F(LostConnectionTest, ARecordsetFindsItToo) {
  KillSession();
  EXPECT_TRUE(ErrorOf([&] { Value("SELECT COUNT(*) FROM ID_A"); }).ConnectionLost());
  EXPECT_EQ(connection.State(), 0);
  EXPECT_EQ(Value("SELECT COUNT(*) FROM ID_A"), "0");
}

TEST_F(LostConnectionTest, BeginFindsItToo) {
  KillSession();
  EXPECT_TRUE(ErrorOf([&] { connection.BeginTrans(); }).ConnectionLost());
  EXPECT_FALSE(connection.InTransaction());
  connection.BeginTrans();
  EXPECT_TRUE(connection.InTransaction());
}

TEST_F(LostConnectionTest, TheCatalogueFindsItToo) {
  KillSession();
  EXPECT_TRUE(ErrorOf([&] { connection.Columns("ID_A"); }).ConnectionLost());
  EXPECT_EQ(connection.Columns("ID_A").size(), 2u);
  KillSession();
  EXPECT_TRUE(ErrorOf([&] { connection.Tables(); }).ConnectionLost());
  EXPECT_EQ(connection.Tables(), QStringList("ID_A"));
}

TEST_F(LostConnectionTest, InATransactionNothingOfItIsStored) {
  {
    Transaction transaction(connection);
    Run("INSERT INTO ID_A VALUES(1, 'x')");
    KillSession();
    EXPECT_TRUE(ErrorOf([&] { Run("INSERT INTO ID_A VALUES(2, 'x')"); }).ConnectionLost());
    EXPECT_FALSE(connection.InTransaction());
    // Alone it would be stored by itself: not before the transaction has been given up.
    EXPECT_EQ(ErrorOf([&] { Run("INSERT INTO ID_A VALUES(3, 'x')"); }).Number(), AdoNumber::ObjectClosed);
    ErrorOf([&] { transaction.Commit(); });
  }
  connection.RollbackTrans();
  EXPECT_EQ(Count("ID_A"), 0);
}

TEST_F(LostConnectionTest, RollbackAfterItDoesNothing) {
  connection.BeginTrans();
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  KillSession();
  ErrorOf([&] { Run("INSERT INTO ID_A VALUES(2, 'x')"); });
  connection.RollbackTrans();
  EXPECT_EQ(connection.State(), 0);
  EXPECT_EQ(Run("INSERT INTO ID_A VALUES(3, 'x')"), 1);
  EXPECT_EQ(Column("SELECT A FROM ID_A"), "3");
}

TEST_F(LostConnectionTest, ACommitOnADeadLinkFails) {
  connection.BeginTrans();
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  KillSession();
  EXPECT_TRUE(ErrorOf([&] { connection.CommitTrans(); }).ConnectionLost());
  EXPECT_FALSE(connection.InTransaction());
  EXPECT_EQ(Count("ID_A"), 0);
}

TEST_F(LostConnectionTest, SeveralStatementsAreStoredOnceOrNotAtAll) {
  KillSession();
  const QString text = "INSERT INTO ID_A VALUES(1, 'x'); INSERT INTO ID_A VALUES(2, 'x')";
  EXPECT_TRUE(ErrorOf([&] { Run(text, 2); }).ConnectionLost());
  EXPECT_EQ(Count("ID_A"), 0);
  Run(text, 2);
  EXPECT_EQ(Count("ID_A"), 2);
}

TEST_F(LostConnectionTest, TheNewSessionIsSetUpAsTheFirst) {
  KillSession();
  ErrorOf([&] { Run("DELETE FROM ID_A"); });
  Run(R"(INSERT INTO ID_A VALUES(1, 'a\b\'))");
  EXPECT_EQ(Value("SELECT B FROM ID_A"), R"(a\b\)");
  EXPECT_EQ(Run(R"(UPDATE ID_A SET B = 'a\b\')"), 1);
}

// It would go on in a new session, outside of the transaction, and commit what came after the loss.
TEST_F(LostConnectionTest, TheDriversOwnReconnectionIsNotAllowed) {
  if (TestDatabase::TestEngine() != Engine::MariaDb) GTEST_SKIP() << "an option of MariaDB's driver";
  connection.Close();
  ConnectionSettings settings = database.Settings();
  settings.options = "MYSQL_OPT_RECONNECT=1;MYSQL_OPT_CONNECT_TIMEOUT=5";
  Connection stubborn(settings);
  stubborn.Open();
  Transaction transaction(stubborn);
  stubborn.Execute("INSERT INTO ID_A VALUES(1, 'x')");
  KillSession();
  EXPECT_TRUE(ErrorOf([&] { stubborn.Execute("INSERT INTO ID_A VALUES(2, 'x')"); }).ConnectionLost());
  ErrorOf([&] { transaction.Commit(); });
  EXPECT_EQ(Count("ID_A"), 0);
}

TEST_F(LostConnectionTest, ARecordsetReadBeforeKeepsItsRows) {
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  Recordset rows;
  rows.Open(connection, "SELECT A, B FROM ID_A");
  KillSession();
  ErrorOf([&] { Run("DELETE FROM ID_A"); });
  EXPECT_EQ(rows.Fields("B").Value(), "x");
  EXPECT_EQ(rows.Fields("B").DefinedSize(), 20);
}

}  // namespace
