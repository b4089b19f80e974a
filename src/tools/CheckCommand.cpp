#include "schema/History.h"
#include "tools/Command.h"
#include "tools/DatabaseCheck.h"
#include "tools/Terminal.h"

int RunCheck(const QStringList& arguments) {
  CommandArguments command("check [--site NAME]",
                           "Compares the database of the settings with what the programs use: every table and column, "
                           "in every language of the site. Each gap is named; the exit status is 1 when there is one.");
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  return WithDatabase(command, [](Connection& connection, const SiteSettings& settings) {
    DatabaseCheck found = CheckDatabase(connection, !settings.singleLanguage);
    found.gaps += History::Gaps(connection);
    for (const QString& note : found.notes) Terminal::Print("Note: " + note);
    for (const QString& gap : found.gaps) Terminal::Print(gap);
    if (!found.gaps.isEmpty()) return Refuse(QStringLiteral("The database has %1 gaps.").arg(found.gaps.size()));
    Terminal::Print("The database holds everything that the programs use.");
    return ExitCode::Done;
  });
}
