#include "platform/ado/MariaDbRecording.h"

namespace {

const QString Into = QStringLiteral(
    "INSERT INTO ID_HISTORY_CHANGE (TRANSACTION_ID, TABLE_NAME, ROW_KEY, KIND, OLD_VALUES, NEW_VALUES) ");

QString Change(const QString& table, const char* kind, const QString& key, const QString& before,
               const QString& after) {
  return Into + QStringLiteral("VALUES (@tabulon_transaction, '%1', %2, '%3', %4, %5); ")
                    .arg(table, key, QLatin1String(kind), before, after);
}

// Sets @tabulon_transaction. NOW(6) is one for all rows of a statement. It stands in each trigger, for a dump carries
// no procedures unless it is told to.
const QString Open = QStringLiteral(R"(BEGIN
  DECLARE unit VARCHAR(60);
  IF NOT (BINARY @tabulon_statement <=> BINARY CONCAT(NOW(6), '')) OR @tabulon_transaction IS NULL THEN
    IF @@in_transaction = 0 THEN
      SET unit = CONCAT('statement ', NOW(6));
    ELSEIF @tabulon_unit IS NOT NULL THEN
      SET unit = CONCAT('unit ', @tabulon_unit);
    ELSE
      SELECT CONCAT('count ', SUM(VARIABLE_VALUE)) INTO unit FROM INFORMATION_SCHEMA.SESSION_STATUS
        WHERE VARIABLE_NAME IN ('COM_BEGIN', 'COM_COMMIT', 'COM_ROLLBACK');
    END IF;
    IF NOT (BINARY unit <=> BINARY @tabulon_last_unit) OR NOT EXISTS (SELECT 1 FROM ID_HISTORY_TRANSACTION
        WHERE TRANSACTION_ID = @tabulon_transaction) THEN
      INSERT INTO ID_HISTORY_TRANSACTION (MOMENT, USER_ID, PROGRAM) VALUES (LEFT(CAST(UTC_TIMESTAMP(3) AS CHAR), 23),
        LEFT(COALESCE(NULLIF(@tabulon_user, ''), SUBSTRING_INDEX(USER(), '@', 1)), 100), LEFT(@tabulon_program, 100));
      SET @tabulon_transaction = LAST_INSERT_ID(), @tabulon_last_unit = unit;
    END IF;
    SET @tabulon_statement = CONCAT(NOW(6), '');
  END IF;
END; )");

QString Trigger(const char* event, const QString& table, const QString& body) {
  return QStringLiteral("CREATE TRIGGER %NAME% %1 ON %2 FOR EACH ROW BEGIN %3END")
      .arg(QLatin1String(event), table, body);
}

}  // namespace

// The rows that a foreign key takes along, before it does.
QString MariaDbRecording::Carried(const RecordedTable& table, bool removed) const {
  QString statements;
  for (const RecordedTable::Cascade& cascade : table.cascades) {
    if (!(removed ? cascade.onDelete : cascade.onUpdate)) continue;
    const RecordedTable& child = cascade.child.front();
    QStringList conditions, others;
    for (qsizetype i = 0; i < cascade.columns.size(); ++i) {
      conditions += cascade.columns[i] + " = OLD." + cascade.references[i];
      others += "NEW." + cascade.references[i];
    }
    const QString from = " FROM " + child.name + " WHERE " + conditions.join(" AND ") + "; ";
    const auto rows = [&](const char* kind, const RowWords& row, bool gone) {
      const QString values = Values(child, row);
      return Into + "SELECT @tabulon_transaction, '" + child.name + "', " + Key(child, row) + ", '" +
             QLatin1String(kind) + "', " + (gone ? values + ", NULL" : "NULL, " + values) + from;
    };
    statements += rows("D", {{}}, true);
    if (!removed) statements += rows("I", {{}, cascade.columns, others}, false);
  }
  return statements;
}

std::vector<RecordingObject> MariaDbRecording::Triggers(const RecordedTable& table, const QString&) const {
  const QString& name = table.name;
  const QString gone = Change(name, "D", Key(table, {"OLD."}), Values(table, {"OLD."}), "NULL");
  const QString come = Change(name, "I", Key(table, {"NEW."}), "NULL", Values(table, {"NEW."}));
  const QString otherKey = table.key.isEmpty() ? "FALSE" : AnyDiffers(table.key, "OLD.", "NEW.");
  QStringList others;
  for (const QString& column : Names(table))
    if (!table.key.contains(column)) others += column;
  QString changed = "IF " + otherKey + " THEN " + Open + gone + come;
  if (!others.isEmpty())
    changed += "ELSEIF " + AnyDiffers(others, "OLD.", "NEW.") + " THEN " + Open +
               Change(name, "U", Key(table, {"NEW."}), Differences(table, "OLD.", "OLD.", "NEW."),
                      Differences(table, "NEW.", "OLD.", "NEW."));
  changed += "END IF; ";
  std::vector<RecordingObject> triggers{Named(name, "I", Trigger("AFTER INSERT", name, Open + come)),
                                        Named(name, "U", Trigger("AFTER UPDATE", name, changed)),
                                        Named(name, "D", Trigger("AFTER DELETE", name, Open + gone))};
  if (const QString removed = Carried(table, true); !removed.isEmpty())
    triggers.push_back(Named(name, "CD", Trigger("BEFORE DELETE", name, Open + removed)));
  if (const QString renamed = Carried(table, false); !renamed.isEmpty())
    triggers.push_back(
        Named(name, "CU", Trigger("BEFORE UPDATE", name, "IF " + otherKey + " THEN " + Open + renamed + "END IF; ")));
  return triggers;
}

QStringList MariaDbRecording::Present() const {
  return {
      QStringLiteral("SELECT TRIGGER_NAME, EVENT_OBJECT_TABLE FROM INFORMATION_SCHEMA.TRIGGERS WHERE "
                     "TRIGGER_SCHEMA = DATABASE() AND LEFT(TRIGGER_NAME, 3) = 'TH_'")};
}

QString MariaDbRecording::Drop(const RecordingObject& object, const QString&) const {
  return "DROP TRIGGER " + object.name;
}

QStringList MariaDbRecording::Told(const QString& user, const QString& program) const {
  return {"SET @tabulon_user = " + Literal(user) + ", @tabulon_program = " + Literal(program)};
}
