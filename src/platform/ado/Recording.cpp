#include "platform/ado/Recording.h"

#include <QCryptographicHash>

QString Recording::Literal(const QString& text) {
  QString escaped = text;
  return u'\'' + escaped.replace(QLatin1Char('\''), QLatin1String("''")) + u'\'';
}

RecordingObject Recording::Named(const QString& table, const QString& kind, QString text) {
  const QString digest = QString::fromLatin1(
      QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex().left(8).toUpper());
  const QString name =
      (table.isEmpty() ? QStringLiteral("HISTORY_") : "TH_" + table.mid(3) + '_') + kind + '_' + digest;
  return {name, table, text.replace(QLatin1String("%NAME%"), name)};
}

QStringList RecordingWords::Names(const RecordedTable& table) {
  QStringList names;
  for (const RecordedColumn& column : table.columns) names += column.name;
  return names;
}

QString RecordingWords::RowWords::Of(const QString& column) const {
  const qsizetype other = columns.indexOf(column);
  return other < 0 ? row + column : others[other];
}

QString RecordingWords::Key(const RecordedTable& table, const RowWords& row) const {
  QStringList parts;
  for (const QString& name : table.key) {
    if (!parts.isEmpty()) parts += Sign(KeySeparator);
    parts += "COALESCE(" + Text(row.Of(name)) + ", " + Sign(KeyNull) + ')';
  }
  if (parts.isEmpty()) return QStringLiteral("''");
  return parts.size() == 1 ? parts.first() : Joined(parts);
}

QString RecordingWords::Member(const RecordedColumn& column, const QString& value) const {
  return Joined({Literal(",\"" + column.name + "\":"), column.secret ? QStringLiteral("'true'") : Quoted(value)});
}

QString RecordingWords::Object(const QStringList& members) const {
  return Joined(
      {QStringLiteral("'{'"), Behind(members.size() == 1 ? members.first() : Joined(members)), QStringLiteral("'}'")});
}

QString RecordingWords::Values(const RecordedTable& table, const RowWords& row) const {
  QStringList members;
  for (const RecordedColumn& column : table.columns) {
    const QString value = row.Of(column.name);
    members += "CASE WHEN " + value + " IS NULL THEN '' ELSE " + Member(column, value) + " END";
  }
  return Object(members);
}

QString RecordingWords::Differences(const RecordedTable& table, const QString& shown, const QString& one,
                                    const QString& other) const {
  QStringList members;
  for (const RecordedColumn& column : table.columns) {
    if (table.key.contains(column.name)) continue;
    const QString value = shown + column.name;
    members += "CASE WHEN NOT (" + Differs(one + column.name, other + column.name) + ") THEN '' WHEN " + value +
               " IS NULL THEN " + Literal(",\"" + column.name + "\":null") + " ELSE " + Member(column, value) + " END";
  }
  return Object(members);
}

QString RecordingWords::AnyDiffers(const QStringList& columns, const QString& one, const QString& other) const {
  QStringList conditions;
  for (const QString& column : columns) conditions += Differs(one + column, other + column);
  return conditions.join(" OR ");
}
