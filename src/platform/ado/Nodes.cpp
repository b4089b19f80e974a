#include "platform/ado/Nodes.h"

#include <QRegularExpression>

std::vector<ConnectionSettings> NodesOf(const ConnectionSettings& settings) {
  // A name or an address, in brackets where it holds colons itself.
  static const QRegularExpression withPort(QStringLiteral("^(?:\\[([^\\]]*)\\]|([^:]*))(?::(\\d{1,5}))?$"));
  if (!settings.host.contains(u',') || settings.host.startsWith(u'/')) return {settings};
  std::vector<ConnectionSettings> nodes;
  for (const QString& part : settings.host.split(u',', Qt::SkipEmptyParts)) {
    ConnectionSettings node = settings;
    node.host = part.trimmed();
    if (const QRegularExpressionMatch match = withPort.match(node.host); match.hasMatch()) {
      node.host = match.captured(1) + match.captured(2);
      if (match.hasCaptured(3)) node.port = match.captured(3).toInt();
    }
    if (!node.host.isEmpty()) nodes.push_back(node);
  }
  return nodes.empty() ? std::vector<ConnectionSettings>{settings} : nodes;
}
