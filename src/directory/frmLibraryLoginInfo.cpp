#include "directory/frmLibraryLoginInfo.h"

#include <QBoxLayout>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Lists.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

const QString UpdateFailed =
    "An error has occurred while attempting to update the Library.  If the error persists notify support.";

constexpr TextKey Keys[] = {
    {"LIBRARY_mnuDisplayBilling", "mnuDisplayBilling"},
    {"LIBRARY_mnuDisplayContact", "mnuDisplayContact"},
    {"LIBRARY_pbContact", "cmdContact"},
    {"LIBRARY_pbBilling", "cmdBilling"},
    {"ID_LIBRARY.USER_LOGIN", "lblUserID"},
    {"ID_LIBRARY.USER_PASSWORD", "lblPassword"},
    {"LIBRARY_ConfirmPassword", "lblConfirmPassword"},
    {"ID_LIBRARY.LIBRARY_ACTIVE", "lblLibraryActive"},
    {"LIBRARY_LibraryActiveYes", "optActiveYes"},
    {"LIBRARY_LibraryActiveNo", "optActiveNo"},
    {"LIBRARY_LibraryPending", "chkLibraryPending"},
    {"LIBRARY_Language", "lblLanguage"},
};

}  // namespace

frmLibraryLoginInfo::frmLibraryLoginInfo(QWidget* parent) : LibraryScreen(LibrarySibling::Login, parent) {
  BuildControls();
  Watch({txtUserID, txtPassword, txtConfirmPassword});
  Watch({cboLanguageCode});
  for (TextBox* box : {txtUserID, txtPassword, txtConfirmPassword})
    connect(box, &TextBox::Change, this, &frmLibraryLoginInfo::MarkLoginChanged);
  connect(cboLanguageCode, &CodeComboBox::Click, this, &frmLibraryLoginInfo::MarkLoginChanged);
  connect(optActive, &OptionGroup::Click, this, &frmLibraryLoginInfo::optActive_Click);
  connect(chkLibraryPending, &QCheckBox::clicked, this, &frmLibraryLoginInfo::chkLibraryPending_Click);
}

std::span<const TextKey> frmLibraryLoginInfo::TextKeys() const {
  return Keys;
}

void frmLibraryLoginInfo::BuildControls() {
  auto* const content = Form::Frame(this, "fraLogin", "Login");
  Form::Rows rows(content);
  rows.Add("lblUserID", "User ID:", txtUserID);
  rows.Add("lblPassword", "Password:", txtPassword);
  rows.Add("lblConfirmPassword", "Confirm Password:", txtConfirmPassword);
  rows.Add("lblLanguage", "Language:", cboLanguageCode);
  QWidget* const active = optActive->Row();
  // Before the stretch at the end of the row.
  static_cast<QBoxLayout*>(active->layout())->insertWidget(optActive->Count(), chkLibraryPending);
  rows.Add("lblLibraryActive", "Library Active:", active);
  rows.Stretch();
  Form::Require({txtUserID, txtPassword, txtConfirmPassword});
  Compose(content, {cmdUpdate, cmdClear, cmdClose});
  resize(900, 480);
}

void frmLibraryLoginInfo::PopulateComboBoxes() {
  const QString suffix = gclsOF->LanguageSuffix();
  FillCombo(*cboLanguageCode, "(None)",
            "SELECT   LANGUAGE_CODE, LANGUAGE_CODE_DESC" + suffix + " FROM " + Sql::Table("ID_LANGUAGE_CODE") +
                " ORDER BY LANGUAGE_CODE_DESC" + suffix,
            "***** SQL error on ID_LANGUAGE_CODE (Select) *****", 1, 0);
  cboLanguageCode->SetCode({});
}

// --- The record ---

void frmLibraryLoginInfo::ShowRecord(const Recordset& rows) {
  mstrUserIdAsRead = Value(rows, "USER_LOGIN");
  txtUserID->SetText(mstrUserIdAsRead);
  const QString password = Value(rows, "USER_PASSWORD");
  txtPassword->SetText(password);
  txtConfirmPassword->SetText(password);
  const QString language = Value(rows, "LANGUAGE_CODE");
  if (language.isEmpty() || !cboLanguageCode->SetCode(language)) cboLanguageCode->SetCode({});
  const bool active = mstrActiveLetter != "N", pending = mstrActiveLetter == "P";
  SetActive(active, pending);
  RememberActive(active, pending);
  mbWasActive = active;
  gbLibraryActiveChanged = false;
  mbLoginChanged = false;
}

void frmLibraryLoginInfo::ClearFields() {
  for (TextBox* box : {txtUserID, txtPassword, txtConfirmPassword}) box->clear();
  SetActive(true, false);
  cboLanguageCode->SetCode({});
  mstrUserIdAsRead.clear();
  gbLibraryActiveChanged = false;
  mbLoginChanged = false;
}

void frmLibraryLoginInfo::SetActive(bool active, bool pending) {
  optActive->Select(active ? Yes : No);
  chkLibraryPending->setChecked(pending);
}

void frmLibraryLoginInfo::RememberActive(bool active, bool pending) {
  mbActiveAsRead = active;
  mbPendingAsRead = pending;
}

// The active state goes back with the edits: requests look at it.
void frmLibraryLoginInfo::DropEdits() {
  LibraryScreen::DropEdits();
  gbLibraryActive = mbActiveAsRead;
  SetActive(mbActiveAsRead, mbPendingAsRead);
  gbLibraryActiveChanged = false;
}

// --- Active state ---

void frmLibraryLoginInfo::MarkActiveChanged() {
  mbRecordModified = true;
  gbLibraryActiveChanged = true;
}

void frmLibraryLoginInfo::MarkLoginChanged() {
  if (!gbFillingFields) mbLoginChanged = true;
}

void frmLibraryLoginInfo::optActive_Click() {
  chkLibraryPending->setChecked(false);
  gbLibraryActive = optActive->IsSet(Yes);
  MarkActiveChanged();
}

// A pending library counts as active. Without the tick it is what the options say.
void frmLibraryLoginInfo::chkLibraryPending_Click() {
  if (chkLibraryPending->checkState() == Qt::Checked) {
    optActive->Select(Yes);
    gbLibraryActive = true;
  } else if (chkLibraryPending->checkState() == Qt::PartiallyChecked) {
    chkLibraryPending->setCheckState(Qt::Checked);
  }
  MarkActiveChanged();
}

QString frmLibraryLoginInfo::StateLetter() const {
  if (!gbLibraryActive) return "N";
  return chkLibraryPending->isChecked() ? "P" : "Y";
}

// --- Update ---

void frmLibraryLoginInfo::cmdUpdate_Click() {
  RunUpdate("cmdUpdate_Click", UpdateFailed, [this] {
    if (gclsOF->LibraryId() < 1 || mstrDisplayedSymbol.isEmpty()) {
      Refuse("A record must be displayed before you can update it.", txtLibrarySymbol);
      return;
    }
    if (!mbRecordModified && !gbLibraryActiveChanged) {
      Tell("Nothing has been changed.", MessageStyle::Stop);
      return;
    }
    // What follows does not bring them back: a refused update counts as seen.
    mbRecordModified = false;
    gbLibraryActiveChanged = false;
    {
      const FillingFields filling;
      for (TextBox* box : {txtUserID, txtPassword, txtConfirmPassword}) box->TrimInPlace();
    }
    if (mbLoginChanged && !LoginIsValid()) return;

    const QString letter = StateLetter();
    ExecuteUpdate(UpdateStatement(letter), "***** SQL error on ID_Library (Update) *****");
    RememberActive(gbLibraryActive, letter == "P");
    mstrUserIdAsRead = txtUserID->Text();
    SetActive(gbLibraryActive, letter == "P");
    ShowActiveLetter(letter);
    Tell("Library  " + mstrDisplayedSymbol + "  has been updated.", MessageStyle::Information);
    mbRecordModified = false;
    gbLibraryActiveChanged = false;
    mbLoginChanged = false;
    OfferReset();
    mbWasActive = gbLibraryActive;
    FocusSymbol();
  });
}

// Both empty is accepted: it clears the login.
bool frmLibraryLoginInfo::LoginIsValid() {
  const QString user = txtUserID->Text(), password = txtPassword->Text(), confirm = txtConfirmPassword->Text();
  if (user.isEmpty() && password.isEmpty()) return true;
  if (user.isEmpty()) return Refuse("User ID is a required field.", txtUserID);
  if (user != mstrUserIdAsRead && !UserIdIsFree()) return Refuse("The User ID must be unique.  Retry.", txtUserID);
  if (password.isEmpty()) return Refuse("Password is a required field.", txtPassword);
  if (confirm.isEmpty()) return Refuse("Confirm Password is a required field.", txtConfirmPassword);
  if (password != confirm) return Refuse("Password Confirmation failed.  Retry.", txtConfirmPassword);
  return true;
}

bool frmLibraryLoginInfo::UserIdIsFree() {
  bool found = false;
  FirstValue(
      "SELECT   USER_LOGIN "
      " FROM " +
          Sql::Table("ID_LIBRARY") + " WHERE    USER_LOGIN = " + Sql::National(txtUserID->Text()),
      LibrarySelectFailed, &found);
  return !found;
}

// The mixed letters of the table and the blanks behind the values are those that the statement log is known by.
QString frmLibraryLoginInfo::UpdateStatement(const QString& letter) const {
  return "UPDATE " + Sql::Table("ID_Library") + " SET      LIBRARY_ACTIVE = N'" + letter +
         "', LAST_MODIFIED = " + PresentDate() + ", USER_LOGIN = " + Sql::NationalOr(txtUserID->Text(), "Null") +
         " , USER_PASSWORD = " + Sql::NationalOr(txtPassword->Text(), "Null") +
         " , LANGUAGE_CODE = " + Sql::NationalOr(cboLanguageCode->Code(), "NULL") +
         " WHERE Library_ID = " + Sql::Number(gclsOF->LibraryId());
}

// A library that comes back into the rota starts level with the others.
void frmLibraryLoginInfo::OfferReset() {
  if (!gbUseLoadBalancing || mbWasActive || !gbLibraryActive) return;
  const int answer =
      Tell("This Library record has been made active.\n\nDo you wish to reset Load Balancing?", MessageStyle::Question);
  if (answer == MessageAnswer::Yes && ResetLoadBalancing() >= 1)
    Tell("Load Balancing has been reset.", MessageStyle::Information);
}
