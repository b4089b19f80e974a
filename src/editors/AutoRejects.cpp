#include "editors/AutoRejects.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/files/IniFile.h"
#include "shell/Editing.h"
#include "shell/GridTable.h"
#include "shell/Lists.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

const QString SettingsName = "Ostana.INI";
constexpr quint32 FileNotFound = 53;  // run-time error number
constexpr double MostTables = 1000;   // a site that asks for more has made a typing error

// The fields that lists are known for.
struct RejectField {
  const char* name;
  const char* caption;
  const char* table;
};
constexpr RejectField KnownFields[] = {{"CALL_NUMBER", "Call Number", "ID_REJ_CALL_NUMBER"},
                                       {"LIBRARY_SYMBOL", "Library Symbol", "ID_REJ_LIB_SYMBOL"}};

}  // namespace

AutoRejects::AutoRejects(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
  ConnectControls();
}

void AutoRejects::BuildControls() {
  auto* const boxes = new QWidget(this);
  Form::Rows rows(boxes);
  rows.Add("lbl4Tables", "Code Table:", cmb4Tables);
  rows.Add("lbl4Code", "Code:", txt4Code);
  rows.Add("lbl4RejectType", "Reject Type:", cmb4RejectType);
  grd4AutoReject->setAccessibleName("Rows of the reject list");
  Form::Require({txt4Code, cmb4RejectType});
  Form::Column(this, {boxes})->addWidget(grd4AutoReject, 1);
  for (CodeComboBox* list : {cmb4Tables, cmb4RejectType}) {
    list->AddNone("(none)");
    list->SetIndex(0);
  }
}

void AutoRejects::ConnectControls() {
  // The columns are named by the list: the load reads their names off its recordset.
  form_.Edits(txt4Code, {"", "Reject Field", 2500}, Trim::BothUpper)
      .Shows({"", "Reject Type", 6000})
      .Shows({"", "", 0, true});
  connect(cmb4Tables, &CodeComboBox::Click, this, &AutoRejects::cmb4Tables_Click);
  connect(cmb4RejectType, &CodeComboBox::Click, this, &AutoRejects::cmb4RejectType_Click);
  connect(grd4AutoReject, &Grid::SelChange, this, &AutoRejects::grd4AutoReject_SelChange);
  KeepRowOnSort(grd4AutoReject);
}

ButtonCondition AutoRejects::Condition() const {
  const bool chosen = TableSelected();
  return {chosen, chosen, chosen};
}

// --- Entering the tab ---

void AutoRejects::AutoRejects_Tab() {
  Procedure procedure("frmTabulon.AutoRejects_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "F";
    shell().EnableButtons(gstrButtonMode);
    cmb4Tables->SetIndex(0);
    AutoRejects_Clear();
    ConfigureGrdTable();
    shell().buttonState();
    FillTables();
    FillRejectTypes();
  });
  cmb4Tables->setFocus();
}

void AutoRejects::FillTables() {
  const QString file = Files::FindIgnoringCase(QDir::currentPath(), SettingsName);
  if (!QFileInfo::exists(file)) {
    gstrErrorMessage = "The settings file " + SettingsName + " was not found in the current directory.";
    throw AdoError(FileNotFound, "File not found", "Tabulon");
  }
  const double number = Numbers::Val(gclsOF->ReadProfileString("Tables", "NumberOfRejectTables", file));
  cmb4Tables->Clear();
  cmb4Tables->AddNone("(none)");
  gstrRejectFields = QStringList{QString()};
  for (int table = 1; table <= std::min(number, MostTables); ++table) {
    const QString field = gclsOF->ReadProfileString("Tables", "AutoRejectField" + QString::number(table), file);
    for (const RejectField& known : KnownFields) {
      if (field != QLatin1String(known.name)) continue;
      cmb4Tables->Add(known.caption, known.table);
      gstrRejectFields.append(field);
    }
  }
  cmb4Tables->SetIndex(0);
}

void AutoRejects::FillRejectTypes() {
  const QString description = "EXCEPTION_CODE_DESC" + gclsOF->LanguageSuffix();
  FillCombo(*cmb4RejectType, "(none)",
            "SELECT   EXCEPTION_CODE, " + description + " FROM " + Sql::Table("ID_EXCEPTION_CODE") + " " +
                "WHERE    EXCEPTION_TYPE IN (N'B', N'L', N'R')" + " ORDER BY EXCEPTION_CODE",
            "***** SQL error on OSTANA.ID_EXCEPTION_CODE (SELECT) *****", 1, 0);
  cmb4RejectType->SetIndex(0);
}

// --- Choosing a table and a row ---

void AutoRejects::cmb4Tables_Click() {
  Procedure procedure("frmTabulon.cmb4Tables_Click", this);
  procedure.Run([this] {
    shell().buttonState();
    ConfigureGrdTable();
    LoadDataInGrid();
    if (grd4AutoReject->Row() == 0 && TableSelected() && grd4AutoReject->Rows() > 1) {
      grd4AutoReject->SetRowQuietly(1);
      gbSkipGridEvents = false;
      grd4AutoReject_SelChange();
      txt4Code->setFocus();
    } else {
      form_.Clear();
      cmb4RejectType->SetText("(NONE)");
    }
  });
}

void AutoRejects::LoadGrid() {
  if (!TableSelected()) return;
  const QString description = "EXCEPTION_CODE_DESC" + gclsOF->LanguageSuffix();
  const QString field = gstrRejectFields.value(cmb4Tables->Index());
  grd4AutoReject->Clear();
  OpenRows(*grsTable,
           "SELECT   TB." + field + ", RT." + description + ", TB.EXCEPTION_CODE " + "FROM " +
               Sql::Table("ID_EXCEPTION_CODE") + " RT, " + Sql::Table(TableName()) + " TB " +
               "WHERE    RT.EXCEPTION_CODE = TB.EXCEPTION_CODE " + "ORDER BY TB." + field,
           "***** SQL error on OSTANA.ID_REJECT_TYPE OR " + TableName() + " (Select) *****");
  gstrField = grsTable->Fields(0).Name();
  gstrExcCode = grsTable->Fields(2).Name();
  FillGridFrom(*grd4AutoReject, *grsTable, {gstrField, description, gstrExcCode});
  grsTable->Close();
}

void AutoRejects::grd4AutoReject_SelChange() {
  const int row = grd4AutoReject->Row();
  if (gbSkipGridEvents || row == 0) return;
  form_.ShowRow(row);
  // An exception that rejects no more is in no list; it is shown and kept all the same.
  cmb4RejectType->Hold(grd4AutoReject->Text(row, ExceptionCode), grd4AutoReject->Text(row, RejectType));
}

void AutoRejects::cmb4RejectType_Click() {
  gstrErrorMessage.clear();
  const int row = grd4AutoReject->Row();
  record().Compared(row == 0 || !RejectTypeIsThatOf(row));
}

bool AutoRejects::RejectTypeIsThatOf(int row) const {
  return cmb4RejectType->Code() == grd4AutoReject->Text(row, ExceptionCode);
}

QString AutoRejects::FailureLine(const QString& verb) const {
  return "***** SQL error on OSTANA." + TableName() + " (" + verb + ") *****";
}

// --- Add ---

bool AutoRejects::AutoRejects_Add() {
  return Procedure("frmTabulon.AutoRejects_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    if (txt4Code->Trimmed().isEmpty()) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt4Code);
    if (cmb4RejectType->Code().isEmpty())
      return Refuse("Please choose a Reject Type", MessageStyle::Warning, cmb4RejectType);
    // The code is compared as it was typed; what only differs in letter case is left to the database.
    if (grd4AutoReject->FindRow(txt4Code->Text(), ListedValue) > 0) {
      Tell("This record already exists", MessageStyle::Warning);
      EmptyEntry();
      return false;
    }
    form_.TrimAll();
    const QString code = txt4Code->Text();
    ExecuteInTransaction("INSERT INTO " + Sql::Table(TableName()) + " VALUES(" + Sql::Plain(code) + ", " +
                             Sql::Plain(cmb4RejectType->Code()) + ")",
                         FailureLine("INSERT INTO"));
    LoadDataInGrid();
    grd4AutoReject->SetRowQuietly(grd4AutoReject->FindRow(code, ListedValue));
    Tell("Record Added", MessageStyle::Information);
    return true;
  });
}

void AutoRejects::EmptyEntry() {
  form_.Clear();
  cmb4RejectType->SetIndex(0);
  txt4Code->setFocus();
}

// --- Update ---

bool AutoRejects::AutoRejects_Update() {
  return Procedure("frmTabulon.AutoRejects_Update", this).Answers([&] {
    form_.TrimAll();
    const QString code = txt4Code->Text();
    const int row = grd4AutoReject->Row();
    if (!IsUpdate(row)) return false;
    const QString sql = "UPDATE  " + Sql::Table(TableName()) + " SET " + gstrField + " = " + Sql::Plain(code) + ", " +
                        gstrExcCode + " = " + Sql::Plain(cmb4RejectType->Code()) + " where " + gstrField + " = " +
                        Sql::Plain(grd4AutoReject->Text(row, ListedValue)) + " and " + gstrExcCode + " = " +
                        Sql::Plain(grd4AutoReject->Text(row, ExceptionCode));
    if (ExecuteInTransaction(sql, FailureLine("UPDATE")) == 0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt4Code);
    LoadDataInGrid();
    grd4AutoReject->SetRowQuietly(grd4AutoReject->FindRow(code, ListedValue));
    Tell("Record Updated", MessageStyle::Information);
    return true;
  });
}

bool AutoRejects::IsUpdate(int row) {
  if (row == 0 || txt4Code->Text().isEmpty()) return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt4Code);
  if (txt4Code->Text() == grd4AutoReject->Text(row, ListedValue) && RejectTypeIsThatOf(row))
    return Refuse("Nothing has been changed", MessageStyle::Warning, txt4Code);
  if (IsInAnotherRow(row)) return Refuse("This record already exists.", MessageStyle::Warning, txt4Code);
  if (cmb4RejectType->IndexOfCode(grd4AutoReject->Text(row, ExceptionCode)) < 0)
    return Refuse("This record does not exists.", MessageStyle::Warning, txt4Code);
  // A row that rejects with nothing would show in no list.
  if (cmb4RejectType->Code().isEmpty())
    return Refuse("Please choose a Reject Type", MessageStyle::Warning, cmb4RejectType);
  return true;
}

bool AutoRejects::IsInAnotherRow(int row) const {
  const std::vector<std::pair<int, QString>> entry = {{ListedValue, txt4Code->Text()},
                                                      {ExceptionCode, cmb4RejectType->Code()}};
  int found = grd4AutoReject->FindRow(entry);
  if (found == row) found = grd4AutoReject->FindRow(entry, row + 1);
  return found > 0;
}

// --- Delete and Clear ---

bool AutoRejects::AutoRejects_Delete() {
  return Procedure("frmTabulon.AutoRejects_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    const QString code = txt4Code->Trimmed();
    if (code.isEmpty()) return Refuse("Please choose a record to be Deleted", MessageStyle::Warning, txt4Code);
    if (grd4AutoReject->FindRow(code, ListedValue) == 0) return Refuse(Texts::NoSuchRow, MessageStyle::Stop, txt4Code);
    if (!Confirm(this, Texts::DeleteQuestion)) {
      txt4Code->setFocus();
      return false;
    }
    if (ExecuteInTransaction(
            "DELETE FROM " + Sql::Table(TableName()) + " WHERE " + gstrField + " = " + Sql::Plain(code),
            FailureLine("DELETE")) == 0)
      return Refuse(Texts::NoSuchRow, MessageStyle::Stop, txt4Code);
    LoadDataInGrid();
    AutoRejects_Clear();
    Tell("Record Deleted", MessageStyle::Information);
    return true;
  });
}

bool AutoRejects::AutoRejects_Clear() {
  grd4AutoReject->SetRowQuietly(0);
  EmptyEntry();
  return true;
}
