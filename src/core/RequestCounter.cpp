#include "core/RequestCounter.h"

#include <QThread>
#include <optional>

#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

namespace RequestCounter {

namespace {

constexpr int Attempts = 50;
constexpr int LastNumber = 99'999'999;
constexpr unsigned long Pause = 10;  // milliseconds, when the row is locked

std::optional<int> ReadNext(Connection& connection, const QString& table) {
  Recordset rows;
  rows.Open(connection, "SELECT   NEXT_REQUEST FROM " + table);
  return rows.EOF_() ? std::nullopt : std::optional<int>(rows.Fields(0).Value().toInt());
}

bool CompareAndSet(Connection& connection, const QString& table, int number) {
  return connection.Execute("UPDATE   " + table + " SET NEXT_REQUEST = " + QString::number(number + 1) +
                            " WHERE    NEXT_REQUEST = " + QString::number(number)) == 1;
}

}  // namespace

int Take(Connection& connection, QString& reason) {
  const QString table = connection.Settings().ownerPrefix + "ID_NEXT_REQUEST";
  connection.EnsureOpen();
  for (int attempt = 0; attempt < Attempts; ++attempt) {
    try {
      const std::optional<int> number = ReadNext(connection, table);
      if (!number || *number < 1 || *number > LastNumber) {
        reason = number ? QStringLiteral("The counter of request numbers in ID_NEXT_REQUEST is out of its range.")
                        : QStringLiteral("No records exist in Table ID_NEXT_REQUEST.  Please verify table content.");
        return 0;
      }
      if (CompareAndSet(connection, table, *number)) return *number;
    } catch (const AdoError& error) {
      if (error.Number() != AdoNumber::Busy) throw;
      QThread::msleep(Pause);
    }
  }
  reason = QStringLiteral("The counter of request numbers is busy.  Please try again.");
  return 0;
}

}  // namespace RequestCounter
