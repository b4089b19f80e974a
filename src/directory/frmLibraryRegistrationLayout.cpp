// Controls of the registration screen and the custom texts that rename them.
#include <QHBoxLayout>

#include "core/ModuleState.h"
#include "directory/FaxInput.h"
#include "directory/frmLibraryRegistration.h"

namespace {

constexpr int LongestZoneOnShow = 40;  // characters

constexpr TextKey Keys[] = {
    {"LIBRARY_mnuDisplayBilling", "mnuDisplayBilling"},
    {"LIBRARY_mnuDisplayContact", "mnuDisplayContact"},
    {"LIBRARY_mnuDisplayLogin", "mnuDisplayLogin"},
    {"LIBRARY_mnuDisplaySupplier", "mnuDisplaySupplier"},
    {"LIBRARY_mnuDisplayPatron", "mnuDisplayPatron"},
    {"LIBRARY_mnuOptionsAdd", "mnuOptionsAdd"},
    {"LIBRARY_mnuOptionsDelete", "mnuOptionsDelete"},
    {"LIBRARY_pbBilling", "cmdBilling"},
    {"LIBRARY_pbContact", "cmdContact"},
    {"LIBRARY_pbLogin", "cmdLogin"},
    {"LIBRARY_pbSupplier", "cmdSupplier"},
    {"LIBRARY_pbPatron", "cmdPatron"},
    {"LIBRARY_pbAdd", "cmdAdd"},
    {"LIBRARY_pbDelete", "cmdDelete"},
    {"ID_LIBRARY.PRIME_ADDRESS", "lblStreet1"},
    {"ID_LIBRARY.PRIME_ADDRESS2", "lblStreet2"},
    {"ID_LIBRARY.PRIME_CITY", "lblCity"},
    {"ID_LIBRARY.PRIME_PROV_STATE", "lblStateProvince"},
    {"ID_LIBRARY.PRIME_COUNTRY", "lblCountry"},
    {"ID_LIBRARY.PRIME_POST_ZIPCODE", "lblZipPostalCode"},
    {"ID_LIBRARY.DELIV_METHOD_COPY", "lblDeliveryMethodCopy"},
    {"ID_LIBRARY.DELIV_METHOD_LOAN", "lblDeliveryMethodLoan"},
    {"ID_LIBRARY.DELIV_FAX", "lblDeliveryFax"},
    {"ID_LIBRARY.DELIV_EMAIL", "lblDeliveryEmail"},
    {"LIBRARY_pbMessageFormat", "cmdMessageFormat"},
    {"LIBRARY_pbMessageFormatToolTip", "cmdMessageFormat", 0, "The e-mail that goes with an electronic delivery"},
    {"ID_LIBRARY.MSG_METHOD", "lblMsgMethod"},
    {"ID_LIBRARY.MSG_FAX", "lblMsgFax"},
    {"ID_LIBRARY.MSG_EMAIL", "lblMsgEmail"},
    {"ID_LIBRARY.FILE_FORMAT", "lblFileFormat"},
    {"ID_LIBRARY.MSG_FORMAT", "lblEmailMsgFormat"},
    {"ID_LIBRARY.ODYSSEY_ADDRESS", "lblOdyssey"},
    {"ID_LIBRARY.INTERNET_ARIEL", "lblAriel"},
    {"ID_LIBRARY.DELIV_SERVICE", "lblDeliveryService"},
    {"ID_LIBRARY.DOCVIEW_ADDRESS", "lblDocview"},
};

}  // namespace

frmLibraryRegistration::frmLibraryRegistration(QWidget* parent)
    : LibraryScreen(LibrarySibling::Registration, parent),
      defaultCopy_(
          cmbDeliveryMethodCopy,
          {"LIBRARY_Default_DELIV_METHOD_COPY", "SELECT   DELIV_METHOD_DESC", "ID_DELIV_METHOD", "DELIV_METHOD",
           "***** SQL error on ID_DELIV_METHOD (Select) *****", "Warning: The Default Delivery Method Copy *", "M"}),
      defaultLoan_(
          cmbDeliveryMethodLoan,
          {"LIBRARY_Default_DELIV_METHOD_LOAN", "SELECT   DELIV_METHOD_DESC", "ID_DELIV_METHOD", "DELIV_METHOD",
           "***** SQL error on ID_DELIV_METHOD (Select) *****", "Warning: The Default Delivery Method Loan *", "M"}),
      // The failure line names another table; the log readers know it so.
      defaultMessaging_(cboMsgMethod, {"LIBRARY_Default_MSG_METHOD", "SELECT   MSG_METHOD_DESC", "ID_MSG_METHOD",
                                       "MSG_METHOD", "***** SQL error on ID_BILLING_TYPE (Select) *****",
                                       "Warning: The Default Messaging Method *", "M"}),
      defaultFileFormat_(cboFileFormat, {"LIBRARY_Default_FILE_FORMAT", "SELECT   FILE_FORMAT_DESC", "ID_FILE_FORMAT",
                                         "FILE_FORMAT", "***** SQL error on ID_FILE_FORMAT (Select) *****",
                                         "Warning: The Default File Format *", "P"}),
      // A default notify format that is not in the list is passed over in silence.
      defaultMsgFormat_(cmbEmailMsgFormat, {"LIBRARY_Default_MSG_FORMAT", "SELECT   MSG_FORMAT_DESC", "ID_MSG_FORMAT",
                                            "MSG_FORMAT", "***** SQL error on ID_MSG_FORMAT (Select) *****", "", "T"}) {
  BuildControls();
  ConnectControls();
}

std::span<const TextKey> frmLibraryRegistration::TextKeys() const {
  return Keys;
}

void frmLibraryRegistration::ReadFurtherText(const CustomText& texts) {
  for (DefaultCode* code : Defaults()) code->Configure(texts);
}

void frmLibraryRegistration::BuildControls() {
  for (TextBox* box : {txtInstitution, txtLibraryName, txtContact}) MakeEditable(box);
  txtInstitution->UpperCaseAsTyped();
  txtLibraryName->UpperCaseAsTyped();
  chkDeliveryFax->setToolTip("Turn off formatting for the delivery fax number");
  chkMessagingFax->setToolTip("Turn off formatting for the messaging fax number");

  cmbTimeZone->setMinimumContentsLength(LongestZoneOnShow);
  cmbTimeZone->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

  auto* const content = new QWidget(this);
  auto* const columns = new QHBoxLayout(content);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->addWidget(AddressPart(), 1, Qt::AlignTop);
  columns->addWidget(DeliveryPart(), 1, Qt::AlignTop);

  QAction* const search = findChild<QAction*>("mnuOptionsSearch");
  AddEntry(mnuOptions, "mnuOptionsAdd", "&Add", cmdAdd, findChild<QAction*>("mnuOptionsUpdate"));
  AddEntry(mnuOptions, "mnuOptionsDelete", "D&elete", cmdDelete, search);
  mnuDisplay->addSeparator()->setObjectName("mnuDisplaySep");
  AddEntry(mnuDisplay, "mnuDisplaySupplier", "Su&pplier", cmdSupplier);
  AddEntry(mnuDisplay, "mnuDisplayPatron", "Patr&on", cmdPatron);
  Compose(content, {cmdMessageFormat, nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClear, cmdClose},
          {cmdSupplier, cmdPatron});
  Form::Require({txtLibrarySymbol, txtInstitution});
  resize(1180, 700);
}

QWidget* frmLibraryRegistration::AddressPart() {
  auto* const part = Form::Frame(this, "fraAddress", "Address");
  Form::Rows rows(part);
  rows.Add("lblStreet1", "Street:", txtStreet1);
  rows.Add("lblStreet2", "Street 2:", txtStreet2);
  rows.Add("lblCity", "City:", txtCity);
  rows.Add("lblStateProvince", "State/Province:", txtStateProvince);
  rows.Add("lblCountry", "Country:", txtCountry);
  rows.Add("lblZipPostalCode", "Zip/Postal Code:", txtZipPostalCode);
  rows.Add("lblTimeZone", "Timezone:", cmbTimeZone);
  return part;
}

QWidget* frmLibraryRegistration::DeliveryPart() {
  auto* const part = Form::Frame(this, "fraDelivery", "Delivery and Messaging");
  Form::Rows rows(part);
  rows.Add("lblDeliveryMethodCopy", "Delivery Method Copy:", cmbDeliveryMethodCopy);
  rows.Add("lblDeliveryMethodLoan", "Delivery Method Loan:", cmbDeliveryMethodLoan);
  rows.Add("lblFileFormat", "E-Mail Image Format:", cboFileFormat);
  rows.Add("lblEmailMsgFormat", "E-Mail Notify Format:", cmbEmailMsgFormat);
  rows.Add("lblDeliveryFax", "Delivery Fax:", txtDeliveryFax, chkDeliveryFax);
  rows.Add("lblDeliveryEmail", "Delivery E-Mail:", txtDeliveryEmail);
  rows.Add("lblMsgMethod", "Messaging Method:", cboMsgMethod);
  rows.Add("lblMsgFax", "Messaging Fax:", txtMsgFax, chkMessagingFax);
  rows.Add("lblMsgEmail", "Messaging E-Mail:", txtMsgEmail);
  rows.Add(lblAriel, txtAriel);
  rows.Add("lblOdyssey", "Odyssey Address:", txtOdyssey);
  rows.Add("lblDeliveryService", "Delivery Service:", txtDeliveryService);
  rows.Add("lblDocview", "Docview:", txtDocview);
  return part;
}

void frmLibraryRegistration::ConnectControls() {
  deliveryFax_ = new FaxInput(txtDeliveryFax, chkDeliveryFax, "Enter a Valid value for the Delivery Fax Number.");
  messagingFax_ = new FaxInput(txtMsgFax, chkMessagingFax, "Enter a Valid value for the Messaging Fax Number.");
  // The delivery fax may be left unfinished.
  txtMsgFax->SetLeaveCheck([this] {
    if (messagingFax_->MayLeave()) return true;
    messagingFax_->TellUnfinished();
    return false;
  });
  Shows({{txtStreet1, "PRIME_ADDRESS1"},
         {txtStreet2, "PRIME_ADDRESS2"},
         {txtCity, "PRIME_CITY"},
         {txtStateProvince, "PRIME_PROV_STATE"},
         {txtCountry, "PRIME_COUNTRY"},
         {txtZipPostalCode, "PRIME_POST_ZIPCODE"},
         {txtDeliveryEmail, "DELIV_EMAIL"},
         {txtMsgEmail, "MSG_EMAIL"},
         {txtAriel, "INTERNET_ARIEL"},
         {txtOdyssey, "ODYSSEY_ADDRESS"},
         {txtDeliveryService, "DELIVERY_SERVICE"},
         {txtDocview, "DOCVIEW_ADDRESS"}});
  // A zone that the list does not know stays on the record as it is.
  Shows({{cmbTimeZone, "TIMEZONE"}});
  Watch({txtInstitution, txtLibraryName, txtContact, txtDeliveryFax, txtMsgFax});
  Watch({cmbDeliveryMethodCopy, cmbDeliveryMethodLoan, cboFileFormat, cmbEmailMsgFormat, cboMsgMethod});
  connect(cmdAdd, &QPushButton::clicked, this, &frmLibraryRegistration::cmdAdd_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmLibraryRegistration::cmdDelete_Click);
  connect(cmdSupplier, &QPushButton::clicked, this, &frmLibraryRegistration::cmdSupplier_Click);
  connect(cmdPatron, &QPushButton::clicked, this, &frmLibraryRegistration::cmdPatron_Click);
  connect(cmdMessageFormat, &QPushButton::clicked, this, &frmLibraryRegistration::cmdMessageFormat_Click);
}
