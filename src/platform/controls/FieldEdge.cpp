#include "platform/controls/FieldEdge.h"

#include <QDynamicPropertyChangeEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

namespace {
constexpr int RefusalShown = 2000;  // milliseconds
constexpr int Bar = 3;              // pixels
}  // namespace

FieldEdge::FieldEdge(QWidget* field) : QWidget(field) {
  setObjectName(QStringLiteral("qt_edge"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
  field->installEventFilter(this);
}

void FieldEdge::Watch(QWidget* field) {
  new FieldEdge(field);
}

void FieldEdge::SayRefused(QWidget* field, const QString& why) {
  auto* const edge = field->findChild<FieldEdge*>(QString(), Qt::FindDirectChildrenOnly);
  if (edge == nullptr) return;
  QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), why, field, {}, RefusalShown);
  field->setProperty(Refused, true);
  const int refusal = ++edge->refusals_;
  QTimer::singleShot(RefusalShown, edge, [edge, field, refusal] {
    if (edge->refusals_ == refusal) field->setProperty(Refused, false);
  });
}

bool FieldEdge::eventFilter(QObject* field, QEvent* event) {
  const bool isOurs = event->type() == QEvent::DynamicPropertyChange;
  if (isOurs || event->type() == QEvent::Resize) Follow();
  return QWidget::eventFilter(field, event);
}

void FieldEdge::Follow() {
  setGeometry(parentWidget()->rect());
  const bool seen = parentWidget()->property(Unsaved).toBool() || parentWidget()->property(Refused).toBool();
  setVisible(seen);
  if (seen) raise();
  update();
}

void FieldEdge::paintEvent(QPaintEvent*) {
  const bool refused = parentWidget()->property(Refused).toBool();
  const QColor colour = refused ? QColor(0xd0, 0x30, 0x30) : palette().color(QPalette::Highlight);
  QPainter painter(this);
  painter.setPen(QPen(colour, 1));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  const int left = isRightToLeft() ? width() - Bar : 0;
  painter.fillRect(left, 0, Bar, height(), colour);
}
