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
const QString Description = "EXCEPTION_CODE_DESC+";

}  // namespace

ExceptionCodes::ExceptionCodes(frmTabulon& shell) : SubPage(shell) {
  BuildControls();
  form_.Edits(txt8Code, {"EXCEPTION_CODE", "Code", 1000}, Trim::BothUpper)
      .EditsCode(cboExceptionType, {"EXCEPTION_TYPE", "Type", 1000})
      .Edits(txt8Description, {Description, "Description", 6000})
      .EditsNumber(txt8ServiceCharge, {"SERVICE_CHARGE", "Service Charge", 1500, false, GridForm::Watch::Touch});
  ConnectControls();
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
  form_.Shape();
  HideCharge();
}

void ExceptionCodes::LoadGrid() {
  form_.Load("SELECT   * FROM " + Sql::Table(Table) + " ORDER BY EXCEPTION_CODE ",
             "***** SQL error on OSTANA.ID_EXCEPTION_CODE (Select) *****");
  HideCharge();
}

void ExceptionCodes::HideCharge() {
  grd8Table->HideCol(form_.ColumnOf("SERVICE_CHARGE"), !gbUseWebService);
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
  if (!type.isEmpty()) cboExceptionType->Hold(type);
  LoadDataInGrid();
  grd8Table->SetRowQuietly(RowOf(txt8Code->Text()));
}

void ExceptionCodes::SelectFirstRow() {
  if (grd8Table->Rows() > 2) form_.SelectFirstRow([this] { grd8Table_SelChange(); });
}

void ExceptionCodes::grd8Table_SelChange() {
  const int row = grd8Table->Row();
  if (!gbSkipGridEvents && row > 0) form_.ShowRow(row);
}

int ExceptionCodes::RowOf(const QString& code) const {
  return grd8Table->FindRow(code, form_.ColumnOf("EXCEPTION_CODE"));
}

void ExceptionCodes::Carry(const ExceptionChoice& choice) {
  if (!choice.Made()) return;
  {
    const Record::Filling filling(record());
    txt8Code->SetText(choice.code);
    txt8Description->SetText(choice.description);
  }
  const int row = RowOf(choice.code);
  if (row == 0) return;
  grd8Table->SetRowQuietly(row);
  // Type and charge come along, so that an Update of what is on show keeps them.
  form_.ShowRow(row);
}

void ExceptionCodes::EmptyAndFocusCode() {
  EmptyTexts();
  txt8Code->setFocus();
}

// The type stays as it is.
void ExceptionCodes::EmptyTexts() {
  const Record::Filling filling(record());
  for (TextBox* box : {txt8Code, txt8Description, txt8ServiceCharge}) box->SetText({});
}

QString ExceptionCodes::CellOf(const QString& code, const QString& database) const {
  const int row = RowOf(code);
  return row > 0 ? form_.Cell(row, database) : QString();
}

QString ExceptionCodes::TypeOf(const QString& code) const {
  return CellOf(code, "EXCEPTION_TYPE");
}
QString ExceptionCodes::DescriptionOf(const QString& code) const {
  return CellOf(code, Description);
}

// --- Add ---

void ExceptionCodes::TrimEntry() {
  const Record::Filling filling(record());
  txt8Code->TrimUpperInPlace();
  txt8Description->TrimInPlace();
}

bool ExceptionCodes::Add() {
  return Procedure("frmTabulon.Exception_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    TrimEntry();
    const QString code = txt8Code->Text(), description = txt8Description->Text();
    if (!EntryIsValid(code, description)) return false;
    if (RowOf(code) > 0 || grd8Table->FindRow(description, form_.ColumnOf(Description)) > 0)
      return Refuse("This record already exists.\n\nBoth the Code and Description must be unique.", MessageStyle::Stop,
                    txt8Code);
    ExecuteInTransaction(InsertStatement(code, description),
                         "***** SQL error on OSTANA.ID_EXCEPTION_CODE (INSERT INTO) *****");
    LoadDataInGrid();
    grd8Table->SetRowQuietly(RowOf(code));
    Tell("Record Added", MessageStyle::Information);
    return true;
  });
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
  return Procedure("frmTabulon.Exception_Update", this).OnFailure(Texts::DatabaseError).Answers([&] {
    TrimEntry();
    const QString code = txt8Code->Text(), description = txt8Description->Text();
    if (!TypeIsChosen()) return false;
    // Add leaves this to the box's own validation.
    if (Numbers::Val(txt8ServiceCharge->Text()) > Numbers::Val(HighestCharge)) {
      Tell("Maximum Service Charge exceeded.", MessageStyle::Stop);
      txt8ServiceCharge->SelectAllAndFocus();
      return false;
    }
    const std::optional<int> row = RowToUpdate(code, description);
    if (!row) return false;
    if (*row > 0 && form_.EqualsRow(*row))
      return Refuse("Nothing has been changed", MessageStyle::Warning, txt8Description);
    if (*row == 0 || ExecuteInTransaction(UpdateStatement(code, description),
                                          "***** SQL error on OSTANA.ID_EXCEPTION_CODE (UPDATE) *****") == 0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt8Code);
    form_.WriteRow(*row);
    const QString charge = txt8ServiceCharge->Trimmed();
    grd8Table->SetText(*row, form_.ColumnOf("SERVICE_CHARGE"),
                       Numbers::IsBlank(charge) ? QString() : Numbers::Format(Numbers::Val(charge), "##0.00"));
    Tell("Record Updated", MessageStyle::Information);
    txt8Description->setFocus();
    return true;
  });
}

std::optional<int> ExceptionCodes::RowToUpdate(const QString& code, const QString& description) {
  // The scan stops at the row of the code: the same description further down is not seen.
  for (int row = 1; row < grd8Table->Rows(); ++row) {
    if (form_.Cell(row, "EXCEPTION_CODE") == code) return row;
    if (form_.Cell(row, Description) != description) continue;
    Refuse("This Description already exists in another record.\n\nThe Description must be unique.", MessageStyle::Stop,
           txt8Description);
    return std::nullopt;
  }
  return 0;
}

QString ExceptionCodes::UpdateStatement(const QString& code, const QString& description) const {
  return "UPDATE " + Sql::Table(Table) + " SET EXCEPTION_CODE_DESC" + gclsOF->LanguageSuffix() + " = " +
         Sql::PlainOr(description, "NULL") + ", EXCEPTION_TYPE = " + Sql::National(cboExceptionType->Code()) +
         ", SERVICE_CHARGE = " + Sql::NumberOr(txt8ServiceCharge->Text(), "NULL") +
         " WHERE EXCEPTION_CODE = " + Sql::National(code);
}

// --- Delete and Clear ---

bool ExceptionCodes::Delete() {
  return Procedure("frmTabulon.Exception_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    const QString code = txt8Code->Trimmed();
    if (code.isEmpty()) return Refuse("Please choose a record to be Deleted", MessageStyle::Warning, nullptr);
    if (RowOf(code) == 0) return Refuse(Texts::NoSuchRow, MessageStyle::Stop, nullptr);
    if (!Confirm(this, Texts::DeleteQuestion)) return false;
    if (ExecuteInTransaction("DELETE FROM " + Sql::Table(Table) + " WHERE EXCEPTION_CODE = " + Sql::Plain(code),
                             "***** SQL error on OSTANA.ID_EXCEPTION_CODE (DELETE) *****") == 0)
      return Refuse(Texts::NoSuchRow, MessageStyle::Stop, nullptr);
    LoadDataInGrid();
    shell().cmdClear_Click();
    Tell("Record Deleted", MessageStyle::Information);
    return true;
  });
}

bool ExceptionCodes::Clear() {
  EmptyTexts();
  grd8Table->SetRowQuietly(0);
  record().Gone();
  return true;
}
