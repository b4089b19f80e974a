#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "shell/Editing.h"

class CodeComboBox;
class Grid;
class MemoBox;
class OptionGroup;
class Record;
class Recordset;
class TextBox;

// A grid of rows and the fields that show one of them, told once: column by column, each with its heading, its width,
// the database column behind it and, where it can be edited, its field. Shaping and filling the grid, showing a row in
// the fields, comparing, watching and writing back follow from that. The order of checks, the words and the statements
// stand in the screen.
class GridForm {
 public:
  // What a change of the field by hand means for the mark of the record.
  enum class Watch {
    Compare,  // changed where the field differs from the current row; no row counts as different
    Touch,    // changed, whatever stood there
    No        // the screen sees to it
  };

  // A column of the grid. `database`: its name in the rows that are read; one that ends in "+" takes the working
  // language's suffix, an empty one leaves the cells empty. `twips`: width (1440 an inch); 0 leaves it as it is.
  struct Column {
    QString database;
    QString heading;
    int twips = 0;
    bool hidden = false;
    Watch watch = Watch::Compare;
  };

  GridForm(Grid* grid, Record& record, int markerTwips = 400) : grid_(grid), record_(record), marker_(markerTwips) {}
  GridForm(const GridForm&) = delete;
  GridForm& operator=(const GridForm&) = delete;

  // --- Telling, from column 1 on, left to right ---
  GridForm& Shows(Column column);
  GridForm& Edits(TextBox* box, Column column, Trim trim = Trim::Both);
  GridForm& Edits(MemoBox* box, Column column, Trim trim = Trim::Both);
  // The cell holds "Y" where element 0 is set, `no` where element 1 is. Without a `no`, any other cell sets element 1.
  // For the mark a "Y" that is switched to No is no change, and an empty cell left on No is one.
  GridForm& Edits(OptionGroup* pair, Column column, const QString& no = {});
  // The cell holds the code; an empty one is the none entry, an unknown one is held and shown as `unknown`.
  GridForm& EditsCode(CodeComboBox* box, Column column, const QString& unknown = {});
  // Compared with the cell as numbers, which stand at the right; none is not zero.
  GridForm& EditsNumber(TextBox* box, Column column);

  // Sets column count, headings and widths. Rows are dropped.
  void Shape() const;
  // Empties the grid and fills it; the failure line stands in gstrErrorMessage meanwhile. `opened` sees the recordset
  // before its rows are read.
  void Load(const QString& statement, const QString& failureLine,
            const std::function<void(const Recordset&)>& opened = {}) const;

  // --- The row in the fields ---
  // The grid's column behind a database name, as it was told: where a cell is looked for.
  int ColumnOf(const QString& database) const;
  QString Cell(int row, const QString& database) const;
  // The row stands in the fields as it is in the grid.
  void ShowRow(int row) const;
  bool EqualsRow(int row) const;
  // What the screen shows of a column that it watches itself is compared with the current row; no row counts as
  // different.
  void Compare(const QString& database, const QString& shown) const;
  // Fields that were left as they stood and a grid that was read anew are compared again: with the current row, or,
  // where there is none, a text in any field is a record that is being entered.
  void CompareAgain() const;
  void WriteRow(int row) const;
  // Trims each field as it was told. What is trimmed away is no change of the record.
  void TrimAll() const;
  // No row is in the fields.
  void Clear() const;
  // The first row becomes current and stands in the fields, by `show`; False when there is none.
  bool SelectFirstRow(const std::function<void()>& show) const;

 private:
  struct Field : BoundField {
    bool isText = false;
    bool isNumber = false;  // compared by value
  };
  struct Told {
    Column column;
    std::optional<Field> field;
  };
  GridForm& Tell(Column column, std::optional<Field> field = {});
  // A handler of the last column's field: what it shows, compared with the row, as the column is watched.
  std::function<void()> Watcher() const;
  bool Equals(const Told& told, int row) const;

  Grid* grid_;
  Record& record_;
  int marker_;  // twips
  std::vector<Told> columns_;
};
