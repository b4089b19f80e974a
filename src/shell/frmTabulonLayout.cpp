// The main screen's controls: tabs, the shared row of buttons, the menu that mirrors them, the status bar.
#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/ElidedLabel.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/GridPaper.h"
#include "platform/controls/TextBox.h"
#include "platform/desktop/UserSettings.h"
#include "shell/Help.h"
#include "shell/Icons.h"
#include "shell/ListTools.h"
#include "shell/Procedure.h"
#include "shell/RoundKeys.h"
#include "shell/Screens.h"
#include "shell/SiteStrip.h"
#include "shell/StatementsWindow.h"
#include "shell/TabKeys.h"
#include "shell/WindowMemory.h"
#include "shell/frmTabulon.h"

namespace {

constexpr int FindLetters = 32;  // of the field in the toolbar

// An action of the toolbar that looks as a button does and presses its entry.
class ToolOfButton : public QObject {
 public:
  ToolOfButton(QToolBar& bar, QPushButton* button, QAction* entry) : QObject(button), button_(button) {
    tool_ = bar.addAction(entry->icon(), entry->text(), entry, &QAction::trigger);
    button_->installEventFilter(this);
    Follow();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (type == QEvent::EnabledChange || type == QEvent::ShowToParent || type == QEvent::HideToParent) Follow();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Follow() {
    tool_->setEnabled(button_->isEnabled());
    tool_->setVisible(!button_->isHidden());
  }

  QPushButton* button_;
  QAction* tool_;
};

}  // namespace

frmTabulon::frmTabulon(QString commandLine, QWidget* parent)
    : QMainWindow(parent), commandLine_(std::move(commandLine)), sstabtables_(new QTabWidget) {
  setObjectName("frmTabulon");
  setWindowTitle("Ostana - System Maintenance");
  setWindowIcon(OwnIcon("tabulon"));
  BuildControls();
  BuildMenu();
  BuildStatusBar();
  resize(1180, 720);
  AppArguments arguments;
  ID_DecodeAppArguments(commandLine_, arguments);
  UserSettings::SetSite(arguments[1]);
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

QWidget* frmTabulon::Holder(int index) const {
  return static_cast<const QScrollArea*>(sstabtables_->widget(index))->widget();
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
    auto* const area = new QScrollArea;
    area->setWidget(holder);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    // The page's own ground, not that of a list.
    area->viewport()->setAutoFillBackground(false);
    holder->setAutoFillBackground(false);
    sstabtables_->addTab(area, QString());
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
  Form::OnPress(Form::MenuEntry(file, "mnuFileExit", "E&xit"), this, [this] { cmdClose_Click(); });

  mnuOptions_ = Form::Menu(this, "mnuOptions", "Opt&ions");
  // The entries call the operations themselves: a button that is off for the present page presses nothing.
  const auto entry = [this](const char* name, const char* caption, const char* logName, void (frmTabulon::*press)()) {
    QAction* const action = Form::MenuEntry(mnuOptions_, name, caption);
    Form::OnPress(action, this, [this, logName, press] {
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

  // The key is only told: it is a shortcut of every window.
  QMenu* const site = Form::Menu(this, "mnuSite", "&Site");
  HelpEntry(site, "mnuSiteChanges", "&Changes...", "frmChanges");
  connect(Form::MenuEntry(site, "mnuSiteStatements", "&Statements\tF12"), &QAction::triggered, this,
          [this] { StatementsWindow::Open(this); });
  StatementsWindow::OpenByF12(*this);
  QAction* const again = Form::MenuEntry(site, "mnuSiteReadAgain", "&Read Again");
  again->setShortcut(Qt::Key_F5);
  connect(again, &QAction::triggered, this, &frmTabulon::ReadAgain);
  new RoundKeys(*this);
  new TabKeys(*this, *sstabtables_);
  RoundKeys::Tell(*add_.entry, Qt::CTRL | Qt::SHIFT | Qt::Key_S);
  RoundKeys::Tell(*update_.entry, Qt::CTRL | Qt::Key_S);
  RoundKeys::Tell(*clear_.entry, Qt::CTRL | Qt::Key_N);

  QMenu* const help = Form::Menu(this, "mnuHelp", "&Help");
  Help::AddEntry(*help, *this, [this] { return GuidePage(); });
  HelpEntry(help, "mnuHelpAboutOstana", "&About Ostana", "frmAboutOstana");
  HelpEntry(help, "mnuHelpAboutTabulon", "About &Tabulon", "frmAboutApp");

  // A decoration: it repeats the buttons, and its presses go to the entries that have their handlers above.
  auto* const tlbButtons = addToolBar("Toolbar");
  tlbButtons->setObjectName("tlbButtons");
  tlbButtons->setMovable(false);
  tlbButtons->setFocusPolicy(Qt::NoFocus);
  tlbButtons->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  add_.entry->setIcon(OwnIcon("add"));
  update_.entry->setIcon(OwnIcon("update"));
  delete_.entry->setIcon(OwnIcon("delete"));
  clear_.entry->setIcon(OwnIcon("clear"));
  for (const Command& command : {add_, update_, delete_, clear_})
    new ToolOfButton(*tlbButtons, command.button, command.entry);
  auto* const gap = new QWidget;
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  tlbButtons->addWidget(gap);
  find_ = new TextBox(tlbButtons, "txtFind");
  find_->setPlaceholderText("Find in the list (Ctrl+F)");
  find_->setAccessibleName("Find in the list");
  find_->setClearButtonEnabled(true);
  find_->setMaximumWidth(Form::FieldWidth(find_, FindLetters));
  tlbButtons->addWidget(find_);
  // It keeps its place while it has nothing to offer.
  tlbButtons->setMinimumHeight(tlbButtons->sizeHint().height());
}

QAction* frmTabulon::HelpEntry(QMenu* menu, const QString& name, const QString& caption, FormName formName) {
  QAction* const action = Form::MenuEntry(menu, name, caption);
  connect(action, &QAction::triggered, this, [this, name, formName] {
    gstrErrorMessage.clear();
    Procedure("frmTabulon." + name + "_Click").Step([this, formName] { ShowModal(formName, this); });
  });
  return action;
}

void frmTabulon::BuildStatusBar() {
  status_ = new ElidedLabel;
  status_->setObjectName("lblStatus");
  auto* const rows = new QLabel;
  rows->setObjectName("lblRows");
  modified_ = new QLabel;
  modified_->setObjectName("lblModified");
  statusBar()->setContentsMargins(8, 0, 8, 0);
  statusBar()->addPermanentWidget(status_, 1);
  statusBar()->addPermanentWidget(modified_);
  statusBar()->addPermanentWidget(rows);
  new ListTools(*this, *find_, *rows);
}

// Under the menu; nothing where the settings name no site.
void frmTabulon::ShowSite() {
  if (findChild<SiteStrip*>() != nullptr || !SiteStrip::IsSet()) return;
  auto* const tlbButtons = findChild<QToolBar*>("tlbButtons");
  auto* const bar = new QToolBar("Site", this);
  bar->setObjectName("tlbSite");
  bar->setMovable(false);
  auto* const strip = new SiteStrip(bar);
  strip->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(strip);
  insertToolBar(tlbButtons, bar);
  insertToolBarBreak(tlbButtons);
}

// What stands at the foot of what is printed.
QString frmTabulon::PaperOrigin() {
  const QString site = gclsOF->SiteName().isEmpty() ? gclsOF->InstitutionName() : gclsOF->SiteName();
  QStringList parts = {QApplication::applicationName(), site, gclsOF->UserId(),
                       Clock::Now().toString("yyyy-MM-dd hh:mm")};
  parts.removeAll(QString());
  return parts.join(" - ");
}

void frmTabulon::ShowStatus() {
  ShowSite();
  GridPaper::SetOrigin(&frmTabulon::PaperOrigin);
  QStringList rights;
  if (rights_.add) rights.append("Add");
  if (rights_.update) rights.append("Update");
  if (rights_.remove) rights.append("Delete");
  const bool open = !Procedure::Try([] { gclsOF->Connection(); });
  const QString database = open ? gclsOF->Connection().Settings().name : QString();
  status_->setToolTip("Link to the database: " + (open ? gclsOF->Connection().LinkDescription() : QString("not open")));
  const QString language = gclsOF->LanguageSuffix().isEmpty() ? QString("default") : gclsOF->LanguageSuffix().mid(1);
  status_->setText(QString("User: %1     Language: %2     Rights: %3     Database: %4     Site: %5")
                       .arg(gclsOF->UserId(), language, rights.isEmpty() ? "none" : rights.join(", "), database,
                            gclsOF->ApplicationPath()));
}
