#include "shell/frmLogon.h"

#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include "core/Logon.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/WorkFolder.h"

namespace {

class frmLogonTest : public WorkFolder {
 protected:
  void SetUp() override {
    WorkFolder::SetUp();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Path("account"));
  }
  void TearDown() override {
    gLogonDialog = nullptr;
    WorkFolder::TearDown();
  }

  // Acts on the dialog inside its own event loop.
  static void WhenShown(std::function<void(frmLogon&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
      auto* const dialog = qobject_cast<frmLogon*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      act(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
  }
  static void Type(frmLogon& dialog, const QString& box, const QString& text) {
    auto* const field = dialog.findChild<TextBox*>(box);
    field->clear();
    QTest::keyClicks(field, text);
  }
  static QPushButton* Button(frmLogon& dialog, const QString& name) { return dialog.findChild<QPushButton*>(name); }

  bool Ask() { return AskForLogon(user, password); }
  QString user = "before", password = "before";
};

}  // namespace

TEST_F(frmLogonTest, UserAndPasswordAreHandedBack) {
  WhenShown([](frmLogon& dialog) {
    Type(dialog, "txtUser", " admin ");
    Type(dialog, "txtPassword", " secret ");
    QTest::keyClick(dialog.findChild<TextBox*>("txtPassword"), Qt::Key_Return);
  });
  EXPECT_TRUE(Ask());
  EXPECT_EQ(user, "admin");
  EXPECT_EQ(password, " secret ");
}

TEST_F(frmLogonTest, CancelAndEscapeAnswerFalseAndChangeNothing) {
  WhenShown([](frmLogon& dialog) {
    Type(dialog, "txtUser", "admin");
    Button(dialog, "cmdCancel")->click();
  });
  EXPECT_FALSE(Ask());
  WhenShown([](frmLogon& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_FALSE(Ask());
  EXPECT_EQ(user, "before");
  EXPECT_EQ(password, "before");
}

TEST_F(frmLogonTest, TheSiteIsNamedBeforeAPasswordIsTyped) {
  Store("Ostana.ini", "[Database]\nEngine=SQLITE\nName=ostana.db\n");
  QString shown;
  gLogonDialog = [&shown](QString&, QString&) {
    frmLogon dialog;
    shown = dialog.findChild<QLabel*>("lblSite")->text();
    return false;
  };
  Store("ostana.db", "");
  EXPECT_FALSE(gclsOF->LoadApplicationSettings("Tabulon", "", "", ""));
  ResetModuleState();
  EXPECT_EQ(shown, "Site: " + QDir::toNativeSeparators(Path("") + "/"));
}

TEST_F(frmLogonTest, WithoutAUserThereIsNoOk) {
  frmLogon dialog;
  EXPECT_FALSE(Button(dialog, "cmdOK")->isEnabled());
  Type(dialog, "txtUser", "  ");
  EXPECT_FALSE(Button(dialog, "cmdOK")->isEnabled());
  Type(dialog, "txtUser", "a");
  EXPECT_TRUE(Button(dialog, "cmdOK")->isEnabled());
}

TEST_F(frmLogonTest, UserIsRememberedPasswordNever) {
  {
    frmLogon dialog;
    Type(dialog, "txtUser", "admin");
    Type(dialog, "txtPassword", "topsecret");
    dialog.accept();
  }
  frmLogon again;
  EXPECT_EQ(again.User(), "admin");
  EXPECT_EQ(again.Password(), "");
  EXPECT_TRUE(Button(again, "cmdOK")->isEnabled());
  const QByteArray stored = Bytes("account/Ostana/Tabulon.ini");
  EXPECT_TRUE(stored.contains("admin"));
  EXPECT_FALSE(stored.contains("topsecret"));
}

TEST_F(frmLogonTest, CancelledUserIsNotRemembered) {
  {
    frmLogon dialog;
    Type(dialog, "txtUser", "admin");
    dialog.reject();
  }
  EXPECT_EQ(frmLogon().User(), "");
}

TEST_F(frmLogonTest, PasswordIsNotReadable) {
  frmLogon dialog;
  EXPECT_EQ(dialog.findChild<TextBox*>("txtPassword")->echoMode(), QLineEdit::Password);
}

TEST_F(frmLogonTest, AnotherQuestionTakesItsPlace) {
  gLogonDialog = [](QString& givenUser, QString&) {
    givenUser = "robot";
    return true;
  };
  EXPECT_TRUE(Ask());
  EXPECT_EQ(user, "robot");
}
