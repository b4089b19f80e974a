// Two processes take request numbers at the same time: none is given twice, and none that the counter has gone through
// is lost.
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <cstdio>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "reliability/ReliabilityDesk.h"

namespace {

constexpr int Each = 200;
constexpr const char* DriverVariable = "TABULON_COUNTER_DRIVER";

// --- One of the two ---

class CounterDriver : public ReliabilityDesk {};

TEST_F(CounterDriver, TakesNumbers) {
  if (qEnvironmentVariableIsEmpty(DriverVariable)) GTEST_SKIP() << "runs as a process of its own";
  Logon();
  std::printf("READY\n");
  std::fflush(stdout);
  std::getchar();  // until both are ready
  for (int times = 0; times < Each; ++times) {
    const QString number = gclsOF->NextRequestNumber("REG");
    ASSERT_FALSE(number.isEmpty()) << gclsOF->LastError().toStdString();
    std::printf("NUMBER\t%s\n", qPrintable(number));
  }
}

// --- The two ---

class TwoProcessesTest : public ReliabilityDesk {
 protected:
  std::unique_ptr<QProcess> StartDriver(const char* name) {
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(DriverVariable, name);
    Database().LendTo(environment);
    process->setProcessEnvironment(environment);
    process->start(QCoreApplication::applicationFilePath(), {"--gtest_filter=CounterDriver.*"});
    return process;
  }

  static void AwaitReady(QProcess& process, QByteArray& output) {
    while (!output.contains("READY\n")) {
      ASSERT_TRUE(process.waitForReadyRead(60000)) << output.toStdString();
      output += process.readAllStandardOutput();
    }
  }

  static QStringList NumbersOf(QProcess& process, QByteArray& output) {
    EXPECT_TRUE(process.waitForFinished(120000));
    output += process.readAllStandardOutput();
    EXPECT_EQ(process.exitCode(), 0) << output.toStdString();
    QStringList numbers;
    for (const QString& line : QString::fromUtf8(output).split('\n'))
      if (line.startsWith("NUMBER\t")) numbers += line.section('\t', 1);
    return numbers;
  }
};

TEST_F(TwoProcessesTest, NoRequestNumberIsGivenTwiceAndNoneIsLost) {
  const int first = Ask("SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST").toInt();
  const std::unique_ptr<QProcess> processes[] = {StartDriver("one"), StartDriver("other")};
  QByteArray outputs[2];
  for (int i = 0; i < 2; ++i) AwaitReady(*processes[i], outputs[i]);
  ASSERT_FALSE(HasFatalFailure());
  for (const auto& process : processes) process->write("\n"), process->waitForBytesWritten();
  QStringList numbers;
  for (int i = 0; i < 2; ++i) numbers += NumbersOf(*processes[i], outputs[i]);
  numbers.sort();
  QStringList expected;
  for (int number = first; number < first + 2 * Each; ++number)
    expected += QString("REG%1").arg(number, 8, 10, QChar('0'));
  EXPECT_EQ(numbers, expected);
  EXPECT_EQ(Ask("SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST"), QString::number(first + 2 * Each));
}

}  // namespace
