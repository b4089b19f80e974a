#pragma once

#include <QString>
#include <memory>

#include "platform/ado/Connection.h"

class QProcessEnvironment;

// A database of its own for a case: the full schema, the reference rows, the languages ENG, FRE and GER, and the user
// "admin" with the password "secret" and all rights; with `sample`, the rows of the sample site as well. It lies on the
// engine that TABULON_TEST_ENGINE names (sqlite, postgresql, mariadb; SQLite when it is not set), reached as
// tests/support/with-engine tells, and is gone with the object. A process that a case starts beside itself is given the
// case's own by TABULON_TEST_DATABASE, uses it as it is and leaves it.
class TestDatabase {
 public:
  explicit TestDatabase(bool sample = false);
  ~TestDatabase();
  TestDatabase(const TestDatabase&) = delete;
  TestDatabase& operator=(const TestDatabase&) = delete;

  const ConnectionSettings& Settings() const { return settings_; }
  // The section [Database] of a settings file.
  QString IniSection() const;
  // A second connection, as another program would have.
  Connection& OtherClient();

  static Engine TestEngine();
  // Names this database to a process that is started.
  void LendTo(QProcessEnvironment& environment) const;
  // Settings of an empty database that does not exist yet, on the engine of the test.
  static ConnectionSettings FreshSettings(const QString& folder);
  // The tables and rows of a case in a database that is there and empty.
  static void Fill(const ConnectionSettings& settings, bool sample);
  // Removes a database that was made from such settings.
  static void Remove(const ConnectionSettings& settings);
  static QString IniSection(const ConnectionSettings& settings);

 private:
  ConnectionSettings settings_;
  bool lent_ = false;
  std::unique_ptr<Connection> other_;
};
