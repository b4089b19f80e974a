#include "editors/LoanStatuses.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/frmLoans.h"
#include "shell/Editing.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"

namespace {

const QString ChargePattern = "##0.00";
constexpr double HighestCharge = 999.99;

// "Y", "N" or empty.
QString Letter(const OptionGroup& pair) {
  return pair.IsSet(0) ? "Y" : pair.IsSet(1) ? "N" : "";
}

void ShowLetter(OptionGroup& pair, const QString& letter) {
  pair.Select(letter == "Y" ? 0 : letter == "N" ? 1 : -1);
}

QString FlagAsSql(const OptionGroup& pair) {
  return Sql::NationalOr(Letter(pair), "NULL");
}

QString Charge(const QString& stored) {
  return stored.isEmpty() ? stored : Numbers::Format(Numbers::Val(stored), ChargePattern);
}

}  // namespace

LoanStatuses::LoanStatuses(frmLoans& form) : LoansPage(&form), form_(form) {
  BuildControls();
  ConnectControls();
}

void LoanStatuses::BuildControls() {
  auto* const inputs = new QWidget(this);
  Form::Rows rows(inputs);
  rows.Add("lbl6bCode", "Code:", txt6bCode);
  rows.Add("lbl6bDescription", "Description:", txt6bDescription);
  rows.Add("lbl6LoanComplete", "Loan Complete:", opt6LoanComplete->Row());
  rows.Add("lbl6UserDisplay", "User Display:", opt6UserDisplay->Row());
  rows.Add(lbl6bLoanCharge, txt6bLoanCharge);
  rows.Add(lbl6bFixedCharge, frm6bFixedCharge);
  Form::Require({txt6bCode});
  Form::Column(this, {inputs})->addWidget(grd6bTable, 1);

  const char* const headings[] = {"", "Code", "Description", "Loan Charge", "Fixed", "Loan Complete", "User Display"};
  const int widths[] = {400, 1000, 5000, 1400, 800, 1500, 1300};  // twips
  for (int col = Marker; col < Columns; ++col) {
    grd6bTable->SetHeading(col, headings[col]);
    grd6bTable->SetColWidth(col, widths[col]);
  }
  grd6bTable->setAccessibleName("Loan statuses");
}

void LoanStatuses::ConnectControls() {
  txt6bLoanCharge->SetRule(NumericRule(QString::number(HighestCharge), ChargePattern, true, false, false));
  txt6bLoanCharge->SetKeyPress([this](char16_t key) { return FilterNumericKey(key, *txt6bLoanCharge, false, false); });
  txt6bLoanCharge->SetLeaveCheck([this] { return FormatCharge(); });
  for (TextBox* box : {txt6bCode, txt6bDescription, txt6bLoanCharge})
    connect(box, &TextBox::Change, this, &LoanStatuses::MarkChanged);
  for (OptionGroup* pair : {opt6LoanComplete, opt6UserDisplay, opt6bFixedCharge})
    connect(pair, &OptionGroup::Click, this, &LoanStatuses::MarkChanged);
  connect(grd6bTable, &Grid::SelChange, this, &LoanStatuses::grd6bTable_SelChange);
  KeepRowOnSort(grd6bTable);
}

void LoanStatuses::ShowCharge(bool shown) {
  for (QWidget* control :
       std::initializer_list<QWidget*>{lbl6bLoanCharge, txt6bLoanCharge, lbl6bFixedCharge, frm6bFixedCharge})
    control->setVisible(shown);
  grd6bTable->HideCol(LoanCharge, !shown);
  grd6bTable->HideCol(FixedCharge, !shown);
}

bool LoanStatuses::FormatCharge() {
  const QString text = txt6bLoanCharge->Trimmed();
  if (!text.isEmpty()) txt6bLoanCharge->SetText(Charge(text));
  return true;
}

void LoanStatuses::Load() {
  const QString code = grd6bTable->Row() > 0 ? grd6bTable->Text(grd6bTable->Row(), Code) : QString();
  FillGrid(*grd6bTable, "SELECT   * FROM " + Sql::Table("ID_LOAN_STATUS") + " ORDER BY LOAN_STATUS",
           "***** SQL error on OSTANA.ID_LOAN_STATUS (Select) *****", [](Recordset& rows) {
             return QStringList{
                 Value(rows, "LOAN_STATUS"),         Value(rows, "LOAN_STATUS_DESC" + gclsOF->LanguageSuffix()),
                 Charge(Value(rows, "LOAN_CHARGE")), Value(rows, "LOAN_CHARGE_FIXED"),
                 Value(rows, "LOAN_STATUS_COMP"),    Value(rows, "LOAN_STATUS_DISP")};
           });
  grd6bTable->SetRowQuietly(grd6bTable->FindRow(code, Code));
}

void LoanStatuses::Enter() {
  if (grd6bTable->Row() > 0)
    ShowRow(grd6bTable->Row());
  else
    Clear();
  txt6bCode->setFocus();
}

void LoanStatuses::grd6bTable_SelChange() {
  if (!gbSkipGridEvents && grd6bTable->Row() > 0) ShowRow(grd6bTable->Row());
}

void LoanStatuses::ShowRow(int row) {
  const Record::Filling filling(record());
  txt6bCode->SetText(grd6bTable->Text(row, Code));
  txt6bDescription->SetText(grd6bTable->Text(row, Description));
  txt6bLoanCharge->SetText(grd6bTable->Text(row, LoanCharge));
  ShowLetter(*opt6bFixedCharge, grd6bTable->Text(row, FixedCharge));
  ShowLetter(*opt6LoanComplete, grd6bTable->Text(row, Complete));
  ShowLetter(*opt6UserDisplay, grd6bTable->Text(row, Display));
  record().Shown();
}

void LoanStatuses::MarkChanged() {
  gstrErrorMessage.clear();
  const int row = grd6bTable->Row();
  record().Compared(row == 0 || txt6bCode->Text() != grd6bTable->Text(row, Code) || !RowIsUnchanged(row));
}

bool LoanStatuses::RowIsUnchanged(int row) const {
  return txt6bDescription->Text() == grd6bTable->Text(row, Description) &&
         Numbers::Same(txt6bLoanCharge->Text(), grd6bTable->Text(row, LoanCharge)) &&
         Letter(*opt6bFixedCharge) == grd6bTable->Text(row, FixedCharge) &&
         Letter(*opt6LoanComplete) == grd6bTable->Text(row, Complete) &&
         Letter(*opt6UserDisplay) == grd6bTable->Text(row, Display);
}

QString LoanStatuses::ChargeAsSql() const {
  const QString text = txt6bLoanCharge->Trimmed();
  return Numbers::IsBlank(text) ? QString() : QString::number(Numbers::Val(text), 'f', QLocale::FloatingPointShortest);
}

bool LoanStatuses::Add() {
  if (txt6bCode->Trimmed().isEmpty())
    return Refuse(this, "Please enter a Valid Code.", MessageStyle::Warning, txt6bCode);
  const Record::Filling trimming(record());
  const QString code = txt6bCode->TrimUpperInPlace();
  const QString description = Sql::NationalOr(txt6bDescription->TrimInPlace(), "NULL");
  if (Numbers::Val(txt6bLoanCharge->Text()) > HighestCharge)
    return Refuse(this, "Maximum Loan Charge of 999.99 has been exceeded.", MessageStyle::Stop, txt6bLoanCharge);
  if (grd6bTable->FindRow(code, Code) > 0) {
    Tell(this, "This record already exists", MessageStyle::Warning);
    Clear();
    return false;
  }
  const Sql::LanguagePieces languages = Sql::LanguageColumns("LOAN_STATUS_DESC_", description);
  const QString charge = ChargeAsSql();
  ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_LOAN_STATUS") +
                           " (LOAN_STATUS, LOAN_STATUS_DESC, LOAN_STATUS_COMP, LOAN_STATUS_DISP, LOAN_CHARGE, "
                           "LOAN_CHARGE_FIXED" +
                           languages.columns + ") VALUES (" + Sql::National(code) + ", " + description + ", " +
                           FlagAsSql(*opt6LoanComplete) + ", " + FlagAsSql(*opt6UserDisplay) + ", " +
                           (charge.isEmpty() ? QString("NULL, NULL") : charge + ", " + Sql::National(FixedLetter())) +
                           languages.values + ")",
                       "***** SQL error on OSTANA.ID_LOAN_STATUS (INSERT INTO) *****");
  form_.LoadDataInGrid();
  grd6bTable->SetRow(grd6bTable->FindRow(code, Code));
  Tell(this, "Record Added", MessageStyle::Information);
  return true;
}

bool LoanStatuses::Update() {
  const Record::Filling trimming(record());
  const QString code = txt6bCode->TrimUpperInPlace();
  const QString description = txt6bDescription->TrimInPlace();
  const int row = grd6bTable->FindRow(code, Code);
  if (row > 0 && RowIsUnchanged(row)) {
    record().Settled();
    return Refuse(this, "Nothing has been changed", MessageStyle::Warning, txt6bDescription);
  }
  if (row == 0) return Refuse(this, Texts::NoSuchCode, MessageStyle::Stop, txt6bCode);
  const QString charge = ChargeAsSql();
  const QString charges =
      charge.isEmpty() ? QString(" LOAN_CHARGE = NULL, LOAN_CHARGE_FIXED = NULL ")
                       : " LOAN_CHARGE = " + charge + ", LOAN_CHARGE_FIXED = " + Sql::National(FixedLetter()) + " ";
  const qint64 updated = ExecuteInTransaction(
      "UPDATE " + Sql::Table("ID_LOAN_STATUS") + " SET" + " LOAN_STATUS_DESC" + gclsOF->LanguageSuffix() + " = " +
          Sql::NationalOr(description, "NULL") + ", LOAN_STATUS_COMP = " + FlagAsSql(*opt6LoanComplete) +
          ", LOAN_STATUS_DISP = " + FlagAsSql(*opt6UserDisplay) + "," + charges +
          "WHERE LOAN_STATUS = " + Sql::National(code),
      "***** SQL error on OSTANA.ID_LOAN_STATUS (UPDATE) *****");
  if (updated == 0) return Refuse(this, Texts::NoSuchCode, MessageStyle::Stop, txt6bCode);
  WriteRow(row);
  Tell(this, "Record Updated", MessageStyle::Information);
  txt6bDescription->setFocus();
  return true;
}

// The cells take what was stored: without a charge there is no letter beside it.
void LoanStatuses::WriteRow(int row) {
  const bool charged = !txt6bLoanCharge->Trimmed().isEmpty();
  grd6bTable->SetText(row, Description, txt6bDescription->Text());
  grd6bTable->SetText(row, LoanCharge, Charge(txt6bLoanCharge->Trimmed()));
  grd6bTable->SetText(row, FixedCharge, charged ? FixedLetter() : QString());
  grd6bTable->SetText(row, Complete, Letter(*opt6LoanComplete));
  grd6bTable->SetText(row, Display, Letter(*opt6UserDisplay));
  ShowLetter(*opt6bFixedCharge, grd6bTable->Text(row, FixedCharge));
}

bool LoanStatuses::Delete() {
  const Record::Filling trimming(record());
  const QString code = txt6bCode->TrimUpperInPlace();
  if (code.isEmpty()) return Refuse(this, "Please choose a record to be Deleted", MessageStyle::Warning, txt6bCode);
  if (grd6bTable->FindRow(code, Code) == 0) return Refuse(this, Texts::NoSuchRow, MessageStyle::Stop, txt6bCode);
  if (!Confirm(this, Texts::DeleteQuestion)) return false;
  const qint64 deleted = ExecuteInTransaction(
      "DELETE FROM " + Sql::Table("ID_LOAN_STATUS") + " WHERE LOAN_STATUS = " + Sql::National(code),
      "***** SQL error on OSTANA.ID_LOAN_STATUS (DELETE) *****");
  if (deleted == 0) return Refuse(this, Texts::NoSuchRow, MessageStyle::Stop, txt6bCode);
  form_.LoadDataInGrid();
  Tell(this, "Record Deleted", MessageStyle::Information);
  return true;
}

void LoanStatuses::Clear() {
  {
    const Record::Filling filling(record());
    for (TextBox* box : {txt6bCode, txt6bDescription, txt6bLoanCharge}) box->SetText({});
    for (OptionGroup* pair : {opt6LoanComplete, opt6UserDisplay, opt6bFixedCharge}) pair->Unset();
  }
  record().Gone();
  grd6bTable->SetRowQuietly(0);
  txt6bCode->setFocus();
}
