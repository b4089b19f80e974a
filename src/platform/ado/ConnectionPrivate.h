#pragma once

#include <QElapsedTimer>
#include <map>

#include "platform/ado/Connection.h"
#include "platform/ado/DriverThread.h"
#include "platform/ado/Session.h"

// The state behind a Connection, which recordsets share.
struct Connection::Private {
  enum class Unit { None, Open, Broken, Lost };  // a transaction: none, fine, with a failed statement, its server gone

  Private(ConnectionSettings settings, const Dialect& dialect) : session(std::move(settings), dialect) {}
  ~Private() {
    driver.Call([this] { session.End(); });
  }
  Private(const Private&) = delete;
  Private& operator=(const Private&) = delete;

  Session session;  // used in calls of the driver only, but for questions that it answers by itself
  DriverThread driver{[this] { session.Stop(); }, [this] { session.CutLink(); }};
  Unit unit = Unit::None;
  QString lastOfUnit;  // the statement that the transaction ran last
  std::vector<std::function<void(const StatementRecord&)>> observers;
  std::map<QString, std::vector<ColumnInfo>> columns;

  // Opens a closed session. A transaction that ended with its server is forgotten.
  void EnsureOpen();
  // AdoError when no statement may run now.
  void CheckReady(const QString& source);
  // The unit after a statement has failed.
  void NoteFailure();
  // Refuses what may not be sent, runs the body, tells the observers, keeps the unit's state.
  qint64 Observed(const QString& text, int allowed, const QString& source, const std::function<qint64()>& body);
  // Without checks and observers. Rows found.
  qint64 RunOne(const QString& statement, const QString& source);
};
