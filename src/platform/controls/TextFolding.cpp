#include "platform/controls/TextFolding.h"

#include <algorithm>

namespace {

bool IsAscii(QStringView text) {
  return std::all_of(text.begin(), text.end(), [](QChar ch) { return ch < QChar(0x80); });
}

// Letters with a stroke are letters of their own to Unicode; those who have no such key type the plain one.
QChar WithoutStroke(QChar ch) {
  switch (ch.unicode()) {
    case u'\u00f8':
      return u'o';
    case u'\u0111':
      return u'd';
    case u'\u0127':
      return u'h';
    case u'\u0131':
      return u'i';
    case u'\u0142':
      return u'l';
    case u'\u0167':
      return u't';
    default:
      return ch;
  }
}

}  // namespace

namespace TextFolding {

QString Fold(QStringView text) {
  if (IsAscii(text)) return text.toString().toLower();
  const QString parts = text.toString().toCaseFolded().normalized(QString::NormalizationForm_KD);
  QString folded;
  folded.reserve(parts.size());
  for (const QChar ch : parts) {
    if (ch == u'\u00df')
      folded += QLatin1String("ss");
    else if (!ch.isMark())
      folded += WithoutStroke(ch);
    else if (folded.isEmpty())
      folded += ch;  // a mark alone is what somebody looks for
  }
  return folded;
}

Sought::Sought(QStringView text) : folded_(Fold(text)) {}

bool Sought::IsIn(QStringView text) const {
  // Most cells hold nothing to fold but capitals.
  if (IsAscii(text)) return text.contains(folded_, Qt::CaseInsensitive);
  return Fold(text).contains(folded_);
}

}  // namespace TextFolding
