#include "platform/controls/GridExport.h"

#include <QBuffer>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QStandardPaths>
#include <algorithm>
#include <numeric>
#include <vector>

#include "platform/controls/Grid.h"
#include "platform/desktop/Prompts.h"
#include "platform/files/WholeFile.h"

namespace {

constexpr qreal CellPadding = 3;   // points
constexpr int SampledRows = 2000;  // enough to know how wide a column wants to be
constexpr int WrapAnywhere = Qt::TextWordWrap | Qt::TextWrapAnywhere | Qt::AlignLeft | Qt::AlignTop;

QString CsvCell(QString cell) {
  const bool quoted = std::any_of(cell.begin(), cell.end(),
                                  [](QChar ch) { return ch == u'"' || ch == u',' || ch == u'\r' || ch == u'\n'; });
  return quoted ? u'"' + cell.replace(u'"', QLatin1String("\"\"")) + u'"' : cell;
}

template <class Visit>
void ForShownRows(const Grid& grid, Visit visit) {
  for (int row = 1; row < grid.Rows(); ++row)
    if (!grid.RowHidden(row)) visit(row);
}

// One table drawn over as many pages as it takes. Lengths are in the printer's dots.
class Sheet {
 public:
  Sheet(const Grid& grid, const QString& title, QPagedPaintDevice& printer, QPainter& painter)
      : grid_(grid),
        title_(title),
        printer_(printer),
        painter_(painter),
        columns_(grid.VisibleCols()),
        padding_(CellPadding * printer.logicalDpiX() / 72.0),
        page_(QPointF(0, 0), printer.pageLayout().paintRectPixels(printer.logicalDpiX()).size()) {
    MeasureColumns();
  }

  void Draw() {
    BeginPage();
    ForShownRows(grid_, [this](int row) {
      const qreal height = HeightOf(row);
      // A row that is taller than a page begins on a fresh one and is cut at its end.
      if (y_ + height > Bottom() && y_ > top_) {
        printer_.newPage();
        BeginPage();
      }
      DrawRow(row, height);
    });
  }

 private:
  qreal Bottom() const { return page_.height() - 2 * painter_.fontMetrics().height(); }

  void MeasureColumns() {
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    for (const int col : columns_) {
      qreal width = metrics.horizontalAdvance(grid_.Text(0, col)) * 1.1;
      for (int row = 1; row < std::min(grid_.Rows(), SampledRows); ++row)
        if (!grid_.RowHidden(row)) width = std::max(width, metrics.horizontalAdvance(grid_.Text(row, col)));
      widths_.push_back(std::min(width, page_.width() / 2) + 2 * padding_);
    }
    const qreal all = std::accumulate(widths_.begin(), widths_.end(), qreal(0));
    if (all <= page_.width()) return;
    for (qreal& width : widths_) width *= page_.width() / all;
  }

  QRectF CellRect(std::size_t at, qreal x, qreal height) const {
    return QRectF(x, y_, widths_[at], height).adjusted(padding_, padding_ / 2, -padding_, -padding_ / 2);
  }

  qreal HeightOf(int row) const {
    qreal height = 0;
    for (std::size_t at = 0; at < columns_.size(); ++at) {
      const QRectF room(0, 0, widths_[at] - 2 * padding_, page_.height());
      height = std::max(height, painter_.boundingRect(room, WrapAnywhere, grid_.Text(row, columns_[at])).height());
    }
    return std::max(height, painter_.fontMetrics().height() * 1.0) + padding_;
  }

  void DrawRow(int row, qreal height) {
    qreal x = 0;
    for (std::size_t at = 0; at < columns_.size(); ++at) {
      painter_.drawText(CellRect(at, x, height), WrapAnywhere, grid_.Text(row, columns_[at]));
      x += widths_[at];
    }
    y_ += height;
    painter_.drawLine(QPointF(0, y_), QPointF(x, y_));
  }

  void BeginPage() {
    ++number_;
    y_ = 0;
    const QFont plain = painter_.font();
    QFont bold = plain;
    bold.setBold(true);
    painter_.setFont(bold);
    const qreal line = painter_.fontMetrics().height();
    painter_.drawText(QRectF(0, 0, page_.width(), line), Qt::AlignLeft, title_);
    y_ = line * 1.5;
    DrawRow(0, HeightOf(0));
    painter_.setFont(plain);
    painter_.drawText(QRectF(0, page_.height() - line, page_.width(), line), Qt::AlignRight, QString::number(number_));
    top_ = y_;
  }

  const Grid& grid_;
  const QString& title_;
  QPagedPaintDevice& printer_;
  QPainter& painter_;
  std::vector<int> columns_;
  std::vector<qreal> widths_;
  qreal padding_;
  QRectF page_;
  qreal y_ = 0, top_ = 0;
  int number_ = 0;
};

QString TitleOf(const Grid& grid) {
  const QString form = grid.window()->windowTitle(), name = grid.accessibleName();
  return form.isEmpty() || name.isEmpty() ? form + name : form + QStringLiteral(" - ") + name;
}

QWidget* OwnerOf(const Grid& grid) {
  return grid.window();
}

void Tell(const Grid& grid, const QString& text) {
  Prompts().ShowMessage({text, MessageStyle::Warning, grid.window()->windowTitle(), {}, OwnerOf(grid)});
}

std::optional<QString> AskForFile(const Grid& grid, const QString& title, const QString& pattern) {
  return Prompts().SaveFile(
      {title, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), pattern, OwnerOf(grid)});
}

void SaveAs(const Grid& grid, const QString& path, const QByteArray& bytes) {
  QString reason;
  if (!WholeFile::Write(path, bytes, &reason))
    Tell(grid, Grid::tr("The file %1 could not be written.\n\n%2").arg(path, reason));
}

}  // namespace

namespace GridExport {

QByteArray Csv(const Grid& grid) {
  const std::vector<int> columns = grid.VisibleCols();
  QByteArray csv("\xEF\xBB\xBF");
  const auto line = [&](int row) {
    QStringList cells;
    for (const int col : columns) cells.append(CsvCell(grid.Text(row, col)));
    csv += cells.join(u',').toUtf8() + "\r\n";
  };
  line(0);
  ForShownRows(grid, line);
  return csv;
}

bool Print(const Grid& grid, const QString& title, QPagedPaintDevice& printer) {
  if (grid.VisibleCols().size() > 4) printer.setPageOrientation(QPageLayout::Landscape);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  painter.setFont(QFont(grid.font().family(), 9));
  Sheet(grid, title, printer, painter).Draw();
  return painter.end();
}

void AskAndSaveCsv(const Grid& grid) {
  const std::optional<QString> path = AskForFile(grid, Grid::tr("Export to CSV"), QStringLiteral("*.csv"));
  if (!path.has_value()) return;
  SaveAs(grid, *path, Csv(grid));
}

void AskAndSavePdf(const Grid& grid) {
  const std::optional<QString> path = AskForFile(grid, Grid::tr("Save as PDF"), QStringLiteral("*.pdf"));
  if (!path.has_value()) return;
  QBuffer pdf;
  pdf.open(QIODevice::WriteOnly);
  QPdfWriter writer(&pdf);
  writer.setTitle(TitleOf(grid));
  if (!Print(grid, TitleOf(grid), writer)) return Tell(grid, Grid::tr("The file %1 could not be written.").arg(*path));
  SaveAs(grid, *path, pdf.data());
}

void AskAndPrint(const Grid& grid) {
  if (Prompts().PrinterNames().isEmpty()) return Tell(grid, Grid::tr("No printer is installed on this machine."));
  const std::optional<QString> name = Prompts().ChoosePrinter(OwnerOf(grid));
  if (!name.has_value()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPrinterName(*name);
  printer.setDocName(TitleOf(grid));
  if (!Print(grid, TitleOf(grid), printer)) Tell(grid, Grid::tr("The printer %1 could not be used.").arg(*name));
}

}  // namespace GridExport
