#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "platform/ado/AdoError.h"
#include "platform/ado/ConnectionSettings.h"

class Dialect;
struct ColumnInfo;
class QSqlQuery;

// One statement as it was composed, before the dialect touched it.
struct StatementRecord {
  QString text;
  qint64 milliseconds = 0;
  qint64 affectedRows = -1;  // -1 for a SELECT and for a failed statement
  bool failed = false;
};

// The one database connection of a program, in ADO's vocabulary on QtSql. Every failure is an AdoError. Statements are
// joined text in the words of the shared system; the engine's dialect carries them to its own. A text with a comment
// outside of literals, with an unclosed literal or with more statements than the caller names is refused unsent.
// No statement is ever repeated: the one that finds the server gone fails with ConnectionLost, the next one opens the
// connection again. A transaction in which a statement failed takes no further statement and cannot be committed.
class Connection {
 public:
  enum StateValue { Closed = 0, Opened = 1 };

  explicit Connection(ConnectionSettings settings);
  // With another dialect than its engine's own: the same driver before another server. The dialect outlives it.
  Connection(ConnectionSettings settings, const Dialect& dialect);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // 0 closed, 1 open. A connection found dead by the last statement is closed.
  int State() const;
  // The arguments stand in every call of the system and are empty; the settings are inside the object.
  void Open(const QString& connectionString = {}, const QString& userId = {}, const QString& password = {},
            int options = -1);
  void Close();
  // Opens when State is closed: the step before any statement. Statements do it themselves, except inside a transaction
  // whose connection was lost, until RollbackTrans has been called.
  void EnsureOpen();

  // One level only: a second BeginTrans inside a transaction is an AdoError.
  void BeginTrans();
  void CommitTrans();
  // Does nothing when no transaction is open.
  void RollbackTrans();
  bool InTransaction() const;

  // Runs `statements` statements joined by ";" at the most (a transaction of its own holds several when none is
  // open) and returns the rows found by the last of them.
  qint64 Execute(const QString& text, int statements = 1);

  // Columns of a table from the catalogue, in order; empty when the table does not exist. Kept until the next Open.
  const std::vector<ColumnInfo>& Columns(const QString& table);
  // All tables of the database whose names begin with "ID_", in upper case.
  QStringList Tables();

  const Dialect& dialect() const;
  const ConnectionSettings& Settings() const;
  // How the link to the server is, for a user: "encrypted (TLSv1.3 ...); the server's certificate is verified".
  QString LinkDescription() const;

  // Called after every statement, failed ones included. One observer is added, none is ever removed.
  void AddObserver(std::function<void(const StatementRecord&)> observer);

 private:
  friend class Recordset;
  struct Private;
  std::unique_ptr<Private> d_;
};

// Rolls back when it is left without Commit.
class Transaction {
 public:
  explicit Transaction(Connection& connection);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void Commit();

 private:
  Connection& connection_;
  bool open_ = true;
};
