#pragma once

#include <QString>

#include "platform/ado/Encryption.h"

enum class Engine { Sqlite, PostgreSql, MariaDb, SqlServer };

// What a connection is opened with; it lies inside the Connection, so that Open takes empty strings.
struct ConnectionSettings {
  Engine engine = Engine::Sqlite;
  QString name;  // file of SQLite, database of a server, connection string or DSN of ODBC
  QString host;  // a leading "/" is the folder of a unix socket; several servers of one cluster joined by ","
  int port = 0;  // 0: the engine's own default
  QString user;
  QString password;
  Encryption encryption = Encryption::Off;
  QString options;      // further options in the driver's own words, joined by ";"
  QString ownerPrefix;  // as it stands before table names in SQL, closing point included; may be empty
};
