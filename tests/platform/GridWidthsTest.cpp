// Column widths that a person drew come back in the next window of that form.
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QSettings>

#include "platform/Window.h"
#include "platform/controls/Grid.h"

namespace {

class GridWidthsTest : public testing::Test {
 protected:
  void SetUp() override { QSettings().clear(); }

  struct Form {
    explicit Form(const QString& name = "frmAgencies") {
      window.setObjectName(name);
      grid = window.Add(new Grid(&window, "grdAgency", 4));
      grid->SetHeading(1, "Code/Kind");
      grid->SetHeading(2, "Name");
      grid->SetHeading(3, "Rest");
      for (int col = 1; col < 4; ++col) grid->SetColWidth(col, 1500);
      window.resize(700, 300);
      window.Show();
    }
    void Drag(int col, int by) {
      QHeaderView* const heading = grid->horizontalHeader();
      const QPoint line(heading->sectionViewportPosition(col) + heading->sectionSize(col) - 1, 5);
      QTest::mouseMove(heading->viewport(), line);
      QTest::mousePress(heading->viewport(), Qt::LeftButton, {}, line);
      QMouseEvent move(QEvent::MouseMove, line + QPoint(by, 0), heading->viewport()->mapToGlobal(line + QPoint(by, 0)),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(heading->viewport(), &move);
      QTest::mouseRelease(heading->viewport(), Qt::LeftButton, {}, line + QPoint(by, 0));
    }
    Window window;
    Grid* grid;
  };
};

TEST_F(GridWidthsTest, ADrawnWidthComesBack) {
  int drawn = 0;
  {
    Form form;
    const int before = form.grid->columnWidth(1);
    form.Drag(1, 57);
    drawn = form.grid->columnWidth(1);
    EXPECT_EQ(drawn, before + 57);
  }
  Form again;
  EXPECT_EQ(again.grid->columnWidth(1), drawn);
  again.grid->SetColWidth(1, 1500);
  EXPECT_EQ(again.grid->columnWidth(1), drawn) << "the screen shapes its grid again and again";
  EXPECT_EQ(again.grid->ColWidth(1), 1500);
  Form other("frmOther");
  EXPECT_NE(other.grid->columnWidth(1), drawn);
}

TEST_F(GridWidthsTest, ColumnsWhoseTextsAreCutGetOfTheRoomThatIsLeft) {
  Form form;
  const int usual = form.grid->columnWidth(2);
  const QString long_ = "A name that needs more room than its column has";
  form.grid->AddRow({"A", long_, "x"});
  const int wide = form.grid->columnWidth(2);
  EXPECT_GE(wide, form.grid->fontMetrics().horizontalAdvance(long_));
  EXPECT_EQ(form.grid->columnWidth(1), usual) << "nothing is cut there";
  form.grid->SetText(1, 2, "short");
  form.grid->AddRow({"B", "short", "x"}, 1);
  EXPECT_EQ(form.grid->columnWidth(2), wide) << "columns do not jump while somebody works";
  // What a person draws is as wide as it was drawn, and the others stay.
  form.Drag(2, -80);
  EXPECT_EQ(form.grid->columnWidth(2), wide - 80);
  form.grid->AddRow({"C", long_ + long_, "x"});
  EXPECT_EQ(form.grid->columnWidth(2), wide - 80);
  // The next load counts anew, and a window without room gives none.
  Form other("frmOther");
  other.window.resize(350, 300);
  QApplication::processEvents();
  other.grid->AddRow({"A", long_, "x"});
  EXPECT_EQ(other.grid->columnWidth(2), usual);
}

TEST_F(GridWidthsTest, WidthsThatNobodyDrewAreNotKept) {
  {
    Form form;
    form.grid->SetColWidth(2, 3000);
    form.grid->HideCol(1, true);
    form.window.resize(900, 300);
  }
  EXPECT_TRUE(QSettings().allKeys().isEmpty());
}

TEST_F(GridWidthsTest, AWidthBeyondReasonIsBounded) {
  QSettings().setValue("Columns/frmAgencies/grdAgency/Name", 1'000'000);
  const Form form;
  EXPECT_LE(form.grid->columnWidth(2), 4000);
}

}  // namespace
