#pragma once

class QSqlDatabase;

// What the libraries behind QtSql's drivers can do to a call under way from another thread, and QtSql cannot. They are
// asked in the process, where the driver has loaded them, so that none of them is needed otherwise.
namespace DriverLink {

// Socket of the link to a server; -1 where there is none or it is not known.
int SocketOf(const QSqlDatabase& database);
// Ends that socket's traffic: a call that waits for the server ends with a lost link.
void Cut(int socket);

// SQLite's own connection, null for others; and the end of its statement under way.
void* EmbeddedEngineOf(const QSqlDatabase& database);
void Interrupt(void* embeddedEngine);

}  // namespace DriverLink
