#include <QApplication>
#include <QTimer>
#include <cstdio>

#ifndef Q_OS_WIN
#include <sys/resource.h>
#endif

#include "Screens.h"
#include "core/CommandLine.h"
#include "core/Logon.h"
#include "platform/desktop/TerminalPrompts.h"
#include "shell/WaitingWindow.h"
#include "shell/frmTabulon.h"

namespace {

QString Version() {
  return QString("%1.%2.%3").arg(TABULON_VERSION_MAJOR).arg(TABULON_VERSION_MINOR).arg(TABULON_VERSION_REVISION);
}

// --help and --version answer on the terminal; no window is opened.
bool AnsweredOnTerminal(int argc, char** argv) {
  for (int index = 1; index < argc; ++index) {
    const QByteArray argument(argv[index]);
    if (argument == "--version") {
      std::printf("Tabulon %s\n", qPrintable(Version()));
      return true;
    }
    if (argument == "--help" || argument == "-h") {
      std::printf(
          "Usage: Tabulon [site [user [password [unused [language]]]]]\n\n"
          "Opens the administrator's screens of an Ostana site.\n\n"
          "  site      name of a section \"Database <site>\" of Ostana.ini; \"\" for section \"Database\"\n"
          "  user      logon name; without one the program asks for name and password\n"
          "  password  the user's password\n"
          "  language  working language as a column ending, such as _FRE\n\n"
          "  --help    this text\n"
          "  --version the program's version\n\n"
          "The settings file Ostana.ini is looked for in the folder named by OSTANA_HOME, then in the\n"
          "current folder, then beside the program.\n");
      return true;
    }
  }
  return false;
}

// The password stays in memory as long as the program runs: a crash leaves no copy of it on the disk.
void KeepMemoryPrivate() {
#ifndef Q_OS_WIN
  const rlimit none{0, 0};
  setrlimit(RLIMIT_CORE, &none);
#endif
}

}  // namespace

int main(int argc, char** argv) {
  if (AnsweredOnTerminal(argc, argv)) return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
  const QString commandLine = QuotedCommandLine(argc, argv);
  ForgetPassword(argc, argv);
  KeepMemoryPrivate();
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  QApplication::setOrganizationName("Ostana");
  QApplication::setApplicationVersion(Version());

  TerminalPrompts terminal;
  if (qEnvironmentVariableIntValue("OSTANA_UNATTENDED") == 1) {
    SetPrompts(&terminal);
    gLogonDialog = [](QString&, QString&) { return false; };  // nobody would answer it
  }
  RegisterDialogs();
  WaitingWindow::Install();
  frmTabulon window(commandLine);
  OpenMainScreen(window);
  return QApplication::exec();
}
