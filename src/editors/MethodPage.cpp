#include "editors/MethodPage.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/MethodTables.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

enum Element { Yes, No };

const QString Mail = "M";

// "txt5aCode" has the label "lbl5aCode".
QString LabelOf(const QString& box) {
  return "lbl" + box.mid(3);
}

}  // namespace

MethodPage::MethodPage(frmTabulon& shell, const MethodTable& method)
    : SubPage(shell),
      method_(method),
      code_(new TextBox(this, method.codeBox, 1)),
      description_(new TextBox(this, method.descriptionBox, method.descriptionLimit)),
      grid_(new Grid(this, method.grid, 3 + static_cast<int>(method.flags.size()))),
      form_(grid_, record()) {
  BuildControls();
  ConnectControls();
}

void MethodPage::BuildControls() {
  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add(LabelOf(method_.codeBox), "C&ode:", code_);
  rows.Add(LabelOf(method_.descriptionBox), "D&escription:", description_);

  for (const MethodFlag& flag : method_.flags) {
    pairs_.push_back(new OptionGroup(this, flag.option, {"Yes", "No"}));
    rows.Add("", flag.caption, pairs_.back()->Row(flag.frame));
  }
  grid_->setAccessibleName(method_.accessibleName);
  Form::Require({code_, description_});
  Form::Column(this, {fields})->addWidget(grid_, 1);
}

void MethodPage::ConnectControls() {
  // The rule of method M goes before the test for a change.
  if (method_.mailIsAlwaysActive) connect(code_, &TextBox::Change, this, &MethodPage::LockMailActive);
  form_.Edits(code_, {method_.codeColumn, "Code", 1000}, Trim::BothUpper)
      .Edits(description_, {method_.codeColumn + "_DESC+", "Description", method_.descriptionTwips});
  for (size_t flag = 0; flag < pairs_.size(); ++flag) {
    const MethodFlag& told = method_.flags[flag];
    form_.Edits(pairs_[flag], {told.column, told.heading, 1000, told.hidden});
  }
  connect(grid_, &Grid::SelChange, this, &MethodPage::SelChange);
  KeepRowOnSort(grid_);
}

void MethodPage::LockMailActive() {
  OptionGroup* const active = pairs_.front();
  const bool mail = code_->Text() == Mail;
  if (mail) active->Select(Yes);
  active->SetEnabled(!mail);
}

// --- Entering and selecting ---

void MethodPage::Enter() {
  if (!method_.buttonMode.isEmpty()) gstrButtonMode = method_.buttonMode;
  ConfigureGrdTable();
  LoadDataInGrid();
  SelectFirstRow();
  code_->setFocus();
}

void MethodPage::LoadGrid() {
  form_.Load("SELECT   * FROM " + Sql::Table(method_.table) + " ORDER BY " + method_.codeColumn,
             "***** SQL error on OSTANA." + method_.table + " (Select) *****");
  for (const MethodFlag& flag : method_.flags) {
    const int column = form_.ColumnOf(flag.column);
    for (int row = 1; row < grid_->Rows(); ++row)
      if (grid_->Text(row, column) != "Y") grid_->SetText(row, column, {});
  }
}

void MethodPage::SelectFirstRow() {
  if (!form_.SelectFirstRow([this] { SelChange(); })) form_.Clear();
}

void MethodPage::SelChange() {
  const int row = grid_->Row();
  if (gbSkipGridEvents || row == 0) return;
  form_.ShowRow(row);
  // A row that says otherwise does not unlock it.
  if (method_.mailIsAlwaysActive) LockMailActive();
}

int MethodPage::RowOf(const QString& code) const {
  return grid_->FindRow(code, form_.ColumnOf(method_.codeColumn));
}

// --- Add ---

bool MethodPage::Add() {
  return Procedure("frmTabulon.Delivery_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    form_.TrimAll();
    const QString code = code_->Text(), description = description_->Text();
    if (!EntryIsNew(code, description)) return false;
    Execute(InsertStatement(code, description), "***** SQL error on OSTANA." + method_.table + " (INSERT INTO) *****");
    LoadDataInGrid();
    grid_->SetRowQuietly(RowOf(code));
    Tell("Record Added", MessageStyle::Information);
    return true;
  });
}

bool MethodPage::EntryIsNew(const QString& code, const QString& description) {
  if (code.isEmpty()) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, code_);
  if (description.isEmpty()) return Refuse("Please enter a Valid Description.", MessageStyle::Warning, description_);
  const QString exists = "This record already exists";
  if (RowOf(code) > 0) return Refuse(exists, MessageStyle::Warning, code_);
  return grid_->FindRow(description, form_.ColumnOf(method_.codeColumn + "_DESC+")) == 0 ||
         Refuse(exists, MessageStyle::Warning, description_);
}

QString MethodPage::InsertStatement(const QString& code, const QString& description) const {
  const QString text = Sql::National(description);
  const Sql::LanguagePieces languages = Sql::LanguageColumns(method_.codeColumn + "_DESC_", text);
  QString columns = method_.codeColumn + ", " + method_.codeColumn + "_DESC" + languages.columns + ", " +
                    method_.codeColumn + "_ADDR";
  QString values = Sql::National(code) + ", " + text + languages.values + ", Null";
  for (size_t flag = 0; flag < pairs_.size(); ++flag) {
    columns += ", " + method_.flags[flag].column;
    // In all three tables alike, whatever their UPDATE writes.
    values += pairs_[flag]->IsSet(Yes) ? ", N'Y'" : ", NULL";
  }
  return "INSERT INTO " + Sql::Table(method_.table) + " (" + columns + ") VALUES (" + values + ")";
}

// --- Update and Clear ---

bool MethodPage::Update() {
  return Procedure("frmTabulon.Delivery_Update", this)
      .OnFailure([](const AdoError& error) {
        return error.Number() == AdoNumber::ConstraintBroken
                   ? QString("An error occurred while updating the record.  Please try again.")
                   : gstrErrorMessage;
      })
      .Answers([&] {
        // The code goes first: it may lock "Active", which is read for the statement. Unlike Add, an empty description
        // is taken and an unchanged record is written.
        form_.TrimAll();
        const QString code = code_->Text(), description = description_->Text();
        const int row = RowOf(code);
        if (row == 0 || ExecuteInTransaction(UpdateStatement(code, description),
                                             "***** SQL error on OSTANA." + method_.table + " (UPDATE) *****") == 0)
          return Refuse(Texts::NoSuchCode, MessageStyle::Stop, code_);
        form_.WriteRow(row);
        Tell("Record Updated", MessageStyle::Information);
        code_->setFocus();
        return true;
      });
}

QString MethodPage::UpdateStatement(const QString& code, const QString& description) const {
  QString set = method_.codeColumn + "_DESC" + gclsOF->LanguageSuffix() + " = " + Sql::NationalOr(description, "NULL");
  for (const size_t flag : method_.updateOrder)
    set +=
        ", " + method_.flags[flag].column + " = " + (pairs_[flag]->IsSet(Yes) ? method_.updateYes : method_.updateNo);
  return "UPDATE " + Sql::Table(method_.table) + " SET " + set + " WHERE " + method_.codeColumn + " = " +
         Sql::National(code);
}

bool MethodPage::Clear() {
  form_.Clear();
  grid_->SetRowQuietly(0);
  code_->setFocus();
  return true;
}
