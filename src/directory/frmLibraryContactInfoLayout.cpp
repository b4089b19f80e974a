// Controls of the contact screen and the custom texts that rename them.
#include <QGridLayout>
#include <QHBoxLayout>

#include "directory/frmLibraryContactInfo.h"
#include "shell/Screens.h"

namespace {

constexpr TextKey Keys[] = {
    {"LIBRARY_mnuDisplayBilling", "mnuDisplayBilling"},
    {"LIBRARY_mnuDisplayLogin", "mnuDisplayLogin"},
    {"LIBRARY_pbBilling", "cmdBilling"},
    {"LIBRARY_pbLogin", "cmdLogin"},
    {"ID_LIBRARY.CONTACT_PHONE", "lblPhone"},
    {"ID_LIBRARY.CONTACT_FAX", "lblFax"},
    {"ID_LIBRARY.CONTACT_EMAIL", "lblEmail"},
    {"ID_LIBRARY.CONTACT_PHONE2", "lblAltPhone"},
    {"ID_LIBRARY.CONTACT_FAX2", "lblAltFax"},
    {"ID_LIBRARY.CONTACT_EMAIL2", "lblAltEmail"},
    {"ID_LIBRARY.NOTE", "lblNote"},
    {"ID_LIBRARY.NOTICE", "lblNotice"},
    {"ID_LIBRARY.NOTICE_SDATE", "lblNoticeStartDate"},
    {"ID_LIBRARY.NOTICE_EDATE", "lblNoticeEndDate"},
    {"ID_LIBRARY.REPLY_ADDRESS_ISO_SMTP", "lblReplyAddressSMTP"},
    {"ID_LIBRARY.REPLY_ADDRESS_ISO_SMTPToolTip", "txtReplyAddressSMTP", 0, "E-mail address for ISO ILL replies"},
    {"ID_LIBRARY.REPLY_ADDRESS_ISO_TCP", "lblReplyAddressTCP"},
    {"ID_LIBRARY.REPLY_ADDRESS_ISO_TCPToolTip", "txtReplyAddressTCP", 0, "IP address and port for ISO ILL replies"},
    {"ID_LIBRARY.REPLY_ADDRESS_GSM", "lblReplyAddressGSM"},
    {"ID_LIBRARY.REPLY_ADDRESS_GSMToolTip", "txtReplyAddressGSM", 0, "E-mail address, or host and port"},
    {"ID_LIBRARY.NCIP_SERVER_LIBRARY_ID", "lblNCIPServerLibrary"},
    {"ID_LIBRARY.NCIP_SERVER_LIBRARY_IDToolTip", "txtNCIPServerLibrary", 0,
     "Symbol of the library whose NCIP server is used"},
    {"LIBRARY_pbFindLibrary", "cmdFindLibrary"},
    {"ID_LIBRARY.NCIP_USE_SERVER_PROFILE", "lblUseThisProfile"},
    {"ID_LIBRARY.NCIP_USE_SERVER_PROFILEToolTip", "optUseThisProfileYes", 0,
     "Whether the server library's profile is used"},
    {"ID_LIBRARY.NCIP_USE_SERVER_PROFILEToolTip", "optUseThisProfileNo", 0,
     "Whether the server library's profile is used"},
    {"LIBRARY_optUseThisProfileYes", "optUseThisProfileYes"},
    {"LIBRARY_optUseThisProfileNo", "optUseThisProfileNo"},
    {"LIBRARY_pbUnitLibraries", "cmdUnitLibraries"},
    {"LIBRARY_pbUpdateProfile", "cmdUpdateProfile"},
    {"LIBRARY_pbStatusCodes", "cmdStatusCodes"},
    {"LIBRARY_pbConfigureNCIPServer", "cmdConfigureNCIPServer"},
};

}  // namespace

frmLibraryContactInfo::frmLibraryContactInfo(QWidget* parent) : LibraryScreen(LibrarySibling::Contact, parent) {
  BuildControls();
  ConnectControls();
}

std::span<const TextKey> frmLibraryContactInfo::TextKeys() const {
  return Keys;
}

void frmLibraryContactInfo::BuildControls() {
  // Institution and library name are read only here.
  MakeEditable(txtContact);
  for (TextBox* box : {txtContact, txtInstitution, txtLibraryName}) box->UpperCaseAsTyped();
  optSendCurrentSupplier->Select(SupplierDefault);
  optUseThisProfile->Select(ProfileNo);
  EnableServerButtons(false);
  mnuOptionsConfigureAPI = Form::MenuEntry(mnuOptions, "mnuOptionsConfigureAPI", "Configure A&PI Server");

  auto* const content = new QWidget(this);
  auto* const columns = new QHBoxLayout(content);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(10);
  columns->addWidget(ContactPart(), 4);
  columns->addWidget(ReplyPart(), 4);
  columns->addWidget(IsoPart(), 3);
  Compose(content, {cmdUpdate, cmdClear, cmdClose});
  resize(1270, 720);
}

QWidget* frmLibraryContactInfo::ContactPart() {
  auto* const part = new QWidget(this);
  auto* const people = Form::Frame(part, "fraContact", "Contact");
  Form::Rows contact(people);
  contact.Add("lblPhone", "Phone:", txtPhone);
  contact.Add("lblFax", "Fax:", txtFax);
  contact.Add("lblEmail", "E-Mail:", txtEmail);
  contact.Add("lblAltPhone", "Alternate Phone:", txtAltPhone);
  contact.Add("lblAltFax", "Alternate Fax:", txtAltFax);
  contact.Add("lblAltEmail", "Alternate E-Mail:", txtAltEmail);
  contact.Add("lblNote", "Note:", txtNote);

  auto* const period = Form::Frame(part, "fraNotice", "Notice");
  Form::Rows notice(period);
  notice.Add("lblNotice", "Notice:", txtNotice);
  notice.Add("lblNoticeStartDate", "Start Date:", dtpNoticeStartDate);
  notice.Add("lblNoticeEndDate", "End Date:", dtpNoticeEndDate);

  QVBoxLayout* const column = Form::Column(part, {people, period});
  column->setContentsMargins(0, 0, 0, 0);
  column->addStretch();
  return part;
}

QWidget* frmLibraryContactInfo::ReplyPart() {
  auto* const part = new QWidget(this);
  auto* const addresses = Form::Frame(part, "fraReplyAddresses", "ISO ILL");
  Form::Rows reply(addresses);
  reply.Add("lblReplyAddressSMTP", "Reply ISO SMTP:", txtReplyAddressSMTP);
  reply.Add("lblReplyAddressTCP", "Reply ISO TCP/IP:", txtReplyAddressTCP);
  reply.Add("lblReplyAddressGSM", "Reply Address GSM:", txtReplyAddressGSM);
  reply.Add("lblSendCurrentSupplier", "Send Current Supplier:", optSendCurrentSupplier->Row());

  auto* const ncip = Form::Frame(part, "fraNCIP", "NCIP");
  Form::Rows server(ncip);
  server.Add("lblNCIPServerLibrary", "NCIP Server Library:", txtNCIPServerLibrary);
  server.Add("lblUseThisProfile", "Use Server Profile:", optUseThisProfile->Row());
  auto* const buttons = new QGridLayout;
  buttons->setSpacing(8);
  buttons->addWidget(cmdFindLibrary, 0, 0);
  buttons->addWidget(cmdConfigureNCIPServer, 0, 1);
  buttons->addWidget(cmdUnitLibraries, 1, 0);
  buttons->addWidget(cmdStatusCodes, 1, 1);
  buttons->addWidget(cmdUpdateProfile, 2, 0);
  server.Wide(buttons);

  QVBoxLayout* const column = Form::Column(part, {addresses, ncip});
  column->setContentsMargins(0, 0, 0, 0);
  column->addStretch();
  return part;
}

QWidget* frmLibraryContactInfo::IsoPart() {
  auto* const part = Form::Frame(this, "fraISO18626", "ISO 18626");
  Form::Rows rows(part);
  rows.Add("lblConnectionID", "Connection Id:", txtConnectionID, cmdConfigISO18626Connection);
  rows.Wide(receiveIds_, 1);
  rows.Wide(sendIds_, 1);
  return part;
}

void frmLibraryContactInfo::ConnectControls() {
  Shows({{txtEmail, "CONTACT_EMAIL"},
         {txtAltEmail, "CONTACT_EMAIL2"},
         {txtPhone, "CONTACT_PHONE"},
         {txtAltPhone, "CONTACT_PHONE2"},
         {txtFax, "CONTACT_FAX"},
         {txtAltFax, "CONTACT_FAX2"},
         {txtNote, "NOTE"},
         {txtNotice, "NOTICE"},
         {txtReplyAddressSMTP, "REPLY_ADDRESS_ISO_SMTP"},
         {txtReplyAddressTCP, "REPLY_ADDRESS_ISO_TCP"},
         {txtReplyAddressGSM, "REPLY_ADDRESS_GSM"},
         {txtConnectionID, "ISO18626_CONNECTION_ID"}});
  Watch({txtContact, txtNCIPServerLibrary});
  Watch({optSendCurrentSupplier, optUseThisProfile});
  Watch({dtpNoticeStartDate, dtpNoticeEndDate});
  connect(receiveIds_, &AgencyIdList::Changed, this, [this] { record().Touched(); });
  connect(sendIds_, &AgencyIdList::Changed, this, [this] { record().Touched(); });
  dtpNoticeStartDate->SetLeaveCheck([this] { return StartDateMayBeLeft(); });
  dtpNoticeEndDate->SetLeaveCheck([this] { return EndDateMayBeLeft(); });
  connect(txtNCIPServerLibrary, &TextBox::Change, this, &frmLibraryContactInfo::txtNCIPServerLibrary_Change);
  connect(cmdFindLibrary, &QPushButton::clicked, this, &frmLibraryContactInfo::cmdFindLibrary_Click);
  connect(cmdConfigISO18626Connection, &QPushButton::clicked, this,
          &frmLibraryContactInfo::cmdConfigISO18626Connection_Click);
  connect(mnuOptionsConfigureAPI, &QAction::triggered, this,
          [this] { Run("mnuOptionsConfigureAPI_Click", [this] { ::ShowModal("frmAPIServerConnection", this); }); });
  const std::pair<QPushButton*, FormName> doors[] = {{cmdConfigureNCIPServer, FormName("frmNCIPServerConnection")},
                                                     {cmdStatusCodes, FormName("frmNCIPStatusCodes")},
                                                     {cmdUnitLibraries, FormName("frmNCIPUnitLibraryMapping")},
                                                     {cmdUpdateProfile, FormName("frmNCIPProfile")}};
  for (const auto& [button, formName] : doors)
    connect(button, &QPushButton::clicked, this,
            [this, name = button->objectName(), formName = formName] { OpenNCIP(name, formName); });
}
