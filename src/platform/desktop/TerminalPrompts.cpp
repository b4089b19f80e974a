#include "platform/desktop/TerminalPrompts.h"

#include <cstdio>

int TerminalPrompts::ShowMessage(const MessageRequest& request) {
  std::printf("%s: %s\n", qPrintable(request.title), qPrintable(request.text));
  std::fflush(stdout);
  return (request.style & MessageStyle::ButtonMask) == 0 ? MessageAnswer::Ok : MessageAnswer::Yes;
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
