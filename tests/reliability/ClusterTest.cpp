// A site on a primary with a standby: the program works on the one that takes changes, and on the other when it dies.
#include <gtest/gtest.h>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "reliability/OwnServer.h"
#include "support/Printing.h"
#include "support/TestDatabase.h"

namespace {

class ClusterTest : public testing::Test {
 protected:
  void SetUp() override {
    if (TestDatabase::TestEngine() != Engine::PostgreSql) GTEST_SKIP() << "built of PostgreSQL's own programs";
    primary = std::make_unique<OwnServer>(Engine::PostgreSql);
    standby = OwnServer::StandbyOf(*primary);
  }

  static QString Node(const OwnServer& server) {
    return server.Settings().host + ':' + QString::number(server.Settings().port);
  }
  // The standby first: it is reached, and takes no changes.
  ConnectionSettings Both() const {
    ConnectionSettings settings = primary->Settings();
    settings.host = Node(*standby) + ',' + Node(*primary);
    settings.port = 0;
    settings.encryption = Encryption::Required;
    return settings;
  }
  static QString Value(Connection& connection, const QString& sql) {
    Recordset rows;
    rows.Open(connection, sql);
    return rows.Fields(0).Value();
  }
  static int Port(Connection& connection) { return Value(connection, "SELECT inet_server_port()").toInt(); }
  // Waits until the standby has as many rows.
  void AwaitRows(int count) const {
    Connection connection(standby->Settings());
    for (int round = 0; round < 1000; ++round) {
      try {
        if (Value(connection, "SELECT COUNT(*) FROM ID_A").toInt() == count) return;
      } catch (const AdoError&) {
        continue;  // the table has not come over
      }
    }
    FAIL() << "the standby does not follow";
  }

  std::unique_ptr<OwnServer> primary, standby;
};

}  // namespace

TEST_F(ClusterTest, TheServerThatTakesChangesIsTaken) {
  Connection connection(Both());
  connection.Open();
  EXPECT_EQ(Port(connection), primary->Settings().port);
}

TEST_F(ClusterTest, AfterThePrimaryHasDiedTheNextActionWorksOnThePromotedStandby) {
  Connection connection(Both());
  connection.Execute("CREATE TABLE ID_A (A INTEGER NOT NULL PRIMARY KEY)");
  connection.Execute("INSERT INTO ID_A VALUES(1)");
  AwaitRows(1);
  connection.BeginTrans();
  connection.Execute("INSERT INTO ID_A VALUES(2)");
  primary->Kill();
  try {
    connection.Execute("INSERT INTO ID_A VALUES(3)");
    ADD_FAILURE() << "a dead server has answered";
  } catch (const AdoError& error) {
    EXPECT_TRUE(error.ConnectionLost()) << error.Description().toStdString();
  }
  connection.RollbackTrans();
  standby->Promote();
  EXPECT_EQ(connection.Execute("INSERT INTO ID_A VALUES(4)"), 1);
  EXPECT_EQ(Port(connection), standby->Settings().port);
  EXPECT_EQ(Value(connection, "SELECT string_agg(A::text, ',' ORDER BY A) FROM ID_A"), "1,4");
}

TEST_F(ClusterTest, WithoutOneThatTakesChangesEachIsTold) {
  primary->Kill();
  Connection connection(Both());
  try {
    connection.Open();
    ADD_FAILURE() << "a standby was taken";
  } catch (const AdoError& error) {
    EXPECT_TRUE(error.Description().contains("PostgreSQL on 127.0.0.1 takes no changes."))
        << error.Description().toStdString();
    EXPECT_TRUE(error.Description().contains("Check that the server runs")) << error.Description().toStdString();
    EXPECT_FALSE(error.Description().contains("Secr3tWord"));
  }
}
