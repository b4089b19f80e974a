#include "site/SiteWords.h"

#include <QFile>
#include <QRegularExpression>
#include <stdexcept>

#include "schema/History.h"
#include "schema/SchemaSql.h"

// The resources of a static library are linked only where they are asked for, and the macro stands outside of
// namespaces.
static void InitializeResources() {
  Q_INIT_RESOURCE(site);
}

namespace {

std::map<QString, QString> ReadCaptions() {
  InitializeResources();
  QFile file(":/site/captions.txt");
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("The captions of the columns are missing.");
  std::map<QString, QString> captions;
  for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
    if (!line.startsWith('#') && line.contains('=')) captions[line.section('=', 0, 0)] = line.section('=', 1);
  return captions;
}

// "NCIP_HOST_PORT" is "NCIP host port".
QString FromName(const QString& column) {
  static const QStringList names{"NCIP", "ISO", "ISO18626", "API", "URL", "ILL", "ILS", "ID", "VORN", "PDF"};
  QStringList words;
  for (const QString& word : column.split('_')) {
    const QString plain = names.contains(word) ? word : word.toLower();
    words += words.isEmpty() ? plain.left(1).toUpper() + plain.mid(1) : plain;
  }
  return words.join(' ');
}

// The one column of a foreign key that is no more than this column.
const SchemaTable* Referenced(const SchemaTable& table, const QString& column) {
  for (const SchemaForeignKey& key : table.foreignKeys)
    if (key.columns == QStringList{column}) return SchemaModel::Get().Find(key.table);
  return nullptr;
}

// What tells a code's meaning: its description, or a library's symbol.
QString MeaningColumn(const SchemaTable& table) {
  if (table.name == u"ID_LIBRARY") return "LIBRARY_SYMBOL";
  for (const SchemaColumn& column : table.columns)
    if (column.name.endsWith("_DESC")) return column.name;
  return {};
}

}  // namespace

QString SiteWords::Table(const SchemaTable& table) {
  static const QRegularExpression end("[.:;,]");
  return table.description.left(table.description.indexOf(end)).trimmed();
}

QString SiteWords::Column(const SchemaTable& table, const QString& column) {
  static const std::map<QString, QString> captions = ReadCaptions();
  for (const QString& name : {table.name + '.' + column, column})
    if (const auto caption = captions.find(name); caption != captions.end()) return caption->second;
  if (const QString described = Content::DescriptionOf(table, column); !described.isEmpty())
    return Column(table, described) + " (" + column.section('_', -1) + ')';
  if (column == table.name.mid(3) + "_DESC") return "Description";
  if (column == table.name.mid(3)) return "Code";
  return FromName(column);
}

const std::map<QString, QString>& SiteWords::Descriptions(const SchemaTable& table) {
  const auto known = descriptions_.find(&table);
  if (known != descriptions_.end()) return known->second;
  std::map<QString, QString>& descriptions = descriptions_[&table];
  const QString meaning = MeaningColumn(table);
  if (meaning.isEmpty() || table.primaryKey.size() != 1) return descriptions;
  for (const QStringList& row : SchemaSql::Rows(connection_, "SELECT " + table.primaryKey.front() + ", " + meaning +
                                                                 " FROM " + SchemaSql::Table(connection_, table.name)))
    descriptions[row[0]] = row[1];
  return descriptions;
}

QString SiteWords::Value(const SchemaTable& table, const QString& column, const HistoryValue& value) {
  if (value.secret) return "***";
  if (!value.value) return {};
  if (const SchemaTable* const other = Referenced(table, column)) {
    const auto& descriptions = Descriptions(*other);
    const auto found = descriptions.find(*value.value);
    if (found != descriptions.end() && !found->second.isEmpty()) return *value.value + " - " + found->second;
  }
  return *value.value;
}

QString SiteWords::Row(const SchemaTable& table, const QString& key) {
  const QStringList names = History::KeyColumns(table, table.columns);
  const ::Row cells = History::KeyCells(key);
  QStringList words;
  for (qsizetype i = 0; i < names.size() && static_cast<size_t>(i) < cells.size(); ++i) {
    const QString word = Value(table, names[i], {cells[static_cast<size_t>(i)], false});
    if (!word.isEmpty()) words += word;
  }
  return words.join(", ");
}
