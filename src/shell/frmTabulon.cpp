#include "shell/frmTabulon.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/ProcessEnd.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "shell/FirstField.h"
#include "shell/FitDisplay.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/UnsavedMarks.h"
#include "shell/WindowMemory.h"

namespace {
constexpr int AroundPages = 60;  // pixels that the window, its rows of tabs and a scroll bar take beside a page
}

void frmTabulon::SetTab(int index, TabRow row) {
  rows_.at(static_cast<size_t>(index)) = std::move(row);
}

int frmTabulon::Tab() const {
  return tab_;
}

void frmTabulon::SetTab(int index) {
  sstabtables_->setCurrentIndex(index);
}

void frmTabulon::TabChanged(int index) {
  const int previous = tab_;
  tab_ = index;
  if (!movingBack_) sstabtables_Click(previous);
}

bool frmTabulon::UpdateIsPossible() const {
  return update_.button->isVisibleTo(this) && update_.button->isEnabled();
}

void frmTabulon::sstabtables_Click(int previousTab) {
  Procedure procedure("frmTabulon.sstabtables_Click");
  gstrErrorMessage.clear();
  const bool unsaved = UpdateIsPossible() && gbRecordModified && gbTabGuardArmed;
  if (unsaved && mbGuardActed) {
    // The second leaving of a record whose update did not go through.
    mbGuardActed = false;
    gbTabGuardArmed = true;
    ReturnSilently(live_);
    return;
  }
  if (unsaved) {
    if (CloseButtonUpdate()) {
      // The page that was left stays the live one; the new tab comes up and is not set up.
      cmdUpdate_Click();
      gbTabGuardArmed = true;
      mbGuardActed = true;
      ShowPage();
      buttonState();
      return;
    }
    LivePage()->CurrentRecord().Settled();
    SetTab(previousTab);
    return;
  }
  gbTabGuardArmed = true;
  mbGuardActed = false;
  procedure.Step([this] { Enter(tab_); });
  if (LivePage() != nullptr) LivePage()->CurrentRecord().Settled();
  gbSkipGridEvents = false;
}

void frmTabulon::Enter(int index) {
  const auto at = static_cast<size_t>(index);
  live_ = index;
  if (!rows_[at].make) return EnableButtons("O");
  if (!pages_[at]) {
    pages_[at] = rows_[at].make(*this);
    FitDisplay::Narrow(*pages_[at], WindowMemory::RoomFor(*this).width() - AroundPages);
    Holder(index)->layout()->addWidget(pages_[at]);
    Form::ReadingOrder(this);
    LeadFromListsToFields(*pages_[at]);
    WatchRecords(*pages_[at]);
  }
  ShowPage();
  buttonState();
  rows_[at].entry(*pages_[at]);
}

void frmTabulon::WatchRecords(TabPage& page) {
  QList<TabPage*> pages = page.findChildren<TabPage*>();
  // The fields of a tab with sub-tabs are theirs.
  if (pages.isEmpty()) pages.append(&page);
  for (TabPage* each : pages) {
    new UnsavedMarks(*each, each->CurrentRecord());
    each->CurrentRecord().Observe([this] { ShowModified(); });
  }
}

// What is not stored is seen: Update is the button in the highlight colour, and the status bar says it.
void frmTabulon::ShowModified() {
  const bool modified = gbRecordModified;
  modified_->setText(modified ? "Modified" : QString());
  update_.button->setDefault(modified);
}

void frmTabulon::ReadAgain() {
  Procedure procedure("frmTabulon.ReadAgain");
  // As with a click on the tab: the field that is left is checked first.
  sstabtables_->tabBar()->setFocus(Qt::ShortcutFocusReason);
  if (focusWidget() != sstabtables_->tabBar() || !IsSetUp()) return;
  if (UpdateIsPossible() && gbRecordModified && CloseButtonUpdate()) {
    cmdUpdate_Click();
    if (gbRecordModified) return;
  }
  procedure.Step([this] { Enter(tab_); });
  if (LivePage() != nullptr) LivePage()->CurrentRecord().Settled();
  gbSkipGridEvents = false;
}

// Escape in a changed field gives back what the record holds.
void frmTabulon::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || event->modifiers() != Qt::NoModifier || focusWidget() == nullptr)
    return QMainWindow::keyPressEvent(event);
  for (UnsavedMarks* marks : findChildren<UnsavedMarks*>())
    if (marks->GiveBack(focusWidget())) return;
}

// A tab that was not set up shows nothing of what its page showed last, and says what to do.
void frmTabulon::ShowPage() {
  const auto at = static_cast<size_t>(tab_);
  QLabel*& line = notSetUp_[at];
  if (line == nullptr && !IsSetUp()) {
    line = new QLabel("Click the tab again to open it.");
    line->setObjectName("lblNotSetUp");
    line->setAlignment(Qt::AlignCenter);
    Holder(tab_)->layout()->addWidget(line);
  }
  if (line != nullptr) line->setVisible(!IsSetUp());
  // The layout would show it only when the event loop runs again, too late for the entry to set a focus.
  if (pages_[at]) pages_[at]->setVisible(IsSetUp());
}

void frmTabulon::ReturnSilently(int index) {
  movingBack_ = true;
  SetTab(index);
  movingBack_ = false;
  ShowPage();
  buttonState();
}

void frmTabulon::ConfigureGrdTable() {
  if (LivePage() != nullptr) LivePage()->ConfigureGrdTable();
}

void frmTabulon::LoadDataInGrid() {
  if (LivePage() != nullptr) LivePage()->LoadDataInGrid();
}

void frmTabulon::EnableButtons(const QString& mode) {
  const bool none = mode == "O";
  const auto show = [](const Command& command, bool shown) {
    command.button->setVisible(shown);
    command.entry->setVisible(shown);
  };
  show(add_, !none && mode != "U");
  show(update_, !none);
  show(delete_, !none && mode != "A" && mode != "U");
  show(clear_, !none);
}

void frmTabulon::ShowAdd(bool shown) {
  add_.button->setVisible(shown);
  add_.entry->setVisible(shown);
}

void frmTabulon::buttonState() {
  const ButtonCondition condition = LivePage() != nullptr ? LivePage()->Condition() : ButtonCondition();
  const auto enable = [&condition](const Command& command, bool right, bool sense) {
    command.button->setEnabled(right && sense);
    command.entry->setEnabled(right && (sense || condition.menuUntouched));
  };
  // On a tab that was not set up only Update has something to do: it means the record that waits.
  enable(add_, rights_.add && IsSetUp(), condition.add);
  enable(update_, rights_.update, condition.update);
  enable(delete_, rights_.remove && IsSetUp(), condition.remove);
  // Clear goes away when either of Update and Delete is missing.
  enable(clear_, rights_.update && rights_.remove && IsSetUp(), true);
  mnuOptions_->menuAction()->setEnabled(rights_.add || rights_.update || rights_.remove);
}

bool frmTabulon::CloseButtonUpdate() {
  if (!gbRecordModified) return false;
  return ShowMessage("A record has been modified.\nDo you wish to apply the updates before continuing?",
                     MessageStyle::Question, Caption(), {}, this) != MessageAnswer::No;
}

void frmTabulon::RunOperation(const QString& logName, std::function<bool(TabPage&)> TabRow::*operation) {
  const auto& run = rows_.at(static_cast<size_t>(live_)).*operation;
  TabPage* const page = LivePage();
  bool wentThrough = true;
  gstrErrorMessage.clear();
  if (run && page) wentThrough = Procedure(logName).Step([&] { wentThrough = run(*page); }) && wentThrough;
  // A refused or failed operation leaves the record modified, so that the user can correct and retry.
  if (wentThrough && page) page->CurrentRecord().Settled();
  gbSkipGridEvents = false;
}

void frmTabulon::cmdAdd_Click() {
  if (IsSetUp()) RunOperation("frmTabulon.cmdAdd_Click", &TabRow::add);
}
// The record that waits is the live page's, also while another tab is on screen that was not set up.
void frmTabulon::cmdUpdate_Click() {
  RunOperation("frmTabulon.cmdUpdate_Click", &TabRow::update);
}
void frmTabulon::cmdDelete_Click() {
  if (IsSetUp()) RunOperation("frmTabulon.cmdDelete_Click", &TabRow::remove);
}
void frmTabulon::cmdClear_Click() {
  if (IsSetUp()) RunOperation("frmTabulon.cmdClear_Click", &TabRow::clear);
}
void frmTabulon::cmdClose_Click() {
  close();
}

void frmTabulon::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!Form_Unload()) return;
  WindowMemory::Remember(*this);
  EndProcess();
}

bool frmTabulon::Form_Unload() {
  gstrErrorMessage.clear();
  if (!UpdateIsPossible() || !CloseButtonUpdate()) return true;
  cmdUpdate_Click();
  return false;
}
