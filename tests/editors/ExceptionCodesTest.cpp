#include <QLabel>

#include "core/WebServiceSettings.h"
#include "editors/ExceptionDesk.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"

namespace {

using Texts = QStringList;

class ExceptionCodesTest : public ExceptionDesk {
 protected:
  void Fill(const QString& code, const QString& description, const QString& type) {
    Type("txt8Code", code);
    Type("txt8Description", description);
    Choose("cboExceptionType", type);
  }
  void UseWebService() {
    Start();
    gbUseWebService = true;
    SelectTab("sstabtables", frmTabulon::ExceptionsTab);
    Statements();
  }
};

// --- Entering ---

TEST_F(ExceptionCodesTest, EntryFillsListsAndSelectsTheFirstRow) {
  Enter();
  EXPECT_EQ(Entries("cboExceptionType"), Texts({"(None)", "Book reject", "Charge", "Loan reject", "Neutral type"}));
  EXPECT_EQ(Rows("grd8Table"), 5);
  EXPECT_EQ(Row("grd8Table"), 1);
  EXPECT_EQ(Text("txt8Code"), "AAA");
  EXPECT_EQ(Text("txt8Description"), "Alpha");
  EXPECT_EQ(Text("cboExceptionType"), "Book reject");
  EXPECT_EQ(Text("txt8ServiceCharge"), "");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) {
    EXPECT_TRUE(IsShown(button)) << button;
    EXPECT_TRUE(IsEnabled(button)) << button;
  }
  EXPECT_FALSE(gbRecordModified);
  Picture("exception-codes");
}

TEST_F(ExceptionCodesTest, EntrySelectsNothingWhenThereIsOneRecord) {
  for (const char* table : {"ID_EXCEPTION_NOTE", "ID_EXCEPTION_PROCESS", "ID_ACCESS_EXCEPTION", "ID_EXCEPTION_ISO"})
    Another(QString("DELETE FROM ") + table);
  Another("DELETE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE <> 'AAA'");
  Enter();
  EXPECT_EQ(Rows("grd8Table"), 2);
  EXPECT_EQ(Row("grd8Table"), 0);
  EXPECT_EQ(Text("txt8Code"), "");
}

TEST_F(ExceptionCodesTest, SelectingARowFillsTheFields) {
  UseWebService();
  SelectRow("grd8Table", 3);
  EXPECT_EQ(Text("txt8Code"), "CCC");
  EXPECT_EQ(Text("txt8Description"), "Gamma");
  EXPECT_EQ(Text("cboExceptionType"), "Loan reject");
  EXPECT_EQ(Text("txt8ServiceCharge"), "12.50");
  EXPECT_EQ(Cell("grd8Table", 3, 2), "L");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ExceptionCodesTest, EachFieldMarksTheRecordAsModified) {
  UseWebService();
  Append("txt8Description", "x");
  EXPECT_TRUE(gbRecordModified);
  Type("txt8Description", "Alpha");
  EXPECT_FALSE(gbRecordModified);
  Choose("cboExceptionType", "Charge");
  EXPECT_TRUE(gbRecordModified);
  Choose("cboExceptionType", "Book reject");
  EXPECT_FALSE(gbRecordModified);
  // A number only ever sets it.
  Type("txt8ServiceCharge", "1");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(ExceptionCodesTest, ASortKeepsTheRecordSelected) {
  Enter();
  SelectRow("grd8Table", 2);
  SortBy("grd8Table", 3);
  SortBy("grd8Table", 3);
  EXPECT_EQ(Cell("grd8Table", Row("grd8Table"), 1), "BBB");
  EXPECT_EQ(Text("txt8Code"), "BBB");
  SelectRowOf("grd8Table", "CCC");
  EXPECT_EQ(Text("txt8Code"), "CCC");
}

// --- Service charge and web service ---

TEST_F(ExceptionCodesTest, WithoutTheWebServiceTheChargeIsAwayButKept) {
  Enter();
  const auto* const grid = Find<Grid>("grd8Table");
  EXPECT_FALSE(IsShown("lbl8ServiceCharge"));
  EXPECT_FALSE(IsShown("txt8ServiceCharge"));
  EXPECT_FALSE(IsEnabled("txt8ServiceCharge"));
  EXPECT_TRUE(grid->ColHidden(4));
  SelectRow("grd8Table", 2);
  Append("txt8Description", "!");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT SERVICE_CHARGE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'BBB'"), "5.00");
  EXPECT_TRUE(grid->ColHidden(4));
}

TEST_F(ExceptionCodesTest, WithoutTheWebServiceTheColumnStaysHiddenAfterEveryReload) {
  Enter();
  const auto* const grid = Find<Grid>("grd8Table");
  Fill("ZZZ", "Zeta", "Charge");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_TRUE(grid->ColHidden(4));
  Go(Valid);
  Go(Codes);
  EXPECT_TRUE(grid->ColHidden(4));
}

TEST_F(ExceptionCodesTest, WithTheWebServiceTheChargeIsShown) {
  UseWebService();
  EXPECT_TRUE(IsShown("lbl8ServiceCharge"));
  EXPECT_TRUE(IsShown("txt8ServiceCharge"));
  EXPECT_TRUE(IsEnabled("txt8ServiceCharge"));
  EXPECT_FALSE(Find<Grid>("grd8Table")->ColHidden(4));
  Picture("exception-codes-web-service");
}

TEST_F(ExceptionCodesTest, ChargeIsFormattedOnLeavingAndRefusedAboveTheHighest) {
  UseWebService();
  Type("txt8ServiceCharge", "7.5");
  Press("txt8ServiceCharge", Qt::Key_Tab);
  EXPECT_EQ(Text("txt8ServiceCharge"), "7.50");
  Prompt().Expect("Service Charge: may not be greater than 999.99", MessageStyle::Stop);
  Type("txt8ServiceCharge", "1000");
  Press("txt8ServiceCharge", Qt::Key_Tab);
  EXPECT_EQ(Focus(), "txt8ServiceCharge");
  EXPECT_EQ(Find<TextBox>("txt8ServiceCharge")->selectedText(), "1000.0");  // six characters
}

TEST_F(ExceptionCodesTest, ChargeTakesDigitsAndOneSeparator) {
  UseWebService();
  Type("txt8ServiceCharge", "1a.5.-");
  EXPECT_EQ(Text("txt8ServiceCharge"), "1.5");
  EXPECT_EQ(Prompt().Beeps(), 3);
}

// --- Add ---

TEST_F(ExceptionCodesTest, AddWritesNationalLiterals) {
  UseWebService();
  Fill(" zz ", " O'Neil ", "Charge");
  Type("txt8ServiceCharge", "1.5");
  Prompt().ExpectTitled("Record Added", MessageStyle::Information, Shell().Caption());
  Click("cmdAdd");
  const QStringList writing = Writing();
  ASSERT_EQ(writing.size(), 1);
  EXPECT_TRUE(writing[0].startsWith(
      "INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE, SERVICE_CHARGE"))
      << writing[0].toStdString();
  EXPECT_TRUE(writing[0].contains(") VALUES(N'ZZ', N'O''Neil', N'C', 1.50")) << writing[0].toStdString();
  EXPECT_EQ(Ask("SELECT EXCEPTION_CODE_DESC FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'ZZ'"), "O'Neil");
  EXPECT_EQ(Cell("grd8Table", Row("grd8Table"), 1), "ZZ");
  EXPECT_EQ(Text("txt8Code"), "ZZ");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ExceptionCodesTest, AddWithoutAChargeStoresNull) {
  Enter();
  Fill("ZZZ", "Zeta", "Charge");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_TRUE(Writing().join("").contains("VALUES(N'ZZZ', N'Zeta', N'C', NULL"));
}

TEST_F(ExceptionCodesTest, AddWritesACommaAsAPoint) {
  UseWebService();
  gstrDecimalSeparator = ",";
  gintDecimalSeparatorKey = u',';
  Fill("ZZZ", "Zeta", "Charge");
  Type("txt8ServiceCharge", "1,5");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_TRUE(Writing().join("").contains("N'C', 1.50"));
}

TEST_F(ExceptionCodesTest, AddTestsCodeDescriptionTypeAndNumberInThisOrder) {
  Enter();
  Click("cmdClear");
  Choose("cboExceptionType", "(None)");
  Type("txt8Code", "  ");
  Prompt().Expect("Please enter a Valid Code.", MessageStyle::Warning);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt8Code");
  // A number passes as long as something else is missing.
  Type("txt8Code", "12");
  Prompt().Expect("Please enter a Valid Description.", MessageStyle::Warning);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt8Description");
  Type("txt8Description", "Twelve");
  Prompt().Expect("Please select a Valid Exception Type.", MessageStyle::Warning);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "cboExceptionType");
  Choose("cboExceptionType", "Charge");
  Prompt().Expect("Please enter a Valid Code.", MessageStyle::Warning);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt8Code");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_TRUE(gbRecordModified);
}

// NULL is not 0: emptying a charge of nothing is a change, and so is the way back.
TEST_F(ExceptionCodesTest, ABlankChargeAndZeroDiffer) {
  Another("UPDATE ID_EXCEPTION_CODE SET SERVICE_CHARGE = 0 WHERE EXCEPTION_CODE = 'AAA'");
  UseWebService();
  EXPECT_EQ(Text("txt8ServiceCharge"), "0.00");
  Type("txt8ServiceCharge", "");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE = 'AAA' AND SERVICE_CHARGE IS NULL"), 1);
}

TEST_F(ExceptionCodesTest, AddRefusesTheSameCodeOrTheSameDescription) {
  Enter();
  const QString refused = "This record already exists.\n\nBoth the Code and Description must be unique.";
  Fill("aaa", "New", "Charge");
  Prompt().Expect(refused, MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt8Code");
  Fill("ZZZ", "Gamma", "Charge");
  Prompt().Expect(refused, MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt8Code"), "ZZZ");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionCodesTest, DescriptionsThatDifferOnlyInCaseAreBothAccepted) {
  Enter();
  Fill("ZZZ", "ALPHA", "Charge");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE_DESC IN ('Alpha', 'ALPHA')"), 2);
}

TEST_F(ExceptionCodesTest, AddHasNoTestOfTheHighestCharge) {
  UseWebService();
  Fill("ZZZ", "Zeta", "Charge");
  // By code: the box's own validation does not come into it, and the database refuses.
  Find<TextBox>("txt8ServiceCharge")->SetText("1000");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Shell().cmdAdd_Click();
  EXPECT_EQ(Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE = 'ZZZ'"), 0);
}

TEST_F(ExceptionCodesTest, AddRepeatsTheDescriptionInEveryLanguage) {
  Enter();
  ASSERT_FALSE(gcolLanguageCode.isEmpty());
  Fill("ZZZ", "Zeta", "Charge");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  const QString statement = Writing().join("");
  for (const QString& language : gcolLanguageCode) {
    const QString column = "EXCEPTION_CODE_DESC_" + language;
    EXPECT_TRUE(statement.contains(", " + column)) << column.toStdString();
    EXPECT_EQ(Ask("SELECT " + column + " FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'ZZZ'"), "Zeta");
  }
}

TEST_F(ExceptionCodesTest, ASiteOfOneLanguageNamesNoLanguageColumn) {
  Setting("System", "SingleLanguage", "Y");
  Enter();
  Fill("ZZZ", "Zeta", "Charge");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), Texts({"INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE, "
                              "SERVICE_CHARGE) VALUES(N'ZZZ', N'Zeta', N'C', NULL)"}));
}

TEST_F(ExceptionCodesTest, ADuplicateOfAnotherClientEndsInTheWordsOfTheScreen) {
  Enter();
  Fill("ZZZ", "Zeta", "Charge");
  Another("INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC) VALUES('ZZZ', 'Theirs')");
  Prompt().ExpectTitled(DatabaseError, MessageStyle::Stop, Shell().Caption());
  Click("cmdAdd");
  EXPECT_EQ(Text("txt8Code"), "ZZZ");
  EXPECT_EQ(Text("txt8Description"), "Zeta");
  EXPECT_EQ(Text("cboExceptionType"), "Charge");
  EXPECT_TRUE(gbRecordModified);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_EQ(Ask("SELECT EXCEPTION_CODE_DESC FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'ZZZ'"), "Theirs");
  EXPECT_TRUE(LogHolds("frmTabulon.Exception_Add"));
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_CODE (INSERT INTO) *****"));
}

TEST_F(ExceptionCodesTest, ADroppedConnectionEndsInTheWordsOfTheScreenAndIsOpenedAgain) {
  Enter();
  Fill("ZZZ", "Zeta", "Charge");
  if (!DropConnection()) GTEST_SKIP() << "This engine has no server to lose";
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt8Code"), "ZZZ");
  EXPECT_EQ(Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE = 'ZZZ'"), 0);
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE = 'ZZZ'"), 1);
}

// --- Update ---

TEST_F(ExceptionCodesTest, UpdateWritesTheDescriptionInPlainQuotes) {
  UseWebService();
  SelectRow("grd8Table", 2);
  Type("txt8Description", " Bet'a ");
  Choose("cboExceptionType", "Loan reject");
  Type("txt8ServiceCharge", "6.5");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Writing(), Texts({"UPDATE ID_EXCEPTION_CODE SET EXCEPTION_CODE_DESC = 'Bet''a', EXCEPTION_TYPE = N'L', "
                              "SERVICE_CHARGE = 6.50 WHERE EXCEPTION_CODE = N'BBB'"}));
  // The cells are written without a reload.
  EXPECT_TRUE(Statements().isEmpty());
  EXPECT_EQ(Cell("grd8Table", 2, 2), "L");
  EXPECT_EQ(Cell("grd8Table", 2, 3), "Bet'a");
  EXPECT_EQ(Cell("grd8Table", 2, 4), "6.50");
  EXPECT_EQ(Focus(), "txt8Description");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ExceptionCodesTest, UpdateWithBlanksStoresNulls) {
  UseWebService();
  SelectRow("grd8Table", 2);
  Type("txt8Description", " ");
  Type("txt8ServiceCharge", "");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Writing(), Texts({"UPDATE ID_EXCEPTION_CODE SET EXCEPTION_CODE_DESC = NULL, EXCEPTION_TYPE = N'C', "
                              "SERVICE_CHARGE = NULL WHERE EXCEPTION_CODE = N'BBB'"}));
  EXPECT_EQ(Cell("grd8Table", 2, 4), "");
}

TEST_F(ExceptionCodesTest, UpdateTouchesOnlyTheWorkingLanguage) {
  Enter();
  ASSERT_FALSE(gcolLanguageCode.isEmpty());
  const QString language = gcolLanguageCode.last();
  Another("UPDATE ID_EXCEPTION_TYPE SET EXCEPTION_TYPE_DESC_" + language + " = EXCEPTION_TYPE_DESC");
  gclsOF->SetLanguageSuffix("_" + language);
  Go(Valid);
  Go(Codes);
  Type("txt8Code", "BBB");
  Type("txt8Description", "Other");
  Choose("cboExceptionType", "Charge");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().join("").contains("SET EXCEPTION_CODE_DESC_" + language + " = 'Other', "));
  EXPECT_EQ(Ask("SELECT EXCEPTION_CODE_DESC FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'BBB'"), "Beta");
}

TEST_F(ExceptionCodesTest, UpdateNeedsAType) {
  Enter();
  Choose("cboExceptionType", "(None)");
  Prompt().Expect("Please select a Valid Exception Type.", MessageStyle::Warning);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "cboExceptionType");
}

TEST_F(ExceptionCodesTest, UpdateAcceptsTheHighestChargeAndRefusesMore) {
  UseWebService();
  SelectRow("grd8Table", 2);
  Find<TextBox>("txt8ServiceCharge")->SetText("1000");
  Prompt().Expect("Maximum Service Charge exceeded.", MessageStyle::Stop);
  Shell().cmdUpdate_Click();
  EXPECT_EQ(Focus(), "txt8ServiceCharge");
  EXPECT_EQ(Find<TextBox>("txt8ServiceCharge")->selectedText(), "1000");
  Type("txt8ServiceCharge", "999.99");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT SERVICE_CHARGE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'BBB'"), "999.99");
}

TEST_F(ExceptionCodesTest, UpdateRefusesTheDescriptionOfARowAboveButNotBelow) {
  Enter();
  const auto describe = [this](const QString& description) {
    SelectRow("grd8Table", 2);
    Type("txt8Description", description);
  };
  describe("Alpha");
  Prompt().Expect("This Description already exists in another record.\n\nThe Description must be unique.",
                  MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt8Description");
  EXPECT_TRUE(Writing().isEmpty());
  describe("Gamma");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE_DESC = 'Gamma'"), 2);
}

TEST_F(ExceptionCodesTest, UpdateComparesTheChargeAsANumber) {
  UseWebService();
  SelectRow("grd8Table", 2);
  Type("txt8ServiceCharge", "5");
  Prompt().Expect("Nothing has been changed", MessageStyle::Warning);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt8Description");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionCodesTest, UpdateOfACodeThatIsNotInTheGrid) {
  Enter();
  Fill("ZZZ", "Zeta", "Charge");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt8Code");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionCodesTest, AFailedUpdateLeavesGridAndFields) {
  Enter();
  SelectRow("grd8Table", 2);
  Append("txt8Description", "!");
  Another("UPDATE ID_EXCEPTION_CODE SET EXCEPTION_TYPE = NULL WHERE EXCEPTION_CODE = 'NNN'");
  Another("DELETE FROM ID_EXCEPTION_TYPE WHERE EXCEPTION_TYPE = 'N'");
  Choose("cboExceptionType", "Neutral type");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Cell("grd8Table", 2, 3), "Beta");
  EXPECT_EQ(Text("txt8Description"), "Beta!");
  EXPECT_TRUE(gbRecordModified);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_CODE (UPDATE) *****"));
}

// --- Delete and Clear ---

TEST_F(ExceptionCodesTest, DeleteAsksAndWritesPlainQuotes) {
  Enter();
  SelectRow("grd8Table", 3);
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
  Prompt()
      .Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes)
      .Expect("Record Deleted", MessageStyle::Information);
  Click("cmdDelete");
  EXPECT_EQ(Writing(), Texts({"DELETE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'CCC'"}));
  EXPECT_EQ(Rows("grd8Table"), 4);
  EXPECT_EQ(Row("grd8Table"), 0);
  EXPECT_EQ(Text("txt8Code"), "");
  EXPECT_EQ(Text("txt8Description"), "");
}

TEST_F(ExceptionCodesTest, DeleteNeedsACodeOfTheGrid) {
  Enter();
  Type("txt8Code", " ");
  Prompt().Expect("Please choose a record to be Deleted", MessageStyle::Warning);
  Click("cmdDelete");
  Type("txt8Code", "ZZZ");
  Prompt().Expect("Please select a valid record from the table.", MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionCodesTest, ACodeThatIsReferencedIsKept) {
  Enter();
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes).Expect(Referenced, MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE = 'AAA'"), 1);
  EXPECT_EQ(Text("txt8Code"), "AAA");
  EXPECT_EQ(Rows("grd8Table"), 5);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_CODE (DELETE) *****"));
}

TEST_F(ExceptionCodesTest, AnyOtherFailureOfDeleteSaysSo) {
  Enter();
  SelectRow("grd8Table", 3);
  Another("ALTER TABLE ID_EXCEPTION_CODE RENAME TO ID_GONE");
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes).Expect(Persists, MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_GONE", "EXCEPTION_CODE = 'CCC'"), 1);
  EXPECT_EQ(Text("txt8Code"), "CCC");
}

TEST_F(ExceptionCodesTest, ClearLeavesTheType) {
  UseWebService();
  SelectRow("grd8Table", 2);
  Click("cmdClear");
  EXPECT_EQ(Text("txt8Code"), "");
  EXPECT_EQ(Text("txt8Description"), "");
  EXPECT_EQ(Text("txt8ServiceCharge"), "");
  EXPECT_EQ(Text("cboExceptionType"), "Charge");
  EXPECT_EQ(Row("grd8Table"), 0);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ExceptionCodesTest, NoChargeIsNotAChargeOfZero) {
  UseWebService();
  SelectRowOf("grd8Table", "AAA");
  Type("txt8ServiceCharge", "0");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT SERVICE_CHARGE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'AAA'").toDouble(), 0);
  EXPECT_FALSE(Ask("SELECT SERVICE_CHARGE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'AAA'").isNull());
}

}  // namespace
