// The login screen: the login, the language, the one place of the active state.
#include <QCheckBox>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

namespace {

const QDateTime Noon(QDate(2024, 3, 5), QTime(12, 30, 15));

class LibraryLoginTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    Clock::Set([] { return Noon; });
    SetColumn(North, "USER_LOGIN", "'north'");
    SetColumn(North, "USER_PASSWORD", "'hidden'");
    SetColumn(North, "LANGUAGE_CODE", "'FRE'");
  }
  void OpenScreen(qint32 id = North) {
    OpenLibrary("frmLibraryLoginInfo", id);
    Statements();
  }
  void Saves() {
    Prompt().Expect("Library  " + Text("txtLibrarySymbol") + "  has been updated.", MessageStyle::Information);
    Click("cmdUpdate");
  }
  void Refuses(const QString& message, const QString& focus) {
    Prompt().Expect(message, MessageStyle::Stop);
    Click("cmdUpdate");
    EXPECT_EQ(Focus(), focus);
  }
  static constexpr auto ResetQuestion =
      "This Library record has been made active.\n\nDo you wish to reset Load Balancing?";
};

// --- Reading ---

TEST_F(LibraryLoginTest, ReadsTheRecord) {
  Begin(North);
  Open("frmLibraryLoginInfo");
  const QStringList statements = Statements();
  EXPECT_TRUE(statements.contains(
      "SELECT   LANGUAGE_CODE, LANGUAGE_CODE_DESC FROM ID_LANGUAGE_CODE ORDER BY LANGUAGE_CODE_DESC"));
  EXPECT_TRUE(
      statements.contains("SELECT   LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, "
                          "USER_LOGIN, USER_PASSWORD, LANGUAGE_CODE FROM ID_LIBRARY "
                          "WHERE    LIBRARY_ID = 101"));
  EXPECT_EQ(Text("txtUserID"), "north");
  EXPECT_EQ(Text("txtPassword"), "hidden");
  EXPECT_EQ(Text("txtConfirmPassword"), "hidden");
  EXPECT_EQ(Find<TextBox>("txtPassword")->echoMode(), QLineEdit::Normal);
  EXPECT_EQ(Find<CodeComboBox>("cboLanguageCode")->Code(), "FRE");
  EXPECT_TRUE(IsChecked("optActiveYes"));
}

TEST_F(LibraryLoginTest, AnEmptyLanguageShowsNone) {
  OpenScreen(South);
  EXPECT_EQ(Text("cboLanguageCode"), "(None)");
  EXPECT_TRUE(IsChecked("optActiveNo"));
  EXPECT_EQ(Find<CodeComboBox>("cboLanguageCode")->TextAt(0), "(None)");
}

TEST_F(LibraryLoginTest, APendingLibraryIsShownAsYesWithPendingTickedAndSavesAsP) {
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  OpenScreen();
  EXPECT_TRUE(IsChecked("optActiveYes"));
  EXPECT_TRUE(IsChecked("chkLibraryPending"));
  Choose("cboLanguageCode", "English");
  Saves();
  EXPECT_EQ(Column("LIBRARY_ACTIVE"), "P");
  EXPECT_TRUE(IsShown("lblLibraryPendingMessage"));
}

// --- Active controls ---

TEST_F(LibraryLoginTest, YesAndNoUntickPending) {
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  OpenScreen();
  Click("optActiveNo");
  EXPECT_FALSE(IsChecked("chkLibraryPending"));
  EXPECT_FALSE(gbLibraryActive);
  Click("chkLibraryPending");
  EXPECT_TRUE(IsChecked("chkLibraryPending"));
  EXPECT_TRUE(IsChecked("optActiveYes"));
  EXPECT_TRUE(gbLibraryActive);
  // A click on the option that is set already counts.
  Click("optActiveYes");
  EXPECT_FALSE(IsChecked("chkLibraryPending"));
  EXPECT_TRUE(gbLibraryActive);
}

TEST_F(LibraryLoginTest, TheGreyedTickBecomesATick) {
  OpenScreen();
  auto* const pending = Find<QCheckBox>("chkLibraryPending");
  pending->setTristate(true);
  Click("chkLibraryPending");
  EXPECT_EQ(pending->checkState(), Qt::Checked);
  EXPECT_TRUE(gbLibraryActive);
}

TEST_F(LibraryLoginTest, PendingTakenAwayIsSavedAsActive) {
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  OpenScreen();
  Click("chkLibraryPending");
  Saves();
  EXPECT_EQ(Column("LIBRARY_ACTIVE"), "Y");
}

TEST_F(LibraryLoginTest, ChangingOnlyTheActiveOptionSavesWithoutAnyLoginTest) {
  SetColumn(North, "USER_PASSWORD", "NULL");
  OpenScreen();
  Click("optActiveNo");
  Saves();
  EXPECT_EQ(Statements().size(), 1);
  EXPECT_EQ(Column("LIBRARY_ACTIVE"), "N");
  EXPECT_TRUE(IsShown("lblLibraryInactiveMessage"));
}

// --- Update ---

TEST_F(LibraryLoginTest, UpdateWritesOneStatement) {
  OpenScreen();
  Type("txtUserID", " n'orth ");
  Type("txtPassword", "new");
  Type("txtConfirmPassword", "new");
  Choose("cboLanguageCode", "(None)");
  Saves();
  const QString now = gclsOF->SqlDate(Noon);
  EXPECT_EQ(Statements(), QStringList({"SELECT   USER_LOGIN  FROM ID_LIBRARY WHERE    USER_LOGIN = N'n''orth'",
                                       "UPDATE ID_Library SET      LIBRARY_ACTIVE = N'Y', LAST_MODIFIED = " + now +
                                           ", USER_LOGIN = N'n''orth' , USER_PASSWORD = N'new' , LANGUAGE_CODE = NULL "
                                           "WHERE Library_ID = 101"}));
  EXPECT_EQ(Column("USER_LOGIN"), "n'orth");
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
}

TEST_F(LibraryLoginTest, TheSavedUserIdIsTheOneRead) {
  OpenScreen();
  Type("txtUserID", "second");
  Saves();
  Type("txtPassword", "p2");
  Type("txtConfirmPassword", "p2");
  Statements();
  Saves();
  EXPECT_EQ(Statements().filter("USER_LOGIN  FROM").size(), 0);
}

TEST_F(LibraryLoginTest, TheSameUserIdPassesWithoutAQuery) {
  OpenScreen();
  Type("txtUserID", "other");
  Type("txtUserID", "north");
  Saves();
  EXPECT_EQ(Statements().size(), 1);
}

TEST_F(LibraryLoginTest, AUserIdOfAnotherLibraryIsRefused) {
  SetColumn(South, "USER_LOGIN", "'south'");
  OpenScreen();
  Type("txtUserID", "south");
  Refuses("The User ID must be unique.  Retry.", "txtUserID");
  EXPECT_EQ(Find<TextBox>("txtUserID")->selectedText(), "south");
  EXPECT_EQ(Column("USER_LOGIN"), "north");
}

TEST_F(LibraryLoginTest, TheTestsOfTheLoginInTheirOrder) {
  OpenScreen();
  Type("txtUserID", "");
  Refuses("User ID is a required field.", "txtUserID");
  Type("txtUserID", "x");
  Type("txtPassword", "");
  Refuses("Password is a required field.", "txtPassword");
  Type("txtPassword", "one");
  Type("txtConfirmPassword", "");
  Refuses("Confirm Password is a required field.", "txtConfirmPassword");
  Type("txtConfirmPassword", "two");
  Refuses("Password Confirmation failed.  Retry.", "txtConfirmPassword");
  EXPECT_EQ(Find<TextBox>("txtConfirmPassword")->selectedText(), "two");
}

TEST_F(LibraryLoginTest, BothEmptyClearsTheLogin) {
  OpenScreen();
  Type("txtUserID", "");
  Type("txtPassword", "");
  Saves();
  EXPECT_EQ(Column("USER_LOGIN"), QString());
  EXPECT_EQ(Column("USER_PASSWORD"), QString());
}

TEST_F(LibraryLoginTest, ARefusedUpdateLeavesBothFlagsCleared) {
  OpenScreen();
  Type("txtUserID", "");
  Refuses("User ID is a required field.", "txtUserID");
  Prompt().Expect("Nothing has been changed.", MessageStyle::Stop);
  Click("cmdUpdate");
  // The active state alone does not carry the refused login past its tests.
  Click("optActiveNo");
  Refuses("User ID is a required field.", "txtUserID");
}

TEST_F(LibraryLoginTest, UpdateNeedsARecordFirstOfAll) {
  OpenScreen();
  gclsOF->SetLibraryId(0);
  Refuses("A record must be displayed before you can update it.", "txtLibrarySymbol");
}

TEST_F(LibraryLoginTest, AFailedUpdateMasksThePasswordInTheLog) {
  OpenScreen();
  Type("txtPassword", "topsecret");
  Type("txtConfirmPassword", "topsecret");
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN LAST_MODIFIED TO MOVED");
  Prompt().Expect(
      "An error has occurred while attempting to update the Library.  If the error persists notify support.",
      MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(LogHolds("* frmLibraryLoginInfo.cmdUpdate"));
  EXPECT_FALSE(LogHolds("frmLibraryLoginInfo.cmdUpdate_Click"));
  EXPECT_TRUE(LogHolds("***** SQL error on ID_Library (Update) *****"));
  EXPECT_TRUE(LogHolds("USER_PASSWORD = N'***'"));
  EXPECT_FALSE(LogHolds("topsecret"));
}

// What the database says of a broken key may quote the row.
TEST_F(LibraryLoginTest, ABrokenKeyLeavesNoPasswordInTheLog) {
  OpenScreen();
  Choose("cboLanguageCode", "German");
  Type("txtPassword", "topsecret");
  Type("txtConfirmPassword", "topsecret");
  Another("DELETE FROM ID_LANGUAGE_CODE WHERE LANGUAGE_CODE = 'GER'");
  Prompt().ExpectStart("An error has occurred while attempting to update the Library.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(LogHolds("REFERENCE"));
  EXPECT_FALSE(LogHolds("topsecret"));
}

// --- Load balancing ---

TEST_F(LibraryLoginTest, NToYAsksAboutLoadBalancingOnlyWhereItIsUsed) {
  SetColumn(North, "REQUESTS_PROCESSED", "7");
  OpenScreen(South);
  Click("optActiveYes");
  Saves();
  Click("optActiveNo");
  Saves();
  gbUseLoadBalancing = true;
  Click("optActiveYes");
  Prompt().Expect("Library  SOUTH  has been updated.", MessageStyle::Information);
  Prompt().Expect(ResetQuestion, MessageStyle::Question, MessageAnswer::No);
  Click("cmdUpdate");
  EXPECT_EQ(Column("REQUESTS_PROCESSED"), "7");
  Click("optActiveNo");
  Saves();
  Click("optActiveYes");
  Prompt().Expect("Library  SOUTH  has been updated.", MessageStyle::Information);
  Prompt().Expect(ResetQuestion, MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect("Load Balancing has been reset.", MessageStyle::Information);
  Statements();
  Click("cmdUpdate");
  EXPECT_EQ(Writing().last(), "UPDATE ID_LIBRARY SET      REQUESTS_PROCESSED = 0");
  EXPECT_EQ(Column("REQUESTS_PROCESSED"), "0");
}

TEST_F(LibraryLoginTest, PToYDoesNotAsk) {
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  OpenScreen();
  gbUseLoadBalancing = true;
  Click("optActiveYes");
  Saves();
  EXPECT_EQ(Column("LIBRARY_ACTIVE"), "Y");
}

// --- Guard and clear ---

TEST_F(LibraryLoginTest, NoOnARequestBringsTheActiveStateBack) {
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  OpenScreen();
  Click("optActiveNo");
  Prompt().Expect(GuardText(Modified), MessageStyle::Question, MessageAnswer::No);
  WhenShown("frmRequestArticle", [](Screen&) {});
  Click("cmdArticle");
  EXPECT_TRUE(gbLibraryActive);
  EXPECT_TRUE(IsChecked("optActiveYes"));
  EXPECT_TRUE(IsChecked("chkLibraryPending"));
  Prompt().Expect("Nothing has been changed.", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_F(LibraryLoginTest, ClearSelectsYesAndNone) {
  OpenScreen(South);
  Click("cmdClear");
  EXPECT_TRUE(IsChecked("optActiveYes"));
  EXPECT_FALSE(IsChecked("chkLibraryPending"));
  EXPECT_EQ(Text("cboLanguageCode"), "(None)");
}

TEST_F(LibraryLoginTest, TheTabKeyGoesInReadingOrder) {
  OpenScreen();
  QStringList order;
  const QWidget* at = Find<QWidget>("txtLibrarySymbol");
  for (int steps = 0; steps < 60; ++steps) {
    if ((at->focusPolicy() & Qt::TabFocus) && !at->focusProxy() && at->isVisible() && !at->objectName().isEmpty())
      order.append(at->objectName());
    at = at->nextInFocusChain();
    if (at->objectName() == "txtLibrarySymbol") break;
  }
  EXPECT_EQ(order, QStringList({"txtLibrarySymbol", "cmdSearch", "cmdAdvanced", "txtUserID", "txtPassword",
                                "txtConfirmPassword", "cboLanguageCode", "optActiveYes", "chkLibraryPending",
                                "cmdRegistration", "cmdContact", "cmdStatistics", "cmdBilling", "cmdArticle", "cmdBook",
                                "cmdUpdate", "cmdClear", "cmdClose"}));
}

TEST_F(LibraryLoginTest, NoBoxIsMarkedAsRequiredForAllMayStayEmpty) {
  OpenScreen();
  for (const char* label : {"lblUserID", "lblPassword", "lblConfirmPassword"})
    EXPECT_FALSE(Find<QLabel>(label)->font().bold()) << label;
}

}  // namespace
