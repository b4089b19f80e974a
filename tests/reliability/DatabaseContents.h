#pragma once

#include <QMap>
#include <QStringList>

#include "platform/ado/Connection.h"

// Rows of tables, so that two states of a database can be compared.
using RowCells = QMap<QString, QString>;  // column to value; NULL is null, '' is not

struct TableContents {
  QStringList columns;
  QList<QStringList> rows;  // values in the order of the columns; NULL is null, '' is not
  QList<RowCells> Rows() const;
  // The rows of this state that the other one lacks. Rows that stand several times count as often.
  QList<RowCells> Without(const TableContents& other) const;
  bool operator==(const TableContents& other) const {
    return Without(other).isEmpty() && other.Without(*this).isEmpty();
  }
};

using DatabaseContents = QMap<QString, TableContents>;

TableContents ContentsOf(Connection& connection, const QString& table);
// All tables of the schema.
DatabaseContents ContentsOf(Connection& connection);
// The tables whose rows differ, leaving out `except`.
QStringList Differences(const DatabaseContents& one, const DatabaseContents& other, const QString& except = {});
