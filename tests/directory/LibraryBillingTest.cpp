// The billing screen: account, credit card, quota, load balancing.
#include <QAction>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/DateBox.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

namespace {

const QDateTime Noon(QDate(2024, 3, 5), QTime(12, 30, 15));

class LibraryBillingTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    Clock::Set([] { return Noon; });
  }
  void OpenScreen(qint32 id = North) { OpenLibrary("frmLibraryBillingInfo", id); }
  DateBox* ResetDate() { return Find<DateBox>("txtQuotaResetDate"); }
  void Saves() {
    Prompt().Expect("Library Symbol: (NORTH) has been updated.", MessageStyle::Information);
    Click("cmdUpdate");
  }
};

TEST_F(LibraryBillingTest, ReadsTheRecord) {
  SetColumn(North, "BILL_ADDRESS1", "'3 Bank Street'");
  SetColumn(North, "BILLING_TYPE", "'C'");
  SetColumn(North, "REQUESTS_PROCESSED", "12");
  SetColumn(North, "WEIGHTING_FACTOR", "1.5");
  SetColumn(North, "QUOTA_TOTAL", "100");
  SetColumn(North, "QUOTA_FILLED", "7");
  SetColumn(North, "QUOTA_RESET_DATE", "'2025-01-31'");
  Begin(North);
  Open("frmLibraryBillingInfo");
  const QStringList statements = Statements();
  EXPECT_TRUE(statements.contains(
      "SELECT   LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, BILLING_TYPE, BILLING_RATE, "
      "BILL_ADDRESS1, BILL_ADDRESS2, BILL_CITY, BILL_PROV_STATE, BILL_COUNTRY, BILL_POST_ZIPCODE, BILL_CONTACT, "
      "BILL_PHONE, BILL_FAX, LIBRARY_ACCOUNT, CURRENCY_CODE, CREDIT_CARD, CREDIT_CARD_NAME, CREDIT_CARD_NUM, "
      "CREDIT_CARD_EXP, CREDIT_CARD_CODE, QUOTA_TOTAL, QUOTA_FILLED, QUOTA_RESET_DATE, REQUESTS_PROCESSED, "
      "WEIGHTING_FACTOR FROM ID_LIBRARY WHERE    LIBRARY_ID = 101"));
  EXPECT_TRUE(
      statements.contains("SELECT   BILLING_TYPE, BILLING_TYPE_DESC FROM ID_BILLING_TYPE ORDER BY BILLING_TYPE_DESC"));
  EXPECT_EQ(Text("txtStreet1"), "3 Bank Street");
  EXPECT_EQ(Find<CodeComboBox>("cboBillingType")->Code(), "C");
  EXPECT_EQ(Text("cboBillingRate"), "(None)");
  EXPECT_EQ(Text("txtNumberProcessed"), "12");
  EXPECT_EQ(Text("txtWeightingFactor"), "1.50");
  EXPECT_EQ(Text("txtQTotal"), "100");
  EXPECT_EQ(Text("txtQFilled"), "7");
  EXPECT_TRUE(Find<TextBox>("txtQFilled")->isReadOnly());
  EXPECT_EQ(ResetDate()->Date(), QDate(2025, 1, 31));
}

TEST_F(LibraryBillingTest, NullNumbersEmptyWhatTheLibraryBeforeHad) {
  SetColumn(North, "QUOTA_TOTAL", "100");
  SetColumn(North, "QUOTA_RESET_DATE", "'2025-01-31'");
  OpenScreen();
  Type("txtLibrarySymbol", "SOUTH");
  Click("cmdSearch");
  EXPECT_EQ(Text("txtQTotal"), "");
  EXPECT_TRUE(ResetDate()->IsNone());
}

TEST_F(LibraryBillingTest, UpdateWritesOneStatement) {
  OpenScreen();
  Type("txtStreet1", "3 Bank Street");
  Type("txtBillingContact", " O'Neil ");
  Type("txtNumberProcessed", "12");
  Type("txtWeightingFactor", "1.5");
  Type("txtQTotal", "100");
  Choose("cboBillingType", "Credit card");
  ResetDate()->SetDate(QDate(2025, 1, 31));
  Statements();
  Saves();
  EXPECT_EQ(Writing(),
            QStringList("UPDATE ID_LIBRARY SET      LAST_MODIFIED = " + gclsOF->SqlDate(Noon) +
                        ", BILL_ADDRESS1 = N'3 Bank Street', BILL_ADDRESS2 = Null, BILL_CITY = Null, "
                        "BILL_PROV_STATE = Null, BILL_COUNTRY = Null, BILL_POST_ZIPCODE = Null, BILLING_TYPE = N'C', "
                        "BILL_FAX = Null, BILL_PHONE = Null, BILLING_RATE = Null, REQUESTS_PROCESSED = 12, "
                        "WEIGHTING_FACTOR = 1.50, CREDIT_CARD_NAME = Null, BILL_CONTACT = N'O''Neil', "
                        "CREDIT_CARD_EXP = Null, CREDIT_CARD_CODE = Null, QUOTA_TOTAL = 100, LIBRARY_ACCOUNT = Null, "
                        "CURRENCY_CODE = Null, CREDIT_CARD = Null, QUOTA_RESET_DATE = " +
                        gclsOF->SqlDate(QDate(2025, 1, 31)) + " WHERE    LIBRARY_ID = 101"));
}

TEST_F(LibraryBillingTest, ADecimalCommaReachesTheDatabaseAsAPoint) {
  gstrDecimalSeparator = ",";
  gintDecimalSeparatorKey = u',';
  OpenScreen();
  Type("txtWeightingFactor", "1,5");
  Saves();
  EXPECT_EQ(Column("WEIGHTING_FACTOR").toDouble(), 1.5);
}

TEST_F(LibraryBillingTest, TheStoredCardIsNotShownAndIsWrittenAwayUnlessTypedAgain) {
  SetColumn(North, "CREDIT_CARD", "'UC'");
  SetColumn(North, "CREDIT_CARD_NAME", "'Ann Reed'");
  SetColumn(North, "CREDIT_CARD_NUM", "'4111'");
  SetColumn(North, "CREDIT_CARD_EXP", "'01/27'");
  SetColumn(North, "CREDIT_CARD_CODE", "'123'");
  OpenScreen();
  EXPECT_EQ(Text("cboCCType"), "(None)");
  for (const char* box : {"txtCCName", "txtCCNumber", "txtCCExpirationDate", "txtCCCode"}) EXPECT_EQ(Text(box), "");
  EXPECT_TRUE(Find<TextBox>("txtCCNumber")->isReadOnly());
  Type("txtCity", "York");
  Saves();
  EXPECT_EQ(Column("CREDIT_CARD"), QString());
  EXPECT_EQ(Column("CREDIT_CARD_CODE"), QString());
  EXPECT_EQ(Column("CREDIT_CARD_NUM"), "4111");
  Type("txtCCName", "Ann Reed");
  Type("txtCCCode", "12345");
  Choose("cboCCType", "University card");
  Saves();
  EXPECT_EQ(Column("CREDIT_CARD"), "UC");
  EXPECT_EQ(Column("CREDIT_CARD_CODE"), "1234");
}

TEST_F(LibraryBillingTest, AFailedUpdateMasksTheCardCodeInTheLog) {
  OpenScreen();
  Type("txtCCCode", "9876");
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN BILL_CITY TO MOVED");
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(LogHolds("***** SQL error on ID_library (Insert) *****"));
  EXPECT_TRUE(LogHolds("CREDIT_CARD_CODE = N'***'"));
  EXPECT_FALSE(LogHolds("9876"));
}

// --- Quota ---

TEST_F(LibraryBillingTest, AResetDateOfYesterdayOrTodayIsRefusedNoneIsStoredAsNull) {
  SetColumn(North, "QUOTA_RESET_DATE", "'2024-03-04'");
  OpenScreen();
  const QString refused = "The Quota Reset Date must be a future date.";
  // A stored past date is refused as well.
  Type("txtCity", "York");
  Prompt().Expect(refused, MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(ResetDate()->isAncestorOf(Window()->focusWidget()));
  ResetDate()->SetDate(Noon.date());
  Prompt().Expect(refused, MessageStyle::Stop);
  Click("cmdUpdate");
  ResetDate()->SetDate(Noon.date().addDays(1));
  Saves();
  EXPECT_TRUE(Column("QUOTA_RESET_DATE").startsWith("2024-03-06"));
  ResetDate()->SetNone();
  Saves();
  EXPECT_EQ(Column("QUOTA_RESET_DATE"), QString());
}

TEST_F(LibraryBillingTest, TheHighestValuesPassTheNextDoNot) {
  OpenScreen();
  struct {
    const char* box;
    const char* highest;
    const char* over;
    const char* message;
  } const boxes[] = {
      {"txtWeightingFactor", "99.99", "100", "Weighting Factor: may not be greater than 99.99"},
      {"txtNumberProcessed", "99999999", "100000000", "Requests Processed: may not be greater than 99999999"},
      {"txtQTotal", "9999999", "10000000", "Quota Total: may not be greater than 9999999"}};
  for (const auto& row : boxes) {
    Type(row.box, row.highest);
    Press(row.box, Qt::Key_Tab);
    EXPECT_NE(Focus(), row.box);
    EXPECT_EQ(Text(row.box), row.highest);
    Type(row.box, row.over);
    Prompt().Expect(row.message, MessageStyle::Stop);
    Press(row.box, Qt::Key_Tab);
    EXPECT_EQ(Focus(), row.box);
    Type(row.box, "1");
  }
}

// --- Load balancing ---

TEST_F(LibraryBillingTest, TheResetEntryIsHiddenWhereLoadBalancingIsNotUsed) {
  OpenScreen();
  EXPECT_FALSE(IsShown("mnuOptionsResetLoadBalancing"));
  gbUseLoadBalancing = true;
  Open("frmLibraryBillingInfo");
  EXPECT_TRUE(IsShown("mnuOptionsResetLoadBalancing"));
}

TEST_F(LibraryBillingTest, AResetOnOneLibraryZeroesEveryRow) {
  SetColumn(North, "REQUESTS_PROCESSED", "12");
  SetColumn(South, "REQUESTS_PROCESSED", "5");
  Begin(North);
  gbUseLoadBalancing = true;
  Open("frmLibraryBillingInfo");
  Statements();
  Prompt().Expect("Are you sure wish to reset Load Balancing?", MessageStyle::Question, MessageAnswer::No);
  Trigger("mnuOptionsResetLoadBalancing");
  EXPECT_EQ(Statements(), QStringList());
  Prompt().Expect("Are you sure wish to reset Load Balancing?", MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect("Load Balancing has been reset.", MessageStyle::Information);
  Trigger("mnuOptionsResetLoadBalancing");
  EXPECT_EQ(Statements(), QStringList("UPDATE ID_LIBRARY SET      REQUESTS_PROCESSED = 0"));
  EXPECT_EQ(Count("ID_LIBRARY", "REQUESTS_PROCESSED > 0"), 0);
  EXPECT_TRUE(LogHolds("Load Balancing has been reset."));
  // The next Update does not bring the old counter back.
  Type("txtCity", "York");
  Saves();
  EXPECT_EQ(Column("REQUESTS_PROCESSED"), "0");
}

TEST_F(LibraryBillingTest, AFailedResetHasItsOwnWords) {
  Begin(North);
  gbUseLoadBalancing = true;
  Open("frmLibraryBillingInfo");
  Another("ALTER TABLE ID_LIBRARY RENAME COLUMN REQUESTS_PROCESSED TO MOVED");
  Prompt().Expect("Are you sure wish to reset Load Balancing?", MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect(
      "An error has occurred while attempting to reset Load Balancing.  If the error persists notify support.",
      MessageStyle::Stop);
  Trigger("mnuOptionsResetLoadBalancing");
  EXPECT_TRUE(LogHolds("***** SQL error on ID_LIBRARY (Update) *****"));
}

// --- Suppliers and annotations ---

TEST_F(LibraryBillingTest, ALibraryWithoutASupplierHasNoSequenceButton) {
  Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE) VALUES (101, 'S1')");
  OpenScreen(South);
  EXPECT_FALSE(IsShown("cmdSequenceSupplier"));
  EXPECT_FALSE(IsShown("mnuOptionsSuppliers"));
  Type("txtLibrarySymbol", "NORTH");
  Click("cmdSearch");
  EXPECT_TRUE(IsShown("cmdSequenceSupplier"));
  EXPECT_TRUE(IsShown("mnuOptionsSuppliers"));
  WhenShown("frmLibrarySequence", [](Screen&) {});
  Trigger("mnuOptionsSuppliers");
  Click("cmdClear");
  EXPECT_FALSE(IsShown("cmdSequenceSupplier"));
}

// Half a record must not be saved over the whole one.
TEST_F(LibraryBillingTest, ARecordThatIsReadByHalfIsSwitchedOff) {
  OpenScreen(South);
  Another("ALTER TABLE ID_SUPPLIER RENAME COLUMN SUPPLIER_CODE TO MOVED");
  Type("txtLibrarySymbol", "NORTH");
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdSearch");
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_FALSE(IsEnabled("cmdArticle"));
  EXPECT_TRUE(LogHolds("***** SQL error on ID_SUPPLIER (Select) *****"));
}

TEST_F(LibraryBillingTest, AnnotationsNeedALibrary) {
  OpenScreen(0);
  EXPECT_FALSE(IsEnabled("mnuOptionsAnnotation"));
  EXPECT_FALSE(IsShown("cmdSequenceSupplier"));
  OpenScreen();
  WhenShown("frmLibraryAnnotationTemplate", [](Screen&) {});
  Trigger("mnuOptionsAnnotation");
}

TEST_F(LibraryBillingTest, UpdateNeedsASymbol) {
  OpenScreen();
  Type("txtCity", "York");
  Type("txtLibrarySymbol", "");
  Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect("Library Symbol is a required field.\nPlease enter a value.", MessageStyle::Stop);
  Click("cmdSearch");
}

TEST_F(LibraryBillingTest, AnEntryLeavesTheBoxFirst) {
  OpenScreen();
  Type("txtWeightingFactor", "500");
  Statements();
  Prompt().ExpectStart("", MessageStyle::Stop);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Focus(), "txtWeightingFactor");
  EXPECT_TRUE(Writing().isEmpty());
}

}  // namespace
