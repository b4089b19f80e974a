#include "tools/DatabaseBuilder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/ado/SqlTokens.h"
#include "schema/SchemaModel.h"
#include "schema/SchemaSql.h"
#include "schema/SchemaStatements.h"
#include "schema/SqlScript.h"

namespace {

const QString Source = QStringLiteral("DatabaseBuilder");
const QString ReferenceLanguage = QStringLiteral("ENG");

// --- Databases ---

bool MakeFile(const QString& path) {
  const QFileInfo info(path);
  if (info.exists()) return false;
  QFile file(path);
  // Passwords lie in it.
  constexpr QFileDevice::Permissions ownerAndGroup =
      QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup | QFileDevice::WriteGroup;
  if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerAndGroup)) return true;
  throw AdoError(
      AdoNumber::Unspecified,
      QStringLiteral("The database file \"%1\" could not be made (%2). Check that its folder exists and that "
                     "this user may write there.")
          .arg(QDir::toNativeSeparators(path), file.errorString()),
      Source);
}

struct ServerWords {
  QString maintenance;  // a database that every server has
  QString names;        // SELECT of all databases
  QString creation;     // with %1 for the quoted name
};

ServerWords WordsOf(Engine engine) {
  if (engine == Engine::MariaDb)
    return {"information_schema", "SELECT SCHEMA_NAME FROM INFORMATION_SCHEMA.SCHEMATA",
            "CREATE DATABASE %1 CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"};
  return {"postgres", "SELECT datname FROM pg_catalog.pg_database",
          "CREATE DATABASE %1 ENCODING 'UTF8' TEMPLATE template0"};
}

bool MakeOnServer(const ConnectionSettings& settings) {
  const ServerWords words = WordsOf(settings.engine);
  ConnectionSettings maintenance = settings;
  maintenance.name = words.maintenance;
  maintenance.ownerPrefix.clear();
  Connection connection(maintenance);
  connection.Open();
  if (SchemaSql::Values(connection, words.names).contains(settings.name)) return false;
  QString quoted = settings.name;
  quoted = '"' + quoted.replace('"', "\"\"") + '"';
  connection.Execute(words.creation.arg(quoted));
  return true;
}

// The schema of the owner, where the engine keeps one and it is missing.
void MakeOwner(Connection& connection) {
  QString owner = connection.Settings().ownerPrefix;
  if (connection.Settings().engine != Engine::PostgreSql || owner.isEmpty()) return;
  owner.chop(1);
  connection.Execute("CREATE SCHEMA IF NOT EXISTS \"" + owner.toLower().remove('"') + '"');
}

// --- Tables and rows ---

SchemaStatements StatementsFor(const Connection& connection) {
  return {connection.Settings().engine, connection.Settings().ownerPrefix};
}

QString WithOwner(const QString& statement, const QString& owner) {
  if (owner.isEmpty()) return statement;
  std::vector<SqlToken> tokens = Tokenize(statement);
  for (SqlToken& token : tokens)
    if (token.kind == SqlToken::Word && SchemaModel::Get().Find(token.text)) token.text.prepend(owner);
  return Join(tokens);
}

void CreateTables(Connection& connection, const QStringList& languages, int& created) {
  const SchemaModel& model = SchemaModel::Get();
  const SchemaStatements statements = StatementsFor(connection);
  for (const SchemaTable& table : model.tables) {
    connection.Execute(statements.Create(table, languages));
    ++created;
  }
  for (const QString& index : statements.CreateIndexes(model)) connection.Execute(index);
}

void InsertRows(Connection& connection, DatabaseBuilder::Rows rows, const std::vector<Languages::Language>& further) {
  DatabaseBuilder::RunScript(connection, SqlScript::Text("reference.sql"));
  for (const Languages::Language& language : further) Languages::AddRow(connection, language);
  if (rows == DatabaseBuilder::Rows::Sample) DatabaseBuilder::RunScript(connection, SqlScript::Text("sample.sql"));
  Languages::FillEmptyDescriptions(connection, Languages::Codes(connection));
}

void DropTables(Connection& connection, int created) {
  const SchemaModel& model = SchemaModel::Get();
  for (int i = created - 1; i >= 0; --i)
    connection.Execute(StatementsFor(connection).Drop(model.tables[static_cast<size_t>(i)]));
}

}  // namespace

bool DatabaseBuilder::MakeMissing(const ConnectionSettings& settings) {
  switch (settings.engine) {
    case Engine::Sqlite:
      return MakeFile(settings.name);
    case Engine::SqlServer:
      return false;  // its administrators make databases, with files of their own choice
    case Engine::PostgreSql:
    case Engine::MariaDb:
      break;
  }
  try {
    Connection(settings).Open();
    return false;
  } catch (const AdoError& failure) {
    try {
      if (MakeOnServer(settings)) return true;
    } catch (const AdoError& second) {
      throw AdoError(failure.Number(), failure.Description() + '\n' + second.Description(), failure.Source());
    }
    throw;
  }
}

bool DatabaseBuilder::HasTables(Connection& connection) {
  return !connection.Tables().isEmpty();
}

void DatabaseBuilder::Create(Connection& connection, Rows rows, const std::vector<Languages::Language>& further) {
  QStringList languages{ReferenceLanguage};
  for (const Languages::Language& language : further) languages += language.code;
  connection.EnsureOpen();
  MakeOwner(connection);
  int created = 0;
  const auto tables = [&] {
    CreateTables(connection, languages, created);
    if (rows == Rows::Sample)
      for (const QString& language : languages) Languages::AddLegacyColumns(connection, language);
  };
  if (connection.Settings().engine != Engine::MariaDb) {
    Transaction transaction(connection);
    tables();
    InsertRows(connection, rows, further);
    transaction.Commit();
    return;
  }
  // MariaDB commits at each table: what stands half made is taken away by hand.
  try {
    tables();
    Transaction transaction(connection);
    InsertRows(connection, rows, further);
    transaction.Commit();
  } catch (const AdoError&) {
    if (connection.State() == Connection::Opened) DropTables(connection, created);
    throw;
  }
}

void DatabaseBuilder::RunScript(Connection& connection, const QString& text) {
  for (const QString& statement : SqlScript::Statements(text))
    connection.Execute(WithOwner(statement, connection.Settings().ownerPrefix));
}
