#include "editors/RequestType.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "editors/LibrarySymbol.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

namespace {

const QString CustomersFailed = "***** SQL error on OSTANA.ID_CUSTOMER_ID (Select) *****";

QString CustomersStatement() {
  return "SELECT   * FROM " + Sql::Table("ID_CUSTOMER_ID") + " ORDER BY CUSTOMER_ID_DESC";
}

QString CustomerDescription(const Recordset& customers) {
  return Value(customers, "CUSTOMER_ID_DESC" + gclsOF->LanguageSuffix());
}

}  // namespace

RequestType::RequestType(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
  ConnectControls();
}

void RequestType::BuildControls() {
  cmb9CustomerID->AddNone("(none)");
  cmb9InvoiceFlag->Add("Cover is an Invoice", "Y");
  cmb9InvoiceFlag->Add("Cover is not an Invoice!", "N");
  auto* const boxes = new QWidget(this);
  Form::Rows rows(boxes);
  rows.Add("lbl9Code", "Code:", txt9Code);
  rows.Add("lbl9Description", "Description:", txt9Description);
  rows.Add("lbl9LibrarySymbol", "Library Symbol:", txt9LibrarySymbol, cmd9FindLibrary);
  rows.Add("lbl9CustomerID", "Customer ID:", cmb9CustomerID);
  rows.Add("lbl9InvoiceFlag", "Invoice  Flag:", cmb9InvoiceFlag);
  txt9Code->setReadOnly(true);
  txt9Code->setFocusPolicy(Qt::ClickFocus);
  grd9RequestType->setAccessibleName("Request types");
  Form::Column(this, {boxes})->addWidget(grd9RequestType, 1);
}

void RequestType::ConnectControls() {
  form_.Shows({"REQUEST_TYPE", "Code", 600})
      .Edits(txt9Description, {"REQUEST_TYPE_DESC+", "Description", 4000})
      .Edits(txt9LibrarySymbol, {"LIBRARY_SYMBOL", "Library Symbol", 2500}, Trim::None)
      .Shows({"", "Customer ID", 2500})
      .Shows({"INVOICE_FLAG", "Invoice Flag", 1000})
      .EditsCode(cmb9CustomerID, {"CUSTOMER_ID", "", 0, true, GridForm::Watch::No});
  connect(cmd9FindLibrary, &QPushButton::clicked, this,
          [this] { LibrarySymbol::Find(*txt9LibrarySymbol, this, "frmTabulon.cmd9FindLibrary_Click"); });
  connect(cmb9CustomerID, &CodeComboBox::Click, this, &RequestType::cmb9CustomerID_Click);
  connect(cmb9InvoiceFlag, &CodeComboBox::Click, this, &RequestType::cmb9InvoiceFlag_Click);
  connect(grd9RequestType, &Grid::SelChange, this, &RequestType::grd9RequestType_SelChange);
  KeepRowOnSort(grd9RequestType);
}

// --- Entering the tab ---

void RequestType::RequestType_Tab() {
  Procedure procedure("frmTabulon.RequestType_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "U";
    RequestType_Clear();
    ConfigureGrdTable();
    LoadDataInGrid();
    shell().EnableButtons(gstrButtonMode);
    form_.SelectFirstRow([this] { grd9RequestType_SelChange(); });
    txt9Description->setFocus();
  });
}

void RequestType::LoadGrid() {
  // A type without a library is listed as well.
  form_.Load("SELECT L.LIBRARY_SYMBOL, RT.REQUEST_TYPE, RT.REQUEST_TYPE_DESC" + gclsOF->LanguageSuffix() +
                 ", RT.INVOICE_FLAG, RT.CUSTOMER_ID " + "FROM " + Sql::Table("ID_REQUEST_TYPE") + " RT LEFT JOIN " +
                 Sql::Table("ID_LIBRARY") + " L ON L.LIBRARY_ID = RT.LIBRARY_ID " + "ORDER BY RT.REQUEST_TYPE",
             "***** SQL error on OSTANA.ID_REQUEST_TYPE (Select) *****");
  LoadCustomers();
}

void RequestType::LoadCustomers() {
  cmb9CustomerID->Clear();
  cmb9CustomerID->AddNone("(none)");
  ForEachRow(CustomersStatement(), CustomersFailed, [this](Recordset& customers) {
    cmb9CustomerID->Add(CustomerDescription(customers), Value(customers, "CUSTOMER_ID"));
  });
  for (int row = 1; row < grd9RequestType->Rows(); ++row) {
    const QString customer = grd9RequestType->Text(row, CustomerCode);
    const bool known = cmb9CustomerID->IndexOfCode(customer) >= 0;
    if (!customer.isEmpty())
      grd9RequestType->SetText(row, CustomerID, known ? cmb9CustomerID->DescriptionOf(customer) : customer);
  }
}

// --- Choosing a row ---

void RequestType::grd9RequestType_SelChange() {
  const int row = grd9RequestType->Row();
  if (gbSkipGridEvents || row == 0) return;
  txt9Code->SetText(grd9RequestType->Text(row, Code));
  form_.ShowRow(row);
  cmb9InvoiceFlag->SetIndex(grd9RequestType->Text(row, InvoiceFlag) == "N" ? 1 : 0);
  txt9Description->setFocus();
}

QString RequestType::FlagLetter() const {
  return cmb9InvoiceFlag->Index() == 0 ? "Y" : "N";
}

void RequestType::cmb9InvoiceFlag_Click() {
  gstrErrorMessage.clear();
  const int row = grd9RequestType->Row();
  if (row == 0 || FlagLetter() != grd9RequestType->Text(row, InvoiceFlag)) record().Touched();
}

void RequestType::cmb9CustomerID_Click() {
  gstrErrorMessage.clear();
  const int row = grd9RequestType->Row();
  if (row == 0 || cmb9CustomerID->Code() != grd9RequestType->Text(row, CustomerCode)) record().Touched();
}

// --- Update ---

bool RequestType::RequestType_Update() {
  return Procedure("frmTabulon.RequestType_Update", this).OnFailure(Texts::DatabaseError).Answers([&] {
    form_.TrimAll();
    const int row = grd9RequestType->Row();
    if (row > 0 && form_.EqualsRow(row) && FlagLetter() == grd9RequestType->Text(row, InvoiceFlag))
      return Refuse("Nothing has been changed", MessageStyle::Warning, txt9Description);
    {
      const Record::Filling trimming(record());
      FindRequestLibraryId();
    }
    if (glngRequestLibraryId_ == -1)
      return Refuse("Please select a valid library.", MessageStyle::Warning, txt9LibrarySymbol);
    if (row == 0) return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt9Description);
    const QString customer = StoredCustomer();
    if (ExecuteInTransaction(UpdateStatement(customer), "***** SQL error on OSTANA.ID_REQUEST_TYPE (UPDATE) *****") ==
        0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt9Description);
    WriteRow(row, customer);
    Tell("Record Updated", MessageStyle::Information);
    txt9Description->setFocus();
    return true;
  });
}

void RequestType::FindRequestLibraryId() {
  glngRequestLibraryId_ = LibrarySymbol::IdOf(*txt9LibrarySymbol);
}

// The customer id whose description is on show, read anew; of equal descriptions the one that was chosen. An id that
// the list does not know is the row's own and stays.
QString RequestType::StoredCustomer() const {
  QString found;
  const QString chosen = cmb9CustomerID->Code();
  if (cmb9CustomerID->HoldsUnknown()) found = chosen;
  ForEachRow(CustomersStatement(), CustomersFailed, [&](Recordset& customers) {
    const QString id = Value(customers, "CUSTOMER_ID");
    if (!chosen.isEmpty() && CustomerDescription(customers) == cmb9CustomerID->Text() &&
        (found.isEmpty() || id == chosen))
      found = id;
  });
  return found;
}

QString RequestType::UpdateStatement(const QString& customer) const {
  return "UPDATE   " + Sql::Table("ID_REQUEST_TYPE") + " " + "SET      REQUEST_TYPE_DESC" + gclsOF->LanguageSuffix() +
         " = " + Sql::NationalOr(txt9Description->Text(), "NULL") + ", " +
         "LIBRARY_ID = " + (glngRequestLibraryId_ > 0 ? Sql::Number(glngRequestLibraryId_) : QString("Null")) + ", " +
         "INVOICE_FLAG = " + Sql::National(FlagLetter()) + ", " + "CUSTOMER_ID = " + Sql::NationalOr(customer, "NULL") +
         " " + "WHERE    REQUEST_TYPE = " + Sql::National(txt9Code->Text());
}

void RequestType::WriteRow(int row, const QString& customer) {
  grd9RequestType->SetText(row, Description, txt9Description->Text());
  grd9RequestType->SetText(row, Symbol, txt9LibrarySymbol->Text());
  grd9RequestType->SetText(row, CustomerID, customer.isEmpty() ? QString() : cmb9CustomerID->Text());
  grd9RequestType->SetText(row, CustomerCode, customer);
  grd9RequestType->SetText(row, InvoiceFlag, FlagLetter());
}

bool RequestType::RequestType_Clear() {
  grd9RequestType->SetRowQuietly(0);
  txt9Code->SetText({});
  form_.Clear();
  for (CodeComboBox* list : {cmb9InvoiceFlag, cmb9CustomerID}) list->SetIndex(-1);
  return true;
}
