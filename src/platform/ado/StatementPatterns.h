#pragma once

#include <optional>

#include "platform/ado/TokenEdit.h"

namespace StatementWords {

// How an engine compares with a pattern so that letter case does not count and accents do. Each text may be empty.
struct PatternForm {
  QString open, close;            // around both operands of LIKE
  QString textCollation;          // behind the left operand
  QString collation;              // behind the pattern
  std::optional<QString> escape;  // where the statement names none: engines that take a backslash for one otherwise
};

// Carries each LIKE whose left operand is a column, a literal, a call or stands in parentheses.
void Patterns(Tokens& tokens, const PatternForm& form);

}  // namespace StatementWords
