#include "interop/StatementReport.h"

#include "core/ModuleState.h"
#include "shell/Procedure.h"

bool StatementReport::Try(const std::function<void()>& body) {
  gstrErrorMessage.clear();
  error_ = Procedure::Try(body);
  // A failure line stands in gstrErrorMessage just as long as its statement runs.
  label_ = gstrErrorMessage;
  gstrErrorMessage.clear();
  return !error_;
}

QString StatementReport::NumberAndDescription() const {
  return error_ ? error_->NumberText() + " - " + error_->Description() : QString();
}
