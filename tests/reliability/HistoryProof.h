#pragma once

#include <map>

#include "schema/TableContent.h"
#include "site/HistoryList.h"

// The rows of all tables, each value by itself: NULL and '' are two.
using WholeContent = std::map<QString, TableContent>;
WholeContent WholeContentOf(Connection& connection);
// The tables whose rows differ. `butSecrets`: passwords and card data may.
QStringList Differences(const WholeContent& one, const WholeContent& other, bool butSecrets = false);

// Whether what the history tells and what the tables hold belong together.
class HistoryProof {
 public:
  // The state to which the history must lead back.
  explicit HistoryProof(Connection& connection);
  // Empty when it does; otherwise why not.
  QString WhyNot(Connection& connection) const;
  const QString& Moment() const { return moment_; }

 private:
  static std::vector<TableContent> Recorded(Connection& connection);

  std::vector<TableContent> then_;
  QString moment_;
};
