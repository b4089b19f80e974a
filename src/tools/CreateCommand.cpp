#include <QDir>
#include <QFile>

#include "core/PasswordCipher.h"
#include "schema/History.h"
#include "schema/SchemaModel.h"
#include "tools/Command.h"
#include "tools/DatabaseBuilder.h"
#include "tools/DatabaseCheck.h"
#include "tools/Terminal.h"
#include "tools/Users.h"

namespace {

// MariaDB keeps each table at once, so that a create that was killed leaves some.
const QString UnfinishedAdvice = QStringLiteral(
    "\nIt is not whole: tabulon-db check names what is missing. If it was left by a create that was broken off, remove "
    "the database and make it again.");

const std::vector<Languages::Language> SampleLanguages{{"FRE", "French"}, {"GER", "German"}};

QString Place(const ConnectionSettings& settings) {
  return settings.engine == Engine::Sqlite ? QDir::toNativeSeparators(settings.name) : '"' + settings.name + '"';
}

void AddSampleAdministrator(Connection& connection) {
  Users::Add(connection, "admin", PasswordRecord::Make("secret"));
  for (const QString& function : Users::KnownFunctions())
    Users::SetRight(connection, "admin", {function, true, true, true});
}

// What the sample site has and a bare one has not.
void MakeSample(Connection& connection) {
  DatabaseBuilder::Create(connection, DatabaseBuilder::Rows::Sample, SampleLanguages);
  AddSampleAdministrator(connection);
  History::TurnOn(connection);
}

int Fill(const ConnectionSettings& settings, bool sample) {
  Connection connection(settings);
  connection.Open();
  if (DatabaseBuilder::HasTables(connection)) {
    const bool whole = CheckDatabase(connection, false).gaps.isEmpty();
    return Refuse("The database " + Place(settings) + " holds tables of Ostana already. Nothing was changed." +
                  (whole ? QString() : UnfinishedAdvice));
  }
  if (sample) {
    MakeSample(connection);
  } else {
    DatabaseBuilder::Create(connection, DatabaseBuilder::Rows::Reference);
  }
  Terminal::Print(QStringLiteral("Made %1 tables with the %2 in the database %3.")
                      .arg(SchemaModel::Get().tables.size())
                      .arg(sample ? "rows of the sample site" : "reference rows", Place(settings)));
  Terminal::Print(sample ? "Log on as user admin with the password secret."
                         : "Add the first user: tabulon-db user add NAME, then tabulon-db user rights NAME Tabulon "
                           "add,update,delete.");
  return ExitCode::Done;
}

int Create(const ConnectionSettings& settings, bool sample) {
  const bool made = DatabaseBuilder::MakeMissing(settings);
  try {
    return Fill(settings, sample);
  } catch (...) {
    // A file that was empty a moment ago would only hide the failure from the next attempt.
    if (made && settings.engine == Engine::Sqlite) QFile::remove(settings.name);
    throw;
  }
}

}  // namespace

int RunCreate(const QStringList& arguments) {
  CommandArguments command(
      "create [--sample] [--site NAME]",
      "Makes the tables of Ostana and the rows that every site begins with, in the database of the "
      "settings. A file of SQLite and a database of PostgreSQL or MariaDB are made when they are "
      "missing. A database that holds tables of Ostana is left as it is.");
  command.AddOption({"sample",
                     "Adds the libraries and settings of a sample site, in three languages, and its "
                     "administrator admin with the password secret."});
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  return WithSite(command,
                  [&](const SiteSettings& settings) { return Create(settings.connection, command.IsSet("sample")); });
}
