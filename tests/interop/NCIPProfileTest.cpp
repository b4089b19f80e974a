#include <QTest>

#include "interop/InteropDesk.h"

namespace {

const QString Caption = "Ostana - NCIP Profile";
const QString Grid1 = "grdNCIPProfile";
const QString Question = "This profile has been updated.\nDo you wish to apply the updates before continuing?";
const QString ClearQuestion = "Are you sure you wish to clear the screen?";
const QString WriteFailed =
    "An error has occurred writing settings to the database.  Please check the log file for more information.";
// Columns of the INSERT.
const QString Into =
    "INSERT INTO ID_NCIP_PROFILE (LIBRARY_ID, NCIP_PROFILE, NCIP_PROFILE_DESC, NCIP_PATRON_TYPE, NCIP_ALLOW_LOAN, "
    "NCIP_ALLOW_COPY, NCIP_SELECT_DELIVERY_C, NCIP_DELIVERY_METHOD_C, NCIP_DELIVERY_ADDRESS_C, "
    "NCIP_SELECT_DELIVERY_L, NCIP_DELIVERY_METHOD_L, NCIP_DELIVERY_ADDRESS_L, FILE_FORMAT, MSG_FORMAT, "
    "BILLING_TYPE, BILLING_RATE, LOAN_CODE) VALUES (";

class NCIPProfileTest : public InteropDesk {
 protected:
  void SetUp() override {
    InteropDesk::SetUp();
    for (const char* row : {"101, 'M', 'Main desk'", "101, 'N', 'North desk'", "202, 'S', 'Server desk'"})
      Another(QString("INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES (") +
              row + ")");
  }
  // `copy` and `loan`: allow, select, method, address.
  void AddProfile(const QString& code, const QString& copy = "'Y', 'Y', NULL, NULL",
                  const QString& loan = "'Y', 'Y', NULL, NULL", qint32 library = Own) {
    Another(
        "INSERT INTO ID_NCIP_PROFILE (LIBRARY_ID, NCIP_PROFILE, NCIP_PROFILE_DESC, NCIP_PATRON_TYPE, "
        "NCIP_ALLOW_COPY, NCIP_SELECT_DELIVERY_C, NCIP_DELIVERY_METHOD_C, NCIP_DELIVERY_ADDRESS_C, NCIP_ALLOW_LOAN, "
        "NCIP_SELECT_DELIVERY_L, NCIP_DELIVERY_METHOD_L, NCIP_DELIVERY_ADDRESS_L, FILE_FORMAT, MSG_FORMAT, "
        "BILLING_TYPE, BILLING_RATE, LOAN_CODE) VALUES (" +
        QString::number(library) + ", '" + code + "', '" + code + " desc', 'FA', " + copy + ", " + loan +
        ", 'T', 'H', 'I', 'A', NULL)");
  }
  void OpenProfiles() {
    gbSettingsChanged = false;
    Open("frmNCIPProfile");
    Statements();
  }
  void Fill(const QString& code, const QString& description = "Some users") {
    Type("txtProfileCode", code);
    Type("txtDescription", description);
  }
  void Refused(const QString& button, const QString& text, const QString& focus) {
    Prompt().ExpectTitled(text, 16, Caption);
    Click(button);
    EXPECT_EQ(Focus(), focus);
  }
  void CloseAndStore() {
    Prompt().ExpectTitled("Settings updated.", 64, Caption);
    Click("cmdClose");
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(gbSettingsChanged);
  }
  QString Profiles(qint32 library = Own) {
    Recordset rows;
    rows.Open(Database().OtherClient(), "SELECT NCIP_PROFILE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = " +
                                            QString::number(library) + " ORDER BY NCIP_PROFILE");
    QStringList codes;
    for (; !rows.EOF_(); rows.MoveNext()) codes.append(rows.Fields(0).Value());
    return codes.join(" ");
  }
};

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

// --- Leaving an edited row ---

TEST_F(NCIPProfileTest, YesWritesTheRowThatWasOnShow) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  Type("txtDescription", "edited");
  Prompt().ExpectTitled(Question, 36, Caption, MessageAnswer::Yes);
  SelectRowOf(Grid1, "B");
  EXPECT_EQ(Text("txtProfileCode"), "B");
  const auto* const grid = Find<Grid>(Grid1);
  EXPECT_GT(grid->FindRow({{1, "A"}, {2, "edited"}}), 0);
  EXPECT_GT(grid->FindRow({{1, "B"}, {2, "B desc"}}), 0);
  EXPECT_TRUE(gbSettingsChanged);
  SelectRowOf(Grid1, "A");
}

TEST_F(NCIPProfileTest, YesFindsTheRowAlsoWhenTheGridWasSortedMeanwhile) {
  AddProfile("A");
  AddProfile("B");
  AddProfile("C");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  Type("txtDescription", "edited");
  SortBy(Grid1, 1);
  SortBy(Grid1, 1);
  EXPECT_EQ(Cell(Grid1, 3, 1), "A");
  Prompt().Expect(Question, 36, MessageAnswer::Yes);
  SelectRowOf(Grid1, "C");
  EXPECT_EQ(Cell(Grid1, 3, 2), "edited");
  EXPECT_EQ(Cell(Grid1, 1, 2), "C desc");
}

TEST_F(NCIPProfileTest, NoDropsTheEdits) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "A");
  Choose("cmbPatronType", "Staff");
  Prompt().Expect(Question, 36, MessageAnswer::No);
  SelectRowOf(Grid1, "B");
  SelectRowOf(Grid1, "A");
  EXPECT_EQ(Text("cmbPatronType"), "Faculty");
  EXPECT_FALSE(gbSettingsChanged);
}

TEST_F(NCIPProfileTest, EveryKindOfEditIsAskedAbout) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  const std::vector<std::function<void()>> edits = {
      [this] { Append("txtProfileCode", "x"); },         [this] { Append("txtDescription", "x"); },
      [this] { Choose("cmbPatronType", "Faculty"); },  // a click on the entry that is chosen already counts
      [this] { Choose("cmbLoanCode", "(None)"); },       [this] { Choose("cmbFileFormat", "PDF"); },
      [this] { Choose("cmbMessageFormat", "HTML"); },    [this] { Choose("cmbBillingType", "Invoice"); },
      [this] { Choose("cmbBillingRate", "Companies"); }, [this] { Click("rdAllowCopyYes"); },
      [this] { Click("rdDeliverySelectCopyYes"); },      [this] { Choose("cmbDeliveryMethodCopy", "Pickup"); },
      [this] { Append("txtDeliveryAddressLoan", "x"); }, [this] { Click("rdAllowLoanNo"); },
  };
  for (const auto& edit : edits) {
    SelectRowOf(Grid1, "A");
    edit();
    Prompt().Expect(Question, 36, MessageAnswer::No);
    SelectRowOf(Grid1, "B");
  }
}

TEST_F(NCIPProfileTest, WithoutTheUpdateRightNothingIsAskedButAChangedListIsStillWritten) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  WithoutUpdateRight();
  SelectRowOf(Grid1, "A");
  Type("txtDescription", "dropped");
  SelectRowOf(Grid1, "B");
  Click("cmdDelete");
  Type("txtDescription", "dropped too");
  CloseAndStore();
  EXPECT_EQ(Profiles(), "A");
  EXPECT_EQ(Ask("SELECT NCIP_PROFILE_DESC FROM ID_NCIP_PROFILE"), "A desc");
}

// --- Delete and Clear ---

TEST_F(NCIPProfileTest, DeleteRemovesTheRowAtOnceAndShowsTheFirst) {
  AddProfile("A");
  AddProfile("B");
  OpenProfiles();
  SelectRowOf(Grid1, "B");
  Type("txtDescription", "edited");
  Click("cmdDelete");
  EXPECT_EQ(Rows(Grid1), 2);
  EXPECT_EQ(Text("txtProfileCode"), "A");
  EXPECT_TRUE(gbSettingsChanged);
  Click("cmdDelete");
  EXPECT_EQ(Text("txtProfileCode"), "");
  EXPECT_EQ(Text("cmbFileFormat"), "PDF");
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(NCIPProfileTest, AnEmptyGridDeletesAllProfilesOfTheLibraryAndInsertsNone) {
  AddProfile("A");
  AddProfile("S", "'Y', 'Y', NULL, NULL", "'Y', 'Y', NULL, NULL", Server);
  OpenProfiles();
  Click("cmdDelete");
  CloseAndStore();
  EXPECT_EQ(Statements(), QStringList{"DELETE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = 101"});
  EXPECT_EQ(Profiles(), "");
  EXPECT_EQ(Profiles(Server), "S");
}

TEST_F(NCIPProfileTest, ClearAloneMakesTheCloseRewriteTheTable) {
  AddProfile("A", "'Y', 'Y', 'P', 'M'", "'N', 'N', 'F', '123'");
  OpenProfiles();
  Prompt().ExpectTitled(ClearQuestion, 36, Caption, MessageAnswer::Yes);
  Click("cmdClear");
  EXPECT_EQ(Text("txtProfileCode"), "");
  EXPECT_TRUE(IsEnabled("cmbDeliveryMethodLoan"));
  EXPECT_FALSE(IsShown("cmbPickupLocationCopy"));
  EXPECT_EQ(Rows(Grid1), 2);
  EXPECT_TRUE(gbSettingsChanged);
  CloseAndStore();
  EXPECT_EQ(Writing(),
            (QStringList{"DELETE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = 101",
                         Into + "101, N'A', N'A desc', N'FA', N'N', N'Y', N'Y', N'P', N'M', N'N', N'F', N'123', N'T', "
                                "N'H', N'I', N'A', NULL)"}));
}

TEST_F(NCIPProfileTest, ClearAnsweredNoKeepsTheScreenAndStillCountsAsAChange) {
  AddProfile("A");
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().Expect(Question, 36, MessageAnswer::No).Expect(ClearQuestion, 36, MessageAnswer::No);
  Click("cmdClear");
  EXPECT_EQ(Text("txtDescription"), "edited");
  EXPECT_TRUE(gbSettingsChanged);
  CloseAndStore();
  EXPECT_EQ(Ask("SELECT NCIP_PROFILE_DESC FROM ID_NCIP_PROFILE"), "A desc");
}

TEST_F(NCIPProfileTest, ClearAfterYesUpdatesTheRowFirst) {
  AddProfile("A");
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().Expect(Question, 36, MessageAnswer::Yes).Expect(ClearQuestion, 36, MessageAnswer::Yes);
  Click("cmdClear");
  EXPECT_EQ(Cell(Grid1, 1, 2), "edited");
  EXPECT_EQ(Text("txtDescription"), "");
}

// --- Closing ---

TEST_F(NCIPProfileTest, NothingIsWrittenWhenNothingChanged) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(NCIPProfileTest, AnEditedRowIsAskedAboutWhenTheScreenCloses) {
  AddProfile("A");
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().ExpectTitled(Question, 36, Caption, MessageAnswer::No);
  Click("cmdClose");
  EXPECT_TRUE(Statements().isEmpty());
  OpenProfiles();
  Type("txtDescription", "edited");
  Prompt().Expect(Question, 36, MessageAnswer::Yes);
  CloseAndStore();
  EXPECT_EQ(Ask("SELECT NCIP_PROFILE_DESC FROM ID_NCIP_PROFILE"), "edited");
}

TEST_F(NCIPProfileTest, CancelAndTheWindowsOwnCloseButtonLoseTheList) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdDelete");
  Click("cmdCancel");
  EXPECT_FALSE(IsOpen());
  OpenProfiles();
  Click("cmdDelete");
  Window()->close();
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_EQ(Profiles(), "A");
}

// The row of the grid that holds another row's key.
class NCIPProfileFailureTest : public NCIPProfileTest, public testing::WithParamInterface<int> {};

TEST_P(NCIPProfileFailureTest, ADuplicateMadeByUpdateRollsBackAndKeepsTheUsersList) {
  for (const char* code : {"A", "B", "C"}) AddProfile(code);
  OpenProfiles();
  SortBy(Grid1, 1);
  SelectRow(Grid1, GetParam());
  Fill(GetParam() == 1 ? "B" : "A", "twice");
  Click("cmdUpdate");
  Prompt().ExpectTitled(WriteFailed, 16, Caption);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_TRUE(gbSettingsChanged);
  EXPECT_EQ(Cell(Grid1, GetParam(), 2), "twice");
  EXPECT_EQ(Profiles(), "A B C");
  EXPECT_EQ(Count("ID_NCIP_PROFILE", "NCIP_PROFILE_DESC = 'twice'"), 0);
  const QString line = LogLines().last().mid(24);
  EXPECT_TRUE(
      line.startsWith("* frmNCIPProfile.cmdClose_Click - ***** SQL error on ID_NCIP_PROFILE (Update) ***** - "
                      "INSERT INTO ID_NCIP_PROFILE ("))
      << line.toStdString();
  EXPECT_TRUE(line.contains(" - -2147217873 - ")) << line.toStdString();
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  Type("txtProfileCode", "MENDED");
  Click("cmdUpdate");
  CloseAndStore();
  EXPECT_EQ(Count("ID_NCIP_PROFILE", "LIBRARY_ID = 101"), 3);
}

TEST_P(NCIPProfileFailureTest, ARowThatAnotherClientForbidsLeavesTheOldRows) {
  for (const char* code : {"A", "B", "C"}) AddProfile(code);
  Another("CREATE UNIQUE INDEX ID_TEST_ONE_DESC ON ID_NCIP_PROFILE (NCIP_PROFILE_DESC)");
  OpenProfiles();
  SortBy(Grid1, 1);
  SelectRow(Grid1, GetParam());
  Type("txtDescription", "S desc");
  Click("cmdUpdate");
  AddProfile("S", "'Y', 'Y', NULL, NULL", "'Y', 'Y', NULL, NULL", Server);
  Prompt().ExpectTitled(WriteFailed, 16, Caption);
  Statements();
  Click("cmdClose");
  EXPECT_EQ(Statements().size(), 1 + GetParam()) << "the delete and the rows up to the one that failed";
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Profiles(), "A B C");
}

INSTANTIATE_TEST_SUITE_P(FirstMiddleLast, NCIPProfileFailureTest, testing::Values(1, 2, 3));

TEST_F(NCIPProfileTest, AFailedDeleteIsLoggedUnderTheOtherTablesName) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdDelete");
  Another("ALTER TABLE ID_NCIP_PROFILE RENAME TO ID_NCIP_PROFILE_GONE");
  Prompt().Expect(WriteFailed, 16);
  Click("cmdClose");
  EXPECT_TRUE(
      LogLines().last().contains("* frmNCIPProfile.cmdClose_Click - ***** SQL error on ID_NCIP_STATUS "
                                 "(Delete) ***** - DELETE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = 101 - "));
  EXPECT_EQ(Count("ID_NCIP_PROFILE_GONE"), 1);
}

TEST_F(NCIPProfileTest, ADroppedConnectionIsOpenedAgainForTheClose) {
  AddProfile("A");
  OpenProfiles();
  Click("cmdDelete");
  gclsOF->Connection().Close();
  CloseAndStore();
  EXPECT_EQ(Profiles(), "");
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
