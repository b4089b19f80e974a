#include "core/Failure.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

namespace Failure {

std::optional<AdoError> Of(const std::function<void()>& body) {
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

void Log(const QString& logName, const QString& detail, const AdoError& error) {
  gclsOF->WriteLog(logName, detail, "L");
  gclsOF->WriteLog("Error: " + error.NumberText() + " - " + error.Description(), {}, "S");
}

}  // namespace Failure
