#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "support/Desk.h"

namespace {

const QString DatabaseError =
    "A database error has occurred.  Please verify your data entry\nand your Database structure.";
const QString NoSuchCode = "This Code does not exist in the table.  Please select a Valid Code to Update.";

class AuditTest : public Desk {
 protected:
  void Enter(const QString& arguments = "\"\" \"admin\" \"secret\"") {
    Start(arguments);
    SelectTab("sstabtables", frmTabulon::AuditTab);
    Statements();
  }
  void EnterFunctions(const QString& arguments = "\"\" \"admin\" \"secret\"") {
    Enter(arguments);
    SelectTab("sstab10Audit", 1);
    Statements();
  }
  void Added() {
    Prompt().Expect("Record Added", 64);
    Click("cmdAdd");
  }
  void Updated() {
    Prompt().Expect("Record Updated", 64);
    Click("cmdUpdate");
  }
};

TEST_F(AuditTest, TheTabOpensOnTheLocations) {
  Start();
  Statements();
  SelectTab("sstabtables", frmTabulon::AuditTab);
  EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM ID_STAT_LOCATION ORDER BY STAT_LOCATION_DESC"});
  EXPECT_EQ(Rows("grd10aTable"), 6);
  EXPECT_EQ(Row("grd10aTable"), 1);
  EXPECT_EQ(Text("txt10aCode"), "C");
  EXPECT_EQ(Text("txt10aDescription"), "Clearing house");
  EXPECT_EQ(Focus(), "txt10aDescription");
}

TEST_F(AuditTest, TheFunctionsShowTheirFlagUnderItsHeading) {
  Enter();
  SelectTab("sstab10Audit", 1);
  EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM ID_STAT_FUNCTION ORDER BY STAT_FUNCTION_DESC"});
  EXPECT_EQ(Cell("grd10bTable", 0, 2), "Description");
  EXPECT_EQ(Cell("grd10bTable", 0, 3), "Display");
  EXPECT_EQ(Text("txt10bCode"), "D");
  EXPECT_EQ(Cell("grd10bTable", 1, 3), "Y");
  EXPECT_TRUE(IsChecked("opt10Display(0)"));
  EXPECT_EQ(Focus(), "txt10bDescription");
  SelectRowOf("grd10bTable", "N");
  EXPECT_TRUE(IsChecked("opt10Display(1)"));
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(AuditTest, AnUnknownFlagUnsetsBoth) {
  Another("UPDATE ID_STAT_FUNCTION SET STAT_FUNCTION_DISP = NULL WHERE STAT_FUNCTION = 'S'");
  EnterFunctions();
  SelectRowOf("grd10bTable", "S");
  EXPECT_FALSE(IsChecked("opt10Display(0)"));
  EXPECT_FALSE(IsChecked("opt10Display(1)"));
}

TEST_F(AuditTest, TheTabComesBackOnItsFirstSubTabLoadedOnce) {
  EnterFunctions();
  SelectTab("sstabtables", frmTabulon::LoansTab);
  Statements();
  SelectTab("sstabtables", frmTabulon::AuditTab);
  EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM ID_STAT_LOCATION ORDER BY STAT_LOCATION_DESC"});
  EXPECT_TRUE(IsShown("txt10aCode"));
  EXPECT_FALSE(IsShown("txt10bCode"));
}

TEST_F(AuditTest, AddUpdateAndClearAreThereAndDeleteIsNot) {
  Enter();
  for (const int sub : {0, 1, 0}) {
    SelectTab("sstab10Audit", sub);
    EXPECT_EQ(gstrButtonMode, "U");
    for (const char* shown : {"cmdAdd", "cmdUpdate", "cmdClear", "mnuOptionsAdd", "mnuOptionsUpdate"})
      EXPECT_TRUE(IsShown(shown)) << shown;
    for (const char* hidden : {"cmdDelete", "mnuOptionsDelete"}) EXPECT_FALSE(IsShown(hidden)) << hidden;
    EXPECT_TRUE(IsEnabled("cmdAdd"));
  }
  SelectTab("sstabtables", frmTabulon::RequestTypeTab);
  EXPECT_FALSE(IsShown("cmdAdd"));
}

TEST_F(AuditTest, AMissingRightStaysMissing) {
  Another("UPDATE ID_USER_FUNCTION SET ADD_FLAG = 'N' WHERE FUNCTION_NAME = 'Tabulon'");
  EnterFunctions();
  EXPECT_TRUE(IsShown("cmdAdd"));
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  EXPECT_FALSE(IsEnabled("mnuOptionsAdd"));
  EXPECT_TRUE(IsEnabled("cmdUpdate"));
}

TEST_F(AuditTest, AddOfALocationStoresEveryLanguage) {
  Enter();
  Type("txt10aCode", "q");
  Type("txt10aDescription", " Q's desk ");
  EXPECT_TRUE(gbRecordModified);
  Added();
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_STAT_LOCATION (STAT_LOCATION, STAT_LOCATION_DESC, STAT_LOCATION_DESC_ENG, "
                        "STAT_LOCATION_DESC_FRE, STAT_LOCATION_DESC_GER) VALUES(N'Q', N'Q''s desk', N'Q''s desk', "
                        "N'Q''s desk', N'Q''s desk')"});
  EXPECT_EQ(Ask("SELECT STAT_LOCATION_DESC_GER FROM ID_STAT_LOCATION WHERE STAT_LOCATION = 'Q'"), "Q's desk");
  EXPECT_EQ(Cell("grd10aTable", Row("grd10aTable"), 1), "Q");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(AuditTest, AddOfAFunctionOnASiteOfOneLanguage) {
  Setting("System", "SingleLanguage", "Y");
  EnterFunctions();
  Type("txt10bCode", "q");
  Type("txt10bDescription", "Queued");
  Click("opt10Display(1)");
  Added();
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_STAT_FUNCTION (STAT_FUNCTION, STAT_FUNCTION_DESC, "
                                   "STAT_FUNCTION_DISP) VALUES(N'Q', N'Queued', N'N')"});
  Type("txt10bCode", "z");
  Type("txt10bDescription", "Zipped");
  Click("opt10Display(0)");
  Added();
  EXPECT_TRUE(Writing().value(0).endsWith("VALUES(N'Z', N'Zipped', N'Y')"));
}

TEST_F(AuditTest, AddOfAFunctionNamesTheLocationsLanguageColumnsAndFailsWithoutThem) {
  EnterFunctions();
  Click("opt10Display(0)");
  Type("txt10bCode", "q");
  Type("txt10bDescription", "Queued");
  Prompt().Expect(DatabaseError, 16);
  Click("cmdAdd");
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_STAT_FUNCTION (STAT_FUNCTION, STAT_FUNCTION_DESC, STAT_FUNCTION_DISP, "
                        "STAT_LOCATION_DESC_ENG, STAT_LOCATION_DESC_FRE, STAT_LOCATION_DESC_GER) VALUES(N'Q', "
                        "N'Queued', N'Y', N'Queued', N'Queued', N'Queued')"});
  EXPECT_EQ(LogLines().at(LogLines().size() - 3).mid(24), "* frmTabulon.Audit_Add");
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24),
            "* ***** SQL error on OSTANA.ID_EXCEPTION_CODE (INSERT INTO) *****");
  EXPECT_EQ(Text("txt10bDescription"), "Queued");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(AuditTest, AddOfAFunctionGoesThroughWhereTheColumnsExist) {
  for (const char* language : {"ENG", "FRE", "GER"})
    Another(QString("ALTER TABLE ID_STAT_FUNCTION ADD COLUMN STAT_LOCATION_DESC_%1 VARCHAR(50)").arg(language));
  EnterFunctions();
  Type("txt10bCode", "q");
  Type("txt10bDescription", "Queued");
  Added();
  EXPECT_EQ(Ask("SELECT STAT_FUNCTION_DISP FROM ID_STAT_FUNCTION WHERE STAT_FUNCTION = 'Q'"), "Y");
}

TEST_F(AuditTest, AddRefusesInItsOrder) {
  Enter();
  for (const int sub : {0, 1}) {
    SelectTab("sstab10Audit", sub);
    const QString letter = sub == 0 ? "a" : "b";
    const QString code = "txt10" + letter + "Code", description = "txt10" + letter + "Description";
    Type(code, "");
    Type(description, " ");
    Prompt().Expect("Please enter a Valid Code.", 48);
    Click("cmdAdd");
    EXPECT_EQ(Focus(), code);
    Type(code, "q");
    Prompt().Expect("Please enter a Valid Description.", 48);
    Click("cmdAdd");
    EXPECT_EQ(Focus(), description);
    Type(code, "r");
    Type(description, "Again");
    Prompt().Expect("This record already exists", 48);
    Click("cmdAdd");
    EXPECT_EQ(Focus(), code);
    EXPECT_EQ(Text(code), "R");
  }
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(AuditTest, ADuplicateMadeByAnotherClientIsRefusedByTheDatabase) {
  Enter();
  Another("INSERT INTO ID_STAT_LOCATION (STAT_LOCATION, STAT_LOCATION_DESC) VALUES ('Q', 'Theirs')");
  Type("txt10aCode", "q");
  Type("txt10aDescription", "Ours");
  Prompt().Expect(DatabaseError, 16);
  Click("cmdAdd");
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24),
            "* ***** SQL error on OSTANA.ID_STAT_LOCATION (INSERT INTO) *****");
}

TEST_F(AuditTest, UpdateOfALocationChangesTheWorkingLanguage) {
  Enter("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  SelectRowOf("grd10aTable", "S");
  Type("txt10aDescription", " Magasin ");
  Updated();
  EXPECT_EQ(Writing(), QStringList{"UPDATE   ID_STAT_LOCATION SET      STAT_LOCATION_DESC_FRE = N'Magasin' WHERE    "
                                   "STAT_LOCATION = N'S'"});
  EXPECT_EQ(Ask("SELECT STAT_LOCATION_DESC FROM ID_STAT_LOCATION WHERE STAT_LOCATION = 'S'"), "Stacks");
  EXPECT_EQ(Cell("grd10aTable", Row("grd10aTable"), 2), "Magasin");
  EXPECT_EQ(Focus(), "txt10aDescription");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(AuditTest, UpdateOfAFunctionWritesItsFlagToo) {
  EnterFunctions();
  SelectRowOf("grd10bTable", "N");
  Click("opt10Display(0)");
  Updated();
  EXPECT_EQ(Writing(), QStringList{"UPDATE   ID_STAT_FUNCTION SET      STAT_FUNCTION_DESC = N'Note added', "
                                   "STAT_FUNCTION_DISP = N'Y' WHERE    STAT_FUNCTION = N'N'"});
  EXPECT_EQ(Cell("grd10bTable", Row("grd10bTable"), 3), "Y");
  Click("opt10Display(1)");
  Updated();
  EXPECT_EQ(Ask("SELECT STAT_FUNCTION_DISP FROM ID_STAT_FUNCTION WHERE STAT_FUNCTION = 'N'"), "N");
  EXPECT_EQ(Cell("grd10bTable", Row("grd10bTable"), 3), "N");
}

TEST_F(AuditTest, AnEmptiedDescriptionIsStoredAsNullWhichAddRefuses) {
  Setting("System", "SingleLanguage", "Y");
  EnterFunctions();
  SelectRowOf("grd10bTable", "N");
  Type("txt10bDescription", " ");
  Updated();
  EXPECT_EQ(Count("ID_STAT_FUNCTION", "STAT_FUNCTION = 'N' AND STAT_FUNCTION_DESC IS NULL"), 1);
  EXPECT_EQ(Cell("grd10bTable", Row("grd10bTable"), 2), "");
  SelectTab("sstab10Audit", 0);
  Type("txt10aDescription", "");
  Updated();
  EXPECT_EQ(Count("ID_STAT_LOCATION", "STAT_LOCATION_DESC IS NULL"), 1);
  Prompt().Expect("Please enter a Valid Description.", 48);
  Click("cmdAdd");
}

TEST_F(AuditTest, UpdateRefusesAnUnchangedRowAndAnUnknownCode) {
  EnterFunctions();
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt10bDescription");
  Type("txt10bCode", "q");
  Prompt().Expect(NoSuchCode, 16);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt10bCode");
  SelectTab("sstab10Audit", 0);
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt10aDescription");
  Type("txt10aCode", "q");
  Prompt().Expect(NoSuchCode, 16);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt10aCode");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(AuditTest, AFailedUpdateOfAFunctionNamesTheLocations) {
  EnterFunctions();
  Type("txt10bDescription", "Else");
  Another("ALTER TABLE ID_STAT_FUNCTION RENAME COLUMN STAT_FUNCTION_DISP TO DISP");
  Prompt().Expect(DatabaseError, 16);
  Click("cmdUpdate");
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24),
            "* ***** SQL error on OSTANA.ID_STAT_LOCATION (UPDATE) *****");
  EXPECT_EQ(Cell("grd10bTable", 1, 2), "Document delivered");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(AuditTest, TheOptionPairKeepsItsOwnTestOfAChange) {
  Another("UPDATE ID_STAT_FUNCTION SET STAT_FUNCTION_DISP = NULL WHERE STAT_FUNCTION = 'S'");
  EnterFunctions();
  const struct {
    const char *code, *option;
    bool modified;
  } cases[] = {{"D", "opt10Display(0)", false}, {"D", "opt10Display(1)", false}, {"N", "opt10Display(0)", false},
               {"N", "opt10Display(1)", true},  {"S", "opt10Display(0)", true},  {"S", "opt10Display(1)", true}};
  for (const auto& entry : cases) {
    SelectRowOf("grd10bTable", entry.code);
    EXPECT_FALSE(gbRecordModified);
    Click(entry.option);
    EXPECT_EQ(gbRecordModified, entry.modified) << entry.code << " " << entry.option;
    Shell().LivePage()->CurrentRecord().Settled();
  }
}

TEST_F(AuditTest, ClearActsOnTheSubTabInFront) {
  EnterFunctions();
  Click("cmdClear");
  EXPECT_EQ(Text("txt10bCode"), "");
  EXPECT_EQ(Text("txt10bDescription"), "");
  EXPECT_FALSE(IsChecked("opt10Display(0)"));
  EXPECT_FALSE(IsChecked("opt10Display(1)"));
  EXPECT_EQ(Row("grd10bTable"), 0);
  EXPECT_EQ(Rows("grd10bTable"), 7);
  SelectTab("sstab10Audit", 0);
  Click("cmdClear");
  EXPECT_EQ(Text("txt10aCode"), "");
  EXPECT_EQ(Row("grd10aTable"), 0);
}

TEST_F(AuditTest, CodesTakeOneCharacterAndDescriptionsFifty) {
  Enter();
  Type("txt10aCode", "abc");
  EXPECT_EQ(Text("txt10aCode"), "a");
  Type("txt10aDescription", QString(60, 'd'));
  EXPECT_EQ(Text("txt10aDescription").size(), 50);
}

TEST_F(AuditTest, AClosedConnectionIsOpenedAgain) {
  Enter();
  Type("txt10aCode", "q");
  Type("txt10aDescription", "Queue");
  gclsOF->Connection().Close();
  Added();
  Type("txt10aDescription", "Row");
  gclsOF->Connection().Close();
  Updated();
  EXPECT_EQ(Ask("SELECT STAT_LOCATION_DESC FROM ID_STAT_LOCATION WHERE STAT_LOCATION = 'Q'"), "Row");
}

TEST_F(AuditTest, Looks) {
  Enter();
  Picture("audit-locations");
  SelectTab("sstab10Audit", 1);
  Picture("audit-functions");
}

TEST_F(AuditTest, APairThatWasUnsetShowsTheLetterThatWasStored) {
  Start();
  SelectTab("sstabtables", frmTabulon::AuditTab);
  SelectTab("sstab10Audit", 1);
  Trigger("mnuOptionsClear");
  // The languages of this table are named after the other one's, which a site of several languages has not.
  Type("txt10bCode", "Z");
  Type("txt10bDescription", "Zed");
  gcolLanguageCode.clear();
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Ask("SELECT STAT_FUNCTION_DISP FROM ID_STAT_FUNCTION WHERE STAT_FUNCTION = 'Z'"), "N");
  EXPECT_TRUE(IsChecked("opt10Display(1)"));
  EXPECT_EQ(Text("txt10bCode"), "Z");
}

}  // namespace
