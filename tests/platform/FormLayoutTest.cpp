#include "platform/controls/FormLayout.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>

#include "platform/Window.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/DateBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"

namespace {

// A page as the screens build theirs.
class FormLayoutTest : public testing::Test {
 protected:
  void SetUp() override {
    code = new TextBox(&page, "txtCode", 3);
    charge = new TextBox(&page, "txtCharge", 9);
    description = new TextBox(&page, "txtDescription", 50);
    address = new TextBox(&page, "txtAddress", 500);
    library = new CodeComboBox(&page, "cmbLibrary");
    find = Form::Button(&page, "cmdFind", "&Find Library", "Looks for a library");
    active = new OptionGroup(&page, "optActive", {"Yes", "No"});
    date = new DateBox(&page, "dtpStart");
    note = new MemoBox(&page, "txtNote");
    Form::Rows rows(&page);
    label = rows.Add("lblCode", "&Code:", code);
    second = rows.Beside("lblCharge", "Service c&harge:", charge);
    rows.Add("", "Description:", description);
    rows.Add("lblAddress", "Address:", address);
    rows.Add("lblLibrary", "Library:", library, find);
    rows.Add("lblActive", "Active:", active->Row());
    rows.Add("lblDate", "Start:", date);
    rows.Add("lblNote", "Note:", note);
  }

  void Show(int width, int height) {
    page.resize(width, height);
    page.show();
    page.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  }

  QWidget page;
  TextBox *code, *charge, *description, *address;
  CodeComboBox* library;
  QPushButton* find;
  OptionGroup* active;
  DateBox* date;
  MemoBox* note;
  QLabel *label, *second;
};

TEST_F(FormLayoutTest, LabelIsTheBuddyAndLendsItsName) {
  EXPECT_EQ(label->objectName(), "lblCode");
  EXPECT_EQ(label->buddy(), code);
  EXPECT_EQ(code->accessibleName(), "Code:");
  EXPECT_EQ(charge->accessibleName(), "Service charge:");
  EXPECT_EQ(page.findChild<QLabel*>("lblAddress")->buddy(), address);
  EXPECT_EQ(date->findChild<QDateEdit*>()->accessibleName(), "Start:");
  EXPECT_EQ(date->findChild<QCheckBox*>()->accessibleName(), "Start:");
  EXPECT_EQ(active->Button(0)->accessibleName(), "");
}

TEST_F(FormLayoutTest, MnemonicOfTheLabelGoesToItsField) {
  Show(800, 500);
  note->setFocus();
  QTest::keyClick(note, Qt::Key_H, Qt::AltModifier);
  EXPECT_TRUE(charge->hasFocus());
}

TEST_F(FormLayoutTest, MnemonicOfARowOfOptionsChoosesNothing) {
  page.findChild<QLabel*>("lblActive")->setText("&Zone:");
  Show(800, 500);
  code->setFocus();
  QTest::keyClick(code, Qt::Key_Z, Qt::AltModifier);
  EXPECT_TRUE(active->Button(0)->hasFocus());
  QTest::qWait(150);
  EXPECT_EQ(active->Selected(), -1);
  active->Select(1);
  code->setFocus();
  QTest::keyClick(code, Qt::Key_Z, Qt::AltModifier);
  EXPECT_TRUE(active->Button(1)->hasFocus());
}

TEST_F(FormLayoutTest, MnemonicOfADateDoesNotSetIt) {
  page.findChild<QLabel*>("lblDate")->setText("Da&y:");
  Show(800, 500);
  QTest::keyClick(code, Qt::Key_Y, Qt::AltModifier);
  QTest::qWait(150);
  EXPECT_TRUE(date->findChild<QCheckBox*>()->hasFocus());
  EXPECT_TRUE(date->IsNone());
}

TEST_F(FormLayoutTest, FieldsAreAsWideAsTheirLimit) {
  Show(800, 500);
  EXPECT_EQ(code->width(), code->sizeHint().width());
  EXPECT_LT(code->width(), charge->width());
  EXPECT_LT(charge->width(), description->width());
  EXPECT_LT(description->width(), address->width());
  EXPECT_LT(address->width(), 640);
}

TEST_F(FormLayoutTest, FieldsBeginOnOneLineAndLabelsToo) {
  Show(800, 500);
  for (const QWidget* field : std::initializer_list<QWidget*>{description, address, library, active->Row(), note})
    EXPECT_EQ(field->x(), code->x()) << field->objectName().toStdString();
  for (const QLabel* other : page.findChildren<QLabel*>()) {
    EXPECT_TRUE(other == second || other->x() == label->x()) << other->text().toStdString();
  }
  EXPECT_EQ(label->geometry().center().y(), second->geometry().center().y());
  EXPECT_GT(second->x(), code->geometry().right());
}

TEST_F(FormLayoutTest, NothingOverlapsOrIsCutOffInANarrowWindow) {
  Show(page.minimumSizeHint().width(), page.minimumSizeHint().height());
  const QList<QWidget*> parts = page.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  for (const QWidget* part : parts) {
    EXPECT_TRUE(page.rect().contains(part->geometry())) << part->objectName().toStdString();
    EXPECT_GE(part->width(), part->minimumSizeHint().width()) << part->objectName().toStdString();
    for (const QWidget* other : parts) {
      const bool apart = part == other || !part->geometry().intersects(other->geometry());
      EXPECT_TRUE(apart) << part->objectName().toStdString() << " and " << other->objectName().toStdString();
    }
  }
  EXPECT_LT(page.minimumSizeHint().width(), 560);
}

TEST_F(FormLayoutTest, MemoTakesTheHeightThatIsLeft) {
  Show(800, 500);
  const int before = note->height();
  const int line = code->height();
  page.resize(800, 700);
  QTest::qWait(10);
  EXPECT_EQ(note->height(), before + 200);
  EXPECT_EQ(code->height(), line);
}

TEST_F(FormLayoutTest, ButtonsAreNotDefaultByThemselves) {
  EXPECT_FALSE(find->autoDefault());
  EXPECT_EQ(find->objectName(), "cmdFind");
  EXPECT_EQ(find->toolTip(), "Looks for a library");
  EXPECT_GE(Form::Button(&page, "cmdOk", "OK")->minimumSizeHint().width(), 80);
}

TEST(FormTest, PlainCaptionDropsTheMnemonicMark) {
  EXPECT_EQ(Form::PlainCaption("&Add"), "Add");
  EXPECT_EQ(Form::PlainCaption("Cl&ose"), "Close");
  EXPECT_EQ(Form::PlainCaption("Mail && Fax"), "Mail & Fax");
  EXPECT_EQ(Form::PlainCaption("A &"), "A &");
}

TEST(FormTest, LabelsShowPlainText) {
  QWidget page;
  EXPECT_EQ(Form::Label(&page, "lblA", "<b>x</b>")->textFormat(), Qt::PlainText);
}

TEST(FormTest, MenusAndEntriesBearTheirNames) {
  QMainWindow window;
  QMenu* menu = Form::Menu(&window, "mnuOptions", "&Options");
  QAction* entry = Form::MenuEntry(menu, "mnuOptionsAdd", "&Add");
  EXPECT_EQ(window.findChild<QAction*>("mnuOptionsAdd"), entry);
  EXPECT_EQ(window.findChild<QMenu*>("mnuOptions"), menu);
  EXPECT_EQ(window.menuBar()->actions().size(), 1);
}

TEST(FormTest, ButtonRowStandsAtTheRightEnd) {
  Window window;
  auto* ok = new QPushButton("OK", &window);
  auto* cancel = new QPushButton("Cancel", &window);
  static_cast<QVBoxLayout*>(window.layout())->addLayout(Form::ButtonRow({ok, cancel}));
  window.resize(600, 100);
  window.Show();
  EXPECT_GT(ok->x(), 300);
  EXPECT_LT(ok->x(), cancel->x());
}

TEST(FormTest, GapInAButtonRowTakesTheRoom) {
  Window window;
  auto* add = new QPushButton("Add", &window);
  auto* close = new QPushButton("Close", &window);
  static_cast<QVBoxLayout*>(window.layout())->addLayout(Form::ButtonRow({add, nullptr, close}));
  window.resize(600, 100);
  window.Show();
  EXPECT_LT(add->x(), 30);
  EXPECT_GT(close->geometry().right(), 570);
}

// Made in another order than they stand in; Tab goes as a person reads.
TEST(FormTest, TabFollowsReadingThroughTabsFramesDatesAndHiddenFields) {
  Window window;
  auto* close = new QPushButton("Close", &window);
  auto* tabs = new QTabWidget(&window);
  tabs->setObjectName("tabs");
  auto* page = new QWidget(&window);
  auto* second = new TextBox(page, "second");
  auto* date = new DateBox(page, "date");
  auto* hidden = new TextBox(page, "hidden");
  auto* first = new TextBox(page, "first");
  Form::Rows rows(page);
  rows.Add("", "First:", first);
  rows.Beside("", "Hidden:", hidden);
  rows.Add("", "Date:", date);
  rows.Add("", "Second:", second);
  tabs->addTab(page, "Page");
  window.Add(tabs);
  window.Add(close);
  hidden->hide();
  Form::ReadingOrder(&window);
  window.Show();
  first->setFocus();
  QStringList order;
  for (int press = 0; press < 8; ++press) {
    QWidget* const focus = QApplication::focusWidget();
    order.append(focus == close ? "close" : focus == tabs->tabBar() ? "tabs" : focus->objectName());
    if (press == 0) hidden->show();
    QTest::keyClick(focus, Qt::Key_Tab);
  }
  EXPECT_EQ(order, (QStringList{"first", "hidden", "qt_datebox_check", "second", "close", "tabs", "first", "hidden"}));
  EXPECT_EQ(QApplication::focusWidget()->window(), &window);
}

}  // namespace
