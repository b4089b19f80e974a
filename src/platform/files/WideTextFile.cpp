#include "platform/files/WideTextFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringConverter>

#include "platform/files/AppendedFile.h"

namespace WideTextFile {

namespace {

const QString LineEnd = QStringLiteral("\r\n");

// Line breaks inside of a line become line ends of the file.
QString WithLineEnds(const QStringList& lines) {
  QString text;
  for (QString line : lines) text += line.replace(LineEnd, "\n").replace('\r', '\n').replace('\n', LineEnd) + LineEnd;
  return text;
}

QByteArray Bytes(const QString& text) {
  QByteArray bytes;
  bytes.reserve(text.size() * 2);
  for (const QChar letter : text) {
    bytes.append(char(letter.unicode() & 0xFF));
    bytes.append(char(letter.unicode() >> 8));
  }
  return bytes;
}

}  // namespace

Result AppendLines(const QString& path, const QStringList& lines) {
  QFile file;
  // Unbuffered, so that the lines of two processes do not mix.
  if (!OpenToAppend(file, path)) return QFileInfo(path).absoluteDir().exists() ? Result::Failed : Result::NoDirectory;
  const qint64 size = file.size();
  QByteArray bytes;
  if (size == 0) bytes = "\xFF\xFE";
  // A half character, left by a full disk, would shift all that follows.
  if (size % 2 != 0) bytes = QByteArray(1, '\0');
  bytes += Bytes(WithLineEnds(lines));
  if (file.write(bytes) == bytes.size() && file.flush()) return Result::Written;
  file.resize(size);
  return Result::Failed;
}

QStringList ReadLines(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QStringDecoder decoder(QStringConverter::Utf16LE);
  QString text = decoder.decode(file.readAll());
  if (text.startsWith(QChar(QChar::ByteOrderMark))) text.remove(0, 1);
  if (text.endsWith(LineEnd)) text.chop(LineEnd.size());
  return text.isEmpty() ? QStringList() : text.split(LineEnd);
}

}  // namespace WideTextFile
