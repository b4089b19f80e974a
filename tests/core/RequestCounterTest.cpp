// Request numbers, through the common services.
#include "core/RequestCounter.h"

#include <thread>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "support/Desk.h"

namespace {

class RequestCounterTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    ASSERT_TRUE(gclsOF->LoadApplicationSettings("Tabulon", "", "admin", "secret")) << gclsOF->LastError().toStdString();
  }
  void SetNext(qint64 number) {
    Another("DELETE FROM ID_NEXT_REQUEST");
    Another("INSERT INTO ID_NEXT_REQUEST (NEXT_REQUEST) VALUES (" + QString::number(number) + ")");
  }
  static QString Next() { return gclsOF->NextRequestNumber("REG"); }
};

}  // namespace

TEST_F(RequestCounterTest, NumberIsThePrefixAndEightDigits) {
  SetNext(42);
  EXPECT_EQ(Next(), "REG00000042");
  EXPECT_EQ(Next(), "REG00000043");
  EXPECT_EQ(gclsOF->NextRequestNumber("ILL"), "ILL00000044");
  EXPECT_EQ(Ask("SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST"), "45");
}

TEST_F(RequestCounterTest, FreshDatabaseGivesANumber) {
  EXPECT_EQ(Next().size(), 11);
  EXPECT_TRUE(gclsOF->LastError().isEmpty());
}

TEST_F(RequestCounterTest, LastNumberIsGivenOnce) {
  SetNext(99999999);
  EXPECT_EQ(Next(), "REG99999999");
  EXPECT_EQ(Next(), "");
  EXPECT_EQ(gclsOF->LastError(), "The counter of request numbers in ID_NEXT_REQUEST is out of its range.");
}

TEST_F(RequestCounterTest, WithoutARowThereIsNoNumber) {
  Another("DELETE FROM ID_NEXT_REQUEST");
  EXPECT_EQ(Next(), "");
  EXPECT_EQ(gclsOF->LastError(), "No records exist in Table ID_NEXT_REQUEST.  Please verify table content.");
}

TEST_F(RequestCounterTest, TwoClientsNeverGetTheSameNumber) {
  constexpr int Each = 50;
  SetNext(1);
  const ConnectionSettings settings = gclsOF->Connection().Settings();
  const auto take = [settings](QList<int>& numbers) {
    Connection connection(settings);
    connection.Open();
    QString reason;
    for (int times = 0; times < Each; ++times) numbers << RequestCounter::Take(connection, reason);
  };
  QList<int> first, second;
  std::thread other([&] { take(second); });
  take(first);
  other.join();
  const QList<int> all = first + second;
  EXPECT_FALSE(all.contains(0));
  EXPECT_EQ(QSet<int>(all.begin(), all.end()).size(), 2 * Each);
}
