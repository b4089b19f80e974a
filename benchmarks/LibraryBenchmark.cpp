// The library directory at 100,000 libraries: what a search, the advanced search and opening a record cost beside the
// bare statement of each. The engine is that of TABULON_TEST_ENGINE (tests/support/with-engine), SQLite without one.
// Each "Bare" case runs the statements of the case that follows it, as the observer saw them, and reads their rows; the
// ratio of the two is what the screen adds.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <cstdlib>

#include "ManyLibraries.h"
#include "Screens.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/TextBox.h"
#include "platform/desktop/Prompts.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "tools/Command.h"

namespace {

constexpr int LibraryCount = 100000;

// Nothing may ask while times are taken.
class NoPrompts : public PromptService {
 public:
  int ShowMessage(const MessageRequest& request) override {
    std::fprintf(stderr, "A message came: %s\n", qPrintable(request.text));
    std::abort();
  }
  std::optional<QString> OpenFile(const FileRequest&) override { return {}; }
  std::optional<QString> SaveFile(const FileRequest&) override { return {}; }
  std::optional<QString> ChoosePrinter(QWidget*) override { return {}; }
  QStringList PrinterNames() override { return {}; }
  void Beep() override {}
};

// Where the observer puts statements; nullptr while none are wanted.
QStringList* recorded = nullptr;

QByteArray DatabaseSection() {
  const QByteArray host = qgetenv("TABULON_TEST_HOST"), user = qgetenv("TABULON_TEST_USER");
  if (qgetenv("TABULON_TEST_ENGINE") == "postgresql")
    return "[Database]\nEngine=POSTGRESQL\nName=bench_library\nHost=" + host + "\nUser=" + user + "\n";
  return "[Database]\nEngine=SQLITE\nName=bench.db\n";
}

bool MakeSite(const QTemporaryDir& folder) {
  qputenv("OSTANA_HOME", folder.path().toUtf8());
  QFile settings(folder.filePath("Ostana.ini"));
  if (!settings.open(QIODevice::WriteOnly)) return false;
  settings.write(DatabaseSection());
  settings.close();
  if (RunTabulonDb({"create"}) != ExitCode::Done) return false;
  if (!gclsOF->LoadApplicationSettings("Tabulon", "", "bench", "bench")) return false;
  gclsOF->SetCallingFunction("Library Registration");
  gclsOF->Connection().AddObserver([](const StatementRecord& record) {
    if (recorded) recorded->append(record.text);
  });
  ManyLibraries::Add(gclsOF->Connection(), LibraryCount);
  if (qgetenv("TABULON_TEST_ENGINE") == "postgresql") gclsOF->Connection().Execute("ANALYZE");
  return true;
}

// --- Steps on the screens ---

std::unique_ptr<Screen> Opened(const QString& formName, qint32 library = 0) {
  gclsOF->SetLibraryId(library);
  std::unique_ptr<Screen> screen = MakeScreen(formName, nullptr);
  screen->ShowModeless();
  return screen;
}

// Types into the box and presses the button.
void Search(Screen& screen, const char* name, const QString& text) {
  auto* const box = screen.findChild<TextBox*>(name);
  box->SetText(text);
  Q_EMIT box->Edited(text);
  screen.findChild<QPushButton*>("cmdSearch")->click();
}

struct Step {
  const char* form;
  const char* box;
  const char* text;
  int most;  // rows that the screen reads of a list; 0 for all
};
constexpr Step WildcardAtTheEnd = {"frmLibraryRegistration", "txtLibrarySymbol", "LIB0123%", 50};
constexpr Step WildcardAtTheStart = {"frmLibraryRegistration", "txtLibrarySymbol", "%777", 50};
constexpr Step AdvancedSearch = {"frmLibrarySearch", "txtInstitution", "LEEDS", 0};
constexpr Step OpenRecord = {"frmLibraryRegistration", "txtLibrarySymbol", "LIB050000", 0};

void OnScreen(benchmark::State& state, const Step& step) {
  const std::unique_ptr<Screen> screen = Opened(step.form);
  for (auto _ : state) Search(*screen, step.box, step.text);
}

// --- The same statements alone ---

QStringList StatementsOf(const Step& step) {
  const std::unique_ptr<Screen> screen = Opened(step.form);
  QStringList statements;
  recorded = &statements;
  Search(*screen, step.box, step.text);
  recorded = nullptr;
  return statements;
}

void Bare(benchmark::State& state, const Step& step) {
  const QStringList statements = StatementsOf(step);
  for (auto _ : state) {
    for (const QString& statement : statements) {
      Recordset rows;
      rows.MaxRecords = step.most;
      OpenRows(rows, statement, {});
      state.counters["rows"] = static_cast<double>(rows.RecordCount());
    }
  }
}

// The whole screen with its lists, made, loaded and shown.
void OpenScreenOnRecord(benchmark::State& state) {
  for (auto _ : state) {
    const std::unique_ptr<Screen> screen = Opened("frmLibraryRegistration", ManyLibraries::FirstId + 50000);
    benchmark::DoNotOptimize(screen.get());
  }
}

BENCHMARK_CAPTURE(Bare, WildcardAtTheEnd, WildcardAtTheEnd)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnScreen, WildcardAtTheEnd, WildcardAtTheEnd)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Bare, WildcardAtTheStart, WildcardAtTheStart)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnScreen, WildcardAtTheStart, WildcardAtTheStart)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Bare, AdvancedSearch, AdvancedSearch)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnScreen, AdvancedSearch, AdvancedSearch)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Bare, OpenRecord, OpenRecord)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OnScreen, OpenRecord, OpenRecord)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenScreenOnRecord)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The offscreen platform says at each window what it cannot do.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  NoPrompts prompts;
  SetPrompts(&prompts);
  RegisterDialogs();
  const QTemporaryDir folder;
  if (!MakeSite(folder)) {
    std::fprintf(stderr, "The directory could not be made. %s\n", qPrintable(gclsOF->LastError()));
    return 1;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  ResetModuleState();
  return 0;
}
