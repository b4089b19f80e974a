#include "platform/ado/SqliteRecording.h"

namespace {

const QString Open =
    QStringLiteral("INSERT INTO ID_HISTORY_TRANSACTION (MOMENT) VALUES (strftime('%Y-%m-%d %H:%M:%f', 'now')); ");

QString Change(const QString& table, const char* kind, const QString& key, const QString& before,
               const QString& after) {
  return QStringLiteral(
             "INSERT INTO ID_HISTORY_CHANGE (TRANSACTION_ID, TABLE_NAME, ROW_KEY, KIND, OLD_VALUES, NEW_VALUES) "
             "SELECT MAX(TRANSACTION_ID), '%1', %2, '%3', %4, %5 FROM ID_HISTORY_TRANSACTION; ")
      .arg(table, key, QLatin1String(kind), before, after);
}

QString Trigger(const QString& event, const QString& table, const QString& condition, const QString& body) {
  return "CREATE TRIGGER %NAME% " + event + " ON " + table + (condition.isEmpty() ? QString() : " WHEN " + condition) +
         " BEGIN " + body + "END";
}

// Changes wait under a number that is none until they are given their transaction: 0 has rows that REPLACE may remove,
// of which nothing tells when they are gone, -1 one of which it is known only when it is written that it is one.
const QString Forget = QStringLiteral("DELETE FROM ID_HISTORY_CHANGE WHERE TRANSACTION_ID = 0; ");
const QString Keep = QStringLiteral(
    "UPDATE ID_HISTORY_CHANGE SET TRANSACTION_ID = (SELECT MAX(TRANSACTION_ID) FROM ID_HISTORY_TRANSACTION) "
    "WHERE TRANSACTION_ID = 0; ");

const QString OpenForChanged = QStringLiteral(
    "INSERT INTO ID_HISTORY_TRANSACTION (MOMENT) SELECT strftime('%Y-%m-%d %H:%M:%f', 'now') FROM ID_HISTORY_CHANGE "
    "WHERE TRANSACTION_ID = -1; ");
const QString KeepChanged = QStringLiteral(
    "UPDATE ID_HISTORY_CHANGE SET TRANSACTION_ID = (SELECT MAX(TRANSACTION_ID) FROM ID_HISTORY_TRANSACTION) "
    "WHERE TRANSACTION_ID = -1; ");

constexpr qsizetype ColumnsOfAnObject = 60;  // two arguments each, of which SQLite's functions take 127

QStringList UniqueColumns(const RecordedTable& table) {
  QStringList columns;
  for (const QStringList& unique : table.uniques)
    for (const QString& column : unique)
      if (!columns.contains(column)) columns += column;
  return columns;
}

}  // namespace

std::vector<RecordingObject> SqliteRecording::Routines(const QString&) const {
  // A statement of several rows is one transaction; the one of a session's own is never without a user.
  return {Named("ID_HISTORY_TRANSACTION", "A",
                Trigger("AFTER INSERT", "ID_HISTORY_TRANSACTION",
                        "NEW.USER_ID IS NULL AND EXISTS (SELECT 1 FROM ID_HISTORY_TRANSACTION WHERE TRANSACTION_ID = "
                        "(SELECT MAX(TRANSACTION_ID) FROM ID_HISTORY_TRANSACTION WHERE TRANSACTION_ID < "
                        "NEW.TRANSACTION_ID) AND MOMENT = NEW.MOMENT AND USER_ID IS NULL)",
                        "DELETE FROM ID_HISTORY_TRANSACTION WHERE TRANSACTION_ID = NEW.TRANSACTION_ID; "))};
}

QString SqliteRecording::Image(const RecordedTable& table, const QStringList& columns, const RowWords& row) const {
  QStringList objects, members;
  const auto finish = [&] {
    objects += "json_object(" + members.join(", ") + ')';
    members.clear();
  };
  for (const RecordedColumn& column : table.columns) {
    if (!columns.contains(column.name)) continue;
    const QString value = row.Of(column.name);
    members += '\'' + column.name + "', " +
               (column.secret ? "CASE WHEN " + value + " IS NULL THEN NULL ELSE json('true') END" : Text(value));
    if (members.size() == ColumnsOfAnObject) finish();
  }
  if (!members.isEmpty()) finish();
  return objects.size() == 1 ? objects.first() : "json_array(" + objects.join(", ") + ')';
}

// The columns before and after where any of them differs; secrets only where they differ themselves.
QString SqliteRecording::Changed(const RecordedTable& table, const QStringList& columns) const {
  QStringList secrets;
  for (const RecordedColumn& column : table.columns)
    if (column.secret) secrets += column.name;
  const auto image = [&](const QString& row) {
    QStringList changed;
    for (const QString& secret : secrets)
      changed += QStringLiteral("CASE WHEN OLD.%1 IS NOT NEW.%1 THEN %2%1 END").arg(secret, row);
    return Image(table, columns, {row, secrets, changed});
  };
  const QString orSecret = secrets.isEmpty() ? QString() : " OR other";
  // The limit keeps the engine from computing the images once for each place where they stand.
  return QStringLiteral(
             "INSERT INTO ID_HISTORY_CHANGE (TRANSACTION_ID, TABLE_NAME, ROW_KEY, KIND, OLD_VALUES, NEW_VALUES) "
             "SELECT -1, '%1', %2, 'U', was, becomes FROM (SELECT %3 AS was, %4 AS becomes%5 LIMIT 1) "
             "WHERE was <> becomes%6; ")
      .arg(table.name, Key(table, {"NEW."}), image("OLD."), image("NEW."),
           secrets.isEmpty() ? QString() : ", " + AnyDiffers(secrets, "OLD.", "NEW.") + " AS other", orSecret);
}

// The rows that stand in the way of the new one.
QString SqliteRecording::Replaced(const RecordedTable& table, const QString& but) const {
  QStringList conflicts;
  for (const QStringList& unique : table.uniques) {
    QStringList columns;
    for (const QString& column : unique) columns += column + " = NEW." + column;
    conflicts += columns.join(" AND ");
  }
  return QStringLiteral(
             "INSERT INTO ID_HISTORY_CHANGE (TRANSACTION_ID, TABLE_NAME, ROW_KEY, KIND, OLD_VALUES, NEW_VALUES) "
             "SELECT 0, '%1', %2, 'D', %3, NULL FROM %1 WHERE (%4)%5; ")
      .arg(table.name, Key(table, {{}}), Image(table, Names(table), {{}}), conflicts.join(" OR "), but);
}

std::vector<RecordingObject> SqliteRecording::OfReplacing(const RecordedTable& table) const {
  if (table.uniques.empty()) return {};
  const QStringList columns = UniqueColumns(table);
  const QString other = AnyDiffers(columns, "OLD.", "NEW.");
  const QString ofColumns = " UPDATE OF " + columns.join(", ");
  return {Named(table.name, "RI", Trigger("BEFORE INSERT", table.name, {}, Forget + Replaced(table, {}))),
          Named(table.name, "RU",
                Trigger("BEFORE" + ofColumns, table.name, other, Forget + Replaced(table, " AND rowid <> OLD.rowid"))),
          Named(table.name, "RK", Trigger("AFTER" + ofColumns, table.name, other, Open + Keep))};
}

std::vector<RecordingObject> SqliteRecording::Triggers(const RecordedTable& table, const QString&) const {
  const QString& name = table.name;
  const QString oldKey = Key(table, {"OLD."}), newKey = Key(table, {"NEW."});
  const QString gone = Change(name, "D", oldKey, Image(table, Names(table), {"OLD."}), "NULL");
  const QString come = Change(name, "I", newKey, "NULL", Image(table, Names(table), {"NEW."}));
  std::vector<RecordingObject> triggers = OfReplacing(table);
  const QString kept = table.uniques.empty() ? QString() : Keep;
  triggers.push_back(Named(name, "I", Trigger("AFTER INSERT", name, {}, Open + kept + come)));
  triggers.push_back(Named(name, "D", Trigger("AFTER DELETE", name, {}, Open + gone)));
  if (!table.key.isEmpty())
    triggers.push_back(Named(name, "K",
                             Trigger("AFTER UPDATE OF " + table.key.join(", "), name,
                                     AnyDiffers(table.key, "OLD.", "NEW."), Open + gone + come)));
  QStringList others;
  for (const QString& column : Names(table))
    if (!table.key.contains(column)) others += column;
  if (others.isEmpty()) return triggers;
  // Another key is another row.
  const QString sameKey = table.key.isEmpty() ? QString() : "NOT (" + AnyDiffers(table.key, "OLD.", "NEW.") + ')';
  triggers.push_back(
      Named(name, "U", Trigger("AFTER UPDATE", name, sameKey, Changed(table, others) + OpenForChanged + KeepChanged)));
  return triggers;
}

QStringList SqliteRecording::Present() const {
  return {
      QStringLiteral("SELECT name, tbl_name FROM sqlite_master WHERE type = 'trigger' AND substr(name, 1, 3) = 'TH_'")};
}

QString SqliteRecording::Drop(const RecordingObject& object, const QString&) const {
  return "DROP TRIGGER " + object.name;
}

QStringList SqliteRecording::Told(const QString& user, const QString& program) const {
  return {
      QStringLiteral("DROP TRIGGER IF EXISTS temp.TABULON_USER"),
      QStringLiteral("DROP TABLE IF EXISTS temp.TABULON_UNIT"),
      QStringLiteral("CREATE TEMP TABLE TABULON_UNIT (TRANSACTION_ID INTEGER)"),
      QStringLiteral("INSERT INTO TABULON_UNIT VALUES (NULL)"),
      "CREATE TEMP TRIGGER TABULON_USER BEFORE INSERT ON main.ID_HISTORY_TRANSACTION WHEN NEW.USER_ID IS NULL BEGIN "
      "INSERT INTO ID_HISTORY_TRANSACTION (MOMENT, USER_ID, PROGRAM) SELECT NEW.MOMENT, " +
          Literal(user) + ", " + Literal(program) +
          " WHERE (SELECT TRANSACTION_ID FROM TABULON_UNIT) IS NULL; UPDATE TABULON_UNIT SET TRANSACTION_ID = "
          "(SELECT MAX(TRANSACTION_ID) FROM ID_HISTORY_TRANSACTION) WHERE TRANSACTION_ID IS NULL; "
          "SELECT RAISE(IGNORE); END"};
}

QString SqliteRecording::UnitMark() const {
  return QStringLiteral("UPDATE TABULON_UNIT SET TRANSACTION_ID = NULL");
}
