#pragma once

#include <QString>
#include <functional>

class Grid;
class Record;

// A list that is edited in a grid and replaces the rows of its library when the screen closes.
struct ListRewrite {
  QString table;
  qint32 libraryId = 0;
  QString deleteFailed;  // failure lines
  QString insertFailed;
  QString columns;                           // of the INSERT
  std::function<QString(int row)> valuesOf;  // the same columns of a grid row

  // In one transaction: all rows of the library go, the rows of the grid come. An AdoError at any of them leaves the
  // old rows in the table. `list` is the grid's own record: what was not read whole replaces nothing.
  void Run(const Grid& grid, const Record& list) const;
};
