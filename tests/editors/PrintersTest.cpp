#include <QTest>

#include "core/ModuleState.h"
#include "support/Desk.h"

namespace {

const QString DeleteQuestion = "Are you sure you wish to Delete this record?";

class PrintersTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Desk', 'laser-1')");
    Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Stacks', NULL)");
    Prompt().SetPrinterNames({"laser-1", "laser-2"});
  }
  void Enter() {
    Start();
    SelectTab("sstabtables", frmTabulon::PrintersTab);
    Statements();
  }
  // Through the printer dialog: the box itself cannot be typed into.
  void Device(const QString& name) {
    Prompt().NextPrinter(name);
    Click("cmd3Select");
  }
  void Update() {
    Prompt().Expect("Record Updated", 64);
    Click("cmdUpdate");
  }
};

TEST_F(PrintersTest, TheTabListsThePrintersAndSelectsTheFirst) {
  Start();
  Statements();
  SelectTab("sstabtables", frmTabulon::PrintersTab);
  EXPECT_EQ(Statements(), QStringList{"SELECT   * FROM ID_PRINTER"});
  EXPECT_EQ(Cell("grd3Printer", 0, 1), "Printer Name");
  EXPECT_EQ(Cell("grd3Printer", 0, 2), "Device");
  EXPECT_EQ(Rows("grd3Printer"), 3);
  EXPECT_EQ(Row("grd3Printer"), 1);
  EXPECT_EQ(Text("txt3Printer"), "Desk");
  EXPECT_EQ(Text("txt3Device"), "laser-1");
  EXPECT_EQ(Focus(), "txt3Printer");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"}) EXPECT_TRUE(IsShown(button)) << button;
}

TEST_F(PrintersTest, TheDeviceComesFromThePrinterDialogAlone) {
  Enter();
  Find<TextBox>("txt3Device")->setFocus();
  EXPECT_NE(Focus(), "txt3Device");
  EXPECT_TRUE(Find<TextBox>("txt3Device")->isReadOnly());
  Device("laser-2");
  EXPECT_EQ(Text("txt3Device"), "laser-2");
  EXPECT_EQ(Focus(), "txt3Printer");
  EXPECT_TRUE(gbRecordModified);
  EXPECT_FALSE(gbSkipActivate);
}

TEST_F(PrintersTest, ACancelledPrinterDialogLeavesTheDevice) {
  Enter();
  Prompt().NextPrinter({});
  Click("cmd3Select");
  EXPECT_EQ(Text("txt3Device"), "laser-1");
  EXPECT_EQ(Focus(), "txt3Printer");
  EXPECT_FALSE(gbRecordModified);
  EXPECT_FALSE(gbSkipActivate);
}

TEST_F(PrintersTest, ThePrinterDialogIsNoNewActivationOfTheForm) {
  Enter();
  const auto activations = [this] { return LogLines().filter("Form_Activate - Logon Worked").size(); };
  const qsizetype before = activations();
  Device("laser-2");
  EXPECT_EQ(activations(), before);
  Shell().Form_Activate();
  EXPECT_EQ(activations(), before + 1);
}

TEST_F(PrintersTest, WithoutAPrinterOnTheMachineNothingChanges) {
  Prompt().SetPrinterNames({});
  Enter();
  Prompt().Expect("No printer is installed on this machine.", 48);
  Click("cmd3Select");
  EXPECT_EQ(Text("txt3Device"), "laser-1");
  EXPECT_FALSE(gbRecordModified);
  EXPECT_FALSE(gbSkipActivate);
}

TEST_F(PrintersTest, AddStoresBothTextsAndSelectsTheRow) {
  Enter();
  Click("cmdClear");
  Type("txt3Printer", "  Reader's hall ");
  Device("\\\\server\\o'laser");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_PRINTER (PRINTER, DEVICE ) VALUES('Reader''s hall', "
                                   "'\\\\server\\o''laser')"});
  EXPECT_EQ(Ask("SELECT DEVICE FROM ID_PRINTER WHERE PRINTER = 'Reader''s hall'"), "\\\\server\\o'laser");
  EXPECT_EQ(Cell("grd3Printer", Row("grd3Printer"), 1), "Reader's hall");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(PrintersTest, AnAddedPrinterWithoutADeviceHasAnEmptyText) {
  Enter();
  Click("cmdClear");
  Type("txt3Printer", "Bare");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_PRINTER (PRINTER, DEVICE ) VALUES('Bare', '')"});
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'Bare' AND DEVICE = ''"), 1);
}

TEST_F(PrintersTest, AddRefusesAnEmptyNameAndADuplicate) {
  Enter();
  Type("txt3Printer", "  ");
  Prompt().Expect("Please enter a Valid Code.", 48);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt3Printer");
  Type("txt3Printer", " Stacks ");
  Prompt().Expect("This record already exists", 48);
  Click("cmdAdd");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(PrintersTest, ADuplicateMadeByAnotherClientIsRefusedByTheDatabase) {
  Enter();
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Fresh', 'theirs')");
  Type("txt3Printer", "Fresh");
  Prompt().Expect("A database error has occurred.  Please verify your data entry\nand your Database structure.", 16);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt3Printer"), "Fresh");
  EXPECT_EQ(Ask("SELECT DEVICE FROM ID_PRINTER WHERE PRINTER = 'Fresh'"), "theirs");
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24), "* ***** SQL error on OSTANA.ID_PRINTER (INSERT INTO) *****");
}

TEST_F(PrintersTest, UpdateOfTheDeviceAloneFindsTheRowByItsName) {
  Enter();
  SelectRowOf("grd3Printer", "Stacks");
  Device("laser-2");
  Update();
  EXPECT_EQ(Writing(), QStringList{"UPDATE  ID_PRINTER SET DEVICE = 'laser-2' WHERE PRINTER = 'Stacks'"});
  EXPECT_EQ(Ask("SELECT DEVICE FROM ID_PRINTER WHERE PRINTER = 'Stacks'"), "laser-2");
  EXPECT_EQ(Cell("grd3Printer", Row("grd3Printer"), 2), "laser-2");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(PrintersTest, UpdateOfTheNameAloneFindsTheRowByBoth) {
  Enter();
  Type("txt3Printer", "Counter");
  Update();
  EXPECT_EQ(Writing(), QStringList{"UPDATE  ID_PRINTER SET PRINTER = 'Counter', DEVICE = 'laser-1' WHERE PRINTER = "
                                   "'Desk' AND DEVICE = 'laser-1'"});
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'Counter' AND DEVICE = 'laser-1'"), 1);
  EXPECT_EQ(Cell("grd3Printer", 1, 1), "Counter");
}

TEST_F(PrintersTest, UpdateOfBothFindsARowWhoseDeviceIsNull) {
  Enter();
  SelectRowOf("grd3Printer", "Stacks");
  Type("txt3Printer", "Cellar");
  Device("laser-2");
  Update();
  EXPECT_EQ(Writing(), QStringList{"UPDATE  ID_PRINTER SET PRINTER = 'Cellar', DEVICE = 'laser-2' WHERE PRINTER = "
                                   "'Stacks' AND (DEVICE = '' OR DEVICE IS NULL)"});
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'Cellar' AND DEVICE = 'laser-2'"), 1);
  // Written again from what the grid holds now.
  Type("txt3Printer", "Vault");
  Update();
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'Vault'"), 1);
}

TEST_F(PrintersTest, UpdateRefusesInItsOrder) {
  Enter();
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt3Printer");
  Type("txt3Printer", " ");
  Prompt().Expect("Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  SelectRowOf("grd3Printer", "Stacks");
  Type("txt3Printer", "Desk");
  Prompt().Expect("Please select a Valid Device using the Device button.", 16);
  Click("cmdUpdate");
  Device("laser-2");
  Prompt().Expect("This Code already exists. Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  Click("cmdClear");
  Device("laser-2");
  Type("txt3Printer", "Elsewhere");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", 16);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(PrintersTest, ARefusedUpdateIsRolledBackAndTold) {
  Enter();
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Fresh', 'theirs')");
  Type("txt3Printer", "Fresh");
  Prompt().Expect("***** SQL error on OSTANA.ID_PRINTER (UPDATE) *****", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Cell("grd3Printer", 1, 1), "Desk");
  EXPECT_EQ(Text("txt3Printer"), "Fresh");
  EXPECT_TRUE(gbRecordModified);
  // Nothing is left open: the next write goes through.
  Type("txt3Printer", "Counter");
  Update();
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'Counter'"), 1);
}

TEST_F(PrintersTest, DeleteAsksFirst) {
  Enter();
  Prompt().Expect(DeleteQuestion, 36, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_PRINTER"), 2);
  Prompt().Expect(DeleteQuestion, 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Click("cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_PRINTER WHERE PRINTER ='Desk'"});
  EXPECT_EQ(Rows("grd3Printer"), 2);
  EXPECT_EQ(Text("txt3Printer"), "");
}

TEST_F(PrintersTest, WhatCannotBeDeletedIsSaid) {
  Enter();
  Type("txt3Printer", " ");
  Prompt().Expect("Please choose a record to be Deleted", 48);
  Click("cmdDelete");
  Type("txt3Printer", "Nowhere");
  Prompt().Expect("Please select a valid record from the table.", 16);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(PrintersTest, AFailedDeleteKeepsItsMisspeltLine) {
  Enter();
  Another("ALTER TABLE ID_PRINTER RENAME TO ID_PRINTER_AWAY");
  Prompt()
      .Expect(DeleteQuestion, 36, MessageAnswer::Yes)
      .Expect("An error has occurred while attempting to delete the record.\n\nIf the error persists notify support.",
              16);
  Click("cmdDelete");
  EXPECT_EQ(LogLines().at(LogLines().size() - 2).mid(24), "* ***** SQL error on OSTANA.ID_PRIONTERS (DELETE) *****");
}

TEST_F(PrintersTest, ClearEmptiesTheBoxesAndLeavesTheList) {
  Enter();
  Type("txt3Printer", "else");
  Click("cmdClear");
  EXPECT_EQ(Text("txt3Printer"), "");
  EXPECT_EQ(Text("txt3Device"), "");
  EXPECT_EQ(Row("grd3Printer"), 0);
  EXPECT_EQ(Rows("grd3Printer"), 3);
  EXPECT_EQ(Focus(), "txt3Printer");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(PrintersTest, TheNameTakesFortyCharacters) {
  Enter();
  Type("txt3Printer", QString(45, 'p'));
  EXPECT_EQ(Text("txt3Printer").size(), 40);
  EXPECT_EQ(Find<TextBox>("txt3Device")->MaxLength(), 80);
}

TEST_F(PrintersTest, Looks) {
  Enter();
  Picture("printers");
}

TEST_F(PrintersTest, ARefusedUpdateStaysChangedWhateverWasTrimmed) {
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Aaa', NULL)");
  Enter();
  SelectRowOf("grd3Printer", "Aaa");
  Type("txt3Printer", "Bbb ");
  Append("txt3Printer", " ");
  Prompt().Expect("Please select a Valid Device using the Device button.", 16);
  Click("cmdUpdate");
  EXPECT_EQ(Text("txt3Printer"), "Bbb");
  EXPECT_TRUE(gbRecordModified);
}

TEST_F(PrintersTest, TheArrowKeysGoOnThroughTheList) {
  for (const char* name : {"Aaa", "Bbb", "Ccc"})
    Another(QString("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('%1', 'd')").arg(name));
  Enter();
  SelectRow("grd3Printer", 1);
  for (const int row : {2, 3}) {
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(Row("grd3Printer"), row);
  }
}

}  // namespace
