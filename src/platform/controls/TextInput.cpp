#include "platform/controls/TextInput.h"

#include <QKeyEvent>

namespace {

bool IsControl(QChar ch) {
  return ch < u' ' || (ch >= u'\x7f' && ch < u'\xa0');
}
bool IsLineEnd(QChar ch) {
  return ch == u'\n' || ch == u'\r' || ch == QChar::LineSeparator || ch == QChar::ParagraphSeparator;
}

// Line ends as "\n", other control characters but the tab left out.
QString WithPlainLineEnds(const QString& foreign) {
  QString plain;
  plain.reserve(foreign.size());
  for (qsizetype i = 0; i < foreign.size(); ++i) {
    const QChar ch = foreign[i];
    if (ch == u'\r' && i + 1 < foreign.size() && foreign[i + 1] == u'\n') continue;
    if (IsLineEnd(ch))
      plain += u'\n';
    else if (ch == u'\t' || !IsControl(ch))
      plain += ch;
  }
  return plain;
}

}  // namespace

namespace TextInput {

bool IsTyped(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.isEmpty() || IsControl(text.front())) return false;
  const Qt::KeyboardModifiers shortcut = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return shortcut == Qt::NoModifier || shortcut == (Qt::ControlModifier | Qt::AltModifier);
}

QString OneLine(const QString& foreign) {
  const QString plain = WithPlainLineEnds(foreign);
  const auto isBreak = [](QChar ch) { return ch == u'\n' || ch == u'\t'; };
  qsizetype begin = 0, end = plain.size();
  while (begin < end && isBreak(plain[begin])) ++begin;
  while (end > begin && isBreak(plain[end - 1])) --end;
  QString line = plain.mid(begin, end - begin);
  for (QChar& ch : line)
    if (isBreak(ch)) ch = u' ';
  return line;
}

QString Lines(const QString& foreign) {
  return WithPlainLineEnds(foreign);
}

QString Upper(const QString& text) {
  if (text.isValidUtf16()) return text.toUpper();
  QString upper;
  for (qsizetype at = 0; at < text.size();) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    upper += pair || !text[at].isSurrogate() ? text.mid(at, pair ? 2 : 1).toUpper() : QString(text[at]);
    at += pair ? 2 : 1;
  }
  return upper;
}

QString Fitting(const QString& text, qsizetype room) {
  if (text.size() <= room) return text;
  if (room <= 0) return {};
  const bool halves = text[room - 1].isHighSurrogate() && text[room].isLowSurrogate();
  return text.left(halves ? room - 1 : room);
}

}  // namespace TextInput
