#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/ado/AdoError.h"

// The seam where failures end, without a word to the user.
namespace Failure {

// Runs the body and hands its failure out, neither shown nor logged, with an open transaction rolled back.
std::optional<AdoError> Of(const std::function<void()>& body);

// Two log lines: "L" the procedure's log name with `detail`, "S" "Error: " number " - " description.
void Log(const QString& logName, const QString& detail, const AdoError& error);

}  // namespace Failure
