#include "ado/AdoTest.h"

#include <QCoreApplication>
#include <memory>

namespace {

// QtSql finds its drivers through an application object.
class Application : public testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QCoreApplication>(count_, arguments_); }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[9] = "test_ado";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QCoreApplication> application_;
};

const auto* const application = testing::AddGlobalTestEnvironment(new Application);

}  // namespace

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
  if (TestDatabase::TestEngine() == Engine::PostgreSql) {
    Value(other, QStringLiteral("SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity WHERE datname = "
                                "current_database() AND pid <> pg_backend_pid()"));
  } else {
    const QString id = Value(other, QStringLiteral("SELECT ID FROM INFORMATION_SCHEMA.PROCESSLIST WHERE "
                                                   "DB = DATABASE() AND ID <> CONNECTION_ID()"));
    other.Execute(QStringLiteral("KILL ") + id);
  }
}
