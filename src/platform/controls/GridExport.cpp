#include "platform/controls/GridExport.h"

#include <QBuffer>
#include <QDir>
#include <QLocale>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinter>
#include <QStandardPaths>
#include <algorithm>
#include <vector>

#include "platform/controls/Grid.h"
#include "platform/controls/GridPaper.h"
#include "platform/desktop/Prompts.h"
#include "platform/files/WholeFile.h"

namespace {

// Where a comma divides whole from broken numbers, spreadsheets want another mark between cells.
QChar Separator() {
  return QLocale().decimalPoint() == QLatin1String(",") ? u';' : u',';
}

QString CsvCell(QString cell, QChar separator) {
  const bool quoted = std::any_of(
      cell.begin(), cell.end(), [&](QChar ch) { return ch == u'"' || ch == separator || ch == u'\r' || ch == u'\n'; });
  return quoted ? u'"' + cell.replace(u'"', QLatin1String("\"\"")) + u'"' : cell;
}

template <class Visit>
void ForShownRows(const Grid& grid, Visit visit) {
  for (int row = 1; row < grid.Rows(); ++row)
    if (!grid.RowHidden(row)) visit(row);
}

QPageSize::PageSizeId PaperOfThisCountry() {
  return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4;
}

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

// Offers a name made of the grid's own.
std::optional<QString> AskForFile(const Grid& grid, const QString& title, const QString& ending) {
  QString name = grid.accessibleName().isEmpty() ? grid.window()->windowTitle() : grid.accessibleName();
  for (QChar& ch : name)
    if (!ch.isLetterOrNumber() && ch != u' ' && ch != u'-') ch = u'_';
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  return Prompts().SaveFile({title, folder.filePath(name.trimmed() + u'.' + ending), "*." + ending, OwnerOf(grid)});
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
  const QChar separator = Separator();
  QByteArray csv("\xEF\xBB\xBF");
  const auto line = [&](int row) {
    QStringList cells;
    for (const int col : columns) cells.append(CsvCell(grid.Text(row, col), separator));
    csv += cells.join(separator).toUtf8() + "\r\n";
  };
  line(0);
  ForShownRows(grid, line);
  return csv;
}

void AskAndSaveCsv(const Grid& grid) {
  const std::optional<QString> path = AskForFile(grid, Grid::tr("Export to CSV"), QStringLiteral("csv"));
  if (path.has_value()) SaveAs(grid, *path, Csv(grid));
}

void AskAndSavePdf(const Grid& grid) {
  const std::optional<QString> path = AskForFile(grid, Grid::tr("Save as PDF"), QStringLiteral("pdf"));
  if (!path.has_value()) return;
  QBuffer pdf;
  pdf.open(QIODevice::WriteOnly);
  QPdfWriter writer(&pdf);
  writer.setTitle(TitleOf(grid));
  writer.setPageSize(QPageSize(PaperOfThisCountry()));
  if (!GridPaper::Print(grid, TitleOf(grid), writer))
    return Tell(grid, Grid::tr("The file %1 could not be written.").arg(*path));
  SaveAs(grid, *path, pdf.data());
}

void AskAndPrint(const Grid& grid) {
  if (Prompts().PrinterNames().isEmpty()) return Tell(grid, Grid::tr("No printer is installed on this machine."));
  const std::optional<QString> name = Prompts().ChoosePrinter(OwnerOf(grid));
  if (!name.has_value()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPrinterName(*name);
  printer.setDocName(TitleOf(grid));
  if (!GridPaper::Print(grid, TitleOf(grid), printer))
    Tell(grid, Grid::tr("The printer %1 could not be used.").arg(*name));
}

}  // namespace GridExport
