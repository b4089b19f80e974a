#include "site/Undo.h"

#include <algorithm>
#include <set>

#include "schema/ChangeRunner.h"
#include "schema/History.h"
#include "schema/SchemaSql.h"
#include "schema/SecretColumns.h"

namespace {

// Rows are read one by one up to this number, then with their whole table.
constexpr size_t FewRows = 200;

QString KeyCondition(const Connection& connection, const SchemaTable& table, const QString& key) {
  const std::optional<QStringList> names = Content::RowKey(table);
  if (!names || names->isEmpty()) return {};
  const Row cells = History::KeyCells(key);
  QStringList conditions;
  for (qsizetype i = 0; i < names->size() && static_cast<size_t>(i) < cells.size(); ++i) {
    const Cell& cell = cells[static_cast<size_t>(i)];
    conditions += (*names)[i] + (cell ? " = " + SchemaSql::Literal(connection, *cell) : QStringLiteral(" IS NULL"));
  }
  return '(' + conditions.join(" AND ") + ')';
}

// " WHERE ..." with the rows of these keys; empty where all of the table are to be read.
QString WhereOf(const Connection& connection, const SchemaTable& table, const std::set<QString>& keys) {
  if (keys.size() > FewRows) return {};
  QStringList conditions;
  for (const QString& key : keys) conditions += KeyCondition(connection, table, key);
  return conditions.contains(QString()) ? QString() : " WHERE " + conditions.join(" OR ");
}

QString KeyOf(const TableDifference& difference, const Row& row) {
  Row key;
  for (const size_t position : difference.Key()) key.push_back(row[position]);
  return History::KeyText(key);
}

HistoryValue Told(const SchemaColumn& column, const Cell& cell) {
  if (cell && NamesSecretColumn(column.name)) return {std::nullopt, true};
  return {cell, false};
}

QString By(const HistoryTransaction& transaction) {
  return QStringLiteral("transaction %1 of %2 (UTC) by %3")
      .arg(transaction.id)
      .arg(transaction.moment, transaction.user.isEmpty() ? QStringLiteral("another program") : transaction.user);
}

}  // namespace

Undo::Undo(Connection& connection, const std::vector<int>& ids, bool keepSecrets)
    : connection_(connection), keepSecrets_(keepSecrets) {
  const std::vector<HistoryTransaction> transactions = HistoryList::Read(connection, ids);
  RefuseMissing(ids, transactions);
  if (!refusals_.isEmpty()) return;
  Read(transactions);
  Rewind rewind;
  for (const TableContent& content : now_) rewind.Add(content);
  // Transactions can have run side by side.
  std::vector<const HistoryChange*> changes;
  for (const HistoryTransaction& transaction : transactions)
    for (const HistoryChange& change : transaction.changes) changes.push_back(&change);
  std::sort(changes.begin(), changes.end(), [](const auto* one, const auto* other) { return one->id > other->id; });
  for (const HistoryChange* change : changes) {
    if (rewind.TakeBack(*change)) continue;
    refusals_ += Refused(*rewind.Failure(), transactions);
    return;
  }
  TellUnknown(rewind);
  const std::vector<TableContent> before = rewind.Contents();
  for (size_t i = 0; i < before.size(); ++i) differences_.push_back(Compare(before[i], now_[i]));
}

void Undo::RefuseMissing(const std::vector<int>& ids, const std::vector<HistoryTransaction>& found) {
  for (const int id : ids) {
    const auto one =
        std::find_if(found.begin(), found.end(), [&](const HistoryTransaction& each) { return each.id == id; });
    if (one == found.end() || one->changes.empty())
      refusals_ += QStringLiteral("The history has no transaction %1.").arg(id);
  }
}

void Undo::Read(const std::vector<HistoryTransaction>& transactions) {
  std::map<const SchemaTable*, std::set<QString>> keys;
  for (const HistoryTransaction& transaction : transactions)
    for (const HistoryChange& change : transaction.changes) keys[change.table].insert(change.key);
  for (const SchemaTable& table : SchemaModel::Get().tables) {
    const auto found = keys.find(&table);
    if (found == keys.end()) continue;
    now_.push_back(Content::Read(connection_, table, {true, {}}, WhereOf(connection_, table, found->second)));
  }
}

QString Undo::Refused(const Rewind::Mismatch& mismatch, const std::vector<HistoryTransaction>& undone) {
  const HistoryChange& change = mismatch.change;
  QString told = QStringLiteral("Transaction %1 cannot be undone: the row %2 of %3. %4")
                     .arg(change.transaction)
                     .arg(HistoryList::RowText(*change.table, change.key), change.table->name, mismatch.reason);
  for (const HistoryTransaction& later : HistoryList::Since(connection_, change)) {
    const bool among =
        std::any_of(undone.begin(), undone.end(), [&](const HistoryTransaction& one) { return one.id == later.id; });
    if (!among) return told + " Last by " + By(later) + '.';
  }
  return told + " The history does not know by whom.";
}

void Undo::TellUnknown(const Rewind& rewind) {
  for (const Rewind::Unknown& secret : rewind.UnknownSecrets()) {
    const QString what = secret.column + " of the row " + secret.row + " of " + secret.table->name;
    if (keepSecrets_) {
      notes_ += "The history keeps no passwords and card data: " + what + " is not brought back.";
    } else {
      refusals_ += "The history keeps no passwords and card data: " + what + " cannot be brought back.";
    }
  }
}

QStringList Undo::Lines() const {
  QStringList lines;
  for (const TableDifference& difference : differences_) lines += difference.Lines();
  return lines;
}

std::vector<HistoryChange> Undo::AsChanges() const {
  std::vector<HistoryChange> changes;
  for (const TableDifference& difference : differences_) {
    const auto add = [&](HistoryChange::Kind kind, const Row* before, const Row* after) {
      HistoryChange change{0, 0, difference.table, KeyOf(difference, before ? *before : *after), kind, {}, {}};
      for (size_t i = 0; i < difference.columns.size(); ++i) {
        if (before && after && (*before)[i] == (*after)[i]) continue;
        if (before) change.before[difference.columns[i].name] = Told(difference.columns[i], (*before)[i]);
        if (after) change.after[difference.columns[i].name] = Told(difference.columns[i], (*after)[i]);
      }
      changes.push_back(std::move(change));
    };
    for (const Row& row : difference.added) add(HistoryChange::Added, nullptr, &row);
    for (const TableDifference::Change& change : difference.changed)
      add(HistoryChange::Changed, &change.second, &change.first);
    for (const Row& row : difference.removed) add(HistoryChange::Removed, &row, nullptr);
  }
  return changes;
}

size_t Undo::Rows() const {
  size_t rows = 0;
  for (const TableDifference& difference : differences_)
    rows += difference.added.size() + difference.changed.size() + difference.removed.size();
  return rows;
}

void Undo::Run() {
  ChangeRunner(connection_, true).Run(differences_);
}
