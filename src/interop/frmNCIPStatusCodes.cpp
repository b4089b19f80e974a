#include "interop/frmNCIPStatusCodes.h"

#include <QHBoxLayout>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/TextInput.h"

frmNCIPStatusCodes::frmNCIPStatusCodes(QWidget* parent)
    : NCIPListScreen("frmNCIPStatusCodes", "Ostana - NCIP Status Codes",
                     new Grid(nullptr, "grdNCIPStatusCodes", AllowIll + 1), parent) {
  BuildControls();
}

void frmNCIPStatusCodes::BuildControls() {
  grdNCIPStatusCodes->setAccessibleName("NCIP status codes");
  grdNCIPStatusCodes->SetHeading(StatusCode, "NCIP Status Code");
  grdNCIPStatusCodes->SetHeading(AllowIll, "Allow ILL");
  grdNCIPStatusCodes->SetColWidth(0, 255);
  grdNCIPStatusCodes->SetColWidth(StatusCode, 2400);
  grdNCIPStatusCodes->SetColWidth(AllowIll, 4860);
  rdAllowILL->Select(0);
  connect(txtNCIPStatusCode, &TextBox::Change, this, &frmNCIPStatusCodes::txtNCIPStatusCode_Change);

  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lblNCIPStatusCode", "NCIP Status Code:", txtNCIPStatusCode);
  rows.Add("lblAllowILL", "Allow ILL:", rdAllowILL->RowWith({lblAllowILLYes, lblAllowILLNo}));
  Form::Require({txtNCIPStatusCode});
  Compose(fields);
  resize(640, 480);
}

// The whole text, wherever it was changed; the caret stays behind the letter it was behind, which may have become two.
void frmNCIPStatusCodes::txtNCIPStatusCode_Change() {
  const QString upper = TextInput::Upper(txtNCIPStatusCode->Text());
  if (upper == txtNCIPStatusCode->Text()) return;
  const QString before = txtNCIPStatusCode->Text().left(txtNCIPStatusCode->cursorPosition());
  const int caret = static_cast<int>(TextInput::Upper(before).size());
  txtNCIPStatusCode->SetText(upper);
  txtNCIPStatusCode->setCursorPosition(caret);
}

void frmNCIPStatusCodes::ReadOstanaInfo() {
  ForEachRow("SELECT   NCIP_STATUS, NCIP_ALLOW_ILL FROM " + Sql::Table("ID_NCIP_STATUS") +
                 " WHERE    LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()),
             "***** SQL error on ID_NCIP_STATUS (Select) *****", [this](Recordset& rows) {
               grdNCIPStatusCodes->LoadRow({Value(rows, 0), Value(rows, 1)});
             });
}

void frmNCIPStatusCodes::ShowRow(int row) {
  txtNCIPStatusCode->SetText(grdNCIPStatusCodes->Text(row, StatusCode));
  rdAllowILL->Select(grdNCIPStatusCodes->Text(row, AllowIll) == "Y" ? 0 : 1);
}

void frmNCIPStatusCodes::EmptyControls() {
  txtNCIPStatusCode->SetText({});
}

void frmNCIPStatusCodes::ResetControls() {
  rdAllowILL->Select(0);
}

bool frmNCIPStatusCodes::CellsOnScreen(QStringList& cells, bool) {
  const QString code = txtNCIPStatusCode->TrimInPlace();
  if (code.isEmpty())
    return Refuse(this, "NCIP Status Code is a required field.", MessageStyle::Stop, txtNCIPStatusCode);
  cells = {code, rdAllowILL->IsSet(0) ? "Y" : "N"};
  return true;
}

QString frmNCIPStatusCodes::DuplicateText(const QString& key) const {
  return "NCIP Status Code: " + key + " is already in the grid.";
}

ListRewrite frmNCIPStatusCodes::Rewrite() const {
  const qint32 library = gclsOF->LibraryId();
  return {"ID_NCIP_STATUS",
          library,
          "***** SQL error on ID_NCIP_STATUS (Delete) *****",
          "***** SQL error on ID_NCIP_STATUS (Update) *****",
          "LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL",
          [this, library](int row) {
            return Sql::Number(library) + ", " + Sql::National(grdNCIPStatusCodes->Text(row, StatusCode)) + ", " +
                   Sql::National(grdNCIPStatusCodes->Text(row, AllowIll));
          }};
}
