#include "schema/ExportText.h"

namespace {

// --- Texts between quotes ---

// What an editor or a terminal would swallow, show as something else or reorder. Fixed ranges: the characters that
// count as printable grow with each version of Unicode, and the file would change with them.
bool NeedsEscape(QChar c) {
  const char16_t code = c.unicode();
  return code < 0x20 || (code >= 0x7f && code <= 0xa0) || code == 0xad || (code >= 0x200b && code <= 0x200f) ||
         (code >= 0x2028 && code <= 0x202e) || (code >= 0x2060 && code <= 0x206f) || code >= 0xfff0 || code == 0xfeff;
}

bool IsHalf(const QString& text, qsizetype i) {
  const QChar c = text.at(i);
  if (c.isHighSurrogate()) return i + 1 >= text.size() || !text.at(i + 1).isLowSurrogate();
  return c.isLowSurrogate() && (i == 0 || !text.at(i - 1).isHighSurrogate());
}

QString Escaped(const QString& text, qsizetype i) {
  const QChar c = text.at(i);
  if (c == u'"') return QStringLiteral("\\\"");
  if (c == u'\\') return QStringLiteral("\\\\");
  if (c == u'\n') return QStringLiteral("\\n");
  if (c == u'\r') return QStringLiteral("\\r");
  if (c == u'\t') return QStringLiteral("\\t");
  if (NeedsEscape(c) || IsHalf(text, i)) return "\\u{" + QString::number(c.unicode(), 16) + '}';
  return c;
}

QString Quoted(const QString& text) {
  QString quoted(u'"');
  for (qsizetype i = 0; i < text.size(); ++i) quoted += Escaped(text, i);
  return quoted + '"';
}

// A text of several lines becomes a piece a line.
QStringList Pieces(const QString& text) {
  QStringList pieces;
  qsizetype start = 0;
  for (qsizetype end = text.indexOf('\n'); end >= 0 && end + 1 < text.size(); end = text.indexOf('\n', start)) {
    pieces += text.mid(start, end + 1 - start);
    start = end + 1;
  }
  return pieces << text.mid(start);
}

// --- Writing ---

void WriteValue(QString& out, const SchemaColumn& column, const Cell& value) {
  out += "    " + column.name + ' ';
  if (column.type != SchemaColumn::Text || !value) {
    out += ExportText::ValueText(column, value) + '\n';
    return;
  }
  QString lead;
  for (const QString& piece : Pieces(*value)) {
    out += lead + Quoted(piece) + '\n';
    lead = QStringLiteral("      ");
  }
}

void WriteTable(QString& out, const TableContent& content) {
  out += "\ntable " + content.table->name + '\n';
  for (const SchemaColumn& column : content.columns) out += "  column " + column.name + '\n';
  for (const Row& row : content.rows) {
    out += "  row\n";
    for (size_t i = 0; i < row.size(); ++i) WriteValue(out, content.columns[i], row[i]);
  }
}

}  // namespace

QString ExportText::ValueText(const SchemaColumn& column, const Cell& value) {
  if (!value) return NullWord;
  return column.type == SchemaColumn::Text ? Quoted(*value) : *value;
}

QByteArray ExportText::Write(const std::vector<TableContent>& tables) {
  QString out = FirstLine + '\n';
  out += "# Written by tabulon-db export; tabulon-db compare and tabulon-db apply read it.\n";
  for (const TableContent& content : tables) WriteTable(out, content);
  return (out + "\nend\n").toUtf8();
}
