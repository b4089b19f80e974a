#include "platform/controls/GridHeading.h"

#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr double MostFrozen = 0.4;  // of the room
}

GridHeading::GridHeading(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

void GridHeading::SetCaptionHeight(int pixels) {
  captionHeight_ = pixels;
  Arrange();
}

void GridHeading::SetBar(QWidget* bar) {
  if (bar_ != nullptr && bar_ != bar) bar_->hide();
  bar_ = bar;
  if (bar_ != nullptr) bar_->setParent(this);
  Arrange();
  if (bar_ != nullptr) bar_->show();
}

void GridHeading::Arrange() {
  const int below = bar_ == nullptr ? 0 : bar_->sizeHint().height();
  setViewportMargins(0, 0, 0, below);
  setFixedHeight(captionHeight_ + below);
  if (bar_ != nullptr) bar_->setGeometry(0, captionHeight_, width(), below);
  Q_EMIT geometriesChanged();
}

void GridHeading::resizeEvent(QResizeEvent* event) {
  QHeaderView::resizeEvent(event);
  if (bar_ != nullptr) bar_->setGeometry(0, captionHeight_, width(), bar_->height());
}

// The last column that is frozen, -1 when none is.
int GridHeading::LastFrozen() const {
  if (offset() <= 0 || isRightToLeft()) return -1;
  int first = 1;
  while (first < count() && isSectionHidden(first)) ++first;
  if (first >= count()) return -1;
  return sectionPosition(first) + sectionSize(first) <= MostFrozen * viewport()->width() ? first : -1;
}

int GridHeading::FrozenEdge() const {
  const int last = LastFrozen();
  return last < 0 ? 0 : sectionPosition(last) + sectionSize(last);
}

bool GridHeading::IsFrozen(int col) const {
  return col >= 0 && col <= LastFrozen();
}

int GridHeading::FrozenAt(int x) const {
  if (x < 0 || x >= FrozenEdge()) return -1;
  return logicalIndexAt(x - offset());
}

// The base knows the columns where they stand without being frozen.
QMouseEvent GridHeading::AsUnscrolled(const QMouseEvent& event) {
  if (event.buttons() == Qt::NoButton || event.type() != QEvent::MouseMove)
    shift_ = event.type() == QEvent::MouseButtonRelease      ? shift_
             : FrozenAt(event.position().toPoint().x()) >= 0 ? -offset()
                                                             : 0;
  return QMouseEvent(event.type(), event.position() + QPointF(shift_, 0), event.globalPosition(), event.button(),
                     event.buttons(), event.modifiers());
}

void GridHeading::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  QMouseEvent moved = AsUnscrolled(*event);
  QHeaderView::mousePressEvent(&moved);
}

void GridHeading::mouseMoveEvent(QMouseEvent* event) {
  QMouseEvent moved = AsUnscrolled(*event);
  QHeaderView::mouseMoveEvent(&moved);
}

void GridHeading::mouseReleaseEvent(QMouseEvent* event) {
  QMouseEvent moved = AsUnscrolled(*event);
  QHeaderView::mouseReleaseEvent(&moved);
  pressed_ = false;
  Q_EMIT Released();
}

// On the line between two headings: the column becomes as wide as what it holds.
void GridHeading::mouseDoubleClickEvent(QMouseEvent* event) {
  pressed_ = true;
  QMouseEvent moved = AsUnscrolled(*event);
  QHeaderView::mouseDoubleClickEvent(&moved);
}

void GridHeading::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  QPainter painter(viewport());
  for (int col = 0; IsFrozen(col); ++col)
    if (!isSectionHidden(col))
      paintSection(&painter, QRect(sectionPosition(col), 0, sectionSize(col), viewport()->height()), col);
}
