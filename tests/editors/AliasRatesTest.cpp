// Rate table "Billing Rate Alias": two libraries, an optional unit.
#include "editors/InvoicingDesk.h"

namespace {

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

TEST_F(AliasRatesTest, AnAliasOfAnotherClientIsRefusedByTheDatabase) {
  Enter();
  Store("'EAST'", "A");
  Fill("EAST");
  Prompt().Expect(DatabaseError, 16);
  Click("cmdAdd");
  EXPECT_TRUE(LogLines().join('\n').contains("***** SQL error on OSTANA.ID_RATE_ALIAS (INSERT INTO) *****"));
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

TEST_F(AliasRatesTest, ALibraryThatHasGoneSinceIsRefused) {
  Enter();
  Fill("(none)");
  Another("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 71");
  Refused("Please select a Valid Requesting Library.", 48, "cmdAdd", "cmb7RequestingLibrary");
}

}  // namespace
