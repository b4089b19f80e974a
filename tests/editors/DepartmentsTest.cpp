#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

class DepartmentsTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'One')");
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (72, 'TWO', 'Two')");
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (73, 'BARE', 'Bare')");
    Department(71, "ART", "Fine arts");
    Department(71, "MUS", "Music");
    Department(72, "ART", "Art library");
  }
  void Department(int library, const QString& code, const QString& description) {
    Another(
        "INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC, DEPARTMENT_ADDR, NCIP_DEPARTMENT) "
        "VALUES (" +
        QString::number(library) + ", '" + code + "', '" + description + "', 'Wing', 'N-" + code + "')");
  }
  void Enter(const QString& arguments = "\"\" \"admin\" \"secret\"") {
    Start(arguments);
    SelectTab("sstabtables", frmTabulon::DepartmentsTab);
    Statements();
  }
  void Fill(const QString& symbol, const QString& code, const QString& description, const QString& address = {},
            const QString& ncip = {}) {
    Type("txt2LibrarySymbol", symbol);
    Type("txt2Department", code);
    Type("txt2Description", description);
    Type("txt2Address", address);
    Type("txtNCIPDepartment", ncip);
  }
  void Add(const QString& symbol, const QString& code, const QString& description) {
    Fill(symbol, code, description);
    Prompt().Expect("Record Added", 64);
    Click("cmdAdd");
  }
  void Select(const QString& symbol, const QString& code) {
    SelectRow("grd2Department", Find<Grid>("grd2Department")->FindRow({{1, symbol}, {2, code}}));
  }
  QString Stored(const QString& column, int library, const QString& code) {
    return Ask("SELECT " + column + " FROM ID_DEPARTMENT WHERE LIBRARY_ID = " + QString::number(library) +
               " AND DEPARTMENT = '" + code + "'");
  }
};

TEST_F(DepartmentsTest, TheTabListsTheDepartmentsOfAllLibraries) {
  Start();
  EXPECT_EQ(Shell().Page(frmTabulon::DepartmentsTab), nullptr);
  Statements();
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  EXPECT_EQ(Statements(),
            (QStringList{"SELECT   DISTINCT LIBRARY_SYMBOL FROM ID_LIBRARY WHERE    LIBRARY_ID IN (SELECT LIBRARY_ID "
                         "FROM ID_DEPARTMENT) ORDER BY LIBRARY_SYMBOL",
                         "SELECT   D.DEPARTMENT, D.DEPARTMENT_DESC, D.DEPARTMENT_ADDR, D.NCIP_DEPARTMENT, "
                         "L.LIBRARY_SYMBOL FROM ID_DEPARTMENT D, ID_LIBRARY L WHERE    L.LIBRARY_ID = D.LIBRARY_ID "
                         "ORDER BY L.LIBRARY_SYMBOL, D.DEPARTMENT"}));
  auto* const libraries = Find<CodeComboBox>("cmbShowDepartments");
  ASSERT_EQ(libraries->Count(), 3);
  EXPECT_EQ(libraries->TextAt(0), "All libraries");
  EXPECT_EQ(libraries->TextAt(1), "ONE");
  EXPECT_EQ(libraries->TextAt(2), "TWO");
  EXPECT_EQ(libraries->Index(), 0);
  EXPECT_EQ(Rows("grd2Department"), 4);
  EXPECT_EQ(Row("grd2Department"), 1);
  EXPECT_EQ(Text("txt2LibrarySymbol"), "ONE");
  EXPECT_EQ(Text("txt2Department"), "ART");
  EXPECT_EQ(Text("txt2Description"), "Fine arts");
  EXPECT_EQ(Text("txt2Address"), "Wing");
  EXPECT_EQ(Text("txtNCIPDepartment"), "N-ART");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_TRUE(IsShown(button)) << button;
}

TEST_F(DepartmentsTest, OneLibraryAloneCanBeShown) {
  Enter();
  Choose("cmbShowDepartments", "TWO");
  EXPECT_EQ(Statements(),
            QStringList{"SELECT   D.DEPARTMENT, D.DEPARTMENT_DESC, D.DEPARTMENT_ADDR, D.NCIP_DEPARTMENT, "
                        "L.LIBRARY_SYMBOL FROM ID_DEPARTMENT D, ID_LIBRARY L WHERE    L.LIBRARY_ID = D.LIBRARY_ID AND "
                        "     L.LIBRARY_SYMBOL = N'TWO' ORDER BY L.LIBRARY_SYMBOL, D.DEPARTMENT"});
  EXPECT_EQ(Rows("grd2Department"), 2);
  EXPECT_EQ(Row("grd2Department"), 1);
  EXPECT_EQ(Text("txt2Description"), "Art library");
  Choose("cmbShowDepartments", "All libraries");
  EXPECT_EQ(Rows("grd2Department"), 4);
  // The next visit begins with all of them.
  Choose("cmbShowDepartments", "TWO");
  SelectTab("sstabtables", frmTabulon::LoansTab);
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  EXPECT_EQ(Text("cmbShowDepartments"), "All libraries");
}

TEST_F(DepartmentsTest, AddStoresTheDepartmentInUpperCaseAndEveryLanguage) {
  Enter();
  Fill("TWO", " hi ", " O'Neill's ", " Floor 2 ", "");
  EXPECT_TRUE(gbRecordModified);
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Statements().mid(0, 4),
            (QStringList{"SELECT   LIBRARY_ID FROM ID_LIBRARY WHERE    LIBRARY_SYMBOL = N'TWO'",
                         "SELECT   DEPARTMENT FROM ID_DEPARTMENT WHERE    DEPARTMENT = N'HI' AND      LIBRARY_ID = 72",
                         "SELECT   DEPARTMENT FROM ID_DEPARTMENT WHERE    DEPARTMENT_DESC = N'O''Neill''s' AND      "
                         "LIBRARY_ID = 72",
                         "INSERT INTO ID_DEPARTMENT (DEPARTMENT, LIBRARY_ID, DEPARTMENT_DESC, DEPARTMENT_ADDR, "
                         "NCIP_DEPARTMENT, DEPARTMENT_DESC_ENG, DEPARTMENT_DESC_FRE, DEPARTMENT_DESC_GER) "
                         "VALUES(N'HI', 72, N'O''Neill''s', N'Floor 2', Null, N'O''Neill''s', N'O''Neill''s', "
                         "N'O''Neill''s')"}));
  for (const char* column : {"DEPARTMENT_DESC", "DEPARTMENT_DESC_ENG", "DEPARTMENT_DESC_FRE", "DEPARTMENT_DESC_GER"})
    EXPECT_EQ(Stored(column, 72, "HI"), "O'Neill's") << column;
  EXPECT_EQ(Count("ID_DEPARTMENT", "DEPARTMENT = 'HI' AND NCIP_DEPARTMENT IS NULL"), 1);
  EXPECT_EQ(Rows("grd2Department"), 5);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(DepartmentsTest, OnASiteOfOneLanguageNoLanguageColumnIsNamed) {
  Setting("System", "SingleLanguage", "Y");
  Enter();
  Add("TWO", "LAW", "Law");
  EXPECT_EQ(Writing(),
            QStringList{"INSERT INTO ID_DEPARTMENT (DEPARTMENT, LIBRARY_ID, DEPARTMENT_DESC, DEPARTMENT_ADDR, "
                        "NCIP_DEPARTMENT) VALUES(N'LAW', 72, N'Law', Null, Null)"});
}

TEST_F(DepartmentsTest, WhatIsMissingIsAskedForInOrder) {
  Enter();
  const struct {
    const char *symbol, *code, *description, *message, *focus;
  } cases[] = {{"", " ", "", "Please enter a Valid Code.", "txt2Department"},
               {"", "LAW", " ", "Please enter a Valid Description.", "txt2Description"},
               {" ", "LAW", "Law", "Please select a Library Symbol.", "txt2LibrarySymbol"},
               {"NOBODY", "LAW", "Law", "Please enter a Valid Library Symbol.", "txt2LibrarySymbol"},
               {"O%", "LAW", "Law", "Please enter a Valid Library Symbol.", "txt2LibrarySymbol"}};
  for (const auto& entry : cases) {
    Fill(entry.symbol, entry.code, entry.description);
    Prompt().Expect(entry.message, 48);
    Click("cmdAdd");
    EXPECT_EQ(Focus(), entry.focus);
    EXPECT_TRUE(gbRecordModified);
  }
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(DepartmentsTest, TheSameCodeCanStandForTwoLibraries) {
  Enter();
  Add("TWO", "MUS", "Music of two");
  EXPECT_EQ(Count("ID_DEPARTMENT", "DEPARTMENT = 'MUS'"), 2);
  Fill("TWO", "mus", "Another");
  Prompt().Expect("This Department Code already exists.", 48);
  Click("cmdAdd");
  EXPECT_EQ(Count("ID_DEPARTMENT", "DEPARTMENT = 'MUS'"), 2);
}

TEST_F(DepartmentsTest, ADescriptionIsUniqueWithinItsLibrary) {
  Enter();
  Fill("ONE", "XYZ", "Music");
  Prompt().Expect("The Description already exists for this\nLibrary Symbol in Department: MUS", 48);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt2Description");
  Select("ONE", "MUS");
  Select("ONE", "ART");
  Type("txt2Description", "Music");
  Prompt().Expect("The Description already exists for this\nLibrary Symbol in Department: MUS", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Stored("DEPARTMENT_DESC", 71, "ART"), "Fine arts");
  // In another library it is free.
  Select("TWO", "ART");
  Type("txt2Description", "Music");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  Add("TWO", "XYZ", "Fine arts");
  EXPECT_EQ(Stored("DEPARTMENT_DESC", 72, "XYZ"), "Fine arts");
}

TEST_F(DepartmentsTest, AFailedAddShowsTheDatabasesOwnWords) {
  Another("ALTER TABLE ID_DEPARTMENT RENAME COLUMN DEPARTMENT_DESC_GER TO GONE");
  Enter();
  Fill("TWO", "LAW", "Law");
  Prompt().ExpectStart("An error occurred while trying to add a Department Code.\n\n", 16);
  Click("cmdAdd");
  EXPECT_GT(Prompt().Shown().last().size(), 60);
  EXPECT_EQ(Text("txt2Description"), "Law");
  EXPECT_TRUE(gbRecordModified);
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24),
            "* ***** SQL error on OSTANA.ID_DEPARTMENT (INSERT INTO) *****");
}

TEST_F(DepartmentsTest, UpdateWritesTheWorkingLanguageAlone) {
  Enter("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  Select("ONE", "MUS");
  Type("txt2Description", " Musique ");
  Type("txt2Address", "");
  Type("txtNCIPDepartment", "");
  Statements();
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Statements().mid(0, 3),
            (QStringList{"SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  ID_LIBRARY WHERE LIBRARY_SYMBOL = 'ONE'",
                         "SELECT   DEPARTMENT FROM ID_DEPARTMENT WHERE    DEPARTMENT_DESC_FRE = N'Musique' AND      "
                         "LIBRARY_ID = 71",
                         "UPDATE   ID_DEPARTMENT SET      DEPARTMENT_DESC_FRE = N'Musique', DEPARTMENT_ADDR = Null, "
                         "NCIP_DEPARTMENT = Null WHERE    DEPARTMENT = N'MUS' AND      LIBRARY_ID = 71"}));
  EXPECT_EQ(Stored("DEPARTMENT_DESC", 71, "MUS"), "Music");
  EXPECT_EQ(Stored("DEPARTMENT_DESC_FRE", 71, "MUS"), "Musique");
  EXPECT_EQ(Cell("grd2Department", Row("grd2Department"), 2), "MUS");
  EXPECT_EQ(Cell("grd2Department", Row("grd2Department"), 3), "Musique");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(DepartmentsTest, AnUnchangedDescriptionIsNotLookedUp) {
  Enter();
  Select("ONE", "MUS");
  Type("txt2Address", "Attic");
  Statements();
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Statements().mid(0, 2),
            (QStringList{"SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  ID_LIBRARY WHERE LIBRARY_SYMBOL = 'ONE'",
                         "UPDATE   ID_DEPARTMENT SET      DEPARTMENT_DESC = N'Music', DEPARTMENT_ADDR = N'Attic', "
                         "NCIP_DEPARTMENT = N'N-MUS' WHERE    DEPARTMENT = N'MUS' AND      LIBRARY_ID = 71"}));
}

TEST_F(DepartmentsTest, AnotherCodeOrSymbolIsExplainedAndTheBoxesComeBack) {
  Enter();
  Select("ONE", "MUS");
  // The letters are compared as they stand: Update does not make capitals.
  for (const auto& [box, text] : {std::pair{"txt2Department", "mus"}, std::pair{"txt2LibrarySymbol", "TWO"}}) {
    Type(box, text);
    Type("txt2Description", "Sound");
    Prompt().Expect(
        "Only the Description, Address, and NCIP department may be updated.\n\nIf you wish to change the Department or "
        "Library Symbol the record must be deleted and a new record added.",
        48);
    Click("cmdUpdate");
    EXPECT_EQ(Text("txt2Department"), "MUS");
    EXPECT_EQ(Text("txt2LibrarySymbol"), "ONE");
    EXPECT_EQ(Text("txt2Description"), "Music");
    EXPECT_EQ(Text("txt2Address"), "Wing");
    EXPECT_EQ(Focus(), "txt2Description");
    EXPECT_FALSE(gbRecordModified);
  }
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(DepartmentsTest, UpdateOfNothingIsRefusedAndWithoutARowSilent) {
  Enter();
  Select("ONE", "MUS");
  Type("txt2Description", " Music ");
  Prompt().Expect("Nothing has been changed.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt2Department");
  Type("txt2Description", " ");
  Prompt().Expect("Enter a Valid Description.", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt2Description");
  Click("cmdClear");
  Fill("ONE", "MUS", "Sound");
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(DepartmentsTest, ClearEmptiesTheBoxesAndLeavesTheList) {
  Enter();
  Click("cmdClear");
  for (const char* box : {"txt2LibrarySymbol", "txt2Department", "txt2Description", "txt2Address", "txtNCIPDepartment"})
    EXPECT_EQ(Text(box), "") << box;
  EXPECT_EQ(Row("grd2Department"), 0);
  EXPECT_EQ(Rows("grd2Department"), 4);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(DepartmentsTest, DeleteAsksAndTakesTheRowOfTheLibrary) {
  Enter();
  Select("TWO", "ART");
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Click("cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_DEPARTMENT WHERE    DEPARTMENT = 'ART' AND      LIBRARY_ID = 72"});
  EXPECT_EQ(Count("ID_DEPARTMENT", "DEPARTMENT = 'ART'"), 1);
  EXPECT_EQ(Row("grd2Department"), 1);
  EXPECT_EQ(Text("txt2Department"), "ART");
  EXPECT_EQ(Text("txt2LibrarySymbol"), "ONE");
}

TEST_F(DepartmentsTest, WhatCannotBeDeletedIsSaid) {
  Enter();
  Click("cmdClear");
  Prompt().Expect("Choose a record to be Deleted", 16);
  Click("cmdDelete");
  EXPECT_EQ(Focus(), "txt2Department");
  Fill("ONE", "ZZZ", "");
  Prompt().Expect("Please select a valid record from the table.", 16);
  Click("cmdDelete");
  // The code is in the list, but not for this library.
  Fill("TWO", "MUS", "");
  Prompt()
      .Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes)
      .Expect("Nothing was deleted.  Make sure you have a valid record selected.", 48);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_DEPARTMENT"), 3);
}

TEST_F(DepartmentsTest, ADepartmentInUseIsNotDeleted) {
  Another("INSERT INTO ID_PATRON (LIBRARY_ID, PATRON_ID, DEPARTMENT) VALUES (71, 'P1', 'MUS')");
  Enter();
  Select("ONE", "MUS");
  Prompt()
      .Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes)
      .Expect(
          "An error has occurred while attempting to delete the record.\n\nThe Code is referenced by another table "
          "in the database.",
          16);
  Click("cmdDelete");
  EXPECT_EQ(Text("txt2Department"), "MUS");
  EXPECT_EQ(Count("ID_DEPARTMENT"), 3);
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24), "* ***** SQL error on OSTANA.ID_DEPARTMENT (DELETE) *****");
}

TEST_F(DepartmentsTest, FindLibraryPutsTheSymbolIntoTheBox) {
  Enter();
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(73); });
  Click("cmd2FindLibrary");
  EXPECT_EQ(Text("txt2LibrarySymbol"), "BARE");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(DepartmentsTest, FindLibraryWithoutAnAnswerKeepsTheBox) {
  Enter();
  WhenShown("frmLibraryRegistration", [](Screen&) { gclsOF->SetLibraryId(0); });
  Click("cmd2FindLibrary");
  EXPECT_EQ(Text("txt2LibrarySymbol"), "ONE");
  EXPECT_EQ(Focus(), "txt2LibrarySymbol");
}

TEST_F(DepartmentsTest, FindLibraryNeedsItsRight) {
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Library Registration'");
  Enter();
  Prompt().Expect("You do not have access to this function", 16);
  Click("cmd2FindLibrary");
  EXPECT_EQ(Text("txt2LibrarySymbol"), "ONE");
  EXPECT_EQ(gclsOF->CurrentFunction(), "Tabulon");
}

TEST_F(DepartmentsTest, ALibraryThatIsGoneIsRefusedOnUpdate) {
  Enter();
  Select("ONE", "MUS");
  Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = 'FIRST' WHERE LIBRARY_ID = 71");
  Type("txt2Address", "Attic");
  Prompt().Expect("Please enter a Valid Library Symbol.", 48);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(DepartmentsTest, AMissingTableSaysSoAndLeavesTheOtherTabsWorking) {
  Another("ALTER TABLE ID_DEPARTMENT RENAME TO ID_DEPARTMENT_AWAY");
  Start();
  Prompt()
      .Expect("***** SQL error on OSTANA.ID_LIBRARY (Select) *****", 16)
      .Expect("***** SQL error on OSTANA.ID_DEPARTMENT (Select) *****", 16);
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  EXPECT_EQ(Rows("grd2Department"), 1);
  SelectTab("sstabtables", frmTabulon::CoverPagesTab);
  EXPECT_GT(Rows("grd1CoverInfo"), 1);
}

TEST_F(DepartmentsTest, AClosedConnectionIsOpenedAgain) {
  Enter();
  gclsOF->Connection().Close();
  Add("TWO", "LAW", "Law");
  Select("TWO", "LAW");
  gclsOF->Connection().Close();
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_DEPARTMENT"), 3);
}

TEST_F(DepartmentsTest, Looks) {
  Enter();
  Picture("departments");
}

}  // namespace
