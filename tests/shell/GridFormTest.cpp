// A grid that is told once: its shape and its rows.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/Record.h"
#include "platform/ado/AdoError.h"
#include "shell/GridForm.h"
#include "support/Desk.h"

namespace {

class GridFormTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Logon();
    printers_.Shows({"PRINTER", "Printer Name", 2000}).Shows({"DEVICE", "Device", 5620});
    printers_.Shape();
  }
  void Load() { printers_.Load("SELECT * FROM ID_PRINTER", "***** SQL error on OSTANA.ID_PRINTER (Select) *****"); }

  Record record_;
  Grid grid_{nullptr, "grd3Printer"};
  GridForm printers_{&grid_, record_};
};

TEST_F(GridFormTest, AnEmptyTableKeepsItsHeadingRowAndRaisesNoEvent) {
  Another("DELETE FROM ID_PRINTER");
  int events = 0;
  QObject::connect(&grid_, &Grid::SelChange, &grid_, [&events] { ++events; });
  Load();
  EXPECT_EQ(grid_.Rows(), 1);
  EXPECT_EQ(grid_.Text(0, 1), "Printer Name");
  EXPECT_EQ(grid_.ColWidth(2), 5620);
  EXPECT_EQ(events, 0);
}

TEST_F(GridFormTest, NullInAShownColumnGivesAnEmptyCell) {
  Another("DELETE FROM ID_PRINTER");
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Desk', NULL)");
  Load();
  ASSERT_EQ(grid_.Rows(), 2);
  EXPECT_EQ(printers_.Cell(1, "PRINTER"), "Desk");
  EXPECT_EQ(printers_.Cell(1, "DEVICE"), "");
}

TEST_F(GridFormTest, DescriptionsAreReadInTheWorkingLanguage) {
  Another("UPDATE ID_DELIV_METHOD SET DELIV_METHOD_DESC_FRE = 'Courrier' WHERE DELIV_METHOD = 'M'");
  gclsOF->SetLanguageSuffix("_FRE");
  Grid grid(nullptr, "grd5aTable");
  GridForm methods(&grid, record_);
  methods.Shows({"DELIV_METHOD", "Code"}).Shows({"DELIV_METHOD_DESC+", "Description"});
  methods.Shape();
  methods.Load("SELECT * FROM ID_DELIV_METHOD", {});
  EXPECT_EQ(grid.Text(grid.FindRow("M", 1), 2), "Courrier");
}

TEST_F(GridFormTest, AFailedStatementLeavesTheHeadingRow) {
  Load();
  Another("ALTER TABLE ID_PRINTER RENAME TO ID_PRINTER_AWAY");
  EXPECT_THROW(Load(), AdoError);
  EXPECT_EQ(gstrErrorMessage, "***** SQL error on OSTANA.ID_PRINTER (Select) *****");
  EXPECT_EQ(grid_.Rows(), 1);
}

// --- The fields of a row ---

TEST_F(GridFormTest, WhatIsTrimmedAwayIsNoChangeAndWhatIsTypedIsOne) {
  Another("DELETE FROM ID_PRINTER");
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Desk', 'd')");
  Grid grid(nullptr, "grd");
  TextBox name(nullptr, "txtName"), device(nullptr, "txtDevice");
  GridForm form(&grid, record_);
  form.Edits(&name, {"PRINTER", "Printer Name"}).Edits(&device, {"DEVICE", "Device"});
  form.Shape();
  form.Load("SELECT * FROM ID_PRINTER", {});
  ASSERT_TRUE(form.SelectFirstRow([&] { form.ShowRow(1); }));
  EXPECT_TRUE(record_.MayBeWritten());
  device.SetText("other");
  EXPECT_TRUE(record_.Modified());
  {
    const Record::Filling filling(record_);
    name.SetText("Desk ");
  }
  form.TrimAll();
  EXPECT_EQ(name.Text(), "Desk");
  EXPECT_TRUE(record_.Modified());
  form.ShowRow(1);
  EXPECT_FALSE(record_.Modified());
  device.SetText("again");
  record_.Settled();
  form.CompareAgain();
  EXPECT_TRUE(record_.Modified());
  form.Clear();
  grid.SetRowQuietly(0);
  form.CompareAgain();
  EXPECT_FALSE(record_.Modified());
  EXPECT_FALSE(record_.MayBeWritten());
}

}  // namespace
