#pragma once

#include "platform/ado/Dialect.h"

// The embedded engine: one file, no server, no user.
class SqliteDialect : public Dialect {
 public:
  Engine engine() const override { return Engine::Sqlite; }
  int DatabaseType() const override { return 1; }
  QString EngineName() const override { return QStringLiteral("SQLite"); }
  QString DriverName() const override { return QStringLiteral("QSQLITE"); }
  QString DriverPackage() const override { return QStringLiteral("libqt6sql6-sqlite"); }
  bool Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const override;
  QString OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const override;
  QStringList SessionSetup(const ConnectionSettings& settings) const override;
  QString SessionCheck() const override;
  QString Opened(QSqlDatabase& database) const override;
  QString BeginStatement() const override { return QStringLiteral("BEGIN IMMEDIATE"); }
  // Qt's driver counts a statement's columns once; when another client has added a column since the session last
  // looked, the engine prepares the statement anew with more of them while it runs, and the driver writes past its row.
  QString SchemaRefresh() const override { return QStringLiteral("SELECT 1 FROM sqlite_master LIMIT 1"); }
  bool ReadsForwardOnly() const override { return true; }
  QString Carry(const QString& statement, const ConnectionSettings& settings) const override;

 protected:
  Failure Classify(const QSqlError& error) const override;
  QString ColumnsStatement(const QString& table) const override;
  QString TablesStatement() const override;
};
