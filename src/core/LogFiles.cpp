#include "core/LogFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include "core/Clock.h"
#include "platform/files/WideTextFile.h"

namespace {

const QString Title = QStringLiteral("Tabulon");
constexpr int VersionLineLength = 65;  // characters, all of the line
constexpr int ContinuationIndent = 24;
constexpr QFileDevice::Permissions OwnerAndGroup = QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                                   QFileDevice::ExeOwner | QFileDevice::ReadGroup |
                                                   QFileDevice::WriteGroup | QFileDevice::ExeGroup;

QString Directory() {
  return QDir::toNativeSeparators(QDir::currentPath() + "/Logs");
}

QString Version() {
  return QStringLiteral("%1.%2.%3").arg(TABULON_VERSION_MAJOR).arg(TABULON_VERSION_MINOR).arg(TABULON_VERSION_REVISION);
}

// Log readers sort by these letters: the same 12-hour clock whatever the machine's language.
QString Moment() {
  return QLocale::c().toString(Clock::Now(), "yyyy-MM-dd hh:mm:ss AP");
}

// A line end inside of a text, such as a trigger's, begins no entry of its own.
QString Indented(QString text) {
  text.replace("\r\n", "\n").replace('\r', '\n');
  return text.replace('\n', '\n' + QString(ContinuationIndent + 2, ' '));
}

QString EntryLine(const QString& text) {
  return Moment() + "  * " + Indented(text);
}

QString ContinuationLine(const QString& text) {
  return QString(ContinuationIndent, ' ') + "* " + Indented(text);
}

QString VersionLine() {
  return QString("**** Version: " + Version() + ' ').leftJustified(VersionLineLength, '*');
}

// A missing directory is made once and the write repeated once.
void Append(const QString& path, const QStringList& lines) {
  if (WideTextFile::AppendLines(path, lines) != WideTextFile::Result::NoDirectory) return;
  if (QDir().mkdir(Directory(), OwnerAndGroup)) WideTextFile::AppendLines(path, lines);
}

void Rotate(const QString& log, const QString& old) {
  if (QFileInfo(log).size() <= LogRotationSize) return;
  if (QFileInfo::exists(old)) QFile::remove(old);
  QFile::rename(log, old);
}

}  // namespace

QString LogFilePath(const QString& application, const QString& qualifier, const QString& extension) {
  QString name = qualifier.isEmpty() ? application : application + " - " + qualifier;
  // A site that is refused for its name is told of in the log all the same.
  for (QChar& letter : name)
    if (letter == u'/' || letter == u'\\' || !letter.isPrint()) letter = u'_';
  return Directory() + QDir::separator() + name + extension;
}

void ID_WriteStartupLogEntry(const QString& application, const QString& qualifier) {
  const QString line = Moment() + "  **** Application Started: Build (" + Version() + ")";
  Append(LogFilePath(application, qualifier, ".log"), {QString(), line});
}

bool ID_WriteClassFailedLog(const QString& message, const QString& detail, const QString& level, QString& qualifier) {
  WriteLogLines(Title, qualifier, message, detail, level);
  return true;
}

void WriteLogLines(const QString& application, const QString& qualifier, const QString& message, const QString& detail,
                   const QString& level) {
  const bool critical = level == "C";
  QStringList lines;
  if (critical || level == "L") lines << EntryLine(message);
  if (level == "S") lines << ContinuationLine(message);
  if (!detail.isEmpty()) lines << ContinuationLine(detail);
  if (critical) lines << VersionLine();

  const QString log = LogFilePath(application, qualifier, ".log");
  Append(log, lines);
  if (critical) Rotate(log, LogFilePath(application, qualifier, ".old"));
}
