#include "tools/DatabaseCheck.h"

#include <algorithm>

#include "platform/ado/Recordset.h"
#include "schema/Languages.h"
#include "schema/SchemaModel.h"
#include "schema/SchemaSql.h"
#include "schema/SchemaStatements.h"

namespace {

class Checker {
 public:
  Checker(Connection& connection, bool languages) : connection_(connection), present_(connection.Tables()) {
    if (languages && Has("ID_LANGUAGE_CODE")) languages_ = Languages::Codes(connection);
  }

  DatabaseCheck Run() {
    for (const SchemaTable& table : SchemaModel::Get().tables) CheckTable(table);
    CheckCounter("ID_NEXT_LIBRARY");
    CheckCounter("ID_NEXT_REQUEST");
    CheckDefaultLanguage();
    CheckNobody();
    CheckLegacyColumns();
    return found_;
  }

 private:
  bool Has(const QString& table) const { return present_.contains(table); }

  void CheckTable(const SchemaTable& table) {
    if (!Has(table.name)) {
      found_.gaps += "Table " + table.name + " is missing.";
      return;
    }
    for (const SchemaColumn& column : table.columns) {
      CheckColumn(table.name, column);
      if (!column.language) continue;
      for (const QString& language : languages_) CheckColumn(table.name, InLanguage(column, language));
    }
  }

  const ColumnInfo* Find(const QString& table, const QString& name) {
    const auto& columns = connection_.Columns(table);
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const ColumnInfo& info) { return info.name == name; });
    return found == columns.end() ? nullptr : &*found;
  }

  void CheckColumn(const QString& table, const SchemaColumn& column) {
    const QString name = table + '.' + column.name;
    const ColumnInfo* const info = Find(table, column.name);
    if (!info) {
      found_.gaps += "Column " + name + " is missing.";
    } else if (IsText(*info) != (column.type == SchemaColumn::Text)) {
      found_.gaps +=
          "Column " + name +
          (IsText(*info) ? " holds text instead of numbers or dates." : " holds numbers or dates instead of text.");
    } else if (column.type == SchemaColumn::Text && info->definedSize > 0 && info->definedSize < column.size) {
      found_.gaps += QStringLiteral("Column %1 holds %2 characters; the programs write up to %3.")
                         .arg(name)
                         .arg(info->definedSize)
                         .arg(column.size);
    }
  }

  static bool IsText(const ColumnInfo& info) {
    return info.type == AdoType::Char || info.type == AdoType::WChar || info.type == AdoType::VarChar ||
           info.type == AdoType::VarWChar;
  }

  int Count(const QString& table, const QString& where = {}) {
    return SchemaSql::Values(connection_, "SELECT COUNT(*) FROM " + SchemaSql::Table(connection_, table) + where)
        .value(0)
        .toInt();
  }

  void CheckCounter(const QString& table) {
    if (!Has(table)) return;
    const int rows = Count(table);
    if (rows != 1) found_.gaps += QStringLiteral("Table %1 holds %2 rows instead of one.").arg(table).arg(rows);
  }

  void CheckDefaultLanguage() {
    if (!Has("ID_LANGUAGE_CODE") || !Find("ID_LANGUAGE_CODE", "LANGUAGE_CODE_DEFAULT")) return;
    const int rows = Count("ID_LANGUAGE_CODE", " WHERE LANGUAGE_CODE_DEFAULT = 'Y'");
    if (rows == 0) found_.gaps += "No language of ID_LANGUAGE_CODE is marked as the default.";
    if (rows > 1) found_.notes += "More than one language of ID_LANGUAGE_CODE is marked as the default.";
  }

  void CheckNobody() {
    if (!Has("ID_LIBRARY") || Count("ID_LIBRARY", " WHERE LIBRARY_ID = 9999999") == 1) return;
    found_.notes += "Library 9999999, to which requests of nobody belong, is missing; such requests are refused.";
  }

  void CheckLegacyColumns() {
    for (const Languages::LegacyColumn& legacy : Languages::LegacyColumns()) {
      if (!Has(legacy.table)) continue;
      for (const QString& language : languages_) {
        const QString column = LanguageColumn(legacy.column.name, language);
        if (Find(legacy.table, column)) continue;
        found_.notes += "Column " + legacy.table + '.' + column + " is missing: rows cannot be added to " +
                        legacy.table +
                        " on a site of several languages. tabulon-db add-language --legacy-columns adds it.";
      }
    }
  }

  Connection& connection_;
  QStringList present_;
  QStringList languages_;
  DatabaseCheck found_;
};

}  // namespace

DatabaseCheck CheckDatabase(Connection& connection, bool languages) {
  return Checker(connection, languages).Run();
}
