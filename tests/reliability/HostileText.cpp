#include "reliability/HostileText.h"

#include <array>
#include <vector>

namespace {

QString OfCodePoint(char32_t point) {
  return QString::fromUcs4(&point, 1);
}

rc::Gen<QString> Pieces() {
  static const std::vector<QString> signs{"'",
                                          "''",
                                          "'''",
                                          "\\",
                                          "\\'",
                                          "%",
                                          "_",
                                          ";",
                                          "--",
                                          "/*",
                                          "*/",
                                          "N'",
                                          "n'",
                                          "{",
                                          "}",
                                          "{ts '",
                                          "{fn ",
                                          "?",
                                          ":a",
                                          "$1",
                                          "$$",
                                          "\"",
                                          "`",
                                          "[",
                                          "]",
                                          "[NOTE]",
                                          "@@",
                                          "#",
                                          "&",
                                          "&&",
                                          "\t",
                                          "\r\n",
                                          "\n",
                                          "\x01",
                                          "\x7f",
                                          QChar(u'\0'),
                                          " ",
                                          "  ",
                                          "NULL",
                                          "'; DROP TABLE ID_USER; --",
                                          "E'",
                                          "U&'",
                                          "q'[",
                                          "\\x27",
                                          "\\0",
                                          "' OR '1'='1",
                                          "%s%n",
                                          "<b>",
                                          "SELECT TOP 1",
                                          "LIKE '%'"};
  static const std::vector<char32_t> letters{
      U'\u00a0', U'\u00ad', U'\u00df', U'\u0130',     U'\u0131',     U'i',          U'I',          U'\u01c6',
      U'\u0301', U'\u0345', U'\u05d0', U'\u0627',     U'\u200b',     U'\u200d',     U'\u200e',     U'\u2019',
      U'\u2028', U'\u2029', U'\u202e', U'\u2126',     U'\u212b',     U'\u3000',     U'\ufb01',     U'\ufeff',
      U'\ufffd', U'\uff07', U'\u02bc', U'\U0001f600', U'\U0001d54f', U'\U00020000', U'\U0010fffd', U'\U0001f468'};
  return rc::gen::weightedOneOf<QString>({
      {8, rc::gen::elementOf(signs)},
      {4, rc::gen::map(rc::gen::elementOf(letters), OfCodePoint)},
      {6, rc::gen::map(rc::gen::inRange(0x20, 0x7f), [](int code) { return QString(QChar(code)); })},
      {3, rc::gen::map(rc::gen::inRange(0xa0, 0xd7ff), [](int code) { return QString(QChar(code)); })},
      {2, rc::gen::map(rc::gen::inRange(0x10000, 0x10ffff), [](int code) { return OfCodePoint(char32_t(code)); })},
  });
}

QString Joined(const std::vector<QString>& pieces) {
  QString text;
  for (const QString& piece : pieces) text += piece;
  return text;
}

}  // namespace

bool HostileText::HasLoneSurrogate() const {
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!text[i].isSurrogate()) continue;
    if (!text[i].isHighSurrogate() || i + 1 == text.size() || !text[i + 1].isLowSurrogate()) return true;
    ++i;
  }
  return false;
}

QString Visible(const QString& text) {
  QString shown;
  for (const QChar ch : text)
    shown += ch >= u' ' && ch < u'\x7f' ? QString(ch) : QString("\\u%1").arg(ch.unicode(), 4, 16, QChar(u'0'));
  return shown;
}

rc::Gen<HostileText> HostileTexts() {
  const auto few = rc::gen::map(rc::gen::container<std::vector<QString>>(Pieces()), Joined);
  // Longer than any field, so that a limit may fall into the middle of a letter or behind a quote.
  const auto many = rc::gen::map(rc::gen::container<std::vector<QString>>(400, Pieces()), Joined);
  const auto blanks = rc::gen::map(few, [](const QString& text) { return "  " + text + " \t "; });
  const auto half =
      rc::gen::map(rc::gen::pair(few, rc::gen::inRange(0xd800, 0xe000)),
                   [](const std::pair<QString, int>& parts) { return parts.first + QChar(parts.second) + "x"; });
  return rc::gen::map(rc::gen::weightedOneOf<QString>({{60, few}, {4, many}, {8, blanks}, {1, half}}),
                      [](const QString& text) { return HostileText{text}; });
}
