#pragma once

#include <QMainWindow>
#include <array>
#include <functional>
#include <memory>
#include <type_traits>

#include "core/CommandLine.h"
#include "core/UserRights.h"
#include "shell/Screen.h"
#include "shell/TabPage.h"

class FormName;
class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QTabWidget;
class ListTools;
class TextBox;
class Procedure;

// One row of the shell's table of tabs. An empty operation is a button that does nothing there. Operations answer
// True when they went through; a refused or failed one leaves the record modified, so that the user can correct.
struct TabRow {
  std::function<TabPage*(frmTabulon&)> make;  // builds the page when the tab is first entered
  std::function<void(TabPage&)> entry;
  std::function<bool(TabPage&)> add;
  std::function<bool(TabPage&)> update;
  std::function<bool(TabPage&)> remove;
  std::function<bool(TabPage&)> clear;
};

// The row of a page class: entry, Add, Update, Delete, Clear; nullptr where the button does nothing.
template <class Page>
TabRow MakeTab(void (Page::*entry)(), std::type_identity_t<bool (Page::*)()> add,
               std::type_identity_t<bool (Page::*)()> update, std::type_identity_t<bool (Page::*)()> remove,
               std::type_identity_t<bool (Page::*)()> clear) {
  const auto bind = [](bool (Page::*operation)()) -> std::function<bool(TabPage&)> {
    if (!operation) return {};
    return [operation](TabPage& page) { return (static_cast<Page&>(page).*operation)(); };
  };
  return {[](frmTabulon& shell) { return static_cast<TabPage*>(new Page(shell)); },
          [entry](TabPage& page) { (static_cast<Page&>(page).*entry)(); },
          bind(add),
          bind(update),
          bind(remove),
          bind(clear)};
}

// The main screen: twelve tabs, one row of buttons for all of them, the menu that mirrors the buttons, the guard
// against losing a changed record, start-up and closing. It knows no tab; the table of tabs is filled from outside.
class frmTabulon : public QMainWindow, public ActivatedForm {
  Q_OBJECT

 public:
  static constexpr int TabCount = 12;
  enum TabIndex {
    CodeTablesTab,
    CoverPagesTab,
    DepartmentsTab,
    PrintersTab,
    AutoRejectsTab,
    DeliveryTab,
    LoansTab,
    InvoicingTab,
    ExceptionsTab,
    RequestTypeTab,
    AuditTab,
    MiscellaneousTab
  };

  // `commandLine`: the quoted arguments as the launcher gives them.
  explicit frmTabulon(QString commandLine, QWidget* parent = nullptr);
  ~frmTabulon() override;

  void SetTab(int index, TabRow row);

  // Start-up: everything up to the first tab. Names are those of the log.
  void Form_Initialize();
  void Form_Load();
  void Form_Activate() override;

  int Tab() const;
  // Sets the tab by code; raises sstabtables_Click like a user's click.
  void SetTab(int index);
  TabPage* Page(int index) const { return pages_.at(static_cast<size_t>(index)); }
  // The page that is set up: it owns the record. Null before the first one.
  TabPage* LivePage() const { return Page(live_); }

  // Of the page that is set up.
  void ConfigureGrdTable();
  void LoadDataInGrid();
  // Mode letter: which buttons show.
  void EnableButtons(const QString& mode);
  // Enables buttons and menu entries: the user's right and the page's condition.
  void buttonState();
  // Shows the button and its menu entry whatever the mode letter says.
  void ShowAdd(bool shown);
  bool CloseButtonUpdate();
  // User, database, working language and rights in the status bar.
  void ShowStatus();
  // Reads the tab on screen again, with the guard.
  void ReadAgain();

  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  void cmdClose_Click();

  QString Caption() const { return windowTitle(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Command {
    QPushButton* button = nullptr;
    QAction* entry = nullptr;
  };

  void BuildControls();
  void BuildMenu();
  void BuildStatusBar();
  QString GuidePage() const;
  void ShowSite();
  static QString PaperOrigin();
  QAction* HelpEntry(QMenu* menu, const QString& name, const QString& caption, FormName formName);

  // The stages of Form_Load. False: the process is ending.
  bool LoadSettings();
  bool Logon(Procedure& procedure);
  bool RefuseSecondCopy();
  void NameTabs();
  void FinishLoad();

  // Where the page of a tab stands; it scrolls where the window is too small for the page.
  QWidget* Holder(int index) const;
  void TabChanged(int index);
  void ShowPage();
  void WatchRecords(TabPage& page);
  void ShowModified();
  bool IsSetUp() const { return tab_ == live_; }
  void sstabtables_Click(int previousTab);
  void Enter(int index);
  void ReturnSilently(int index);
  void RunOperation(const QString& logName, std::function<bool(TabPage&)> TabRow::*operation);
  bool UpdateIsPossible() const;
  bool Form_Unload();

  QString commandLine_;
  FunctionRights rights_;
  AppArguments arguments_;
  std::array<TabRow, TabCount> rows_;
  std::array<TabPage*, TabCount> pages_{};
  std::array<QLabel*, TabCount> notSetUp_{};  // on show instead of a page that was not set up; made when first needed
  QTabWidget* sstabtables_;
  Command add_, update_, delete_, clear_;
  QPushButton* cmdClose_ = nullptr;
  QMenu* mnuOptions_ = nullptr;
  QLabel* status_ = nullptr;
  std::unique_ptr<ListTools> listTools_;  // goes before the controls that it looks at
  QLabel* modified_ = nullptr;
  TextBox* find_ = nullptr;
  int tab_ = 0;               // the tab on screen
  int live_ = 0;              // the tab set up last; another one on screen came up behind a record that waited
  bool mbFormLoaded = false;  // Form_Load has gone all the way through
  bool mbGuardActed = false;  // the answer was Yes: the next leaving of an unsaved record returns in silence
  bool movingBack_ = false;
};
