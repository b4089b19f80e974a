// Life of a library screen: loading, reading a record, emptying, rights, the guard of changed fields.
#include "directory/LibraryScreen.h"

#include <QLineEdit>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "directory/ColumnValues.h"
#include "directory/LibraryTextKeys.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

// --- Frames ---

QString LibraryScreen::LogName(const QString& handler) const {
  return facts_.logNames.value(handler, objectName() + "." + handler);
}

bool LibraryScreen::Run(const QString& handler, const std::function<void()>& body) {
  return Procedure(LogName(handler), this).OnFailure(Texts::NotifySupport).Run(body);
}

bool LibraryScreen::RunUpdate(const QString& handler, const QString& closingText, const std::function<void()>& body) {
  gclsOF->SetLastSQL({});
  return Procedure(LogName(handler), this)
      .OnFailure(closingText)
      .Finally([] {
        if (!gclsOF->LastSQL().isEmpty()) gclsOF->WriteLog(gclsOF->LastSQL(), {}, "S");
      })
      .Run(body);
}

qint64 LibraryScreen::ExecuteUpdate(const QString& sql, const QString& failureLine, bool inTransaction) {
  gclsOF->SetLastSQL(sql);
  const qint64 affected = inTransaction ? ExecuteInTransaction(sql, failureLine) : Execute(sql, failureLine);
  gclsOF->SetLastSQL({});
  return affected;
}

int LibraryScreen::Tell(const QString& text, int style, const QString& title) {
  return ShowMessage(text, style, title.isEmpty() ? Caption() : title, {}, this);
}

bool LibraryScreen::Refuse(const QString& text, QWidget* box) {
  Tell(text, MessageStyle::Stop);
  if (box == txtLibrarySymbol) {
    FocusSymbol();
  } else if (auto* const field = qobject_cast<TextBox*>(box)) {
    field->SelectAllAndFocus();
  } else {
    box->setFocus(Qt::OtherFocusReason);
  }
  return false;
}

// --- Loading ---

void LibraryScreen::Form_Load() {
  const Hourglass hourglass;
  Run("Form_Load", [this] {
    {
      const FillingFields filling;
      LoadSettings();
      PutBuiltInTips(*this, TextKeys());
      if (!gclsOF->CustomConfigFile().isEmpty()) LoadText();
      // A list that cannot be filled is told and leaves the rest of the screen usable.
      Procedure(LogName("PopulateComboBoxes"), this)
          .OnFailure("An error has occurred loading the drop down lists.  Please Notify Support.")
          .Run([this] { PopulateComboBoxes(); });
    }
    ApplyCaller();
    ReadAtLoad();
    ApplyRights();
    mbRecordModified = false;
  });
}

void LibraryScreen::LoadText() {
  std::vector<TextKey> keys = CommonTextKeys(self_);
  const std::span<const TextKey> own = TextKeys();
  keys.insert(keys.end(), own.begin(), own.end());
  LoadCustomText(*this, {facts_.textProcedure, facts_.textSection, MissingCustomText}, keys,
                 [this](const CustomText& texts) { ReadFurtherText(texts); });
}

// Applications that only maintain the directory place no requests.
void LibraryScreen::ApplyCaller() {
  const bool requests = !facts_.noRequestsFor.contains(gclsOF->CallingFunction());
  ShowButton(cmdArticle, requests);
  ShowButton(cmdBook, requests);
  mnuRequest->menuAction()->setVisible(requests);
}

void LibraryScreen::ReadAtLoad() {
  EnableRecord(false);
  mbRecordDisplayed = false;
  {
    const FillingFields filling;
    ShowNoRecord();
  }
  if (gclsOF->LibraryId() >= 1) Read(gclsOF->LibraryId());
}

void LibraryScreen::ApplyRights() {
  ShowButton(cmdUpdate, gclsOF->CanUpdate());
}

// Another session of the library screens may have run over this one.
void LibraryScreen::Form_Activate() {
  if (mbRecordDisplayed) gbLibraryActive = RecordIsActive();
}

// --- The record ---

LibraryScreen::ReadResult LibraryScreen::Read(qint32 libraryId) {
  ReadResult result = ReadResult::Failed;
  bool replaced = false;
  const bool read = Run(facts_.readProcedure, [&] {
    const Hourglass hourglass;
    Recordset rows;
    OpenRows(rows,
             "SELECT   LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT" + Columns() + " FROM " +
                 Sql::Table("ID_LIBRARY") + " WHERE    LIBRARY_ID = " + Sql::Number(libraryId),
             LibrarySelectFailed);
    if (rows.EOF_()) {
      EnableRecord(false);
      result = ReadResult::NoRow;
      return;
    }
    replaced = true;
    const FillingFields filling;
    gclsOF->SetLibraryId(libraryId);
    FillBanner(rows);
    ShowRecord(rows);
    mbRecordModified = false;
    mbRecordDisplayed = true;
    EnableRecord(true);
    result = ReadResult::Found;
  });
  if (!read && replaced) {
    // Half a record is on the screen; it must not be saved over the whole one.
    mbRecordModified = false;
    mbRecordDisplayed = false;
    EnableRecord(false);
  }
  return result;
}

void LibraryScreen::FillBanner(const Recordset& rows) {
  mstrDisplayedSymbol = Value(rows, "LIBRARY_SYMBOL");
  mstrEnteredSymbol = mstrDisplayedSymbol;
  txtLibrarySymbol->SetText(mstrDisplayedSymbol);
  txtInstitution->SetText(Value(rows, "INSTITUTION_NAME"));
  txtLibraryName->SetText(Value(rows, "LIBRARY"));
  txtContact->SetText(Value(rows, "CONTACT"));
  ShowActiveLetter(Value(rows, "LIBRARY_ACTIVE"));
}

void LibraryScreen::ShowActiveLetter(const QString& letter) {
  mstrActiveLetter = letter;
  gbLibraryActive = letter != "N";
  lblLibraryInactiveMessage->setVisible(letter == "N");
  lblLibraryPendingMessage->setVisible(letter == "P");
}

void LibraryScreen::ReadOrClear(qint32 libraryId) {
  if (Read(libraryId) == ReadResult::NoRow) ClearScreen();
}

void LibraryScreen::ClearScreen() {
  {
    const FillingFields filling;
    for (TextBox* box : {txtLibrarySymbol, txtInstitution, txtLibraryName, txtContact}) box->clear();
    ClearFields();
    cmbLibrarySymbol->Clear();
    cmbLibrarySymbol->lineEdit()->clear();
  }
  gclsOF->SetLibraryId(0);
  lblLibraryInactiveMessage->hide();
  lblLibraryPendingMessage->hide();
  mbRecordModified = false;
  mbRecordDisplayed = false;
  mstrDisplayedSymbol.clear();
  mstrEnteredSymbol.clear();
  EnableRecord(false);
  Display("TextBox");
}

void LibraryScreen::EnableRecord(bool enabled) {
  for (QPushButton* button : {cmdUpdate, cmdArticle, cmdBook}) Enable(button, enabled);
}

void LibraryScreen::Display(const QString& what) {
  const bool list = what == "ComboBox";
  // The one that comes is shown before the other goes, so that the focus does not wander off to a button.
  (list ? static_cast<QWidget*>(cmbLibrarySymbol) : txtLibrarySymbol)->show();
  lblFound->setVisible(list);
  txtFound->setVisible(list);
  FocusSymbol();
  if (list) {
    txtLibrarySymbol->hide();
  } else {
    cmbLibrarySymbol->hide();
    cmbLibrarySymbol->Clear();
    cmbLibrarySymbol->lineEdit()->clear();
  }
}

void LibraryScreen::FocusSymbol() {
  if (cmbLibrarySymbol->isHidden() || lblFound->isHidden())
    txtLibrarySymbol->setFocus(Qt::OtherFocusReason);
  else
    cmbLibrarySymbol->setFocus(Qt::OtherFocusReason);
}

// --- Changed fields ---

void LibraryScreen::MarkModified() {
  if (!gbFillingFields) mbRecordModified = true;
}

bool LibraryScreen::GuardPassed(const QString& firstLine) {
  if (firstLine.isEmpty() || !gclsOF->CanUpdate() || gclsOF->LibraryId() < 1 || !mbRecordModified) return true;
  const int answer = Tell(firstLine + "\nDo you wish to apply the updates before continuing?", MessageStyle::Question);
  if (answer == MessageAnswer::Yes) {
    // Not a click: the button is off while a typed symbol has not been searched.
    cmdUpdate_Click();
    return false;
  }
  const FillingFields filling;
  DropEdits();
  return true;
}

bool LibraryScreen::Form_QueryUnload() {
  gbVetoUnload = !GuardPassed(facts_.guard.unload);
  return gbVetoUnload;
}

bool LibraryScreen::HasRecordToUpdate(const QString& unchanged) {
  if (!mbRecordModified) {
    Tell(unchanged, MessageStyle::Stop);
    return false;
  }
  if (gclsOF->LibraryId() >= 1 && !mstrDisplayedSymbol.isEmpty()) return true;
  Tell("A record must be displayed before you can update.", MessageStyle::Stop);
  return false;
}

bool LibraryScreen::SymbolIsGiven() {
  if (!txtLibrarySymbol->Text().isEmpty()) return true;
  return Refuse("Library Symbol is a required field.\nPlease enter a value.", txtLibrarySymbol);
}

QString LibraryScreen::PresentDate() {
  return gclsOF->SqlDate(Clock::Now());
}

QString LibraryScreen::UpdateOfRecord(const ColumnValues& values) {
  return "UPDATE " + Sql::Table("ID_LIBRARY") + " SET      " + values.Assignments() +
         " WHERE    LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId());
}

void LibraryScreen::TellUpdated() {
  Tell("Library Symbol: (" + txtLibrarySymbol->Text() + ") has been updated.", MessageStyle::Information);
  mbRecordModified = false;
}

qint64 LibraryScreen::ResetLoadBalancing() {
  return ExecuteUpdate("UPDATE " + Sql::Table("ID_LIBRARY") + " SET      REQUESTS_PROCESSED = 0",
                       "***** SQL error on ID_LIBRARY (Update) *****");
}
