#include "tools/Terminal.h"

#include <QFile>
#include <QTextStream>
#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <termios.h>
#include <unistd.h>
#endif

namespace {

void WriteLine(FILE* file, const QString& line) {
  QTextStream(file) << line << '\n';
}

#ifdef Q_OS_WIN

bool InputIsTerminal() {
  return _isatty(_fileno(stdin));
}

// Typed characters are not shown as long as it lives.
class EchoOff {
 public:
  EchoOff() : input_(GetStdHandle(STD_INPUT_HANDLE)) {
    GetConsoleMode(input_, &mode_);
    SetConsoleMode(input_, mode_ & ~ENABLE_ECHO_INPUT);
  }
  ~EchoOff() { SetConsoleMode(input_, mode_); }

 private:
  HANDLE input_;
  DWORD mode_ = 0;
};

#else

bool InputIsTerminal() {
  return isatty(STDIN_FILENO) != 0;
}

// Typed characters are not shown as long as it lives.
class EchoOff {
 public:
  EchoOff() {
    if (tcgetattr(STDIN_FILENO, &settings_) != 0) return;
    changed_ = true;
    termios silent = settings_;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
  }
  ~EchoOff() {
    if (changed_) tcsetattr(STDIN_FILENO, TCSAFLUSH, &settings_);
  }

 private:
  termios settings_{};
  bool changed_ = false;
};

#endif

QString ReadLine() {
  static QTextStream input(stdin);
  return input.readLine();
}

QString AskHidden(const QString& question) {
  const EchoOff silent;  // before the question: what is typed at once is neither shown nor thrown away
  QTextStream(stderr) << question << Qt::flush;
  const QString line = ReadLine();
  QTextStream(stderr) << '\n';
  return line;
}

}  // namespace

void Terminal::Print(const QString& line) {
  WriteLine(stdout, line);
}

void Terminal::Complain(const QString& line) {
  WriteLine(stderr, line);
}

std::optional<QString> Terminal::AskNewPassword(const QString& user) {
  const bool terminal = InputIsTerminal();
  const QString password = terminal ? AskHidden("Password of " + user + ": ") : ReadLine();
  if (password.isEmpty()) {
    Complain("No password was given.");
    return std::nullopt;
  }
  if (terminal && AskHidden("The same password again: ") != password) {
    Complain("The two passwords differ. Nothing was changed.");
    return std::nullopt;
  }
  return password;
}
