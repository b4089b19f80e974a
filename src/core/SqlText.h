#pragma once

#include <QDate>
#include <QString>
#include <functional>

#include "platform/ado/Recordset.h"

// Values and names of statements. Statement text is joined from literal fragments that keep their own spacing; a value
// enters it only through these functions, so that none is forgotten by the escape.
namespace Sql {

QString Table(const QString& name);     // owner prefix and name
QString Plain(const QString& text);     // '...'
QString National(const QString& text);  // N'...'
// N'...' with the text as it stands, for a value that other programs read so. A quote would end the literal: the
// failure of the statement (AdoError TextRefused), before anything is sent.
QString NationalAsItStands(const QString& text);
// Empty text gives the word in the letters its statement uses: "NULL" or "Null".
QString PlainOr(const QString& text, const QString& nullWord);
QString NationalOr(const QString& text, const QString& nullWord);
QString NumberOr(const QString& text, const QString& nullWord);  // bare, "," turned into "."
QString Number(qint64 value);
QString WithPoint(const QString& text);  // "," turned into ".", otherwise as it stands

// The columns and values of the language columns of an INSERT, both with a leading ", " each: the column prefix
// "DEPARTMENT_DESC_" gives ", DEPARTMENT_DESC_FRE" and ", " + value for every row of gcolLanguageCode. Both are empty
// on a site of a single language.
struct LanguagePieces {
  QString columns;
  QString values;
};
LanguagePieces LanguageColumns(const QString& columnPrefix, const QString& value);

}  // namespace Sql

// Running statements as every screen does: the failure line stands in gstrErrorMessage before and is cleared after.

void OpenRows(Recordset& rows, const QString& sql, const QString& failureLine);
// Runs the body for each row, then closes.
void ForEachRow(const QString& sql, const QString& failureLine, const std::function<void(Recordset&)>& body);
// First column of the first row; empty with *found false when there is no row.
QString FirstValue(const QString& sql, const QString& failureLine, bool* found = nullptr);
// Without a transaction. Rows found.
qint64 Execute(const QString& sql, const QString& failureLine);
// In a transaction of its own: BeginTrans, Execute, CommitTrans.
qint64 ExecuteInTransaction(const QString& sql, const QString& failureLine);
// FieldValue of the common services: NULL as empty text.
QString Value(const Recordset& rows, const QString& column);
QString Value(const Recordset& rows, int position);
