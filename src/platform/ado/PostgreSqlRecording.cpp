#include "platform/ado/PostgreSqlRecording.h"

namespace {

// As its owner, so that programs need no right on the tables of the history; with the search path of its maker, so that
// no other schema's tables are taken for them. Arguments: the columns of the key, then the secret ones. A cascade and
// TRUNCATE come here too.
const QString Body = QStringLiteral(R"(
DECLARE
  keys text[] := string_to_array(TG_ARGV[0], ',');
  secrets text[] := string_to_array(TG_ARGV[1], ',');
  unit integer := NULLIF(current_setting('tabulon.transaction', true), '');
  old_row jsonb; new_row jsonb; old_key text; new_key text; old_values jsonb; new_values jsonb; kept record;
BEGIN
  IF TG_OP = 'UPDATE' AND OLD IS NOT DISTINCT FROM NEW THEN RETURN NULL; END IF;
  IF unit IS NULL THEN
    INSERT INTO id_history_transaction (moment, user_id, program) VALUES (
      to_char(clock_timestamp() AT TIME ZONE 'UTC', 'YYYY-MM-DD HH24:MI:SS.MS'),
      left(COALESCE(NULLIF(current_setting('tabulon.user', true), ''), session_user), 100),
      left(COALESCE(NULLIF(current_setting('tabulon.program', true), ''), current_setting('application_name')), 100))
      RETURNING transaction_id INTO unit;
    PERFORM set_config('tabulon.transaction', unit::text, true);
  END IF;
  IF TG_OP = 'TRUNCATE' THEN
    FOR kept IN EXECUTE format('SELECT to_jsonb(t) AS content FROM %I.%I t', TG_TABLE_SCHEMA, TG_TABLE_NAME) LOOP
      SELECT string_agg(COALESCE(kept.content ->> k, chr(30)), chr(31) ORDER BY n) INTO old_key
        FROM unnest(keys) WITH ORDINALITY AS u (k, n);
      SELECT jsonb_object_agg(upper(key), CASE WHEN key = ANY (secrets) THEN 'true' ELSE to_jsonb(value) END)
        INTO old_values FROM jsonb_each_text(kept.content) WHERE value IS NOT NULL;
      INSERT INTO id_history_change (transaction_id, table_name, row_key, kind, old_values)
        VALUES (unit, upper(TG_TABLE_NAME), COALESCE(old_key, ''), 'D', old_values);
    END LOOP;
    RETURN NULL;
  END IF;
  IF TG_OP <> 'INSERT' THEN
    old_row := to_jsonb(OLD);
    SELECT string_agg(COALESCE(old_row ->> k, chr(30)), chr(31) ORDER BY n) INTO old_key
      FROM unnest(keys) WITH ORDINALITY AS u (k, n);
  END IF;
  IF TG_OP <> 'DELETE' THEN
    new_row := to_jsonb(NEW);
    SELECT string_agg(COALESCE(new_row ->> k, chr(30)), chr(31) ORDER BY n) INTO new_key
      FROM unnest(keys) WITH ORDINALITY AS u (k, n);
  END IF;
  IF TG_OP = 'UPDATE' AND new_key IS NOT DISTINCT FROM old_key THEN
    SELECT jsonb_object_agg(upper(o.key), CASE WHEN o.value IS NULL THEN 'null' WHEN o.key = ANY (secrets) THEN 'true'
             ELSE to_jsonb(o.value) END),
           jsonb_object_agg(upper(o.key), CASE WHEN n.value IS NULL THEN 'null' WHEN o.key = ANY (secrets) THEN 'true'
             ELSE to_jsonb(n.value) END) INTO old_values, new_values
      FROM jsonb_each_text(old_row) o JOIN jsonb_each_text(new_row) n ON n.key = o.key
      WHERE o.value IS DISTINCT FROM n.value;
    INSERT INTO id_history_change (transaction_id, table_name, row_key, kind, old_values, new_values)
      VALUES (unit, upper(TG_TABLE_NAME), COALESCE(new_key, ''), 'U', old_values, new_values);
    RETURN NULL;
  END IF;
  IF TG_OP <> 'INSERT' THEN
    SELECT jsonb_object_agg(upper(key), CASE WHEN key = ANY (secrets) THEN 'true' ELSE to_jsonb(value) END)
      INTO old_values FROM jsonb_each_text(old_row) WHERE value IS NOT NULL;
    INSERT INTO id_history_change (transaction_id, table_name, row_key, kind, old_values)
      VALUES (unit, upper(TG_TABLE_NAME), COALESCE(old_key, ''), 'D', old_values);
  END IF;
  IF TG_OP <> 'DELETE' THEN
    SELECT jsonb_object_agg(upper(key), CASE WHEN key = ANY (secrets) THEN 'true' ELSE to_jsonb(value) END)
      INTO new_values FROM jsonb_each_text(new_row) WHERE value IS NOT NULL;
    INSERT INTO id_history_change (transaction_id, table_name, row_key, kind, new_values)
      VALUES (unit, upper(TG_TABLE_NAME), COALESCE(new_key, ''), 'I', new_values);
  END IF;
  RETURN NULL;
END)");

// Names are small letters in the catalogue.
QString Arguments(const RecordedTable& table) {
  QStringList secrets;
  for (const RecordedColumn& column : table.columns)
    if (column.secret) secrets += column.name;
  return '\'' + table.key.join(',').toLower() + "', '" + secrets.join(',').toLower() + '\'';
}

}  // namespace

QString PostgreSqlRecording::Moment() const {
  return QStringLiteral("to_char(clock_timestamp() AT TIME ZONE 'UTC', 'YYYY-MM-DD HH24:MI:SS.MS')");
}

std::vector<RecordingObject> PostgreSqlRecording::Routines(const QString&) const {
  return {Named({}, "RECORD",
                "CREATE FUNCTION %NAME%() RETURNS trigger LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM "
                "CURRENT AS " +
                    Literal(Body))};
}

std::vector<RecordingObject> PostgreSqlRecording::Triggers(const RecordedTable& table, const QString& owner) const {
  const QString call = "EXECUTE FUNCTION " + Routines(owner).front().name + '(' + Arguments(table) + ')';
  return {Named(table.name, "R",
                "CREATE TRIGGER %NAME% AFTER INSERT OR UPDATE OR DELETE ON " + table.name + " FOR EACH ROW " + call),
          Named(table.name, "T", "CREATE TRIGGER %NAME% BEFORE TRUNCATE ON " + table.name + " " + call)};
}

QStringList PostgreSqlRecording::Present() const {
  return {
      QStringLiteral("SELECT tgname, relname FROM pg_catalog.pg_trigger JOIN pg_catalog.pg_class c ON c.oid = tgrelid "
                     "WHERE NOT tgisinternal AND left(tgname, 3) = 'th_' AND pg_table_is_visible(c.oid)"),
      QStringLiteral("SELECT proname, '' FROM pg_catalog.pg_proc p WHERE left(proname, 8) = 'history_' AND "
                     "pg_function_is_visible(p.oid)")};
}

QString PostgreSqlRecording::Drop(const RecordingObject& object, const QString&) const {
  return object.table.isEmpty() ? "DROP FUNCTION " + object.name + "()"
                                : "DROP TRIGGER " + object.name + " ON " + object.table;
}

QStringList PostgreSqlRecording::Told(const QString& user, const QString& program) const {
  return {"SELECT set_config('tabulon.user', " + Literal(user) + ", false), set_config('tabulon.program', " +
          Literal(program) + ", false)"};
}
