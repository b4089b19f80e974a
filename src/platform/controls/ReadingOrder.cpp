// Tab order as a page is read, taken from its layouts: they know the place of what is hidden for now as well.
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGridLayout>
#include <QMainWindow>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "platform/controls/FormLayout.h"

namespace {

class Reader {
 public:
  void Read(QWidget* widget) {
    if (auto* const tabs = qobject_cast<QTabWidget*>(widget)) {
      Take(tabs);
      Take(tabs->tabBar());
      for (int page = 0; page < tabs->count(); ++page) Read(tabs->widget(page));
      return;
    }
    if (auto* const area = qobject_cast<QScrollArea*>(widget); area != nullptr && area->widget() != nullptr)
      return Read(area->widget());
    Take(widget);
    const bool whole = qobject_cast<QComboBox*>(widget) != nullptr ||
                       qobject_cast<QAbstractSpinBox*>(widget) != nullptr ||
                       qobject_cast<QAbstractScrollArea*>(widget) != nullptr;
    if (auto* const window = qobject_cast<QMainWindow*>(widget))
      Read(window->centralWidget());
    else if (!whole && widget->layout() != nullptr)
      Read(widget->layout());
  }

  const std::vector<QWidget*>& Order() const { return order_; }

 private:
  void Take(QWidget* widget) {
    // Of a group of options Tab enters one, and it is not always the same one.
    const bool isStop = (widget->focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<QRadioButton*>(widget) != nullptr;
    if (!widget->isWindow() && isStop) order_.push_back(widget);
  }

  void Read(QLayout* layout) {
    std::vector<std::pair<std::pair<int, int>, QLayoutItem*>> items;  // row and column first
    for (int at = 0; at < layout->count(); ++at) {
      int row = 0, column = at, rows = 0, columns = 0;
      if (const auto* const grid = qobject_cast<QGridLayout*>(layout))
        grid->getItemPosition(at, &row, &column, &rows, &columns);
      items.push_back({{row, column}, layout->itemAt(at)});
    }
    std::stable_sort(items.begin(), items.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [place, item] : items) {
      if (item->widget() != nullptr) Read(item->widget());
      if (item->layout() != nullptr) Read(item->layout());
    }
  }

  std::vector<QWidget*> order_;
};

}  // namespace

namespace Form {

void ReadingOrder(QWidget* form) {
  Reader reader;
  reader.Read(form);
  const std::vector<QWidget*>& order = reader.Order();
  // A control that lends its focus to a part of itself would take along whatever stands behind that part, and the
  // toolkit loses the rest of the ring over it: meanwhile each is a control of its own.
  std::vector<std::pair<QWidget*, QWidget*>> lent;
  for (QWidget* widget : order) {
    QWidget* const part = widget->focusProxy();
    if (part == nullptr) continue;
    lent.emplace_back(widget, part);
    widget->setFocusProxy(nullptr);
  }
  for (std::size_t at = 1; at < order.size(); ++at) QWidget::setTabOrder(order[at - 1], order[at]);
  for (const auto& [widget, part] : lent) widget->setFocusProxy(part);
}

}  // namespace Form
