#pragma once

#include <QByteArray>
#include <vector>

#include "schema/TableContent.h"

// The text file of "tabulon-db export": UTF-8, a line for each value, made to be kept under version control. The same
// rows give the same bytes. docs/administration.md describes it for those who edit it.
namespace ExportText {

inline const QString FirstLine = QStringLiteral("Tabulon settings, format 1");
inline const QString NullWord = QStringLiteral("NULL");

QByteArray Write(const std::vector<TableContent>& tables);

// The tables in the order of the schema, their rows ordered. std::runtime_error with the line that is not understood.
std::vector<TableContent> Parse(const QByteArray& text);

// A value on one line as it stands in the file: NULL, "text", 12.50, 2024-01-31. A long text is one line here.
QString ValueText(const SchemaColumn& column, const Cell& value);

}  // namespace ExportText
