#include "platform/ado/Nodes.h"

#include <gtest/gtest.h>

namespace {

// "host:port" of each node.
QStringList Nodes(const QString& host, int port = 0) {
  ConnectionSettings settings;
  settings.host = host;
  settings.port = port;
  QStringList nodes;
  for (const ConnectionSettings& node : NodesOf(settings))
    nodes += node.host + QLatin1Char('|') + QString::number(node.port);
  return nodes;
}

}  // namespace

TEST(NodesTest, OneHostIsTakenAsItStands) {
  for (const char* host : {"", "db", "127.0.0.1", "::1", "/run/a,b", "2001:db8::1"})
    EXPECT_EQ(Nodes(host, 5), QStringList(QString(host) + "|5"));
}

TEST(NodesTest, SeveralHaveTheirPortsOrTheOneOfTheSettings) {
  EXPECT_EQ(Nodes("a, b:5433,,c"), (QStringList{"a|0", "b|5433", "c|0"}));
  EXPECT_EQ(Nodes("a,b:5433", 7), (QStringList{"a|7", "b|5433"}));
  EXPECT_EQ(Nodes("[::1]:1,[2001:db8::1],2001:db8::2"), (QStringList{"::1|1", "2001:db8::1|0", "2001:db8::2|0"}));
  EXPECT_EQ(Nodes(",", 7), QStringList(",|7"));
}
