#include "core/CommandLine.h"

#include <vector>

namespace {

// A character of the joined command line and the place in the argument list that it came from; none for what was
// added between arguments.
struct Cell {
  char letter;
  char* place = nullptr;
};

bool BeginsWithQuote(const char* argument) {
  while (*argument == ' ' || *argument == '\t') ++argument;
  return *argument == '"';
}

// An argument that begins with a quote is taken as it stands; any other one had its quotes stripped by the shell.
std::vector<Cell> Joined(int argc, char** argv) {
  std::vector<Cell> cells;
  for (int number = 1; number < argc; ++number) {
    const bool quoted = BeginsWithQuote(argv[number]);
    if (!cells.empty()) cells.push_back({' '});
    if (!quoted) cells.push_back({'"'});
    for (char* letter = argv[number]; *letter; ++letter) cells.push_back({*letter, letter});
    if (!quoted) cells.push_back({'"'});
  }
  return cells;
}

}  // namespace

bool ID_DecodeAppArguments(const QString& commandLine, AppArguments& arguments) {
  const QString text = commandLine.trimmed();
  arguments.fill(QString());
  if (text.size() < 3) return false;
  qsizetype from = 0;
  for (size_t position = 1; position <= 5; ++position) {
    const qsizetype open = text.indexOf('"', from);
    if (open < 0) break;
    const qsizetype close = text.indexOf('"', open + 1);
    if (close < 0) break;
    arguments[position] = text.mid(open + 1, close - open - 1).trimmed();
    from = close + 1;
  }
  return true;
}

QString QuotedCommandLine(int argc, char** argv) {
  QByteArray text;
  for (const Cell& cell : Joined(argc, argv)) text.append(cell.letter);
  return QString::fromLocal8Bit(text);
}

void ForgetPassword(int argc, char** argv) {
  constexpr int PasswordOpens = 5;  // the quote before the third argument
  int quotes = 0;
  bool whole = false;  // a password without quotes around it: what stands behind a quote inside is no other argument
  for (const Cell& cell : Joined(argc, argv)) {
    if (cell.letter == '"') {
      ++quotes;
      if (!cell.place && quotes == PasswordOpens) whole = true;
    } else if (!cell.place) {
      whole = false;
    } else if (whole || quotes == PasswordOpens) {
      *cell.place = '*';
    }
  }
}
