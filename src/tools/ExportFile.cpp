#include "tools/ExportFile.h"

#include <QDir>
#include <cstdio>
#include <stdexcept>

#include "platform/files/WholeFile.h"
#include "schema/ExportText.h"

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace {

constexpr qint64 LargestFile = 256 * 1024 * 1024;  // bytes; a device never ends

[[noreturn]] void Fail(const QString& path, const QString& what, const QString& reason) {
  throw std::runtime_error(
      QStringLiteral("The file \"%1\" %2 (%3)").arg(QDir::toNativeSeparators(path), what, reason).toStdString());
}

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  const bool open = path == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
  if (!open) Fail(path, "cannot be read", file.errorString());
  QByteArray text = file.read(LargestFile + 1);
  if (text.size() > LargestFile) Fail(path, "cannot be used", "it is larger than 256 MB");
  return text;
}

void Print(const QByteArray& text) {
#ifdef Q_OS_WIN
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  QFile out;
  const bool written = out.open(stdout, QIODevice::WriteOnly) && out.write(text) == text.size() && out.flush();
  if (!written) Fail("-", "cannot be written", out.errorString());
}

}  // namespace

std::vector<TableContent> ExportFile::Load(const QString& path) {
  const QByteArray text = ReadAll(path);
  try {
    return ExportText::Parse(text);
  } catch (const std::runtime_error& error) {
    Fail(path, "cannot be used", QString::fromUtf8(error.what()));
  }
}

void ExportFile::Save(const QString& path, const std::vector<TableContent>& tables, bool secret) {
  const QByteArray text = ExportText::Write(tables);
  if (path == u"-") {
    Print(text);
    return;
  }
  QString reason;
  if (!WholeFile::Write(path, text, &reason, secret ? WholeFile::Readers::OwnerOnly : WholeFile::Readers::AsBefore))
    Fail(path, "cannot be written", reason);
}
