#pragma once

#include <QString>
#include <functional>
#include <vector>

class Grid;
class Recordset;

// Shaping and filling a grid whose rows are not told by a GridForm.

struct GridColumn {
  QString heading;
  int width = 0;  // twips; 0 leaves the width as it is
  bool hidden = false;
  bool amount = false;  // of money or things: stands at the right
};
GridColumn Amount(const QString& heading, int width);

struct GridLayout {
  QString key;
  QString grid;                     // object name
  std::vector<GridColumn> columns;  // column 0, the marker, included
};

// Sets column count, headings and widths. Rows are dropped.
void ShapeGrid(Grid& grid, const GridLayout& layout);
// The cells of an open recordset, by field name from column 1 on; rows are added in one load. The grid is emptied
// first.
void FillGridFrom(Grid& grid, Recordset& rows, const std::vector<QString>& fields);
// Empties the grid and fills it with the cells of each row of the statement; the failure line stands in
// gstrErrorMessage meanwhile.
void FillGrid(Grid& grid, const QString& statement, const QString& failureLine,
              const std::function<QStringList(Recordset&)>& cells);
