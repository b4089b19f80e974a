#include "directory/frmLibraryBillingInfo.h"

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/ColumnValues.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"

namespace {

const QString Processed = "#######0", Weight = "#####0.00", Quota = "######0";

// In the writing of the machine; a NULL leaves the box empty.
QString Shown(const QString& stored, const QString& mask) {
  return stored.isEmpty() ? QString() : Numbers::Format(Numbers::Val(stored), mask);
}

}  // namespace

// --- Loading ---

void frmLibraryBillingInfo::LoadSettings() {
  txtQuotaResetDate->SetFormat("yyyy-mm-dd");
  txtQuotaResetDate->SetDate(Clock::Today());
  txtQuotaResetDate->SetNone();
  mnuOptionsResetLoadBalancing->setVisible(gbUseLoadBalancing);
}

std::vector<CodeList> frmLibraryBillingInfo::CodeLists() const {
  const auto list = [](CodeComboBox* box, const QString& code) {
    const QString table = "ID_" + code;
    return CodeList{
        SelectCodes("SELECT   ", code, table), "***** SQL error on " + table + " (Select) *****", {box}, "(None)"};
  };
  return {list(cboBillingType, "BILLING_TYPE"), list(cboBillingRate, "BILLING_RATE"),
          list(cmbCurrency, "CURRENCY_CODE"), list(cboCCType, "CREDIT_CARD")};
}

void frmLibraryBillingInfo::ChooseDefaults() {
  for (DefaultCode* code : Defaults()) code->Choose(this, ListWasRead(code->Box()));
}

void frmLibraryBillingInfo::ShowNoRecord() {
  txtQTotal->SetText(defaultQuotaTotal_);
  ShowButton(cmdSequenceSupplier, false);
}

void frmLibraryBillingInfo::EnableRecord(bool enabled) {
  LibraryScreen::EnableRecord(enabled);
  mnuOptionsAnnotation->setEnabled(enabled);
}

// --- The record ---

QString frmLibraryBillingInfo::Columns() const {
  return ", BILLING_TYPE, BILLING_RATE, BILL_ADDRESS1, BILL_ADDRESS2, BILL_CITY, BILL_PROV_STATE, BILL_COUNTRY, "
         "BILL_POST_ZIPCODE, BILL_CONTACT, BILL_PHONE, BILL_FAX, LIBRARY_ACCOUNT, CURRENCY_CODE, CREDIT_CARD, "
         "CREDIT_CARD_NAME, CREDIT_CARD_NUM, CREDIT_CARD_EXP, CREDIT_CARD_CODE, QUOTA_TOTAL, QUOTA_FILLED, "
         "QUOTA_RESET_DATE, REQUESTS_PROCESSED, WEIGHTING_FACTOR";
}

void frmLibraryBillingInfo::ReadFurther(const Recordset&, qint32 libraryId) {
  FirstValue(
      "SELECT   SUPPLIER_CODE "
      " FROM " +
          Sql::Table("ID_SUPPLIER") + " WHERE    LIBRARY_ID = " + Sql::Number(libraryId),
      "***** SQL error on ID_SUPPLIER (Select) *****", &hasSuppliers_);
}

void frmLibraryBillingInfo::ShowRecord(const Recordset& rows) {
  txtNumberProcessed->SetText(Shown(Value(rows, "REQUESTS_PROCESSED"), Processed));
  txtWeightingFactor->SetText(Shown(Value(rows, "WEIGHTING_FACTOR"), Weight));
  txtQTotal->SetText(Shown(Value(rows, "QUOTA_TOTAL"), Quota));
  txtQFilled->SetText(Value(rows, "QUOTA_FILLED"));
  txtQuotaResetDate->SetDate(QDate::fromString(Value(rows, "QUOTA_RESET_DATE").left(10), Qt::ISODate));
  // A stored card is never shown again. What these boxes hold is what the next Update stores.
  for (TextBox* box : {txtCCName, txtCCNumber, txtCCExpirationDate, txtCCCode}) box->clear();
  cboCCType->SetCode({});
  ShowButton(cmdSequenceSupplier, hasSuppliers_);
}

void frmLibraryBillingInfo::ClearFields() {
  for (TextBox* box :
       {txtNumberProcessed, txtWeightingFactor, txtCCName, txtCCNumber, txtCCExpirationDate, txtCCCode, txtQFilled})
    box->clear();
  ChooseDefaults();
  txtQTotal->SetText(defaultQuotaTotal_);
  txtQuotaResetDate->SetNone();
  ShowButton(cmdSequenceSupplier, false);
}

// --- Update ---

void frmLibraryBillingInfo::cmdUpdate_Click() {
  RunUpdate("cmdUpdate_Click", Texts::NotifySupport, [this] {
    if (!HasRecordToUpdate() || !SymbolIsGiven()) return;
    Trim({txtLibrarySymbol, txtInstitution, txtBillingContact, txtNumberProcessed, txtWeightingFactor, txtQTotal});
    if (!ResetDateIsValid()) return;
    if (RowWasFound(ExecuteInTransaction(UpdateStatement(), "***** SQL error on ID_library (Insert) *****")))
      TellUpdated();
  });
}

// A day begins before the present moment, so that today is refused too.
bool frmLibraryBillingInfo::ResetDateIsValid() {
  if (txtQuotaResetDate->IsNone() || txtQuotaResetDate->Date().startOfDay() >= Clock::Now()) return true;
  return Refuse("The Quota Reset Date must be a future date.", txtQuotaResetDate);
}

QString frmLibraryBillingInfo::UpdateStatement() const {
  const QDate reset = txtQuotaResetDate->Date();
  ColumnValues row;
  row.Bare("LAST_MODIFIED", PresentDate())
      .Text("BILL_ADDRESS1", txtStreet1->Text())
      .Text("BILL_ADDRESS2", txtStreet2->Text())
      .Text("BILL_CITY", txtCity->Text())
      .Text("BILL_PROV_STATE", txtStateProvince->Text())
      .Text("BILL_COUNTRY", txtCountry->Text())
      .Text("BILL_POST_ZIPCODE", txtZipPostalCode->Text())
      .Text("BILLING_TYPE", cboBillingType->Code())
      .Text("BILL_FAX", txtFax->Text())
      .Text("BILL_PHONE", txtPhone->Text())
      .Text("BILLING_RATE", cboBillingRate->Code())
      .Number("REQUESTS_PROCESSED", txtNumberProcessed->Text())
      .Number("WEIGHTING_FACTOR", txtWeightingFactor->Text())
      .Text("CREDIT_CARD_NAME", txtCCName->Text())
      .Text("BILL_CONTACT", txtBillingContact->Text())
      .Text("CREDIT_CARD_EXP", txtCCExpirationDate->Text())
      .Text("CREDIT_CARD_CODE", txtCCCode->Text())
      .Number("QUOTA_TOTAL", txtQTotal->Text())
      .Text("LIBRARY_ACCOUNT", txtAccountNumber->Text())
      .Text("CURRENCY_CODE", cmbCurrency->Code())
      .Text("CREDIT_CARD", cboCCType->Code())
      .Bare("QUOTA_RESET_DATE", reset.isValid() ? gclsOF->SqlDate(reset) : "Null");
  return UpdateOfRecord(row);
}

// --- Load balancing ---

void frmLibraryBillingInfo::mnuOptionsResetLoadBalancing_Click() {
  const QString failed =
      "An error has occurred while attempting to reset Load Balancing.  If the error persists notify support.";
  RunUpdate("mnuOptionsResetLoadBalancing_Click", failed, [this] {
    if (!Confirm(this, "Are you sure wish to reset Load Balancing?")) return;
    ResetLoadBalancing();
    // The number on show would bring the old counter back with the next Update.
    if (record().Status() != Record::State::None) {
      const Record::Filling filling(record());
      txtNumberProcessed->SetText(Numbers::Format(0, Processed));
    }
    Tell(this, "Load Balancing has been reset.", MessageStyle::Information);
    gclsOF->WriteLog("Load Balancing has been reset.", {}, "L");
  });
}
