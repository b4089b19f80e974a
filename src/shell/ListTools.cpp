#include "shell/ListTools.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QTabWidget>
#include <QTimer>

#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"

ListTools::ListTools(QMainWindow& window, TextBox& field, QLabel& count)
    : window_(window), field_(field), count_(count) {
  field_.installEventFilter(this);
  connect(&field_, &TextBox::Edited, this, &ListTools::LookFor);
  field_.SetEnterAction([this] { Next(); });
  // A page that comes to the front moves the focus, or one of the rows of tabs has turned.
  // The focus goes to nobody where a window is being destroyed, which must not be looked through then.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now != nullptr) Follow();
  });
}

void ListTools::Follow() {
  for (QTabWidget* tabs : window_.findChildren<QTabWidget*>())
    connect(tabs, &QTabWidget::currentChanged, this, &ListTools::Follow, Qt::UniqueConnection);
  Grid* const grid = Grid::InUse(window_);
  if (grid == grid_) return;
  if (!grid_.isNull()) disconnect(grid_, nullptr, this, nullptr);
  grid_ = grid;
  if (grid != nullptr) {
    connect(grid, &Grid::CountChanged, this, &ListTools::ShowLater);
    connect(grid, &Grid::FilterChanged, this, &ListTools::ShowLater);
  }
  ShowLater();
}

// Rows come one by one; what stands in the end is shown once.
void ListTools::ShowLater() {
  if (!std::exchange(waiting_, true)) QTimer::singleShot(0, this, &ListTools::Show);
}

void ListTools::Show() {
  waiting_ = false;
  count_.setText(grid_.isNull() ? QString() : grid_->CountText());
  field_.setEnabled(!grid_.isNull());
  const QString sought = grid_.isNull() ? QString() : grid_->Sought();
  if (field_.Text() != sought) field_.SetText(sought);
}

void ListTools::LookFor(const QString& text) {
  Follow();
  if (!grid_.isNull()) grid_->LookFor(text);
}

// The screen moves the focus to the record's first field; whoever looks for the next match is not done yet.
void ListTools::Next() {
  if (grid_.isNull() || field_.Text().isEmpty()) return;
  grid_->FindNext(1);
  field_.setFocus();
}

bool ListTools::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const auto* const key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Escape || key->modifiers() != Qt::NoModifier || grid_.isNull())
    return QObject::eventFilter(watched, event);
  field_.clear();
  grid_->CloseFinder();
  grid_->setFocus();
  return true;
}
