#pragma once

#include <QHash>
#include <map>

#include "site/HistoryList.h"

// What a table, its columns and its codes are called on the screens.
class SiteWords {
 public:
  explicit SiteWords(Connection& connection) : connection_(connection) {}

  // "Loan policies", from what the schema says of the table.
  static QString Table(const SchemaTable& table);
  // "Loan Period"; a description in a language bears its code behind it.
  static QString Column(const SchemaTable& table, const QString& column);
  // The value as people read it: a code of another table with its description, nothing for NULL.
  QString Value(const SchemaTable& table, const QString& column, const HistoryValue& value);
  // The key of a row, codes with their descriptions.
  QString Row(const SchemaTable& table, const QString& key);

 private:
  const std::map<QString, QString>& Descriptions(const SchemaTable& table);

  Connection& connection_;
  std::map<const SchemaTable*, std::map<QString, QString>> descriptions_;  // read once, when first asked for
};
