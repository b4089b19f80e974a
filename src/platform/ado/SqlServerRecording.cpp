#include "platform/ado/SqlServerRecording.h"

namespace {

// The number of a transaction comes again when the server was started anew, the session's memory does not.
const QString OpenBody = QStringLiteral(R"(
BEGIN
  SET NOCOUNT ON;
  DECLARE @unit NVARCHAR(40) = CONVERT(NVARCHAR(40), CURRENT_TRANSACTION_ID());
  SET @transaction = CONVERT(INTEGER, SESSION_CONTEXT(N'tabulon_transaction'));
  IF CONVERT(NVARCHAR(40), SESSION_CONTEXT(N'tabulon_unit')) = @unit
    AND EXISTS (SELECT 1 FROM %1ID_HISTORY_TRANSACTION WHERE TRANSACTION_ID = @transaction) RETURN;
  INSERT INTO %1ID_HISTORY_TRANSACTION (MOMENT, USER_ID, PROGRAM) VALUES (
    CONVERT(NVARCHAR(23), SYSUTCDATETIME(), 121),
    LEFT(COALESCE(CONVERT(NVARCHAR(100), SESSION_CONTEXT(N'tabulon_user')), ORIGINAL_LOGIN()), 100),
    LEFT(COALESCE(CONVERT(NVARCHAR(100), SESSION_CONTEXT(N'tabulon_program')), PROGRAM_NAME()), 100));
  SET @transaction = SCOPE_IDENTITY();
  EXEC sp_set_session_context N'tabulon_transaction', @transaction;
  EXEC sp_set_session_context N'tabulon_unit', @unit;
END)");

QString Same(const QStringList& key) {
  QStringList one, other;
  for (const QString& column : key) one += "d." + column, other += "i." + column;
  return "EXISTS (SELECT " + one.join(", ") + " INTERSECT SELECT " + other.join(", ") + ')';
}

}  // namespace

std::vector<RecordingObject> SqlServerRecording::Routines(const QString& owner) const {
  return {
      Named({}, "OPEN", "CREATE PROCEDURE " + owner + "%NAME% @transaction INTEGER OUTPUT AS" + OpenBody.arg(owner))};
}

std::vector<RecordingObject> SqlServerRecording::Triggers(const RecordedTable& table, const QString& owner) const {
  const auto select = [&](const char* kind, const QString& key, const QString& before, const QString& after,
                          const QString& from) {
    return QStringLiteral("SELECT @transaction, N'%1', %2, N'%3', %4, %5 FROM %6")
        .arg(table.name, key, QLatin1String(kind), before, after, from);
  };
  QStringList others;
  for (const QString& column : Names(table))
    if (!table.key.contains(column)) others += column;
  const QString same = table.key.isEmpty() ? QStringLiteral("1 = 1") : Same(table.key);
  QStringList selects{select("D", Key(table, {"d."}), Values(table, {"d."}), "NULL",
                             "deleted d WHERE NOT EXISTS (SELECT 1 FROM inserted i WHERE " + same + ')')};
  if (!others.isEmpty())
    selects +=
        select("U", Key(table, {"i."}), Differences(table, "d.", "d.", "i."), Differences(table, "i.", "d.", "i."),
               "deleted d INNER JOIN inserted i ON " + same + " WHERE " + AnyDiffers(others, "d.", "i."));
  selects += select("I", Key(table, {"i."}), "NULL", Values(table, {"i."}),
                    "inserted i WHERE NOT EXISTS (SELECT 1 FROM deleted d WHERE " + same + ')');
  const QString text =
      QStringLiteral(
          "CREATE TRIGGER %1%NAME% ON %1%2 AFTER INSERT, UPDATE, DELETE AS BEGIN SET NOCOUNT ON; "
          "IF NOT EXISTS (SELECT * FROM inserted EXCEPT SELECT * FROM deleted) AND NOT EXISTS (SELECT * FROM deleted "
          "EXCEPT SELECT * FROM inserted) RETURN; DECLARE @transaction INTEGER; EXEC %1%3 @transaction OUTPUT; "
          "INSERT INTO %1ID_HISTORY_CHANGE (TRANSACTION_ID, TABLE_NAME, ROW_KEY, KIND, OLD_VALUES, NEW_VALUES) ")
          .arg(owner, table.name, Routines(owner).front().name) +
      selects.join(" UNION ALL ") + "; END";
  return {Named(table.name, "R", text)};
}

QStringList SqlServerRecording::Present() const {
  return {QStringLiteral("SELECT t.name, o.name FROM sys.triggers t INNER JOIN sys.objects o ON o.object_id = "
                         "t.parent_id WHERE LEFT(t.name, 3) = 'TH_'"),
          QStringLiteral("SELECT name, '' FROM sys.procedures WHERE LEFT(name, 8) = 'HISTORY_'")};
}

QString SqlServerRecording::Drop(const RecordingObject& object, const QString& owner) const {
  return (object.table.isEmpty() ? "DROP PROCEDURE " : "DROP TRIGGER ") + owner + object.name;
}

QStringList SqlServerRecording::Told(const QString& user, const QString& program) const {
  return {"EXEC sp_set_session_context N'tabulon_user', N" + Literal(user),
          "EXEC sp_set_session_context N'tabulon_program', N" + Literal(program)};
}
