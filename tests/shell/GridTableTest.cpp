#include "shell/GridTable.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "support/Desk.h"

namespace {

class GridTableTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Logon();
  }
};

TEST_F(GridTableTest, AnEmptyTableKeepsItsHeadingRowAndRaisesNoEvent) {
  Another("DELETE FROM ID_PRINTER");
  Grid grid(nullptr, "grd3Printer");
  int events = 0;
  QObject::connect(&grid, &Grid::SelChange, &grid, [&events] { ++events; });
  ShapeGrid(grid, *FindGridLayout("3"));
  FillGrid(grid, *FindGridRows("3"));
  EXPECT_EQ(grid.Rows(), 1);
  EXPECT_EQ(grid.Text(0, 1), "Printer Name");
  EXPECT_EQ(events, 0);
}

TEST_F(GridTableTest, NullInAShownColumnGivesAnEmptyCell) {
  Another("DELETE FROM ID_PRINTER");
  Another("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Desk', NULL)");
  Grid grid(nullptr, "grd3Printer");
  ShapeGrid(grid, *FindGridLayout("3"));
  FillGrid(grid, *FindGridRows("3"));
  ASSERT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.Text(1, 1), "Desk");
  EXPECT_EQ(grid.Text(1, 2), "");
}

TEST_F(GridTableTest, OneGridTakesSevenLayoutsOneAfterTheOther) {
  Grid grid(nullptr, "grd7Table");
  const std::pair<QString, int> layouts[] = {{"7 copyright", 4}, {"7 delivery", 7}, {"7 supply", 7},
                                             {"7 output", 7},    {"7 reject", 4},   {"7 service", 4},
                                             {"7 alias", 6},     {"7 copyright", 4}};
  for (const auto& [key, columns] : layouts) {
    ShapeGrid(grid, *FindGridLayout(key));
    EXPECT_EQ(grid.Cols(), columns) << key.toStdString();
    EXPECT_EQ(grid.ColHidden(1), key == "7 alias") << key.toStdString();
    EXPECT_EQ(grid.Rows(), 1);
  }
  EXPECT_EQ(grid.Text(0, 3), "Description");
}

TEST_F(GridTableTest, EveryTabWithAGridHasItsLayout) {
  for (const char* key : {"0",
                          "1",
                          "3",
                          "4",
                          "5 a",
                          "5 b",
                          "5 c",
                          "5 d",
                          "7 copyright",
                          "7 delivery",
                          "7 supply",
                          "7 output",
                          "7 reject",
                          "7 service",
                          "7 alias",
                          "7 billing rates",
                          "8 exceptions",
                          "8 process",
                          "8 group",
                          "8 iso",
                          "9",
                          "10 a",
                          "10 b"})
    EXPECT_NE(FindGridLayout(key), nullptr) << key;
}

TEST_F(GridTableTest, DescriptionsAreReadInTheWorkingLanguage) {
  Another("UPDATE ID_DELIV_METHOD SET DELIV_METHOD_DESC_FRE = 'Courrier' WHERE DELIV_METHOD = 'M'");
  gclsOF->SetLanguageSuffix("_FRE");
  Grid grid(nullptr, "grd5aTable");
  ShapeGrid(grid, *FindGridLayout("5 a"));
  FillGrid(grid, *FindGridRows("5 a"));
  EXPECT_EQ(grid.Text(grid.FindRow("M", 1), 2), "Courrier");
}

TEST_F(GridTableTest, AFailedStatementLeavesTheHeadingRow) {
  Grid grid(nullptr, "grd3Printer");
  ShapeGrid(grid, *FindGridLayout("3"));
  FillGrid(grid, *FindGridRows("3"));
  Another("ALTER TABLE ID_PRINTER RENAME TO ID_PRINTER_AWAY");
  EXPECT_THROW(FillGrid(grid, *FindGridRows("3")), AdoError);
  EXPECT_EQ(gstrErrorMessage, "***** SQL error on OSTANA.ID_PRINTER (Select) *****");
  EXPECT_EQ(grid.Rows(), 1);
}

}  // namespace
