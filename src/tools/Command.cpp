#include "tools/Command.h"

#include <QCoreApplication>
#include <algorithm>
#include <stdexcept>

#include "platform/ado/AdoError.h"
#include "platform/files/IniFile.h"
#include "tools/DatabaseBuilder.h"
#include "tools/Terminal.h"

namespace {

const std::vector<Command>& Commands() {
  static const std::vector<Command> commands{
      {"create", "Makes the tables and the first rows in the database of a site.", RunCreate},
      {"check", "Tells what the database of a site lacks.", RunCheck},
      {"add-language", "Adds a language to a site, or completes one.", RunAddLanguage},
      {"encode-password", "Encodes the password of the database's user for the settings.", RunEncodePassword},
      {"user", "Adds, changes, removes and lists users and their rights.", RunUser},
      {"export", "Writes the settings of a site to a text file.", RunExport},
      {"compare", "Tells what differs between a file, a database and that of another site.", RunCompare},
      {"apply", "Carries the settings of a file into the database of a site.", RunApply},
      {"history", "Records changes of settings and rights, lists them and takes them back.", RunHistory}};
  return commands;
}

QString Overview() {
  QString text =
      "Usage: tabulon-db COMMAND [options]\n"
      "Makes, checks and extends the database of an Ostana site. The settings are those of the program: Ostana.ini in\n"
      "OSTANA_HOME, else in the current directory.\n\nCommands:\n";
  for (const Command& command : Commands()) text += "  " + command.name.leftJustified(17) + command.summary + '\n';
  return text +
         "\nOptions:\n  --site NAME   the section [Database NAME] of the settings instead of [Database]\n"
         "  --help        this text; behind a command, its own\n  --version\n\n"
         "Exit status: 0 done, 1 refused, or gaps or differences found, 2 wrong usage.";
}

QString Wrapped(const QString& text) {
  constexpr qsizetype Width = 100;
  QString lines;
  QString line;
  for (const QString& word : text.split(' ')) {
    if (line.size() + word.size() >= Width) {
      lines += line + '\n';
      line.clear();
    }
    line += (line.isEmpty() ? "" : " ") + word;
  }
  return lines + line;
}

QString SystemUser() {
  for (const char* variable : {"USER", "LOGNAME", "USERNAME"})
    if (const QString user = qEnvironmentVariable(variable); !user.isEmpty()) return user;
  return {};
}

// --site may stand before the command too.
QStringList CommandFirst(QStringList arguments) {
  if (arguments.isEmpty() || !arguments.first().startsWith("--site")) return arguments;
  const int length = arguments.first().contains('=') ? 1 : 2;
  QStringList moved = arguments.mid(length);
  return moved.isEmpty() ? arguments : moved + arguments.mid(0, length);
}

}  // namespace

CommandArguments::CommandArguments(const QString& usage, const QString& summary) : usage_(usage) {
  parser_.setApplicationDescription(Wrapped(summary));
  parser_.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
  parser_.addOption({{"h", "help"}, "Shows this text."});
  parser_.addOption({"site", "Uses the section [Database NAME] of the settings instead of [Database].", "NAME"});
}

void CommandArguments::AddPositional(const QString& name, const QString& description) {
  parser_.addPositionalArgument(name, description);
}

void CommandArguments::AddOption(const QCommandLineOption& option) {
  parser_.addOption(option);
}

QString CommandArguments::HelpText() const {
  // The parser's own first line knows nothing of commands.
  return "Usage: tabulon-db " + usage_ + '\n' + parser_.helpText().section('\n', 1).trimmed();
}

bool CommandArguments::Parse(const QStringList& arguments, int least, int most, int& exitCode) {
  exitCode = ExitCode::WrongUsage;
  const bool understood = parser_.parse(QStringList{"tabulon-db"} + arguments);
  if (parser_.isSet("help")) {
    Terminal::Print(HelpText());
    exitCode = ExitCode::Done;
    return false;
  }
  QString wrong = understood ? QString() : parser_.errorText();
  if (wrong.isEmpty() && Positional().size() < least) wrong = "An argument is missing.";
  if (wrong.isEmpty() && Positional().size() > most) wrong = "There are too many arguments.";
  if (wrong.isEmpty()) return true;
  Terminal::Complain(wrong + "\nUsage: tabulon-db " + usage_);
  return false;
}

int Refuse(const QString& reason) {
  Terminal::Complain(reason);
  return ExitCode::Refused;
}

int RefuseUsage(const QString& reason, const QString& command) {
  Terminal::Complain(reason + "\nSee: tabulon-db " + (command.isEmpty() ? QString() : command + ' ') + "--help");
  return ExitCode::WrongUsage;
}

SiteSettings ReadSite(const QString& site) {
  SiteSettings settings;
  QString error;
  if (!LoadSiteSettings(site, settings, error)) throw std::runtime_error(error.toStdString());
  // The program falls back to the common section. A tool that writes must not take one site for another.
  if (!site.isEmpty() && !IniFile::Sections(settings.settingsFile).contains("Database " + site, Qt::CaseInsensitive))
    throw std::runtime_error(QStringLiteral("The settings file '%1' has no section [Database %2].")
                                 .arg(settings.settingsFile, site)
                                 .toStdString());
  return settings;
}

void OpenDatabase(Connection& connection) {
  // A site's history tells who ran the tool.
  connection.Tell(SystemUser(), "tabulon-db");
  connection.Open();
  if (!DatabaseBuilder::HasTables(connection))
    throw std::runtime_error("The database holds no tables of Ostana. Make them with tabulon-db create.");
}

int Guarded(const std::function<int()>& body) {
  try {
    return body();
  } catch (const AdoError& error) {
    return Refuse(error.Description());
  } catch (const std::exception& error) {
    return Refuse(QString::fromUtf8(error.what()));
  }
}

int WithSite(const CommandArguments& arguments, const std::function<int(const SiteSettings&)>& body) {
  return Guarded([&] { return body(ReadSite(arguments.Value("site"))); });
}

int WithDatabase(const CommandArguments& arguments, const std::function<int(Connection&, const SiteSettings&)>& body) {
  return WithSite(arguments, [&](const SiteSettings& settings) {
    Connection connection(settings.connection);
    OpenDatabase(connection);
    return body(connection, settings);
  });
}

int RunAction(const QString& command, const std::vector<Command>& actions, const QStringList& arguments) {
  const QString name = arguments.value(0);
  if (name == u"--help" || name == u"-h") {
    QString text = "Usage: tabulon-db " + command + " ACTION [options]\n\nActions:\n";
    for (const Command& action : actions) text += "  " + action.name.leftJustified(10) + action.summary + '\n';
    Terminal::Print(text + "\nEach action tells more with --help.");
    return ExitCode::Done;
  }
  const auto action =
      std::find_if(actions.begin(), actions.end(), [&](const Command& one) { return one.name == name; });
  if (action != actions.end()) return action->run(arguments.mid(1));
  return RefuseUsage(name.isEmpty() ? "An action is missing." : "There is no action \"" + name + "\".", command);
}

int RunTabulonDb(const QStringList& given) {
  const QStringList arguments = CommandFirst(given);
  const QString name = arguments.value(0);
  if (name == u"--help" || name == u"-h" || name == u"help") {
    Terminal::Print(Overview());
    return ExitCode::Done;
  }
  if (name == u"--version") {
    Terminal::Print(QStringLiteral("tabulon-db %1.%2.%3")
                        .arg(TABULON_VERSION_MAJOR)
                        .arg(TABULON_VERSION_MINOR)
                        .arg(TABULON_VERSION_REVISION));
    return ExitCode::Done;
  }
  const auto command =
      std::find_if(Commands().begin(), Commands().end(), [&](const Command& one) { return one.name == name; });
  if (command != Commands().end()) return command->run(arguments.mid(1));
  return RefuseUsage(name.isEmpty() ? "A command is missing." : "There is no command \"" + name + "\".", {});
}
