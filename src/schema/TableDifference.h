#pragma once

#include "schema/TableContent.h"

// What tells two contents of a table apart, told as the changes that would make the second equal to the first. Only the
// columns that both have are compared.
struct TableDifference {
  struct Change {
    Row first;
    Row second;
    std::vector<size_t> columns;  // those that differ
  };

  const SchemaTable* table = nullptr;
  std::vector<SchemaColumn> columns;  // the compared ones: the cells of all rows here
  QStringList missing;                // columns that only the first has
  QStringList further;                // columns that only the second has
  std::vector<Row> added;             // rows that only the first has
  std::vector<Change> changed;
  std::vector<Row> removed;  // rows that only the second has

  // Columns that only the second has make no difference: a file may leave them out.
  bool IsEqual() const { return missing.isEmpty() && added.empty() && changed.empty() && removed.empty(); }

  int Position(const QString& column) const;  // -1 when there is none
  // Where the columns stand that tell rows apart: those of the key, otherwise all.
  std::vector<size_t> Key() const;
  // "LIBRARY_ID 12, DEPARTMENT "ABC"".
  QString KeyText(const Row& row) const;
  // Readable lines; no value of a secret column stands in them. None when there is nothing to tell.
  QStringList Lines() const;
};

// The contents must be of one table. std::runtime_error when the second lacks a column of the key.
TableDifference Compare(const TableContent& first, const TableContent& second);
