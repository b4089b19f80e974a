#pragma once

#include <QWidget>

#include "platform/controls/TextFolding.h"

class Grid;
class GridHeading;
class QCheckBox;
class QLabel;
class QToolButton;
class TextBox;

// The bar under a grid's headings. Typing marks the first row, from the current one on, that holds the text in a
// visible cell (letter case and accents ignored) and scrolls to it; the record in the fields stays until Enter or F3
// makes the row current. With "Matching rows only" the same text is the grid's filter. Escape closes the bar and shows
// all rows again.
class GridFinder : public QWidget {
  Q_OBJECT

 public:
  GridFinder(Grid* grid, GridHeading* heading);

  void Open(bool onlyMatches);
  // Shows the bar with the text as if it were typed, without taking the focus.
  void LookFor(const QString& text);
  void Close();
  QString Sought() const;
  // There is a text to look for.
  bool Seeks() const;
  void Next(int step);
  int Found() const { return found_; }

  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QToolButton* Tool(const QString& name, Qt::ArrowType arrow, const QString& tip);
  void TextChanged();
  void Apply();
  void Filtered();
  bool Matches(int row) const;
  // The first matching row on screen from `row` on in steps of 1 or -1, going round; 0 when there is none.
  int Match(int row, int step) const;
  void Mark(int row);
  void Count();

  Grid* grid_;
  GridHeading* heading_;
  TextBox* text_;
  QToolButton* previous_;
  QToolButton* next_;
  QCheckBox* onlyMatches_;
  QLabel* count_;
  QToolButton* close_;
  TextFolding::Sought sought_;
  int found_ = 0;
};
