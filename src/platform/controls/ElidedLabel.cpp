#include "platform/controls/ElidedLabel.h"

#include <QPainter>

#include "platform/controls/FieldTip.h"

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  FieldTip::Show(*static_cast<QHelpEvent*>(event), *this,
                 FieldTip::Of(*this, text(), contentsRect().width(), QString()));
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString line = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(), line,
                        foregroundRole());
}
