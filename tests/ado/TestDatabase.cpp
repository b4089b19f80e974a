#include "ado/TestDatabase.h"

#include <QCoreApplication>
#include <QFile>

namespace {

std::unique_ptr<Connection> administrator;

// QtSql finds its drivers through an application object.
class Application : public testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QCoreApplication>(count_, arguments_); }
  void TearDown() override {
    administrator.reset();
    application_.reset();
  }

 private:
  int count_ = 1;
  char name_[9] = "test_ado";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QCoreApplication> application_;
};

const auto* const application = testing::AddGlobalTestEnvironment(new Application);

ConnectionSettings ServerSettings(const QString& name) {
  ConnectionSettings settings;
  settings.engine = TestEngine();
  settings.host = qEnvironmentVariable("TABULON_TEST_HOST");
  settings.user = qEnvironmentVariable("TABULON_TEST_USER");
  settings.name = name;
  return settings;
}

Connection& Administrator() {
  if (!administrator) {
    const bool postgreSql = TestEngine() == Engine::PostgreSql;
    administrator =
        std::make_unique<Connection>(ServerSettings(postgreSql ? QStringLiteral("postgres") : QStringLiteral("mysql")));
  }
  administrator->EnsureOpen();
  return *administrator;
}

}  // namespace

Engine TestEngine() {
  const QString engine = qEnvironmentVariable("TABULON_TEST_ENGINE", QStringLiteral("sqlite"));
  if (engine == u"postgresql") return Engine::PostgreSql;
  if (engine == u"mariadb") return Engine::MariaDb;
  if (engine == u"sqlite") return Engine::Sqlite;
  throw std::runtime_error("TABULON_TEST_ENGINE names no engine of the tests");
}

TestDatabase::TestDatabase() {
  static int count = 0;
  const QString name = QStringLiteral("case%1").arg(++count);
  switch (TestEngine()) {
    case Engine::Sqlite: {
      folder_ = std::make_unique<QTemporaryDir>();
      settings_.name = folder_->filePath(QStringLiteral("case.db"));
      QFile file(settings_.name);
      if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no file for the test's database");
      return;
    }
    case Engine::PostgreSql:
      Administrator().Execute(QStringLiteral("CREATE DATABASE ") + name);
      break;
    case Engine::MariaDb:
      Administrator().Execute(QStringLiteral("CREATE DATABASE %1 CHARACTER SET utf8mb4 COLLATE utf8mb4_bin").arg(name));
      break;
    case Engine::SqlServer:
      break;
  }
  settings_ = ServerSettings(name);
}

TestDatabase::~TestDatabase() {
  if (settings_.engine == Engine::PostgreSql) {
    Administrator().Execute(QStringLiteral("DROP DATABASE %1 WITH (FORCE)").arg(settings_.name));
  } else if (settings_.engine == Engine::MariaDb) {
    Administrator().Execute(QStringLiteral("DROP DATABASE ") + settings_.name);
  }
}

QString AdoTest::Value(Connection& on, const QString& sql) {
  Recordset rows;
  rows.Open(on, sql);
  if (rows.EOF_()) return QStringLiteral("(none)");
  return rows.Fields(0).IsNull() ? QStringLiteral("(null)") : rows.Fields(0).Value();
}

int AdoTest::Count(Connection& on, const QString& table) {
  return Value(on, QStringLiteral("SELECT COUNT(*) FROM ") + table).toInt();
}

QString AdoTest::Column(const QString& sql) {
  QStringList values;
  Recordset rows;
  for (rows.Open(connection, sql); !rows.EOF_(); rows.MoveNext()) values += rows.Fields(0).Value();
  return values.join(u',');
}

void AdoTest::KillSession() {
  Connection other(database.Settings());
  other.Open();
  if (TestEngine() == Engine::PostgreSql) {
    Value(other, QStringLiteral("SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity WHERE datname = "
                                "current_database() AND pid <> pg_backend_pid()"));
  } else {
    const QString id = Value(other, QStringLiteral("SELECT ID FROM INFORMATION_SCHEMA.PROCESSLIST WHERE "
                                                   "DB = DATABASE() AND ID <> CONNECTION_ID()"));
    other.Execute(QStringLiteral("KILL ") + id);
  }
}
