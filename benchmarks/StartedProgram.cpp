// The program's start as main() does it, up to the first tab with its rows painted; then it ends. Tells on its output
// when that was, and what the password check, slow on purpose, takes of it.
#include <QApplication>

#include "Screens.h"
#include "StartClock.h"
#include "core/CommandLine.h"
#include "core/ModuleState.h"
#include "core/PasswordCipher.h"
#include "core/frmTabulon.h"
#include "platform/desktop/TerminalPrompts.h"

namespace {

// The check of one logon: the same work as the start's, on a record of the same form.
long long PasswordCheck() {
  const QString record = PasswordRecord::Make("secret");
  const long long begin = SharedClock();
  const bool matches = PasswordRecord::Matches("secret", record);
  const long long taken = SharedClock() - begin;
  return matches ? taken : -1;
}

}  // namespace

int main(int argc, char** argv) {
  const QString commandLine = QuotedCommandLine(argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  QApplication::setOrganizationName("Ostana");
  TerminalPrompts terminal;
  SetPrompts(&terminal);
  RegisterDialogs();
  frmTabulon window(commandLine);
  RegisterTabs(window);
  window.Form_Initialize();
  window.show();
  window.Form_Activate();
  QApplication::processEvents();
  if (!window.Page(frmTabulon::CodeTablesTab)) return 1;
  TellReady();
  std::printf("password %lld\n", PasswordCheck());
  return window.close() ? 0 : 1;
}
