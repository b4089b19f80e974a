#include "support/TestDatabase.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <map>
#include <stdexcept>

#include "core/PasswordCipher.h"
#include "tools/SchemaModel.h"
#include "tools/SchemaStatements.h"
#include "tools/SqlScript.h"

namespace {

const QStringList Languages = {"ENG", "FRE", "GER"};

Engine EngineOfTests() {
  const QString name = TestDatabase::EngineName();
  if (name == "postgresql") return Engine::PostgreSql;
  if (name == "mariadb") return Engine::MariaDb;
  return Engine::Sqlite;
}

ConnectionSettings ServerSettings(const QString& database) {
  ConnectionSettings settings;
  settings.engine = EngineOfTests();
  settings.name = database;
  settings.host = qEnvironmentVariable("TABULON_TEST_HOST");
  settings.user = qEnvironmentVariable("TABULON_TEST_USER");
  return settings;
}

QString FreshName() {
  static int number = 0;
  return QString("tabulon_%1_%2").arg(QCoreApplication::applicationPid()).arg(++number);
}

void OnServer(const QString& statement) {
  Connection server(ServerSettings(EngineOfTests() == Engine::PostgreSql ? "postgres" : "mysql"));
  server.Open();
  server.Execute(statement);
}

void MakeLanguages(Connection& connection) {
  const std::pair<QString, QString> names[] = {{"ENG", "English"}, {"FRE", "French"}, {"GER", "German"}};
  connection.Execute("DELETE FROM ID_LANGUAGE_CODE");
  for (const auto& [code, name] : names)
    connection.Execute("INSERT INTO ID_LANGUAGE_CODE (LANGUAGE_CODE, LANGUAGE_CODE_DESC, LANGUAGE_CODE_DEFAULT) VALUES ('" +
                       code + "', '" + name + "', " + (code == "ENG" ? "'Y'" : "NULL") + ")");
  // Each language starts with a copy of the description.
  for (const SchemaTable& table : SchemaModel::Get().tables)
    for (const SchemaColumn& column : table.columns) {
      if (!column.language) continue;
      QStringList copies;
      for (const QString& language : Languages) copies.append(LanguageColumn(column.name, language) + " = " + column.name);
      connection.Execute("UPDATE " + table.name + " SET " + copies.join(", "));
    }
}

void MakeAdministrator(Connection& connection) {
  // Few iterations: the tests log on thousands of times.
  connection.Execute("INSERT INTO ID_USER (USER_ID, USER_PASSWORD) VALUES ('admin', '" +
                     PasswordRecord::Make("secret", 1000) + "')");
  for (const char* function : {"Tabulon", "Library Registration", "Patron Registration", "Supplier Registration"})
    connection.Execute(
        QString("INSERT INTO ID_USER_FUNCTION (USER_ID, FUNCTION_NAME, ADD_FLAG, UPDATE_FLAG, DELETE_FLAG) VALUES "
                "('admin', '%1', 'Y', 'Y', 'Y')")
            .arg(function));
}

void RunScript(Connection& connection, const QString& name) {
  for (const QString& statement : SqlScript::Statements(SqlScript::Text(name))) connection.Execute(statement);
}

void MakeSite(const ConnectionSettings& settings, bool withSample) {
  Connection connection(settings);
  connection.Open();
  const SchemaStatements statements(settings.engine, {});
  for (const SchemaTable& table : SchemaModel::Get().tables) connection.Execute(statements.Create(table, Languages));
  for (const QString& index : statements.CreateIndexes(SchemaModel::Get())) connection.Execute(index);
  connection.BeginTrans();
  RunScript(connection, "reference.sql");
  MakeLanguages(connection);
  MakeAdministrator(connection);
  if (withSample) RunScript(connection, "sample.sql");
  connection.CommitTrans();
  connection.Close();
}

void MakeEmptyFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("Cannot write " + path.toStdString());
}

// What new databases are copied from; lives as long as the process.
class Templates {
 public:
  ~Templates() {
    for (const auto& [sample, name] : names_)
      if (EngineOfTests() != Engine::Sqlite) OnServer("DROP DATABASE " + name);
  }
  // File of SQLite, database of a server.
  const QString& Name(bool withSample) {
    QString& name = names_[withSample];
    if (!name.isEmpty()) return name;
    if (EngineOfTests() == Engine::Sqlite) {
      name = folder_.filePath(withSample ? "sample.db" : "reference.db");
      MakeEmptyFile(name);
      ConnectionSettings settings;
      settings.name = name;
      MakeSite(settings, withSample);
    } else {
      name = FreshName();
      OnServer("CREATE DATABASE " + name);
      MakeSite(ServerSettings(name), withSample);
    }
    return name;
  }

 private:
  QTemporaryDir folder_;
  std::map<bool, QString> names_;
};

Templates& AllTemplates() {
  static auto* const templates = new Templates;
  static bool registered = false;
  // Ended with the application, while QtSql is still there.
  if (!registered) qAddPostRoutine([] { delete templates; });
  registered = true;
  return *templates;
}

QTemporaryDir& Files() {
  static QTemporaryDir folder;
  return folder;
}

}  // namespace

QString TestDatabase::EngineName() {
  const QString name = qEnvironmentVariable("TABULON_TEST_ENGINE");
  return name.isEmpty() ? QString("sqlite") : name;
}

TestDatabase::TestDatabase(bool withSample) {
  const QString source = AllTemplates().Name(withSample);
  switch (EngineOfTests()) {
    case Engine::Sqlite:
      settings_.name = Files().filePath(FreshName() + ".db");
      if (!QFile::copy(source, settings_.name)) throw std::runtime_error("Cannot copy the database of the tests");
      break;
    case Engine::PostgreSql:
      settings_ = ServerSettings(FreshName());
      OnServer("CREATE DATABASE " + settings_.name + " TEMPLATE " + source);
      break;
    case Engine::MariaDb:
    case Engine::SqlServer:
      settings_ = ServerSettings(FreshName());
      OnServer("CREATE DATABASE " + settings_.name);
      MakeSite(settings_, withSample);
      break;
  }
}

TestDatabase::~TestDatabase() {
  other_.reset();
  if (settings_.engine == Engine::Sqlite) {
    QFile::remove(settings_.name);
  } else {
    OnServer("DROP DATABASE " + settings_.name +
             (settings_.engine == Engine::PostgreSql ? QString(" WITH (FORCE)") : QString()));
  }
}

QString TestDatabase::IniSection() const {
  const QString engine = settings_.engine == Engine::Sqlite       ? "SQLITE"
                         : settings_.engine == Engine::PostgreSql ? "POSTGRESQL"
                                                                  : "MARIADB";
  return "[Database]\nEngine=" + engine + "\nName=" + settings_.name + "\nHost=" + settings_.host +
         "\nUser=" + settings_.user + "\n";
}

Connection& TestDatabase::OtherClient() {
  if (!other_) other_ = std::make_unique<Connection>(settings_);
  other_->EnsureOpen();
  return *other_;
}
