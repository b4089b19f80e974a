#include <QLocale>

#include "reference/ReferenceDesk.h"
#include "shell/NumericFields.h"

namespace {

const QString Form = "frmItemType";
const QString Table = "grdItemType";
const QString Access = "grdAccessItemType";
const QString DeleteQuestion = "Are you sure you wish to Delete this record?";
const QString Invalid = "Please enter a valid 3 character Item Type.";
constexpr int Code = 1, Charge = 2, Fixed = 3;

class ItemTypeTest : public ReferenceDesk {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    Another("DELETE FROM ID_ACCESS_ITEM_TYPE");
    Another("DELETE FROM ID_ITEM_TYPE");
    Insert("'BOK', 15, 'Y', 'Book'");
    Insert("'ART', 8.5, 'N', 'Article'");
    Insert("'MIC', NULL, NULL, 'Microform'");
    Another("INSERT INTO ID_ACCESS_ITEM_TYPE VALUES ('LON', 'BOK')");
  }
  void TearDown() override {
    QLocale::setDefault(QLocale::c());
    ReferenceDesk::TearDown();
  }
  void Insert(const QString& values) {
    Another("INSERT INTO ID_ITEM_TYPE (ITEM_TYPE, ITEM_CHARGE, ITEM_CHARGE_FIXED, ITEM_TYPE_DESC) VALUES (" + values +
            ")");
  }
  void OpenIt() {
    Open(Form);
    Statements();
  }
  void Enter(const QString& code, const QString& charge, const QString& description) {
    Type("txtItemType", code);
    Type("txtCharge", charge);
    Type("txtDescription", description);
  }
  void Refused(const QString& button, const QString& text, const QString& focus) {
    Prompt().Expect(text, Say::Stop);
    Click(button);
    EXPECT_EQ(Focus().toStdString(), focus.toStdString());
  }
};

// --- Load ---

TEST_F(ItemTypeTest, LoadFillsBothTabs) {
  Open(Form);
  const QString statements = Statements().join('\n');
  EXPECT_TRUE(statements.contains("SELECT   * FROM ID_ITEM_TYPE ORDER BY ITEM_TYPE_DESC"));
  EXPECT_TRUE(statements.contains("SELECT * FROM ID_ACCESS_GROUP ORDER BY ACCESS_GROUP_DESC"));
  EXPECT_EQ(Window()->windowTitle().toStdString(), "Ostana - Item Type");
  EXPECT_EQ(RowsOf(*Find<Grid>(Table)).join('\n').toStdString(),
            "ART|8.50|N|Article\nBOK|15.00|Y|Book\nMIC|||Microform");
  EXPECT_EQ(Shown("txtItemType"), "");
  SelectRowOf(Table, "BOK");
  Picture("frmItemType");
}

TEST_F(ItemTypeTest, SelectedRowShowsNoForNAndYesOtherwise) {
  OpenIt();
  SelectRowOf(Table, "ART");
  EXPECT_TRUE(IsChecked("optFixedCharge(0)"));
  EXPECT_EQ(Shown("optFixedCharge(0)"), "No");
  SelectRowOf(Table, "BOK");
  EXPECT_TRUE(IsChecked("optFixedCharge(1)"));
  EXPECT_EQ(Shown("optFixedCharge(1)"), "Yes");
  SelectRowOf(Table, "ART");
  SelectRowOf(Table, "MIC");
  EXPECT_TRUE(IsChecked("optFixedCharge(1)")) << "NULL shows Yes";
  EXPECT_EQ(Shown("txtCharge"), "");
}

TEST_F(ItemTypeTest, LoadFailure) {
  Another("DROP TABLE ID_ITEM_TYPE");
  // The grid of the first tab and the list of the second.
  Prompt().Expect("***** SQL error on ID_ITEM_TYPE (Select) *****", Say::Stop);
  Prompt().Expect("***** SQL error on ID_ITEM_TYPE (Select) *****", Say::Stop);
  Open(Form);
  EXPECT_TRUE(Logged("frmItemType.LoadDataInGrid"));
  EXPECT_TRUE(Logged("frmItemType.PopulateAccessGroupCombo"));
}

// --- The charge ---

TEST_F(ItemTypeTest, ChargeIsFormattedOnLeaving) {
  OpenIt();
  Type("txtCharge", "1x2.5");
  EXPECT_EQ(Prompt().Beeps(), 1);
  Press("txtCharge", Qt::Key_Tab);
  EXPECT_EQ(Shown("txtCharge"), "12.50");
  Type("txtCharge", "999.99");
  Press("txtCharge", Qt::Key_Tab);
  EXPECT_NE(Focus().toStdString(), "txtCharge");
}

TEST_F(ItemTypeTest, ChargeAboveTheHighestIsToldAsItWasEntered) {
  OpenIt();
  Type("txtCharge", "1000");
  Prompt().ExpectTitled("1000.00 may not be greater than 999.99", Say::Stop, "Ostana - Item Type");
  Press("txtCharge", Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "txtCharge");
  EXPECT_EQ(Shown("txtCharge"), "1000.0") << "the box holds six characters";
}

TEST_F(ItemTypeTest, NegativeChargeIsRefused) {
  OpenIt();
  Type("txtCharge", "-5");
  Prompt().Expect("-05.00 may not be less than 00.00", Say::Stop);
  Press("txtCharge", Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "txtCharge");
}

TEST_F(ItemTypeTest, ChargeWithADecimalCommaReachesTheTableWithAPoint) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  SetDecimalSeparator();
  OpenIt();
  Enter("CDR", "1,5", "Disc");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  EXPECT_TRUE(QString::fromStdString(Wrote()).contains("VALUES('CDR', 1.50, N'N', 'Disc')"));
  ExpectInStep(Form, Table);
}

// --- First tab: Add ---

TEST_F(ItemTypeTest, AddTestsInOrder) {
  OpenIt();
  Type("txtItemType", "ab");
  Refused("cmdAdd", Invalid, "txtItemType");
  Enter("bok", "", "Other");
  Refused("cmdAdd", "This record already exists", "txtItemType");
  Enter("NEW", "", " Book ");
  Refused("cmdAdd", "This record already exists", "txtDescription");
  Type("txtDescription", " ");
  Refused("cmdAdd", "Please enter a Description.", "txtDescription");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ItemTypeTest, AddWritesTheFlagAsANationalLiteral) {
  OpenIt();
  Enter("ths", "20", "Author's thesis");
  Click("optFixedCharge(1)");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Wrote(),
            "INSERT INTO ID_ITEM_TYPE (ITEM_TYPE, ITEM_CHARGE, ITEM_CHARGE_FIXED, ITEM_TYPE_DESC) "
            "VALUES('THS', 20.00, N'Y', 'Author''s thesis')");
  EXPECT_EQ(Row(Table), 4);
  ExpectInStep(Form, Table);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

TEST_F(ItemTypeTest, NoChargeStoresNullInBothColumnsWhicheverOptionIsChosen) {
  OpenIt();
  int number = 0;
  for (const char* option : {"optFixedCharge(0)", "optFixedCharge(1)"}) {
    ++number;
    Enter(QString("AB%1").arg(number), "", QString("Free %1").arg(number));
    Click(option);
    Prompt().Expect("Record Added", Say::Info);
    Click("cmdAdd");
  }
  EXPECT_EQ(Count("ID_ITEM_TYPE", "ITEM_TYPE LIKE 'AB%' AND ITEM_CHARGE IS NULL AND ITEM_CHARGE_FIXED IS NULL"), 2);
  SelectRowOf(Table, "BOK");
  Type("txtCharge", "");
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Count("ID_ITEM_TYPE", "ITEM_TYPE = 'BOK' AND ITEM_CHARGE IS NULL AND ITEM_CHARGE_FIXED IS NULL"), 1);
  ExpectInStep(Form, Table);
}

TEST_F(ItemTypeTest, AddThatTheDatabaseRefuses) {
  OpenIt();
  Insert("'NEW', NULL, NULL, 'Of another client'");
  Enter("NEW", "", "Mine");
  Prompt().Expect("***** SQL error on ID_ITEM_TYPE (Insert) *****", Say::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Rows(Table), 4);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(Logged("frmItemType.cmdAdd_Click"));
}

// --- First tab: Update ---

TEST_F(ItemTypeTest, UpdateWithoutAChange) {
  OpenIt();
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(ItemTypeTest, UpdateTestsInOrder) {
  OpenIt();
  SelectRowOf(Table, "BOK");
  Type("txtItemType", "BO");
  Refused("cmdUpdate", Invalid, "txtItemType");
  // Set without leaving the box, so that the check of the field does not come first.
  Find<TextBox>("txtCharge")->SetText("1000");
  Type("txtItemType", "NEW");
  Type("txtDescription", "");
  Refused("cmdUpdate", "Maximum Item Charge of 999.99 has been exceeded.", "txtCharge");
  Type("txtCharge", "999.99");
  Refused("cmdUpdate", "Please enter a Description.", "txtDescription");
  Type("txtDescription", "Article");
  Refused("cmdUpdate", "This Item Type does not exist in the system.", "txtItemType");
  Type("txtItemType", "BOK");
  Refused("cmdUpdate", "The Description must be unique.", "txtDescription");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ItemTypeTest, UpdateWritesTheFlagAsAPlainLiteral) {
  OpenIt();
  SelectRowOf(Table, "BOK");
  Type("txtCharge", "999.99");
  Click("optFixedCharge(0)");
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_ITEM_TYPE SET      ITEM_CHARGE = 999.99, ITEM_CHARGE_FIXED = 'N', ITEM_TYPE_DESC = 'Book' "
            "WHERE    ITEM_TYPE = 'BOK'");
  EXPECT_EQ(At(Table, Row(Table), Charge), "999.99");
  EXPECT_EQ(At(Table, Row(Table), Fixed), "N");
  ExpectInStep(Form, Table);
}

TEST_F(ItemTypeTest, ClickOnTheOptionAloneMarksTheRecord) {
  OpenIt();
  SelectRowOf(Table, "ART");
  Click("optFixedCharge(1)");
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Told("SELECT ITEM_CHARGE_FIXED FROM ID_ITEM_TYPE WHERE ITEM_TYPE = 'ART'"), "Y");
}

TEST_F(ItemTypeTest, UpdateOfADeletedRowIsNoSuccess) {
  OpenIt();
  SelectRowOf(Table, "ART");
  Append("txtDescription", "!");
  Another("DELETE FROM ID_ITEM_TYPE WHERE ITEM_TYPE = 'ART'");
  Prompt().Expect("This Item Type does not exist in the system.", 48);
  Click("cmdUpdate");
}

// --- First tab: Delete ---

TEST_F(ItemTypeTest, ATypeWithoutAChargeCanBeDeletedRightAfterItsAdd) {
  OpenIt();
  Type("txtItemType", "NEW");
  Type("txtDescription", "Something new");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  Prompt().Expect("Are you sure you wish to Delete this record?", Say::Question, Say::Yes);
  Prompt().Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_ITEM_TYPE", "ITEM_TYPE = 'NEW'"), 0);
}

TEST_F(ItemTypeTest, ATypeWhoseStoredTextEndsInABlankCanBeDeleted) {
  Another("UPDATE ID_ITEM_TYPE SET ITEM_TYPE_DESC = 'Article ' WHERE ITEM_TYPE = 'ART'");
  OpenIt();
  SelectRowOf(Table, "ART");
  Prompt().Expect("Are you sure you wish to Delete this record?", Say::Question, Say::No);
  Click("cmdDelete");
}

TEST_F(ItemTypeTest, ATypeShownWithoutAnEntryIsNoChoice) {
  OpenIt();
  SelectTab("sstabItemType", 1);
  ChooseAt("cmbAccessGroup", 1);
  Find<CodeComboBox>("cmbAccessItemType")->SetText("Shown, and in no list");
  Prompt().Expect("Please choose a record to be Added", Say::Stop);
  Click("cmdAdd");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ItemTypeTest, DeleteTestsTheSelection) {
  OpenIt();
  Refused("cmdDelete", "Please choose a record to be Deleted", "txtItemType");
  SelectRowOf(Table, "ART");
  Type("txtDescription", "Other");
  Refused("cmdDelete", "Please select a valid record from the table.", "txtItemType");
  SelectRowOf(Table, "BOK");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::No);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ItemTypeTest, DeleteLeavesTheRowsThatUseTheType) {
  Another("INSERT INTO ID_SERVICE_CODE VALUES ('S1', 'BOK', NULL, NULL, NULL, NULL)");
  OpenIt();
  SelectRowOf(Table, "BOK");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes).Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_ITEM_TYPE WHERE    ITEM_TYPE = 'BOK'");
  EXPECT_EQ(Count("ID_ACCESS_ITEM_TYPE", "ITEM_TYPE = 'BOK'"), 1);
  EXPECT_EQ(Count("ID_SERVICE_CODE", "ITEM_TYPE = 'BOK'"), 1);
  ExpectInStep(Form, Table);
}

TEST_F(ItemTypeTest, DeleteOfATypeWithoutCharge) {
  OpenIt();
  SelectRowOf(Table, "MIC");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes).Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_ITEM_TYPE"), 2);
}

TEST_F(ItemTypeTest, DeleteThatFailsIsLoggedUnderTheNameOfAnotherScreen) {
  OpenIt();
  SelectRowOf(Table, "BOK");
  Another("DROP TABLE ID_ITEM_TYPE");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes);
  Prompt().Expect("***** SQL error on ID_ITEM_TYPE (Delete) *****", Say::Stop);
  Click("cmdDelete");
  EXPECT_TRUE(Logged("frmItemType.Loans_Delete"));
  EXPECT_EQ(Rows(Table), 4);
}

// --- Second tab ---

TEST_F(ItemTypeTest, TypesOfAGroup) {
  OpenIt();
  SelectTab("sstabItemType", 1);
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_EQ(Rows(Access), 1);
  Choose("cmbAccessGroup", "Loan desk");
  EXPECT_EQ(Statements().last().toStdString(),
            "SELECT   ITEM_TYPE_DESC FROM ID_ITEM_TYPE WHERE    ITEM_TYPE IN (SELECT ITEM_TYPE FROM "
            "ID_ACCESS_ITEM_TYPE WHERE ACCESS_GROUP = 'LON') ORDER BY ITEM_TYPE_DESC");
  EXPECT_EQ(At(Access, 1, 1), "Book");
  EXPECT_EQ(Find<CodeComboBox>("cmbAccessItemType")->Count(), 4) << "every type, whichever group is chosen";
  SelectRow(Access, 1);
  EXPECT_EQ(Shown("cmbAccessItemType"), "Book");
  Picture("frmItemType-groups");
  Choose("cmbAccessGroup", "(none)");
  EXPECT_EQ(Rows(Access), 1);
}

TEST_F(ItemTypeTest, ListFollowsTheFirstTab) {
  OpenIt();
  Enter("THS", "", "Thesis");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  SelectTab("sstabItemType", 1);
  EXPECT_GE(Find<CodeComboBox>("cmbAccessItemType")->IndexOfText("Thesis"), 1);
}

TEST_F(ItemTypeTest, AddToAGroup) {
  OpenIt();
  SelectTab("sstabItemType", 1);
  Refused("cmdAdd", "Please choose a record to be Added", "cmbAccessGroup");
  Choose("cmbAccessGroup", "Loan desk");
  Refused("cmdAdd", "Please choose a record to be Added", "cmbAccessItemType");
  Choose("cmbAccessItemType", "Book");
  Refused("cmdAdd", "This record already exists", "cmbAccessItemType");
  Choose("cmbAccessItemType", "Article");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Wrote(), "INSERT INTO ID_ACCESS_ITEM_TYPE (ACCESS_GROUP, ITEM_TYPE) VALUES('LON', 'ART')");
  EXPECT_EQ(Rows(Access), 3);
  EXPECT_EQ(At(Access, Row(Access), 1), "Article");
}

TEST_F(ItemTypeTest, AddToAGroupThatTheDatabaseRefuses) {
  OpenIt();
  SelectTab("sstabItemType", 1);
  Choose("cmbAccessGroup", "Loan desk");
  Choose("cmbAccessItemType", "Article");
  Another("INSERT INTO ID_ACCESS_ITEM_TYPE VALUES ('LON', 'ART')");
  Prompt().Expect("***** SQL error on ID_ACCESS_ITEM_TYPE (Insert) *****", Say::Stop);
  Click("cmdAdd");
}

TEST_F(ItemTypeTest, DeleteFromAGroup) {
  Another("INSERT INTO ID_ACCESS_ITEM_TYPE VALUES ('LON', 'ART')");
  Another("INSERT INTO ID_ACCESS_ITEM_TYPE VALUES ('ADM', 'ART')");
  OpenIt();
  SelectTab("sstabItemType", 1);
  Choose("cmbAccessItemType", "Book");
  Refused("cmdDelete", "Please choose a record to be Deleted", "cmbAccessGroup");
  Choose("cmbAccessGroup", "Loan desk");
  SelectRow(Access, 1);
  Choose("cmbAccessItemType", "Book");
  Refused("cmdDelete", "Please select a valid record from the table.", "cmbAccessItemType");
  Choose("cmbAccessItemType", "Article");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::No);
  Click("cmdDelete");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes).Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_ACCESS_ITEM_TYPE WHERE    ACCESS_GROUP = 'LON' AND      ITEM_TYPE = 'ART'");
  EXPECT_EQ(Rows(Access), 2);
  EXPECT_EQ(Count("ID_ACCESS_ITEM_TYPE"), 2);
}

TEST_F(ItemTypeTest, GroupFailureNamesBothTables) {
  OpenIt();
  SelectTab("sstabItemType", 1);
  Another("DROP TABLE ID_ACCESS_ITEM_TYPE");
  Prompt().Expect("***** SQL error on ID_ITEM_TYPE/ID_ACCESS_ITEM_TYPE (Select) *****", Say::Stop);
  Choose("cmbAccessGroup", "Loan desk");
}

// --- Close ---

TEST_F(ItemTypeTest, CloseAsksOnceAndUpdates) {
  OpenIt();
  SelectRowOf(Table, "ART");
  Type("txtDescription", "Journal article");
  Prompt().ExpectTitled(Say::ARecordModified, Say::Question, "Ostana - Item Type", Say::Yes);
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Count("ID_ITEM_TYPE", "ITEM_TYPE_DESC = 'Journal article'"), 1);
}

TEST_F(ItemTypeTest, CloseAnsweredWithNoWritesNothing) {
  OpenIt();
  Type("txtItemType", "X");
  Prompt().Expect(Say::ARecordModified, Say::Question, Say::No);
  Press("txtItemType", Qt::Key_Escape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(), "");
}

}  // namespace
