#include <algorithm>

#include "schema/History.h"
#include "schema/SchemaSql.h"
#include "site/FormerState.h"
#include "site/Undo.h"
#include "tools/Command.h"
#include "tools/Terminal.h"

namespace {

// --- on, off, status, prune ---

int Counted(Connection& connection, const QString& table) {
  return SchemaSql::Values(connection, "SELECT COUNT(*) FROM " + SchemaSql::Table(connection, table)).value(0).toInt();
}

int On(const QStringList& arguments) {
  CommandArguments command("history on [--site NAME]",
                           "Records from now on who changes which setting or right, in the transaction that makes the "
                           "change. Where the recording is on already, what is missing of it is completed.");
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  return WithDatabase(command, [](Connection& connection, const SiteSettings&) {
    const bool wasOn = History::IsOn(connection);
    const int made = History::TurnOn(connection);
    if (!wasOn) {
      Terminal::Print(QStringLiteral("Changes are recorded from now on: %1 tables.").arg(History::Tables().size()));
      Terminal::Print("Programs that run already are known by their user of the database until they start again.");
    } else {
      Terminal::Print(made == 0
                          ? QStringLiteral("The recording was on already, and whole.")
                          : QStringLiteral("The recording was on already; %1 triggers were made anew.").arg(made));
    }
    return ExitCode::Done;
  });
}

int RefuseOff() {
  return Refuse("The site keeps no history. It begins with tabulon-db history on.");
}

// Of a site that has a history.
int WithHistory(const CommandArguments& command, const std::function<int(Connection&)>& body) {
  return WithDatabase(command, [&](Connection& connection, const SiteSettings&) {
    return History::IsOn(connection) ? body(connection) : RefuseOff();
  });
}

int Off(const QStringList& arguments) {
  CommandArguments command("history off [--discard] [--site NAME]",
                           "Ends the recording and removes its tables and triggers. What was recorded goes with them.");
  command.AddOption({"discard", "Also when changes are recorded, which are lost."});
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  return WithHistory(command, [&](Connection& connection) {
    const int changes = Counted(connection, "ID_HISTORY_CHANGE");
    if (changes > 0 && !command.IsSet("discard"))
      return Refuse(QStringLiteral("%1 changes are recorded and would be lost. With --discard they are.").arg(changes));
    History::TurnOff(connection);
    Terminal::Print("The recording is off, and its tables are gone.");
    return ExitCode::Done;
  });
}

int Status(const QStringList& arguments) {
  CommandArguments command("history status [--site NAME]",
                           "Tells whether changes are recorded, since when, and how many are. The exit status is 1 "
                           "when the recording has gaps.");
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  return WithDatabase(command, [](Connection& connection, const SiteSettings&) {
    const std::optional<QString> since = History::Since(connection);
    if (!since) {
      Terminal::Print("Changes are not recorded.");
      return ExitCode::Done;
    }
    Terminal::Print("Changes are recorded since " + *since + " (UTC).");
    Terminal::Print(QStringLiteral("%1 changes in %2 transactions.")
                        .arg(Counted(connection, "ID_HISTORY_CHANGE"))
                        .arg(Counted(connection, "ID_HISTORY_TRANSACTION") - 1));
    const QStringList gaps = History::Gaps(connection);
    for (const QString& gap : gaps) Terminal::Print(gap);
    return gaps.isEmpty() ? ExitCode::Done : ExitCode::Refused;
  });
}

int Prune(const QStringList& arguments) {
  CommandArguments command("history prune --before MOMENT [--site NAME]",
                           "Removes what was recorded before a moment. Earlier states cannot be told any more.");
  command.AddOption({"before", "A day or a moment in UTC, such as \"2024-01-31\".", "MOMENT"});
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  const std::optional<QString> moment = FormerState::Moment(command.Value("before"));
  if (!moment) return RefuseUsage("--before takes a day or a moment.", "history prune");
  return WithHistory(command, [&](Connection& connection) {
    if (*moment > History::Now(connection)) return Refuse("The moment " + *moment + " (UTC) has not come yet.");
    Terminal::Print(QStringLiteral("Removed %1 changes. The history begins with %2 (UTC).")
                        .arg(History::Prune(connection, *moment))
                        .arg(History::Since(connection).value_or(QString())));
    return ExitCode::Done;
  });
}

// --- list ---

void Print(const HistoryTransaction& transaction) {
  QString head = QStringLiteral("%1  %2").arg(transaction.id).arg(transaction.moment);
  for (const QString& word : {transaction.user, transaction.program})
    if (!word.isEmpty()) head += "  " + word;
  Terminal::Print(head);
  for (const HistoryChange& change : transaction.changes)
    for (const QString& line : HistoryList::Lines(change)) Terminal::Print("    " + line);
}

// What is wrong with the options; empty when they could be read.
QString ReadFilter(const CommandArguments& command, HistoryFilter& filter) {
  for (const char* option : {"from", "to"})
    if (command.IsSet(option) && !FormerState::Moment(command.Value(option)))
      return '"' + command.Value(option) + "\" is no moment.";
  filter.from = command.Value("from").trimmed();
  filter.to = command.Value("to").trimmed();
  filter.user = command.Value("user");
  filter.text = command.Value("text");
  for (const QString& word : command.Value("tables").split(',', Qt::SkipEmptyParts)) {
    const SchemaTable* const table = SchemaModel::Get().Find(word.trimmed());
    if (!table || !History::IsRecorded(*table)) return "No changes are recorded of a table \"" + word.trimmed() + "\".";
    filter.tables += table->name;
  }
  if (command.IsSet("key")) {
    if (filter.tables.size() != 1) return "--key tells a row of the one table of --tables.";
    const SchemaTable* const table = SchemaModel::Get().Find(filter.tables.front());
    const QStringList key = command.Values("key");
    const qsizetype columns = Content::RowKey(*table).value_or(QStringList()).size();
    if (key.size() != columns)
      return QStringLiteral("The key of %1 has %2 columns; --key stands once for each.").arg(table->name).arg(columns);
    filter.key = History::KeyText(Row(key.begin(), key.end()));
  }
  if (command.IsSet("most")) {
    bool number = false;
    filter.most = command.Value("most").toInt(&number);
    if (!number || filter.most < 1) return "--most takes a number.";
  }
  return {};
}

int List(const QStringList& arguments) {
  CommandArguments command(
      "history list [--from MOMENT] [--to MOMENT] [--user NAME]\n"
      "                               [--tables A,B,...] [--key VALUE ...] [--text TEXT] [--most N] [--site NAME]",
      "Lists recorded transactions, the newest first: number, moment in UTC, user and program, and what was added (+), "
      "changed (~) and removed (-). Of passwords and card data it tells only that they were.");
  command.AddOption({"from", "Not before this moment, such as \"2024-01-31\" or \"2024-01-31 10:00\".", "MOMENT"});
  command.AddOption({"to", "Not after this moment, or this day.", "MOMENT"});
  command.AddOption({"user", "Only what this user changed.", "NAME"});
  command.AddOption({"tables", "Only where one of these tables was changed, joined by commas.", "TABLES"});
  command.AddOption({"key", "Only the row of this key; once for each column of the key, in its order.", "VALUE"});
  command.AddOption({"text", "Only where this text stands in a key or a value.", "TEXT"});
  command.AddOption({"most", "So many transactions at the most; 100 without the option.", "N"});
  int exitCode = 0;
  if (!command.Parse(arguments, 0, 0, exitCode)) return exitCode;
  HistoryFilter filter;
  const QString wrong = ReadFilter(command, filter);
  if (!wrong.isEmpty()) return RefuseUsage(wrong, "history list");
  return WithHistory(command, [&](Connection& connection) {
    const std::vector<HistoryTransaction> found = HistoryList::Read(connection, filter);
    for (const HistoryTransaction& transaction : found) Print(transaction);
    if (found.empty()) Terminal::Print("No changes.");
    return ExitCode::Done;
  });
}

// --- undo ---

int RunUndo(Connection& connection, const std::vector<int>& ids, bool keepSecrets, bool dryRun) {
  Transaction transaction(connection);
  Undo undo(connection, ids, keepSecrets);
  for (const QString& line : undo.Lines()) Terminal::Print(line);
  if (!undo.Refusals().isEmpty()) return Refuse(undo.Refusals().join('\n') + "\nNothing was changed.");
  try {
    undo.Run();
    if (!dryRun) transaction.Commit();
  } catch (const AdoError& error) {
    if (error.ConnectionLost()) throw;
    return Refuse(error.Description() + "\nNothing was changed.");
  }
  for (const QString& note : undo.Notes()) Terminal::Complain("Note: " + note);
  Terminal::Print(QStringLiteral("%1 %2 rows written.")
                      .arg(dryRun ? "Dry run, nothing was changed. It would be:" : "Done:")
                      .arg(undo.Rows()));
  return ExitCode::Done;
}

int UndoThem(const QStringList& arguments) {
  CommandArguments command(
      "history undo ID... [--dry-run] [--keep-secrets] [--site NAME]",
      "Takes recorded transactions back, all or nothing; their numbers are those of tabulon-db history list. Refused "
      "is "
      "what has changed since, with who changed it and when, and what the database refuses. The undo is a transaction "
      "of its own that is recorded and can be undone.");
  command.AddPositional("ID", "the number of a transaction");
  command.AddOption({"dry-run", "Tells what would be written, or refused, and changes nothing."});
  command.AddOption(
      {"keep-secrets",
       "Takes back the rest where passwords or card data were changed, which the history does not keep."});
  int exitCode = 0;
  constexpr int Most = 1000;
  if (!command.Parse(arguments, 1, Most, exitCode)) return exitCode;
  std::vector<int> ids;
  for (const QString& word : command.Positional()) {
    bool number = false;
    ids.push_back(word.toInt(&number));
    if (!number || ids.back() < 1) return RefuseUsage('"' + word + "\" is no number of a transaction.", "history undo");
  }
  return WithHistory(command, [&](Connection& connection) {
    return RunUndo(connection, ids, command.IsSet("keep-secrets"), command.IsSet("dry-run"));
  });
}

const std::vector<Command>& Actions() {
  static const std::vector<Command> actions{{"on", "Records changes from now on.", On},
                                            {"off", "Ends the recording and removes what was recorded.", Off},
                                            {"status", "Tells whether changes are recorded, and since when.", Status},
                                            {"prune", "Removes what was recorded before a moment.", Prune},
                                            {"list", "Lists recorded changes.", List},
                                            {"undo", "Takes recorded transactions back.", UndoThem}};
  return actions;
}

}  // namespace

int RunHistory(const QStringList& arguments) {
  return RunAction("history", Actions(), arguments);
}
