#include <algorithm>

#include "schema/TableDifference.h"
#include "tools/Command.h"
#include "tools/ExportFile.h"
#include "tools/TableChoice.h"
#include "tools/Terminal.h"

namespace {

struct Side {
  QString name;
  std::vector<TableContent> contents;
};

const TableContent* Find(const Side& side, const SchemaTable* table) {
  const auto found = std::find_if(side.contents.begin(), side.contents.end(),
                                  [&](const TableContent& content) { return content.table == table; });
  return found == side.contents.end() ? nullptr : &*found;
}

// Lines of all that differs; none when nothing does.
QStringList Differences(const Side& first, const Side& second) {
  QStringList lines;
  for (const SchemaTable& table : SchemaModel::Get().tables) {
    const TableContent* const left = Find(first, &table);
    const TableContent* const right = Find(second, &table);
    if (left && right) {
      lines += Compare(*left, *right).Lines();
    } else if (left || right) {
      lines += table.name + ": only in " + (left ? first : second).name;
    }
  }
  return lines;
}

int Tell(const Side& first, const Side& second) {
  const QStringList lines = Differences(first, second);
  if (lines.isEmpty()) {
    Terminal::Print("Equal: " + first.name + " and " + second.name + '.');
    return ExitCode::Done;
  }
  Terminal::Print("First: " + first.name + "\nSecond: " + second.name +
                  "\n+ only in the first, - only in the second, ~ second -> first\n");
  for (const QString& line : lines) Terminal::Print(line);
  return ExitCode::Refused;
}

Side FileSide(const QString& path) {
  return {"the file " + path, ExportFile::Load(path)};
}

QString SiteName(const QString& site) {
  return site.isEmpty() ? QStringLiteral("the database of the settings") : "the database of the site " + site;
}

// The database as the other side has it, or all chosen tables where there is no other side yet.
Side DatabaseSide(const QString& site, const std::function<std::vector<TableContent>(Connection&)>& read) {
  Connection connection(ReadSite(site).connection);
  OpenDatabase(connection);
  return {SiteName(site), read(connection)};
}

int CompareSides(const CommandArguments& command, const std::vector<const SchemaTable*>& tables,
                 const Secrets& secrets) {
  const QStringList files = command.Positional();
  const Side first =
      files.isEmpty()
          ? DatabaseSide(command.Value("site"),
                         [&](Connection& connection) { return TableChoice::Read(connection, tables, secrets); })
          : FileSide(files[0]);
  const auto likeFirst = [&](Connection& connection) { return TableChoice::ReadLike(connection, first.contents); };
  if (files.size() == 2) return Tell(first, FileSide(files[1]));
  const QString other = command.IsSet("other-site") ? "other-site" : "site";
  return Tell(first, DatabaseSide(command.Value(other), likeFirst));
}

}  // namespace

int RunCompare(const QStringList& arguments) {
  CommandArguments command(
      "compare [FILE [FILE2]] [--other-site NAME] [--tables A,B,...]\n"
      "                          [--secrets A,B,...|--with-secrets] [--site NAME]",
      "Compares a file of tabulon-db export with the database, with another file, or with the "
      "database of another site; without a file, the database with that of another site. The exit "
      "status is 0 when both are equal, 1 when they differ, 2 when they could not be compared. "
      "The options --tables, --secrets and --with-secrets are for two databases: a file names its "
      "own.");
  command.AddPositional("FILE", "the file");
  command.AddPositional("FILE2", "another one, instead of the database");
  command.AddOption({"other-site", "Compares with the database of the section [Database NAME].", "NAME"});
  TableChoice::AddOptions(command);
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 2, exitCode)) return exitCode;
  const qsizetype files = command.Positional().size();
  const qsizetype sides = files + (command.IsSet("other-site") ? 1 : 0);
  if (sides == 0) return RefuseUsage("A file, or another site, is missing.", "compare");
  if (sides > 2) return RefuseUsage("Two are compared, not three.", "compare");
  if (files > 0 && (command.IsSet("tables") || command.IsSet("secrets") || command.IsSet("with-secrets")))
    return RefuseUsage("The file itself names its tables and columns.", "compare");
  const auto tables = TableChoice::Chosen(command, "compare");
  if (!tables) return ExitCode::WrongUsage;
  const auto secrets = TableChoice::ChosenSecrets(command, *tables, "compare");
  if (!secrets) return ExitCode::WrongUsage;
  // Scripts must tell "different" from "could not be read".
  bool compared = false;
  const int outcome = Guarded([&] {
    const int told = CompareSides(command, *tables, *secrets);
    compared = true;
    return told;
  });
  return compared ? outcome : ExitCode::WrongUsage;
}
