#include <algorithm>
#include <optional>

#include "core/PasswordCipher.h"
#include "tools/Command.h"
#include "tools/Terminal.h"
#include "tools/Users.h"

namespace {

const QCommandLineOption PasswordOption("password", "The password; asked for when it is not given.", "PASSWORD");

constexpr qsizetype UsualLength = 8;  // characters

// The record of the new password, given or asked for. Nothing when there is none.
std::optional<QString> NewRecord(const CommandArguments& command, const QString& user) {
  const std::optional<QString> password =
      command.IsSet("password") ? command.Value("password") : Terminal::AskNewPassword(user);
  if (!password) return std::nullopt;
  if (password->size() < UsualLength && !password->isEmpty())
    Terminal::Complain(
        QStringLiteral("Note: a password of fewer than %1 characters is soon guessed.").arg(UsualLength));
  if (!password->isEmpty()) return PasswordRecord::Make(*password);
  Terminal::Complain("A password may not be empty.");
  return std::nullopt;
}

// Letters, digits, signs and blanks. Control characters and those that only turn the direction of others would show a
// name as another one.
bool IsName(const QString& name) {
  return std::all_of(name.begin(), name.end(),
                     [](QChar letter) { return letter.isPrint() && letter.category() != QChar::Other_Format; });
}

// A name that another program stored may hold anything.
QString Shown(const QString& name) {
  QString shown;
  for (const QChar letter : name)
    shown += IsName(letter) || letter.isSurrogate()
                 ? QString(letter)
                 : QStringLiteral("\\u{%1}").arg(letter.unicode(), 4, 16, QChar('0'));
  return shown;
}

int RefuseUnknown(const QString& name) {
  return Refuse("There is no user \"" + name + "\".");
}

int Add(const QStringList& arguments) {
  CommandArguments command("user add NAME [--password PASSWORD] [--site NAME]",
                           "Adds a user, who has access to nothing until rights are given.");
  command.AddPositional("NAME", "up to 20 characters; letter case counts");
  command.AddOption(PasswordOption);
  int exitCode = 0;
  if (!command.Parse(arguments, 1, 1, exitCode)) return exitCode;
  const QString name = command.Positional()[0].trimmed();
  if (name.isEmpty() || name.size() > Users::LongestName)
    return RefuseUsage("A user's name has 1 to 20 characters.", "user add");
  if (!IsName(name)) return RefuseUsage("A user's name holds no control characters.", "user add");
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    if (Users::Exists(connection, name)) return Refuse("The user \"" + name + "\" exists already.");
    const std::optional<QString> record = NewRecord(command, name);
    if (!record) return ExitCode::Refused;
    Users::Add(connection, name, *record);
    Terminal::Print("Added the user " + name + ". Give rights with: tabulon-db user rights " + name +
                    " Tabulon add,update,delete");
    return ExitCode::Done;
  });
}

int Password(const QStringList& arguments) {
  CommandArguments command("user password NAME [--password PASSWORD] [--site NAME]", "Gives a user another password.");
  command.AddPositional("NAME", "the user");
  command.AddOption(PasswordOption);
  int exitCode = 0;
  if (!command.Parse(arguments, 1, 1, exitCode)) return exitCode;
  const QString name = command.Positional()[0];
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    if (!Users::Exists(connection, name)) return RefuseUnknown(name);
    const std::optional<QString> record = NewRecord(command, name);
    if (!record) return ExitCode::Refused;
    Users::SetPassword(connection, name, *record);
    Terminal::Print("The password of " + name + " was changed.");
    return ExitCode::Done;
  });
}

// The rights that a list of words names; nothing when a word is unknown.
std::optional<Users::Right> ReadRight(const QString& function, const QString& words) {
  Users::Right right{function};
  if (words.compare("none", Qt::CaseInsensitive) == 0) return right;
  for (const QString& word : words.toLower().split(',')) {
    if (word.trimmed() == u"add") {
      right.add = true;
    } else if (word.trimmed() == u"update") {
      right.update = true;
    } else if (word.trimmed() == u"delete") {
      right.remove = true;
    } else {
      return std::nullopt;
    }
  }
  return right;
}

QString RightWords(const Users::Right& right) {
  QStringList words;
  if (right.add) words += "add";
  if (right.update) words += "update";
  if (right.remove) words += "delete";
  return words.isEmpty() ? "none" : words.join(',');
}

int Rights(const QStringList& arguments) {
  CommandArguments command("user rights NAME FUNCTION add,update,delete|none|revoke [--site NAME]",
                           "Sets what a user may do in a function of the system: any of add, update and delete, joined "
                           "by commas; none to look only; revoke to have no access. Functions are " +
                               Users::KnownFunctions().join(", ") + '.');
  command.AddPositional("NAME", "the user");
  command.AddPositional("FUNCTION", "the function, such as Tabulon");
  command.AddPositional("RIGHTS", "add, update and delete joined by commas, or none, or revoke");
  int exitCode = 0;
  if (!command.Parse(arguments, 3, 3, exitCode)) return exitCode;
  const QString name = command.Positional()[0];
  const QString function = Users::FunctionName(command.Positional()[1].trimmed());
  const QString words = command.Positional()[2].trimmed();
  const bool revoke = words.compare("revoke", Qt::CaseInsensitive) == 0;
  const std::optional<Users::Right> right = revoke ? Users::Right{function} : ReadRight(function, words);
  if (!right) return RefuseUsage("\"" + words + "\" names no rights.", "user rights");
  if (function.isEmpty() || function.size() > Users::LongestFunction)
    return RefuseUsage("A function's name has 1 to 50 characters.", "user rights");
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    if (!Users::Exists(connection, name)) return RefuseUnknown(name);
    if (!Users::KnownFunctions().contains(function))
      Terminal::Complain("Note: no program of the system asks for the function \"" + function + "\".");
    if (revoke) {
      Users::RemoveRight(connection, name, function);
    } else {
      Users::SetRight(connection, name, *right);
    }
    Terminal::Print(name + " in " + function + ": " + (revoke ? "no access" : RightWords(*right)));
    return ExitCode::Done;
  });
}

bool NobodyGetsIn(Connection& connection) {
  const std::vector<Users::User> users = Users::List(connection);
  return std::none_of(users.begin(), users.end(), [](const Users::User& user) {
    return std::any_of(user.rights.begin(), user.rights.end(),
                       [](const Users::Right& right) { return right.function == u"Tabulon"; });
  });
}

int Remove(const QStringList& arguments) {
  CommandArguments command("user remove NAME [--site NAME]", "Removes a user with all rights.");
  command.AddPositional("NAME", "the user");
  int exitCode = 0;
  if (!command.Parse(arguments, 1, 1, exitCode)) return exitCode;
  const QString name = command.Positional()[0];
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    if (!Users::Exists(connection, name)) return RefuseUnknown(name);
    Users::Remove(connection, name);
    Terminal::Print("Removed the user " + name + '.');
    if (NobodyGetsIn(connection)) Terminal::Complain("Note: nobody has access to Tabulon any more.");
    return ExitCode::Done;
  });
}

int List(const QStringList& arguments) {
  CommandArguments command("user list [--site NAME]", "Lists the users with their rights.");
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  return WithDatabase(command, [](Connection& connection, const SiteSettings&) {
    for (const Users::User& user : Users::List(connection)) {
      Terminal::Print(Shown(user.name));
      for (const Users::Right& right : user.rights)
        Terminal::Print("  " + Shown(right.function) + ": " + RightWords(right));
    }
    return ExitCode::Done;
  });
}

const std::vector<Command>& Actions() {
  static const std::vector<Command> actions{{"add", "Adds a user.", Add},
                                            {"password", "Gives a user another password.", Password},
                                            {"rights", "Sets what a user may do in a function.", Rights},
                                            {"remove", "Removes a user with all rights.", Remove},
                                            {"list", "Lists the users with their rights.", List}};
  return actions;
}

QString Overview() {
  QString text = "Usage: tabulon-db user ACTION [options]\n\nActions:\n";
  for (const Command& action : Actions()) text += "  " + action.name.leftJustified(10) + action.summary + '\n';
  return text + "\nEach action tells more with --help.";
}

}  // namespace

int RunUser(const QStringList& arguments) {
  const QString name = arguments.value(0);
  if (name == u"--help" || name == u"-h") {
    Terminal::Print(Overview());
    return ExitCode::Done;
  }
  const auto action =
      std::find_if(Actions().begin(), Actions().end(), [&](const Command& one) { return one.name == name; });
  if (action != Actions().end()) return action->run(arguments.mid(1));
  return RefuseUsage(name.isEmpty() ? "An action is missing." : "There is no action \"" + name + "\".", "user");
}
