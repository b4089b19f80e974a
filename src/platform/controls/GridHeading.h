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

  // The marker and the first column after it, once the others have scrolled beneath them; not where they would take
  // more than a part of the room, and not from right to left. Pixels of the viewport; 0 while nothing is scrolled.
  int FrozenEdge() const;
  bool IsFrozen(int col) const;
  // The column that stands frozen at this place; -1 when there is none.
  int FrozenAt(int x) const;

 Q_SIGNALS:
  void Released();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Arrange();
  int LastFrozen() const;
  QMouseEvent AsUnscrolled(const QMouseEvent& event);

  QWidget* bar_ = nullptr;
  int captionHeight_ = 0;
  bool pressed_ = false;
  int shift_ = 0;  // from where a frozen column is seen to where it really stands, in pixels
};
