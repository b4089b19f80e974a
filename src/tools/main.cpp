#include <QCoreApplication>
#include <cstdio>
#include <cstring>

#include "tools/Command.h"

namespace {

// Other users of the machine can read the argument list of a process: the password does not stay in it.
void ForgetPassword(int argc, char** argv) {
  const char option[] = "--password";
  const size_t length = sizeof option - 1;
  for (int i = 1; i < argc; ++i) {
    if (std::strncmp(argv[i], option, length) != 0) continue;
    if (argv[i][length] == '=') {
      std::memset(argv[i] + length + 1, '*', std::strlen(argv[i] + length + 1));
    } else if (argv[i][length] == '\0' && i + 1 < argc) {
      std::memset(argv[i + 1], '*', std::strlen(argv[i + 1]));
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName("tabulon-db");
  const QStringList arguments = QCoreApplication::arguments().mid(1);
  ForgetPassword(argc, argv);
  const int exitCode = RunTabulonDb(arguments);
  // Whoever reads the answer from a file that is full must not take it for whole.
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return exitCode;
  std::fputs("The output could not be written.\n", stderr);
  return exitCode == ExitCode::Done ? ExitCode::Refused : exitCode;
}
