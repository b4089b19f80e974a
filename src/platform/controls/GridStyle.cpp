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

QSize GridStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
  return type == CT_HeaderSection ? whole + QSize(2 * Air, 0) : whole;
}

QRect GridStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  return element == SE_HeaderLabel ? rect.adjusted(Air, 0, -Air, 0) : rect;
}
