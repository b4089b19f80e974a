#include "platform/ado/PostgreSqlDialect.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <algorithm>
#include <utility>
#include <vector>

#include "platform/ado/StatementWords.h"

namespace {

using Options = std::vector<std::pair<QString, QString>>;

// What Encryption asks of the driver, in its own words.
Options Asked(const ConnectionSettings& settings) {
  switch (settings.encryption) {
    case Encryption::Off:
      break;
    case Encryption::Required: {
      Options asked{{QStringLiteral("sslmode"), QStringLiteral("require")},
                    {QStringLiteral("gssencmode"), QStringLiteral("disable")}};
      // Whoever answers could ask for the password in clear. It proves to know it instead, or is sent nothing.
      if (!settings.password.isEmpty()) asked.emplace_back("channel_binding", "require");
      return asked;
    }
    case Encryption::Verify:
      return {{QStringLiteral("sslmode"), QStringLiteral("verify-full")},
              {QStringLiteral("gssencmode"), QStringLiteral("disable")}};
  }
  return {};
}

bool IsAtLeast(const QString& value, const QString& asked) {
  const QStringList modes{QStringLiteral("require"), QStringLiteral("verify-ca"), QStringLiteral("verify-full")};
  return value == asked || (modes.contains(asked) && modes.indexOf(value) > modes.indexOf(asked));
}

// The file of trusted authorities where neither the settings nor the user's account have one.
QString OwnAuthority(const Options& options) {
  const auto named = [](const auto& option) { return option.first == u"sslrootcert"; };
  if (std::any_of(options.begin(), options.end(), named) ||
      QFile::exists(QDir::homePath() + QLatin1String("/.postgresql/root.crt")))
    return {};
  return TrustedCertificates();
}

// False with a reason when the options of the settings take back what Encryption asks for.
bool AppendEncryption(QString& words, const ConnectionSettings& settings, QString* reason) {
  Options given;
  for (const QString& option : settings.options.split(u';', Qt::SkipEmptyParts))
    given.emplace_back(option.section(u'=', 0, 0).trimmed(), option.section(u'=', 1).trimmed());
  for (const auto& [word, asked] : Asked(settings)) {
    words += QStringLiteral(";%1=%2").arg(word, asked);
    for (const auto& [option, value] : given) {
      if (option != word || IsAtLeast(value, asked)) continue;
      *reason = QStringLiteral(
                    "Options in the database section of the settings file says %1=%2, which is less than Encryption=%3 "
                    "asks for. Take %1 out of Options.")
                    .arg(word, value, EncryptionName(settings.encryption));
      return false;
    }
  }
  const QString authority = settings.encryption == Encryption::Verify ? OwnAuthority(given) : QString();
  if (!authority.isEmpty()) words += QStringLiteral(";sslrootcert=") + authority;
  return true;
}

}  // namespace

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
  if (!AppendEncryption(options, settings, reason)) return false;
  if (!settings.options.isEmpty()) options += u';' + settings.options;
  database.setConnectOptions(options);
  return true;
}

QString PostgreSqlDialect::OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const {
  const QString server = settings.host.isEmpty() ? QStringLiteral("this machine") : settings.host;
  const QString text = error.databaseText();
  // The driver gives no code for these; a server that speaks another language gets the general advice.
  if (text.contains(QLatin1String("channel binding"))) {
    return QStringLiteral(
               "PostgreSQL on %1 does not prove that it knows the password of user \"%2\", as Encryption=%3 in the "
               "database section of the settings file asks. Set the password anew at the server under "
               "password_encryption=scram-sha-256, or write Encryption=verify.")
        .arg(server, settings.user, EncryptionName(settings.encryption));
  }
  if (text.contains(QLatin1String("does not support SSL"))) return LinkAdvice::NotEncrypted(EngineName(), settings);
  if (text.contains(QLatin1String("certificate")))
    return LinkAdvice::NotVerified(EngineName(), settings, QStringLiteral("sslrootcert"));
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
      "pg_client_encoding() = 'UTF8' THEN 1 ELSE 0 END, "
      "(SELECT version || ' ' || cipher FROM pg_catalog.pg_stat_ssl WHERE pid = pg_backend_pid() AND ssl), "
      "pg_backend_pid(), CASE WHEN pg_is_in_recovery() THEN 0 ELSE 1 END");
}

QString PostgreSqlDialect::Carry(const QString& statement, const ConnectionSettings& settings) const {
  StatementWords::Tokens tokens = StatementWords::InCommonSql(statement, settings.ownerPrefix);
  StatementWords::Patterns(tokens, QStringLiteral("ILIKE"), {}, {});
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
