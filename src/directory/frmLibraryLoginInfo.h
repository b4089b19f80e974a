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
  std::vector<CodeList> CodeLists() const override;
  void ChooseDefaults() override { cboLanguageCode->SetCode({}); }
  std::span<const TextKey> TextKeys() const override;
  void ShowNoRecord() override { SetActive(true, false); }
  void DropEdits() override;
  bool RecordIsActive() const override { return optActive->IsSet(Yes); }

 private:
  enum ActiveOption { Yes, No };

  // What the screen edits. An update tests a login that is another than the one read or saved last.
  struct Login {
    QString user, password, confirm, language;
    bool operator==(const Login&) const = default;
  };

  void BuildControls();
  void optActive_Click();
  void chkLibraryPending_Click();
  // Options and tick as the state wants them; no handler runs.
  void SetActive(bool active, bool pending);
  void RememberActive(bool active, bool pending);
  Login LoginOnShow() const;
  // The tests of user id and passwords. On False the user has been told.
  bool LoginIsValid();
  bool UserIdIsFree();
  QString StateLetter() const;
  QString UpdateStatement(const QString& letter) const;
  void OfferReset();

  bool mbActiveAsRead = true;
  bool mbPendingAsRead = false;
  bool mbWasActive = true;  // before this save
  Login loginAsRead_;

  TextBox* const txtUserID = new TextBox(this, "txtUserID", 20);
  TextBox* const txtPassword = new TextBox(this, "txtPassword", 20);
  TextBox* const txtConfirmPassword = new TextBox(this, "txtConfirmPassword", 20);
  CodeComboBox* const cboLanguageCode = new CodeComboBox(this, "cboLanguageCode");
  OptionGroup* const optActive = new OptionGroup(this, {{"optActiveYes", "Yes"}, {"optActiveNo", "No"}});
  QCheckBox* const chkLibraryPending = Form::Check(this, "chkLibraryPending", "Pending");
};
