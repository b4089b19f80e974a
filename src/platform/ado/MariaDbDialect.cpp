#include "platform/ado/MariaDbDialect.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <algorithm>

#include "platform/ado/StatementWords.h"

namespace {

constexpr int PluginNotAllowed = 5010;  // CR_ERR_... of the client library

// The driver ignores words that it does not know, and some that look like a demand.
QString WhyRefused(const QString& option) {
  static const QStringList known{QStringLiteral("CLIENT_COMPRESS"),
                                 QStringLiteral("CLIENT_FOUND_ROWS"),
                                 QStringLiteral("CLIENT_IGNORE_SPACE"),
                                 QStringLiteral("CLIENT_INTERACTIVE"),
                                 QStringLiteral("CLIENT_NO_SCHEMA"),
                                 QStringLiteral("CLIENT_ODBC"),
                                 QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT"),
                                 QStringLiteral("MYSQL_OPT_READ_TIMEOUT"),
                                 QStringLiteral("MYSQL_OPT_RECONNECT"),
                                 QStringLiteral("MYSQL_OPT_WRITE_TIMEOUT"),
                                 QStringLiteral("SSL_CA"),
                                 QStringLiteral("SSL_CAPATH"),
                                 QStringLiteral("SSL_CERT"),
                                 QStringLiteral("SSL_CIPHER"),
                                 QStringLiteral("SSL_KEY")};
  const QString word = option.section(u'=', 0, 0).trimmed().toUpper();
  if (known.contains(word)) return {};
  QString advice = QStringLiteral("The words it knows are %1.").arg(known.join(QLatin1String(", ")));
  if (word == u"UNIX_SOCKET") advice = QStringLiteral("Write the path of the socket as Host.");
  if (word.contains(QLatin1String("SSL")) || word.contains(QLatin1String("TLS")))
    advice = QStringLiteral("Encryption=required or Encryption=verify says what the link must promise.");
  return QStringLiteral(
             "MariaDB's driver does not know the word %1 in Options in the database section of the settings file. "
             "Take it out. %2")
      .arg(word, advice);
}

// The client library takes more than the driver hands on to it when its host is a text of "key=value;", in which it
// reads no "}" beside one of ";", "=" and "{".
bool Append(QString& text, const char* key, const QString& value, QString* reason) {
  const bool enclosed = value.contains(u';') || value.contains(u'=') || value.contains(u'{');
  if (enclosed && value.contains(u'}')) {
    *reason = QStringLiteral(
                  "MariaDB's driver cannot be given the %1 of the database section of the settings file: it holds a "
                  "closing brace together with an opening one, a semicolon or an equals sign. Choose another one.")
                  .arg(QLatin1String(key));
    return false;
  }
  if (!value.isEmpty())
    text += (enclosed ? QStringLiteral("%1={%2};") : QStringLiteral("%1=%2;")).arg(QLatin1String(key), value);
  return true;
}

// Empty with a reason when the settings cannot be told to the library.
QString Link(const ConnectionSettings& settings, QString* reason) {
  // A plug-in that shows the password to whoever answers is never used.
  QString text = QStringLiteral("restricted-auth=mysql_native_password,client_ed25519,auth_gssapi_client;");
  const bool socket = settings.host.startsWith(u'/');
  const QString path =
      socket && QFileInfo(settings.host).isDir() ? settings.host + QLatin1String("/mysqld.sock") : settings.host;
  if (!Append(text, socket ? "socket" : "host", path, reason) || !Append(text, "user", settings.user, reason) ||
      !Append(text, "password", settings.password, reason))
    return {};
  if (settings.port != 0) text += QStringLiteral("port=%1;").arg(settings.port);
  if (settings.encryption != Encryption::Off) text += QLatin1String("ssl-enforce=1;");
  if (settings.encryption == Encryption::Verify) text += QLatin1String("ssl-verify-server-cert=1;");
  return text;
}

bool NamesAuthority(const QStringList& options) {
  return std::any_of(options.begin(), options.end(),
                     [](const QString& option) { return option.trimmed().startsWith(QLatin1String("SSL_CA")); });
}

}  // namespace

bool MariaDbDialect::Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const {
  if (settings.name.isEmpty()) {
    *reason = QStringLiteral("No database is named. Set Name in the database section of the settings file.");
    return false;
  }
  if (settings.encryption != Encryption::Off && settings.host.compare(u"localhost", Qt::CaseInsensitive) == 0) {
    *reason = QStringLiteral(
                  "MariaDB's driver takes localhost for the socket of this machine, which Encryption=%1 does not fit. "
                  "Write Encryption=off, or 127.0.0.1 as Host.")
                  .arg(EncryptionName(settings.encryption));
    return false;
  }
  // CLIENT_FOUND_ROWS: a row that is set to the values it has counts as found, as on the other engines.
  QStringList options{QStringLiteral("CLIENT_FOUND_ROWS=1"), QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=10"),
                      QStringLiteral("MYSQL_OPT_READ_TIMEOUT=300"), QStringLiteral("MYSQL_OPT_WRITE_TIMEOUT=60")};
  for (const QString& option : settings.options.split(u';', Qt::SkipEmptyParts)) {
    *reason = WhyRefused(option);
    if (!reason->isEmpty()) return false;
    // A connection that came back by itself would go on outside of the transaction it was in.
    if (!option.trimmed().startsWith(QLatin1String("MYSQL_OPT_RECONNECT"), Qt::CaseInsensitive)) options += option;
  }
  if (settings.encryption == Encryption::Verify && !NamesAuthority(options) && !TrustedCertificates().isEmpty())
    options += QStringLiteral("SSL_CA=") + TrustedCertificates();
  const QString link = Link(settings, reason);
  if (link.isEmpty()) return false;
  database.setHostName(link);
  database.setDatabaseName(settings.name);
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
    case 2026:
      if (error.databaseText().contains(QLatin1String("does not support")))
        return LinkAdvice::NotEncrypted(EngineName(), settings);
      return LinkAdvice::NotVerified(EngineName(), settings, QStringLiteral("SSL_CA"));
    case PluginNotAllowed:
      return QStringLiteral(
                 "MariaDB on %1 asked for the password of user \"%2\" in a way in which it is shown or that this "
                 "program does not know; it was not sent. Identify the user at the server by ed25519 or by "
                 "mysql_native_password.")
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
      "AND FIND_IN_SET('ANSI_QUOTES', @@sql_mode) > 0 AND @@autocommit = 1, (SELECT GROUP_CONCAT(VARIABLE_VALUE ORDER "
      "BY VARIABLE_NAME DESC SEPARATOR ' ') FROM INFORMATION_SCHEMA.SESSION_STATUS WHERE VARIABLE_NAME IN "
      "('SSL_VERSION', 'SSL_CIPHER') AND VARIABLE_VALUE <> ''), CONNECTION_ID(), @@global.read_only = 0 AND "
      "NOT EXISTS (SELECT 1 FROM INFORMATION_SCHEMA.GLOBAL_STATUS WHERE VARIABLE_NAME = 'WSREP_CLUSTER_STATUS' AND "
      "VARIABLE_VALUE = 'non-Primary')");
}

QString MariaDbDialect::Carry(const QString& statement, const ConnectionSettings& settings) const {
  StatementWords::Tokens tokens = StatementWords::InCommonSql(statement, settings.ownerPrefix);
  StatementWords::UpperTableNames(tokens);
  // The tables compare letter by letter; a pattern does not. The collation stands at the pattern, where it fits columns
  // of every character set. This engine knows no pattern without an escape: one that nobody types takes its place.
  StatementWords::Patterns(tokens, QStringLiteral("LIKE"), QStringLiteral("utf8mb4_unicode_520_ci"),
                           QStringLiteral("\x1f"));
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
    case 1047:  // a node that is cut off from its cluster
    case 1053:
    case 1927:
    case 2006:
    case 2013:
    case 2026:  // an encrypted link that ended
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
