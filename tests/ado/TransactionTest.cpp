#include "ado/AdoTest.h"

namespace {

class TransactionTest : public AdoTest {
 protected:
  TransactionTest() { Run("CREATE TABLE ID_A (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(20))"); }

  int CountElsewhere() {
    Connection other(database.Settings());
    other.Open();
    return Count(other, "ID_A");
  }
};

TEST_F(TransactionTest, CommitStores) {
  Transaction transaction(connection);
  EXPECT_TRUE(connection.InTransaction());
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  transaction.Commit();
  EXPECT_FALSE(connection.InTransaction());
  EXPECT_EQ(CountElsewhere(), 1);
}

TEST_F(TransactionTest, LeftWithoutCommitRollsBack) {
  {
    Transaction transaction(connection);
    Run("INSERT INTO ID_A VALUES(1, 'x')");
  }
  EXPECT_FALSE(connection.InTransaction());
  EXPECT_EQ(Count("ID_A"), 0);
}

TEST_F(TransactionTest, ASecondBeginIsRefusedAndTheFirstGoesOn) {
  Transaction transaction(connection);
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  ErrorOf([&] { connection.BeginTrans(); });
  EXPECT_TRUE(connection.InTransaction());
  Run("INSERT INTO ID_A VALUES(2, 'x')");
  connection.RollbackTrans();
  EXPECT_EQ(Count("ID_A"), 0);
}

TEST_F(TransactionTest, CommitWithoutBeginIsAnError) {
  ErrorOf([&] { connection.CommitTrans(); });
}

TEST_F(TransactionTest, RollbackWithoutBeginDoesNothing) {
  connection.RollbackTrans();
  connection.Close();
  connection.RollbackTrans();
  EXPECT_EQ(connection.State(), 0);
}

TEST_F(TransactionTest, AFailedExecuteLeavesNoOpenTransaction) {
  ErrorOf([&] {
    Transaction transaction(connection);
    Run("INSERT INTO ID_A VALUES(1, 'x')");
    Run("INSERT INTO ID_A VALUES(1, 'y')");
    transaction.Commit();
  });
  EXPECT_FALSE(connection.InTransaction());
  EXPECT_EQ(Count("ID_A"), 0);
  EXPECT_EQ(Run("INSERT INTO ID_A VALUES(1, 'x')"), 1);
  EXPECT_EQ(CountElsewhere(), 1);
}

// PostgreSQL refuses all that follows a failure, the others would store the rest: it is refused everywhere.
TEST_F(TransactionTest, NothingIsStoredAfterAFailureInside) {
  connection.BeginTrans();
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  ErrorOf([&] { Run("INSERT INTO ID_NOT_THERE VALUES(1)"); });
  ErrorOf([&] { Run("INSERT INTO ID_A VALUES(2, 'x')"); });
  EXPECT_TRUE(connection.InTransaction());
  ErrorOf([&] { connection.CommitTrans(); });
  EXPECT_FALSE(connection.InTransaction());
  EXPECT_EQ(Count("ID_A"), 0);
  EXPECT_EQ(CountElsewhere(), 0);
}

TEST_F(TransactionTest, CloseRollsBack) {
  connection.BeginTrans();
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  connection.Close();
  EXPECT_FALSE(connection.InTransaction());
  EXPECT_EQ(Count("ID_A"), 0);
}

TEST_F(TransactionTest, AClosedConnectionIsOpenedByBegin) {
  connection.Close();
  Transaction transaction(connection);
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  transaction.Commit();
  EXPECT_EQ(Count("ID_A"), 1);
}

// --- Several statements in one text ---

TEST_F(TransactionTest, SeveralStatementsRunAndTheLastTellsItsRows) {
  EXPECT_EQ(Run("INSERT INTO ID_A VALUES(1, 'a; b'); INSERT INTO ID_A VALUES(2, 'c'); UPDATE ID_A SET B = 'd'; ", 3),
            2);
  EXPECT_EQ(CountElsewhere(), 2);
  EXPECT_FALSE(connection.InTransaction());
}

TEST_F(TransactionTest, AnErrorInTheMiddleStoresNothing) {
  for (const char* sql :
       {"INSERT INTO ID_A VALUES(1, 'a'); INSERT INTO ID_A VALUES(1, 'b'); INSERT INTO ID_A VALUES(3, 'c')",
        "INSERT INTO ID_A VALUES(1, 'a'); INSERT INTO ID_A VALUES(2, 'b'); INSERT INTO ID_A VALUES(2, 'c')"}) {
    const AdoError error = ErrorOf([&] { Run(sql, 3); });
    EXPECT_TRUE(error.Description().contains("duplicate"));
    EXPECT_EQ(CountElsewhere(), 0);
    EXPECT_FALSE(connection.InTransaction());
  }
}

TEST_F(TransactionTest, InATransactionTheyBelongToIt) {
  {
    Transaction transaction(connection);
    Run("INSERT INTO ID_A VALUES(1, 'a'); INSERT INTO ID_A VALUES(2, 'b')", 2);
    EXPECT_TRUE(connection.InTransaction());
  }
  EXPECT_EQ(Count("ID_A"), 0);
}

TEST_F(TransactionTest, OneRecordOfTheWholeTextIsObserved) {
  QStringList seen;
  connection.AddObserver([&](const StatementRecord& record) { seen += record.text; });
  const QString text = "INSERT INTO ID_A VALUES(1, 'a'); INSERT INTO ID_A VALUES(2, 'b'); ";
  Run(text, 2);
  EXPECT_EQ(seen, QStringList(text));
}

// --- Locks ---

TEST_F(TransactionTest, ALockedDatabaseIsToldAsBusy) {
  Connection other(database.Settings());
  other.Open();
  Run("INSERT INTO ID_A VALUES(1, 'x')");
  if (TestDatabase::TestEngine() == Engine::PostgreSql) Run("SET lock_timeout = 500");
  if (TestDatabase::TestEngine() == Engine::MariaDb) Run("SET innodb_lock_wait_timeout = 1");
  Transaction held(other);
  other.Execute("UPDATE ID_A SET B = 'y'");
  const AdoError error = ErrorOf([&] {
    Transaction transaction(connection);
    Run("UPDATE ID_A SET B = 'z'");
  });
  EXPECT_EQ(error.Number(), AdoNumber::Busy);
  EXPECT_TRUE(error.Description().contains("locked"));
  held.Commit();
  EXPECT_EQ(Run("UPDATE ID_A SET B = 'z'"), 1);
}

TEST_F(TransactionTest, TwoWritersOnSqliteBothGetThrough) {
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "about BEGIN IMMEDIATE";
  Connection other(database.Settings());
  other.Open();
  for (int i = 0; i < 20; ++i) {
    Connection& writer = i % 2 == 0 ? connection : other;
    Transaction transaction(writer);
    const int next = Count(writer, "ID_A");
    writer.Execute(QStringLiteral("INSERT INTO ID_A VALUES(%1, 'x')").arg(next));
    transaction.Commit();
  }
  EXPECT_EQ(Count("ID_A"), 20);
}

}  // namespace
