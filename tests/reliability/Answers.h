#pragma once

#include <QStringList>
#include <optional>

#include "platform/desktop/Prompts.h"

// A user who agrees to everything: Yes, OK. Keeps what was said, so that a case can ask whether a message came.
class Answers : public PromptService {
 public:
  Answers() : before_(SetPrompts(this)) {}
  ~Answers() override { SetPrompts(before_); }

  struct Said {
    QString text;
    int icon;
  };

  // As long as it lives the user says No.
  class Refusing {
   public:
    explicit Refusing(Answers& answers) : answers_(answers) { answers_.refusing_ = true; }
    ~Refusing() { answers_.refusing_ = false; }

   private:
    Answers& answers_;
  };

  const QList<Said>& All() const { return said_; }
  void Forget() { said_.clear(); }
  // A message that tells of success.
  bool Success() const { return Has(MessageStyle::Information); }
  // A message that refuses or tells of a failure.
  bool Refusal() const { return Has(MessageStyle::Stop) || Has(MessageStyle::Warning); }
  QString Transcript() const {
    QStringList lines;
    for (const Said& said : said_) lines += QString::number(said.icon) + ' ' + said.text;
    return lines.join(" | ");
  }

  int ShowMessage(const MessageRequest& request) override {
    said_.append({request.text, request.style & MessageStyle::IconMask});
    const int buttons = request.style & MessageStyle::ButtonMask;
    if (buttons != MessageStyle::YesNo && buttons != MessageStyle::YesNoCancel) return MessageAnswer::Ok;
    return refusing_ ? MessageAnswer::No : MessageAnswer::Yes;
  }
  std::optional<QString> OpenFile(const FileRequest&) override { return {}; }
  std::optional<QString> SaveFile(const FileRequest&) override { return {}; }
  std::optional<QString> ChoosePrinter(QWidget*) override { return {}; }
  QStringList PrinterNames() override { return {}; }
  void Beep() override {}

 private:
  bool Has(int icon) const {
    for (const Said& said : said_)
      if (said.icon == icon) return true;
    return false;
  }

  PromptService* before_;
  QList<Said> said_;
  bool refusing_ = false;
};
