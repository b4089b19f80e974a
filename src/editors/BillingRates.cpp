#include "editors/BillingRates.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

BillingRates::BillingRates(frmTabulon& shell, QWidget* codeOfRateTables)
    : TabPage(shell), codeOfRateTables_(codeOfRateTables) {
  BuildControls();
  ConnectControls();
}

void BillingRates::BuildControls() {
  auto* const inputs = new QWidget(this);
  Form::Rows rows(inputs);
  rows.Add("lbl7BillingCode", "Code:", txt7BillingCode);
  rows.Add("lbl7BillingDescription", "Description:", txt7BillingDescription);
  rows.Add("lbl7InvoiceFlag", "Invoice Flag Override:", cmb7InvoiceFlag);
  cmb7InvoiceFlag->AddNone("(none)");
  cmb7InvoiceFlag->Add("Cover is an Invoice", "Y");
  cmb7InvoiceFlag->Add("Cover is not an Invoice!", "N");
  cmb7InvoiceFlag->SetIndex(0);
  grd7BillingRate->setAccessibleName("Billing rates");
  Form::Require({txt7BillingCode});
  Form::Column(this, {inputs})->addWidget(grd7BillingRate, 1);
}

void BillingRates::ConnectControls() {
  using enum GridForm::Watch;
  // A letter that is neither of the two shows as none, and is kept.
  form_.Edits(txt7BillingCode, {"BILLING_RATE", "Code", 1000, false, Touch}, Trim::BothUpper)
      .Edits(txt7BillingDescription, {"BILLING_RATE_DESC+", "Description", 7020, false, Touch})
      .EditsCode(cmb7InvoiceFlag, {"INVOICE_FLAG_OVR", "Invoice Flag Override", 1800, false, Touch}, "(none)");
  connect(grd7BillingRate, &Grid::SelChange, this, &BillingRates::grd7BillingRate_SelChange);
  KeepRowOnSort(grd7BillingRate);
}

QString BillingRates::CurrentCode() const {
  return HasCurrentRow() ? form_.Cell(grd7BillingRate->Row(), "BILLING_RATE") : QString();
}

int BillingRates::RowOf(const QString& code) const {
  return grd7BillingRate->FindRow(code, form_.ColumnOf("BILLING_RATE"));
}

void BillingRates::LoadGrid() {
  form_.Load("SELECT   * FROM " + Sql::Table("ID_BILLING_RATE") + " ORDER BY BILLING_RATE",
             "***** SQL error on OSTANA.ID_BILLING_RATE (Select) *****");
}

void BillingRates::SelectFirstRow() {
  if (!form_.SelectFirstRow([this] { grd7BillingRate_SelChange(); })) form_.Clear();
}

void BillingRates::grd7BillingRate_SelChange() {
  const int row = grd7BillingRate->Row();
  if (gbSkipGridEvents || row == 0) return;
  form_.ShowRow(row);
  txt7BillingCode->setFocus();
}

bool BillingRates::Add() {
  // The text as typed is tested, so that a blank goes on to the database; the focus goes to the other sub-tab's box.
  if (txt7BillingCode->Text().isEmpty())
    return Refuse("Please enter a Valid Code.", MessageStyle::Warning, codeOfRateTables_);
  form_.TrimAll();
  const QString code = txt7BillingCode->Text();
  if (RowOf(code) > 0) return Refuse("This record already exists", MessageStyle::Warning, txt7BillingCode);
  const QString description = Sql::NationalOr(txt7BillingDescription->Text(), "NULL");
  const Sql::LanguagePieces languages = Sql::LanguageColumns("BILLING_RATE_DESC_", description);
  ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_BILLING_RATE") + " (BILLING_RATE, BILLING_RATE_DESC" +
                           languages.columns + ", INVOICE_FLAG_OVR) VALUES (" + Sql::National(code) + ", " +
                           description + languages.values + ", " + Sql::NationalOr(InvoiceFlagLetter(), "NULL") + ")",
                       "***** SQL error on OSTANA.ID_BILLING_RATE (INSERT INTO) *****");
  LoadDataInGrid();
  grd7BillingRate->SetRow(RowOf(code));
  Tell("Record Added", MessageStyle::Information);
  return true;
}

bool BillingRates::Update() {
  form_.TrimAll();
  const QString code = txt7BillingCode->Text();
  const QString description = txt7BillingDescription->Text();
  const int row = RowOf(code);
  if (row > 0 && form_.EqualsRow(row)) {
    record().Settled();
    return Refuse("Nothing has been changed", MessageStyle::Warning, txt7BillingDescription);
  }
  if (row == 0) return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt7BillingCode);
  const qint64 updated =
      ExecuteInTransaction("UPDATE " + Sql::Table("ID_BILLING_RATE") + " SET BILLING_RATE_DESC" +
                               gclsOF->LanguageSuffix() + " = " + Sql::NationalOr(description, "NULL") +
                               ", INVOICE_FLAG_OVR = " + Sql::NationalOr(InvoiceFlagLetter(), "NULL") +
                               " WHERE BILLING_RATE = " + Sql::National(code),
                           "***** SQL error on OSTANA.ID_BILLING_RATE (UPDATE) *****");
  if (updated == 0) return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt7BillingCode);
  form_.WriteRow(row);
  Tell("Record Updated", MessageStyle::Information);
  return true;
}

bool BillingRates::Delete() {
  form_.TrimAll();
  const QString code = txt7BillingCode->Text();
  if (code.isEmpty()) return Refuse("Please choose a record to be Deleted", MessageStyle::Warning, txt7BillingCode);
  if (RowOf(code) == 0) return Refuse(Texts::NoSuchRow, MessageStyle::Stop, txt7BillingCode);
  const QString question = "This will Delete all Corresponding Document Supply Records.\n" + Texts::DeleteQuestion;
  if (!Confirm(this, question)) return false;
  // Whether the rates under this code go as well or keep it is the database's rule.
  if (ExecuteInTransaction("DELETE FROM " + Sql::Table("ID_BILLING_RATE") + " WHERE BILLING_RATE = " + Sql::Plain(code),
                           "***** SQL error on OSTANA.ID_BILLING_RATE (DELETE) *****") == 0)
    return Refuse(Texts::NoSuchRow, MessageStyle::Stop, txt7BillingCode);
  LoadDataInGrid();
  Tell("Record Deleted", MessageStyle::Information);
  return true;
}

void BillingRates::Clear() {
  form_.Clear();
  grd7BillingRate->SetRowQuietly(0);
}
