#include "platform/files/IniText.h"

#include <QSet>
#include <QStringConverter>

namespace {

bool IsLineEnd(QChar letter) {
  return letter == '\n' || letter == '\r';
}

bool SameName(QStringView name, const QString& wanted) {
  return name.compare(QStringView(wanted).trimmed(), Qt::CaseInsensitive) == 0;
}

QByteArray EncodeAs(const QString& text, QStringConverter::Encoding encoding, const char* mark) {
  QStringEncoder encoder(encoding);
  const QByteArray body = encoder.encode(text);
  return QByteArray(mark) + body;
}

bool IsQuoted(QStringView value) {
  return value.size() >= 2 && value.startsWith('"') && value.endsWith('"');
}

QString Unquoted(QStringView raw) {
  const QStringView value = raw.trimmed();
  if (value.isEmpty()) return raw.toString();  // a value of blanks only is a value
  return (IsQuoted(value) ? value.sliced(1, value.size() - 2) : value).toString();
}

// Enclosed where reading would drop something otherwise.
QString Quoted(const QString& value) {
  return value != value.trimmed() || IsQuoted(value) ? '"' + value + '"' : value;
}

// Names that SameName finds equal are one here.
QString Folded(const QString& name) {
  QString folded;
  for (const char32_t letter : name.toUcs4()) folded += QChar::fromUcs4(QChar::toCaseFolded(letter));
  return folded;
}

struct UniqueNames {
  void Add(QStringView name) {
    const QString text = name.toString();
    const QString folded = Folded(text);
    if (seen.contains(folded)) return;
    seen.insert(folded);
    list << text;
  }

  QStringList list;
  QSet<QString> seen;
};

}  // namespace

bool IniText::Decode(const QByteArray& bytes) {
  // The decoder takes off one mark; a second one belongs to the text.
  const auto decode = [&](QStringConverter::Encoding encoding) {
    QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
    text_ = decoder.decode(bytes);
    return !decoder.hasError();
  };
  if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
    const bool little = bytes.startsWith("\xFF");
    encoding_ = little ? Encoding::Utf16Little : Encoding::Utf16Big;
    // The decoder is content with half a letter at the end.
    if (bytes.size() % 2 != 0 || !decode(little ? QStringConverter::Utf16LE : QStringConverter::Utf16BE)) return false;
  } else if (decode(QStringConverter::Utf8)) {
    encoding_ = bytes.startsWith("\xEF\xBB\xBF") ? Encoding::Utf8WithMark : Encoding::Utf8;
  } else {
    encoding_ = Encoding::Latin1;
    text_ = QString::fromLatin1(bytes);
  }
  return !text_.contains(QChar(0));
}

bool IniText::Encode(QByteArray& bytes) const {
  // No encoding but UTF-16 can write half of a character.
  const bool halves = encoding_ == Encoding::Utf16Little || encoding_ == Encoding::Utf16Big;
  if (!halves && !text_.isValidUtf16()) return false;
  switch (encoding_) {
    case Encoding::Utf8:
      bytes = text_.toUtf8();
      return true;
    case Encoding::Utf8WithMark:
      bytes = "\xEF\xBB\xBF" + text_.toUtf8();
      return true;
    case Encoding::Utf16Little:
      bytes = EncodeAs(text_, QStringConverter::Utf16LE, "\xFF\xFE");
      return true;
    case Encoding::Utf16Big:
      bytes = EncodeAs(text_, QStringConverter::Utf16BE, "\xFE\xFF");
      return true;
    case Encoding::Latin1:
      bytes = text_.toLatin1();
      if (QString::fromLatin1(bytes) != text_) return false;
      // When the last byte that spoke against UTF-8 is gone, the others would be read as UTF-8.
      if (bytes.isValidUtf8()) bytes = text_.toUtf8();
      return true;
  }
  return false;
}

IniText::Line IniText::LineAt(qsizetype start) const {
  Line line;
  line.stop = start;
  while (line.stop < text_.size() && !IsLineEnd(text_[line.stop])) ++line.stop;
  line.next = line.stop;
  if (line.next < text_.size()) line.next += QStringView(text_).sliced(line.next).startsWith(u"\r\n") ? 2 : 1;

  const QStringView whole = QStringView(text_).sliced(start, line.stop - start);
  const QStringView trimmed = whole.trimmed();
  if (trimmed.isEmpty() || trimmed.startsWith(';') || trimmed.startsWith('#')) return line;
  if (trimmed.startsWith('[')) {
    // A section whose closing bracket was forgotten is taken by the rest of its line.
    const qsizetype close = trimmed.indexOf(']');
    line.kind = Kind::Section;
    line.name = trimmed.sliced(1, (close < 0 ? trimmed.size() : close) - 1).trimmed();
    return line;
  }
  const qsizetype equals = whole.indexOf('=');
  if (equals < 0) return line;
  line.name = whole.first(equals).trimmed();
  if (line.name.isEmpty()) return line;
  line.kind = Kind::Entry;
  line.value = start + equals + 1;
  const QStringView raw = whole.sliced(equals + 1);
  if (!raw.trimmed().isEmpty()) {
    while (text_[line.value].isSpace()) ++line.value;
  }
  return line;
}

void IniText::ForEachLine(const std::function<bool(const Line&)>& body) const {
  for (qsizetype start = 0; start < text_.size();) {
    const Line line = LineAt(start);
    if (!body(line)) return;
    start = line.next;
  }
}

IniText::Place IniText::Find(const QString& section, const QString& key) const {
  Place place;
  bool inside = false;
  int sections = 0;  // a name that heads two sections: both are read, new entries go to the first
  ForEachLine([&](const Line& line) {
    if (line.kind == Kind::Section) {
      inside = SameName(line.name, section);
      sections += inside ? 1 : 0;
    }
    if (!inside || line.kind == Kind::Other) return true;
    if (sections == 1) place.endOfSection = line.next;
    if (line.kind == Kind::Section || !SameName(line.name, key)) return true;
    place.entry = line;
    return false;
  });
  return place;
}

QString IniText::Value(const QString& section, const QString& key) const {
  const Line entry = Find(section, key).entry;
  if (entry.kind != Kind::Entry) return {};
  return Unquoted(QStringView(text_).sliced(entry.value, entry.stop - entry.value));
}

void IniText::SetValue(const QString& section, const QString& key, const QString& value) {
  const Place place = Find(section, key);
  if (place.entry.kind == Kind::Entry) {
    // Blanks that stand before the old value would be the new one if that is empty.
    const bool blanks = text_[place.entry.value - 1] != '=';
    const QString written = value.isEmpty() && blanks ? QStringLiteral("\"\"") : Quoted(value);
    text_.replace(place.entry.value, place.entry.stop - place.entry.value, written);
    return;
  }
  const QString end = LineEnd();
  const QString entry = key.trimmed() + '=' + Quoted(value) + end;
  const bool atEnd = place.endOfSection < 0 || place.endOfSection == text_.size();
  if (atEnd && !text_.isEmpty() && !IsLineEnd(text_.back())) text_ += end;
  if (place.endOfSection < 0) {
    text_ += (text_.isEmpty() ? QString() : end) + '[' + section.trimmed() + ']' + end + entry;
  } else {
    text_.insert(atEnd ? text_.size() : place.endOfSection, entry);
  }
}

QStringList IniText::Sections() const {
  UniqueNames names;
  ForEachLine([&](const Line& line) {
    if (line.kind == Kind::Section) names.Add(line.name);
    return true;
  });
  return names.list;
}

QStringList IniText::Keys(const QString& section) const {
  UniqueNames names;
  bool inside = false;
  ForEachLine([&](const Line& line) {
    if (line.kind == Kind::Section) inside = SameName(line.name, section);
    if (inside && line.kind == Kind::Entry) names.Add(line.name);
    return true;
  });
  return names.list;
}

QString IniText::LineEnd() const {
  const Line first = LineAt(0);
  if (first.next > first.stop) return text_.sliced(first.stop, first.next - first.stop);
#ifdef Q_OS_WIN
  return QStringLiteral("\r\n");
#else
  return QStringLiteral("\n");
#endif
}
