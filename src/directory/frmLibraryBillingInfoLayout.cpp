// Controls of the billing screen and the custom texts that rename them.
#include <QHBoxLayout>

#include "directory/frmLibraryBillingInfo.h"
#include "shell/NumericFields.h"
#include "shell/Screens.h"

namespace {

constexpr TextKey Keys[] = {
    {"LIBRARY_mnuDisplayContact", "mnuDisplayContact"},
    {"LIBRARY_mnuDisplayLogin", "mnuDisplayLogin"},
    {"LIBRARY_pbContact", "cmdContact"},
    {"LIBRARY_pbLogin", "cmdLogin"},
    {"ID_LIBRARY.BILL_ADDRESS", "lblStreet1"},
    {"ID_LIBRARY.BILL_ADDRESS2", "lblStreet2"},
    {"ID_LIBRARY.BILL_CITY", "lblCity"},
    {"ID_LIBRARY.BILL_PROV_STATE", "lblStateProvince"},
    {"ID_LIBRARY.BILL_COUNTRY", "lblCountry"},
    {"ID_LIBRARY.BILL_POST_ZIPCODE", "lblZipPostalCode"},
    {"ID_LIBRARY.BILL_CONTACT", "lblBillingContact"},
    {"ID_LIBRARY.BILL_PHONE", "lblPhone"},
    {"ID_LIBRARY.BILL_FAX", "lblFax"},
    {"ID_LIBRARY.BILLING_TYPE", "lblBillingType"},
    {"ID_LIBRARY.BILLING_RATE", "lblBillingRate"},
    {"ID_LIBRARY.CURRENCY_CODE", "lblCurrency"},
    {"ID_LIBRARY.LIBRARY_ACCOUNT", "lblAccountNumber"},
    {"ID_LIBRARY.REQUESTS_PROCESSED", "lblNumberProcessed"},
    {"ID_LIBRARY.WEIGHTING_FACTOR", "lblWeightingFactor"},
    {"LIBRARY_fraCreditCard", "fraCreditCard"},
    {"ID_LIBRARY.CREDIT_CARD", "lblCCType"},
    {"ID_LIBRARY.CREDIT_CARD_NAME", "lblCCName"},
    {"ID_LIBRARY.CREDIT_CARD_NUM", "lblCCNumber"},
    {"ID_LIBRARY.CREDIT_CARD_EXP", "lblCCExpirationDate"},
    {"LIBRARY_CreditCardExpText", "lblCreditCardExpText"},
    {"ID_LIBRARY.CREDIT_CARD_CODE", "lblCCCode"},
    {"LIBRARY_fraQuota", "fraQuota"},
    {"ID_LIBRARY.QUOTA_TOTAL", "lblQTotal"},
    {"ID_LIBRARY.QUOTA_FILLED", "lblQFilled"},
    {"ID_LIBRARY.QUOTA_RESET_DATE", "lblQuotaResetDate"},
};

}  // namespace

frmLibraryBillingInfo::frmLibraryBillingInfo(QWidget* parent)
    : LibraryScreen(LibrarySibling::Billing, parent),
      defaultBillingType_(
          cboBillingType,
          {"LIBRARY_Default_BILLING_TYPE", "SELECT   BILLING_TYPE_DESC", "ID_BILLING_TYPE", "BILLING_TYPE",
           "***** SQL error on ID_BILLING_TYPE (Select) *****", "Warning: The Default Billing Type *", ""}),
      defaultBillingRate_(
          cboBillingRate,
          {"LIBRARY_Default_BILLING_RATE", "SELECT   BILLING_RATE_DESC", "ID_BILLING_RATE", "BILLING_RATE",
           "***** SQL error on ID_BILLING_RATE (Select) *****", "Warning: The Default Billing Rate *", ""}),
      defaultCurrency_(cmbCurrency, {"LIBRARY_Default_CURRENCY_CODE", "SELECT   CURRENCY_CODE_DESC", "ID_CURRENCY_CODE",
                                     "CURRENCY_CODE", "***** SQL error on ID_CURRENCY_CODE (Select) *****",
                                     "Warning: The Default Currency Code *", ""}),
      defaultCreditCard_(cboCCType, {"LIBRARY_Default_CREDIT_CARD", "SELECT   CREDIT_CARD_DESC", "ID_CREDIT_CARD",
                                     "CREDIT_CARD", "***** SQL error on ID_CREDIT_CARD (Select) *****",
                                     "Warning: The Default Credit Card Type *", ""}) {
  BuildControls();
  Shows({{txtStreet1, "BILL_ADDRESS1"},
         {txtStreet2, "BILL_ADDRESS2"},
         {txtCity, "BILL_CITY"},
         {txtStateProvince, "BILL_PROV_STATE"},
         {txtCountry, "BILL_COUNTRY"},
         {txtZipPostalCode, "BILL_POST_ZIPCODE"},
         {txtBillingContact, "BILL_CONTACT"},
         {txtPhone, "BILL_PHONE"},
         {txtFax, "BILL_FAX"},
         {txtAccountNumber, "LIBRARY_ACCOUNT"}});
  Shows({{cboBillingType, "BILLING_TYPE"}, {cboBillingRate, "BILLING_RATE"}, {cmbCurrency, "CURRENCY_CODE"}});
  Watch({txtNumberProcessed, txtWeightingFactor, txtCCName, txtCCExpirationDate, txtCCCode, txtQTotal});
  Watch({cboCCType});
  Watch({txtQuotaResetDate});
}

std::span<const TextKey> frmLibraryBillingInfo::TextKeys() const {
  return Keys;
}

void frmLibraryBillingInfo::ReadFurtherText(const CustomText& texts) {
  for (DefaultCode* code : Defaults()) code->Configure(texts);
  defaultQuotaTotal_ = texts.Value("LIBRARY_Default_QUOTA_TOTAL").trimmed();
}

void frmLibraryBillingInfo::BuildControls() {
  MakeReadOnly(txtQFilled);
  // Whoever keeps card numbers keeps them elsewhere; this box stays empty.
  MakeReadOnly(txtCCNumber);
  MakeNumeric(*txtNumberProcessed, lblNumberProcessed, "99999999", "#######0", true, true);
  MakeNumeric(*txtWeightingFactor, lblWeightingFactor, "99.99", "#####0.00", true, true);
  MakeNumeric(*txtQTotal, lblQTotal, "9999999", "######0", true, true);

  auto* const content = new QWidget(this);
  auto* const columns = new QHBoxLayout(content);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->addWidget(AddressPart(), 1, Qt::AlignTop);
  columns->addWidget(AccountPart(), 1, Qt::AlignTop);

  AddEntry(mnuOptions, "mnuOptionsSuppliers", "Sequence Su&ppliers", cmdSequenceSupplier);
  mnuOptionsAnnotation = Form::MenuEntry(mnuOptions, "mnuOptionsAnnotation", "A&nnotation Template");
  mnuOptionsResetLoadBalancing = Form::MenuEntry(mnuOptions, "mnuOptionsResetLoadBalancing", "Reset &Load Balancing");
  connect(cmdSequenceSupplier, &QPushButton::clicked, this,
          [this] { Run("cmdSequenceSupplier_Click", [this] { ::ShowModal("frmLibrarySequence", this); }); });
  connect(mnuOptionsAnnotation, &QAction::triggered, this,
          [this] { Run("mnuOptionsAnnotation_Click", [this] { ::ShowModal("frmLibraryAnnotationTemplate", this); }); });
  connect(mnuOptionsResetLoadBalancing, &QAction::triggered, this,
          &frmLibraryBillingInfo::mnuOptionsResetLoadBalancing_Click);

  Compose(content, {cmdSequenceSupplier, nullptr, cmdUpdate, cmdClear, cmdClose});
  resize(1120, 680);
}

QWidget* frmLibraryBillingInfo::AddressPart() {
  auto* const part = new QWidget(this);
  auto* const address = Form::Frame(part, "fraAddress", "Billing Address");
  Form::Rows rows(address);
  rows.Add("lblStreet1", "Street:", txtStreet1);
  rows.Add("lblStreet2", "Street 2:", txtStreet2);
  rows.Add("lblCity", "City:", txtCity);
  rows.Add("lblStateProvince", "State/Province:", txtStateProvince);
  rows.Add("lblCountry", "Country:", txtCountry);
  rows.Add("lblZipPostalCode", "Zip/Postal Code:", txtZipPostalCode);
  rows.Add("lblBillingContact", "Billing Contact:", txtBillingContact);
  rows.Add("lblPhone", "Phone:", txtPhone);
  rows.Add("lblFax", "Fax:", txtFax);

  Form::Rows card(fraCreditCard);
  card.Add("lblCCType", "Type:", cboCCType);
  card.Add("lblCCName", "Name:", txtCCName);
  card.Add("lblCCNumber", "Number:", txtCCNumber);
  card.Add("lblCCExpirationDate", "Expiration Date:", txtCCExpirationDate, lblCreditCardExpText);
  card.Add("lblCCCode", "Code:", txtCCCode);

  QVBoxLayout* const column = Form::Column(part, {address, fraCreditCard});
  column->setContentsMargins(0, 0, 0, 0);
  return part;
}

QWidget* frmLibraryBillingInfo::AccountPart() {
  auto* const part = new QWidget(this);
  auto* const account = Form::Frame(part, "fraAccount", "Account");
  Form::Rows rows(account);
  rows.Add("lblAccountNumber", "Account Number:", txtAccountNumber);
  rows.Add("lblBillingType", "Billing Type:", cboBillingType);
  rows.Add("lblBillingRate", "Billing Rate:", cboBillingRate);
  rows.Add("lblCurrency", "Billing Currency:", cmbCurrency);

  Form::Rows balancing(fraLoadBalancing);
  balancing.Add(lblNumberProcessed, txtNumberProcessed);
  balancing.Add(lblWeightingFactor, txtWeightingFactor);

  Form::Rows quota(fraQuota);
  quota.Add(lblQTotal, txtQTotal);
  quota.Add("lblQFilled", "Quota Filled:", txtQFilled);
  quota.Add("lblQuotaResetDate", "Quota Reset Date:", txtQuotaResetDate);

  QVBoxLayout* const column = Form::Column(part, {account, fraLoadBalancing, fraQuota});
  column->setContentsMargins(0, 0, 0, 0);
  return part;
}
