#include "platform/controls/GridPaper.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <algorithm>
#include <numeric>
#include <optional>
#include <vector>

#include "platform/controls/Grid.h"

namespace {

constexpr qreal CellPadding = 3, Margin = 36;           // points
constexpr qreal UsualLetters = 9, SmallestLetters = 5;  // points
constexpr int SampledRows = 2000;                       // enough to know how wide a column wants to be
constexpr int Cell = Qt::TextWordWrap | Qt::TextWrapAnywhere | Qt::AlignTop;
constexpr int Heading = Qt::TextWordWrap | Qt::AlignTop;

std::function<QString()>& Origin() {
  static std::function<QString()> origin;
  return origin;
}

QFont Letters(const Grid& grid, qreal points, bool bold) {
  QFont font(grid.font().family());
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

qreal WidestWord(const QFontMetricsF& metrics, const QString& text) {
  qreal widest = 0;
  for (const QString& word : text.split(u' ')) widest = std::max(widest, metrics.horizontalAdvance(word));
  return widest;
}

// What a column wants and what it cannot do with less of: a heading breaks between words only.
struct Column {
  int col = 0;
  Qt::Alignment alignment = Qt::AlignLeft;
  qreal least = 0, wanted = 0, width = 0;  // dots, padding included
};

// One table drawn over as many pages as it takes. Lengths are in the device's dots.
class Sheet {
 public:
  Sheet(const Grid& grid, const QString& title, QPagedPaintDevice& device)
      : grid_(grid), title_(title), device_(device), dots_(device.logicalDpiX() / 72.0) {
    device_.setPageOrientation(QPageLayout::Portrait);
    SetMargins();
    Measure(UsualLetters);
    if (Sum(&Column::wanted) > PageSize().width()) {
      device_.setPageOrientation(QPageLayout::Landscape);
      SetMargins();
    }
    // Letters become smaller before a heading is broken.
    qreal points = UsualLetters;
    while (Sum(&Column::least) > PageSize().width() && points > SmallestLetters) Measure(points -= 0.5);
    page_ = QRectF(QPointF(0, 0), PageSize());
    Share();
  }

  bool Draw() {
    if (!painter_.begin(&device_)) return false;
    Paginate();
    for (std::size_t number = 0; number < pages_.size(); ++number) {
      if (number > 0 && !device_.newPage()) return false;
      DrawPage(number);
    }
    return painter_.end();
  }

 private:
  struct Row {
    int row;
    qreal height;
  };

  void SetMargins() { device_.setPageMargins(QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Point); }

  QSizeF PageSize() const {
    const QRectF points = device_.pageLayout().paintRect(QPageLayout::Point);
    return points.size() * dots_;
  }

  void Measure(qreal points) {
    plain_ = Letters(grid_, points, false);
    bold_ = Letters(grid_, points, true);
    padding_ = CellPadding * dots_;
    const QFontMetricsF plain(plain_, &device_), bold(bold_, &device_);
    columns_.clear();
    for (const int col : grid_.VisibleCols()) {
      Column column{col, grid_.Alignment(col)};
      const QString heading = grid_.Text(0, col);
      column.least = WidestWord(bold, heading);
      column.wanted = bold.horizontalAdvance(heading);
      for (int row = 1; row < std::min(grid_.Rows(), SampledRows); ++row)
        if (!grid_.RowHidden(row))
          column.wanted = std::max(column.wanted, plain.horizontalAdvance(grid_.Text(row, col)));
      // Rounding must not break what just fits.
      column.least += 2 * padding_ + dots_;
      column.wanted += 2 * padding_ + dots_;
      columns_.push_back(column);
    }
  }

  qreal Sum(qreal Column::*what) const {
    return std::accumulate(columns_.begin(), columns_.end(), qreal(0),
                           [what](qreal sum, const Column& column) { return sum + column.*what; });
  }

  // Each column gets what it wants where there is room; else what it cannot do without, and of the rest the more the
  // more it lacks.
  void Share() {
    const qreal room = page_.width() - Sum(&Column::least), lacking = Sum(&Column::wanted) - Sum(&Column::least);
    const qreal part = lacking <= 0 ? 0 : std::clamp(room / lacking, qreal(0), qreal(1));
    const qreal tight = room < 0 ? page_.width() / Sum(&Column::least) : 1;
    for (Column& column : columns_) column.width = (column.least + part * (column.wanted - column.least)) * tight;
  }

  qreal LineHeight(const QFont& font) const { return QFontMetricsF(font, painter_.device()).height(); }
  qreal Bottom() const { return page_.height() - 2 * LineHeight(plain_); }

  QRectF RoomOf(const Column& column, qreal x, qreal y, qreal height) const {
    return QRectF(x, y, column.width, height).adjusted(padding_, padding_ / 2, -padding_, -padding_ / 2);
  }

  qreal HeightOf(int row) {
    painter_.setFont(row == 0 ? bold_ : plain_);
    qreal height = LineHeight(painter_.font());
    for (const Column& column : columns_) {
      const QRectF room(0, 0, column.width - 2 * padding_, page_.height());
      height = std::max(height,
                        painter_.boundingRect(room, row == 0 ? Heading : Cell, grid_.Text(row, column.col)).height());
    }
    return height + padding_;
  }

  // Where rows begin below title and headings.
  qreal Top() { return LineHeight(bold_) * 1.5 + HeightOf(0); }

  // A row that is taller than a page begins on a fresh one and is cut at its end.
  void Paginate() {
    const qreal top = Top();
    pages_.assign(1, {});
    qreal y = top;
    for (int row = 1; row < grid_.Rows(); ++row) {
      if (grid_.RowHidden(row)) continue;
      const qreal height = HeightOf(row);
      if (y + height > Bottom() && !pages_.back().empty()) {
        pages_.emplace_back();
        y = top;
      }
      pages_.back().push_back({row, height});
      y += height;
    }
  }

  void DrawPage(std::size_t number) {
    painter_.setFont(bold_);
    const qreal line = LineHeight(bold_);
    painter_.drawText(QRectF(0, 0, page_.width(), line), Qt::AlignLeft, title_);
    qreal y = line * 1.5;
    y = DrawRow({0, HeightOf(0)}, y);
    for (const Row& row : pages_[number]) y = DrawRow(row, y);
    DrawFoot(number);
  }

  qreal DrawRow(const Row& row, qreal y) {
    painter_.setFont(row.row == 0 ? bold_ : plain_);
    qreal x = 0;
    for (const Column& column : columns_) {
      painter_.drawText(RoomOf(column, x, y, row.height), (row.row == 0 ? Heading : Cell) | column.alignment,
                        grid_.Text(row.row, column.col));
      x += column.width;
    }
    painter_.setPen(QPen(row.row == 0 ? Qt::black : Qt::lightGray, dots_ / 2));
    painter_.drawLine(QPointF(0, y + row.height), QPointF(x, y + row.height));
    painter_.setPen(Qt::black);
    return y + row.height;
  }

  void DrawFoot(std::size_t number) {
    painter_.setFont(plain_);
    const qreal line = LineHeight(plain_);
    const QRectF foot(0, page_.height() - line, page_.width(), line);
    const QString pages = QStringLiteral("%1 / %2").arg(number + 1).arg(pages_.size());
    const QString origin = Origin() ? Origin()() : QString();
    const QFontMetricsF metrics(plain_, painter_.device());
    const qreal room = foot.width() - metrics.horizontalAdvance(pages) - 4 * padding_;
    painter_.drawText(foot, Qt::AlignLeft, metrics.elidedText(origin, Qt::ElideRight, room));
    painter_.drawText(foot, Qt::AlignRight, pages);
  }

  const Grid& grid_;
  const QString& title_;
  QPagedPaintDevice& device_;
  QPainter painter_;
  qreal dots_;  // in a point
  QFont plain_, bold_;
  qreal padding_ = 0;
  std::vector<Column> columns_;
  QRectF page_;
  std::vector<std::vector<Row>> pages_;
};

}  // namespace

namespace GridPaper {

void SetOrigin(std::function<QString()> origin) {
  Origin() = std::move(origin);
}

bool Print(const Grid& grid, const QString& title, QPagedPaintDevice& device) {
  return Sheet(grid, title, device).Draw();
}

}  // namespace GridPaper
