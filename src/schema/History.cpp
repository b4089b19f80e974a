#include "schema/History.h"

#include "schema/SecretColumns.h"

#include <algorithm>

#include "platform/ado/Dialect.h"
#include "schema/SchemaSql.h"
#include "schema/SchemaStatements.h"
#include "schema/SecretColumns.h"

namespace {

const Recording& RecordingOf(const Connection& connection) {
  return connection.dialect().recording();
}

SchemaStatements StatementsFor(const Connection& connection) {
  return {connection.Settings().engine, connection.Settings().ownerPrefix};
}

std::vector<SchemaColumn> ColumnsThere(Connection& connection, const SchemaTable& table) {
  QStringList present;
  for (const ColumnInfo& info : connection.Columns(table.name)) present += info.name;
  return Content::KnownColumns(table, present);
}

RecordedTable Described(Connection& connection, const SchemaTable& table) {
  RecordedTable described;
  described.name = table.name;
  const std::vector<SchemaColumn> columns = ColumnsThere(connection, table);
  for (const SchemaColumn& column : columns) described.columns.push_back({column.name, NamesSecretColumn(column.name)});
  described.key = History::KeyColumns(table, columns);
  if (!table.primaryKey.isEmpty()) described.uniques.push_back(table.primaryKey);
  described.uniques.insert(described.uniques.end(), table.uniqueKeys.begin(), table.uniqueKeys.end());
  return described;
}

// With the rows that its foreign keys take along.
RecordedTable Recorded(Connection& connection, const SchemaTable& table) {
  RecordedTable recorded = Described(connection, table);
  for (const SchemaTable* child : History::Tables()) {
    for (const SchemaForeignKey& key : child->foreignKeys) {
      if (key.table != table.name || !key.actions.contains("CASCADE")) continue;
      recorded.cascades.push_back({{Described(connection, *child)},
                                   key.columns,
                                   key.references,
                                   key.actions.contains("ON DELETE CASCADE"),
                                   key.actions.contains("ON UPDATE CASCADE")});
    }
  }
  return recorded;
}

// All that the recording of this database needs, routines first.
std::vector<RecordingObject> Wanted(Connection& connection) {
  const QString& owner = connection.Settings().ownerPrefix;
  std::vector<RecordingObject> wanted = RecordingOf(connection).Routines(owner);
  for (const SchemaTable* table : History::Tables())
    for (RecordingObject& trigger : RecordingOf(connection).Triggers(Recorded(connection, *table), owner))
      wanted.push_back(std::move(trigger));
  return wanted;
}

std::vector<RecordingObject> Present(Connection& connection) {
  std::vector<RecordingObject> present;
  for (const QString& select : RecordingOf(connection).Present())
    for (const QStringList& row : SchemaSql::Rows(connection, select))
      present.push_back({row[0].toUpper(), row[1].toUpper(), {}});
  return present;
}

bool Holds(const std::vector<RecordingObject>& objects, const QString& name) {
  return std::any_of(objects.begin(), objects.end(), [&](const RecordingObject& one) { return one.name == name; });
}

void Drop(Connection& connection, const std::vector<RecordingObject>& objects) {
  // Triggers call the routines.
  for (const bool routines : {false, true})
    for (const RecordingObject& object : objects)
      if (object.table.isEmpty() == routines)
        connection.Define(RecordingOf(connection).Drop(object, connection.Settings().ownerPrefix));
}

// Makes the tables that are missing. True when all were.
bool MakeTables(Connection& connection) {
  const QStringList present = connection.Tables();
  bool made = false;
  for (const SchemaTable& table : SchemaModel::History().tables) {
    if (present.contains(table.name)) continue;
    connection.Execute(StatementsFor(connection).Create(table, {}));
    made = true;
  }
  if (made)
    for (const QString& index : StatementsFor(connection).CreateIndexes(SchemaModel::History()))
      connection.Execute(index);
  return made;
}

QString TransactionTable(const Connection& connection) {
  return SchemaSql::Table(connection, "ID_HISTORY_TRANSACTION");
}

int MakeAll(Connection& connection) {
  MakeTables(connection);
  const std::vector<RecordingObject> wanted = Wanted(connection);
  std::vector<RecordingObject> stale = Present(connection);
  const std::vector<RecordingObject> present = stale;
  std::erase_if(stale, [&](const RecordingObject& object) { return Holds(wanted, object.name); });
  Drop(connection, stale);
  int made = 0;
  for (const RecordingObject& object : wanted) {
    if (Holds(present, object.name)) continue;
    connection.Define(object.text);
    made += object.table.isEmpty() ? 0 : 1;
  }
  // The first row tells since when.
  if (SchemaSql::Values(connection, "SELECT COUNT(*) FROM " + TransactionTable(connection)).value(0) == u"0")
    connection.Execute("INSERT INTO " + TransactionTable(connection) + " (MOMENT, USER_ID) VALUES (" +
                       RecordingOf(connection).Moment() + ", '')");
  return made;
}

// In one transaction where the engine can.
template <class Body>
auto AtOnce(Connection& connection, const Body& body) {
  if (!connection.dialect().DefinesInTransactions() || connection.InTransaction()) return body();
  Transaction transaction(connection);
  const auto done = body();
  transaction.Commit();
  return done;
}

}  // namespace

bool History::IsRecorded(const SchemaTable& table) {
  return Content::IsConfiguration(table) || table.name == u"ID_USER_FUNCTION";
}

std::vector<const SchemaTable*> History::Tables() {
  std::vector<const SchemaTable*> tables;
  for (const SchemaTable& table : SchemaModel::Get().tables)
    if (IsRecorded(table)) tables.push_back(&table);
  return tables;
}

bool History::IsOn(Connection& connection) {
  return connection.Tables().contains("ID_HISTORY_CHANGE");
}

int History::TurnOn(Connection& connection) {
  return AtOnce(connection, [&] { return MakeAll(connection); });
}

void History::TurnOff(Connection& connection) {
  AtOnce(connection, [&] {
    Drop(connection, Present(connection));
    const QStringList present = connection.Tables();
    for (const SchemaTable& table : SchemaModel::History().tables)
      if (present.contains(table.name)) connection.Execute(StatementsFor(connection).Drop(table));
    return true;
  });
}

QStringList History::Gaps(Connection& connection) {
  if (!IsOn(connection)) return {};
  const std::vector<RecordingObject> present = Present(connection);
  QStringList gaps;
  const QStringList tables = connection.Tables();
  for (const SchemaTable& table : SchemaModel::History().tables) {
    if (!tables.contains(table.name)) gaps += "Table " + table.name + " of the history is missing.";
  }
  for (const RecordingObject& object : Wanted(connection)) {
    if (Holds(present, object.name)) continue;
    const QString gap =
        object.table.isEmpty()
            ? QStringLiteral("The history lacks what its triggers call; tabulon-db history on makes it.")
            : "The history does not record all changes of " + object.table +
                  "; tabulon-db history on makes its triggers anew.";
    if (!gaps.contains(gap)) gaps += gap;
  }
  return gaps;
}

qint64 History::Prune(Connection& connection, const QString& moment) {
  const QString transactions = TransactionTable(connection), literal = SchemaSql::Literal(connection, moment);
  const QString changes = SchemaSql::Table(connection, "ID_HISTORY_CHANGE");
  Transaction transaction(connection);
  const QString first = SchemaSql::Values(connection, "SELECT MIN(TRANSACTION_ID) FROM " + transactions).value(0);
  const qint64 removed =
      connection.Execute("DELETE FROM " + changes + " WHERE TRANSACTION_ID IN (SELECT TRANSACTION_ID FROM " +
                         transactions + " WHERE MOMENT < " + literal + ')');
  connection.Execute("DELETE FROM " + transactions + " WHERE MOMENT < " + literal + " AND TRANSACTION_ID <> " + first);
  connection.Execute("UPDATE " + transactions + " SET MOMENT = " + literal + " WHERE TRANSACTION_ID = " + first +
                     " AND MOMENT < " + literal);
  transaction.Commit();
  return removed;
}

std::optional<QString> History::Since(Connection& connection) {
  if (!IsOn(connection)) return std::nullopt;
  const QString transactions = TransactionTable(connection);
  return SchemaSql::Values(connection, "SELECT MOMENT FROM " + transactions +
                                           " WHERE TRANSACTION_ID = (SELECT MIN(TRANSACTION_ID) FROM " + transactions +
                                           ')')
      .value(0);
}

QString History::Now(Connection& connection) {
  return SchemaSql::Values(connection, "SELECT " + RecordingOf(connection).Moment()).value(0);
}

QStringList History::KeyColumns(const SchemaTable& table, const std::vector<SchemaColumn>& columns) {
  if (const std::optional<QStringList> key = Content::RowKey(table)) return *key;
  QStringList all;
  for (const SchemaColumn& column : columns) all += column.name;
  return all;
}

QString History::KeyText(const Row& key) {
  QString text;
  for (size_t i = 0; i < key.size(); ++i) {
    if (i > 0) text += QChar(Recording::KeySeparator);
    text += key[i].value_or(QChar(Recording::KeyNull));
  }
  return text;
}

Row History::KeyCells(const QString& text) {
  Row cells;
  for (const QString& part : text.split(QChar(Recording::KeySeparator)))
    cells.push_back(part == QChar(Recording::KeyNull) ? Cell() : Cell(part));
  return cells;
}
