// F1 and the guide.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTabWidget>
#include <QTest>
#include <QUrl>

#include "shell/Help.h"
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
    Help::SetOpener([this](const QUrl& url) {
      opened_.append(url.fileName());
      return opens_;
    });
  }
  void TearDown() override {
    Help::SetOpener(nullptr);
    qunsetenv("OSTANA_GUIDE");
    Desk::TearDown();
  }
  QString Guide() const { return QDir(Folder()).filePath("guide"); }
  void Page(const QString& name) {
    QFile file(QDir(Guide()).filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  void F1() {
    QApplication::setActiveWindow(Window());
    QTest::keyClick(Window(), Qt::Key_F1);
  }

  QStringList opened_;
  bool opens_ = true;
};

TEST_F(HelpTest, F1OpensThePageOfTheDialog) {
  Page("frmAboutApp.html");
  Logon();
  Open("frmAboutApp");
  F1();
  EXPECT_EQ(opened_, QStringList{"frmAboutApp.html"});
}

TEST_F(HelpTest, F1OpensThePageOfTheLogon) {
  Page("frmLogon.html");
  frmLogon logon;
  logon.show();
  QApplication::setActiveWindow(&logon);
  QTest::keyClick(&logon, Qt::Key_F1);
  EXPECT_EQ(opened_, QStringList{"frmLogon.html"});
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
  EXPECT_EQ(opened_, QStringList{"frmTabulon.html"});
}

TEST_F(HelpTest, TheHelpMenuOpensThePageToo) {
  for (const char* page : {"frmTabulon-code-tables.html", "frmLibraryLoginInfo.html"}) Page(page);
  Start();
  Trigger("mnuHelpGuide");
  Open("frmLibraryLoginInfo");
  Trigger("mnuHelpGuide");
  EXPECT_EQ(opened_, (QStringList{"frmTabulon-code-tables.html", "frmLibraryLoginInfo.html"}));
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
  SelectTab("sstabtables", frmTabulon::DeliveryTab);
  F1();
  SelectTab("sstab5Delivery", 2);
  F1();
  EXPECT_EQ(opened_, pages);
}

TEST_F(HelpTest, F1InAFieldIsTheWindowsF1) {
  Page("frmTabulon-code-tables.md");
  Start();
  Press("cmb0Tables", Qt::Key_F1);
  EXPECT_EQ(opened_.size(), 1);
}

TEST_F(HelpTest, AMissingPageIsSaidPlainly) {
  Start();
  Prompt().ExpectTitled("The guide has no page frmTabulon-code-tables on this machine.", 48,
                        "Ostana - System Maintenance");
  F1();
  EXPECT_TRUE(opened_.isEmpty());
}

TEST_F(HelpTest, ADesktopThatOpensNothingIsSaidPlainly) {
  Page("frmTabulon-code-tables.md");
  opens_ = false;
  Start();
  Prompt().ExpectStart("No program on this machine opens the page of the guide:\n", 48);
  F1();
}

TEST_F(HelpTest, PageNamesOfTabs) {
  EXPECT_EQ(Help::TabPageName("frmTabulon", "Delivery/Messaging"), "frmTabulon-delivery-messaging");
  EXPECT_EQ(Help::TabPageName("frmTabulon", "&Auto Rejects"), "frmTabulon-auto-rejects");
}

}  // namespace
