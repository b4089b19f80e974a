#include "platform/files/SingleInstance.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <map>
#include <memory>

namespace {

// The folder of the user for what lives as long as he is logged on; where there is none the folder of temporary files,
// which all users share, so that the file's name says whose it is.
QString LockPath(const QString& applicationName) {
  const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (!runtime.isEmpty() && QDir().mkpath(runtime)) return QDir(runtime).filePath(applicationName + ".lock");
  const QString user = QDir::home().dirName();
  return QDir::temp().filePath(QStringLiteral("%1-%2.lock").arg(applicationName, user));
}

}  // namespace

namespace SingleInstance {

bool AnotherIsRunning(const QString& applicationName) {
  static std::map<QString, std::unique_ptr<QLockFile>> held;
  if (held.contains(applicationName)) return false;
  auto lock = std::make_unique<QLockFile>(LockPath(applicationName));
  // A lock never grows old while its process lives; that of a process that died is taken over.
  lock->setStaleLockTime(0);
  if (lock->tryLock(0)) {
    held.emplace(applicationName, std::move(lock));
    return false;
  }
  // A folder that cannot be written says nothing about another copy, and must not keep the user out.
  return lock->error() == QLockFile::LockFailedError;
}

}  // namespace SingleInstance
