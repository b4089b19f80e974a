#include "reliability/DatabaseContents.h"

#include "platform/ado/Recordset.h"
#include "schema/SchemaModel.h"

namespace {

QByteArray KeyOf(const RowCells& row) {
  QByteArray key;
  for (auto cell = row.begin(); cell != row.end(); ++cell)
    key += cell.key().toUtf8() + '=' +
           QByteArray(reinterpret_cast<const char*>(cell.value().utf16()), cell.value().size() * 2) + '\x1e';
  return key;
}

}  // namespace

QList<RowCells> TableContents::Without(const TableContents& other) const {
  QHash<QByteArray, int> there;
  for (const RowCells& row : other.rows) ++there[KeyOf(row)];
  QList<RowCells> missing;
  for (const RowCells& row : rows)
    if (there[KeyOf(row)]-- <= 0) missing.append(row);
  return missing;
}

TableContents ContentsOf(Connection& connection, const QString& table) {
  TableContents contents;
  Recordset rows;
  rows.Open(connection, "SELECT * FROM " + table);
  for (; !rows.EOF_(); rows.MoveNext()) {
    RowCells cells;
    for (int column = 0; column < rows.FieldCount(); ++column)
      cells.insert(rows.Fields(column).Name(), rows.Fields(column).Value());
    contents.rows.append(cells);
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
