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
      grid_(new Grid(this, method.grid, FirstFlag + static_cast<int>(method.flags.size()))) {
  BuildControls();
  ConnectControls();
  fields_.Add(code_, Code, Trim::BothUpper).Add(description_, Description);
  for (size_t flag = 0; flag < pairs_.size(); ++flag) fields_.Add(pairs_[flag], ColumnOf(flag));
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
  WatchField(record(), code_, grid_, Code);
  WatchField(record(), description_, grid_, Description);
  for (size_t flag = 0; flag < pairs_.size(); ++flag)
    connect(pairs_[flag], &OptionGroup::Click, this, [this, flag](int element) { FlagClicked(flag, element); });
  connect(grid_, &Grid::SelChange, this, &MethodPage::SelChange);
  KeepRowOnSort(grid_);
}

void MethodPage::LockMailActive() {
  OptionGroup* const active = pairs_.front();
  const bool mail = code_->Text() == Mail;
  if (mail) active->Select(Yes);
  active->SetEnabled(!mail);
}

void MethodPage::FlagClicked(size_t flag, int element) {
  gstrErrorMessage.clear();
  const QString cell = grid_->Row() > 0 ? grid_->Text(grid_->Row(), ColumnOf(flag)) : QString();
  // A "Y" that is switched to No does not count, an empty cell left on No does.
  record().Compared((element == Yes && cell.isEmpty()) || (element == No && cell != "Y"));
}

// --- Entering and selecting ---

QString MethodPage::GridKey() const {
  return method_.gridKey;
}

void MethodPage::Enter() {
  if (!method_.buttonMode.isEmpty()) gstrButtonMode = method_.buttonMode;
  ConfigureGrdTable();
  LoadDataInGrid();
  SelectFirstRow();
  code_->setFocus();
}

void MethodPage::LoadGrid() {
  TabPage::LoadGrid();
  for (int row = 1; row < grid_->Rows(); ++row)
    for (size_t flag = 0; flag < pairs_.size(); ++flag)
      if (grid_->Text(row, ColumnOf(flag)) != "Y") grid_->SetText(row, ColumnOf(flag), {});
}

void MethodPage::SelectFirstRow() {
  if (grid_->Rows() < 2) return fields_.Clear();
  grid_->SetRowQuietly(1);
  gbSkipGridEvents = false;
  SelChange();
}

void MethodPage::SelChange() {
  const int row = grid_->Row();
  if (gbSkipGridEvents || row == 0) return;
  fields_.FillFromRow(*grid_, row);
  // A row that says otherwise does not unlock it.
  if (method_.mailIsAlwaysActive) LockMailActive();
  record().Settled();
}

void MethodPage::TrimEntry() {
  const FillingFields filling;  // a record that was changed stays so whatever is trimmed
  fields_.TrimAll();
}

// --- Add ---

bool MethodPage::Add() {
  bool done = false;
  Procedure procedure("frmTabulon.Delivery_Add", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    TrimEntry();
    const QString code = code_->Text(), description = description_->Text();
    if (!EntryIsNew(code, description)) return;
    Execute(InsertStatement(code, description), "***** SQL error on OSTANA." + method_.table + " (INSERT INTO) *****");
    LoadDataInGrid();
    grid_->SetRowQuietly(grid_->FindRow(code, Code));
    Tell("Record Added", MessageStyle::Information);
    done = true;
  });
  return done;
}

bool MethodPage::EntryIsNew(const QString& code, const QString& description) {
  if (code.isEmpty()) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, code_);
  if (description.isEmpty()) return Refuse("Please enter a Valid Description.", MessageStyle::Warning, description_);
  const QString exists = "This record already exists";
  if (grid_->FindRow(code, Code) > 0) return Refuse(exists, MessageStyle::Warning, code_);
  return grid_->FindRow(description, Description) == 0 || Refuse(exists, MessageStyle::Warning, description_);
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
  bool done = false;
  Procedure procedure("frmTabulon.Delivery_Update", this);
  procedure
      .OnFailure([](const AdoError& error) {
        return error.Number() == AdoNumber::ConstraintBroken
                   ? QString("An error occurred while updating the record.  Please try again.")
                   : gstrErrorMessage;
      })
      .Run([&] {
        // The code goes first: it may lock "Active", which is read for the statement. Unlike Add, an empty description
        // is taken and an unchanged record is written.
        TrimEntry();
        const QString code = code_->Text(), description = description_->Text();
        const int row = grid_->FindRow(code, Code);
        if (row == 0) {
          Refuse("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop,
                 code_);
          return;
        }
        ExecuteInTransaction(UpdateStatement(code, description),
                             "***** SQL error on OSTANA." + method_.table + " (UPDATE) *****");
        fields_.WriteRow(*grid_, row);
        Tell("Record Updated", MessageStyle::Information);
        code_->setFocus();
        done = true;
      });
  return done;
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
  fields_.Clear();
  grid_->SetRowQuietly(0);
  code_->setFocus();
  return true;
}
