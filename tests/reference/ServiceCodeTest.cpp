#include "reference/ReferenceDesk.h"

namespace {

const QString Form = "frmServiceCode";
const QString Table = "grdServiceCode";
const QString Countries = "grdCountryCode";
const QString DeleteQuestion = "Are you sure you wish to Delete this record?";

// The five values that may be missing, in the order of the statements.
struct Wildcard {
  QString column, code, description, box;
  int col;
};
const std::vector<Wildcard>& Wildcards() {
  static const std::vector<Wildcard> wildcards = {
      {"ITEM_TYPE", "B", "Book", "cmbItemType", 6},
      {"DELIVERY_METHOD", "M", "Mail", "cmbDeliveryMethod", 3},
      {"SERVICE_LEVEL", "U", "Urgent", "cmbServiceLevel", 4},
      {"SYSTEM_SOURCE", "SERIA", "Catalogue of serials", "cmbSystemSource", 5},
      {"COUNTRY_REGION", "EU", "European Union", "cmbCountryRegion", 2}};
  return wildcards;
}
bool Given(int mix, size_t index) {
  return (mix >> index & 1) != 0;
}

class ServiceCodeTest : public ReferenceDesk {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    Another("DELETE FROM ID_SERVICE_CODE");
    Another("DELETE FROM ID_COUNTRY_CODE");
    Another("DELETE FROM ID_ITEM_TYPE");
    Another("INSERT INTO ID_ITEM_TYPE (ITEM_TYPE, ITEM_TYPE_DESC) VALUES ('B', 'Book')");
    Another("INSERT INTO ID_ITEM_TYPE (ITEM_TYPE, ITEM_TYPE_DESC) VALUES ('ART', 'Article')");
    for (const char* row : {"'33', 'EU'", "'49', 'EU'", "'44', 'UK'", "'81', 'RW'"})
      Another(QString("INSERT INTO ID_COUNTRY_CODE VALUES (%1)").arg(row));
  }
  void OpenIt() {
    Open(Form);
    Statements();
  }
  void Insert(const QString& values) { Another("INSERT INTO ID_SERVICE_CODE VALUES (" + values + ")"); }
  // Chooses the five lists: the value where the bit is set, "(none)" elsewhere.
  void ChooseMix(int mix) {
    for (size_t index = 0; index < Wildcards().size(); ++index)
      Choose(Wildcards()[index].box, Given(mix, index) ? Wildcards()[index].description : "(none)");
  }
  static QString ValuesOf(int mix) {
    QStringList values;
    for (size_t index = 0; index < Wildcards().size(); ++index)
      values.append(Given(mix, index) ? "'" + Wildcards()[index].code + "'" : "Null");
    return values.join(", ");
  }
  static QString SettingsOf(int mix) {
    QStringList settings;
    for (size_t index = 0; index < Wildcards().size(); ++index)
      settings.append(Wildcards()[index].column + " = " +
                      (Given(mix, index) ? "'" + Wildcards()[index].code + "'" : "Null"));
    return settings.join(", ");
  }
  static QString WhereOf(int mix) {
    QString where = "WHERE    SERVICE_CODE = 'S1' ";
    for (size_t index = 0; index < Wildcards().size(); ++index)
      where += "AND      " + Wildcards()[index].column + " " +
               (Given(mix, index) ? "= '" + Wildcards()[index].code + "' " : "IS Null ");
    return where;
  }
  int CountMix(int mix) { return Count("ID_SERVICE_CODE", WhereOf(mix).mid(9)); }
  void Refused(const QString& button, const QString& text, const QString& focus) {
    Prompt().Expect(text, Say::Stop);
    Click(button);
    EXPECT_EQ(Focus().toStdString(), focus.toStdString());
  }
};

// --- Load ---

TEST_F(ServiceCodeTest, LoadFillsListsAndGrid) {
  Insert("'Z9', NULL, 'M', 'U', NULL, 'EU'");
  Insert("'A1', 'B', NULL, NULL, 'SERIA', NULL");
  Open(Form);
  const QString statements = Statements().join('\n');
  for (const char* start :
       {"SELECT   DELIV_METHOD, DELIV_METHOD_DESC FROM", "SELECT   SERVICE_LEVEL, SERVICE_LEVEL_DESC FROM",
        "SELECT   SYSTEM_SOURCE, SYSTEM_SOURCE_DESC FROM", "SELECT   ITEM_TYPE, ITEM_TYPE_DESC FROM"})
    EXPECT_TRUE(statements.contains(start)) << start;
  EXPECT_TRUE(statements.endsWith("SELECT   * FROM ID_SERVICE_CODE ORDER BY SERVICE_CODE"));
  EXPECT_EQ(Window()->windowTitle().toStdString(), "Ostana - Service Code");
  EXPECT_EQ(RowsOf(*Find<Grid>(Table)).join('\n').toStdString(), "A1||||SERIA|B\nZ9|EU|M|U||");
  EXPECT_EQ(At(Table, 1, 1), "A1");
  for (const Wildcard& wildcard : Wildcards()) EXPECT_EQ(Shown(wildcard.box), "(none)");
  SelectRow(Table, 2);
  EXPECT_EQ(Shown("txtServiceCode"), "Z9");
  EXPECT_EQ(Shown("cmbDeliveryMethod"), "Mail");
  EXPECT_EQ(Shown("cmbCountryRegion"), "European Union");
  EXPECT_EQ(Shown("cmbItemType"), "(none)");
  Picture("frmServiceCode");
}

TEST_F(ServiceCodeTest, ListFailureNamesItsTable) {
  Another("DROP TABLE ID_ITEM_TYPE");
  Prompt().Expect("***** SQL error on ID_ITEM_TYPE (Select) *****", Say::Stop);
  Open(Form);
  EXPECT_TRUE(Logged("frmServiceCode.PopulateServiceCodeCombos"));
}

TEST_F(ServiceCodeTest, CodeBoxesFilterAndSelect) {
  OpenIt();
  Type("txtServiceCode", "ab9x");
  EXPECT_EQ(Shown("txtServiceCode"), "AB9");
  Press("txtServiceCode", Qt::Key_Tab);
  Press("cmbCountryRegion", Qt::Key_Backtab);
  EXPECT_EQ(Find<TextBox>("txtServiceCode")->selectedText().toStdString(), "AB9");
  SelectTab("sstabServiceCode", 1);
  Type("txtCountryCode", "a4-99");
  EXPECT_EQ(Shown("txtCountryCode"), "49");
  EXPECT_EQ(Prompt().Beeps(), 2);
  Prompt().Expect(Say::ARecordModified, Say::QuestionCancel, Say::No);
  Click("cmdClose");
}

TEST_F(ServiceCodeTest, UpdateIsOffOnTheSecondTab) {
  OpenIt();
  EXPECT_TRUE(IsEnabled("cmdUpdate"));
  SelectTab("sstabServiceCode", 1);
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  Picture("frmServiceCode-countries");
  SelectTab("sstabServiceCode", 0);
  EXPECT_TRUE(IsEnabled("cmdUpdate"));
}

// --- Service codes: Add ---

TEST_F(ServiceCodeTest, AddNeedsACode) {
  OpenIt();
  Type("txtServiceCode", "  ");
  Refused("cmdAdd", "Please enter a valid character Service Code.", "txtServiceCode");
}

TEST_F(ServiceCodeTest, AddWritesPlainLiteralsWithoutATransaction) {
  OpenIt();
  Type("txtServiceCode", "s'");
  Choose("cmbDeliveryMethod", "Mail");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Wrote(),
            "INSERT INTO ID_SERVICE_CODE (SERVICE_CODE, ITEM_TYPE, DELIVERY_METHOD, SERVICE_LEVEL, SYSTEM_SOURCE, "
            "COUNTRY_REGION) VALUES('S''', Null, 'M', Null, Null, Null)");
  EXPECT_EQ(Row(Table), 1);
  ExpectInStep(Form, Table);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

TEST_F(ServiceCodeTest, RowsThatDifferOnlyInAWildcardAreDistinct) {
  OpenIt();
  Type("txtServiceCode", "S1");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  Choose("cmbItemType", "Book");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(CountMix(0), 1);
  EXPECT_EQ(CountMix(1), 1);
  Refused("cmdAdd", "This record already exists", "txtServiceCode");
  Choose("cmbItemType", "(none)");
  Refused("cmdAdd", "This record already exists", "txtServiceCode");
  EXPECT_EQ(Count("ID_SERVICE_CODE"), 2);
  ExpectInStep(Form, Table);
}

TEST_F(ServiceCodeTest, AddThatTheDatabaseRefuses) {
  OpenIt();
  Type("txtServiceCode", "S1");
  Choose("cmbServiceLevel", "Urgent");
  Another("UPDATE ID_ISO_SERVICE_LEVEL SET SERVICE_LEVEL = NULL");
  Another("DELETE FROM ID_SERVICE_LEVEL WHERE SERVICE_LEVEL = 'U'");
  Prompt().Expect("***** SQL error on ID_SERVICE_CODE (Insert) *****", Say::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Rows(Table), 1);
  EXPECT_TRUE(Logged("frmServiceCode.cmdAdd_Click"));
}

// --- Service codes: every mix of value and NULL ---

class ServiceCodeMixTest : public ServiceCodeTest, public testing::WithParamInterface<int> {};

TEST_P(ServiceCodeMixTest, UpdateFindsTheRowByItsOldValues) {
  const int before = GetParam();
  const int after = ~before & 31;
  Insert("'S1', " + ValuesOf(before));
  Insert("'S2', " + ValuesOf(before));
  OpenIt();
  SelectRow(Table, 1);
  ChooseMix(after);
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(), ("UPDATE ID_SERVICE_CODE SET      " + SettingsOf(after) + " " + WhereOf(before)).toStdString());
  EXPECT_EQ(CountMix(after), 1);
  EXPECT_EQ(CountMix(before), 0);
  EXPECT_EQ(Count("ID_SERVICE_CODE"), 2);
  // The old values are those that stand in the table now.
  ChooseMix(before);
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(), ("UPDATE ID_SERVICE_CODE SET      " + SettingsOf(before) + " " + WhereOf(after)).toStdString());
  EXPECT_EQ(CountMix(before), 1);
  ExpectInStep(Form, Table);
}

TEST_P(ServiceCodeMixTest, DeleteFindsTheRowByItsValues) {
  const int mix = GetParam();
  QStringList rows;
  for (int any = 0; any < 32; ++any) rows.append("'S1', " + ValuesOf(any));
  Insert(rows.join("), ("));
  OpenIt();
  std::vector<std::pair<int, QString>> cells;
  for (size_t index = 0; index < Wildcards().size(); ++index)
    cells.emplace_back(Wildcards()[index].col, Given(mix, index) ? Wildcards()[index].code : QString());
  SelectRow(Table, Find<Grid>(Table)->FindRow(cells));
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes).Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), ("DELETE FROM ID_SERVICE_CODE " + WhereOf(mix)).toStdString());
  EXPECT_EQ(CountMix(mix), 0);
  EXPECT_EQ(Count("ID_SERVICE_CODE"), 31);
  ExpectInStep(Form, Table);
}

INSTANTIATE_TEST_SUITE_P(AllMixes, ServiceCodeMixTest, testing::Range(0, 32));

// --- Service codes: Update ---

TEST_F(ServiceCodeTest, UpdateWithoutAChange) {
  OpenIt();
  Prompt().Expect(Say::Nothing, Say::Stop);
  Click("cmdUpdate");
}

TEST_F(ServiceCodeTest, CodeCannotBeChanged) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  Type("txtServiceCode", "S1");
  Refused("cmdUpdate", "This Service Code does not exist in the system.", "txtServiceCode");
  SelectRow(Table, 1);
  Type("txtServiceCode", "S2");
  Refused("cmdUpdate", "This Service Code does not exist in the system.", "txtServiceCode");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ServiceCodeTest, UpdateOfARowThatAnotherClientChangedIsNoSuccess) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  Choose("cmbItemType", "Book");
  Another("UPDATE ID_SERVICE_CODE SET COUNTRY_REGION = 'UK'");
  Prompt().Expect("This Service Code does not exist in the system.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(At(Table, 1, 6), "");
}

TEST_F(ServiceCodeTest, AFailedWriteIsLoggedWithItsStatement) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  Choose("cmbItemType", "Book");
  Another("ALTER TABLE ID_SERVICE_CODE RENAME TO ID_SERVICE_CODE_AWAY");
  Prompt().Expect("***** SQL error on ID_SERVICE_CODE (Update) *****", Say::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(LogLines().last().contains("* UPDATE ID_SERVICE_CODE SET      ITEM_TYPE = "));
}

TEST_F(ServiceCodeTest, EachListFailsForItself) {
  Another("ALTER TABLE ID_DELIV_METHOD RENAME TO ID_DELIV_METHOD_AWAY");
  Prompt().Expect("***** SQL error on ID_DELIV_METHOD (Select) *****", Say::Stop);
  Open(Form);
  EXPECT_GT(Find<CodeComboBox>("cmbItemType")->Count(), 1);
}

TEST_F(ServiceCodeTest, ClearOfOneTabKeepsTheEditOfTheOther) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  Choose("cmbItemType", "Book");
  SelectTab("sstabServiceCode", 1);
  Click("cmdClear");
  Prompt().Expect("A record has been modified.\nDo you wish to apply the updates before continuing?", 35, Say::Yes);
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdClose");
}

TEST_F(ServiceCodeTest, UpdateAfterASortWritesTheRecordOnScreen) {
  Insert("'S1', NULL, 'M', NULL, NULL, NULL");
  Insert("'S2', NULL, 'A', NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  SortBy(Table, 3);
  EXPECT_EQ(Row(Table), 2);
  Choose("cmbItemType", "Book");
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Count("ID_SERVICE_CODE", "SERVICE_CODE = 'S1' AND ITEM_TYPE = 'B'"), 1);
  ExpectInStep(Form, Table);
}

TEST_F(ServiceCodeTest, ItemTypeThatNoLongerExistsIsKeptAndCanBeDeleted) {
  Insert("'S1', 'OLD', NULL, NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  EXPECT_EQ(Shown("cmbItemType"), "OLD");
  Choose("cmbServiceLevel", "Urgent");
  Prompt().Expect("Record Updated", Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Count("ID_SERVICE_CODE", "ITEM_TYPE = 'OLD' AND SERVICE_LEVEL = 'U'"), 1);
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes).Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_SERVICE_CODE"), 0);
}

// --- Service codes: Delete and Clear ---

TEST_F(ServiceCodeTest, DeleteTestsTheSelection) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  Refused("cmdDelete", "Please choose a record to be Deleted", "txtServiceCode");
  SelectRow(Table, 1);
  Type("txtServiceCode", "");
  Refused("cmdDelete", "Please choose a record to be Deleted", "txtServiceCode");
  Type("txtServiceCode", "S1");
  Choose("cmbItemType", "Book");
  Refused("cmdDelete", "Please select a valid record from the table.", "txtServiceCode");
  Choose("cmbItemType", "(none)");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::No);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ServiceCodeTest, DeleteOfARowOfWildcardsUsesFiveNullTests) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes).Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  const QString wrote = QString::fromStdString(Wrote());
  EXPECT_EQ(wrote.count("IS Null"), 5);
  EXPECT_EQ(wrote.toStdString(),
            "DELETE FROM ID_SERVICE_CODE WHERE    SERVICE_CODE = 'S1' AND      ITEM_TYPE IS Null "
            "AND      DELIVERY_METHOD IS Null AND      SERVICE_LEVEL IS Null AND      SYSTEM_SOURCE IS Null "
            "AND      COUNTRY_REGION IS Null ");
}

TEST_F(ServiceCodeTest, DeleteThatFailsKeepsTheRow) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  Another("DROP TABLE ID_SERVICE_CODE");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes);
  Prompt().Expect("***** SQL error on ID_SERVICE_CODE (Delete) *****", Say::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Rows(Table), 2);
}

TEST_F(ServiceCodeTest, ClearEmptiesTheTabInFront) {
  OpenIt();
  Type("txtServiceCode", "S1");
  Choose("cmbItemType", "Book");
  Click("cmdClear");
  EXPECT_EQ(Shown("txtServiceCode"), "");
  EXPECT_EQ(Shown("cmbItemType"), "(none)");
  SelectTab("sstabServiceCode", 1);
  Choose("cmbRegion", "European Union");
  Type("txtCountryCode", "33");
  Click("cmdClear");
  EXPECT_EQ(Shown("cmbRegion"), "(none)");
  EXPECT_EQ(Shown("txtCountryCode"), "");
  EXPECT_EQ(Rows(Countries), 1);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

// --- Countries ---

TEST_F(ServiceCodeTest, CountriesOfARegion) {
  OpenIt();
  SelectTab("sstabServiceCode", 1);
  EXPECT_EQ(Rows(Countries), 1);
  Choose("cmbRegion", "European Union");
  EXPECT_EQ(Statements().last().toStdString(),
            "SELECT   COUNTRY_CODE FROM ID_COUNTRY_CODE WHERE    COUNTRY_REGION = 'EU' ORDER BY COUNTRY_CODE");
  EXPECT_EQ(Rows(Countries), 3);
  SelectRow(Countries, 2);
  EXPECT_EQ(Shown("txtCountryCode"), "49");
  Choose("cmbRegion", "(none)");
  EXPECT_EQ(Rows(Countries), 1);
}

TEST_F(ServiceCodeTest, AddOfACountryNeedsRegionAndCode) {
  OpenIt();
  SelectTab("sstabServiceCode", 1);
  Type("txtCountryCode", "39");
  Refused("cmdAdd", "Please choose a record to be Added", "cmbRegion");
  Choose("cmbRegion", "European Union");
  Type("txtCountryCode", "");
  Refused("cmdAdd", "Please choose a record to be Added", "cmbRegion");
}

TEST_F(ServiceCodeTest, AddWritesAndSelectsTheCountry) {
  OpenIt();
  SelectTab("sstabServiceCode", 1);
  Choose("cmbRegion", "European Union");
  Type("txtCountryCode", "39");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Wrote(), "INSERT INTO ID_COUNTRY_CODE (COUNTRY_CODE, COUNTRY_REGION) VALUES('39', 'EU')");
  EXPECT_EQ(Row(Countries), 2);
  EXPECT_EQ(At(Countries, 2, 1), "39");
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

TEST_F(ServiceCodeTest, ChangeOfRegionTakesADeleteAndAnAdd) {
  OpenIt();
  SelectTab("sstabServiceCode", 1);
  Choose("cmbRegion", "European Union");
  Type("txtCountryCode", "44");
  Prompt().Expect("This record already exists in the 'United Kingdom' region.", Say::Stop);
  Click("cmdAdd");
  EXPECT_TRUE(Statements().last().startsWith("SELECT   COUNTRY_REGION FROM ID_COUNTRY_CODE"));
  EXPECT_EQ(Focus().toStdString(), "txtCountryCode");
  Choose("cmbRegion", "United Kingdom");
  SelectRow(Countries, 1);
  Prompt().Expect(DeleteQuestion, Say::Question, Say::Yes).Expect("Record Deleted", Say::Info);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "DELETE FROM ID_COUNTRY_CODE WHERE    COUNTRY_CODE = '44' AND      COUNTRY_REGION = 'UK'");
  EXPECT_EQ(Rows(Countries), 1);
  Choose("cmbRegion", "European Union");
  Prompt().Expect("Record Added", Say::Info);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_COUNTRY_CODE", "COUNTRY_CODE = '44' AND COUNTRY_REGION = 'EU'"), 1);
}

TEST_F(ServiceCodeTest, DeleteOfACountryTestsTheSelection) {
  OpenIt();
  SelectTab("sstabServiceCode", 1);
  Type("txtCountryCode", "33");
  Refused("cmdDelete", "Please choose a record to be Deleted", "txtCountryCode");
  Choose("cmbRegion", "European Union");
  SelectRow(Countries, 1);
  Type("txtCountryCode", "49");
  Refused("cmdDelete", "Please select a valid record from the table.", "txtCountryCode");
  Type("txtCountryCode", "33");
  Prompt().Expect(DeleteQuestion, Say::Question, Say::No);
  Click("cmdDelete");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ServiceCodeTest, CountryThatASecondClientAddedIsRefusedByItsRegion) {
  OpenIt();
  SelectTab("sstabServiceCode", 1);
  Choose("cmbRegion", "European Union");
  Another("INSERT INTO ID_COUNTRY_CODE VALUES ('61', 'RW')");
  Type("txtCountryCode", "61");
  Prompt().Expect("This record already exists in the 'Rest of World' region.", Say::Stop);
  Click("cmdAdd");
}

TEST_F(ServiceCodeTest, CountryThatTheDatabaseRefuses) {
  OpenIt();
  SelectTab("sstabServiceCode", 1);
  Choose("cmbRegion", "European Union");
  Type("txtCountryCode", "39");
  Another("DROP TABLE ID_COUNTRY_CODE");
  Prompt().Expect("***** SQL error on ID_COUNTRY_CODE (Select) *****", Say::Stop);
  Click("cmdAdd");
}

// --- Close ---

TEST_F(ServiceCodeTest, CloseAsksOnceWithCancel) {
  Insert("'S1', NULL, NULL, NULL, NULL, NULL");
  OpenIt();
  SelectRow(Table, 1);
  Choose("cmbItemType", "Book");
  Prompt().ExpectTitled(Say::ARecordModified, Say::QuestionCancel, "Ostana - Service Code", Say::Cancel);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  Prompt().Expect(Say::ARecordModified, Say::QuestionCancel, Say::Cancel);
  Press("txtServiceCode", Qt::Key_Escape);
  EXPECT_TRUE(IsOpen());
  Prompt().Expect(Say::ARecordModified, Say::QuestionCancel, Say::Yes).Expect("Record Updated", Say::Info);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(CountMix(1), 1);
}

TEST_F(ServiceCodeTest, CloseAnsweredWithNoWritesNothing) {
  OpenIt();
  Type("txtServiceCode", "S1");
  Prompt().Expect(Say::ARecordModified, Say::QuestionCancel, Say::No);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ServiceCodeTest, FormClosesAfterARefusedUpdateAsWell) {
  OpenIt();
  Type("txtServiceCode", "S1");
  Prompt().Expect(Say::ARecordModified, Say::QuestionCancel, Say::Yes);
  Prompt().Expect("This Service Code does not exist in the system.", Say::Stop);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

}  // namespace
