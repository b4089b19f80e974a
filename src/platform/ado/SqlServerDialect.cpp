#include "platform/ado/SqlServerDialect.h"

#include <QSqlDatabase>
#include <QSqlError>

#include "platform/ado/StatementOrder.h"
#include "platform/ado/StatementPatterns.h"
#include "platform/ado/StatementWords.h"

namespace {

// A value of a connection string, into which Qt's driver puts user and password as they stand.
QString Enclosed(const QString& value) {
  if (value == value.trimmed() && !value.contains(u';') && !value.startsWith(u'{')) return value;
  QString text = value;
  return u'{' + text.replace(QLatin1Char('}'), QLatin1String("}}")) + u'}';
}

}  // namespace

bool SqlServerDialect::Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const {
  if (settings.name.isEmpty()) {
    *reason = QStringLiteral("No database is named. Set Name in the database section of the settings file.");
    return false;
  }
  QString source = settings.name;  // a data source or a whole connection string
  if (!settings.host.isEmpty()) {
    const QString port = settings.port == 0 ? QString() : u',' + QString::number(settings.port);
    source = QStringLiteral("DRIVER={ODBC Driver 18 for SQL Server};SERVER=%1%2;DATABASE=%3")
                 .arg(settings.host, port, Enclosed(settings.name));
  }
  database.setDatabaseName(source);
  database.setUserName(Enclosed(settings.user));
  database.setPassword(Enclosed(settings.password));
  QString options = QStringLiteral("SQL_ATTR_LOGIN_TIMEOUT=10;SQL_ATTR_CONNECTION_TIMEOUT=300");
  if (!settings.options.isEmpty()) options += u';' + settings.options;
  database.setConnectOptions(options);
  return true;
}

QString SqlServerDialect::OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const {
  const QString server = settings.host.isEmpty() ? QStringLiteral("the data source") : settings.host;
  const QStringList codes = error.nativeErrorCode().split(u';');
  if (codes.contains(QLatin1String("18456"))) {
    return QStringLiteral(
               "SQL Server on %1 refused user \"%2\". Check User and Password in the database section of the "
               "settings file.")
        .arg(server, settings.user);
  }
  if (codes.contains(QLatin1String("4060"))) {
    return QStringLiteral(
               "SQL Server on %1 has no database \"%2\" for user \"%3\". Check Name in the database section "
               "of the settings file.")
        .arg(server, settings.name, settings.user);
  }
  return QStringLiteral(
             "The SQL Server database on %1 could not be opened as user \"%2\". Check that the ODBC driver "
             "of SQL Server is installed and the server runs, and Host, Port, Name and User in the database "
             "section of the settings file.")
      .arg(server, settings.user);
}

QStringList SqlServerDialect::SessionSetup(const ConnectionSettings&) const {
  return {QStringLiteral("SET XACT_ABORT ON"), QStringLiteral("SET NOCOUNT OFF"),
          QStringLiteral("SET LOCK_TIMEOUT 5000"), QStringLiteral("SET ANSI_NULLS ON"),
          QStringLiteral("SET ANSI_PADDING ON"), QStringLiteral("SET QUOTED_IDENTIFIER ON"),
          QStringLiteral("SET DATEFORMAT ymd"),
          // A table with an index of a part of its rows refuses every change without these.
          QStringLiteral("SET ANSI_WARNINGS ON"), QStringLiteral("SET ARITHABORT ON"),
          QStringLiteral("SET CONCAT_NULL_YIELDS_NULL ON"), QStringLiteral("SET NUMERIC_ROUNDABORT OFF"),
          QStringLiteral("SET TRANSACTION ISOLATION LEVEL READ COMMITTED")};
}

namespace {

// A declared size above 4000 has the name MAX.
void LongTexts(StatementWords::Tokens& tokens) {
  for (size_t i = 0; i < tokens.size(); ++i) {
    const size_t open = StatementWords::NextOf(tokens, i);
    const size_t size = StatementWords::NextOf(tokens, open);
    if (!StatementWords::Is(tokens[i], "NVARCHAR") || size >= tokens.size() || tokens[open].text != u"(") continue;
    if (tokens[size].text.toInt() > 4000) tokens[size] = {SqlToken::Word, QStringLiteral("MAX")};
  }
}

}  // namespace

QString SqlServerDialect::Carry(const QString& statement, const ConnectionSettings& settings) const {
  StatementWords::Tokens tokens = Tokenize(statement);
  StatementWords::NationalLiterals(tokens);
  // VARCHAR holds one code page only, and TIMESTAMP is no time at all but a row version.
  StatementWords::ColumnType(tokens, "VARCHAR", QStringLiteral("NVARCHAR"));
  LongTexts(tokens);
  StatementWords::ColumnType(tokens, "TIMESTAMP", QStringLiteral("DATETIME2(0)"));
  StatementWords::OrderTies(tokens, settings.keyOf);
  // The columns compare letter by letter; a pattern does not.
  StatementWords::Patterns(tokens, {{}, {}, QStringLiteral("Latin1_General_100_CI_AS_KS_WS_SC"), {}, {}});
  return Join(tokens);
}

// Without hyphens a date is read in the same way under every language and date format of the server.
QString SqlServerDialect::DateLiteral(const QDate& date) const {
  return date.toString(u"''yyyyMMdd''");
}

QString SqlServerDialect::DateTimeLiteral(const QDateTime& moment) const {
  return moment.toString(u"''yyyy-MM-ddThh:mm:ss''");
}

Dialect::Failure SqlServerDialect::Classify(const QSqlError& error) const {
  // The driver joins the codes of all messages; the first one that tells something counts.
  for (const QString& code : error.nativeErrorCode().split(u';', Qt::SkipEmptyParts)) {
    switch (code.toInt()) {
      case 2601:
      case 2627:
        return Failure::Duplicate;
      case 547:
        return error.databaseText().contains(QLatin1String("CHECK")) ? Failure::Constraint : Failure::Reference;
      case 515:
        return Failure::Constraint;
      case 102:
      case 105:
      case 156:
      case 207:
      case 208:
      case 241:
      case 242:
      case 245:
      case 2628:
      case 4104:
      case 8114:
      case 8115:
      case 8152:
        return Failure::Refused;
      case -2:  // the time for a statement has run out
      case 1205:
      case 1222:
        return Failure::Busy;
      case 64:
      case 121:
      case 233:
      case 10053:
      case 10054:
      case 10060:
        return Failure::Lost;
      default:
        break;
    }
  }
  // Newer drivers write the SQLSTATE into the text: class 08 is the connection, HYT00 the time of a statement.
  const auto says = [&](const char* words) { return error.databaseText().contains(QLatin1String(words)); };
  if (says("08S01") || says("Communication link failure")) return Failure::Lost;
  if (says("HYT00") || says("Query timeout expired")) return Failure::Busy;
  return Failure::Other;
}

QString SqlServerDialect::ColumnsStatement(const QString& table) const {
  return QStringLiteral(
             "SELECT COLUMN_NAME, CASE WHEN CHARACTER_MAXIMUM_LENGTH > 0 "
             "THEN CONCAT(DATA_TYPE, '(', CHARACTER_MAXIMUM_LENGTH, ')') WHEN DATA_TYPE IN ('numeric', 'decimal') "
             "THEN CONCAT(DATA_TYPE, '(', NUMERIC_PRECISION, ',', NUMERIC_SCALE, ')') ELSE DATA_TYPE END, "
             "CASE WHEN IS_NULLABLE = 'YES' THEN 1 ELSE 0 END FROM INFORMATION_SCHEMA.COLUMNS "
             "WHERE UPPER(TABLE_NAME) = '%1' ORDER BY ORDINAL_POSITION")
      .arg(Escape(table.toUpper()));
}

QString SqlServerDialect::TablesStatement() const {
  return QStringLiteral(
      "SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_TYPE = 'BASE TABLE' "
      "AND UPPER(LEFT(TABLE_NAME, 3)) = 'ID_'");
}
