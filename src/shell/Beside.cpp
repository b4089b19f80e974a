#include "shell/Beside.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace {

void GiveTo(QWidget& window, QWidget* owner) {
  if (window.parentWidget() == owner) return;
  const bool shown = window.isVisible();
  window.setParent(owner, Qt::Window);
  if (shown) window.show();
}

// Goes over to the dialog that comes to the front, and back to the window below when that one closes.
class Follower : public QObject {
 public:
  explicit Follower(QWidget& window) : QObject(&window), window_(window) { qApp->installEventFilter(this); }

  void Follow(QWidget* owner) {
    QWidget* const modal = QApplication::activeModalWidget();
    GiveTo(window_, modal != nullptr ? modal->window() : owner);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool turns = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    auto* const other = turns ? qobject_cast<QWidget*>(watched) : nullptr;
    if (other == nullptr || other == &window_ || !other->isWindow()) return false;
    const bool isDialog = other->isModal() && other->windowType() == Qt::Dialog;
    if (event->type() == QEvent::Show && isDialog && window_.isVisible()) GiveTo(window_, other);
    if (event->type() == QEvent::Hide && window_.parentWidget() == other) GiveTo(window_, Below(*other));
    return false;
  }

 private:
  static QWidget* Below(const QWidget& dialog) {
    if (dialog.parentWidget() != nullptr) return dialog.parentWidget()->window();
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != &dialog ? modal : nullptr;
  }

  QWidget& window_;
};

}  // namespace

namespace Beside {

void Show(QWidget& window, QWidget* owner) {
  auto* follower = window.findChild<QObject*>("follower", Qt::FindDirectChildrenOnly);
  if (follower == nullptr) {
    follower = new Follower(window);
    follower->setObjectName("follower");
  }
  static_cast<Follower*>(follower)->Follow(owner == nullptr ? nullptr : owner->window());
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace Beside
