#include "reliability/ReliabilityDesk.h"

#include <QFile>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/Grid.h"
#include "shell/Screen.h"

void ReliabilityDesk::SetUp() {
  SampleDesk::SetUp();
  // The lists of automatic rejections that the site has.
  Setting("Tables", "NumberOfRejectTables", "2");
  Setting("Tables", "AutoRejectField1", "CALL_NUMBER");
  Setting("Tables", "AutoRejectField2", "LIBRARY_SYMBOL");
  answers_ = std::make_unique<Answers>();
}

void ReliabilityDesk::TearDown() {
  watch_ = {};
  if (TestDatabase::TestEngine() == Engine::Sqlite && QFile::exists(Taken())) RestoreLink();
  SampleDesk::TearDown();
  answers_.reset();
}

void ReliabilityDesk::LogOn() {
  if (!loggedOn_) Logon();
  loggedOn_ = true;
}

void ReliabilityDesk::EnterTab(int tab) {
  if (!started_) Start();
  started_ = loggedOn_ = true;
  if (Shell().Tab() != tab) SelectTab("sstabtables", tab);
}

void ReliabilityDesk::OpenDialog(const QString& formName) {
  LogOn();
  const QWidget* const front = Window();
  if (!front || front->objectName() != formName || !front->isVisible()) Open(formName);
}

void ReliabilityDesk::OpenLibraryScreen(const QString& formName, qint32 library) {
  LogOn();
  gclsOF->SetLibraryId(library);
  gclsOF->SetCallingFunction("Library Registration");
  OpenDialog(formName);
}

void ReliabilityDesk::LeaveUnsaved() {
  const Answers::Refusing refusing(*answers_);
  Window()->close();
}

void ReliabilityDesk::ClickCell(const QString& name, int row, int col) {
  auto* const grid = Find<Grid>(name);
  const QModelIndex cell = grid->model()->index(row - 1, col);
  grid->scrollTo(cell);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->visualRect(cell).center());
}

void ReliabilityDesk::ChooseCode(const QString& combo, const QString& code) {
  const auto* const list = Find<CodeComboBox>(combo);
  const int index = list->IndexOfCode(code) >= 0 ? list->IndexOfCode(code) : list->IndexOfText(code);
  ASSERT_GE(index, 0) << combo.toStdString() << " has no entry with the code " << code.toStdString();
  ChooseAt(combo, index);
}

void ReliabilityDesk::CutLink() {
  switch (TestDatabase::TestEngine()) {
    case Engine::Sqlite:
      ASSERT_TRUE(QFile::rename(Database().Settings().name, Taken()));
      return;
    case Engine::PostgreSql:
      Ask("SELECT COUNT(pg_terminate_backend(pid, 5000)) FROM pg_stat_activity WHERE datname = current_database() "
          "AND pid <> pg_backend_pid()");
      return;
    case Engine::MariaDb: {
      QStringList ids;
      Recordset sessions;
      sessions.Open(Database().OtherClient(),
                    "SELECT ID FROM INFORMATION_SCHEMA.PROCESSLIST WHERE DB = DATABASE() AND ID <> CONNECTION_ID()");
      for (; !sessions.EOF_(); sessions.MoveNext()) ids += sessions.Fields(0).Value();
      for (const QString& id : ids) Another("KILL " + id);
      return;
    }
    case Engine::SqlServer:
      FAIL() << "There is no such server here";
  }
}

void ReliabilityDesk::RestoreLink() {
  if (TestDatabase::TestEngine() != Engine::Sqlite || !QFile::exists(Taken())) return;
  ASSERT_TRUE(QFile::rename(Taken(), Database().Settings().name));
}

void ReliabilityDesk::AfterEachStatement(std::function<void(const StatementRecord&)> watch) {
  watch_ = std::move(watch);
  if (watching_) return;
  watching_ = true;
  gclsOF->Connection().AddObserver([this](const StatementRecord& record) {
    if (watch_) watch_(record);
  });
}
