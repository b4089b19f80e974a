#include <QTabWidget>

#include "editors/ExceptionDesk.h"
#include "platform/controls/Grid.h"

namespace {

using Texts = QStringList;

// What the four sub-tabs of "Exceptions" have with each other.
class ExceptionsTabTest : public ExceptionDesk {};

// --- Entering ---

TEST_F(ExceptionsTabTest, EntryLoadsOnceAlsoFromAnotherSubTab) {
  Enter(Iso);
  SelectTab("sstabtables", frmTabulon::LoansTab);
  Statements();
  SelectTab("sstabtables", frmTabulon::ExceptionsTab);
  const QStringList statements = Statements();
  EXPECT_EQ(statements.filter("SELECT   * FROM ID_EXCEPTION_CODE ORDER BY EXCEPTION_CODE ").size(), 1);
  EXPECT_EQ(Find<QTabWidget>("sstab8Exception")->currentIndex(), Codes);
  EXPECT_EQ(Row("grd8Table"), 1);
}

TEST_F(ExceptionsTabTest, AMissingTypeTableLeavesTheOthersUsable) {
  Start();
  Another("ALTER TABLE ID_PROCESS_TYPE RENAME TO ID_GONE");
  SelectTab("sstabtables", frmTabulon::ExceptionsTab);
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_PROCESS_TYPE (SELECT) *****"));
  EXPECT_EQ(Rows("grd8Table"), 5);
  EXPECT_EQ(Entries("cmb8ProcessType"), Texts({"(none)"}));
  EXPECT_EQ(Entries("cmb8Reroute1"), Texts({"(none)", "Next", "Reroute", "Passive", "Hold", "SUP1"}));
}

TEST_F(ExceptionsTabTest, AMissingCodeTableIsToldAndLeavesTheOtherSubTabs) {
  Start();
  Another("ALTER TABLE ID_EXCEPTION_CODE RENAME TO ID_GONE");
  Prompt().Expect("***** SQL error on OSTANA.ID_EXCEPTION_CODE (Select) *****", MessageStyle::Stop);
  SelectTab("sstabtables", frmTabulon::ExceptionsTab);
  EXPECT_EQ(Rows("grd8Table"), 1);
  Go(Valid);
  EXPECT_EQ(Rows("grd8Document"), 4);
  Go(Iso);
  EXPECT_EQ(Rows("grd8ISO"), 2);
}

TEST_F(ExceptionsTabTest, ASubTabAsksNoQuestionAndForgetsTheChange) {
  Enter(Valid);
  SelectRow("grd8Document", 3);
  Append("txt8Message1", "x");
  EXPECT_TRUE(gbRecordModified);
  Go(Codes);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ExceptionsTabTest, AChangedRecordIsWrittenByTheSubTabThatOwnsIt) {
  Enter(Valid);
  SelectRow("grd8Document", 3);
  Append("txt8Message1", "!");
  Prompt()
      .Expect("A record has been modified.\nDo you wish to apply the updates before continuing?",
              MessageStyle::Question, MessageAnswer::Yes)
      .Expect("Record Updated", MessageStyle::Information);
  SelectTab("sstabtables", frmTabulon::LoansTab);
  EXPECT_EQ(Ask("SELECT MESSAGE FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'REQ'"), "Alpha request!");
}

// --- Carrying a code between the sub-tabs ---

TEST_F(ExceptionsTabTest, ARejectTypeOfValidExceptionsIsShownHere) {
  Enter(Valid);
  Choose("cmb8DocumentSupply", "Gamma");
  Go(Codes);
  EXPECT_EQ(Text("txt8Code"), "CCC");
  EXPECT_EQ(Text("txt8Description"), "Gamma");
  EXPECT_EQ(Text("cboExceptionType"), "Loan reject");
  EXPECT_EQ(Text("txt8ServiceCharge"), "12.50");
  EXPECT_EQ(Cell("grd8Table", Row("grd8Table"), 1), "CCC");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ExceptionsTabTest, ARejectTypeOfIsoRejectCodesIsShownHere) {
  Enter(Iso);
  SelectRowOf("grd8ISO", "AAA");
  Go(Codes);
  EXPECT_EQ(Text("txt8Code"), "AAA");
  Go(Iso);
  Choose("cmb8RejectType", "Beta");
  Choose("cmb8ISOMessage", "Lost");
  Go(Codes);
  EXPECT_EQ(Text("txt8Code"), "BBB");
  EXPECT_EQ(Text("txt8Description"), "Beta");
  EXPECT_EQ(Text("cboExceptionType"), "Charge");
  EXPECT_EQ(Cell("grd8Table", Row("grd8Table"), 1), "BBB");
}

TEST_F(ExceptionsTabTest, WithoutAnIsoReasonNothingIsCarried) {
  Enter(Iso);
  Choose("cmb8RejectType", "Beta");
  Go(Codes);
  EXPECT_EQ(Text("txt8Code"), "AAA");
  EXPECT_EQ(Cell("grd8Table", Row("grd8Table"), 1), "AAA");
}

TEST_F(ExceptionsTabTest, OfTwoChoicesThatOfTheSubTabJustLeftIsShown) {
  Enter(Iso);
  SelectRowOf("grd8ISO", "AAA");
  Go(Valid);
  Choose("cmb8DocumentSupply", "Gamma");
  Go(Codes);
  EXPECT_EQ(Text("txt8Code"), "CCC");
  Go(Iso);
  SelectRowOf("grd8ISO", "AAA");
  Go(Codes);
  EXPECT_EQ(Text("txt8Code"), "AAA");
}

TEST_F(ExceptionsTabTest, TheTabEnteredAnewHasNoChoiceToCarry) {
  Enter(Valid);
  Choose("cmb8DocumentSupply", "Gamma");
  Shell().LivePage()->CurrentRecord().Settled();
  SelectTab("sstabtables", frmTabulon::LoansTab);
  SelectTab("sstabtables", frmTabulon::ExceptionsTab);
  EXPECT_EQ(Text("txt8Code"), "AAA");
  EXPECT_EQ(Text("cmb8DocumentSupply"), "(none)");
  EXPECT_EQ(Text("cmb8DeliverySource"), "Messaging Method");
  EXPECT_EQ(Text("txt8Process1(0)"), "");
}

// --- Rights ---

TEST_F(ExceptionsTabTest, ARightThatIsMissingStaysMissingOnEverySubTab) {
  TakeAway("UPDATE_FLAG");
  TakeAway("ADD_FLAG");
  Enter();
  for (const SubTab subTab : {Valid, Groups, Iso, Groups, Codes}) {
    Go(subTab);
    if (subTab == Groups) Choose("cmb8AccessGroup", "Students");
    for (const char* name : {"cmdAdd", "cmdUpdate", "mnuOptionsAdd", "mnuOptionsUpdate"})
      EXPECT_FALSE(IsEnabled(name)) << name << " on sub-tab " << subTab;
    EXPECT_TRUE(IsEnabled("mnuOptionsDelete")) << subTab;
    EXPECT_EQ(IsEnabled("cmdDelete"), subTab != Iso) << subTab;
  }
}

TEST_F(ExceptionsTabTest, AnEditThatStandsWhenOneComesBackCountsAgain) {
  Enter(Valid);
  SelectRow("grd8Document", 3);
  Append("txt8Message1", "x");
  Go(Iso);
  EXPECT_FALSE(gbRecordModified);
  Go(Valid);
  EXPECT_EQ(Text("txt8Message1"), "Alpha requestx");
  EXPECT_TRUE(gbRecordModified);
  Prompt()
      .Expect("A record has been modified.\nDo you wish to apply the updates before continuing?",
              MessageStyle::Question, MessageAnswer::Yes)
      .Expect("Record Updated", MessageStyle::Information);
  SelectTab("sstabtables", frmTabulon::LoansTab);
  EXPECT_EQ(Ask("SELECT MESSAGE FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'REQ'"), "Alpha requestx");
}

TEST_F(ExceptionsTabTest, AnEditOfACodeCountsAgainAndClearLeavesNone) {
  Enter();
  SelectRowOf("grd8Table", "CCC");
  Type("txt8Description", "Other");
  Go(Groups);
  Go(Codes);
  EXPECT_EQ(Text("txt8Description"), "Other");
  EXPECT_TRUE(gbRecordModified);
  Click("cmdClear");
  Go(Groups);
  Go(Codes);
  EXPECT_FALSE(gbRecordModified);
}

}  // namespace
