#pragma once

#include "platform/ado/Dialect.h"

// SQL Server through ODBC. The statements of the system are written in its words, so that they go to it as they stand:
// only the types of columns that are created need other names, texts beyond ASCII the sign of national ones, patterns a
// collation and ties an order.
class SqlServerDialect : public Dialect {
 public:
  Engine engine() const override { return Engine::SqlServer; }
  int DatabaseType() const override { return 5; }
  QString EngineName() const override { return QStringLiteral("SQL Server"); }
  QString DriverName() const override { return QStringLiteral("QODBC"); }
  QString DriverPackage() const override { return QStringLiteral("libqt6sql6-odbc"); }
  bool Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const override;
  QString OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const override;
  QStringList SessionSetup(const ConnectionSettings& settings) const override;
  QString BeginStatement() const override { return QStringLiteral("BEGIN TRANSACTION"); }
  bool ReadsForwardOnly() const override { return true; }
  QString Carry(const QString& statement, const ConnectionSettings& settings) const override;
  QString DateLiteral(const QDate& date) const override;
  QString DateTimeLiteral(const QDateTime& moment) const override;

 protected:
  Failure Classify(const QSqlError& error) const override;
  QString ColumnsStatement(const QString& table) const override;
  QString TablesStatement() const override;
};
