#include "editors/PickupLocations.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/FindLibrary.h"
#include "shell/Lists.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

const QString Table = "ID_PICKUP_LOCATION";

enum class Refusal { Duplicate, InUse, Constraint, Other };

// A constraint's number comes with the first two as well, so the words are asked before it.
Refusal RefusalOf(const AdoError& error) {
  if (error.Description().contains("duplicate")) return Refusal::Duplicate;
  if (error.Description().contains("REFERENCE")) return Refusal::InUse;
  return error.Number() == AdoNumber::ConstraintBroken ? Refusal::Constraint : Refusal::Other;
}

QString UpdateFailureText(const AdoError& error) {
  switch (RefusalOf(error)) {
    case Refusal::Duplicate:
      return "The Pickup Location Code or Description already exisit for this library.";
    case Refusal::InUse:
      return "The Pickup Location Code is attached to a patron record for this library and can't be changed.";
    case Refusal::Constraint:
      return "An error occurred while updating the record.  Please try again.";
    case Refusal::Other:
      break;
  }
  return gstrErrorMessage;
}

// More words than other screens have for a record in use.
QString LocationDeleteFailureText(const AdoError& error) {
  return Texts::DeleteFailed + "\n\n" +
         (error.RefusedByReference()
              ? QString("The Code is referenced by another table in the database and may not be deleted.")
              : Texts::Persists);
}

}  // namespace

PickupLocations::PickupLocations(frmTabulon& shell) : SubPage(shell) {
  BuildControls();
  form_.Edits(txt5dLibrarySymbol, {"LIBRARY_SYMBOL", "Library Symbol", 1800})
      .Edits(txt5dCode, {"PICKUP_LOCATION", "Code", 700}, Trim::BothUpper)
      .Edits(txt5dILSCode, {"PICKUP_LOCATION_ILS", "ILS Code", 1800})
      .Edits(txt5dDeliverySystemCode, {"DELIVERY_SYSTEM_CODE", "Delivery Code", 1500})
      .Edits(txt5dDescription, {"PICKUP_LOCATION_DESC+", "Description", 4000});
  ConnectControls();
}

void PickupLocations::BuildControls() {
  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lbl5dCode", "C&ode:", txt5dCode);
  rows.Add("lbl5dDescription", "D&escription:", txt5dDescription);
  rows.Add("lbl5dLibrarySymbol", "Librar&y Symbol:", txt5dLibrarySymbol, cmd5dFindLibrary);
  rows.Add("lbl5dILSCode", "ILS Code:", txt5dILSCode);
  rows.Add("lbl5dDeliverySystemCode", "Delivery Code:", txt5dDeliverySystemCode);
  rows.Add("lbl5dSelectLibrarySymbol", "Show Pickup Locations from:", cmb5dSelectLibrarySymbol);
  cmb5dSelectLibrarySymbol->AddNone("All Libraries!");
  cmb5dSelectLibrarySymbol->SetIndex(0);
  grd5dTable->setAccessibleName("Pickup locations");
  Form::Require({txt5dCode, txt5dDescription, txt5dLibrarySymbol});
  Form::Column(this, {fields})->addWidget(grd5dTable, 1);
}

void PickupLocations::ConnectControls() {
  connect(cmb5dSelectLibrarySymbol, &CodeComboBox::Click, this, &PickupLocations::cmb5dSelectLibrarySymbol_Click);
  connect(cmd5dFindLibrary, &QPushButton::clicked, this, &PickupLocations::cmd5dFindLibrary_Click);
  connect(grd5dTable, &Grid::SelChange, this, &PickupLocations::grd5dTable_SelChange);
  KeepRowOnSort(grd5dTable);
}

// --- Entering, filtering and selecting ---

void PickupLocations::Enter() {
  gstrButtonMode = "F";
  SetPickupLocationList();
  ConfigureGrdTable();
  LoadDataInGrid();
  SelectFirstRow();
  txt5dCode->setFocus();
}

void PickupLocations::SetPickupLocationList() {
  const QString chosen = cmb5dSelectLibrarySymbol->Code();
  Procedure procedure("frmTabulon.SetPickupLocationList", this);
  procedure.Run([this] {
    FillCombo(*cmb5dSelectLibrarySymbol, "All libraries",
              "SELECT   DISTINCT LIBRARY_SYMBOL FROM " + Sql::Table("ID_LIBRARY") + " WHERE    LIBRARY_ID IN " +
                  "(SELECT LIBRARY_ID FROM " + Sql::Table(Table) + ") ORDER BY LIBRARY_SYMBOL",
              "***** SQL error on OSTANA.ID_LIBRARY (Select) *****", 0, 0);
  });
  // A library that still has locations stays chosen.
  if (chosen.isEmpty() || !cmb5dSelectLibrarySymbol->SetCode(chosen)) cmb5dSelectLibrarySymbol->SetIndex(0);
}

void PickupLocations::LoadGrid() {
  const QString symbol = cmb5dSelectLibrarySymbol->Code();
  const QString chosen = symbol.isEmpty() ? QString() : "AND L.LIBRARY_SYMBOL = " + Sql::National(symbol) + " ";
  form_.Load("SELECT   P.LIBRARY_ID, P.PICKUP_LOCATION, P.PICKUP_LOCATION_DESC" + gclsOF->LanguageSuffix() +
                 ", P.PICKUP_LOCATION_ILS, P.DELIVERY_SYSTEM_CODE, L.LIBRARY_SYMBOL FROM " + Sql::Table(Table) +
                 " P, " + Sql::Table("ID_LIBRARY") + " L WHERE    L.LIBRARY_ID = P.LIBRARY_ID " + chosen +
                 "ORDER BY L.LIBRARY_SYMBOL, P.PICKUP_LOCATION",
             "***** SQL error on OSTANA.ID_PICKUP_LOCATION (Select)*****");
}

void PickupLocations::cmb5dSelectLibrarySymbol_Click() {
  gstrErrorMessage.clear();
  LoadDataInGrid();
  SelectFirstRow();
}

void PickupLocations::SelectFirstRow() {
  if (!form_.SelectFirstRow([this] { ShowRow(); })) form_.Clear();
}

void PickupLocations::grd5dTable_SelChange() {
  if (!gbSkipGridEvents) ShowRow();
}

void PickupLocations::ShowRow() {
  if (grd5dTable->Row() > 0) form_.ShowRow(grd5dTable->Row());
}

int PickupLocations::RowOnShow() const {
  return grd5dTable->FindRow({{form_.ColumnOf("LIBRARY_SYMBOL"), txt5dLibrarySymbol->Text()},
                              {form_.ColumnOf("PICKUP_LOCATION"), txt5dCode->Text()}});
}

void PickupLocations::cmd5dFindLibrary_Click() {
  Procedure procedure("frmTabulon.cmd5dFindLibrary_Click", this);
  procedure.OnFailure(Texts::NotifySupport).Run([this] {
    const FoundLibrary found = FindLibrary(this);
    if (found.id > 0)
      txt5dLibrarySymbol->SetText(found.symbol);
    else if (found.allowed)
      txt5dLibrarySymbol->setFocus();
  });
}

// --- Add ---

bool PickupLocations::Add() {
  return Procedure("frmTabulon.Delivery_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    qint32 libraryId = 0;
    if (!EntryIsValid(libraryId) || !EntryIsNew(libraryId)) return false;
    Execute(InsertStatement(libraryId), "***** SQL error on OSTANA.ID_PICKUP_LOCATION(Insert)*****");
    LoadDataInGrid();
    grd5dTable->SetRowQuietly(RowOnShow());
    Tell("Pickup Location Added", MessageStyle::Information);
    txt5dDescription->setFocus();
    return true;
  });
}

bool PickupLocations::EntryIsValid(qint32& libraryId) {
  form_.TrimAll();
  if (txt5dCode->Text().isEmpty())
    return Refuse("Please enter a pickup location code.", MessageStyle::Warning, txt5dCode);
  if (txt5dDescription->Text().isEmpty())
    return Refuse("Please enter a pickup location description.", MessageStyle::Warning, txt5dDescription);
  if (txt5dLibrarySymbol->Text().isEmpty())
    return Refuse("Please enter a library symbol for the pickup location.", MessageStyle::Warning, txt5dLibrarySymbol);
  return gclsOF->FindLibraryId(txt5dLibrarySymbol->Text(), libraryId) ||
         Refuse("Please enter a Valid Library Symbol.", MessageStyle::Warning, txt5dLibrarySymbol);
}

bool PickupLocations::EntryIsNew(qint32 libraryId) {
  const QString ofLibrary = " AND LIBRARY_ID = " + Sql::Number(libraryId);
  bool found = false;
  FirstValue("SELECT   PICKUP_LOCATION FROM " + Sql::Table(Table) +
                 " WHERE    PICKUP_LOCATION = " + Sql::National(txt5dCode->Text()) + ofLibrary,
             "***** SQL error on ID_PICKUP_LOCATION (Select 1) *****", &found);
  if (found) return Refuse("This Pickup Location Code already exists for this library.", MessageStyle::Stop, txt5dCode);
  const QString description = "PICKUP_LOCATION_DESC" + gclsOF->LanguageSuffix();
  FirstValue("SELECT   " + description + " FROM " + Sql::Table(Table) + " WHERE    " + description + " = " +
                 Sql::National(txt5dDescription->Text()) + ofLibrary,
             "***** SQL error on ID_PICKUP_LOCATION (Select 2) *****", &found);
  if (!found) return true;
  // The focus goes to a box of the tab "Departments", where there is one by now.
  return Refuse("This Pickup Location Description already exists for this library.", MessageStyle::Stop,
                shell().findChild<QWidget*>("txt2Description"));
}

QString PickupLocations::IlsCodeValue() const {
  return Sql::NationalOr(txt5dILSCode->Text(), "NULL");
}
QString PickupLocations::DeliveryCodeValue() const {
  return Sql::NationalOr(txt5dDeliverySystemCode->Text(), "NULL");
}

QString PickupLocations::InsertStatement(qint32 libraryId) const {
  const QString description = Sql::National(txt5dDescription->Text());
  const Sql::LanguagePieces languages = Sql::LanguageColumns("PICKUP_LOCATION_DESC_", description);
  return "INSERT INTO " + Sql::Table(Table) +
         " (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC, PICKUP_LOCATION_ILS, DELIVERY_SYSTEM_CODE" +
         languages.columns + ") VALUES (" + Sql::Number(libraryId) + ", " + Sql::National(txt5dCode->Text()) + ", " +
         description + ", " + IlsCodeValue() + ", " + DeliveryCodeValue() + languages.values + ")";
}

// --- Update ---

bool PickupLocations::Update() {
  bool inUse = false;
  return Procedure("frmTabulon.Delivery_Update", this)
      .OnFailure([&](const AdoError& error) {
        inUse = RefusalOf(error) == Refusal::InUse;
        return UpdateFailureText(error);
      })
      // Only then do the boxes go back to what the record has; otherwise the entry can be corrected.
      .Finally([&] {
        if (inUse) ShowRow();
      })
      .Answers([&] { return WriteUpdate(); });
}

bool PickupLocations::WriteUpdate() {
  qint32 libraryId = 0, oldLibraryId = 0;
  if (!EntryIsValid(libraryId)) return false;
  const int row = grd5dTable->Row();
  if (row == 0) return Refuse("Please select a Pickup Location.", MessageStyle::Warning, txt5dCode);
  if (form_.EqualsRow(row)) return Refuse("Nothing has been changed.", MessageStyle::Warning, txt5dCode);
  // The library of the row may have gone or been renamed since the grid was loaded.
  if (!gclsOF->FindLibraryId(form_.Cell(row, "LIBRARY_SYMBOL"), oldLibraryId))
    return Refuse("Please enter a Valid Library Symbol.", MessageStyle::Warning, txt5dLibrarySymbol);
  if (Execute(UpdateStatement(libraryId, oldLibraryId), "***** SQL error on ID_PICKUP_LOCATION (Update) *****") == 0)
    return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt5dCode);
  LoadDataInGrid();
  Tell("Location updated", MessageStyle::Information);
  grd5dTable->SetRowQuietly(RowOnShow());
  txt5dCode->setFocus();
  return true;
}

QString PickupLocations::UpdateStatement(qint32 libraryId, qint32 oldLibraryId) const {
  const QString oldCode = form_.Cell(grd5dTable->Row(), "PICKUP_LOCATION").trimmed();
  return "UPDATE " + Sql::Table(Table) + " SET LIBRARY_ID = " + Sql::Number(libraryId) +
         ", PICKUP_LOCATION = " + Sql::National(txt5dCode->Text()) + ", PICKUP_LOCATION_DESC" +
         gclsOF->LanguageSuffix() + " = " + Sql::National(txt5dDescription->Text()) +
         ", PICKUP_LOCATION_ILS = " + IlsCodeValue() + ", DELIVERY_SYSTEM_CODE = " + DeliveryCodeValue() +
         " WHERE LIBRARY_ID = " + Sql::Number(oldLibraryId) + " AND PICKUP_LOCATION = " + Sql::National(oldCode);
}

// --- Delete and Clear ---

bool PickupLocations::Delete() {
  return Procedure("frmTabulon.Delivery_Delete", this).OnFailure(LocationDeleteFailureText).Answers([&] {
    const Record::Filling trimming(record());
    const QString code = txt5dCode->TrimUpperInPlace();
    if (code.isEmpty()) return Refuse("Please select a Pickup Location.", MessageStyle::Warning, txt5dCode);
    if (!Confirm(this, "Are you sure you wish to Delete this location?")) return false;
    qint32 libraryId = 0;
    if (!gclsOF->FindLibraryId(txt5dLibrarySymbol->Text(), libraryId))
      return Refuse("This is not a valid Library Symbol.", MessageStyle::Warning, txt5dLibrarySymbol);
    if (ExecuteInTransaction("DELETE FROM " + Sql::Table(Table) + " WHERE LIBRARY_ID = " + Sql::Number(libraryId) +
                                 " AND PICKUP_LOCATION = " + Sql::National(code),
                             "***** SQL error on OSTANA.ID_PICKUP_LOCATION (DELETE) *****") == 0)
      return Refuse(Texts::NothingDeleted, MessageStyle::Warning, txt5dCode);
    grd5dTable->SetRowQuietly(0);
    LoadDataInGrid();
    shell().cmdClear_Click();
    Tell("Location Deleted", MessageStyle::Information);
    txt5dCode->setFocus();
    return true;
  });
}

bool PickupLocations::Clear() {
  form_.Clear();
  grd5dTable->SetRowQuietly(0);
  txt5dCode->setFocus();
  return true;
}
