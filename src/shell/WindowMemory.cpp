#include "shell/WindowMemory.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>

#include "platform/desktop/UserSettings.h"

namespace {

constexpr auto ResizedByHand = "resizedByHand";
constexpr int TitleBar = 32;  // pixels that a window manager takes, about

QString Key(const QWidget& window, const char* what) {
  return QStringLiteral("Windows/%1/%2").arg(window.objectName(), QLatin1String(what));
}

// What comes from outside of the program is a person's doing: layouts and code resize a window from inside.
class HandWatch : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() == QEvent::Resize && event->spontaneous()) window->setProperty(ResizedByHand, true);
    return QObject::eventFilter(window, event);
  }
};

}  // namespace

namespace WindowMemory {

QSize RoomFor(const QWidget& window) {
  return window.screen()->availableSize() - QSize(0, TitleBar);
}

void Restore(QWidget& window) {
  const UserSettings settings;
  window.resize(settings.value(Key(window, "size"), window.size()).toSize().boundedTo(RoomFor(window)));
  if (settings.value(Key(window, "maximized"), false).toBool()) window.setWindowState(Qt::WindowMaximized);
  window.installEventFilter(new HandWatch(&window));
}

void Remember(QWidget& window) {
  if (window.objectName().isEmpty() || window.isMinimized()) return;
  UserSettings settings;
  // While it is maximized the size is the screen's; the one before stays kept.
  settings.setValue(Key(window, "maximized"), window.isMaximized());
  if (window.isMaximized() || !window.property(ResizedByHand).toBool()) return;
  settings.setValue(Key(window, "size"), window.size());
}

}  // namespace WindowMemory
