#pragma once

#include <QString>
#include <QStringList>
#include <functional>

enum class Engine { Sqlite, PostgreSql, MariaDb, SqlServer };

// What a connection is opened with; it lies inside the Connection, so that Open takes empty strings.
struct ConnectionSettings {
  Engine engine = Engine::Sqlite;
  QString name;  // file of SQLite, database of a server, connection string or DSN of ODBC
  QString host;  // a leading "/" is the folder of a unix socket
  int port = 0;  // 0: the engine's own default
  QString user;
  QString password;
  QString options;      // further options in the driver's own words, joined by ";"
  QString ownerPrefix;  // as it stands before table names in SQL, closing point included; may be empty
  // The columns of a table's key, upper case; none where it is not known. Rows that tie stand in their order.
  std::function<QStringList(const QString& table)> keyOf = {};
};
