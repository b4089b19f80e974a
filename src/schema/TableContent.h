#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "platform/ado/Connection.h"
#include "schema/SchemaModel.h"

// Rows of tables as the tools carry them from one site to another. Values have one form on every engine: numbers the
// scale of their column, dates "yyyy-MM-dd", moments "yyyy-MM-dd hh:mm:ss".

using Cell = std::optional<QString>;  // nothing stands for NULL
using Row = std::vector<Cell>;

struct TableContent {
  const SchemaTable* table = nullptr;
  std::vector<SchemaColumn> columns;  // in the order of the schema, those of languages behind all others
  std::vector<Row> rows;

  int Position(const QString& column) const;  // -1 when there is none
};

// Orders rows by their values: NULL first, numbers by size, texts by code.
class RowOrder {
 public:
  explicit RowOrder(const std::vector<SchemaColumn>& columns);
  bool operator()(const Row& left, const Row& right) const;

 private:
  std::vector<bool> numeric_;
};

// Which of the passwords and card data are read: none unless they are asked for.
struct Secrets {
  bool all = false;
  QStringList columns;  // these, where not all

  bool Any() const { return all || !columns.isEmpty(); }
  bool Hold(const QString& column) const { return all || columns.contains(column); }
};

namespace Content {

// What a person decides about the site. Not among them: requests and what goes with them, counters, users, patrons.
bool IsConfiguration(const SchemaTable& table);
std::vector<const SchemaTable*> Configuration();

// Passwords and card data, and what a server of a partner takes for a password.
bool IsSecret(const SchemaColumn& column);
// A column that the table has for a language of its site.
bool IsLanguageColumn(const SchemaTable& table, const QString& column);
// The column whose description goes where a row has none in the language; empty when there is none.
QString DescriptionOf(const SchemaTable& table, const QString& column);

// The columns of these names that the system knows, the languages' ones included, in order.
std::vector<SchemaColumn> KnownColumns(const SchemaTable& table, const QStringList& names);

// The columns by which a row is told from the others: those of the primary key, else of a UNIQUE in which NULL counts
// as a value. No columns mean that all rows are one, as in a counter; nothing means that only a whole row is itself.
std::optional<QStringList> RowKey(const SchemaTable& table);
// The columns in whose order rows stand that a statement leaves in any: those of the key, else all. None for a table
// that the system does not know.
QStringList OrderOf(const QString& table);

// The one form of a value; nothing when the text is no value of the column's type. Lengths are the database's matter.
Cell Canonical(const SchemaColumn& column, const QString& text);

// All rows, ordered by key. std::runtime_error when the database lacks the table or holds what is no value.
TableContent Read(Connection& connection, const SchemaTable& table, const Secrets& secrets);
void Sort(TableContent& content);

}  // namespace Content
