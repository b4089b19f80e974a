// How wide the columns of a Grid are: as the screen says, never narrower than the heading, unless a person drew them
// otherwise.
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QtMath>

#include "platform/controls/Grid.h"
#include "platform/controls/GridModel.h"

namespace {
constexpr int TwipsAnInch = 1440;
constexpr int WidestByItself = 480, WidestOfAll = 4000;  // pixels
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
  RecallColumn(col);
  ShareRoom();
}

void Grid::FitAllHeadings() {
  for (int col = 0; col < Cols(); ++col) FitHeading(col);
}

// Of the first rows only: enough to know what a column holds, at no cost that could be felt.
void Grid::MeasureTexts(int first, int last) {
  if (loading_ || first > RowsLookedAt) return;
  // The row that a search has found stands in bold letters. Whole numbers of pixels cut a text by a third of one.
  QFont bold = font();
  bold.setBold(true);
  const QFontMetricsF metrics(bold, this);
  const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) + 1;
  bool wider = false;
  for (int col = 1; col < Cols(); ++col) {
    int& widest = columns_[At(col)].texts;
    const int before = widest;
    for (int row = first; row <= std::min(last, RowsLookedAt); ++row) {
      const QString text = View(row, col).left(LettersLookedAt).toString();
      if (!text.isEmpty()) widest = std::max(widest, qCeil(metrics.horizontalAdvance(text)) + margins);
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

// What a column fills of its width, so that it can spare the rest.
int Grid::Needs(int col) const {
  const Column& column = columns_[At(col)];
  if (column.drawn) return column.pixels;
  return std::min(column.pixels, std::max(column.texts, horizontalHeader()->sectionSizeHint(col)));
}

// Columns whose texts are cut get of the room beside all columns what they lack: first up to a width that serves most
// texts, then whoever still lacks. The last one takes what is left, and gives of its own what it does not fill.
void Grid::ShareRoom() {
  if (stretching_ || columns_.empty()) return;
  const QScopedValueRollback stretching(stretching_, true);
  const std::vector<int> visible = VisibleCols();
  const int last = visible.empty() ? 0 : visible.back();
  std::vector<int> widths(columns_.size());
  int room = viewport()->width();
  for (int col = 0; col < Cols(); ++col) {
    if (isColumnHidden(col)) continue;
    widths[At(col)] = col == last ? Needs(col) : columns_[At(col)].pixels;
    room -= widths[At(col)];
  }
  bool shared = false;
  for (const int enough : {WidestByItself, WidestOfAll})
    for (const int col : visible) {
      const Column& column = columns_[At(col)];
      const int lacks = column.drawn ? 0 : std::min(column.texts, enough) - widths[At(col)];
      const int share = std::clamp(lacks, 0, std::max(0, room));
      widths[At(col)] += share;
      room -= share;
      shared = shared || (share > 0 && col != last);
    }
  if (!shared) {
    room -= std::max(0, columns_[At(last)].pixels - widths[At(last)]);
    widths[At(last)] = std::max(widths[At(last)], columns_[At(last)].pixels);
  }
  widths[At(last)] += std::max(0, room);
  for (int col = 0; col < Cols(); ++col)
    if (!isColumnHidden(col)) setColumnWidth(col, widths[At(col)]);
}

// Only now the grid is sure to stand in its window.
void Grid::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  for (int col = 1; col < Cols(); ++col) RecallColumn(col);
  ShareRoom();
}
