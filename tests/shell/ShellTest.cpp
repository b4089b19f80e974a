#include <QAction>
#include <QMenu>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

const QString Question = "A record has been modified.\nDo you wish to apply the updates before continuing?";

class ShellTest : public Desk {
 protected:
  void PickCategories() {
    Another("UPDATE ID_TABLES SET VIEW_ONLY_FLAG = 'F' WHERE TABLES = 'ID_LIBRARY_CAT'");
    Start();
    ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_LIBRARY_CAT"));
  }
  // A press on the tab's handle, also where the tab is on screen already.
  void ClickTab(int index) {
    auto* const bar = Find<QTabWidget>("sstabtables")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    QCoreApplication::processEvents();
  }
  void Rights(const QString& add, const QString& update, const QString& remove) {
    Another("UPDATE ID_USER_FUNCTION SET ADD_FLAG = '" + add + "', UPDATE_FLAG = '" + update + "', DELETE_FLAG = '" +
            remove + "' WHERE FUNCTION_NAME = 'Tabulon'");
  }
};

TEST_F(ShellTest, TheTwelveTabsBearTheirNames) {
  Start();
  auto* const tabs = Find<QTabWidget>("sstabtables");
  const QStringList names = {"Code Tables",  "Cover Pages",        "Departments", "Printers",
                             "Auto Rejects", "Delivery/Messaging", "Loans",       "Invoicing",
                             "Exceptions",   "Request Type",       "Audit Codes", "Miscellaneous"};
  ASSERT_EQ(tabs->count(), names.size());
  for (int index = 0; index < names.size(); ++index) EXPECT_EQ(tabs->tabText(index), names[index]);
}

TEST_F(ShellTest, EveryTabCanBeEntered) {
  Start();
  for (int index = frmTabulon::TabCount - 1; index >= 0; --index) {
    SelectTab("sstabtables", index);
    EXPECT_EQ(Shell().Tab(), index);
  }
}

TEST_F(ShellTest, ATabChangeWithNothingModifiedAsksNoQuestion) {
  PickCategories();
  SelectTab("sstabtables", 6);
  EXPECT_EQ(Shell().Tab(), 6);
  EXPECT_EQ(Focus(), "cmdLoans");
}

TEST_F(ShellTest, NoKeepsTheUserOnTheOldTabAndReloadsIt) {
  PickCategories();
  Type("txt0Description", "changed");
  Prompt().Expect(Question, 36, MessageAnswer::No);
  SelectTab("sstabtables", 6);
  EXPECT_EQ(Shell().Tab(), 0);
  EXPECT_FALSE(gbRecordModified);
  EXPECT_EQ(Text("cmb0Tables"), "(none)");
  EXPECT_EQ(Text("txt0Description"), "");
  // Moving on takes a second click.
  SelectTab("sstabtables", 6);
  EXPECT_EQ(Shell().Tab(), 6);
}

TEST_F(ShellTest, YesSavesTheRecordOfTheTabThatWasLeft) {
  PickCategories();
  const QString code = Text("txt0Code");
  Type("txt0Description", "changed");
  Prompt().Expect(Question, 36, MessageAnswer::Yes).Expect("Record Updated", 64);
  SelectTab("sstabtables", 6);
  EXPECT_EQ(Ask("SELECT LIBRARY_CAT_DESC FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = '" + code + "'"), "changed");
  EXPECT_EQ(Shell().Tab(), 6);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ShellTest, YesWithAnUpdateThatFailsReturnsInSilenceAtTheNextTabClick) {
  PickCategories();
  Type("txt0Code", "??");
  Prompt()
      .Expect(Question, 36, MessageAnswer::Yes)
      .Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 48);
  SelectTab("sstabtables", 6);
  EXPECT_EQ(Shell().Tab(), 6);
  SelectTab("sstabtables", 11);
  EXPECT_EQ(Shell().Tab(), 0);
  EXPECT_EQ(Text("txt0Code"), "??");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(ShellTest, UpdateOnATabThatWasNotSetUpStillMeansTheRecordThatWaits) {
  PickCategories();
  const QString code = Text("txt0Code");
  Type("txt0Description", "changed");
  Another("ALTER TABLE ID_LIBRARY_CAT RENAME TO ID_LIBRARY_CAT_AWAY");
  Prompt()
      .Expect(Question, 36, MessageAnswer::Yes)
      .Expect("An error has occurred updating the table.\n\nIf the error persists notify support.", 16);
  SelectTab("sstabtables", 6);
  Another("ALTER TABLE ID_LIBRARY_CAT_AWAY RENAME TO ID_LIBRARY_CAT");
  EXPECT_TRUE(gbRecordModified);
  // The other buttons belong to the tab on screen, which has no record.
  for (const char* button : {"cmdAdd", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsEnabled(button)) << button;
  Shell().cmdClear_Click();
  EXPECT_TRUE(gbRecordModified);
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_FALSE(gbRecordModified);
  EXPECT_EQ(Ask("SELECT LIBRARY_CAT_DESC FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = '" + code + "'"), "changed");
}

TEST_F(ShellTest, ATabThatWasNotSetUpShowsNothingOfItsPageAndOpensAtAClick) {
  PickCategories();
  SelectTab("sstabtables", frmTabulon::AuditTab);
  const QString code = Text("txt10aCode");
  SelectTab("sstabtables", frmTabulon::CodeTablesTab);
  ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_LIBRARY_CAT"));
  Type("txt0Description", "changed");
  Prompt().Expect(Question, 36, MessageAnswer::Yes).Expect("Record Updated", 64);
  SelectTab("sstabtables", frmTabulon::AuditTab);
  EXPECT_FALSE(IsShown("txt10aDescription"));
  EXPECT_EQ(Text("lblNotSetUp"), "Click the tab again to open it.");
  // Update still means the record of the page that is set up.
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  ClickTab(frmTabulon::AuditTab);
  EXPECT_FALSE(IsShown("lblNotSetUp"));
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  Type("txt10aDescription", "Reading room");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT STAT_LOCATION_DESC FROM ID_STAT_LOCATION WHERE STAT_LOCATION = '" + code + "'"),
            "Reading room");
}

TEST_F(ShellTest, AClickOnATabThatWasNotSetUpReturnsToTheRecordThatWaits) {
  PickCategories();
  Type("txt0Code", "??");
  Prompt()
      .Expect(Question, 36, MessageAnswer::Yes)
      .Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 48);
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  Statements();
  ClickTab(frmTabulon::DepartmentsTab);
  EXPECT_EQ(Shell().Tab(), frmTabulon::CodeTablesTab);
  EXPECT_EQ(Text("txt0Code"), "??");
  EXPECT_TRUE(IsShown("txt0Code"));
  EXPECT_TRUE(IsEnabled("cmdClear"));
  EXPECT_TRUE(gbRecordModified);
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(ShellTest, TheRecordThatWaitsKeepsItsGridAndItsList) {
  PickCategories();
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  SelectTab("sstabtables", frmTabulon::CodeTablesTab);
  ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_LIBRARY_CAT"));
  const int rows = Rows("grd0TableDesc");
  Type("txt0Code", "??");
  Prompt()
      .Expect(Question, 36, MessageAnswer::Yes)
      .Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 48);
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  // Nothing of the page that was set up before can be reached.
  for (const char* control : {"cmbShowDepartments", "txt2Department", "grd2Department"})
    EXPECT_FALSE(IsShown(control)) << control;
  Shell().LoadDataInGrid();
  EXPECT_EQ(Rows("grd0TableDesc"), rows);
}

TEST_F(ShellTest, ClosingWithAnUnchangedRecordEndsWithoutAQuestion) {
  PickCategories();
  Click("cmdClose");
  EXPECT_TRUE(ProcessEnded());
  EXPECT_EQ(ExitCode(), 0);
}

TEST_F(ShellTest, ClosingWithAChangedRecordSavesAndStays) {
  PickCategories();
  Type("txt0Description", "changed");
  Prompt().Expect(Question, 36, MessageAnswer::Yes).Expect("Record Updated", 64);
  Trigger("mnuFileExit");
  EXPECT_FALSE(ProcessEnded());
  Click("cmdClose");
  EXPECT_TRUE(ProcessEnded());
}

TEST_F(ShellTest, ClosingWhileUpdateIsHiddenEndsModifiedOrNot) {
  Start();
  Shell().LivePage()->CurrentRecord().Touched();
  ASSERT_FALSE(IsShown("cmdUpdate"));
  Click("cmdClose");
  EXPECT_TRUE(ProcessEnded());
}

TEST_F(ShellTest, ClearOnTheTabsWithoutARecordDoesNothing) {
  Start();
  for (int index : {6, 11}) {
    SelectTab("sstabtables", index);
    Statements();
    Shell().cmdClear_Click();
    EXPECT_TRUE(Statements().isEmpty());
  }
}

TEST_F(ShellTest, TheModeLettersShowButtonsAndEntriesAlike) {
  Start();
  const std::pair<QString, std::array<bool, 4>> modes[] = {{"F", {true, true, true, true}},
                                                           {"A", {true, true, false, true}},
                                                           {"U", {false, true, false, true}},
                                                           {"O", {false, false, false, false}},
                                                           {"x", {true, true, true, true}}};
  const char* const buttons[] = {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"};
  const char* const entries[] = {"mnuOptionsAdd", "mnuOptionsUpdate", "mnuOptionsDelete", "mnuOptionsClear"};
  for (const auto& [letter, shown] : modes) {
    Shell().EnableButtons(letter);
    for (size_t index = 0; index < 4; ++index) {
      EXPECT_EQ(IsShown(buttons[index]), shown[index]) << letter.toStdString() << " " << buttons[index];
      EXPECT_EQ(IsShown(entries[index]), shown[index]) << letter.toStdString() << " " << entries[index];
    }
  }
}

TEST_F(ShellTest, UpdateWithoutDeleteKeepsUpdateAndLosesDeleteAndClear) {
  Rights("Y", "Y", "N");
  Start();
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  EXPECT_TRUE(IsEnabled("cmdUpdate"));
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  EXPECT_FALSE(IsEnabled("cmdClear"));
  EXPECT_FALSE(IsEnabled("mnuOptionsClear"));
}

TEST_F(ShellTest, ARightThatIsMissingStaysMissingOnEveryTab) {
  Rights("N", "Y", "Y");
  Start();
  for (int index = 0; index < frmTabulon::TabCount; ++index) {
    SelectTab("sstabtables", index);
    EXPECT_FALSE(IsEnabled("cmdAdd")) << index;
    EXPECT_FALSE(IsEnabled("mnuOptionsAdd")) << index;
  }
}

TEST_F(ShellTest, AUserWithoutAnyRightMayReadTheTabs) {
  Rights("N", "N", "N");
  Start();
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_FALSE(IsEnabled(button)) << button;
  EXPECT_FALSE(Find<QMenu>("mnuOptions")->menuAction()->isEnabled());
  EXPECT_FALSE(ProcessEnded());
  ChooseAt("cmb0Tables", 1);
  EXPECT_GE(Rows("grd0TableDesc"), 1);
}

TEST_F(ShellTest, TheStatusBarSaysWhoWorksWhere) {
  Start("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  const QString status = Text("lblStatus");
  EXPECT_TRUE(status.contains("User: admin")) << status.toStdString();
  EXPECT_TRUE(status.contains("Language: FRE")) << status.toStdString();
  EXPECT_TRUE(status.contains("Rights: Add, Update, Delete")) << status.toStdString();
}

TEST_F(ShellTest, TheStatusBarsTipSaysHowTheLinkIs) {
  Start();
  EXPECT_EQ(Find<QLabel>("lblStatus")->toolTip(),
            "Link to the database: " +
                QString(TestDatabase::TestEngine() == Engine::Sqlite ? "a file" : "not encrypted"));
}

TEST_F(ShellTest, ALostConnectionIsOpenedAgainAtTheNextStatement) {
  PickCategories();
  gclsOF->Connection().Close();
  SelectRow("grd0TableDesc", 1);
  Type("txt0Description", "after the break");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(gclsOF->Connection().State(), 1);
}

TEST_F(ShellTest, AFailedStatementLeavesNoOpenTransaction) {
  PickCategories();
  Another("ALTER TABLE ID_LIBRARY_CAT RENAME TO ID_LIBRARY_CAT_AWAY");
  Type("txt0Description", "never stored");
  Prompt().Expect("An error has occurred updating the table.\n\nIf the error persists notify support.", 16);
  Click("cmdUpdate");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(gbRecordModified);
  EXPECT_EQ(Text("txt0Description"), "never stored");
  Another("ALTER TABLE ID_LIBRARY_CAT_AWAY RENAME TO ID_LIBRARY_CAT");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
}

TEST_F(ShellTest, TheMiscellaneousButtonsFollowTheWebServiceSwitch) {
  Start();
  SelectTab("sstabtables", 11);
  EXPECT_FALSE(IsEnabled("cmdServiceCode"));
  EXPECT_FALSE(IsEnabled("cmdSuppliedItemType"));
  EXPECT_TRUE(IsEnabled("cmd11CurrencyCode"));
}

TEST_F(ShellTest, ItemTypesAreOpenWhereLoanDocumentsShowThem) {
  Setting("Login", "DisplayItemTypeInLoanDocument", "Y");
  Start();
  SelectTab("sstabtables", 11);
  EXPECT_FALSE(IsEnabled("cmdServiceCode"));
  EXPECT_TRUE(IsEnabled("cmdSuppliedItemType"));
}

TEST_F(ShellTest, WithAnOwnerEveryStatementOfEveryTabNamesIt) {
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "the tables of the test have no owner";
  Setting("Database", "OwnerPrefix", "OSTANA");
  PickCategories();
  for (int index = 1; index < frmTabulon::TabCount; ++index) SelectTab("sstabtables", index);
  SelectTab("sstabtables", 0);
  ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_LIBRARY_CAT"));
  Type("txt0Description", "changed");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  static const QRegularExpression bare("(?<!OSTANA\\.)\\bID_[A-Z]");
  const QStringList statements = Statements();
  EXPECT_GE(statements.size(), 20);
  for (const QString& statement : statements) EXPECT_FALSE(statement.contains(bare)) << statement.toStdString();
  EXPECT_TRUE(LogLines().filter("Error: ").isEmpty());
}

TEST_F(ShellTest, TheHelpMenuOpensBothAboutScreens) {
  Start();
  QString app, system;
  WhenShown("frmAboutApp", [&](Screen& screen) { app = screen.Caption(); });
  Trigger("mnuHelpAboutTabulon");
  WhenShown("frmAboutOstana", [&](Screen& screen) { system = screen.Caption(); });
  Trigger("mnuHelpAboutOstana");
  EXPECT_EQ(app, "About Tabulon");
  EXPECT_EQ(system, "About Ostana");
}

}  // namespace
