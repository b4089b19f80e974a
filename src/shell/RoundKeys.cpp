#include "shell/RoundKeys.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>

#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"

namespace {

void Return(const QPointer<QWidget>& field) {
  if (field.isNull() || !field->isVisible() || !field->isEnabled()) return;
  field->setFocus(Qt::OtherFocusReason);
  if (auto* const box = qobject_cast<TextBox*>(field.data())) box->selectAll();
}

bool IsField(const QWidget* widget) {
  for (const QWidget* at = widget; at != nullptr; at = at->parentWidget())
    if (qobject_cast<const Grid*>(at) != nullptr || qobject_cast<const QAbstractSpinBox*>(at) != nullptr) return false;
  return widget != nullptr && qobject_cast<const QPushButton*>(widget) == nullptr;
}

}  // namespace

RoundKeys::RoundKeys(QWidget& window)
    : QObject(&window),
      window_(window),
      before_(new QShortcut(Qt::CTRL | Qt::Key_Up, &window)),
      after_(new QShortcut(Qt::CTRL | Qt::Key_Down, &window)) {
  const auto key = [this, &window](const QKeySequence& keys, std::initializer_list<const char*> names) {
    auto* const shortcut = new QShortcut(keys, &window);
    connect(shortcut, &QShortcut::activated, this,
            [this, buttons = std::vector<const char*>(names)] { Press(buttons); });
  };
  key(Qt::CTRL | Qt::Key_S, {"cmdUpdate"});
  key(Qt::CTRL | Qt::SHIFT | Qt::Key_S, {"cmdAdd"});
  key(Qt::CTRL | Qt::Key_N, {"cmdClear", "btnClear"});
  connect(before_, &QShortcut::activated, this, [this] { GoToNeighbour(-1); });
  connect(after_, &QShortcut::activated, this, [this] { GoToNeighbour(1); });
  // Lists and boxes that count have the two keys themselves.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Follow(now); });
}

void RoundKeys::Tell(QAction& entry, const QKeySequence& keys) {
  entry.setShortcut(keys);
  entry.setShortcutContext(Qt::WidgetShortcut);
}

void RoundKeys::Follow(QWidget* focus) {
  before_->setEnabled(IsField(focus));
  after_->setEnabled(IsField(focus));
}

void RoundKeys::Press(const std::vector<const char*>& names) {
  for (const char* name : names) {
    auto* const button = window_.findChild<QPushButton*>(name);
    if (button == nullptr || !button->isVisible() || !button->isEnabled()) continue;
    const QPointer<QWidget> field = window_.focusWidget();
    const QPointer<QPushButton> pressed = button;
    button->setFocus(Qt::ShortcutFocusReason);
    if (window_.focusWidget() != button) return;  // the field keeps the focus: what stands there may not stay
    button->click();
    // Unless the screen has put the focus somewhere.
    if (!pressed.isNull() && window_.focusWidget() == pressed) Return(field);
    return;
  }
}

void RoundKeys::GoToNeighbour(int step) {
  Grid* const grid = Grid::InUse(window_);
  const int row = grid == nullptr ? 0 : grid->Neighbour(step);
  if (row == 0) return;
  const QPointer<QWidget> field = window_.focusWidget();
  grid->setFocus(Qt::OtherFocusReason);
  if (window_.focusWidget() != grid) return;
  grid->SetRow(row);
  Return(field);
}
