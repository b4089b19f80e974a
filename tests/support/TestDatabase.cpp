#include "support/TestDatabase.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <map>
#include <stdexcept>

#include "core/PasswordCipher.h"
#include "platform/ado/Recordset.h"
#include "tools/DatabaseBuilder.h"
#include "tools/Languages.h"
#include "tools/SchemaModel.h"
#include "tools/ToolSql.h"
#include "tools/Users.h"

namespace {

QString NextName() {
  static int count = 0;
  return QStringLiteral("tabulon_%1_%2").arg(getpid()).arg(++count);
}

ConnectionSettings ServerSettings(const QString& name) {
  ConnectionSettings settings;
  settings.engine = TestDatabase::TestEngine();
  settings.host = qEnvironmentVariable("TABULON_TEST_HOST");
  settings.user = qEnvironmentVariable("TABULON_TEST_USER");
  settings.password = qEnvironmentVariable("TABULON_TEST_PASSWORD");
  settings.name = name;
  return settings;
}

Connection& Administrator() {
  static auto* const connection = new Connection(
      ServerSettings(TestDatabase::TestEngine() == Engine::PostgreSql ? "postgres" : "information_schema"));
  connection->EnsureOpen();
  return *connection;
}

void Fill(const ConnectionSettings& settings, bool sample) {
  Connection connection(settings);
  connection.Open();
  DatabaseBuilder::Create(connection, sample ? DatabaseBuilder::Rows::Sample : DatabaseBuilder::Rows::Reference);
  if (!sample) {
    Languages::Add(connection, "FRE", "French", false);
    Languages::Add(connection, "GER", "German", false);
  }
  if (!Users::Exists(connection, "admin")) Users::Add(connection, "admin", {});
  // Few rounds: a test logs on hundreds of times.
  Users::SetPassword(connection, "admin", PasswordRecord::Make("secret", 1000));
  for (const QString& function : Users::KnownFunctions())
    Users::SetRight(connection, "admin", {function, true, true, true});
}

// Databases that are made once and copied for each case.
class Templates {
 public:
  ~Templates() {
    // The servers of the tests are thrown away as a whole; SQLite's files go with their folder.
  }

  const ConnectionSettings& Of(bool sample) {
    ConnectionSettings& settings = made_[sample];
    if (settings.name.isEmpty()) {
      settings = TestDatabase::FreshSettings(folder_.path());
      DatabaseBuilder::MakeMissing(settings);
      Fill(settings, sample);
    }
    return settings;
  }

 private:
  QTemporaryDir folder_;
  std::map<bool, ConnectionSettings> made_;
};

Templates& AllTemplates() {
  static Templates templates;
  return templates;
}

ConnectionSettings CopyFile(const ConnectionSettings& original) {
  ConnectionSettings copy = original;
  copy.name = QFileInfo(original.name).dir().filePath(NextName() + ".db");
  if (!QFile::copy(original.name, copy.name)) throw std::runtime_error("The test's database could not be copied");
  return copy;
}

ConnectionSettings CopyPostgreSql(const ConnectionSettings& original) {
  const ConnectionSettings copy = ServerSettings(NextName());
  Administrator().Execute("CREATE DATABASE " + copy.name + " TEMPLATE " + original.name + " STRATEGY FILE_COPY");
  return copy;
}

// MariaDB takes a second for all tables. So one database serves all cases of a process: before each case its rows are
// made equal to the template's. Only a case that changed the tables themselves leaves one to be made anew.
class MariaDbCopies {
 public:
  ConnectionSettings Take(const ConnectionSettings& original) {
    if (free_.name.isEmpty() || Shape(free_.name) != Shape(original.name)) {
      if (!free_.name.isEmpty()) TestDatabase::Remove(free_);
      free_ = ServerSettings(NextName());
      MakeTables(original);
    } else {
      CopyRows(original, true);
    }
    return std::exchange(free_, {});
  }

  void Return(const ConnectionSettings& settings) { free_ = settings; }

 private:
  // Changes with every table and column.
  static QString Shape(const QString& database) {
    return ToolSql::Values(Administrator(),
                           "SELECT COUNT(*) || ' ' || SUM(CRC32(TABLE_NAME || '.' || COLUMN_NAME || COLUMN_TYPE)) FROM "
                           "INFORMATION_SCHEMA.COLUMNS WHERE TABLE_SCHEMA = '" +
                               database + "'")
        .value(0);
  }

  void MakeTables(const ConnectionSettings& original) {
    DatabaseBuilder::MakeMissing(free_);
    Connection connection(free_);
    connection.Open();
    connection.Execute("SET SESSION foreign_key_checks = 0");
    Connection source(original);
    source.Open();
    for (const QString& table : source.Tables())
      connection.Execute(ToolSql::Rows(source, "SHOW CREATE TABLE " + table).value(0).value(1));
    CopyRows(original, false);
  }

  void CopyRows(const ConnectionSettings& original, bool emptyFirst) {
    Connection connection(free_);
    connection.Open();
    connection.Execute("SET SESSION foreign_key_checks = 0");
    Transaction transaction(connection);
    for (const SchemaTable& table : SchemaModel::Get().tables) {
      if (emptyFirst) connection.Execute("DELETE FROM " + table.name);
      connection.Execute("INSERT INTO " + table.name + " SELECT * FROM " + original.name + '.' + table.name);
    }
    transaction.Commit();
  }

  ConnectionSettings free_;
};

MariaDbCopies& AllCopies() {
  static MariaDbCopies copies;
  return copies;
}

}  // namespace

TestDatabase::TestDatabase(bool sample) {
  const ConnectionSettings& original = AllTemplates().Of(sample);
  switch (TestEngine()) {
    case Engine::Sqlite:
      settings_ = CopyFile(original);
      return;
    case Engine::PostgreSql:
      settings_ = CopyPostgreSql(original);
      return;
    case Engine::MariaDb:
      settings_ = AllCopies().Take(original);
      return;
    case Engine::SqlServer:
      break;
  }
}

TestDatabase::~TestDatabase() {
  other_.reset();
  if (settings_.engine == Engine::MariaDb) {
    AllCopies().Return(settings_);
  } else {
    Remove(settings_);
  }
}

QString TestDatabase::IniSection() const {
  return IniSection(settings_);
}

Connection& TestDatabase::OtherClient() {
  if (!other_) other_ = std::make_unique<Connection>(settings_);
  other_->EnsureOpen();
  return *other_;
}

Engine TestDatabase::TestEngine() {
  const QString engine = qEnvironmentVariable("TABULON_TEST_ENGINE", "sqlite");
  if (engine == u"sqlite" || engine.isEmpty()) return Engine::Sqlite;
  if (engine == u"postgresql") return Engine::PostgreSql;
  if (engine == u"mariadb") return Engine::MariaDb;
  throw std::runtime_error("TABULON_TEST_ENGINE names no engine of the tests");
}

ConnectionSettings TestDatabase::FreshSettings(const QString& folder) {
  if (TestEngine() != Engine::Sqlite) return ServerSettings(NextName());
  ConnectionSettings settings;
  settings.name = folder + '/' + NextName() + ".db";
  return settings;
}

void TestDatabase::Remove(const ConnectionSettings& settings) {
  if (settings.engine == Engine::Sqlite) {
    QFile::remove(settings.name);
  } else if (settings.engine == Engine::PostgreSql) {
    Administrator().Execute("DROP DATABASE IF EXISTS " + settings.name + " WITH (FORCE)");
  } else {
    Administrator().Execute("DROP DATABASE IF EXISTS " + settings.name);
  }
}

QString TestDatabase::IniSection(const ConnectionSettings& settings) {
  static const std::map<Engine, QString> names{{Engine::Sqlite, "SQLITE"},
                                               {Engine::PostgreSql, "POSTGRESQL"},
                                               {Engine::MariaDb, "MARIADB"},
                                               {Engine::SqlServer, "SQLSERVER"}};
  QString section = "[Database]\nEngine=" + names.at(settings.engine) + "\nName=" + settings.name + '\n';
  if (!settings.host.isEmpty()) section += "Host=" + settings.host + '\n';
  if (!settings.user.isEmpty()) section += "User=" + settings.user + '\n';
  if (!settings.password.isEmpty()) section += "Password=" + settings.password + '\n';
  return section;
}
