#pragma once

#include <QProxyStyle>

// The application's style with more air at both ends of a cell and of a heading: a number at the right end of its
// column would else touch the text of the next one.
class GridStyle : public QProxyStyle {
  Q_OBJECT

 public:
  // One for all grids.
  static QStyle* Instance();

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;

 private:
  // What a heading lacks at each end to begin where its cells begin; pixels.
  int HeadingLacks(const QWidget* widget) const;
};
