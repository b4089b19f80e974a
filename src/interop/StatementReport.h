#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/ado/AdoError.h"

// The body of a procedure that tells of a failure in its own words, and what its log lines quote: the failure line and
// the text of the statement that failed.
class StatementReport {
 public:
  // False when the body failed; an open transaction is rolled back by then, and what follows is known.
  bool Try(const std::function<void()>& body);

  // Failure line and text of the statement; both are empty when the failure came between two statements.
  const QString& Label() const { return label_; }
  QString Statement() const { return error_ ? error_->Statement() : QString(); }
  // "-2147217873 - duplicate key ...": number, " - ", description.
  QString NumberAndDescription() const;
  // "Error: " before it.
  QString ErrorText() const { return "Error: " + NumberAndDescription(); }

 private:
  QString label_;
  std::optional<AdoError> error_;
};
