#include "interop/NCIPProfileDesk.h"

namespace {

class NCIPProfileTest : public NCIPProfileDesk {};

// --- Loading ---

TEST_F(NCIPProfileTest, TheListsAreReadInThisOrderForTheLibraryInHand) {
  Open("frmNCIPProfile");
  EXPECT_EQ(Statements(),
            (QStringList{"SELECT   PATRON_TYPE, PATRON_TYPE_DESC FROM ID_PATRON_TYPE",
                         "SELECT LOAN_CODE, LOAN_CODE_DESC FROM ID_LOAN_CODE ORDER BY LOAN_CODE_DESC",
                         "SELECT * FROM ID_FILE_FORMAT", "SELECT * FROM ID_MSG_FORMAT", "SELECT * FROM ID_BILLING_TYPE",
                         "SELECT BILLING_RATE, BILLING_RATE_DESC FROM ID_BILLING_RATE ORDER BY BILLING_RATE_DESC",
                         "SELECT   DELIV_METHOD, DELIV_METHOD_DESC FROM ID_DELIV_METHOD",
                         "SELECT   DELIV_METHOD, DELIV_METHOD_DESC FROM ID_DELIV_METHOD",
                         "SELECT   PICKUP_LOCATION, PICKUP_LOCATION_DESC FROM ID_PICKUP_LOCATION WHERE    "
                         "LIBRARY_ID = 101 ORDER BY PICKUP_LOCATION_DESC",
                         "SELECT   * FROM ID_NCIP_PROFILE WHERE    LIBRARY_ID = 101"}));
  for (const char* box : {"cmbPickupLocationCopy", "cmbPickupLocationLoan"}) {
    const auto* const pickup = Find<CodeComboBox>(box);
    ASSERT_EQ(pickup->Count(), 3) << box;
    EXPECT_EQ(pickup->TextAt(0), "(None)");
    EXPECT_EQ(pickup->CodeAt(2), "N");
  }
}

TEST_F(NCIPProfileTest, WithoutARowTheScreenIsCleared) {
  OpenProfiles();
  for (const char* box : {"txtProfileCode", "txtDescription", "txtDeliveryAddressCopy", "txtDeliveryAddressLoan"})
    EXPECT_EQ(Text(box), "") << box;
  for (const char* box : {"cmbPatronType", "cmbLoanCode", "cmbBillingType", "cmbBillingRate", "cmbDeliveryMethodCopy",
                          "cmbDeliveryMethodLoan"})
    EXPECT_EQ(Text(box), "(None)") << box;
  EXPECT_EQ(Text("cmbFileFormat"), "PDF");
  EXPECT_EQ(Text("cmbMessageFormat"), "Plain text");
  for (const char* option : {"rdAllowCopyYes", "rdDeliverySelectCopyYes", "rdAllowLoanYes", "rdDeliverySelectLoanYes"})
    EXPECT_TRUE(IsChecked(option)) << option;
  for (const char* box : {"cmbPickupLocationCopy", "cmbPickupLocationLoan"}) EXPECT_FALSE(IsShown(box)) << box;
  for (const char* box : {"txtDeliveryAddressCopy", "txtDeliveryAddressLoan"}) EXPECT_TRUE(IsShown(box)) << box;
  Refused("cmdDelete", "Please select a row to delete.", Grid1);
  Prompt().ExpectTitled("There are currently no rows to Update.", 16, Caption);
  Click("cmdUpdate");
}

TEST_F(NCIPProfileTest, TheGridShowsWhatTheUserSees) {
  AddProfile("A", "'N', 'Y', 'E', 'a@example.org'", "NULL, 'N', 'P', 'N'");
  OpenProfiles();
  const QStringList headings = {"",
                                "Profile Code",
                                "Description",
                                "Patron Type",
                                "Loan Code",
                                "File Format",
                                "Message Format",
                                "Billing Type",
                                "Billing Rate",
                                "Allow Copy",
                                "Delivery Select Copy",
                                "Delivery Method Copy",
                                "Delivery Address Copy",
                                "Allow Loan",
                                "Delivery Select Loan",
                                "Delivery Method Loan",
                                "Delivery Address Loan"};
  const std::vector<int> widths = {255, 1200, 1515, 1635, 1545, 1995, 1995, 1095, 1095,
                                   900, 1605, 1770, 1995, 900,  1605, 1770, 1995};
  const QStringList cells = {"",
                             "A",
                             "A desc",
                             "Faculty",
                             "(None)",
                             "TIFF, several pages",
                             "HTML",
                             "Invoice",
                             "Academic libraries",
                             "No",
                             "Yes",
                             "E-mail",
                             "a@example.org",
                             "Yes",
                             "No",
                             "Pickup",
                             "North desk"};
  const auto* const grid = Find<Grid>(Grid1);
  ASSERT_EQ(grid->Cols(), 17);
  for (int col = 0; col < 17; ++col) {
    EXPECT_EQ(grid->Text(0, col), headings[col]) << col;
    EXPECT_EQ(grid->Text(1, col), cells[col]) << col;
    EXPECT_EQ(grid->ColWidth(col), widths[static_cast<size_t>(col)]) << col;
  }
  // The first row is on show.
  EXPECT_EQ(Text("txtProfileCode"), "A");
  EXPECT_EQ(Text("cmbPatronType"), "Faculty");
  EXPECT_TRUE(IsChecked("rdAllowCopyNo"));
  EXPECT_TRUE(IsChecked("rdAllowLoanYes"));
  EXPECT_TRUE(IsChecked("rdDeliverySelectLoanNo"));
}

TEST_F(NCIPProfileTest, TheNoOfAnAllowedKindDisablesItsGroup) {
  AddProfile("A", "'N', 'Y', 'E', 'a@example.org'", "'Y', 'Y', NULL, NULL");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  for (const char* control :
       {"rdDeliverySelectCopyYes", "rdDeliverySelectCopyNo", "cmbDeliveryMethodCopy", "txtDeliveryAddressCopy"})
    EXPECT_FALSE(IsEnabled(control)) << control;
  EXPECT_EQ(Text("txtDeliveryAddressCopy"), "a@example.org");
  EXPECT_TRUE(IsEnabled("cmbDeliveryMethodLoan"));
  SelectRowOf(Grid1, "B");
  EXPECT_TRUE(IsEnabled("cmbDeliveryMethodCopy"));
}

TEST_F(NCIPProfileTest, ACodeWhoseRowIsGoneShowsAsItselfAndIsWrittenBack) {
  AddProfile("A", "'Y', 'N', 'Q', 'anything'", "'Y', 'Y', 'P', 'Z'");
  Another("UPDATE ID_NCIP_PROFILE SET NCIP_PATRON_TYPE = 'XX', BILLING_RATE = 'Z'");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  EXPECT_EQ(Text("cmbPatronType"), "XX");
  EXPECT_EQ(Text("cmbDeliveryMethodCopy"), "Q");
  EXPECT_EQ(Text("cmbPickupLocationLoan"), "Z");
  EXPECT_EQ(Cell(Grid1, Row(Grid1), 16), "Z");
  SelectRowOf(Grid1, "B");
  Click("cmdDelete");
  SelectRowOf(Grid1, "A");
  Click("cmdUpdate");
  CloseAndStore();
  EXPECT_EQ(Writing().value(1), Into +
                                    "101, N'A', N'A desc', N'XX', N'Y', N'Y', N'N', N'Q', NULL, N'Y', N'P', N'Z', "
                                    "N'T', N'H', N'I', N'Z', NULL)")
      << "a method without an address drops it";
}

TEST_F(NCIPProfileTest, EqualDescriptionsKeepTheirCodes) {
  Another("UPDATE ID_PATRON_TYPE SET PATRON_TYPE_DESC = 'Reader' WHERE PATRON_TYPE IN ('EX', 'FA')");
  Another("UPDATE ID_BILLING_RATE SET BILLING_RATE_DESC = NULL WHERE BILLING_RATE = 'A'");
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  EXPECT_EQ(Text("cmbPatronType"), "Reader");
  Click("cmdDelete");
  SortBy(Grid1, 3);
  CloseAndStore();
  EXPECT_TRUE(Writing().value(1).contains("N'B desc', N'FA', "));
  EXPECT_EQ(Count("ID_NCIP_PROFILE", "BILLING_RATE = 'A'"), 1);
}

TEST_F(NCIPProfileTest, AFailedLoadIsTold) {
  gclsOF->SetLanguageSuffix("_XXX");
  Prompt().ExpectTitled("An error has occurred loading the form.  Please Notify Support.", 16, Caption);
  Open("frmNCIPProfile");
  EXPECT_EQ(Logged("* ***** SQL error on ID_PATRON_TYPE (Select) *****").size(), 1);
}

// --- Rules of the delivery controls ---

class NCIPProfileDeliveryTest : public NCIPProfileTest, public testing::WithParamInterface<const char*> {
 protected:
  QString Of(const QString& name) const { return QString(name).arg(GetParam()); }
};

TEST_P(NCIPProfileDeliveryTest, NotAllowingAKindEmptiesAndDisablesItsDelivery) {
  OpenProfiles();
  Choose(Of("cmbDeliveryMethod%1"), "Pickup");
  EXPECT_TRUE(IsShown(Of("cmbPickupLocation%1")));
  EXPECT_FALSE(IsShown(Of("txtDeliveryAddress%1")));
  Choose(Of("cmbPickupLocation%1"), "Main desk");
  Click(Of("rdAllow%1No"));
  EXPECT_EQ(Text(Of("cmbDeliveryMethod%1")), "(None)");
  EXPECT_FALSE(IsShown(Of("cmbPickupLocation%1"))) << "the method box's own logic";
  EXPECT_TRUE(IsShown(Of("txtDeliveryAddress%1")));
  for (const char* control : {"rdDeliverySelect%1Yes", "rdDeliverySelect%1No", "cmbDeliveryMethod%1",
                              "txtDeliveryAddress%1", "cmbPickupLocation%1"})
    EXPECT_FALSE(IsEnabled(Of(control))) << control;
  Click(Of("rdAllow%1Yes"));
  for (const char* control : {"rdDeliverySelect%1Yes", "rdDeliverySelect%1No", "cmbDeliveryMethod%1",
                              "txtDeliveryAddress%1", "cmbPickupLocation%1"})
    EXPECT_TRUE(IsEnabled(Of(control))) << control;
}

TEST_P(NCIPProfileDeliveryTest, TheMethodDecidesWhichBoxShows) {
  OpenProfiles();
  Choose(Of("cmbDeliveryMethod%1"), "E-mail");
  Type(Of("txtDeliveryAddress%1"), "a@example.org");
  Choose(Of("cmbDeliveryMethod%1"), "Pickup");
  EXPECT_TRUE(IsShown(Of("cmbPickupLocation%1")));
  Choose(Of("cmbDeliveryMethod%1"), "Fax");
  EXPECT_EQ(Text(Of("txtDeliveryAddress%1")), "a@example.org");
  EXPECT_FALSE(IsShown(Of("cmbPickupLocation%1")));
  Choose(Of("cmbDeliveryMethod%1"), "(None)");
  EXPECT_EQ(Text(Of("txtDeliveryAddress%1")), "");
  EXPECT_TRUE(IsShown(Of("txtDeliveryAddress%1")));
}

TEST_P(NCIPProfileDeliveryTest, AMethodMustBeGivenWhenTheRequesterDoesNotSelect) {
  OpenProfiles();
  Fill("A");
  Click(Of("rdDeliverySelect%1No"));
  Refused("cmdAdd", Of("Delivery method (%1) is required when Delivery Select is set to No."),
          Of("cmbDeliveryMethod%1"));
}

struct AddressCase {
  const char* method;
  const char* address;
  const char* reason;  // empty: it passes
  const char* stored;  // as it stands in the INSERT
};

TEST_P(NCIPProfileDeliveryTest, AddressesAreTestedByTheirMethod) {
  const AddressCase cases[] = {
      {"Ariel", "ariel.example.org:422", "", "N'ariel.example.org:422'"},
      {"Ariel", "[2001:db8::1]:422", "", "N'[2001:db8::1]:422'"},
      {"Ariel", "a@example.org", "", "N'a@example.org'"},
      {"Ariel", "1.2.3", "'1.2.3' is not a network address: four numbers from 0 to 255, joined by points, are needed.",
       ""},
      {"Ariel", "a@b", "The part of the E-mail address behind the '@' is not valid.", ""},
      {"Docview", "a@example.org", "'a@example.org' is not the name of a host.", ""},
      {"Docview", "docview.example.org", "", "N'docview.example.org'"},
      {"E-mail", "nobody", "The E-mail address must hold one '@'.", ""},
      {"Secure electronic", "nobody", "The E-mail address must hold one '@'.", ""},
      {"Web link", "nobody", "The E-mail address must hold one '@'.", ""},
      {"Web link", "a@example.org", "", "N'a@example.org'"},
      {"E-mail", "", "", "NULL"},
      {"Fax", "not tested: it's", "", "N'not tested: it''s'"},
      {"Mail", "dropped", "", "NULL"},
      {"Odyssey", "odyssey.example.org", "", "NULL"},
      {"(None)", " as typed ", "", "N'as typed'"},
  };
  for (const AddressCase& test : cases) {
    SCOPED_TRACE(std::string(test.method) + " " + test.address);
    OpenProfiles();
    Fill("A");
    Choose(Of("cmbDeliveryMethod%1"), test.method);
    Type(Of("txtDeliveryAddress%1"), test.address);
    if (*test.reason) {
      Refused("cmdAdd", QString("The Delivery Address is not valid.\n\n") + test.reason, Of("txtDeliveryAddress%1"));
      EXPECT_EQ(Rows(Grid1), 1);
      Click("cmdCancel");
      continue;
    }
    Click("cmdAdd");
    EXPECT_EQ(Rows(Grid1), 2);
    const QString code = Find<CodeComboBox>(Of("cmbDeliveryMethod%1"))->CodeOf(test.method);
    CloseAndStore();
    const QString values = Writing().value(1).mid(Into.size());
    const QString method = code.isNull() ? QString("NULL") : "N'" + code + "'";
    const QString other = "N'Y', NULL, NULL";
    const QString tested = "N'Y', " + method + ", " + test.stored;
    const bool copy = GetParam() == std::string("Copy");
    EXPECT_EQ(values, "101, N'A', N'Some users', NULL, N'Y', N'Y', " + (copy ? tested : other) + ", " +
                          (copy ? other : tested) + ", N'P', N'T', NULL, NULL, NULL)");
    Another("DELETE FROM ID_NCIP_PROFILE");
  }
}

TEST_P(NCIPProfileDeliveryTest, APickupMethodStoresTheLocationAndIgnoresTheAddressBox) {
  OpenProfiles();
  Fill("A");
  Choose(Of("cmbDeliveryMethod%1"), "Fax");
  Type(Of("txtDeliveryAddress%1"), "ignored");
  Choose(Of("cmbDeliveryMethod%1"), "Pickup");
  Click("cmdAdd");
  const int cell = GetParam() == std::string("Copy") ? 12 : 16;
  EXPECT_EQ(Cell(Grid1, 1, cell), "");
  Fill("B");
  Choose(Of("cmbPickupLocation%1"), "North desk");
  Click("cmdAdd");
  EXPECT_EQ(Cell(Grid1, 2, cell), "North desk");
  CloseAndStore();
  const QString column = QString("NCIP_DELIVERY_ADDRESS_") + GetParam()[0];
  EXPECT_EQ(Count("ID_NCIP_PROFILE", "NCIP_PROFILE = 'A' AND " + column + " IS NULL"), 1);
  EXPECT_EQ(Count("ID_NCIP_PROFILE", "NCIP_PROFILE = 'B' AND " + column + " = 'N'"), 1);
}

INSTANTIATE_TEST_SUITE_P(BothKinds, NCIPProfileDeliveryTest, testing::Values("Copy", "Loan"));

TEST_F(NCIPProfileTest, AllowCopyNoIsStoredWithoutMethodAndAddress) {
  AddProfile("A", "'Y', 'Y', 'E', 'a@example.org'", "'Y', 'Y', NULL, NULL");
  OpenProfiles();
  Click("rdAllowCopyNo");
  Click("cmdUpdate");
  CloseAndStore();
  EXPECT_EQ(Writing(),
            (QStringList{"DELETE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = 101",
                         Into + "101, N'A', N'A desc', N'FA', N'Y', N'N', N'Y', NULL, NULL, N'Y', NULL, NULL, N'T', "
                                "N'H', N'I', N'A', NULL)"}));
}

// --- Add ---

TEST_F(NCIPProfileTest, AddTestsInItsOwnOrder) {
  OpenProfiles();
  Click("rdDeliverySelectCopyNo");
  Click("rdDeliverySelectLoanNo");
  Type("txtProfileCode", "  ");
  Refused("cmdAdd", "Profile Code is a required field.", "txtProfileCode");
  Type("txtProfileCode", " a ");
  Type("txtDescription", "  ");
  Refused("cmdAdd", "Description is a required field.", "txtDescription");
  EXPECT_EQ(Text("txtProfileCode"), "A");
  Type("txtDescription", " d ");
  Refused("cmdAdd", "Delivery method (Copy) is required when Delivery Select is set to No.", "cmbDeliveryMethodCopy");
  Choose("cmbDeliveryMethodCopy", "E-mail");
  Type("txtDeliveryAddressCopy", " x ");
  Refused("cmdAdd", "The Delivery Address is not valid.\n\nThe E-mail address must hold one '@'.",
          "txtDeliveryAddressCopy");
  EXPECT_EQ(Text("txtDeliveryAddressCopy"), "x");
  Type("txtDeliveryAddressCopy", "");
  Refused("cmdAdd", "Delivery method (Loan) is required when Delivery Select is set to No.", "cmbDeliveryMethodLoan");
  Choose("cmbDeliveryMethodLoan", "Docview");
  Type("txtDeliveryAddressLoan", "x:99999");
  Refused("cmdAdd", "The Delivery Address is not valid.\n\n'99999' is not a port: a number from 0 to 65535 is needed.",
          "txtDeliveryAddressLoan");
  Type("txtDeliveryAddressLoan", "x:65535");
  Click("cmdAdd");
  EXPECT_EQ(Rows(Grid1), 2);
  EXPECT_EQ(Row(Grid1), 1);
  EXPECT_TRUE(gbSettingsChanged);
  Refused("cmdAdd", "NCIP Profile Code: A is already in the grid.", "txtProfileCode");
  EXPECT_EQ(Rows(Grid1), 2);
  EXPECT_TRUE(Statements().isEmpty()) << "the list is in memory";
}

TEST_F(NCIPProfileTest, ACodeIsTypedInCapitals) {
  OpenProfiles();
  Type("txtProfileCode", "under-graduates of 2024 and more");
  EXPECT_EQ(Text("txtProfileCode"), "UNDER-GRADUATES OF 2");
  EXPECT_EQ(Find<TextBox>("txtDescription")->maxLength(), 50);
  EXPECT_EQ(Find<TextBox>("txtDeliveryAddressLoan")->maxLength(), 80);
}

TEST_F(NCIPProfileTest, AnAddedRowIsCurrentAndNothingIsAskedWhenItIsLeft) {
  AddProfile("A");
  OpenProfiles();
  Fill("B");
  Choose("cmbLoanCode", "SHORT LOAN");
  Click("cmdAdd");
  EXPECT_EQ(Row(Grid1), 2);
  EXPECT_EQ(Cell(Grid1, 2, 4), "SHORT LOAN");
  SelectRow(Grid1, 1);
  EXPECT_EQ(Text("txtProfileCode"), "A");
}

// --- Update ---

TEST_F(NCIPProfileTest, UpdateTestsTheMethodsFirstAndLeavesOutABlank) {
  AddProfile("A");
  OpenProfiles();
  Fill("", "");
  Click("rdDeliverySelectCopyNo");
  Click("rdDeliverySelectLoanNo");
  Refused("cmdUpdate", "Delivery method (Copy) is required when Delivery Select is set to No.",
          "cmbDeliveryMethodCopy");
  Choose("cmbDeliveryMethodCopy", "E-mail");
  Type("txtDeliveryAddressCopy", "x");
  Refused("cmdUpdate", "Delivery method (Loan)is required when Delivery Select is set to No.", "cmbDeliveryMethodLoan");
  Choose("cmbDeliveryMethodLoan", "E-mail");
  Type("txtDeliveryAddressLoan", "y");
  Refused("cmdUpdate", "Profile Code is a required field.", "txtProfileCode");
  Type("txtProfileCode", "a2");
  Refused("cmdUpdate", "Description is a required field.", "txtDescription");
  Type("txtDescription", " new ");
  const QString invalid = "The Delivery Address is not valid.\n\nThe E-mail address must hold one '@'.";
  Refused("cmdUpdate", invalid, "txtDeliveryAddressCopy");
  Type("txtDeliveryAddressCopy", "");
  Refused("cmdUpdate", invalid, "txtDeliveryAddressLoan");
  EXPECT_FALSE(gbSettingsChanged);
  Type("txtDeliveryAddressLoan", " l@example.org ");
  Click("cmdUpdate");
  EXPECT_TRUE(gbSettingsChanged);
  EXPECT_EQ(Cell(Grid1, 1, 1), "A2");
  EXPECT_EQ(Cell(Grid1, 1, 2), "new");
  EXPECT_EQ(Cell(Grid1, 1, 10), "No");
  EXPECT_EQ(Cell(Grid1, 1, 16), "l@example.org");
}

// --- Keyboard and looks ---

TEST_F(NCIPProfileTest, TheWholeScreenIsWithinReachOfTheKeyboard) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  EXPECT_EQ(Focus(), "txtProfileCode");
  EXPECT_EQ(TabStops("txtProfileCode", 23), (QStringList{"txtProfileCode",
                                                         "txtDescription",
                                                         "cmbPatronType",
                                                         "cmbLoanCode",
                                                         "cmbFileFormat",
                                                         "cmbMessageFormat",
                                                         "cmbBillingType",
                                                         "cmbBillingRate",
                                                         "rdAllowCopyYes",
                                                         "rdDeliverySelectCopyYes",
                                                         "cmbDeliveryMethodCopy",
                                                         "txtDeliveryAddressCopy",
                                                         "rdAllowLoanYes",
                                                         "rdDeliverySelectLoanYes",
                                                         "cmbDeliveryMethodLoan",
                                                         "txtDeliveryAddressLoan",
                                                         Grid1,
                                                         "cmdAdd",
                                                         "cmdUpdate",
                                                         "cmdDelete",
                                                         "cmdClear",
                                                         "cmdCancel",
                                                         "cmdClose"}));
  SortBy(Grid1, 1);
  Press(Grid1, Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Text("txtProfileCode"), "A");
  Press(Grid1, Qt::Key_Down);
  EXPECT_EQ(Text("txtProfileCode"), "B");
  Press(Grid1, Qt::Key_P, Qt::AltModifier);
  EXPECT_EQ(Focus(), "txtProfileCode");
}

TEST_F(NCIPProfileTest, ItFitsOntoASmallScreen) {
  AddProfile("UNDERGRAD", "'Y', 'N', 'E', 'library.desk@example.org'", "'Y', 'N', 'P', 'M'");
  AddProfile("FACULTY", "'Y', 'Y', NULL, NULL", "'N', 'Y', NULL, NULL");
  OpenProfiles();
  EXPECT_LE(Window()->width(), 1280);
  EXPECT_LE(Window()->height(), 760);
  Picture("frmNCIPProfile-rows");
}

}  // namespace
