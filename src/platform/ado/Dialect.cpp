#include "platform/ado/Dialect.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include "platform/ado/DeclaredType.h"
#include "platform/ado/MariaDbDialect.h"
#include "platform/ado/PostgreSqlDialect.h"
#include "platform/ado/SqlServerDialect.h"
#include "platform/ado/SqliteDialect.h"

QString Dialect::StopStatement(const QString&) const {
  return {};
}

QString Dialect::DateLiteral(const QDate& date) const {
  return date.toString(u"''yyyy-MM-dd''");
}

QString Dialect::DateTimeLiteral(const QDateTime& moment) const {
  return moment.toString(u"''yyyy-MM-dd hh:mm:ss''");
}

QString Dialect::Escape(const QString& text) const {
  QString escaped = text;
  return escaped.replace(QLatin1Char('\''), QLatin1String("''"));
}

QString Dialect::EngineText(const QSqlError& error) const {
  const QString text = error.databaseText().trimmed();
  return text.isEmpty() ? error.driverText().trimmed() : text;
}

bool Dialect::IsConnectionLost(const QSqlError& error) const {
  return Classify(error) == Failure::Lost;
}

AdoError Dialect::Translate(const QSqlError& error, const QString& source) const {
  const QString text = EngineText(error);
  switch (Classify(error)) {
    case Failure::Duplicate:
      return {AdoNumber::ConstraintBroken, QStringLiteral("Cannot store a duplicate key. ") + text, source};
    case Failure::Reference:
      return {AdoNumber::ConstraintBroken,
              QStringLiteral("The statement conflicted with a REFERENCE constraint. ") + text, source};
    case Failure::Constraint:
      return {AdoNumber::ConstraintBroken, text, source};
    case Failure::Refused:
      return {AdoNumber::TextRefused, text, source};
    case Failure::Busy:
      return {AdoNumber::Busy,
              QStringLiteral("The database is locked by another user or program (busy). Please try again. ") + text,
              source};
    case Failure::Lost:
      return {AdoNumber::Unspecified, QStringLiteral("The connection to the database was lost. ") + text, source, true};
    case Failure::Other:
      break;
  }
  return {AdoNumber::Unspecified, text, source};
}

std::vector<ColumnInfo> Dialect::ReadColumns(QSqlDatabase& database, const QString& table) const {
  QSqlQuery query(database);
  if (!query.exec(ColumnsStatement(table))) throw Translate(query.lastError(), QStringLiteral("Connection.Columns"));
  std::vector<ColumnInfo> columns;
  while (query.next()) {
    ColumnInfo column = DeclaredType(query.value(1).toString());
    column.name = query.value(0).toString().toUpper();
    column.nullable = query.value(2).toInt() != 0;
    columns.push_back(column);
  }
  return columns;
}

QStringList Dialect::ReadTables(QSqlDatabase& database) const {
  QSqlQuery query(database);
  if (!query.exec(TablesStatement())) throw Translate(query.lastError(), QStringLiteral("Connection.Tables"));
  QStringList tables;
  while (query.next()) tables += query.value(0).toString().toUpper();
  tables.sort();
  return tables;
}

const Dialect& Dialect::For(Engine engine) {
  static const SqliteDialect sqlite;
  static const PostgreSqlDialect postgreSql;
  static const MariaDbDialect mariaDb;
  static const SqlServerDialect sqlServer;
  switch (engine) {
    case Engine::Sqlite:
      return sqlite;
    case Engine::PostgreSql:
      return postgreSql;
    case Engine::MariaDb:
      return mariaDb;
    case Engine::SqlServer:
      return sqlServer;
  }
  return sqlite;
}
