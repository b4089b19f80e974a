#include "shell/WindowMemory.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace {

constexpr auto OpenedWith = "openedWith";

QString Key(const QWidget& window, const char* what) {
  return QStringLiteral("Windows/%1/%2").arg(window.objectName(), QLatin1String(what));
}

}  // namespace

namespace WindowMemory {

void Restore(QWidget& window) {
  const QSettings settings;
  QSize size = settings.value(Key(window, "size"), window.size()).toSize();
  if (const QScreen* const screen = window.screen(); screen != nullptr)
    size = size.boundedTo(screen->availableSize() - QSize(0, TitleBar));
  window.resize(size);
  window.setProperty(OpenedWith, window.size());
  if (settings.value(Key(window, "maximized"), false).toBool()) window.setWindowState(Qt::WindowMaximized);
}

void Remember(QWidget& window) {
  if (window.objectName().isEmpty() || window.isMinimized()) return;
  QSettings settings;
  // While it is maximized the size is the screen's; the one before stays kept.
  settings.setValue(Key(window, "maximized"), window.isMaximized());
  if (window.isMaximized() || window.property(OpenedWith).toSize() == window.size()) return;
  settings.setValue(Key(window, "size"), window.size());
}

}  // namespace WindowMemory
