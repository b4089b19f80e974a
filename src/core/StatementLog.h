#pragma once

#include <QFile>
#include <QString>

struct StatementRecord;

// The statement log of a site: every statement as it was composed, one a line with the time, the milliseconds it took
// and the rows it affected ("-" for a SELECT, "failed" for a failed one), separated by tabs. UTF-8. Secrets are masked
// and a line break inside of a literal is shown as a symbol, so that a line stays a line.
class StatementLog {
 public:
  explicit StatementLog(const QString& path);

  // False when the line could not be written; the program goes on.
  bool Write(const StatementRecord& statement);

 private:
  QString path_;
  QFile file_;
};
