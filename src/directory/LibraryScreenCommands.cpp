// Commands of a library screen: search, the siblings, requests, close.
#include <QLineEdit>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryScreen.h"
#include "directory/LibrarySearch.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"

// --- The symbol ---

// A typed symbol is no record until it is searched. It is no change of the record either.
void LibraryScreen::txtLibrarySymbol_Change() {
  SetDisplayed(false);
}

void LibraryScreen::cmbLibrarySymbol_Change() {
  QLineEdit* const edit = cmbLibrarySymbol->lineEdit();
  const int limit = txtLibrarySymbol->maxLength();
  if (edit->text().size() > limit) {
    edit->setText(edit->text().left(limit));
    Prompts().Beep();
    edit->setCursorPosition(limit);
  }
  txtLibrarySymbol->SetText(edit->text());
  txtLibrarySymbol_Change();
}

void LibraryScreen::cmbLibrarySymbol_Click() {
  Run("cmbLibrarySymbol_Click", [this] {
    if (cmbLibrarySymbol->Index() >= 0) Read(cmbLibrarySymbol->Code().toInt());
  });
}

void LibraryScreen::cmdSearch_Click() {
  Run("cmdSearch_Click", [this] {
    if (!GuardPassed(facts_.guard.search)) return;
    SearchFrom(txtLibrarySymbol, [this](const QString& text, qint32& id, qint32& count) {
      return SearchLibrarySymbol(displayed_ && HasRecord(), library_.symbol, text, id, count);
    });
  });
}

void LibraryScreen::SearchFrom(TextBox* box,
                               const std::function<bool(const QString& text, qint32& id, qint32& count)>& lookUp) {
  const auto focus = [this, box] { box == txtLibrarySymbol ? FocusSymbol() : box->SelectAllAndFocus(); };
  QString text;
  {
    const Record::Filling filling(record_);
    text = box->TrimInPlace();
  }
  if (text == "%") {
    Tell(this, "Search string too broad. Please enter a valid search criteria.", MessageStyle::Stop);
    return focus();
  }
  qint32 id = 0, count = 0;
  if (!lookUp(text, id, count)) return;
  if (id == -1) return FocusSymbol();  // the record on show is meant
  // The pattern of another symbol is none of the library's.
  if (id < 1 && count > 1) return ShowMatches(box == txtLibrarySymbol ? text : QString());
  if (id >= 1 || count == 1) {
    Display("TextBox");
    return ReadOrClear(id >= 1 ? id : gLibraryMatches.front().LibraryID);
  }
  ClearScreen();
  {
    const Record::Filling filling(record_);
    box->SetText(text);
  }
  focus();
  Tell(this, "Record not found.", MessageStyle::Information);
}

void LibraryScreen::ShowMatches(const QString& text) {
  cmbLibrarySymbol->Clear();
  for (const LibraryMatch& match : gLibraryMatches)
    cmbLibrarySymbol->Add(match.LibrarySymbol, QString::number(match.LibraryID));
  cmbLibrarySymbol->lineEdit()->setText(text);
  txtFound->SetText(QString::number(gLibraryMatches.size()));
  Display("ComboBox");
}

void LibraryScreen::cmdAdvanced_Click() {
  Run("cmdAdvanced_Click", [this] {
    if (!GuardPassed(facts_.guard.search)) return;
    const qint32 inHand = gclsOF->LibraryId();
    ::ShowModal("frmLibrarySearch", this);
    const qint32 chosen = gclsOF->LibraryId();
    // The library in hand stays there until the one that was chosen has been read.
    gclsOF->SetLibraryId(inHand);
    if (chosen < 1) {
      SetDisplayed(false);
    } else {
      Display("TextBox");
      if (Read(chosen) == ReadResult::Found) txtLibrarySymbol->SelectAllAndFocus();
    }
    record_.Settled();
  });
}

void LibraryScreen::cmdClear_Click() {
  Run("cmdClear_Click", [this] {
    if (GuardPassed(facts_.guard.clear)) ClearScreen();
  });
}

// --- Leaving ---

void LibraryScreen::Sibling_Click(LibrarySibling target) {
  const LibrarySiblingDoor& door = DoorTo(target);
  Procedure(LogName(door.button + "_Click"), this)
      .OnFailure(Texts::NotifySupport)
      .Finally([&door] {
        if (gclsOF->Tracing() && !door.failureLine.isEmpty()) gclsOF->WriteLog(door.failureLine, {}, "L");
      })
      .Run([&] {
        if (GuardPassed(facts_.guard.siblingButton)) HandOver(target);
      });
}

void LibraryScreen::HandOver(LibrarySibling target) {
  const HandOverTrace& trace = facts_.toStatistics;
  const bool traced = target == LibrarySibling::Statistics && trace.Wanted() && gclsOF->Tracing();
  const auto write = [traced](const QString& line) {
    if (traced) gclsOF->WriteLog(line, {}, "L");
  };
  gbVetoUnload = false;
  write(trace.beforeUnload);
  Unload();
  write(trace.afterUnload);
  if (gbVetoUnload) return;
  write(trace.beforeShow);
  std::function<void()> afterwards;
  if (traced) afterwards = [line = trace.afterShow] { gclsOF->WriteLog(line, {}, "L"); };
  ShowNext(DoorTo(target).formName, afterwards);
}

void LibraryScreen::UnloadAndShow(FormName formName, std::function<void()> afterwards) {
  if (Unload()) ShowNext(formName, std::move(afterwards));
}

bool LibraryScreen::RecordIsOnShow(const QString& title) {
  if (gclsOF->LibraryId() >= 1) return true;
  ShowMessage("A record must be displayed before placing a request.", MessageStyle::Stop, title, {}, this);
  return false;
}

void LibraryScreen::Request_Click(const QString& button, FormName formName) {
  Run(button + "_Click", [&] {
    const bool recordFirst = facts_.requestOrder == RequestOrder::RecordThenGuard;
    if (recordFirst && !RecordIsOnShow(Caption())) return;
    if (!GuardPassed(facts_.guard.request)) return;
    if (!recordFirst && !RecordIsOnShow("Ostana - Book/Article")) return;
    if (!gbLibraryActive) {
      Tell(this, "This library is currently inactive.  Requests may only be placed for active libraries.",
           MessageStyle::Stop);
      return;
    }
    ::ShowModal(formName, this);
    if (gclsOF->CallingFunction() == "Receive FTP" && gbCloseAfterRequest) Unload();
  });
}

void LibraryScreen::cmdClose_Click() {
  // Callers that get their own rights back, and the form that they are shown again as.
  static const QMap<QString, std::optional<FormName>> callers = {
      {"Patron Registration", FormName("frmPatronRegistration")},
      {"Query Requests", FormName("frmQueryRequests")},
      {"User Maintenance", std::nullopt}};
  Run("cmdClose_Click", [this] {
    if (!GuardPassed(facts_.guard.close)) return;
    const QString caller = gclsOF->CallingFunction();
    const auto back = callers.constFind(caller);
    if (back == callers.constEnd()) {
      Unload();
    } else if (!gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), caller)) {
      Tell(this, gclsOF->LastError(), MessageStyle::Stop);
    } else if (*back) {
      UnloadAndShow(**back);
    } else {
      Unload();
    }
  });
}
