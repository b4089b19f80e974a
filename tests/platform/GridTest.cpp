// What code does with a grid: rows, cells, columns, sorting, searching.
#include "platform/controls/Grid.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSignalSpy>

#include "platform/Window.h"

namespace {

class GridTest : public testing::Test {
 protected:
  void SetUp() override {
    grid = window.Add(new Grid(&window, "grd2Department", 4));
    tester.emplace(grid->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    grid->SetHeading(1, "Code");
    grid->SetHeading(2, "Description");
  }

  void Fill() {
    grid->AddRow({"B", "beta", "10"});
    grid->AddRow({"a", "alpha", "9"});
    grid->AddRow({"C", "gamma", "100"});
  }

  QStringList Column(int col) const {
    QStringList texts;
    for (int row = 1; row < grid->Rows(); ++row) texts.append(grid->Text(row, col));
    return texts;
  }

  // What a person sees highlighted; 0 for nothing.
  int Highlighted() const {
    const QModelIndexList rows = grid->selectionModel()->selectedRows();
    return rows.isEmpty() ? 0 : rows.front().row() + 1;
  }

  Window window;
  Grid* grid = nullptr;
  std::optional<QAbstractItemModelTester> tester;
};

TEST_F(GridTest, EmptyGridIsItsHeading) {
  EXPECT_EQ(grid->Rows(), 1);
  EXPECT_EQ(grid->Cols(), 4);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(grid->Text(0, 1), "Code");
  EXPECT_EQ(grid->Text(1, 1), "");
  EXPECT_EQ(grid->Text(0, 9), "");
  EXPECT_EQ(grid->Text(-1, -1), "");
  EXPECT_FALSE(grid->currentIndex().isValid());
}

TEST_F(GridTest, RowsCountFromOneBehindTheHeading) {
  EXPECT_EQ(grid->AddRow({"B", "beta"}), 1);
  EXPECT_EQ(grid->AddRow({"A", "alpha", "1", "one too many"}), 2);
  EXPECT_EQ(grid->Rows(), 3);
  EXPECT_EQ(grid->Text(1, 0), "");
  EXPECT_EQ(grid->Text(1, 1), "B");
  EXPECT_EQ(grid->Text(1, 3), "");
  EXPECT_EQ(grid->Text(2, 3), "1");
  EXPECT_EQ(grid->Text(3, 1), "");
}

TEST_F(GridTest, AddRowBeforeAnotherKeepsTheCurrentRecord) {
  Fill();
  grid->SetRow(2);
  QSignalSpy changed(grid, &Grid::SelChange);
  EXPECT_EQ(grid->AddRow({"X"}, 1), 1);
  EXPECT_EQ(Column(1), (QStringList{"X", "B", "a", "C"}));
  EXPECT_EQ(grid->Row(), 3);
  EXPECT_EQ(Highlighted(), 3);
  EXPECT_EQ(grid->AddRow({"Y"}, 99), 5);
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(GridTest, SetTextKeepsTheOtherCells) {
  Fill();
  grid->SetText(2, 2, "a much longer text than before");
  grid->SetText(2, 1, "");
  EXPECT_EQ(grid->Text(2, 1), "");
  EXPECT_EQ(grid->Text(2, 2), "a much longer text than before");
  EXPECT_EQ(grid->Text(2, 3), "9");
  EXPECT_EQ(grid->View(2, 3), u"9");
  grid->SetText(9, 9, "nowhere");
  EXPECT_EQ(grid->Rows(), 4);
}

TEST_F(GridTest, CellsHoldAnyText) {
  const QString text = QStringLiteral("\u05d0\u0301 'quoted' -- ; \\ \n") + QChar(0) + QString::fromUcs4(U"\U0001F4DA");
  grid->AddRow({text, "behind"});
  EXPECT_EQ(grid->Text(1, 1), text);
  EXPECT_EQ(grid->Text(1, 2), "behind");
}

TEST_F(GridTest, RowWithoutTheCurrentOneIsNotHighlightedYetTheViewHasACurrentIndex) {
  Fill();
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(Highlighted(), 0);
  EXPECT_TRUE(grid->currentIndex().isValid());
  grid->SetRow(3);
  EXPECT_EQ(Highlighted(), 3);
  grid->SetRow(0);
  EXPECT_EQ(Highlighted(), 0);
  EXPECT_TRUE(grid->currentIndex().isValid());
}

TEST_F(GridTest, SelChangeComesExactlyWhenTheRowChanges) {
  QSignalSpy changed(grid, &Grid::SelChange);
  Fill();
  EXPECT_EQ(changed.count(), 0);
  grid->SetRow(2);
  EXPECT_EQ(changed.count(), 1);
  grid->SetRow(2);
  EXPECT_EQ(changed.count(), 1);
  grid->SetRow(0);
  EXPECT_EQ(changed.count(), 2);
  grid->SetRow(99);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(changed.count(), 2);
  grid->SetRowQuietly(1);
  EXPECT_EQ(grid->Row(), 1);
  EXPECT_EQ(Highlighted(), 1);
  grid->Clear();
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(GridTest, ClearKeepsHeadingsAndWidths) {
  Fill();
  grid->SetColWidth(1, 3000);
  grid->HideCol(2, true);
  grid->Clear();
  EXPECT_EQ(grid->Rows(), 1);
  EXPECT_EQ(grid->Text(0, 1), "Code");
  EXPECT_EQ(grid->columnWidth(1), 200);
  EXPECT_TRUE(grid->ColHidden(2));
}

TEST_F(GridTest, AnotherCountOfColumnsDropsRowsAndWidths) {
  Fill();
  grid->SetRow(1);
  grid->SetColWidth(1, 3000);
  grid->HideCol(2, true);
  grid->SetCols(4);
  EXPECT_EQ(grid->Rows(), 4);
  grid->SetCols(7);
  EXPECT_EQ(grid->Cols(), 7);
  EXPECT_EQ(grid->Rows(), 1);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_NE(grid->columnWidth(1), 200);
  EXPECT_FALSE(grid->ColHidden(2));
}

TEST_F(GridTest, RemovedRowLeavesTheCurrentRecordOrNone) {
  Fill();
  QSignalSpy changed(grid, &Grid::SelChange);
  grid->SetRowQuietly(3);
  grid->RemoveRow(1);
  EXPECT_EQ(grid->Row(), 2);
  EXPECT_EQ(grid->Text(grid->Row(), 1), "C");
  EXPECT_EQ(Highlighted(), 2);
  grid->RemoveRow(2);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(Highlighted(), 0);
  EXPECT_TRUE(grid->currentIndex().isValid());
  grid->RemoveRow(1);
  EXPECT_EQ(grid->Rows(), 1);
  grid->RemoveRow(1);
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(GridTest, FindsExactTexts) {
  Fill();
  grid->AddRow({"B", "beta", "11"});
  EXPECT_EQ(grid->FindRow("B", 1), 1);
  EXPECT_EQ(grid->FindRow("B", 1, 2), 4);
  EXPECT_EQ(grid->FindRow("b", 1), 0);
  EXPECT_EQ(grid->FindRow("B ", 1), 0);
  EXPECT_EQ(grid->FindRow("", 0), 1);
  EXPECT_EQ(grid->FindRow({{1, "B"}, {3, "11"}}), 4);
  EXPECT_EQ(grid->FindRow({{1, "B"}, {3, "12"}}), 0);
}

TEST_F(GridTest, SortKeepsTheCurrentRecordAndRowData) {
  Fill();
  for (int row = 1; row < grid->Rows(); ++row) grid->SetRowData(row, row * 100);
  grid->SetRowQuietly(3);
  QSignalSpy changed(grid, &Grid::SelChange), before(grid, &Grid::BeforeSort), after(grid, &Grid::AfterSort);
  grid->Sort(1, Qt::AscendingOrder);
  EXPECT_EQ(Column(1), (QStringList{"a", "B", "C"}));
  EXPECT_EQ(grid->RowData(1), 200);
  EXPECT_EQ(grid->RowData(2), 100);
  EXPECT_EQ(grid->Row(), 3);
  grid->Sort(1, Qt::DescendingOrder);
  EXPECT_EQ(Column(1), (QStringList{"C", "B", "a"}));
  EXPECT_EQ(grid->Row(), 1);
  EXPECT_EQ(Highlighted(), 1);
  EXPECT_EQ(grid->RowData(1), 300);
  EXPECT_EQ(grid->RowData(99), 0);
  EXPECT_EQ(changed.count(), 0);
  EXPECT_EQ(before.count(), 2);
  ASSERT_EQ(after.count(), 2);
  EXPECT_EQ(after.front().front().toInt(), 1);
}

TEST_F(GridTest, SortIsStableBothWays) {
  for (const char* key : {"x", "y", "X", "Y", "x"}) grid->AddRow({key, QString::number(grid->Rows())});
  grid->Sort(1, Qt::AscendingOrder);
  EXPECT_EQ(Column(2), (QStringList{"1", "3", "5", "2", "4"}));
  grid->Sort(2, Qt::AscendingOrder);
  grid->Sort(1, Qt::DescendingOrder);
  EXPECT_EQ(Column(2), (QStringList{"2", "4", "1", "3", "5"}));
}

TEST_F(GridTest, SortFollowsTheLocale) {
  for (const QString& word : QStringList{"zebra", QStringLiteral("\u00c9cole"), "Fable", "eager", "ecole"})
    grid->AddRow({word});
  grid->Sort(1, Qt::AscendingOrder);
  EXPECT_EQ(Column(1), (QStringList{"eager", "ecole", QStringLiteral("\u00c9cole"), "Fable", "zebra"}));
}

TEST_F(GridTest, NumericSortComparesNumbers) {
  for (const char* cell : {"10", "9", "", "n/a", "-1", "9.5"}) grid->AddRow({cell});
  grid->Sort(1, Qt::AscendingOrder, true);
  EXPECT_EQ(Column(1), (QStringList{"", "-1", "9", "9.5", "10", "n/a"}));
  grid->Sort(1, Qt::AscendingOrder);
  EXPECT_LT(Column(1).indexOf("10"), Column(1).indexOf("9"));
}

TEST_F(GridTest, FilterHidesRowsThatKeepTheirNumbers) {
  Fill();
  grid->SetRowQuietly(2);
  QSignalSpy changed(grid, &Grid::SelChange);
  grid->SetFilter("GAMM");
  EXPECT_TRUE(grid->RowHidden(1));
  EXPECT_FALSE(grid->RowHidden(3));
  EXPECT_EQ(grid->Rows(), 4);
  EXPECT_EQ(grid->Row(), 2);
  EXPECT_EQ(Highlighted(), 0);
  EXPECT_TRUE(grid->currentIndex().isValid());
  EXPECT_EQ(grid->Text(1, 1), "B");
  EXPECT_EQ(grid->FindRow("B", 1), 1);
  grid->SetText(1, 2, "gamma ray");
  grid->SetRow(3);
  EXPECT_EQ(Highlighted(), 1);  // the only row on screen
  grid->SetFilter("");
  EXPECT_FALSE(grid->RowHidden(1));
  EXPECT_EQ(Highlighted(), 3);
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(GridTest, FilterLooksAtVisibleCellsOnly) {
  Fill();
  grid->HideCol(3, true);
  grid->SetFilter("100");
  EXPECT_TRUE(grid->RowHidden(3));
}

TEST_F(GridTest, FilteredGridAddsRemovesSortsAndLoads) {
  Fill();
  grid->SetFilter("a");
  grid->AddRow({"D", "none here"});
  grid->AddRow({"E", "delta"}, 1);
  EXPECT_TRUE(grid->RowHidden(5));
  EXPECT_FALSE(grid->RowHidden(1));
  EXPECT_EQ(grid->model()->rowCount(), 4);
  grid->Sort(1, Qt::DescendingOrder);
  EXPECT_EQ(Column(1), (QStringList{"E", "D", "C", "B", "a"}));
  EXPECT_TRUE(grid->RowHidden(2));
  grid->RemoveRow(2);
  grid->RemoveRow(1);
  EXPECT_EQ(Column(1), (QStringList{"C", "B", "a"}));
  EXPECT_EQ(grid->model()->rowCount(), 3);
  grid->Clear();
  grid->BeginLoad();
  grid->LoadRow({"x", "apple"});
  grid->LoadRow({"y", "none"});
  grid->EndLoad();
  EXPECT_EQ(grid->model()->rowCount(), 1);
  grid->SetFilter({});
  EXPECT_EQ(grid->model()->rowCount(), 2);
}

TEST_F(GridTest, LoadIsSeenAtItsEnd) {
  grid->BeginLoad(2);
  grid->LoadRow({"A", "alpha"});
  grid->LoadRow({"B", "beta"});
  EXPECT_EQ(grid->model()->rowCount(), 0);
  grid->EndLoad();
  EXPECT_EQ(grid->model()->rowCount(), 2);
  EXPECT_TRUE(grid->currentIndex().isValid());
  EXPECT_EQ(grid->Row(), 0);
}

TEST_F(GridTest, LoadThatAnErrorCutShortIsSeenAsFarAsItCame) {
  grid->BeginLoad();
  grid->LoadRow({"A", "alpha"});
  EXPECT_TRUE(QTest::qWaitFor([this] { return grid->model()->rowCount() == 1; }));
  grid->BeginLoad();
  grid->LoadRow({"B", "beta"});
  grid->SetRow(2);
  EXPECT_EQ(Highlighted(), 2);
  grid->BeginLoad();
  grid->LoadRow({"C", "gamma"});
  grid->Clear();
  EXPECT_EQ(grid->Rows(), 1);
}

TEST_F(GridTest, HundredThousandRows) {
  constexpr int Many = 100'000;
  grid->BeginLoad(Many);
  for (int i = 0; i < Many; ++i) {
    const QString code = QString::number((i * 7919) % Many);
    const std::array<QStringView, 3> cells{code, u"Description", code};
    grid->LoadRow(cells);
    grid->SetRowData(i + 1, code.toInt());
  }
  grid->EndLoad();
  window.Show();
  EXPECT_EQ(grid->Rows(), Many + 1);
  grid->SetRow(grid->FindRow("4711", 1));
  grid->Sort(1, Qt::AscendingOrder, true);
  EXPECT_EQ(grid->Row(), 4712);
  EXPECT_EQ(grid->Text(Many, 1), QString::number(Many - 1));
  for (int row = 1; row < grid->Rows(); row += 997) EXPECT_EQ(grid->RowData(row), grid->Text(row, 1).toInt());
  EXPECT_EQ(grid->FindRow({{1, "99999"}, {3, "99999"}}), Many);
  EXPECT_EQ(grid->FindRow("not there", 2), 0);
  grid->SetFilter("4711");
  EXPECT_FALSE(grid->RowHidden(4712));
  EXPECT_TRUE(grid->RowHidden(1));
  grid->SetFilter({});
  grid->Clear();
  EXPECT_EQ(grid->Rows(), 1);
}

TEST_F(GridTest, WidthsAreTwipsAndTheLastVisibleColumnTakesTheRest) {
  window.resize(900, 300);
  window.Show();
  grid->SetColWidth(0, 400);
  grid->SetColWidth(1, 3000);
  grid->SetColWidth(2, 1500);
  EXPECT_EQ(grid->columnWidth(0), 27);
  EXPECT_EQ(grid->columnWidth(1), 200);
  EXPECT_EQ(grid->ColWidth(1), 3000);
  const auto total = [this] {
    int width = 0;
    for (int col = 0; col < grid->Cols(); ++col) width += grid->columnWidth(col);
    return width;
  };
  EXPECT_EQ(total(), grid->viewport()->width());
  grid->HideCol(3, true);
  EXPECT_EQ(total(), grid->viewport()->width());
  EXPECT_GT(grid->columnWidth(2), 500);
  window.resize(700, 300);
  QTest::qWait(10);
  EXPECT_EQ(total(), grid->viewport()->width());
  grid->SetColWidth(1, 30000);
  EXPECT_EQ(grid->columnWidth(2), 100);
}

TEST_F(GridTest, HeadingIsNeverCutOff) {
  grid->SetColWidth(1, 300);
  grid->SetHeading(1, "Invoice Flag Override");
  EXPECT_GE(grid->columnWidth(1), grid->horizontalHeader()->fontMetrics().horizontalAdvance("Invoice Flag Override"));
  EXPECT_EQ(grid->ColWidth(1), 300);
}

TEST_F(GridTest, ColumnThatComesBackHasItsOwnWidth) {
  window.resize(900, 300);
  window.Show();
  grid->SetColWidth(3, 1500);
  EXPECT_GT(grid->columnWidth(3), 300);
  grid->HideCol(3, true);
  grid->HideCol(3, false);
  grid->SetCols(4);
  grid->SetColWidth(1, 30000);
  EXPECT_EQ(grid->columnWidth(3), 100);
}

TEST_F(GridTest, AsksForRoomForSomeRows) {
  const int row = grid->verticalHeader()->defaultSectionSize();
  EXPECT_GT(grid->minimumSizeHint().height(), 3 * row);
  EXPECT_LT(grid->minimumSizeHint().height(), 6 * row);
  EXPECT_GT(grid->sizeHint().height(), 8 * row);
}

TEST_F(GridTest, DraggedWidthStays) {
  window.resize(900, 300);
  window.Show();
  grid->horizontalHeader()->resizeSection(1, 333);
  grid->HideCol(3, true);
  EXPECT_EQ(grid->columnWidth(1), 333);
}

TEST_F(GridTest, RightAlignedColumn) {
  Fill();
  grid->AlignRight(3);
  const QVariant right = grid->model()->index(0, 3).data(Qt::TextAlignmentRole);
  EXPECT_TRUE(right.value<Qt::Alignment>().testFlag(Qt::AlignRight));
  EXPECT_FALSE(grid->model()->index(0, 1).data(Qt::TextAlignmentRole).isValid());
}

}  // namespace
