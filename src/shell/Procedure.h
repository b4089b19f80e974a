#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/ado/AdoError.h"

// The frame of every event procedure and the one place where failures end. On a failure: an open transaction is
// rolled back, one message is shown, and two log lines are written: "L" the procedure's log name with
// gstrErrorMessage as detail, "S" "Error: " number " - " description. Nothing crosses into the event loop.
class Procedure {
 public:
  // Clears gstrErrorMessage. `form` gives caption and owner of the message; without it nothing is shown.
  explicit Procedure(QString logName, QWidget* form = nullptr);

  // What is shown instead of gstrErrorMessage: this procedure's closing text.
  Procedure& OnFailure(const QString& closingText);
  Procedure& OnFailure(std::function<QString(const AdoError&)> closingText);
  // Runs after message and log lines: focus, pointer.
  Procedure& Finally(std::function<void()> after);
  // The log lines are followed by the statement that failed, behind `prefix`; passwords and card data are masked.
  Procedure& LogStatement(const QString& prefix = {});
  // Style of the failure message; 16 when not set.
  Procedure& Style(int style);

  // Clears gstrErrorMessage and runs the body. False when it failed. Leaving the body early is success.
  bool Run(const std::function<void()>& body);

  // The same for an operation: what the body answers, False when it failed.
  bool Answers(const std::function<bool()>& body);

  // The silent form, for the shell and for fill-only procedures: logs a failure, shows nothing, and the caller goes on
  // with its next step. May be called many times.
  bool Step(const std::function<void()>& statement);

  // Runs the body and hands its failure out, neither shown nor logged, with an open transaction rolled back.
  static std::optional<AdoError> Try(const std::function<void()>& body);

  // Log name of the innermost procedure that runs now; empty between events.
  static const QString& Running();

  const QString& LogName() const { return logName_; }

 private:
  bool Guard(const std::function<void()>& body, bool show);
  void Report(const AdoError& error, bool show);

  QString logName_;
  QWidget* form_;
  std::function<QString(const AdoError&)> closingText_;
  std::function<void()> after_;
  std::optional<QString> statementPrefix_;
  int style_ = 16;
};
