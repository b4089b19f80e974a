// The base currency: moving it, deleting it, another client doing the same; and deletes as such.
#include "reference/CurrencyDesk.h"

namespace {

using namespace Currencies;
class CurrencyBaseTest : public CurrencyDesk {};

// --- The base ---

TEST_F(CurrencyBaseTest, CancelledQuestionKeepsTheOldBase) {
  OpenIt();
  MoveBase(2, Say::No);
  EXPECT_EQ(At(Table, 1, Base), "*");
  EXPECT_EQ(At(Table, 2, Base), "");
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(CurrencyBaseTest, ClickOnTheBaseRowAsksAndChangesNothing) {
  OpenIt();
  MoveBase(1);
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Bases(), "EUR");
}

TEST_F(CurrencyBaseTest, ClickOnAnotherColumnAsksNothing) {
  OpenIt();
  ClickCell(Table, 2, Rate);
  EXPECT_EQ(Row(Table), 2);
}

TEST_F(CurrencyBaseTest, MovedBaseIsStoredByUpdateAndTouchesNothingElse) {
  OpenIt();
  MoveBase(2);
  EXPECT_EQ(At(Table, 1, Base), "");
  EXPECT_EQ(At(Table, 2, Base), "*");
  EXPECT_EQ(Bases(), "EUR");
  // A rate that another client enters meanwhile is not lost.
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_EXCHANGE = 0.97 WHERE CURRENCY_CODE = 'CHF'");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_BASE = NULL WHERE    CURRENCY_BASE = N'*'\n"
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_BASE = N'*' WHERE    CURRENCY_CODE = N'CHF'");
  EXPECT_EQ(Bases(), "CHF");
  EXPECT_EQ(RateOf("CHF"), "0.9700");
}

TEST_F(CurrencyBaseTest, MovedBaseAndEditedRecordAreStoredTogether) {
  OpenIt();
  MoveBase(3);
  Type("txtExchangeRate", "1.2");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_BASE = NULL WHERE    CURRENCY_BASE = N'*'\n"
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_BASE = N'*' WHERE    CURRENCY_CODE = N'USD'\n"
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_CODE = N'USD', CURRENCY_CODE_DESC = N'US Dollar', "
            "CURRENCY_COUNTRY = N'United States', CURRENCY_EXCHANGE = 1.2000, CURRENCY_SYMBOL = N'$' "
            "WHERE    CURRENCY_CODE = N'USD'");
  EXPECT_EQ(Bases(), "USD");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyBaseTest, BaseMovedTwiceIsStoredOnce) {
  OpenIt();
  MoveBase(2);
  MoveBase(3);
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Bases(), "USD");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyBaseTest, BaseThatASecondClientMovedMeanwhileIsNotDoubled) {
  OpenIt();
  MoveBase(2);
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_BASE = NULL");
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_BASE = '*' WHERE CURRENCY_CODE = 'USD'");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Bases(), "CHF");
}

TEST_F(CurrencyBaseTest, NewBaseThatASecondClientDeletedLeavesTheOldOne) {
  OpenIt();
  MoveBase(2);
  Another("DELETE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'CHF'");
  Prompt().Expect("This code does not exist in the table. Please select a valid code to update.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Bases(), "EUR");
}

TEST_F(CurrencyBaseTest, SpaceMovesTheBaseWithoutAMouse) {
  OpenIt();
  Press(Table, Qt::Key_Down);
  Prompt().Expect(BaseQuestion, Say::Question, Say::Yes);
  Press(Table, Qt::Key_Space);
  EXPECT_EQ(At(Table, 2, Base), "*");
}

TEST_F(CurrencyBaseTest, SortKeepsRecordAndBase) {
  OpenIt();
  SelectRowOf(Table, "CHF");
  SortBy(Table, Code);
  EXPECT_EQ(Row(Table), 1);
  EXPECT_EQ(Shown("txtCurrencyCode"), "CHF");
  Type("txtExchangeRate", "1.5");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  ExpectInStep(Form, Table);
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_CURRENCY_CODE", "CURRENCY_CODE = 'CHF'"), 0);
  ExpectInStep(Form, Table);
}

// --- Delete ---

TEST_F(CurrencyBaseTest, DeleteAnsweredWithNo) {
  OpenIt();
  Prompt().Expect(Say::Delete, Say::Question, Say::No);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_CURRENCY_CODE"), 3);
}

TEST_F(CurrencyBaseTest, DeleteWritesAPlainLiteral) {
  OpenIt();
  SelectRowOf(Table, "CHF");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_CURRENCY_CODE WHERE   CURRENCY_CODE = 'CHF'");
  EXPECT_EQ(Shown("txtCurrencyCode"), "EUR");
  EXPECT_EQ(Row(Table), 1);
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyBaseTest, CurrencyInUseMayBeDeleted) {
  Another(
      "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, CURRENCY_CODE) VALUES (101, 'ALPHA', "
      "'Alpha', 'CHF')");
  OpenIt();
  SelectRowOf(Table, "CHF");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_CURRENCY_CODE"), 2);
}

TEST_F(CurrencyBaseTest, DeletedBasePassesToTheFirstRow) {
  OpenIt();
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(BaseMoved, Say::Info).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(),
            "DELETE FROM ID_CURRENCY_CODE WHERE   CURRENCY_CODE = 'EUR'\n"
            "UPDATE ID_CURRENCY_CODE SET      CURRENCY_BASE = '*' WHERE    CURRENCY_CODE = 'CHF'");
  EXPECT_EQ(Bases(), "CHF");
  EXPECT_EQ(At(Table, 1, Base), "*");
  EXPECT_EQ(Shown("txtCurrencyCode"), "CHF");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyBaseTest, DeletedRowWithAMovedMarkLeavesOneBase) {
  OpenIt();
  MoveBase(3);
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(BaseMoved, Say::Info).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Bases(), "EUR");
  ExpectInStep(Form, Table);
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(CurrencyBaseTest, DeletedStoredBaseWhoseMarkWasMovedHandsItOn) {
  OpenIt();
  MoveBase(3);
  SelectRowOf(Table, "EUR");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Bases(), "USD");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyBaseTest, DeletedBaseThatASecondClientHadMovedLeavesOneBase) {
  OpenIt();
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_BASE = NULL");
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_BASE = '*' WHERE CURRENCY_CODE = 'USD'");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(BaseMoved, Say::Info).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Bases(), "CHF");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyBaseTest, DeletedRowThatASecondClientHadMadeTheBaseLeavesOneBase) {
  OpenIt();
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_BASE = NULL");
  Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_BASE = '*' WHERE CURRENCY_CODE = 'USD'");
  SelectRowOf(Table, "USD");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Bases(), "EUR");
  ExpectInStep(Form, Table);
}

TEST_F(CurrencyBaseTest, DeletingTheLastRowIsToldAtTheNextActivation) {
  Another("DELETE FROM ID_CURRENCY_CODE WHERE CURRENCY_BASE IS NULL");
  Screen& screen = Open(Form);
  Statements();
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_CURRENCY_CODE WHERE   CURRENCY_CODE = 'EUR'");
  EXPECT_EQ(Count("ID_CURRENCY_CODE"), 0);
  EXPECT_EQ(Rows(Table), 1);
  EXPECT_EQ(Shown("txtCurrencyCode"), "");
  EXPECT_EQ(Shown("cmbSymbol"), "");
  Click("cmdDelete");
  Prompt().Expect("The Currency Code table has not been initialized.", Say::Stop);
  dynamic_cast<ActivatedForm&>(screen).Form_Activate();
  dynamic_cast<ActivatedForm&>(screen).Form_Activate();
}

TEST_F(CurrencyBaseTest, DeleteThatFailsLeavesRowAndBase) {
  OpenIt();
  Another("DROP TABLE ID_CURRENCY_CODE");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes);
  Prompt().Expect("***** SQL error on ID_CURRENCY_CODE (Update) *****", Say::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Rows(Table), 4);
  EXPECT_EQ(At(Table, 1, Base), "*");
  EXPECT_TRUE(Logged("frmCurrencyCodes.cmdDelete_Click"));
}

}  // namespace
