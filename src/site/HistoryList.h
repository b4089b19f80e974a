#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

#include "schema/TableContent.h"

// What the history of a site has recorded (schema/History.h makes it). Reading fails with AdoErrors, and with
// std::runtime_error where a record is no record.

// A recorded value; of a secret only whether there was one.
struct HistoryValue {
  Cell value;
  bool secret = false;

  bool IsNull() const { return !value && !secret; }
};
using HistoryValues = std::map<QString, HistoryValue>;  // by column

struct HistoryChange {
  enum Kind { Added, Changed, Removed };

  int id = 0;
  int transaction = 0;
  const SchemaTable* table = nullptr;
  QString key;  // History::KeyText
  Kind kind = Changed;
  HistoryValues before;  // of a removed row all that are not NULL, of a changed one those that differ
  HistoryValues after;
};

struct HistoryTransaction {
  int id = 0;
  QString moment;  // UTC, "yyyy-MM-dd hh:mm:ss.zzz"
  QString user;
  QString program;
  std::vector<HistoryChange> changes;  // in the order in which they were made
};

struct HistoryFilter {
  QString from = {};  // moments, both included; may be the beginning of one
  QString to = {};
  QString user = {};
  QStringList tables = {};
  std::optional<QString> key = {};  // History::KeyText of a row of the one table that is named
  QString text = {};                // stands in a value
  int before = 0;                   // transactions older than this one
  int most = 100;                   // transactions
};

namespace HistoryList {

// Newest first, with all their changes.
std::vector<HistoryTransaction> Read(Connection& connection, const HistoryFilter& filter);
// Those of these numbers that are there, newest first.
std::vector<HistoryTransaction> Read(Connection& connection, const std::vector<int>& ids);
// The changes of a row that came behind one of its changes, newest first, each in its transaction.
std::vector<HistoryTransaction> Since(Connection& connection, const HistoryChange& change);

// "~ ID_LOAN_CODE LOAN_CODE "A"" and a line for each column: "LON_PERIOD 14 -> 21". No value of a secret.
QStringList Lines(const HistoryChange& change);
// "LOAN_CODE "A"", for a row by its History::KeyText.
QString RowText(const SchemaTable& table, const QString& key);
QString ValueText(const SchemaColumn& column, const HistoryValue& value);

}  // namespace HistoryList
