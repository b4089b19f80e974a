// Window sizes that a user chose come back.
#include <QScreen>
#include <QSettings>

#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Desk.h"

namespace {

class WindowMemoryTest : public Desk {};

TEST_F(WindowMemoryTest, ADialogOpensAsItWasLeft) {
  Logon();
  Screen& first = Open("frmAboutOstana");
  const QSize chosen = first.size() + QSize(64, 48);
  first.resize(chosen);
  first.Unload();
  EXPECT_EQ(Open("frmAboutOstana").size(), chosen);
  EXPECT_NE(Open("frmAboutApp").size(), chosen);
}

TEST_F(WindowMemoryTest, ASizeThatNobodyChoseIsNotKept) {
  Logon();
  Open("frmAboutOstana").Unload();
  EXPECT_FALSE(QSettings().contains("Windows/frmAboutOstana/size"));
}

TEST_F(WindowMemoryTest, NoWindowIsLargerThanItsScreen) {
  QSettings().setValue("Windows/frmAboutOstana/size", QSize(9000, 9000));
  QSettings().setValue("Windows/frmTabulon/size", QSize(9000, 9000));
  Start();
  const QSize room = Shell().screen()->availableSize();
  EXPECT_LE(Shell().width(), room.width());
  EXPECT_LE(Shell().height(), room.height());
  const Screen& dialog = Open("frmAboutOstana");
  EXPECT_LE(dialog.width(), room.width());
  EXPECT_LE(dialog.height(), room.height());
}

TEST_F(WindowMemoryTest, TheMainScreenIsRememberedWhenItCloses) {
  Start();
  const QSize chosen = Shell().size() + QSize(30, 20);
  Shell().resize(chosen);
  Click("cmdClose");
  ASSERT_TRUE(ProcessEnded());
  EXPECT_EQ(frmTabulon("").size(), chosen);
}

TEST_F(WindowMemoryTest, AMaximizedMainScreenComesBackMaximizedWithItsOwnSizeBehind) {
  Start();
  const QSize chosen = Shell().size() + QSize(30, 20);
  Shell().resize(chosen);
  Click("cmdClose");
  Shell().showMaximized();
  Click("cmdClose");
  const frmTabulon again("");
  EXPECT_TRUE(again.isMaximized());
  EXPECT_EQ(QSettings().value("Windows/frmTabulon/size").toSize(), chosen);
}

}  // namespace
