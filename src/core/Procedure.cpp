#include "core/Procedure.h"

#include "core/Messages.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

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

Procedure& Procedure::Style(int style) {
  style_ = style;
  return *this;
}

bool Procedure::Run(const std::function<void()>& body) {
  gstrErrorMessage.clear();
  return Guard(body, form_ != nullptr);
}

bool Procedure::Step(const std::function<void()>& statement) {
  return Guard(statement, false);
}

bool Procedure::Guard(const std::function<void()>& body, bool show) {
  const std::optional<AdoError> error = Try(body);
  if (error) Report(*error, show);
  return !error;
}

std::optional<AdoError> Procedure::Try(const std::function<void()>& body) {
  std::optional<AdoError> failure;
  try {
    body();
    return std::nullopt;
  } catch (const AdoError& error) {
    failure = error;
  } catch (const std::exception& error) {
    failure = AdoError(AdoNumber::Unspecified, QString::fromUtf8(error.what()), "Tabulon");
  }
  try {
    gclsOF->Connection().RollbackTrans();
  } catch (const AdoError&) {
    // Without settings there is no connection and no transaction; a dead server has rolled back by itself.
  }
  return failure;
}

void Procedure::Report(const AdoError& error, bool show) {
  const QString inForce = gstrErrorMessage;
  if (show) {
    QString text = closingText_ ? closingText_(error) : inForce;
    if (text.isEmpty()) text = Texts::NotifySupport;
    ShowMessage(text, style_, form_->window()->windowTitle(), {}, form_);
  }
  gclsOF->WriteLog(logName_, inForce, "L");
  gclsOF->WriteLog("Error: " + error.NumberText() + " - " + error.Description(), {}, "S");
  if (after_) after_();
}
