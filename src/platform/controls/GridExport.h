#pragma once

#include <QByteArray>
#include <QString>

class Grid;

// What a grid shows, carried out of the program: the visible columns with their headings and the rows that the filter
// leaves, in the order on screen. Hidden columns stay inside.
namespace GridExport {

// RFC 4180: CR LF, quotes doubled, and between the cells a comma, or a semicolon where the machine's numbers have the
// comma. UTF-8 with a byte order mark, by which spreadsheets know it.
QByteArray Csv(const Grid& grid);

// Ask for file or printer, do it, and tell when it failed. A file that cannot be written whole stays as it was.
void AskAndSaveCsv(const Grid& grid);
void AskAndSavePdf(const Grid& grid);
void AskAndPrint(const Grid& grid);

}  // namespace GridExport
