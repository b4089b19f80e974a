// A second process of this program is killed while it writes: nothing is half done, the program starts again on what
// the killed one left, and its logs can be read.
//
//   TABULON_KILLS  how often, through the actions in turn; once each when not set
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStringDecoder>
#include <QTest>
#include <csignal>
#include <cstdio>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/ado/Recordset.h"
#include "reliability/HistoryProof.h"
#include "reliability/KilledActions.h"

namespace {

const QString StatementLogName = "statements.log";
constexpr const char* ActionVariable = "TABULON_KILL_ACTION";
constexpr const char* BehindVariable = "TABULON_KILL_BEHIND";

// --- The process that is killed ---

class KillDriver : public ReliabilityDesk {};

TEST_F(KillDriver, WritesUntilKilled) {
  const QByteArray name = qgetenv(ActionVariable);
  if (name.isEmpty()) GTEST_SKIP() << "runs as a process of its own, started by KillTest";
  const auto& actions = KilledActions();
  const auto action = std::find_if(actions.begin(), actions.end(), [&](const auto& each) { return name == each.name; });
  ASSERT_NE(action, actions.end());
  Setting("System", "StatementLog", StatementLogName);
  action->round(*this, 0);
  ASSERT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
  std::printf("READY\t%s\n", qPrintable(Folder()));
  std::fflush(stdout);
  int statements = 0;
  const int behind = qEnvironmentVariableIntValue(BehindVariable);
  AfterEachStatement([&](const StatementRecord&) {
    if (++statements == behind) std::raise(SIGKILL);
  });
  for (int round = 1;; ++round) {
    action->round(*this, round);
    ASSERT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
  }
}

// --- The one that kills ---

class KillTest : public ReliabilityDesk, public testing::WithParamInterface<int> {
 protected:
  const KilledAction& Subject() const { return KilledActions()[size_t(GetParam()) % KilledActions().size()]; }

  // Behind a statement where `behind` is set, at a moment of the clock otherwise.
  void StartAndKill(int behind, int milliseconds) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(ActionVariable, Subject().name);
    environment.insert(BehindVariable, QString::number(behind));
    ASSERT_TRUE(QDir(Folder()).mkpath("left"));
    environment.insert("TMPDIR", Folder() + "/left");  // all that the process leaves goes with this case
    Database().LendTo(environment);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=KillDriver.*"});
    QByteArray output;
    while (!output.contains("READY\t") || !output.endsWith('\n')) {
      ASSERT_TRUE(process.waitForReadyRead(60000))
          << output.toStdString() << process.readAllStandardError().toStdString();
      output += process.readAllStandardOutput();
    }
    left_ = QString::fromUtf8(output.mid(output.indexOf("READY\t"))).section('\n', 0, 0).section('\t', 1);
    if (behind == 0) {
      QTest::qWait(milliseconds);
      process.kill();
    }
    ASSERT_TRUE(process.waitForFinished(60000));
    ASSERT_EQ(process.exitStatus(), QProcess::CrashExit) << process.readAllStandardOutput().toStdString();
  }

  // A server may still be at work on the last thing the process sent.
  void AwaitEndOfItsSession() {
    QString others;
    switch (TestDatabase::TestEngine()) {
      case Engine::PostgreSql:
        others = "SELECT COUNT(*) FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid()";
        break;
      case Engine::MariaDb:
        others = "SELECT COUNT(*) FROM INFORMATION_SCHEMA.PROCESSLIST WHERE DB = DATABASE() AND ID <> CONNECTION_ID()";
        break;
      case Engine::Sqlite:
      case Engine::SqlServer:
        return;
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return Ask(others) == u"0"; }, 30000));
  }

  bool WithHistory() const override { return true; }

  void NothingMustBeHalfDone() {
    EXPECT_EQ(proof_->WhyNot(Database().OtherClient()), "");
    EXPECT_EQ(Subject().halfDone(Database().OtherClient()), "");
    if (TestDatabase::TestEngine() != Engine::Sqlite) return;
    EXPECT_EQ(Ask("SELECT integrity_check FROM pragma_integrity_check"), "ok");
  }

  // In the folder of the process that is gone.
  void MustStartAgain() {
    qputenv("OSTANA_HOME", left_.toUtf8());
    qputenv("OSTANA_REGISTRY", left_.toUtf8());
    QDir::setCurrent(left_);
    Start();
    EXPECT_FALSE(ProcessEnded());
    EXPECT_TRUE(Shell().isVisible());
    EXPECT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
  }

  QByteArray Left(const QString& name) const {
    QFile file(QDir(left_).filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }

  // Each statement a line of its own, from the first to that of the program that was started again.
  void StatementLogMustBeReadable() {
    const QByteArray bytes = Left(StatementLogName);
    EXPECT_TRUE(bytes.endsWith('\n'));
    const QStringList lines = QString::fromUtf8(bytes).split('\n', Qt::SkipEmptyParts);
    EXPECT_GT(lines.size(), 1);
    for (const QString& line : lines) {
      EXPECT_FALSE(line.contains(QChar::ReplacementCharacter) || line.contains(QChar::Null)) << line.toStdString();
      EXPECT_EQ(line.count('\t'), 3) << line.toStdString();
    }
  }

  // Whole characters and whole lines; none of them is a failure.
  void LogMustBeReadable() {
    const QByteArray bytes = Left("Logs/Tabulon.log");
    EXPECT_TRUE(bytes.startsWith("\xFF\xFE"));
    EXPECT_TRUE(bytes.endsWith(QByteArray("\r\0\n\0", 4)));
    EXPECT_EQ(bytes.size() % 2, 0);
    QStringDecoder decoder(QStringDecoder::Utf16LE);
    const QString text = decoder.decode(bytes);
    EXPECT_FALSE(decoder.hasError());
    for (const QString& line : text.split("\r\n", Qt::SkipEmptyParts)) {
      EXPECT_FALSE(line.contains('\n') || line.contains(QChar::Null)) << line.toStdString();
      EXPECT_FALSE(line.contains("* Error: ")) << line.toStdString();
    }
  }

  std::optional<HistoryProof> proof_;  // of the changes and their records, which are stored together
  QString left_;                       // the folder of the process that is gone
};

TEST_P(KillTest, NothingIsHalfDone) {
  auto* const random = QRandomGenerator::global();
  const bool behindStatement = (size_t(GetParam()) / KilledActions().size() + size_t(GetParam())) % 2 == 1;
  const int behind = behindStatement ? random->bounded(1, 60) : 0;
  const int milliseconds = behindStatement ? 0 : random->bounded(0, 400);
  SCOPED_TRACE(std::string(Subject().name) + ", behind statement " + std::to_string(behind) + ", after " +
               std::to_string(milliseconds) + " ms");
  Subject().prepare(Database().OtherClient());
  proof_.emplace(Database().OtherClient());
  StartAndKill(behind, milliseconds);
  if (HasFatalFailure()) return;
  AwaitEndOfItsSession();
  NothingMustBeHalfDone();
  MustStartAgain();
  StatementLogMustBeReadable();
  LogMustBeReadable();
}

int Kills() {
  bool given = false;
  const int kills = qEnvironmentVariableIntValue("TABULON_KILLS", &given);
  return given ? kills : int(KilledActions().size());
}

INSTANTIATE_TEST_SUITE_P(Times, KillTest, testing::Range(0, Kills()), [](const auto& turn) {
  return std::string(KilledActions()[size_t(turn.param) % KilledActions().size()].name) + std::to_string(turn.param);
});

}  // namespace
