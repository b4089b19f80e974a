// The columns of a Grid that stay in sight while the others scroll sideways: they are painted and met by the mouse at
// the left edge, above those that have gone beneath them.
#include <QPainter>
#include <QScrollBar>

#include "platform/controls/Grid.h"
#include "platform/controls/GridHeading.h"

QModelIndex Grid::indexAt(const QPoint& point) const {
  const int frozen = heading_->FrozenAt(point.x());
  return frozen < 0 ? QTableView::indexAt(point) : model()->index(rowAt(point.y()), frozen);
}

QRect Grid::visualRect(const QModelIndex& index) const {
  QRect rect = QTableView::visualRect(index);
  if (heading_->IsFrozen(index.column())) rect.moveLeft(heading_->sectionPosition(index.column()));
  return rect;
}

void Grid::scrollTo(const QModelIndex& index, ScrollHint hint) {
  const int across = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  QScrollBar* const bar = horizontalScrollBar();
  if (heading_->IsFrozen(index.column())) return bar->setValue(across);
  // A grid that was not laid out yet would scroll away from its first columns.
  if (index.column() == FirstVisibleCol()) return bar->setValue(std::min(across, bar->value()));
  const int beneath = heading_->FrozenEdge() - QTableView::visualRect(index).left();
  if (beneath > 0 && bar->value() > 0) bar->setValue(bar->value() - beneath);
}

void Grid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dx == 0) return;
  viewport()->update();
  heading_->viewport()->update();
}

void Grid::PaintFrozen() {
  const int edge = heading_->FrozenEdge();
  if (edge == 0) return;
  QPainter painter(viewport());
  painter.fillRect(0, 0, edge, viewport()->height(), palette().base());
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const int first = std::max(0, rowAt(0));
  const int below = rowAt(viewport()->height() - 1);
  const int last = below < 0 ? model()->rowCount() - 1 : below;
  for (int row = first; row <= last; ++row)
    for (int col = 0; heading_->IsFrozen(col); ++col) {
      if (isColumnHidden(col)) continue;
      const QModelIndex index = model()->index(row, col);
      option.rect = visualRect(index);
      option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
      itemDelegate()->paint(&painter, option, index);
    }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(edge - 1, 0, edge - 1, viewport()->height());
}
