#include "platform/files/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cstring>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

namespace WholeFile {

namespace {

constexpr QFileDevice::Permissions OwnersOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

bool WriteThrough(QFileDevice& file, const QByteArray& bytes) {
  return file.write(bytes) == bytes.size() && file.flush();
}

// Over the old content, in the file that is there: what a name in a folder of somebody else's leaves possible. The room
// is taken before the first byte is changed.
bool WriteInPlace(const QString& path, const QByteArray& bytes, QString* reason) {
  QFile file(path);
  bool written = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered);
#ifndef Q_OS_WIN
  const int refused = written ? ::posix_fallocate(file.handle(), 0, qMax<off_t>(bytes.size(), 1)) : 0;
  if (refused != 0) {
    *reason = QString::fromLocal8Bit(std::strerror(refused));
    return false;
  }
#endif
  written = written && WriteThrough(file, bytes) && file.resize(bytes.size());
  if (!written) *reason = file.errorString();
  return written;
}

// A file that takes the place of one of another owner would be its writer's from then on.
bool IsOfAnotherOwner(const QFileInfo& info) {
#ifdef Q_OS_WIN
  Q_UNUSED(info)
  return false;
#else
  return info.exists() && ::geteuid() != 0 && info.ownerId() != ::geteuid();
#endif
}

// Gives a file that takes another one's place its owner and group.
bool TakeOver(QSaveFile& file, const QFileInfo& before) {
#ifdef Q_OS_WIN
  Q_UNUSED(file)
  Q_UNUSED(before)
  return true;
#else
  return !before.exists() || ::fchown(file.handle(), before.ownerId(), before.groupId()) == 0;
#endif
}

bool WriteBeside(const QString& path, const QByteArray& bytes, QString* reason, Readers readers) {
  QSaveFile file(path);
  bool written = file.open(QIODevice::WriteOnly);
  if (written && readers == Readers::AsBefore && !TakeOver(file, QFileInfo(path))) {
    file.cancelWriting();
    return WriteInPlace(path, bytes, reason);
  }
  // Before the text is in it.
  if (written && readers == Readers::OwnerOnly) written = file.setPermissions(OwnersOnly);
  // Committing alone does not notice that the last buffer found no room.
  written = written && WriteThrough(file, bytes) && file.commit();
  if (!written) *reason = file.errorString();
  return written;
}

bool WriteToDevice(const QString& path, const QByteArray& bytes, QString* reason) {
  QFile device(path);
  const bool written = device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && WriteThrough(device, bytes);
  if (!written) *reason = device.errorString();
  return written;
}

}  // namespace

bool Write(const QString& path, const QByteArray& bytes, QString* reason, Readers readers) {
  QString why;
  const QFileInfo info(path);
  bool written = false;
  if (info.exists() && !info.isFile()) {
    written = WriteToDevice(path, bytes, &why);
  } else if (readers == Readers::AsBefore && IsOfAnotherOwner(info)) {
    written = WriteInPlace(path, bytes, &why);
  } else {
    written = WriteBeside(path, bytes, &why, readers);
  }
  if (!written && reason) *reason = why;
  return written;
}

}  // namespace WholeFile
