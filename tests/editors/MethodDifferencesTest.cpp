// What sets the sub-tabs of methods apart, and what they do together.
#include <QGroupBox>
#include <QTabWidget>

#include "editors/DeliveryDesk.h"

namespace {

class MethodDifferencesTest : public DeliveryDesk {
 protected:
  QString Flags(const QString& table, const QString& column, const QString& code) {
    QStringList letters;
    for (const char* flag : {"ACTIVE_FLAG", "PRINT_FLAG", "WEB_FLAG"}) {
      const QString letter = Ask(QString("SELECT %1 FROM %2 WHERE %3 = '%4'").arg(flag, table, column, code));
      letters.append(letter.isNull() ? "NULL" : letter);
    }
    return letters.join(' ');
  }
};

TEST_F(MethodDifferencesTest, TheTabAlwaysOpensOnDeliveryMethodAndLoadsItOnce) {
  Start();
  Statements();
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM ID_DELIV_METHOD ORDER BY DELIV_METHOD"});
  Go(RequestMethod);
  EXPECT_EQ(Find<QTabWidget>("sstab5Delivery")->currentIndex(), RequestMethod);
  SelectTab("sstabtables", frmTabulon::LoansTab);
  Statements();
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  EXPECT_EQ(Find<QTabWidget>("sstab5Delivery")->currentIndex(), DeliveryMethod);
  EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM ID_DELIV_METHOD ORDER BY DELIV_METHOD"});
  EXPECT_EQ(Focus(), "txt5aCode");
}

TEST_F(MethodDifferencesTest, CaptionsOfSubTabsOptionsAndColumns) {
  Enter();
  const auto* const tabs = Find<QTabWidget>("sstab5Delivery");
  const QStringList captions{"Delivery Method", "Messaging Method", "Request Method", "Pickup Location"};
  for (int at = 0; at < 4; ++at) EXPECT_EQ(tabs->tabText(at), captions[at]);
  EXPECT_EQ(Find<QWidget>("fra5aActive")->accessibleName(), "Active:");
  EXPECT_EQ(Find<QWidget>("fra5bPrint")->accessibleName(), "Print:");
  EXPECT_EQ(Find<QWidget>("fra5aDisplay")->accessibleName(), "Display for Patron:");
  EXPECT_EQ(Text("opt5aActive(0)"), "Yes");
  EXPECT_EQ(Text("opt5aActive(1)"), "No");
  // Only the messaging methods show the patron's flag.
  EXPECT_TRUE(Find<Grid>("grd5aTable")->ColHidden(5));
  Go(MessagingMethod);
  EXPECT_FALSE(Find<Grid>("grd5bTable")->ColHidden(5));
  EXPECT_EQ(Cell("grd5bTable", 0, 5), "Patron");
  Go(RequestMethod);
  EXPECT_EQ(Find<Grid>("grd5cTable")->Cols(), 4);
}

TEST_F(MethodDifferencesTest, ASubTabShowsItsTableAsItIsNow) {
  Enter(MessagingMethod);
  Go(DeliveryMethod);
  Another("INSERT INTO ID_MSG_METHOD (MSG_METHOD, MSG_METHOD_DESC) VALUES('X', 'Extra')");
  Go(MessagingMethod);
  EXPECT_EQ(Rows("grd5bTable"), 5);
}

TEST_F(MethodDifferencesTest, LeavingASubTabLeavesNoUnsavedRecord) {
  Enter();
  Type("txt5aDescription", "Changed");
  Go(MessagingMethod);
  EXPECT_FALSE(gbRecordModified);
  SelectTab("sstabtables", frmTabulon::LoansTab);
}

TEST_F(MethodDifferencesTest, TheLetterOfTheButtonsStaysOnTheSubTabsThatSetNone) {
  Enter(RequestMethod);
  EXPECT_EQ(gstrButtonMode, "A");
  Go(PickupLocation);
  EXPECT_EQ(gstrButtonMode, "F");
  Go(MessagingMethod);
  EXPECT_EQ(gstrButtonMode, "F");
  EXPECT_TRUE(IsShown("cmdDelete"));
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  Go(DeliveryMethod);
  EXPECT_EQ(gstrButtonMode, "A");
  EXPECT_FALSE(IsShown("cmdDelete"));
}

TEST_F(MethodDifferencesTest, AStoredNoIsAnEmptyCell) {
  Enter();
  EXPECT_EQ(Cell("grd5aTable", 2, 4), "");
  EXPECT_EQ(Cell("grd5aTable", 3, 5), "");
  EXPECT_EQ(Cell("grd5aTable", 3, 4), "Y");
  SelectRow("grd5aTable", 3);
  EXPECT_TRUE(IsChecked("opt5aPrint(0)"));
  EXPECT_TRUE(IsChecked("opt5aDisplay(1)"));
}

TEST_F(MethodDifferencesTest, AnUntouchedDeliveryRowOfNullFlagsBecomesNo) {
  Another("INSERT INTO ID_DELIV_METHOD (DELIV_METHOD, DELIV_METHOD_DESC) VALUES('B', 'Bare')");
  Enter();
  SelectRowOf("grd5aTable", "B");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_DELIV_METHOD SET DELIV_METHOD_DESC = N'Bare', WEB_FLAG = N'N', "
                                   "ACTIVE_FLAG = N'N', PRINT_FLAG = N'N' WHERE DELIV_METHOD = N'B'"});
  EXPECT_EQ(Flags("ID_DELIV_METHOD", "DELIV_METHOD", "B"), "N N N");
}

TEST_F(MethodDifferencesTest, PrintSwitchedToNoIsStoredAsNoForDeliveryAndAsNullForMessaging) {
  Enter();
  SelectRow("grd5aTable", 3);
  Click("opt5aPrint(1)");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Flags("ID_DELIV_METHOD", "DELIV_METHOD", "F"), "Y N N");
  EXPECT_EQ(Cell("grd5aTable", 3, 4), "");
  Go(MessagingMethod);
  SelectRow("grd5bTable", 3);
  Click("opt5bPrint(1)");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Flags("ID_MSG_METHOD", "MSG_METHOD", "F"), "Y NULL NULL");
  EXPECT_EQ(Cell("grd5bTable", 3, 4), "");
}

TEST_F(MethodDifferencesTest, AFreshRowWithNoHoldsNullInBothTables) {
  Enter();
  for (const QString id : {"5a", "5b"}) {
    if (id == "5b") Go(MessagingMethod);
    Type("txt" + id + "Code", "x");
    Type("txt" + id + "Description", "Extra");
    for (const char* flag : {"Active", "Print", "Display"}) Click("opt" + id + flag + "(1)");
    Done("Record Added", "cmdAdd");
  }
  EXPECT_EQ(Flags("ID_DELIV_METHOD", "DELIV_METHOD", "X"), "NULL NULL NULL");
  EXPECT_EQ(Flags("ID_MSG_METHOD", "MSG_METHOD", "X"), "NULL NULL NULL");
}

TEST_F(MethodDifferencesTest, OptionsThatAreUnsetAreWrittenAsNo) {
  Enter();
  Click("cmdClear");
  Type("txt5aCode", "f");
  Type("txt5aDescription", "Fax");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Flags("ID_DELIV_METHOD", "DELIV_METHOD", "F"), "N N N");
  EXPECT_EQ(Cell("grd5aTable", 3, 3), "");
}

// --- Method M ---

TEST_F(MethodDifferencesTest, MethodMIsAlwaysActiveForDeliveryAndMessagingOnly) {
  Enter();
  Click("opt5aActive(1)");
  Type("txt5aCode", "M");
  EXPECT_TRUE(IsChecked("opt5aActive(0)"));
  EXPECT_FALSE(IsEnabled("opt5aActive(0)"));
  EXPECT_FALSE(IsEnabled("opt5aActive(1)"));
  EXPECT_TRUE(IsEnabled("opt5aPrint(1)"));
  Type("txt5aCode", "N");
  EXPECT_TRUE(IsEnabled("opt5aActive(0)"));
  EXPECT_TRUE(IsEnabled("opt5aActive(1)"));
  Go(MessagingMethod);
  Type("txt5bCode", "M");
  EXPECT_FALSE(IsEnabled("opt5bActive(1)"));
  Click("cmdClear");
  EXPECT_TRUE(IsEnabled("opt5bActive(1)"));
  EXPECT_FALSE(IsChecked("opt5bActive(0)"));
  Go(RequestMethod);
  Type("txt5cCode", "M");
  EXPECT_TRUE(IsEnabled("opt5cActive(1)"));
}

TEST_F(MethodDifferencesTest, ASmallMIsLockedOnlyOnceTheBoxHoldsTheCapital) {
  Enter();
  Click("opt5aActive(1)");
  Type("txt5aCode", "m");
  Type("txt5aDescription", "Mail");
  EXPECT_TRUE(IsChecked("opt5aActive(1)"));
  EXPECT_TRUE(IsEnabled("opt5aActive(1)"));
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Text("txt5aCode"), "M");
  EXPECT_FALSE(IsEnabled("opt5aActive(1)"));
  EXPECT_EQ(Ask("SELECT ACTIVE_FLAG FROM ID_DELIV_METHOD WHERE DELIV_METHOD = 'M'"), "Y");
}

TEST_F(MethodDifferencesTest, UpdateOfASmallMWithNoWritesYes) {
  Another("INSERT INTO ID_DELIV_METHOD (DELIV_METHOD, DELIV_METHOD_DESC) VALUES('M', 'Mail')");
  Enter();
  Click("opt5aActive(1)");
  Type("txt5aCode", "m");
  Done("Record Updated", "cmdUpdate");
  EXPECT_TRUE(Writing().value(0).contains("ACTIVE_FLAG = N'Y'"));
  EXPECT_EQ(Cell("grd5aTable", Find<Grid>("grd5aTable")->FindRow("M", 1), 3), "Y");
}

TEST_F(MethodDifferencesTest, ARowOfMThatIsNotActiveIsShownLockedOnYes) {
  Another("INSERT INTO ID_MSG_METHOD (MSG_METHOD, MSG_METHOD_DESC) VALUES('M', 'Mail')");
  Enter(MessagingMethod);
  SelectRowOf("grd5bTable", "M");
  EXPECT_TRUE(IsChecked("opt5bActive(0)"));
  EXPECT_FALSE(IsEnabled("opt5bActive(1)"));
  EXPECT_FALSE(gbRecordModified);
  SelectRow("grd5bTable", 2);
  EXPECT_TRUE(IsChecked("opt5bActive(1)"));
  EXPECT_TRUE(IsEnabled("opt5bActive(1)"));
}

// --- Rights ---

TEST_F(MethodDifferencesTest, ARightThatIsMissingStaysMissingOnEverySubTab) {
  TakeAway("ADD_FLAG");
  TakeAway("DELETE_FLAG");
  Enter();
  for (const SubTab subTab : {MessagingMethod, PickupLocation, RequestMethod, PickupLocation, DeliveryMethod}) {
    Go(subTab);
    for (const char* name : {"cmdAdd", "cmdDelete", "mnuOptionsAdd", "mnuOptionsDelete"})
      EXPECT_FALSE(IsEnabled(name)) << name << " on sub-tab " << subTab;
    EXPECT_TRUE(IsEnabled("cmdUpdate")) << subTab;
  }
}

TEST_F(MethodDifferencesTest, WithoutTheRightToUpdateNothingIsChanged) {
  TakeAway("UPDATE_FLAG");
  Enter();
  for (const SubTab subTab : {MessagingMethod, RequestMethod, PickupLocation}) {
    Go(subTab);
    for (const char* name : {"cmdUpdate", "mnuOptionsUpdate"}) EXPECT_FALSE(IsEnabled(name)) << name << subTab;
    EXPECT_TRUE(IsEnabled("cmdAdd")) << subTab;
    EXPECT_EQ(IsEnabled("cmdDelete"), subTab == PickupLocation) << subTab;
  }
}

// --- A table that cannot be read ---

TEST_F(MethodDifferencesTest, ASubTabWhoseTableIsMissingSaysSoAndTheOthersWork) {
  Another("ALTER TABLE ID_MSG_METHOD RENAME TO ID_ELSEWHERE");
  Enter();
  Prompt().Expect("***** SQL error on OSTANA.ID_MSG_METHOD (Select) *****", MessageStyle::Stop);
  Go(MessagingMethod);
  EXPECT_EQ(Rows("grd5bTable"), 1);
  Go(RequestMethod);
  EXPECT_EQ(Rows("grd5cTable"), 4);
}

}  // namespace
