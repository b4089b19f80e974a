// Add, Update and Delete on the rate tables, statement by statement.
#include "editors/InvoicingDesk.h"

namespace {

// --- Copyright Comply ---

class CopyrightRatesTest : public InvoicingDesk {
 protected:
  void Enter() {
    InvoicingDesk::Enter();
    Pick("Copyright Comply");
  }
  void Fill(const QString& code, const QString& description, const QString& surcharge) {
    Click("cmdClear");
    Type("txt7Code", code);
    Type("txt7Description", description);
    Type("txt7Surcharge", surcharge);
  }
};

TEST_F(CopyrightRatesTest, AddStoresTheDescriptionAsTypedInEveryLanguage) {
  Enter();
  Fill("x", " Fair dealing, o'clock ", "1.5");
  EXPECT_TRUE(gbRecordModified);
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_COPYRIGHT_CMP (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC, COPYRIGHT_CMP_DESC_ENG, "
                        "COPYRIGHT_CMP_DESC_FRE, COPYRIGHT_CMP_DESC_GER, SURCHARGE) VALUES (N'X', N'Fair dealing, "
                        "o''clock', N'Fair dealing, o''clock', N'Fair dealing, o''clock', N'Fair dealing, o''clock', "
                        "1.50)"});
  EXPECT_EQ(Ask("SELECT COPYRIGHT_CMP_DESC_GER FROM ID_COPYRIGHT_CMP WHERE COPYRIGHT_CMP = 'X'"),
            "Fair dealing, o'clock");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 1), "X");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 2), "1.50");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 3), "Fair dealing, o'clock");
  EXPECT_EQ(Focus(), "txt7Code");
}

TEST_F(CopyrightRatesTest, OnASiteOfOneLanguageNoLanguageColumnIsNamed) {
  Setting("System", "SingleLanguage", "Y");
  Enter();
  Fill("x", "Fair", "1");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_COPYRIGHT_CMP (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC, SURCHARGE) VALUES "
                                   "(N'X', N'Fair', 1.00)"});
}

TEST_F(CopyrightRatesTest, TheAtSignIsRefusedOnAddAndNotFoundOnUpdate) {
  Enter();
  Fill("@", "At", "1");
  Refused("Please enter a Valid Code.", 48, "cmdAdd", "txt7Code");
  Refused("This Code does not exist in the table. Please select a Valid Code to Update.", 16, "cmdUpdate", "txt7Code");
}

TEST_F(CopyrightRatesTest, AddRefusesEmptyTextsAndWhatExists) {
  Enter();
  Fill(" ", "Text", "1");
  Refused("Please enter a Valid Code.", 48, "cmdAdd", "txt7Code");
  Fill("x", "  ", "1");
  Refused("Please enter a Valid Description.", 48, "cmdAdd", "txt7Description");
  Fill("f", "Covered by the law", "1");
  Refused("This record already exists", 48, "cmdAdd", "txt7Code");
  Fill("x", "Covered by the law", "1");
  Refused("This record already exists", 48, "cmdAdd", "txt7Description");
}

TEST_F(CopyrightRatesTest, ABlankSurchargeFailsInTheDatabaseOnAdd) {
  Enter();
  Fill("x", "Fair", "");
  Prompt().ExpectTitled(DatabaseError, 16, "Ostana - System Maintenance");
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_COPYRIGHT_CMP (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC, "
                                   "COPYRIGHT_CMP_DESC_ENG, COPYRIGHT_CMP_DESC_FRE, COPYRIGHT_CMP_DESC_GER, SURCHARGE) "
                                   "VALUES (N'X', N'Fair', N'Fair', N'Fair', N'Fair', )"});
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(gbRecordModified);
  EXPECT_TRUE(LogLines().join('\n').contains("***** SQL error on OSTANA.ID_COPYRIGHT_CMP (INSERT INTO) *****"));
}

TEST_F(CopyrightRatesTest, UpdateWritesCapitalsAndTheGridWithoutAReload) {
  Enter();
  SelectRowOf("grd7Table", "F");
  Type("txt7Description", "collecting o'society");
  Type("txt7Surcharge", "12.5");
  Prompt().Expect("Record Updated", 64);
  Statements();
  Click("cmdUpdate");
  EXPECT_EQ(Statements(), QStringList{"UPDATE  ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC = N'COLLECTING O''SOCIETY', "
                                      "SURCHARGE = 12.50 WHERE COPYRIGHT_CMP = 'F'"});
  EXPECT_EQ(Text("txt7Description"), "COLLECTING O'SOCIETY");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 2), "12.50");
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 3), "COLLECTING O'SOCIETY");
  EXPECT_EQ(Focus(), "txt7Code");
}

TEST_F(CopyrightRatesTest, UpdateMakesABlankSurchargeZeroAndAnEmptyDescriptionNull) {
  Enter();
  SelectRowOf("grd7Table", "F");
  Type("txt7Description", " ");
  Type("txt7Surcharge", "");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(),
            QStringList{"UPDATE  ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC = NULL, SURCHARGE = 0 WHERE COPYRIGHT_CMP = "
                        "'F'"});
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 2), "0.00");
}

TEST_F(CopyrightRatesTest, UpdateTakesItsColumnsFromTheLanguageOfTheLoad) {
  Enter();
  gclsOF->SetLanguageSuffix("_FRE");
  Choose("cmb7RateTable", "Copyright Comply");
  EXPECT_EQ(Statements(), QStringList{"SELECT   COPYRIGHT_CMP, COPYRIGHT_CMP_DESC_FRE, SURCHARGE FROM ID_COPYRIGHT_CMP "
                                      "ORDER BY COPYRIGHT_CMP"});
  gclsOF->SetLanguageSuffix("");
  SelectRowOf("grd7Table", "L");
  Type("txt7Description", "loi");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE  ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC_FRE = N'LOI', SURCHARGE = 0.00 "
                                   "WHERE COPYRIGHT_CMP = 'L'"});
}

TEST_F(CopyrightRatesTest, AnotherWritingOfTheSameNumberIsNoChange) {
  Another("UPDATE ID_COPYRIGHT_CMP SET COPYRIGHT_CMP_DESC = 'LAW', SURCHARGE = 5 WHERE COPYRIGHT_CMP = 'L'");
  Enter();
  SelectRowOf("grd7Table", "L");
  Type("txt7Surcharge", "05.0");
  Prompt().Expect("Nothing has been changed", 48);
  Trigger("mnuOptionsUpdate");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(CopyrightRatesTest, DeleteAsksAndForcesCapitals) {
  Enter();
  Fill("l", "covered by the law", "");
  AnswerDelete(MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Text("txt7Description"), "COVERED BY THE LAW");
  EXPECT_TRUE(Writing().isEmpty());
  AnswerDelete(MessageAnswer::Yes);
  Done("Record Deleted", "cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_COPYRIGHT_CMP WHERE COPYRIGHT_CMP = 'L'"});
  EXPECT_EQ(Find<Grid>("grd7Table")->FindRow("L", 1), 0);
}

TEST_F(CopyrightRatesTest, DeleteRefusesAnEmptyAndAnUnknownCode) {
  Enter();
  Fill(" ", "", "");
  Refused("Please choose a record to be Deleted", 48, "cmdDelete", "txt7Code");
  Fill("q", "", "");
  Refused("Please select a valid record from the table.", 16, "cmdDelete", "txt7Code");
}

// --- The five tables priced by billing rate ---

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
  EXPECT_EQ(Text("cmb7aBillingRate"), "(none)");
  EXPECT_EQ(Row("grd7Table"), 0);
  SelectRow("grd7Table", 1);
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

// --- Billing Rate Alias ---

class AliasRatesTest : public InvoicingDesk {
 protected:
  void SetUp() override {
    InvoicingDesk::SetUp();
    for (const char* library : {"71, 'ASKS'", "72, 'GIVES'"})
      Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (" + QString(library) +
              ", 'Institution')");
    for (const char* unit : {"EAST", "WEST"})
      Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE) VALUES (72, '" + QString(unit) + "')");
  }
  void Store(const QString& unit, const QString& billingRate) {
    Another(
        "INSERT INTO ID_RATE_ALIAS (LIBRARY_ID, SUPPLIER_LIBRARY_ID, SUPPLIER_CODE, BILLING_RATE) VALUES (71, 72, " +
        unit + ", '" + billingRate + "')");
  }
  void Enter() {
    InvoicingDesk::Enter();
    Pick("Billing Rate Alias");
  }
  void Fill(const QString& unit) {
    Choose("cmb7aBillingRate", "GIVES");
    Choose("cmb7aDeliveryMethod", unit);
    Choose("cmb7RequestingLibrary", "ASKS");
    Choose("cmb7Alias", "Companies");
  }
  int RowOf(const QString& unit) { return Find<Grid>("grd7Table")->FindRow({{2, "GIVES"}, {3, unit}, {4, "ASKS"}}); }
};

TEST_F(AliasRatesTest, TheThreeListsAreTestedInTheirOrder) {
  Enter();
  for (const char* button : {"cmdAdd", "cmdUpdate"}) {
    for (const char* list : {"cmb7aBillingRate", "cmb7RequestingLibrary", "cmb7Alias"}) ChooseAt(list, 0);
    Refused("Please select a Valid Supplying Library.", 48, button, "cmb7aBillingRate");
    Choose("cmb7aBillingRate", "GIVES");
    Refused("Please select a Valid Requesting Library.", 48, button, "cmb7RequestingLibrary");
    Choose("cmb7RequestingLibrary", "ASKS");
    Refused("Please select a Valid Billing Rate Alias.", 48, button, "cmb7Alias");
  }
}

TEST_F(AliasRatesTest, TheUnitsAreThoseOfTheSupplyingLibrary) {
  Enter();
  EXPECT_EQ(Find<CodeComboBox>("cmb7aDeliveryMethod")->Count(), 1);
  Choose("cmb7aBillingRate", "GIVES");
  const auto* const units = Find<CodeComboBox>("cmb7aDeliveryMethod");
  EXPECT_EQ(Statements(),
            QStringList{"SELECT   SUPPLIER_CODE FROM ID_SUPPLIER WHERE    LIBRARY_ID = 72 ORDER BY SUPPLIER_CODE"});
  ASSERT_EQ(units->Count(), 3);
  EXPECT_EQ(units->TextAt(0), "(none)");
  EXPECT_EQ(units->TextAt(1), "EAST");
  Choose("cmb7aBillingRate", "ASKS");
  EXPECT_EQ(units->Count(), 1);
}

TEST_F(AliasRatesTest, AddStoresTheIdsOfBothLibrariesAndTheUnit) {
  Enter();
  Fill("EAST");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_RATE_ALIAS (LIBRARY_ID, SUPPLIER_LIBRARY_ID, SUPPLIER_CODE, "
                                   "BILLING_RATE) VALUES (71, 72, 'EAST', 'C')"});
  ASSERT_GT(RowOf("EAST"), 0);
  EXPECT_EQ(Row("grd7Table"), RowOf("EAST"));
  EXPECT_EQ(Cell("grd7Table", RowOf("EAST"), 5), "Companies");
  EXPECT_EQ(Text("cmb7aDeliveryMethod"), "EAST");
}

TEST_F(AliasRatesTest, WithoutAUnitNullIsStoredOnceForAPairOfLibraries) {
  Enter();
  Fill("(none)");
  Done("Record Added", "cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_RATE_ALIAS (LIBRARY_ID, SUPPLIER_LIBRARY_ID, SUPPLIER_CODE, "
                                   "BILLING_RATE) VALUES (71, 72, NULL, 'C')"});
  EXPECT_EQ(Cell("grd7Table", Row("grd7Table"), 3), "");
  Refused("This record already exists", 48, "cmdAdd", "cmb7aBillingRate");
}

TEST_F(AliasRatesTest, UpdateFindsABlankUnitByIsNull) {
  Store("NULL", "A");
  Store("'WEST'", "A");
  Enter();
  SelectRow("grd7Table", RowOf(""));
  EXPECT_EQ(Text("cmb7aBillingRate"), "GIVES");
  EXPECT_EQ(Text("cmb7aDeliveryMethod"), "(none)");
  EXPECT_EQ(Text("cmb7RequestingLibrary"), "ASKS");
  EXPECT_EQ(Text("cmb7Alias"), "Academic libraries");
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  Choose("cmb7Alias", "No charge");
  Statements();
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_RATE_ALIAS SET BILLING_RATE = 'N' WHERE LIBRARY_ID = 71 AND "
                                   "SUPPLIER_LIBRARY_ID = 72 AND SUPPLIER_CODE IS NULL"});
  EXPECT_EQ(Cell("grd7Table", RowOf("WEST"), 5), "Academic libraries");
}

TEST_F(AliasRatesTest, UpdateOfAnotherUnitIsNotFound) {
  Store("'WEST'", "A");
  Enter();
  SelectRow("grd7Table", RowOf("WEST"));
  EXPECT_EQ(Text("cmb7aDeliveryMethod"), "WEST");
  Choose("cmb7Alias", "No charge");
  Done("Record Updated", "cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_RATE_ALIAS SET BILLING_RATE = 'N' WHERE LIBRARY_ID = 71 AND "
                                   "SUPPLIER_LIBRARY_ID = 72 AND SUPPLIER_CODE = 'WEST'"});
  Fill("EAST");
  Refused("This Code does not exist in the table. Please select a Valid Code to Update.", 16, "cmdUpdate",
          "cmb7aBillingRate");
}

TEST_F(AliasRatesTest, DeleteOfABlankUnitUsesIsNull) {
  Store("NULL", "A");
  Enter();
  AnswerDelete(MessageAnswer::Yes);
  Done("Record Deleted", "cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_RATE_ALIAS WHERE LIBRARY_ID = 71 AND SUPPLIER_LIBRARY_ID = 72 AND "
                                   "SUPPLIER_CODE IS NULL"});
  EXPECT_EQ(Count("ID_RATE_ALIAS", "LIBRARY_ID = 71"), 0);
}

TEST_F(AliasRatesTest, DeleteNeedsBothLibrariesAndTheBillingRateOfTheRow) {
  Store("'WEST'", "A");
  Enter();
  SelectRow("grd7Table", RowOf("WEST"));
  Choose("cmb7Alias", "No charge");
  Refused("Please select a valid record from the table.", 16, "cmdDelete", "cmb7aBillingRate");
  ChooseAt("cmb7RequestingLibrary", 0);
  Refused("Please choose a valid record to be Deleted", 48, "cmdDelete", "cmb7RequestingLibrary");
  ChooseAt("cmb7aBillingRate", 0);
  Refused("Please choose a valid record to be Deleted", 48, "cmdDelete", "cmb7aBillingRate");
}

TEST_F(AliasRatesTest, ALibraryThatHasGoneSinceIsRefused) {
  Enter();
  Fill("(none)");
  Another("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 71");
  Refused("Please select a Valid Requesting Library.", 48, "cmdAdd", "cmb7RequestingLibrary");
}

}  // namespace
