#include "schema/TableDifference.h"

#include <algorithm>
#include <map>
#include <stdexcept>

#include "schema/ExportText.h"
#include "schema/SecretColumns.h"

namespace {

// Rows that the key does not tell apart: two where it does, more where the database allows NULL in it or has no key.
struct Alike {
  std::vector<Row> first;
  std::vector<Row> second;
};

using Groups = std::map<Row, Alike, RowOrder>;

Row Cells(const Row& row, const std::vector<size_t>& positions) {
  Row cells;
  for (const size_t position : positions) cells.push_back(row[position]);
  return cells;
}

std::vector<Row> Projected(const TableContent& content, const std::vector<SchemaColumn>& columns) {
  std::vector<size_t> positions;
  for (const SchemaColumn& column : columns) positions.push_back(static_cast<size_t>(content.Position(column.name)));
  std::vector<Row> rows;
  for (const Row& row : content.rows) rows.push_back(Cells(row, positions));
  return rows;
}

void SetEqualAside(Alike& alike) {
  for (auto row = alike.first.begin(); row != alike.first.end();) {
    const auto same = std::find(alike.second.begin(), alike.second.end(), *row);
    if (same == alike.second.end()) {
      ++row;
      continue;
    }
    alike.second.erase(same);
    row = alike.first.erase(row);
  }
}

TableDifference::Change ChangeOf(const Row& first, const Row& second) {
  TableDifference::Change change{first, second, {}};
  for (size_t i = 0; i < first.size(); ++i)
    if (first[i] != second[i]) change.columns.push_back(i);
  return change;
}

void Pair(Alike& alike, TableDifference& difference) {
  SetEqualAside(alike);
  for (size_t i = 0; i < std::max(alike.first.size(), alike.second.size()); ++i) {
    if (i >= alike.second.size()) {
      difference.added.push_back(alike.first[i]);
    } else if (i >= alike.first.size()) {
      difference.removed.push_back(alike.second[i]);
    } else {
      difference.changed.push_back(ChangeOf(alike.first[i], alike.second[i]));
    }
  }
}

void CompareColumns(const TableContent& first, const TableContent& second, TableDifference& difference) {
  for (const SchemaColumn& column : first.columns) {
    if (second.Position(column.name) < 0) {
      difference.missing += column.name;
    } else {
      difference.columns.push_back(column);
    }
  }
  for (const SchemaColumn& column : second.columns)
    if (first.Position(column.name) < 0) difference.further += column.name;
}

QString Shown(const SchemaColumn& column, const Cell& value) {
  return value && NamesSecretColumn(column.name) ? QStringLiteral("***") : ExportText::ValueText(column, value);
}

}  // namespace

int TableDifference::Position(const QString& column) const {
  for (size_t i = 0; i < columns.size(); ++i)
    if (columns[i].name == column) return static_cast<int>(i);
  return -1;
}

std::vector<size_t> TableDifference::Key() const {
  std::vector<size_t> positions;
  const std::optional<QStringList> key = Content::RowKey(*table);
  if (!key) {
    for (size_t i = 0; i < columns.size(); ++i) positions.push_back(i);
    return positions;
  }
  for (const QString& name : *key) {
    const int position = Position(name);
    if (position < 0)
      throw std::runtime_error("The table " + table->name.toStdString() + " lacks the column " + name.toStdString() +
                               " of its key.");
    positions.push_back(static_cast<size_t>(position));
  }
  return positions;
}

QString TableDifference::KeyText(const Row& row) const {
  QStringList texts;
  for (const size_t position : Key()) texts += columns[position].name + ' ' + Shown(columns[position], row[position]);
  return texts.isEmpty() ? QStringLiteral("its only row") : texts.join(", ");
}

QStringList TableDifference::Lines() const {
  QStringList lines;
  for (const QString& column : missing) lines += "  column " + column + " is only in the first";
  for (const Row& row : added) {
    lines += "  + " + KeyText(row);
    const std::vector<size_t> key = Key();
    for (size_t i = 0; i < row.size(); ++i)
      if (row[i] && std::find(key.begin(), key.end(), i) == key.end())
        lines += "      " + columns[i].name + ' ' + Shown(columns[i], row[i]);
  }
  for (const Change& change : changed) {
    lines += "  ~ " + KeyText(change.second);
    for (const size_t i : change.columns)
      lines += "      " + columns[i].name + ' ' + Shown(columns[i], change.second[i]) + " -> " +
               Shown(columns[i], change.first[i]);
  }
  for (const Row& row : removed) lines += "  - " + KeyText(row);
  if (!lines.isEmpty())
    lines.prepend(QStringLiteral("%1: %2 added, %3 changed, %4 removed")
                      .arg(table->name)
                      .arg(added.size())
                      .arg(changed.size())
                      .arg(removed.size()));
  return lines;
}

TableDifference Compare(const TableContent& first, const TableContent& second) {
  TableDifference difference;
  difference.table = first.table;
  CompareColumns(first, second, difference);
  const std::vector<size_t> key = difference.Key();
  std::vector<SchemaColumn> keyColumns;
  for (const size_t position : key) keyColumns.push_back(difference.columns[position]);
  Groups groups{RowOrder(keyColumns)};
  for (const Row& row : Projected(first, difference.columns)) groups[Cells(row, key)].first.push_back(row);
  for (const Row& row : Projected(second, difference.columns)) groups[Cells(row, key)].second.push_back(row);
  for (auto& [values, alike] : groups) Pair(alike, difference);
  return difference;
}
