#include "platform/files/AppendedFile.h"

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

bool OpenToAppend(QFile& file, const QString& path) {
  constexpr QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
#ifdef Q_OS_WIN
  file.setFileName(path);
  return file.open(mode);
#else
  constexpr mode_t ownerAndGroup = 0660;
  const int handle = ::open(QFile::encodeName(path).constData(),
                            O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, ownerAndGroup);
  if (handle < 0) return false;
  struct stat state;
  if (::fstat(handle, &state) == 0 && S_ISREG(state.st_mode) && file.open(handle, mode, QFileDevice::AutoCloseHandle))
    return true;
  ::close(handle);
  return false;
#endif
}
