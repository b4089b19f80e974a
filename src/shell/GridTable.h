#pragma once

#include <QString>
#include <functional>
#include <vector>

class Grid;
class Recordset;

// The grids of the main screen as data: which columns they have and which rows they are filled from. A key is the
// tab's index and, where a tab has several layouts, a word: "0", "5 a", "7 delivery", "8 process", "10 b".

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

// Rows of one grid. Field names by grid column from column 1 on; a name that ends in "+" takes the working language's
// suffix, an empty name leaves the cell empty.
struct GridRows {
  QString key;
  std::function<QString()> statement;
  QString failureLine;
  std::vector<QString> fields;
};

// Null when the table has no such key.
const GridLayout* FindGridLayout(const QString& key);
const GridRows* FindGridRows(const QString& key);

// Sets column count, headings and widths. Rows are dropped.
void ShapeGrid(Grid& grid, const GridLayout& layout);
// Empties the grid and fills it; the failure line stands in gstrErrorMessage meanwhile.
void FillGrid(Grid& grid, const GridRows& rows);
// The cells of an open recordset, by field name from column 1 on; rows are added in one load. The grid is emptied
// first.
void FillGridFrom(Grid& grid, Recordset& rows, const std::vector<QString>& fields);
// The same for a statement put together by the caller, with the cells of each row.
void FillGrid(Grid& grid, const QString& statement, const QString& failureLine,
              const std::function<QStringList(Recordset&)>& cells);
