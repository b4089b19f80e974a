#include <QDir>
#include <QFileInfo>

#include "platform/files/IniFile.h"

namespace Files {

namespace {

// One step of a path; the name as it stands when the directory has no such entry.
QString Entry(const QDir& directory, const QString& name) {
  if (directory.exists(name)) return name;
  const QStringList entries =
      directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  for (const QString& entry : entries) {
    if (entry.compare(name, Qt::CaseInsensitive) == 0) return entry;
  }
  return name;
}

}  // namespace

QString FindIgnoringCase(const QString& directory, const QString& name) {
  QString path = directory;
  for (const QString& step : QDir::fromNativeSeparators(name).split('/', Qt::SkipEmptyParts)) {
    const QString entry = Entry(QDir(path), step);
    path += path.isEmpty() || path.endsWith('/') || path.endsWith(QDir::separator()) ? entry : '/' + entry;
  }
  return path;
}

}  // namespace Files
