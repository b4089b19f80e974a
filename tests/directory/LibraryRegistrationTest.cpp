// The registration screen: creating, changing and deleting a library.
#include <QAction>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "directory/TimeZones.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

namespace {

const QDateTime Noon(QDate(2024, 3, 5), QTime(12, 30, 15));

class LibraryRegistrationTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    Clock::Set([] { return Noon; });
  }
  Screen& OpenScreen(qint32 id = 0) { return OpenLibrary("frmLibraryRegistration", id); }
  QString Now() { return gclsOF->SqlDate(Noon); }
  // What a new library needs at the least.
  void FillNew(const QString& symbol = "WEST") {
    Type("txtLibrarySymbol", symbol);
    Type("txtInstitution", "West School");
    Type("txtStreet1", "2 Mill Lane");
  }
  void AddNew(const QString& symbol = "WEST") {
    FillNew(symbol);
    Prompt().Expect("Library Symbol: '" + symbol + "' has been added.", MessageStyle::Information);
    Click("cmdAdd");
  }
  CodeComboBox* Combo(const QString& name) { return Find<CodeComboBox>(name); }
};

// --- Loading ---

TEST_F(LibraryRegistrationTest, ListsAndTheirStart) {
  Begin();
  Open("frmLibraryRegistration");
  const QStringList statements = Statements();
  EXPECT_TRUE(
      statements.contains("SELECT   DELIV_METHOD, DELIV_METHOD_DESC FROM ID_DELIV_METHOD "
                          "WHERE    ACTIVE_FLAG = N'Y' ORDER BY DELIV_METHOD_DESC"));
  EXPECT_TRUE(
      statements.contains("SELECT MSG_METHOD, MSG_METHOD_DESC FROM ID_MSG_METHOD "
                          "WHERE    ACTIVE_FLAG = N'Y' ORDER BY MSG_METHOD_DESC"));
  EXPECT_TRUE(
      statements.contains("SELECT   FILE_FORMAT, FILE_FORMAT_DESC FROM ID_FILE_FORMAT ORDER BY FILE_FORMAT_DESC"));
  EXPECT_TRUE(statements.contains("SELECT   MSG_FORMAT, MSG_FORMAT_DESC FROM ID_MSG_FORMAT ORDER BY MSG_FORMAT_DESC"));
  EXPECT_EQ(Combo("cmbDeliveryMethodCopy")->Code(), "M");
  EXPECT_EQ(Combo("cmbDeliveryMethodLoan")->Code(), "M");
  EXPECT_EQ(Combo("cboMsgMethod")->Code(), "M");
  EXPECT_EQ(Combo("cboFileFormat")->Code(), "P");
  EXPECT_EQ(Combo("cmbEmailMsgFormat")->Code(), "T");
  EXPECT_EQ(Combo("cmbTimeZone")->Code(), "Eastern Standard Time");
  EXPECT_EQ(Text("cmbTimeZone"), "(UTC-05:00) Eastern Time (US & Canada)");
  // Pickup is a method of the program's own.
  EXPECT_LT(Combo("cmbDeliveryMethodCopy")->IndexOfCode("P"), 0);
  EXPECT_LT(Combo("cmbDeliveryMethodLoan")->IndexOfCode("P"), 0);
}

TEST_F(LibraryRegistrationTest, ListsAreReadInTheWorkingLanguage) {
  Another("UPDATE ID_DELIV_METHOD SET DELIV_METHOD_DESC_FRE = 'Courrier' WHERE DELIV_METHOD = 'M'");
  Begin();
  gclsOF->SetLanguageSuffix("_FRE");
  Open("frmLibraryRegistration");
  EXPECT_EQ(Text("cmbDeliveryMethodCopy"), "Courrier");
}

TEST_F(LibraryRegistrationTest, TheTimeZonesAreTheProgramsOwnList) {
  const std::vector<TimeZoneEntry>& zones = TimeZoneList();
  ASSERT_EQ(zones.size(), 141U);
  EXPECT_EQ(zones.front().displayText, "(UTC-12:00) International Date Line West");
  EXPECT_EQ(zones.front().id, "Dateline Standard Time");
  EXPECT_EQ(zones.back().displayText, "(UTC+14:00) Kiritimati Island");
  EXPECT_EQ(zones.back().id, "Line Islands Standard Time");
  OpenScreen();
  EXPECT_EQ(Combo("cmbTimeZone")->Count(), 141);
}

TEST_F(LibraryRegistrationTest, ATimeZoneLineOfAnotherShapeIsSkipped) {
  const std::vector<TimeZoneEntry> zones = ReadTimeZones("A\tone\r\nno tab\r\nB\ttwo\tthree\r\n\r\nC\tfour\r\n");
  ASSERT_EQ(zones.size(), 2U);
  EXPECT_EQ(zones[1].displayText, "C");
  EXPECT_EQ(zones[1].id, "four");
}

TEST_F(LibraryRegistrationTest, LoadBalancingIsReadFromTheSettings) {
  OpenScreen();
  EXPECT_FALSE(gbUseLoadBalancing);
  Setting("Load Balancing", "UseLoadBalancing", "Y");
  OpenScreen();
  EXPECT_TRUE(gbUseLoadBalancing);
}

TEST_F(LibraryRegistrationTest, RequiredFieldsHaveBoldLabels) {
  OpenScreen();
  EXPECT_TRUE(Find<QLabel>("lblLibrarySymbol")->font().bold());
  EXPECT_TRUE(Find<QLabel>("lblInstitution")->font().bold());
  EXPECT_FALSE(Find<QLabel>("lblLibraryName")->font().bold());
}

TEST_F(LibraryRegistrationTest, RightsHideAddAndDelete) {
  Rights("update");
  OpenScreen(North);
  EXPECT_FALSE(IsShown("cmdAdd"));
  EXPECT_FALSE(IsShown("mnuOptionsAdd"));
  EXPECT_FALSE(IsShown("cmdDelete"));
  EXPECT_FALSE(IsShown("mnuOptionsDelete"));
  EXPECT_TRUE(IsShown("cmdUpdate"));
}

TEST_F(LibraryRegistrationTest, DeleteAndMessageFormatFollowTheRecord) {
  OpenScreen();
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  EXPECT_FALSE(IsEnabled("mnuOptionsDelete"));
  EXPECT_FALSE(IsEnabled("cmdMessageFormat"));
  Type("txtLibrarySymbol", "NORTH");
  Click("cmdSearch");
  EXPECT_TRUE(IsEnabled("cmdDelete"));
  EXPECT_TRUE(IsEnabled("cmdMessageFormat"));
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  WhenShown("frmDeliveryEmailTemplate", [](Screen&) {});
  Click("cmdMessageFormat");
}

TEST_F(LibraryRegistrationTest, MaintenanceCallersSeeNoSuppliersAndPatrons) {
  for (const char* caller : {"Administer Settings", "Tabulon", "User Maintenance"}) {
    OpenLibrary("frmLibraryRegistration", North, caller);
    for (const char* name : {"cmdSupplier", "cmdPatron", "mnuDisplaySupplier", "mnuDisplayPatron", "mnuDisplaySep"})
      EXPECT_FALSE(IsShown(name)) << caller << name;
  }
  OpenScreen(North);
  for (const char* name : {"cmdSupplier", "cmdPatron", "mnuDisplaySupplier", "mnuDisplayPatron", "mnuDisplaySep"})
    EXPECT_TRUE(IsShown(name)) << name;
}

TEST_F(LibraryRegistrationTest, InstitutionAndLibraryNameAreTypedInCapitals) {
  OpenScreen();
  Type("txtInstitution", "école");
  Type("txtLibraryName", "main");
  Type("txtContact", "Ann");
  Type("txtLibrarySymbol", "west");
  EXPECT_EQ(Text("txtInstitution"), "ÉCOLE");
  EXPECT_EQ(Text("txtLibraryName"), "MAIN");
  EXPECT_EQ(Text("txtContact"), "Ann");
  EXPECT_EQ(Text("txtLibrarySymbol"), "west");
}

// --- Add ---

TEST_F(LibraryRegistrationTest, AddWritesOneRowThatBillsToItsStreet) {
  OpenScreen();
  Type("txtLibrarySymbol", " O'Hare ");
  Type("txtInstitution", "West School");
  Type("txtStreet1", "2 Mill Lane");
  Type("txtCity", "Leeds");
  Prompt().Expect("Library Symbol: 'O'Hare' has been added.", MessageStyle::Information);
  Click("cmdAdd");
  const QStringList writing = Writing();
  ASSERT_EQ(writing.size(), 2) << qPrintable(writing.join("\n"));
  EXPECT_EQ(
      writing[1],
      "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, DATE_ENTERED, "
      "LIBRARY, CONTACT, PRIME_ADDRESS1, PRIME_ADDRESS2, PRIME_CITY, PRIME_PROV_STATE, PRIME_COUNTRY, "
      "PRIME_POST_ZIPCODE, BILL_ADDRESS1, BILL_ADDRESS2, BILL_CITY, BILL_PROV_STATE, BILL_COUNTRY, "
      "BILL_POST_ZIPCODE, FILE_FORMAT, DELIV_METHOD_COPY, DELIV_METHOD_LOAN, DELIV_FAX, DELIV_EMAIL, "
      "MSG_FORMAT, MSG_METHOD, MSG_FAX, MSG_EMAIL, INTERNET_ARIEL, ODYSSEY_ADDRESS, DELIVERY_SERVICE, "
      "DOCVIEW_ADDRESS, REQUESTS_PROCESSED, WEIGHTING_FACTOR, TIMEZONE) VALUES (10000000, N'Y', N'O''Hare', "
      "N'WEST SCHOOL', " +
          Now() +
          ", Null, Null, N'2 Mill Lane', Null, N'Leeds', Null, Null, Null, "
          "N'2 Mill Lane', Null, N'Leeds', Null, Null, Null, N'P', N'M', N'M', Null, Null, N'T', N'M', Null, Null, "
          "Null, Null, Null, Null, 0, 1.0, N'Eastern Standard Time')");
  EXPECT_EQ(Column("LIBRARY_SYMBOL", 10000000), "O'Hare");
  EXPECT_EQ(Column("BILL_CITY", 10000000), "Leeds");
}

TEST_F(LibraryRegistrationTest, WhatWasAddedIsTheRecordOnShow) {
  OpenScreen();
  AddNew();
  EXPECT_EQ(gclsOF->LibraryId(), 10000000);
  EXPECT_TRUE(gbLibraryActive);
  for (const char* name :
       {"cmdUpdate", "cmdDelete", "cmdArticle", "cmdBook", "mnuOptionsDelete", "cmdMessageFormat", "cmdAdd"})
    EXPECT_TRUE(IsEnabled(name)) << name;
  Type("txtCity", "Leeds");
  Prompt().Expect("Library Symbol: 'WEST' has been updated.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Column("PRIME_CITY", 10000000), "Leeds");
  EXPECT_EQ(Column("BILL_CITY", 10000000), QString());
}

TEST_F(LibraryRegistrationTest, AddWithARecordOnShowMakesASecondLibrary) {
  OpenScreen();
  AddNew();
  Prompt().Expect("Library Symbol 'WEST' already exists.\n\nPlease enter a unique Library Symbol.", MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
  Type("txtLibrarySymbol", "WEST2");
  Prompt().Expect("Library Symbol: 'WEST2' has been added.", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(gclsOF->LibraryId(), 10000001);
  EXPECT_EQ(Count("ID_LIBRARY", "INSTITUTION_NAME = 'WEST SCHOOL'"), 2);
}

TEST_F(LibraryRegistrationTest, AddNeedsSymbolAndInstitution) {
  OpenScreen();
  Type("txtLibrarySymbol", "  ");
  Prompt().Expect("Library Symbol is a required field.", MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
  Type("txtLibrarySymbol", "WEST");
  Prompt().Expect("Institution is a required field.", MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txtInstitution");
  EXPECT_EQ(Writing(), QStringList());
}

// The number of a row that the database refuses stays used.
TEST_F(LibraryRegistrationTest, ARefusedInsertIsToldAndKeepsItsNumberUsed) {
  OpenScreen();
  FillNew();
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN DOCVIEW_ADDRESS TO MOVED");
  Prompt().Expect("An error has occurred while attempting to add the Library.  If the error persists notify support.",
                  MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_TRUE(LogHolds("frmLibraryRegistration.cmdAdd_Click"));
  EXPECT_TRUE(LogHolds("***** SQL error on ID_library (Insert) *****"));
  EXPECT_EQ(Ask("SELECT NEXT_LIBRARY FROM ID_NEXT_LIBRARY"), "10000001");
  EXPECT_EQ(gclsOF->LibraryId(), 0);
}

// Between the test of the symbol and the INSERT nothing is locked; the key of the database has the last word.
TEST_F(LibraryRegistrationTest, ASymbolTakenMeanwhileIsRefusedByTheDatabase) {
  OpenScreen();
  FillNew();
  bool raced = false;
  gclsOF->Connection().AddObserver([&](const StatementRecord& record) {
    if (raced || !record.text.contains("LIBRARY_SYMBOL = N'WEST'")) return;
    raced = true;
    AddLibrary(500, "WEST");
  });
  Prompt().Expect("An error has occurred while attempting to add the Library.  If the error persists notify support.",
                  MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_LIBRARY", "LIBRARY_SYMBOL = 'WEST'"), 1);
}

// --- Update ---

TEST_F(LibraryRegistrationTest, UpdateWritesTheWholeSliceInOneStatement) {
  OpenScreen(North);
  Type("txtLibraryName", "north's");
  Prompt().Expect("Library Symbol: 'NORTH' has been updated.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Writing(),
            QStringList("UPDATE ID_LIBRARY SET      INSTITUTION_NAME = N'NORTH COLLEGE', LAST_MODIFIED = " + Now() +
                        ", LIBRARY = N'NORTH''S', CONTACT = N'Ann Reed', PRIME_ADDRESS1 = N'1 Harbour Road', "
                        "PRIME_ADDRESS2 = Null, PRIME_CITY = Null, PRIME_PROV_STATE = Null, PRIME_COUNTRY = Null, "
                        "PRIME_POST_ZIPCODE = N'N1 1AA', FILE_FORMAT = N'P', DELIV_METHOD_COPY = N'M', "
                        "DELIV_METHOD_LOAN = N'M', DELIV_FAX = Null, DELIV_EMAIL = Null, MSG_METHOD = N'M', "
                        "MSG_FAX = Null, MSG_EMAIL = Null, MSG_FORMAT = N'T', INTERNET_ARIEL = Null, "
                        "ODYSSEY_ADDRESS = Null, DELIVERY_SERVICE = Null, DOCVIEW_ADDRESS = Null, TIMEZONE = Null "
                        "WHERE    LIBRARY_ID = 101"));
  EXPECT_EQ(Column("LIBRARY"), "NORTH'S");
  Prompt().Expect("Nothing has been changed.", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_F(LibraryRegistrationTest, UpdateNeverChangesTheSymbol) {
  OpenScreen(North);
  Type("txtCity", "Leeds");
  Type("txtLibrarySymbol", "RENAMED");
  Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect("Library Symbol: 'NORTH' has been updated.", MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_EQ(Column("LIBRARY_SYMBOL"), "NORTH");
  EXPECT_EQ(Column("PRIME_CITY"), "Leeds");
}

TEST_F(LibraryRegistrationTest, UpdateNeedsSymbolAndInstitution) {
  OpenScreen(North);
  Type("txtInstitution", " ");
  Prompt().Expect("Institution is a required field.\nPlease enter a value.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txtInstitution");
  Type("txtInstitution", "X");
  Type("txtLibrarySymbol", "");
  Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect("Library Symbol is a required field.\nPlease enter a value.", MessageStyle::Stop);
  Click("cmdSearch");
}

TEST_F(LibraryRegistrationTest, UpdateNeedsARecord) {
  OpenScreen(North);
  Type("txtCity", "Leeds");
  gclsOF->SetLibraryId(0);
  Prompt().Expect("A record must be displayed before you can update.", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_F(LibraryRegistrationTest, AFailedUpdateLogsItsStatement) {
  OpenScreen(North);
  Type("txtCity", "Leeds");
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN PRIME_CITY TO MOVED");
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(LogHolds("***** SQL error on ID_library (Insert) *****"));
  EXPECT_TRUE(LogHolds("UPDATE ID_LIBRARY SET      INSTITUTION_NAME"));
  EXPECT_EQ(Text("txtCity"), "Leeds");
}

// --- Delete ---

TEST_F(LibraryRegistrationTest, DeleteAsksWithNoAsItsDefault) {
  OpenScreen(North);
  const QString question =
      "If any Requests are attached to this record you will not be able to delete it.\n\n"
      "Are you sure you wish to delete this record ?";
  const int style = MessageStyle::Question | MessageStyle::DefaultButton2;
  Prompt().Expect(question, style, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Focus(), "txtLibrarySymbol");
  EXPECT_EQ(Count("ID_LIBRARY", "LIBRARY_ID = 101"), 1);
  Prompt().Expect(question, style, MessageAnswer::Yes);
  Prompt().Expect("Library deleted.", MessageStyle::Information);
  Click("cmdDelete");
  EXPECT_EQ(Writing(), QStringList("DELETE FROM ID_LIBRARY WHERE    LIBRARY_ID = 101"));
  EXPECT_EQ(Count("ID_LIBRARY", "LIBRARY_ID = 101"), 0);
  EXPECT_EQ(Text("txtInstitution"), "");
  EXPECT_EQ(gclsOF->LibraryId(), 0);
  EXPECT_FALSE(IsEnabled("cmdDelete"));
}

TEST_F(LibraryRegistrationTest, ARefusedDeleteIsToldInOneSentenceWhateverItsCause) {
  Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE) VALUES (101, 'S1')");
  OpenScreen(North);
  Prompt().ExpectStart("If any Requests", MessageStyle::Question | MessageStyle::DefaultButton2, MessageAnswer::Yes);
  Prompt().Expect("This Library has Requests attached.  Unable to Delete.", MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on ID_library (Delete) *****"));
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
}

TEST_F(LibraryRegistrationTest, DeleteNeedsARecord) {
  OpenScreen(North);
  gclsOF->SetLibraryId(0);
  Prompt().Expect("A record must be displayed before it can be Deleted.", MessageStyle::Stop);
  Click("cmdDelete");
}

// --- Reading ---

TEST_F(LibraryRegistrationTest, DeactivatedMethodsAreShownAsMailUntilTheUserUpdates) {
  for (const char* column : {"DELIV_METHOD_COPY", "DELIV_METHOD_LOAN", "MSG_METHOD"}) SetColumn(North, column, "'A'");
  Another("UPDATE ID_DELIV_METHOD SET ACTIVE_FLAG = NULL WHERE DELIV_METHOD = 'A'");
  Another("UPDATE ID_MSG_METHOD SET ACTIVE_FLAG = NULL WHERE MSG_METHOD = 'A'");
  const QString delivery = "The current Delivery Method has been deactivated.\n\nResetting to Mail.";
  Prompt().Expect(delivery, MessageStyle::Information);
  Prompt().Expect(delivery, MessageStyle::Information);
  Prompt().Expect("The current Messaging Method has been deactivated.\n\nResetting to Mail.",
                  MessageStyle::Information);
  OpenScreen(North);
  EXPECT_EQ(Combo("cmbDeliveryMethodCopy")->Code(), "M");
  EXPECT_EQ(Combo("cboMsgMethod")->Code(), "M");
  // The record counts as unmodified.
  Prompt().Expect("Nothing has been changed.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Column("DELIV_METHOD_COPY"), "A");
}

TEST_F(LibraryRegistrationTest, EmptyCodesAreShownInSilence) {
  OpenScreen(North);
  EXPECT_EQ(Combo("cmbDeliveryMethodLoan")->Code(), "M");
  EXPECT_EQ(Combo("cboFileFormat")->Code(), "P");
  EXPECT_EQ(Combo("cmbEmailMsgFormat")->Code(), "T");
  EXPECT_EQ(Text("cmbTimeZone"), "");
}

TEST_F(LibraryRegistrationTest, AnUnknownTimeZoneStaysOnTheRecord) {
  SetColumn(North, "TIMEZONE", "'Mars Standard Time'");
  OpenScreen(North);
  Type("txtCity", "Leeds");
  Prompt().Expect("Library Symbol: 'NORTH' has been updated.", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Column("TIMEZONE"), "Mars Standard Time");
}

TEST_F(LibraryRegistrationTest, ClearReturnsToTheDefaults) {
  SetColumn(North, "DELIV_METHOD_COPY", "'E'");
  SetColumn(North, "FILE_FORMAT", "'J'");
  OpenScreen(North);
  Click("cmdClear");
  EXPECT_EQ(Combo("cmbDeliveryMethodCopy")->Code(), "M");
  EXPECT_EQ(Combo("cboFileFormat")->Code(), "P");
  EXPECT_EQ(Combo("cmbTimeZone")->Code(), "Eastern Standard Time");
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  EXPECT_FALSE(IsEnabled("cmdMessageFormat"));
}

// --- Suppliers and patrons ---

TEST_F(LibraryRegistrationTest, SupplierHandsOverTheFirstCode) {
  Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE) VALUES (101, 'S1 ')");
  Begin(North);
  WhenShown("frmSupplierRegistration", [](Screen&) {
    EXPECT_EQ(gstrSupplierCode, "S1");
    EXPECT_FALSE(gbAddSupplier);
    EXPECT_EQ(gclsOF->LibraryId(), North);
  });
  InSession("frmLibraryRegistration", [this] { Click("cmdSupplier"); });
}

TEST_F(LibraryRegistrationTest, ALibraryWithoutASupplierMayGetOne) {
  Begin(North);
  WhenShown("frmSupplierRegistration", [](Screen&) { EXPECT_TRUE(gbAddSupplier); });
  InSession("frmLibraryRegistration", [this] {
    Prompt().Expect("Supplier does not exist, would you like to add one?", MessageStyle::Question, MessageAnswer::Yes);
    Click("cmdSupplier");
  });
  WhenShown("frmSupplierRegistration", [](Screen&) {
    EXPECT_FALSE(gbAddSupplier);
    EXPECT_EQ(gstrSupplierCode, "");
  });
  InSession("frmLibraryRegistration", [this] {
    // No stops nothing.
    Prompt().Expect("Supplier does not exist, would you like to add one?", MessageStyle::Question, MessageAnswer::No);
    Click("cmdSupplier");
  });
}

TEST_F(LibraryRegistrationTest, SuppliersAndPatronsNeedTheirRight) {
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME IN ('Supplier Registration', 'Patron Registration')");
  Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE) VALUES (101, 'S1')");
  Screen& screen = OpenScreen(North);
  for (const char* button : {"cmdSupplier", "cmdPatron"}) {
    Prompt().Expect("You do not have access to this function", MessageStyle::Stop);
    Click(button);
  }
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(gclsOF->CanUpdate());
}

TEST_F(LibraryRegistrationTest, PatronsStartWithoutALibraryAndGiveItBack) {
  Begin(North);
  WhenShown("frmPatronRegistration", [](Screen&) { EXPECT_EQ(gclsOF->LibraryId(), 0); });
  InSession("frmLibraryRegistration", [this] { Click("cmdPatron"); });
  EXPECT_EQ(gclsOF->LibraryId(), North);
}

}  // namespace
