#include "schema/SchemaStatements.h"

#include <algorithm>

namespace {

bool BeginsWith(const QStringList& key, const QStringList& columns) {
  return key.mid(0, columns.size()) == columns;
}

bool HasIndex(const SchemaModel& model, const SchemaTable& table, const QStringList& columns) {
  const auto begins = [&](const QStringList& key) { return BeginsWith(key, columns); };
  return begins(table.primaryKey) || std::any_of(table.uniqueKeys.begin(), table.uniqueKeys.end(), begins) ||
         std::any_of(model.indexes.begin(), model.indexes.end(),
                     [&](const SchemaIndex& index) { return index.table == table.name && begins(index.columns); });
}

}  // namespace

SchemaColumn InLanguage(const SchemaColumn& column, const QString& language) {
  SchemaColumn translated = column;
  translated.name = LanguageColumn(column.name, language);
  translated.required = false;
  translated.language = false;
  return translated;
}

QString SchemaStatements::Name(const QString& column) const {
  return engine_ == Engine::SqlServer && column == u"NOTE" ? QStringLiteral("[NOTE]") : column;
}

QString SchemaStatements::Names(const QStringList& columns) const {
  QStringList names;
  for (const QString& column : columns) names += Name(column);
  return '(' + names.join(", ") + ')';
}

QString SchemaStatements::Type(const SchemaColumn& column) const {
  switch (column.type) {
    case SchemaColumn::Text:
      // The collation tells codes apart that differ in letter case or accents alone, as SQLite and PostgreSQL do.
      if (engine_ == Engine::SqlServer)
        return QStringLiteral("NVARCHAR(%1) COLLATE Latin1_General_100_BIN2").arg(column.size);
      // Of another collation of a PostgreSQL database, lists would have a language's order there alone.
      if (engine_ == Engine::PostgreSql) return QStringLiteral("VARCHAR(%1) COLLATE \"C\"").arg(column.size);
      return QStringLiteral("VARCHAR(%1)").arg(column.size);
    case SchemaColumn::Integer:
      return QStringLiteral("INTEGER");
    case SchemaColumn::Numeric:
      return QStringLiteral("NUMERIC(%1,%2)").arg(column.size).arg(column.scale);
    case SchemaColumn::Date:
      return QStringLiteral("DATE");
    case SchemaColumn::TimeStamp:
      if (engine_ == Engine::SqlServer) return QStringLiteral("DATETIME2(0)");
      // TIMESTAMP of MariaDB ends in 2038 and changes by itself.
      return engine_ == Engine::MariaDb ? QStringLiteral("DATETIME") : QStringLiteral("TIMESTAMP");
  }
  return {};
}

// SQLite stores anything in any column: these conditions refuse what the other engines refuse by the type.
QString SchemaStatements::Check(const SchemaColumn& column) const {
  if (engine_ != Engine::Sqlite) return {};
  const QString name = Name(column.name);
  const auto number = [&](const QString& types, const QString& limit) {
    return QStringLiteral(" CHECK (%1 IS NULL OR (typeof(%1) IN (%2) AND %1 > -%3 AND %1 < %3))")
        .arg(name, types, limit);
  };
  switch (column.type) {
    case SchemaColumn::Text:
      return QStringLiteral(" CHECK (length(%1) <= %2)").arg(name).arg(column.size);
    case SchemaColumn::Integer:
      return number("'integer'", "2147483648");
    case SchemaColumn::Numeric:
      return number("'integer', 'real'", '1' + QString(column.size - column.scale, QLatin1Char('0')));
    case SchemaColumn::Date:  // the modifier makes 30 February another date than was written
      return QStringLiteral(" CHECK (%1 IS NULL OR (typeof(%1) = 'text' AND date(%1, '+0 days') IS %1))").arg(name);
    case SchemaColumn::TimeStamp:
      return QStringLiteral(
                 " CHECK (%1 IS NULL OR (typeof(%1) = 'text' AND substr(datetime(%1, '+0 days'), 1, 10) IS substr(%1, "
                 "1, 10)))")
          .arg(name);
  }
  return {};
}

QString SchemaStatements::Column(const SchemaColumn& column) const {
  return Name(column.name) + ' ' + Type(column) + (column.required ? " NOT NULL" : "") + Check(column);
}

QString SchemaStatements::Create(const SchemaTable& table, const QStringList& languages) const {
  QStringList elements;
  for (const SchemaColumn& column : table.columns) elements += Column(column);
  for (const SchemaColumn& column : table.columns) {
    if (!column.language) continue;
    for (const QString& language : languages) elements += Column(InLanguage(column, language));
  }
  if (!table.primaryKey.isEmpty()) elements += "PRIMARY KEY " + Names(table.primaryKey);
  for (const QStringList& key : table.uniqueKeys)
    if (Condition(table, key).isEmpty()) elements += "UNIQUE " + Names(key);
  for (const SchemaForeignKey& key : table.foreignKeys) {
    elements += "FOREIGN KEY " + Names(key.columns) + " REFERENCES " + owner_ + key.table + ' ' +
                Names(key.references) + (key.actions.isEmpty() ? QString() : ' ' + key.actions);
  }
  QString statement = "CREATE TABLE " + owner_ + table.name + " (" + elements.join(", ") + ')';
  if (engine_ == Engine::MariaDb) statement += " ENGINE=InnoDB DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin";
  return statement;
}

QString SchemaStatements::Drop(const SchemaTable& table) const {
  return "DROP TABLE " + owner_ + table.name;
}

QString SchemaStatements::Index(const SchemaIndex& index) const {
  return "CREATE INDEX " + index.name + " ON " + owner_ + index.table + ' ' + Names(index.columns);
}

// SQL Server takes NULL for a value that may stand once; a key with such columns is an index of the other rows there.
QString SchemaStatements::Condition(const SchemaTable& table, const QStringList& key) const {
  if (engine_ != Engine::SqlServer) return {};
  QStringList conditions;
  for (const QString& column : key)
    if (!table.Find(column)->required) conditions += Name(column) + " IS NOT NULL";
  return conditions.join(" AND ");
}

QStringList SchemaStatements::CreateIndexes(const SchemaModel& model) const {
  QStringList statements;
  for (const SchemaTable& table : model.tables) {
    int number = 0;
    for (const QStringList& key : table.uniqueKeys) {
      const QString condition = Condition(table, key);
      if (condition.isEmpty()) continue;
      statements += QStringLiteral("CREATE UNIQUE INDEX UQ_%1_%2 ON ").arg(table.name.mid(3)).arg(++number) + owner_ +
                    table.name + ' ' + Names(key) + " WHERE " + condition;
    }
  }
  for (const SchemaIndex& index : model.indexes) statements += Index(index);
  if (engine_ == Engine::MariaDb) return statements;  // InnoDB makes the others by itself
  for (const SchemaTable& table : model.tables) {
    int number = 0;
    for (const SchemaForeignKey& key : table.foreignKeys) {
      if (HasIndex(model, table, key.columns)) continue;
      statements += Index({QStringLiteral("IX_%1_%2").arg(table.name.mid(3)).arg(++number), table.name, key.columns});
    }
  }
  return statements;
}

QString SchemaStatements::AddColumn(const QString& table, const SchemaColumn& column) const {
  // SQL Server knows no word COLUMN here.
  return "ALTER TABLE " + owner_ + table + (engine_ == Engine::SqlServer ? " ADD " : " ADD COLUMN ") + Column(column);
}
