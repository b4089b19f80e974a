#include "shell/GridForm.h"

#include <algorithm>
#include <stdexcept>

#include "core/ModuleState.h"
#include "core/Numbers.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/ado/Recordset.h"
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

QString ColumnName(const QString& database) {
  return database.endsWith(QLatin1Char('+')) ? database.chopped(1) + gclsOF->LanguageSuffix() : database;
}

}  // namespace

// --- Telling ---

GridForm& GridForm::Tell(Column column, std::optional<Field> field) {
  if (field) field->column = static_cast<int>(columns_.size()) + 1;
  columns_.push_back({std::move(column), std::move(field)});
  return *this;
}

GridForm& GridForm::Shows(Column column) {
  return Tell(std::move(column));
}

std::function<void()> GridForm::Watcher() const {
  const size_t at = columns_.size() - 1;
  return [this, at] {
    const Told& told = columns_[at];
    gstrErrorMessage.clear();
    if (told.column.watch == Watch::Touch) record_.Touched();
    if (told.column.watch == Watch::Compare) record_.Compared(grid_->Row() == 0 || !Equals(told, grid_->Row()));
  };
}

GridForm& GridForm::Edits(TextBox* box, Column column, Trim trim) {
  Tell(std::move(column), Field{FieldOfBox(box, trim), true});
  QObject::connect(box, &TextBox::Change, box, Watcher());
  return *this;
}

GridForm& GridForm::Edits(MemoBox* box, Column column, Trim trim) {
  Tell(std::move(column), Field{FieldOfBox(box, trim), true});
  QObject::connect(box, &MemoBox::Change, box, Watcher());
  return *this;
}

GridForm& GridForm::EditsNumber(TextBox* box, Column column) {
  Edits(box, std::move(column));
  columns_.back().field->isNumber = true;
  return *this;
}

GridForm& GridForm::Edits(OptionGroup* pair, Column column, const QString& no) {
  const QString yes = "Y";
  Tell(std::move(column),
       Field{{nullptr, 0, [pair, yes, no] { return pair->IsSet(0)   ? yes
                                                   : pair->IsSet(1) ? no
                                                                    : QString(); },
              [pair, yes, no](const QString& text) {
                pair->Select(text == yes ? 0 : no.isEmpty() || text == no ? 1 : -1);
              },
              [] {}, [pair] { pair->Unset(); }}});
  const int col = static_cast<int>(columns_.size());
  if (columns_.back().column.watch == Watch::Compare)
    QObject::connect(pair, &OptionGroup::Click, pair, [this, yes, col](int element) {
      gstrErrorMessage.clear();
      const QString cell = grid_->Row() > 0 ? grid_->Text(grid_->Row(), col) : QString();
      record_.Compared(element == 0 ? cell.isEmpty() : cell != yes);
    });
  return *this;
}

GridForm& GridForm::EditsCode(CodeComboBox* box, Column column, const QString& unknown) {
  Tell(std::move(column), Field{{box, 0, [box] { return box->Code(); },
                                 [box, unknown](const QString& code) {
                                   if (code.isEmpty())
                                     box->SetIndex(0);
                                   else
                                     box->Hold(code, unknown);
                                 },
                                 [] {}, [box] { box->SetIndex(0); }}});
  QObject::connect(box, &CodeComboBox::Click, box, Watcher());
  return *this;
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
    grid_->AlignRight(col, columns_[at].field && columns_[at].field->isNumber);
    if (column.twips > 0) grid_->SetColWidth(col, column.twips);
  }
}

void GridForm::Load(const QString& statement, const QString& failureLine,
                    const std::function<void(const Recordset&)>& opened) const {
  std::vector<QString> names;
  for (const Told& told : columns_) names.push_back(ColumnName(told.column.database));
  grid_->Clear();
  OpenRows(*grsTable, statement, failureLine);
  if (opened) opened(*grsTable);
  FillGridFrom(*grid_, *grsTable, names);
  grsTable->Close();
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

bool GridForm::Equals(const Told& told, int row) const {
  const QString shown = told.field->get(), cell = grid_->Text(row, told.field->column);
  return told.field->isNumber ? Numbers::Same(shown, cell) : shown == cell;
}

bool GridForm::EqualsRow(int row) const {
  return std::all_of(columns_.begin(), columns_.end(),
                     [&](const Told& told) { return !told.field || Equals(told, row); });
}

void GridForm::Compare(const QString& database, const QString& shown) const {
  gstrErrorMessage.clear();
  record_.Compared(grid_->Row() == 0 || Cell(grid_->Row(), database) != shown);
}

void GridForm::CompareAgain() const {
  const auto entered = [](const Told& told) {
    return told.field && told.field->isText && !told.field->get().trimmed().isEmpty();
  };
  record_.Compared(grid_->Row() > 0 ? !EqualsRow(grid_->Row())
                                    : std::any_of(columns_.begin(), columns_.end(), entered));
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
