#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>

#include "platform/ado/ConnectionSettings.h"
#include "platform/ado/Dialect.h"

// The session with the engine behind a Connection: opening, one statement at a time, and what an error means for the
// session itself. A session that an error shows dead is closed at once.
class Session {
 public:
  Session(ConnectionSettings settings, const Dialect& dialect);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  const ConnectionSettings& Settings() const { return settings_; }
  const Dialect& dialect() const { return dialect_; }
  QSqlDatabase& Database() { return database_; }
  bool IsOpen() const { return open_; }

  // AdoError with what a user can do about it; it never holds the password.
  void Open();
  // The engine rolls back what is open.
  void Close();

  // How the link to the server is, for a user.
  QString LinkDescription() const;

  // One statement of the shared words. The query stands before its first row.
  QSqlQuery Run(const QString& statement, const QString& source);
  // Names and types of its columns, without a word to the server.
  static QSqlRecord Shape(QSqlQuery& query);
  // To be called after the last row: a reading that broke off is an AdoError.
  void CheckEnd(const QSqlQuery& query, const QString& source);
  // Closes when the error says that the server is gone.
  AdoError Failed(const QSqlError& error, const QString& source);

 private:
  void CheckDriver() const;
  void SetUp();
  // Closes, and tells why.
  [[noreturn]] void GiveUp(const QString& reason, quint32 number = AdoNumber::Unspecified);
  QString WithoutPassword(QString text) const;

  const ConnectionSettings settings_;
  const Dialect& dialect_;
  const QString handle_;  // QtSql's name of the connection
  QSqlDatabase database_;
  bool open_ = false;
  QString cipher_;  // of the open session; empty when it is not encrypted or that is not known
};
