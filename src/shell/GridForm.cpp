#include "shell/GridForm.h"

#include <algorithm>
#include <stdexcept>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/TextInput.h"
#include "shell/GridTable.h"

namespace {

template <class Box>
BoundField FieldOfBox(Box* box, Trim trim) {
  return {box,
          0,
          [box] { return box->Text(); },
          [box](const QString& text) { box->SetText(text); },
          [box, trim] {
            if (trim == Trim::None) return;
            const QString text = box->Trimmed();
            box->SetText(trim == Trim::BothUpper ? TextInput::Upper(text) : text);
          },
          [box] { box->SetText({}); }};
}

}  // namespace

// --- Telling ---

GridForm& GridForm::Tell(Column column, std::optional<BoundField> field) {
  if (field) field->column = static_cast<int>(columns_.size()) + 1;
  columns_.push_back({std::move(column), std::move(field)});
  return *this;
}

GridForm& GridForm::Shows(Column column) {
  return Tell(std::move(column));
}

GridForm& GridForm::Edits(TextBox* box, Column column, Trim trim) {
  Tell(std::move(column), FieldOfBox(box, trim));
  WatchField(record_, box, grid_, static_cast<int>(columns_.size()));
  return *this;
}

GridForm& GridForm::Edits(MemoBox* box, Column column, Trim trim) {
  Tell(std::move(column), FieldOfBox(box, trim));
  WatchField(record_, box, grid_, static_cast<int>(columns_.size()));
  return *this;
}

GridForm& GridForm::Edits(OptionGroup* pair, Column column, const QString& no) {
  return Tell(
      std::move(column),
      BoundField{nullptr, 0, [pair, no] { return pair->IsSet(0)   ? QString("Y")
                                                 : pair->IsSet(1) ? no
                                                                  : QString(); },
                 [pair](const QString& text) { pair->Select(text == "Y" ? 0 : 1); }, [] {}, [pair] { pair->Unset(); }});
}

GridForm& GridForm::EditsCode(CodeComboBox* box, Column column) {
  return Tell(std::move(column), BoundField{box, 0, [box] { return box->Code(); },
                                            [box](const QString& code) {
                                              if (code.isEmpty())
                                                box->SetIndex(0);
                                              else
                                                box->Hold(code);
                                            },
                                            [] {}, [box] { box->SetIndex(0); }});
}

// --- The grid ---

void GridForm::Shape() const {
  const SkipGridEvents skip;
  grid_->Clear();
  grid_->SetCols(static_cast<int>(columns_.size()) + 1);
  grid_->SetHeading(0, {});
  grid_->SetColWidth(0, marker_);
  for (size_t at = 0; at < columns_.size(); ++at) {
    const Column& column = columns_[at].column;
    const int col = static_cast<int>(at) + 1;
    grid_->SetHeading(col, column.heading);
    grid_->HideCol(col, column.hidden);
    if (column.twips > 0) grid_->SetColWidth(col, column.twips);
  }
}

void GridForm::Load(const QString& statement, const QString& failureLine) const {
  std::vector<QString> names;
  for (const Told& told : columns_) names.push_back(told.column.database);
  FillGrid(*grid_, {{}, [&] { return statement; }, failureLine, names});
}

// --- The row in the fields ---

int GridForm::ColumnOf(const QString& database) const {
  const auto found = std::find_if(columns_.begin(), columns_.end(),
                                  [&](const Told& told) { return told.column.database == database; });
  if (found == columns_.end()) throw std::logic_error("No column of this grid: " + database.toStdString());
  return static_cast<int>(found - columns_.begin()) + 1;
}

QString GridForm::Cell(int row, const QString& database) const {
  return grid_->Text(row, ColumnOf(database));
}

void GridForm::ShowRow(int row) const {
  {
    const Record::Filling filling(record_);
    for (const Told& told : columns_)
      if (told.field) told.field->set(grid_->Text(row, told.field->column));
  }
  record_.Shown();
}

bool GridForm::EqualsRow(int row) const {
  return std::all_of(columns_.begin(), columns_.end(), [&](const Told& told) {
    return !told.field || told.field->get() == grid_->Text(row, told.field->column);
  });
}

void GridForm::WriteRow(int row) const {
  for (const Told& told : columns_)
    if (told.field) grid_->SetText(row, told.field->column, told.field->get());
}

void GridForm::TrimAll() const {
  const Record::Filling filling(record_);
  for (const Told& told : columns_)
    if (told.field) told.field->trim();
}

void GridForm::Clear() const {
  {
    const Record::Filling filling(record_);
    for (const Told& told : columns_)
      if (told.field) told.field->clear();
  }
  record_.Gone();
}

bool GridForm::SelectFirstRow(const std::function<void()>& show) const {
  if (grid_->Rows() < 2) return false;
  grid_->SetRowQuietly(1);
  gbSkipGridEvents = false;
  show();
  return true;
}
