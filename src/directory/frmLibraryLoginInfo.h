#pragma once

#include <QCheckBox>

#include "directory/LibraryScreen.h"
#include "platform/controls/OptionGroup.h"

// Login and language of a library, and the one place where it is made active, inactive or pending.
class frmLibraryLoginInfo : public LibraryScreen {
  Q_OBJECT

 public:
  explicit frmLibraryLoginInfo(QWidget* parent = nullptr);

 protected:
  QString Columns() const override { return ", USER_LOGIN, USER_PASSWORD, LANGUAGE_CODE"; }
  void ShowRecord(const Recordset& rows) override;
  void ClearFields() override;
  void cmdUpdate_Click() override;
  void PopulateComboBoxes() override;
  std::span<const TextKey> TextKeys() const override;
  void ShowNoRecord() override { SetActive(true, false); }
  void DropEdits() override;
  bool RecordIsActive() const override { return optActive->IsSet(Yes); }

 private:
  enum ActiveOption { Yes, No };

  void BuildControls();
  void optActive_Click();
  void chkLibraryPending_Click();
  void MarkActiveChanged();
  // Options and tick as the state wants them; no handler runs.
  void SetActive(bool active, bool pending);
  void RememberActive(bool active, bool pending);
  void MarkLoginChanged();
  // The tests of user id and passwords. On False the user has been told.
  bool LoginIsValid();
  bool UserIdIsFree();
  QString StateLetter() const;
  QString UpdateStatement(const QString& letter) const;
  void OfferReset();

  bool gbLibraryActiveChanged = false;  // the active state was touched
  bool mbLoginChanged = false;          // a login box or the language was changed since the last read or save
  bool mbActiveAsRead = true;
  bool mbPendingAsRead = false;
  bool mbWasActive = true;  // before this save
  QString mstrUserIdAsRead;

  TextBox* const txtUserID = new TextBox(this, "txtUserID", 20);
  TextBox* const txtPassword = new TextBox(this, "txtPassword", 20);
  TextBox* const txtConfirmPassword = new TextBox(this, "txtConfirmPassword", 20);
  CodeComboBox* const cboLanguageCode = new CodeComboBox(this, "cboLanguageCode");
  OptionGroup* const optActive = new OptionGroup(this, {{"optActiveYes", "Yes"}, {"optActiveNo", "No"}});
  QCheckBox* const chkLibraryPending = Form::Check(this, "chkLibraryPending", "Pending");
};
