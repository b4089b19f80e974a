#include "shell/Icons.h"

// Resources of a static library are not linked by themselves. Outside of every namespace, as the macro wants it.
static void LinkIcons() {
  Q_INIT_RESOURCE(icons);
}

QIcon OwnIcon(const char* name) {
  LinkIcons();
  return QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
}
