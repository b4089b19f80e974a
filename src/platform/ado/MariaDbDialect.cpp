#include "platform/ado/MariaDbDialect.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>

#include "platform/ado/StatementOrder.h"
#include "platform/ado/StatementPatterns.h"
#include "platform/ado/StatementWords.h"

bool MariaDbDialect::Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const {
  if (settings.name.isEmpty()) {
    *reason = QStringLiteral("No database is named. Set Name in the database section of the settings file.");
    return false;
  }
  // CLIENT_FOUND_ROWS: a row that is set to the values it has counts as found, as on the other engines.
  QStringList options{QStringLiteral("CLIENT_FOUND_ROWS=1"), QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=10"),
                      QStringLiteral("MYSQL_OPT_READ_TIMEOUT=300"), QStringLiteral("MYSQL_OPT_WRITE_TIMEOUT=60")};
  if (settings.host.startsWith(u'/')) {
    const bool folder = QFileInfo(settings.host).isDir();
    options +=
        QStringLiteral("UNIX_SOCKET=") + settings.host + (folder ? QLatin1String("/mysqld.sock") : QLatin1String());
  } else {
    database.setHostName(settings.host);
    database.setPort(settings.port == 0 ? -1 : settings.port);
  }
  for (const QString& option : settings.options.split(u';', Qt::SkipEmptyParts)) {
    // A connection that came back by itself would go on outside of the transaction it was in.
    if (!option.trimmed().startsWith(QLatin1String("MYSQL_OPT_RECONNECT"), Qt::CaseInsensitive)) options += option;
  }
  database.setDatabaseName(settings.name);
  database.setUserName(settings.user);
  database.setPassword(settings.password);
  database.setConnectOptions(options.join(u';'));
  return true;
}

QString MariaDbDialect::OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const {
  const QString server = settings.host.isEmpty() ? QStringLiteral("this machine") : settings.host;
  switch (error.nativeErrorCode().toInt()) {
    case 1044:
    case 1045:
    case 1698:
      return QStringLiteral(
                 "MariaDB on %1 refused user \"%2\". Check User and Password in the database section of the "
                 "settings file.")
          .arg(server, settings.user);
    case 1049:
      return QStringLiteral(
                 "MariaDB on %1 has no database \"%2\". Create it, or correct Name in the database section "
                 "of the settings file.")
          .arg(server, settings.name);
    default:
      return QStringLiteral(
                 "Database \"%1\" of MariaDB on %2 could not be opened as user \"%3\". Check that the server "
                 "runs, and Host, Port, Name and User in the database section of the settings file.")
          .arg(settings.name, server, settings.user);
  }
}

QStringList MariaDbDialect::SessionSetup(const ConnectionSettings&) const {
  return {QStringLiteral("SET NAMES utf8mb4"),
          QStringLiteral("SET SESSION sql_mode = 'STRICT_TRANS_TABLES,NO_BACKSLASH_ESCAPES,ANSI_QUOTES,PIPES_AS_CONCAT,"
                         "ERROR_FOR_DIVISION_BY_ZERO,NO_ENGINE_SUBSTITUTION'"),
          QStringLiteral("SET SESSION TRANSACTION ISOLATION LEVEL READ COMMITTED"),
          QStringLiteral(
              "SET SESSION innodb_lock_wait_timeout = 5, SESSION lock_wait_timeout = 10, SESSION autocommit = 1"),
          QStringLiteral("SET SESSION default_storage_engine = InnoDB")};
}

QString MariaDbDialect::SessionCheck() const {
  // A server without these would take a backslash for an escape, or cut a text that is too long in silence.
  return QStringLiteral(
      "SELECT FIND_IN_SET('NO_BACKSLASH_ESCAPES', @@sql_mode) > 0 AND FIND_IN_SET('STRICT_TRANS_TABLES', @@sql_mode) > "
      "0 "
      "AND FIND_IN_SET('ANSI_QUOTES', @@sql_mode) > 0 AND @@autocommit = 1");
}

QString MariaDbDialect::Carry(const QString& statement, const ConnectionSettings& settings) const {
  StatementWords::Tokens tokens = StatementWords::InCommonSql(statement, settings.ownerPrefix);
  StatementWords::UpperTableNames(tokens);
  StatementWords::OrderTies(tokens, settings.keyOf);
  // The letters of UCA 14, letter by letter, and "ß" is "SS". The engine's own patterns of that collation know no
  // letters beyond the first plane. It knows no pattern without an escape: one that nobody types takes its place.
  StatementWords::Patterns(
      tokens, {QStringLiteral("CONVERT(REPLACE(UPPER(LOWER(CONVERT("),
               QStringLiteral(" USING utf8mb4) COLLATE utf8mb4_uca1400_as_ci)), 'ß', 'SS') USING utf8mb4)"),
               {},
               QStringLiteral("utf8mb4_bin"),
               QStringLiteral("\x1f")});
  // TIMESTAMP would be moved by time zones, end in 2038 and change by itself.
  StatementWords::ColumnType(tokens, "TIMESTAMP", QStringLiteral("DATETIME"));
  return Join(tokens);
}

Dialect::Failure MariaDbDialect::Classify(const QSqlError& error) const {
  switch (error.nativeErrorCode().toInt()) {
    case 1022:
    case 1062:
    case 1586:
      return Failure::Duplicate;
    case 1216:
    case 1217:
    case 1451:
    case 1452:
      return Failure::Reference;
    case 1048:
    case 4025:
      return Failure::Constraint;
    case 1054:
    case 1064:
    case 1146:
    case 1264:
    case 1292:
    case 1364:
    case 1366:
    case 1406:
      return Failure::Refused;
    case 1205:
    case 1213:
    case 1969:
      return Failure::Busy;
    case 1053:
    case 1927:
    case 2006:
    case 2013:
    case 2055:
    case 4031:
      return Failure::Lost;
    default:
      return Failure::Other;
  }
}

QString MariaDbDialect::ColumnsStatement(const QString& table) const {
  const bool systemTable = table.startsWith(QLatin1String("ID_"), Qt::CaseInsensitive);
  return QStringLiteral(
             "SELECT COLUMN_NAME, COLUMN_TYPE, CASE WHEN IS_NULLABLE = 'YES' THEN 1 ELSE 0 END "
             "FROM INFORMATION_SCHEMA.COLUMNS WHERE TABLE_SCHEMA = DATABASE() AND TABLE_NAME = '%1' "
             "ORDER BY ORDINAL_POSITION")
      .arg(Escape(systemTable ? table.toUpper() : table));
}

QString MariaDbDialect::TablesStatement() const {
  return QStringLiteral(
      "SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_SCHEMA = DATABASE() AND TABLE_TYPE = 'BASE TABLE' "
      "AND UPPER(LEFT(TABLE_NAME, 3)) = 'ID_'");
}
