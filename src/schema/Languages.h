#pragma once

#include <QStringList>

#include "platform/ado/Connection.h"
#include "schema/SchemaModel.h"

// The columns in which descriptions are kept in each language of the site.
namespace Languages {

// Three characters, a letter first: the part of column names behind "_".
bool IsCode(const QString& code);

struct Language {
  QString code;
  QString description;
};

// Codes of ID_LANGUAGE_CODE, in order.
QStringList Codes(Connection& connection);

// Two statements of the system name language columns of another table: adding a status function, and adding a
// namespace. A site of several languages on which both are to work has these columns as well.
struct LegacyColumn {
  QString table;
  SchemaColumn column;  // without language
};
std::vector<LegacyColumn> LegacyColumns();

// Adds the columns of a language where they are missing. Number of columns added.
int AddColumns(Connection& connection, const QString& language);
int AddLegacyColumns(Connection& connection, const QString& language);

// The row of a language whose columns are there.
void AddRow(Connection& connection, const Language& language);

// Descriptions of the default language go where a language has none.
void FillEmptyDescriptions(Connection& connection, const QStringList& languages);

// The row, the columns, the descriptions. Number of columns added. A language that is there already is completed.
int Add(Connection& connection, const Language& language, bool legacyColumns);

}  // namespace Languages
