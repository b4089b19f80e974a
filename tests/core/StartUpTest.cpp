// Start-up and its failure paths on the real process: exit status, words, log file.
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include "core/ModuleState.h"
#include "core/Logon.h"
#include "core/OstanaFunctions.h"
#include "core/Screen.h"
#include "platform/files/WideTextFile.h"
#include "support/Desk.h"

namespace {

class StartUpTest : public Desk {
 protected:
  // Runs Tabulon with these arguments until it ends or `milliseconds` are over (it is then killed: it was running).
  struct Outcome {
    bool ended = false;
    int exitCode = -1;
    QString output;
    QStringList log;
  };
  Outcome Run(const QStringList& arguments, int milliseconds = 20000, const QString& logName = "Tabulon") {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("OSTANA_HOME", Folder());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    // A message on a screen that nobody sees would wait for ever: the program prints it and takes the first answer.
    environment.insert("OSTANA_UNATTENDED", "1");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(Folder());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QString(TABULON_BINARY_DIR) + "/Tabulon", arguments);
    Outcome outcome;
    outcome.ended = process.waitForFinished(milliseconds);
    if (!outcome.ended) {
      process.kill();
      process.waitForFinished();
    }
    outcome.exitCode = process.exitCode();
    outcome.output = QString::fromUtf8(process.readAll());
    outcome.log = WideTextFile::ReadLines(QDir(Folder()).filePath("Logs/" + logName + ".log"));
    return outcome;
  }
  static bool Holds(const QStringList& log, const QString& text) {
    for (const QString& line : log)
      if (line.contains(text)) return true;
    return false;
  }
};

TEST_F(StartUpTest, HelpAndVersionAnswerOnTheTerminal) {
  const Outcome help = Run({"--help"});
  EXPECT_TRUE(help.ended);
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_TRUE(help.output.startsWith("Usage: Tabulon"));
  EXPECT_TRUE(help.log.isEmpty());
  const Outcome version = Run({"--version"});
  EXPECT_EQ(version.output.trimmed(), "Tabulon 1.0.0");
}

TEST_F(StartUpTest, WithoutASettingsFileTheReasonIsSaidAndLogged) {
  QFile::remove(SettingsFile());
  const Outcome outcome = Run({"", "admin", "secret"});
  EXPECT_TRUE(outcome.ended);
  EXPECT_NE(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.output.contains("Terminating....."));
  EXPECT_TRUE(Holds(outcome.log, "**** Application Started: Build (1.0.0)"));
  EXPECT_TRUE(Holds(outcome.log, "* Terminating....."));
  EXPECT_TRUE(Holds(outcome.log, "**** Version: 1.0.0 ****"));
}

TEST_F(StartUpTest, ASettingsFileOfRandomBytesEndsInWords) {
  QFile file(SettingsFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  QByteArray bytes;
  for (int index = 0; index < 5000; ++index) bytes.append(static_cast<char>((index * 7919) % 256));
  file.write(bytes);
  file.close();
  const Outcome outcome = Run({"", "admin", "secret"});
  EXPECT_TRUE(outcome.ended);
  EXPECT_NE(outcome.exitCode, 0);
  EXPECT_TRUE(outcome.output.contains("Terminating....."));
}

TEST_F(StartUpTest, AnUnknownEngineIsNamed) {
  Setting("Database", "Engine", "PAPER");
  const Outcome outcome = Run({"", "admin", "secret"});
  EXPECT_TRUE(outcome.output.contains("PAPER")) << outcome.output.toStdString();
  EXPECT_NE(outcome.exitCode, 0);
}

TEST_F(StartUpTest, AWrongPasswordAndAnUnknownUserAreToldAlike) {
  const Outcome password = Run({"", "admin", "wrong"});
  const Outcome user = Run({"", "nobody", "secret"});
  EXPECT_TRUE(password.ended);
  EXPECT_NE(password.exitCode, 0);
  EXPECT_FALSE(password.output.isEmpty());
  EXPECT_EQ(password.output, user.output);
  EXPECT_TRUE(Holds(password.log, "gclsOF.ID_ValidateLogin: Not valid. "));
}

TEST_F(StartUpTest, AGoodStartRunsOnAndLogsItsRights) {
  const Outcome outcome = Run({"", "admin", "secret"}, 4000);
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
  EXPECT_TRUE(Holds(outcome.log, "  * ADD: True , Update: True , Delete: True"));
  EXPECT_TRUE(Holds(outcome.log, "  * Form_Activate - Logon Worked"));
}

TEST_F(StartUpTest, OneQuotedArgumentIsTheSameAsThree) {
  const Outcome outcome = Run({"\"\" \"admin\" \"secret\""}, 4000);
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
  EXPECT_TRUE(Holds(outcome.log, "Logon Worked"));
}

TEST_F(StartUpTest, ASecondCopyEndsWhereTheSiteWantsOne) {
  Setting("System", "SingleInstance", "Y");
  QProcess first;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("OSTANA_HOME", Folder());
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("XDG_RUNTIME_DIR", Folder());
  qputenv("XDG_RUNTIME_DIR", Folder().toUtf8());
  first.setProcessEnvironment(environment);
  first.setWorkingDirectory(Folder());
  first.start(QString(TABULON_BINARY_DIR) + "/Tabulon", {"", "admin", "secret"});
  const QString log = QDir(Folder()).filePath("Logs/Tabulon.log");
  QElapsedTimer waited;
  waited.start();
  while (!Holds(WideTextFile::ReadLines(log), "Logon Worked") && waited.elapsed() < 20000) first.waitForFinished(50);
  const Outcome second = Run({"", "admin", "secret"});
  first.kill();
  first.waitForFinished();
  EXPECT_TRUE(second.ended);
  EXPECT_TRUE(Holds(second.log, "* The application is already running."));
  EXPECT_TRUE(Holds(second.log, "* Terminating second instance....."));
  EXPECT_TRUE(Holds(second.log, "* Form_Activate - Logon Failed"));
}

TEST_F(StartUpTest, ALogFolderThatCannotBeWrittenDoesNotStopTheProgram) {
  QFile blocker(QDir(Folder()).filePath("Logs"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  blocker.close();
  const Outcome outcome = Run({"", "admin", "secret"}, 4000);
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
}

TEST_F(StartUpTest, AMissingTableFailsItsTabAlone) {
  Another("ALTER TABLE ID_TABLES RENAME TO ID_TABLES_AWAY");
  Prompt().Expect("***** SQL error on OSTANA.ID_TABLES (SELECT) *****", 16);
  Start();
  EXPECT_FALSE(ProcessEnded());
  EXPECT_EQ(Rows("grd0TableDesc"), 1);
  SelectTab("sstabtables", 11);
  EXPECT_EQ(Shell().Tab(), 11);
}

TEST_F(StartUpTest, ALanguageOfFourLettersPassesAndOneOfSevenIsDropped) {
  Start("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "_FRE");
}

TEST_F(StartUpTest, ALanguageOfSevenLettersIsDropped) {
  Start("\"\" \"admin\" \"secret\" \"\" \"Englisch\"");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "");
}

TEST_F(StartUpTest, WebServiceSettingsThatAreIncompleteEndTheProgram) {
  Setting("BL Web Services", "Use", "Y");
  const Outcome outcome = Run({"", "admin", "secret"});
  EXPECT_TRUE(outcome.ended);
  EXPECT_TRUE(outcome.output.contains(
      "The BL Web Service settings have not been configured.  See the application log for details."))
      << outcome.output.toStdString();
}

TEST_F(StartUpTest, WithoutTheLauncherTheSplashScreenComesFirst) {
  // No user on the command line: the logon question is answered in its place.
  bool shown = false;
  WhenShown("frmSplash", [&shown](Screen&) { shown = true; });
  gLogonDialog = [](QString& user, QString& password) {
    user = "admin";
    password = "secret";
    return true;
  };
  Start("");
  gLogonDialog = {};
  EXPECT_TRUE(shown);
  EXPECT_EQ(gclsOF->UserId(), "admin");
}

}  // namespace
