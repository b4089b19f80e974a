#include "schema/Languages.h"

#include <algorithm>
#include <functional>

#include "platform/ado/Dialect.h"
#include "platform/ado/Recordset.h"
#include "schema/History.h"
#include "schema/SchemaSql.h"
#include "schema/SchemaStatements.h"

namespace {

bool HasColumn(Connection& connection, const QString& table, const QString& column) {
  const auto& columns = connection.Columns(table);
  return std::any_of(columns.begin(), columns.end(),
                     [&](const ColumnInfo& info) { return info.name.compare(column, Qt::CaseInsensitive) == 0; });
}

int AddWhereMissing(Connection& connection, const QString& table, const SchemaColumn& column) {
  if (HasColumn(connection, table, column.name)) return 0;
  const ConnectionSettings& settings = connection.Settings();
  connection.Execute(SchemaStatements(settings.engine, settings.ownerPrefix).AddColumn(table, column));
  return 1;
}

void ForEachDescription(const std::function<void(const SchemaTable&, const SchemaColumn&)>& body) {
  for (const SchemaTable& table : SchemaModel::Get().tables)
    for (const SchemaColumn& column : table.columns)
      if (column.language) body(table, column);
}

int AddAll(Connection& connection, const Languages::Language& language, bool legacyColumns) {
  int added = Languages::AddColumns(connection, language.code);
  if (!Languages::Codes(connection).contains(language.code)) Languages::AddRow(connection, language);
  if (legacyColumns)
    for (const QString& code : Languages::Codes(connection)) added += Languages::AddLegacyColumns(connection, code);
  // What goes into the new columns is recorded as well.
  if (History::IsOn(connection)) History::TurnOn(connection);
  Languages::FillEmptyDescriptions(connection, {language.code});
  return added;
}

}  // namespace

bool Languages::IsCode(const QString& code) {
  const auto fits = [](QChar c) { return (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9'); };
  return code.size() == 3 && !code.at(0).isDigit() && std::all_of(code.begin(), code.end(), fits);
}

QStringList Languages::Codes(Connection& connection) {
  return SchemaSql::Values(connection, "SELECT LANGUAGE_CODE FROM " + SchemaSql::Table(connection, "ID_LANGUAGE_CODE") +
                                           " ORDER BY LANGUAGE_CODE");
}

std::vector<Languages::LegacyColumn> Languages::LegacyColumns() {
  const auto text = [](const QString& name) { return SchemaColumn{name, SchemaColumn::Text, 50}; };
  return {{"ID_STAT_FUNCTION", text("STAT_LOCATION_DESC")}, {"ID_ISO_NAMESPACE", text("CURRENCY_CODE_DESC")}};
}

int Languages::AddColumns(Connection& connection, const QString& language) {
  int added = 0;
  ForEachDescription([&](const SchemaTable& table, const SchemaColumn& column) {
    added += AddWhereMissing(connection, table.name, InLanguage(column, language));
  });
  return added;
}

int Languages::AddLegacyColumns(Connection& connection, const QString& language) {
  int added = 0;
  for (const LegacyColumn& legacy : LegacyColumns())
    added += AddWhereMissing(connection, legacy.table, InLanguage(legacy.column, language));
  return added;
}

void Languages::AddRow(Connection& connection, const Language& language) {
  const QString literal = SchemaSql::Literal(connection, language.description);
  QString columns = "LANGUAGE_CODE, LANGUAGE_CODE_DESC";
  QString values = SchemaSql::Literal(connection, language.code) + ", " + literal;
  for (const QString& code : Codes(connection) + QStringList{language.code}) {
    if (!HasColumn(connection, "ID_LANGUAGE_CODE", LanguageColumn("LANGUAGE_CODE_DESC", code))) continue;
    columns += ", " + LanguageColumn("LANGUAGE_CODE_DESC", code);
    values += ", " + literal;
  }
  connection.Execute("INSERT INTO " + SchemaSql::Table(connection, "ID_LANGUAGE_CODE") + " (" + columns + ") VALUES (" +
                     values + ')');
}

void Languages::FillEmptyDescriptions(Connection& connection, const QStringList& languages) {
  ForEachDescription([&](const SchemaTable& table, const SchemaColumn& column) {
    for (const QString& language : languages) {
      const QString target = LanguageColumn(column.name, language);
      connection.Execute("UPDATE " + SchemaSql::Table(connection, table.name) + " SET " + target + " = " + column.name +
                         " WHERE " + target + " IS NULL");
    }
  });
}

int Languages::Add(Connection& connection, const Language& language, bool legacyColumns) {
  if (!connection.dialect().DefinesInTransactions()) return AddAll(connection, language, legacyColumns);
  Transaction transaction(connection);
  const int added = AddAll(connection, language, legacyColumns);
  transaction.Commit();
  return added;
}
