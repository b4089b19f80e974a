#include "shell/Procedure.h"

#include <QScopedValueRollback>

#include "core/Failure.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SecretMask.h"
#include "shell/Messages.h"

Procedure::Procedure(QString logName, QWidget* form) : logName_(std::move(logName)), form_(form) {
  gstrErrorMessage.clear();
}

Procedure& Procedure::OnFailure(const QString& closingText) {
  closingText_ = [closingText](const AdoError&) { return closingText; };
  return *this;
}

Procedure& Procedure::OnFailure(std::function<QString(const AdoError&)> closingText) {
  closingText_ = std::move(closingText);
  return *this;
}

Procedure& Procedure::Finally(std::function<void()> after) {
  after_ = std::move(after);
  return *this;
}

Procedure& Procedure::LogStatement(const QString& prefix) {
  statementPrefix_ = prefix;
  return *this;
}

Procedure& Procedure::Style(int style) {
  style_ = style;
  return *this;
}

bool Procedure::Run(const std::function<void()>& body) {
  gstrErrorMessage.clear();
  return Guard(body, form_ != nullptr);
}

bool Procedure::Answers(const std::function<bool()>& body) {
  bool answer = false;
  return Run([&] { answer = body(); }) && answer;
}

bool Procedure::Step(const std::function<void()>& statement) {
  return Guard(statement, false);
}

namespace {
QString& RunningNow() {
  static QString name;
  return name;
}
}  // namespace

const QString& Procedure::Running() {
  return RunningNow();
}

bool Procedure::Guard(const std::function<void()>& body, bool show) {
  const QScopedValueRollback running(RunningNow(), logName_);
  const std::optional<AdoError> error = Try(body);
  if (error) Report(*error, show);
  return !error;
}

std::optional<AdoError> Procedure::Try(const std::function<void()>& body) {
  return Failure::Of(body);
}

void Procedure::Report(const AdoError& error, bool show) {
  const QString inForce = gstrErrorMessage;
  if (show) {
    QString text = closingText_ ? closingText_(error) : inForce;
    if (text.isEmpty()) text = Texts::NotifySupport;
    ShowMessage(text, style_, form_->window()->windowTitle(), {}, form_);
  }
  Failure::Log(logName_, inForce, error);
  if (statementPrefix_ && !error.Statement().isEmpty())
    gclsOF->WriteLog(*statementPrefix_ + MaskSecrets(error.Statement()), {}, "S");
  if (after_) after_();
}
