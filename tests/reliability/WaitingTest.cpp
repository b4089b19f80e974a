// A server that takes its time: the program says that it waits, its windows repaint, and Cancel ends the wait. By a
// lock that another client holds, by a slow query, and by a server process that a signal has stopped.
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <csignal>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/ado/Recordset.h"
#include "platform/ado/Waiting.h"
#include "shell/WaitingWindow.h"
#include "support/Desk.h"

namespace {

// Counts how often it is painted.
class Painted : public QWidget {
 public:
  using QWidget::QWidget;
  int times = 0;

 protected:
  void paintEvent(QPaintEvent*) override { ++times; }
};

class WaitingTest : public Desk {
 protected:
  void SetUp() override {
    WaitingWindow::Install();
    Waiting::SetHook(Waiting::CurrentHook(), std::chrono::milliseconds(50));
    Desk::SetUp();
    Logon();
  }
  void TearDown() override {
    ASSERT_EQ(QApplication::activeModalWidget(), nullptr);
    gclsOF->Connection().Close();
    Desk::TearDown();
    Waiting::SetHook({});
  }

  static bool IsSqlite() { return TestDatabase::TestEngine() == Engine::Sqlite; }
  static bool IsPostgreSql() { return TestDatabase::TestEngine() == Engine::PostgreSql; }

  // Ends when it is asked to, and long after the case otherwise.
  static QString SlowQuery() {
    switch (TestDatabase::TestEngine()) {
      case Engine::PostgreSql:
        return "SELECT pg_sleep(100)";
      case Engine::MariaDb:
        return "SELECT SLEEP(100)";
      default:
        return "SELECT COUNT(*) FROM ID_LIBRARY a, (WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
               "SELECT i FROM n) b";
    }
  }

  // Acts on the waiting window as soon as it stands there; counts the windows that came.
  void WhenWaiting(std::function<void(WaitingWindow&)> act) {
    watch_ = std::make_unique<QTimer>();
    QObject::connect(watch_.get(), &QTimer::timeout, watch_.get(), [this, act = std::move(act)] {
      auto* const window = qobject_cast<WaitingWindow*>(QApplication::activeModalWidget());
      if (!window || !window->isVisible()) return;
      watch_->stop();
      ++windows_;
      act(*window);
    });
    watch_->start(10);
  }
  static void Cancel(WaitingWindow& window) {
    auto* const button = window.findChild<QPushButton*>("cmdCancel");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(button->isEnabled());
  }

  static std::optional<AdoError> Error(const std::function<void()>& body) {
    try {
      body();
      return {};
    } catch (const AdoError& error) {
      return error;
    }
  }
  static std::optional<AdoError> Read(const QString& sql) {
    return Error([&] {
      Recordset rows;
      rows.Open(gclsOF->Connection(), sql);
    });
  }
  // The statement that the program sends next works, on the link that is open or on a new one.
  static void ExpectToGoOn() { EXPECT_FALSE(Read("SELECT COUNT(*) FROM ID_PRINTER")); }

  int windows_ = 0;
  std::unique_ptr<QTimer> watch_;
};

}  // namespace

TEST_F(WaitingTest, ASlowQueryIsToldAndStopped) {
  QString shown;
  WhenWaiting([&](WaitingWindow& window) {
    shown = window.findChild<QLabel*>("lblWaiting")->text() + '|' + window.findChild<QLabel*>("lblSeconds")->text();
    Cancel(window);
  });
  const std::optional<AdoError> error = Read(SlowQuery());
  // MariaDB's SLEEP tells of its end by its value.
  if (TestDatabase::TestEngine() != Engine::MariaDb) {
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->Description().startsWith("The statement was stopped.")) << error->Description().toStdString();
    EXPECT_FALSE(error->ConnectionLost());
  }
  EXPECT_EQ(windows_, 1);
  EXPECT_TRUE(shown.startsWith("Waiting for the database|") && shown.endsWith(" seconds")) << shown.toStdString();
  EXPECT_EQ(gclsOF->Connection().State(), 1);
  ExpectToGoOn();
}

TEST_F(WaitingTest, EscapeStopsAsWell) {
  WhenWaiting([](WaitingWindow& window) { QTest::keyClick(&window, Qt::Key_Escape); });
  Read(SlowQuery());
  EXPECT_EQ(windows_, 1);
  ExpectToGoOn();
}

TEST_F(WaitingTest, WindowsRepaintMeanwhile) {
  Painted behind;
  behind.resize(50, 50);
  behind.show();
  QApplication::processEvents();
  behind.times = 0;
  WhenWaiting([&](WaitingWindow& window) {
    behind.update();
    QTimer::singleShot(0, &window, [&] {
      QApplication::processEvents();
      Cancel(window);
    });
  });
  Read(SlowQuery());
  EXPECT_GE(behind.times, 1);
}

TEST_F(WaitingTest, AStatementThatEndsByItselfGoesOnAsEver) {
  if (IsSqlite()) GTEST_SKIP() << "its engine gives up on a lock before it is waited for";
  WhenWaiting([](WaitingWindow&) {});
  EXPECT_FALSE(Read(IsPostgreSql() ? "SELECT pg_sleep(0.5)" : "SELECT SLEEP(0.5)"));
  EXPECT_EQ(windows_, 1);
}

TEST_F(WaitingTest, InATransactionNothingOfItIsStored) {
  Connection& connection = gclsOF->Connection();
  const int before = Count("ID_PRINTER");
  WhenWaiting([](WaitingWindow& window) { Cancel(window); });
  const std::optional<AdoError> error = Error([&] {
    Transaction transaction(connection);
    connection.Execute("INSERT INTO ID_PRINTER (PRINTER) VALUES ('waiting')");
    Recordset rows;
    rows.Open(connection, SlowQuery());
    if (TestDatabase::TestEngine() == Engine::MariaDb) throw AdoError(AdoNumber::Unspecified, "stopped", "test");
    transaction.Commit();
  });
  EXPECT_TRUE(error);
  EXPECT_FALSE(connection.InTransaction());
  EXPECT_EQ(Count("ID_PRINTER"), before);
  ExpectToGoOn();
}

// Neither the statement nor the wish to stop it is answered: the link is given up, and the next statement opens
// another.
TEST_F(WaitingTest, AServerThatIsStoppedIsGivenUp) {
  if (IsSqlite()) GTEST_SKIP() << "about servers";
  qint64 process = 0;
  {
    Recordset rows;
    rows.Open(gclsOF->Connection(), IsPostgreSql() ? "SELECT pg_backend_pid()" : "SELECT @@pid_file");
    process = rows.Fields(0).Value().toLongLong();
    if (QFile file(rows.Fields(0).Value()); process == 0 && file.open(QIODevice::ReadOnly))
      process = file.readAll().trimmed().toLongLong();
  }
  ASSERT_GT(process, 0);
  ASSERT_EQ(::kill(pid_t(process), SIGSTOP), 0);
  WhenWaiting([](WaitingWindow& window) { Cancel(window); });
  const std::optional<AdoError> error = Read("SELECT COUNT(*) FROM ID_PRINTER");
  ::kill(pid_t(process), SIGCONT);
  ASSERT_TRUE(error);
  EXPECT_TRUE(error->ConnectionLost()) << error->Description().toStdString();
  EXPECT_EQ(windows_, 1);
  EXPECT_EQ(gclsOF->Connection().State(), 0);
  ExpectToGoOn();
}

// Nothing of the windows behind can be pressed, but what the loop brings by itself must not slip between either.
TEST_F(WaitingTest, NoOtherStatementComesBetween) {
  std::optional<AdoError> between;
  WhenWaiting([&](WaitingWindow& window) {
    between = Read("SELECT COUNT(*) FROM ID_PRINTER");
    Cancel(window);
  });
  Read(SlowQuery());
  ASSERT_TRUE(between);
  EXPECT_EQ(between->Description(), "Another statement of this connection is under way.");
  ExpectToGoOn();
}

TEST_F(WaitingTest, ALockThatIsHeldIsStopped) {
  if (IsSqlite()) GTEST_SKIP() << "its engine gives up on a lock before it is waited for";
  Another(IsPostgreSql() ? "INSERT INTO ID_PRINTER (PRINTER) VALUES ('held')"
                         : "INSERT INTO ID_PRINTER (PRINTER) VALUES ('held')");
  Database().OtherClient().BeginTrans();
  Another("UPDATE ID_PRINTER SET DEVICE = 'held' WHERE PRINTER = 'held'");
  WhenWaiting([](WaitingWindow& window) { Cancel(window); });
  const std::optional<AdoError> error =
      Error([] { gclsOF->Connection().Execute("UPDATE ID_PRINTER SET DEVICE = 'mine' WHERE PRINTER = 'held'"); });
  Database().OtherClient().RollbackTrans();
  ASSERT_TRUE(error);
  EXPECT_TRUE(error->Description().startsWith("The statement was stopped.")) << error->Description().toStdString();
  EXPECT_EQ(windows_, 1);
  ExpectToGoOn();
  EXPECT_EQ(Ask("SELECT DEVICE FROM ID_PRINTER WHERE PRINTER = 'held'"), QString());
}
