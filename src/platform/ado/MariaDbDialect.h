#pragma once

#include "platform/ado/Dialect.h"

class MariaDbDialect : public Dialect {
 public:
  Engine engine() const override { return Engine::MariaDb; }
  int DatabaseType() const override { return 3; }
  QString EngineName() const override { return QStringLiteral("MariaDB"); }
  QString DriverName() const override { return QStringLiteral("QMYSQL"); }
  QString DriverPackage() const override { return QStringLiteral("libqt6sql6-mysql"); }
  bool Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const override;
  QString OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const override;
  QStringList SessionSetup(const ConnectionSettings& settings) const override;
  QString SessionCheck() const override;
  QString StopStatement(const QString& session) const override { return QStringLiteral("KILL QUERY %1").arg(session); }
  QString BeginStatement() const override { return QStringLiteral("START TRANSACTION"); }
  bool ReadsForwardOnly() const override { return false; }
  QString Carry(const QString& statement, const ConnectionSettings& settings) const override;

 protected:
  Failure Classify(const QSqlError& error) const override;
  QString ColumnsStatement(const QString& table) const override;
  QString TablesStatement() const override;
};
