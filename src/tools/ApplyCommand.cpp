#include <algorithm>
#include <stdexcept>

#include "schema/ChangeRunner.h"
#include "schema/SchemaSql.h"
#include "tools/Command.h"
#include "tools/ExportFile.h"
#include "tools/TableChoice.h"
#include "tools/Terminal.h"

namespace {

// Values cannot go where no column is.
void RefuseMissing(const std::vector<TableDifference>& differences) {
  QStringList missing;
  for (const TableDifference& difference : differences)
    for (const QString& column : difference.missing) missing += difference.table->name + '.' + column;
  if (missing.isEmpty()) return;
  constexpr qsizetype Named = 6;  // a language lacks in eighty places at once
  if (missing.size() > Named)
    missing = missing.mid(0, Named) << QStringLiteral("and %1 more").arg(missing.size() - Named);
  throw std::runtime_error(("The database lacks columns that the file names: " + missing.join(", ") +
                            ".\nA language is added with tabulon-db add-language, and with its option "
                            "--legacy-columns those under another table's name.")
                               .toStdString());
}

std::vector<TableDifference> Differences(Connection& connection, const std::vector<TableContent>& file) {
  const std::vector<TableContent> database = TableChoice::ReadLike(connection, file);
  std::vector<TableDifference> differences;
  for (size_t i = 0; i < file.size(); ++i) differences.push_back(Compare(file[i], database[i]));
  RefuseMissing(differences);
  return differences;
}

struct Sum {
  size_t added = 0;
  size_t changed = 0;
  size_t removed = 0;
};

// Tells what is to be done. Rows that stay although the file has them not are only counted.
Sum Tell(std::vector<TableDifference> differences, bool removes) {
  Sum sum;
  for (TableDifference& difference : differences) {
    sum.added += difference.added.size();
    sum.changed += difference.changed.size();
    sum.removed += difference.removed.size();
    if (!removes) difference.removed.clear();
    for (const QString& line : difference.Lines()) Terminal::Print(line);
  }
  return sum;
}

// The counter of library numbers is no setting, so the file does not carry it.
void WarnOfCounter(Connection& connection, const std::vector<TableDifference>& differences) {
  const int next =
      SchemaSql::Values(connection, "SELECT NEXT_LIBRARY FROM " + SchemaSql::Table(connection, "ID_NEXT_LIBRARY"))
          .value(0)
          .toInt();
  int highest = 0;
  for (const TableDifference& difference : differences) {
    if (difference.table->name != u"ID_LIBRARY") continue;
    const size_t id = static_cast<size_t>(difference.Position("LIBRARY_ID"));
    for (const Row& row : difference.added) highest = std::max(highest, row[id].value_or(QString()).toInt());
  }
  if (highest < next) return;
  Terminal::Complain(QStringLiteral("Note: library %1 was added, and the counter ID_NEXT_LIBRARY still gives out %2 "
                                    "next. Set the counter behind the last library.")
                         .arg(highest)
                         .arg(next));
}

QString Summary(const Sum& sum, bool removes, bool dryRun) {
  QString text = dryRun ? QStringLiteral("Dry run, nothing was changed. It would be: ") : QStringLiteral("Done: ");
  text += QStringLiteral("%1 rows added, %2 changed, %3 removed.")
              .arg(sum.added)
              .arg(sum.changed)
              .arg(removes ? sum.removed : 0);
  if (!removes && sum.removed > 0)
    text += QStringLiteral(" %1 rows that the file has not stay; --delete removes them.").arg(sum.removed);
  return text;
}

// The dry run goes through all statements and takes them back, so that it meets every refusal too.
int Apply(Connection& connection, const std::vector<TableContent>& file, bool removes, bool dryRun) {
  Transaction transaction(connection);
  const std::vector<TableDifference> differences = Differences(connection, file);
  const Sum sum = Tell(differences, removes);
  try {
    ChangeRunner(connection, removes).Run(differences);
    WarnOfCounter(connection, differences);
    if (!dryRun) transaction.Commit();
  } catch (const AdoError& error) {
    if (error.ConnectionLost()) throw;
    return Refuse(error.Description() + "\nNothing was changed.");
  }
  Terminal::Print(Summary(sum, removes, dryRun));
  return ExitCode::Done;
}

}  // namespace

int RunApply(const QStringList& arguments) {
  CommandArguments command(
      "apply [--dry-run] [--delete] [--site NAME] FILE|-",
      "Adds and changes rows until the tables that a file of tabulon-db export names hold its rows, "
      "all or nothing. Tables and columns that it does not name stay as they are.");
  command.AddPositional("FILE", "the file; \"-\" reads from the terminal");
  command.AddOption({"dry-run", "Tells what would be done, or refused, and changes nothing."});
  command.AddOption({"delete", "Removes the rows of these tables that the file has not."});
  int exitCode = 0;
  if (!command.Parse(arguments, 1, 1, exitCode)) return exitCode;
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    return Apply(connection, ExportFile::Load(command.Positional()[0]), command.IsSet("delete"),
                 command.IsSet("dry-run"));
  });
}
