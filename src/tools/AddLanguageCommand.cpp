#include "schema/Languages.h"
#include "tools/Command.h"
#include "tools/Terminal.h"

namespace {

constexpr int LongestDescription = 50;  // characters

int AddLanguage(Connection& connection, const Languages::Language& language, bool legacyColumns) {
  const bool present = Languages::Codes(connection).contains(language.code);
  const int added = Languages::Add(connection, language, legacyColumns);
  if (present && added == 0) {
    Terminal::Print("The language " + language.code + " is there already, with all its columns.");
  } else {
    Terminal::Print(QStringLiteral("%1 the language %2: %3 columns added.")
                        .arg(present ? "Completed" : "Added", language.code)
                        .arg(added));
  }
  return ExitCode::Done;
}

}  // namespace

int RunAddLanguage(const QStringList& arguments) {
  CommandArguments command("add-language CODE DESCRIPTION [--legacy-columns] [--site NAME]",
                           "Adds a language: its row, and its column in every table that keeps descriptions in each "
                           "language. The columns begin with the descriptions of the default language. A language that "
                           "is there already is completed.");
  command.AddPositional("CODE", "three letters or digits, such as FRE");
  command.AddPositional("DESCRIPTION", "the language's name, such as French");
  command.AddOption(
      {"legacy-columns",
       "Adds, for all languages, the columns under another table's name that adding a status function and "
       "a namespace asks for on a site of several languages."});
  int exitCode = 0;
  if (!command.Parse(arguments, 2, 2, exitCode)) return exitCode;
  const Languages::Language language{command.Positional()[0].toUpper(), command.Positional()[1].trimmed()};
  if (!Languages::IsCode(language.code))
    return RefuseUsage(
        "A language code has three letters or digits, a letter first: \"" + language.code + "\" has not.",
        "add-language");
  if (language.description.isEmpty() || language.description.size() > LongestDescription)
    return RefuseUsage("A description has 1 to 50 characters.", "add-language");
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    return AddLanguage(connection, language, command.IsSet("legacy-columns"));
  });
}
