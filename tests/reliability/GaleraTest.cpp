// A site on a Galera cluster of three: the program works on a node of the majority, and on another when it dies.
#include <gtest/gtest.h>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"
#include "reliability/OwnServer.h"
#include "support/Printing.h"
#include "support/TestDatabase.h"

namespace {

class GaleraTest : public testing::Test {
 protected:
  void SetUp() override {
    if (TestDatabase::TestEngine() != Engine::MariaDb) GTEST_SKIP() << "about MariaDB";
    if (!OwnServer::HasGalera()) GTEST_SKIP() << "galera-4 or rsync is not installed";
    nodes.push_back(OwnServer::GaleraNode());
    for (int joining : {1, 2}) {
      nodes.push_back(OwnServer::GaleraNode(nodes[0].get()));
      ASSERT_EQ(nodes.size(), size_t(joining) + 1);
    }
  }

  ConnectionSettings Cluster() const {
    ConnectionSettings settings = nodes[0]->Settings();
    QStringList hosts;
    for (const auto& node : nodes) hosts += "127.0.0.1:" + QString::number(node->Settings().port);
    settings.host = hosts.join(',');
    return settings;
  }
  static QString Value(Connection& connection, const QString& sql) {
    Recordset rows;
    rows.Open(connection, sql);
    return rows.Fields(0).Value();
  }
  static int Port(Connection& connection) { return Value(connection, "SELECT @@port").toInt(); }
  static std::optional<AdoError> Error(const std::function<void()>& body) {
    try {
      body();
      return {};
    } catch (const AdoError& error) {
      return error;
    }
  }

  std::vector<std::unique_ptr<OwnServer>> nodes;
};

}  // namespace

TEST_F(GaleraTest, WhenItsNodeDiesTheNextActionWorksOnAnother) {
  Connection connection(Cluster());
  connection.Execute("CREATE TABLE ID_A (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(20))");
  connection.Execute("INSERT INTO ID_A VALUES(1, 'x')");
  EXPECT_EQ(Port(connection), nodes[0]->Settings().port);
  connection.BeginTrans();
  connection.Execute("INSERT INTO ID_A VALUES(2, 'x')");
  nodes[0]->Kill();
  const std::optional<AdoError> lost = Error([&] { connection.Execute("INSERT INTO ID_A VALUES(3, 'x')"); });
  ASSERT_TRUE(lost);
  EXPECT_TRUE(lost->ConnectionLost()) << lost->Description().toStdString();
  connection.RollbackTrans();
  // The others notice within seconds that one is gone; until then they wait for it.
  EXPECT_EQ(connection.Execute("INSERT INTO ID_A VALUES(4, 'x')"), 1);
  EXPECT_EQ(Port(connection), nodes[1]->Settings().port);
  EXPECT_EQ(Value(connection, "SELECT GROUP_CONCAT(A ORDER BY A) FROM ID_A"), "1,4");

  // A second one dies as well: the last is no majority and takes nothing.
  nodes[1]->Kill();
  EXPECT_TRUE(Error([&] { connection.Execute("INSERT INTO ID_A VALUES(5, 'x')"); }));
  std::optional<AdoError> refused;
  for (int round = 0; round < 600 && !(refused && refused->Description().contains("takes no changes")); ++round)
    refused = Error([&] { connection.Execute("SELECT A FROM ID_A WHERE A = 99"); });
  ASSERT_TRUE(refused);
  EXPECT_FALSE(refused->Description().contains("Secr3tWord"));
}

TEST_F(GaleraTest, AConflictOfTwoNodesIsToldAsBusy) {
  ConnectionSettings second = Cluster();
  second.host = "127.0.0.1:" + QString::number(nodes[1]->Settings().port) + ',';
  Connection here(Cluster()), there(second);
  here.Execute("CREATE TABLE ID_A (A INTEGER NOT NULL PRIMARY KEY, B VARCHAR(20))");
  here.Execute("INSERT INTO ID_A VALUES(1, 'x')");
  there.Execute("SET SESSION wsrep_sync_wait = 1");
  EXPECT_EQ(Value(there, "SELECT B FROM ID_A"), "x");
  here.BeginTrans();
  here.Execute("UPDATE ID_A SET B = 'here' WHERE A = 1");
  there.Execute("UPDATE ID_A SET B = 'there' WHERE A = 1");
  // Refused at the latest where it would be stored, with whatever the other node had brought by then.
  const std::optional<AdoError> refused = Error([&] {
    Value(here, "SELECT 1");
    here.CommitTrans();
  });
  here.RollbackTrans();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->Number(), AdoNumber::Busy) << refused->Description().toStdString();
  EXPECT_EQ(Value(here, "SELECT B FROM ID_A"), "there");
}
