#include "editors/ExceptionGroups.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/ExceptionCodes.h"
#include "editors/ExceptionLists.h"
#include "editors/ValidExceptions.h"
#include "platform/controls/FormLayout.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

const QString Table = "ID_ACCESS_EXCEPTION";
constexpr int UsualRows = 18;  // of the grid, heading included

}  // namespace

ExceptionGroups::ExceptionGroups(frmTabulon& shell, ExceptionCodes& codes, ValidExceptions& valid)
    : SubPage(shell), codes_(codes), valid_(valid) {
  BuildControls();
  form_.Shows({"EXCEPTION_CODE", "Exception", 3000}).Shows({"EXCEPTION_CODE_DESC+", "Description", 6000});
  connect(cmb8AccessGroup, &CodeComboBox::Click, this, &ExceptionGroups::cmb8AccessGroup_Click);
  connect(grd8dTable, &Grid::SelChange, this, &ExceptionGroups::grd8dTable_SelChange);
  connect(grd8dTable, &Grid::BeforeSort, this, [] { gbSkipGridEvents = true; });
  connect(grd8dTable, &Grid::AfterSort, this, [this] {
    Pad();
    gbSkipGridEvents = false;
  });
}

void ExceptionGroups::BuildControls() {
  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lbl8AccessGroup", "Access Group:", cmb8AccessGroup);
  rows.Add("lbl8dException", "Exception:", cmb8dException);
  grd8dTable->setAccessibleName("Exceptions of the access group");
  Form::Require({cmb8AccessGroup, cmb8dException});
  Form::Column(this, {fields, grd8dTable})->setStretch(1, 1);
}

// The menu entries keep what the rights give them: their operations tell themselves what is missing.
ButtonCondition ExceptionGroups::Condition() const {
  const bool chosen = !cmb8AccessGroup->Code().isEmpty();
  return {chosen, false, chosen, true};
}

// --- Lists and rows ---

void ExceptionGroups::PopulateAccessGroupCombo() {
  Procedure procedure("frmTabulon.PopulateAccessGroupCombo");
  procedure.Step([this] { ExceptionLists::FillRejectTypes({cmb8dException}); });
  procedure.Step([this] {
    const QString description = "ACCESS_GROUP_DESC" + gclsOF->LanguageSuffix();
    cmb8AccessGroup->Clear();
    cmb8AccessGroup->AddNone();
    ForEachRow("SELECT   * FROM " + Sql::Table("ID_ACCESS_GROUP") + " ORDER BY " + description,
               "***** SQL error on OSTANA.ID_ACCESS_GROUP (SELECT) *****", [&](Recordset& groups) {
                 cmb8AccessGroup->Add(Value(groups, description), Value(groups, "ACCESS_GROUP"));
               });
  });
  cmb8dException->SetIndex(0);
  cmb8AccessGroup->SetIndex(0);
}

void ExceptionGroups::PopulateGrid8dTable() {
  Procedure procedure("frmTabulon.PopulateGrid8dTable", this);
  procedure.Run([this] {
    grd8dTable->Clear();
    if (cmb8AccessGroup->Code().isEmpty()) return;
    FillGrid(*grd8dTable,
             "SELECT   * FROM " + Sql::Table(Table) + " WHERE ACCESS_GROUP = " + Sql::Plain(cmb8AccessGroup->Code()) +
                 " ORDER BY ACCESS_GROUP ",
             "***** SQL error on OSTANA.ID_ACCESS_EXCEPTION (Select) *****", [this](Recordset& rows) {
               const QString code = Value(rows, "Exception_CODE");
               return QStringList{code, codes_.DescriptionOf(code)};
             });
    Pad();
  });
}

void ExceptionGroups::Pad() {
  for (int row = grd8dTable->Rows() - 1; row > 0; --row)
    if (grd8dTable->Text(row, Code).isEmpty()) grd8dTable->RemoveRow(row);
  while (grd8dTable->Rows() < UsualRows) grd8dTable->AddRow({});
}

void ExceptionGroups::cmb8AccessGroup_Click() {
  Procedure procedure("frmTabulon.cmb8AccessGroup_Click", this);
  procedure.Run([this] {
    shell().buttonState();
    grd8dTable->Clear();
    ConfigureGrdTable();
    if (cmb8AccessGroup->Code().isEmpty()) return;
    cmb8dException->SetIndex(0);
    PopulateGrid8dTable();
    const bool hasRecords = grd8dTable->Rows() > 1 && !grd8dTable->Text(1, Code).isEmpty();
    if (grd8dTable->Row() == 0 && hasRecords) grd8dTable->SetRow(1);
  });
}

void ExceptionGroups::grd8dTable_SelChange() {
  const int row = grd8dTable->Row();
  if (gbSkipGridEvents || row == 0) return;
  const QString code = grd8dTable->Text(row, Code);
  if (code.isEmpty())
    cmb8dException->SetIndex(0);
  else if (!cmb8dException->SetCode(code))  // two codes may have one description: the code tells them apart
    cmb8dException->SetText(grd8dTable->Text(row, Description));
}

// --- Add, Delete, Clear ---

bool ExceptionGroups::Add() {
  return Procedure("frmTabulon.Exception_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    if (cmb8AccessGroup->Code().isEmpty())
      return Refuse("Please enter a Valid Access Group.", MessageStyle::Warning, cmb8AccessGroup);
    const QString code = cmb8dException->Code();
    if (code.isEmpty()) return Refuse("Please enter a Valid Exception.", MessageStyle::Warning, cmb8dException);
    if (grd8dTable->FindRow(code, Code) > 0) {
      Tell("This record already exists", MessageStyle::Warning);
      // Boxes of another sub-tab, and the focus goes there too; the sub-tab in front stays.
      codes_.EmptyAndFocusCode();
      return false;
    }
    ExecuteInTransaction("INSERT INTO " + Sql::Table(Table) + " (ACCESS_GROUP, EXCEPTION_CODE ) VALUES(" +
                             Sql::Plain(cmb8AccessGroup->Code()) + ", " + Sql::Plain(code) + ")",
                         "***** SQL error on OSTANA.ID_ACCESS_EXCEPTION (INSERT INTO) *****");
    PopulateGrid8dTable();
    grd8dTable->SetRow(grd8dTable->FindRow(code, Code));
    Tell("Record Added", MessageStyle::Information);
    return true;
  });
}

bool ExceptionGroups::Delete() {
  return Procedure("frmTabulon.Exception_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    const QString code = cmb8dException->Code();
    const bool none = code.isEmpty() || cmb8AccessGroup->Code().isEmpty();
    if (none || grd8dTable->FindRow(code, Code) == 0)
      return RefuseRow(none ? MessageStyle::Warning : MessageStyle::Stop);
    if (!Confirm(this, Texts::DeleteQuestion)) return false;
    // The failure line names another table; the log readers know it so.
    if (ExecuteInTransaction("DELETE FROM " + Sql::Table(Table) + " WHERE ACCESS_GROUP = " +
                                 Sql::Plain(cmb8AccessGroup->Code()) + " AND EXCEPTION_CODE = " + Sql::Plain(code),
                             "***** SQL error on OSTANA.ID_ACCESS_GROUP (DELETE) *****") == 0)
      return RefuseRow(MessageStyle::Stop);
    PopulateGrid8dTable();
    Tell("Record Deleted", MessageStyle::Information);
    return true;
  });
}

// The focus goes to the message of another sub-tab.
bool ExceptionGroups::RefuseRow(int style) {
  Tell(Texts::NoSuchRow, style);
  valid_.FocusMessage();
  return false;
}

bool ExceptionGroups::Clear() {
  cmb8dException->SetText("(NONE)");  // in capitals here
  grd8dTable->SetRowQuietly(0);
  return true;
}
