#include <QAction>
#include <QFile>

#include "core/Languages.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

const QString DatabaseError =
    "A database error has occurred.  Please verify your data entry\nand your Database structure.";

class CodeTablesTest : public Desk {
 protected:
  // Picks a table by its name in the database, as the list shows it.
  void Pick(const QString& table) {
    auto* const tables = Find<CodeComboBox>("cmb0Tables");
    ASSERT_GT(tables->IndexOfCode(table), 0) << table.toStdString();
    ChooseAt("cmb0Tables", tables->IndexOfCode(table));
    Statements();
  }
  // The mode letter of a table, set before the tab is entered.
  void Mode(const QString& table, const QString& letter) {
    Another("UPDATE ID_TABLES SET VIEW_ONLY_FLAG = '" + letter + "' WHERE TABLES = '" + table + "'");
  }
  QString Stored(const QString& column, const QString& code) {
    return Ask("SELECT " + column + " FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = '" + code + "'");
  }
  void AddRow(const QString& code, const QString& description) {
    Type("txt0Code", code);
    Type("txt0Description", description);
    Prompt().ExpectTitled("Record Added", 64, "Ostana - System Maintenance");
    Click("cmdAdd");
  }
};

TEST_F(CodeTablesTest, NoTableChosenHasNoDataRowAndNoButtons) {
  Start();
  EXPECT_EQ(Text("cmb0Tables"), "(none)");
  EXPECT_EQ(Rows("grd0TableDesc"), 1);
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsShown(button)) << button;
  Statements();
  Shell().LoadDataInGrid();
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(CodeTablesTest, TheListHoldsTheTablesInTheOrderOfTheirDescriptions) {
  Start();
  auto* const tables = Find<CodeComboBox>("cmb0Tables");
  EXPECT_EQ(tables->Count(), Count("ID_TABLES") + 1);
  EXPECT_EQ(tables->TextAt(0), "(none)");
}

TEST_F(CodeTablesTest, ANewRowIsStoredInEveryLanguageAndIsSelected) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  Type("txt0Code", "q9");
  Type("txt0Description", "  O'Neill \\ \"quoted\"; -- text  ");
  EXPECT_TRUE(gbRecordModified);
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  const QStringList writing = Writing();
  ASSERT_EQ(writing.size(), 1);
  EXPECT_EQ(writing[0],
            "INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC, LIBRARY_CAT_DESC_ENG, LIBRARY_CAT_DESC_FRE, "
            "LIBRARY_CAT_DESC_GER) VALUES('Q9', 'O''Neill \\ \"quoted\"; -- text', 'O''Neill \\ \"quoted\"; -- text', "
            "'O''Neill \\ \"quoted\"; -- text', 'O''Neill \\ \"quoted\"; -- text')");
  for (const char* column :
       {"LIBRARY_CAT_DESC", "LIBRARY_CAT_DESC_ENG", "LIBRARY_CAT_DESC_FRE", "LIBRARY_CAT_DESC_GER"})
    EXPECT_EQ(Stored(column, "Q9"), "O'Neill \\ \"quoted\"; -- text") << column;
  EXPECT_EQ(Cell("grd0TableDesc", Row("grd0TableDesc"), 1), "Q9");
  EXPECT_FALSE(gbRecordModified);
  EXPECT_EQ(Focus(), "txt0Code");
}

TEST_F(CodeTablesTest, OnASiteOfOneLanguageNoLanguageColumnIsNamed) {
  Mode("ID_LIBRARY_CAT", "F");
  Setting("System", "SingleLanguage", "Y");
  Start();
  Pick("ID_LIBRARY_CAT");
  AddRow("Q9", "Quiet");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC) VALUES('Q9', 'Quiet')"});
}

TEST_F(CodeTablesTest, ADescriptionOfOneBlankIsStoredAsNull) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  AddRow("Q9", " ");
  EXPECT_EQ(Count("ID_LIBRARY_CAT", "LIBRARY_CAT = 'Q9' AND LIBRARY_CAT_DESC IS NULL"), 1);
}

TEST_F(CodeTablesTest, AnEmptyCodeAndADuplicateAreRefused) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  Type("txt0Code", "  ");
  Prompt().Expect("Please enter a Valid Code.", 48);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt0Code");
  AddRow("Q9", "Quiet");
  Type("txt0Code", "q9");
  Type("txt0Description", "Again");
  Prompt().Expect("This record already exists", 48);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt0Code"), "");
  EXPECT_EQ(Text("txt0Description"), "");
  EXPECT_EQ(Row("grd0TableDesc"), 0);
}

TEST_F(CodeTablesTest, ADuplicateMadeByAnotherClientIsRefusedByTheDatabase) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  Another("INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC) VALUES ('Q9', 'Theirs')");
  Type("txt0Code", "Q9");
  Type("txt0Description", "Ours");
  Prompt().Expect(DatabaseError, 16);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt0Description"), "Ours");
  EXPECT_TRUE(gbRecordModified);
  const QStringList log = LogLines();
  ASSERT_GE(log.size(), 3);
  EXPECT_TRUE(log[log.size() - 3].endsWith("  * frmTabulon.CodeTables_Add")) << log[log.size() - 3].toStdString();
  EXPECT_EQ(log[log.size() - 2].mid(24), "* ***** SQL error on OSTANA.ID_LIBRARY_CAT (INSERT INTO) *****");
  EXPECT_TRUE(log.last().mid(24).startsWith("* Error: -2147217873 - ")) << log.last().toStdString();
}

TEST_F(CodeTablesTest, UpdateChangesOnlyTheWorkingLanguage) {
  Mode("ID_LIBRARY_CAT", "F");
  Start("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  Pick("ID_LIBRARY_CAT");
  AddRow("Q9", "Quiet");
  Statements();
  SelectRowOf("grd0TableDesc", "Q9");
  Type("txt0Description", "Calme");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Writing(),
            QStringList{"UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT_DESC_FRE = 'Calme' WHERE LIBRARY_CAT = 'Q9'"});
  EXPECT_EQ(Stored("LIBRARY_CAT_DESC", "Q9"), "Quiet");
  EXPECT_EQ(Stored("LIBRARY_CAT_DESC_FRE", "Q9"), "Calme");
  EXPECT_EQ(Cell("grd0TableDesc", Row("grd0TableDesc"), 2), "Calme");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(CodeTablesTest, UpdateOfAnUnchangedRowAndOfAnotherCodeAreRefused) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  AddRow("Q9", "Quiet");
  SelectRowOf("grd0TableDesc", "Q9");
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt0Description");
  Type("txt0Code", "Q8");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt0Code");
}

TEST_F(CodeTablesTest, DeleteAsksAndLeavesTheGridEmpty) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  AddRow("Q9", "Quiet");
  SelectRowOf("grd0TableDesc", "Q9");
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_LIBRARY_CAT", "LIBRARY_CAT = 'Q9'"), 1);
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Statements();
  Click("cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = 'Q9'"});
  EXPECT_EQ(Count("ID_LIBRARY_CAT", "LIBRARY_CAT = 'Q9'"), 0);
  EXPECT_EQ(Rows("grd0TableDesc"), 1);
}

TEST_F(CodeTablesTest, DeleteWithoutACodeOrOfAnUnknownCodeIsRefused) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  Click("cmdClear");
  Prompt().Expect("Please choose a record to be Deleted", 48);
  Click("cmdDelete");
  Type("txt0Code", "??");
  Prompt().Expect("Please select a valid record from the table.", 48);
  Click("cmdDelete");
}

TEST_F(CodeTablesTest, ARowInUseIsNotDeleted) {
  Mode("ID_BILLING_TYPE", "F");
  Start();
  Pick("ID_BILLING_TYPE");
  const QString code = Cell("grd0TableDesc", 1, 1);
  Another(
      "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, BILLING_TYPE) VALUES (77, 'XX77', "
      "'X', '" +
      code + "')");
  Prompt()
      .Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes)
      .Expect(
          "An error has occurred while attempting to delete the record.\n\nThe Code is referenced by another "
          "table in the database.",
          16);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_BILLING_TYPE", "BILLING_TYPE = '" + code + "'"), 1);
}

TEST_F(CodeTablesTest, ADeleteThatFailsOtherwiseHasOtherWords) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  // The question is on screen while the link to the database goes down for good.
  const QString file = Database().Settings().name;
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "a file that goes away is what SQLite meets alone";
  gclsOF->Connection().Close();
  ASSERT_TRUE(QFile::rename(file, file + ".away"));
  Prompt()
      .Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes)
      .Expect("An error has occurred while attempting to delete the record.\n\nIf the error persists notify support.",
              16);
  Click("cmdDelete");
  ASSERT_TRUE(QFile::rename(file + ".away", file));
  EXPECT_GT(Rows("grd0TableDesc"), 1);
  const QStringList log = LogLines();
  ASSERT_GE(log.size(), 3);
  EXPECT_TRUE(log[log.size() - 3].endsWith("  * frmTabulon.CodeTables_Delete"));
  EXPECT_EQ(log[log.size() - 2].mid(24), "* ***** SQL error on ID_LIBRARY_CAT (Delete) *****");
}

TEST_F(CodeTablesTest, ANumericCodeTakesNeitherLettersNorAFraction) {
  Mode("ID_ISO_UNFILLED", "F");
  Another(
      "INSERT INTO ID_TABLES (TABLES, TABLES_DESC, VIEW_ONLY_FLAG) SELECT 'ID_ISO_UNFILLED', 'Zz Reasons', 'F' FROM "
      "ID_TABLES WHERE NOT EXISTS (SELECT 1 FROM ID_TABLES WHERE TABLES = 'ID_ISO_UNFILLED') AND TABLES = "
      "'ID_LIBRARY_CAT'");
  Start();
  Pick("ID_ISO_UNFILLED");
  Type("txt0Code", "abc");
  Prompt().Expect("Please enter a Valid Code.", 48);
  Click("cmdAdd");
  Type("txt0Code", "901.5");
  Prompt().Expect("Please enter a valid Code.", 48);
  Click("cmdAdd");
  Statements();
  AddRow("901", "Lost");
  EXPECT_TRUE(Writing().value(0).contains(" VALUES(901, 'Lost'"));
  SelectRowOf("grd0TableDesc", "901");
  Type("txt0Description", "Found");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().value(0).endsWith(" WHERE ISO_UNFILLED = 901"));
  // The code is quoted in the DELETE, also in a numeric column.
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().value(0).endsWith("WHERE ISO_UNFILLED = '901'"));
}

TEST_F(CodeTablesTest, AViewOnlyTableHasNoButtonsAndStillFillsTheFields) {
  Mode("ID_LIBRARY_CAT", "O");
  Start();
  Pick("ID_LIBRARY_CAT");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsShown(button)) << button;
  SelectRow("grd0TableDesc", 2);
  EXPECT_EQ(Text("txt0Code"), Cell("grd0TableDesc", 2, 1));
  EXPECT_EQ(Text("txt0Description"), Cell("grd0TableDesc", 2, 2));
}

TEST_F(CodeTablesTest, ServiceTypesKeepWebFlagAndDeliveryType) {
  Mode("ID_SERVICE_TYPE", "F");
  Start();
  Pick("ID_SERVICE_TYPE");
  EXPECT_TRUE(IsShown("fra0Display"));
  EXPECT_TRUE(IsShown("fra0aDisplay"));
  Type("txt0Code", "Z");
  Type("txt0Description", "Zine");
  Click("opt0Display(0)");
  Click("opt0DeliveryType(0)");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  const QString insert = Writing().value(0);
  EXPECT_TRUE(insert.contains(", DELIVERY_TYPE, WEB_FLAG) VALUES(")) << insert.toStdString();
  EXPECT_TRUE(insert.endsWith(", 'C', 'Y')")) << insert.toStdString();
  SelectRowOf("grd0TableDesc", "Z");
  EXPECT_TRUE(IsChecked("opt0Display(0)"));
  Click("opt0Display(1)");
  Click("opt0DeliveryType(1)");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Writing().value(0),
            "UPDATE ID_SERVICE_TYPE SET    SERVICE_TYPE_DESC = 'Zine',            WEB_FLAG = Null, DELIVERY_TYPE = 'L' "
            "WHERE SERVICE_TYPE = 'Z'");
  EXPECT_EQ(Cell("grd0TableDesc", Row("grd0TableDesc"), 3), "L");
  EXPECT_EQ(Cell("grd0TableDesc", Row("grd0TableDesc"), 4), "");
}

TEST_F(CodeTablesTest, ServiceLevelsKeepTheWebFlagAlone) {
  Mode("ID_SERVICE_LEVEL", "F");
  Start();
  Pick("ID_SERVICE_LEVEL");
  EXPECT_TRUE(IsShown("fra0Display"));
  EXPECT_FALSE(IsShown("fra0aDisplay"));
  EXPECT_FALSE(IsShown("fra0bDisplay"));
}

class LanguagesTest : public CodeTablesTest {};

TEST_F(LanguagesTest, TheDefaultCannotBeTakenAwayButASecondOneCanBeGiven) {
  Mode("ID_LANGUAGE_CODE", "F");
  Start();
  Pick("ID_LANGUAGE_CODE");
  EXPECT_TRUE(IsShown("cmb0CurrentLanguage"));
  SelectRowOf("grd0TableDesc", "ENG");
  EXPECT_TRUE(IsChecked("chk0DefaultLanguage"));
  Click("chk0DefaultLanguage");
  Prompt().Expect("Only 1 language can be selected as the default.", 48);
  Click("cmdUpdate");
  EXPECT_TRUE(IsChecked("chk0DefaultLanguage"));
  EXPECT_EQ(Focus(), "txt0Description");
  SelectRowOf("grd0TableDesc", "FRE");
  Click("chk0DefaultLanguage");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Count("ID_LANGUAGE_CODE", "LANGUAGE_CODE_DEFAULT = 'Y'"), 2);
  EXPECT_TRUE(Writing().value(0).endsWith(",          LANGUAGE_CODE_DEFAULT = 'Y' WHERE    LANGUAGE_CODE = 'FRE'"));
}

TEST_F(LanguagesTest, WithoutASuffixTheListStandsOnTheDefaultAndTheSuffixStaysEmpty) {
  Mode("ID_LANGUAGE_CODE", "F");
  Start();
  Pick("ID_LANGUAGE_CODE");
  auto* const languages = Find<CodeComboBox>("cmb0CurrentLanguage");
  EXPECT_EQ(languages->Code(), "ENG");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "");
}

TEST_F(LanguagesTest, WithoutASuffixTheColumnsHaveTheirPlainNames) {
  Start();
  Statements();
  SelectTab("sstabtables", frmTabulon::LoansTab);
  SelectTab("sstabtables", frmTabulon::CodeTablesTab);
  LoadLanguageCodes({});
  EXPECT_EQ(Statements(),
            (QStringList{"SELECT   * FROM ID_TABLES ORDER BY TABLES_DESC",
                         "SELECT   LANGUAGE_CODE, LANGUAGE_CODE_DEFAULT, LANGUAGE_CODE_DESC FROM ID_LANGUAGE_CODE "
                         "ORDER BY LANGUAGE_CODE_DESC"}));
}

TEST_F(LanguagesTest, LanguagesThatCannotBeReadStayAsTheyWere) {
  Start();
  const QStringList codes = gcolLanguageCode;
  Another("ALTER TABLE ID_LANGUAGE_CODE RENAME TO ID_LANGUAGE_CODE_AWAY");
  LoadLanguageCodes({});
  Another("ALTER TABLE ID_LANGUAGE_CODE_AWAY RENAME TO ID_LANGUAGE_CODE");
  EXPECT_EQ(gcolLanguageCode, codes);
  EXPECT_EQ(gstrDefaultLanguageCode, "ENG");
  const QStringList log = LogLines();
  ASSERT_GE(log.size(), 3);
  EXPECT_TRUE(log[log.size() - 3].endsWith("  * frmTabulon.LoadLanguageCode"));
  EXPECT_EQ(log[log.size() - 2].mid(24), "* ***** SQL error on ID_LANGUAGE_CODE (Select) *****");
}

TEST_F(LanguagesTest, AnotherLanguageReloadsTheListAndKeepsTheTable) {
  Mode("ID_LANGUAGE_CODE", "F");
  Start();
  Pick("ID_LANGUAGE_CODE");
  auto* const languages = Find<CodeComboBox>("cmb0CurrentLanguage");
  ChooseAt("cmb0CurrentLanguage", languages->IndexOfCode("FRE"));
  EXPECT_EQ(gclsOF->LanguageSuffix(), "_FRE");
  EXPECT_EQ(Find<CodeComboBox>("cmb0Tables")->Code(), "ID_LANGUAGE_CODE");
  EXPECT_EQ(languages->Code(), "FRE");
  EXPECT_GT(Rows("grd0TableDesc"), 1);
}

class AcknowledgementsTest : public CodeTablesTest {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Mode("ID_ACK_STATEMENT", "F");
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'One')");
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (72, 'TWO', 'Two')");
  }
  void AddStatement(const QString& symbol, const QString& text) {
    Type("txt0Code", "K1");
    Type("txt0Description", text);
    Type("txt0LibrarySymbol", symbol);
    Prompt().Expect("Record Added", 64);
    Click("cmdAdd");
  }
};

TEST_F(AcknowledgementsTest, OneCodeOfTwoLibrariesIsKeptApart) {
  Start();
  Pick("ID_ACK_STATEMENT");
  EXPECT_EQ(Cell("grd0TableDesc", 0, 2), "Statement");
  AddStatement("ONE", "of one");
  AddStatement("TWO", "of two");
  Type("txt0Code", "K1");
  Type("txt0Description", "again");
  Type("txt0LibrarySymbol", "TWO");
  Prompt().Expect("This record already exists", 48);
  Click("cmdAdd");
  SelectRowOf("grd0TableDesc", "72", 7);
  EXPECT_EQ(Text("txt0LibrarySymbol"), "TWO");
  Type("txt0Description", "of the second");
  Prompt().Expect("Record Updated", 64);
  Statements();
  Click("cmdUpdate");
  EXPECT_EQ(Writing().value(0),
            "UPDATE ID_ACK_STATEMENT SET  ACK_STATEMENT = 'of the second',          LIBRARY_ID = 72 WHERE ACK_CODE = "
            "'K1' AND LIBRARY_ID = 72");
  EXPECT_EQ(Ask("SELECT ACK_STATEMENT FROM ID_ACK_STATEMENT WHERE LIBRARY_ID = 71"), "of one");
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Click("cmdDelete");
  EXPECT_EQ(Writing().value(0), "DELETE FROM ID_ACK_STATEMENT WHERE ACK_CODE = 'K1' AND LIBRARY_ID= 72");
  EXPECT_EQ(Count("ID_ACK_STATEMENT", "ACK_CODE = 'K1'"), 1);
}

TEST_F(AcknowledgementsTest, AnUnknownSymbolIsRefusedInItsOwnWords) {
  Start();
  Pick("ID_ACK_STATEMENT");
  Type("txt0Code", "K1");
  Type("txt0Description", "text");
  Type("txt0LibrarySymbol", "NOBODY");
  Prompt().Expect("Please enter a Valid Library Symbol.", 48);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt0LibrarySymbol");
  AddStatement("ONE", "of one");
  SelectRowOf("grd0TableDesc", "71", 7);
  Type("txt0LibrarySymbol", "NOBODY");
  Prompt().Expect(
      "Please enter a Valid Library Symbol. (Make sure the Library Symbol entered exists as a registered Library)", 48);
  Click("cmdUpdate");
}

TEST_F(CodeTablesTest, CatalogCodesTakeTheirLibraryOnUpdateOnly) {
  Mode("ID_CATALOG_CODE", "F");
  Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'One')");
  Start();
  Pick("ID_CATALOG_CODE");
  Type("txt0Code", "Z9");
  Type("txt0Description", "Union");
  Type("txt0LibrarySymbol", "ONE");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_TRUE(Writing().value(0).startsWith("INSERT INTO ID_CATALOG_CODE (CATALOG_CODE, CATALOG_CODE_DESC, "));
  EXPECT_EQ(Count("ID_CATALOG_CODE", "CATALOG_CODE = 'Z9' AND CATALOG_LIBRARY_ID IS NULL"), 1);
  SelectRowOf("grd0TableDesc", "Z9");
  Type("txt0LibrarySymbol", "NOBODY");
  Prompt().Expect("Please enter a Valid Library Symbol.", 48);
  Click("cmdUpdate");
  Type("txt0LibrarySymbol", "ONE");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT CATALOG_LIBRARY_ID FROM ID_CATALOG_CODE WHERE CATALOG_CODE = 'Z9'"), "71");
  SelectRowOf("grd0TableDesc", "Z9");
  EXPECT_EQ(Text("txt0LibrarySymbol"), "ONE");
  Type("txt0LibrarySymbol", "");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Count("ID_CATALOG_CODE", "CATALOG_CODE = 'Z9' AND CATALOG_LIBRARY_ID IS NULL"), 1);
}

TEST_F(CodeTablesTest, LibrariesThatCannotBeReadAreToldInTheirOwnLine) {
  Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'One')");
  Another("UPDATE ID_CATALOG_CODE SET CATALOG_LIBRARY_ID = 71");
  Start();
  Pick("ID_CATALOG_CODE");
  ASSERT_GT(Rows("grd0TableDesc"), 1);
  EXPECT_EQ(Cell("grd0TableDesc", 1, 5), "ONE");
  Another("ALTER TABLE ID_LIBRARY RENAME TO ID_LIBRARY_AWAY");
  Prompt().Expect("***** SQL error on ID_LIBRARY  (Select) *****", 16);
  Shell().LoadDataInGrid();
  Another("ALTER TABLE ID_LIBRARY_AWAY RENAME TO ID_LIBRARY");
  EXPECT_EQ(Cell("grd0TableDesc", 1, 5), "");
}

TEST_F(CodeTablesTest, ATableThatDoesNotExistFailsAloneAndSaysSo) {
  Another("INSERT INTO ID_TABLES (TABLES, TABLES_DESC, VIEW_ONLY_FLAG) VALUES ('ID_GONE', 'Aa gone', 'F')");
  Start();
  auto* const tables = Find<CodeComboBox>("cmb0Tables");
  // Shaping and loading fail one after the other, each in its own words.
  Prompt()
      .Expect("***** SQL error on ID_GONE (Select) *****", 16)
      .Expect("***** SQL error onID_GONE (Select) *****", 16);
  ChooseAt("cmb0Tables", tables->IndexOfCode("ID_GONE"));
  EXPECT_EQ(Rows("grd0TableDesc"), 1);
  EXPECT_FALSE(IsShown("cmdAdd"));
  Pick("ID_LIBRARY_CAT");
  EXPECT_GT(Rows("grd0TableDesc"), 1);
}

TEST_F(CodeTablesTest, TheFieldsTakeNoMoreThanTheirColumns) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  const int limit = Find<TextBox>("txt0Code")->maxLength();
  EXPECT_LT(limit, 100);
  Type("txt0Code", QString(limit + 5, 'X'));
  EXPECT_EQ(Text("txt0Code").size(), limit);
}

TEST_F(CodeTablesTest, AColumnWithoutASizeHasNoLimit) {
  Setting("System", "SingleLanguage", "Y");
  Another("CREATE TABLE ID_SHELF (SHELF VARCHAR(5) NOT NULL PRIMARY KEY, SHELF_DESC TEXT)");
  Another("INSERT INTO ID_TABLES (TABLES, TABLES_DESC, VIEW_ONLY_FLAG) VALUES ('ID_SHELF', 'Aa shelves', 'F')");
  Start();
  Pick("ID_SHELF");
  Type("txt0Code", "A1");
  const QString text = QString("long ").repeated(8000) + "end";
  Paste("txt0Description", text);
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Ask("SELECT SHELF_DESC FROM ID_SHELF WHERE SHELF = 'A1'"), text);
}

TEST_F(CodeTablesTest, ANumericCodeKeepsAllItsDigits) {
  Setting("System", "SingleLanguage", "Y");
  Another("CREATE TABLE ID_BOX (BOX BIGINT NOT NULL PRIMARY KEY, BOX_DESC VARCHAR(40))");
  Another("INSERT INTO ID_TABLES (TABLES, TABLES_DESC, VIEW_ONLY_FLAG) VALUES ('ID_BOX', 'Aa boxes', 'F')");
  Start();
  Pick("ID_BOX");
  for (const auto& [typed, stored] : {std::pair<QString, QString>{"9007199254740993", "9007199254740993"},
                                      {"+7", "7"},
                                      {"8.0", "8"},
                                      {"-12", "-12"}}) {
    Statements();
    AddRow(typed, "Box");
    EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_BOX (BOX, BOX_DESC) VALUES(" + stored + ", 'Box')"});
    EXPECT_EQ(Cell("grd0TableDesc", Row("grd0TableDesc"), 1), stored);
  }
}

TEST_F(CodeTablesTest, ADescriptionArrivesWithEveryLetterAndWithoutControlCharacters) {
  Mode("ID_LIBRARY_CAT", "F");
  Start();
  Pick("ID_LIBRARY_CAT");
  const QString hostile = QString::fromUtf8("'N''x' \\ ; -- /*\"*/ \xF0\x9F\x98\x80 e\xCC\x81 \xD7\xA9\xD7\x9C");
  Type("txt0Code", "Q9");
  Paste("txt0Description", hostile + QChar(u'\0') + "end");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Stored("LIBRARY_CAT_DESC", "Q9"), hostile + "end");
  EXPECT_EQ(Stored("LIBRARY_CAT_DESC_GER", "Q9"), hostile + "end");
  EXPECT_EQ(Cell("grd0TableDesc", Row("grd0TableDesc"), 2), hostile + "end");
}

TEST_F(CodeTablesTest, EnteringTheTabWidensTheMarkerColumn) {
  Start();
  EXPECT_EQ(Find<Grid>("grd0TableDesc")->ColWidth(0), 310);
  Pick("ID_LIBRARY_CAT");
  EXPECT_EQ(Find<Grid>("grd0TableDesc")->ColWidth(0), 200);
}

TEST_F(CodeTablesTest, AHeadingSortsTheGridAndKeepsTheRecord) {
  Start();
  Pick("ID_LIBRARY_CAT");
  SelectRow("grd0TableDesc", 2);
  const QString code = Text("txt0Code");
  SortBy("grd0TableDesc", 2);
  SortBy("grd0TableDesc", 2);
  EXPECT_EQ(Cell("grd0TableDesc", Row("grd0TableDesc"), 1), code);
  EXPECT_EQ(Text("txt0Code"), code);
}

TEST_F(CodeTablesTest, ARefusedRightToSearchIsSaidAndChangesNothing) {
  Mode("ID_CATALOG_CODE", "F");
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Library Registration'");
  Start();
  Pick("ID_CATALOG_CODE");
  gclsOF->SetLibraryId(5);
  Prompt().Expect("You do not have access to this function", 48);
  Click("cmd0FindLibrary");
  EXPECT_EQ(gclsOF->LibraryId(), 5);
  EXPECT_EQ(gclsOF->CurrentFunction(), "Tabulon");
  EXPECT_TRUE(gclsOF->CanAdd());
}

TEST_F(CodeTablesTest, ATableThatCannotBeReadShowsNothingOfTheOneBefore) {
  Start();
  Pick("ID_LANGUAGE_CODE");
  EXPECT_TRUE(IsShown("chk0DefaultLanguage"));
  Another("ALTER TABLE ID_LIBRARY_CAT RENAME TO ID_AWAY");
  Prompt()
      .Expect("***** SQL error on ID_LIBRARY_CAT (Select) *****", 16)
      .Expect("***** SQL error onID_LIBRARY_CAT (Select) *****", 16);
  Pick("ID_LIBRARY_CAT");
  Another("ALTER TABLE ID_AWAY RENAME TO ID_LIBRARY_CAT");
  for (const char* control : {"chk0DefaultLanguage", "lbl0CurrentLanguage", "cmdAdd", "cmdUpdate", "cmdDelete"})
    EXPECT_FALSE(IsShown(control)) << control;
  for (int col = 3; col <= 6; ++col) EXPECT_TRUE(Find<Grid>("grd0TableDesc")->ColHidden(col)) << col;
}

}  // namespace
