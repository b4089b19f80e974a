#include "site/FormerState.h"

#include <QDateTime>
#include <algorithm>
#include <stdexcept>

#include "schema/History.h"
#include "schema/SchemaSql.h"
#include "site/Rewind.h"

namespace {

[[noreturn]] void Refuse(const QString& reason) {
  throw std::runtime_error(reason.toStdString());
}

void CheckReach(Connection& connection, const QString& moment) {
  const std::optional<QString> since = History::Since(connection);
  if (!since) Refuse("The site keeps no history. It begins with tabulon-db history on.");
  if (moment < *since) Refuse("The history begins with " + *since + " (UTC), and does not reach " + moment + '.');
  const QString now = History::Now(connection);
  if (moment > now) Refuse("The moment " + moment + " (UTC) has not come yet; it is " + now + '.');
  const QStringList gaps = History::Gaps(connection);
  if (!gaps.isEmpty()) Refuse(gaps.join('\n'));
}

// Numbers of the transactions behind the moment, newest first. Clocks are set back at times: what came behind the last
// transaction of the time before is behind it.
std::vector<int> Behind(Connection& connection, const QString& moment) {
  const QString table = SchemaSql::Table(connection, "ID_HISTORY_TRANSACTION");
  std::vector<int> ids;
  for (const QString& id : SchemaSql::Values(
           connection,
           "SELECT TRANSACTION_ID FROM " + table + " WHERE TRANSACTION_ID > " + "(SELECT MAX(TRANSACTION_ID) FROM " +
               table + " WHERE MOMENT <= " + SchemaSql::Literal(connection, moment) + ") ORDER BY TRANSACTION_ID DESC"))
    ids.push_back(id.toInt());
  return ids;
}

}  // namespace

std::optional<QString> FormerState::Moment(const QString& text) {
  static const QString start = QStringLiteral("0000-00-00 00:00:00.000");
  QString whole = text.trimmed();
  whole.replace(u'T', u' ');
  if (whole.size() < 10 || whole.size() > start.size()) return std::nullopt;
  whole += start.mid(whole.size());
  const QDate date = QDate::fromString(whole.left(10), Qt::ISODate);
  const QTime time = QTime::fromString(whole.mid(11), "hh:mm:ss.zzz");
  if (!date.isValid() || !time.isValid()) return std::nullopt;
  return whole;
}

std::vector<TableContent> FormerState::At(Connection& connection, std::vector<TableContent> now,
                                          const QString& moment) {
  CheckReach(connection, moment);
  Rewind rewind;
  for (TableContent& content : now) rewind.Add(std::move(content));
  std::vector<const HistoryChange*> changes;
  const std::vector<HistoryTransaction> transactions = HistoryList::Read(connection, Behind(connection, moment));
  for (const HistoryTransaction& transaction : transactions)
    for (const HistoryChange& change : transaction.changes) changes.push_back(&change);
  std::sort(changes.begin(), changes.end(), [](const auto* one, const auto* other) { return one->id > other->id; });
  for (const HistoryChange* change : changes) {
    if (rewind.TakeBack(*change)) continue;
    Refuse(QStringLiteral("The history does not lead back to %1: what it tells of the row %2 of %3 is not what the "
                          "database holds. Something was changed without being recorded.")
               .arg(moment, HistoryList::RowText(*change->table, change->key), change->table->name));
  }
  if (const std::vector<Rewind::Unknown> unknown = rewind.UnknownSecrets(); !unknown.empty()) {
    const Rewind::Unknown& secret = unknown.front();
    Refuse("The history keeps no passwords and card data, and " + secret.column + " of the row " + secret.row + " of " +
           secret.table->name + " has changed since.");
  }
  return rewind.Contents();
}
