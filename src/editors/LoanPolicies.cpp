#include "editors/LoanPolicies.h"

#include <QScopeGuard>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/frmLoans.h"
#include "platform/controls/TextInput.h"
#include "shell/Editing.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"

namespace {

const QString CodeColumn = "LOAN_CODE";
const QString RenewalSection = "Loan Policy";
const QString RenewalKey = "Renewal Date";
const QString CurrentDate = "Current Date";
const QString DueDate = "Due Date";

}  // namespace

LoanPolicies::LoanPolicies(frmLoans& form) : LoansPage(&form), form_(form) {
  fields_ = {{"LOAN_CODE_DESC", txt6aDescription, Description},
             {"LON_PERIOD", txt6LoanPeriod, LoanPeriod, "Please enter digits for Loan Period."},
             {"REN_PERIOD", txt6Renewal, Renewal, "Please enter digits for Renewal."},
             {"REN_MSG", txt6MessageRenewal},
             {"RR_MSG", txt6MessageRenewalRefused},
             {"REC_MSG", txt6MessageRecall},
             {"OV1_PERIOD", txt6Overdue1, Overdue1, "Please enter digits for Overdue1."},
             {"OV1_MSG", txt6MessageOverdue1},
             {"OV2_PERIOD", txt6Overdue2, Overdue2, "Please enter digits for Overdue2."},
             {"OV2_MSG", txt6MessageOverdue2},
             {"OV3_PERIOD", txt6Overdue3, Overdue3, "Please enter digits for Overdue3."},
             {"OV3_MSG", txt6MessageOverdue3},
             {"FIN_PERIOD", txt6FinalOverdue, FinalOverdue, "Please enter digits for Final Overdue."},
             {"FIN_MSG", txt6MessageFinal}};
  BuildControls();
  ConnectControls();
}

void LoanPolicies::BuildControls() {
  auto* const code = new QWidget(this);
  Form::Rows top(code);
  top.Add("lbl6LoanCode", "Code:", txt6LoanCode);
  top.Beside("lbl6aDescription", "Description:", txt6aDescription);

  QGroupBox* const periods = Form::Frame(this, "fra6Periods", "Periods");
  Form::Rows left(periods);
  left.Add("lbl6LoanPeriod", "Loan Period:", txt6LoanPeriod);
  left.Add("lbl6Renewal", "Renewal:", txt6Renewal);
  left.Add("lbl6Overdue1", "Overdue 1:", txt6Overdue1);
  left.Add("lbl6Overdue2", "Overdue 2:", txt6Overdue2);
  left.Add("lbl6Overdue3", "Overdue 3:", txt6Overdue3);
  left.Add("lbl6FinalOverdue", "Final Overdue:", txt6FinalOverdue);
  left.Stretch();

  for (const PolicyField& field : fields_)
    if (field.gridColumn == 0) field.box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

  QGroupBox* const messages = Form::Frame(this, "fra6Messages", "Messages");
  Form::Rows right(messages);
  right.Add("lbl6MessageRenewal", "Renewal:", txt6MessageRenewal);
  right.Add("lbl6MessageRenewalRefused", "Renewal Refused:", txt6MessageRenewalRefused);
  right.Add("lbl6MessageRecall", "Recall:", txt6MessageRecall);
  right.Add("lbl6MessageOverdue1", "Overdue 1:", txt6MessageOverdue1);
  right.Add("lbl6MessageOverdue2", "Overdue 2:", txt6MessageOverdue2);
  right.Add("lbl6MessageOverdue3", "Overdue 3:", txt6MessageOverdue3);
  right.Add("lbl6MessageFinal", "Final Overdue:", txt6MessageFinal);

  auto* const renewal = new QWidget(this);
  Form::Rows(renewal).Add("lbl6RenewalFrom", "Renewal From:", opt6Renewal->Row());

  auto* const frames = new QHBoxLayout;
  frames->addWidget(periods);
  frames->addWidget(messages, 1);
  Form::Require({txt6LoanCode, txt6LoanPeriod});
  QVBoxLayout* const column = Form::Column(this, {code});
  column->addLayout(frames);
  column->addWidget(renewal);
  column->addWidget(grd6aTable, 1);

  const char* const headings[] = {"",          "Loan Code", "Loan Period", "Renewal",
                                  "Overdue 1", "Overdue 2", "Overdue 3",   "Final Overdue"};
  for (int col = Description; col < Columns; ++col) {
    grd6aTable->SetHeading(col, headings[col]);
    grd6aTable->SetColWidth(col, col == Description ? 4000 : 1300);
    grd6aTable->AlignRight(col, col != Description);
  }
  grd6aTable->SetColWidth(Marker, 400);
  grd6aTable->setAccessibleName("Loan policies");
}

void LoanPolicies::ConnectControls() {
  connect(txt6LoanCode, &TextBox::Change, this, &LoanPolicies::MarkChanged);
  for (const PolicyField& field : fields_) connect(field.box, &TextBox::Change, this, &LoanPolicies::MarkChanged);
  connect(opt6Renewal, &OptionGroup::Click, this, &LoanPolicies::MarkChanged);
  connect(grd6aTable, &Grid::SelChange, this, &LoanPolicies::grd6aTable_SelChange);
  KeepRowOnSort(grd6aTable);
}

// --- The grid, the records beside it and the setting ---

void LoanPolicies::Load() {
  LoadRenewalDate();
  const QString suffix = gclsOF->LanguageSuffix();
  fieldNames_.clear();
  for (const PolicyField& field : fields_)
    fieldNames_.append(field.box == txt6aDescription ? field.column + suffix : field.column);
  records_.clear();
  // The rows that came before a failure have their records too.
  const auto number = qScopeGuard([this] {
    for (int row = 1; row < grd6aTable->Rows(); ++row) grd6aTable->SetRowData(row, row - 1);
  });
  FillGrid(*grd6aTable, "SELECT   * FROM " + Sql::Table("ID_LOAN_CODE") + " ORDER BY LOAN_CODE_DESC",
           "***** SQL error on OSTANA.ID_LOAN_CODE (Select) *****", [this](Recordset& rows) {
             QStringList record{Value(rows, CodeColumn)};
             QStringList cells(Columns - 1);
             for (size_t at = 0; at < fields_.size(); ++at) {
               record.append(Value(rows, fieldNames_.at(static_cast<int>(at))));
               if (fields_[at].gridColumn > 0) cells[fields_[at].gridColumn - 1] = record.back();
             }
             records_.push_back(record);
             return cells;
           });
}

void LoanPolicies::LoadRenewalDate() {
  // Anything but "Due Date" is the current date, the missing key included.
  loadedFromDueDate_ =
      gclsOF->ReadProfileString(RenewalSection, RenewalKey, gclsOF->SystemFile("Ostana.ini")) == DueDate;
  opt6Renewal->Select(loadedFromDueDate_ ? 1 : 0);
}

void LoanPolicies::WriteRenewalDate() {
  gclsOF->WriteProfileString(RenewalSection, RenewalKey, RenewsFromDueDate() ? DueDate : CurrentDate,
                             gclsOF->SystemFile("Ostana.ini"));
  if (gclsOF->LastError().isEmpty())
    loadedFromDueDate_ = RenewsFromDueDate();
  else
    Tell(this, gclsOF->LastError(), MessageStyle::Stop);
}

const QStringList& LoanPolicies::RecordOf(int row) const {
  return records_.at(static_cast<size_t>(grd6aTable->RowData(row)));
}

int LoanPolicies::RowOfCode(const QString& code) const {
  for (int row = 1; row < grd6aTable->Rows(); ++row)
    if (RecordOf(row).front() == code) return row;
  return 0;
}

void LoanPolicies::Enter() {
  if (grd6aTable->Rows() > 1)
    grd6aTable->SetRow(1);
  else
    Clear();
  txt6LoanCode->setFocus();
}

void LoanPolicies::grd6aTable_SelChange() {
  const int row = grd6aTable->Row();
  if (gbSkipGridEvents || row == 0) return;
  {
    const Record::Filling filling(record());
    const QStringList& stored = RecordOf(row);
    txt6LoanCode->SetText(stored.front());
    for (size_t at = 0; at < fields_.size(); ++at) {
      fields_[at].box->SetText(stored.at(static_cast<int>(at) + 1));
      fields_[at].box->home(false);  // a long text shows its beginning
    }
  }
  record().Shown();
  record().Compared(RenewsFromDueDate() != loadedFromDueDate_);
}

void LoanPolicies::MarkChanged() {
  gstrErrorMessage.clear();
  const int row = grd6aTable->Row();
  QStringList shown{txt6LoanCode->Text()};
  for (const PolicyField& field : fields_) shown.append(field.box->Text());
  record().Compared(row == 0 || shown != RecordOf(row) || RenewsFromDueDate() != loadedFromDueDate_);
}

// --- Values ---

QStringList LoanPolicies::Typed() const {
  QStringList typed{txt6LoanCode->Trimmed()};
  for (const PolicyField& field : fields_) typed.append(TypedValue(field));
  return typed;
}

// The description in capitals, as much of them as its box can hold.
QString LoanPolicies::TypedValue(const PolicyField& field) const {
  const QString text = field.box->Trimmed();
  if (field.box != txt6aDescription) return text;
  return TextInput::Fitting(TextInput::Upper(text), txt6aDescription->maxLength());
}

bool LoanPolicies::HasDigits(const PolicyField& field) {
  if (!Numbers::IsNumeric(field.box->Text())) return Refuse(this, field.refusal, MessageStyle::Warning, txt6LoanCode);
  field.box->TrimInPlace();
  return true;
}

// Every refusal sends the focus to the code.
bool LoanPolicies::PeriodsAreDigits() {
  for (const PolicyField& field : fields_)
    if (field.IsPeriod() && !field.box->Text().isEmpty() && !HasDigits(field)) return false;
  return true;
}

QString LoanPolicies::AsSql(const PolicyField& field, const QString& emptyText) const {
  return field.IsPeriod() ? Sql::NumberOr(TypedValue(field), "NULL") : Sql::NationalOr(TypedValue(field), emptyText);
}

// --- Add, Update, Delete, Clear ---

bool LoanPolicies::Add() {
  const QString code = txt6LoanCode->Trimmed();
  if (code.isEmpty()) return Refuse(this, "Please enter a Valid  code.", MessageStyle::Warning, txt6LoanCode);
  // The loan period is the only one that must be there.
  if (!HasDigits(fields_[1]) || !PeriodsAreDigits()) return false;
  if (RowOfCode(code) > 0) {
    Tell(this, "This record already exists", MessageStyle::Warning);
    Clear();
    return false;
  }
  QString columns, values;
  for (const PolicyField& field : fields_) {
    columns += ", " + field.column;
    values += ", " + AsSql(field, "NULL");
  }
  const Sql::LanguagePieces languages = Sql::LanguageColumns("LOAN_CODE_DESC_", AsSql(fields_[0], "NULL"));
  ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_LOAN_CODE") + " (" + CodeColumn + columns + languages.columns +
                           ") VALUES (" + Sql::National(code) + values + languages.values + ")",
                       "***** SQL error on OSTANA.ID_LOAN_CODE (INSERT INTO) *****");
  form_.LoadDataInGrid();
  grd6aTable->SetRow(RowOfCode(code));
  Tell(this, "Record Added", MessageStyle::Information);
  return true;
}

bool LoanPolicies::Update() {
  const QStringList typed = Typed();
  const int row = RowOfCode(typed.front());
  if (row == 0) return Refuse(this, Texts::NoSuchRow, MessageStyle::Stop, txt6LoanCode);
  // The setting is written at once, whatever becomes of the record.
  WriteRenewalDate();
  if (typed == RecordOf(row)) {
    record().Settled();
    return Refuse(this, "Nothing has been changed", MessageStyle::Warning, txt6LoanCode);
  }
  if (grd6aTable->Row() == 0)
    return Refuse(this, "Please select a record to Update.", MessageStyle::Stop, txt6LoanCode);
  if (!PeriodsAreDigits()) return false;
  QStringList set;
  for (const PolicyField& field : fields_)
    set.append(fieldNames_.at(set.size()) + " = " + AsSql(field, field.box == txt6aDescription ? "''" : "NULL"));
  const qint64 updated = ExecuteInTransaction("UPDATE " + Sql::Table("ID_LOAN_CODE") + " SET " + set.join(", ") +
                                                  " WHERE " + CodeColumn + " = " + Sql::National(typed.front()),
                                              "***** SQL error on OSTANA.ID_LOAN_CODE (UPDATE) *****");
  if (updated == 0) return Refuse(this, Texts::NoSuchRow, MessageStyle::Stop, txt6LoanCode);
  WriteRow(row);
  Tell(this, "Record Updated", MessageStyle::Information);
  return true;
}

void LoanPolicies::WriteRow(int row) {
  QStringList& record = records_.at(static_cast<size_t>(grd6aTable->RowData(row)));
  record = Typed();
  for (size_t at = 0; at < fields_.size(); ++at)
    if (fields_[at].gridColumn > 0)
      grd6aTable->SetText(row, fields_[at].gridColumn, record.at(static_cast<int>(at) + 1));
  const Record::Filling filling(this->record());
  txt6aDescription->SetText(record.at(1));
}

bool LoanPolicies::Delete() {
  const QString code = txt6LoanCode->Trimmed();
  if (code.isEmpty()) return Refuse(this, "Please choose a record to be Deleted", MessageStyle::Warning, txt6LoanCode);
  if (RowOfCode(code) == 0) return Refuse(this, Texts::NoSuchRow, MessageStyle::Stop, txt6LoanCode);
  if (!Confirm(this, Texts::DeleteQuestion)) return false;
  const qint64 deleted = ExecuteInTransaction(
      "DELETE FROM " + Sql::Table("ID_LOAN_CODE") + " WHERE " + CodeColumn + " = " + Sql::National(code),
      "***** SQL error on OSTANA.ID_LOAN_CODE (DELETE) *****");
  if (deleted == 0) return Refuse(this, Texts::NoSuchRow, MessageStyle::Stop, txt6LoanCode);
  form_.LoadDataInGrid();
  Tell(this, "Record Deleted", MessageStyle::Information);
  return true;
}

void LoanPolicies::Clear() {
  {
    const Record::Filling filling(record());
    txt6LoanCode->SetText({});
    for (const PolicyField& field : fields_) field.box->SetText({});
  }
  record().Gone();
  grd6aTable->SetRowQuietly(0);
  txt6LoanCode->setFocus();
}
