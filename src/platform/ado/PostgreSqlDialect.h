#pragma once

#include "platform/ado/Dialect.h"

class PostgreSqlDialect : public Dialect {
 public:
  Engine engine() const override { return Engine::PostgreSql; }
  int DatabaseType() const override { return 2; }
  QString EngineName() const override { return QStringLiteral("PostgreSQL"); }
  QString DriverName() const override { return QStringLiteral("QPSQL"); }
  QString DriverPackage() const override { return QStringLiteral("libqt6sql6-psql"); }
  bool Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const override;
  QString OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const override;
  QStringList SessionSetup(const ConnectionSettings& settings) const override;
  QString SessionCheck() const override;
  QString StopStatement(const QString& session) const override {
    return QStringLiteral("SELECT pg_cancel_backend(%1)").arg(session);
  }
  QString BeginStatement() const override { return QStringLiteral("BEGIN"); }
  bool ReadsForwardOnly() const override { return false; }
  QString Carry(const QString& statement, const ConnectionSettings& settings) const override;
  QString EngineText(const QSqlError& error) const override;

 protected:
  Failure Classify(const QSqlError& error) const override;
  QString ColumnsStatement(const QString& table) const override;
  QString TablesStatement() const override;
};
