// A second process of this program is killed while it writes lists over and over: no list is half stored, the program
// starts again on what it left, and its log can be read.
//
//   TABULON_KILLS  how often; 8 when not set
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <csignal>
#include <cstdio>

#include "core/ModuleState.h"
#include "platform/ado/Recordset.h"
#include "platform/controls/Grid.h"
#include "reliability/WritingScreens.h"

namespace {

constexpr int NotesInList = 12;
const QString OfPair = " WHERE EXCEPTION_CODE = 'BIB' AND PROCESS_TYPE = 'SEA'";

const QString StatementLogName = "statements.log";

// --- The process that is killed ---

class KillDriver : public ReliabilityDesk {
 protected:
  // A list of notes, all of one generation: one DELETE, twelve INSERTs, one UPDATE, one transaction.
  void WriteList(int generation) {
    gstrNotesExceptionCode = "BIB";
    gstrNotesProcessType = "SEA";
    OpenDialog("frmAddExceptionNotes");
    while (Rows("grdExceptionNote") > 1) {
      SelectRow("grdExceptionNote", 1);
      Click("cmdDelete");
    }
    for (int note = 1; note <= NotesInList; ++note) {
      Paste("txtExceptionNote", QString("%1 of generation %2").arg(note).arg(generation));
      Click("cmdAdd");
    }
    Click("cmdClose");
  }
};

TEST_F(KillDriver, WritesUntilKilled) {
  bool driven = false;
  const int behind = qEnvironmentVariableIntValue("TABULON_KILL_BEHIND", &driven);
  if (!driven) GTEST_SKIP() << "runs as a process of its own, started by KillTest";
  Setting("System", "StatementLog", StatementLogName);
  WriteList(0);
  std::printf("READY\t%s\t%s\n", qPrintable(Folder()), qPrintable(Database().Settings().name));
  std::fflush(stdout);
  int statements = 0;
  AfterEachStatement([&](const StatementRecord&) {
    if (++statements == behind) std::raise(SIGKILL);
  });
  for (int generation = 1;; ++generation) WriteList(generation);
}

// --- The one that kills ---

class KillTest : public ReliabilityDesk, public testing::WithParamInterface<int> {
 protected:
  void TearDown() override {
    ReliabilityDesk::TearDown();
    if (left_.name.isEmpty()) return;
    TestDatabase::Remove(left_);
    QDir(folder_).removeRecursively();
    if (left_.engine == Engine::Sqlite) QFileInfo(left_.name).dir().removeRecursively();
  }

  // Behind a statement where `behind` is set, at a moment of the clock otherwise.
  void StartAndKill(int behind, int milliseconds) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TABULON_KILL_BEHIND", QString::number(behind));
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=KillDriver.*"});
    QByteArray output;
    while (!output.contains("READY\t") || !output.endsWith('\n')) {
      ASSERT_TRUE(process.waitForReadyRead(60000))
          << output.toStdString() << process.readAllStandardError().toStdString();
      output += process.readAllStandardOutput();
    }
    const QStringList parts = QString::fromUtf8(output.mid(output.indexOf("READY\t"))).section('\n', 0, 0).split('\t');
    folder_ = parts.value(1);
    left_ = Database().Settings();
    left_.name = parts.value(2);
    if (behind == 0) {
      QTest::qWait(milliseconds);
      process.kill();
    }
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
  }

  void MustHoldOneWholeList() {
    Connection connection(left_);
    connection.Open();
    QStringList notes;
    Recordset rows;
    rows.Open(connection, "SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_NOTE" + OfPair + " ORDER BY EXCEPTION_NOTE_SEQ");
    for (; !rows.EOF_(); rows.MoveNext()) notes += rows.Fields(0).Value();
    rows.Close();
    ASSERT_EQ(notes.size(), NotesInList);
    const QString generation = notes.front().section(' ', 1);
    for (int note = 1; note <= NotesInList; ++note)
      EXPECT_EQ(notes[note - 1], QString::number(note) + ' ' + generation);
    rows.Open(connection, "SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_PROCESS" + OfPair);
    EXPECT_EQ(rows.Fields(0).Value(), notes.front());
    rows.Close();
    if (left_.engine != Engine::Sqlite) return;
    rows.Open(connection, "SELECT integrity_check FROM pragma_integrity_check");
    EXPECT_EQ(rows.Fields(0).Value(), "ok");
  }

  void MustStartAgain() {
    qputenv("OSTANA_HOME", folder_.toUtf8());
    qputenv("OSTANA_REGISTRY", folder_.toUtf8());
    Start();
    EXPECT_FALSE(ProcessEnded());
    EXPECT_TRUE(Shell().isVisible());
    EXPECT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
  }

  // Each statement a line of its own, from the first to that of the program that was started again.
  void LogMustBeReadable() {
    QFile file(QDir(folder_).filePath(StatementLogName));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.endsWith('\n'));
    const QStringList lines = QString::fromUtf8(bytes).split('\n', Qt::SkipEmptyParts);
    EXPECT_GT(lines.size(), NotesInList);
    int whole = 0;
    for (const QString& line : lines) {
      EXPECT_FALSE(line.contains(QChar::ReplacementCharacter) || line.contains(QChar::Null)) << line.toStdString();
      whole += line.count('\t') >= 3;
    }
    EXPECT_GE(whole, lines.size() - 1);  // the line that was being written may be cut
  }

  QString folder_;           // of the process that is gone
  ConnectionSettings left_;  // its database
};

TEST_P(KillTest, NothingIsHalfDone) {
  auto* const random = QRandomGenerator::global();
  const bool behindStatement = GetParam() % 2 == 1;
  const int behind = behindStatement ? random->bounded(1, 60) : 0;
  const int milliseconds = behindStatement ? 0 : random->bounded(0, 400);
  SCOPED_TRACE("behind statement " + std::to_string(behind) + ", after " + std::to_string(milliseconds) + " ms");
  StartAndKill(behind, milliseconds);
  if (HasFatalFailure()) return;
  MustHoldOneWholeList();
  MustStartAgain();
  LogMustBeReadable();
}

int Kills() {
  bool given = false;
  const int kills = qEnvironmentVariableIntValue("TABULON_KILLS", &given);
  return given ? kills : 8;
}

INSTANTIATE_TEST_SUITE_P(Times, KillTest, testing::Range(0, Kills()));

}  // namespace
