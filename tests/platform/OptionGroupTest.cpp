#include "platform/controls/OptionGroup.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "platform/Window.h"
#include "platform/controls/OptionLabel.h"

namespace {

class OptionGroupTest : public testing::Test {
 protected:
  void SetUp() override {
    pair = new OptionGroup(&window, "opt5aActive", {"&Yes", "&No"});
    other = new OptionGroup(&window, {{"optPrintYes", "Yes"}, {"optPrintNo", "No"}});
    window.Add(pair->Row());
    window.Add(other->Row());
    window.Show();
  }

  Window window;
  OptionGroup* pair = nullptr;
  OptionGroup* other = nullptr;
};

TEST_F(OptionGroupTest, ElementsBearTheArraysName) {
  EXPECT_EQ(pair->Count(), 2);
  EXPECT_EQ(pair->Button(0)->objectName(), "opt5aActive(0)");
  EXPECT_EQ(pair->Button(1)->objectName(), "opt5aActive(1)");
  EXPECT_EQ(other->Button(1)->objectName(), "optPrintNo");
  EXPECT_EQ(pair->Button(0)->text(), "&Yes");
}

TEST_F(OptionGroupTest, NothingIsSetAtFirst) {
  EXPECT_EQ(pair->Selected(), -1);
}

TEST_F(OptionGroupTest, ElementsExcludeEachOtherWithinTheirGroupOnly) {
  QTest::mouseClick(pair->Button(0), Qt::LeftButton);
  QTest::mouseClick(other->Button(1), Qt::LeftButton);
  EXPECT_TRUE(pair->IsSet(0));
  EXPECT_TRUE(other->IsSet(1));
  QTest::mouseClick(pair->Button(1), Qt::LeftButton);
  EXPECT_EQ(pair->Selected(), 1);
  EXPECT_FALSE(pair->Button(0)->isChecked());
}

TEST_F(OptionGroupTest, SettingByCodeEmitsNothing) {
  QSignalSpy click(pair, &OptionGroup::Click);
  pair->Select(1);
  pair->Select(0);
  pair->Unset();
  EXPECT_EQ(click.count(), 0);
}

TEST_F(OptionGroupTest, BothCanBeUnset) {
  pair->Select(1);
  pair->Unset();
  EXPECT_EQ(pair->Selected(), -1);
  EXPECT_FALSE(pair->Button(0)->isChecked());
  EXPECT_FALSE(pair->Button(1)->isChecked());
  QTest::mouseClick(pair->Button(1), Qt::LeftButton);
  QTest::mouseClick(pair->Button(0), Qt::LeftButton);
  EXPECT_TRUE(pair->IsSet(0));
  EXPECT_FALSE(pair->Button(1)->isChecked());
}

TEST_F(OptionGroupTest, ClickOnTheSetElementCounts) {
  pair->Select(1);
  QSignalSpy click(pair, &OptionGroup::Click);
  QTest::mouseClick(pair->Button(1), Qt::LeftButton);
  ASSERT_EQ(click.count(), 1);
  EXPECT_EQ(click.front().front().toInt(), 1);
  EXPECT_TRUE(pair->IsSet(1));
}

TEST_F(OptionGroupTest, SpaceAndArrowsChoose) {
  QSignalSpy click(pair, &OptionGroup::Click);
  pair->Button(0)->setFocus();
  QTest::keyClick(pair->Button(0), Qt::Key_Space);
  EXPECT_TRUE(pair->IsSet(0));
  QTest::keyClick(pair->Button(0), Qt::Key_Right);
  EXPECT_TRUE(pair->IsSet(1));
  EXPECT_EQ(click.count(), 2);
}

TEST_F(OptionGroupTest, TabEntersAtTheElementThatIsSet) {
  other->Select(1);
  pair->Button(0)->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), other->Button(1));
  // An element that had the focus once is not entered again after another one was set by code.
  other->Select(0);
  pair->Select(1);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), pair->Button(1));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), other->Button(0));
}

TEST_F(OptionGroupTest, TabEntersAGroupWithNothingSetAtItsFirstElement) {
  other->Select(1);
  other->Unset();
  pair->Button(0)->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), other->Button(0));
}

TEST_F(OptionGroupTest, CaptionsOfTheirOwnStandBesideTheirButtons) {
  auto* const third = new OptionGroup(&window, {{"optIllYes", ""}, {"optIllNo", ""}});
  auto* const yes = new OptionLabel(&window, "lblIllYes", "Yes", third->Button(0));
  auto* const no = new OptionLabel(&window, "lblIllNo", "No", third->Button(1));
  window.Add(third->RowWith({yes, no}));
  QApplication::processEvents();
  QTest::mouseClick(no, Qt::LeftButton);
  EXPECT_TRUE(third->IsSet(1));
  EXPECT_EQ(third->Button(1)->accessibleName(), "No");
  const int gap = no->mapTo(&window, QPoint()).x() - third->Button(1)->geometry().right();
  const int between = third->Button(1)->x() - yes->geometry().right();
  EXPECT_LT(gap, between) << "a caption stands nearer to its own button";
}

TEST_F(OptionGroupTest, EnabledAndVisibleTogether) {
  pair->SetEnabled(false);
  EXPECT_FALSE(pair->Button(0)->isEnabled());
  EXPECT_FALSE(pair->Button(1)->isEnabled());
  EXPECT_TRUE(other->Button(0)->isEnabled());
  pair->SetVisible(false);
  EXPECT_FALSE(pair->Button(1)->isVisible());
}

TEST_F(OptionGroupTest, SetElementCanBeHiddenAndStaysSet) {
  pair->Select(0);
  pair->SetVisible(false);
  pair->SetEnabled(false);
  EXPECT_TRUE(pair->IsSet(0));
}

}  // namespace
