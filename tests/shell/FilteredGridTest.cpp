// A filter over a grid hides rows from the eye, never from the program: Add, Update, Delete and the scan for duplicates
// write and find what they do without one.
#include <QSettings>
#include <QTest>

#include "core/ModuleState.h"
#include "support/Desk.h"

namespace {

const QString Rows_ = "grd0TableDesc";

class FilteredGridTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another("UPDATE ID_TABLES SET VIEW_ONLY_FLAG = 'F' WHERE TABLES = 'ID_LIBRARY_CAT'");
    Another("DELETE FROM ID_LIBRARY_CAT");
    for (const char* row : {"'A', 'Oak'", "'B', 'Elm'", "'C', 'White oak'", "'D', 'Birch'"})
      Another("INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC) VALUES (" + QString(row) + ")");
    Start();
    ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_LIBRARY_CAT"));
    Statements();
  }
  // By the keys that a person presses, from the field that has the focus.
  void Filter(const QString& text) {
    QTest::keyClick(Find<QWidget>(Focus()), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClicks(Find<TextBox>("qt_grid_find"), text);
  }
  void ClickShown(int place) {
    Grid* const grid = Find<Grid>(Rows_);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(grid->model()->index(place, 1)).center());
  }
  int Shown() { return Find<Grid>(Rows_)->ShownRows(); }
  QString Stored(const QString& code) {
    return Ask("SELECT LIBRARY_CAT_DESC FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = '" + code + "'");
  }
};

TEST_F(FilteredGridTest, AFilterAsksTheDatabaseNothing) {
  Filter("oak");
  EXPECT_EQ(Shown(), 2);
  QTest::keyClick(Find<TextBox>("qt_grid_find"), Qt::Key_Down);
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(FilteredGridTest, TheRowThatIsClickedIsTheRecordInTheFields) {
  Filter("oak");
  ClickShown(1);
  EXPECT_EQ(Row(Rows_), 3);
  EXPECT_EQ(Text("txt0Code"), "C");
  EXPECT_EQ(Focus(), "txt0Code");
}

TEST_F(FilteredGridTest, AnUpdateWritesTheRowOnScreen) {
  Filter("oak");
  ClickShown(1);
  Type("txt0Description", "Holm oak");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Writing(), QStringList{"UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT_DESC = 'Holm oak' WHERE LIBRARY_CAT = 'C'"});
  EXPECT_EQ(Cell(Rows_, 3, 2), "Holm oak");
  EXPECT_EQ(Stored("A"), "Oak");
  EXPECT_EQ(Shown(), 2);
}

TEST_F(FilteredGridTest, AnUpdateOfTheRecordThatTheFilterHidesWritesThatRecord) {
  ClickShown(1);
  Filter("oak");
  ASSERT_TRUE(Find<Grid>(Rows_)->RowHidden(2));
  Type("txt0Description", "Wych elm");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Stored("B"), "Wych elm");
  EXPECT_EQ(Cell(Rows_, 2, 2), "Wych elm");
}

// By a click on the heading, once upwards and once downwards: another row stands at each place now.
TEST_F(FilteredGridTest, ASortUnderTheFilterKeepsTheRecordThatIsUpdated) {
  Another("UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT_DESC = 'Oak, red' WHERE LIBRARY_CAT = 'A'");
  Filter("oak");
  ClickShown(1);
  SortBy(Rows_, 2);
  SortBy(Rows_, 2);
  EXPECT_EQ(Text("txt0Code"), "C");
  EXPECT_EQ(Cell(Rows_, Row(Rows_), 1), "C");
  EXPECT_EQ(Shown(), 2);
  Type("txt0Description", "Holm oak");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Stored("C"), "Holm oak");
  EXPECT_EQ(Cell(Rows_, Find<Grid>(Rows_)->FindRow("C", 1), 2), "Holm oak");
  EXPECT_EQ(Stored("A"), "Oak, red");
  EXPECT_EQ(Stored("B"), "Elm");
}

TEST_F(FilteredGridTest, ASortTakesAnUpdateOfANeighbourToTheRightRow) {
  SortBy(Rows_, 2);
  Filter("oak");
  ClickShown(0);
  EXPECT_EQ(Text("txt0Code"), "A");
  Type("txt0Description", "Zelkova");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_EQ(Stored("A"), "Zelkova");
  EXPECT_EQ(Stored("C"), "White oak");
  EXPECT_EQ(Cell(Rows_, Row(Rows_), 2), "Zelkova");
}

TEST_F(FilteredGridTest, AnAddedRowThatTheFilterHidesIsSelectedAndSeen) {
  Filter("oak");
  Type("txt0Code", "E");
  Type("txt0Description", "Maple");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Stored("E"), "Maple");
  EXPECT_EQ(Row(Rows_), 5);
  EXPECT_EQ(Shown(), 5) << "the filter is lifted";
  EXPECT_FALSE(IsChecked("qt_grid_only"));
}

TEST_F(FilteredGridTest, AnAddedRowThatPassesKeepsTheFilter) {
  Filter("oak");
  Type("txt0Code", "E");
  Type("txt0Description", "Cork oak");
  Prompt().Expect("Record Added", 64);
  Click("cmdAdd");
  EXPECT_EQ(Row(Rows_), 5);
  EXPECT_EQ(Shown(), 3);
}

TEST_F(FilteredGridTest, AHiddenRowIsADuplicateAsWell) {
  Filter("oak");
  Type("txt0Code", "B");
  Type("txt0Description", "Another");
  Prompt().Expect("This record already exists", 48);
  Click("cmdAdd");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_EQ(Count("ID_LIBRARY_CAT"), 4);
}

TEST_F(FilteredGridTest, DeleteTakesTheRowOnScreen) {
  Filter("oak");
  ClickShown(1);
  Prompt().Expect("Are you sure you wish to Delete this record?", 36, MessageAnswer::Yes).Expect("Record Deleted", 64);
  Click("cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = 'C'"});
  EXPECT_EQ(Count("ID_LIBRARY_CAT"), 3);
}

TEST_F(FilteredGridTest, FindingOverwritesNoFieldUntilEnter) {
  Type("txt0Description", "typed and not stored");
  QTest::keyClick(Find<QWidget>("txt0Description"), Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(Find<TextBox>("qt_grid_find"), "birch");
  EXPECT_EQ(Text("txt0Description"), "typed and not stored");
  EXPECT_TRUE(gbRecordModified);
  Press("qt_grid_find", Qt::Key_Return);
  EXPECT_EQ(Text("txt0Code"), "D");
  EXPECT_EQ(Focus(), "qt_grid_find");
}

TEST_F(FilteredGridTest, EscapeInTheBarClosesTheBarOnly) {
  Filter("oak");
  Press("qt_grid_find", Qt::Key_Escape);
  EXPECT_EQ(Shown(), 4);
  EXPECT_TRUE(Window()->isVisible());
  EXPECT_FALSE(ProcessEnded());
}

}  // namespace
