// Sub-tab "Billing Rate Codes", and what it hands over to the rate tables.
#include "editors/InvoicingDesk.h"

namespace {

class BillingRatesTest : public InvoicingDesk {
 protected:
  void Enter() {
    InvoicingDesk::Enter();
    GoTo(1);
  }
  void GoTo(int subTab) {
    SelectTab("sstab7Invoicing", subTab);
    Statements();
  }
  void Fill(const QString& code, const QString& description, int flag) {
    Click("cmdClear");
    Type("txt7BillingCode", code);
    Type("txt7BillingDescription", description);
    ChooseAt("cmb7InvoiceFlag", flag);
  }
  QString Flag(const QString& code) {
    return Ask("SELECT INVOICE_FLAG_OVR FROM ID_BILLING_RATE WHERE BILLING_RATE = '" + code + "'");
  }
  int RowOf(const QString& code) { return Find<Grid>("grd7BillingRate")->FindRow(code, 1); }
  void AnswerBillingDelete(int answer) {
    Prompt().Expect(
        "This will Delete all Corresponding Document Supply Records.\nAre you sure you wish to Delete this record?", 36,
        answer);
  }
};

TEST_F(BillingRatesTest, EnteringLoadsTheRatesAndSelectsTheFirst) {
  InvoicingDesk::Enter();
  SelectTab("sstab7Invoicing", 1);
  EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM ID_BILLING_RATE ORDER BY BILLING_RATE"});
  const auto* const flags = Find<CodeComboBox>("cmb7InvoiceFlag");
  ASSERT_EQ(flags->Count(), 3);
  EXPECT_EQ(flags->TextAt(0), "(none)");
  EXPECT_EQ(flags->TextAt(1), "Cover is an Invoice");
  EXPECT_EQ(flags->TextAt(2), "Cover is not an Invoice!");
  EXPECT_EQ(Text("lbl7InvoiceFlag"), "Invoice Flag Override:");
  EXPECT_EQ(Row("grd7BillingRate"), 1);
  EXPECT_EQ(Text("txt7BillingCode"), "A");
  EXPECT_EQ(Text("txt7BillingDescription"), "Academic libraries");
  EXPECT_EQ(Focus(), "txt7BillingCode");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete"}) EXPECT_TRUE(IsEnabled(button)) << button;
  EXPECT_FALSE(gbRecordModified);
  Picture("invoicing-billing-rates");
}

TEST_F(BillingRatesTest, SelectionShowsTheOverrideInWords) {
  Enter();
  EXPECT_EQ(Text("cmb7InvoiceFlag"), "(none)");
  SelectRow("grd7BillingRate", RowOf("C"));
  EXPECT_EQ(Cell("grd7BillingRate", RowOf("C"), 3), "Y");
  EXPECT_EQ(Text("cmb7InvoiceFlag"), "Cover is an Invoice");
  SelectRow("grd7BillingRate", RowOf("N"));
  EXPECT_EQ(Text("cmb7InvoiceFlag"), "Cover is not an Invoice!");
  SelectRow("grd7BillingRate", RowOf("R"));
  EXPECT_EQ(Text("cmb7InvoiceFlag"), "(none)");
}

TEST_F(BillingRatesTest, AddWritesOneInsertWithEveryLanguage) {
  Enter();
  Fill("x", " Extra's ", 2);
  EXPECT_TRUE(gbRecordModified);
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_BILLING_RATE (BILLING_RATE, BILLING_RATE_DESC, "
                                   "BILLING_RATE_DESC_ENG, BILLING_RATE_DESC_FRE, BILLING_RATE_DESC_GER, "
                                   "INVOICE_FLAG_OVR) VALUES (N'X', N'Extra''s', N'Extra''s', N'Extra''s', "
                                   "N'Extra''s', N'N')"});
  EXPECT_EQ(Row("grd7BillingRate"), RowOf("X"));
  EXPECT_EQ(Flag("X"), "N");
}

TEST_F(BillingRatesTest, AddOnASiteOfOneLanguageTakesAnEmptyDescription) {
  Setting("System", "SingleLanguage", "Y");
  Enter();
  Fill("x", " ", 1);
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_BILLING_RATE (BILLING_RATE, BILLING_RATE_DESC, INVOICE_FLAG_OVR) "
                                   "VALUES (N'X', NULL, N'Y')"});
}

TEST_F(BillingRatesTest, AnEmptyCodeSendsTheFocusToTheOtherSubTab) {
  Enter();
  Click("cmdClear");
  Refused("Please enter a Valid Code.", 48, "cmdAdd", "txt7Code");
}

TEST_F(BillingRatesTest, ABlankPassesTheTestAndReachesTheDatabaseAsAnEmptyCode) {
  Enter();
  Fill(" ", "Blank", 0);
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_BILLING_RATE (BILLING_RATE, BILLING_RATE_DESC, "
                                   "BILLING_RATE_DESC_ENG, BILLING_RATE_DESC_FRE, BILLING_RATE_DESC_GER, "
                                   "INVOICE_FLAG_OVR) VALUES (N'', N'Blank', N'Blank', N'Blank', N'Blank', NULL)"});
}

TEST_F(BillingRatesTest, ADuplicateIsRefusedByTheGridAndByTheDatabase) {
  Enter();
  Fill("a", "Again", 0);
  Refused("This record already exists", 48, "cmdAdd", "txt7BillingCode");
  Another("INSERT INTO ID_BILLING_RATE (BILLING_RATE, BILLING_RATE_DESC) VALUES ('X', 'Theirs')");
  Fill("x", "Ours", 0);
  Prompt().ExpectTitled(DatabaseError, 16, "Ostana - System Maintenance");
  Click("cmdAdd");
  EXPECT_TRUE(LogLines().join('\n').contains("***** SQL error on OSTANA.ID_BILLING_RATE (INSERT INTO) *****"));
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(BillingRatesTest, UpdateWritesTheWorkingLanguageAndTheGridWithoutAReload) {
  Enter();
  gclsOF->SetLanguageSuffix("_GER");
  SelectRow("grd7BillingRate", RowOf("C"));
  Type("txt7BillingDescription", "Firmen");
  ChooseAt("cmb7InvoiceFlag", 2);
  Statements();
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Statements(), QStringList{"UPDATE ID_BILLING_RATE SET BILLING_RATE_DESC_GER = N'Firmen', INVOICE_FLAG_OVR "
                                      "= N'N' WHERE BILLING_RATE = N'C'"});
  EXPECT_EQ(Cell("grd7BillingRate", RowOf("C"), 2), "Firmen");
  EXPECT_EQ(Cell("grd7BillingRate", RowOf("C"), 3), "N");
  EXPECT_EQ(Ask("SELECT BILLING_RATE_DESC FROM ID_BILLING_RATE WHERE BILLING_RATE = 'C'"), "Companies");
}

TEST_F(BillingRatesTest, ChoosingNoneStoresNullAndEmptiesTheCell) {
  Enter();
  SelectRow("grd7BillingRate", RowOf("C"));
  ChooseAt("cmb7InvoiceFlag", 0);
  Type("txt7BillingDescription", " ");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_BILLING_RATE SET BILLING_RATE_DESC = NULL, INVOICE_FLAG_OVR = NULL WHERE "
                                   "BILLING_RATE = N'C'"});
  EXPECT_EQ(Cell("grd7BillingRate", RowOf("C"), 3), "");
  EXPECT_TRUE(Flag("C").isNull());
}

TEST_F(BillingRatesTest, UpdateRefusesNoChangeAndAnUnknownCodeInTwoBlankForm) {
  Enter();
  Refused("Nothing has been changed", 48, "cmdUpdate", "txt7BillingDescription");
  Fill("q", "Unknown", 0);
  Refused("This Code does not exist in the table.  Please select a Valid Code to Update.", 16, "cmdUpdate",
          "txt7BillingCode");
}

TEST_F(BillingRatesTest, DeleteAsksInTwoLinesAndIssuesOneStatement) {
  Another("DELETE FROM ID_RATE_SERVICE");
  Another("INSERT INTO ID_BILLING_RATE (BILLING_RATE, BILLING_RATE_DESC) VALUES ('X', 'Extra')");
  Enter();
  Fill("x", "", 0);
  AnswerBillingDelete(MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_BILLING_RATE", "BILLING_RATE = 'X'"), 1);
  AnswerBillingDelete(MessageAnswer::Yes);
  Done("Record Deleted", "cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_BILLING_RATE WHERE BILLING_RATE = 'X'"});
  EXPECT_EQ(RowOf("X"), 0);
}

TEST_F(BillingRatesTest, DeleteRefusesAnEmptyAndAnUnknownCode) {
  Enter();
  Fill(" ", "", 0);
  Refused("Please choose a record to be Deleted", 48, "cmdDelete", "txt7BillingCode");
  Fill("q", "", 0);
  Refused("Please select a valid record from the table.", 16, "cmdDelete", "txt7BillingCode");
}

TEST_F(BillingRatesTest, ARateInUseIsKeptByTheDatabase) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'U', 1)");
  Enter();
  SelectRow("grd7BillingRate", RowOf("C"));
  AnswerBillingDelete(MessageAnswer::Yes);
  Prompt().Expect(
      "An error has occurred while attempting to delete the record.\n\nThe Code is referenced by another table in the "
      "database.",
      16);
  Click("cmdDelete");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_EQ(Count("ID_BILLING_RATE", "BILLING_RATE = 'C'"), 1);
  EXPECT_TRUE(LogLines().join('\n').contains("***** SQL error on OSTANA.ID_BILLING_RATE (DELETE) *****"));
}

TEST_F(BillingRatesTest, AnyOtherFailureOfDeleteSaysThatItMayPersist) {
  Enter();
  SelectRow("grd7BillingRate", RowOf("C"));
  Another("ALTER TABLE ID_BILLING_RATE RENAME TO ID_ELSEWHERE");
  AnswerBillingDelete(MessageAnswer::Yes);
  Prompt().Expect(
      "An error has occurred while attempting to delete the record.\n\nIf the error persists notify support.", 16);
  Click("cmdDelete");
}

TEST_F(BillingRatesTest, ClearEmptiesTheInputsAndLeavesNoRow) {
  Enter();
  SelectRow("grd7BillingRate", RowOf("C"));
  Click("cmdClear");
  EXPECT_EQ(Text("txt7BillingCode"), "");
  EXPECT_EQ(Text("txt7BillingDescription"), "");
  EXPECT_EQ(Text("cmb7InvoiceFlag"), "(none)");
  EXPECT_EQ(Row("grd7BillingRate"), 0);
}

// --- Back to the rate tables ---

TEST_F(BillingRatesTest, ABillingRateChosenHereCarriesOverToARateTable) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('A', 'U', 1)");
  InvoicingDesk::Enter();
  Pick("Service Level Rates");
  GoTo(1);
  SelectRow("grd7BillingRate", RowOf("N"));
  GoTo(0);
  EXPECT_EQ(Text("cmb7RateTable"), "Service Level Rates");
  EXPECT_EQ(Text("cmb7aBillingRate"), "No charge");
  EXPECT_EQ(Text("cmb7aDeliveryMethod"), "(none)");
  EXPECT_EQ(Text("txt7aFlatFee"), "");
  EXPECT_EQ(Row("grd7Table"), 0);
  EXPECT_EQ(Rows("grd7Table"), 2);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(BillingRatesTest, InAliasModeItBecomesTheNewBillingRate) {
  InvoicingDesk::Enter();
  Pick("Billing Rate Alias");
  GoTo(1);
  SelectRow("grd7BillingRate", RowOf("R"));
  GoTo(0);
  EXPECT_EQ(Text("cmb7Alias"), "Reciprocal partners");
  EXPECT_EQ(Text("cmb7aBillingRate"), "(none)");
}

TEST_F(BillingRatesTest, NothingCarriesOverToCopyrightOrWithoutARow) {
  InvoicingDesk::Enter();
  Pick("Copyright Comply");
  GoTo(1);
  GoTo(0);
  EXPECT_EQ(Text("cmb7RateTable"), "(none)");
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  Pick("Service Level Rates");
  GoTo(1);
  Click("cmdClear");
  GoTo(0);
  EXPECT_EQ(Text("cmb7RateTable"), "(none)");
}

TEST_F(BillingRatesTest, ARateAddedHereIsInTheListsThere) {
  InvoicingDesk::Enter();
  Pick("Delivery Method Rates");
  GoTo(1);
  Fill("x", "Brand new", 0);
  Done("Record Added", "cmdAdd");
  GoTo(0);
  EXPECT_EQ(Text("cmb7aBillingRate"), "Brand new");
}

}  // namespace
