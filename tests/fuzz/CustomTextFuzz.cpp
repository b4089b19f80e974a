// The reader of a site's own screen texts. Input: a line with a section, then the bytes of the file.
#include <QFile>
#include <QTemporaryDir>

#include "Property.h"
#include "directory/CustomTextFile.h"
#include "platform/ado/SqlTokens.h"
#include "platform/files/IniFile.h"
#include "platform/files/IniText.h"

namespace {

constexpr int MostKeys = 20;  // of a file: each look-up reads it anew

const char* const UsualKeys[] = {"LIBRARY_ScreenName", "LIBRARY_mnuFile", "ID_LIBRARY.VORN_SYMBOLToolTip",
                                 "LIBRARY_Default_DELIV_METHOD_COPY"};

QString Stored(const QByteArray& bytes) {
  static const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("LIBRARY.CFG"));
  QFile file(path);
  Must(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the work folder can be written");
  return path;
}

// As a caption: one line, no longer than a value may be, no blanks around it unless there is nothing else.
void CheckCaption(const QString& text, bool wholeCharacters) {
  Must(text.size() <= IniFile::LongestValue, "a text has its longest length", {text});
  for (const QChar letter : text) {
    Must(letter != u'\0' && letter != u'\n' && letter != u'\r', "a text is one line", {text});
  }
  Must(text == text.trimmed() || text.trimmed().isEmpty(), "no blanks stand around a text", {text});
  Must(!wholeCharacters || text.isValidUtf16(), "no character is cut in half", {text});
}

// As a default code: in capitals, in the literal of the look-up of its description.
void CheckCode(const QString& text) {
  const QString code = text.toUpper();
  if (!code.isValidUtf16()) return;  // the look-up is refused and told
  QString escaped = code;
  const QString literal = QStringLiteral("N'") + escaped.replace(u'\'', QLatin1String("''")) + u'\'';
  const QString select = QStringLiteral("SELECT   A FROM B WHERE    C = ") + literal;
  Must(WhyRefused(select, 1).isEmpty() && Tokenize(select).back().text == literal, "a code is one literal", {select});
}

QString CheckKey(const CustomText& texts, const QString& key, bool wholeCharacters) {
  const QString text = texts.Value(key);
  CheckCaption(text, wholeCharacters);
  CheckCode(text);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  const auto [first, bytes] = PartsOf(data, size);
  const QString path = Stored(bytes);
  const QString section = QString::fromUtf8(first);
  const CustomText texts(path, section);
  IniText file;
  const bool readable = file.Decode(bytes);
  const bool wholeCharacters = bytes.isValidUtf8();
  for (const char* key : UsualKeys) {
    const QString text = CheckKey(texts, QLatin1String(key), wholeCharacters);
    Must(readable || text.isEmpty(), "a broken file has no texts", {text});
  }
  if (!readable) return 0;
  const QStringList keys = file.Keys(section).mid(0, MostKeys);
  for (const QString& key : keys) {
    const QString text = CheckKey(texts, key, wholeCharacters);
    const QString stored = file.Value(section, key);
    Must(stored.trimmed().startsWith(text.trimmed()), "a text is what the file says", {key, stored, text});
    Must(text.isEmpty() == stored.isEmpty(), "a text of blanks is one, an empty one is none", {key, stored});
  }
  return 0;
}
