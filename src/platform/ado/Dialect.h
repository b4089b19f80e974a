#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "platform/ado/AdoError.h"
#include "platform/ado/ConnectionSettings.h"
#include "platform/ado/Recordset.h"

class QSqlDatabase;
class QSqlError;

// What one engine needs otherwise than the shared words of the system. One class for each engine, no state.
class Dialect {
 public:
  virtual ~Dialect() = default;

  virtual Engine engine() const = 0;
  // 1 SQLite, 2 PostgreSQL, 3 MariaDB, 5 SQL Server.
  virtual int DatabaseType() const = 0;
  // Name of the engine as people write it.
  virtual QString EngineName() const = 0;
  // Name of the Qt driver and of the Debian package that holds it.
  virtual QString DriverName() const = 0;
  virtual QString DriverPackage() const = 0;

  // Puts the settings on the database object. False with a reason for the user when they cannot be used (an absent
  // file of SQLite is never created).
  virtual bool Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const = 0;
  // What a user can do about a database that did not open; the engine's own text is told behind it.
  virtual QString OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const = 0;
  // Statements that every session begins with.
  virtual QStringList SessionSetup(const ConnectionSettings& settings) const = 0;
  // A SELECT that verifies the set-up: its one value must equal "1". Empty where there is nothing to verify.
  virtual QString SessionCheck() const { return {}; }
  virtual QString BeginStatement() const = 0;
  // Called when the driver has opened, before the statements of the set-up. A reason for the user when the session
  // cannot be used.
  virtual QString Opened(QSqlDatabase&) const { return {}; }
  // Run before each statement where the session itself keeps an image of the tables that another client may have made
  // stale. Empty where the server looks after that.
  virtual QString SchemaRefresh() const { return {}; }
  // True where the driver would keep a second copy of all rows otherwise.
  virtual bool ReadsForwardOnly() const = 0;

  // One statement in the words of this engine. What stands inside a literal is never touched; carrying a carried text
  // again changes nothing.
  // Rows come in the same order on every engine, and a pattern of LIKE finds the same ones.
  virtual QString Carry(const QString& statement, const ConnectionSettings& settings) const = 0;

  virtual QString DateLiteral(const QDate& date) const;
  virtual QString DateTimeLiteral(const QDateTime& moment) const;
  // Doubles each single quote; a backslash is an ordinary character on every engine.
  QString Escape(const QString& text) const;

  AdoError Translate(const QSqlError& error, const QString& source) const;
  // True when the error says that the server is gone.
  bool IsConnectionLost(const QSqlError& error) const;
  // The engine's own words, without the driver's.
  virtual QString EngineText(const QSqlError& error) const;

  std::vector<ColumnInfo> ReadColumns(QSqlDatabase& database, const QString& table) const;
  QStringList ReadTables(QSqlDatabase& database) const;

  static const Dialect& For(Engine engine);

 protected:
  enum class Failure { Duplicate, Reference, Constraint, Refused, Busy, Lost, Other };

  // By the driver's native code: the error types of QtSql are wrong on every driver.
  virtual Failure Classify(const QSqlError& error) const = 0;
  // Rows of name, declared type ("varchar(3)", "numeric(6,2)") and 1 or 0 for nullable, in the table's order.
  virtual QString ColumnsStatement(const QString& table) const = 0;
  // Rows of one name, of tables beginning with "ID_" in any letters.
  virtual QString TablesStatement() const = 0;
};
