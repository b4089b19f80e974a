// What the recording of changes costs a write on SQLite, beside the same write on a site without it, in one run; and
// what is found among a million recorded changes. Prints medians; the files lie below the given folder (the temporary
// one without): bench_history [FOLDER]
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "schema/History.h"
#include "site/HistoryList.h"
#include "site/Undo.h"
#include "tools/DatabaseBuilder.h"

namespace {

constexpr int Rounds = 401;

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

double Milliseconds(const std::function<void()>& act) {
  QElapsedTimer timer;
  timer.start();
  act();
  return double(timer.nsecsElapsed()) / 1e6;
}

std::unique_ptr<Connection> Site(const QString& file, bool history) {
  ConnectionSettings settings;
  settings.name = file;
  DatabaseBuilder::MakeMissing(settings);
  {
    Connection maker(settings);
    maker.Open();
    DatabaseBuilder::Create(maker, DatabaseBuilder::Rows::Sample, {{"FRE", "French"}, {"GER", "German"}});
    if (history) History::TurnOn(maker);
  }
  auto connection = std::make_unique<Connection>(settings);
  connection->Tell("admin", "Tabulon");
  connection->Open();
  return connection;
}

struct Write {
  const char* name;
  std::function<void(Connection&, int round)> act;
};

const std::vector<Write>& Writes() {
  static const std::vector<Write> writes{
      {"update of a code table's row",
       [](Connection& connection, int round) {
         connection.Execute(QString("UPDATE ID_LOAN_CODE SET LON_PERIOD = %1").arg(round) +
                            " WHERE LOAN_CODE = (SELECT MIN(LOAN_CODE) FROM ID_LOAN_CODE)");
       }},
      {"update of a library, ten of its 95 columns",
       [](Connection& connection, int round) {
         QStringList sets;
         for (const char* column : {"NOTE", "NOTICE", "CONTACT", "CONTACT_PHONE", "CONTACT_FAX", "PRIME_ADDRESS1",
                                    "PRIME_ADDRESS2", "PRIME_CITY", "BILL_CITY", "BILL_CONTACT"})
           sets += QString("%1 = 'value %2'").arg(column).arg(round);
         connection.Execute("UPDATE ID_LIBRARY SET " + sets.join(", ") + " WHERE LIBRARY_ID = 10000000");
       }},
      {"adding a printer and deleting it, a transaction",
       [](Connection& connection, int) {
         Transaction transaction(connection);
         connection.Execute("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('bench', 'lp')");
         connection.Execute("DELETE FROM ID_PRINTER WHERE PRINTER = 'bench'");
         transaction.Commit();
       }},
      {"rewriting a list of 50 rows, a transaction",
       [](Connection& connection, int round) {
         Transaction transaction(connection);
         connection.Execute("DELETE FROM ID_NCIP_STATUS WHERE LIBRARY_ID = 10000000");
         for (int row = 0; row < 50; ++row)
           connection.Execute(QString("INSERT INTO ID_NCIP_STATUS VALUES (10000000, 'S%1', '%2')")
                                  .arg(row)
                                  .arg(QString(round % 2 ? "Y" : "N")));
         transaction.Commit();
       }},
  };
  return writes;
}

// In turn, so that the machine's other work falls on both.
void CompareWrites(Connection& without, Connection& with) {
  std::printf("%-52s %10s %10s %7s\n", "write on SQLite, ms", "without", "recorded", "ratio");
  for (const Write& write : Writes()) {
    std::vector<double> bare, recorded;
    for (int round = 0; round < Rounds; ++round) {
      bare.push_back(Milliseconds([&] { write.act(without, round); }));
      recorded.push_back(Milliseconds([&] { write.act(with, round); }));
    }
    std::printf("%-52s %10.3f %10.3f %7.2f\n", write.name, Median(bare), Median(recorded),
                Median(recorded) / Median(bare));
  }
}

void FillWithAMillion(Connection& connection) {
  connection.Execute("DELETE FROM ID_HISTORY_CHANGE");
  connection.Execute("DELETE FROM ID_HISTORY_TRANSACTION WHERE TRANSACTION_ID > 1");
  connection.Define(
      "INSERT INTO ID_HISTORY_TRANSACTION (TRANSACTION_ID, MOMENT, USER_ID, PROGRAM) WITH RECURSIVE n (i) AS (SELECT 2 "
      "UNION ALL SELECT i + 1 FROM n WHERE i < 500001) SELECT i, strftime('%Y-%m-%d %H:%M:%f', 'now', '-' || (600000 - "
      "i) || ' seconds'), 'user' || (i % 7), 'Tabulon' FROM n");
  connection.Define(
      "INSERT INTO ID_HISTORY_CHANGE (TRANSACTION_ID, TABLE_NAME, ROW_KEY, KIND, OLD_VALUES, NEW_VALUES) WITH "
      "RECURSIVE "
      "n (i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 999999) SELECT 2 + i / 2, CASE i % 3 WHEN 0 THEN "
      "'ID_LIBRARY' WHEN 1 THEN 'ID_LOAN_CODE' ELSE 'ID_DEPARTMENT' END, i % 5003, 'U', '{\"NOTE\":\"old text ' || i "
      "|| '\"}', '{\"NOTE\":\"new text ' || i || '\"}' FROM n");
}

void Find(Connection& connection) {
  std::printf("\n%-52s %10s\n", "among a million changes, ms", "median");
  const auto tell = [](const char* name, const std::function<void()>& act) {
    std::vector<double> times;
    for (int round = 0; round < 15; ++round) times.push_back(Milliseconds(act));
    std::printf("%-52s %10.2f\n", name, Median(times));
  };
  const auto list = [&](const HistoryFilter& filter) {
    return [&connection, filter] { HistoryList::Read(connection, filter); };
  };
  tell("the newest 100 transactions", list({}));
  tell("those of one record", list({.tables = {"ID_LIBRARY"}, .key = "42"}));
  tell("those of a record that has none", list({.tables = {"ID_LIBRARY"}, .key = "none"}));
  tell("those of one user", list({.user = "user3"}));
  tell("those of one table", list({.tables = {"ID_DEPARTMENT"}}));
  tell("those of a day", list({.to = "2020-01-01"}));
  connection.Execute("UPDATE ID_LIBRARY SET NOTE = 'x' WHERE LIBRARY_ID = 10000000");
  const int last = HistoryList::Read(connection, HistoryFilter{.most = 1}).front().id;
  tell("what undoing one would write", [&] { Undo(connection, {last}, false); });
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QTemporaryDir folder((argc > 1 ? QString(argv[1]) : QDir::tempPath()) + "/bench_history.XXXXXX");
  const auto without = Site(folder.filePath("without.db"), false);
  const auto with = Site(folder.filePath("with.db"), true);
  CompareWrites(*without, *with);
  FillWithAMillion(*with);
  Find(*with);
  std::printf("\nwith a million changes recorded before:\n");
  CompareWrites(*without, *with);
  return 0;
}
