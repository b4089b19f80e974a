#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QProcess>

#include "core/PasswordCipher.h"
#include "core/UserRights.h"
#include "support/Folders.h"
#include "support/Texts.h"
#include "tools/ToolDesk.h"

namespace {

class UserTest : public ToolDesk {
 protected:
  void SetUp() override {
    ToolDesk::SetUp();
    UseDatabase();
  }

  QString Record(const QString& user) {
    return Ask("SELECT USER_PASSWORD FROM ID_USER WHERE USER_ID = '" + user + "'");
  }

  // What the programs find when the user logs on: the letters of the rights, or "refused".
  QString Logon(const QString& user, const QString& password, const QString& function) {
    UserRights rights;
    FunctionRights found;
    QString reason;
    if (!rights.Read(Client(), user, password, function, found, reason)) return "refused";
    return QString(found.add ? "A" : "-") + (found.update ? "U" : "-") + (found.remove ? "D" : "-");
  }
};

TEST_F(UserTest, AUserIsAddedWithADigestOfThePassword) {
  const Result added = Run({"user", "add", "eva", "--password", "Grüße 7"});
  EXPECT_EQ(added.exitCode, 0) << added.err.toStdString();
  EXPECT_TRUE(added.out.contains("tabulon-db user rights eva Tabulon add,update,delete"));
  EXPECT_TRUE(Record("eva").startsWith("pbkdf2-sha256$600000$"));
  EXPECT_TRUE(PasswordRecord::Matches("Grüße 7", Record("eva")));
  EXPECT_EQ(Logon("eva", "Grüße 7", "Tabulon"), "refused");
}

TEST_F(UserTest, WithoutTheOptionThePasswordComesFromTheInput) {
  EXPECT_EQ(Run({"user", "add", "eva"}, "from a pipe\n").exitCode, 0);
  EXPECT_TRUE(PasswordRecord::Matches("from a pipe", Record("eva")));
  const Result refused = Run({"user", "add", "max"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("No password was given."));
  EXPECT_EQ(Run({"user", "add", "max", "--password", ""}).exitCode, 1);
  EXPECT_EQ(Count("ID_USER", "USER_ID = 'max'"), 0);
}

// Runs the tool on a terminal of its own, types the lines, and gives what the terminal showed.
QString OnATerminal(const QString& folder, const QByteArrayList& arguments, const QByteArray& typed, int& exitCode) {
  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child == 0) {
    setenv("OSTANA_HOME", folder.toUtf8().constData(), 1);
    QByteArrayList all = QByteArrayList{BuildFolder().toUtf8() + "/tabulon-db"} + arguments;
    std::vector<char*> texts;
    for (QByteArray& argument : all) texts.push_back(argument.data());
    texts.push_back(nullptr);
    execv(texts[0], texts.data());
    _exit(127);
  }
  QByteArray shown;
  char buffer[256];
  qsizetype answered = 0;
  const QByteArrayList lines = typed.split('\n');
  // A line is typed when the question that it answers stands there.
  for (ssize_t count = 0; (count = read(terminal, buffer, sizeof buffer)) > 0;) {
    shown.append(buffer, count);
    while (answered < lines.size() && shown.count(": ") > answered) {
      const QByteArray line = lines[answered++] + '\n';
      if (write(terminal, line.constData(), static_cast<size_t>(line.size())) < 0) break;
    }
  }
  int status = 0;
  waitpid(child, &status, 0);
  close(terminal);
  exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return QString::fromUtf8(shown);
}

TEST_F(UserTest, OnATerminalThePasswordIsAskedForTwiceAndNotShown) {
  int exitCode = -1;
  const QString shown = OnATerminal(Folder(), {"user", "add", "eva"}, "hidden\nhidden", exitCode);
  EXPECT_EQ(exitCode, 0);
  EXPECT_TRUE(shown.contains("Password of eva: ")) << shown.toStdString();
  EXPECT_TRUE(shown.contains("The same password again: "));
  EXPECT_FALSE(shown.contains("hidden"));
  EXPECT_TRUE(PasswordRecord::Matches("hidden", Record("eva")));

  const QString differing = OnATerminal(Folder(), {"user", "password", "eva"}, "one\nother", exitCode);
  EXPECT_EQ(exitCode, 1);
  EXPECT_TRUE(differing.contains("The two passwords differ. Nothing was changed."));
  EXPECT_TRUE(PasswordRecord::Matches("hidden", Record("eva")));
}

TEST_F(UserTest, ANameIsTakenOnce) {
  EXPECT_EQ(Run({"user", "add", "eva", "--password", "one"}).exitCode, 0);
  const Result refused = Run({"user", "add", "eva", "--password", "two"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("The user \"eva\" exists already."));
  EXPECT_TRUE(PasswordRecord::Matches("one", Record("eva")));
  EXPECT_EQ(Run({"user", "add", QString(21, 'x'), "--password", "p"}).exitCode, 2);
  EXPECT_EQ(Run({"user", "add", " ", "--password", "p"}).exitCode, 2);
}

TEST_F(UserTest, APasswordIsChanged) {
  EXPECT_EQ(Run({"user", "password", "admin", "--password", "new"}).exitCode, 0);
  EXPECT_EQ(Logon("admin", "secret", "Tabulon"), "refused");
  EXPECT_EQ(Logon("admin", "new", "Tabulon"), "AUD");
  EXPECT_EQ(Run({"user", "password", "nobody", "--password", "x"}).exitCode, 1);
}

TEST_F(UserTest, RightsAreSetTakenAndGivenAnew) {
  EXPECT_EQ(Run({"user", "add", "eva", "--password", "p"}).exitCode, 0);
  EXPECT_EQ(Run({"user", "rights", "eva", "tabulon", "update"}).out.trimmed(), "eva in Tabulon: update");
  EXPECT_EQ(Logon("eva", "p", "Tabulon"), "-U-");
  EXPECT_EQ(Run({"user", "rights", "eva", "Tabulon", "Add, delete"}).exitCode, 0);
  EXPECT_EQ(Logon("eva", "p", "Tabulon"), "A-D");
  EXPECT_EQ(Run({"user", "rights", "eva", "Tabulon", "none"}).exitCode, 0);
  EXPECT_EQ(Logon("eva", "p", "Tabulon"), "---");
  EXPECT_EQ(Run({"user", "rights", "eva", "Tabulon", "revoke"}).out.trimmed(), "eva in Tabulon: no access");
  EXPECT_EQ(Logon("eva", "p", "Tabulon"), "refused");
}

TEST_F(UserTest, UnknownRightsAndUsersAreRefused) {
  EXPECT_EQ(Run({"user", "rights", "admin", "Tabulon", "everything"}).exitCode, 2);
  EXPECT_EQ(Run({"user", "rights", "admin", "Tabulon"}).exitCode, 2);
  const Result refused = Run({"user", "rights", "nobody", "Tabulon", "add"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("There is no user \"nobody\"."));
  const Result noted = Run({"user", "rights", "admin", "Coffee", "add"});
  EXPECT_EQ(noted.exitCode, 0);
  EXPECT_TRUE(noted.err.contains("no program of the system asks for the function \"Coffee\""));
  EXPECT_EQ(Logon("admin", "secret", "Tabulon"), "AUD");
}

TEST_F(UserTest, AUserIsRemovedWithAllRights) {
  EXPECT_EQ(Run({"user", "remove", "admin"}).exitCode, 0);
  EXPECT_EQ(Count("ID_USER"), 0);
  EXPECT_EQ(Count("ID_USER_FUNCTION"), 0);
  EXPECT_EQ(Run({"user", "remove", "admin"}).exitCode, 1);
}

TEST_F(UserTest, TheListTellsNamesAndRightsAndNoPassword) {
  EXPECT_EQ(Run({"user", "add", "O'Neil", "--password", "p"}).exitCode, 0);
  EXPECT_EQ(Run({"user", "rights", "O'Neil", "Library Registration", "none"}).exitCode, 0);
  const Result list = Run({"user", "list"});
  EXPECT_EQ(list.exitCode, 0);
  EXPECT_TRUE(list.out.contains("O'Neil\n  Library Registration: none\n")) << list.out.toStdString();
  EXPECT_TRUE(list.out.contains("admin\n"));
  EXPECT_FALSE(list.out.contains("pbkdf2"));
}

TEST_F(UserTest, NamesThatWouldShowAsOthersAreRefused) {
  for (const QString& name :
       {QString("a\nroot"), QString("a\x1b[2Jb"), QString("a") + QChar(0x202E) + "b", QString("a") + QChar(0x200B)}) {
    const Result refused = Run({"user", "add", name, "--password", "a long password"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(refused.err.contains("A user's name holds no control characters.")) << refused.err.toStdString();
  }
  EXPECT_EQ(Count("ID_USER"), 1);
  EXPECT_EQ(Run({"user", "add", QString::fromUtf8("Zoë 漢 𝄞"), "--password", "a long password"}).exitCode, 0);
  Execute("INSERT INTO ID_USER (USER_ID, USER_PASSWORD) VALUES ('x\n\x1b[2Jy', 'z')");
  const Result list = Run({"user", "list"});
  EXPECT_TRUE(list.out.contains("x\\u{000a}\\u{001b}[2Jy\n")) << list.out.toStdString();
  EXPECT_TRUE(list.out.contains(QString::fromUtf8("Zoë 漢 𝄞\n"))) << list.out.toStdString();
}

TEST_F(UserTest, AShortPasswordAndTheLastAdministratorAreNoted) {
  EXPECT_TRUE(Run({"user", "add", "eva", "--password", "1234567"}).err.contains("fewer than 8 characters"));
  EXPECT_EQ(Run({"user", "password", "eva", "--password", "12345678"}).err, "");
  EXPECT_TRUE(Run({"user", "remove", "admin"}).err.contains("Note: nobody has access to Tabulon any more."));
  EXPECT_EQ(Run({"user", "remove", "eva"}).exitCode, 0);
}

#ifdef Q_OS_LINUX
TEST_F(UserTest, AnAnswerThatFindsNoRoomIsAFailure) {
  for (const QStringList& arguments : {QStringList{"user", "list"}, QStringList{"--help"}, QStringList{"check"}}) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("OSTANA_HOME", Folder());
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile("/dev/full");
    process.start(BuildFolder() + "/tabulon-db", arguments);
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 1) << arguments.join(' ').toStdString();
    EXPECT_TRUE(process.readAllStandardError().contains("The output could not be written."));
  }
}
#endif

}  // namespace
