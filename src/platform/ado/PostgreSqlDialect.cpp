#include "platform/ado/PostgreSqlDialect.h"

#include <QSqlDatabase>
#include <QSqlError>

#include "platform/ado/StatementOrder.h"
#include "platform/ado/StatementPatterns.h"
#include "platform/ado/StatementWords.h"

bool PostgreSqlDialect::Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const {
  if (settings.name.isEmpty()) {
    *reason = QStringLiteral("No database is named. Set Name in the database section of the settings file.");
    return false;
  }
  database.setHostName(settings.host);
  database.setPort(settings.port == 0 ? -1 : settings.port);
  database.setDatabaseName(settings.name);
  database.setUserName(settings.user);
  database.setPassword(settings.password);
  // Without these a cable that is pulled out freezes the window for a quarter of an hour.
  QString options = QStringLiteral(
      "application_name=Tabulon;connect_timeout=10;keepalives_idle=30;keepalives_interval=10;keepalives_count=3;"
      "tcp_user_timeout=30000");
  if (!settings.options.isEmpty()) options += u';' + settings.options;
  database.setConnectOptions(options);
  return true;
}

QString PostgreSqlDialect::OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const {
  const QString server = settings.host.isEmpty() ? QStringLiteral("this machine") : settings.host;
  const QString text = error.databaseText();
  // The driver gives no code for these; a server that speaks another language gets the general advice.
  if (text.contains(QLatin1String("password"))) {
    return QStringLiteral(
               "PostgreSQL on %1 refused user \"%2\". Check User and Password in the database section of the "
               "settings file.")
        .arg(server, settings.user);
  }
  if (text.contains(QLatin1String("database \"")) && text.contains(QLatin1String("does not exist"))) {
    return QStringLiteral(
               "PostgreSQL on %1 has no database \"%2\". Create it, or correct Name in the database section "
               "of the settings file.")
        .arg(server, settings.name);
  }
  return QStringLiteral(
             "Database \"%1\" of PostgreSQL on %2 could not be opened as user \"%3\". Check that the server "
             "runs, and Host, Port, Name and User in the database section of the settings file.")
      .arg(settings.name, server, settings.user);
}

QStringList PostgreSqlDialect::SessionSetup(const ConnectionSettings& settings) const {
  QStringList statements{QStringLiteral("SET client_min_messages = warning"),
                         QStringLiteral("SET standard_conforming_strings = on"),
                         QStringLiteral("SET DateStyle = 'ISO, YMD'"), QStringLiteral("SET lock_timeout = 5000"),
                         QStringLiteral("SET statement_timeout = 300000")};
  // Statements reach the server without the owner; its schema, where there is one, is looked at first.
  QString owner = settings.ownerPrefix;
  if (owner.endsWith(u'.')) owner.chop(1);
  if (!owner.isEmpty() && !owner.contains(u'.')) {
    owner.remove(u'"');
    statements += QStringLiteral("SET search_path = \"%1\", \"$user\", public").arg(owner.toLower());
  }
  return statements;
}

QString PostgreSqlDialect::SessionCheck() const {
  return QStringLiteral(
      "SELECT CASE WHEN current_setting('standard_conforming_strings') = 'on' AND "
      "pg_client_encoding() = 'UTF8' THEN 1 ELSE 0 END");
}

namespace {

// Letters whose capital has another small form, and that form. "Σ" would become another small letter at the end of a
// word, "İ" two letters.
const QString SecondForms = QStringLiteral("İΣ\u00B5ıſ\u0345ςϐϑϕϖϰϱϵᲀᲁᲂᲃᲄᲅᲆᲇᲈẛ\u1FBE");
const QString FirstForms = QStringLiteral("iσμisισβθφπκρεвдосттъѣꙋṡι");

// The folding of ICU, whatever the database's own locale is: letter by letter, and "ß" is "ss".
StatementWords::PatternForm LikeForm() {
  return {QStringLiteral("replace(lower(translate("),
          QStringLiteral(", '%1', '%2') COLLATE \"und-x-icu\"), 'ß', 'ss')").arg(SecondForms, FirstForms),
          {},
          {},
          QString()};
}

}  // namespace

QString PostgreSqlDialect::Carry(const QString& statement, const ConnectionSettings& settings) const {
  StatementWords::Tokens tokens = StatementWords::InCommonSql(statement, settings.ownerPrefix);
  StatementWords::OrderTies(tokens, settings.keyOf);
  StatementWords::NullsFirst(tokens);
  StatementWords::Patterns(tokens, LikeForm());
  return Join(tokens);
}

QString PostgreSqlDialect::EngineText(const QSqlError& error) const {
  // "ERROR:  text\nLINE 1: ...\nDETAIL:  values ...\n(23505)": only the first line is meant for a user, and the detail
  // could hold any word that callers look for.
  QString text = Dialect::EngineText(error).section(u'\n', 0, 0).trimmed();
  for (const char* severity : {"ERROR:", "FATAL:"}) {
    if (text.startsWith(QLatin1String(severity))) text = text.mid(6).trimmed();
  }
  return text;
}

Dialect::Failure PostgreSqlDialect::Classify(const QSqlError& error) const {
  const QString state = error.nativeErrorCode();
  if (state == QLatin1String("23505")) return Failure::Duplicate;
  if (state == QLatin1String("23503") || state == QLatin1String("23001")) return Failure::Reference;
  if (state.startsWith(QLatin1String("23"))) return Failure::Constraint;
  for (const char* lost : {"57P01", "57P02", "57P03", "57P05", "25P03"}) {
    if (state == QLatin1String(lost)) return Failure::Lost;
  }
  if (state.startsWith(QLatin1String("08"))) return Failure::Lost;
  for (const char* busy : {"55P03", "40P01", "40001", "57014"}) {
    if (state == QLatin1String(busy)) return Failure::Busy;
  }
  // 22 wrong values, 42 syntax and names.
  if (state.startsWith(QLatin1String("22")) || state.startsWith(QLatin1String("42"))) return Failure::Refused;
  return Failure::Other;
}

QString PostgreSqlDialect::ColumnsStatement(const QString& table) const {
  return QStringLiteral(
             "SELECT attname, format_type(atttypid, atttypmod), CASE WHEN attnotnull THEN 0 ELSE 1 END "
             "FROM pg_catalog.pg_attribute WHERE attrelid = to_regclass(quote_ident('%1')) AND attnum > 0 "
             "AND NOT attisdropped ORDER BY attnum")
      .arg(Escape(table.toLower()));
}

QString PostgreSqlDialect::TablesStatement() const {
  return QStringLiteral(
      "SELECT tablename FROM pg_catalog.pg_tables WHERE schemaname = ANY(current_schemas(false)) "
      "AND lower(substr(tablename, 1, 3)) = 'id_'");
}
