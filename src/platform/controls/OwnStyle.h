#pragma once

#include <QProxyStyle>

// The look of the program over that of the desktop: edges and marks that can be told from the window behind them in
// dark and light colours alike, a selection whose letters can be read, tabs that need little room.
class OwnStyle : public QProxyStyle {
  Q_OBJECT

 public:
  // Over the style with this name; the desktop's own for an empty one.
  explicit OwnStyle(const QString& base = {});

  void polish(QPalette& palette) override;
  using QProxyStyle::polish;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

namespace Contrast {

// Between 1 (none) and 21 (black on white), as the Web Content Accessibility Guidelines define it.
double Of(const QColor& a, const QColor& b);
// The colour, made darker or lighter in small steps until it stands out from the other by that much.
QColor Against(const QColor& colour, const QColor& other, double enough);
// A ground of the same tint, light or dark, on which letters of this colour can be read.
QColor GroundFor(const QColor& letters);

}  // namespace Contrast
