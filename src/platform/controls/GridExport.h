#pragma once

#include <QByteArray>
#include <QString>

class Grid;
class QPagedPaintDevice;

// What a grid shows, carried out of the program: the visible columns with their headings and the rows that the filter
// leaves, in the order on screen. Hidden columns stay inside.
namespace GridExport {

// RFC 4180: comma, CR LF, quotes doubled. UTF-8 with a byte order mark, by which spreadsheets know it.
QByteArray Csv(const Grid& grid);
// Pages with the headings on each of them, columns as wide as the page allows, long cells in several lines. False when
// the device cannot be begun.
bool Print(const Grid& grid, const QString& title, QPagedPaintDevice& printer);

// Ask for file or printer, do it, and tell when it failed.
void AskAndSaveCsv(const Grid& grid);
void AskAndSavePdf(const Grid& grid);
void AskAndPrint(const Grid& grid);

}  // namespace GridExport
