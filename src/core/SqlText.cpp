#include "core/SqlText.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

namespace Sql {

QString Table(const QString& name) {
  return gclsOF->OwnerPrefix() + name;
}

QString Plain(const QString& text) {
  return "'" + gclsOF->SqlEscape(text) + "'";
}

QString National(const QString& text) {
  return "N'" + gclsOF->SqlEscape(text) + "'";
}

QString NationalAsItStands(const QString& text) {
  if (text.contains(u'\'')) {
    throw AdoError(AdoNumber::TextRefused,
                   "The statement was not sent: a value that goes into it as it stands holds a quote.",
                   "Connection.Execute");
  }
  return "N'" + text + "'";
}

QString PlainOr(const QString& text, const QString& nullWord) {
  return text.isEmpty() ? nullWord : Plain(text);
}

QString NationalOr(const QString& text, const QString& nullWord) {
  return text.isEmpty() ? nullWord : National(text);
}

QString NumberOr(const QString& text, const QString& nullWord) {
  return text.trimmed().isEmpty() ? nullWord : WithPoint(text.trimmed());
}

QString Number(qint64 value) {
  return QString::number(value);
}

QString WithPoint(const QString& text) {
  QString result = text;
  return result.replace(QLatin1Char(','), QLatin1Char('.'));
}

LanguagePieces LanguageColumns(const QString& columnPrefix, const QString& value) {
  LanguagePieces pieces;
  if (gclsOF->SingleLanguage()) return pieces;
  for (const QString& code : gcolLanguageCode) {
    pieces.columns += ", " + columnPrefix + code;
    pieces.values += ", " + value;
  }
  return pieces;
}

}  // namespace Sql

void OpenRows(Recordset& rows, const QString& sql, const QString& failureLine) {
  gstrErrorMessage = failureLine;
  rows.CursorType = Recordset::Static;
  rows.LockType = Recordset::ReadOnly;
  rows.CursorLocation = Recordset::Client;
  rows.Open(gclsOF->Connection(), sql);
  gstrErrorMessage.clear();
}

void ForEachRow(const QString& sql, const QString& failureLine, const std::function<void(Recordset&)>& body) {
  Recordset rows;
  OpenRows(rows, sql, failureLine);
  for (; !rows.EOF_(); rows.MoveNext()) body(rows);
  rows.Close();
}

QString FirstValue(const QString& sql, const QString& failureLine, bool* found) {
  Recordset rows;
  OpenRows(rows, sql, failureLine);
  const bool hit = !rows.EOF_();
  if (found) *found = hit;
  return hit ? Value(rows, 0) : QString();
}

qint64 Execute(const QString& sql, const QString& failureLine) {
  gstrErrorMessage = failureLine;
  const qint64 affected = gclsOF->Connection().Execute(sql);
  gstrErrorMessage.clear();
  return affected;
}

qint64 ExecuteInTransaction(const QString& sql, const QString& failureLine) {
  gstrErrorMessage = failureLine;
  Transaction transaction(gclsOF->Connection());
  const qint64 affected = gclsOF->Connection().Execute(sql);
  transaction.Commit();
  gstrErrorMessage.clear();
  return affected;
}

QString Value(const Recordset& rows, const QString& column) {
  return gclsOF->FieldValue(rows.Fields(column));
}

QString Value(const Recordset& rows, int position) {
  return gclsOF->FieldValue(rows.Fields(position));
}
