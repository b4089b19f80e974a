#include "platform/files/IniFile.h"

#include <QFile>
#include <QFileInfo>

#include "platform/files/IniText.h"
#include "platform/files/WholeFile.h"

namespace IniFile {

namespace {

constexpr qint64 LargestFile = 16 * 1024 * 1024;  // bytes

bool Store(const QString& path, const QByteArray& bytes, QString* reason) {
  QString why;
  if (WholeFile::Write(path, bytes, &why)) return true;
  if (reason) *reason = QStringLiteral("The file '%1' cannot be written: %2.").arg(path, why);
  return false;
}

// Never in the middle of a character.
QString Cut(const QString& value, int length) {
  const bool half = value.size() > length && length > 0 && value[length - 1].isHighSurrogate();
  return value.left(half ? length - 1 : length);
}

bool HasControl(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 32 && c != '\t'; });
}

// Why the three would not read back as they were given; empty when they do.
QString WhyUnwritable(const QString& section, const QString& key, const QString& value) {
  if (section.trimmed().isEmpty() || section.contains(']') || HasControl(section))
    return QStringLiteral("'%1' cannot be the name of a section.").arg(section);
  const QString name = key.trimmed();
  if (name.isEmpty() || name.contains('=') || HasControl(key) || QStringLiteral(";#[").contains(name.front()))
    return QStringLiteral("'%1' cannot be the name of a setting.").arg(key);
  if (HasControl(value))
    return QStringLiteral("The value of '%1' holds a line break or another control character.").arg(key);
  return {};
}

}  // namespace

bool Read(const QString& path, IniText& text, QString* reason) {
  const auto fail = [&](const QString& why) {
    if (reason) *reason = why;
    return false;
  };
  const QFileInfo info(path);
  if (!info.exists()) return fail(QStringLiteral("The file '%1' does not exist.").arg(path));
  if (!info.isFile()) return fail(QStringLiteral("'%1' is not a file.").arg(path));
  if (info.size() > LargestFile)
    return fail(QStringLiteral("The file '%1' is larger than 16 MB and cannot be a settings file.").arg(path));
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return fail(QStringLiteral("The file '%1' cannot be read: %2.").arg(path, file.errorString()));
  const QByteArray bytes = file.read(qMin(file.size(), LargestFile));
  if (file.error() != QFileDevice::NoError)
    return fail(QStringLiteral("The file '%1' cannot be read: %2.").arg(path, file.errorString()));
  if (!text.Decode(bytes)) return fail(QStringLiteral("The file '%1' is not a text file.").arg(path));
  return true;
}

QString ReadValue(const QString& path, const QString& section, const QString& key, int maxLength) {
  IniText text;
  return Read(path, text, nullptr) ? Value(text, section, key, maxLength) : QString();
}

QString Value(const IniText& text, const QString& section, const QString& key, int maxLength) {
  return Cut(text.Value(section, key), qMax(0, maxLength));
}

QStringList Sections(const QString& path) {
  IniText text;
  return Read(path, text, nullptr) ? text.Sections() : QStringList();
}

QStringList Keys(const QString& path, const QString& section) {
  IniText text;
  return Read(path, text, nullptr) ? text.Keys(section) : QStringList();
}

bool WriteValue(const QString& path, const QString& section, const QString& key, const QString& value,
                QString* reason) {
  const QString unwritable = WhyUnwritable(section, key, value);
  if (!unwritable.isEmpty()) {
    if (reason) *reason = unwritable;
    return false;
  }
  IniText text;
  if (QFileInfo::exists(path) && !Read(path, text, reason)) return false;
  text.SetValue(section, key, value);
  QByteArray bytes;
  if (!text.Encode(bytes)) {
    if (reason)
      *reason = QStringLiteral("The value of '%1' has letters that the encoding of '%2' does not know.").arg(key, path);
    return false;
  }
  return Store(path, bytes, reason);
}

}  // namespace IniFile
