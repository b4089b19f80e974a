// What was not read is never written: each read of each screen fails once, then every writing command that can be
// pressed is pressed. The database is what it was, or holds exactly what the user entered.
//
// The screens are those of the table of writing screens, which is complete; what they read is learned by a run that
// nothing disturbs.
//
//   TABULON_READING_FULL   every command by button, menu entry and key, and the whole database is compared; by default
//                          the entry is pressed where the button is off, and the tables are compared that were written
//   TABULON_WRITE_READING  a file to which the failing cases are appended, as lines of ReadingKnownFailures.txt
#include <QFile>
#include <QRegularExpression>

#include "reliability/Effect.h"
#include "reliability/Readings.h"
#include "reliability/SentStatements.h"
#include "schema/SchemaModel.h"
#include "support/Folders.h"

namespace {

// --- Known failures ---

// A line for each case that fails today; it goes when the case passes.
QStringList KnownFailures() {
  QFile file(SourceFolder() + "/tests/reliability/ReadingKnownFailures.txt");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

QStringList KnownFailuresOf(const WritingScreen& screen) {
  return KnownFailures().filter(QRegularExpression("^" + QString(screen.name) + ", "));
}

void WriteDown(const QStringList& failures) {
  if (qEnvironmentVariableIsEmpty("TABULON_WRITE_READING")) return;
  QFile file(qEnvironmentVariable("TABULON_WRITE_READING"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Append));
  for (const QString& failure : failures) file.write((failure + '\n').toUtf8());
}

// --- Commands ---

struct Command {
  QString name;
  QString action;  // whose effect it may have
  std::function<void(ReadingDesk&)> enter;
  std::function<void(ReadingDesk&)> press;
};

bool IsFull() {
  return !qEnvironmentVariableIsEmpty("TABULON_READING_FULL");
}

// The command by its button, menu entry and key; where only one way is tried, it is the entry of a button that is off.
void AddWays(std::vector<Command>& commands, const QString& verb, const std::function<void(ReadingDesk&)>& enter,
             const Step& press) {
  const QString button = "cmd" + verb, entry = "mnuOptions" + verb;
  const auto byEntry = [entry](ReadingDesk& desk) {
    if (desk.CanTrigger(entry)) desk.Trigger(entry);
  };
  commands.push_back({verb, verb, enter, [=](ReadingDesk& desk) {
                        const bool off = !desk.CanClick(button);
                        press(desk);
                        if (off) byEntry(desk);
                      }});
  if (!IsFull()) return;
  commands.push_back({verb + " by menu", verb, enter, byEntry});
  commands.push_back({verb + " by key", verb, enter, [=](ReadingDesk& desk) {
                        if (desk.CanClick(button)) desk.PressKeyOf(button);
                      }});
}

void CloseWindow(ReadingDesk& desk) {
  desk.Window()->close();
}

std::vector<Command> CommandsOf(const WritingScreen& screen) {
  constexpr int Round = 7;  // no preparation of a reading has it
  std::vector<Command> commands;
  const auto change = [&screen](ReadingDesk& desk) { screen.EnterChange(desk, Round); };
  const auto create = [&screen](ReadingDesk& desk) { screen.EnterNew(desk, Round); };
  const auto nothing = [](ReadingDesk&) {};
  const bool deletes = screen.remove || std::any_of(screen.moreActions.begin(), screen.moreActions.end(),
                                                    [](const auto& action) { return action.name == u"Delete"; });
  if (screen.write) {
    AddWays(commands, "Update", change, screen.write);
    // The user closes the window and wants to keep the changes.
    commands.push_back({"Close", "Close", change, CloseWindow});
  }
  if (screen.add) AddWays(commands, "Add", create, screen.add);
  if (deletes)
    AddWays(commands, "Delete", nothing,
            screen.remove ? screen.remove : Step([](ReliabilityDesk& desk) { desk.Click("cmdDelete"); }));
  return commands;
}

// --- The cases of a screen ---

QString Comparable(QString text) {
  return text.replace("\r\n", "\n").trimmed().toUpper();
}

class ReadingTest : public testing::TestWithParam<const WritingScreen*> {
 protected:
  const WritingScreen& Subject() const { return *GetParam(); }

  // One run that nothing disturbs tells what an action does. Asked while no desk stands, for the first time.
  static const QMap<QString, Effect>& EffectsOf(const WritingScreen& screen) {
    static std::map<const WritingScreen*, QMap<QString, Effect>> learned;
    QMap<QString, Effect>& effects = learned[&screen];
    if (!effects.isEmpty()) return effects;
    for (const WritingAction& action : screen.Actions()) {
      ReadingDesk desk;
      action.prepare(desk, 1);
      const DatabaseContents before = desk.Contents();
      action.press(desk);
      effects[action.name] = EffectOf(before, desk.Contents());
    }
    if (!screen.write) return effects;
    ReadingDesk desk;
    screen.open(desk);
    const DatabaseContents before = desk.Contents();
    screen.EnterChange(desk, 1);
    CloseWindow(desk);
    effects["Close"] = EffectOf(before, desk.Contents());
    return effects;
  }

  QStringList LearnReads(const Reading& reading) {
    ReadingDesk desk;
    reading.before(desk);
    desk.Reads().Count();
    reading.read(desk);
    QStringList reads;
    for (const QString& statement : desk.Reads().Sent())
      if (const QString inShort = InShort(QStringList(statement)); inShort.startsWith("read ")) reads += inShort;
    EXPECT_EQ(reads.size(), desk.Reads().Reads());
    return reads;
  }

  // The texts on show that tell which record it is, by column. Passwords are stored otherwise than they are shown.
  QMap<QString, QString> OnShow(const ReadingDesk& desk) {
    QMap<QString, QString> shown;
    for (const auto& fields : {Subject().keys, Subject().fields})
      for (const WritingField& field : fields) {
        const auto* const box = desk.Window()->findChild<QWidget*>(field.box);
        if (!field.twin && box && box->isVisible()) shown[field.column] = desk.Text(field.box);
      }
    return shown;
  }

  // Whether a screen may do that by the action.
  static bool IsAllowed(const WritingScreen& screen, const QString& action, const Effect& effect) {
    const Effect whole = EffectsOf(screen).value(action);
    for (auto table = effect.begin(); table != effect.end(); ++table) {
      if (screen.counters.contains(table.key())) continue;
      const auto allowed = whole.find(table.key());
      if (allowed == whole.end() || table->gone != allowed->gone || table->come != allowed->come) return false;
      QSet<QString> columns = table->columns - allowed->columns;
      for (const QString& column : screen.ownColumns) columns -= column;
      if (!columns.isEmpty()) return false;
    }
    return true;
  }

  // Why what was done may not be; nothing when it may.
  QStringList Objections(const QSet<QString>& actions, const DatabaseContents& before, const DatabaseContents& after,
                         const QMap<QString, QString>& shown) {
    QStringList objections;
    const Effect effect = EffectOf(before, after);
    // Another list may have been chosen in the place of the screen's own.
    const bool allowed = std::any_of(WritingScreens().begin(), WritingScreens().end(), [&](const auto& screen) {
      return QString(screen.place) == Subject().place &&
             std::any_of(actions.begin(), actions.end(),
                         [&](const auto& action) { return IsAllowed(screen, action, effect); });
    });
    if (!allowed) objections += "did " + Told(effect);
    for (const RowCells& row : before[Subject().table].Without(after[Subject().table]))
      for (auto cell = shown.begin(); cell != shown.end(); ++cell)
        if (row.contains(cell.key()) && Comparable(row[cell.key()]) != Comparable(*cell))
          objections += QString("wrote over '%2' in %1 while '%3' was on show").arg(cell.key(), row[cell.key()], *cell);
    return objections;
  }

  // Keeps the tables that the statement changes: the one that it names and those whose rows go with its rows.
  static void LookBefore(const QString& statement, ReadingDesk& desk, DatabaseContents& before) {
    static const QRegularExpression written("^\\s*(?:INSERT\\s+(?:INTO\\s+)?|UPDATE\\s+|DELETE\\s+(?:FROM\\s+)?)(\\w+)",
                                            QRegularExpression::CaseInsensitiveOption);
    if (IsFull()) {
      if (before.isEmpty()) before = desk.Contents();
      return;
    }
    const QString named = written.match(statement).captured(1).toUpper();
    ASSERT_FALSE(named.isEmpty()) << statement.toStdString();
    for (const SchemaTable& table : SchemaModel::Get().tables)
      if (!before.contains(table.name) && (table.name == named || Follows(table, named)))
        before.insert(desk.Contents({table.name}));
  }
  static bool Follows(const SchemaTable& table, const QString& parent) {
    return std::any_of(table.foreignKeys.begin(), table.foreignKeys.end(),
                       [&](const auto& key) { return key.table == parent && key.actions.contains("CASCADE"); });
  }

  // The case: the read of that number fails, or none with 0, then the command is pressed.
  QStringList Try(const Reading& reading, int failing, const Command& command) {
    ReadingDesk desk;
    reading.before(desk);
    const bool writes = EffectsOf(Subject()).contains(reading.name);
    DatabaseContents before;
    const auto look = [&](const QString& statement) { LookBefore(statement, desk, before); };
    desk.Reads().Count(failing, look);
    ReadingDesk::Attempt([&] { reading.read(desk); });
    EXPECT_EQ(desk.Reads().Failed(), failing > 0) << "was not sent again";
    QStringList objections;
    if (desk.Reads().Wrote()) objections = Objections({reading.name}, before, desk.Contents(before.keys()), {});
    before.clear();
    if (!objections.isEmpty() || !IsInFront(desk, Subject())) return objections;

    desk.Reads().Count(0, look);
    const QMap<QString, QString> shown = writes ? QMap<QString, QString>() : OnShow(desk);
    ReadingDesk::Attempt([&] {
      // What was entered for the action is there still.
      if (command.action != reading.name && !(command.action == u"Close" && writes)) command.enter(desk);
      if (IsInFront(desk, Subject())) command.press(desk);
    });
    if (!desk.Reads().Wrote()) return {};
    // The same button adds or changes, on some screens.
    QSet<QString> actions{command.action};
    if (writes) actions += reading.name;
    return Objections(actions, before, desk.Contents(before.keys()), shown);
  }

  // The same; what is done without a failure as well is no fault of the reading.
  QString Fault(const Reading& reading, int failing, const Command& command) {
    QStringList objections = Try(reading, failing, command);
    if (!objections.isEmpty())
      for (const QString& always : Try(reading, 0, command)) objections.removeAll(always);
    return objections.join("; ");
  }

  // As lines of the list, each with what happened.
  QMap<QString, QString> Failing() {
    QMap<QString, QString> failing;
    for (const WritingScreen& screen : WritingScreens())
      if (QString(screen.place) == Subject().place) EffectsOf(screen);
    const std::vector<Command> commands = CommandsOf(Subject());
    for (const Reading& reading : ReadingsOf(Subject())) {
      QMap<QString, int> times;
      int number = 0;
      for (const QString& read : LearnReads(reading)) {
        ++number;
        const QString which = read + (++times[read] > 1 ? " again" : "");
        for (const Command& command : commands) {
          const QString line = QStringList{Subject().name, reading.name, which, command.name}.join(", ");
          SCOPED_TRACE(line.toStdString());
          if (const QString why = Fault(reading, number, command); !why.isEmpty()) failing[line] = why;
          ++cases_;
        }
      }
    }
    return failing;
  }

  int cases_ = 0;
};

TEST_P(ReadingTest, WritesNothingThatWasNotRead) {
  const QMap<QString, QString> failing = Failing();
  RecordProperty("cases", cases_);
  WriteDown(failing.keys());
  const QStringList known = KnownFailuresOf(Subject());
  for (auto failure = failing.begin(); failure != failing.end(); ++failure)
    EXPECT_TRUE(known.contains(failure.key())) << failure.key().toStdString() << ": " << failure->toStdString();
  for (const QString& line : known)
    EXPECT_TRUE(failing.contains(line)) << "is no longer failing: take it off the list: " << line.toStdString();
}

std::vector<const WritingScreen*> Screens() {
  std::vector<const WritingScreen*> screens;
  for (const WritingScreen& screen : WritingScreens()) screens.push_back(&screen);
  return screens;
}

INSTANTIATE_TEST_SUITE_P(Screens, ReadingTest, testing::ValuesIn(Screens()),
                         [](const auto& screen) { return screen.param->name; });

TEST(ReadingKnownFailures, AreSortedAndOfScreens) {
  const QStringList known = KnownFailures();
  QStringList sorted = known;
  sorted.sort();
  sorted.removeDuplicates();
  EXPECT_EQ(known, sorted);
  for (const QString& line : known)
    EXPECT_TRUE(std::any_of(WritingScreens().begin(), WritingScreens().end(), [&](const WritingScreen& screen) {
      return line.startsWith(QString(screen.name) + ", ");
    })) << line.toStdString();
}

}  // namespace
