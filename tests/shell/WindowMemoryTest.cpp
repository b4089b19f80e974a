// Window sizes that a user chose come back.
#include <QScreen>
#include <QSettings>
#include <QTest>
#include <QWindow>

#include "platform/desktop/UserSettings.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "shell/WindowMemory.h"
#include "support/Desk.h"

namespace {

class WindowMemoryTest : public Desk {
 protected:
  // As the window manager tells of it when a person has drawn the edge.
  static void ByHand(QWidget& window, QSize size) {
    window.windowHandle()->resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.size() == size; }));
  }
};

TEST_F(WindowMemoryTest, ADialogOpensAsItWasLeft) {
  Logon();
  Screen& first = Open("frmAboutOstana");
  const QSize chosen = first.size() + QSize(64, 48);
  ByHand(first, chosen);
  first.Unload();
  EXPECT_EQ(Open("frmAboutOstana").size(), chosen);
  EXPECT_NE(Open("frmAboutApp").size(), chosen);
}

TEST_F(WindowMemoryTest, ASizeThatNobodyChoseIsNotKept) {
  Logon();
  Open("frmAboutOstana").Unload();
  EXPECT_FALSE(QSettings().contains("Windows/frmAboutOstana/size"));
}

TEST_F(WindowMemoryTest, ASizeThatTheProgramChoseIsNotKept) {
  Logon();
  Screen& first = Open("frmAboutOstana");
  first.resize(first.size() + QSize(64, 48));
  first.Unload();
  EXPECT_FALSE(QSettings().contains("Windows/frmAboutOstana/size"));
}

TEST_F(WindowMemoryTest, EachSiteKeepsItsOwnSizes) {
  QSize chosen;
  {
    frmTabulon window("\"North\" \"admin\" \"secret\"");
    window.show();
    chosen = window.size() - QSize(64, 48);
    ByHand(window, chosen);
    WindowMemory::Remember(window);
  }
  EXPECT_NE(frmTabulon("\"\" \"admin\" \"secret\"").size(), chosen);
  EXPECT_EQ(frmTabulon("\"North\" \"admin\" \"secret\"").size(), chosen);
  UserSettings::SetSite({});
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
  ByHand(Shell(), chosen);
  Click("cmdClose");
  ASSERT_TRUE(ProcessEnded());
  EXPECT_EQ(frmTabulon("").size(), chosen);
}

TEST_F(WindowMemoryTest, AMaximizedMainScreenComesBackMaximizedWithItsOwnSizeBehind) {
  Start();
  const QSize chosen = Shell().size() + QSize(30, 20);
  ByHand(Shell(), chosen);
  Click("cmdClose");
  Shell().showMaximized();
  Click("cmdClose");
  const frmTabulon again("");
  EXPECT_TRUE(again.isMaximized());
  EXPECT_EQ(QSettings().value("Windows/frmTabulon/size").toSize(), chosen);
}

}  // namespace
