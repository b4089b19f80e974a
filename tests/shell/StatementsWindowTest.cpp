// The statements of this minute: what the program sent, while the window is open.
#include "shell/StatementsWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

class StatementsWindowTest : public SampleDesk {
 protected:
  enum Column { Time = 1, Milliseconds, Rows_, Screen_, Event, Statement };

  static StatementsWindow* List() {
    for (QWidget* window : QApplication::allWidgets())
      if (auto* const list = qobject_cast<StatementsWindow*>(window)) return list;
    return nullptr;
  }
  static Grid* Sent() { return List()->findChild<Grid*>("grdStatements"); }
  void Press12() {
    QApplication::setActiveWindow(Window());
    QTest::keyClick(Window(), Qt::Key_F12);
    ASSERT_NE(List(), nullptr);
  }
  void TearDown() override {
    delete List();
    SampleDesk::TearDown();
  }
};

TEST_F(StatementsWindowTest, StatementsComeWithWhereTheyComeFrom) {
  Start();
  Press12();
  EXPECT_EQ(Sent()->Rows(), 1);
  ChooseAt("cmb0Tables", 1);
  ASSERT_GT(Sent()->Rows(), 1);
  EXPECT_TRUE(Sent()->Text(1, Statement).startsWith("SELECT")) << Sent()->Text(1, Statement).toStdString();
  EXPECT_EQ(Sent()->Text(1, Rows_), "-");
  EXPECT_EQ(Sent()->Text(1, Screen_), "frmTabulon");
  EXPECT_FALSE(Sent()->Text(1, Event).isEmpty());
  EXPECT_FALSE(Sent()->Text(1, Time).isEmpty());
  // The newest stands first, as the program composed it.
  gclsOF->Connection().Execute("UPDATE ID_PRINTER SET DEVICE = DEVICE WHERE PRINTER = 'nobody''s'");
  EXPECT_EQ(Sent()->Text(1, Statement), "UPDATE ID_PRINTER SET DEVICE = DEVICE WHERE PRINTER = 'nobody''s'");
  EXPECT_EQ(Sent()->Text(1, Rows_), "0");
  Sent()->SetRow(1);
  EXPECT_EQ(List()->findChild<MemoBox*>("txtStatement")->Text(), Sent()->Text(1, Statement));
  QTest::mouseClick(List()->findChild<QPushButton*>("cmdCopy"), Qt::LeftButton);
  EXPECT_EQ(QApplication::clipboard()->text(), Sent()->Text(1, Statement));
}

TEST_F(StatementsWindowTest, SecretsAreMasked) {
  Start();
  Press12();
  gclsOF->Connection().Execute("UPDATE ID_USER SET USER_PASSWORD = 'top secret' WHERE USER_ID = 'nobody'");
  EXPECT_TRUE(Sent()->Text(1, Statement).contains("'***'")) << Sent()->Text(1, Statement).toStdString();
  EXPECT_FALSE(Sent()->Text(1, Statement).contains("top secret"));
}

TEST_F(StatementsWindowTest, ItKeepsTheLastFiveHundred) {
  Start();
  Press12();
  for (int row = 0; row < StatementsWindow::Most + 20; ++row)
    gclsOF->Connection().Execute(QString("UPDATE ID_PRINTER SET DEVICE = DEVICE WHERE PRINTER = '%1'").arg(row));
  EXPECT_EQ(Sent()->Rows() - 1, StatementsWindow::Most);
  EXPECT_TRUE(Sent()->Text(1, Statement).endsWith("'519'"));
  EXPECT_TRUE(Sent()->Text(StatementsWindow::Most, Statement).endsWith("'20'"));
}

TEST_F(StatementsWindowTest, WhileItIsClosedNothingIsKept) {
  Start();
  Press12();
  QTest::keyClick(List(), Qt::Key_Escape);
  EXPECT_FALSE(List()->isVisible());
  ChooseAt("cmb0Tables", 1);
  EXPECT_EQ(Sent()->Rows(), 1);
  Trigger("mnuSiteStatements");
  EXPECT_TRUE(List()->isVisible());
  ChooseAt("cmb0Tables", 2);
  EXPECT_GT(Sent()->Rows(), 1);
}

TEST_F(StatementsWindowTest, ItListensBesideADialogToo) {
  Start();
  WhenShown("frmAboutApp", [this](Screen&) {
    Press12();
    EXPECT_TRUE(List()->isVisible());
  });
  Trigger("mnuHelpAboutTabulon");
  ASSERT_NE(List(), nullptr);
  EXPECT_TRUE(List()->isVisible());
  ChooseAt("cmb0Tables", 1);
  EXPECT_GT(Sent()->Rows(), 1);
}

TEST_F(StatementsWindowTest, AFailedStatementIsThereToo) {
  Start();
  Press12();
  EXPECT_THROW(gclsOF->Connection().Execute("UPDATE ID_NOTHING SET A = 1"), AdoError);
  EXPECT_EQ(Sent()->Text(1, Rows_), "failed");
}

}  // namespace
