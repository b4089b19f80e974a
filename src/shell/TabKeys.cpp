#include "shell/TabKeys.h"

#include <QApplication>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

TabKeys::TabKeys(QWidget& window, QTabWidget& tabs) : QObject(&window), window_(window), tabs_(tabs) {
  const auto key = [this](const QKeySequence& keys, std::function<void()> act) {
    connect(new QShortcut(keys, &window_), &QShortcut::activated, this, std::move(act));
  };
  key(Qt::CTRL | Qt::Key_PageUp, [this] { Turn(tabs_, -1); });
  key(Qt::CTRL | Qt::Key_PageDown, [this] { Turn(tabs_, 1); });
  key(Qt::CTRL | Qt::Key_Tab, [this] { TurnInner(1); });
  key(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { TurnInner(-1); });
  key(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, [this] { TurnInner(-1); });
}

QTabWidget* TabKeys::Inner() const {
  for (QTabWidget* inner : tabs_.currentWidget()->findChildren<QTabWidget*>())
    if (inner->isVisible()) return inner;
  return nullptr;
}

void TabKeys::TurnInner(int step) {
  QTabWidget* const inner = Inner();
  const int next = inner == nullptr ? -1 : inner->currentIndex() + step;
  Turn(next >= 0 && next < inner->count() ? *inner : tabs_, step);
}

void TabKeys::Turn(QTabWidget& tabs, int step) {
  tabs.tabBar()->setFocus(Qt::TabFocusReason);
  if (window_.focusWidget() != tabs.tabBar()) return;  // the field keeps the focus: what stands there may not stay
  const int count = tabs.count();
  tabs.setCurrentIndex((tabs.currentIndex() + step + count) % count);
  EnterPage();
}

// The container of a page takes no letters.
void TabKeys::EnterPage() {
  QTabWidget& tabs = Inner() != nullptr ? *Inner() : tabs_;
  QWidget* const page = tabs.currentWidget();
  QWidget* const focus = window_.focusWidget();
  const bool isField = focus != nullptr && page->isAncestorOf(focus) && focus->focusPolicy() != Qt::NoFocus &&
                       qobject_cast<QTabBar*>(focus) == nullptr && qobject_cast<QTabWidget*>(focus) == nullptr;
  if (isField) return;
  for (QWidget* at = page->nextInFocusChain(); at != page; at = at->nextInFocusChain()) {
    const bool takesFocus = (at->focusPolicy() & Qt::TabFocus) != 0 && at->isVisible() && at->isEnabled();
    if (!takesFocus || !page->isAncestorOf(at)) continue;
    at->setFocus(Qt::TabFocusReason);
    return;
  }
}
