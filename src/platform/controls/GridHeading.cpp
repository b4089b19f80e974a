#include "platform/controls/GridHeading.h"

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

void GridHeading::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  QHeaderView::mousePressEvent(event);
}

void GridHeading::mouseReleaseEvent(QMouseEvent* event) {
  QHeaderView::mouseReleaseEvent(event);
  pressed_ = false;
  Q_EMIT Released();
}

// On the line between two headings: the column becomes as wide as what it holds.
void GridHeading::mouseDoubleClickEvent(QMouseEvent* event) {
  pressed_ = true;
  QHeaderView::mouseDoubleClickEvent(event);
}
