// tabulon-db is killed at random moments while it applies a file or makes a database: the file is applied as a whole or
// not at all, and a database that was not made to its end is not taken for one that was.
//
//   TABULON_KILLS  how often each; 5 when not set
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

#include "platform/ado/Recordset.h"
#include "reliability/DatabaseContents.h"
#include "support/Printing.h"
#include "support/TestDatabase.h"

namespace {

int Kills() {
  bool given = false;
  const int kills = qEnvironmentVariableIntValue("TABULON_KILLS", &given);
  return given ? kills : 5;
}

// Moments within a run of the tool, whose duration is not the same each time.
class Moments {
 public:
  explicit Moments(int duration) : duration_(duration) {}
  int Next() const { return QRandomGenerator::global()->bounded(0, duration_); }
  void WasTooLate() { duration_ = std::max(1, duration_ * 9 / 10); }

 private:
  int duration_;
};

class KillToolTest : public testing::Test {
 protected:
  struct Ended {
    int exitCode = -1;
    bool killed = false;
    QString out, err;
  };

  void SetUp() override { ASSERT_TRUE(folder_.isValid()); }

  void Name(const ConnectionSettings& settings) {
    QFile file(folder_.filePath("Ostana.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(TestDatabase::IniSection(settings).toUtf8());
  }

  // To its end where `milliseconds` is negative.
  Ended Run(const QStringList& arguments, int milliseconds = -1) {
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("OSTANA_HOME", folder_.path());
    tool.setProcessEnvironment(environment);
    tool.setWorkingDirectory(folder_.path());
    tool.start(QCoreApplication::applicationDirPath() + "/tabulon-db", arguments);
    EXPECT_TRUE(tool.waitForStarted()) << tool.errorString().toStdString();
    if (milliseconds >= 0 && !tool.waitForFinished(milliseconds)) tool.kill();
    EXPECT_TRUE(tool.state() == QProcess::NotRunning || tool.waitForFinished(120000));
    return {tool.exitCode(), tool.exitStatus() == QProcess::CrashExit, QString::fromUtf8(tool.readAllStandardOutput()),
            QString::fromUtf8(tool.readAllStandardError())};
  }
  void Done(const QStringList& arguments) {
    const Ended ended = Run(arguments);
    ASSERT_EQ(ended.exitCode, 0) << arguments.join(' ').toStdString() << '\n' << ended.err.toStdString();
  }
  // How long a whole run takes, so that the kills fall everywhere in it.
  int Milliseconds(const QStringList& arguments) {
    QElapsedTimer timer;
    timer.start();
    Done(arguments);
    return int(timer.elapsed());
  }

  // A server may still be at work on the last thing the process sent, the making of the database included.
  static void AwaitEndOfItsSessions(const ConnectionSettings& settings) {
    ConnectionSettings maintenance = settings;
    QString others;
    if (settings.engine == Engine::PostgreSql) {
      maintenance.name = "postgres";
      others =
          "SELECT COUNT(*) FROM pg_stat_activity WHERE application_name = 'Tabulon' AND pid <> pg_backend_pid() AND "
          "(query LIKE 'CREATE DATABASE%' AND state = 'active' OR datname = '" +
          settings.name + "')";
    } else if (settings.engine == Engine::MariaDb) {
      maintenance.name = "information_schema";
      others = "SELECT COUNT(*) FROM INFORMATION_SCHEMA.PROCESSLIST WHERE DB = '" + settings.name +
               "' OR INFO LIKE 'CREATE DATABASE%'";
    } else {
      return;
    }
    Connection client(maintenance);
    client.Open();
    const auto none = [&] {
      Recordset rows;
      rows.Open(client, others);
      return rows.Fields(0).Value() == u"0";
    };
    ASSERT_TRUE(QTest::qWaitFor(none, 30000));
  }

  QTemporaryDir folder_;
};

// --- apply ---

class KillApplyTest : public KillToolTest {
 protected:
  void SetUp() override {
    KillToolTest::SetUp();
    Name(database_.Settings());
    Done({"export", "before.txt"});
    before_ = ContentsOf(Client());
    // Changed, removed and new rows in several tables.
    Client().Execute("UPDATE ID_EXCEPTION_CODE SET EXCEPTION_CODE_DESC = 'after'");
    Client().Execute("UPDATE ID_EVENT SET EVENT_DESC = 'after'");
    Client().Execute("UPDATE ID_LIBRARY SET CONTACT = 'after'");
    Client().Execute("DELETE FROM ID_GENERAL_MESSAGE");
    for (int printer = 1; printer <= 100; ++printer)
      Client().Execute(QString("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('after %1', 'x')").arg(printer));
    Done({"export", "after.txt"});
    after_ = ContentsOf(Client());
  }
  Connection& Client() { return database_.OtherClient(); }

  TestDatabase database_{true};
  DatabaseContents before_, after_;
};

TEST_F(KillApplyTest, TheFileIsAppliedAsAWholeOrNotAtAll) {
  Moments moments(Milliseconds({"apply", "before.txt", "--delete"}));
  ASSERT_TRUE(Differences(before_, ContentsOf(Client())).isEmpty());
  bool isAfter = false;
  int killed = 0, applied = 0;
  while (killed < Kills()) {
    const int milliseconds = moments.Next();
    SCOPED_TRACE("kill " + std::to_string(killed) + " after " + std::to_string(milliseconds) + " ms");
    Client().Close();
    const Ended ended = Run({"apply", isAfter ? "before.txt" : "after.txt", "--delete"}, milliseconds);
    killed += ended.killed;
    if (!ended.killed) moments.WasTooLate();
    AwaitEndOfItsSessions(database_.Settings());
    const DatabaseContents now = ContentsOf(Client());
    const bool wasAfter = isAfter;
    isAfter = Differences(after_, now).isEmpty();
    applied += isAfter != wasAfter;
    if (!isAfter) {
      ASSERT_EQ(Differences(before_, now), QStringList());
    }
    if (!ended.killed) {
      ASSERT_EQ(ended.exitCode, 0) << ended.err.toStdString();
      ASSERT_NE(isAfter, wasAfter);
    }
  }
  RecordProperty("killed", killed);
  RecordProperty("applied", applied);
}

// --- create ---

class KillCreateTest : public KillToolTest {
 protected:
  const ConnectionSettings& Fresh() {
    fresh_ = TestDatabase::FreshSettings(folder_.path());
    Name(fresh_);
    return fresh_;
  }
  // What was left behind, seen as a user sees it.
  void MustBeWholeOrKnownForWhatItIs(bool& whole, bool& refused) {
    whole = Run({"check"}).exitCode == 0;
    const Ended again = Run({"create"});
    refused = again.exitCode != 0;
    // MariaDB ends a transaction at each table, so that some may stand; the others are empty or whole.
    if (whole || fresh_.engine == Engine::MariaDb) {
      EXPECT_TRUE(!refused || again.err.contains("holds tables of Ostana already")) << again.err.toStdString();
    } else {
      EXPECT_FALSE(refused) << again.err.toStdString();
    }
    if (refused) {
      EXPECT_EQ(again.err.contains("It is not whole"), !whole) << again.err.toStdString();
    } else {
      EXPECT_EQ(Run({"check"}).exitCode, 0);
    }
  }

  ConnectionSettings fresh_;
};

TEST_F(KillCreateTest, ADatabaseIsWholeOrIsMadeAgainOrIsKnownToLackTables) {
  Fresh();
  Moments moments(Milliseconds({"create"}));
  TestDatabase::Remove(fresh_);
  int killed = 0, inPart = 0, madeAgain = 0;
  while (killed < Kills()) {
    const int milliseconds = moments.Next();
    SCOPED_TRACE("kill " + std::to_string(killed) + " after " + std::to_string(milliseconds) + " ms");
    Fresh();
    const Ended ended = Run({"create"}, milliseconds);
    killed += ended.killed;
    if (!ended.killed) moments.WasTooLate();
    AwaitEndOfItsSessions(fresh_);
    bool whole = false, refused = false;
    MustBeWholeOrKnownForWhatItIs(whole, refused);
    if (!ended.killed) {
      ASSERT_TRUE(whole) << ended.err.toStdString();
    }
    inPart += refused && !whole;
    madeAgain += !refused;
    TestDatabase::Remove(fresh_);
  }
  RecordProperty("killed", killed);
  RecordProperty("inPart", inPart);
  RecordProperty("madeAgain", madeAgain);
}

}  // namespace
