#include "interop/frmNCIPUnitLibraryMapping.h"

#include "core/SqlText.h"
#include "shell/FindLibrary.h"

namespace {

const QString SelectFailed = "***** SQL error on ID_NCIP_LIBRARY (Select) *****";

}  // namespace

frmNCIPUnitLibraryMapping::frmNCIPUnitLibraryMapping(QWidget* parent)
    : NCIPListScreen("frmNCIPUnitLibraryMapping", "Ostana - NCIP Unit Library Mapping",
                     new Grid(nullptr, "grdLibraryMapping", UnitLibraryId + 1), parent) {
  BuildControls();
  connect(cmdFindLibrary, &QPushButton::clicked, this, &frmNCIPUnitLibraryMapping::cmdFindLibrary_Click);
}

void frmNCIPUnitLibraryMapping::BuildControls() {
  grdLibraryMapping->setAccessibleName("Unit libraries");
  grdLibraryMapping->SetHeading(NCIPLibrary, "NCIP Library");
  grdLibraryMapping->SetHeading(OstanaLibrary, "Ostana Library");
  grdLibraryMapping->SetColWidth(0, 270);
  grdLibraryMapping->SetColWidth(NCIPLibrary, 1965);
  grdLibraryMapping->SetColWidth(OstanaLibrary, 5265);
  grdLibraryMapping->SetColWidth(UnitLibraryId, 960);
  grdLibraryMapping->HideCol(UnitLibraryId, true);
  txtNCIPLibrary->UpperCaseAsTyped();

  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lblNCIPLibrary", "NCIP Library:", txtNCIPLibrary);
  rows.Add("lblOstanaLibrary", "Ostana Library:", txtOstanaLibrary, cmdFindLibrary);
  Form::Require({txtNCIPLibrary, txtOstanaLibrary});
  Compose(fields);
  resize(680, 480);
}

void frmNCIPUnitLibraryMapping::ReadOstanaInfo() {
  ForEachRow("SELECT   NCIP_LIBRARY, UNIT_LIBRARY_ID FROM " + Sql::Table("ID_NCIP_LIBRARY") +
                 " WHERE    LIBRARY_ID = " + Sql::Number(libraryId_),
             SelectFailed, [this](Recordset& rows) {
               const QString id = Value(rows, 1);
               // A library that is gone has no symbol.
               const QString symbol = id.isEmpty()
                                          ? QString()
                                          : FirstValue("SELECT   LIBRARY_SYMBOL FROM " + Sql::Table("ID_LIBRARY") +
                                                           " WHERE    LIBRARY_ID = " + id,
                                                       SelectFailed);
               grdLibraryMapping->LoadRow({Value(rows, 0), symbol, id});
             });
}

void frmNCIPUnitLibraryMapping::ShowRow(int row) {
  txtNCIPLibrary->SetText(grdLibraryMapping->Text(row, NCIPLibrary));
  txtOstanaLibrary->SetText(grdLibraryMapping->Text(row, OstanaLibrary));
}

void frmNCIPUnitLibraryMapping::EmptyControls() {
  txtNCIPLibrary->SetText({});
  txtOstanaLibrary->SetText({});
}

// The id is looked up each time, also when only the name was changed.
bool frmNCIPUnitLibraryMapping::CellsOnScreen(QStringList& cells, bool forUpdate) {
  const QString name = txtNCIPLibrary->TrimInPlace();
  const QString symbol = txtOstanaLibrary->TrimInPlace();
  if (name.isEmpty()) return Refuse(this, "NCIP Library is a required field.", MessageStyle::Stop, txtNCIPLibrary);
  if (symbol.isEmpty())
    return Refuse(this, "Ostana Library is a required field.", MessageStyle::Stop, txtOstanaLibrary);
  mlngUnitLibraryId = LibraryIdOfExactSymbol(
      symbol, Sql::National,
      forUpdate ? "***** SQL error on OSTANA.ID_LIBRARY (Select) *****"  // with the owner on Update only
                : "***** SQL error on ID_LIBRARY (Select) *****");
  if (mlngUnitLibraryId == -1)
    return Refuse(this, "Please enter a valid library symbol.", MessageStyle::Stop, txtOstanaLibrary);
  cells = {name, symbol, QString::number(mlngUnitLibraryId)};
  return true;
}

QString frmNCIPUnitLibraryMapping::DuplicateText(const QString& key) const {
  return "NCIP Library: " + key + " is already in the grid.";
}

// The id is a number that goes into the statement as a text.
ListRewrite frmNCIPUnitLibraryMapping::Rewrite() const {
  return {"ID_NCIP_LIBRARY",
          libraryId_,
          "***** SQL error on ID_NCIP_LIBRARY (Delete) *****",
          "***** SQL error on ID_NCIP_LIBRARY (Update) *****",
          "LIBRARY_ID, NCIP_LIBRARY, UNIT_LIBRARY_ID",
          [this](int row) {
            return Sql::Number(libraryId_) + ", " + Sql::National(grdLibraryMapping->Text(row, NCIPLibrary)) + ", " +
                   Sql::NationalOr(grdLibraryMapping->Text(row, UnitLibraryId), "Null");
          }};
}

void frmNCIPUnitLibraryMapping::cmdFindLibrary_Click() {
  Run("cmdFindLibrary_Click", [this] {
    const FoundLibrary found = FindLibrary(this);
    if (found.allowed) txtOstanaLibrary->SetText(found.id < 1 ? QString() : found.symbol);
  });
}
