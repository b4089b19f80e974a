#include "platform/controls/LeaveGuard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QShortcutEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

LeaveGuard::LeaveGuard(QWidget* control, std::function<bool()> check)
    : QObject(control), control_(control), check_(std::move(check)) {
  if (FocusIsInside()) Entered();
}

LeaveGuard::~LeaveGuard() {
  if (qApp != nullptr) qApp->removeEventFilter(this);
}

void LeaveGuard::Enter(Phase phase) {
  phase_ = phase;
  qApp->removeEventFilter(this);
  if (phase != Phase::Outside) qApp->installEventFilter(this);
}

bool LeaveGuard::FocusIsInside() const {
  const QWidget* focus = QApplication::focusWidget();
  return focus != nullptr && (focus == control_ || control_->isAncestorOf(focus));
}

void LeaveGuard::Entered() {
  if (phase_ == Phase::Outside) Enter(Phase::Inside);
}

bool LeaveGuard::ReallyLeaves(const QFocusEvent& event) const {
  if (event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
      event.reason() == Qt::MenuBarFocusReason)
    return false;
  const QWidget* to = QApplication::focusWidget();
  return to != nullptr && !FocusIsInside() && to->window() == control_->window();
}

void LeaveGuard::Left(const QFocusEvent& event) {
  if ((phase_ != Phase::Inside && phase_ != Phase::ReleaseToCome) || !ReallyLeaves(event)) return;
  // A control that is taken away from under the user is not left by him.
  if (!control_->isVisible() || !control_->isEnabled()) return Enter(Phase::Outside);
  Check(event.reason() == Qt::MouseFocusReason);
}

bool LeaveGuard::MayLeave(const QWidget* window) {
  for (QWidget* inside = window->focusWidget(); inside != nullptr && inside != window; inside = inside->parentWidget())
    if (auto* guard = inside->findChild<LeaveGuard*>(QString(), Qt::FindDirectChildrenOnly))
      return guard->phase_ == Phase::Outside || guard->Check(false);
  return true;
}

bool LeaveGuard::Check(bool byMouse) {
  Enter(Phase::Checking);
  released_ = false;
  const QPointer<LeaveGuard> self = this;
  const auto check = check_;  // which may put another one in its own place
  const bool mayLeave = check();
  if (self.isNull()) return mayLeave;
  if (!mayLeave && !FocusIsInside()) control_->setFocus(Qt::OtherFocusReason);
  // A press whose release went to a message box would leave the button down for ever.
  if (byMouse && (!mayLeave || released_)) {
    Enter(Phase::PressToCome);
    QTimer::singleShot(0, this, [this] {
      if (phase_ == Phase::PressToCome) Enter(FocusIsInside() ? Phase::Inside : Phase::Outside);
    });
  } else {
    Enter(FocusIsInside() ? Phase::Inside : Phase::Outside);
  }
  return mayLeave;
}

bool LeaveGuard::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  switch (phase_) {
    case Phase::Outside:
      return false;
    case Phase::Inside:
      return BeforeActing(static_cast<QWidget*>(watched), event);
    case Phase::Checking:
      if (event->type() == QEvent::MouseButtonRelease) released_ = true;
      return false;
    case Phase::PressToCome:
      return SwallowPress(event);
    case Phase::ReleaseToCome:
      return SwallowRelease(event);
  }
  return false;
}

bool LeaveGuard::Refuses(QWidget* actor, Qt::FocusReason reason) {
  if (actor == nullptr || actor->window() != control_->window() || !actor->isEnabled() ||
      actor->focusPolicy() == Qt::NoFocus || actor == control_ || control_->isAncestorOf(actor))
    return false;
  const QPointer<LeaveGuard> self = this;
  actor->setFocus(reason);
  return !self.isNull() && FocusIsInside();
}

bool LeaveGuard::BeforeActing(QWidget* receiver, QEvent* event) {
  switch (static_cast<int>(event->type())) {
    case QEvent::Shortcut: {
      const bool acts =
          qobject_cast<QAbstractButton*>(receiver) != nullptr || qobject_cast<QTabBar*>(receiver) != nullptr;
      return acts && !static_cast<QShortcutEvent*>(event)->isAmbiguous() && Refuses(receiver, Qt::ShortcutFocusReason);
    }
    case QEvent::MouseButtonPress: {
      // A tab is turned without the focus going to the tab bar.
      auto* tabs = qobject_cast<QTabBar*>(receiver);
      if (tabs == nullptr || tabs->tabAt(static_cast<QMouseEvent*>(event)->position().toPoint()) < 0) return false;
      Refuses(tabs, Qt::MouseFocusReason);
      return phase_ == Phase::PressToCome && SwallowPress(event);
    }
    case QEvent::KeyPress: {
      const auto* key = static_cast<QKeyEvent*>(event);
      const bool turns = (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) &&
                         key->modifiers().testFlag(Qt::ControlModifier);
      if (!turns) return false;
      for (QWidget* above = control_->parentWidget(); above != nullptr; above = above->parentWidget())
        if (auto* pages = qobject_cast<QTabWidget*>(above); pages != nullptr && pages->count() > 1)
          return Refuses(pages->tabBar(), Qt::TabFocusReason);
      return false;
    }
  }
  return false;
}

bool LeaveGuard::SwallowPress(QEvent* event) {
  if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick) return false;
  event->accept();
  Enter(released_ ? (FocusIsInside() ? Phase::Inside : Phase::Outside) : Phase::ReleaseToCome);
  return true;
}

bool LeaveGuard::SwallowRelease(QEvent* event) {
  const QEvent::Type type = event->type();
  const bool over = type == QEvent::MouseButtonRelease;
  // Another press means that the release went elsewhere.
  if (over || type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
    Enter(FocusIsInside() ? Phase::Inside : Phase::Outside);
  if (!over && type != QEvent::MouseMove && type != QEvent::ContextMenu) return false;
  event->accept();
  return true;
}
