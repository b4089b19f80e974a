#include <QFile>
#include <QTest>
#include <QTimer>

#include "core/Clock.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

class AboutTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Logon();
  }
  void Manifest(const QString& text) {
    QFile file(Folder() + "/MANIFEST.ini");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Ostana Manifest]\n" + text.toUtf8());
  }
  void RegistryValues(const QString& text) {
    QFile file(Folder() + "/registry.ini");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
  }
};

TEST_F(AboutTest, WithoutAManifestTheSplashScreenHasNoVersionAndTheYearOfToday) {
  Clock::Set([] { return QDateTime(QDate(2031, 5, 6), QTime(7, 8)); });
  Open("frmSplash");
  EXPECT_FALSE(IsShown("lblVersion"));
  EXPECT_EQ(Text("lblRights"), "Copyright 2031. All rights reserved.");
}

TEST_F(AboutTest, TheSplashScreenShowsTheVersionOfTheManifestForFourSeconds) {
  Manifest("Vendor-Version=7.2\nCopyright-Date=2024\n");
  Open("frmSplash");
  EXPECT_TRUE(IsShown("lblVersion"));
  EXPECT_EQ(Text("lblVersion"), "7.2");
  EXPECT_EQ(Text("lblRights"), "Copyright 2024. All rights reserved.");
  auto* const timer = Window()->findChild<QTimer*>();
  ASSERT_NE(timer, nullptr);
  EXPECT_TRUE(timer->isActive());
  EXPECT_EQ(timer->interval(), 4000);
  // The four seconds are over at once.
  QWidget* const splash = Window();
  timer->start(0);
  EXPECT_TRUE(QTest::qWaitFor([splash] { return !splash->isVisible(); }));
  EXPECT_FALSE(timer->isActive());
}

TEST_F(AboutTest, TheSystemScreenShowsContactSupportAndManifest) {
  Manifest("Vendor-Version=7.2\nPackage-Name=Consortium\nSupport-Email=help@example.org\nSupport-Phone=555 0100\n");
  Open("frmAboutOstana");
  EXPECT_EQ(Text("lblContact"), "Test Desk");
  EXPECT_EQ(Text("lblInstitution"), "Ostana");
  EXPECT_EQ(Text("lblVersionValue"), "7.2");
  EXPECT_EQ(Text("lblEditionValue"), "Consortium");
  EXPECT_EQ(Text("lblSupport"), "E-Mail: help@example.org   Phone: 555 0100");
}

TEST_F(AboutTest, AnEMailWithoutAPhoneGivesNoSupportLine) {
  Manifest("Support-Email=help@example.org\n");
  Open("frmAboutOstana");
  EXPECT_EQ(Text("lblSupport"), "");
  EXPECT_FALSE(IsShown("lblVersion"));
  EXPECT_FALSE(IsShown("lblVersionValue"));
  EXPECT_FALSE(IsShown("lblEdition"));
}

TEST_F(AboutTest, AnUnusableRegistryLeavesTheValuesOfTheManifest) {
  Manifest("Vendor-Version=7.2\nPackage-Name=Consortium\n");
  RegistryValues("this is [ no registry \n at all");
  Open("frmAboutOstana");
  EXPECT_EQ(Text("lblVersionValue"), "7.2");
  EXPECT_EQ(Text("lblEditionValue"), "Consortium");
}

TEST_F(AboutTest, EditionAndVersionOfTheRegistryReplaceThoseOfTheManifest) {
  Manifest("Vendor-Version=7.2\nPackage-Name=Consortium\n");
  RegistryValues("[SOFTWARE\\Ostana\\7.2]\nEdition=Campus\nVersion=7.2.31\n");
  Open("frmAboutOstana");
  EXPECT_EQ(Text("lblEditionValue"), "Campus");
  EXPECT_EQ(Text("lblVersionValue"), "7.2.31");
}

TEST_F(AboutTest, AnEmptyValueOfTheRegistryReplacesNothing) {
  Manifest("Vendor-Version=7.2\nPackage-Name=Consortium\n");
  RegistryValues("[SOFTWARE\\Ostana\\7.2]\nEdition=\n");
  Open("frmAboutOstana");
  EXPECT_EQ(Text("lblEditionValue"), "Consortium");
  EXPECT_EQ(Text("lblVersionValue"), "7.2");
}

TEST_F(AboutTest, MoreInformationIsShownAndHiddenAgain) {
  Open("frmAboutOstana");
  EXPECT_FALSE(IsShown("txtMoreInfo"));
  Click("cmdOtherInfo");
  EXPECT_TRUE(IsShown("txtMoreInfo"));
  EXPECT_FALSE(Text("txtMoreInfo").isEmpty());
  EXPECT_EQ(Text("cmdOtherInfo"), "&Less Info.");
  Click("cmdOtherInfo");
  EXPECT_FALSE(IsShown("txtMoreInfo"));
  EXPECT_EQ(Text("cmdOtherInfo"), "&More Info.");
}

// A program that says that it was started, in the place that the registry names.
class SystemInformationTest : public AboutTest {
 protected:
  void Program(const QString& path) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\ntouch '" + Started().toUtf8() + "'\n");
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  }
  QString Started() const { return Folder() + "/started"; }
  void PressAndWait() {
    Open("frmAboutOstana");
    Click("cmdSysInfo");
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Started()); }));
  }
};

TEST_F(SystemInformationTest, ThePathOfTheRegistryIsStarted) {
  Program(Folder() + "/information");
  RegistryValues("[SOFTWARE\\Microsoft\\Shared Tools\\MSINFO]\nPATH=" + Folder() + "/information\n");
  PressAndWait();
}

TEST_F(SystemInformationTest, WithoutAPathTheProgramBelowItsFolderIsStarted) {
  Program(Folder() + "/tools\\MSINFO32.EXE");
  RegistryValues("[SOFTWARE\\Microsoft\\Shared Tools Location]\nMSINFO=" + Folder() + "/tools\n");
  PressAndWait();
}

TEST_F(SystemInformationTest, AFolderWithoutTheProgramIsNoInformation) {
  RegistryValues("[SOFTWARE\\Microsoft\\Shared Tools Location]\nMSINFO=" + Folder() + "/tools\n");
  Open("frmAboutOstana");
  Prompt().Expect("System Information Is Unavailable At This Time", 48);
  Click("cmdSysInfo");
}

TEST_F(AboutTest, WithoutASystemInformationProgramThatIsSaid) {
  Open("frmAboutOstana");
  Prompt().Expect("System Information Is Unavailable At This Time", 48);
  Click("cmdSysInfo");
}

TEST_F(AboutTest, TheProgramsOwnScreenNamesTitleAndVersion) {
  Manifest("Copyright-Date=2024\n");
  Screen& screen = Open("frmAboutApp");
  EXPECT_EQ(screen.Caption(), "About Tabulon");
  EXPECT_EQ(Text("txtTitle"), "  Tabulon");
  EXPECT_EQ(Text("txtVersion"), "  1.0.0");
  EXPECT_EQ(Text("txtLegalCopyright"), "Copyright 2024. All rights reserved.");
  EXPECT_FALSE(Text("txtComments").isEmpty());
  Click("cmdOK");
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(AboutTest, EscapeClosesTheScreen) {
  Screen& screen = Open("frmAboutApp");
  Press("cmdOK", Qt::Key_Escape);
  EXPECT_FALSE(screen.isVisible());
}

}  // namespace
