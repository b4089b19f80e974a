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
class TextBox;

// A grid of rows and the fields that show one of them, told once: column by column, each with its heading, its width,
// the database column behind it and, where it can be edited, its field. Shaping and filling the grid, showing a row in
// the fields, comparing, watching and writing back follow from that. The order of checks, the words and the statements
// stand in the screen.
class GridForm {
 public:
  // A column of the grid. `database`: its name in the rows that are read; one that ends in "+" takes the working
  // language's suffix, an empty one leaves the cells empty. `twips`: width (1440 an inch); 0 leaves it as it is.
  struct Column {
    QString database;
    QString heading;
    int twips = 0;
    bool hidden = false;
  };

  GridForm(Grid* grid, Record& record, int markerTwips = 400) : grid_(grid), record_(record), marker_(markerTwips) {}
  GridForm(const GridForm&) = delete;
  GridForm& operator=(const GridForm&) = delete;

  // --- Telling, from column 1 on, left to right ---
  GridForm& Shows(Column column);
  GridForm& Edits(TextBox* box, Column column, Trim trim = Trim::Both);
  GridForm& Edits(MemoBox* box, Column column, Trim trim = Trim::Both);
  // The cell holds "Y" where element 0 is set, `no` where element 1 is.
  GridForm& Edits(OptionGroup* pair, Column column, const QString& no = {});
  // The cell holds the code; an empty one is the none entry, an unknown one is held.
  GridForm& EditsCode(CodeComboBox* box, Column column);

  // Sets column count, headings and widths. Rows are dropped.
  void Shape() const;
  // Empties the grid and fills it; the failure line stands in gstrErrorMessage meanwhile.
  void Load(const QString& statement, const QString& failureLine) const;

  // --- The row in the fields ---
  // The grid's column behind a database name, as it was told: where a cell is looked for.
  int ColumnOf(const QString& database) const;
  QString Cell(int row, const QString& database) const;
  // The row stands in the fields as it is in the grid.
  void ShowRow(int row) const;
  bool EqualsRow(int row) const;
  void WriteRow(int row) const;
  // Trims each field as it was told. What is trimmed away is no change of the record.
  void TrimAll() const;
  // No row is in the fields.
  void Clear() const;
  // The first row becomes current and stands in the fields, by `show`; False when there is none.
  bool SelectFirstRow(const std::function<void()>& show) const;

 private:
  struct Told {
    Column column;
    std::optional<BoundField> field;
  };
  GridForm& Tell(Column column, std::optional<BoundField> field = {});

  Grid* grid_;
  Record& record_;
  int marker_;  // twips
  std::vector<Told> columns_;
};
