// The bar under a grid's headings: find as you type and the filter.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>

#include "platform/Window.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"

namespace {

class GridFinderTest : public testing::Test {
 protected:
  void SetUp() override {
    grid = window.Add(new Grid(&window, "grdAgency", 4));
    box = window.Add(new TextBox(&window, "txtCode"));
    for (int col = 1; col < 4; ++col) grid->SetHeading(col, QStringLiteral("Column %1").arg(col));
    const QStringList names = {"Oak", "Elm", "Ash", "Mountain ash", "Birch", "White oak"};
    for (int i = 0; i < names.size(); ++i) grid->AddRow({QString::number(i + 1), names[i], "hidden oak"});
    grid->HideCol(3, true);
    window.resize(700, 300);
    window.Show();
    grid->setFocus();
  }

  template <class T>
  T* Part(const char* name) const {
    return grid->findChild<T*>(name);
  }
  TextBox* Text() const { return Part<TextBox>("qt_grid_find"); }
  void Open(Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, modifiers);
    ASSERT_NE(Text(), nullptr);
    ASSERT_TRUE(Text()->hasFocus());
  }
  void OpenFilter() { Open(Qt::ControlModifier | Qt::ShiftModifier); }
  int Shown() const { return grid->model()->rowCount(); }

  Window window;
  Grid* grid = nullptr;
  TextBox* box = nullptr;
};

TEST_F(GridFinderTest, ControlFOpensTheBarAndEscapeClosesIt) {
  EXPECT_EQ(Text(), nullptr);
  const int before = grid->horizontalHeader()->height();
  Open();
  EXPECT_GT(grid->horizontalHeader()->height(), before);
  EXPECT_TRUE(Text()->isVisible());
  QTest::keyClick(Text(), Qt::Key_Escape);
  EXPECT_FALSE(Text()->isVisible());
  EXPECT_TRUE(grid->hasFocus());
  EXPECT_EQ(grid->horizontalHeader()->height(), before);
}

TEST_F(GridFinderTest, ControlFInAFieldMeansTheGridOnScreen) {
  box->setFocus();
  Open();
}

TEST_F(GridFinderTest, OfTwoGridsTheOneUsedLastIsMeant) {
  auto* const other = window.Add(new Grid(&window, "grdOther", 2));
  other->AddRow({"x"});
  other->show();
  other->setFocus();
  box->setFocus();
  QTest::keyClick(box, Qt::Key_F, Qt::ControlModifier);
  EXPECT_NE(other->findChild<TextBox*>("qt_grid_find"), nullptr);
  EXPECT_EQ(Text(), nullptr);
  grid->setFocus();
  QTest::keyClick(grid, Qt::Key_F, Qt::ControlModifier);
  EXPECT_NE(Text(), nullptr);
}

TEST_F(GridFinderTest, TypingMarksAndEnterMakesCurrent) {
  QSignalSpy changed(grid, &Grid::SelChange);
  Open();
  QTest::keyClicks(Text(), "ASH");
  EXPECT_EQ(grid->FoundRow(), 3);
  EXPECT_EQ(grid->Row(), 0);
  EXPECT_EQ(changed.count(), 0);
  QTest::keyClick(Text(), Qt::Key_Return);
  EXPECT_EQ(grid->Row(), 3);
  EXPECT_EQ(grid->FoundRow(), 0);
  QTest::keyClick(Text(), Qt::Key_F3);
  EXPECT_EQ(grid->Row(), 4);
  QTest::keyClick(Text(), Qt::Key_F3);
  EXPECT_EQ(grid->Row(), 3) << "round from the last one to the first";
  QTest::keyClick(Text(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(grid->Row(), 4);
  EXPECT_EQ(changed.count(), 4);
}

TEST_F(GridFinderTest, TheBarKeepsTheFocusFromAScreenThatMovesItToAField) {
  QObject::connect(grid, &Grid::SelChange, box, [this] { box->setFocus(); });
  Open();
  QTest::keyClicks(Text(), "oak");
  QTest::keyClick(Text(), Qt::Key_Return);
  EXPECT_EQ(grid->Row(), 1);
  EXPECT_TRUE(Text()->hasFocus());
  // With the bar closed the same text is looked for from wherever the focus is, which then goes where the screen says.
  QTest::keyClick(Text(), Qt::Key_Escape);
  QTest::keyClick(grid, Qt::Key_F3);
  EXPECT_EQ(grid->Row(), 6);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(GridFinderTest, HiddenColumnsAreNotSearchedAndNothingFoundMovesNothing) {
  grid->SetRow(2);
  Open();
  QTest::keyClicks(Text(), "hidden");
  EXPECT_EQ(grid->FoundRow(), 0);
  EXPECT_EQ(Part<QLabel>("qt_grid_count")->text(), "0 of 6 rows");
  QTest::keyClick(Text(), Qt::Key_Return);
  EXPECT_EQ(grid->Row(), 2);
}

TEST_F(GridFinderTest, TheMarkGoesWithTheRows) {
  Open();
  QTest::keyClicks(Text(), "ash");
  ASSERT_EQ(grid->FoundRow(), 3);
  grid->RemoveRow(1);
  EXPECT_EQ(grid->FoundRow(), 0);
  QTest::keyClick(Text(), Qt::Key_Return);
  EXPECT_EQ(grid->Text(grid->Row(), 2), "Ash");
}

TEST_F(GridFinderTest, FilterShowsMatchingRowsThatKeepTheirNumbers) {
  grid->SetRow(2);
  OpenFilter();
  QTest::keyClicks(Text(), "oak");
  EXPECT_EQ(Shown(), 2);
  EXPECT_EQ(grid->Rows(), 7);
  EXPECT_EQ(grid->Row(), 2) << "the record in the fields stays";
  EXPECT_EQ(grid->FindRow("Birch", 2), 5) << "a scan for duplicates sees hidden rows";
  EXPECT_EQ(Part<QLabel>("qt_grid_count")->text(), "2 of 6 rows");
  QTest::keyClick(Text(), Qt::Key_Down);
  EXPECT_EQ(grid->Row(), 6);
  QTest::keyClick(Text(), Qt::Key_Escape);
  EXPECT_EQ(Shown(), 6);
  EXPECT_EQ(grid->Row(), 6);
}

TEST_F(GridFinderTest, TheCheckBoxTurnsFindingIntoFiltering) {
  Open();
  QTest::keyClicks(Text(), "ash");
  EXPECT_EQ(Shown(), 6);
  auto* const only = Part<QCheckBox>("qt_grid_only");
  QTest::mouseClick(only, Qt::LeftButton, {}, {8, only->height() / 2});
  EXPECT_EQ(Shown(), 2);
  QTest::mouseClick(only, Qt::LeftButton, {}, {8, only->height() / 2});
  EXPECT_EQ(Shown(), 6);
}

TEST_F(GridFinderTest, ARowThatTheScreenMakesCurrentLiftsTheFilter) {
  OpenFilter();
  QTest::keyClicks(Text(), "oak");
  grid->SetRow(6);
  EXPECT_EQ(Shown(), 2) << "a row on screen leaves the filter alone";
  const int added = grid->AddRow({"7", "Maple"});
  EXPECT_EQ(Shown(), 2);
  grid->SetRowQuietly(added);
  EXPECT_EQ(Shown(), 7);
  EXPECT_FALSE(Part<QCheckBox>("qt_grid_only")->isChecked());
  EXPECT_TRUE(Text()->isVisible());
  EXPECT_EQ(grid->selectionModel()->selectedRows().front().row(), added - 1);
}

TEST_F(GridFinderTest, RowsLoadedAnewPassTheFilterToo) {
  OpenFilter();
  QTest::keyClicks(Text(), "oak");
  grid->Clear();
  grid->BeginLoad();
  grid->LoadRow(QStringList{"1", "Cork oak"});
  grid->LoadRow(QStringList{"2", "Pine"});
  grid->EndLoad();
  EXPECT_EQ(Shown(), 1);
  EXPECT_EQ(Part<QLabel>("qt_grid_count")->text(), "1 of 2 rows");
}

TEST_F(GridFinderTest, OtherColumnsCloseTheBar) {
  OpenFilter();
  QTest::keyClicks(Text(), "oak");
  grid->SetCols(3);
  EXPECT_FALSE(Text()->isVisible());
  grid->AddRow({"1", "Elm"});
  EXPECT_EQ(Shown(), 1);
}

TEST_F(GridFinderTest, AColumnHiddenUnderTheFilterCountsNoMore) {
  OpenFilter();
  QTest::keyClicks(Text(), "oak");
  grid->HideCol(2, true);
  EXPECT_EQ(Shown(), 0);
  grid->HideCol(3, false);
  EXPECT_EQ(Shown(), 6);
}

TEST_F(GridFinderTest, EnterInTheBarPressesNoButton) {
  auto* const button = window.Add(new QPushButton("OK", &window));
  button->setDefault(true);
  QSignalSpy pressed(button, &QPushButton::clicked);
  Open();
  QTest::keyClicks(Text(), "oak");
  QTest::keyClick(Text(), Qt::Key_Return);
  EXPECT_EQ(pressed.count(), 0);
}

TEST_F(GridFinderTest, ANarrowGridKeepsTheText) {
  window.resize(200, 300);
  Open();
  EXPECT_TRUE(Text()->isVisible());
  EXPECT_GE(Text()->width(), 40);
  EXPECT_FALSE(Part<QToolButton>("qt_grid_next")->isVisible());
  EXPECT_TRUE(grid->horizontalHeader()->rect().contains(Text()->geometry()));
}

TEST_F(GridFinderTest, TheCountStandsBesideTheText) {
  for (const int width : {700, 300}) {
    window.resize(width, 300);
    Open();
    Text()->clear();
    QTest::keyClicks(Text(), "oak");
    QApplication::sendPostedEvents();  // the layout follows the text of the count
    const auto* const count = Part<QLabel>("qt_grid_count");
    ASSERT_TRUE(count->isVisible()) << width;
    EXPECT_EQ(count->text(), "2 of 6 rows");
    EXPECT_GE(count->width(), count->sizeHint().width()) << width;
    const int gap = count->geometry().left() - Text()->geometry().right();
    EXPECT_TRUE(gap > 0 && gap < 10) << width << ": " << gap << " pixels from the text";
    // The sign of the filter stays too.
    EXPECT_TRUE(Part<QCheckBox>("qt_grid_only")->isVisible()) << width;
  }
}

TEST_F(GridFinderTest, TheMenuOpensBothAndMnemonicsDiffer) {
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), grid->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(grid->viewport(), &event);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList mnemonics;
  for (QAction* action : menu->actions()) {
    if (action->isSeparator()) continue;
    const QString mnemonic = QKeySequence::mnemonic(action->text()).toString();
    EXPECT_FALSE(mnemonic.isEmpty()) << action->text().toStdString();
    EXPECT_FALSE(mnemonics.contains(mnemonic)) << action->text().toStdString();
    mnemonics.append(mnemonic);
    if (action->text().startsWith("Fi&lter")) action->trigger();
  }
  menu->close();
  ASSERT_NE(Text(), nullptr);
  EXPECT_TRUE(Part<QCheckBox>("qt_grid_only")->isChecked());
}

TEST_F(GridFinderTest, EveryPartHasANameForReaders) {
  Open();
  for (const QWidget* part : Part<QWidget>("qt_grid_bar")->findChildren<QWidget*>()) {
    const auto* const button = qobject_cast<const QAbstractButton*>(part);
    if (part->focusPolicy() == Qt::NoFocus) continue;
    EXPECT_FALSE(part->accessibleName().isEmpty() && (button == nullptr || button->text().isEmpty()))
        << part->objectName().toStdString();
  }
}

}  // namespace
