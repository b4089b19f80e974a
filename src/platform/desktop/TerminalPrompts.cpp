#include "platform/desktop/TerminalPrompts.h"

#include <cstdio>

int TerminalPrompts::ShowMessage(const MessageRequest& request) {
  std::printf("%s: %s\n", qPrintable(request.title), qPrintable(request.text));
  std::fflush(stdout);
  switch (request.style & MessageStyle::ButtonMask) {
    case MessageStyle::YesNo:
    case MessageStyle::YesNoCancel:
      // The default button is what a person gives who only presses Enter.
      return (request.style & MessageStyle::DefaultButton2) != 0 ? MessageAnswer::No : MessageAnswer::Yes;
    default:
      return MessageAnswer::Ok;
  }
}

std::optional<QString> TerminalPrompts::OpenFile(const FileRequest&) {
  return {};
}
std::optional<QString> TerminalPrompts::SaveFile(const FileRequest&) {
  return {};
}
std::optional<QString> TerminalPrompts::ChoosePrinter(QWidget*) {
  return {};
}
