// What the five library screens share, pressed on each of them.
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "directory/LibraryScreenFacts.h"
#include "directory/LibrarySearch.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"
#include "shell/Screens.h"

namespace {

// One of the screens, a box whose change counts and its column.
struct Case {
  LibrarySibling self;
  const char* form;
  const char* box;
  const char* column;
  const char* clearWords;
  const char* requestWords;  // nullptr: requests ask nothing
};

constexpr auto RegisteredWords = "The Library Registration has been modified for this record.";
constexpr auto ModifiedWords = "This record has been modified.";

const Case Cases[] = {
    {LibrarySibling::Registration, "frmLibraryRegistration", "txtCity", "PRIME_CITY", ModifiedWords, ModifiedWords},
    {LibrarySibling::Contact, "frmLibraryContactInfo", "txtPhone", "CONTACT_PHONE", RegisteredWords, nullptr},
    {LibrarySibling::Login, "frmLibraryLoginInfo", "txtPassword", "USER_PASSWORD", RegisteredWords, ModifiedWords},
    {LibrarySibling::Statistics, "frmLibraryStatisticalInfo", "txtFD", "FD_SYMBOL",
     "The Library Statistical Info has been modified for this record.", nullptr},
    {LibrarySibling::Billing, "frmLibraryBillingInfo", "txtCity", "BILL_CITY", RegisteredWords, nullptr},
};

std::string NameOf(const testing::TestParamInfo<Case>& info) {
  return std::string(info.param.form).substr(3);
}

class LibraryScreenTest : public LibraryDesk, public testing::WithParamInterface<Case> {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    SetColumn(North, "USER_LOGIN", "'north'");
  }
  QString Form() const { return GetParam().form; }
  QString Box() const { return GetParam().box; }
  void Change(const QString& text = "x") { Type(Box(), text); }
  // The message that follows a saved change.
  void ExpectSaved() {
    switch (GetParam().self) {
      case LibrarySibling::Registration:
        Prompt().Expect("Library Symbol: 'NORTH' has been updated.", MessageStyle::Information);
        break;
      case LibrarySibling::Login:
        Type("txtConfirmPassword", "x");
        Prompt().Expect("Library  NORTH  has been updated.", MessageStyle::Information);
        break;
      case LibrarySibling::Contact:
      case LibrarySibling::Statistics:
      case LibrarySibling::Billing:
        Prompt().Expect("Library Symbol: (NORTH) has been updated.", MessageStyle::Information);
        break;
    }
  }
  // Changes the box, and answers the question that `step` raises with Yes: the record is saved, the step not taken.
  void AnswerYes(const QString& firstLine) {
    Change();
    Prompt().Expect(GuardText(firstLine), MessageStyle::Question, MessageAnswer::Yes);
    ExpectSaved();
  }
  void AnswerNo(const QString& firstLine) {
    Change();
    Prompt().Expect(GuardText(firstLine), MessageStyle::Question, MessageAnswer::No);
  }
  bool RecordButtonsAre(bool enabled) {
    for (const char* name :
         {"cmdUpdate", "cmdArticle", "cmdBook", "mnuOptionsUpdate", "mnuRequestArticle", "mnuRequestBook"})
      if (IsEnabled(name) != enabled) return false;
    return true;
  }
};
INSTANTIATE_TEST_SUITE_P(Screens, LibraryScreenTest, testing::ValuesIn(Cases), NameOf);

// --- Loading ---

TEST_P(LibraryScreenTest, ShowsTheLibraryInHand) {
  OpenLibrary(Form(), North);
  EXPECT_EQ(Text("txtLibrarySymbol"), "NORTH");
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
  EXPECT_EQ(Text("txtLibraryName"), "MAIN LIBRARY");
  EXPECT_EQ(Text("txtContact"), "Ann Reed");
  EXPECT_TRUE(RecordButtonsAre(true));
  const bool editable = GetParam().self == LibrarySibling::Registration || GetParam().self == LibrarySibling::Contact;
  EXPECT_NE(Find<TextBox>("txtContact")->isReadOnly(), editable);
  // Filling the fields was no change.
  Prompt().Expect("Nothing has been changed.", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_P(LibraryScreenTest, ReadsTheRecordWithOneSelect) {
  Begin(North);
  Open(Form());
  const QStringList read = Statements().filter("INSTITUTION_NAME");
  ASSERT_EQ(read.size(), 1);
  EXPECT_TRUE(read[0].startsWith("SELECT   LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, "));
  EXPECT_TRUE(read[0].endsWith(" FROM ID_LIBRARY WHERE    LIBRARY_ID = 101"));
}

TEST_P(LibraryScreenTest, StartsEmptyWithoutALibrary) {
  OpenLibrary(Form());
  EXPECT_EQ(Text("txtLibrarySymbol"), "");
  EXPECT_TRUE(RecordButtonsAre(false));
  EXPECT_FALSE(IsShown("lblLibraryInactiveMessage"));
  EXPECT_FALSE(IsShown("lblLibraryPendingMessage"));
}

TEST_P(LibraryScreenTest, ALibraryThatIsGoneIsNotShown) {
  OpenLibrary(Form(), Gone);
  EXPECT_EQ(Text("txtLibrarySymbol"), "");
  EXPECT_TRUE(RecordButtonsAre(false));
}

TEST_P(LibraryScreenTest, CallersThatOnlyMaintainPlaceNoRequests) {
  for (const char* caller : {"Tabulon", "User Maintenance"}) {
    OpenLibrary(Form(), North, caller);
    EXPECT_FALSE(IsShown("cmdArticle")) << caller;
    EXPECT_FALSE(IsShown("cmdBook")) << caller;
    EXPECT_FALSE(Find<QMenu>("mnuRequest")->menuAction()->isVisible()) << caller;
  }
  OpenLibrary(Form(), North, "Administer Settings");
  EXPECT_EQ(IsShown("cmdArticle"), GetParam().self != LibrarySibling::Registration);
  OpenLibrary(Form(), North, "Query Requests");
  EXPECT_TRUE(IsShown("cmdArticle"));
  EXPECT_TRUE(Find<QMenu>("mnuRequest")->menuAction()->isVisible());
}

TEST_P(LibraryScreenTest, WithoutTheRightUpdateIsHidden) {
  Rights("add");
  OpenLibrary(Form(), North);
  EXPECT_FALSE(IsShown("cmdUpdate"));
  EXPECT_FALSE(IsShown("mnuOptionsUpdate"));
  Change();
  // Nothing to be asked either.
  Click("cmdClear");
  EXPECT_EQ(Text("txtLibrarySymbol"), "");
}

TEST_P(LibraryScreenTest, BannersFollowTheActiveLetter) {
  struct {
    const char* value;
    bool active, inactiveShown, pendingShown;
  } const letters[] = {{"'N'", false, true, false},
                       {"'P'", true, false, true},
                       {"'Y'", true, false, false},
                       {"NULL", true, false, false},
                       {"'X'", true, false, false}};
  for (const auto& letter : letters) {
    SetColumn(North, "LIBRARY_ACTIVE", letter.value);
    OpenLibrary(Form(), North);
    EXPECT_EQ(gbLibraryActive, letter.active) << letter.value;
    EXPECT_EQ(IsShown("lblLibraryInactiveMessage"), letter.inactiveShown) << letter.value;
    EXPECT_EQ(IsShown("lblLibraryPendingMessage"), letter.pendingShown) << letter.value;
  }
  const auto* const inactive = Find<QLabel>("lblLibraryInactiveMessage");
  EXPECT_EQ(inactive->text(), "Library Inactive");
  EXPECT_TRUE(inactive->font().bold());
  EXPECT_EQ(inactive->font().pointSize(), 11);
  EXPECT_EQ(inactive->palette().color(QPalette::WindowText), QColor(192, 0, 0));
  EXPECT_EQ(Find<QLabel>("lblLibraryPendingMessage")->palette().color(QPalette::WindowText), QColor(192, 192, 0));
}

TEST_P(LibraryScreenTest, AFailedReadIsToldAndLeavesTheScreen) {
  OpenLibrary(Form(), North);
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN " + QString(GetParam().column) + " TO MOVED");
  Type("txtLibrarySymbol", "SOUTH");
  Prompt().ExpectTitled("An error has occurred.  Please Notify Support.", MessageStyle::Stop,
                        FactsOf(GetParam().self).caption);
  Click("cmdSearch");
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
  EXPECT_EQ(gclsOF->LibraryId(), North);
  EXPECT_TRUE(LogHolds("***** SQL error on ID_LIBRARY (Select) *****"));
  EXPECT_TRUE(LogHolds(Form() + "." + FactsOf(GetParam().self).readProcedure));
}

TEST_P(LibraryScreenTest, AClosedConnectionIsReopenedByTheNextSearch) {
  OpenLibrary(Form(), North);
  gclsOF->Connection().Close();
  Type("txtLibrarySymbol", "SOUTH");
  Click("cmdSearch");
  EXPECT_EQ(Text("txtInstitution"), "SOUTH INSTITUTE");
}

// --- Typing a symbol ---

TEST_P(LibraryScreenTest, ATypedSymbolSwitchesTheRecordOffUntilItIsSearched) {
  OpenLibrary(Form(), North);
  Append("txtLibrarySymbol", "X");
  EXPECT_TRUE(RecordButtonsAre(false));
  Press("txtLibrarySymbol", Qt::Key_Backspace);
  EXPECT_EQ(Text("txtLibrarySymbol"), "NORTH");
  EXPECT_TRUE(RecordButtonsAre(false));
  Click("cmdSearch");
  EXPECT_TRUE(RecordButtonsAre(true));
}

TEST_P(LibraryScreenTest, ATypedSymbolIsNoChangeOfTheRecord) {
  OpenLibrary(Form(), North);
  Type("txtLibrarySymbol", "SOUTH");
  Press("txtLibrarySymbol", Qt::Key_Return);
  EXPECT_EQ(Text("txtInstitution"), "SOUTH INSTITUTE");
  EXPECT_EQ(gclsOF->LibraryId(), South);
}

// --- Search ---

TEST_P(LibraryScreenTest, SearchForPercentAloneIsRefusedByTheScreen) {
  OpenLibrary(Form(), North);
  Type("txtLibrarySymbol", " % ");
  Statements();
  Prompt().ExpectTitled("Search string too broad. Please enter a valid search criteria.", MessageStyle::Stop,
                        FactsOf(GetParam().self).caption);
  Click("cmdSearch");
  EXPECT_EQ(Statements(), QStringList());
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
}

TEST_P(LibraryScreenTest, SearchWithAWildcardInsideTheTextAsksWithLike) {
  OpenLibrary(Form());
  Type("txtLibrarySymbol", "N%H");
  Statements();
  Click("cmdSearch");
  EXPECT_TRUE(Statements().contains(
      "SELECT   LIBRARY_ID, LIBRARY_SYMBOL  FROM    ID_LIBRARY WHERE  LIBRARY_SYMBOL LIKE  N'N%H' "
      "Order By LIBRARY_SYMBOL"));
  EXPECT_EQ(Text("txtLibrarySymbol"), "NORTH");
  EXPECT_TRUE(IsShown("txtLibrarySymbol"));
  EXPECT_TRUE(RecordButtonsAre(true));
}

TEST_P(LibraryScreenTest, SearchForTheRecordOnShowSaysSo) {
  OpenLibrary(Form(), North);
  Prompt().ExpectTitled("This record is currently being displayed.", MessageStyle::Information, "Ostana");
  Click("cmdSearch");
  EXPECT_TRUE(RecordButtonsAre(true));
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
}

TEST_P(LibraryScreenTest, SearchForNothingIsRefused) {
  OpenLibrary(Form());
  Prompt().ExpectTitled("Enter search criteria.", MessageStyle::Stop, "Ostana");
  Click("cmdSearch");
}

TEST_P(LibraryScreenTest, AnExactMissSaysSoOnceAndLeavesTheScreen) {
  OpenLibrary(Form(), North);
  Type("txtLibrarySymbol", "WEST");
  Prompt().Expect("Record not found.", MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_EQ(Text("txtLibrarySymbol"), "WEST");
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
}

TEST_P(LibraryScreenTest, AWildcardMissClearsTheScreenAndPutsTheTextBack) {
  OpenLibrary(Form(), North);
  Type("txtLibrarySymbol", "WEST%");
  Prompt().Expect("Record not found.", MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_EQ(Text("txtLibrarySymbol"), "WEST%");
  EXPECT_EQ(Text("txtInstitution"), "");
  EXPECT_EQ(gclsOF->LibraryId(), 0);
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
}

TEST_P(LibraryScreenTest, SeveralMatchesAreListedAndChosenFrom) {
  OpenLibrary(Form());
  Type("txtLibrarySymbol", "%O%TH");
  Click("cmdSearch");
  EXPECT_FALSE(IsShown("txtLibrarySymbol"));
  EXPECT_TRUE(IsShown("cmbLibrarySymbol"));
  EXPECT_TRUE(IsShown("lblFound"));
  EXPECT_EQ(Text("txtFound"), "2");
  EXPECT_EQ(Focus(), "cmbLibrarySymbol");
  Choose("cmbLibrarySymbol", "SOUTH");
  EXPECT_EQ(Text("txtInstitution"), "SOUTH INSTITUTE");
  EXPECT_EQ(Text("txtLibrarySymbol"), "SOUTH");
  EXPECT_EQ(gclsOF->LibraryId(), South);
  EXPECT_TRUE(RecordButtonsAre(true));
  Choose("cmbLibrarySymbol", "NORTH");
  EXPECT_EQ(gclsOF->LibraryId(), North);
  Picture("library-" + Form() + "-matches");
}

TEST_P(LibraryScreenTest, TheTwentySixthCharacterInTheListBeepsAndIsDropped) {
  OpenLibrary(Form());
  Type("txtLibrarySymbol", "%O%TH");
  Click("cmdSearch");
  auto* const combo = Find<CodeComboBox>("cmbLibrarySymbol");
  combo->setFocus();
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo->lineEdit(), "ABCDEFGHIJKLMNOPQRSTUVWXY");
  EXPECT_EQ(combo->lineEdit()->text().size(), 25);
  EXPECT_EQ(Prompt().Beeps(), 0);
  QTest::keyClicks(combo->lineEdit(), "Z");
  EXPECT_EQ(combo->lineEdit()->text(), "ABCDEFGHIJKLMNOPQRSTUVWXY");
  EXPECT_EQ(Prompt().Beeps(), 1);
  EXPECT_EQ(combo->lineEdit()->cursorPosition(), 25);
}

TEST_P(LibraryScreenTest, TypingInTheListIsTypingASymbol) {
  OpenLibrary(Form());
  Type("txtLibrarySymbol", "%O%TH");
  Click("cmdSearch");
  Choose("cmbLibrarySymbol", "SOUTH");
  auto* const combo = Find<CodeComboBox>("cmbLibrarySymbol");
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo->lineEdit(), "NORTH");
  EXPECT_TRUE(RecordButtonsAre(false));
  QTest::keyClick(combo, Qt::Key_Return);
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
  EXPECT_TRUE(IsShown("txtLibrarySymbol"));
  EXPECT_FALSE(IsShown("cmbLibrarySymbol"));
}

// --- Advanced ---

TEST_P(LibraryScreenTest, AdvancedBringsTheLibraryThatWasChosen) {
  OpenLibrary(Form(), North);
  WhenShown("frmLibrarySearch", [](Screen&) { gclsOF->SetLibraryId(South); });
  Click("cmdAdvanced");
  EXPECT_EQ(Text("txtInstitution"), "SOUTH INSTITUTE");
  EXPECT_EQ(Find<TextBox>("txtLibrarySymbol")->selectedText(), "SOUTH");
  EXPECT_TRUE(RecordButtonsAre(true));
}

TEST_P(LibraryScreenTest, AdvancedWithoutAChoiceSwitchesTheRecordOff) {
  OpenLibrary(Form());
  WhenShown("frmLibrarySearch", [](Screen&) {});
  Click("cmdAdvanced");
  EXPECT_TRUE(RecordButtonsAre(false));
}

// --- Clear ---

TEST_P(LibraryScreenTest, ClearEmptiesTheScreenAndTheHand) {
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  OpenLibrary(Form(), North);
  Click("cmdClear");
  EXPECT_EQ(gclsOF->LibraryId(), 0);
  for (const TextBox* box : Window()->findChildren<TextBox*>())
    EXPECT_EQ(box->Text(), "") << qPrintable(box->objectName());
  EXPECT_FALSE(IsShown("lblLibraryPendingMessage"));
  EXPECT_TRUE(RecordButtonsAre(false));
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
}

// --- The guard ---

TEST_P(LibraryScreenTest, YesOnClearSavesAndDoesNotClear) {
  OpenLibrary(Form(), North);
  AnswerYes(GetParam().clearWords);
  Click("cmdClear");
  EXPECT_EQ(Text("txtLibrarySymbol"), "NORTH");
  EXPECT_EQ(Column(GetParam().column), "x");
  Click("cmdClear");
  EXPECT_EQ(Text("txtLibrarySymbol"), "");
}

TEST_P(LibraryScreenTest, NoOnClearDropsTheEdits) {
  OpenLibrary(Form(), North);
  AnswerNo(GetParam().clearWords);
  Click("cmdClear");
  EXPECT_EQ(Text("txtLibrarySymbol"), "");
  EXPECT_NE(Column(GetParam().column), "x");
}

TEST_P(LibraryScreenTest, SearchAndAdvancedAskInTheSameWords) {
  OpenLibrary(Form(), North);
  AnswerYes(Registered);
  Click("cmdSearch");
  EXPECT_EQ(Column(GetParam().column), "x");
  Change("y");
  Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::No);
  WhenShown("frmLibrarySearch", [](Screen&) {});
  Click("cmdAdvanced");
  // The record that is still in hand has been read again.
  EXPECT_EQ(Text(Box()), "x");
}

TEST_P(LibraryScreenTest, YesWithATypedSymbolUpdatesThoughTheButtonIsOff) {
  OpenLibrary(Form(), North);
  AnswerYes(Registered);
  Append("txtLibrarySymbol", "1");
  Press("txtLibrarySymbol", Qt::Key_Backspace);
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  Click("cmdSearch");
  EXPECT_EQ(Column(GetParam().column), "x");
}

TEST_P(LibraryScreenTest, TheGuardAsksNothingWithoutALibrary) {
  OpenLibrary(Form());
  Change();
  Click("cmdClear");
  EXPECT_EQ(Text(Box()), "");
}

TEST_P(LibraryScreenTest, CloseAsksInItsOwnWords) {
  OpenLibrary(Form(), North);
  AnswerYes(Modified);
  Click("cmdClose");
  EXPECT_TRUE(Window()->isVisible());
  Screen* const screen = dynamic_cast<Screen*>(Window());
  Change("y");
  // No drops the edits, so that the unload does not ask again.
  Prompt().Expect(GuardText(Modified), MessageStyle::Question, MessageAnswer::No);
  Click("cmdClose");
  EXPECT_FALSE(screen->isVisible());
}

TEST_P(LibraryScreenTest, TheWindowsOwnCloseButtonLosesNothingUnasked) {
  Screen& screen = OpenLibrary(Form(), North);
  const bool registration = GetParam().self == LibrarySibling::Registration;
  AnswerYes(registration ? Modified : Registered);
  screen.close();
  EXPECT_TRUE(screen.isVisible());
  screen.close();
  EXPECT_FALSE(screen.isVisible());
}

// --- Requests ---

TEST_P(LibraryScreenTest, RequestsNeedARecord) {
  OpenLibrary(Form(), North);
  const bool registration = GetParam().self == LibrarySibling::Registration;
  const QString title = registration ? Window()->windowTitle() : "Ostana - Book/Article";
  gclsOF->SetLibraryId(0);
  for (const char* button : {"cmdArticle", "cmdBook"}) {
    Prompt().ExpectTitled("A record must be displayed before placing a request.", MessageStyle::Stop, title);
    Click(button);
  }
}

TEST_P(LibraryScreenTest, InactiveLibrariesTakeNoRequests) {
  OpenLibrary(Form(), South);
  Prompt().Expect("This library is currently inactive.  Requests may only be placed for active libraries.",
                  MessageStyle::Stop);
  Click("cmdArticle");
}

TEST_P(LibraryScreenTest, PendingLibrariesTakeRequests) {
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  OpenLibrary(Form(), North);
  EXPECT_TRUE(gbLibraryActive);
  WhenShown("frmRequestArticle", [](Screen&) {});
  Click("cmdArticle");
  WhenShown("frmRequestBook", [](Screen&) {});
  Trigger("mnuRequestBook");
}

TEST_P(LibraryScreenTest, RequestsAskOnlyOnTwoScreens) {
  OpenLibrary(Form(), North);
  Change();
  if (GetParam().requestWords)
    Prompt().Expect(GuardText(GetParam().requestWords), MessageStyle::Question, MessageAnswer::No);
  WhenShown("frmRequestBook", [](Screen&) {});
  Click("cmdBook");
}

TEST_P(LibraryScreenTest, ClosesAfterARequestForTheCallerThatWantsIt) {
  Screen& screen = OpenLibrary(Form(), North, "Receive FTP");
  WhenShown("frmRequestArticle", [](Screen&) {});
  Click("cmdArticle");
  EXPECT_TRUE(screen.isVisible());
  WhenShown("frmRequestArticle", [](Screen&) { gbCloseAfterRequest = true; });
  Click("cmdArticle");
  EXPECT_FALSE(screen.isVisible());
}

// --- Close by calling application ---

TEST_P(LibraryScreenTest, CloseGoesBackToTheCallingApplication) {
  Another("INSERT INTO ID_USER_FUNCTION (USER_ID, FUNCTION_NAME, ADD_FLAG) VALUES ('admin', 'Query Requests', 'Y')");
  Begin(North, "Query Requests");
  bool shown = false;
  WhenShown("frmQueryRequests", [&](Screen&) {
    shown = true;
    EXPECT_EQ(gclsOF->CurrentFunction(), "Query Requests");
  });
  InSession(Form(), [this] { Click("cmdClose"); });
  EXPECT_TRUE(shown);
}

TEST_P(LibraryScreenTest, CloseStaysWhenTheCallersRightIsGone) {
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Patron Registration'");
  Screen& screen = OpenLibrary(Form(), North, "Patron Registration");
  gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), "Patron Registration");
  Prompt().Expect(gclsOF->LastError(), MessageStyle::Stop);
  Click("cmdClose");
  EXPECT_TRUE(screen.isVisible());
}

TEST_P(LibraryScreenTest, EveryEntryMirrorsItsButton) {
  OpenLibrary(Form(), North);
  const std::pair<const char*, const char*> pairs[] = {
      {"mnuOptionsUpdate", "cmdUpdate"}, {"mnuOptionsSearch", "cmdSearch"},   {"mnuOptionsClear", "cmdClear"},
      {"mnuRequestBook", "cmdBook"},     {"mnuRequestArticle", "cmdArticle"}, {"mnuOptionsAdvanced", "cmdAdvanced"}};
  for (const auto& [entry, button] : pairs) {
    EXPECT_EQ(IsEnabled(entry), IsEnabled(button)) << entry;
    EXPECT_EQ(IsShown(entry), IsShown(button)) << entry;
  }
  Trigger("mnuOptionsClear");
  EXPECT_EQ(Text("txtLibrarySymbol"), "");
  Screen* const screen = dynamic_cast<Screen*>(Window());
  Trigger("mnuFileExit");
  EXPECT_FALSE(screen->isVisible());
}

}  // namespace
