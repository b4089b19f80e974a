#include "shell/FitDisplay.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>
#include <memory>
#include <vector>

#include "platform/controls/FormLayout.h"

namespace {

constexpr int TallEnough = 90;  // pixels: what is higher is a group of fields, not a field

template <class Visit>
void ForWidgets(QLayoutItem* item, Visit visit) {
  if (item->widget() != nullptr) {
    visit(item->widget());
  } else if (item->layout() != nullptr) {
    for (int at = 0; at < item->layout()->count(); ++at) ForWidgets(item->layout()->itemAt(at), visit);
  }
}

bool IsButtonRow(QLayoutItem* item) {
  int buttons = 0, others = 0;
  const auto count = [&](QWidget* widget, auto&& self) -> void {
    if (qobject_cast<QPushButton*>(widget) != nullptr)
      ++buttons;
    else if (widget->layout() != nullptr && qobject_cast<QLayout*>(widget->layout())->count() > 0)
      ForWidgets(widget->layout(), [&](QWidget* inner) { self(inner, self); });
    else
      ++others;
  };
  ForWidgets(item, [&](QWidget* widget) { count(widget, count); });
  return buttons > 0 && others == 0;
}

bool IsKept(QLayoutItem* item) {
  return item->widget() != nullptr && item->widget()->property(Form::KeptInSight).toBool();
}

// Sizes are asked anew after something was moved.
void Forget(QWidget& page) {
  for (QWidget* widget : page.findChildren<QWidget*>()) {
    if (widget->layout() == nullptr) continue;
    for (QLayout* layout : widget->findChildren<QLayout*>()) layout->invalidate();
    widget->layout()->invalidate();
    widget->updateGeometry();
  }
  if (page.layout() != nullptr) page.layout()->invalidate();
}

bool IsHorizontal(const QBoxLayout& row) {
  return row.direction() == QBoxLayout::LeftToRight || row.direction() == QBoxLayout::RightToLeft;
}

// Buttons, or groups of fields; not the parts of one field.
bool MayBeWrapped(QBoxLayout& row) {
  if (!IsHorizontal(row)) return false;
  int things = 0, tall = 0;
  for (int at = 0; at < row.count(); ++at) {
    QLayoutItem* const item = row.itemAt(at);
    if (item->isEmpty() || item->spacerItem() != nullptr) continue;
    ++things;
    tall += item->sizeHint().height() >= TallEnough ? 1 : 0;
  }
  return things >= 2 && (tall >= 2 || IsButtonRow(&row));
}

struct Part {
  std::unique_ptr<QLayoutItem> item;
  int stretch;
};

void Put(QBoxLayout& line, Part part) {
  if (QWidget* const widget = part.item->widget()) return line.addWidget(widget, part.stretch, part.item->alignment());
  if (QLayout* const layout = part.item->layout()) {
    part.item.release();
    line.addLayout(layout, part.stretch);
  }
}

// Lines of what fits beside each other, one under another. Hidden parts go with their neighbours.
void Wrap(QBoxLayout& row, int width) {
  std::vector<Part> parts;
  bool toTheEnd = false;
  while (row.count() > 0) {
    const int stretch = row.stretch(0);
    std::unique_ptr<QLayoutItem> item(row.takeAt(0));
    if (item->spacerItem() != nullptr)
      toTheEnd = toTheEnd || parts.empty();
    else
      parts.push_back({std::move(item), stretch});
  }
  row.setDirection(QBoxLayout::TopToBottom);
  QHBoxLayout* line = nullptr;
  int used = 0;
  const int spacing = std::max(0, row.spacing());
  const bool buttons = std::all_of(parts.begin(), parts.end(), [](const Part& part) {
    return qobject_cast<QPushButton*>(part.item->widget()) != nullptr;
  });
  for (Part& part : parts) {
    const int needs = part.item->isEmpty() ? 0 : part.item->minimumSize().width() + spacing;
    if (line == nullptr || (used > 0 && used + needs > width + spacing)) {
      if (line != nullptr && buttons && !toTheEnd) line->addStretch();
      line = new QHBoxLayout;
      line->setSpacing(spacing);
      if (toTheEnd) line->addStretch();
      row.addLayout(line);
      used = 0;
    }
    used += needs;
    Put(*line, std::move(part));
  }
  if (line != nullptr && buttons && !toTheEnd) line->addStretch();
}

int NeedsWidth(QWidget& page) {
  return page.layout() == nullptr ? page.minimumSizeHint().width() : page.layout()->totalMinimumSize().width();
}

}  // namespace

namespace FitDisplay {

void Narrow(QWidget& page, int width) {
  for (QBoxLayout* row : page.findChildren<QBoxLayout*>()) {
    const int excess = NeedsWidth(page) - width;
    if (excess <= 0) return;
    if (!MayBeWrapped(*row)) continue;
    Wrap(*row, row->minimumSize().width() - excess);
    Forget(page);
  }
  for (QGridLayout* rows : page.findChildren<QGridLayout*>()) {
    if (NeedsWidth(page) <= width) return;
    if (!Form::HasPairs(rows)) continue;
    Form::Unfold(rows);
    Forget(page);
  }
}

void Fit(QWidget& window, QSize room) {
  auto* const column = qobject_cast<QBoxLayout*>(window.layout());
  if (column == nullptr || column->totalMinimumSize().boundedTo(room) == column->totalMinimumSize()) return;
  const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window);
  Narrow(window, room.width() - bar);
  const QSize wanted = window.size().expandedTo(column->totalSizeHint());
  if (column->totalMinimumSize().height() > room.height() || column->totalMinimumSize().width() > room.width()) {
    int first = 0, end = column->count();
    while (first < end && IsKept(column->itemAt(first))) ++first;
    while (end > first && IsButtonRow(column->itemAt(end - 1))) --end;
    auto* const content = new QWidget;
    auto* const inside = new QVBoxLayout(content);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(column->spacing());
    for (int at = first; at < end; ++at) {
      const int stretch = column->stretch(first);
      Put(*inside, {std::unique_ptr<QLayoutItem>(column->takeAt(first)), stretch});
    }
    auto* const area = new QScrollArea(&window);
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    column->insertWidget(first, area, 1);
    Forget(window);
    // Sideways it scrolls only where there is no other way.
    const QMargins around = column->contentsMargins();
    area->setMinimumWidth(
        std::min(content->minimumSizeHint().width() + bar, room.width() - around.left() - around.right()));
  }
  window.resize(wanted.boundedTo(room));
}

}  // namespace FitDisplay
