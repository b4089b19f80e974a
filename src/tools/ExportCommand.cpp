#include "site/FormerState.h"
#include "tools/Command.h"
#include "tools/ExportFile.h"
#include "tools/TableChoice.h"
#include "tools/Terminal.h"

int RunExport(const QStringList& arguments) {
  CommandArguments command(
      "export [--at MOMENT] [--tables A,B,...] [--secrets A,B,...|--with-secrets] [--site NAME] FILE|-",
      "Writes the settings of a site to a text file that is made to be kept under version control: "
      "a line for each value, rows in the order of their keys. \"-\" writes to the terminal.");
  command.AddPositional("FILE", "the file; one that is there is replaced");
  command.AddOption({"at",
                     "The settings as they were at a moment in UTC, such as \"2024-01-31 10:00\"; for sites whose "
                     "changes are recorded (tabulon-db history).",
                     "MOMENT"});
  TableChoice::AddOptions(command);
  int exitCode = 0;
  if (!command.Parse(arguments, 1, 1, exitCode)) return exitCode;
  const auto tables = TableChoice::Chosen(command, "export");
  if (!tables) return ExitCode::WrongUsage;
  const auto secrets = TableChoice::ChosenSecrets(command, *tables, "export");
  if (!secrets) return ExitCode::WrongUsage;
  const std::optional<QString> moment = FormerState::Moment(command.Value("at"));
  if (command.IsSet("at") && !moment) return RefuseUsage('"' + command.Value("at") + "\" is no moment.", "export");
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    const QString path = command.Positional()[0];
    std::vector<TableContent> contents = TableChoice::Read(connection, *tables, *secrets);
    if (moment) contents = FormerState::At(connection, std::move(contents), *moment);
    ExportFile::Save(path, contents, secrets->Any());
    qsizetype rows = 0;
    for (const TableContent& content : contents) rows += static_cast<qsizetype>(content.rows.size());
    const QString told = QStringLiteral("Wrote %1 rows of %2 tables.").arg(rows).arg(contents.size());
    if (path != u"-") Terminal::Print(told);
    if (secrets->Any()) Terminal::Complain("Note: the text holds passwords and card data. Keep it from others.");
    return ExitCode::Done;
  });
}
