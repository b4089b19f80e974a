#include "schema/ChangeRunner.h"

#include <algorithm>
#include <map>
#include <set>

#include "schema/SchemaSql.h"

namespace {

const QString Source = QStringLiteral("ChangeRunner");

[[noreturn]] void RefuseRow(const TableDifference& difference, const Row& row, const QString& action,
                            const QString& reason) {
  throw AdoError(AdoNumber::ConstraintBroken,
                 QStringLiteral("The row %1 of %2 cannot be %3. %4")
                     .arg(difference.KeyText(row), difference.table->name, action, reason),
                 Source);
}

// The cells of a key that holds; nothing where a NULL frees the row of it, or the key was not compared.
std::optional<Row> KeyCells(const TableDifference& difference, const QStringList& key, const Row& row) {
  Row cells;
  for (const QString& name : key) {
    const int position = difference.Position(name);
    if (position < 0 || !row[static_cast<size_t>(position)]) return std::nullopt;
    cells.push_back(row[static_cast<size_t>(position)]);
  }
  return cells;
}

bool MayBeParked(const SchemaTable& table, const QString& column) {
  return std::any_of(table.uniqueKeys.begin(), table.uniqueKeys.end(),
                     [&](const QStringList& key) { return key.contains(column); });
}

}  // namespace

void ChangeRunner::Run(const std::vector<TableDifference>& differences) {
  // Rows that others refer to come before those and go after them.
  for (const TableDifference& difference : differences) {
    Park(difference);
    Update(difference);
    Insert(difference);
  }
  if (!removes_) return;
  for (auto difference = differences.rbegin(); difference != differences.rend(); ++difference) Remove(*difference);
}

// --- Names that change hands ---

void ChangeRunner::Park(const TableDifference& difference) {
  const QStringList rowKey = Content::RowKey(*difference.table).value_or(QStringList());
  for (const QStringList& key : difference.table->uniqueKeys)
    if (key != rowKey) ParkKey(difference, key);
}

// A row gives up the name that another row is to get: two libraries can exchange their symbols. No engine looks at a
// UNIQUE only at the end of the transaction.
void ChangeRunner::ParkKey(const TableDifference& difference, const QStringList& key) {
  const int position = difference.Position(key.back());
  if (position < 0 || difference.columns[static_cast<size_t>(position)].type != SchemaColumn::Text) return;
  std::set<Row> wanted;
  const auto want = [&](const Row& row) {
    if (const std::optional<Row> cells = KeyCells(difference, key, row)) wanted.insert(*cells);
  };
  for (const Row& row : difference.added) want(row);
  for (const TableDifference::Change& change : difference.changed)
    if (change.first[static_cast<size_t>(position)] != change.second[static_cast<size_t>(position)]) want(change.first);
  std::vector<Row> leaving;
  for (const TableDifference::Change& change : difference.changed)
    if (change.first[static_cast<size_t>(position)] != change.second[static_cast<size_t>(position)])
      leaving.push_back(change.second);
  if (removes_) leaving.insert(leaving.end(), difference.removed.begin(), difference.removed.end());
  int number = 0;
  for (const Row& row : leaving) {
    const std::optional<Row> cells = KeyCells(difference, key, row);
    if (!cells || !wanted.contains(*cells)) continue;
    const QString name = QStringLiteral("\u007f%1").arg(++number);  // no name that people write begins so
    Execute(difference, row, "changed",
            "UPDATE " + SchemaSql::Table(connection_, difference.table->name) + " SET " + key.back() + " = " +
                SchemaSql::Literal(connection_, name) + Where(difference, row));
  }
}

// --- Rows ---

void ChangeRunner::Update(const TableDifference& difference) {
  for (const TableDifference::Change& change : difference.changed) {
    QStringList sets;
    QString asRead;  // nobody has changed it meanwhile
    for (const size_t i : change.columns) {
      const SchemaColumn& column = difference.columns[i];
      sets += column.name + " = " + Value(column, change.first[i]);
      if (!MayBeParked(*difference.table, column.name)) asRead += " AND " + Condition(column, change.second[i]);
    }
    const qint64 rows = Execute(difference, change.second, "changed",
                                "UPDATE " + SchemaSql::Table(connection_, difference.table->name) + " SET " +
                                    sets.join(", ") + Where(difference, change.second) + asRead);
    if (rows != 1)
      RefuseRow(difference, change.second, "changed", QStringLiteral("The database holds it %1 times.").arg(rows));
  }
}

void ChangeRunner::Insert(const TableDifference& difference) {
  for (const Row& row : difference.added) Execute(difference, row, "added", Insertion(difference, row));
}

void ChangeRunner::Remove(const TableDifference& difference) {
  // Rows that nothing tells apart go together; those that are to stay come back.
  std::map<Row, qint64> count;
  for (const Row& row : difference.removed) ++count[row];
  for (const auto& [row, expected] : count) {
    RefuseCascade(difference, row);
    const qint64 rows =
        Execute(difference, row, "removed",
                "DELETE FROM " + SchemaSql::Table(connection_, difference.table->name) + Where(difference, row));
    const bool mayReturn = difference.table->primaryKey.isEmpty() && difference.further.isEmpty();
    if (rows < expected || (rows > expected && !mayReturn))
      RefuseRow(difference, row, "removed", QStringLiteral("The database holds it %1 times.").arg(rows));
    for (qint64 i = expected; i < rows; ++i) Execute(difference, row, "kept", Insertion(difference, row));
  }
}

// The database would remove rows of another table in silence.
void ChangeRunner::RefuseCascade(const TableDifference& difference, const Row& row) {
  for (const SchemaTable& other : SchemaModel::Get().tables) {
    for (const SchemaForeignKey& key : other.foreignKeys) {
      if (key.table != difference.table->name || !key.actions.contains("ON DELETE CASCADE")) continue;
      QStringList conditions;
      for (qsizetype i = 0; i < key.columns.size(); ++i) {
        const size_t position = static_cast<size_t>(difference.Position(key.references[i]));
        SchemaColumn column = difference.columns[position];
        column.name = key.columns[i];
        conditions += Condition(column, row[position]);
      }
      const QString rows =
          SchemaSql::Values(connection_, "SELECT COUNT(*) FROM " + SchemaSql::Table(connection_, other.name) +
                                             " WHERE " + conditions.join(" AND "))
              .value(0);
      if (rows != u"0") RefuseRow(difference, row, "removed", rows + " rows of " + other.name + " would go with it.");
    }
  }
}

// --- Statements ---

qint64 ChangeRunner::Execute(const TableDifference& difference, const Row& row, const QString& action,
                             const QString& sql) {
  try {
    return connection_.Execute(sql);
  } catch (const AdoError& error) {
    if (error.ConnectionLost()) throw;
    throw AdoError(error.Number(),
                   QStringLiteral("The row %1 of %2 cannot be %3. %4")
                       .arg(difference.KeyText(row), difference.table->name, action, error.Description()),
                   error.Source());
  }
}

QString ChangeRunner::Value(const SchemaColumn& column, const Cell& value) const {
  if (!value) return QStringLiteral("NULL");
  switch (column.type) {
    case SchemaColumn::Text:
      return SchemaSql::Literal(connection_, *value);
    case SchemaColumn::Integer:
    case SchemaColumn::Numeric:
      return *value;
    case SchemaColumn::Date:
    case SchemaColumn::TimeStamp:
      return '\'' + *value + '\'';
  }
  return {};
}

QString ChangeRunner::Condition(const SchemaColumn& column, const Cell& value) const {
  return value ? column.name + " = " + Value(column, value) : column.name + " IS NULL";
}

QString ChangeRunner::Where(const TableDifference& difference, const Row& row) const {
  QStringList conditions;
  if (difference.table->primaryKey.isEmpty()) {
    for (size_t i = 0; i < row.size(); ++i) conditions += Condition(difference.columns[i], row[i]);
  } else {
    for (const size_t i : difference.Key()) conditions += Condition(difference.columns[i], row[i]);
  }
  return " WHERE " + conditions.join(" AND ");
}

QString ChangeRunner::Insertion(const TableDifference& difference, const Row& row) const {
  QStringList columns;
  QStringList values;
  for (size_t i = 0; i < row.size(); ++i) {
    columns += difference.columns[i].name;
    values += Value(difference.columns[i], row[i]);
  }
  // As the programs do: a language that the row does not know begins with the row's description.
  for (const QString& column : difference.further) {
    const int position = difference.Position(Content::DescriptionOf(*difference.table, column));
    if (position < 0) continue;
    columns += column;
    values += values[position];
  }
  return "INSERT INTO " + SchemaSql::Table(connection_, difference.table->name) + " (" + columns.join(", ") +
         ") VALUES (" + values.join(", ") + ')';
}
