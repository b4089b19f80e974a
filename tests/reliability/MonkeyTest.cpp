// A monkey at the whole program: no crash, no box without words, no row that no statement wrote.
//
//   TABULON_MONKEY_STEPS  actions, 2,000 without it
//   TABULON_MONKEY_SEED   of the random actions, 1 without it
//   TABULON_MONKEY_LOG    a file for the actions as they are chosen; it is kept
#include <QDir>
#include <cstdio>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/ado/SqlTokens.h"
#include "platform/ado/StatementWords.h"
#include "reliability/DatabaseContents.h"
#include "reliability/Monkey.h"
#include "schema/SchemaModel.h"
#include "shell/Help.h"
#include "shell/Screens.h"
#include "support/Walk.h"

namespace {

constexpr int StepsOfAWindow = 150;
constexpr qint64 LongAction = 5000;  // milliseconds

// Answers at random, and tells of each message.
class RandomAnswers : public PromptService {
 public:
  RandomAnswers(Monkey& monkey, QString folder, std::function<void(const MessageRequest&)> watch)
      : monkey_(monkey), folder_(std::move(folder)), watch_(std::move(watch)), before_(SetPrompts(this)) {}
  ~RandomAnswers() override { SetPrompts(before_); }

  int Messages() const { return messages_; }

  int ShowMessage(const MessageRequest& request) override {
    ++messages_;
    const int buttons = request.style & MessageStyle::ButtonMask;
    int answer = MessageAnswer::Ok;
    if (buttons == MessageStyle::YesNo) answer = monkey_.Below(2) ? MessageAnswer::Yes : MessageAnswer::No;
    if (buttons == MessageStyle::YesNoCancel) {
      static constexpr int answers[] = {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel};
      answer = answers[monkey_.Below(3)];
    }
    monkey_.Note("  said \"" + request.text + "\" answered " + QString::number(answer));
    watch_(request);
    return answer;
  }
  std::optional<QString> OpenFile(const FileRequest&) override { return {}; }
  std::optional<QString> SaveFile(const FileRequest&) override {
    if (monkey_.Below(2) == 0) return {};
    return folder_ + "/export" + QString::number(monkey_.Below(3));
  }
  std::optional<QString> ChoosePrinter(QWidget*) override {
    return monkey_.Below(2) ? std::optional<QString>() : QString("Printer");
  }
  QStringList PrinterNames() override { return {"Printer", "Other"}; }
  void Beep() override {}

 private:
  Monkey& monkey_;
  QString folder_;
  std::function<void(const MessageRequest&)> watch_;
  PromptService* before_;
  int messages_ = 0;
};

// The tables that statements wrote, and how many rows of each at the most.
class WrittenRows {
 public:
  void Add(const StatementRecord& record) {
    if (record.failed) return;
    const QStringList statements = SplitStatements(record.text);
    for (const QString& statement : statements) {
      if (!StatementWords::IsModification(statement)) continue;
      const QString table = TableOf(statement);
      // Of several statements the record tells the rows of the last one.
      rows_[table] += statements.size() > 1 ? Any : record.affectedRows;
      for (const SchemaTable& other : SchemaModel::Get().tables)
        for (const SchemaForeignKey& key : other.foreignKeys)
          if (key.table == table && key.actions.contains("CASCADE")) rows_[other.name] = Any;
    }
  }
  qint64 Of(const QString& table) const { return rows_.value(table, 0); }
  void Forget() { rows_.clear(); }

 private:
  static constexpr qint64 Any = 1'000'000;

  static QString TableOf(const QString& statement) {
    for (const SqlToken& token : Tokenize(statement))
      if (token.kind == SqlToken::Word && token.text.startsWith("ID_", Qt::CaseInsensitive))
        return token.text.toUpper();
    return {};
  }

  QMap<QString, qint64> rows_;
};

// One life of the program: the main screen, or one of the dialogs that other programs of the system open.
class MonkeyDesk : public Walk {
 public:
  explicit MonkeyDesk(Monkey& monkey) : monkey_(monkey) {}
  void TestBody() override {}

  int Messages() const { return messages_; }
  int Checks() const { return checks_; }

  void Live(int steps) {
    Walk::SetUp();
    Help::SetOpener([](const QUrl&) { return true; });
    {
      RandomAnswers answers(monkey_, Folder(), [this](const MessageRequest& request) {
        EXPECT_NE(request.text.trimmed(), "") << "a box without words" << Trace();
        CheckRows();
      });
      rows_ = ContentsOf(Database().OtherClient());
      QWidget& window = OpenWindow();
      gclsOF->Connection().AddObserver([this](const StatementRecord& record) { written_.Add(record); });
      monkey_.Act(window, steps, [this] { return ProcessEnded() || HasFailure(); });
      CheckRows();
      messages_ = answers.Messages();
      gbRecordModified = false;
    }
    Help::SetOpener({});
    Walk::TearDown();
  }

 private:
  QWidget& OpenWindow() {
    const QStringList dialogs = RegisteredScreens();
    if (monkey_.Below(2) == 0) {
      monkey_.Note("== main screen");
      return Start();
    }
    const QString name = dialogs[monkey_.Below(static_cast<int>(dialogs.size()))];
    monkey_.Note("== " + name);
    Logon();
    const qint32 library = Ask("SELECT MIN(LIBRARY_ID) FROM ID_SUPPLIER").toInt();
    gclsOF->SetLibraryId(library);
    gclsOF->SetCallingFunction("Library Registration");
    glngNCIPLibraryId = glngFoundLibraryId = library;
    gstrCoverRequestType = Ask("SELECT MIN(REQUEST_TYPE) FROM ID_COVER_INFO");
    gstrNotesExceptionCode = "BIB";
    gstrNotesProcessType = "SEA";
    return Open(name);
  }

  std::string Trace() const { return "\nbefore it:\n" + monkey_.LastActions().join('\n').toStdString(); }

  // What changed since the last time is no more than what statements wrote.
  void CheckRows() {
    ++checks_;
    const DatabaseContents now = ContentsOf(Database().OtherClient());
    for (auto table = now.begin(); table != now.end(); ++table) {
      const TableContents& before = rows_[table.key()];
      const qint64 changed = std::max(table->Without(before).size(), before.Without(*table).size());
      EXPECT_LE(changed, written_.Of(table.key())) << table.key().toStdString() << Trace();
    }
    rows_ = now;
    // What a transaction has not stored yet is seen by the next check.
    if (!gclsOF->Connection().InTransaction()) written_.Forget();
  }

  Monkey& monkey_;
  DatabaseContents rows_;
  WrittenRows written_;
  int messages_ = 0;
  int checks_ = 0;
};

int Number(const char* variable, int otherwise) {
  const int number = qEnvironmentVariableIntValue(variable);
  return number > 0 ? number : otherwise;
}

TEST(Monkey, AtTheWholeProgram) {
  const int seed = Number("TABULON_MONKEY_SEED", 1), steps = Number("TABULON_MONKEY_STEPS", 2000);
  const QTemporaryDir folder;
  Monkey monkey(static_cast<unsigned>(seed), qEnvironmentVariable("TABULON_MONKEY_LOG", folder.filePath("monkey.log")));
  int windows = 0, messages = 0, checks = 0;
  while (monkey.Steps() < steps && !testing::Test::HasFailure()) {
    MonkeyDesk desk(monkey);
    desk.Live(std::min(StepsOfAWindow, steps - monkey.Steps()));
    ++windows;
    messages += desk.Messages();
    checks += desk.Checks();
  }
  std::printf(
      "Monkey: seed %d, %d actions in %d lives, %d messages, %d checks of all rows; longest action %lld ms (%s)\n",
      seed, monkey.Steps(), windows, messages, checks, monkey.Longest(), qPrintable(monkey.LongestAction()));
  if (monkey.Longest() > LongAction) std::printf("Monkey: that is too long for a person\n");
  EXPECT_GT(messages, 0);
}

}  // namespace
