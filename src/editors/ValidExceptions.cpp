#include "editors/ValidExceptions.h"

#include "core/ModuleState.h"
#include "core/SqlText.h"
#include "editors/ExceptionCodes.h"
#include "shell/Editing.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"
#include "shell/frmTabulon.h"

namespace {

const QString Table = "ID_EXCEPTION_PROCESS";
const QString Passive = "Passive";  // stored as NULL
const QString Loan = "LON";         // process type of loans
const QString InvalidValue = "Please select a valid value.";

void ShowCode(CodeComboBox* box, const QString& code) {
  if (code.isEmpty() || !box->SetCode(code)) box->SetIndex(0);
}

}  // namespace

ValidExceptions::ValidExceptions(frmTabulon& shell, const ExceptionCodes& codes) : SubPage(shell), codes_(codes) {
  BuildControls();
  form_.Shows({"EXCEPTION_CODE", "Type", 750})
      .Shows({"PROCESS_TYPE", "Process", 750})
      .Edits(txt8Message1, {"MESSAGE", "Message", 3000})
      .Shows({"REROUTE", "Reroute", 1190})
      .Shows({"DELIVERY", "Delivery", 1260})
      .Edits(txtExceptionNote, {"EXCEPTION_NOTE", "Exception Note", 3500});
  ConnectControls();
  cmb8DeliverySource->Add("Messaging Method", "M");
  cmb8DeliverySource->Add("Delivery Method", "D");
  cmb8DeliverySource->Add("Print Locally", "P");
  cmb8DeliverySource->SetIndex(0);
}

void ValidExceptions::BuildControls() {
  for (TextBox* box : {txt8ProcessCode, txt8ProcessType, txt8Type}) {
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::ClickFocus);
    box->setFixedWidth(Form::FieldWidth(box, 5));
  }
  txt8ProcessCode->setAccessibleName("Exception Code");
  txt8ProcessType->setAccessibleName("Process Type Code");
  txt8Type->setAccessibleName("Exception Type");
  for (MemoBox* box : {txt8Message1, txtExceptionNote}) box->SetLines(3);

  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lbl8DocumentSupply", "Reject Type:", cmb8DocumentSupply,
           Form::Together(this, "", {txt8ProcessCode, txt8Type}));
  rows.Beside("lbl8ProcessType", "Process Type:", cmb8ProcessType, txt8ProcessType);
  rows.Add("lbl8Message1", "Message:", txt8Message1);
  rows.Add("lbl8Reroute1", "Reroute:", cmb8Reroute1);
  rows.Beside("lbl8DeliverySource", "Delivery Source:", cmb8DeliverySource);
  rows.Add(lblExceptionNote, txtExceptionNote, cmdMoreNotes);
  grd8Document->setAccessibleName("Valid exceptions");
  Form::Require({cmb8DocumentSupply, cmb8ProcessType});
  Form::Column(this, {fields, grd8Document})->setStretch(1, 1);
}

void ValidExceptions::ConnectControls() {
  connect(grd8Document, &Grid::SelChange, this, &ValidExceptions::grd8Document_SelChange);
  KeepRowOnSort(grd8Document);
  connect(cmb8DocumentSupply, &CodeComboBox::Click, this, &ValidExceptions::cmb8DocumentSupply_Click);
  connect(cmb8ProcessType, &CodeComboBox::Click, this, &ValidExceptions::cmb8ProcessType_Click);
  connect(cmdMoreNotes, &QPushButton::clicked, this, &ValidExceptions::cmdMoreNotes_Click);
  connect(cmb8Reroute1, &CodeComboBox::Click, this, [this] { form_.Compare("REROUTE", OnScreen().at(Reroute - 1)); });
  connect(cmb8DeliverySource, &CodeComboBox::Click, this,
          [this] { form_.Compare("DELIVERY", cmb8DeliverySource->Code()); });
  connect(txtExceptionNote, &MemoBox::GotFocus, this, &ValidExceptions::NoteTouched);
  connect(txtExceptionNote, &MemoBox::KeyPress, this, [this](bool& refuse) {
    refuse = mbSeveralNotes_;
    NoteTouched();
  });
}

// --- Entering, selecting and choosing ---

void ValidExceptions::Reset() {
  cmb8DocumentSupply->SetIndex(0);
  txt8ProcessCode->SetText({});
  EmptyRest();
}

void ValidExceptions::EmptyRest() {
  for (CodeComboBox* box : {cmb8ProcessType, cmb8Reroute1, cmb8DeliverySource}) box->SetIndex(0);
  for (TextBox* box : {txt8Type, txt8ProcessType}) box->SetText({});
  form_.Clear();
  // Without a pair there is nothing that the notes could be held back for.
  SwitchNotes(0, {});
}

void ValidExceptions::LoadGrid() {
  form_.Load("SELECT   * FROM " + Sql::Table(Table) + " ORDER BY PROCESS_TYPE, EXCEPTION_CODE",
             "***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (Select) *****");
}

// A reject type alone was carried over, or stays after Clear.
void ValidExceptions::CompareAgain() {
  const int row = grd8Document->Row();
  const QStringList cells = OnScreen();
  const bool entered = !cells.at(Process - 1).isEmpty() || !cells.at(Message - 1).isEmpty() ||
                       !cells.at(Reroute - 1).isEmpty() || !cells.at(Note - 1).isEmpty();
  record().Compared(row > 0 ? !IsUnchanged(row) : entered);
}

void ValidExceptions::FindChoice() {
  grd8Document->SetRowQuietly(RowOfChoice());
}

ExceptionChoice ValidExceptions::Choice() const {
  return {cmb8DocumentSupply->Code(), cmb8DocumentSupply->Text()};
}

void ValidExceptions::grd8Document_SelChange() {
  Procedure procedure("frmTabulon.grd8Document_SelChange", this);
  procedure.Run([this] {
    const int row = grd8Document->Row();
    if (gbSkipGridEvents || row == 0) return;
    FillFromRow(row);
    // Until the notes are counted the pair may have several.
    SwitchNotes(2, txt8ProcessType->Text());
    Recordset notes;
    OpenRows(notes,
             " SELECT EXCEPTION_NOTE FROM " + Sql::Table("ID_EXCEPTION_NOTE") +
                 " WHERE EXCEPTION_CODE =" + Sql::Plain(grd8Document->Text(row, Code)) +
                 " AND   PROCESS_TYPE = " + Sql::Plain(grd8Document->Text(row, Process)),
             "***** SQL error on OSTANA.ID_EXCEPTION_NOTE (SELECT) *****");
    SwitchNotes(notes.RecordCount(), txt8ProcessType->Text());
  });
}

void ValidExceptions::FillFromRow(int row) {
  // Several rows have the code of this one: none of them may become current while the lists are set.
  const SkipGridEvents skip;
  form_.ShowRow(row);
  const auto cell = [&](int column) { return grd8Document->Text(row, column); };
  txt8ProcessCode->SetText(cell(Code));
  txt8ProcessType->SetText(cell(Process));
  ShowCode(cmb8ProcessType, cell(Process));
  ShowCode(cmb8DocumentSupply, cell(Code));
  txt8Type->SetText(codes_.TypeOf(cell(Code)));
  if (cell(Reroute).isEmpty())
    cmb8Reroute1->SetIndex(0);
  else
    cmb8Reroute1->SetText(cell(Reroute));
  // A row without a letter shows no channel rather than that of the row before.
  if (cell(Delivery).isEmpty())
    cmb8DeliverySource->SetIndex(-1);
  else
    cmb8DeliverySource->Hold(cell(Delivery));
}

void ValidExceptions::SwitchNotes(qint64 notesOfPair, const QString& process) {
  mbSeveralNotes_ = notesOfPair > 1;
  const bool loan = process == Loan;
  lblExceptionNote->setEnabled(!mbSeveralNotes_ && !loan);
  txtExceptionNote->setEnabled(!mbSeveralNotes_ && !loan);
  cmdMoreNotes->setEnabled(!loan);
}

void ValidExceptions::cmb8DocumentSupply_Click() {
  Procedure procedure("frmTabulon.cmb8DocumentSupply_Click", this);
  procedure.Run([this] {
    shell().buttonState();
    if (cmb8DocumentSupply->Code().isEmpty()) {
      ConfigureGrdTable();
      LoadDataInGrid();
      shell().cmdClear_Click();
      txt8ProcessCode->SetText({});
      return;
    }
    const ExceptionChoice choice = Choice();
    txt8ProcessCode->SetText(choice.code);
    txt8Type->SetText(codes_.TypeOf(choice.code));
    form_.Compare("EXCEPTION_CODE", choice.code);
    const int row = grd8Document->FindRow(choice.code, Code);
    if (row > 0) {
      if (!gbSkipGridEvents) grd8Document->SetRow(row);
      return;
    }
    grd8Document->SetRowQuietly(0);
    txt8Message1->SetText({});
  });
}

void ValidExceptions::cmb8ProcessType_Click() {
  const QString process = cmb8ProcessType->Code();  // empty on "(none)"
  txt8ProcessType->SetText(process);
  form_.Compare("PROCESS_TYPE", process);
}

// --- Notes ---

void ValidExceptions::NoteTouched() {
  if (!mbSeveralNotes_) return;
  // The focus goes first: the box must not get it back when the message is closed.
  cmdMoreNotes->setFocus();
  Tell(
      "This Exception Code has multiple Exception Note records.\n\n"
      "Use the 'More Notes' button to modify the Exception Notes.",
      MessageStyle::Stop);
}

void ValidExceptions::cmdMoreNotes_Click() {
  Procedure procedure("frmTabulon.cmdMoreNotes_Click", this);
  procedure.Run([this] {
    gstrNotesExceptionCode = txt8ProcessCode->Text();
    gstrNotesProcessType = txt8ProcessType->Text();
    gbSaveExceptionNotes = false;
    ShowModal("frmAddExceptionNotes", this);
    const int row = grd8Document->Row();
    if (row > 0) RefreshNote(row);
    grd8Document_SelChange();
  });
}

void ValidExceptions::RefreshNote(int row) {
  bool found = false;
  const QString note = FirstValue("SELECT EXCEPTION_NOTE FROM " + Sql::Table(Table) + WherePairOf(row),
                                  "***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (SELECT) *****", &found);
  if (found) grd8Document->SetText(row, Note, note);
}

// --- Add ---

bool ValidExceptions::Add() {
  return Procedure("frmTabulon.Exception_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    if (!PairIsValid()) return false;
    form_.TrimAll();
    if (cmb8Reroute1->IsEmptyOrNone()) return Refuse(InvalidValue, MessageStyle::Stop, cmb8Reroute1);
    ExecuteInTransaction(InsertStatement(OnScreen()),
                         "***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (INSERT INTO) *****");
    const QString code = cmb8DocumentSupply->Code(), process = cmb8ProcessType->Code();
    LoadDataInGrid();
    grd8Document->SetRow(grd8Document->FindRow({{Code, code}, {Process, process}}));
    Tell("Record Added", MessageStyle::Information);
    txt8Message1->setFocus();
    return true;
  });
}

bool ValidExceptions::PairIsValid() {
  if (cmb8DocumentSupply->Code().isEmpty() || cmb8ProcessType->Code().isEmpty())
    return Refuse("Please choose Document Supply and Process Type.", MessageStyle::Warning, txt8Message1);
  return RowOfChoice() == 0 || Refuse("This Code already exists.", MessageStyle::Stop, txt8Message1);
}

QStringList ValidExceptions::OnScreen() const {
  return {cmb8DocumentSupply->Code(), cmb8ProcessType->Code(),
          txt8Message1->Trimmed(),    cmb8Reroute1->IsEmptyOrNone() ? QString() : cmb8Reroute1->Text(),
          cmb8DeliverySource->Code(), txtExceptionNote->Trimmed()};
}

int ValidExceptions::RowOfChoice() const {
  return grd8Document->FindRow({{Code, cmb8DocumentSupply->Code()}, {Process, cmb8ProcessType->Code()}});
}

QString ValidExceptions::RerouteValue() const {
  const bool none = cmb8Reroute1->IsEmptyOrNone() || cmb8Reroute1->Text() == Passive;
  return none ? QString("Null") : Sql::Plain(cmb8Reroute1->Text());
}

QString ValidExceptions::InsertStatement(const QStringList& cells) const {
  return "INSERT INTO " + Sql::Table(Table) +
         " (EXCEPTION_CODE, PROCESS_TYPE, MESSAGE, REROUTE, DELIVERY, EXCEPTION_NOTE) VALUES(" +
         Sql::Plain(cells.at(Code - 1)) + ", " + Sql::Plain(cells.at(Process - 1)) + ", " +
         Sql::PlainOr(cells.at(Message - 1), "NULL") + ", " + RerouteValue() + ", " +
         Sql::PlainOr(cells.at(Delivery - 1), "NULL") + ", " + Sql::PlainOr(cells.at(Note - 1), "NULL") + ")";
}

// --- Update ---

bool ValidExceptions::Update() {
  return Procedure("frmTabulon.Exception_Update", this).OnFailure(Texts::DatabaseError).Answers([&] {
    {
      const Record::Filling trimming(record());
      txt8Message1->TrimInPlace();
    }
    const int row = grd8Document->Row();
    if (row > 0 && IsUnchanged(row)) return Refuse("Nothing has been changed", MessageStyle::Warning, txt8Message1);
    if (!MayUpdate(row)) return false;
    form_.TrimAll();
    QStringList cells = OnScreen();
    if (ExecuteInTransaction(UpdateStatement(cells, row),
                             "***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (UPDATE) *****") == 0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, nullptr);
    if (cells.at(Reroute - 1) == Passive) cells[Reroute - 1].clear();
    for (int column = Code; column <= Note; ++column) grd8Document->SetText(row, column, cells.at(column - 1));
    Tell("Record Updated", MessageStyle::Information);
    txt8Message1->setFocus();
    return true;
  });
}

bool ValidExceptions::MayUpdate(int row) {
  if (cmb8DocumentSupply->Code().isEmpty())
    return Refuse("Please select a record to Update.", MessageStyle::Stop, nullptr);
  if (cmb8ProcessType->Code().isEmpty()) return Refuse(InvalidValue, MessageStyle::Stop, cmb8ProcessType);
  // A pair that is in the table already may keep its missing reroute.
  if (cmb8Reroute1->IsEmptyOrNone() && RowOfChoice() == 0)
    return Refuse(InvalidValue, MessageStyle::Stop, cmb8Reroute1);
  if (grd8Document->Rows() == 1)
    return Refuse("This Code Does not exists. Please select a Valid Code to Update.", MessageStyle::Stop, nullptr);
  return row > 0 || Refuse(Texts::NoSuchCode, MessageStyle::Stop, nullptr);
}

bool ValidExceptions::IsUnchanged(int row) const {
  const QStringList cells = OnScreen();
  for (int column = Code; column <= Note; ++column)
    if (cells.at(column - 1) != grd8Document->Text(row, column)) return false;
  return true;
}

// The keys may change: the row is found by the pair that the grid has, and the notes of the pair follow it.
QString ValidExceptions::UpdateStatement(const QStringList& cells, int row) const {
  return "UPDATE " + Sql::Table(Table) + " SET EXCEPTION_CODE = " + Sql::Plain(cells.at(Code - 1)) +
         ", PROCESS_TYPE = " + Sql::Plain(cells.at(Process - 1)) +
         ", MESSAGE = " + Sql::PlainOr(cells.at(Message - 1), "NULL") + ", REROUTE = " + RerouteValue() +
         ", DELIVERY = " + Sql::PlainOr(cells.at(Delivery - 1), "NULL") +
         ", EXCEPTION_NOTE = " + Sql::PlainOr(cells.at(Note - 1), "NULL") + WherePairOf(row);
}

QString ValidExceptions::WherePairOf(int row) const {
  return " WHERE EXCEPTION_CODE = " + Sql::Plain(grd8Document->Text(row, Code)) +
         " AND PROCESS_TYPE = " + Sql::Plain(grd8Document->Text(row, Process));
}

// --- Delete and Clear ---

bool ValidExceptions::Delete() {
  return Procedure("frmTabulon.Exception_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    const int row = grd8Document->Row();
    const bool none = cmb8DocumentSupply->Code().isEmpty() || cmb8ProcessType->Code().isEmpty();
    // What is deleted must be what the lists show.
    if (none || row == 0 || row != RowOfChoice()) return Refuse(Texts::NoSuchRow, MessageStyle::Stop, nullptr);
    if (!Confirm(this, Texts::DeleteQuestion)) return false;
    if (ExecuteInTransaction("DELETE FROM " + Sql::Table(Table) + WherePairOf(row),
                             "***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (DELETE) *****") == 0)
      return Refuse(Texts::NoSuchRow, MessageStyle::Stop, nullptr);
    LoadDataInGrid();
    Tell("Record Deleted", MessageStyle::Information);
    return true;
  });
}

bool ValidExceptions::Clear() {
  // The reject type stays as it is, its code goes.
  grd8Document->SetRowQuietly(0);
  if (!cmb8DocumentSupply->IsNone()) txt8ProcessCode->SetText({});
  EmptyRest();
  return true;
}
