#pragma once

#include <QString>
#include <memory>

#include "platform/ado/Connection.h"

// A fresh database for one case, on the engine that TABULON_TEST_ENGINE names (sqlite, postgresql, mariadb): the full
// schema, the reference rows, the languages ENG (default), FRE and GER, the user "admin" with password "secret" and all
// rights; with the rows of the sample site when asked for. Made from a template once a process; dropped at the end.
class TestDatabase {
 public:
  explicit TestDatabase(bool withSample = false);
  ~TestDatabase();
  TestDatabase(const TestDatabase&) = delete;
  TestDatabase& operator=(const TestDatabase&) = delete;

  const ConnectionSettings& Settings() const { return settings_; }
  // Section [Database] of a settings file.
  QString IniSection() const;
  // Another client of the same database.
  Connection& OtherClient();

  static QString EngineName();

 private:
  ConnectionSettings settings_;
  std::unique_ptr<Connection> other_;
};
