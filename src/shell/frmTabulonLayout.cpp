// The main screen's controls: tabs, the shared row of buttons, the menu that mirrors them, the status bar.
#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/FormLayout.h"
#include "shell/Help.h"
#include "shell/Icons.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"
#include "shell/WindowMemory.h"
#include "shell/frmTabulon.h"

frmTabulon::frmTabulon(QString commandLine, QWidget* parent)
    : QMainWindow(parent), commandLine_(std::move(commandLine)), sstabtables_(new QTabWidget) {
  setObjectName("frmTabulon");
  setWindowTitle("Ostana - System Maintenance");
  setWindowIcon(OwnIcon("tabulon"));
  BuildControls();
  BuildMenu();
  BuildStatusBar();
  resize(1180, 720);
  WindowMemory::Restore(*this);
  Help::OpenByF1(*this, [this] { return GuidePage(); });
  connect(sstabtables_, &QTabWidget::currentChanged, this, &frmTabulon::TabChanged);
  connect(sstabtables_->tabBar(), &QTabBar::tabBarClicked, this, [this](int index) {
    // The bar is told of the press before it has handled it.
    if (index == tab_ && !IsSetUp())
      QMetaObject::invokeMethod(
          this, [this] { sstabtables_Click(live_); }, Qt::QueuedConnection);
  });
  gLiveRecord = [this]() -> const Record* { return LivePage() != nullptr ? &LivePage()->CurrentRecord() : nullptr; };
}

frmTabulon::~frmTabulon() {
  gLiveRecord = nullptr;
}

// A tab that holds tabs has a page for each of them. A tab that was never set up is told of on the window's own page.
QString frmTabulon::GuidePage() const {
  const TabPage* const page = Page(Tab());
  if (page == nullptr) return objectName();
  const QString name = Help::TabPageName(objectName(), sstabtables_->tabText(Tab()));
  const auto* const inner = page->findChild<QTabWidget*>();
  return inner == nullptr ? name : name + '-' + QString::number(inner->currentIndex());
}

void frmTabulon::BuildControls() {
  auto* const central = new QWidget;
  setCentralWidget(central);
  sstabtables_->setObjectName("sstabtables");
  sstabtables_->setUsesScrollButtons(true);
  for (int index = 0; index < TabCount; ++index) {
    auto* const holder = new QWidget;
    holder->setObjectName(QString("sstabtables(%1)").arg(index));
    auto* const room = new QVBoxLayout(holder);
    room->setContentsMargins(0, 0, 0, 0);
    sstabtables_->addTab(holder, QString());
  }
  add_.button = Form::Button(central, "cmdAdd", "&Add");
  update_.button = Form::Button(central, "cmdUpdate", "&Update");
  delete_.button = Form::Button(central, "cmdDelete", "&Delete");
  clear_.button = Form::Button(central, "cmdClear", "Clea&r");
  cmdClose_ = Form::Button(central, "cmdClose", "&Close");
  auto* const column = new QVBoxLayout(central);
  column->addWidget(sstabtables_, 1);
  column->addLayout(Form::ButtonRow({nullptr, add_.button, update_.button, delete_.button, clear_.button, cmdClose_}));

  connect(add_.button, &QPushButton::clicked, this, &frmTabulon::cmdAdd_Click);
  connect(update_.button, &QPushButton::clicked, this, &frmTabulon::cmdUpdate_Click);
  connect(delete_.button, &QPushButton::clicked, this, &frmTabulon::cmdDelete_Click);
  connect(clear_.button, &QPushButton::clicked, this, &frmTabulon::cmdClear_Click);
  connect(cmdClose_, &QPushButton::clicked, this, &frmTabulon::cmdClose_Click);
}

void frmTabulon::BuildMenu() {
  QMenu* const file = Form::Menu(this, "mnuFile", "Fi&le");
  connect(Form::MenuEntry(file, "mnuFileExit", "E&xit"), &QAction::triggered, this, &frmTabulon::cmdClose_Click);

  mnuOptions_ = Form::Menu(this, "mnuOptions", "Opt&ions");
  // The entries call the operations themselves: a button that is off for the present page presses nothing.
  const auto entry = [this](const char* name, const char* caption, const char* logName, void (frmTabulon::*press)()) {
    QAction* const action = Form::MenuEntry(mnuOptions_, name, caption);
    connect(action, &QAction::triggered, this, [this, logName, press] {
      gstrErrorMessage.clear();
      Procedure(logName).Step([this, press] { (this->*press)(); });
    });
    return action;
  };
  add_.entry = entry("mnuOptionsAdd", "&Add", "frmTabulon.mnuOptionsAdd_Click", &frmTabulon::cmdAdd_Click);
  update_.entry =
      entry("mnuOptionsUpdate", "&Update", "frmTabulon.mnuOptionsUpdate_Click", &frmTabulon::cmdUpdate_Click);
  delete_.entry =
      entry("mnuOptionsDelete", "&Delete", "frmTabulon.mnuOptionsDelete_Click", &frmTabulon::cmdDelete_Click);
  // The log name of Clear is that of another procedure; the log readers know it so.
  clear_.entry = entry("mnuOptionsClear", "Clea&r", "cmb4Tables_Click", &frmTabulon::cmdClear_Click);

  QMenu* const help = Form::Menu(this, "mnuHelp", "&Help");
  Help::AddEntry(*help, *this, [this] { return GuidePage(); });
  HelpEntry(help, "mnuHelpAboutOstana", "&About Ostana", "frmAboutOstana");
  HelpEntry(help, "mnuHelpAboutTabulon", "About &Tabulon", "frmAboutApp");

  // A decoration without actions of its own: it repeats the entries that have their handlers above.
  auto* const tlbButtons = addToolBar("Toolbar");
  tlbButtons->setObjectName("tlbButtons");
  tlbButtons->setMovable(false);
  tlbButtons->setFocusPolicy(Qt::NoFocus);
  tlbButtons->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  add_.entry->setIcon(OwnIcon("add"));
  update_.entry->setIcon(OwnIcon("update"));
  delete_.entry->setIcon(OwnIcon("delete"));
  clear_.entry->setIcon(OwnIcon("clear"));
  tlbButtons->addActions({add_.entry, update_.entry, delete_.entry, clear_.entry});
}

QAction* frmTabulon::HelpEntry(QMenu* menu, const QString& name, const QString& caption, const QString& formName) {
  QAction* const action = Form::MenuEntry(menu, name, caption);
  connect(action, &QAction::triggered, this, [this, name, formName] {
    gstrErrorMessage.clear();
    Procedure("frmTabulon." + name + "_Click").Step([this, formName] { ShowModal(formName, this); });
  });
  return action;
}

void frmTabulon::BuildStatusBar() {
  status_ = new QLabel;
  status_->setObjectName("lblStatus");
  statusBar()->addPermanentWidget(status_, 1);
}

void frmTabulon::ShowStatus() {
  QStringList rights;
  if (rights_.add) rights.append("Add");
  if (rights_.update) rights.append("Update");
  if (rights_.remove) rights.append("Delete");
  const bool open = !Procedure::Try([] { gclsOF->Connection(); });
  const QString database = open ? gclsOF->Connection().Settings().name : QString();
  status_->setToolTip("Link to the database: " + (open ? gclsOF->Connection().LinkDescription() : QString("not open")));
  const QString language = gclsOF->LanguageSuffix().isEmpty() ? QString("default") : gclsOF->LanguageSuffix().mid(1);
  status_->setText(QString("User: %1     Database: %2     Language: %3     Rights: %4     Site: %5")
                       .arg(gclsOF->UserId(), database, language, rights.isEmpty() ? "none" : rights.join(", "),
                            gclsOF->ApplicationPath()));
}
