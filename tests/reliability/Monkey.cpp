#include "reliability/Monkey.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"

namespace {

constexpr int LastActionsKept = 40;
constexpr int MostClosings = 50;  // presses before a window that does not close is told

template <class T>
QList<T*> Usable(const QWidget& window) {
  QList<T*> usable;
  for (T* one : window.findChildren<T*>())
    if (one->isVisible() && one->isEnabled() && one->window() == &window) usable.append(one);
  return usable;
}

}  // namespace

Monkey::Monkey(unsigned seed, const QString& logFile) : random_(seed), log_(logFile) {
  if (!log_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) throw std::runtime_error("The monkey has no log");
}

void Monkey::Note(const QString& action) {
  last_.append(action);
  if (last_.size() > LastActionsKept) last_.removeFirst();
  log_.write(action.toUtf8() + '\n');
}

void Monkey::Act(QWidget& window, int steps, const std::function<bool()>& ended) {
  window_ = &window;
  ended_ = ended;
  left_ = steps;
  closing_ = 0;
  QEventLoop loop;
  loop_ = &loop;
  Next();
  loop.exec();
  loop_ = nullptr;
}

QWidget* Monkey::Front() const {
  if (QWidget* const popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
  return window_ && window_->isVisible() ? window_.data() : nullptr;
}

void Monkey::Tick() {
  // What opened this loop is over as far as the clock goes.
  if (timer_.isValid() && timer_.elapsed() > longest_) {
    longest_ = timer_.elapsed();
    longestAction_ = running_;
  }
  timer_.invalidate();
  QWidget* const front = Front();
  if (left_ <= 0 || ended_() || front == nullptr) {
    left_ = 0;
    CloseFront();
    return;
  }
  --left_;
  ++steps_;
  // First, for the press may open a loop of its own.
  Next();
  if (!front->isActiveWindow() && QApplication::activePopupWidget() == nullptr) {
    front->activateWindow();
    QApplication::setActiveWindow(front);
  }
  timer_.start();
  Press(*front);
  if (timer_.isValid() && timer_.elapsed() > longest_) {
    longest_ = timer_.elapsed();
    longestAction_ = running_;
  }
  timer_.invalidate();
}

// Popups and dialogs in front of the window, each within the loop that it has.
void Monkey::CloseFront() {
  QWidget* const front = Front();
  if (front == nullptr || front == window_.data()) {
    if (loop_) loop_->quit();
    return;
  }
  if (++closing_ > MostClosings) qFatal("%s does not close", qPrintable(front->objectName()));
  Next();
  front->close();
}

void Monkey::Press(QWidget& window) {
  running_ = window.objectName();
  using Way = void (Monkey::*)(QWidget&);
  static constexpr Way ways[] = {&Monkey::ClickSomething, &Monkey::ClickSomething, &Monkey::ClickSomething,
                                 &Monkey::TypeSomething,  &Monkey::TypeSomething,  &Monkey::TypeSomething,
                                 &Monkey::PressKey,       &Monkey::PressKey,       &Monkey::ChooseEntry,
                                 &Monkey::ClickCell,      &Monkey::ClickCell,      &Monkey::TurnTab,
                                 &Monkey::TriggerAction,  &Monkey::ClickAnywhere};
  if (QApplication::activePopupWidget() != nullptr) return PressKey(window);
  (this->*ways[Below(std::size(ways))])(window);
}

QString Monkey::SomeText() {
  static const QStringList texts{"A",  "1",   "12.50",      "9999999999", "-1",      "'",      "';--",
                                 "%",  "_",   " ",          "É",          "straße",  "😀",      "N'x'",
                                 "\\", "\"",  "2026-02-30", "ABC",        "x@y.org", "(none)", "0",
                                 ",",  "[a]", "\u0301",     "\u200b",     "a b  c",  "MAIN"};
  QString text = texts[Below(static_cast<int>(texts.size()))];
  if (Below(10) == 0) text = text.repeated(Below(300) + 1);
  return text;
}

void Monkey::ClickSomething(QWidget& window) {
  const auto buttons = Usable<QAbstractButton>(window);
  if (buttons.isEmpty()) return;
  QAbstractButton* const button = buttons[Below(static_cast<int>(buttons.size()))];
  Note("click " + window.objectName() + '.' + button->objectName());
  running_ = last_.last();
  QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

void Monkey::TypeSomething(QWidget& window) {
  QList<QWidget*> boxes;
  for (QLineEdit* box : Usable<QLineEdit>(window)) boxes.append(box);
  for (QPlainTextEdit* box : Usable<QPlainTextEdit>(window)) boxes.append(box);
  if (boxes.isEmpty()) return;
  const QPointer<QWidget> box = boxes[Below(static_cast<int>(boxes.size()))];
  const QString text = SomeText();
  Note("type " + window.objectName() + '.' + box->objectName() + ": " + text.left(40));
  running_ = last_.last();
  box->setFocus(Qt::MouseFocusReason);
  // Leaving the box before may have brought another window up.
  if (!box || !box->hasFocus()) return;
  if (Below(3) > 0) QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
  if (!box) return;
  if (Below(4) == 0 || text.size() > 20) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    return;
  }
  for (qsizetype at = 0; box && at < text.size(); ++at) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size();
    QKeyEvent press(QEvent::KeyPress, text[at].unicode() < 128 ? text[at].toUpper().unicode() : 0, Qt::NoModifier,
                    text.mid(at, pair ? 2 : 1));
    if (pair) ++at;
    QApplication::sendEvent(box, &press);
  }
}

void Monkey::PressKey(QWidget& window) {
  static constexpr std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {{Qt::Key_Tab, {}},
                                                                       {Qt::Key_Tab, {}},
                                                                       {Qt::Key_Backtab, Qt::ShiftModifier},
                                                                       {Qt::Key_Return, {}},
                                                                       {Qt::Key_Escape, {}},
                                                                       {Qt::Key_Up, {}},
                                                                       {Qt::Key_Down, {}},
                                                                       {Qt::Key_Down, {}},
                                                                       {Qt::Key_PageDown, {}},
                                                                       {Qt::Key_Home, {}},
                                                                       {Qt::Key_End, {}},
                                                                       {Qt::Key_Delete, {}},
                                                                       {Qt::Key_Backspace, {}},
                                                                       {Qt::Key_Space, {}},
                                                                       {Qt::Key_F2, {}},
                                                                       {Qt::Key_F3, {}},
                                                                       {Qt::Key_F4, {}},
                                                                       {Qt::Key_Down, Qt::AltModifier},
                                                                       {Qt::Key_Z, Qt::ControlModifier},
                                                                       {Qt::Key_C, Qt::ControlModifier},
                                                                       {Qt::Key_V, Qt::ControlModifier},
                                                                       {Qt::Key_X, Qt::ControlModifier},
                                                                       {Qt::Key_F, Qt::ControlModifier},
                                                                       {Qt::Key_A, Qt::ControlModifier},
                                                                       {Qt::Key_S, Qt::ControlModifier},
                                                                       {Qt::Key_N, Qt::ControlModifier},
                                                                       {Qt::Key_Tab, Qt::ControlModifier},
                                                                       {Qt::Key_Menu, {}}};
  const auto [key, modifiers] = keys[Below(std::size(keys))];
  QWidget* target = window.focusWidget() && window.focusWidget()->isVisible() ? window.focusWidget() : &window;
  Note("key " + window.objectName() + '.' + target->objectName() + ' ' +
       QKeySequence(QKeyCombination(modifiers, key)).toString());
  running_ = last_.last();
  QTest::keyClick(target, key, modifiers);
}

void Monkey::ChooseEntry(QWidget& window) {
  const auto lists = Usable<CodeComboBox>(window);
  if (lists.isEmpty()) return;
  CodeComboBox* const list = lists[Below(static_cast<int>(lists.size()))];
  if (list->Count() == 0) return;
  const int entry = Below(list->Count());
  Note("choose " + window.objectName() + '.' + list->objectName() + ' ' + QString::number(entry));
  running_ = last_.last();
  const QPointer<CodeComboBox> stays = list;
  list->setFocus(Qt::MouseFocusReason);
  if (!stays || !stays->hasFocus() || entry >= stays->Count()) return;
  stays->SetIndex(entry);
  Q_EMIT stays->activated(entry);
}

void Monkey::ClickCell(QWidget& window) {
  const auto grids = Usable<Grid>(window);
  if (grids.isEmpty()) return;
  Grid* const grid = grids[Below(static_cast<int>(grids.size()))];
  if (Below(8) == 0) {
    QHeaderView* const heading = grid->horizontalHeader();
    Note("heading " + window.objectName() + '.' + grid->objectName());
    running_ = last_.last();
    QTest::mouseClick(heading->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(Below(std::max(1, heading->width())), heading->height() / 2));
    return;
  }
  if (grid->Rows() < 2) return;
  const int row = Below(grid->Rows() - 1), col = Below(grid->Cols());
  Note("cell " + window.objectName() + '.' + grid->objectName() + ' ' + QString::number(row + 1) + ',' +
       QString::number(col));
  running_ = last_.last();
  const QModelIndex cell = grid->model()->index(row, col);
  grid->scrollTo(cell);
  const QPoint at = grid->visualRect(cell).center();
  const bool twice = Below(5) == 0;
  const QPointer<Grid> stays = grid;
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, at);
  if (twice && stays && stays->isVisible()) QTest::mouseDClick(stays->viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

void Monkey::TurnTab(QWidget& window) {
  const auto bars = Usable<QTabBar>(window);
  if (bars.isEmpty()) return;
  QTabBar* const bar = bars[Below(static_cast<int>(bars.size()))];
  if (bar->count() == 0) return;
  const int tab = Below(bar->count());
  Note("tab " + window.objectName() + ' ' + bar->tabText(tab));
  running_ = last_.last();
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(tab).center());
}

void Monkey::TriggerAction(QWidget& window) {
  QList<QAction*> usable;
  for (QAction* action : window.findChildren<QAction*>())
    if (action->isEnabled() && action->isVisible() && action->menu() == nullptr && !action->objectName().isEmpty())
      usable.append(action);
  if (usable.isEmpty()) return;
  QAction* const action = usable[Below(static_cast<int>(usable.size()))];
  Note("menu " + window.objectName() + '.' + action->objectName());
  running_ = last_.last();
  action->trigger();
}

void Monkey::ClickAnywhere(QWidget& window) {
  const QPoint at(Below(std::max(1, window.width())), Below(std::max(1, window.height())));
  QWidget* const child = window.childAt(at);
  QWidget& target = child && child->isEnabled() ? *child : window;
  const bool right = Below(6) == 0;
  Note("point " + window.objectName() + '.' + target.objectName() + (right ? " right" : ""));
  running_ = last_.last();
  QTest::mouseClick(&target, right ? Qt::RightButton : Qt::LeftButton, Qt::NoModifier, target.mapFrom(&window, at));
}
