#include "reference/ReferenceDesk.h"

namespace {

const QString Form = "frmISONamespace";
const QString Table = "grdNameSpace";

class ISONamespaceTest : public ReferenceDesk {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    Another("DELETE FROM ID_ISO_NAMESPACE");
    Insert("ISSN", "Serial number", "ISSN");
    Insert("ISBN", "Book number", "ISBN");
  }
  void Insert(const QString& name, const QString& description, const QString& field) {
    Another(
        "INSERT INTO ID_ISO_NAMESPACE (ISO_NAMESPACE, ISO_NAMESPACE_DESC, ISO_NAMESPACE_DESC_FRE, "
        "ISO_NAMESPACE_ADDR) VALUES ('" +
        name + "', '" + description + "', '" + description + " (fr)', '" + field + "')");
  }
  // The columns that sites of several languages add so that the insert succeeds.
  void AddLegacyColumns() {
    for (const char* language : {"ENG", "FRE", "GER"})
      Another(QString("ALTER TABLE ID_ISO_NAMESPACE ADD CURRENCY_CODE_DESC_%1 VARCHAR(50)").arg(language));
  }
  void OpenIt() {
    Open(Form);
    Statements();
  }
  void Enter(const QString& name, const QString& description, const QString& field) {
    Type("txtNameSpace", name);
    Type("txtDescription", description);
    Type("txtFieldName", field);
  }
  std::string ColumnOf(const QString& column, const QString& name) {
    return Told("SELECT " + column + " FROM ID_ISO_NAMESPACE WHERE ISO_NAMESPACE = '" + name + "'");
  }
};

// --- Load ---

TEST_F(ISONamespaceTest, ShowsTheFirstRowInOrderOfDescription) {
  Open(Form);
  EXPECT_EQ(Statements().last().toStdString(), "SELECT   * FROM ID_ISO_NAMESPACE ORDER BY ISO_NAMESPACE_DESC");
  EXPECT_EQ(Window()->windowTitle().toStdString(), "Ostana - ISO Namespace Registration");
  EXPECT_EQ(Shown("txtNameSpace"), "ISBN");
  EXPECT_EQ(Shown("txtDescription"), "Book number");
  EXPECT_EQ(Shown("txtFieldName"), "ISBN");
  Picture("frmISONamespace");
}

TEST_F(ISONamespaceTest, ReadsTheDefaultLanguageWhileUpdateFollowsTheSuffix) {
  gclsOF->SetLanguageSuffix("_FRE");
  OpenIt();
  EXPECT_EQ(Shown("txtDescription"), "Book number");
  Type("txtDescription", "Livre");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_ISO_NAMESPACE SET      ISO_NAMESPACE_DESC_FRE = N'Livre', ISO_NAMESPACE_ADDR = N'ISBN' "
            "WHERE    ISO_NAMESPACE = N'ISBN'");
  EXPECT_EQ(ColumnOf("ISO_NAMESPACE_DESC", "ISBN"), "Book number");
  EXPECT_EQ(ColumnOf("ISO_NAMESPACE_DESC_FRE", "ISBN"), "Livre");
}

TEST_F(ISONamespaceTest, EmptyTableIsToldInTheWordsOfTheServiceLevels) {
  Another("DELETE FROM ID_ISO_NAMESPACE");
  Prompt().ExpectTitled("The ISO Service Levels table has not been initialized.", Say::Stop,
                        "Ostana - ISO Namespace Registration");
  Screen& screen = Open(Form);
  dynamic_cast<ActivatedForm&>(screen).Form_Activate();
  EXPECT_TRUE(Logged("frmISOServiceLevels"));
}

TEST_F(ISONamespaceTest, LoadFailureIsLoggedWithACapitalS) {
  Another("DROP TABLE ID_ISO_NAMESPACE");
  Prompt().ExpectStart("An error has occurred loading the fields.  Please Notify Support.\n\n", Say::Stop);
  Prompt().Expect("The ISO Service Levels table has not been initialized.", Say::Stop);
  Open(Form);
  EXPECT_TRUE(Logged("frmISONameSpace.PopulateForm"));
}

// --- Entry ---

TEST_F(ISONamespaceTest, NamespaceTakesDigitsLettersAndUnderscore) {
  OpenIt();
  Type("txtNameSpace", "a-B 9_é'");
  EXPECT_EQ(Shown("txtNameSpace"), "aB9_");
  EXPECT_EQ(Prompt().Beeps(), 4);
  Press("txtNameSpace", Qt::Key_Backspace);
  EXPECT_EQ(Shown("txtNameSpace"), "aB9");
  Paste("txtNameSpace", "x.y");
  EXPECT_EQ(Shown("txtNameSpace"), "xy");
}

TEST_F(ISONamespaceTest, FieldNameIsUpperCasedAndTakesNoApostrophe) {
  OpenIt();
  Type("txtFieldName", "it's a-field");
  EXPECT_EQ(Shown("txtFieldName"), "ITS A-FIELD");
  EXPECT_EQ(Prompt().Beeps(), 1);
}

// --- Add ---

TEST_F(ISONamespaceTest, AddTestsInItsOwnOrderAndWords) {
  OpenIt();
  const auto refused = [this](const QString& text, const QString& focus) {
    Prompt().Expect(text, Say::Stop);
    Click("cmdAdd");
    EXPECT_EQ(Focus().toStdString(), focus.toStdString());
  };
  Enter("", "", "");
  refused("Namespace is a required field.", "txtNameSpace");
  Type("txtNameSpace", "ISSN");
  refused("This record already exists.", "txtNameSpace");
  Enter("DOI", "Serial number", "");
  refused("This record already exists.", "txtDescription");
  Type("txtDescription", " ");
  refused("Description is a required field", "txtDescription");
  Type("txtDescription", "Object");
  refused("Field Name is a required field", "txtFieldName");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ISONamespaceTest, AddOnASiteOfSeveralLanguagesFailsThroughTheWrongColumnName) {
  OpenIt();
  Enter("DOI", "Object", "SYSTEM");
  Prompt().ExpectTitled("Unable to add a new record.\n\nAn error has occurred.  Please Notify Support.", Say::Stop,
                        "Ostana - ISO Namespace Registration");
  Click("cmdAdd");
  EXPECT_EQ(Wrote(),
            "INSERT INTO ID_ISO_NAMESPACE (ISO_NAMESPACE, ISO_NAMESPACE_DESC, ISO_NAMESPACE_ADDR, "
            "CURRENCY_CODE_DESC_ENG, CURRENCY_CODE_DESC_FRE, CURRENCY_CODE_DESC_GER) VALUES(N'DOI', N'Object', "
            "N'SYSTEM', N'Object', N'Object', N'Object')");
  EXPECT_EQ(Rows(Table), 3);
  EXPECT_TRUE(Logged("frmISONameSpace.cmdAdd_Click"));
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

TEST_F(ISONamespaceTest, AddSucceedsWhereTheSiteHasTheWronglyNamedColumns) {
  AddLegacyColumns();
  OpenIt();
  Enter("DOI", "Object's", "system");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(ColumnOf("ISO_NAMESPACE_DESC", "DOI"), "Object's");
  EXPECT_EQ(ColumnOf("CURRENCY_CODE_DESC_GER", "DOI"), "Object's");
  EXPECT_EQ(Row(Table), 3);
  ExpectInStep(Form, Table);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

TEST_F(ISONamespaceTest, AddOnASiteOfOneLanguageNamesNoLanguageColumn) {
  Setting("System", "SingleLanguage", "Y");
  ResetModuleState();
  ASSERT_TRUE(gclsOF->LoadApplicationSettings("Tabulon", "", "admin", "secret"));
  ASSERT_TRUE(gclsOF->ID_ValidateLogin("admin", "secret", "Tabulon"));
  Open(Form);
  Enter("DOI", "Object", "SYSTEM");
  Prompt().Expect(Say::Added, Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(ColumnOf("ISO_NAMESPACE_ADDR", "DOI"), "SYSTEM");
  ExpectInStep(Form, Table);
}

// --- Update ---

TEST_F(ISONamespaceTest, UpdateWithoutAChange) {
  OpenIt();
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(ISONamespaceTest, UpdateTestsInItsOwnOrderAndWords) {
  OpenIt();
  Enter("NEW", "Book number", "ISBN");
  Prompt().Expect(Say::NoSuchCode, Say::Stop);
  Click("cmdUpdate");
  Enter("ISBN", "Serial number", "ISBN");
  Prompt().Expect("Description already exists in table.", Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ISONamespaceTest, UpdateNeedsDescriptionAndFieldName) {
  OpenIt();
  Type("txtDescription", "");
  Prompt().Expect("Description is a required field.", Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtDescription");
  Type("txtDescription", "Book");
  Type("txtFieldName", "");
  Prompt().Expect("Field Name is a required field.", Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtFieldName");
  EXPECT_EQ(Wrote(), "");
}

// A namespace without a name can only be one that stands in the table.
TEST_F(ISONamespaceTest, UpdateOfANamelessRowNeedsTheName) {
  Insert("", "Nameless", "F");
  OpenIt();
  SelectRowOf(Table, "Nameless", 2);
  Append("txtFieldName", "X");
  Prompt().Expect("Namespace is a required field.", Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtNameSpace");
}

TEST_F(ISONamespaceTest, UpdateWritesNationalLiterals) {
  OpenIt();
  Type("txtDescription", "Book's number");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "UPDATE ID_ISO_NAMESPACE SET      ISO_NAMESPACE_DESC = N'Book''s number', ISO_NAMESPACE_ADDR = N'ISBN' "
            "WHERE    ISO_NAMESPACE = N'ISBN'");
  ExpectInStep(Form, Table);
}

TEST_F(ISONamespaceTest, UpdateOfARowThatIsGone) {
  OpenIt();
  Append("txtDescription", "!");
  Another("DELETE FROM ID_ISO_NAMESPACE WHERE ISO_NAMESPACE = 'ISBN'");
  Prompt().Expect("This code does not exist in the table. Please select a valid code to update.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus().toStdString(), "txtNameSpace");
}

TEST_F(ISONamespaceTest, UpdateThatTheDatabaseFails) {
  OpenIt();
  Append("txtDescription", "!");
  Another("ALTER TABLE ID_ISO_NAMESPACE RENAME TO ID_ISO_NAMESPACE_AWAY");
  Prompt().Expect(
      "An error has occurred while attempting to update the record.\n\nIf the error persists notify support.",
      Say::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(Logged("frmISONameSpace.cmdUpdate_Click"));
}

TEST_F(ISONamespaceTest, LeavingAnEditedRowAsks) {
  OpenIt();
  Append("txtDescription", "!");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  SelectRowOf(Table, "ISSN");
  EXPECT_EQ(Shown("txtNameSpace"), "ISSN");
  EXPECT_EQ(ColumnOf("ISO_NAMESPACE_DESC", "ISBN"), "Book number!");
  ExpectInStep(Form, Table);
}

// --- Close ---

TEST_F(ISONamespaceTest, CloseWritesPlainLiteralsWithoutSuffix) {
  gclsOF->SetLanguageSuffix("_FRE");
  OpenIt();
  Type("txtDescription", "Book's");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(),
            "UPDATE ID_ISO_NAMESPACE SET      ISO_NAMESPACE_DESC = 'Book''s', ISO_NAMESPACE_ADDR = 'ISBN' "
            "WHERE    ISO_NAMESPACE = 'ISBN'");
  EXPECT_EQ(ColumnOf("ISO_NAMESPACE_DESC_FRE", "ISBN"), "Book number (fr)");
}

TEST_F(ISONamespaceTest, CloseHasWordsOfItsOwnAndStaysOpenWhenRefused) {
  OpenIt();
  const auto refused = [this](const QString& text) {
    Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(text, Say::Stop);
    Click("cmdClose");
    EXPECT_TRUE(IsOpen());
  };
  Enter("", "", "");
  refused("NameSpace is a required field");
  Type("txtNameSpace", "NEW");
  refused("Description is a required field.");
  Type("txtDescription", "Serial number");
  refused("Field Name is a required field.");
  Type("txtFieldName", "F");
  refused(Say::NoSuchCode);
  Type("txtNameSpace", "ISBN");
  refused("Description already exists in table.");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ISONamespaceTest, CloseAnsweredWithNoLeavesTheTable) {
  OpenIt();
  Append("txtDescription", "!");
  Prompt().Expect(Say::Modified, Say::Question, Say::No);
  Press("txtDescription", Qt::Key_Escape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(), "");
}

// --- Delete ---

TEST_F(ISONamespaceTest, DeleteWritesAPlainLiteral) {
  OpenIt();
  Prompt().Expect(Say::Delete, Say::Question, Say::No);
  Click("cmdDelete");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_ISO_NAMESPACE WHERE      ISO_NAMESPACE = 'ISBN'");
  EXPECT_EQ(Shown("txtNameSpace"), "ISSN");
  ExpectInStep(Form, Table);
}

TEST_F(ISONamespaceTest, DeletingTheLastRowEmptiesTheFields) {
  Another("DELETE FROM ID_ISO_NAMESPACE WHERE ISO_NAMESPACE = 'ISSN'");
  OpenIt();
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Rows(Table), 1);
  EXPECT_EQ(Shown("txtDescription"), "");
  EXPECT_EQ(Count("ID_ISO_NAMESPACE"), 0);
}

TEST_F(ISONamespaceTest, DeleteTakesTheRowOnScreenWhateverWasTypedOver) {
  OpenIt();
  Type("txtNameSpace", "ISSN");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes).Expect(Say::Deleted, Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_ISO_NAMESPACE", "ISO_NAMESPACE = 'ISSN'"), 1);
  ExpectInStep(Form, Table);
}

TEST_F(ISONamespaceTest, DeleteThatFailsKeepsTheRow) {
  OpenIt();
  Another("DROP TABLE ID_ISO_NAMESPACE");
  Prompt().Expect(Say::Delete, Say::Question, Say::Yes);
  Prompt().Expect("***** SQL error on ID_ISO_NAMESPACE (Delete) *****", Say::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Rows(Table), 3);
}

}  // namespace
