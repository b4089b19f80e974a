#include "reliability/SentStatements.h"

#include <QRegularExpression>

namespace {

QString InShort(const QString& statement) {
  static const QRegularExpression shape(
      "^\\s*(?:(SELECT)\\b.*?\\bFROM|(INSERT)\\s+INTO|(UPDATE)|(DELETE)\\s+FROM)\\s+(?:ID_)?(\\w+)",
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = shape.match(statement);
  if (!match.hasMatch()) return statement;
  static const char* const verbs[] = {"read ", "insert ", "update ", "delete "};
  int verb = 0;
  while (match.captured(verb + 1).isEmpty()) ++verb;
  return verbs[verb] + match.captured(5).toUpper();
}

}  // namespace

QString InShort(const QStringList& statements) {
  QStringList parts;
  for (qsizetype at = 0; at < statements.size();) {
    const QString part = InShort(statements[at]);
    qsizetype count = 1;
    while (at + count < statements.size() && InShort(statements[at + count]) == part) ++count;
    parts += count == 1 ? part : QString::number(count) + " x " + part;
    at += count;
  }
  return parts.join(", ");
}

const Sent* FindSent(const QString& screen, const QString& action) {
  for (const Sent& sent : SentStatements())
    if (screen == QLatin1String(sent.screen) && action == QLatin1String(sent.action)) return &sent;
  return nullptr;
}

QString DocumentLine(const Sent& sent) {
  const int trips = sent.count + 2 * sent.transactions + sent.catalogue;
  return QString("| %1 | %2 | %3 | %4 | %5 s | %6 |")
      .arg(sent.screen, sent.action)
      .arg(sent.count)
      .arg(trips)
      .arg(trips * 0.05, 0, 'f', 2)
      .arg(sent.statements);
}
