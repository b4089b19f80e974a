#include "support/CarriedText.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <stdexcept>

#include "platform/ado/Dialect.h"
#include "platform/ado/SqlTokens.h"
#include "schema/TableContent.h"

void WriteCarried(const QString& statement) {
  const QString path = qEnvironmentVariable("TABULON_WRITE_CARRIED");
  if (path.isEmpty() || !WhyRefused(statement, 1).isEmpty()) return;
  static QSet<QString> written;
  ConnectionSettings settings;
  settings.keyOf = Content::OrderOf;
  const QString carried = Dialect::For(Engine::SqlServer).Carry(statement, settings);
  if (written.contains(carried)) return;
  written.insert(carried);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) throw std::runtime_error("The carried text has no file");
  const QByteArray line = QJsonDocument(QJsonArray{carried}).toJson(QJsonDocument::Compact);
  file.write(line.mid(1, line.size() - 2) + '\n');
}
