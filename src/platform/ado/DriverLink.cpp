#include "platform/ado/DriverLink.h"

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QVariant>
#include <cstring>

#ifndef Q_OS_WIN
#include <dlfcn.h>
#include <sys/socket.h>
#endif

namespace {

// The C interface's own pointer, as the driver hands it out under the name of the structure.
void* HandleOf(const QSqlDatabase& database, const char* type) {
  const QVariant handle = database.driver() ? database.driver()->handle() : QVariant();
  if (!handle.isValid() || std::strcmp(handle.typeName(), type) != 0) return nullptr;
  return *static_cast<void* const*>(handle.constData());
}

// A function of a library that is loaded already, null otherwise.
template <class Function>
Function* Loaded(const char* library, const char* name) {
#ifdef Q_OS_WIN
  return nullptr;
#else
  void* const handle = ::dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
  if (!handle) return nullptr;
  auto* const found = reinterpret_cast<Function*>(::dlsym(handle, name));
  ::dlclose(handle);  // the driver's own use of it stays
  return found;
#endif
}

}  // namespace

int DriverLink::SocketOf(const QSqlDatabase& database) {
  if (void* const connection = HandleOf(database, "pg_conn*")) {
    auto* const socket = Loaded<int(void*)>("libpq.so.5", "PQsocket");
    return socket ? socket(connection) : -1;
  }
  if (void* const connection = HandleOf(database, "st_mysql*")) {
    auto* const socket = Loaded<int(void*)>("libmariadb.so.3", "mysql_get_socket");
    return socket ? socket(connection) : -1;
  }
  return -1;
}

void DriverLink::Cut(int socket) {
#ifndef Q_OS_WIN
  if (socket >= 0) ::shutdown(socket, SHUT_RDWR);
#endif
}

void* DriverLink::EmbeddedEngineOf(const QSqlDatabase& database) {
  return HandleOf(database, "sqlite3*");
}

void DriverLink::Interrupt(void* embeddedEngine) {
  auto* const interrupt = Loaded<void(void*)>("libsqlite3.so.0", "sqlite3_interrupt");
  if (interrupt && embeddedEngine) interrupt(embeddedEngine);
}
