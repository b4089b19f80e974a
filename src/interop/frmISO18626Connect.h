#pragma once

#include <QCheckBox>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

class Recordset;
struct ISO18626Record;

// The connections to ISO 18626 partners. A maintenance screen when it is opened from the main screen; opened from the
// contact screen (gbISO18626SelectionMode) also a picker, whose choice goes back in gstrISO18626ConnectionId.
class frmISO18626Connect : public Screen {
  Q_OBJECT

 public:
  explicit frmISO18626Connect(QWidget* parent = nullptr);

  void Form_Activate() override;

  enum Column { ConnectionId = 1, IllSystem, AuthnType, HostAddress };

 protected:
  void Form_Load() override;
  bool Form_Unload() override;

 private:
  void BuildControls();
  QWidget* Fields();
  QWidget* Messages();
  QWidget* Buttons();
  void ConnectControls();

  // --- Reading ---
  void PopulateComboBoxes();
  void PopulateISOConnectionData(const QString& id);
  void GetConnectionIdData(const QString& id);
  void ShowRecord(const Recordset& rows);

  // --- The two states: a row of the grid is selected, or none is ---
  void grdISO18626Connections_SelChange();
  void NoSelection();
  void ShowRecordState();
  void ClearData();
  void chkTransferEnabled_Click();
  void chkPatronInfo_Click();

  // --- Writing ---
  bool ValidateConnectionData();
  ISO18626Record RecordOnScreen(const QString& id) const;
  bool IsTaken(const QString& id) const;
  // True when a library or a supplier refers to the connection.
  bool IsReferenced(const QString& id) const;
  // True when exactly one record went.
  bool DeleteConnection(const QString& id, bool referenced);
  void TellAdded(const QString& id);
  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdSelect_Click();
  void btnClear_Click();

  // --- Frames ---
  // Runs a procedure; a failure is logged with its statement and told in these words.
  void Run(const QString& procedure, const QString& failed, const std::function<void()>& body);
  // A line of the detailed log.
  void Log(const QString& procedure, const QString& text) const;
  void ShowProcessing(const QString& text);

  Record record_;            // the connection in the fields
  QString mstrConnectionId;  // of the row selected; empty when none is

  TextBox* const txtConnectionID = new TextBox(this, "txtConnectionID", 50);
  CodeComboBox* const cmbILLSystem = new CodeComboBox(this, "cmbILLSystem");
  CodeComboBox* const cmbVersion = new CodeComboBox(this, "cmbVersion");
  CodeComboBox* const cmbAuthType = new CodeComboBox(this, "cmbAuthType");
  CodeComboBox* const cmbConnectionType = new CodeComboBox(this, "cmbConnectionType");
  TextBox* const txtHostAddress = new TextBox(this, "txtHostAddress", 80);
  TextBox* const txtUrl = new TextBox(this, "txtUrl", 80);
  TextBox* const txtPort = new TextBox(this, "txtPort", 5);

  QGroupBox* const fraRequest = Form::Frame(this, "fraRequest", "Request Message");
  QCheckBox* const chkRetryEnabled = Form::Check(this, "chkRetryEnabled", "Request Type: Retry");
  QCheckBox* const chkTransferEnabled = Form::Check(this, "chkTransferEnabled", "Request Subtype: TransferRequest");
  QGroupBox* const fraPatronInfo = Form::Frame(this, "fraPatronInfo", "PatronInfo in TransferRequest message");
  QCheckBox* const chkPatronInfo = Form::Check(this, "chkPatronInfo", "Include PatronInfo");
  QCheckBox* const chkPatronEmail = Form::Check(this, "chkPatronEmail", "Include Patron's Email");
  QCheckBox* const chkPatronAddress = Form::Check(this, "chkPatronAddress", "Include Patron's physical address");
  QGroupBox* const fraRequestingAgency = Form::Frame(this, "fraRequestingAgency", "RequestingAgency Message");
  QCheckBox* const chkActionCancel = Form::Check(this, "chkActionCancel", "Action: Cancel");
  QCheckBox* const chkActionRenew = Form::Check(this, "chkActionRenew", "Action: Renew");
  QCheckBox* const chkActionNotification = Form::Check(this, "chkActionNotification", "Action: Notification");
  QGroupBox* const fraSupplyingAgency = Form::Frame(this, "fraSupplyingAgency", "SupplyingAgency Message");
  QCheckBox* const chkReasonRequestResponse =
      Form::Check(this, "chkReasonRequestResponse", "Reason For Message: RequestResponse");
  QCheckBox* const chkReasonNotification =
      Form::Check(this, "chkReasonNotification", "Reason For Message: Notification");

  Grid* const grdISO18626Connections = new Grid(this, "grdISO18626Connections", 5);
  QLabel* const lblProcessing = Form::Label(this, "lblProcessing", "");

  QPushButton* const cmdSelect = Form::Button(this, "cmdSelect", "&Select Connection Id");
  QGroupBox* const fraOperations = Form::Frame(this, "fraOperations", "");
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const btnClear = Form::Button(this, "btnClear", "&Clear");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "Close");
};
