#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/ado/ConnectionSettings.h"
#include "platform/ado/Dialect.h"

// The session with the engine behind a Connection: opening, one statement at a time, and what an error means for the
// session itself. A session that an error shows dead is closed at once. One thread uses it; only Stop and CutLink come
// from another one.
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

  // The server of the settings; of several one that takes changes, beginning with the one of before. AdoError with what
  // a user can do about it; it never holds the password.
  void Open();
  // The engine rolls back what is open.
  void Close();
  // Closes, and gives the driver's object back; in the thread that opened.
  void End();

  // From another thread, while a statement runs: asks the engine to stop it, which fails it.
  void Stop();
  // The same: ends the link under it, which fails it as lost.
  void CutLink();

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
  void OpenNode(const ConnectionSettings& node);
  void SetUp(const ConnectionSettings& node);
  // Closes, and tells why.
  [[noreturn]] void GiveUp(const QString& reason, quint32 number = AdoNumber::Unspecified);
  QString WithoutPassword(QString text) const;
  void KnowLink(bool open);
  static void AskToStop(const ConnectionSettings& settings, const Dialect& dialect, const QString& statement,
                        const std::function<bool()>& stillRuns);

  const ConnectionSettings settings_;
  const Dialect& dialect_;
  const QString handle_;  // QtSql's name of the connection
  QSqlDatabase database_;
  bool open_ = false;
  bool takesChanges_ = true;
  QString cipher_;  // of the open session; empty when it is not encrypted or that is not known

  std::mutex link_;  // guards the four below, so that what is closed is not cut
  QString name_;     // the server's of the open session
  size_t node_ = 0;  // of those that the settings name: the one of the open session, or of the last
  int socket_ = -1;
  void* embedded_ = nullptr;
  std::atomic<int> statement_{0};      // number of the statement under way
  std::atomic<int> stopped_{-1};       // the one that was asked to stop
  std::vector<std::thread> stoppers_;  // each asks in a session of its own
};
