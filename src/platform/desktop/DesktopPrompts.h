#pragma once

#include "platform/desktop/Prompts.h"

// The prompts as a person at the desktop sees them.
class DesktopPrompts : public PromptService {
 public:
  int ShowMessage(const MessageRequest& request) override;
  std::optional<QString> OpenFile(const FileRequest& request) override;
  std::optional<QString> SaveFile(const FileRequest& request) override;
  // None at once where no printer is installed.
  std::optional<QString> ChoosePrinter(QWidget* owner) override;
  QStringList PrinterNames() override;
  void Beep() override;
};
