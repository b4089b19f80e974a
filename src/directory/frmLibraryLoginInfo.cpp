#include "directory/frmLibraryLoginInfo.h"

#include <QBoxLayout>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
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
  // A record confirms its password itself.
  Shows({{txtUserID, "USER_LOGIN"}, {txtPassword, "USER_PASSWORD"}, {txtConfirmPassword, "USER_PASSWORD"}});
  Shows({{cboLanguageCode, "LANGUAGE_CODE"}});
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
  Compose(content, {cmdUpdate, cmdClear, cmdClose});
  resize(900, 480);
}

std::vector<CodeList> frmLibraryLoginInfo::CodeLists() const {
  return {{SelectCodes("SELECT   ", "LANGUAGE_CODE", "ID_LANGUAGE_CODE"),
           "***** SQL error on ID_LANGUAGE_CODE (Select) *****",
           {cboLanguageCode},
           "(None)"}};
}

// --- The record ---

void frmLibraryLoginInfo::ShowRecord(const Recordset&) {
  loginAsRead_ = LoginOnShow();
  const bool active = library().activeLetter != "N", pending = library().activeLetter == "P";
  SetActive(active, pending);
  RememberActive(active, pending);
  mbWasActive = active;
}

void frmLibraryLoginInfo::ClearFields() {
  SetActive(true, false);
  cboLanguageCode->SetCode({});
  loginAsRead_ = LoginOnShow();
}

frmLibraryLoginInfo::Login frmLibraryLoginInfo::LoginOnShow() const {
  return {txtUserID->Text(), txtPassword->Text(), txtConfirmPassword->Text(), cboLanguageCode->Code()};
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
}

// --- Active state ---

void frmLibraryLoginInfo::optActive_Click() {
  chkLibraryPending->setChecked(false);
  gbLibraryActive = optActive->IsSet(Yes);
  record().Touched();
}

// A pending library counts as active. Without the tick it is what the options say.
void frmLibraryLoginInfo::chkLibraryPending_Click() {
  if (chkLibraryPending->checkState() == Qt::Checked) {
    optActive->Select(Yes);
    gbLibraryActive = true;
  } else if (chkLibraryPending->checkState() == Qt::PartiallyChecked) {
    chkLibraryPending->setCheckState(Qt::Checked);
  }
  record().Touched();
}

QString frmLibraryLoginInfo::StateLetter() const {
  if (!gbLibraryActive) return "N";
  return chkLibraryPending->isChecked() ? "P" : "Y";
}

// --- Update ---

void frmLibraryLoginInfo::cmdUpdate_Click() {
  RunUpdate("cmdUpdate_Click", UpdateFailed, [this] {
    if (!HasRecord()) {
      Refuse("A record must be displayed before you can update it.", txtLibrarySymbol);
      return;
    }
    if (!record().Modified()) {
      Tell(this, "Nothing has been changed.", MessageStyle::Stop);
      return;
    }
    // What follows does not bring the mark back: a refused update counts as seen.
    record().Settled();
    Trim({txtUserID, txtPassword, txtConfirmPassword});
    if (LoginOnShow() != loginAsRead_ && !LoginIsValid()) return;

    const QString letter = StateLetter();
    if (!RowWasFound(ExecuteInTransaction(UpdateStatement(letter), "***** SQL error on ID_Library (Update) *****")))
      return;
    RememberActive(gbLibraryActive, letter == "P");
    loginAsRead_ = LoginOnShow();
    SetActive(gbLibraryActive, letter == "P");
    ShowActiveLetter(letter);
    Tell(this, "Library  " + library().symbol + "  has been updated.", MessageStyle::Information);
    record().Settled();
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
  if (user != loginAsRead_.user && !UserIdIsFree()) return Refuse("The User ID must be unique.  Retry.", txtUserID);
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
         " WHERE Library_ID = " + Sql::Number(library().id);
}

// A library that comes back into the rota starts level with the others.
void frmLibraryLoginInfo::OfferReset() {
  if (!gbUseLoadBalancing || mbWasActive || !gbLibraryActive) return;
  if (Confirm(this, "This Library record has been made active.\n\nDo you wish to reset Load Balancing?") &&
      ResetLoadBalancing() >= 1)
    Tell(this, "Load Balancing has been reset.", MessageStyle::Information);
}
