#pragma once

#include <QString>

// An exception code picked on one sub-tab of "Exceptions" and shown on another.
struct ExceptionChoice {
  QString code;
  QString description;
  bool Made() const { return !code.isEmpty(); }
};
