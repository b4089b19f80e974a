#include "editors/Departments.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/LibrarySymbol.h"
#include "shell/GridTable.h"
#include "shell/Lists.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

Departments::Departments(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
  TellGrid();
  ConnectControls();
}

void Departments::BuildControls() {
  cmbShowDepartments->AddNone("All Libraries!");
  cmbShowDepartments->SetIndex(0);
  auto* const boxes = new QWidget(this);
  Form::Rows rows(boxes);
  rows.Add("lblShowDepartments", "Show Departments from:", cmbShowDepartments);
  rows.Add("lbl2LibrarySymbol", "Library Symbol:", txt2LibrarySymbol, cmd2FindLibrary);
  rows.Add("lbl2Department", "Department:", txt2Department);
  rows.Add("lbl2Description", "Description:", txt2Description);
  rows.Add("lbl2Address", "Address:", txt2Address);
  rows.Beside("lblNCIPDepartment", "NCIP Department:", txtNCIPDepartment);
  grd2Department->setAccessibleName("Departments");
  Form::Require({txt2LibrarySymbol, txt2Department, txt2Description});
  Form::Column(this, {boxes})->addWidget(grd2Department, 1);
}

void Departments::TellGrid() {
  form_.Edits(txt2LibrarySymbol, {"LIBRARY_SYMBOL", "Library", 1500})
      .Edits(txt2Department, {"DEPARTMENT", "Department", 1000})
      .Edits(txt2Description, {"DEPARTMENT_DESC+", "Description", 4000})
      .Edits(txt2Address, {"DEPARTMENT_ADDR", "Address", 2000})
      .Edits(txtNCIPDepartment, {"NCIP_DEPARTMENT", "NCIP Department"});
}

void Departments::ConnectControls() {
  connect(cmbShowDepartments, &CodeComboBox::Click, this, &Departments::cmbShowDepartments_Click);
  connect(cmd2FindLibrary, &QPushButton::clicked, this,
          [this] { LibrarySymbol::Find(*txt2LibrarySymbol, this, "frmTabulon.cmd2FindLibrary_Click"); });
  connect(grd2Department, &Grid::SelChange, this, &Departments::grd2Department_SelChange);
  KeepRowOnSort(grd2Department);
}

// --- Entering the tab and choosing a library ---

void Departments::Departments_Tab() {
  Procedure procedure("frmTabulon.Departments_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "F";
    SetDepartmentList();
    cmbShowDepartments->SetIndex(0);
    form_.Clear();
    ConfigureGrdTable();
    LoadDataInGrid();
    shell().EnableButtons(gstrButtonMode);
    SelectFirstRow();
  });
}

void Departments::SetDepartmentList() {
  Procedure procedure("frmTabulon.SetDepartmentList", this);
  procedure.Run([this] {
    const QString sql = QString("SELECT   DISTINCT LIBRARY_SYMBOL ") + "FROM " + Sql::Table("ID_LIBRARY") + " " +
                        "WHERE    LIBRARY_ID IN " + "(SELECT LIBRARY_ID FROM " + Sql::Table("ID_DEPARTMENT") + ") " +
                        "ORDER BY LIBRARY_SYMBOL";
    FillCombo(*cmbShowDepartments, "All libraries", sql, "***** SQL error on OSTANA.ID_LIBRARY (Select) *****", 0, 0);
  });
}

void Departments::cmbShowDepartments_Click() {
  Procedure procedure("frmTabulon.cmbShowDepartments_Click", this);
  procedure.Run([this] {
    ConfigureGrdTable();
    LoadDataInGrid();
    SelectFirstRow();
  });
}

void Departments::SelectFirstRow() {
  if (form_.SelectFirstRow([this] { grd2Department_SelChange(); })) txt2Department->setFocus();
}

void Departments::LoadGrid() {
  const QString one = cmbShowDepartments->IsEmptyOrNone()
                          ? QString()
                          : "AND      L.LIBRARY_SYMBOL = " + Sql::National(cmbShowDepartments->Code()) + " ";
  form_.Load("SELECT   D.DEPARTMENT, D.DEPARTMENT_DESC" + gclsOF->LanguageSuffix() +
                 ", D.DEPARTMENT_ADDR, D.NCIP_DEPARTMENT, L.LIBRARY_SYMBOL " + "FROM " + Sql::Table("ID_DEPARTMENT") +
                 " D, " + Sql::Table("ID_LIBRARY") + " L " + "WHERE    L.LIBRARY_ID = D.LIBRARY_ID " + one +
                 "ORDER BY L.LIBRARY_SYMBOL, D.DEPARTMENT",
             "***** SQL error on OSTANA.ID_DEPARTMENT (Select) *****");
}

void Departments::grd2Department_SelChange() {
  const int row = grd2Department->Row();
  if (!gbSkipGridEvents && row > 0) form_.ShowRow(row);
}

void Departments::FindDepartmentLibraryId() {
  glngDepartmentLibraryId_ = LibrarySymbol::IdOf(*txt2LibrarySymbol);
}

QString Departments::WhereLibrary() const {
  return "AND      LIBRARY_ID = " + Sql::Number(glngDepartmentLibraryId_);
}

QString Departments::DepartmentOfDescription(const QString& failureLine) const {
  return FirstValue(QString("SELECT   DEPARTMENT ") + "FROM " + Sql::Table("ID_DEPARTMENT") + " " +
                        "WHERE    DEPARTMENT_DESC" + gclsOF->LanguageSuffix() + " = " +
                        Sql::National(txt2Description->Text()) + " " + WhereLibrary(),
                    failureLine);
}

// --- Add ---

bool Departments::Departments_Add() {
  return Procedure("frmTabulon.Departments_Add", this)
      .OnFailure([](const AdoError& error) {
        return "An error occurred while trying to add a Department Code.\n\n" + error.Description();
      })
      .Answers([&] {
        if (!EntryIsComplete() || !IsNew()) return false;
        ExecuteInTransaction(InsertStatement(), "***** SQL error on OSTANA.ID_DEPARTMENT (INSERT INTO) *****");
        LoadDataInGrid();
        Tell("Record Added", MessageStyle::Information);
        return true;
      });
}

bool Departments::EntryIsComplete() {
  form_.TrimAll();
  {
    const Record::Filling trimming(record());
    txt2Department->TrimUpperInPlace();
  }
  if (txt2Department->Text().isEmpty())
    return Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt2Department);
  if (txt2Description->Text().isEmpty())
    return Refuse("Please enter a Valid Description.", MessageStyle::Warning, txt2Description);
  if (txt2LibrarySymbol->Text().isEmpty())
    return Refuse("Please select a Library Symbol.", MessageStyle::Warning, txt2LibrarySymbol);
  if (!gclsOF->FindLibraryId(txt2LibrarySymbol->Text(), glngDepartmentLibraryId_))
    return Refuse("Please enter a Valid Library Symbol.", MessageStyle::Warning, txt2LibrarySymbol);
  return true;
}

bool Departments::IsNew() {
  bool found = false;
  FirstValue(QString("SELECT   DEPARTMENT ") + "FROM " + Sql::Table("ID_DEPARTMENT") + " " +
                 "WHERE    DEPARTMENT = " + Sql::National(txt2Department->Text()) + " " + WhereLibrary(),
             "***** SQL error on ID_DEPARTMENT (Select 1) *****", &found);
  if (found) return Refuse("This Department Code already exists.", MessageStyle::Warning, txt2Department);
  return !RefuseDescriptionOf(DepartmentOfDescription("***** SQL error on ID_DEPARTMENT (Select 2) *****"));
}

// True when the description belongs to a department already and the user has been told.
bool Departments::RefuseDescriptionOf(const QString& department) {
  if (department.isEmpty()) return false;
  Refuse("The Description already exists for this\nLibrary Symbol in Department: " + department, MessageStyle::Warning,
         txt2Description);
  return true;
}

QString Departments::InsertStatement() const {
  const QString description = Sql::National(txt2Description->Text());
  const Sql::LanguagePieces languages = Sql::LanguageColumns("DEPARTMENT_DESC_", description);
  return "INSERT INTO " + Sql::Table("ID_DEPARTMENT") + " (DEPARTMENT, LIBRARY_ID, DEPARTMENT_DESC, " +
         "DEPARTMENT_ADDR, NCIP_DEPARTMENT" + languages.columns + ") " + "VALUES(" +
         Sql::National(txt2Department->Text()) + ", " + Sql::Number(glngDepartmentLibraryId_) + ", " + description +
         ", " + Sql::NationalOr(txt2Address->Text(), "Null") + ", " +
         Sql::NationalOr(txtNCIPDepartment->Text(), "Null") + languages.values + ")";
}

// --- Update ---

bool Departments::Departments_Update() {
  return Procedure("frmTabulon.Departments_Update", this).Answers([&] {
    const int row = grd2Department->Row();
    if (row == 0) return false;
    form_.TrimAll();
    if (!KeyIsThatOfRow(row)) return false;
    if (form_.EqualsRow(row)) return Refuse("Nothing has been changed.", MessageStyle::Warning, txt2Department);
    if (txt2Description->Text().isEmpty())
      return Refuse("Enter a Valid Description.", MessageStyle::Warning, txt2Description);
    FindDepartmentLibraryId();
    if (glngDepartmentLibraryId_ < 1)
      // The library has gone since the grid was loaded.
      return Refuse("Please enter a Valid Library Symbol.", MessageStyle::Warning, txt2LibrarySymbol);
    if (txt2Description->Text() != form_.Cell(row, "DEPARTMENT_DESC+") &&
        RefuseDescriptionOf(DepartmentOfDescription("***** SQL error on ID_DEPARTMENT (Select) *****")))
      return false;
    if (ExecuteInTransaction(UpdateStatement(), "***** SQL error on OSTANA.ID_DEPARTMENT (UPDATE) *****") == 0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt2Department);
    LoadDataInGrid();
    grd2Department->SetRowQuietly(
        grd2Department->FindRow({{form_.ColumnOf("LIBRARY_SYMBOL"), txt2LibrarySymbol->Text()},
                                 {form_.ColumnOf("DEPARTMENT"), txt2Department->Text()}}));
    Tell("Record Updated", MessageStyle::Information);
    return true;
  });
}

bool Departments::KeyIsThatOfRow(int row) {
  if (txt2Department->Text() == form_.Cell(row, "DEPARTMENT") &&
      txt2LibrarySymbol->Text() == form_.Cell(row, "LIBRARY_SYMBOL"))
    return true;
  Tell(
      "Only the Description, Address, and NCIP department may be updated.\n\n"
      "If you wish to change the Department or Library Symbol the record must be deleted and a new record added.",
      MessageStyle::Warning);
  form_.ShowRow(row);
  txt2Description->setFocus();
  return false;
}

QString Departments::UpdateStatement() const {
  return "UPDATE   " + Sql::Table("ID_DEPARTMENT") + " " + "SET      DEPARTMENT_DESC" + gclsOF->LanguageSuffix() +
         " = " + Sql::National(txt2Description->Text()) + ", " +
         "DEPARTMENT_ADDR = " + Sql::NationalOr(txt2Address->Text(), "Null") + ", " +
         "NCIP_DEPARTMENT = " + Sql::NationalOr(txtNCIPDepartment->Text(), "Null") + " " +
         "WHERE    DEPARTMENT = " + Sql::National(txt2Department->Text()) + " " + WhereLibrary();
}

// --- Delete and Clear ---

bool Departments::Departments_Delete() {
  return Procedure("frmTabulon.Departments_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    const QString department = txt2Department->Trimmed();
    if (department.isEmpty() || txt2LibrarySymbol->Trimmed().isEmpty())
      return Refuse("Choose a record to be Deleted", MessageStyle::Stop, txt2Department);
    if (grd2Department->FindRow(department, form_.ColumnOf("DEPARTMENT")) == 0)
      return Refuse(Texts::NoSuchRow, MessageStyle::Stop, txt2Department);
    if (!Confirm(this, Texts::DeleteQuestion)) return false;
    FindDepartmentLibraryId();
    const qint64 deleted =
        ExecuteInTransaction(QString("DELETE ") + "FROM " + Sql::Table("ID_DEPARTMENT") + " " +
                                 "WHERE    DEPARTMENT = " + Sql::Plain(department) + " " + WhereLibrary(),
                             "***** SQL error on OSTANA.ID_DEPARTMENT (DELETE) *****");
    if (deleted == 0) return Refuse(Texts::NothingDeleted, MessageStyle::Warning, txt2Department);
    LoadDataInGrid();
    form_.Clear();
    SelectFirstRow();
    Tell("Record Deleted", MessageStyle::Information);
    return true;
  });
}

bool Departments::Departments_Clear() {
  grd2Department->SetRowQuietly(0);
  form_.Clear();
  return true;
}
