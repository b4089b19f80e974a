#include "platform/files/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QStandardPaths>
#include <QSysInfo>
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
  // What is no lock of a process of this machine (a file with other content, a link, a folder, a lock that came with
  // somebody else's files) keeps nobody out. A file is taken away, so that this copy can tell the next one.
  qint64 process = 0;
  QString machine, program;
  const bool isLock = lock->getLockInfo(&process, &machine, &program) && process > 0 &&
                      (machine.isEmpty() || machine == QSysInfo::machineHostName());
  if (lock->error() == QLockFile::LockFailedError && !isLock) {
    if (QFile::remove(lock->fileName()) && lock->tryLock(0)) held.emplace(applicationName, std::move(lock));
    return false;
  }
  // A folder that cannot be written says nothing about another copy, and must not keep the user out.
  return lock->error() == QLockFile::LockFailedError;
}

}  // namespace SingleInstance
