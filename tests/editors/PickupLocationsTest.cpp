// Sub-tab "Pickup Location".
#include <QTabWidget>

#include "editors/DeliveryDesk.h"

namespace {

const QString AllRows =
    "SELECT   P.LIBRARY_ID, P.PICKUP_LOCATION, P.PICKUP_LOCATION_DESC, P.PICKUP_LOCATION_ILS, P.DELIVERY_SYSTEM_CODE, "
    "L.LIBRARY_SYMBOL FROM ID_PICKUP_LOCATION P, ID_LIBRARY L WHERE    L.LIBRARY_ID = P.LIBRARY_ID ORDER BY "
    "L.LIBRARY_SYMBOL, P.PICKUP_LOCATION";
const QString Libraries =
    "SELECT   DISTINCT LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID IN (SELECT LIBRARY_ID FROM "
    "ID_PICKUP_LOCATION) ORDER BY LIBRARY_SYMBOL";

class PickupLocationsTest : public DeliveryDesk {
 protected:
  enum Column { LibrarySymbol = 1, Code, IlsCode, DeliveryCode, Description };

  void EnterPage() { Enter(PickupLocation); }
  void Fill(const QString& symbol, const QString& code, const QString& description, const QString& ils = {},
            const QString& delivery = {}) {
    Type("txt5dCode", code);
    Type("txt5dDescription", description);
    Type("txt5dLibrarySymbol", symbol);
    Type("txt5dILSCode", ils);
    Type("txt5dDeliverySystemCode", delivery);
  }
  QStringList Boxes() const {
    return {Text("txt5dLibrarySymbol"), Text("txt5dCode"), Text("txt5dILSCode"), Text("txt5dDeliverySystemCode"),
            Text("txt5dDescription")};
  }
  QString Stored(const QString& column, int library, const QString& code) {
    return Ask(QString("SELECT %1 FROM ID_PICKUP_LOCATION WHERE LIBRARY_ID = %2 AND PICKUP_LOCATION = '%3'")
                   .arg(column)
                   .arg(library)
                   .arg(code));
  }
  void SelectLocation(const QString& symbol, const QString& code) {
    SelectRow("grd5dTable", Find<Grid>("grd5dTable")->FindRow({{LibrarySymbol, symbol}, {Code, code}}));
  }
  void AnswerDelete(int answer) {
    Prompt().ExpectTitled("Are you sure you wish to Delete this location?", MessageStyle::Question, Shell().Caption(),
                          answer);
  }
  // Runs once, as soon as the program has run a statement that begins so.
  void AfterStatement(const QString& start, std::function<void()> act) {
    gclsOF->Connection().AddObserver(
        [start, act = std::move(act), acted = false](const StatementRecord& record) mutable {
          if (acted || !record.text.startsWith(start)) return;
          acted = true;
          act();
        });
  }

  static constexpr const char* AttachedToPatron =
      "The Pickup Location Code is attached to a patron record for this library and can't be changed.";
};

// --- Entering, filter, selection ---

TEST_F(PickupLocationsTest, EnteringFillsListAndGridAndShowsTheFirstRow) {
  Enter();
  EXPECT_EQ(Text("cmb5dSelectLibrarySymbol"), "All Libraries!");
  Go(PickupLocation);
  EXPECT_EQ(Statements(), QStringList({Libraries, AllRows}));
  const auto* const list = Find<CodeComboBox>("cmb5dSelectLibrarySymbol");
  ASSERT_EQ(list->Count(), 3);
  EXPECT_EQ(list->TextAt(0), "All libraries");
  EXPECT_EQ(list->TextAt(1), "XXX9");
  EXPECT_EQ(list->TextAt(2), "YYY8");
  EXPECT_EQ(list->Text(), "All libraries");
  EXPECT_EQ(Rows("grd5dTable"), 4);
  const QStringList headings{"Library Symbol", "Code", "ILS Code", "Delivery Code", "Description"};
  for (int col = 1; col <= 5; ++col) EXPECT_EQ(Cell("grd5dTable", 0, col), headings[col - 1]);
  EXPECT_EQ(Row("grd5dTable"), 1);
  EXPECT_EQ(Boxes(), QStringList({"XXX9", "L", "X-LAW", "", "Law library"}));
  EXPECT_EQ(Focus(), "txt5dCode");
  EXPECT_FALSE(gbRecordModified);
  Picture("pickup-locations");
}

TEST_F(PickupLocationsTest, CaptionsAndLimitsOfTheFields) {
  EnterPage();
  EXPECT_EQ(Text("lbl5dILSCode"), "ILS Code:");
  EXPECT_EQ(Text("lbl5dDeliverySystemCode"), "Delivery Code:");
  EXPECT_EQ(Text("lbl5dSelectLibrarySymbol"), "Show Pickup Locations from:");
  EXPECT_EQ(Text("cmd5dFindLibrary"), "&Find Library");
  const QString text(60, 'X');
  Fill(text, text, text, text, text);
  EXPECT_EQ(Boxes(), QStringList({text.left(25), text.left(1), text.left(20), text.left(10), text.left(50)}));
}

TEST_F(PickupLocationsTest, DeleteIsAvailableHereAlthoughTheOthersHaveItOff) {
  EnterPage();
  for (const char* name : {"cmdAdd", "cmdUpdate", "cmdDelete"}) {
    EXPECT_TRUE(IsShown(name)) << name;
    EXPECT_TRUE(IsEnabled(name)) << name;
  }
  EXPECT_TRUE(IsEnabled("mnuOptionsDelete"));
  Go(MessagingMethod);
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  EXPECT_FALSE(IsEnabled("mnuOptionsDelete"));
}

TEST_F(PickupLocationsTest, AnEmptyTableShowsAnEmptyRecord) {
  Another("DELETE FROM ID_PATRON");
  Another("DELETE FROM ID_PICKUP_LOCATION");
  EnterPage();
  EXPECT_EQ(Find<CodeComboBox>("cmb5dSelectLibrarySymbol")->Count(), 1);
  EXPECT_EQ(Rows("grd5dTable"), 1);
  EXPECT_EQ(Boxes(), QStringList({"", "", "", "", ""}));
}

TEST_F(PickupLocationsTest, TheFilterShowsOneLibraryAndItsFirstRow) {
  EnterPage();
  Choose("cmb5dSelectLibrarySymbol", "YYY8");
  QString chosen = AllRows;
  chosen.replace(" ORDER BY", " AND L.LIBRARY_SYMBOL = N'YYY8' ORDER BY");
  EXPECT_EQ(Statements(), QStringList{chosen});
  EXPECT_EQ(Rows("grd5dTable"), 2);
  EXPECT_EQ(Boxes(), QStringList({"YYY8", "M", "", "", "Main desk"}));
  EXPECT_FALSE(gbRecordModified);
  Choose("cmb5dSelectLibrarySymbol", "All libraries");
  EXPECT_EQ(Statements(), QStringList{AllRows});
  EXPECT_EQ(Rows("grd5dTable"), 4);
}

TEST_F(PickupLocationsTest, TheFilterStaysOnComingBackWhileItsLibraryHasLocations) {
  EnterPage();
  Choose("cmb5dSelectLibrarySymbol", "YYY8");
  Go(RequestMethod);
  Go(PickupLocation);
  EXPECT_EQ(Text("cmb5dSelectLibrarySymbol"), "YYY8");
  EXPECT_EQ(Rows("grd5dTable"), 2);
  Go(RequestMethod);
  Another("DELETE FROM ID_PICKUP_LOCATION WHERE LIBRARY_ID = 9002");
  Go(PickupLocation);
  EXPECT_EQ(Text("cmb5dSelectLibrarySymbol"), "All libraries");
  EXPECT_EQ(Rows("grd5dTable"), 3);
}

TEST_F(PickupLocationsTest, SelectionFillsTheFiveBoxes) {
  EnterPage();
  SelectRow("grd5dTable", 2);
  EXPECT_EQ(Boxes(), QStringList({"XXX9", "M", "X-MAIN", "D1", "Main desk"}));
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(PickupLocationsTest, EachBoxIsAChangeUntilItIsPutBack) {
  EnterPage();
  for (const char* box :
       {"txt5dCode", "txt5dDescription", "txt5dLibrarySymbol", "txt5dILSCode", "txt5dDeliverySystemCode"}) {
    const QString before = Text(box);
    Type(box, "9");
    EXPECT_TRUE(gbRecordModified) << box;
    Type(box, before);
    EXPECT_FALSE(gbRecordModified) << box;
  }
}

TEST_F(PickupLocationsTest, TheDescriptionIsThatOfTheWorkingLanguage) {
  Another("UPDATE ID_PICKUP_LOCATION SET PICKUP_LOCATION_DESC_FRE = 'Droit' WHERE PICKUP_LOCATION = 'L'");
  Start();
  gclsOF->SetLanguageSuffix("_FRE");
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  Go(PickupLocation);
  EXPECT_EQ(Cell("grd5dTable", 1, Description), "Droit");
}

// --- Find Library ---

TEST_F(PickupLocationsTest, TheLibraryFoundFillsTheSymbol) {
  EnterPage();
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(9003); });
  Click("cmd5dFindLibrary");
  EXPECT_EQ(Text("txt5dLibrarySymbol"), "ZZZ7");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(PickupLocationsTest, ASearchWithoutAnAnswerReturnsToTheSymbol) {
  EnterPage();
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(0); });
  Click("cmd5dFindLibrary");
  EXPECT_EQ(Text("txt5dLibrarySymbol"), "XXX9");
  EXPECT_EQ(Focus(), "txt5dLibrarySymbol");
}

TEST_F(PickupLocationsTest, TheSearchNeedsItsOwnRight) {
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Library Registration'");
  EnterPage();
  Prompt().ExpectTitled("You do not have access to this function", MessageStyle::Stop, Shell().Caption());
  Click("cmd5dFindLibrary");
  EXPECT_EQ(Text("txt5dLibrarySymbol"), "XXX9");
}

// --- Add ---

TEST_F(PickupLocationsTest, AddWritesOneInsertWithEveryLanguage) {
  EnterPage();
  Fill(" ZZZ7 ", "s", " Scholar's desk ", " Z'S ", " D'9 ");
  Statements();
  Prompt().ExpectTitled("Pickup Location Added", MessageStyle::Information, Shell().Caption());
  Click("cmdAdd");
  EXPECT_EQ(
      Statements(),
      QStringList(
          {"SELECT   LIBRARY_ID FROM ID_LIBRARY WHERE    LIBRARY_SYMBOL = N'ZZZ7'",
           "SELECT   PICKUP_LOCATION FROM ID_PICKUP_LOCATION WHERE    PICKUP_LOCATION = N'S' AND LIBRARY_ID = 9003",
           "SELECT   PICKUP_LOCATION_DESC FROM ID_PICKUP_LOCATION WHERE    PICKUP_LOCATION_DESC = N'Scholar''s desk' "
           "AND LIBRARY_ID = 9003",
           "INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC, PICKUP_LOCATION_ILS, "
           "DELIVERY_SYSTEM_CODE, PICKUP_LOCATION_DESC_ENG, PICKUP_LOCATION_DESC_FRE, PICKUP_LOCATION_DESC_GER) VALUES "
           "(9003, N'S', N'Scholar''s desk', N'Z''S', N'D''9', N'Scholar''s desk', N'Scholar''s desk', "
           "N'Scholar''s desk')",
           AllRows}));
  EXPECT_EQ(Row("grd5dTable"), 4);
  EXPECT_EQ(Boxes(), QStringList({"ZZZ7", "S", "Z'S", "D'9", "Scholar's desk"}));
  EXPECT_EQ(Focus(), "txt5dDescription");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(PickupLocationsTest, AddOnASiteOfOneLanguageStoresNullForEmptyCodes) {
  Setting("System", "SingleLanguage", "Y");
  EnterPage();
  Fill("ZZZ7", "s", "Desk", " ", " ");
  bool inTransaction = false;
  AfterStatement("INSERT", [&] { inTransaction = gclsOF->Connection().InTransaction(); });
  Done("Pickup Location Added", "cmdAdd");
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC, "
                        "PICKUP_LOCATION_ILS, DELIVERY_SYSTEM_CODE) VALUES (9003, N'S', N'Desk', NULL, NULL)"});
  EXPECT_FALSE(inTransaction);
}

TEST_F(PickupLocationsTest, TheSameCodeAndDescriptionCanExistForTwoLibraries) {
  EnterPage();
  Fill("ZZZ7", "M", "Main desk");
  Done("Pickup Location Added", "cmdAdd");
  EXPECT_EQ(Count("ID_PICKUP_LOCATION", "PICKUP_LOCATION = 'M' AND PICKUP_LOCATION_DESC = 'Main desk'"), 3);
}

TEST_F(PickupLocationsTest, RequiredFieldsAreToldInTheirOrderByAddAndUpdate) {
  EnterPage();
  for (const char* button : {"cmdAdd", "cmdUpdate"}) {
    Fill(" ", " ", " ");
    Refused("Please enter a pickup location code.", 48, button, "txt5dCode");
    Fill(" ", "q", " ");
    Refused("Please enter a pickup location description.", 48, button, "txt5dDescription");
    EXPECT_EQ(Text("txt5dCode"), "Q");
    Fill(" ", "q", "Quiet room");
    Refused("Please enter a library symbol for the pickup location.", 48, button, "txt5dLibrarySymbol");
    Fill("NONE", "q", "Quiet room");
    Refused("Please enter a Valid Library Symbol.", 48, button, "txt5dLibrarySymbol");
    EXPECT_TRUE(gbRecordModified);
  }
}

TEST_F(PickupLocationsTest, ACodeOfTheSameLibraryIsRefused) {
  EnterPage();
  Fill("XXX9", "m", "Main desk");
  Refused("This Pickup Location Code already exists for this library.", 16, "cmdAdd", "txt5dCode");
}

TEST_F(PickupLocationsTest, ADescriptionOfTheSameLibrarySendsTheFocusToTheTabDepartments) {
  Start();
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  Go(PickupLocation);
  Fill("XXX9", "q", "Main desk");
  Refused("This Pickup Location Description already exists for this library.", 16, "cmdAdd", "txt2Description");
  EXPECT_EQ(Find<QTabWidget>("sstabtables")->currentIndex(), frmTabulon::DeliveryTab);
  EXPECT_EQ(Boxes(), QStringList({"XXX9", "Q", "", "", "Main desk"}));
}

TEST_F(PickupLocationsTest, BeforeThatTabWasVisitedTheFocusStays) {
  EnterPage();
  Fill("XXX9", "q", "Main desk");
  Press("txt5dILSCode", Qt::Key_End);
  Prompt().Expect("This Pickup Location Description already exists for this library.", MessageStyle::Stop);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Focus(), "txt5dILSCode");
}

TEST_F(PickupLocationsTest, TheDescriptionIsComparedInTheWorkingLanguage) {
  Another("UPDATE ID_PICKUP_LOCATION SET PICKUP_LOCATION_DESC_FRE = 'Droit' WHERE PICKUP_LOCATION = 'L'");
  Start();
  gclsOF->SetLanguageSuffix("_FRE");
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  Go(PickupLocation);
  Fill("XXX9", "q", "Droit");
  Prompt().Expect("This Pickup Location Description already exists for this library.", MessageStyle::Stop);
  Statements();
  Click("cmdAdd");
  EXPECT_EQ(
      Statements().last(),
      "SELECT   PICKUP_LOCATION_DESC_FRE FROM ID_PICKUP_LOCATION WHERE    PICKUP_LOCATION_DESC_FRE = N'Droit' AND "
      "LIBRARY_ID = 9001");
}

TEST_F(PickupLocationsTest, ALocationThatAnotherClientAddsMeanwhileFailsAtTheInsert) {
  EnterPage();
  Fill("ZZZ7", "q", "Quiet room");
  AfterStatement("SELECT   PICKUP_LOCATION_DESC FROM", [this] {
    Another(
        "INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES(9003, 'Q', "
        "'Theirs')");
  });
  Fails(DatabaseError, "cmdAdd");
  EXPECT_TRUE(LogHolds("frmTabulon.Delivery_Add"));
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_PICKUP_LOCATION(Insert)*****"));
  EXPECT_EQ(Boxes(), QStringList({"ZZZ7", "Q", "", "", "Quiet room"}));
  EXPECT_EQ(Stored("PICKUP_LOCATION_DESC", 9003, "Q"), "Theirs");
}

TEST_F(PickupLocationsTest, ADescriptionTakenInTheBaseLanguageFailsAtTheInsert) {
  Start();
  gclsOF->SetLanguageSuffix("_FRE");
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  Go(PickupLocation);
  Fill("XXX9", "q", "Main desk");
  Fails(DatabaseError, "cmdAdd");
  EXPECT_EQ(Count("ID_PICKUP_LOCATION", "PICKUP_LOCATION = 'Q'"), 0);
}

TEST_F(PickupLocationsTest, ALocationAddedBehindTheFilterIsNotShown) {
  EnterPage();
  Choose("cmb5dSelectLibrarySymbol", "YYY8");
  Fill("ZZZ7", "q", "Quiet room");
  Done("Pickup Location Added", "cmdAdd");
  EXPECT_EQ(Row("grd5dTable"), 0);
  EXPECT_EQ(Rows("grd5dTable"), 2);
  EXPECT_EQ(Count("ID_PICKUP_LOCATION", "PICKUP_LOCATION = 'Q'"), 1);
}

// --- Update ---

TEST_F(PickupLocationsTest, UpdateOfTheDescriptionKeepsTheKey) {
  EnterPage();
  SelectLocation("XXX9", "M");
  Type("txt5dDescription", " Main 'hall' ");
  Statements();
  Prompt().ExpectTitled("Location updated", MessageStyle::Information, Shell().Caption());
  Click("cmdUpdate");
  const QString library = "SELECT   LIBRARY_ID FROM ID_LIBRARY WHERE    LIBRARY_SYMBOL = N'XXX9'";
  EXPECT_EQ(Statements(),
            QStringList({library, library,
                         "UPDATE ID_PICKUP_LOCATION SET LIBRARY_ID = 9001, PICKUP_LOCATION = N'M', "
                         "PICKUP_LOCATION_DESC = N'Main ''hall''', PICKUP_LOCATION_ILS = N'X-MAIN', "
                         "DELIVERY_SYSTEM_CODE = N'D1' WHERE LIBRARY_ID = 9001 AND PICKUP_LOCATION = N'M'",
                         AllRows}));
  EXPECT_EQ(Row("grd5dTable"), 2);
  EXPECT_EQ(Cell("grd5dTable", 2, Description), "Main 'hall'");
  EXPECT_EQ(Focus(), "txt5dCode");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(PickupLocationsTest, UpdateMovesALocationToAnotherLibraryAndCode) {
  EnterPage();
  SelectLocation("XXX9", "L");
  Fill("ZZZ7", "j", "Jurists", "", "D5");
  bool inTransaction = false;
  AfterStatement("UPDATE", [&] { inTransaction = gclsOF->Connection().InTransaction(); });
  Done("Location updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_PICKUP_LOCATION SET LIBRARY_ID = 9003, PICKUP_LOCATION = N'J', "
                                   "PICKUP_LOCATION_DESC = N'Jurists', PICKUP_LOCATION_ILS = NULL, "
                                   "DELIVERY_SYSTEM_CODE = N'D5' WHERE LIBRARY_ID = 9001 AND PICKUP_LOCATION = N'L'"});
  EXPECT_FALSE(inTransaction);
  EXPECT_EQ(Cell("grd5dTable", Row("grd5dTable"), LibrarySymbol), "ZZZ7");
  EXPECT_EQ(Stored("DELIVERY_SYSTEM_CODE", 9003, "J"), "D5");
}

TEST_F(PickupLocationsTest, UpdateChangesTheLanguageNowChosenOnly) {
  Start();
  gclsOF->SetLanguageSuffix("_GER");
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  Go(PickupLocation);
  Type("txt5dDescription", "Jura");
  Done("Location updated", "cmdUpdate");
  EXPECT_TRUE(Writing().value(0).contains(", PICKUP_LOCATION_DESC_GER = N'Jura', "));
  EXPECT_EQ(Stored("PICKUP_LOCATION_DESC", 9001, "L"), "Law library");
}

TEST_F(PickupLocationsTest, AnUnchangedRecordIsRefusedWithAFullStop) {
  EnterPage();
  Type("txt5dCode", "l");
  Refused("Nothing has been changed.", 48, "cmdUpdate", "txt5dCode");
  EXPECT_EQ(Text("txt5dCode"), "L");
}

TEST_F(PickupLocationsTest, UpdateWithoutARowWritesNothing) {
  EnterPage();
  Click("cmdClear");
  Fill("XXX9", "L", "Law books");
  Refused("Please select a Pickup Location.", 48, "cmdUpdate", "txt5dCode");
  EXPECT_EQ(Boxes(), QStringList({"XXX9", "L", "", "", "Law books"}));
}

TEST_F(PickupLocationsTest, ARowWhoseLibraryHasBeenRenamedMeanwhileIsNotWritten) {
  EnterPage();
  SelectLocation("XXX9", "L");
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'NEW9' WHERE LIBRARY_ID = 9001");
  Type("txt5dLibrarySymbol", "NEW9");
  Refused("Please enter a Valid Library Symbol.", 48, "cmdUpdate", "txt5dLibrarySymbol");
}

TEST_F(PickupLocationsTest, ADuplicateOfAnotherClientIsToldInItsOwnWordsAndTheEntryStays) {
  const QString duplicate = "The Pickup Location Code or Description already exisit for this library.";
  EnterPage();
  SelectLocation("XXX9", "L");
  Another(
      "INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES(9001, 'Q', "
      "'Quiet room')");
  Type("txt5dCode", "q");
  Fails(duplicate, "cmdUpdate");
  EXPECT_TRUE(LogHolds("***** SQL error on ID_PICKUP_LOCATION (Update) *****"));
  EXPECT_EQ(Boxes(), QStringList({"XXX9", "Q", "X-LAW", "", "Law library"}));
  Type("txt5dCode", "l");
  Type("txt5dDescription", "Quiet room");
  Fails(duplicate, "cmdUpdate");
  EXPECT_EQ(Text("txt5dDescription"), "Quiet room");
  EXPECT_EQ(Stored("PICKUP_LOCATION_DESC", 9001, "L"), "Law library");
}

TEST_F(PickupLocationsTest, ALocationOfAPatronKeepsItsCodeAndTheBoxesReturn) {
  EnterPage();
  SelectLocation("XXX9", "M");
  Fill("ZZZ7", "q", "Quiet room", "I", "D");
  Prompt().ExpectTitled(AttachedToPatron, MessageStyle::Stop, Shell().Caption());
  Click("cmdUpdate");
  EXPECT_EQ(Boxes(), QStringList({"XXX9", "M", "X-MAIN", "D1", "Main desk"}));
  EXPECT_FALSE(gbRecordModified);
  EXPECT_TRUE(LogHolds("***** SQL error on ID_PICKUP_LOCATION (Update) *****"));
  EXPECT_EQ(Stored("PICKUP_LOCATION_DESC", 9001, "M"), "Main desk");
}

TEST_F(PickupLocationsTest, AnyOtherConstraintAsksToTryAgain) {
  EnterPage();
  SelectLocation("XXX9", "L");
  const QString old = "SELECT   LIBRARY_ID FROM ID_LIBRARY WHERE    LIBRARY_SYMBOL = N'XXX9'";
  // A column that must not be empty is added meanwhile, filled by nobody.
  Another(
      "CREATE TABLE ID_STRICT (LIBRARY_ID INTEGER NOT NULL, PICKUP_LOCATION VARCHAR(1) NOT NULL, "
      "PICKUP_LOCATION_DESC VARCHAR(50), PICKUP_LOCATION_ILS VARCHAR(20) NOT NULL, DELIVERY_SYSTEM_CODE "
      "VARCHAR(10))");
  Another("INSERT INTO ID_STRICT VALUES(9001, 'L', 'Law library', 'X-LAW', NULL)");
  Another("ALTER TABLE ID_PICKUP_LOCATION RENAME TO ID_ELSEWHERE");
  Another("ALTER TABLE ID_STRICT RENAME TO ID_PICKUP_LOCATION");
  Type("txt5dILSCode", " ");
  Fails(TryAgain, "cmdUpdate");
  EXPECT_EQ(Text("txt5dILSCode"), "");
}

TEST_F(PickupLocationsTest, AnyOtherFailureOfUpdateNamesTheStatement) {
  EnterPage();
  Another("ALTER TABLE ID_PICKUP_LOCATION RENAME TO ID_ELSEWHERE");
  Type("txt5dDescription", "Changed");
  Fails("***** SQL error on ID_PICKUP_LOCATION (Update) *****", "cmdUpdate");
  EXPECT_EQ(Text("txt5dDescription"), "Changed");
}

TEST_F(PickupLocationsTest, ADroppedConnectionFailsOnceAndIsOpenedAgain) {
  EnterPage();
  Fill("ZZZ7", "q", "Quiet room");
  if (!DropConnection()) GTEST_SKIP() << "This engine has no server to lose";
  Fails(DatabaseError, "cmdAdd");
  EXPECT_EQ(Boxes(), QStringList({"ZZZ7", "Q", "", "", "Quiet room"}));
  Done("Pickup Location Added", "cmdAdd");
  AnswerDelete(MessageAnswer::Yes);
  ASSERT_TRUE(DropConnection());
  Prompt().Expect(
      "An error has occurred while attempting to delete the record.\n\nIf the error persists notify "
      "support.",
      MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_PICKUP_LOCATION", "PICKUP_LOCATION = 'Q'"), 1);
}

// --- Delete and Clear ---

TEST_F(PickupLocationsTest, DeleteAsksAndRemovesOneLocation) {
  EnterPage();
  SelectLocation("YYY8", "M");
  AnswerDelete(MessageAnswer::No);
  Statements();
  Click("cmdDelete");
  EXPECT_EQ(Statements(), QStringList());
  AnswerDelete(MessageAnswer::Yes);
  Done("Location Deleted", "cmdDelete");
  EXPECT_EQ(Writing(),
            QStringList{"DELETE FROM ID_PICKUP_LOCATION WHERE LIBRARY_ID = 9002 AND PICKUP_LOCATION = N'M'"});
  EXPECT_EQ(Rows("grd5dTable"), 3);
  EXPECT_EQ(Row("grd5dTable"), 0);
  EXPECT_EQ(Boxes(), QStringList({"", "", "", "", ""}));
  EXPECT_EQ(Focus(), "txt5dCode");
  EXPECT_EQ(Count("ID_PICKUP_LOCATION", "PICKUP_LOCATION = 'M'"), 1);
}

TEST_F(PickupLocationsTest, DeleteWithoutACodeIsRefusedBeforeTheQuestion) {
  EnterPage();
  Type("txt5dCode", " ");
  Refused("Please select a Pickup Location.", 48, "cmdDelete", "txt5dCode");
}

TEST_F(PickupLocationsTest, DeleteWithAnUnknownLibraryIsRefusedAfterTheQuestion) {
  EnterPage();
  Type("txt5dCode", "l");
  Type("txt5dLibrarySymbol", "NONE");
  AnswerDelete(MessageAnswer::Yes);
  Refused("This is not a valid Library Symbol.", 48, "cmdDelete", "txt5dLibrarySymbol");
  EXPECT_EQ(Text("txt5dCode"), "L");
}

TEST_F(PickupLocationsTest, ALocationOfAPatronIsKeptInALongerText) {
  EnterPage();
  SelectLocation("XXX9", "M");
  AnswerDelete(MessageAnswer::Yes);
  Prompt().ExpectTitled(
      "An error has occurred while attempting to delete the record.\n\nThe Code is referenced by another table in the "
      "database and may not be deleted.",
      MessageStyle::Stop, Shell().Caption());
  Click("cmdDelete");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_PICKUP_LOCATION (DELETE) *****"));
  EXPECT_EQ(Boxes(), QStringList({"XXX9", "M", "X-MAIN", "D1", "Main desk"}));
  EXPECT_EQ(Count("ID_PICKUP_LOCATION", "LIBRARY_ID = 9001 AND PICKUP_LOCATION = 'M'"), 1);
}

TEST_F(PickupLocationsTest, AnyOtherFailureOfDeleteSaysThatItMayPersist) {
  EnterPage();
  Another("ALTER TABLE ID_PICKUP_LOCATION RENAME TO ID_ELSEWHERE");
  AnswerDelete(MessageAnswer::Yes);
  Prompt().Expect(
      "An error has occurred while attempting to delete the record.\n\nIf the error persists notify support.",
      MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Text("txt5dCode"), "L");
}

TEST_F(PickupLocationsTest, ClearEmptiesTheFiveBoxesAndLeavesNoRow) {
  EnterPage();
  Click("cmdClear");
  EXPECT_EQ(Boxes(), QStringList({"", "", "", "", ""}));
  EXPECT_EQ(Row("grd5dTable"), 0);
  EXPECT_EQ(Rows("grd5dTable"), 4);
  EXPECT_EQ(Focus(), "txt5dCode");
  EXPECT_FALSE(gbRecordModified);
}

}  // namespace
