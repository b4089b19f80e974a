#include "support/Folders.h"

QString SourceFolder() {
  return QStringLiteral(TABULON_SOURCE_DIR);
}

QString BuildFolder() {
  return QStringLiteral(TABULON_BINARY_DIR);
}
