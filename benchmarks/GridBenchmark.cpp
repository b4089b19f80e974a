// A code table of 100,000 rows: load into the grid against a bare read of the same rows into strings through SQLite's
// own interface, sort, duplicate scan, memory of a row.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

#include <QApplication>
#include <QTemporaryDir>
#include <optional>

#include "core/ModuleState.h"
#include "core/SqlText.h"
#include "platform/ado/Connection.h"
#include "platform/controls/Grid.h"
#include "shell/GridTable.h"

namespace {

constexpr int RowCount = 100000;
const QString Select = "SELECT * FROM ID_BENCH ORDER BY BENCH";

QString File() {
  static QTemporaryDir folder;
  static QString path;
  if (!path.isEmpty()) return path;
  path = folder.filePath("bench.db");
  sqlite3* database = nullptr;
  sqlite3_open(path.toUtf8().constData(), &database);
  sqlite3_exec(database,
               "CREATE TABLE ID_BENCH (BENCH VARCHAR(10) PRIMARY KEY, BENCH_DESC VARCHAR(50), BENCH_DESC_ENG "
               "VARCHAR(50), BENCH_DESC_FRE VARCHAR(50), WEB_FLAG VARCHAR(1));"
               "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) INSERT INTO ID_BENCH "
               "SELECT printf('C%06d', i), 'Description of row ' || i, 'Description of row ' || i, 'Description du "
               "rang ' || i, CASE i % 2 WHEN 0 THEN 'Y' END FROM n;",
               nullptr, nullptr, nullptr);
  sqlite3_close(database);
  return path;
}

// Closed before main returns: QtSql is gone when statics end.
std::optional<Connection> connection;

Connection& Opened() {
  if (!connection) {
    ConnectionSettings settings;
    settings.name = File();
    connection.emplace(settings);
    connection->Open();
  }
  return *connection;
}

void Fill(Grid& grid) {
  Recordset rows;
  rows.Open(Opened(), Select);
  FillGridFrom(grid, rows, {"BENCH", "BENCH_DESC", "", "WEB_FLAG"});
}

void BareRead(benchmark::State& state) {
  sqlite3* database = nullptr;
  sqlite3_open(File().toUtf8().constData(), &database);
  for (auto _ : state) {
    std::vector<std::array<QString, 5>> rows;
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, Select.toUtf8().constData(), -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) {
      auto& row = rows.emplace_back();
      for (int column = 0; column < 5; ++column) {
        const void* const text = sqlite3_column_text16(statement, column);
        row[static_cast<size_t>(column)] =
            QString(static_cast<const QChar*>(text), sqlite3_column_bytes16(statement, column) / 2);
      }
    }
    sqlite3_finalize(statement);
    benchmark::DoNotOptimize(rows.data());
  }
  sqlite3_close(database);
}
BENCHMARK(BareRead)->Unit(benchmark::kMillisecond);

void RecordsetRead(benchmark::State& state) {
  for (auto _ : state) {
    Recordset rows;
    rows.Open(Opened(), Select);
    benchmark::DoNotOptimize(rows.RecordCount());
  }
}
BENCHMARK(RecordsetRead)->Unit(benchmark::kMillisecond);

void GridLoad(benchmark::State& state) {
  for (auto _ : state) {
    Grid grid(nullptr, "grd", 5);
    Fill(grid);
    benchmark::DoNotOptimize(grid.Rows());
  }
}
BENCHMARK(GridLoad)->Unit(benchmark::kMillisecond);

void GridSort(benchmark::State& state) {
  Grid grid(nullptr, "grd", 5);
  Fill(grid);
  bool up = false;
  for (auto _ : state) {
    grid.Sort(2, up ? Qt::AscendingOrder : Qt::DescendingOrder);
    up = !up;
  }
}
BENCHMARK(GridSort)->Unit(benchmark::kMillisecond);

// Add looks whether the code is on the grid already: here it is not, so every row is looked at.
void DuplicateScan(benchmark::State& state) {
  Grid grid(nullptr, "grd", 5);
  Fill(grid);
  for (auto _ : state) benchmark::DoNotOptimize(grid.FindRow("C999999", 1));
}
BENCHMARK(DuplicateScan)->Unit(benchmark::kMillisecond);

void MemoryOfARow(benchmark::State& state) {
  for (auto _ : state) {
    malloc_trim(0);
    const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    Grid grid(nullptr, "grd", 5);
    Fill(grid);
    const size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
    size_t text = 0;
    for (int row = 1; row < grid.Rows(); ++row)
      for (int col = 0; col < grid.Cols(); ++col) text += static_cast<size_t>(grid.Text(row, col).size()) * 2;
    state.counters["bytes_a_row_beyond_text"] =
        (static_cast<double>(after - before) - static_cast<double>(text)) / RowCount;
  }
}
BENCHMARK(MemoryOfARow)->Iterations(1);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  connection.reset();
  return 0;
}
