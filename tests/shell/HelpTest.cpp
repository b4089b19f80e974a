// F1 and the guide.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QUrl>
#include <QWindow>

#include "shell/Help.h"
#include "shell/HelpWindow.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "shell/frmLogon.h"
#include "support/Desk.h"

namespace {

class HelpTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    QDir(Folder()).mkdir("guide");
    qputenv("OSTANA_GUIDE", Guide().toLocal8Bit());
  }
  void TearDown() override {
    delete GuideWindow();
    qunsetenv("OSTANA_GUIDE");
    Desk::TearDown();
  }
  QString Guide() const { return QDir(Folder()).filePath("guide"); }
  void Page(const QString& name, const QByteArray& text = "# Title\n") {
    QFile file(QDir(Guide()).filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  static HelpWindow* GuideWindow() {
    for (QWidget* window : QApplication::allWidgets())
      if (auto* const guide = qobject_cast<HelpWindow*>(window)) return guide;
    return nullptr;
  }
  // The page that the guide shows; empty while it is closed.
  static QString Opened() {
    const HelpWindow* const guide = GuideWindow();
    return guide == nullptr || !guide->isVisible() ? QString() : QFileInfo(guide->File()).fileName();
  }
  static QTextBrowser* GuideText() { return GuideWindow()->findChild<QTextBrowser*>("txtGuide"); }

  void F1() {
    QApplication::setActiveWindow(Window());
    QTest::keyClick(Window(), Qt::Key_F1);
  }
};

TEST_F(HelpTest, F1OpensThePageOfTheDialog) {
  Page("frmAboutApp.html");
  Logon();
  Open("frmAboutApp");
  F1();
  EXPECT_EQ(Opened(), "frmAboutApp.html");
}

TEST_F(HelpTest, F1OpensThePageOfTheLogon) {
  Page("frmLogon.html");
  frmLogon logon;
  logon.show();
  QApplication::setActiveWindow(&logon);
  QTest::keyClick(&logon, Qt::Key_F1);
  EXPECT_EQ(Opened(), "frmLogon.html");
}

// After Yes to the question of the guard the new tab is on screen, and set up when it is entered again.
TEST_F(HelpTest, ATabThatWasNotSetUpIsToldOfOnThePageOfTheMainScreen) {
  Page("frmTabulon.html");
  Start();
  ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_SERVICE_TYPE"));
  Type("txt0Code", "??");
  Prompt().ExpectStart("A record has been modified.", 36, MessageAnswer::Yes);
  Prompt().ExpectStart("This Code does not exist in the table.", 48);
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  F1();
  EXPECT_EQ(Opened(), "frmTabulon.html");
}

TEST_F(HelpTest, TheHelpMenuOpensThePageToo) {
  for (const char* page : {"frmTabulon-code-tables.html", "frmLibraryLoginInfo.html"}) Page(page);
  Start();
  Trigger("mnuHelpGuide");
  EXPECT_EQ(Opened(), "frmTabulon-code-tables.html");
  Open("frmLibraryLoginInfo");
  Trigger("mnuHelpGuide");
  EXPECT_EQ(Opened(), "frmLibraryLoginInfo.html");
}

TEST_F(HelpTest, HtmlGoesBeforeMarkdownAndMarkdownBeforeNothing) {
  Page("frmLoans.md");
  EXPECT_TRUE(Help::PageFile("frmLoans").endsWith("/guide/frmLoans.md"));
  Page("frmLoans.html");
  EXPECT_TRUE(Help::PageFile("frmLoans").endsWith("/guide/frmLoans.html"));
  EXPECT_EQ(Help::PageFile("frmOther"), QString());
}

TEST_F(HelpTest, EachTabOfTheMainScreenHasItsPage) {
  const QStringList pages = {"frmTabulon-code-tables.md", "frmTabulon-delivery-messaging-0.md",
                             "frmTabulon-delivery-messaging-2.md"};
  for (const QString& page : pages) Page(page);
  Start();
  F1();
  EXPECT_EQ(Opened(), pages[0]);
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  F1();
  EXPECT_EQ(Opened(), pages[1]);
  SelectTab("sstab5Delivery", 2);
  F1();
  EXPECT_EQ(Opened(), pages[2]);
}

TEST_F(HelpTest, F1InAFieldIsTheWindowsF1) {
  Page("frmTabulon-code-tables.md");
  Start();
  Press("cmb0Tables", Qt::Key_F1);
  EXPECT_EQ(Opened(), "frmTabulon-code-tables.md");
}

TEST_F(HelpTest, AMissingPageIsSaidPlainly) {
  Start();
  Prompt().ExpectTitled("The guide has no page frmTabulon-code-tables on this machine.", 48,
                        "Ostana - System Maintenance");
  F1();
  EXPECT_EQ(Opened(), "");
}

TEST_F(HelpTest, TheGuideFollowsLinksAndGoesBack) {
  Page("frmAboutApp.md", "# About\n\n[Loans](frmLoans.md#statuses), [nothing](missing.md)\n");
  Page("frmLoans.md", "# Loans\n");
  Page("index.md", "# Contents\n");
  Logon();
  Open("frmAboutApp");
  F1();
  Q_EMIT GuideText()->anchorClicked(QUrl("frmLoans.md#statuses"));
  EXPECT_EQ(Opened(), "frmLoans.md");
  EXPECT_TRUE(GuideText()->toPlainText().contains("Loans"));
  GuideWindow()->findChild<QAction*>("mnuGuideBack")->trigger();
  EXPECT_EQ(Opened(), "frmAboutApp.md");
  Q_EMIT GuideText()->anchorClicked(QUrl("missing.md"));
  EXPECT_EQ(Prompt().Beeps(), 1);
  EXPECT_EQ(Opened(), "frmAboutApp.md");
  GuideWindow()->findChild<QAction*>("mnuGuideContents")->trigger();
  EXPECT_EQ(Opened(), "index.md");
}

TEST_F(HelpTest, TheGuideFindsATextAndGoesRound) {
  Page("frmAboutApp.md", "# About\n\nfirst word\n\nsecond word\n");
  Logon();
  Open("frmAboutApp");
  F1();
  QTest::keyClick(GuideText(), Qt::Key_F, Qt::ControlModifier);
  auto* const sought = GuideWindow()->findChild<TextBox*>("txtFindInGuide");
  ASSERT_EQ(GuideWindow()->focusWidget(), sought);
  QTest::keyClicks(sought, "word");
  const int first = GuideText()->textCursor().position();
  EXPECT_EQ(GuideText()->textCursor().selectedText(), "word");
  QTest::keyClick(sought, Qt::Key_Return);
  EXPECT_GT(GuideText()->textCursor().position(), first);
  QTest::keyClick(sought, Qt::Key_Return);
  EXPECT_EQ(GuideText()->textCursor().position(), first);
}

TEST_F(HelpTest, LettersOfTheGuideGrowAndStaySo) {
  Page("frmAboutApp.md");
  Logon();
  Open("frmAboutApp");
  F1();
  const int before = GuideText()->font().pointSize();
  GuideWindow()->findChild<QAction*>("mnuGuideLarger")->trigger();
  EXPECT_GT(GuideText()->font().pointSize(), before);
  delete GuideWindow();
  QApplication::setActiveWindow(Window());
  F1();
  EXPECT_GT(GuideText()->font().pointSize(), before);
}

TEST_F(HelpTest, PicturesAreNoWiderThanTheWindow) {
  QImage(1600, 200, QImage::Format_RGB32).save(QDir(Guide()).filePath("wide.png"));
  Page("frmAboutApp.md", "# About\n\n![wide](wide.png)\n");
  Logon();
  Open("frmAboutApp");
  F1();
  QApplication::processEvents();
  EXPECT_EQ(GuideText()->horizontalScrollBar()->maximum(), 0);
  GuideWindow()->resize(400, 300);
  QApplication::processEvents();
  EXPECT_EQ(GuideText()->horizontalScrollBar()->maximum(), 0);
}

// Dialogs block all windows but their own.
TEST_F(HelpTest, TheGuideCanBeUsedWhileADialogIsOpenAndOutlivesIt) {
  Page("frmTabulon-code-tables.md");
  Start();
  F1();
  HelpWindow* const guide = GuideWindow();
  WhenShown("frmAboutApp", [&](Screen& dialog) {
    EXPECT_TRUE(guide->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return guide->windowHandle()->transientParent() == dialog.windowHandle(); }));
    // A press that comes from the display; a blocked window would not get it.
    auto* const sought = guide->findChild<TextBox*>("txtFindInGuide");
    GuideText()->setFocus();
    QTest::mouseClick(guide->windowHandle(), Qt::LeftButton, {}, sought->mapTo(guide, sought->rect().center()));
    EXPECT_EQ(guide->focusWidget(), sought);
  });
  Trigger("mnuHelpAboutTabulon");
  ASSERT_EQ(GuideWindow(), guide);
  EXPECT_TRUE(guide->isVisible());
  QTest::keyClick(guide, Qt::Key_Escape);
  EXPECT_FALSE(guide->isVisible());
}

TEST_F(HelpTest, PageNamesOfTabs) {
  EXPECT_EQ(Help::TabPageName("frmTabulon", "Delivery/Messaging"), "frmTabulon-delivery-messaging");
  EXPECT_EQ(Help::TabPageName("frmTabulon", "&Auto Rejects"), "frmTabulon-auto-rejects");
}

}  // namespace
