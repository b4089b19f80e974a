// The decoder of the command line. Input: the arguments, one in each line.
#include <string>
#include <vector>

#include "Property.h"
#include "core/CommandLine.h"

namespace {

constexpr size_t PasswordPosition = 3;

// An argument list as main receives it.
class ArgumentList {
 public:
  explicit ArgumentList(const QByteArray& lines) {
    texts_.emplace_back("Tabulon");
    for (const QByteArray& line : lines.split('\n')) texts_.emplace_back(line.split('\0').front().toStdString());
    for (std::string& text : texts_) pointers_.push_back(text.data());
    pointers_.push_back(nullptr);
  }
  int Count() const { return int(texts_.size()); }
  char** Values() { return pointers_.data(); }
  QString Text() { return QuotedCommandLine(Count(), Values()); }
  const std::vector<std::string>& Texts() const { return texts_; }
  bool HasQuote() const {
    for (const std::string& text : texts_) {
      if (text.find('"') != std::string::npos) return true;
    }
    return false;
  }

 private:
  std::vector<std::string> texts_;
  std::vector<char*> pointers_;
};

// Written anew from the rule: what stands between the first and second quote, the third and fourth, and so on.
AppArguments Expected(const QString& commandLine) {
  AppArguments arguments;
  const QStringList pieces = commandLine.trimmed().split(u'"');
  for (int position = 1; position <= 5 && 2 * position < pieces.size(); ++position) {
    arguments[size_t(position)] = pieces[2 * position - 1].trimmed();
  }
  return arguments;
}

AppArguments CheckDecoding(const QString& commandLine) {
  AppArguments arguments;
  arguments.fill(QStringLiteral("before"));
  const bool decoded = ID_DecodeAppArguments(commandLine, arguments);
  Must(decoded == (commandLine.trimmed().size() >= 3), "three characters are enough", {commandLine});
  if (!decoded) {
    Must(arguments == AppArguments(), "nothing is decoded from less", {commandLine});
    return arguments;
  }
  const AppArguments expected = Expected(commandLine);
  qsizetype size = 0;
  for (size_t i = 0; i < arguments.size(); ++i) {
    Must(arguments[i] == expected[i], "each pair of quotes holds one argument", {commandLine, arguments[i]});
    size += arguments[i].size();
  }
  Must(arguments[0].isEmpty() && size <= commandLine.size(), "nothing is decoded that is not there", {commandLine});
  return arguments;
}

void CheckQuoting(ArgumentList& list) {
  const AppArguments arguments = CheckDecoding(list.Text());
  if (list.HasQuote()) return;
  for (size_t i = 1; i <= 5 && i < list.Texts().size(); ++i) {
    const QString given = QString::fromLocal8Bit(list.Texts()[i].c_str()).trimmed();
    Must(arguments[i] == given || list.Text().trimmed().size() < 3, "an argument comes as it was given",
         {given, arguments[i]});
  }
}

bool IsPlain(const std::string& text) {
  return text.find('"') == std::string::npos;
}

// Behind two plain arguments the third is the password, whatever quotes stand inside it.
void CheckPlainPassword(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  const std::string& password = before[PasswordPosition];
  if (!IsPlain(before[1]) || !IsPlain(before[2]) || password.find_first_not_of(" \t\"") != 0) return;
  Must(after[PasswordPosition].find_first_not_of("*\"") == std::string::npos,
       "a plain third argument is forgotten whole", {QString::fromLatin1(password.c_str())});
  for (size_t i = 0; i < before.size(); ++i) {
    Must(i == PasswordPosition || after[i] == before[i] || !IsPlain(password), "the other arguments stay");
  }
}

// The launcher's way: all arguments in one text.
void CheckPasswordInText(const AppArguments& before, const AppArguments& after) {
  for (size_t i = 0; i < before.size(); ++i) {
    const bool stars = after[i].count(u'*') == after[i].size();
    Must(i == PasswordPosition ? stars : after[i] == before[i], "the third argument is forgotten, the others stay",
         {before[i], after[i]});
  }
}

void CheckForgetting(ArgumentList& list) {
  const std::vector<std::string> before = list.Texts();
  const AppArguments decoded = CheckDecoding(list.Text());
  ForgetPassword(list.Count(), list.Values());
  for (size_t i = 0; i < before.size(); ++i) {
    const std::string& after = list.Texts()[i];
    Must(after.size() == before[i].size(), "an argument keeps its place");
    for (size_t k = 0; k < after.size(); ++k) {
      Must(after[k] == before[i][k] || after[k] == '*', "nothing is written but stars");
    }
  }
  if (before.size() > PasswordPosition) CheckPlainPassword(before, list.Texts());
  if (before.size() == 2 && before[1].starts_with('"')) CheckPasswordInText(decoded, CheckDecoding(list.Text()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
  CheckDecoding(QString::fromUtf8(input));
  ArgumentList list(input);
  CheckQuoting(list);
  CheckForgetting(list);
  return 0;
}
