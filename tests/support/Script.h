#pragma once

#include <QStringList>
#include <deque>
#include <optional>

#include "platform/desktop/Prompts.h"

// The script of a case: which messages must come, in which order, with which answer, and what the file and printer
// dialogs answer. A message too many, too few or different fails the case.
class Script : public PromptService {
 public:
  Script();
  ~Script() override;

  // The next message; text exact, style with its buttons. Returns itself for chains.
  Script& Expect(const QString& text, int style, int answer = MessageAnswer::Ok);
  // As Expect, for a text of which only the beginning is fixed (the engine's own words follow).
  Script& ExpectStart(const QString& start, int style, int answer = MessageAnswer::Ok);
  // As Expect; the title is tested too.
  Script& ExpectTitled(const QString& text, int style, const QString& title, int answer = MessageAnswer::Ok);

  void NextFile(std::optional<QString> path) { files_.push_back(std::move(path)); }
  void NextPrinter(std::optional<QString> name) { printers_.push_back(std::move(name)); }
  void SetPrinterNames(const QStringList& names) { printerNames_ = names; }

  const QStringList& Shown() const { return shown_; }
  const QStringList& Titles() const { return titles_; }
  const std::optional<FileRequest>& LastFileRequest() const { return lastFile_; }
  int Beeps() const { return beeps_; }
  // Fails the case for every message that did not come.
  void Verify();

  int ShowMessage(const MessageRequest& request) override;
  std::optional<QString> OpenFile(const FileRequest& request) override;
  std::optional<QString> SaveFile(const FileRequest& request) override;
  std::optional<QString> ChoosePrinter(QWidget* owner) override;
  QStringList PrinterNames() override { return printerNames_; }
  void Beep() override { ++beeps_; }

 private:
  struct Line {
    QString text;
    int style;
    int answer;
    bool startOnly;
    std::optional<QString> title;
  };
  std::deque<Line> lines_;
  std::deque<std::optional<QString>> files_, printers_;
  QStringList shown_, titles_, printerNames_;
  std::optional<FileRequest> lastFile_;
  int beeps_ = 0;
  PromptService* before_;
};
