#pragma once

#include <QHeaderView>

// The headings of a Grid, with room for a bar under the captions.
class GridHeading : public QHeaderView {
  Q_OBJECT

 public:
  explicit GridHeading(QWidget* parent);

  void SetCaptionHeight(int pixels);
  // The bar is shown below the captions as wide as the grid; null takes it away (and hides it).
  void SetBar(QWidget* bar);
  // The user has a mouse button down on it.
  bool IsPressed() const { return pressed_; }

 Q_SIGNALS:
  void Released();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Arrange();

  QWidget* bar_ = nullptr;
  int captionHeight_ = 0;
  bool pressed_ = false;
};
