// The INI reader and writer. Input: a line "section TAB key TAB value", then the bytes of a file.
#include <QFile>
#include <QTemporaryDir>
#include <map>

#include "Property.h"
#include "platform/files/IniFile.h"
#include "platform/files/IniText.h"

namespace {

constexpr int MostKeys = 20;  // of a file whose values are all compared: each look-up reads the text from its start

using Values = std::map<std::pair<QString, QString>, QString>;

bool Same(const QString& left, const QString& right) {
  return left.compare(right, Qt::CaseInsensitive) == 0;
}

bool Holds(const QStringList& names, const QString& name) {
  return names.contains(name.trimmed(), Qt::CaseInsensitive);
}

bool HasLineEnd(const QString& text) {
  return text.contains(u'\n') || text.contains(u'\r');
}

void CheckNames(const QStringList& names) {
  for (qsizetype i = 0; i < names.size(); ++i) {
    Must(names[i] == names[i].trimmed() && !HasLineEnd(names[i]), "a name has no blanks around it", {names[i]});
    Must(names.indexOf(names[i]) == i, "a name is listed once", {names[i]});
  }
}

Values AllValues(const IniText& text) {
  Values values;
  for (const QString& section : text.Sections()) {
    const QStringList keys = text.Keys(section);
    CheckNames(keys);
    for (const QString& key : keys) {
      if (values.size() == MostKeys) return values;
      const QString value = text.Value(section, key);
      Must(!HasLineEnd(value) && !value.contains(QChar(u'\0')), "a value is one line", {section, key, value});
      values[{section, key}] = value;
    }
  }
  return values;
}

void CheckReading(const QByteArray& bytes) {
  IniText text;
  if (!text.Decode(bytes)) return;
  QByteArray again;
  Must(text.Encode(again) && again == bytes, "a text is stored as it was read",
       {QString::fromLatin1(bytes), QString::fromLatin1(again)});
  CheckNames(text.Sections());
  qsizetype size = 0;
  for (const auto& [name, value] : AllValues(text)) size += name.second.size() + value.size();
  Must(size <= bytes.size(), "keys and values are no longer than the file");
}

class StoredFile {
 public:
  explicit StoredFile(const QByteArray& bytes) {
    QFile file(Path());
    Must(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the work folder can be written");
  }
  QString Path() const { return Folder().filePath("fuzz.ini"); }
  QByteArray Bytes() const {
    QFile file(Path());
    Must(file.open(QIODevice::ReadOnly), "the file is still there");
    return file.readAll();
  }

 private:
  static const QTemporaryDir& Folder() {
    static const QTemporaryDir folder;
    return folder;
  }
};

void CheckOthers(const Values& before, const IniText& after, const QString& section, const QString& key) {
  for (const auto& [name, value] : before) {
    if (Same(name.first, section.trimmed()) && Same(name.second, key.trimmed())) continue;
    const QString now = after.Value(name.first, name.second);
    Must(now == value, "every other value is as it was", {name.first, name.second, value, now});
  }
}

void CheckWriting(const QByteArray& bytes, const QString& section, const QString& key, const QString& value) {
  const StoredFile file(bytes);
  QString reason;
  const bool stored = IniFile::WriteValue(file.Path(), section, key, value, &reason);
  if (!stored) {
    Must(!reason.isEmpty() && file.Bytes() == bytes, "a refusal has its reason and leaves the file", {reason});
    return;
  }
  IniText before, after;
  Must(before.Decode(bytes) && after.Decode(file.Bytes()), "a text file stays one");
  Must(after.Value(section, key) == value, "what was written is read", {value, after.Value(section, key)});
  Must(IniFile::ReadValue(file.Path(), section, key) == value.left(IniFile::LongestValue) ||
           value.size() > IniFile::LongestValue,
       "a value is read up to its longest length", {value});
  Must(Holds(after.Sections(), section) && Holds(after.Keys(section), key), "what was written is listed",
       {section, key});
  CheckOthers(AllValues(before), after, section, key);
  const QByteArray once = file.Bytes();
  Must(IniFile::WriteValue(file.Path(), section, key, value, &reason) && file.Bytes() == once,
       "the same written again changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  const auto [first, bytes] = PartsOf(data, size);
  CheckReading(bytes);
  // Half of a character, which a box can hand over but UTF-8 cannot write.
  const QStringList names = QString::fromUtf8(first).replace(QChar(0xE000), QChar(0xD83D)).split(u'\t');
  if (names.size() >= 3) CheckWriting(bytes, names[0], names[1], names.mid(2).join(u'\t'));
  return 0;
}
