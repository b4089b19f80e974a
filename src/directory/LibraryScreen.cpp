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
  QString statement;
  return Procedure(LogName(handler), this)
      .OnFailure([&](const AdoError& error) {
        statement = error.Statement();
        return closingText;
      })
      .Finally([&] {
        if (!statement.isEmpty()) gclsOF->WriteLog(statement, {}, "S");
      })
      .Run(body);
}

bool LibraryScreen::Refuse(const QString& text, QWidget* box) {
  Tell(this, text, MessageStyle::Stop);
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
  rights_ = gclsOF->Rights();
  record_.Observe([this] { FollowRecord(); });
  Run("Form_Load", [this] {
    {
      const Record::Filling filling(record_);
      LoadSettings();
      PutBuiltInTips(*this, TextKeys());
      if (!gclsOF->CustomConfigFile().isEmpty()) LoadText();
      PopulateComboBoxes();
    }
    ApplyCaller();
    ReadAtLoad();
    ApplyRights();
    record_.Settled();
  });
}

// Each list fails for itself: the others are filled all the same, and the screen is usable.
void LibraryScreen::PopulateComboBoxes() {
  Procedure procedure(LogName("PopulateComboBoxes"), this);
  unreadLists_.clear();
  for (const CodeList& list : CodeLists())
    if (!procedure.Step([&list] { list.Fill(); }))
      for (const CodeComboBox* box : list.boxes) unreadLists_.insert(box);
  ChooseDefaults();
  if (!unreadLists_.isEmpty())
    Tell(this, "An error has occurred loading the drop down lists.  Please Notify Support.", MessageStyle::Stop);
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
  SetDisplayed(false);
  {
    const Record::Filling filling(record_);
    ShowNoRecord();
  }
  if (gclsOF->LibraryId() >= 1) Read(gclsOF->LibraryId());
}

void LibraryScreen::ApplyRights() {
  ShowButton(cmdUpdate, rights_.update);
}

// Another session of the library screens may have run over this one.
void LibraryScreen::Form_Activate() {
  if (record_.MayBeWritten()) gbLibraryActive = RecordIsActive();
}

// --- The record ---

LibraryScreen::ReadResult LibraryScreen::Read(qint32 libraryId) {
  ReadResult result = ReadResult::Failed;
  Run(facts_.readProcedure, [&] {
    const Hourglass hourglass;
    Record::Reading reading(record_);
    Recordset rows;
    OpenRows(rows,
             "SELECT   LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT" + Columns() + " FROM " +
                 Sql::Table("ID_LIBRARY") + " WHERE    LIBRARY_ID = " + Sql::Number(libraryId),
             LibrarySelectFailed);
    if (rows.EOF_()) {
      SetDisplayed(false);
      result = ReadResult::NoRow;
      return;
    }
    ReadFurther(rows, libraryId);
    reading.Replaces();
    TakeInHand({libraryId, Value(rows, "LIBRARY_SYMBOL"), Value(rows, "LIBRARY_ACTIVE")});
    FillBanner(rows);
    for (const auto& [box, column] : shownBoxes_) box->SetText(Value(rows, column));
    for (const auto& [list, column] : shownLists_) ShowCode(list, Value(rows, column));
    ShowRecord(rows);
    reading.Ended();
    result = ReadResult::Found;
  });
  return result;
}

void LibraryScreen::TakeInHand(const LibraryInHand& library) {
  library_ = library;
  gclsOF->SetLibraryId(library.id);
  ShowActiveLetter(library.activeLetter);
  SetDisplayed(true);
}

void LibraryScreen::Shows(std::initializer_list<std::pair<TextBox*, const char*>> boxes) {
  for (const auto& [box, column] : boxes) Watch({box});
  shownBoxes_.insert(shownBoxes_.end(), boxes);
}

void LibraryScreen::Shows(std::initializer_list<std::pair<CodeComboBox*, const char*>> lists) {
  for (const auto& [list, column] : lists) Watch({list});
  shownLists_.insert(shownLists_.end(), lists);
}

void LibraryScreen::LetGo() {
  library_ = {};
  gclsOF->SetLibraryId(0);
  displayed_ = false;
  record_.Gone();
  FollowRecord();
}

void LibraryScreen::SetDisplayed(bool displayed) {
  displayed_ = displayed;
  FollowRecord();
}

void LibraryScreen::FollowRecord() {
  EnableRecord(displayed_ && record_.MayBeWritten());
}

void LibraryScreen::FillBanner(const Recordset& rows) {
  txtLibrarySymbol->SetText(library_.symbol);
  txtInstitution->SetText(Value(rows, "INSTITUTION_NAME"));
  txtLibraryName->SetText(Value(rows, "LIBRARY"));
  txtContact->SetText(Value(rows, "CONTACT"));
}

void LibraryScreen::ShowActiveLetter(const QString& letter) {
  library_.activeLetter = letter;
  gbLibraryActive = letter != "N";
  lblLibraryInactiveMessage->setVisible(letter == "N");
  lblLibraryPendingMessage->setVisible(letter == "P");
}

void LibraryScreen::ReadOrClear(qint32 libraryId) {
  if (Read(libraryId) == ReadResult::NoRow) ClearScreen();
}

void LibraryScreen::ClearScreen() {
  {
    const Record::Filling filling(record_);
    for (TextBox* box : {txtLibrarySymbol, txtInstitution, txtLibraryName, txtContact}) box->clear();
    for (const auto& [box, column] : shownBoxes_) box->clear();
    ClearFields();
    cmbLibrarySymbol->Clear();
    cmbLibrarySymbol->lineEdit()->clear();
  }
  lblLibraryInactiveMessage->hide();
  lblLibraryPendingMessage->hide();
  LetGo();
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

void LibraryScreen::ShowCode(CodeComboBox* box, const QString& code) {
  box->Hold(code.isEmpty() ? QString() : code);
}

// --- Changed fields ---

void LibraryScreen::Trim(std::initializer_list<TextBox*> boxes) {
  const Record::Filling filling(record_);
  for (TextBox* box : boxes) box->TrimInPlace();
}

void LibraryScreen::TrimShown() {
  for (const auto& [box, column] : shownBoxes_) Trim({box});
}

bool LibraryScreen::GuardPassed(const QString& firstLine) {
  if (firstLine.isEmpty() || !rights_.update || !HasRecord() || !record_.Modified()) return true;
  if (Confirm(this, firstLine + "\nDo you wish to apply the updates before continuing?")) {
    // Not a click: the button is off while a typed symbol has not been searched.
    cmdUpdate_Click();
    return false;
  }
  const Record::Filling filling(record_);
  DropEdits();
  return true;
}

bool LibraryScreen::Form_QueryUnload() {
  gbVetoUnload = !GuardPassed(facts_.guard.unload);
  return gbVetoUnload;
}

bool LibraryScreen::HasRecord() const {
  return record_.MayBeWritten() && library_.id >= 1 && gclsOF->LibraryId() == library_.id && !library_.symbol.isEmpty();
}

bool LibraryScreen::HasRecordToUpdate(const QString& unchanged) {
  if (record_.Modified() && HasRecord()) return true;
  const QString text = record_.Modified() ? "A record must be displayed before you can update." : unchanged;
  return ::Refuse(this, text, MessageStyle::Stop, nullptr);
}

bool LibraryScreen::SymbolIsGiven() {
  if (!txtLibrarySymbol->Text().isEmpty()) return true;
  return Refuse("Library Symbol is a required field.\nPlease enter a value.", txtLibrarySymbol);
}

QString LibraryScreen::PresentDate() {
  return gclsOF->SqlDate(Clock::Now());
}

QString LibraryScreen::UpdateOfRecord(const ColumnValues& values) const {
  return "UPDATE " + Sql::Table("ID_LIBRARY") + " SET      " + values.Assignments() +
         " WHERE    LIBRARY_ID = " + Sql::Number(library_.id);
}

// Another client has deleted the library: what is on show may be added again, not written.
bool LibraryScreen::RowWasFound(qint64 affected) {
  if (affected > 0) return true;
  LetGo();
  return ::Refuse(this, "Record not found.", MessageStyle::Information, nullptr);
}

void LibraryScreen::TellUpdated() {
  Tell(this, "Library Symbol: (" + library_.symbol + ") has been updated.", MessageStyle::Information);
  record_.Settled();
}

qint64 LibraryScreen::ResetLoadBalancing() {
  return ExecuteInTransaction("UPDATE " + Sql::Table("ID_LIBRARY") + " SET      REQUESTS_PROCESSED = 0",
                              "***** SQL error on ID_LIBRARY (Update) *****");
}
