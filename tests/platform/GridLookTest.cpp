// What a grid shows of its cells: whole texts where there is room, headings above their cells, blank rows as room,
// first columns that stay in sight, columns that a person hides.
#include <gtest/gtest.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>

#include "platform/Window.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "platform/desktop/UserSettings.h"

namespace {

class GridLookTest : public testing::Test {
 protected:
  void SetUp() override {
    QSettings().clear();
    window.setObjectName("frmAgencies");
  }

  void Make(int columns, int width = 700) {
    grid = window.Add(new Grid(&window, "grdAgency", columns));
    for (int col = 1; col < columns; ++col) {
      grid->SetHeading(col, QStringLiteral("Column %1").arg(col));
      grid->SetColWidth(col, 1500);
    }
    window.resize(width, 300);
    window.Show();
  }
  // Room that the text has in its cell, in the letters that it is painted with.
  qreal Lacks(int row, int col, bool bold = false) const {
    QFont font = grid->font();
    font.setBold(bold);
    const int margins = 2 * (grid->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, grid) + 1);
    return QFontMetricsF(font).horizontalAdvance(grid->Text(row, col)) - (grid->columnWidth(col) - margins);
  }
  QImage Picture() { return window.grab().toImage(); }
  // The first column of pixels, from `left` on, with something dark in these lines.
  static int FirstInk(const QImage& picture, int left, int top, int bottom) {
    for (int x = left; x < picture.width(); ++x)
      for (int y = top; y < bottom; ++y)
        if (qGray(picture.pixel(x, y)) < 100) return x;
    return -1;
  }
  QMenu* ColumnMenu() {
    Q_EMIT grid->horizontalHeader()->customContextMenuRequested(QPoint(30, 5));
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    EXPECT_NE(menu, nullptr);
    return menu;
  }
  static QAction* Entry(const QMenu& menu, const QString& text) {
    for (QAction* action : menu.actions())
      if (action->text() == text) return action;
    ADD_FAILURE() << "no entry " << text.toStdString();
    return nullptr;
  }

  Window window;
  Grid* grid = nullptr;
};

TEST_F(GridLookTest, NoTextIsCutBesideEmptyRoom) {
  Make(4, 1200);
  // Widths that have a fraction of a pixel below and above one half.
  for (int length = 30; length < 60; ++length) grid->AddRow({"A", QString("ilw").repeated(length / 3), "B"});
  for (int row = 1; row < grid->Rows(); ++row) EXPECT_LE(Lacks(row, 2), 0) << row;
}

TEST_F(GridLookTest, TheRowThatIsFoundHasRoomForItsBoldLetters) {
  Make(3, 1200);
  grid->AddRow({"A", "first"});
  grid->AddRow({"Please check your sources", "second"});
  grid->LookFor("sources");
  EXPECT_EQ(grid->FoundRow(), 2);
  EXPECT_LE(Lacks(2, 1, true), 0);
}

TEST_F(GridLookTest, WhoStillLacksGetsTheRoomThatIsLeftOver) {
  Make(3, 1600);
  const QString text = QString("A long message to the patron. ").repeated(4);
  grid->AddRow({text.trimmed(), "(None)"});
  EXPECT_LE(Lacks(1, 1), 0);
  EXPECT_LE(Lacks(1, 2), 0);
}

TEST_F(GridLookTest, HeadingsBeginWhereTheirCellsBegin) {
  Make(3);
  grid->SetHeading(1, "IIII");
  grid->AddRow({"IIII", ""});
  const QImage picture = Picture();
  const QPoint at = grid->viewport()->mapTo(&window, QPoint(grid->columnViewportPosition(1), 0));
  const int heading = grid->horizontalHeader()->height();
  EXPECT_EQ(FirstInk(picture, at.x() + 2, at.y() - heading + 4, at.y() - 4),
            FirstInk(picture, at.x() + 2, at.y() + 3, at.y() + grid->rowHeight(0) - 3));
}

TEST_F(GridLookTest, RowsThatWaitForTextAreNoStripesAndNoEnd) {
  Make(3);
  for (const char* text : {"A", "B", "C", "", "", ""}) grid->AddRow({text, ""});
  const QImage picture = Picture();
  const auto colour = [&](int row) {
    const QPoint at = grid->viewport()->mapTo(&window, QPoint(300, grid->rowViewportPosition(row - 1) + 3));
    return picture.pixelColor(at);
  };
  EXPECT_NE(colour(2), colour(1));
  EXPECT_EQ(colour(4), colour(5));
  EXPECT_EQ(colour(6), colour(5));
  EXPECT_EQ(grid->CountText(), "3 rows");
  grid->setFocus();
  QTest::keyClick(grid, Qt::Key_End);
  EXPECT_EQ(grid->Row(), 3);
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(grid->Row(), 4);
}

TEST_F(GridLookTest, TheFirstColumnStaysInSightWhileTheOthersScroll) {
  Make(12);
  for (int row = 1; row <= 3; ++row) {
    QStringList cells;
    for (int col = 1; col < 12; ++col) cells.append(QStringLiteral("r%1c%2").arg(row).arg(col));
    grid->AddRow(cells);
  }
  EXPECT_EQ(grid->horizontalScrollBar()->value(), 0);
  grid->SetRow(1);
  EXPECT_EQ(grid->horizontalScrollBar()->value(), 0);
  const QRect first = grid->visualRect(grid->model()->index(1, 1));
  grid->horizontalScrollBar()->setValue(400);
  EXPECT_EQ(grid->visualRect(grid->model()->index(1, 1)), first);
  // The mouse meets it there, and a click keeps the list where it is.
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, first.center());
  EXPECT_EQ(grid->Row(), 2);
  EXPECT_EQ(grid->currentIndex().column(), 1);
  EXPECT_EQ(grid->horizontalScrollBar()->value(), 400);
  // So does its heading: the rows are sorted by it.
  QTest::mouseClick(grid->horizontalHeader()->viewport(), Qt::LeftButton, {}, {first.center().x(), 8});
  EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), 1);
  // A column that is gone to comes out from beneath it.
  grid->scrollTo(grid->model()->index(1, 2));
  EXPECT_GE(grid->visualRect(grid->model()->index(1, 2)).left(), first.right());
}

TEST_F(GridLookTest, AFirstColumnThatWouldTakeMostOfTheRoomScrolls) {
  Make(6);
  grid->SetColWidth(1, 8000);
  grid->AddRow({"a", "b", "c", "d", "e"});
  grid->horizontalScrollBar()->setValue(200);
  EXPECT_LT(grid->visualRect(grid->model()->index(0, 1)).left(), 0);
}

TEST_F(GridLookTest, AColumnThatAPersonHidesStaysHiddenInTheNextWindow) {
  Make(4);
  QMenu* menu = ColumnMenu();
  Entry(*menu, "Column 2")->trigger();
  menu->close();
  EXPECT_TRUE(grid->isColumnHidden(2));
  EXPECT_FALSE(grid->ColHidden(2)) << "the screen has not hidden it";
  EXPECT_EQ(grid->VisibleCols(), (std::vector{1, 3}));

  Window again;
  again.setObjectName("frmAgencies");
  auto* const next = again.Add(new Grid(&again, "grdAgency", 4));
  for (int col = 1; col < 4; ++col) next->SetHeading(col, QStringLiteral("Column %1").arg(col));
  next->HideCol(3, true);
  again.Show();
  EXPECT_TRUE(next->isColumnHidden(2));
  next->HideCol(2, false);
  EXPECT_TRUE(next->isColumnHidden(2)) << "what the screen shows is still the person's choice";

  grid->SetEditable(3, 5);
  menu = ColumnMenu();
  EXPECT_FALSE(Entry(*menu, "Column 3")->isEnabled()) << "what is edited in the list";
  Entry(*menu, "&All columns")->trigger();
  menu->close();
  EXPECT_EQ(grid->VisibleCols(), (std::vector{1, 2, 3}));
  EXPECT_TRUE(QSettings().allKeys().isEmpty());
}

TEST_F(GridLookTest, OneColumnAlwaysStays) {
  Make(3);
  QMenu* menu = ColumnMenu();
  Entry(*menu, "Column 1")->trigger();
  menu->close();
  menu = ColumnMenu();
  EXPECT_FALSE(Entry(*menu, "Column 2")->isEnabled());
  menu->close();
}

TEST_F(GridLookTest, EachSiteHasItsOwnLook) {
  UserSettings::SetSite("Second/site");
  UserSettings().setValue("Columns/frmAgencies/grdAgency/Column%202", 333);
  Make(4);
  EXPECT_EQ(grid->columnWidth(2), 333);
  UserSettings::SetSite({});
  Window other;
  other.setObjectName("frmAgencies");
  auto* const next = other.Add(new Grid(&other, "grdAgency", 4));
  for (int col = 1; col < 4; ++col) next->SetHeading(col, QStringLiteral("Column %1").arg(col));
  other.Show();
  EXPECT_NE(next->columnWidth(2), 333);
}

TEST_F(GridLookTest, ItSaysHowManyRowsThereAre) {
  Make(3);
  QSignalSpy changed(grid, &Grid::CountChanged);
  EXPECT_EQ(grid->CountText(), "0 rows");
  grid->AddRow({"Oak", ""});
  EXPECT_EQ(grid->CountText(), "1 row");
  EXPECT_GE(changed.count(), 1);
  for (int row = 0; row < 1233; ++row) grid->AddRow({"Elm", ""});
  grid->SetFilter("oak");
  EXPECT_EQ(grid->CountText(), "1 of " + QLocale().toString(1234) + " rows");
}

TEST_F(GridLookTest, EnterF2AndADoubleClickMeanTheRow) {
  Make(3);
  grid->AddRow({"Oak", ""});
  grid->AddRow({"Elm", ""});
  QSignalSpy entered(grid, &Grid::RowEntered);
  grid->setFocus();
  QTest::keyClick(grid, Qt::Key_Return);
  EXPECT_EQ(entered.count(), 0) << "no row is current";
  grid->SetRow(2);
  QTest::keyClick(grid, Qt::Key_Return);
  QTest::keyClick(grid, Qt::Key_F2);
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(grid->model()->index(0, 1)).center());
  ASSERT_EQ(entered.count(), 3);
  EXPECT_EQ(entered[1][0].toInt(), 2);
  EXPECT_EQ(entered[2][0].toInt(), 1);
  // Where cells are edited F2 and the double click edit.
  grid->SetEditable(1, 5);
  QTest::keyClick(grid, Qt::Key_F2);
  EXPECT_EQ(entered.count(), 3);
  EXPECT_NE(grid->findChild<TextBox*>("qt_grid_text"), nullptr);
}

}  // namespace
