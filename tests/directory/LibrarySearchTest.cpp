// Turning a typed text into a library: the look-ups, then the screen of the advanced search.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "directory/LibrarySearch.h"
#include "platform/controls/Grid.h"
#include "shell/Screen.h"

namespace {

class LibraryLookUpTest : public LibraryDesk {
 protected:
  bool Search(const QString& text) { return SearchLibrarySymbol(false, {}, text, id, count); }
  qint32 id = 0, count = 0;
};

TEST_F(LibraryLookUpTest, AnExactSymbolIsAHit) {
  Begin();
  gLibraryMatches = {{1, "OLD"}};
  EXPECT_TRUE(Search("SOUTH"));
  EXPECT_EQ(id, South);
  EXPECT_EQ(count, 1);
  EXPECT_TRUE(gLibraryMatches.empty());
}

TEST_F(LibraryLookUpTest, MoreThanFiftyMatchesListFifty) {
  for (int number = 0; number < 60; ++number) AddLibrary(1000 + number, QString("M%1").arg(number, 2, 10, QChar('0')));
  Begin();
  EXPECT_TRUE(Search("M%"));
  EXPECT_EQ(id, 0);
  EXPECT_EQ(count, 50);
  ASSERT_EQ(gLibraryMatches.size(), 50U);
  EXPECT_EQ(gLibraryMatches.front().LibrarySymbol, "M00");
  EXPECT_EQ(gLibraryMatches.back().LibrarySymbol, "M49");
}

TEST_F(LibraryLookUpTest, MoreThanFiftyMatchesAreShownAsFifty) {
  for (int number = 0; number < 60; ++number) AddLibrary(1000 + number, QString("M%1").arg(number));
  OpenLibrary("frmLibraryBillingInfo");
  Type("txtLibrarySymbol", "M%");
  Click("cmdSearch");
  EXPECT_EQ(Text("txtFound"), "50");
}

// The LIKE is reached through the look-up's answer -1 only.
TEST_F(LibraryLookUpTest, ATextWithoutAWildcardNeverReachesTheLike) {
  Begin();
  Prompt().ExpectTitled("Record not found.", MessageStyle::Information, "Ostana");
  EXPECT_FALSE(Search("SOUT_"));
  EXPECT_EQ(Statements().filter("LIKE"), QStringList());
}

TEST_F(LibraryLookUpTest, ASymbolThatHoldsAPercentSignIsFoundExactlyFirst) {
  AddLibrary(200, "S%H");
  Begin();
  EXPECT_TRUE(Search("S%H"));
  EXPECT_EQ(id, 200);
}

TEST_F(LibraryLookUpTest, OnlyPercentIsAWildcard) {
  AddLibrary(200, "A_1");
  AddLibrary(201, "AB1");
  AddLibrary(202, "A!_2");
  Begin();
  EXPECT_TRUE(Search("A_%"));
  EXPECT_EQ(count, 1);
  EXPECT_EQ(gLibraryMatches.front().LibrarySymbol, "A_1");
  EXPECT_TRUE(Search("A!_%"));
  EXPECT_EQ(count, 1);
  EXPECT_EQ(gLibraryMatches.front().LibrarySymbol, "A!_2");
}

TEST_F(LibraryLookUpTest, LetterCaseDoesNotCountAndAccentsDo) {
  AddLibrary(200, "Éa1");
  AddLibrary(201, "ÉB2");
  AddLibrary(202, "EC3");
  Begin();
  EXPECT_TRUE(Search("éA%"));
  EXPECT_EQ(count, 1);
  EXPECT_TRUE(Search("é%"));
  EXPECT_EQ(count, 2);
  EXPECT_TRUE(Search("e%3"));
  EXPECT_EQ(count, 1);
}

TEST_F(LibraryLookUpTest, QuotesInTheTextAreHarmless) {
  AddLibrary(200, "O''HARE");
  Begin();
  EXPECT_TRUE(Search("O'H%"));
  EXPECT_EQ(count, 1);
}

TEST_F(LibraryLookUpTest, RowsThatAreNoLibraryAreFoundBySymbol) {
  SetColumn(North, "LIBRARY_TYPE", "'P'");
  Begin();
  EXPECT_TRUE(Search("NOR%"));
  EXPECT_EQ(count, 1);
}

TEST_F(LibraryLookUpTest, ARecordOnShowIsMeantUnlessItHasNoSymbol) {
  Begin();
  Prompt().Expect("This record is currently being displayed.", MessageStyle::Information);
  EXPECT_TRUE(SearchLibrarySymbol(true, "NORTH", "NORTH", id, count));
  EXPECT_EQ(id, -1);
  Prompt().Expect("Enter search criteria.", MessageStyle::Stop);
  EXPECT_FALSE(SearchLibrarySymbol(true, "", "", id, count));
}

TEST_F(LibraryLookUpTest, EmptyTextsAndPercentAloneAreRefused) {
  Begin();
  for (const char* column : {"", "FD_SYMBOL"}) {
    const auto search = [&](const QString& text) {
      return *column ? SearchSymbol(text, id, count, column) : Search(text);
    };
    Prompt().ExpectTitled("Enter search criteria.", MessageStyle::Stop, "Ostana");
    EXPECT_FALSE(search(""));
    Prompt().ExpectTitled("Search string too broad.", MessageStyle::Stop, "Ostana");
    EXPECT_FALSE(search("%"));
  }
  EXPECT_EQ(Statements(), QStringList());
}

TEST_F(LibraryLookUpTest, FindLibrarySymbolTellsAWildcardFromAMiss) {
  SetColumn(North, "FD_SYMBOL", "'F1'");
  Begin();
  EXPECT_TRUE(FindLibrarySymbol(" F1 ", id, "FD_SYMBOL"));
  EXPECT_EQ(id, North);
  EXPECT_FALSE(FindLibrarySymbol("F%", id, "FD_SYMBOL"));
  EXPECT_EQ(id, -1);
  EXPECT_FALSE(FindLibrarySymbol("F2", id, "FD_SYMBOL"));
  EXPECT_EQ(id, 0);
  EXPECT_FALSE(FindLibrarySymbol("  ", id, "FD_SYMBOL"));
  EXPECT_EQ(id, 0);
}

// --- The screen ---

class AdvancedSearchTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    AddLibrary(103, "PATRONS", {{"INSTITUTION_NAME", "'NORTH PATRONS'"}, {"LIBRARY_TYPE", "'P'"}});
    AddLibrary(104, "SYSTEM", {{"INSTITUTION_NAME", "'NORTH SYSTEM'"}, {"LIBRARY_TYPE", "'Z'"}});
    AddLibrary(105, "EAST", {{"INSTITUTION_NAME", "'NORTH EAST'"}, {"LIBRARY_TYPE", "'U'"}});
    OpenLibrary("frmLibrarySearch");
  }
  QString Where() {
    const QStringList statements = Statements();
    return statements.isEmpty() ? QString() : statements.last().section("<> N'Z'))", 1);
  }
};

TEST_F(AdvancedSearchTest, StartsWithoutAList) {
  EXPECT_FALSE(IsShown("grdViewSearchResults"));
  EXPECT_FALSE(IsShown("lblFound"));
  EXPECT_FALSE(IsEnabled("cmdOK"));
  EXPECT_EQ(Text("lblSimpleSearch"), "For a Simple Search enter only ONE of the Search Fields.");
  EXPECT_EQ(Text("lblCombinationSearch"), "For a Combination Search enter ONE (And/Or) BOTH the Search Fields.");
}

TEST_F(AdvancedSearchTest, PercentAloneCountsAsEmpty) {
  for (const char* box : {"txtContact", "txtZipPostalCode", "txtInstitution", "txtLibrary"}) Type(box, " % ");
  Prompt().Expect("Enter Search Criteria for a Simple Search or a Combination Search.", MessageStyle::Stop);
  Click("cmdSearch");
  EXPECT_EQ(Statements(), QStringList());
}

TEST_F(AdvancedSearchTest, InstitutionAndLibraryNameAreOneSearch) {
  Type("txtInstitution", "college");
  Type("txtLibrary", "main");
  Click("cmdSearch");
  EXPECT_EQ(Statements(),
            QStringList("SELECT   LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, PRIME_POST_ZIPCODE "
                        "FROM ID_LIBRARY WHERE    (LIBRARY_TYPE IS Null OR (LIBRARY_TYPE <> N'P') AND "
                        "(LIBRARY_TYPE <> N'Z')) AND INSTITUTION_NAME LIKE '%COLLEGE%'  AND LIBRARY LIKE '%MAIN%' "
                        "ORDER By LIBRARY_SYMBOL "));
  EXPECT_EQ(Text("lblValue"), "1");
  EXPECT_EQ(Cell("grdViewSearchResults", 1, 1), "NORTH");
}

// The boxes make capitals of what is typed.
TEST_F(AdvancedSearchTest, NamesAreFoundInTheLettersOfTheirOwn) {
  AddLibrary(110, "X1", {{"INSTITUTION_NAME", "'Université X'"}, {"CONTACT", "'Jürgen Groß'"}});
  AddLibrary(111, "X2", {{"INSTITUTION_NAME", "'UNIVERSITE Y'"}, {"CONTACT", "'Jurgen Gros'"}});
  for (const auto& [box, typed] : {std::pair{"txtInstitution", "université"},
                                   {"txtContact", "jürgen"},
                                   {"txtContact", "Groß"},
                                   {"txtContact", "GROSS"}}) {
    Click("cmdClear");
    Type(box, typed);
    Click("cmdSearch");
    EXPECT_EQ(Text("lblValue"), "1") << typed;
    EXPECT_EQ(Cell("grdViewSearchResults", 1, 1), "X1") << typed;
  }
}

TEST_F(AdvancedSearchTest, RowsThatAreNoLibraryAreLeftOut) {
  Type("txtInstitution", "NORTH");
  Click("cmdSearch");
  EXPECT_EQ(Text("lblValue"), "2");
  EXPECT_EQ(Cell("grdViewSearchResults", 1, 1), "EAST");
  EXPECT_EQ(Cell("grdViewSearchResults", 2, 1), "NORTH");
  EXPECT_TRUE(Find<Grid>("grdViewSearchResults")->ColHidden(6));
  EXPECT_EQ(Cell("grdViewSearchResults", 2, 6), "101");
  const char* const headings[] = {"Lib. Symbol", "Institution", "Library Name", "Contact", "Zip/Postal Code"};
  for (int col = 1; col <= 5; ++col) EXPECT_EQ(Cell("grdViewSearchResults", 0, col), headings[col - 1]);
}

TEST_F(AdvancedSearchTest, ContactOrPostalCodeAlone) {
  Type("txtContact", "reed");
  Click("cmdSearch");
  EXPECT_EQ(Where(), " AND CONTACT LIKE '%REED%' ORDER By LIBRARY_SYMBOL ");
  Type("txtContact", "");
  Type("txtZipPostalCode", "n1");
  Click("cmdSearch");
  EXPECT_EQ(Where(), " AND PRIME_POST_ZIPCODE LIKE '%N1%' ORDER By LIBRARY_SYMBOL ");
  Type("txtContact", "reed");
  Prompt().Expect("For a Simple Search enter only ONE of the Search Field.", MessageStyle::Stop);
  Click("cmdSearch");
}

TEST_F(AdvancedSearchTest, ContactAndInstitutionTogetherAreRefused) {
  const QString refused =
      "The search criteria you have entered is not valid.\n"
      "Please try again using either the Simple Search or the Combination Search alone.";
  Type("txtContact", "REED");
  Type("txtInstitution", "NORTH");
  Prompt().Expect(refused, MessageStyle::Stop);
  Click("cmdSearch");
  Type("txtInstitution", "");
  Type("txtLibrary", "MAIN");
  Prompt().Expect(refused, MessageStyle::Stop);
  Click("cmdSearch");
}

TEST_F(AdvancedSearchTest, AnUnderlineInTheTextIsNoWildcard) {
  AddLibrary(300, "U1", {{"LIBRARY", "'ROOM_1'"}});
  AddLibrary(301, "U2", {{"LIBRARY", "'ROOMS1'"}});
  Type("txtLibrary", "ROOM_1");
  Click("cmdSearch");
  EXPECT_EQ(Text("lblValue"), "1");
}

TEST_F(AdvancedSearchTest, NothingFoundHidesTheList) {
  Type("txtContact", "REED");
  Click("cmdSearch");
  Type("txtContact", "NOBODY");
  Prompt().Expect("There are not records matching the Search Criteria. Try again.", MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_FALSE(IsShown("grdViewSearchResults"));
  EXPECT_FALSE(IsShown("lblValue"));
  EXPECT_FALSE(IsEnabled("cmdOK"));
}

TEST_F(AdvancedSearchTest, TheFirstRowIsChosenAtOnce) {
  Type("txtInstitution", "NORTH");
  Click("cmdSearch");
  EXPECT_EQ(Row("grdViewSearchResults"), 1);
  EXPECT_EQ(Focus(), "grdViewSearchResults");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  EXPECT_EQ(gclsOF->LibraryId(), 105);
  SelectRow("grdViewSearchResults", 2);
  EXPECT_EQ(gclsOF->LibraryId(), North);
  Picture("library-search-results");
}

TEST_F(AdvancedSearchTest, CancelKeepsTheRowThatWasSelected) {
  Type("txtInstitution", "NORTH");
  Click("cmdSearch");
  Screen* const screen = dynamic_cast<Screen*>(Window());
  Click("cmdCancel");
  EXPECT_FALSE(screen->isVisible());
  EXPECT_EQ(gclsOF->LibraryId(), 105);
}

TEST_F(AdvancedSearchTest, ClearEmptiesBoxesAndList) {
  Type("txtInstitution", "NORTH");
  Click("cmdSearch");
  Click("cmdClear");
  EXPECT_EQ(Text("txtInstitution"), "");
  EXPECT_EQ(Rows("grdViewSearchResults"), 1);
  EXPECT_FALSE(IsShown("lblFound"));
  EXPECT_FALSE(IsEnabled("cmdOK"));
}

TEST_F(AdvancedSearchTest, AFailureHasTheScreensTitle) {
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN CONTACT TO MOVED");
  Type("txtInstitution", "NORTH");
  Prompt().ExpectTitled("An error has occurred.  Please Notify Support.", MessageStyle::Stop,
                        "Ostana - Library Search");
  Click("cmdSearch");
  EXPECT_TRUE(LogHolds("***** SQL error on ID_LIBRARY  (Select) *****"));
}

TEST_F(AdvancedSearchTest, TheLibraryScreenReadsWhatWasSelected) {
  OpenLibrary("frmLibraryBillingInfo", South);
  WhenShown("frmLibrarySearch", [this](Screen&) {
    Type("txtContact", "REED");
    Click("cmdSearch");
    Click("cmdOK");
  });
  Click("cmdAdvanced");
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
}

}  // namespace
