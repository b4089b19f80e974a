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
  WatchAnyChange(record(), txt7BillingCode);
  WatchAnyChange(record(), txt7BillingDescription);
  connect(cmb7InvoiceFlag, &CodeComboBox::Click, this, [this] {
    gstrErrorMessage.clear();
    record().Touched();
  });
  connect(grd7BillingRate, &Grid::SelChange, this, &BillingRates::grd7BillingRate_SelChange);
  KeepRowOnSort(grd7BillingRate);
}

QString BillingRates::CurrentCode() const {
  return HasCurrentRow() ? grd7BillingRate->Text(grd7BillingRate->Row(), Code) : QString();
}

void BillingRates::SelectFirstRow() {
  if (grd7BillingRate->Rows() > 1) grd7BillingRate->SetRow(1);
}

void BillingRates::grd7BillingRate_SelChange() {
  const int row = grd7BillingRate->Row();
  if (gbSkipGridEvents || row == 0) return;
  {
    const FillingFields filling;
    txt7BillingCode->SetText(grd7BillingRate->Text(row, Code));
    txt7BillingDescription->SetText(grd7BillingRate->Text(row, Description));
    if (!cmb7InvoiceFlag->SetCode(grd7BillingRate->Text(row, InvoiceFlag))) cmb7InvoiceFlag->SetIndex(0);
  }
  record().Settled();
  txt7BillingCode->setFocus();
}

void BillingRates::TrimBoxes() {
  const FillingFields filling;
  txt7BillingCode->TrimUpperInPlace();
  txt7BillingDescription->TrimInPlace();
}

bool BillingRates::Add() {
  // The text as typed is tested, so that a blank goes on to the database; the focus goes to the other sub-tab's box.
  if (txt7BillingCode->Text().isEmpty())
    return Refuse("Please enter a Valid Code.", MessageStyle::Warning, codeOfRateTables_);
  TrimBoxes();
  const QString code = txt7BillingCode->Text();
  if (grd7BillingRate->FindRow(code, Code) > 0)
    return Refuse("This record already exists", MessageStyle::Warning, txt7BillingCode);
  const QString description = Sql::NationalOr(txt7BillingDescription->Text(), "NULL");
  const Sql::LanguagePieces languages = Sql::LanguageColumns("BILLING_RATE_DESC_", description);
  ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_BILLING_RATE") + " (BILLING_RATE, BILLING_RATE_DESC" +
                           languages.columns + ", INVOICE_FLAG_OVR) VALUES (" + Sql::National(code) + ", " +
                           description + languages.values + ", " + Sql::NationalOr(InvoiceFlagLetter(), "NULL") + ")",
                       "***** SQL error on OSTANA.ID_BILLING_RATE (INSERT INTO) *****");
  LoadDataInGrid();
  grd7BillingRate->SetRow(grd7BillingRate->FindRow(code, Code));
  Tell("Record Added", MessageStyle::Information);
  return true;
}

bool BillingRates::Update() {
  TrimBoxes();
  const QString code = txt7BillingCode->Text();
  const QString description = txt7BillingDescription->Text();
  const int row = grd7BillingRate->FindRow(code, Code);
  if (row > 0 && description == grd7BillingRate->Text(row, Description) &&
      InvoiceFlagLetter() == grd7BillingRate->Text(row, InvoiceFlag)) {
    record().Settled();
    return Refuse("Nothing has been changed", MessageStyle::Warning, txt7BillingDescription);
  }
  if (row == 0)
    return Refuse("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop,
                  txt7BillingCode);
  ExecuteInTransaction("UPDATE " + Sql::Table("ID_BILLING_RATE") + " SET BILLING_RATE_DESC" + gclsOF->LanguageSuffix() +
                           " = " + Sql::NationalOr(description, "NULL") +
                           ", INVOICE_FLAG_OVR = " + Sql::NationalOr(InvoiceFlagLetter(), "NULL") +
                           " WHERE BILLING_RATE = " + Sql::National(code),
                       "***** SQL error on OSTANA.ID_BILLING_RATE (UPDATE) *****");
  grd7BillingRate->SetText(row, Description, description);
  grd7BillingRate->SetText(row, InvoiceFlag, InvoiceFlagLetter());
  Tell("Record Updated", MessageStyle::Information);
  return true;
}

bool BillingRates::Delete() {
  TrimBoxes();
  const QString code = txt7BillingCode->Text();
  if (code.isEmpty()) return Refuse("Please choose a record to be Deleted", MessageStyle::Warning, txt7BillingCode);
  if (grd7BillingRate->FindRow(code, Code) == 0)
    return Refuse("Please select a valid record from the table.", MessageStyle::Stop, txt7BillingCode);
  const QString question = "This will Delete all Corresponding Document Supply Records.\n" + Texts::DeleteQuestion;
  if (Tell(question, MessageStyle::Question) != MessageAnswer::Yes) return false;
  // Whether the rates under this code go as well or keep it is the database's rule.
  ExecuteInTransaction("DELETE FROM " + Sql::Table("ID_BILLING_RATE") + " WHERE BILLING_RATE = " + Sql::Plain(code),
                       "***** SQL error on OSTANA.ID_BILLING_RATE (DELETE) *****");
  LoadDataInGrid();
  Tell("Record Deleted", MessageStyle::Information);
  return true;
}

void BillingRates::Clear() {
  const FillingFields filling;
  txt7BillingCode->SetText({});
  txt7BillingDescription->SetText({});
  cmb7InvoiceFlag->SetIndex(0);
  grd7BillingRate->SetRowQuietly(0);
}
