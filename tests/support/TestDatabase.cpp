#include "support/TestDatabase.h"

#include <unistd.h>

#include <QFile>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <map>
#include <stdexcept>

#include "core/PasswordCipher.h"
#include "platform/ado/Recordset.h"
#include "schema/Languages.h"
#include "schema/SchemaModel.h"
#include "schema/SchemaSql.h"
#include "tools/DatabaseBuilder.h"
#include "tools/Users.h"

namespace {

constexpr const char* LentDatabase = "TABULON_TEST_DATABASE";

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

// SQLite: a file that is made once a process and copied for each case.
class FileCopies {
 public:
  ConnectionSettings Take(bool sample) {
    QString& original = originals_[sample];
    if (original.isEmpty()) {
      const ConnectionSettings settings = TestDatabase::FreshSettings(folder_.path());
      DatabaseBuilder::MakeMissing(settings);
      TestDatabase::Fill(settings, sample);
      original = settings.name;
    }
    const ConnectionSettings copy = TestDatabase::FreshSettings(folder_.path());
    if (!QFile::copy(original, copy.name)) throw std::runtime_error("The test's database could not be copied");
    return copy;
  }

 private:
  QTemporaryDir folder_;
  std::map<bool, QString> originals_;
};

// A server takes a quarter of a second (PostgreSQL) or many (MariaDB) to make a database. So one serves all cases of a
// process: it keeps a second set of its tables, and before each case its rows are made equal to those. A case that
// changed the tables themselves leaves one that is thrown away.
class ServerDatabases {
 public:
  ConnectionSettings Take(bool sample) {
    for (auto free = free_.begin(); free != free_.end(); ++free) {
      if (free->sample != sample) continue;
      const Kept kept = *free;
      free_.erase(free);
      if (Restore(kept)) return Used(kept);
      TestDatabase::Remove(kept.settings);
      break;
    }
    Kept made{sample, ServerSettings(NextName()), {}};
    DatabaseBuilder::MakeMissing(made.settings);
    TestDatabase::Fill(made.settings, sample);
    Connection connection(made.settings);
    connection.Open();
    Keep(connection);
    made.shape = Shape(connection);
    return Used(made);
  }

  void Return(const ConnectionSettings& settings) {
    free_.push_back(used_.at(settings.name));
    used_.erase(settings.name);
  }

 private:
  struct Kept {
    bool sample;
    ConnectionSettings settings;
    QString shape;  // changes with every table, column, key and trigger
  };

  const ConnectionSettings& Used(const Kept& kept) { return (used_[kept.settings.name] = kept).settings; }

  static bool IsPostgreSql() { return TestDatabase::TestEngine() == Engine::PostgreSql; }

  static QString KeptTable(const Connection& connection, const QString& table) {
    return (IsPostgreSql() ? QString("kept") : connection.Settings().name + "_kept") + '.' + table;
  }

  static void Keep(Connection& connection) {
    connection.Execute(
        (IsPostgreSql() ? "CREATE SCHEMA kept" : "CREATE DATABASE " + connection.Settings().name + "_kept"));
    QString body;
    for (const SchemaTable& table : SchemaModel::Get().tables) {
      const QString kept = KeptTable(connection, table.name);
      connection.Execute("CREATE TABLE " + kept + (IsPostgreSql() ? "" : " ENGINE=MEMORY") + " AS SELECT * FROM " +
                         table.name);
      body +=
          QStringLiteral("IF EXISTS (SELECT 1 FROM %1) THEN DELETE FROM %1; END IF; INSERT INTO %1 SELECT * FROM %2; ")
              .arg(table.name, kept);
    }
    if (IsPostgreSql())
      connection.Execute(
          "CREATE FUNCTION kept.restore() RETURNS integer LANGUAGE plpgsql SET session_replication_role = "
          "replica AS 'BEGIN " +
          body + "RETURN 1; END'");
  }

  // False when the tables are no longer those that were made.
  static bool Restore(const Kept& kept) {
    EndSessions(kept.settings.name);
    try {
      Connection connection(kept.settings);
      connection.Open();
      if (Shape(connection) != kept.shape) return false;
      if (IsPostgreSql()) return SchemaSql::Values(connection, "SELECT kept.restore()").value(0) == "1";
      RestoreOneByOne(connection);
      return true;
    } catch (const AdoError&) {
      return false;
    }
  }

  static void RestoreOneByOne(Connection& connection) {
    connection.Execute("SET SESSION foreign_key_checks = 0");
    Transaction transaction(connection);
    for (const QString& table : Filled(connection, [](const QString& name) { return name; }))
      connection.Execute("DELETE FROM " + table);
    for (const QString& table : Filled(connection, [&](const QString& name) { return KeptTable(connection, name); }))
      connection.Execute("INSERT INTO " + table + " SELECT * FROM " + KeptTable(connection, table));
    transaction.Commit();
  }

  // The tables of the schema that hold rows, under the name that `place` gives them.
  template <class Place>
  static QStringList Filled(Connection& connection, Place place) {
    QStringList selects;
    for (const SchemaTable& table : SchemaModel::Get().tables)
      selects += "SELECT '" + table.name + "' FROM DUAL WHERE EXISTS (SELECT 1 FROM " + place(table.name) + ')';
    return SchemaSql::Values(connection, selects.join(" UNION ALL "));
  }

  // A session that a case forgot could hold locks.
  static void EndSessions(const QString& database) {
    if (IsPostgreSql()) {
      SchemaSql::Values(
          Administrator(),
          "SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity WHERE datname = '" + database + "'");
      return;
    }
    for (const QString& id : SchemaSql::Values(
             Administrator(), "SELECT ID FROM INFORMATION_SCHEMA.PROCESSLIST WHERE DB = '" + database + "'")) {
      try {
        Administrator().Execute("KILL " + id);
      } catch (const AdoError& error) {
        if (!error.Description().contains("Unknown thread")) throw;  // it has ended meanwhile
      }
    }
  }

  static QString Shape(Connection& connection) {
    static const QString postgreSql =
        "SELECT md5(string_agg(item, ',' ORDER BY item)) FROM ("
        "SELECT relname || relkind::text AS item FROM pg_class WHERE relnamespace = 'public'::regnamespace UNION ALL "
        "SELECT attrelid::regclass::text || attname || format_type(atttypid, atttypmod) || attnotnull FROM "
        "pg_attribute "
        "WHERE attnum > 0 AND attrelid IN (SELECT oid FROM pg_class WHERE relnamespace = 'public'::regnamespace) "
        "UNION ALL SELECT conname || conrelid::text FROM pg_constraint WHERE connamespace = 'public'::regnamespace "
        "UNION ALL "
        "SELECT tgname FROM pg_trigger WHERE NOT tgisinternal UNION ALL SELECT rulename FROM pg_rules UNION ALL "
        "SELECT proname FROM pg_proc WHERE pronamespace = 'public'::regnamespace) AS items";
    static const QString mariaDb =
        "SELECT CONCAT_WS('/', (SELECT SUM(CRC32(CONCAT(TABLE_NAME, COLUMN_NAME, COLUMN_TYPE, IS_NULLABLE))) FROM "
        "INFORMATION_SCHEMA.COLUMNS WHERE TABLE_SCHEMA = DATABASE()), (SELECT SUM(CRC32(CONCAT(TABLE_NAME, "
        "CONSTRAINT_NAME))) FROM INFORMATION_SCHEMA.TABLE_CONSTRAINTS WHERE CONSTRAINT_SCHEMA = DATABASE()), (SELECT "
        "COUNT(*) FROM INFORMATION_SCHEMA.TRIGGERS WHERE TRIGGER_SCHEMA = DATABASE()), (SELECT COUNT(*) FROM "
        "INFORMATION_SCHEMA.ROUTINES WHERE ROUTINE_SCHEMA = DATABASE()))";
    return SchemaSql::Values(connection, IsPostgreSql() ? postgreSql : mariaDb).value(0);
  }

  std::vector<Kept> free_;
  std::map<QString, Kept> used_;
};

FileCopies& Files() {
  static FileCopies copies;
  return copies;
}

ServerDatabases& Servers() {
  static ServerDatabases databases;
  return databases;
}

}  // namespace

TestDatabase::TestDatabase(bool sample) {
  const QString lent = qEnvironmentVariable(LentDatabase);
  lent_ = !lent.isEmpty();
  if (lent_) {
    settings_ = ServerSettings(lent);
  } else {
    settings_ = TestEngine() == Engine::Sqlite ? Files().Take(sample) : Servers().Take(sample);
  }
}

TestDatabase::~TestDatabase() {
  other_.reset();
  if (lent_) return;
  if (settings_.engine == Engine::Sqlite) {
    Remove(settings_);
  } else {
    Servers().Return(settings_);
  }
}

void TestDatabase::LendTo(QProcessEnvironment& environment) const {
  environment.insert(LentDatabase, settings_.name);
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

void TestDatabase::Fill(const ConnectionSettings& settings, bool sample) {
  Connection connection(settings);
  connection.Open();
  DatabaseBuilder::Create(connection, sample ? DatabaseBuilder::Rows::Sample : DatabaseBuilder::Rows::Reference,
                          {{"FRE", "French"}, {"GER", "German"}});
  if (!Users::Exists(connection, "admin")) Users::Add(connection, "admin", {});
  // Few rounds: a test logs on hundreds of times.
  Users::SetPassword(connection, "admin", PasswordRecord::Make("secret", 1000));
  for (const QString& function : Users::KnownFunctions())
    Users::SetRight(connection, "admin", {function, true, true, true});
}

void TestDatabase::Remove(const ConnectionSettings& settings) {
  if (settings.engine == Engine::Sqlite) {
    QFile::remove(settings.name);
  } else if (settings.engine == Engine::PostgreSql) {
    Administrator().Execute("DROP DATABASE IF EXISTS " + settings.name + " WITH (FORCE)");
  } else {
    Administrator().Execute("DROP DATABASE IF EXISTS " + settings.name);
    Administrator().Execute("DROP DATABASE IF EXISTS " + settings.name + "_kept");
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
