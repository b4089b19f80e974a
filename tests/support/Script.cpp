#include "support/Script.h"

#include <gtest/gtest.h>

#include <QApplication>

namespace {

std::string Quoted(const QString& text, int style) {
  return "\"" + text.toStdString() + "\" (style " + std::to_string(style) + ")";
}

// What Escape answers: the choice that changes nothing.
int Harmless(int style) {
  switch (style & MessageStyle::ButtonMask) {
    case MessageStyle::YesNo:
      return MessageAnswer::No;
    case MessageStyle::YesNoCancel:
      return MessageAnswer::Cancel;
    default:
      return MessageAnswer::Ok;
  }
}

}  // namespace

Script::Script() : before_(SetPrompts(this)) {}

Script::~Script() {
  SetPrompts(before_);
}

Script& Script::Expect(const QString& text, int style, int answer) {
  lines_.push_back({text, style, answer, false, {}});
  return *this;
}

Script& Script::ExpectStart(const QString& start, int style, int answer) {
  lines_.push_back({start, style, answer, true, {}});
  return *this;
}

Script& Script::ExpectTitled(const QString& text, int style, const QString& title, int answer) {
  lines_.push_back({text, style, answer, false, title});
  return *this;
}

int Script::ShowMessage(const MessageRequest& request) {
  shown_.append(request.text);
  titles_.append(request.title);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr)
      << "An hourglass lies over " << Quoted(request.text, request.style);
  if (lines_.empty()) {
    ADD_FAILURE() << "A message came that nobody expected: " << Quoted(request.text, request.style);
    return Harmless(request.style);
  }
  const Line line = lines_.front();
  lines_.pop_front();
  const bool same = line.startOnly ? request.text.startsWith(line.text) : request.text == line.text;
  if (!same || request.style != line.style)
    ADD_FAILURE() << "Expected " << Quoted(line.text, line.style) << ", came " << Quoted(request.text, request.style);
  if (line.title && *line.title != request.title)
    ADD_FAILURE() << "Expected the title \"" << line.title->toStdString() << "\", came \""
                  << request.title.toStdString() << "\"";
  return line.answer;
}

std::optional<QString> Script::OpenFile(const FileRequest& request) {
  lastFile_ = request;
  if (files_.empty()) {
    ADD_FAILURE() << "A file dialog came that nobody expected: " << request.title.toStdString();
    return {};
  }
  const std::optional<QString> path = files_.front();
  files_.pop_front();
  return path;
}

std::optional<QString> Script::SaveFile(const FileRequest& request) {
  return OpenFile(request);
}

std::optional<QString> Script::ChoosePrinter(QWidget*) {
  if (printers_.empty()) {
    ADD_FAILURE() << "A printer dialog came that nobody expected";
    return {};
  }
  const std::optional<QString> name = printers_.front();
  printers_.pop_front();
  return name;
}

void Script::Verify() {
  for (const Line& line : lines_) ADD_FAILURE() << "A message did not come: " << Quoted(line.text, line.style);
  lines_.clear();
}
