#include "schema/SqlScript.h"

#include <QFile>
#include <stdexcept>

#include "platform/ado/SqlTokens.h"

// The resources of a static library are linked only where they are asked for, and the macro stands outside of
// namespaces.
static void InitializeResources() {
  Q_INIT_RESOURCE(database);
}

QString SqlScript::Text(const QString& name) {
  InitializeResources();
  QFile file(":/database/" + name);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("There is no text " + name.toStdString());
  return QString::fromUtf8(file.readAll());
}

QStringList SqlScript::Statements(const QString& text) {
  std::vector<SqlToken> tokens = Tokenize(text);
  std::erase_if(tokens, [](const SqlToken& token) { return token.kind == SqlToken::Comment; });
  return SplitStatements(Join(tokens));
}
