#include "interop/frmNCIPServerConnection.h"

#include <QHBoxLayout>

#include "core/ModuleState.h"
#include "core/SqlText.h"
#include "interop/CodeLists.h"
#include "shell/NumericFields.h"

namespace {

const ServerConnection::Facts Dialog = {"frmNCIPServerConnection",
                                        "Ostana - NCIP Server Connection",
                                        "cmbNCIPSystem",
                                        "txtNCIPURL",
                                        "ID_NCIP_CONNECT",
                                        "NCIP_ILS_SYSTEM",
                                        "NCIP_CONNECT_TYPE",
                                        "NCIP_HOST_ADDRESS",
                                        "NCIP_HOST_URL",
                                        "NCIP_HOST_PORT",
                                        9,
                                        "frmNCIPServerConnection.LoadForm",
                                        "frmNCIPServerconnection.cmdOK",
                                        "frmNCIPServerconnection.cmdDelete_Click"};

// What is stored for each option of rdVersion; the last two captions read otherwise.
const QStringList StoredVersions = {"1.0", "2.0", "2.1", "2.2"};

}  // namespace

frmNCIPServerConnection::frmNCIPServerConnection(QWidget* parent)
    : ServerConnection(Dialog, glngNCIPLibraryId, parent) {
  BuildControls();
}

// --- Layout ---

void frmNCIPServerConnection::BuildControls() {
  MakeNumeric(*txtPort, lblPort, "999999999", "########0", true, true, true);
  rdVersion->Select(0);
  // A click that leaves one of these greyed makes it plain checked.
  for (QCheckBox* box :
       {chkLookupUser, chkCheckOutItem, chkCheckInItem, chkAcceptItem, chkRequestItem, chkUpdateItem, chkDeleteItem})
    connect(box, &QCheckBox::clicked, box, [box] {
      if (box->checkState() == Qt::PartiallyChecked) box->setCheckState(Qt::Checked);
    });

  auto* const content = new QWidget(this);
  auto* const columns = new QHBoxLayout(content);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(16);
  auto* const fields = new QVBoxLayout;
  fields->setSpacing(8);
  fields->addWidget(ServerFields());
  fields->addWidget(AgencyFields());
  fields->addStretch();
  columns->addLayout(fields);
  columns->addWidget(MessageFrames(), 0, Qt::AlignTop);
  Compose(content);
  resize(980, 520);
}

QWidget* frmNCIPServerConnection::ServerFields() {
  auto* const fields = Form::Frame(this, "fraServer", "Server");
  Form::Rows rows(fields);
  rows.Add("lblNCIPSystem", "ILS System:", cmbNCIPSystem);
  rows.Add("lblConnect", "Connection Type:", cmbConnect);
  rows.Add("lblServerAddress", "Server Address:", txtServerAddress);
  rows.Add("lblNCIPURL", "NCIP URL:", txtNCIPURL);
  rows.Add(lblPort, txtPort);
  rows.Add("lblVersion", "Version:", rdVersion->Row());
  return fields;
}

QWidget* frmNCIPServerConnection::AgencyFields() {
  auto* const fields = Form::Frame(this, "fraAgencies", "Agencies");
  Form::Rows rows(fields);
  rows.Add("lblApplicationProfile", "Application Profile:", txtApplicationProfile);
  rows.Add("lblServerAgency", "Server Agency:", txtServerAgency);
  rows.Add("lblAgencySchema", "Agency Schema:", txtAgencySchema);
  rows.Add("lblToAgency", "To Agency:", txtToAgency);
  rows.Add("lblFromAgency", "From Agency:", txtFromAgency);
  rows.Add("lblAgencyAuthentication", "From Agency Authentication:", txtAgencyAuthentication);
  return fields;
}

QWidget* frmNCIPServerConnection::MessageFrames() {
  QVBoxLayout* const messages = Form::Column(fraActiveMessages);
  QVBoxLayout* const notifications = Form::Column(fraActiveNotifications);
  constexpr size_t FirstNotification = 8, LastNotification = 11;
  for (size_t position = 0; position < messages_.size(); ++position) {
    const bool notification = position >= FirstNotification && position <= LastNotification;
    (notification ? notifications : messages)->addWidget(messages_[position]);
  }
  auto* const frames = new QWidget(this);
  QVBoxLayout* const column = Form::Column(frames, {fraActiveMessages, fraActiveNotifications});
  column->setContentsMargins(0, 0, 0, 0);
  return frames;
}

// --- The row ---

void frmNCIPServerConnection::ShowRow(const Recordset& rows) {
  // An unknown version is shown, and saved, as the first one.
  rdVersion->Select(std::max(0, static_cast<int>(StoredVersions.indexOf(Value(rows, "NCIP_VERSION")))));
  txtApplicationProfile->SetText(Value(rows, "NCIP_APP_PROFILE"));
  txtServerAgency->SetText(Value(rows, "NCIP_SERVER_AGENCY_ID"));
  txtAgencySchema->SetText(Value(rows, "NCIP_AGENCY_ID_SCHEME"));
  txtToAgency->SetText(Value(rows, "NCIP_TO_AGENCY_ID"));
  txtFromAgency->SetText(Value(rows, "NCIP_FROM_AGENCY_ID"));
  txtAgencyAuthentication->SetText(Value(rows, "NCIP_FROM_AGENCY_AUTH"));
  const QString active = Value(rows, "NCIP_ACTIVE_MESSAGES");
  for (size_t position = 0; position < messages_.size(); ++position)
    messages_[position]->setChecked(active.mid(static_cast<qsizetype>(position), 1) == "Y");
}

void frmNCIPServerConnection::TrimFields() {
  for (TextBox* box :
       {txtApplicationProfile, txtServerAgency, txtAgencySchema, txtToAgency, txtFromAgency, txtAgencyAuthentication})
    box->TrimInPlace();
}

QString frmNCIPServerConnection::ActiveMessages() const {
  QString active;
  for (const QCheckBox* box : messages_) active += box->checkState() == Qt::Checked ? 'Y' : 'N';
  return active;
}

ServerConnection::Columns frmNCIPServerConnection::Values() const {
  const auto optional = [](const TextBox* box) { return Sql::NationalOr(box->Text(), "Null"); };
  return {{"NCIP_ILS_SYSTEM", Sql::National(cmbNCIPSystem->Code())},
          {"NCIP_CONNECT_TYPE", Sql::National(cmbConnect->Code())},
          {"NCIP_HOST_ADDRESS", Sql::National(txtServerAddress->Text())},
          {"NCIP_HOST_URL", optional(txtNCIPURL)},
          {"NCIP_HOST_PORT", txtPort->Text()},
          {"NCIP_VERSION", Sql::National(StoredVersions.value(rdVersion->Selected()))},
          {"NCIP_APP_PROFILE", optional(txtApplicationProfile)},
          {"NCIP_SERVER_AGENCY_ID", optional(txtServerAgency)},
          {"NCIP_AGENCY_ID_SCHEME", optional(txtAgencySchema)},
          {"NCIP_TO_AGENCY_ID", optional(txtToAgency)},
          {"NCIP_FROM_AGENCY_ID", optional(txtFromAgency)},
          {"NCIP_ACTIVE_MESSAGES", Sql::National(ActiveMessages())},
          {"NCIP_FROM_AGENCY_AUTH", optional(txtAgencyAuthentication)}};
}
