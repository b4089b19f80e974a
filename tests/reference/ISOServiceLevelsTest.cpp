#include "reference/ReferenceDesk.h"

namespace {

const QString Form = "frmISOServiceLevels";
const QString Table = "grdServiceLevel";
constexpr int Symbol = 1, Level = 4;

class ISOServiceLevelsTest : public ReferenceDesk {
 protected:
  void SetUp() override {
    ReferenceDesk::SetUp();
    Another("DELETE FROM ID_ISO_SERVICE_LEVEL");
    Another("INSERT INTO ID_ISO_SERVICE_LEVEL VALUES ('A', 'Normal', 'Local', 'X')");
    Another("INSERT INTO ID_ISO_SERVICE_LEVEL VALUES ('B', 'Rush''d', 'Full', 'U')");
    Another("INSERT INTO ID_ISO_SERVICE_LEVEL VALUES ('C', 'Express', 'Full', NULL)");
  }
  void OpenIt() {
    Open(Form);
    Statements();
  }
  std::string LevelOf(const QString& symbol) {
    return Told("SELECT SERVICE_LEVEL FROM ID_ISO_SERVICE_LEVEL WHERE ISO_SERVICE_SYMBOL = '" + symbol + "'");
  }
};

TEST_F(ISOServiceLevelsTest, ShowsTheLevelOfTheSelectedSymbol) {
  Open(Form);
  const QString statements = Statements().join('\n');
  EXPECT_TRUE(statements.contains(
      "SELECT   SERVICE_LEVEL, SERVICE_LEVEL_DESC FROM ID_SERVICE_LEVEL ORDER BY SERVICE_LEVEL_DESC"));
  EXPECT_TRUE(
      statements.contains("SELECT   ISO_SERVICE_SYMBOL, ISO_SERVICE_HANDLING, ISO_SERVICE_SEARCH, "
                          "SERVICE_LEVEL FROM ID_ISO_SERVICE_LEVEL"));
  EXPECT_EQ(Window()->windowTitle().toStdString(), "Ostana - ISO Levels of Service");
  EXPECT_EQ(At(Table, 1, Level), "X");
  EXPECT_EQ(Shown("cmbServiceLevel"), "Normal");
  SelectRowOf(Table, "B");
  EXPECT_EQ(Shown("cmbServiceLevel"), "Urgent");
  SelectRowOf(Table, "C");
  EXPECT_EQ(Shown("cmbServiceLevel"), "");
  EXPECT_EQ(Find<CodeComboBox>("cmbServiceLevel")->IndexOfText("(None)"), -1);
  EXPECT_EQ(Find<CodeComboBox>("cmbServiceLevel")->Count(), 4);
  Picture("frmISOServiceLevels");
}

TEST_F(ISOServiceLevelsTest, ListFollowsTheWorkingLanguage) {
  Another("UPDATE ID_SERVICE_LEVEL SET SERVICE_LEVEL_DESC_FRE = 'Normale' WHERE SERVICE_LEVEL = 'X'");
  gclsOF->SetLanguageSuffix("_FRE");
  Open(Form);
  EXPECT_EQ(Shown("cmbServiceLevel"), "Normale");
}

TEST_F(ISOServiceLevelsTest, EmptyTableIsToldOnceInAShowing) {
  Another("DELETE FROM ID_ISO_SERVICE_LEVEL");
  Prompt().Expect("The ISO Service Levels table has not been initialized.", Say::Stop);
  Screen& screen = Open(Form);
  dynamic_cast<ActivatedForm&>(screen).Form_Activate();
  EXPECT_TRUE(Logged("frmISOServiceLevels"));
  EXPECT_TRUE(Logged("The ISO Service Levels table has not been initialized."));
  Choose("cmbServiceLevel", "Express");
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
}

TEST_F(ISOServiceLevelsTest, LoadFailure) {
  Another("DROP TABLE ID_ISO_SERVICE_LEVEL");
  Prompt().ExpectStart("An error has occurred loading the fields.  Please Notify Support.\n\n", Say::Stop);
  Prompt().Expect("The ISO Service Levels table has not been initialized.", Say::Stop);
  Open(Form);
  EXPECT_TRUE(Logged("frmISOServiceLevels.PopulateForm"));
}

TEST_F(ISOServiceLevelsTest, UpdateWithoutAChangeEndsInALineBreak) {
  OpenIt();
  Prompt().Expect("Nothing has been changed.\n", Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(), "");
}

TEST_F(ISOServiceLevelsTest, ChangeOfOneRowRewritesAllAndKeepsNull) {
  OpenIt();
  SelectRowOf(Table, "B");
  Choose("cmbServiceLevel", "Express");
  EXPECT_EQ(At(Table, 2, Level), "E");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(Wrote(),
            "DELETE FROM ID_ISO_SERVICE_LEVEL\n"
            "INSERT INTO ID_ISO_SERVICE_LEVEL VALUES   ('A', 'Normal', 'Local', 'X')\n"
            "INSERT INTO ID_ISO_SERVICE_LEVEL VALUES   ('B', 'Rush''d', 'Full', 'E')\n"
            "INSERT INTO ID_ISO_SERVICE_LEVEL VALUES   ('C', 'Express', 'Full', NULL)");
  EXPECT_EQ(LevelOf("B"), "E");
  EXPECT_EQ(Count("ID_ISO_SERVICE_LEVEL", "SERVICE_LEVEL IS NULL"), 1);
  ExpectInStep(Form, Table);
  Prompt().Expect("Nothing has been changed.\n", Say::Stop);
  Click("cmdUpdate");
}

TEST_F(ISOServiceLevelsTest, InsertThatFailsHalfWayLeavesTheOldRows) {
  OpenIt();
  Choose("cmbServiceLevel", "Express");
  // Another client takes the level of the second row away: its insert breaks the foreign key.
  Another("UPDATE ID_ISO_SERVICE_LEVEL SET SERVICE_LEVEL = NULL WHERE ISO_SERVICE_SYMBOL = 'B'");
  Another("DELETE FROM ID_SERVICE_LEVEL WHERE SERVICE_LEVEL = 'U'");
  Prompt().Expect(
      "An error has occurred while attempting to update the record.\n\nIf the error persists notify support.",
      Say::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Writing().size(), 3) << "the delete, one row, and the row that failed";
  EXPECT_EQ(Count("ID_ISO_SERVICE_LEVEL"), 3);
  EXPECT_EQ(LevelOf("A"), "X");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(Logged("***** SQL error on ID_ISO_SERVICE_LEVEL (Insert) *****"));
  EXPECT_EQ(At(Table, 1, Level), "E") << "the user's choice stays on screen";
}

TEST_F(ISOServiceLevelsTest, DeleteThatFailsIsLoggedUnderItsLine) {
  OpenIt();
  Choose("cmbServiceLevel", "Express");
  Another("DROP TABLE ID_ISO_SERVICE_LEVEL");
  Prompt().ExpectStart("An error has occurred while attempting to update the record.", Say::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(Logged("***** SQL error on ID_ISO_SERVICE_LEVEL (Delete) *****"));
}

TEST_F(ISOServiceLevelsTest, ChoiceAfterASortGoesToTheRecordOnScreen) {
  OpenIt();
  SelectRowOf(Table, "A");
  SortBy(Table, 2);
  EXPECT_EQ(At(Table, Row(Table), Symbol), "A");
  Choose("cmbServiceLevel", "Contract");
  Prompt().Expect(Say::Updated, Say::Info);
  Click("cmdUpdate");
  EXPECT_EQ(LevelOf("A"), "C");
  ExpectInStep(Form, Table);
}

TEST_F(ISOServiceLevelsTest, CloseSharesTheCodeOfUpdate) {
  OpenIt();
  Choose("cmbServiceLevel", "Express");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes).Expect(Say::Updated, Say::Info);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Writing().size(), 4);
  EXPECT_EQ(LevelOf("A"), "E");
}

TEST_F(ISOServiceLevelsTest, CloseAnsweredWithNoLeavesTheTable) {
  OpenIt();
  Choose("cmbServiceLevel", "Express");
  Prompt().Expect(Say::Modified, Say::Question, Say::No);
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(LevelOf("A"), "X");
}

TEST_F(ISOServiceLevelsTest, CloseThatFailsStaysOpen) {
  OpenIt();
  Choose("cmbServiceLevel", "Urgent");
  Another("UPDATE ID_ISO_SERVICE_LEVEL SET SERVICE_LEVEL = NULL");
  Another("DELETE FROM ID_SERVICE_LEVEL WHERE SERVICE_LEVEL = 'U'");
  Prompt().Expect(Say::Modified, Say::Question, Say::Yes);
  Prompt().ExpectStart("An error has occurred while attempting to update the record.", Say::Stop);
  Press("cmbServiceLevel", Qt::Key_Escape);
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Count("ID_ISO_SERVICE_LEVEL"), 3);
}

}  // namespace
