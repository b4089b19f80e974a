#pragma once

#include "directory/AgencyIdLists.h"
#include "directory/LibraryScreen.h"
#include "platform/controls/DateBox.h"
#include "platform/controls/OptionGroup.h"

// People and addresses of a library, its notice, its reply addresses for ISO ILL, its NCIP link, and its ISO 18626
// connection with the agency ids. Opens the connection screens.
class frmLibraryContactInfo : public LibraryScreen {
  Q_OBJECT

 public:
  explicit frmLibraryContactInfo(QWidget* parent = nullptr);

 protected:
  QString Columns() const override;
  void ReadFurther(const Recordset& rows, qint32 libraryId) override;
  void ShowRecord(const Recordset& rows) override;
  void ClearFields() override;
  void cmdUpdate_Click() override;
  std::span<const TextKey> TextKeys() const override;
  void LoadSettings() override;
  void EnableRecord(bool enabled) override;

 private:
  enum SupplierOption { SupplierYes, SupplierNo, SupplierDefault };
  enum ProfileOption { ProfileYes, ProfileNo };

  void BuildControls();
  void ConnectControls();
  QWidget* ContactPart();
  QWidget* ReplyPart();
  QWidget* IsoPart();

  // --- Notice ---
  // False keeps the focus.
  bool EndDateMayBeLeft();
  bool StartDateMayBeLeft();

  // --- NCIP ---
  void txtNCIPServerLibrary_Change();
  void EnableServerButtons(bool enabled);
  void OpenNCIP(const QString& button, FormName formName);
  void cmdFindLibrary_Click();
  bool HasServer(qint32 libraryId) const;
  void cmdConfigISO18626Connection_Click();

  // --- Update ---
  bool ServerLibraryIsKnown();
  bool ReplyAddressesAreValid();
  bool ConnectionIsKnown();
  QString UpdateStatement() const;

  TextBox* const txtPhone = new TextBox(this, "txtPhone", 25);
  TextBox* const txtFax = new TextBox(this, "txtFax", 25);
  TextBox* const txtEmail = new TextBox(this, "txtEmail", 80);
  TextBox* const txtAltPhone = new TextBox(this, "txtAltPhone", 25);
  TextBox* const txtAltFax = new TextBox(this, "txtAltFax", 25);
  TextBox* const txtAltEmail = new TextBox(this, "txtAltEmail", 80);
  TextBox* const txtNote = new TextBox(this, "txtNote", 100);
  TextBox* const txtNotice = new TextBox(this, "txtNotice", 100);
  DateBox* const dtpNoticeStartDate = new DateBox(this, "dtpNoticeStartDate");
  DateBox* const dtpNoticeEndDate = new DateBox(this, "dtpNoticeEndDate");

  TextBox* const txtReplyAddressSMTP = new TextBox(this, "txtReplyAddressSMTP", 80);
  TextBox* const txtReplyAddressTCP = new TextBox(this, "txtReplyAddressTCP", 80);
  TextBox* const txtReplyAddressGSM = new TextBox(this, "txtReplyAddressGSM", 80);
  OptionGroup* const optSendCurrentSupplier = new OptionGroup(this, {{"optSendCurrentSupplierYes", "Yes"},
                                                                     {"optSendCurrentSupplierNo", "No"},
                                                                     {"optSendCurrentSupplierDefault", "Default"}});

  TextBox* const txtNCIPServerLibrary = new TextBox(this, "txtNCIPServerLibrary", 25);
  QPushButton* const cmdFindLibrary = Form::Button(this, "cmdFindLibrary", "Find Library");
  OptionGroup* const optUseThisProfile =
      new OptionGroup(this, {{"optUseThisProfileYes", "Yes"}, {"optUseThisProfileNo", "No"}});
  QPushButton* const cmdConfigureNCIPServer = Form::Button(this, "cmdConfigureNCIPServer", "Configure NCIP Server");
  QPushButton* const cmdUnitLibraries = Form::Button(this, "cmdUnitLibraries", "Unit Libraries");
  QPushButton* const cmdStatusCodes = Form::Button(this, "cmdStatusCodes", "Status Codes");
  QPushButton* const cmdUpdateProfile = Form::Button(this, "cmdUpdateProfile", "Update Profile");

  TextBox* const txtConnectionID = new TextBox(this, "txtConnectionID", 50);
  QPushButton* const cmdConfigISO18626Connection = Form::Button(this, "cmdConfigISO18626Connection", "Configure");
  AgencyIdReceiveList* const receiveIds_ = new AgencyIdReceiveList(this);
  AgencyIdSendList* const sendIds_ = new AgencyIdSendList(this);

  QAction* mnuOptionsConfigureAPI = nullptr;

  // What was read besides the row: the library whose server is used, and the two lists.
  struct Further {
    qint32 serverLibrary;
    QString serverSymbol;
    AgencyIdList::Content receive, send;
  };
  std::optional<Further> further_;
};
