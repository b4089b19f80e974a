#pragma once

#include <QCheckBox>
#include <array>

#include "interop/ServerConnection.h"
#include "platform/controls/OptionGroup.h"

// The NCIP server of a library: of glngNCIPLibraryId, the library behind a symbol, which may be a server that several
// libraries share.
class frmNCIPServerConnection : public ServerConnection {
  Q_OBJECT

 public:
  explicit frmNCIPServerConnection(QWidget* parent = nullptr);

 protected:
  void ShowRow(const Recordset& rows) override;
  void TrimFields() override;
  Columns Values() const override;

 private:
  void BuildControls();
  QWidget* ServerFields();
  QWidget* AgencyFields();
  QWidget* MessageFrames();
  QString ActiveMessages() const;

  CodeComboBox* const cmbNCIPSystem = cmbSystem;
  TextBox* const txtNCIPURL = txtUrl;  // both as the base class made them
  OptionGroup* const rdVersion = new OptionGroup(this, "rdVersion", {"1.0", "2.0", "2.01", "2.02"});
  TextBox* const txtApplicationProfile = new TextBox(this, "txtApplicationProfile", 20);
  TextBox* const txtServerAgency = new TextBox(this, "txtServerAgency", 20);
  TextBox* const txtAgencySchema = new TextBox(this, "txtAgencySchema", 100);
  TextBox* const txtToAgency = new TextBox(this, "txtToAgency", 20);
  TextBox* const txtFromAgency = new TextBox(this, "txtFromAgency", 20);
  TextBox* const txtAgencyAuthentication = new TextBox(this, "txtAgencyAuthentication", 20);

  QGroupBox* const fraActiveMessages = Form::Frame(this, "fraActiveMessages", "Active Messages");
  QGroupBox* const fraActiveNotifications = Form::Frame(this, "fraActiveNotifications", "Active Notifications");
  QCheckBox* const chkLookupUser = Form::Check(this, "chkLookupUser", "Lookup User");
  QCheckBox* const chkCheckOutItem = Form::Check(this, "chkCheckOutItem", "Check Out Item");
  QCheckBox* const chkCheckInItem = Form::Check(this, "chkCheckInItem", "Check In Item");
  QCheckBox* const chkAcceptItem = Form::Check(this, "chkAcceptItem", "Accept Item");
  QCheckBox* const chkRequestItem = Form::Check(this, "chkRequestItem", "Request Item");
  QCheckBox* const chkCancelRequestItem = Form::Check(this, "chkCancelRequestItem", "Cancel Request Item");
  QCheckBox* const chkRecallItem = Form::Check(this, "chkRecallItem", "Recall Item");
  QCheckBox* const chkRenewItem = Form::Check(this, "chkRenewItem", "Renew Item");
  QCheckBox* const chkCircStatUpdStillPend =
      Form::Check(this, "chkCircStatUpdStillPend", "Circulation Status Updated - Still Pending");
  QCheckBox* const chkCircStatUpdNotRenewed =
      Form::Check(this, "chkCircStatUpdNotRenewed", "Circulation Status Updated - Not Renewed");
  QCheckBox* const chkItemRenewed = Form::Check(this, "chkItemRenewed", "Item Renewed");
  QCheckBox* const chkItemRenewedRenewItem =
      Form::Check(this, "chkItemRenewedRenewItem", "Item Renewed - Renew Item (Alma)");
  QCheckBox* const chkLookupItem = Form::Check(this, "chkLookupItem", "Lookup Item");
  QCheckBox* const chkUpdateItem = Form::Check(this, "chkUpdateItem", "Update Item");
  QCheckBox* const chkDeleteItem = Form::Check(this, "chkDeleteItem", "Delete Item");

  // By position in NCIP_ACTIVE_MESSAGES.
  const std::array<QCheckBox*, 15> messages_ = {
      chkLookupUser,        chkCheckOutItem,         chkCheckInItem, chkAcceptItem,           chkRequestItem,
      chkCancelRequestItem, chkRecallItem,           chkRenewItem,   chkCircStatUpdStillPend, chkCircStatUpdNotRenewed,
      chkItemRenewed,       chkItemRenewedRenewItem, chkLookupItem,  chkUpdateItem,           chkDeleteItem};
};
