// What a person does with a grid: keys, clicks, headings, editing.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>

#include "platform/Window.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"

namespace {

class GridByHandTest : public testing::Test {
 protected:
  void SetUp() override {
    grid = window.Add(new Grid(&window, "grdAgency", 4));
    box = window.Add(new TextBox(&window, "txtCode"));
    tester.emplace(grid->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int col = 1; col < 4; ++col) grid->SetHeading(col, QStringLiteral("Column %1").arg(col));
    grid->SetColWidth(1, 2000);
    grid->SetColWidth(2, 2000);
    for (int i = 1; i <= 100; ++i)
      grid->AddRow({QString::number(1000 - i), QStringLiteral("name %1").arg(i), QString::number(i)});
    window.resize(700, 400);
    window.Show();
    grid->setFocus();
  }

  QRect Cell(int row, int col) const { return grid->visualRect(grid->model()->index(row - 1, col)); }
  void Click(int row, int col = 1, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(grid->viewport(), button, modifiers, Cell(row, col).center());
  }
  void DoubleClick(int row, int col) {
    Click(row, col);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, Cell(row, col).center());
  }
  void ClickHeading(int col) {
    const QHeaderView* heading = grid->horizontalHeader();
    QTest::mouseClick(heading->viewport(), Qt::LeftButton, {},
                      {heading->sectionViewportPosition(col) + heading->sectionSize(col) / 2, heading->height() / 2});
  }
  int Highlighted() const {
    const QModelIndexList rows = grid->selectionModel()->selectedRows();
    return rows.isEmpty() ? 0 : rows.front().row() + 1;
  }
  // Enter and Escape close an editor when the event loop runs again.
  void EditorKey(Qt::Key key) {
    QTest::keyClick(OpenEditor<QWidget>(), key);
    QTest::qWait(1);
  }
  template <class Editor>
  Editor* OpenEditor() const {
    return grid->viewport()->findChild<Editor*>(QString(), Qt::FindDirectChildrenOnly);
  }

  Window window;
  Grid* grid = nullptr;
  TextBox* box = nullptr;
  std::optional<QAbstractItemModelTester> tester;
};

TEST_F(GridByHandTest, FirstKeyMakesARowCurrent) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Home}) {
    grid->SetRowQuietly(0);
    QSignalSpy changed(grid, &Grid::SelChange);
    QTest::keyClick(grid, key);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(Highlighted(), 1);
    EXPECT_EQ(changed.count(), 1);
  }
}

TEST_F(GridByHandTest, KeysMoveTheRow) {
  QSignalSpy changed(grid, &Grid::SelChange);
  grid->SetRowQuietly(1);
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(grid->Row(), 2);
  QTest::keyClick(grid, Qt::Key_End);
  EXPECT_EQ(grid->Row(), 100);
  EXPECT_TRUE(grid->viewport()->rect().contains(Cell(100, 1).center()));
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(grid->Row(), 100);
  QTest::keyClick(grid, Qt::Key_PageUp);
  EXPECT_LT(grid->Row(), 96);
  EXPECT_GT(grid->Row(), 60);
  QTest::keyClick(grid, Qt::Key_Home);
  EXPECT_EQ(grid->Row(), 1);
  QTest::keyClick(grid, Qt::Key_PageDown);
  EXPECT_GT(grid->Row(), 4);
  QTest::keyClick(grid, Qt::Key_Up);
  EXPECT_EQ(changed.count(), 6);
  EXPECT_EQ(Highlighted(), grid->Row());
}

TEST_F(GridByHandTest, KeysWorkOnTheRowsThatTheFilterLeaves) {
  grid->SetRowQuietly(1);
  grid->SetFilter("name 5");
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(grid->Row(), 5);
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(grid->Row(), 50);
  QTest::keyClick(grid, Qt::Key_End);
  EXPECT_EQ(grid->Row(), 59);
}

TEST_F(GridByHandTest, TypingFindsARow) {
  Click(1, 2);
  QTest::keyClicks(grid, "name 42");
  EXPECT_EQ(grid->Row(), 42);
}

TEST_F(GridByHandTest, ClickMakesTheRowCurrent) {
  QSignalSpy changed(grid, &Grid::SelChange), clicked(grid, &Grid::CellClick);
  Click(1, 2);
  EXPECT_EQ(grid->Row(), 1);
  Click(3, 1);
  EXPECT_EQ(grid->Row(), 3);
  EXPECT_EQ(Highlighted(), 3);
  EXPECT_EQ(changed.count(), 2);
  Click(3, 0);
  EXPECT_EQ(changed.count(), 2);
  ASSERT_EQ(clicked.count(), 3);
  EXPECT_EQ(clicked[0], (QVariantList{1, 2}));
  EXPECT_EQ(clicked[2], (QVariantList{3, 0}));
}

TEST_F(GridByHandTest, ClickOnTheFirstRowWithoutACurrentOne) {
  grid->SetRowQuietly(0);
  QSignalSpy changed(grid, &Grid::SelChange);
  Click(1, grid->currentIndex().column());
  EXPECT_EQ(grid->Row(), 1);
  EXPECT_EQ(changed.count(), 1);
}

TEST_F(GridByHandTest, SelChangeComesBeforeCellClick) {
  QStringList order;
  QObject::connect(grid, &Grid::SelChange, grid, [&] { order.append("row"); });
  QObject::connect(grid, &Grid::CellClick, grid, [&] { order.append("cell"); });
  Click(2);
  EXPECT_EQ(order, (QStringList{"row", "cell"}));
}

TEST_F(GridByHandTest, OneRowStaysHighlightedWhateverTheModifiers) {
  Click(2);
  Click(2, 1, Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(Highlighted(), 2);
  Click(4, 1, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(grid->Row(), 4);
  EXPECT_EQ(grid->selectionModel()->selectedRows().size(), 1);
  QTest::keyClick(grid, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Highlighted(), 4);
  QTest::keySequence(grid, QKeySequence::SelectAll);
  EXPECT_EQ(grid->Row(), 4);
  EXPECT_EQ(Highlighted(), 4);
  EXPECT_EQ(grid->selectionModel()->selectedRows().size(), 1);
}

TEST_F(GridByHandTest, PressBesideTheRowsChangesNothing) {
  grid->Clear();
  grid->AddRow({"only"});
  grid->SetRowQuietly(1);
  QSignalSpy clicked(grid, &Grid::CellClick);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, {20, grid->viewport()->height() - 5});
  EXPECT_EQ(grid->Row(), 1);
  EXPECT_EQ(Highlighted(), 1);
  EXPECT_EQ(clicked.count(), 0);
}

TEST_F(GridByHandTest, SlotMayPutTheRowBack) {
  grid->SetRowQuietly(2);
  QObject::connect(grid, &Grid::SelChange, grid, [this] { grid->SetRowQuietly(2); });
  Click(5);
  EXPECT_EQ(grid->Row(), 2);
  EXPECT_EQ(Highlighted(), 2);
  QTest::keyClick(grid, Qt::Key_Down);
  EXPECT_EQ(Highlighted(), 2);
}

TEST_F(GridByHandTest, SlotMayLoadTheGridAnew) {
  QObject::connect(grid, &Grid::SelChange, grid, [this] {
    grid->Clear();
    grid->AddRow({"fresh"});
  });
  QSignalSpy clicked(grid, &Grid::CellClick);
  Click(5);
  EXPECT_EQ(grid->Rows(), 2);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(Highlighted(), 0);
  EXPECT_EQ(clicked.count(), 0);
}

TEST_F(GridByHandTest, SlotMayShowAMessageBox) {
  QObject::connect(grid, &Grid::SelChange, grid, [this] {
    AnswerNextBox(QMessageBox::Ok);
    QMessageBox(QMessageBox::NoIcon, "", "text", QMessageBox::Ok, &window).exec();
  });
  Click(5);
  window.Activate();
  EXPECT_EQ(grid->Row(), 5);
  QTest::mouseMove(grid->viewport(), Cell(8, 1).center());
  EXPECT_EQ(grid->Row(), 5);
}

TEST_F(GridByHandTest, HeadingSortsUpThenDownAndKeepsTheRecord) {
  grid->SetRowQuietly(1);
  QSignalSpy changed(grid, &Grid::SelChange), before(grid, &Grid::BeforeSort), after(grid, &Grid::AfterSort);
  ClickHeading(1);
  EXPECT_EQ(grid->Text(1, 1), "900");
  EXPECT_EQ(grid->Row(), 100);
  EXPECT_TRUE(grid->horizontalHeader()->isSortIndicatorShown());
  EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), 1);
  ClickHeading(1);
  EXPECT_EQ(grid->Text(1, 1), "999");
  EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_EQ(grid->Row(), 1);
  EXPECT_EQ(changed.count(), 0);
  EXPECT_EQ(before.count(), 2);
  EXPECT_EQ(after.count(), 2);
  ClickHeading(2);
  EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(GridByHandTest, HeadingOfNumbersSortsByValue) {
  ClickHeading(3);
  EXPECT_EQ(grid->Text(2, 3), "2");
  EXPECT_EQ(grid->Text(100, 3), "100");
}

TEST_F(GridByHandTest, HeadingOfTheMarkerDoesNotSort) {
  QSignalSpy before(grid, &Grid::BeforeSort);
  ClickHeading(0);
  EXPECT_EQ(before.count(), 0);
}

TEST_F(GridByHandTest, ClearingTakesTheSortMarkAway) {
  ClickHeading(1);
  grid->Clear();
  EXPECT_FALSE(grid->horizontalHeader()->isSortIndicatorShown());
  grid->AddRow({"b"});
  grid->AddRow({"a"});
  ClickHeading(1);
  EXPECT_EQ(grid->Text(1, 1), "a");
}

TEST_F(GridByHandTest, MenuKeySortsAndCopies) {
  grid->SetRow(2);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), grid->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(grid->viewport(), &event);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  auto* sort = menu->findChild<QMenu*>();
  ASSERT_NE(sort, nullptr);
  ASSERT_EQ(sort->actions().size(), 3);
  EXPECT_EQ(sort->actions().front()->text(), "Column 1");
  sort->actions().front()->trigger();
  menu->close();
  EXPECT_EQ(grid->Text(1, 1), "900");
}

TEST_F(GridByHandTest, CopyTakesTheVisibleCellsOfTheRow) {
  grid->SetRow(2);
  QTest::keySequence(grid, QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), "998\tname 2\t2");
  grid->HideCol(2, true);
  QTest::keySequence(grid, QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), "998\t2");
}

TEST_F(GridByHandTest, ShrinkingKeepsTheCurrentRowInSight) {
  grid->SetRow(10);
  ASSERT_TRUE(grid->viewport()->rect().contains(Cell(10, 1)));
  window.resize(700, 220);
  QTest::qWait(10);
  EXPECT_TRUE(grid->viewport()->rect().contains(Cell(10, 1)));
}

TEST_F(GridByHandTest, TabLeavesTheGrid) {
  QTest::keyClick(grid, Qt::Key_Tab);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(GridByHandTest, MarkerPointsAtTheCurrentRow) {
  const auto marker = [this](int row) { return grid->viewport()->grab(Cell(row, 0)).toImage(); };
  EXPECT_EQ(marker(5), marker(3));
  grid->SetRow(3);
  const QImage current = marker(3);
  bool drawn = false;
  for (int x = 0; x < current.width(); ++x) drawn |= current.pixel(x, current.height() / 2) != current.pixel(0, 1);
  EXPECT_TRUE(drawn);
}

TEST_F(GridByHandTest, ScreenReaderCanAskForTheCurrentRow) {
  const auto reader = [this] { return QAccessible::queryAccessibleInterface(grid); };
  // No answer from an empty grid, otherwise the cell that is really there. A reader that is switched on hears of every
  // change; here it starts anew each time.
  const auto askFocus = [&] {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(reader()));
    QAccessibleInterface* cell = reader()->focusChild();
    if (cell == nullptr) return grid->Rows() == 1;
    return cell->isValid() && cell->text(QAccessible::Name) == grid->currentIndex().data().toString();
  };
  EXPECT_TRUE(askFocus());
  grid->SetRow(2);
  EXPECT_EQ(reader()->tableInterface()->rowCount(), 100);
  EXPECT_EQ(reader()->tableInterface()->selectedRows(), QList<int>{1});
  EXPECT_EQ(reader()->tableInterface()->cellAt(1, 2)->text(QAccessible::Name), "name 2");
  EXPECT_TRUE(askFocus());
  grid->RemoveRow(2);
  EXPECT_TRUE(askFocus());
  grid->AddRow({"new"}, 1);
  EXPECT_TRUE(askFocus());
  grid->SetFilter("name 5");
  EXPECT_TRUE(askFocus());
  grid->Sort(1, Qt::AscendingOrder);
  EXPECT_TRUE(askFocus());
  grid->SetFilter({});
  EXPECT_TRUE(askFocus());
  grid->Clear();
  EXPECT_TRUE(askFocus());
  grid->AddRow({"x"});
  EXPECT_TRUE(askFocus());
  grid->RemoveRow(1);
  EXPECT_TRUE(askFocus());
  grid->AddRow({"x"});
  EXPECT_TRUE(askFocus());
}

TEST_F(GridByHandTest, CellsAreNotEditableByThemselves) {
  DoubleClick(2, 1);
  EXPECT_EQ(OpenEditor<TextBox>(), nullptr);
  QTest::keyClick(grid, Qt::Key_F2);
  EXPECT_EQ(OpenEditor<TextBox>(), nullptr);
}

TEST_F(GridByHandTest, DoubleClickEditsTextWithinItsLimit) {
  grid->SetEditable(2, 8);
  QSignalSpy edited(grid, &Grid::AfterEdit), twice(grid, &Grid::CellDoubleClick);
  DoubleClick(2, 2);
  EXPECT_EQ(twice.count(), 1);
  auto* editor = OpenEditor<TextBox>();
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->Text(), "name 2");
  QTest::keyClicks(editor, "1234567890");
  EXPECT_EQ(edited.count(), 0);
  EditorKey(Qt::Key_Return);
  EXPECT_EQ(grid->Text(2, 2), "12345678");
  ASSERT_EQ(edited.count(), 1);
  EXPECT_EQ(edited.front(), (QVariantList{2, 2, "name 2"}));
}

TEST_F(GridByHandTest, F2EditsTheRowsFirstEditableCell) {
  grid->SetEditable(3, 0);
  grid->SetRow(4);
  QSignalSpy edited(grid, &Grid::AfterEdit);
  QTest::keyClick(grid, Qt::Key_F2);
  auto* editor = OpenEditor<TextBox>();
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->Text(), "4");
  QTest::keyClicks(editor, "44");
  EditorKey(Qt::Key_Escape);
  EXPECT_EQ(grid->Text(4, 3), "4");
  EXPECT_EQ(edited.count(), 0);
}

TEST_F(GridByHandTest, UnchangedTextIsNoEdit) {
  grid->SetEditable(2, 0);
  QSignalSpy edited(grid, &Grid::AfterEdit);
  grid->EditCell(3, 2);
  EXPECT_EQ(grid->Row(), 3);
  ASSERT_NE(OpenEditor<TextBox>(), nullptr);
  EditorKey(Qt::Key_Return);
  EXPECT_EQ(edited.count(), 0);
}

TEST_F(GridByHandTest, LeavingTheEditorKeepsTheText) {
  grid->SetEditable(2, 0);
  QSignalSpy edited(grid, &Grid::AfterEdit);
  grid->EditCell(3, 2);
  QTest::keyClicks(OpenEditor<TextBox>(), "new");
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_EQ(grid->Text(3, 2), "new");
  EXPECT_EQ(edited.count(), 1);
}

TEST_F(GridByHandTest, SlotMayPutTheOldTextBackAndEditAgain) {
  grid->SetEditable(2, 0);
  QObject::connect(grid, &Grid::AfterEdit, grid, [this](int row, int col, const QString& old) {
    AnswerNextBox(QMessageBox::Ok);
    QMessageBox(QMessageBox::Warning, "", "no", QMessageBox::Ok, &window).exec();
    window.Activate();
    grid->SetText(row, col, old);
    grid->EditCell(row, col);
  });
  grid->EditCell(3, 2);
  QTest::keyClicks(OpenEditor<TextBox>(), "wrong");
  EditorKey(Qt::Key_Return);
  EXPECT_EQ(grid->Text(3, 2), "name 3");
  QTest::qWait(10);
  ASSERT_NE(OpenEditor<TextBox>(), nullptr);
  EXPECT_EQ(OpenEditor<TextBox>()->Text(), "name 3");
}

TEST_F(GridByHandTest, ColumnWithChoicesIsADropDownList) {
  grid->SetEditable(1, 0, {"Alpha", "Beta"});
  QSignalSpy edited(grid, &Grid::AfterEdit);
  grid->EditCell(2, 1);
  auto* list = OpenEditor<CodeComboBox>();
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->Text(), "998");
  QTest::keyClick(list, Qt::Key_End);
  EditorKey(Qt::Key_Return);
  EXPECT_EQ(grid->Text(2, 1), "Beta");
  ASSERT_EQ(edited.count(), 1);
  EXPECT_EQ(edited.front(), (QVariantList{2, 1, "998"}));
}

TEST_F(GridByHandTest, TabInAnEditorGoesToTheNextEditableCell) {
  grid->SetEditable(1, 0);
  grid->SetEditable(3, 0);
  grid->EditCell(2, 1);
  QTest::keyClicks(OpenEditor<TextBox>(), "x");
  QTest::keyClick(OpenEditor<TextBox>(), Qt::Key_Tab);
  EXPECT_EQ(grid->Text(2, 1), "x");
  QTest::qWait(10);
  ASSERT_NE(OpenEditor<TextBox>(), nullptr);
  EXPECT_EQ(OpenEditor<TextBox>()->Text(), "2");
  QTest::keyClick(OpenEditor<TextBox>(), Qt::Key_Tab);
  QTest::qWait(10);
  EXPECT_EQ(OpenEditor<TextBox>(), nullptr);
  EXPECT_EQ(grid->Row(), 2);
}

TEST_F(GridByHandTest, ClearingClosesAnOpenEditor) {
  grid->SetEditable(2, 0);
  grid->EditCell(3, 2);
  grid->Clear();
  QTest::qWait(10);
  EXPECT_EQ(OpenEditor<TextBox>(), nullptr);
}

}  // namespace
