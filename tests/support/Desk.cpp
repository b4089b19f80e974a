#include "support/Desk.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "Screens.h"
#include "core/Clock.h"
#include "core/Languages.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/ProcessEnd.h"
#include "platform/ado/SqlTokens.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/files/IniFile.h"
#include "platform/files/WideTextFile.h"
#include "shell/NumericFields.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "shell/WebServiceReading.h"
#include "support/CarriedText.h"
#include "support/Folders.h"

namespace {

// Waits in a filter for a dialog to be shown from inside the program, then acts on it within its nested loop.
class ShownFilter : public QObject {
 public:
  ShownFilter(QString name, std::function<void(Screen&)> act) : name_(std::move(name)), act_(std::move(act)) {}
  bool Acted() const { return acted_; }
  const QString& Name() const { return name_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && watched->objectName() == name_ && !acted_) {
      if (auto* const screen = dynamic_cast<Screen*>(watched)) {
        acted_ = true;
        QTimer::singleShot(0, screen, [this, screen] {
          act_(*screen);
          screen->Unload();
        });
      }
    }
    return false;
  }

 private:
  QString name_;
  std::function<void(Screen&)> act_;
  bool acted_ = false;
};

}  // namespace

// --- The workstation ---

void Desk::SetUp() {
  before_ = QDir::currentPath();
  ASSERT_TRUE(folder_.isValid());
  QDir::setCurrent(folder_.path());
  qputenv("OSTANA_HOME", folder_.path().toUtf8());
  qputenv("OSTANA_REGISTRY", folder_.path().toUtf8());
  QSettings().clear();
  ResetModuleState();
  SetDecimalSeparator();
  script_ = std::make_unique<Script>();
  SetProcessEnd([this](int code) { exitCode_ = code; });
  database_ = std::make_unique<TestDatabase>(WithSample());
  WriteSettings();
}

void Desk::TearDown() {
  for (auto screen = screens_.rbegin(); screen != screens_.rend(); ++screen) screen->reset();
  screens_.clear();
  shell_.reset();
  for (QObject* filter : filters_) {
    const auto* const shown = static_cast<ShownFilter*>(filter);
    if (!shown->Acted()) ADD_FAILURE() << "The dialog " << shown->Name().toStdString() << " was not shown";
    delete filter;
  }
  if (script_) script_->Verify();
  ResetModuleState();
  Clock::Set({});
  script_.reset();
  database_.reset();
  SetProcessEnd({});
  QDir::setCurrent(before_);
}

void Desk::WriteSettings() {
  QFile file(SettingsFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(database_->IniSection().toUtf8());
  file.write(
      "\n[System]\nTracing=Y\nDateDisplayFormat=yyyy-mm-dd\nFaxAvailable=Y\nContactName=Test Desk\n"
      "InstitutionName=Ostana\n\n[BL Web Services]\nUse=N\n\n[Loan Policy]\nRenewal Date=Current Date\n");
}

void Desk::Setting(const QString& section, const QString& key, const QString& value) {
  QString reason;
  ASSERT_TRUE(IniFile::WriteValue(SettingsFile(), section, key, value, &reason)) << reason.toStdString();
}

// --- The program ---

void Desk::Observe() {
  if (observed_) return;
  observed_ = true;
  gclsOF->Connection().AddObserver([this](const StatementRecord& record) {
    statements_.append(record.text);
    for (const QString& statement : SplitStatements(record.text)) WriteCarried(statement);
  });
}

frmTabulon& Desk::Start(const QString& arguments) {
  shell_ = std::make_unique<frmTabulon>(arguments);
  RegisterTabs(*shell_);
  shell_->Form_Initialize();
  if (exitCode_) return *shell_;
  Observe();
  shell_->show();
  shell_->activateWindow();
  shell_->Form_Activate();
  return *shell_;
}

void Desk::Logon() {
  ASSERT_TRUE(gclsOF->LoadApplicationSettings("Tabulon", "", "admin", "secret")) << gclsOF->LastError().toStdString();
  ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), gclsOF->ApplicationName()))
      << gclsOF->LastError().toStdString();
  ReadWebServiceSettings();
  LoadLanguageCodes({});
  Observe();
}

Screen& Desk::Open(const QString& formName) {
  screens_.push_back(MakeScreen(formName, nullptr));
  Screen& screen = *screens_.back();
  screen.ShowModeless();
  screen.activateWindow();
  return screen;
}

void Desk::WhenShown(const QString& formName, std::function<void(Screen&)> act) {
  auto* const filter = new ShownFilter(formName, std::move(act));
  filters_.push_back(filter);
  qApp->installEventFilter(filter);
}

QWidget* Desk::Window() const {
  // A dialog opened by the program itself is in front of everything else.
  if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
  for (auto screen = screens_.rbegin(); screen != screens_.rend(); ++screen)
    if ((*screen)->isVisible()) return screen->get();
  return shell_.get();
}

// --- Driving ---

namespace {

// A control that a person could use now.
void MustBeUsable(const QWidget* control) {
  if (!control) return;
  if (!control->isVisible()) ADD_FAILURE() << control->objectName().toStdString() << " is not visible";
  if (!control->isEnabled()) ADD_FAILURE() << control->objectName().toStdString() << " is disabled";
}

// Offscreen, no window is active after a message box has closed: the keys would go nowhere.
void Activate(QWidget* window) {
  if (window->isActiveWindow()) return;
  window->activateWindow();
  QApplication::setActiveWindow(window);
}

}  // namespace

void Desk::Click(const QString& name) {
  auto* const button = Find<QAbstractButton>(name);
  MustBeUsable(button);
  if (!button) return;
  Activate(button->window());
  QPoint at = button->rect().center();
  // The round or square mark of an option or a check box stands at its left end.
  if (qobject_cast<QRadioButton*>(button) || qobject_cast<QCheckBox*>(button)) at.setX(8);
  QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, at);
}

void Desk::Type(const QString& name, const QString& text) {
  auto* const box = Find<QWidget>(name);
  MustBeUsable(box);
  if (!box) return;
  Activate(box->window());
  box->setFocus();
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(box, Qt::Key_Delete);
  Append(name, text);
}

void Desk::Append(const QString& name, const QString& text) {
  auto* const box = Find<QWidget>(name);
  MustBeUsable(box);
  if (!box) return;
  Activate(box->window());
  box->setFocus();
  if (!box->inherits("QLineEdit") || !text.isEmpty()) QTest::keyClick(box, Qt::Key_End, Qt::ControlModifier);
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar letter = text[at];
    if (letter == '\n') {
      QTest::keyClick(box, Qt::Key_Return);
      continue;
    }
    // Letters beyond Latin-1 have no key code; they arrive as text, as from an input method, a surrogate pair at once.
    const bool pair = letter.isHighSurrogate() && at + 1 < text.size();
    QKeyEvent press(QEvent::KeyPress, letter.unicode() < 128 ? QChar(letter).toUpper().unicode() : 0, Qt::NoModifier,
                    text.mid(at, pair ? 2 : 1));
    if (pair) ++at;
    QApplication::sendEvent(box, &press);
  }
}

void Desk::Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  auto* const control = Find<QWidget>(name);
  MustBeUsable(control);
  if (!control) return;
  Activate(control->window());
  control->setFocus();
  QTest::keyClick(control, key, modifiers);
}

void Desk::Paste(const QString& name, const QString& text) {
  auto* const box = Find<QWidget>(name);
  MustBeUsable(box);
  if (!box) return;
  Activate(box->window());
  box->setFocus();
  QApplication::clipboard()->setText(text);
  QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}

void Desk::Choose(const QString& name, const QString& entry) {
  auto* const combo = Find<CodeComboBox>(name);
  if (!combo) return;
  const int index = combo->IndexOfText(entry);
  if (index < 0) {
    ADD_FAILURE() << name.toStdString() << " has no entry " << entry.toStdString();
    return;
  }
  ChooseAt(name, index);
}

void Desk::ChooseAt(const QString& name, int index) {
  auto* const combo = Find<CodeComboBox>(name);
  MustBeUsable(combo);
  if (!combo) return;
  Activate(combo->window());
  combo->setFocus();
  combo->SetIndex(index);
  // What a choice from the open list raises, an entry that was chosen already included.
  Q_EMIT combo->activated(index);
}

void Desk::SelectTab(const QString& name, int index) {
  auto* const tabs = Find<QTabWidget>(name);
  MustBeUsable(tabs);
  if (!tabs) return;
  QTabBar* const bar = tabs->tabBar();
  Activate(bar->window());
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(index).center());
}

void Desk::SelectRow(const QString& name, int row) {
  auto* const grid = Find<Grid>(name);
  MustBeUsable(grid);
  if (!grid) return;
  if (row < 1 || row >= grid->Rows()) {
    ADD_FAILURE() << name.toStdString() << " has no row " << row;
    return;
  }
  Activate(grid->window());
  int col = 1;
  while (grid->ColHidden(col)) ++col;
  const QModelIndex cell = grid->model()->index(row - 1, col);
  grid->scrollTo(cell);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->visualRect(cell).center());
}

void Desk::SelectRowOf(const QString& name, const QString& text, int col) {
  if (auto* const grid = Find<Grid>(name)) SelectRow(name, grid->FindRow(text, col));
}

void Desk::SortBy(const QString& name, int col) {
  auto* const grid = Find<Grid>(name);
  if (!grid) return;
  QHeaderView* const header = grid->horizontalHeader();
  QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(header->sectionViewportPosition(col) + header->sectionSize(col) / 2, header->height() / 2));
}

void Desk::Trigger(const QString& name) {
  QAction* const action = Find<QAction>(name);
  if (!action) return;
  if (!action->isEnabled()) ADD_FAILURE() << name.toStdString() << " is disabled";
  if (!action->isVisible()) ADD_FAILURE() << name.toStdString() << " is hidden";
  action->trigger();
}

QString Desk::Text(const QString& name) const {
  auto* const control = Find<QWidget>(name);
  if (auto* const line = qobject_cast<QLineEdit*>(control)) return line->text();
  if (auto* const memo = qobject_cast<MemoBox*>(control)) return memo->Text();
  if (auto* const combo = qobject_cast<CodeComboBox*>(control)) return combo->Text();
  if (auto* const label = qobject_cast<QLabel*>(control)) return label->text();
  if (auto* const button = qobject_cast<QAbstractButton*>(control)) return button->text();
  if (control) ADD_FAILURE() << name.toStdString() << " shows no text";
  return {};
}

QString Desk::Cell(const QString& name, int row, int col) const {
  auto* const grid = Find<Grid>(name);
  return grid ? grid->Text(row, col) : QString();
}

int Desk::Rows(const QString& name) const {
  auto* const grid = Find<Grid>(name);
  return grid ? grid->Rows() : 0;
}

int Desk::Row(const QString& name) const {
  auto* const grid = Find<Grid>(name);
  return grid ? grid->Row() : 0;
}

bool Desk::IsChecked(const QString& name) const {
  auto* const button = Find<QAbstractButton>(name);
  return button && button->isChecked();
}

bool Desk::IsEnabled(const QString& name) const {
  if (const auto* const action = Window()->findChild<QAction*>(name)) return action->isEnabled();
  auto* const control = Find<QWidget>(name);
  return control && control->isEnabled();
}

bool Desk::IsShown(const QString& name) const {
  if (const auto* const action = Window()->findChild<QAction*>(name)) return action->isVisible();
  auto* const control = Find<QWidget>(name);
  return control && control->isVisibleTo(Window());
}

QString Desk::Focus() const {
  const QWidget* const focus = Window()->focusWidget();
  return focus ? focus->objectName() : QString();
}

void Desk::Picture(const QString& name, QWidget* window) const {
  const QFileInfo picture(BuildFolder() + "/gallery/" + name + ".png");
  picture.dir().mkpath(".");
  QApplication::processEvents();
  EXPECT_TRUE((window ? window : Window())->grab().save(picture.filePath()));
}

// --- Watching ---

QStringList Desk::Statements() {
  return std::exchange(statements_, {});
}

QStringList Desk::Writing() {
  QStringList writing;
  for (const QString& statement : Statements())
    if (!statement.trimmed().startsWith("SELECT", Qt::CaseInsensitive)) writing.append(statement);
  return writing;
}

QStringList Desk::LogLines() const {
  return WideTextFile::ReadLines(QDir(folder_.filePath("Logs")).filePath("Tabulon.log"));
}

QString Desk::Ask(const QString& sql) {
  Recordset rows;
  rows.Open(database_->OtherClient(), sql);
  return rows.EOF_() ? QString() : rows.Fields(0).Value();
}

int Desk::Count(const QString& table, const QString& where) {
  return Ask("SELECT COUNT(*) FROM " + table + (where.isEmpty() ? QString() : " WHERE " + where)).toInt();
}

void Desk::Another(const QString& sql) {
  database_->OtherClient().Execute(sql);
}

void Desk::TakeAway(const QString& flag) {
  Another("UPDATE ID_USER_FUNCTION SET " + flag + " = NULL WHERE USER_ID = 'admin'");
}

bool Desk::DropConnection() {
  QString sessions, end;
  switch (TestDatabase::TestEngine()) {
    case Engine::Sqlite:
    case Engine::SqlServer:
      return false;
    case Engine::PostgreSql:
      sessions = "SELECT pid FROM pg_stat_activity WHERE datname = current_database() AND pid <> pg_backend_pid()";
      end = "SELECT pg_terminate_backend(%1)";
      break;
    case Engine::MariaDb:
      sessions = "SELECT ID FROM INFORMATION_SCHEMA.PROCESSLIST WHERE DB = DATABASE() AND ID <> CONNECTION_ID()";
      end = "KILL %1";
      break;
  }
  QStringList numbers;
  Recordset rows;
  for (rows.Open(Database().OtherClient(), sessions); !rows.EOF_(); rows.MoveNext())
    numbers.append(rows.Fields(0).Value());
  rows.Close();
  for (const QString& number : numbers) Another(end.arg(number));
  return !numbers.isEmpty();
}

bool Desk::LogHolds(const QString& text) const {
  return LogLines().join('\n').contains(text);
}
