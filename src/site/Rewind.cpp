#include "site/Rewind.h"

#include <algorithm>

#include "schema/History.h"

void Rewind::Add(TableContent content) {
  Table& table = tables_[content.table];
  for (const QString& name : History::KeyColumns(*content.table, content.columns))
    table.key.push_back(content.Position(name));
  table.keyIsUnique = Content::RowKey(*content.table).has_value();
  std::vector<Row> rows = std::move(content.rows);
  content.rows.clear();
  table.content = std::move(content);
  for (Row& row : rows) {
    QString key = KeyOf(table, row);
    std::vector<bool> unknown(row.size(), false);
    table.rows.emplace(std::move(key), Former{std::move(row), std::move(unknown)});
  }
}

QString Rewind::KeyOf(const Table& table, const Row& row) {
  Row key;
  for (const int position : table.key) key.push_back(row[static_cast<size_t>(position)]);
  return History::KeyText(key);
}

Rewind::Place Rewind::Find(Table& table, const QString& key, const HistoryValues& values, bool whole) {
  const std::vector<SchemaColumn>& columns = table.content.columns;
  const auto holds = [&](const Former& row, size_t column) {
    const auto value = values.find(columns[column].name);
    if (value == values.end()) return !whole || !row.cells[column];
    if (row.unknown[column]) return true;
    // Of a secret nothing can be compared but whether there is one.
    return value->second.secret ? row.cells[column].has_value() : row.cells[column] == value->second.value;
  };
  const auto fits = [&](const Former& row) {
    for (size_t column = 0; column < columns.size(); ++column)
      if (!holds(row, column)) return false;
    return true;
  };
  const auto [first, last] = table.rows.equal_range(key);
  const Place found = std::find_if(first, last, [&](const auto& entry) { return fits(entry.second); });
  return found == last ? table.rows.end() : found;
}

bool Rewind::Fail(const HistoryChange& change, const QString& reason) {
  failure_ = Mismatch{change, reason};
  return false;
}

bool Rewind::TakeBack(const HistoryChange& change) {
  const auto table = tables_.find(change.table);
  if (table == tables_.end()) return true;
  switch (change.kind) {
    case HistoryChange::Added:
      return TakeBackAdded(table->second, change);
    case HistoryChange::Changed:
      return TakeBackChanged(table->second, change);
    case HistoryChange::Removed:
      return TakeBackRemoved(table->second, change);
  }
  return true;
}

bool Rewind::TakeBackAdded(Table& table, const HistoryChange& change) {
  const Place row = Find(table, change.key, change.after, true);
  if (row == table.rows.end())
    return Fail(change, table.rows.contains(change.key) ? "It has been changed since." : "It is not there any more.");
  table.rows.erase(row);
  return true;
}

bool Rewind::TakeBackRemoved(Table& table, const HistoryChange& change) {
  const bool unique = table.keyIsUnique && !change.key.contains(QChar(Recording::KeyNull));
  if (unique && table.rows.contains(change.key)) return Fail(change, "A row of this key has been added since.");
  Former row;
  for (const SchemaColumn& column : table.content.columns) {
    const auto value = change.before.find(column.name);
    row.cells.push_back(value == change.before.end() ? Cell() : value->second.value);
    row.unknown.push_back(value != change.before.end() && value->second.secret);
  }
  table.rows.emplace(change.key, std::move(row));
  return true;
}

bool Rewind::TakeBackChanged(Table& table, const HistoryChange& change) {
  const Place row = Find(table, change.key, change.after, false);
  if (row == table.rows.end())
    return Fail(change, table.rows.contains(change.key) ? "It has been changed since." : "It is not there any more.");
  for (const auto& [name, value] : change.before) {
    if (table.content.Position(name) < 0) continue;
    const size_t column = static_cast<size_t>(table.content.Position(name));
    row->second.unknown[column] = value.secret;
    if (!value.secret) row->second.cells[column] = value.value;
  }
  return true;
}

std::vector<TableContent> Rewind::Contents() const {
  std::vector<TableContent> contents;
  for (const SchemaTable& known : SchemaModel::Get().tables) {
    const auto table = tables_.find(&known);
    if (table == tables_.end()) continue;
    contents.push_back(table->second.content);
    for (const auto& [key, row] : table->second.rows) contents.back().rows.push_back(row.cells);
    Content::Sort(contents.back());
  }
  return contents;
}

std::vector<Rewind::Unknown> Rewind::UnknownSecrets() const {
  std::vector<Unknown> unknown;
  for (const auto& [known, table] : tables_)
    for (const auto& [key, row] : table.rows)
      for (size_t column = 0; column < row.unknown.size(); ++column)
        if (row.unknown[column])
          unknown.push_back({known, HistoryList::RowText(*known, key), table.content.columns[column].name});
  return unknown;
}
