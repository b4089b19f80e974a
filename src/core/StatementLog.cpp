#include "core/StatementLog.h"

#include "core/Clock.h"
#include "core/SecretMask.h"
#include "platform/ado/Connection.h"
#include "platform/files/AppendedFile.h"

StatementLog::StatementLog(const QString& path) : path_(path) {}

bool StatementLog::Write(const StatementRecord& statement) {
  if (!file_.isOpen() && !OpenToAppend(file_, path_)) return false;
  QString rows = statement.affectedRows < 0 ? QStringLiteral("-") : QString::number(statement.affectedRows);
  if (statement.failed) rows = QStringLiteral("failed");
  QString text = MaskSecrets(statement.text);
  text.replace('\r', QChar(u'\u240D')).replace('\n', QChar(u'\u240A'));
  const QStringList parts{Clock::Now().toString("yyyy-MM-dd hh:mm:ss.zzz"), QString::number(statement.milliseconds),
                          rows, text};
  const QByteArray line = parts.join('\t').toUtf8() + '\n';
  const qint64 before = file_.size();
  if (file_.write(line) == line.size()) return true;
  file_.resize(before);  // half a line would stand before the next one
  return false;
}
