// Which site is this? Its name on its colour, where the settings say so.
#include <QFile>
#include <QLabel>
#include <QToolBar>

#include "shell/frmLogon.h"
#include "support/Desk.h"

namespace {

class SiteStripTest : public Desk {
 protected:
  static QColor Ground(const QLabel& strip) { return strip.palette().color(QPalette::Window); }
};

TEST_F(SiteStripTest, WithoutSettingsNothingShows) {
  Start();
  EXPECT_EQ(Shell().findChild<QLabel*>("lblSite"), nullptr);
  EXPECT_EQ(Shell().findChild<QToolBar*>("tlbSite"), nullptr);
  EXPECT_EQ(frmLogon().findChild<QLabel*>("lblSite"), nullptr);
}

TEST_F(SiteStripTest, NameAndColourStandUnderTheMenuAndInTheLogon) {
  Setting("Database", "SiteName", "Auenfels PRODUCTION");
  Setting("Database", "SiteColour", "#b00020");
  Start();
  const auto* const strip = Find<QLabel>("lblSite");
  EXPECT_EQ(strip->text(), "Auenfels PRODUCTION");
  EXPECT_EQ(Ground(*strip), QColor("#b00020"));
  EXPECT_EQ(strip->palette().color(QPalette::WindowText), QColor(Qt::white));
  EXPECT_TRUE(strip->isVisible());
  const int top = strip->mapTo(&Shell(), QPoint(0, 0)).y();
  EXPECT_LT(top, Find<QToolBar>("tlbButtons")->y());
  EXPECT_GE(strip->width(), Shell().width() - 40);

  const frmLogon logon;
  const auto* const asked = logon.findChild<QLabel*>("lblSite");
  ASSERT_NE(asked, nullptr);
  EXPECT_EQ(asked->text(), "Auenfels PRODUCTION");
  EXPECT_TRUE(logon.findChild<QLabel*>("lblDatabase")->text().startsWith("Database: "));
}

TEST_F(SiteStripTest, EachSectionHasItsOwnName) {
  QFile settings(SettingsFile());
  ASSERT_TRUE(settings.open(QIODevice::Append));
  settings.write('\n' + Database().IniSection().replace("[Database]", "[Database North]").toUtf8());
  settings.close();
  Setting("Database", "SiteName", "Production");
  Setting("Database North", "SiteName", "Test");
  Start("\"North\" \"admin\" \"secret\"");
  EXPECT_EQ(Text("lblSite"), "Test");
}

TEST_F(SiteStripTest, LettersOnALightColourAreBlack) {
  Setting("Database", "SiteName", "Test");
  Setting("Database", "SiteColour", "#ffe080");
  Start();
  EXPECT_EQ(Find<QLabel>("lblSite")->palette().color(QPalette::WindowText), QColor(Qt::black));
}

TEST_F(SiteStripTest, AColourThatIsNoneIsTold) {
  Setting("Database", "SiteColour", "red");
  Prompt().ExpectStart("The setting 'SiteColour' in section [Database] of ", 16);
  // The case goes on where the process has ended.
  Prompt().Expect("***** SQL error on OSTANA.ID_TABLES (SELECT) *****", 16);
  Start();
  EXPECT_TRUE(ProcessEnded());
}

}  // namespace
