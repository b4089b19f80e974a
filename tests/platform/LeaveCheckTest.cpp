#include <gtest/gtest.h>

#include <QCheckBox>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>

#include "platform/Window.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/DateBox.h"
#include "platform/controls/TextBox.h"

namespace {

class LeaveCheckTest : public testing::Test {
 protected:
  void SetUp() override {
    box = window.Add(new TextBox(&window, "txtRate"));
    next = window.Add(new TextBox(&window, "txtNext"));
    save = window.Add(new QPushButton("&Save", &window));
    check = window.Add(new QCheckBox("&Active", &window));
    box->SetLeaveCheck([this] {
      ++checks;
      if (message != QMessageBox::NoButton) {
        AnswerNextBox(message);
        QMessageBox(QMessageBox::Critical, "", "too high", message, &window).exec();
      }
      return allow;
    });
    window.Show();
    box->setFocus();
  }

  Window window;
  TextBox* box = nullptr;
  TextBox* next = nullptr;
  QPushButton* save = nullptr;
  QCheckBox* check = nullptr;
  bool allow = false;
  QMessageBox::StandardButton message = QMessageBox::NoButton;  // the check shows one with this button
  int checks = 0;
};

TEST_F(LeaveCheckTest, TabIsRefused) {
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, TabGoesOnWhenTheCheckAllows) {
  allow = true;
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(next->hasFocus());
  QTest::keyClick(next, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
}

TEST_F(LeaveCheckTest, NextControlNeverGetsTheFocusWhenRefused) {
  QSignalSpy got(next, &TextBox::GotFocus), gotBack(box, &TextBox::GotFocus);
  int nextChecks = 0;
  next->SetLeaveCheck([&] { return ++nextChecks > 0; });
  QTest::keyClick(box, Qt::Key_Tab);
  QTest::mouseClick(next, Qt::LeftButton);
  EXPECT_EQ(checks, 2);
  EXPECT_EQ(got.count(), 0);
  EXPECT_EQ(gotBack.count(), 0);
  EXPECT_EQ(nextChecks, 0);
}

TEST_F(LeaveCheckTest, RefusedPressDoesNotClick) {
  QSignalSpy clicked(save, &QPushButton::clicked), pressed(save, &QPushButton::pressed);
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(pressed.count(), 0);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_FALSE(save->isDown());
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, PressesThatComeFromTheWindowSystem) {
  QSignalSpy clicked(save, &QPushButton::clicked);
  const QPoint place = save->mapTo(&window, save->rect().center());
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_FALSE(save->isDown());
  EXPECT_TRUE(box->hasFocus());
  allow = true;
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
  EXPECT_EQ(clicked.count(), 1);
  EXPECT_TRUE(save->hasFocus());
}

TEST_F(LeaveCheckTest, DoubleClickIsRefusedTwice) {
  QSignalSpy clicked(save, &QPushButton::clicked);
  QTest::mouseDClick(save, Qt::LeftButton);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, PressAfterARefusedOneClicks) {
  QSignalSpy clicked(save, &QPushButton::clicked);
  QTest::mouseClick(save, Qt::LeftButton);
  allow = true;
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 2);
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(LeaveCheckTest, AllowedPressClicksOnce) {
  allow = true;
  QSignalSpy clicked(save, &QPushButton::clicked);
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(LeaveCheckTest, RefusalWithAMessageBoxSwallowsThePress) {
  message = QMessageBox::Ok;
  QSignalSpy clicked(save, &QPushButton::clicked);
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_FALSE(save->isDown());
  window.Activate();
  EXPECT_TRUE(box->hasFocus());
  message = QMessageBox::NoButton;
  allow = true;
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 2);
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(LeaveCheckTest, TabIsRefusedWithAMessageBox) {
  message = QMessageBox::Ok;
  QTest::keyClick(box, Qt::Key_Tab);
  window.Activate();
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, PressWhoseReleaseWentToTheMessageBoxLeavesNoButtonDown) {
  allow = true;
  message = QMessageBox::Ok;
  QTest::mousePress(save, Qt::LeftButton);
  EXPECT_FALSE(save->isDown());
  window.Activate();
  QSignalSpy clicked(save, &QPushButton::clicked);
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(LeaveCheckTest, MnemonicOfAButtonRunsTheCheckFirst) {
  QSignalSpy clicked(save, &QPushButton::clicked), pressed(save, &QPushButton::pressed);
  QTest::keyClick(box, Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(checks, 1);
  QTest::qWait(150);  // a mnemonic shows the button down for a tenth of a second
  EXPECT_EQ(pressed.count(), 0);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_TRUE(box->hasFocus());
  allow = true;
  QTest::keyClick(box, Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return clicked.count() == 1; }));
  EXPECT_EQ(checks, 2);
}

TEST_F(LeaveCheckTest, MnemonicOfACheckBoxIsRefused) {
  QTest::keyClick(box, Qt::Key_A, Qt::AltModifier);
  QTest::qWait(150);
  EXPECT_EQ(checks, 1);
  EXPECT_FALSE(check->isChecked());
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, PressOnAComboBoxDoesNotOpenIt) {
  auto* list = window.Add(new CodeComboBox(&window, "cmbList"));
  list->Add("one");
  QTest::qWait(20);
  QTest::mouseClick(list, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, MessageBoxTakesTheFocusWithoutACheck) {
  QObject::connect(box, &TextBox::Edited, &window, [this] {
    AnswerNextBox(QMessageBox::Ok);
    QMessageBox(QMessageBox::NoIcon, "", "text", QMessageBox::Ok, &window).exec();
  });
  QTest::keyClicks(box, "x");
  window.Activate();
  EXPECT_EQ(checks, 0);
  EXPECT_TRUE(box->hasFocus());
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
}

TEST_F(LeaveCheckTest, AnotherWindowTakesTheFocusWithoutACheck) {
  Window other;
  other.Add(new TextBox(&other, "txtOther"));
  other.Show();
  EXPECT_EQ(checks, 0);
  window.Activate();
  EXPECT_EQ(checks, 0);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, MenusTakeTheFocusWithoutACheck) {
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), box->mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(box, &event);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
  EXPECT_EQ(checks, 0);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, CheckMayBringTheFocusBackAndSelectItself) {
  box->SetText("999");
  box->SetLeaveCheck([this] {
    ++checks;
    box->SelectAllAndFocus();
    return false;
  });
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(box->selectedText(), "999");
}

TEST_F(LeaveCheckTest, CheckThatAllowsMaySendTheFocusElsewhere) {
  box->SetLeaveCheck([this] {
    ++checks;
    check->setFocus();
    return true;
  });
  QTest::keyClick(box, Qt::Key_Tab);
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(check->hasFocus());
}

TEST_F(LeaveCheckTest, CodeThatMovesTheFocusIsCheckedToo) {
  next->setFocus();
  EXPECT_EQ(checks, 1);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveCheckTest, TakingTheBoxAwayIsNoLeaving) {
  box->setEnabled(false);
  EXPECT_EQ(checks, 0);
  box->setEnabled(true);
  box->setFocus();
  box->hide();
  EXPECT_EQ(checks, 0);
}

TEST_F(LeaveCheckTest, CheckMayTakeItselfAway) {
  box->SetLeaveCheck([this] {
    box->SetLeaveCheck({});
    return true;
  });
  next->setFocus();
  EXPECT_TRUE(next->hasFocus());
  box->setFocus();
  next->setFocus();
  EXPECT_TRUE(next->hasFocus());
  EXPECT_EQ(checks, 0);
}

class LeaveTabTest : public testing::Test {
 protected:
  void SetUp() override {
    tabs = window.Add(new QTabWidget(&window));
    auto* page = new QWidget;
    box = new TextBox(page, "txtRate");
    new TextBox(page, "txtMore");
    tabs->addTab(page, "Rates");
    tabs->addTab(new QWidget, "&Others");
    box->SetLeaveCheck([this] {
      ++checks;
      return allow;
    });
    window.Show();
    box->setFocus();
  }

  QPoint SecondTab() const { return tabs->tabBar()->tabRect(1).center(); }

  Window window;
  QTabWidget* tabs = nullptr;
  TextBox* box = nullptr;
  bool allow = false;
  int checks = 0;
};

TEST_F(LeaveTabTest, RefusedPressDoesNotTurnTheTab) {
  QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, SecondTab());
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveTabTest, AllowedPressTurnsTheTab) {
  allow = true;
  QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, SecondTab());
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(tabs->currentIndex(), 1);
}

TEST_F(LeaveTabTest, RefusedKeysDoNotTurnTheTab) {
  QTest::keyClick(box, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(tabs->currentIndex(), 0);
  QTest::keyClick(box, Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(checks, 2);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_TRUE(box->hasFocus());
}

TEST_F(LeaveTabTest, AllowedKeysTurnTheTab) {
  allow = true;
  QTest::keyClick(box, Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(tabs->currentIndex(), 1);
}

class LeaveDateTest : public testing::Test {
 protected:
  void SetUp() override {
    date = window.Add(new DateBox(&window, "dtpEnd"));
    save = window.Add(new QPushButton("&Save", &window));
    date->SetDate({2024, 5, 17});
    date->SetLeaveCheck([this] {
      ++checks;
      return allow;
    });
    window.Show();
    date->setFocus();
  }

  Window window;
  DateBox* date = nullptr;
  QPushButton* save = nullptr;
  bool allow = false;
  int checks = 0;
};

TEST_F(LeaveDateTest, MovingInsideOfTheDateIsNoLeaving) {
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(checks, 0);
  EXPECT_NE(qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget()), nullptr);
}

TEST_F(LeaveDateTest, LeavingTheDateIsCheckedOnce) {
  QSignalSpy clicked(save, &QPushButton::clicked);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 1);
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_TRUE(date->isAncestorOf(QApplication::focusWidget()));
  allow = true;
  QTest::mouseClick(save, Qt::LeftButton);
  EXPECT_EQ(checks, 2);
  EXPECT_EQ(clicked.count(), 1);
}

}  // namespace
