// How wide the columns of a Grid are: as the screen says, never narrower than the heading, unless a person drew them
// otherwise. What a person drew is kept in the user's settings by form, grid and heading.
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSettings>
#include <QUrl>

#include "platform/controls/Grid.h"
#include "platform/controls/GridModel.h"

namespace {
constexpr int TwipsAnInch = 1440;
constexpr int NarrowestByHand = 16, WidestByHand = 4000, WidestByItself = 480;  // pixels
constexpr int RowsLookedAt = 100, LettersLookedAt = 120;

std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}
}  // namespace

void Grid::SetColWidth(int col, int twips) {
  if (col < 0 || col >= Cols()) return;
  Column& column = columns_[At(col)];
  column.twips = twips;
  column.pixels = qRound(twips * logicalDpiX() / double(TwipsAnInch));
  FitHeading(col);
}

int Grid::ColWidth(int col) const {
  return col >= 0 && col < Cols() ? columns_[At(col)].twips : 0;
}

// Widths come from another font than the one on screen; a heading that is cut off helps nobody.
void Grid::FitHeading(int col) {
  if (col < 0 || col >= Cols()) return;
  Column& column = columns_[At(col)];
  if (!model_->Heading(col).isEmpty())
    column.pixels = std::max(column.pixels, horizontalHeader()->sectionSizeHint(col));
  RecallWidth(col);
  ShareRoom();
}

void Grid::FitAllHeadings() {
  for (int col = 0; col < Cols(); ++col) FitHeading(col);
}

void Grid::HideCol(int col, bool hidden) {
  if (col < 0 || col >= Cols()) return;
  {
    // What a column shrinks to and comes back from is no width that somebody gave it.
    const QScopedValueRollback stretching(stretching_, true);
    setColumnHidden(col, hidden);
  }
  if (!filter_.isEmpty()) SetFilter(filter_);
  ShareRoom();
}

bool Grid::ColHidden(int col) const {
  return isColumnHidden(col);
}

// Of the first rows only: enough to know what a column holds, at no cost that could be felt.
void Grid::MeasureTexts(int first, int last) {
  if (loading_ || first > RowsLookedAt) return;
  const QFontMetrics metrics = fontMetrics();
  const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
  bool wider = false;
  for (int col = 1; col < Cols(); ++col) {
    int& widest = columns_[At(col)].texts;
    const int before = widest;
    for (int row = first; row <= std::min(last, RowsLookedAt); ++row) {
      const QString text = View(row, col).left(LettersLookedAt).toString();
      if (!text.isEmpty()) widest = std::max(widest, metrics.horizontalAdvance(text) + margins);
    }
    wider = wider || widest != before;
  }
  if (wider) ShareRoom();
}

// While a person draws one column the others stay as they are on screen.
void Grid::KeepWidths() {
  const std::vector<int> visible = VisibleCols();
  for (const int col : visible)
    if (col != visible.back()) columns_[At(col)].pixels = columnWidth(col);
}

int Grid::Needs(int col) const {
  const Column& column = columns_[At(col)];
  if (column.drawn) return column.pixels;
  return std::min(column.pixels, std::max(column.texts, horizontalHeader()->sectionSizeHint(col)));
}

void Grid::ShareRoom() {
  if (stretching_) return;
  const QScopedValueRollback stretching(stretching_, true);
  const std::vector<int> visible = VisibleCols();
  const int last = visible.empty() ? 0 : visible.back();
  // The last column needs no more than it holds; it takes what is left in any case.
  int room = viewport()->width();
  for (int col = 0; col < Cols(); ++col)
    if (!isColumnHidden(col)) room -= col == last ? Needs(col) : columns_[At(col)].pixels;
  for (int col = 0; col < Cols(); ++col) {
    if (isColumnHidden(col)) continue;
    const Column& column = columns_[At(col)];
    const int lacks = col == 0 || column.drawn ? 0 : std::min(column.texts, WidestByItself) - column.pixels;
    const int share = std::max(0, col == last ? room : std::min(lacks, room));
    room -= share;
    setColumnWidth(col, (col == last ? Needs(col) : column.pixels) + share);
  }
}

// Empty where nothing can be kept: the marker, a column without a heading, a grid that stands in no window yet.
QString Grid::WidthKey(int col) const {
  const QString form = window()->objectName(), heading = model_->Heading(col);
  if (col == 0 || form.isEmpty() || heading.isEmpty() || window() == this) return {};
  // A heading may hold the mark that divides the parts of a key.
  return QStringLiteral("Columns/%1/%2/").arg(form, objectName()) +
         QString::fromLatin1(QUrl::toPercentEncoding(heading));
}

void Grid::RecallWidth(int col) {
  const QString key = WidthKey(col);
  if (key.isEmpty()) return;
  const int width = QSettings().value(key).toInt();
  if (width <= 0) return;
  columns_[At(col)].pixels = std::clamp(width, NarrowestByHand, WidestByHand);
  columns_[At(col)].drawn = true;
}

void Grid::RememberWidths() {
  for (int col = 1; col < Cols(); ++col) {
    if (!std::exchange(columns_[At(col)].byHand, false)) continue;
    if (const QString key = WidthKey(col); !key.isEmpty()) QSettings().setValue(key, columns_[At(col)].pixels);
  }
}

// Only now the grid is sure to stand in its window.
void Grid::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  for (int col = 1; col < Cols(); ++col) RecallWidth(col);
  ShareRoom();
}
