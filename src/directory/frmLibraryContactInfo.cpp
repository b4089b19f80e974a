#include "directory/frmLibraryContactInfo.h"

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/ColumnValues.h"
#include "shell/FindLibrary.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"

namespace {

// The column's name is a reserved word on one kind of server.
QString NoteColumn() {
  constexpr qint16 Bracketed = 5;
  return gclsOF->DatabaseType() == Bracketed ? "[NOTE]" : "NOTE";
}

QDate DateOf(const QString& stored) {
  return QDate::fromString(stored.left(10), Qt::ISODate);
}

bool IsEmailAddress(const QString& address) {
  return gclsOF->ValidateField("E", address);
}

// A host and the port behind it, where the port may not be missing. An IPv6 address stands in square brackets.
bool IsHostAndPort(const QString& address) {
  const bool bracketed = address.startsWith('[');
  if (bracketed ? !address.contains("]:") : address.count(':') != 1) return false;
  return gclsOF->ValidateField("A", address);
}

}  // namespace

// --- Loading ---

void frmLibraryContactInfo::LoadSettings() {
  for (DateBox* box : {dtpNoticeStartDate, dtpNoticeEndDate}) {
    box->SetFormat(gclsOF->DateDisplayFormat());
    box->SetDate(Clock::Today());
    box->SetNone();
  }
}

// The two buttons of the server follow the symbol instead.
void frmLibraryContactInfo::EnableRecord(bool enabled) {
  LibraryScreen::EnableRecord(enabled);
  cmdStatusCodes->setEnabled(enabled);
  cmdUpdateProfile->setEnabled(enabled);
  mnuOptionsConfigureAPI->setEnabled(enabled);
}

// --- The record ---

QString frmLibraryContactInfo::Columns() const {
  return ", CONTACT_EMAIL, CONTACT_EMAIL2, CONTACT_PHONE, CONTACT_PHONE2, CONTACT_FAX, CONTACT_FAX2, " + NoteColumn() +
         ", NOTICE, NOTICE_SDATE, NOTICE_EDATE, REPLY_ADDRESS_ISO_SMTP, REPLY_ADDRESS_ISO_TCP, REPLY_ADDRESS_GSM, "
         "ADD_CURRENT_SUPPLIER, NCIP_SERVER_LIBRARY_ID, NCIP_USE_SERVER_PROFILE, ISO18626_CONNECTION_ID";
}

void frmLibraryContactInfo::ReadFurther(const Recordset& rows, qint32 libraryId) {
  const qint32 server = Value(rows, "NCIP_SERVER_LIBRARY_ID").toInt();
  const QString symbol = server > 0 ? LibrarySymbolOf(server) : QString();
  AgencyIdList::Content receive = receiveIds_->Read(libraryId);
  further_ = Further{server, symbol, std::move(receive), sendIds_->Read(libraryId)};
}

void frmLibraryContactInfo::ShowRecord(const Recordset& rows) {
  dtpNoticeStartDate->SetDate(DateOf(Value(rows, "NOTICE_SDATE")));
  dtpNoticeEndDate->SetDate(DateOf(Value(rows, "NOTICE_EDATE")));
  const QString supplier = Value(rows, "ADD_CURRENT_SUPPLIER");
  optSendCurrentSupplier->Select(supplier == "Y" ? SupplierYes : supplier == "N" ? SupplierNo : SupplierDefault);
  optUseThisProfile->Select(Value(rows, "NCIP_USE_SERVER_PROFILE") == "Y" ? ProfileYes : ProfileNo);
  glngFoundLibraryId = further_->serverLibrary;
  txtNCIPServerLibrary->SetText(further_->serverSymbol);
  // Anew for this record, also where the text is the one that stood here before.
  txtNCIPServerLibrary_Change();
  receiveIds_->Show(further_->receive);
  sendIds_->Show(further_->send);
}

void frmLibraryContactInfo::ClearFields() {
  txtNCIPServerLibrary->clear();
  dtpNoticeStartDate->SetNone();
  dtpNoticeEndDate->SetNone();
  optSendCurrentSupplier->Select(SupplierDefault);
  optUseThisProfile->Select(ProfileNo);
  receiveIds_->Clear();
  sendIds_->Clear();
  glngFoundLibraryId = -1;
  EnableServerButtons(false);
}

// --- Notice ---

bool frmLibraryContactInfo::EndDateMayBeLeft() {
  if (dtpNoticeEndDate->IsNone()) return true;
  if (dtpNoticeStartDate->IsNone()) {
    Tell(this, "Please select a Start Date first.", MessageStyle::Stop);
    dtpNoticeEndDate->SetNone();
    dtpNoticeStartDate->SetDate(Clock::Today());
    // Behind the press or key that is leaving now.
    QMetaObject::invokeMethod(
        this, [this] { dtpNoticeStartDate->setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
    return true;
  }
  if (dtpNoticeEndDate->Date() > dtpNoticeStartDate->Date()) return true;
  Tell(this, "End Date must after Start Date.", MessageStyle::Stop);
  return false;
}

bool frmLibraryContactInfo::StartDateMayBeLeft() {
  if (!dtpNoticeStartDate->IsNone() || dtpNoticeEndDate->IsNone()) return true;
  Tell(this, "Cannot have an End Date without a Start Date.", MessageStyle::Stop);
  return false;
}

// --- NCIP ---

// A library configures its own server only.
void frmLibraryContactInfo::txtNCIPServerLibrary_Change() {
  const QString symbol = txtNCIPServerLibrary->Trimmed();
  EnableServerButtons(!symbol.isEmpty() && symbol == txtLibrarySymbol->Trimmed());
}

void frmLibraryContactInfo::EnableServerButtons(bool enabled) {
  cmdUnitLibraries->setEnabled(enabled);
  cmdConfigureNCIPServer->setEnabled(enabled);
}

void frmLibraryContactInfo::OpenNCIP(const QString& button, FormName formName) {
  Run(button + "_Click", [&] {
    glngFoundLibraryId = LibraryIdOfExactSymbol(txtNCIPServerLibrary->Trimmed(), Sql::National, LibrarySelectFailed);
    glngNCIPLibraryId = glngFoundLibraryId;
    if (glngFoundLibraryId == -1) {
      Refuse("Please enter a valid library symbol.", txtNCIPServerLibrary);
      return;
    }
    gbSettingsChanged = false;
    ::ShowModal(formName, this);
  });
}

void frmLibraryContactInfo::cmdFindLibrary_Click() {
  Run("cmdFindLibrary_Click", [this] {
    const FoundLibrary found = FindLibrary(this);
    if (!found.allowed) return;
    txtNCIPServerLibrary->SetText(found.id < 1 ? QString() : found.symbol);
    if (found.id >= 1 && HasServer(found.id)) EnableServerButtons(true);
  });
}

// Whether the server that the library uses is configured.
bool frmLibraryContactInfo::HasServer(qint32 libraryId) const {
  const QString server = FirstValue("SELECT   NCIP_SERVER_LIBRARY_ID FROM " + Sql::Table("ID_LIBRARY") +
                                        " WHERE    LIBRARY_ID = " + Sql::Number(libraryId),
                                    "***** SQL error on ID_LIBRARY (Select) *****");
  if (server.isEmpty()) return false;
  bool found = false;
  FirstValue("SELECT   * FROM " + Sql::Table("ID_NCIP_CONNECT") + " WHERE    LIBRARY_ID = " + server,
             "***** SQL error on ID_NCIP_CONNECT (Select) *****", &found);
  return found;
}

void frmLibraryContactInfo::cmdConfigISO18626Connection_Click() {
  Run("cmdConfigISO18626Connection_Click", [this] {
    gstrISO18626ConnectionId = txtConnectionID->Text();
    gbISO18626SelectionMode = true;
    ::ShowModal("frmISO18626Connect", this);
    txtConnectionID->SetText(gstrISO18626ConnectionId);
  });
}

// --- Update ---

void frmLibraryContactInfo::cmdUpdate_Click() {
  RunUpdate("cmdUpdate_Click", Texts::NotifySupport, [this] {
    // A line break closes the sentence here.
    if (!HasRecordToUpdate("Nothing has been changed.\n") || !SymbolIsGiven()) return;
    TrimShown();
    Trim({txtLibrarySymbol, txtContact, txtNCIPServerLibrary});
    if (!ServerLibraryIsKnown() || !ReplyAddressesAreValid() || !ConnectionIsKnown()) return;
    // Three transactions, one after another: a failure in a later one leaves the earlier ones in force.
    if (!RowWasFound(ExecuteInTransaction(UpdateStatement(), "***** SQL error on ID_library (Update) *****"))) return;
    receiveIds_->Write(library().id);
    sendIds_->Write(library().id);
    TellUpdated();
  });
}

bool frmLibraryContactInfo::ServerLibraryIsKnown() {
  glngFoundLibraryId = -1;
  if (txtNCIPServerLibrary->Text().isEmpty()) return true;
  glngFoundLibraryId = LibraryIdOfExactSymbol(txtNCIPServerLibrary->Text(), Sql::National, LibrarySelectFailed);
  return glngFoundLibraryId != -1 || Refuse("Please enter a valid NCIP library symbol.", txtNCIPServerLibrary);
}

bool frmLibraryContactInfo::ReplyAddressesAreValid() {
  const QString smtp = txtReplyAddressSMTP->Text(), tcp = txtReplyAddressTCP->Text(), gsm = txtReplyAddressGSM->Text();
  if (!smtp.isEmpty() && !IsEmailAddress(smtp)) return Refuse("Invalid ISO Reply E-Mail address", txtReplyAddressSMTP);
  if (!tcp.isEmpty() && !IsHostAndPort(tcp))
    return Refuse(
        "The ISO Reply TCP/IP Address must be in the form 'IP Address:Port'  where port is the port "
        "supported by the supplier.",
        txtReplyAddressTCP);
  if (gsm.isEmpty()) return true;
  if (gsm.contains('@')) return IsEmailAddress(gsm) || Refuse("Invalid reply E-Mail address", txtReplyAddressGSM);
  return IsHostAndPort(gsm) || Refuse("Invalid reply domain name or address", txtReplyAddressGSM);
}

bool frmLibraryContactInfo::ConnectionIsKnown() {
  if (txtConnectionID->Text().isEmpty()) return true;
  bool found = false;
  FirstValue("SELECT ISO18626_CONNECTION_ID FROM " + Sql::Table("ID_ISO18626_CONNECT") +
                 " WHERE ISO18626_CONNECTION_ID = " + Sql::National(txtConnectionID->Text()),
             "***** SQL error on ID_ISO18626_CONNECT (Select) *****", &found);
  return found || Refuse("The ISO 18626 Connection Id entered does not exist. Please enter a valid Connection Id.",
                         txtConnectionID);
}

QString frmLibraryContactInfo::UpdateStatement() const {
  static const QStringList suppliers = {"N'Y'", "N'N'", "NULL"};
  const auto date = [](const DateBox* box) { return box->IsNone() ? QString("Null") : gclsOF->SqlDate(box->Date()); };
  ColumnValues row;
  row.Bare("LAST_MODIFIED", PresentDate())
      .Text("CONTACT", txtContact->Text())
      .Text("CONTACT_EMAIL", txtEmail->Text())
      .Text("CONTACT_PHONE2", txtAltPhone->Text())
      .Text("CONTACT_FAX2", txtAltFax->Text())
      .Text("CONTACT_EMAIL2", txtAltEmail->Text())
      .Text(NoteColumn(), txtNote->Text())
      .Text("NOTICE", txtNotice->Text())
      .Text("CONTACT_FAX", txtFax->Text())
      .Text("CONTACT_PHONE", txtPhone->Text())
      .Bare("NOTICE_SDATE", date(dtpNoticeStartDate))
      .Bare("NOTICE_EDATE", date(dtpNoticeEndDate))
      .Text("REPLY_ADDRESS_ISO_SMTP", txtReplyAddressSMTP->Text())
      .Text("REPLY_ADDRESS_ISO_TCP", txtReplyAddressTCP->Text())
      .Text("REPLY_ADDRESS_GSM", txtReplyAddressGSM->Text())
      .Bare("ADD_CURRENT_SUPPLIER", suppliers.value(optSendCurrentSupplier->Selected(), "NULL"))
      .Bare("NCIP_SERVER_LIBRARY_ID", glngFoundLibraryId == -1 ? "NULL" : Sql::Number(glngFoundLibraryId))
      .Bare("NCIP_USE_SERVER_PROFILE", optUseThisProfile->IsSet(ProfileYes) ? "N'Y'" : "N'N'")
      .Text("ISO18626_CONNECTION_ID", txtConnectionID->Text());
  return UpdateOfRecord(row);
}
