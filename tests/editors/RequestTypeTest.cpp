#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

class RequestTypeTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'One')");
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (72, 'TWO', 'Two')");
    Another("UPDATE ID_REQUEST_TYPE SET LIBRARY_ID = 71 WHERE REQUEST_TYPE = 'ILL'");
  }
  void Enter(const QString& arguments = "\"\" \"admin\" \"secret\"") {
    Start(arguments);
    SelectTab("sstabtables", frmTabulon::RequestTypeTab);
    Statements();
  }
  QString Stored(const QString& column, const QString& type) {
    return Ask("SELECT " + column + " FROM ID_REQUEST_TYPE WHERE REQUEST_TYPE = '" + type + "'");
  }
  void Update() {
    Prompt().Expect("Record Updated", 64);
    Click("cmdUpdate");
  }
};

TEST_F(RequestTypeTest, TheTabListsAllTypesThoseWithoutALibraryIncluded) {
  Start();
  Statements();
  SelectTab("sstabtables", frmTabulon::RequestTypeTab);
  EXPECT_EQ(Statements(),
            (QStringList{"SELECT L.LIBRARY_SYMBOL, RT.REQUEST_TYPE, RT.REQUEST_TYPE_DESC, RT.INVOICE_FLAG, "
                         "RT.CUSTOMER_ID FROM ID_REQUEST_TYPE RT LEFT JOIN ID_LIBRARY L ON L.LIBRARY_ID = "
                         "RT.LIBRARY_ID ORDER BY RT.REQUEST_TYPE",
                         "SELECT   * FROM ID_CUSTOMER_ID ORDER BY CUSTOMER_ID_DESC"}));
  EXPECT_EQ(Rows("grd9RequestType"), 5);
  EXPECT_EQ(Row("grd9RequestType"), 1);
  EXPECT_EQ(Text("txt9Code"), "ILL");
  EXPECT_EQ(Text("txt9Description"), "Requests of other libraries");
  EXPECT_EQ(Text("txt9LibrarySymbol"), "ONE");
  EXPECT_EQ(Text("cmb9CustomerID"), "External libraries");
  EXPECT_EQ(Text("cmb9InvoiceFlag"), "Cover is an Invoice");
  EXPECT_EQ(Cell("grd9RequestType", 1, 3), "ONE");
  EXPECT_EQ(Cell("grd9RequestType", 1, 4), "External libraries");
  EXPECT_EQ(Cell("grd9RequestType", 1, 5), "Y");
  EXPECT_EQ(Cell("grd9RequestType", 2, 3), "");
  EXPECT_EQ(Cell("grd9RequestType", 3, 4), "");
  EXPECT_EQ(Focus(), "txt9Description");
  EXPECT_TRUE(Find<TextBox>("txt9Code")->isReadOnly());
  for (const char* hidden : {"cmdAdd", "cmdDelete", "mnuOptionsAdd", "mnuOptionsDelete"})
    EXPECT_FALSE(IsShown(hidden)) << hidden;
  EXPECT_TRUE(IsShown("cmdUpdate"));
}

TEST_F(RequestTypeTest, ARowFillsTheBoxes) {
  Enter();
  SelectRowOf("grd9RequestType", "PAT");
  EXPECT_EQ(Text("txt9Code"), "PAT");
  EXPECT_EQ(Text("txt9LibrarySymbol"), "");
  EXPECT_EQ(Text("cmb9CustomerID"), "Own institution");
  EXPECT_EQ(Text("cmb9InvoiceFlag"), "Cover is not an Invoice!");
  SelectRowOf("grd9RequestType", "REG");
  EXPECT_EQ(Text("cmb9CustomerID"), "(none)");
  EXPECT_EQ(Text("cmb9InvoiceFlag"), "Cover is an Invoice");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(RequestTypeTest, UpdateWritesAllFourFields) {
  Enter();
  SelectRowOf("grd9RequestType", "REG");
  Type("txt9Description", " O'Neill's ");
  Type("txt9LibrarySymbol", " TWO ");
  Choose("cmb9CustomerID", "Partner libraries");
  Choose("cmb9InvoiceFlag", "Cover is not an Invoice!");
  EXPECT_TRUE(gbRecordModified);
  Statements();
  Update();
  EXPECT_EQ(Statements(),
            (QStringList{"SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  ID_LIBRARY WHERE LIBRARY_SYMBOL = 'TWO'",
                         "SELECT   * FROM ID_CUSTOMER_ID ORDER BY CUSTOMER_ID_DESC",
                         "UPDATE   ID_REQUEST_TYPE SET      REQUEST_TYPE_DESC = N'O''Neill''s', LIBRARY_ID = 72, "
                         "INVOICE_FLAG = N'N', CUSTOMER_ID = N'PARTNER' WHERE    REQUEST_TYPE = N'REG'"}));
  EXPECT_EQ(Stored("REQUEST_TYPE_DESC", "REG"), "O'Neill's");
  EXPECT_EQ(Stored("LIBRARY_ID", "REG"), "72");
  const int row = Row("grd9RequestType");
  EXPECT_EQ(Cell("grd9RequestType", row, 2), "O'Neill's");
  EXPECT_EQ(Cell("grd9RequestType", row, 3), "TWO");
  EXPECT_EQ(Cell("grd9RequestType", row, 4), "Partner libraries");
  EXPECT_EQ(Cell("grd9RequestType", row, 5), "N");
  EXPECT_EQ(Focus(), "txt9Description");
  EXPECT_FALSE(gbRecordModified);
  // The row is as it was written.
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
}

TEST_F(RequestTypeTest, AnEmptySymbolStoresNullAndForgetsTheLibraryBefore) {
  Enter();
  Type("txt9Description", "First");
  Update();
  EXPECT_EQ(Stored("LIBRARY_ID", "ILL"), "71");
  Type("txt9LibrarySymbol", " ");
  Statements();
  Update();
  EXPECT_EQ(Writing(), QStringList{"UPDATE   ID_REQUEST_TYPE SET      REQUEST_TYPE_DESC = N'First', LIBRARY_ID = Null, "
                                   "INVOICE_FLAG = N'Y', CUSTOMER_ID = N'EXTERNAL' WHERE    REQUEST_TYPE = N'ILL'"});
  EXPECT_EQ(Count("ID_REQUEST_TYPE", "REQUEST_TYPE = 'ILL' AND LIBRARY_ID IS NULL"), 1);
  EXPECT_EQ(Cell("grd9RequestType", 1, 3), "");
}

TEST_F(RequestTypeTest, AnUnknownSymbolIsRefusedWithNothingWritten) {
  Enter();
  for (const char* symbol : {"NOBODY", "one", "O%"}) {
    Type("txt9LibrarySymbol", symbol);
    Prompt().Expect("Please select a valid library.", 48);
    Click("cmdUpdate");
  }
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(RequestTypeTest, NoCustomerStoresNullAndEmptiesTheCell) {
  Enter();
  Choose("cmb9CustomerID", "(none)");
  EXPECT_TRUE(gbRecordModified);
  Update();
  EXPECT_TRUE(Writing().value(0).contains(", CUSTOMER_ID = NULL WHERE "));
  EXPECT_EQ(Count("ID_REQUEST_TYPE", "REQUEST_TYPE = 'ILL' AND CUSTOMER_ID IS NULL"), 1);
  EXPECT_EQ(Cell("grd9RequestType", 1, 4), "");
}

TEST_F(RequestTypeTest, ACustomerThatIsGoneMeanwhileBecomesNull) {
  Enter();
  Choose("cmb9CustomerID", "Partner libraries");
  Another("UPDATE ID_REQUEST_TYPE SET CUSTOMER_ID = NULL WHERE CUSTOMER_ID = 'PARTNER'");
  Another("DELETE FROM ID_CUSTOMER_ID WHERE CUSTOMER_ID = 'PARTNER'");
  Update();
  EXPECT_EQ(Count("ID_REQUEST_TYPE", "REQUEST_TYPE = 'ILL' AND CUSTOMER_ID IS NULL"), 1);
  EXPECT_EQ(Cell("grd9RequestType", 1, 4), "");
}

TEST_F(RequestTypeTest, OfEqualDescriptionsTheOneThatWasChosenIsStored) {
  Another("INSERT INTO ID_CUSTOMER_ID (CUSTOMER_ID, CUSTOMER_ID_DESC) VALUES ('PARTNER2', 'Partner libraries')");
  Another("INSERT INTO ID_CUSTOMER_ID (CUSTOMER_ID) VALUES ('NAMELESS')");
  Another("UPDATE ID_REQUEST_TYPE SET CUSTOMER_ID = 'NAMELESS' WHERE REQUEST_TYPE = 'REG'");
  Enter();
  ChooseAt("cmb9CustomerID", Find<CodeComboBox>("cmb9CustomerID")->IndexOfCode("PARTNER2"));
  Update();
  EXPECT_EQ(Stored("CUSTOMER_ID", "ILL"), "PARTNER2");
  // One without a description is kept as well.
  SelectRowOf("grd9RequestType", "REG");
  Type("txt9Description", "Regular");
  Update();
  EXPECT_EQ(Stored("CUSTOMER_ID", "REG"), "NAMELESS");
}

TEST_F(RequestTypeTest, UpdateChangesOnlyTheWorkingLanguage) {
  Another("UPDATE ID_CUSTOMER_ID SET CUSTOMER_ID_DESC_FRE = 'Ailleurs' WHERE CUSTOMER_ID = 'EXTERNAL'");
  Enter("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  EXPECT_EQ(Text("cmb9CustomerID"), "Ailleurs");
  Type("txt9Description", "Autres");
  Update();
  EXPECT_EQ(Stored("REQUEST_TYPE_DESC", "ILL"), "Requests of other libraries");
  EXPECT_EQ(Stored("REQUEST_TYPE_DESC_FRE", "ILL"), "Autres");
  EXPECT_EQ(Stored("CUSTOMER_ID", "ILL"), "EXTERNAL");
}

TEST_F(RequestTypeTest, AnEmptiedDescriptionStoresNull) {
  Enter();
  Type("txt9Description", "  ");
  Update();
  EXPECT_EQ(Count("ID_REQUEST_TYPE", "REQUEST_TYPE = 'ILL' AND REQUEST_TYPE_DESC IS NULL"), 1);
}

TEST_F(RequestTypeTest, AnUnsetFlagShowsAsInvoiceAndCountsAsChanged) {
  Another("UPDATE ID_REQUEST_TYPE SET INVOICE_FLAG = NULL WHERE REQUEST_TYPE = 'REG'");
  Enter();
  SelectRowOf("grd9RequestType", "REG");
  EXPECT_EQ(Text("cmb9InvoiceFlag"), "Cover is an Invoice");
  EXPECT_FALSE(gbRecordModified);
  Choose("cmb9InvoiceFlag", "Cover is an Invoice");
  EXPECT_TRUE(gbRecordModified);
  Update();
  EXPECT_EQ(Stored("INVOICE_FLAG", "REG"), "Y");
}

TEST_F(RequestTypeTest, TheFlagMarksTheRecordWhereItDiffers) {
  Enter();
  Choose("cmb9InvoiceFlag", "Cover is an Invoice");
  EXPECT_FALSE(gbRecordModified);
  Choose("cmb9InvoiceFlag", "Cover is not an Invoice!");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(RequestTypeTest, AnUnchangedRowIsNotWritten) {
  Enter();
  Type("txt9Description", " Requests of other libraries ");
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt9Description");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(RequestTypeTest, AfterClearThereIsNoCodeToUpdate) {
  Enter();
  Click("cmdClear");
  for (const char* box : {"txt9Code", "txt9Description", "txt9LibrarySymbol", "cmb9CustomerID", "cmb9InvoiceFlag"})
    EXPECT_EQ(Text(box), "") << box;
  EXPECT_FALSE(gbRecordModified);
  // The library is asked for before the row.
  Type("txt9LibrarySymbol", "NOBODY");
  Prompt().Expect("Please select a valid library.", 48);
  Click("cmdUpdate");
  Type("txt9LibrarySymbol", "ONE");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt9Description");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(RequestTypeTest, AFailedUpdateLeavesEverythingAsItWas) {
  Enter();
  Type("txt9Description", "Other");
  Type("txt9LibrarySymbol", "TWO");
  Another("ALTER TABLE ID_REQUEST_TYPE RENAME COLUMN INVOICE_FLAG TO FLAG");
  Prompt().Expect("A database error has occurred.  Please verify your data entry\nand your Database structure.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Text("txt9Description"), "Other");
  EXPECT_EQ(Cell("grd9RequestType", 1, 3), "ONE");
  EXPECT_EQ(Stored("LIBRARY_ID", "ILL"), "71");
  EXPECT_TRUE(gbRecordModified);
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24), "* ***** SQL error on OSTANA.ID_REQUEST_TYPE (UPDATE) *****");
}

TEST_F(RequestTypeTest, FindLibraryPutsTheSymbolIntoTheBox) {
  Enter();
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(72); });
  Click("cmd9FindLibrary");
  EXPECT_EQ(Text("txt9LibrarySymbol"), "TWO");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(RequestTypeTest, FindLibraryWithoutAnAnswerKeepsTheTextAndTakesTheFocus) {
  Enter();
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(0); });
  Click("cmd9FindLibrary");
  EXPECT_EQ(Text("txt9LibrarySymbol"), "ONE");
  EXPECT_EQ(Focus(), "txt9LibrarySymbol");
}

TEST_F(RequestTypeTest, FindLibraryNeedsItsRight) {
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Library Registration'");
  Enter();
  Prompt().Expect("You do not have access to this function", 16);
  Click("cmd9FindLibrary");
  EXPECT_EQ(Text("txt9LibrarySymbol"), "ONE");
}

TEST_F(RequestTypeTest, AHeadingSortsTheGridAndKeepsTheRecord) {
  Enter();
  SelectRowOf("grd9RequestType", "PAT");
  SortBy("grd9RequestType", 2);
  SortBy("grd9RequestType", 2);
  EXPECT_EQ(Text("txt9Code"), "PAT");
  EXPECT_EQ(Cell("grd9RequestType", Row("grd9RequestType"), 1), "PAT");
}

TEST_F(RequestTypeTest, TheBoxesTakeNoMoreThanTold) {
  Enter();
  Type("txt9Description", QString(55, 'd'));
  EXPECT_EQ(Text("txt9Description").size(), 50);
  Type("txt9LibrarySymbol", QString(30, 's'));
  EXPECT_EQ(Text("txt9LibrarySymbol").size(), 25);
}

TEST_F(RequestTypeTest, AClosedConnectionIsOpenedAgain) {
  Enter();
  Type("txt9Description", "Again");
  gclsOF->Connection().Close();
  Update();
  EXPECT_EQ(Stored("REQUEST_TYPE_DESC", "ILL"), "Again");
}

TEST_F(RequestTypeTest, Looks) {
  Enter();
  Picture("request-type");
}

TEST_F(RequestTypeTest, AListOfCustomersThatCouldNotBeFilledLosesNoCustomer) {
  const QString customer = Stored("CUSTOMER_ID", "ILL");
  ASSERT_FALSE(customer.isEmpty());
  Start();
  Another("ALTER TABLE ID_CUSTOMER_ID RENAME TO ID_AWAY");
  Prompt().Expect("***** SQL error on OSTANA.ID_CUSTOMER_ID (Select) *****", 16);
  SelectTab("sstabtables", frmTabulon::RequestTypeTab);
  Another("ALTER TABLE ID_AWAY RENAME TO ID_CUSTOMER_ID");
  EXPECT_EQ(Text("cmb9CustomerID"), customer);
  Type("txt9Description", "Other words");
  Update();
  EXPECT_EQ(Stored("CUSTOMER_ID", "ILL"), customer);
  EXPECT_EQ(Stored("REQUEST_TYPE_DESC", "ILL"), "Other words");
}

TEST_F(RequestTypeTest, ACustomerThatIsInNoListIsKeptUntilAnotherIsChosen) {
  Another(
      "DELETE FROM ID_CUSTOMER_ID WHERE CUSTOMER_ID NOT IN (SELECT CUSTOMER_ID FROM ID_REQUEST_TYPE WHERE "
      "CUSTOMER_ID IS NOT NULL)");
  const QString customer = Stored("CUSTOMER_ID", "ILL");
  Enter();
  // As a row whose customer another program has put in since the list was filled.
  Find<CodeComboBox>("cmb9CustomerID")->Clear();
  SelectRow("grd9RequestType", 2);
  SelectRow("grd9RequestType", 1);
  EXPECT_EQ(Text("cmb9CustomerID"), customer);
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

}  // namespace
