#include "platform/controls/GridStyle.h"

#include <QApplication>
#include <QPointer>

namespace {
constexpr int Air = 3;  // pixels
}

QStyle* GridStyle::Instance() {
  static QPointer<GridStyle> instance;
  if (instance == nullptr) {
    instance = new GridStyle;
    instance->setParent(qApp);
  }
  return instance;
}

int GridStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
  return metric == PM_FocusFrameHMargin ? pixels + Air : pixels;
}

int GridStyle::HeadingLacks(const QWidget* widget) const {
  return pixelMetric(PM_FocusFrameHMargin, nullptr, widget) + 1 - pixelMetric(PM_HeaderMargin, nullptr, widget);
}

QSize GridStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
  return type == CT_HeaderSection ? whole + QSize(2 * HeadingLacks(widget) + 1, 0) : whole;
}

void GridStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  const auto* const heading = qstyleoption_cast<const QStyleOptionHeader*>(option);
  if (element != CE_HeaderLabel || heading == nullptr)
    return QProxyStyle::drawControl(element, option, painter, widget);
  QStyleOptionHeader inside(*heading);
  inside.rect.adjust(HeadingLacks(widget), 0, -HeadingLacks(widget), 0);
  QProxyStyle::drawControl(element, &inside, painter, widget);
}
