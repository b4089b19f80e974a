#include "platform/controls/DateBox.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDateEdit>
#include <QSignalSpy>

#include "platform/Window.h"

namespace {

class DateBoxTest : public testing::Test {
 protected:
  void SetUp() override {
    date = window.Add(new DateBox(&window, "dtpNoticeStartDate"));
    check = date->findChild<QCheckBox*>();
    edit = date->findChild<QDateEdit*>();
    window.Show();
  }

  Window window;
  DateBox* date = nullptr;
  QCheckBox* check = nullptr;
  QDateEdit* edit = nullptr;
};

TEST_F(DateBoxTest, StartsAsNoneWithTodayBehindIt) {
  EXPECT_TRUE(date->IsNone());
  EXPECT_FALSE(date->Date().isValid());
  EXPECT_FALSE(edit->isEnabled());
  EXPECT_EQ(edit->date(), QDate::currentDate());
}

TEST_F(DateBoxTest, DateOnShowStaysBehindTheEmptyCheck) {
  date->SetDate({2024, 2, 29});
  EXPECT_EQ(date->Date(), QDate(2024, 2, 29));
  date->SetNone();
  EXPECT_TRUE(date->IsNone());
  EXPECT_EQ(edit->date(), QDate(2024, 2, 29));
  check->setChecked(true);
  EXPECT_EQ(date->Date(), QDate(2024, 2, 29));
}

TEST_F(DateBoxTest, SettingByCodeIsOneChangeAndNotEdited) {
  QSignalSpy changed(date, &DateBox::Change), edited(date, &DateBox::Edited);
  date->SetDate({2024, 5, 17});
  EXPECT_EQ(changed.count(), 1);
  date->SetDate({2024, 5, 17});
  EXPECT_EQ(changed.count(), 1);
  date->SetNone();
  EXPECT_EQ(changed.count(), 2);
  EXPECT_EQ(edited.count(), 0);
}

TEST_F(DateBoxTest, HandEditsAreEdited) {
  date->SetDate({2024, 5, 17});
  QSignalSpy changed(date, &DateBox::Change), edited(date, &DateBox::Edited);
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_Up);
  EXPECT_EQ(date->Date(), QDate(2025, 5, 17));
  EXPECT_EQ(edited.count(), 1);
  check->setFocus();
  QTest::keyClick(check, Qt::Key_Space);
  EXPECT_TRUE(date->IsNone());
  EXPECT_EQ(edited.count(), 2);
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(DateBoxTest, FormatOfTheSettings) {
  date->SetDate({2024, 5, 7});
  EXPECT_EQ(edit->text(), "2024-05-07");
  date->SetFormat("dd/mm/yyyy");
  EXPECT_EQ(edit->text(), "07/05/2024");
  date->SetFormat("YYYY.MM.DD");
  EXPECT_EQ(edit->text(), "2024.05.07");
  date->SetFormat("d-mmm-yy");
  EXPECT_EQ(edit->text(), "7-May-24");
  date->SetFormat("yyyy-mm-ddT");
  EXPECT_EQ(edit->text(), "2024-05-07T");
  date->SetFormat("");
  EXPECT_EQ(edit->text(), "2024-05-07T");
}

TEST_F(DateBoxTest, TabLeavesTheDate) {
  date->SetDate({2024, 5, 17});
  auto* next = window.Add(new QCheckBox("next", &window));
  QTest::qWait(1);
  edit->setFocus();
  QTest::keyClick(edit, Qt::Key_Tab);
  EXPECT_TRUE(next->hasFocus());
}

TEST_F(DateBoxTest, OldDatesKeepTheirYear) {
  date->SetDate({1601, 1, 1});
  EXPECT_EQ(date->Date(), QDate(1601, 1, 1));
}

TEST_F(DateBoxTest, FocusGoesToTheCheckFirst) {
  date->setFocus();
  EXPECT_TRUE(check->hasFocus());
  date->SetDate({2024, 5, 17});
  QTest::keyClick(check, Qt::Key_Tab);
  EXPECT_TRUE(edit->hasFocus());
}

}  // namespace
