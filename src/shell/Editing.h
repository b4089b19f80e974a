#pragma once

#include <QString>
#include <functional>
#include <vector>

class CodeComboBox;
class Grid;
class MemoBox;
class OptionGroup;
class Record;
class TextBox;
class QWidget;

// How a grid and the fields above it belong together, said once in each screen: one entry for each field. The
// functions below work over that list; a screen's own steps stand in the screen.
enum class Trim { None, Both, BothUpper };

struct BoundField {
  QWidget* control;
  int column;  // of the grid
  std::function<QString()> get;
  std::function<void(const QString&)> set;
  std::function<void()> trim;
  std::function<void()> clear;
};

class FieldList {
 public:
  FieldList& Add(TextBox* box, int column, Trim trim = Trim::Both);
  FieldList& Add(MemoBox* box, int column, Trim trim = Trim::Both);
  // Element 0 stands for "Y" in the cell, element 1 for any other; get gives "Y", `no` or "" when both are unset.
  FieldList& Add(OptionGroup* pair, int column, const QString& no = {});
  // The box shows the cell's text.
  FieldList& AddText(CodeComboBox* box, int column);
  // The cell holds the code; an empty cell is the none entry.
  FieldList& AddCode(CodeComboBox* box, int column);

  void FillFromRow(const Grid& grid, int row) const;
  bool EqualsRow(const Grid& grid, int row) const;
  void WriteRow(Grid& grid, int row) const;
  void TrimAll() const;
  void Clear() const;
  const std::vector<BoundField>& Fields() const { return fields_; }

 private:
  std::vector<BoundField> fields_;
};

// The change handler of the main screen's fields: clears gstrErrorMessage and compares the text with the column of the
// grid's current row; no row counts as different. Nothing while code fills the fields.
void CompareWithRow(Record& record, const QString& text, const Grid* grid, int column);
void WatchField(Record& record, TextBox* box, const Grid* grid, int column);
void WatchField(Record& record, MemoBox* box, const Grid* grid, int column);
// Any change counts, unless code fills the fields.
void WatchAnyChange(Record& record, TextBox* box);
// A box that only shows: it cannot be edited, and the focus goes on to `next` however it comes.
void PassFocusOn(TextBox* box, QWidget* next);
// The selected record stays selected when a heading sorts the grid: rows move as a whole, so only the events that the
// move raises are held back.
void KeepRowOnSort(Grid* grid);
