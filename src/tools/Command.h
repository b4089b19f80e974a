#pragma once

#include <QCommandLineParser>
#include <QStringList>
#include <functional>
#include <vector>

#include "core/SiteSettings.h"
#include "platform/ado/Connection.h"

// What the commands of tabulon-db have in common.

namespace ExitCode {
inline constexpr int Done = 0;
inline constexpr int Refused = 1;  // refused by the database or the tool, or gaps or differences were found
inline constexpr int WrongUsage = 2;
}  // namespace ExitCode

// The arguments of one command. The options --help and --site are every command's.
class CommandArguments {
 public:
  // `usage` is how the command is called, from its name on; `summary` says what it does.
  CommandArguments(const QString& usage, const QString& summary);

  void AddPositional(const QString& name, const QString& description);
  void AddOption(const QCommandLineOption& option);

  // False when the command must not run: help was shown, or the arguments are wrong; `exitCode` then says which.
  // `least` and `most` count the positional arguments.
  bool Parse(const QStringList& arguments, int least, int most, int& exitCode);

  QStringList Positional() const { return parser_.positionalArguments(); }
  bool IsSet(const QString& option) const { return parser_.isSet(option); }
  QString Value(const QString& option) const { return parser_.value(option); }
  QStringList Values(const QString& option) const { return parser_.values(option); }

 private:
  QString HelpText() const;

  QString usage_;
  QCommandLineParser parser_;
};

// The settings of a site; without a name, of the section [Database]. std::runtime_error when they cannot be used.
SiteSettings ReadSite(const QString& site);
// Opens a database, which must hold the tables of the system: std::runtime_error otherwise.
void OpenDatabase(Connection& connection);

// Runs the body; what goes wrong is told on the terminal and ends with Refused.
int Guarded(const std::function<int()>& body);
// Reads the settings of the site that the arguments name and runs the body; what goes wrong is told on the terminal.
int WithSite(const CommandArguments& arguments, const std::function<int(const SiteSettings&)>& body);
// The same, with the open database of the site, which must hold the tables of the system.
int WithDatabase(const CommandArguments& arguments, const std::function<int(Connection&, const SiteSettings&)>& body);

int Refuse(const QString& reason);
int RefuseUsage(const QString& reason, const QString& command);

struct Command {
  QString name;
  QString summary;
  int (*run)(const QStringList& arguments);  // without the command's name
};

// Runs the action of a command that has several, or lists them for --help.
int RunAction(const QString& command, const std::vector<Command>& actions, const QStringList& arguments);

int RunCreate(const QStringList& arguments);
int RunCheck(const QStringList& arguments);
int RunAddLanguage(const QStringList& arguments);
int RunEncodePassword(const QStringList& arguments);
int RunUser(const QStringList& arguments);
int RunExport(const QStringList& arguments);
int RunCompare(const QStringList& arguments);
int RunApply(const QStringList& arguments);
int RunHistory(const QStringList& arguments);

// All of tabulon-db but its main: the arguments of the process without the program's name.
int RunTabulonDb(const QStringList& arguments);
