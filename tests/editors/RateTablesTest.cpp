// The five tables priced by billing rate: Add, Update and Delete, statement by statement.
#include "editors/InvoicingDesk.h"

namespace {

struct Rate {
  const char* rateTable;
  const char* table;
  const char* key;      // chosen text
  const char* missing;  // refusal without it
  bool exposures;
  const char* insert;
  const char* update;
  const char* remove;
};

const Rate Delivery{
    "Delivery Method Rates",
    "ID_RATE_DELIVERY",
    "Mail",
    "Please select a Valid Delivery Method.",
    true,
    "INSERT INTO ID_RATE_DELIVERY (BILLING_RATE, DELIV_METHOD, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, PER_EXPOSURE)  "
    "VALUES ('C', 'M', 10, 2.50, NULL, 0.25)",
    "UPDATE ID_RATE_DELIVERY SET UNIT_SIZE = 10, FLAT_FEE_UNIT = 3.75, FREE_EXPOSURE = NULL, PER_EXPOSURE = 0.25 WHERE "
    "BILLING_RATE = N'C' AND DELIV_METHOD = N'M'",
    "DELETE FROM ID_RATE_DELIVERY WHERE BILLING_RATE = 'C' AND DELIV_METHOD = 'M'"};
const Rate Supply{
    "Document Supply Rates",
    "ID_RATE_SUPPLY",
    "Microfilm supplied",
    "Please select a Valid Supply Code.",
    true,
    "INSERT INTO ID_RATE_SUPPLY (BILLING_RATE, EXCEPTION_CODE, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, PER_EXPOSURE)  "
    "VALUES ('C', 'MCR', 10, 2.50, NULL, 0.25)",
    "UPDATE ID_RATE_SUPPLY SET UNIT_SIZE = 10, FLAT_FEE_UNIT = 3.75, FREE_EXPOSURE = NULL, PER_EXPOSURE = 0.25 WHERE "
    "BILLING_RATE = N'C' AND EXCEPTION_CODE = N'MCR'",
    "DELETE FROM ID_RATE_SUPPLY WHERE BILLING_RATE = 'C' AND EXCEPTION_CODE = 'MCR'"};
const Rate Output{
    "Output Format Rates",
    "ID_RATE_OUTPUT",
    "Microfilm",
    "Please select a Valid Output Format.",
    true,
    "INSERT INTO ID_RATE_OUTPUT (BILLING_RATE, OUTPUT_FORMAT, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, PER_EXPOSURE)  "
    "VALUES (N'C', N'MF', 10, 2.50, NULL, 0.25)",
    "UPDATE ID_RATE_OUTPUT SET UNIT_SIZE = 10, FLAT_FEE_UNIT = 3.75, FREE_EXPOSURE = NULL, PER_EXPOSURE = 0.25 WHERE "
    "BILLING_RATE = N'C' AND OUTPUT_FORMAT = N'MF'",
    "DELETE FROM ID_RATE_OUTPUT WHERE BILLING_RATE = N'C' AND OUTPUT_FORMAT = N'MF'"};
const Rate Reject{"Reject Code Rates",
                  "ID_RATE_REJECT",
                  "Not held",
                  "Please select a Valid Reject Code.",
                  false,
                  "INSERT INTO ID_RATE_REJECT (BILLING_RATE, EXCEPTION_CODE, SURCHARGE) VALUES ('C', 'NOH', 2.50)",
                  "UPDATE ID_RATE_REJECT SET SURCHARGE = 3.75 WHERE BILLING_RATE = N'C' AND EXCEPTION_CODE = N'NOH'",
                  "DELETE FROM ID_RATE_REJECT WHERE BILLING_RATE = 'C' AND EXCEPTION_CODE = 'NOH'"};
const Rate Service{"Service Level Rates",
                   "ID_RATE_SERVICE",
                   "Urgent",
                   "Please select a Valid service Level.",
                   false,
                   "INSERT INTO ID_RATE_service (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'U', 2.50)",
                   "UPDATE ID_RATE_SERVICE SET SURCHARGE = 3.75 WHERE BILLING_RATE = N'C' AND SERVICE_LEVEL = N'U'",
                   "DELETE FROM ID_RATE_SERVICE WHERE BILLING_RATE = 'C' AND SERVICE_LEVEL = 'U'"};

class TypicalRatesTest : public InvoicingDesk, public testing::WithParamInterface<Rate> {
 protected:
  // A row for Companies with 10 units, 2.50, nothing free, 0.25.
  void Fill(const QString& fee = "2.5", const QString& perExposure = ".25") {
    Choose("cmb7aBillingRate", "Companies");
    Choose("cmb7aDeliveryMethod", GetParam().key);
    Type("txt7aFlatFee", fee);
    if (GetParam().exposures) {
      Type("txt7aUnitSize", "10");
      Type("txt7aPerExposure", perExposure);
    }
  }
  void AddRow() {
    Fill();
    Done("Record Added", "cmdAdd");
  }
};

INSTANTIATE_TEST_SUITE_P(Tables, TypicalRatesTest, testing::Values(Delivery, Supply, Output, Reject, Service),
                         [](const auto& test) { return QString(test.param.table).remove('_').toStdString(); });

TEST_P(TypicalRatesTest, AddUpdateAndDeleteWriteTheirStatements) {
  const Rate& rate = GetParam();
  Enter();
  Pick(rate.rateTable);
  AddRow();
  EXPECT_EQ(Writing(), QStringList{rate.insert});
  EXPECT_EQ(Row("grd7Table"), 1);
  EXPECT_EQ(Text("cmb7aBillingRate"), "Companies");
  EXPECT_EQ(Text("cmb7aDeliveryMethod"), rate.key);
  EXPECT_EQ(Cell("grd7Table", 1, 3), "2.50");

  Type("txt7aFlatFee", "3.75");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{rate.update});
  EXPECT_EQ(Cell("grd7Table", 1, 3), "3.75");

  SelectRow("grd7Table", 1);
  AnswerDelete(MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
  AnswerDelete(MessageAnswer::Yes);
  Done("Record Deleted", "cmdDelete");
  EXPECT_EQ(Writing(), QStringList{rate.remove});
  EXPECT_EQ(Rows("grd7Table"), 1);
}

TEST_P(TypicalRatesTest, BothKeysMustBeChosen) {
  const Rate& rate = GetParam();
  Enter();
  Pick(rate.rateTable);
  Refused("Please select a Valid Billing Rate.", 48, "cmdAdd", "cmb7aBillingRate");
  Refused("Please choose a valid record to be Deleted", 48, "cmdDelete", "cmb7aBillingRate");
  const QString unknown = "This Code does not exist in the table. Please select a Valid Code to Update.";
  Refused(unknown, 16, "cmdUpdate", "cmb7aBillingRate");
  Choose("cmb7aBillingRate", "Companies");
  Refused(rate.missing, 48, "cmdAdd", "cmb7aDeliveryMethod");
  Refused("Please choose a valid record to be Deleted", 48, "cmdDelete", "cmb7aDeliveryMethod");
  Choose("cmb7aDeliveryMethod", rate.key);
  Refused(unknown, 16, "cmdUpdate", "cmb7aBillingRate");
  Refused("Please select a valid record from the table.", 16, "cmdDelete", "cmb7aBillingRate");
}

TEST_P(TypicalRatesTest, ADuplicateIsRefusedAndOnlyOutputFormatClears) {
  const Rate& rate = GetParam();
  Enter();
  Pick(rate.rateTable);
  AddRow();
  Writing();
  Fill("9", "9");
  Refused("This record already exists", 48, "cmdAdd", "cmb7aBillingRate");
  const bool cleared = QString(rate.table) == "ID_RATE_OUTPUT";
  EXPECT_EQ(Text("cmb7aBillingRate"), cleared ? "(none)" : "Companies");
  EXPECT_EQ(Text("txt7aFlatFee"), cleared ? "" : "9.00");
}

TEST_P(TypicalRatesTest, AnUntouchedRowAndAnotherWritingAreNoChange) {
  Enter();
  Pick(GetParam().rateTable);
  AddRow();
  SelectRow("grd7Table", 1);
  Type("txt7aFlatFee", "02.5");
  Prompt().Expect("Nothing has been changed", 48);
  Writing();
  Trigger("mnuOptionsUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_P(TypicalRatesTest, TheCommaBecomesAPointEverywhereButInOutputFormatOnAdd) {
  const Rate& rate = GetParam();
  EnterWithComma();
  Pick(rate.rateTable);
  Fill("2,5", ",25");
  const bool keepsComma = QString(rate.table) == "ID_RATE_OUTPUT";
  if (keepsComma)
    Prompt().Expect(DatabaseError, 16);
  else
    Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{keepsComma ? QString(rate.insert).replace("2.50", "2,50").replace("0.25", "0,25")
                                              : QString(rate.insert)});
  EXPECT_EQ(Count(rate.table, "BILLING_RATE = 'C'"), keepsComma ? 0 : 1);
}

TEST_P(TypicalRatesTest, OnUpdateTheCommaBecomesAPointInEveryTable) {
  const Rate& rate = GetParam();
  Another(QString(rate.insert).remove("N'").replace("(C'", "('C'").replace(", MF'", ", 'MF'"));
  EnterWithComma();
  Pick(rate.rateTable);
  EXPECT_EQ(Text("txt7aFlatFee"), "2,50");
  Type("txt7aFlatFee", "3,75");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{rate.update});
}

TEST_P(TypicalRatesTest, ADuplicateOfAnotherClientIsRefusedByTheDatabase) {
  const Rate& rate = GetParam();
  Enter();
  Pick(rate.rateTable);
  Another(QString(rate.insert).remove("N'").replace("(C'", "('C'").replace(", MF'", ", 'MF'"));
  Fill();
  Prompt().ExpectTitled(DatabaseError, 16, "Ostana - System Maintenance");
  Click("cmdAdd");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(gbRecordModified);
  EXPECT_TRUE(
      LogLines().join('\n').contains("***** SQL error on OSTANA." + QString(rate.table) + " (INSERT INTO) *****"));
}

// What stands in the log when a statement finds its table gone.
struct FailedStatement {
  const char* rateTable;
  const char* table;
  const char* changes;  // the input that makes an Update worth while
};

class RateFailureTest : public InvoicingDesk, public testing::WithParamInterface<FailedStatement> {
 protected:
  void SetUp() override {
    InvoicingDesk::SetUp();
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ASKS', 'Institution')");
    Another("INSERT INTO ID_RATE_DELIVERY (BILLING_RATE, DELIV_METHOD) VALUES ('A', 'M')");
    Another("INSERT INTO ID_RATE_SUPPLY (BILLING_RATE, EXCEPTION_CODE) VALUES ('A', 'MCR')");
    Another("INSERT INTO ID_RATE_OUTPUT (BILLING_RATE, OUTPUT_FORMAT) VALUES ('A', 'MF')");
    Another("INSERT INTO ID_RATE_REJECT (BILLING_RATE, EXCEPTION_CODE) VALUES ('A', 'NOH')");
    Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL) VALUES ('A', 'U')");
    Another("INSERT INTO ID_RATE_ALIAS (LIBRARY_ID, SUPPLIER_LIBRARY_ID, BILLING_RATE) VALUES (71, 71, 'A')");
  }
  bool Logged(const QString& verb) {
    return LogLines().join('\n').contains("***** SQL error on OSTANA." + QString(GetParam().table) + " (" + verb +
                                          ") *****");
  }
};

INSTANTIATE_TEST_SUITE_P(Tables, RateFailureTest,
                         testing::Values(FailedStatement{"Copyright Comply", "ID_COPYRIGHT_CMP", "txt7Surcharge"},
                                         FailedStatement{"Delivery Method Rates", "ID_RATE_DELIVERY", "txt7aFlatFee"},
                                         FailedStatement{"Document Supply Rates", "ID_RATE_SUPPLY", "txt7aFlatFee"},
                                         FailedStatement{"Output Format Rates", "ID_RATE_OUTPUT", "txt7aFlatFee"},
                                         FailedStatement{"Reject Code Rates", "ID_RATE_REJECT", "txt7aFlatFee"},
                                         FailedStatement{"Service Level Rates", "ID_RATE_SERVICE", "txt7aFlatFee"},
                                         FailedStatement{"Billing Rate Alias", "ID_RATE_ALIAS", "cmb7Alias"}));

TEST_P(RateFailureTest, UpdateAndDeleteLeaveTheirLinesInTheLog) {
  Enter();
  Pick(GetParam().rateTable);
  ASSERT_EQ(Row("grd7Table"), 1);
  Another("ALTER TABLE " + QString(GetParam().table) + " RENAME TO ID_ELSEWHERE");
  AnswerDelete(MessageAnswer::Yes);
  Prompt().Expect(
      "An error has occurred while attempting to delete the record.\n\nIf the error persists notify support.", 16);
  Click("cmdDelete");
  EXPECT_TRUE(Logged("DELETE"));
  if (QString(GetParam().changes) == "cmb7Alias")
    Choose("cmb7Alias", "No charge");
  else
    Type(GetParam().changes, "77");
  Prompt().Expect(DatabaseError, 16);
  Click("cmdUpdate");
  EXPECT_TRUE(Logged("UPDATE"));
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(gbRecordModified);
}

class RateRowsTest : public InvoicingDesk {};

TEST_F(RateRowsTest, TwoBillingRatesOfOneDescriptionStayApart) {
  Another("UPDATE ID_BILLING_RATE SET BILLING_RATE_DESC = 'Companies' WHERE BILLING_RATE = 'R'");
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'U', 1)");
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('R', 'U', 2)");
  Enter();
  Pick("Service Level Rates");
  SelectRowOf("grd7Table", "2.00", 3);
  Type("txt7aFlatFee", "3");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Ask("SELECT SURCHARGE FROM ID_RATE_SERVICE WHERE BILLING_RATE = 'R'"), "3.00");
  EXPECT_EQ(Ask("SELECT SURCHARGE FROM ID_RATE_SERVICE WHERE BILLING_RATE = 'C'"), "1.00");
}

TEST_F(RateRowsTest, TheSelectedRowAndItsCodesFollowASort) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('A', 'U', 9)");
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'X', 1)");
  Enter();
  Pick("Service Level Rates");
  SelectRowOf("grd7Table", "9.00", 3);
  SortBy("grd7Table", 3);
  EXPECT_EQ(Row("grd7Table"), 2);
  SelectRow("grd7Table", 1);
  EXPECT_EQ(Text("cmb7aBillingRate"), "Companies");
  Type("txt7aFlatFee", "2");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Ask("SELECT SURCHARGE FROM ID_RATE_SERVICE WHERE BILLING_RATE = 'C'"), "2.00");
}

TEST_F(RateRowsTest, ANumberBeyondTheColumnIsRefusedByTheDatabase) {
  Enter();
  Pick("Service Level Rates");
  Choose("cmb7aBillingRate", "Companies");
  Choose("cmb7aDeliveryMethod", "Urgent");
  Put("txt7aFlatFee", "999999");
  Prompt().Expect(DatabaseError, 16);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Count("ID_RATE_SERVICE", "BILLING_RATE = 'C'"), 0);
}

TEST_F(RateRowsTest, AConnectionThatWasClosedIsOpenedAgain) {
  Enter();
  Pick("Service Level Rates");
  Choose("cmb7aBillingRate", "Companies");
  Choose("cmb7aDeliveryMethod", "Urgent");
  gclsOF->Connection().Close();
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Count("ID_RATE_SERVICE", "BILLING_RATE = 'C' AND SURCHARGE IS NULL"), 1);
}

// --- What stands on show belongs to the table that was chosen ---

TEST_F(RateRowsTest, AListThatCouldNotBeFilledKeepsNoCodesOfAnotherTable) {
  Another("INSERT INTO ID_RATE_SUPPLY (BILLING_RATE, EXCEPTION_CODE, FLAT_FEE_UNIT) VALUES ('C', 'MCR', 2)");
  Enter();
  Pick("Document Supply Rates");
  Another("ALTER TABLE ID_BILLING_RATE RENAME TO ID_AWAY");
  Prompt().Expect("***** SQL error on OSTANA.ID_DBILLING_RATE (Select) *****", 16);
  Pick("Reject Code Rates");
  Another("ALTER TABLE ID_AWAY RENAME TO ID_BILLING_RATE");
  EXPECT_EQ(Find<CodeComboBox>("cmb7aBillingRate")->IndexOfText("Companies"), -1);
  EXPECT_EQ(Find<CodeComboBox>("cmb7aDeliveryMethod")->IndexOfCode("MCR"), -1);
  EXPECT_EQ(Text("txt7aFlatFee"), "");
  Refused("Please select a Valid Billing Rate.", 48, "cmdAdd", "cmb7aBillingRate");
}

TEST_F(RateRowsTest, AnEmptyTableShowsNoNumbersOfTheTableBefore) {
  Another(
      "INSERT INTO ID_RATE_SUPPLY (BILLING_RATE, EXCEPTION_CODE, FLAT_FEE_UNIT, UNIT_SIZE, FREE_EXPOSURE, "
      "PER_EXPOSURE) VALUES ('C', 'MCR', 2, 3, 4, 5)");
  Another("DELETE FROM ID_RATE_OUTPUT");
  Enter();
  Pick("Document Supply Rates");
  EXPECT_EQ(Text("txt7aFlatFee"), "2.00");
  Pick("Output Format Rates");
  for (const char* box : {"txt7aFlatFee", "txt7aUnitSize", "txt7aFreeExposures", "txt7aPerExposure"})
    EXPECT_EQ(Text(box), "") << box;
}

TEST_F(RateRowsTest, AnEmptyTableOfCopyrightBeginsWithNoSurcharge) {
  Another("DELETE FROM ID_COPYRIGHT_CMP");
  Enter();
  Pick("Copyright Comply");
  EXPECT_EQ(Text("txt7Surcharge"), "0.00");
}

TEST_F(RateRowsTest, AfterAWriteTheRecordIsCurrentAgain) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('A', 'U', 9)");
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'X', 1)");
  Enter();
  Pick("Service Level Rates");
  SelectRowOf("grd7Table", "1.00", 3);
  const int row = Row("grd7Table");
  const QString key = Text("cmb7aDeliveryMethod");
  Type("txt7aFlatFee", "2");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Row("grd7Table"), row);
  EXPECT_EQ(Text("cmb7aBillingRate"), "Companies");
  EXPECT_EQ(Text("cmb7aDeliveryMethod"), key);
  EXPECT_EQ(Text("txt7aFlatFee"), "2.00");
}

TEST_F(RateRowsTest, ARateThatIsGoneIsNeitherUpdatedNorDeleted) {
  Another("INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES ('C', 'U', 1)");
  Enter();
  Pick("Service Level Rates");
  SelectRowOf("grd7Table", "1.00", 3);
  Another("DELETE FROM ID_RATE_SERVICE WHERE BILLING_RATE = 'C'");
  Type("txt7aFlatFee", "2");
  Prompt().Expect("This Code does not exist in the table. Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  AnswerDelete(MessageAnswer::Yes);
  Prompt().Expect("Please select a valid record from the table.", 16);
  Click("cmdDelete");
}

}  // namespace
