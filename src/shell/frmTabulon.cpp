#include "shell/frmTabulon.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/ProcessEnd.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/WindowMemory.h"

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
    ReturnSilently(recordTab_);
    return;
  }
  if (unsaved) {
    if (CloseButtonUpdate()) {
      // The tab that was left owns the record until it is stored; the new one stays on screen and is not set up.
      cmdUpdate_Click();
      if (!gbRecordModified) recordTab_ = tab_;
      gbTabGuardArmed = true;
      mbGuardActed = true;
      return;
    }
    gbRecordModified = false;
    SetTab(previousTab);
    return;
  }
  gbTabGuardArmed = true;
  mbGuardActed = false;
  procedure.Step([this] { Enter(tab_); });
  gbRecordModified = false;
  gbSkipGridEvents = false;
}

void frmTabulon::Enter(int index) {
  const auto at = static_cast<size_t>(index);
  recordTab_ = index;
  if (!rows_[at].make) return EnableButtons("O");
  if (!pages_[at]) {
    pages_[at] = rows_[at].make(*this);
    sstabtables_->widget(index)->layout()->addWidget(pages_[at]);
    // The layout would show it only when the event loop runs again, too late for the entry to set a focus.
    pages_[at]->show();
    Form::ReadingOrder(this);
  }
  buttonState();
  rows_[at].entry(*pages_[at]);
}

void frmTabulon::ReturnSilently(int index) {
  movingBack_ = true;
  SetTab(index);
  movingBack_ = false;
}

void frmTabulon::ConfigureGrdTable() {
  Procedure procedure("frmTabulon.ConfigureGrdTable", this);
  TabPage* const page = Page(recordTab_);
  if (page) procedure.Run([page] { page->ConfigureGrid(); });
}

void frmTabulon::LoadDataInGrid() {
  Procedure procedure("frmTabulon.LoadDataInGrid", this);
  const Hourglass hourglass;
  TabPage* const page = Page(recordTab_);
  if (page) procedure.Run([page] { page->LoadGrid(); });
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
  const TabPage* const page = Page(recordTab_);
  const ButtonCondition condition = page ? page->Condition() : ButtonCondition();
  const bool canAdd = gclsOF->CanAdd(), canUpdate = gclsOF->CanUpdate(), canDelete = gclsOF->CanDelete();
  const auto enable = [&condition](const Command& command, bool right, bool sense) {
    command.button->setEnabled(right && sense);
    command.entry->setEnabled(right && (sense || condition.menuUntouched));
  };
  enable(add_, canAdd, condition.add);
  enable(update_, canUpdate, condition.update);
  enable(delete_, canDelete, condition.remove);
  // Clear goes away when either of Update and Delete is missing.
  enable(clear_, canUpdate && canDelete, true);
  mnuOptions_->menuAction()->setEnabled(canAdd || canUpdate || canDelete);
}

bool frmTabulon::CloseButtonUpdate() {
  if (!gbRecordModified) return false;
  return ShowMessage("A record has been modified.\nDo you wish to apply the updates before continuing?",
                     MessageStyle::Question, Caption(), {}, this) != MessageAnswer::No;
}

void frmTabulon::RunOperation(const QString& logName, int tab, std::function<bool(TabPage&)> TabRow::*operation) {
  const auto& run = rows_.at(static_cast<size_t>(tab)).*operation;
  TabPage* const page = Page(tab);
  bool wentThrough = true;
  gstrErrorMessage.clear();
  if (run && page) wentThrough = Procedure(logName).Step([&] { wentThrough = run(*page); }) && wentThrough;
  // A refused or failed operation leaves the record modified, so that the user can correct and retry; so does one of a
  // tab that was not set up, which has no record.
  if (wentThrough && tab == recordTab_) gbRecordModified = false;
  gbSkipGridEvents = false;
}

void frmTabulon::cmdAdd_Click() {
  RunOperation("frmTabulon.cmdAdd_Click", Tab(), &TabRow::add);
}
// The record that waits is the owner's, also while another tab is on screen that was not set up.
void frmTabulon::cmdUpdate_Click() {
  RunOperation("frmTabulon.cmdUpdate_Click", recordTab_, &TabRow::update);
}
void frmTabulon::cmdDelete_Click() {
  RunOperation("frmTabulon.cmdDelete_Click", Tab(), &TabRow::remove);
}
void frmTabulon::cmdClear_Click() {
  RunOperation("frmTabulon.cmdClear_Click", Tab(), &TabRow::clear);
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
