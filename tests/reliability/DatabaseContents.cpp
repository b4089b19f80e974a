#include "reliability/DatabaseContents.h"

#include "platform/ado/Recordset.h"
#include "schema/SchemaModel.h"

namespace {

RowCells CellsOf(const QStringList& columns, const QStringList& values) {
  RowCells cells;
  for (qsizetype column = 0; column < columns.size(); ++column) cells.insert(columns[column], values[column]);
  return cells;
}

// One text that tells NULL from ''.
QString KeyOf(const QStringList& values) {
  QString key;
  for (const QString& value : values) key += (value.isNull() ? u'\x1f' : u'\x1e') + value;
  return key;
}

QStringList KeysOf(const QList<QStringList>& rows) {
  QStringList keys;
  for (const QStringList& row : rows) keys += KeyOf(row);
  return keys;
}

}  // namespace

QList<RowCells> TableContents::Rows() const {
  QList<RowCells> all;
  for (const QStringList& row : rows) all.append(CellsOf(columns, row));
  return all;
}

QList<RowCells> TableContents::Without(const TableContents& other) const {
  const QStringList keys = KeysOf(rows), others = KeysOf(other.rows);
  if (keys == others) return {};
  QHash<QString, int> there;
  for (const QString& key : others) ++there[key];
  QList<RowCells> missing;
  for (qsizetype row = 0; row < rows.size(); ++row)
    if (there[keys[row]]-- <= 0) missing.append(CellsOf(columns, rows[row]));
  return missing;
}

TableContents ContentsOf(Connection& connection, const QString& table) {
  TableContents contents;
  Recordset rows;
  rows.Open(connection, "SELECT * FROM " + table);
  for (int column = 0; column < rows.FieldCount(); ++column) contents.columns += rows.Fields(column).Name();
  for (; !rows.EOF_(); rows.MoveNext()) {
    QStringList values;
    for (int column = 0; column < rows.FieldCount(); ++column) values += rows.Fields(column).Value();
    contents.rows.append(values);
  }
  return contents;
}

DatabaseContents ContentsOf(Connection& connection) {
  DatabaseContents contents;
  for (const SchemaTable& table : SchemaModel::Get().tables) contents[table.name] = ContentsOf(connection, table.name);
  return contents;
}

QStringList Differences(const DatabaseContents& one, const DatabaseContents& other, const QString& except) {
  QStringList tables;
  for (auto table = one.begin(); table != one.end(); ++table)
    if (table.key() != except && !(table.value() == other.value(table.key()))) tables += table.key();
  return tables;
}
