#pragma once

#include "platform/desktop/Prompts.h"

// Stands in for the person where nobody sits before the screen: messages go to the terminal and get the answer of
// their default button; file and printer dialogs are cancelled. Used with OSTANA_UNATTENDED=1.
class TerminalPrompts : public PromptService {
 public:
  int ShowMessage(const MessageRequest& request) override;
  std::optional<QString> OpenFile(const FileRequest& request) override;
  std::optional<QString> SaveFile(const FileRequest& request) override;
  std::optional<QString> ChoosePrinter(QWidget* owner) override;
  QStringList PrinterNames() override { return {}; }
  void Beep() override {}
};
