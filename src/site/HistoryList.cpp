#include "site/HistoryList.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <algorithm>
#include <stdexcept>

#include "schema/ExportText.h"
#include "schema/History.h"
#include "schema/SchemaSql.h"

namespace {

// --- Reading ---

void AddMembers(HistoryValues& values, const SchemaTable& table, const QJsonObject& object) {
  for (auto member = object.begin(); member != object.end(); ++member) {
    const std::vector<SchemaColumn> known = Content::KnownColumns(table, {member.key()});
    if (known.empty()) continue;  // a column that other programs know
    HistoryValue& value = values[member.key()];
    value.secret = member.value().isBool();
    if (member.value().isString()) value.value = Content::Canonical(known.front(), member.value().toString());
  }
}

// An object, or an array of objects with some of the columns each.
HistoryValues ValuesOf(const SchemaTable& table, const QString& json) {
  HistoryValues values;
  if (json.isEmpty()) return values;
  const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
  if (document.isNull())
    throw std::runtime_error(
        ("The history holds what is no record of " + table.name + ": " + json.left(80)).toStdString());
  AddMembers(values, table, document.object());
  const QJsonArray parts = document.array();
  for (const QJsonValue& part : parts) AddMembers(values, table, part.toObject());
  return values;
}

// Without what a record may hold beyond what it tells: columns that are NULL in a whole row, or did not change.
void KeepTold(HistoryChange& change) {
  if (change.kind != HistoryChange::Changed) {
    for (HistoryValues* values : {&change.before, &change.after})
      std::erase_if(*values, [](const auto& value) { return value.second.IsNull(); });
    return;
  }
  for (auto before = change.before.begin(); before != change.before.end();) {
    const auto after = change.after.find(before->first);
    const bool same = after != change.after.end() && !before->second.secret && !after->second.secret &&
                      before->second.value == after->second.value;
    if (same) change.after.erase(after);
    before = same ? change.before.erase(before) : std::next(before);
  }
}

HistoryChange::Kind KindOf(const QString& letter) {
  if (letter == u"I") return HistoryChange::Added;
  return letter == u"D" ? HistoryChange::Removed : HistoryChange::Changed;
}

const QString ChangeColumns =
    QStringLiteral("CHANGE_ID, TRANSACTION_ID, TABLE_NAME, ROW_KEY, KIND, OLD_VALUES, NEW_VALUES");

// Nothing for a table that this version does not know.
std::optional<HistoryChange> ChangeOf(const QStringList& row) {
  const SchemaTable* const table = SchemaModel::Get().Find(row[2]);
  if (!table) return std::nullopt;
  HistoryChange change{row[0].toInt(),           row[1].toInt(),          table, row[3], KindOf(row[4]),
                       ValuesOf(*table, row[5]), ValuesOf(*table, row[6])};
  KeepTold(change);
  return change;
}

std::vector<HistoryChange> Changes(Connection& connection, const QString& where) {
  std::vector<HistoryChange> changes;
  for (const QStringList& row :
       SchemaSql::Rows(connection, "SELECT " + ChangeColumns + " FROM " +
                                       SchemaSql::Table(connection, "ID_HISTORY_CHANGE") + " WHERE " + where))
    if (std::optional<HistoryChange> change = ChangeOf(row)) changes.push_back(std::move(*change));
  return changes;
}

QString InList(const std::vector<int>& ids) {
  QStringList texts;
  for (const int id : ids) texts += QString::number(id);
  return '(' + texts.join(", ") + ')';
}

std::vector<HistoryTransaction> Transactions(Connection& connection, int most, const QString& where) {
  std::vector<HistoryTransaction> transactions;
  const QString top = most > 0 ? QStringLiteral("TOP %1 ").arg(most) : QString();
  for (const QStringList& row :
       SchemaSql::Rows(connection, "SELECT " + top + "TRANSACTION_ID, MOMENT, USER_ID, PROGRAM FROM " +
                                       SchemaSql::Table(connection, "ID_HISTORY_TRANSACTION") + " t WHERE " + where +
                                       " ORDER BY TRANSACTION_ID DESC"))
    transactions.push_back({row[0].toInt(), row[1], row[2], row[3], {}});
  return transactions;
}

// A statement has its limits.
constexpr size_t Portion = 500;

void AddChanges(Connection& connection, std::vector<HistoryTransaction>& transactions) {
  std::map<int, HistoryTransaction*> byId;
  for (HistoryTransaction& transaction : transactions) byId[transaction.id] = &transaction;
  for (size_t from = 0; from < transactions.size(); from += Portion) {
    std::vector<int> ids;
    for (size_t i = from; i < std::min(from + Portion, transactions.size()); ++i) ids.push_back(transactions[i].id);
    for (HistoryChange& change : Changes(connection, "TRANSACTION_ID IN " + InList(ids) + " ORDER BY CHANGE_ID"))
      byId[change.transaction]->changes.push_back(std::move(change));
  }
}

// --- Filters ---

QString OfChanges(const Connection& connection, const HistoryFilter& filter) {
  QStringList conditions;
  QStringList tables;
  for (const QString& table : filter.tables) tables += SchemaSql::Literal(connection, table);
  if (!tables.isEmpty()) conditions += "TABLE_NAME IN (" + tables.join(", ") + ')';
  if (filter.key) conditions += "ROW_KEY = " + SchemaSql::Literal(connection, *filter.key);
  if (!filter.text.isEmpty()) {
    const QString pattern = SchemaSql::Literal(connection, '%' + filter.text + '%');
    conditions +=
        "(OLD_VALUES LIKE " + pattern + " OR NEW_VALUES LIKE " + pattern + " OR ROW_KEY LIKE " + pattern + ')';
  }
  return conditions.join(" AND ");
}

QString Condition(const Connection& connection, const HistoryFilter& filter) {
  QStringList conditions;
  if (!filter.from.isEmpty()) conditions += "MOMENT >= " + SchemaSql::Literal(connection, filter.from);
  // What begins with the given moment counts as within it.
  if (!filter.to.isEmpty())
    conditions += "MOMENT <= " +
                  SchemaSql::Literal(connection, filter.to + QString("9999-12-31 23:59:59.999").mid(filter.to.size()));
  if (!filter.user.isEmpty()) conditions += "USER_ID = " + SchemaSql::Literal(connection, filter.user);
  if (filter.before > 0) conditions += "TRANSACTION_ID < " + QString::number(filter.before);
  const QString ofChanges = OfChanges(connection, filter);
  const QString changes = SchemaSql::Table(connection, "ID_HISTORY_CHANGE");
  // Those of one record come from their index; many are met soon on the way back.
  if (filter.key)
    conditions += "TRANSACTION_ID IN (SELECT TRANSACTION_ID FROM " + changes + " WHERE " + ofChanges + ')';
  else
    conditions += "EXISTS (SELECT 1 FROM " + changes + " c WHERE c.TRANSACTION_ID = t.TRANSACTION_ID" +
                  (ofChanges.isEmpty() ? QString() : " AND " + ofChanges) + ')';
  return conditions.join(" AND ");
}

// --- Words ---

QString Shown(const HistoryChange& change, const QString& name, const HistoryValue& value) {
  return HistoryList::ValueText(Content::KnownColumns(*change.table, {name}).front(), value);
}

}  // namespace

std::vector<HistoryTransaction> HistoryList::Read(Connection& connection, const HistoryFilter& filter) {
  std::vector<HistoryTransaction> transactions = Transactions(connection, filter.most, Condition(connection, filter));
  AddChanges(connection, transactions);
  return transactions;
}

std::vector<HistoryTransaction> HistoryList::Read(Connection& connection, const std::vector<int>& ids) {
  std::vector<HistoryTransaction> transactions;
  for (size_t from = 0; from < ids.size(); from += Portion) {
    const std::vector<int> part(ids.begin() + static_cast<std::ptrdiff_t>(from),
                                ids.begin() + static_cast<std::ptrdiff_t>(std::min(from + Portion, ids.size())));
    for (HistoryTransaction& transaction : Transactions(connection, 0, "TRANSACTION_ID IN " + InList(part)))
      transactions.push_back(std::move(transaction));
  }
  std::sort(transactions.begin(), transactions.end(),
            [](const auto& one, const auto& other) { return one.id > other.id; });
  AddChanges(connection, transactions);
  return transactions;
}

std::vector<HistoryTransaction> HistoryList::Since(Connection& connection, const HistoryChange& change) {
  const std::vector<HistoryChange> changes =
      Changes(connection, "TABLE_NAME = " + SchemaSql::Literal(connection, change.table->name) +
                              " AND ROW_KEY = " + SchemaSql::Literal(connection, change.key) + " AND CHANGE_ID > " +
                              QString::number(change.id));
  std::vector<int> ids;
  for (const HistoryChange& each : changes)
    if (each.transaction > 0) ids.push_back(each.transaction);
  std::sort(ids.begin(), ids.end());
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
  return Read(connection, ids);
}

QString HistoryList::ValueText(const SchemaColumn& column, const HistoryValue& value) {
  return value.secret ? QStringLiteral("***") : ExportText::ValueText(column, value.value);
}

QString HistoryList::RowText(const SchemaTable& table, const QString& key) {
  const QStringList names = History::KeyColumns(table, table.columns);
  if (names.isEmpty()) return QStringLiteral("its only row");
  const Row cells = History::KeyCells(key);
  QStringList texts;
  for (qsizetype i = 0; i < names.size() && static_cast<size_t>(i) < cells.size(); ++i)
    texts += names[i] + ' ' + ExportText::ValueText(*table.Find(names[i]), cells[static_cast<size_t>(i)]);
  return texts.join(", ");
}

QStringList HistoryList::Lines(const HistoryChange& change) {
  static const QString signs = QStringLiteral("+~-");
  QStringList lines{signs.at(change.kind) + QStringLiteral(" ") + change.table->name + ' ' +
                    RowText(*change.table, change.key)};
  const QStringList key = Content::RowKey(*change.table).value_or(QStringList());
  const HistoryValues& all = change.kind == HistoryChange::Removed ? change.before : change.after;
  for (const auto& [name, value] : all) {
    if (change.kind == HistoryChange::Changed) {
      const auto before = change.before.find(name);
      lines += "    " + name + ' ' +
               Shown(change, name, before == change.before.end() ? HistoryValue{} : before->second) + " -> " +
               Shown(change, name, value);
    } else if (!key.contains(name) && Content::RowKey(*change.table)) {
      lines += "    " + name + ' ' + Shown(change, name, value);
    }
  }
  return lines;
}
