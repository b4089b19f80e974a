#include "shell/Beside.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace {

QWindow* HandleOf(const QWidget* widget) {
  return widget == nullptr ? nullptr : widget->window()->windowHandle();
}

// A dialog does not block windows that stand above it. They are no children of its, so that it does not take them for
// parts of its own, nor along when it goes.
void GiveTo(QWidget& window, const QWidget* owner) {
  window.winId();  // makes the handle
  if (window.windowHandle()->transientParent() == HandleOf(owner)) return;
  const bool shown = window.isVisible();
  // What is blocked is found out when a window is shown.
  window.hide();
  window.windowHandle()->setTransientParent(HandleOf(owner));
  window.setVisible(shown);
}

// Goes over to the dialog that comes to the front, and back to the window below when that one closes.
class Follower : public QObject {
 public:
  explicit Follower(QWidget& window) : QObject(&window), window_(window) {
    window_.setAttribute(Qt::WA_ShowWithoutActivating);
    qApp->installEventFilter(this);
  }

  void Follow(const QWidget* owner) {
    const QWidget* const modal = QApplication::activeModalWidget();
    GiveTo(window_, modal != nullptr ? modal : owner);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool turns = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    auto* const other = turns ? qobject_cast<QWidget*>(watched) : nullptr;
    if (other == nullptr || other == &window_ || !other->isWindow()) return false;
    const bool isDialog = other->isModal() && other->windowType() == Qt::Dialog;
    if (!window_.isVisible() || HandleOf(other) == nullptr) return false;
    if (event->type() == QEvent::Show && isDialog) {
      // When it is all the way on the screen.
      QTimer::singleShot(0, this, [this, dialog = QPointer<QWidget>(other)] {
        if (!dialog.isNull() && dialog->isVisible() && window_.isVisible()) GiveTo(window_, dialog);
      });
    }
    if (event->type() == QEvent::Hide && window_.windowHandle()->transientParent() == HandleOf(other))
      GiveTo(window_, Below(*other));
    return false;
  }

 private:
  static const QWidget* Below(const QWidget& dialog) {
    if (dialog.parentWidget() != nullptr) return dialog.parentWidget();
    const QWidget* const modal = QApplication::activeModalWidget();
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
  static_cast<Follower*>(follower)->Follow(owner);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace Beside
