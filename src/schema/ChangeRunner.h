#pragma once

#include "schema/TableDifference.h"

// Carries differences into a database, within the transaction of the caller. What the database refuses is an AdoError
// that names the row; so are rows that changed meanwhile, and rows that would go with a removed one although nobody
// named them.
class ChangeRunner {
 public:
  // `removes`: rows that only the database has go too.
  ChangeRunner(Connection& connection, bool removes) : connection_(connection), removes_(removes) {}

  // The differences of tables in the order of the schema, the database being the second content of each.
  void Run(const std::vector<TableDifference>& differences);

 private:
  void Park(const TableDifference& difference);
  void ParkKey(const TableDifference& difference, const QStringList& key);
  void Update(const TableDifference& difference);
  void Insert(const TableDifference& difference);
  void Remove(const TableDifference& difference);
  void RefuseCascade(const TableDifference& difference, const Row& row);

  qint64 Execute(const TableDifference& difference, const Row& row, const QString& action, const QString& sql);
  QString Value(const SchemaColumn& column, const Cell& value) const;
  QString Condition(const SchemaColumn& column, const Cell& value) const;
  QString Where(const TableDifference& difference, const Row& row) const;
  QString Insertion(const TableDifference& difference, const Row& row) const;

  Connection& connection_;
  bool removes_;
};
