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

// Rows that REPLACE removes have been kept under transaction 0: nothing tells of them when they are gone.
const QString Forget = QStringLiteral("DELETE FROM ID_HISTORY_CHANGE WHERE TRANSACTION_ID = 0; ");
const QString Keep = QStringLiteral(
    "UPDATE ID_HISTORY_CHANGE SET TRANSACTION_ID = (SELECT MAX(TRANSACTION_ID) FROM ID_HISTORY_TRANSACTION) "
    "WHERE TRANSACTION_ID = 0; ");

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
      .arg(table.name, Key(table, {{}}), Values(table, {{}}), conflicts.join(" OR "), but);
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
  const QString gone = Change(name, "D", oldKey, Values(table, {"OLD."}), "NULL");
  const QString come = Change(name, "I", newKey, "NULL", Values(table, {"NEW."}));
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
  QString changed = '(' + AnyDiffers(others, "OLD.", "NEW.") + ')';
  if (!table.key.isEmpty()) changed += " AND NOT (" + AnyDiffers(table.key, "OLD.", "NEW.") + ')';
  triggers.push_back(Named(name, "U",
                           Trigger("AFTER UPDATE", name, changed,
                                   Open + Change(name, "U", newKey, Differences(table, "OLD.", "OLD.", "NEW."),
                                                 Differences(table, "NEW.", "OLD.", "NEW.")))));
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
