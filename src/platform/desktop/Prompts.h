#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <optional>

// Bits and answers of the platform's message box.
namespace MessageStyle {
inline constexpr int Stop = 16, Question = 36, Warning = 48, Information = 64;
inline constexpr int YesNo = 4, YesNoCancel = 3, IconMask = 0xF0, ButtonMask = 0x0F, DefaultButton2 = 256;
}  // namespace MessageStyle
namespace MessageAnswer {
inline constexpr int Ok = 1, Cancel = 2, Yes = 6, No = 7;
}

struct MessageRequest {
  QString text;
  int style = 0;  // MessageStyle bits
  QString title;
  QString icon;  // name of an icon that replaces the icon bits; may be empty
  QPointer<QWidget> owner;
};

struct FileRequest {
  QString title;
  QString directory;
  QString filter;  // a pattern such as "*.rpt"
  QPointer<QWidget> owner;
};

// Everything that asks a person: the message box, the file dialog, the printer dialog. One service stands behind all
// of them, so that a test can put a script in its place.
class PromptService {
 public:
  virtual ~PromptService() = default;
  virtual int ShowMessage(const MessageRequest& request) = 0;               // MessageAnswer
  virtual std::optional<QString> OpenFile(const FileRequest& request) = 0;  // full path; none when cancelled
  virtual std::optional<QString> SaveFile(const FileRequest& request) = 0;
  // Name of the printer chosen; none when cancelled.
  virtual std::optional<QString> ChoosePrinter(QWidget* owner) = 0;
  virtual QStringList PrinterNames() = 0;
  virtual void Beep() = 0;
};

PromptService& Prompts();
// Puts another service in place and returns the one before; nullptr brings the desktop's own back.
PromptService* SetPrompts(PromptService* service);
