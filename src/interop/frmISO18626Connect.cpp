#include "interop/frmISO18626Connect.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

#include <QApplication>

#include "core/SqlText.h"
#include "interop/CodeLists.h"
#include "interop/ISO18626Record.h"
#include "interop/StatementReport.h"
#include "shell/Messages.h"

namespace {

const QString ConnectSelect = "***** SQL error on ID_ISO18626_CONNECT (Select) *****";
const QString ConnectInsert = "***** SQL error on ID_ISO18626_CONNECT (Insert) *****";
const QString ConnectUpdate = "***** SQL error on ID_ISO18626_CONNECT (Update) *****";
const QString ConnectDelete = "***** SQL error on ID_ISO18626_CONNECT (Delete) *****";

const QString DefaultPort = "443";

QString OfConnection(const QString& id) {
  return "WHERE ISO18626_CONNECTION_ID = " + Sql::National(id);
}

}  // namespace

// --- Frames ---

void frmISO18626Connect::Run(const QString& procedure, const QString& failed, const std::function<void()>& body) {
  StatementReport report;
  if (report.Try(body)) return;
  if (gclsOF->Tracing()) {
    const QString statement =
        report.Label().isEmpty() ? QString() : report.Label() + " --- SQL Query: " + report.Statement() + "\n\n";
    gclsOF->WriteLog(objectName() + "." + procedure + " - Failed.", statement + report.ErrorText(), "L");
  }
  lblProcessing->hide();
  Tell(this, failed, MessageStyle::Stop);
}

void frmISO18626Connect::Log(const QString& procedure, const QString& text) const {
  if (gclsOF->Tracing()) gclsOF->WriteLog(objectName() + "." + procedure + text, {}, "L");
}

void frmISO18626Connect::ShowProcessing(const QString& text) {
  lblProcessing->setText(text);
  lblProcessing->show();
  // It must be on the screen before the statement holds the program.
  layout()->activate();
  repaint();
}

// --- Loading ---

void frmISO18626Connect::Form_Load() {
  cmdSelect->setVisible(gbISO18626SelectionMode);
  ShowRecordState();
  cmdAdd->setEnabled(rights_.add);
  PopulateComboBoxes();
  PopulateISOConnectionData(gstrISO18626ConnectionId);
}

void frmISO18626Connect::Form_Activate() {
  if (!record_.MayBeWritten()) txtConnectionID->setFocus(Qt::OtherFocusReason);
}

bool frmISO18626Connect::Form_Unload() {
  gbISO18626SelectionMode = true;
  return false;
}

void frmISO18626Connect::PopulateComboBoxes() {
  const auto fill = [](CodeComboBox* box, const QString& code) {
    const QString table = "ID_" + code;
    CodeLists::FillSorted(*box,
                          "SELECT   " + code + ", " + CodeLists::DescriptionColumn(code) + " FROM " +
                              Sql::Table(table) + " ORDER BY " + code + " ",
                          "***** SQL error on " + table + "  (Select) *****", code);
  };
  Run("PopulateComboBoxes", "An error has occurred loading from the database the information required by this Form.",
      [&] {
        fill(cmbILLSystem, "ILL_SYSTEM");
        fill(cmbVersion, "ISO18626_VERSION");
        fill(cmbAuthType, "ISO18626_AUTHN_TYPE");
        fill(cmbConnectionType, "ISO18626_CONNECT_TYPE");
      });
}

void frmISO18626Connect::PopulateISOConnectionData(const QString& id) {
  Run("PopulateISOConnectionData",
      "An error has occurred loading from the database the data of the ISO 18626 Connection Ids. Please Notify "
      "Support.",
      [&] {
        const QString system = CodeLists::DescriptionColumn("ILL_SYSTEM");
        const QString authentication = CodeLists::DescriptionColumn("ISO18626_AUTHN_TYPE");
        Recordset rows;
        OpenRows(rows,
                 "SELECT DISTINCT C.ISO18626_CONNECTION_ID, C.ISO18626_HOST_ADDRESS, SY.ILL_SYSTEM, SY." + system +
                     ", A.ISO18626_AUTHN_TYPE, A." + authentication + " FROM " + Sql::Table("ID_ISO18626_CONNECT") +
                     " C INNER JOIN " + Sql::Table("ID_ILL_SYSTEM") +
                     " SY ON C.ILL_SYSTEM = SY.ILL_SYSTEM INNER JOIN " + Sql::Table("ID_ISO18626_AUTHN_TYPE") +
                     " A ON C.ISO18626_AUTHN_TYPE = A.ISO18626_AUTHN_TYPE ORDER BY C.ISO18626_CONNECTION_ID ",
                 "***** SQL error on ID_ISO18626_CONNECT, ID_LIBRARY, ID_SUPPLIER (Select) *****");
        grdISO18626Connections->Clear();
        ClearData();
        record_.Gone();
        grdISO18626Connections->BeginLoad();
        for (; !rows.EOF_(); rows.MoveNext())
          grdISO18626Connections->LoadRow({Value(rows, "ISO18626_CONNECTION_ID"), Value(rows, system),
                                           Value(rows, authentication), Value(rows, "ISO18626_HOST_ADDRESS")});
        grdISO18626Connections->EndLoad();
        if (id.isEmpty()) return NoSelection();
        const int row = grdISO18626Connections->FindRow(id, ConnectionId);
        if (row == 0) return;
        grdISO18626Connections->SetRowQuietly(row);
        grdISO18626Connections_SelChange();
      });
}

// --- Selection ---

void frmISO18626Connect::grdISO18626Connections_SelChange() {
  const int row = grdISO18626Connections->Row();
  if (row == 0) return NoSelection();
  mstrConnectionId = grdISO18626Connections->Text(row, ConnectionId);
  txtConnectionID->setEnabled(false);
  cmdAdd->setEnabled(false);
  // Until its record is on the screen: another one must not be saved under this id.
  record_.Gone();
  GetConnectionIdData(mstrConnectionId);
}

void frmISO18626Connect::NoSelection() {
  grdISO18626Connections->SetRowQuietly(0);
  mstrConnectionId.clear();
  ClearData();
  record_.Gone();
  txtConnectionID->setEnabled(true);
  cmdAdd->setEnabled(rights_.add);
}

void frmISO18626Connect::ShowRecordState() {
  const bool whole = record_.MayBeWritten();
  cmdUpdate->setEnabled(whole && rights_.update);
  cmdDelete->setEnabled(whole && rights_.remove);
  cmdSelect->setEnabled(whole);
}

void frmISO18626Connect::btnClear_Click() {
  NoSelection();
  txtConnectionID->setFocus(Qt::OtherFocusReason);
}

void frmISO18626Connect::GetConnectionIdData(const QString& id) {
  Run("GetConnectionIdData",
      "An error has occurred loading the data of the ISO 18626 Connection Id: '" + id + "'. Please Notify Support.",
      [&] {
        Recordset rows;
        OpenRows(rows, "SELECT * FROM " + Sql::Table("ID_ISO18626_CONNECT") + " " + OfConnection(id), ConnectSelect);
        if (rows.EOF_()) {
          Tell(this, "Unable to find the data of the ISO 18626 Connection Id: '" + id + "'", MessageStyle::Warning);
          ClearData();
          return;
        }
        Record::Reading reading(record_);
        reading.Replaces();
        ShowRecord(rows);
        reading.Ended();
      });
}

void frmISO18626Connect::ShowRecord(const Recordset& rows) {
  txtConnectionID->SetText(Value(rows, "ISO18626_CONNECTION_ID"));
  txtHostAddress->SetText(Value(rows, "ISO18626_HOST_ADDRESS"));
  txtUrl->SetText(Value(rows, "ISO18626_HOST_URL"));
  txtPort->SetText(Value(rows, "ISO18626_HOST_PORT"));
  CodeLists::ShowCode(*cmbILLSystem, Value(rows, "ILL_SYSTEM"));
  CodeLists::ShowCode(*cmbVersion, Value(rows, "ISO18626_VERSION"));
  CodeLists::ShowCode(*cmbAuthType, Value(rows, "ISO18626_AUTHN_TYPE"));
  CodeLists::ShowCode(*cmbConnectionType, Value(rows, "ISO18626_CONNECT_TYPE"));
  const auto show = [&](QCheckBox* box, const QString& column) { box->setChecked(Value(rows, column) == "Y"); };
  show(chkRetryEnabled, "RT_RETRY");
  show(chkActionCancel, "ACTION_CANCEL");
  show(chkActionRenew, "ACTION_RENEW");
  show(chkActionNotification, "ACTION_NOTIFICATION");
  show(chkReasonRequestResponse, "RFM_REQUEST_RESPONSE");
  show(chkReasonNotification, "RFM_NOTIFICATION");
  // What depends on a box that is not checked stays empty, whatever the columns hold.
  show(chkTransferEnabled, "RST_TRANSFER_REQUEST");
  chkTransferEnabled_Click();
  if (!chkTransferEnabled->isChecked()) return;
  show(chkPatronInfo, "TRANSFER_PATRON_INFO");
  chkPatronInfo_Click();
  if (!chkPatronInfo->isChecked()) return;
  show(chkPatronEmail, "TRANSFER_PATRON_EMAIL");
  show(chkPatronAddress, "TRANSFER_PATRON_ADDRESS");
}

void frmISO18626Connect::ClearData() {
  for (TextBox* box : {txtConnectionID, txtHostAddress, txtUrl}) box->SetText({});
  txtPort->SetText(DefaultPort);
  for (CodeComboBox* box : {cmbILLSystem, cmbVersion, cmbAuthType, cmbConnectionType})
    if (box->Count() > 0) box->SetIndex(0);
  for (QCheckBox* box :
       {chkRetryEnabled, chkTransferEnabled, chkPatronInfo, chkPatronEmail, chkPatronAddress, chkActionCancel,
        chkActionRenew, chkActionNotification, chkReasonRequestResponse, chkReasonNotification})
    box->setChecked(false);
  chkTransferEnabled_Click();
  chkPatronInfo_Click();
}

// --- Dependent check boxes ---

void frmISO18626Connect::chkTransferEnabled_Click() {
  chkPatronInfo->setEnabled(chkTransferEnabled->isChecked());
  if (chkTransferEnabled->isChecked()) return;
  chkPatronInfo->setChecked(false);
  chkPatronInfo_Click();
}

void frmISO18626Connect::chkPatronInfo_Click() {
  for (QCheckBox* box : {chkPatronEmail, chkPatronAddress}) {
    box->setEnabled(chkPatronInfo->isChecked());
    if (!chkPatronInfo->isChecked()) box->setChecked(false);
  }
}

// --- Add ---

namespace {

// The first entry stands for none; so does a list that could not be filled.
bool IsChosen(const CodeComboBox& list) {
  return list.Index() != 0 && list.Chosen().has_value();
}

}  // namespace

bool frmISO18626Connect::ValidateConnectionData() {
  if (txtConnectionID->Trimmed().isEmpty())
    return Refuse(this, "The Connection Id is required.", MessageStyle::Warning, txtConnectionID);
  if (!IsChosen(*cmbILLSystem))
    return Refuse(this, "The ILL System is required. Please select a valid value", MessageStyle::Warning, cmbILLSystem);
  if (!IsChosen(*cmbVersion))
    return Refuse(this, "The Protocol Version is required. Please select a valid value", MessageStyle::Warning,
                  cmbVersion);
  if (!IsChosen(*cmbAuthType))
    return Refuse(this, "The Authentication Type is required. Please select a valid value", MessageStyle::Warning,
                  cmbAuthType);
  if (!IsChosen(*cmbConnectionType))
    return Refuse(this, "The Connection Type is required. Please select a valid value", MessageStyle::Warning,
                  cmbConnectionType);
  if (txtHostAddress->Trimmed().isEmpty())
    return Refuse(this, "The Host Address is required.", MessageStyle::Warning, txtHostAddress);
  // The caret goes to the address, not to the port.
  if (txtPort->Trimmed().isEmpty())
    return Refuse(this, "The Host Port is required.", MessageStyle::Warning, txtHostAddress);
  return true;
}

ISO18626Record frmISO18626Connect::RecordOnScreen(const QString& id) const {
  ISO18626Record record;
  record.id = id;
  record.illSystem = cmbILLSystem->Code();
  record.connectType = cmbConnectionType->Code();
  record.hostAddress = txtHostAddress->Trimmed();
  record.hostUrl = txtUrl->Trimmed();
  record.hostPort = txtPort->Text();
  record.version = cmbVersion->Code();
  record.authnType = cmbAuthType->Code();
  record.retry = chkRetryEnabled->isChecked();
  record.transfer = chkTransferEnabled->isChecked();
  record.patronInfo = chkPatronInfo->isChecked();
  record.patronEmail = chkPatronEmail->isChecked();
  record.patronAddress = chkPatronAddress->isChecked();
  record.cancel = chkActionCancel->isChecked();
  record.renew = chkActionRenew->isChecked();
  record.notification = chkActionNotification->isChecked();
  record.requestResponse = chkReasonRequestResponse->isChecked();
  record.reasonNotification = chkReasonNotification->isChecked();
  return record;
}

bool frmISO18626Connect::IsTaken(const QString& id) const {
  bool found = false;
  FirstValue("SELECT ISO18626_CONNECTION_ID FROM " + Sql::Table("ID_ISO18626_CONNECT") + " " + OfConnection(id),
             ConnectSelect, &found);
  return found;
}

void frmISO18626Connect::cmdAdd_Click() {
  const QString procedure = "cmdAdd_Click";
  Run(procedure, "An error has occurred trying to add the ISO 18626 Connection Id. Please Notify Support.", [&] {
    Log(procedure, " - Validating data for adding the new Connection Id");
    if (!ValidateConnectionData()) return;
    const QString id = txtConnectionID->Trimmed();
    if (IsTaken(id)) {
      Refuse(this,
             "The ISO 18626 Connection Id entered already exists. Please enter a different Connection Id and try "
             "again.",
             MessageStyle::Warning, txtConnectionID);
      Log(procedure, " - No record added. The Connection Id already existed");
      return;
    }
    Log(procedure, " - Adding the ISO 18626 Connection Id: '" + id + "'");
    const QString insert = RecordOnScreen(id).Insert();
    ShowProcessing("Adding the new Connection Id...");
    if (Execute(insert, ConnectInsert) == 1) {
      PopulateISOConnectionData(id);
      lblProcessing->hide();
      Log(procedure, " - Connection Id: '" + id + "' successfully added");
      TellAdded(id);
      return;
    }
    lblProcessing->hide();
    Log(procedure, "Error trying to insert the Connection Id: '" + id +
                       "' into the table ID_ISO18626_CONNECT. No record was inserted.");
    Tell(this, "Unexpected error trying to add the ISO 18626 Connection Id. Please try again later",
         MessageStyle::Information);
  });
}

void frmISO18626Connect::TellAdded(const QString& id) {
  const QString added = "ISO 18626 Connection Id: '" + id + "' successfully added";
  if (gbISO18626SelectionMode) {
    Tell(this, added, MessageStyle::Information);
  } else if (Tell(this, added + "\nAdd another Connection Id?", MessageStyle::Question) == MessageAnswer::Yes) {
    btnClear_Click();
  }
}

// --- Update ---

void frmISO18626Connect::cmdUpdate_Click() {
  const QString procedure = "cmdUpdate_Click";
  Run(procedure, "An error has occurred trying to update the ISO 18626 Connection Id. Please Notify Support.", [&] {
    Log(procedure, " - Validating data for updating the Connection Id");
    if (!ValidateConnectionData()) return;
    const QString id = mstrConnectionId;
    if (id.trimmed().isEmpty()) {
      Tell(this,
           "No Connection Id has been selected. Please select on the Grid the Connection Id that will be updated.",
           MessageStyle::Warning);
      return;
    }
    Log(procedure, " - Updating the ISO 18626 Connection Id: '" + id + "'");
    if (Execute(RecordOnScreen(id).Update(), ConnectUpdate) != 1) {
      Log(procedure, "Error trying to update the Connection Id: '" + id + "'. No record was updated.");
      Tell(this, "Unexpected error trying to update the ISO 18626 Connection Id. Please try again later",
           MessageStyle::Information);
      return;
    }
    Log(procedure, " - Connection Id: '" + id + "' successfully updated");
    txtConnectionID->SetText(id);
    // The row stays where it stands; nothing is read again.
    const int row = grdISO18626Connections->Row();
    grdISO18626Connections->SetText(row, IllSystem, cmbILLSystem->Text());
    grdISO18626Connections->SetText(row, AuthnType, cmbAuthType->Text());
    grdISO18626Connections->SetText(row, HostAddress, txtHostAddress->Trimmed());
    Tell(this, "ISO 18626 Connection Id '" + id + "' successfully updated", MessageStyle::Information);
  });
}

// --- Delete ---

bool frmISO18626Connect::IsReferenced(const QString& id) const {
  bool found = false;
  FirstValue("SELECT TOP 1 LIBRARY_ID FROM " + Sql::Table("ID_LIBRARY") + " " + OfConnection(id),
             "***** SQL error on ID_LIBRARY (Select) *****", &found);
  if (found) return true;
  FirstValue("SELECT TOP 1 SUPPLIER_CODE FROM " + Sql::Table("ID_SUPPLIER") + " " + OfConnection(id),
             "***** SQL error on ID_SUPPLIER (Select) *****", &found);
  return found;
}

// No transaction: references that were cleared stay so when the last statement fails.
bool frmISO18626Connect::DeleteConnection(const QString& id, bool referenced) {
  const Hourglass hourglass;
  ShowProcessing("Deleting the Connection Id...");
  Log("cmdDelete_Click", " - Deleting the Connection Id: '" + id + "'");
  if (referenced) {
    const QString clear = "SET ISO18626_CONNECTION_ID = NULL " + OfConnection(id);
    Execute("UPDATE " + Sql::Table("ID_LIBRARY") + " " + clear, "***** SQL error on ID_LIBRARY (Update) *****");
    // The failure line names ID_LIBRARY here too; the log's readers know it so.
    Execute("UPDATE " + Sql::Table("ID_SUPPLIER") + " " + clear, "***** SQL error on ID_LIBRARY (Update) *****");
  }
  const qint64 deleted =
      Execute("DELETE FROM " + Sql::Table("ID_ISO18626_CONNECT") + " " + OfConnection(id), ConnectDelete);
  if (deleted == 1) PopulateISOConnectionData({});
  lblProcessing->hide();
  return deleted == 1;
}

void frmISO18626Connect::cmdDelete_Click() {
  const QString procedure = "cmdDelete_Click";
  Run(procedure, "An error has occurred trying to delete the ISO 18626 Connection Id. Please Notify Support.", [&] {
    Log(procedure, " - Validating data for deleting the selected Connection Id");
    const QString id = mstrConnectionId;  // the reload empties the other
    if (id.trimmed().isEmpty()) {
      Tell(this,
           "No Connection Id has been selected. Please select on the Grid the Connection Id that will be deleted.",
           MessageStyle::Warning);
      return;
    }
    const bool referenced = IsReferenced(id);
    if (referenced && Tell(this,
                           "The Connection Id: '" + id +
                               "' is associated to one or more Library and/or Supplier record(s).\nAre you sure "
                               "you want to delete this Connection Id?",
                           MessageStyle::Warning | MessageStyle::YesNo) != MessageAnswer::Yes)
      return;
    if (!DeleteConnection(id, referenced)) {
      Log(procedure, "Error trying to delete the Connection Id: '" + id +
                         "' from the table ID_ISO18626_CONNECT. No record was deleted.");
      Tell(this, "Unexpected error trying to delete the ISO 18626 Connection Id. Please try again later",
           MessageStyle::Information);
      return;
    }
    Log(procedure, " - Connection Id: '" + id + "' successfully deleted");
    Tell(this, "ISO 18626 Connection Id: '" + id + "' successfully deleted", MessageStyle::Information);
    NoSelection();
    // A caller does not take a dead id back.
    if (gstrISO18626ConnectionId == id) gstrISO18626ConnectionId.clear();
  });
}

// --- The picker ---

void frmISO18626Connect::cmdSelect_Click() {
  if (mstrConnectionId.trimmed().isEmpty()) {
    Tell(this, "Please select an ISO 18626 Connection Id.", MessageStyle::Warning);
    return;
  }
  gstrISO18626ConnectionId = mstrConnectionId;
  Unload();
}
