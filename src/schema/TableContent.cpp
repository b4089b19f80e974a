#include "schema/TableContent.h"

#include <QDateTime>
#include <QRegularExpression>
#include <algorithm>
#include <stdexcept>

#include "platform/ado/Recordset.h"
#include "schema/Languages.h"
#include "schema/SchemaSql.h"

namespace {

// --- Columns ---

// Descriptions of the table that are kept in each language, those under another table's name included.
std::vector<SchemaColumn> Descriptions(const SchemaTable& table) {
  std::vector<SchemaColumn> descriptions;
  for (const SchemaColumn& column : table.columns)
    if (column.language) descriptions.push_back(column);
  for (const Languages::LegacyColumn& legacy : Languages::LegacyColumns())
    if (legacy.table == table.name) descriptions.push_back(legacy.column);
  return descriptions;
}

bool IsInALanguage(const SchemaColumn& description, const QString& column) {
  const QString prefix = LanguageColumn(description.name, {});
  return column.startsWith(prefix) && Languages::IsCode(column.mid(prefix.size()));
}

// --- Values ---

Cell CanonicalNumber(const QString& text, int scale) {
  static const QRegularExpression form("^(-?)0*([0-9]+)(?:\\.([0-9]+))?$");
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  QString fraction = match.captured(3);
  while (fraction.size() > scale && fraction.endsWith('0')) fraction.chop(1);
  if (fraction.size() > scale) return std::nullopt;
  QString number = match.captured(2);
  if (scale > 0) number += '.' + fraction.leftJustified(scale, '0');
  const bool zero = std::all_of(number.begin(), number.end(), [](QChar c) { return c == u'0' || c == u'.'; });
  return zero ? number : match.captured(1) + number;
}

Cell CanonicalDate(const QString& text) {
  const QDate date = QDate::fromString(text, Qt::ISODate);  // which overlooks what stands behind
  return date.isValid() && text.size() == 10 ? Cell(date.toString(Qt::ISODate)) : std::nullopt;
}

// A date and a time apart: the clock of this machine must not decide which moments there are.
Cell CanonicalMoment(const QString& text) {
  const Cell date = CanonicalDate(text.left(10));
  const QTime time = QTime::fromString(text.mid(11), Qt::ISODate);
  const bool parted = text.size() > 10 && (text.at(10) == u' ' || text.at(10) == u'T');
  if (!date || !parted || !time.isValid()) return std::nullopt;
  return *date + time.toString(u" hh:mm:ss");
}

Cell ValueOf(const Field& field, const SchemaTable& table, const SchemaColumn& column) {
  if (field.IsNull()) return std::nullopt;
  const Cell value = Content::Canonical(column, field.Value());
  if (value) return value;
  throw std::runtime_error(QStringLiteral("Column %1.%2 of the database holds \"%3\", which is no value of its type.")
                               .arg(table.name, column.name, field.Value())
                               .toStdString());
}

}  // namespace

int TableContent::Position(const QString& column) const {
  for (size_t i = 0; i < columns.size(); ++i)
    if (columns[i].name == column) return static_cast<int>(i);
  return -1;
}

RowOrder::RowOrder(const std::vector<SchemaColumn>& columns) {
  for (const SchemaColumn& column : columns)
    numeric_.push_back(column.type == SchemaColumn::Integer || column.type == SchemaColumn::Numeric);
}

bool RowOrder::operator()(const Row& left, const Row& right) const {
  for (size_t i = 0; i < numeric_.size(); ++i) {
    if (left[i] == right[i]) continue;
    if (!numeric_[i] || !left[i] || !right[i]) return left[i] < right[i];
    return left[i]->toDouble() < right[i]->toDouble();
  }
  return false;
}

bool Content::IsConfiguration(const SchemaTable& table) {
  static const QStringList others{"ID_USER",          "ID_USER_FUNCTION",  "ID_NEXT_LIBRARY",   "ID_NEXT_REQUEST",
                                  "ID_PATRON",        "ID_REQUEST",        "ID_DELIVERY",       "ID_QUEUE",
                                  "ID_KEYWORD_TITLE", "ID_KEYWORD_AUTHOR", "ID_KEYWORD_CALL_NO"};
  return !others.contains(table.name);
}

std::vector<const SchemaTable*> Content::Configuration() {
  std::vector<const SchemaTable*> tables;
  for (const SchemaTable& table : SchemaModel::Get().tables)
    if (IsConfiguration(table)) tables.push_back(&table);
  return tables;
}

bool Content::IsSecret(const SchemaColumn& column) {
  // CREDIT_CARD alone is the kind of card, a code of a table.
  static const QStringList others{"CREDIT_CARD_NAME", "CREDIT_CARD_NUM", "CREDIT_CARD_EXP", "CREDIT_CARD_CODE",
                                  "NCIP_FROM_AGENCY_AUTH"};
  return column.name.contains("PASSWORD") || others.contains(column.name);
}

QString Content::DescriptionOf(const SchemaTable& table, const QString& column) {
  if (table.Find(column)) return {};
  for (const SchemaColumn& description : Descriptions(table)) {
    if (!IsInALanguage(description, column)) continue;
    if (table.Find(description.name)) return description.name;
    // The columns under another table's name take what the table's own description says.
    const auto own =
        std::find_if(table.columns.begin(), table.columns.end(), [](const SchemaColumn& one) { return one.language; });
    return own == table.columns.end() ? QString() : own->name;
  }
  return {};
}

bool Content::IsLanguageColumn(const SchemaTable& table, const QString& column) {
  return !DescriptionOf(table, column).isEmpty();
}

std::vector<SchemaColumn> Content::KnownColumns(const SchemaTable& table, const QStringList& names) {
  std::vector<SchemaColumn> known;
  for (const SchemaColumn& column : table.columns)
    if (names.contains(column.name)) known.push_back(column);
  QStringList sorted = names;
  sorted.sort();
  for (const SchemaColumn& description : Descriptions(table)) {
    for (const QString& name : sorted) {
      if (table.Find(name) || !IsInALanguage(description, name)) continue;
      known.push_back(description);
      known.back().name = name;
      known.back().required = false;
      known.back().language = false;
    }
  }
  return known;
}

std::optional<QStringList> Content::RowKey(const SchemaTable& table) {
  if (!table.primaryKey.isEmpty()) return table.primaryKey;
  if (!table.uniqueKeys.empty()) return table.uniqueKeys.front();
  if (table.name.startsWith("ID_NEXT_")) return QStringList();
  return std::nullopt;
}

QStringList Content::OrderOf(const QString& table) {
  const SchemaTable* const known = SchemaModel::Get().Find(table);
  if (known == nullptr) return {};
  if (const std::optional<QStringList> key = RowKey(*known)) return *key;
  QStringList columns;
  for (const SchemaColumn& column : known->columns) columns += column.name;
  return columns;
}

Cell Content::Canonical(const SchemaColumn& column, const QString& text) {
  switch (column.type) {
    case SchemaColumn::Text:
      return text;
    case SchemaColumn::Integer:
      return CanonicalNumber(text, 0);
    case SchemaColumn::Numeric:
      return CanonicalNumber(text, column.scale);
    case SchemaColumn::Date:
      return CanonicalDate(text);
    case SchemaColumn::TimeStamp:
      return CanonicalMoment(text);
  }
  return std::nullopt;
}

TableContent Content::Read(Connection& connection, const SchemaTable& table, const Secrets& secrets) {
  QStringList present;
  for (const ColumnInfo& info : connection.Columns(table.name)) present += info.name;
  TableContent content{&table, KnownColumns(table, present), {}};
  std::erase_if(content.columns,
                [&](const SchemaColumn& column) { return IsSecret(column) && !secrets.Hold(column.name); });
  if (content.columns.empty())
    throw std::runtime_error("The database lacks the table " + table.name.toStdString() +
                             ". tabulon-db check tells what else is missing.");
  QStringList names;
  for (const SchemaColumn& column : content.columns) names += column.name;
  Recordset rows;
  rows.Open(connection, "SELECT " + names.join(", ") + " FROM " + SchemaSql::Table(connection, table.name));
  for (; !rows.EOF_(); rows.MoveNext()) {
    Row row;
    for (int field = 0; field < rows.FieldCount(); ++field)
      row.push_back(ValueOf(rows.Fields(field), table, content.columns[static_cast<size_t>(field)]));
    content.rows.push_back(std::move(row));
  }
  Sort(content);
  return content;
}

void Content::Sort(TableContent& content) {
  // The key first, then the whole row, for rows that no key tells apart.
  std::vector<int> positions;
  for (const QString& name : RowKey(*content.table).value_or(QStringList()))
    if (const int position = content.Position(name); position >= 0) positions.push_back(position);
  for (size_t i = 0; i < content.columns.size(); ++i) positions.push_back(static_cast<int>(i));
  std::vector<SchemaColumn> columns;
  for (const int position : positions) columns.push_back(content.columns[static_cast<size_t>(position)]);
  const auto ordered = [&](const Row& row) {
    Row cells;
    for (const int position : positions) cells.push_back(row[static_cast<size_t>(position)]);
    return cells;
  };
  const RowOrder order(columns);
  std::vector<std::pair<Row, Row>> rows;
  for (Row& row : content.rows) rows.emplace_back(ordered(row), std::move(row));
  std::sort(rows.begin(), rows.end(),
            [&](const auto& left, const auto& right) { return order(left.first, right.first); });
  for (size_t i = 0; i < rows.size(); ++i) content.rows[i] = std::move(rows[i].second);
}
