#include "editors/ExceptionCodes.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "core/WebServiceSettings.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

const QString HighestCharge = "999.99";
const QString Table = "ID_EXCEPTION_CODE";

}  // namespace

ExceptionCodes::ExceptionCodes(frmTabulon& shell) : SubPage(shell) {
  BuildControls();
  ConnectControls();
  fields_.Add(txt8Code, Code, Trim::BothUpper)
      .AddCode(cboExceptionType, Type)
      .Add(txt8Description, Description)
      .Add(txt8ServiceCharge, ServiceCharge);
}

void ExceptionCodes::BuildControls() {
  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lbl8Code", "C&ode:", txt8Code);
  rows.Add("lbl8Description", "D&escription:", txt8Description);
  rows.Add("lblExceptionType", "Exception &Type:", cboExceptionType);
  rows.Add(lbl8ServiceCharge, txt8ServiceCharge);
  grd8Table->setAccessibleName("Exception codes");
  Form::Require({txt8Code, txt8Description, cboExceptionType});
  Form::Column(this, {fields, grd8Table})->setStretch(1, 1);
}

void ExceptionCodes::ConnectControls() {
  connect(grd8Table, &Grid::SelChange, this, &ExceptionCodes::grd8Table_SelChange);
  KeepRowOnSort(grd8Table);
  WatchField(record(), txt8Code, grd8Table, Code);
  WatchField(record(), txt8Description, grd8Table, Description);
  WatchAnyChange(record(), txt8ServiceCharge);
  connect(cboExceptionType, &CodeComboBox::Click, this,
          [this] { CompareWithRow(record(), cboExceptionType->Code(), grd8Table, Type); });
  // Zero is a charge; less than nothing is none.
  MakeNumeric(*txt8ServiceCharge, lbl8ServiceCharge, HighestCharge, "#####0.00", true, true);
}

// --- Entering and selecting ---

void ExceptionCodes::ShowServiceCharge() {
  if (gbUseWebService) return;
  lbl8ServiceCharge->hide();
  txt8ServiceCharge->hide();
  txt8ServiceCharge->setEnabled(false);
}

void ExceptionCodes::ConfigureGrid() {
  TabPage::ConfigureGrid();
  grd8Table->HideCol(ServiceCharge, !gbUseWebService);
}

void ExceptionCodes::LoadGrid() {
  TabPage::LoadGrid();
  grd8Table->HideCol(ServiceCharge, !gbUseWebService);
}

void ExceptionCodes::PopulateExceptionType() {
  Procedure procedure("frmTabulon.PopulateExceptionType");
  procedure.Step([this] {
    const QString description = "EXCEPTION_TYPE_DESC" + gclsOF->LanguageSuffix();
    cboExceptionType->Clear();
    cboExceptionType->AddNone("(None)");
    ForEachRow("SELECT   * FROM " + Sql::Table("ID_EXCEPTION_TYPE"),
               "***** SQL error on OSTANA.ID_EXCEPTION_TYPE (Select) *****", [&](Recordset& types) {
                 cboExceptionType->Add(Value(types, description), Value(types, "EXCEPTION_TYPE"));
               });
  });
  cboExceptionType->SetIndex(0);
}

void ExceptionCodes::Return() {
  ConfigureGrdTable();
  const QString type = cboExceptionType->Code();
  PopulateExceptionType();
  ShowType(type);
  LoadDataInGrid();
  grd8Table->SetRowQuietly(grd8Table->FindRow(txt8Code->Text(), Code));
}

void ExceptionCodes::SelectFirstRow() {
  if (grd8Table->Rows() < 3) return;
  grd8Table->SetRowQuietly(1);
  grd8Table_SelChange();
}

void ExceptionCodes::grd8Table_SelChange() {
  const int row = grd8Table->Row();
  if (gbSkipGridEvents || row == 0) return;
  fields_.FillFromRow(*grd8Table, row);
  record().Settled();
}

void ExceptionCodes::ShowType(const QString& type) {
  if (type.isEmpty() || !cboExceptionType->SetCode(type)) cboExceptionType->SetIndex(0);
}

void ExceptionCodes::Carry(const ExceptionChoice& choice) {
  if (!choice.Made()) return;
  const FillingFields filling;
  txt8Code->SetText(choice.code);
  txt8Description->SetText(choice.description);
  const int row = grd8Table->FindRow(choice.code, Code);
  if (row == 0) return;
  grd8Table->SetRowQuietly(row);
  ShowType(grd8Table->Text(row, Type));
  // The charge comes along, so that an Update of what is on show keeps it.
  txt8ServiceCharge->SetText(grd8Table->Text(row, ServiceCharge));
}

void ExceptionCodes::EmptyAndFocusCode() {
  const FillingFields filling;
  txt8Code->SetText({});
  txt8Description->SetText({});
  txt8ServiceCharge->SetText({});
  txt8Code->setFocus();
}

QString ExceptionCodes::CellOf(const QString& code, int column) const {
  const int row = grd8Table->FindRow(code, Code);
  return row > 0 ? grd8Table->Text(row, column) : QString();
}

QString ExceptionCodes::TypeOf(const QString& code) const {
  return CellOf(code, Type);
}
QString ExceptionCodes::DescriptionOf(const QString& code) const {
  return CellOf(code, Description);
}

// --- Add ---

bool ExceptionCodes::Add() {
  bool done = false;
  Procedure procedure("frmTabulon.Exception_Add", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    const QString code = txt8Code->TrimUpperInPlace();
    const QString description = txt8Description->TrimInPlace();
    if (!EntryIsValid(code, description)) return;
    if (grd8Table->FindRow(code, Code) > 0 || grd8Table->FindRow(description, Description) > 0) {
      Refuse("This record already exists.\n\nBoth the Code and Description must be unique.", MessageStyle::Stop,
             txt8Code);
      return;
    }
    ExecuteInTransaction(InsertStatement(code, description),
                         "***** SQL error on OSTANA.ID_EXCEPTION_CODE (INSERT INTO) *****");
    LoadDataInGrid();
    grd8Table->SetRowQuietly(grd8Table->FindRow(code, Code));
    Tell("Record Added", MessageStyle::Information);
    done = true;
  });
  return done;
}

bool ExceptionCodes::EntryIsValid(const QString& code, const QString& description) {
  if (code.isEmpty()) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt8Code);
  if (description.isEmpty()) return Refuse("Please enter a Valid Description.", MessageStyle::Warning, txt8Description);
  if (!TypeIsChosen()) return false;
  // A code must not be a number; told only now, in the words of an empty one.
  return !Numbers::IsNumeric(code) || Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt8Code);
}

bool ExceptionCodes::TypeIsChosen() {
  return !cboExceptionType->IsEmptyOrNone() ||
         Refuse("Please select a Valid Exception Type.", MessageStyle::Warning, cboExceptionType);
}

QString ExceptionCodes::InsertStatement(const QString& code, const QString& description) const {
  // N'...' here, '...' in Update.
  const QString text = Sql::NationalOr(description, "NULL");
  const Sql::LanguagePieces languages = Sql::LanguageColumns("EXCEPTION_CODE_DESC_", text);
  return "INSERT INTO " + Sql::Table(Table) + " (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE, SERVICE_CHARGE" +
         languages.columns + ") VALUES(" + Sql::National(code) + ", " + text + ", " +
         Sql::National(cboExceptionType->Code()) + ", " + Sql::NumberOr(txt8ServiceCharge->Text(), "NULL") +
         languages.values + ")";
}

// --- Update ---

bool ExceptionCodes::Update() {
  bool done = false;
  Procedure procedure("frmTabulon.Exception_Update", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    const QString code = txt8Code->TrimUpperInPlace();
    const QString description = txt8Description->TrimInPlace();
    if (!TypeIsChosen()) return;
    // Add leaves this to the box's own validation.
    if (Numbers::Val(txt8ServiceCharge->Text()) > Numbers::Val(HighestCharge)) {
      Tell("Maximum Service Charge exceeded.", MessageStyle::Stop);
      txt8ServiceCharge->SelectAllAndFocus();
      return;
    }
    const std::optional<int> row = RowToUpdate(code, description);
    if (!row) return;
    if (*row > 0 && IsUnchanged(*row)) {
      Refuse("Nothing has been changed", MessageStyle::Warning, txt8Description);
      return;
    }
    if (*row == 0) {
      Refuse("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop,
             txt8Code);
      return;
    }
    ExecuteInTransaction(UpdateStatement(code, description),
                         "***** SQL error on OSTANA.ID_EXCEPTION_CODE (UPDATE) *****");
    WriteBack(*row);
    Tell("Record Updated", MessageStyle::Information);
    txt8Description->setFocus();
    done = true;
  });
  return done;
}

std::optional<int> ExceptionCodes::RowToUpdate(const QString& code, const QString& description) {
  // The scan stops at the row of the code: the same description further down is not seen.
  for (int row = 1; row < grd8Table->Rows(); ++row) {
    if (grd8Table->Text(row, Code) == code) return row;
    if (grd8Table->Text(row, Description) != description) continue;
    Refuse("This Description already exists in another record.\n\nThe Description must be unique.", MessageStyle::Stop,
           txt8Description);
    return std::nullopt;
  }
  return 0;
}

bool ExceptionCodes::IsUnchanged(int row) const {
  return txt8Description->Text() == grd8Table->Text(row, Description) &&
         cboExceptionType->Code() == grd8Table->Text(row, Type) &&
         Numbers::Same(txt8ServiceCharge->Text(), grd8Table->Text(row, ServiceCharge));
}

QString ExceptionCodes::UpdateStatement(const QString& code, const QString& description) const {
  return "UPDATE " + Sql::Table(Table) + " SET EXCEPTION_CODE_DESC" + gclsOF->LanguageSuffix() + " = " +
         Sql::PlainOr(description, "NULL") + ", EXCEPTION_TYPE = " + Sql::National(cboExceptionType->Code()) +
         ", SERVICE_CHARGE = " + Sql::NumberOr(txt8ServiceCharge->Text(), "NULL") +
         " WHERE EXCEPTION_CODE = " + Sql::National(code);
}

void ExceptionCodes::WriteBack(int row) {
  const QString charge = txt8ServiceCharge->Trimmed();
  grd8Table->SetText(row, Description, txt8Description->Text());
  grd8Table->SetText(row, Type, cboExceptionType->Code());
  grd8Table->SetText(row, ServiceCharge,
                     charge.isEmpty() ? QString() : Numbers::Format(Numbers::Val(charge), "##0.00"));
}

// --- Delete and Clear ---

bool ExceptionCodes::Delete() {
  bool done = false;
  Procedure procedure("frmTabulon.Exception_Delete", this);
  procedure.OnFailure(DeleteFailureText).Run([&] {
    const QString code = txt8Code->Trimmed();
    if (code.isEmpty()) {
      Tell("Please choose a record to be Deleted", MessageStyle::Warning);
      return;
    }
    if (grd8Table->FindRow(code, Code) == 0) {
      Tell("Please select a valid record from the table.", MessageStyle::Stop);
      return;
    }
    if (Tell(Texts::DeleteQuestion, MessageStyle::Question) != MessageAnswer::Yes) return;
    ExecuteInTransaction("DELETE FROM " + Sql::Table(Table) + " WHERE EXCEPTION_CODE = " + Sql::Plain(code),
                         "***** SQL error on OSTANA.ID_EXCEPTION_CODE (DELETE) *****");
    LoadDataInGrid();
    shell().cmdClear_Click();
    Tell("Record Deleted", MessageStyle::Information);
    done = true;
  });
  return done;
}

bool ExceptionCodes::Clear() {
  // The type stays as it is.
  const FillingFields filling;
  txt8Code->SetText({});
  txt8Description->SetText({});
  txt8ServiceCharge->SetText({});
  grd8Table->SetRowQuietly(0);
  return true;
}
