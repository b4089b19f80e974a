// Start-up and its failure paths on the real process: exit status, words, log file.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include "core/Logon.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/files/WideTextFile.h"
#include "shell/Screen.h"
#include "support/Desk.h"
#include "support/Folders.h"

namespace {

class StartUpTest : public Desk {
 protected:
  struct Outcome {
    bool ended = false;
    int exitCode = -1;
    QString output;
    QStringList log;
    QByteArray commandLine;  // as other users of the machine see it
  };
  static constexpr int Longest = 30000;  // milliseconds until a start is given up

  QString LogFile(const QString& logName = "Tabulon") const {
    return QDir(Folder()).filePath("Logs/" + logName + ".log");
  }
  void Launch(QProcess& process, const QStringList& arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("OSTANA_HOME", Folder());
    environment.insert("XDG_RUNTIME_DIR", Folder());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    // A message on a screen that nobody sees would wait for ever: the program prints it and takes the first answer.
    environment.insert("OSTANA_UNATTENDED", "1");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(Folder());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(BuildFolder() + "/Tabulon", arguments);
  }
  Outcome Harvest(QProcess& process, const QString& logName) {
    Outcome outcome;
    outcome.ended = process.state() == QProcess::NotRunning;
    QFile commandLine(QString("/proc/%1/cmdline").arg(process.processId()));
    if (commandLine.open(QIODevice::ReadOnly)) outcome.commandLine = commandLine.readAll();
    if (!outcome.ended) {
      process.kill();
      process.waitForFinished();
    }
    outcome.exitCode = process.exitCode();
    // The platform without a screen has words of its own for what it cannot do.
    QStringList lines = QString::fromUtf8(process.readAll()).split('\n');
    lines.removeIf([](const QString& line) { return line.startsWith("This plugin does not support"); });
    outcome.output = lines.join('\n');
    outcome.log = WideTextFile::ReadLines(LogFile(logName));
    return outcome;
  }
  // A start that ends by itself.
  Outcome Run(const QStringList& arguments, const QString& logName = "Tabulon") {
    QProcess process;
    Launch(process, arguments);
    process.waitForFinished(Longest);
    return Harvest(process, logName);
  }
  // Waits until the program is up: the log holds that many lines which say so.
  void AwaitUp(QProcess& process, const QString& logName = "Tabulon", int times = 1) {
    QElapsedTimer waited;
    waited.start();
    while (process.state() != QProcess::NotRunning && waited.elapsed() < Longest &&
           WideTextFile::ReadLines(LogFile(logName)).filter("Form_Activate - Logon Worked").size() < times)
      process.waitForFinished(50);
  }
  // A start that goes on until the program is up, where it is stopped.
  Outcome RunUp(const QStringList& arguments, const QString& logName = "Tabulon") {
    QFile::remove(LogFile(logName));  // an earlier run's log would say that this one is up
    QProcess process;
    Launch(process, arguments);
    AwaitUp(process, logName);
    return Harvest(process, logName);
  }
  static bool Holds(const QStringList& log, const QString& text) {
    for (const QString& line : log)
      if (line.contains(text)) return true;
    return false;
  }
  // Refused for what the settings say: words, log lines and exit status of every such start.
  static void MustBeRefused(const Outcome& outcome, const QString& reason) {
    EXPECT_TRUE(outcome.ended);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.output.startsWith("Ostana - System Maintenance: ")) << outcome.output.toStdString();
    EXPECT_TRUE(outcome.output.contains(reason)) << outcome.output.toStdString();
    EXPECT_TRUE(outcome.output.trimmed().endsWith("  Terminating.....")) << outcome.output.toStdString();
    ASSERT_GE(outcome.log.size(), 4);
    EXPECT_EQ(outcome.log[0], "");
    EXPECT_TRUE(outcome.log[1].endsWith("  **** Application Started: Build (1.0.0)"));
    EXPECT_TRUE(outcome.log[2].contains("  * ")) << outcome.log[2].toStdString();
    EXPECT_TRUE(Holds(outcome.log, reason));
    EXPECT_EQ(outcome.log[outcome.log.size() - 2], QString(24, ' ') + "* Terminating.....");
    EXPECT_EQ(outcome.log.last(), QString("**** Version: 1.0.0 ").leftJustified(65, '*'));
  }
  void WriteSettings(const QByteArray& bytes) {
    QFile file(SettingsFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
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
  MustBeRefused(Run({"", "admin", "secret"}), "The settings file 'Ostana.INI' was not found in '");
}

TEST_F(StartUpTest, ASettingsFileOfRandomBytesEndsInWords) {
  QByteArray bytes;
  for (int index = 0; index < 5000; ++index) bytes.append(static_cast<char>((index * 7919) % 256));
  WriteSettings(bytes);
  MustBeRefused(Run({"", "admin", "secret"}), "is not a text file.");
}

TEST_F(StartUpTest, ASettingsFileOf50MegabytesEndsInWords) {
  QFile file(SettingsFile());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.resize(50 * 1024 * 1024));
  file.close();
  MustBeRefused(Run({"", "admin", "secret"}), "is larger than 16 MB and cannot be a settings file.");
}

TEST_F(StartUpTest, ASettingsFileOfOneLineWithoutEndEndsInWords) {
  WriteSettings(QByteArray(15 * 1024 * 1024, '['));
  MustBeRefused(Run({"", "admin", "secret"}), "has no section [Database].");
}

TEST_F(StartUpTest, AnUnknownEngineIsNamed) {
  Setting("Database", "Engine", "PAPER");
  const Outcome outcome = Run({"", "admin", "secret"});
  MustBeRefused(outcome, "The setting 'Engine' in section [Database] of '");
  EXPECT_TRUE(outcome.output.contains("is 'PAPER'.  Write SQLITE, POSTGRESQL, MARIADB or SQLSERVER."));
}

TEST_F(StartUpTest, ADatabaseThatIsNotThereIsNamed) {
  Setting("Database", "Engine", "SQLITE");
  Setting("Database", "Name", "absent.db");
  MustBeRefused(Run({"", "admin", "secret"}), "absent.db' cannot be opened: The database file \"");
}

TEST_F(StartUpTest, ADatabaseFileThatAnotherProgramHoldsLockedIsToldSo) {
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "a server locks no file";
  Another("PRAGMA locking_mode = EXCLUSIVE");
  Another("UPDATE ID_PRINTER SET DEVICE = DEVICE");
  const Outcome outcome = Run({"", "admin", "secret"});
  MustBeRefused(outcome, "is locked by another program. Try again when that program has finished.");
  // The settings are right: nobody is sent to look for a mistake there.
  EXPECT_FALSE(outcome.output.contains("check")) << outcome.output.toStdString();
}

TEST_F(StartUpTest, AWrongPasswordAndAnUnknownUserAreToldAlike) {
  const Outcome password = Run({"", "admin", "wrong"});
  const Outcome user = Run({"", "nobody", "secret"});
  EXPECT_TRUE(password.ended);
  EXPECT_EQ(password.exitCode, 1);
  EXPECT_EQ(password.output, "Ostana - System Maintenance: The user id or the password is not valid.\n");
  EXPECT_EQ(password.output, user.output);
  ASSERT_EQ(password.log.size(), 5);
  EXPECT_TRUE(password.log[2].contains("  * Logon refused: user 'admin', machine '" + QSysInfo::machineHostName() +
                                       "', process "))
      << password.log[2].toStdString();
  EXPECT_EQ(password.log[3], QString(24, ' ') + "* The user id or the password is not valid.");
  EXPECT_TRUE(password.log[4].endsWith("  * gclsOF.ID_ValidateLogin: Not valid. "));
}

TEST_F(StartUpTest, LogonsAndRefusalsAreLoggedWithoutTracingToo) {
  Setting("System", "Tracing", "N");
  EXPECT_TRUE(Holds(Run({"", "nobody", "secret"}).log, "Logon refused: user 'nobody', machine '"));
  TakeAway("ADD_FLAG");
  Another("DELETE FROM ID_USER_FUNCTION WHERE FUNCTION_NAME = 'Tabulon'");
  const Outcome withoutAccess = Run({"", "admin", "secret"});
  EXPECT_TRUE(Holds(withoutAccess.log, "* You do not have access to this function"));
}

TEST_F(StartUpTest, ASiteOfAStrangeNameIsRefusedAndLogged) {
  for (const QString& site : QStringList{"a/b", "../x", "a\\b"}) {
    const Outcome outcome = Run({site, "admin", "secret"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.output.contains("The name of the site holds a path separator or a control character."))
        << outcome.output.toStdString();
  }
  EXPECT_TRUE(QFile::exists(QDir(Folder()).filePath("Logs/Tabulon - a_b.log")));
}

TEST_F(StartUpTest, WithoutAUserAnUnattendedRunEndsAtOnce) {
  MustBeRefused(Run({}), "The logon was cancelled.");
}

TEST_F(StartUpTest, TheSiteOfACurrentDirectoryThatEverybodyMayWriteIsRefused) {
  QFile::setPermissions(SettingsFile(), QFileDevice::Permissions(0x6666));
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("OSTANA_HOME");
  environment.insert("OSTANA_UNATTENDED", "1");
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(Folder());
  process.start(BuildFolder() + "/Tabulon", {"", "admin", "secret"});
  ASSERT_TRUE(process.waitForFinished(60000));
  EXPECT_EQ(process.exitCode(), 1);
  const QString said = QString::fromUtf8(process.readAllStandardOutput());
  EXPECT_TRUE(said.contains("belongs to another user, or everybody may write it.  Set OSTANA_HOME"))
      << said.toStdString();
}

TEST_F(StartUpTest, SecretsThatEverybodyMayReadAreToldOfInTheLog) {
  Setting("Database", "Password", "db$Secr3t");
  QFile::setPermissions(SettingsFile(), QFileDevice::Permissions(0x6644));
  EXPECT_TRUE(Holds(Run({"", "admin", "wrong"}).log,
                    "holds the password of the database, and everybody on this machine may read it."));
  QFile::setPermissions(SettingsFile(), QFileDevice::Permissions(0x6640));
  QFile::remove(LogFile());
  EXPECT_FALSE(Holds(Run({"", "admin", "wrong"}).log, "everybody on this machine may read it."));
}

TEST_F(StartUpTest, ALogonThatTheDatabaseFailsIsLoggedLikeAnyFailure) {
  Another("ALTER TABLE ID_USER RENAME TO ID_USER_AWAY");
  const Outcome outcome = Run({"", "admin", "secret"});
  Another("ALTER TABLE ID_USER_AWAY RENAME TO ID_USER");
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_TRUE(outcome.output.startsWith("Ostana - System Maintenance: ")) << outcome.output.toStdString();
  EXPECT_TRUE(outcome.output.contains("ID_USER", Qt::CaseInsensitive)) << outcome.output.toStdString();
  ASSERT_GE(outcome.log.size(), 5);
  EXPECT_TRUE(outcome.log[2].endsWith("  * frmTabulon.Form_Load")) << outcome.log[2].toStdString();
  EXPECT_TRUE(outcome.log[3].startsWith(QString(24, ' ') + "* Error: -2147217900 - ")) << outcome.log[3].toStdString();
  EXPECT_TRUE(outcome.log.last().endsWith("  * gclsOF.ID_ValidateLogin: Not valid. "));
}

TEST_F(StartUpTest, AGoodStartRunsOnAndLogsItsRights) {
  const Outcome outcome = RunUp({"", "admin", "secret"});
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
  ASSERT_EQ(outcome.log.size(), 5);
  EXPECT_TRUE(outcome.log[2].contains("  * Logon: user 'admin', machine '")) << outcome.log[2].toStdString();
  EXPECT_TRUE(outcome.log[3].endsWith("  * ADD: True , Update: True , Delete: True"));
  EXPECT_TRUE(outcome.log[4].endsWith("  * Form_Activate - Logon Worked"));
}

TEST_F(StartUpTest, ASiteHasItsOwnLog) {
  const Outcome outcome = RunUp({"north", "admin", "secret"}, "Tabulon - north");
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
  ASSERT_EQ(outcome.log.size(), 5);
  EXPECT_FALSE(QFile::exists(LogFile()));
}

TEST_F(StartUpTest, OneQuotedArgumentIsTheSameAsThree) {
  const Outcome outcome = RunUp({"\"\" \"admin\" \"secret\""});
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
  EXPECT_TRUE(Holds(outcome.log, "Logon Worked"));
}

#ifdef Q_OS_LINUX
TEST_F(StartUpTest, TheListOfProcessesDoesNotShowThePassword) {
  for (const QStringList& arguments : {QStringList{"", "admin", "secret"}, QStringList{"\"\" \"admin\" \"secret\""}}) {
    const Outcome outcome = RunUp(arguments);
    EXPECT_TRUE(outcome.commandLine.contains("admin")) << outcome.commandLine.toStdString();
    EXPECT_FALSE(outcome.commandLine.contains("secret")) << outcome.commandLine.toStdString();
  }
}
#endif

TEST_F(StartUpTest, ASecondCopyEndsWhereTheSiteWantsOne) {
  Setting("System", "SingleInstance", "Y");
  QProcess first;
  Launch(first, {"", "admin", "secret"});
  AwaitUp(first);
  const Outcome second = Run({"", "admin", "secret"});
  EXPECT_FALSE(Harvest(first, "Tabulon").ended);
  EXPECT_TRUE(second.ended);
  EXPECT_EQ(second.exitCode, 1);
  EXPECT_EQ(second.output, "");
  ASSERT_GE(second.log.size(), 11);
  const QStringList last = second.log.mid(second.log.size() - 5);
  EXPECT_TRUE(last[0].endsWith("  * The application is already running."));
  EXPECT_EQ(last[1], QString(24, ' ') + "* Terminating second instance.....");
  EXPECT_TRUE(last[2].startsWith("**** Version: 1.0.0 ****"));
  EXPECT_TRUE(last[3].endsWith("  * Form_Activate - Logon Failed"));
  EXPECT_TRUE(last[4].startsWith("**** Version: 1.0.0 ****"));
}

TEST_F(StartUpTest, ASecondCopyRunsWhereTheSiteAllowsSeveral) {
  Setting("System", "SingleInstance", "N");
  QProcess first, second;
  Launch(first, {"", "admin", "secret"});
  AwaitUp(first);
  Launch(second, {"", "admin", "secret"});
  AwaitUp(second, "Tabulon", 2);
  EXPECT_FALSE(Harvest(first, "Tabulon").ended);
  const Outcome outcome = Harvest(second, "Tabulon");
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
  EXPECT_FALSE(Holds(outcome.log, "already running"));
}

TEST_F(StartUpTest, ALogFolderThatCannotBeWrittenDoesNotStopTheProgram) {
  QFile blocker(QDir(Folder()).filePath("Logs"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  blocker.close();
  // Without a log another sign has to tell that the program is up: the statement of its first tab.
  Setting("System", "StatementLog", "statements.txt");
  QProcess process;
  Launch(process, {"", "admin", "secret"});
  const auto statements = [this] {
    QFile file(QDir(Folder()).filePath("statements.txt"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  QElapsedTimer waited;
  waited.start();
  while (process.state() != QProcess::NotRunning && waited.elapsed() < Longest && !statements().contains("ID_TABLES"))
    process.waitForFinished(50);
  EXPECT_TRUE(statements().contains("ID_TABLES"));
  const Outcome outcome = Harvest(process, "Tabulon");
  EXPECT_FALSE(outcome.ended) << outcome.output.toStdString();
  EXPECT_EQ(outcome.output, "");
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

TEST_F(StartUpTest, AMissingColumnFailsItsTabAlone) {
  Another("ALTER TABLE ID_TABLES RENAME COLUMN TABLES_DESC_FRE TO GONE");
  Prompt().Expect("***** SQL error on OSTANA.ID_TABLES (SELECT) *****", 16);
  Start("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  EXPECT_FALSE(ProcessEnded());
  EXPECT_EQ(Text("cmb0Tables"), "(none)");
  SelectTab("sstabtables", frmTabulon::PrintersTab);
  EXPECT_TRUE(IsShown("grd3Printer"));
}

TEST_F(StartUpTest, ALanguageWithItsUnderscoreIsKept) {
  Start("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "_FRE");
}

TEST_F(StartUpTest, ALanguageOfFourLettersWithoutUnderscoreIsKept) {
  Prompt().Expect("***** SQL error on OSTANA.ID_TABLES (SELECT) *****", 16);
  Start("\"\" \"admin\" \"secret\" \"\" \"FREN\"");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "FREN");
}

TEST_F(StartUpTest, ALanguageOfAnUnderscoreWithOneLetterIsKept) {
  Prompt().Expect("***** SQL error on OSTANA.ID_TABLES (SELECT) *****", 16);
  Start("\"\" \"admin\" \"secret\" \"\" \"_F\"");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "_F");
}

TEST_F(StartUpTest, ALanguageOfSevenLettersIsDropped) {
  Start("\"\" \"admin\" \"secret\" \"\" \"ENGLISH\"");
  EXPECT_EQ(gclsOF->LanguageSuffix(), "");
}

TEST_F(StartUpTest, WithoutTheAddressOfTheWebServiceTheProgramEnds) {
  Setting("BL Web Services", "Use", "Y");
  const Outcome outcome = Run({"", "admin", "secret"});
  EXPECT_TRUE(outcome.ended);
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output,
            "Tabulon: The BL Web Service settings have not been configured.  See the application log for details.\n");
  ASSERT_EQ(outcome.log.size(), 5);
  EXPECT_TRUE(outcome.log[4].endsWith("  * The Web Service 'ServerAddress' setting has not been configured."));
}

TEST_F(StartUpTest, WithGapsInTheWebServiceSettingsTheProgramEndsAndTheLogListsThem) {
  Setting("BL Web Services", "Use", "Y");
  Setting("BL Web Services", "ServerAddress", "api.example.org");
  const Outcome outcome = Run({"", "admin", "secret"});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output,
            "Tabulon: One or more [BL Web Service] settings have not been configured.  See the application log for "
            "details.\n");
  EXPECT_EQ(outcome.log.filter("' setting has not been configured.").size(), 13);
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
  EXPECT_TRUE(WideTextFile::ReadLines(LogFile()).value(1).contains("Application Started"));
}

}  // namespace
