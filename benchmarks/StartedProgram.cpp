// The program's start as main() does it, up to the first tab with its rows painted; then it ends. Tells on its output
// when that was. With --password it does nothing but the password check of a logon, slow on purpose, and tells how long
// the first one of a process takes.
#include <QApplication>
#include <cstring>

#include "Screens.h"
#include "StartClock.h"
#include "core/CommandLine.h"
#include "core/ModuleState.h"
#include "core/PasswordCipher.h"
#include "platform/desktop/TerminalPrompts.h"
#include "shell/frmTabulon.h"

namespace {

int TellPasswordCheck() {
  const QString record =
      QString("pbkdf2-sha256$%1$%2$%3")
          .arg(QString::number(PasswordRecord::Iterations), QString(22, 'A') + "==", QString(43, 'A') + '=');
  const long long begin = SharedClock();
  const bool matches = PasswordRecord::Matches("secret", record);
  std::printf("password %lld\n", SharedClock() - begin);
  return matches ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::strcmp(argv[1], "--password") == 0) return TellPasswordCheck();
  const QString commandLine = QuotedCommandLine(argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  QApplication::setOrganizationName("Ostana");
  TerminalPrompts terminal;
  SetPrompts(&terminal);
  RegisterDialogs();
  frmTabulon window(commandLine);
  OpenMainScreen(window);
  QApplication::processEvents();
  if (!window.Page(frmTabulon::CodeTablesTab)) return 1;
  TellReady();
  return window.close() ? 0 : 1;
}
