#include "directory/frmLibraryRegistration.h"

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/ColumnValues.h"
#include "directory/FaxInput.h"
#include "directory/NextLibrary.h"
#include "directory/TimeZones.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"

namespace {

const QString UsualTimeZone = "Eastern Standard Time";
const QString DeliveryDeactivated = "The current Delivery Method has been deactivated.";
const QString WriteFailed = "***** SQL error on ID_library (Insert) *****";
constexpr const char* ActiveOnly = "WHERE    ACTIVE_FLAG = N'Y' ";

}  // namespace

// --- Loading ---

void frmLibraryRegistration::LoadSettings() {
  defaultTimeZone_ = UsualTimeZone;
  const QString balancing =
      gclsOF->ReadProfileString("Load Balancing", "UseLoadBalancing", gclsOF->SystemFile("Ostana.INI"));
  gbUseLoadBalancing = balancing == "Y";
  deliveryFax_->Reset();
  messagingFax_->Reset();
}

std::vector<CodeList> frmLibraryRegistration::CodeLists() const {
  return {{SelectCodes("SELECT   ", "DELIV_METHOD", "ID_DELIV_METHOD", ActiveOnly),
           "***** SQL error on ID_DELIV_METHOD (Select) *****",
           {cmbDeliveryMethodCopy, cmbDeliveryMethodLoan},
           {},
           "P"},
          {SelectCodes("SELECT ", "MSG_METHOD", "ID_MSG_METHOD", ActiveOnly),
           "***** SQL error on ID_MSG_METHOD (Select) *****",
           {cboMsgMethod}},
          {SelectCodes("SELECT   ", "FILE_FORMAT", "ID_FILE_FORMAT"),
           "***** SQL error on ID_FILE_FORMAT (Select) *****",
           {cboFileFormat}},
          {SelectCodes("SELECT   ", "MSG_FORMAT", "ID_MSG_FORMAT"),
           "***** SQL error on ID_MSG_FORMAT (Select) *****",
           {cmbEmailMsgFormat}}};
}

void frmLibraryRegistration::ChooseDefaults() {
  for (DefaultCode* code : Defaults()) code->Choose(this, ListWasRead(code->Box()));
  if (cmbTimeZone->Count() == 0)
    for (const TimeZoneEntry& zone : TimeZoneList()) cmbTimeZone->Add(zone.displayText, zone.id);
  cmbTimeZone->SetCode(defaultTimeZone_);
}

void frmLibraryRegistration::ApplyRights() {
  LibraryScreen::ApplyRights();
  ShowButton(cmdAdd, rights().add);
  ShowButton(cmdDelete, rights().remove);
  // Whoever places no requests for a library opens none of its other records either.
  const bool others = FactsOf(LibrarySibling::Registration).noRequestsFor.contains(gclsOF->CallingFunction());
  ShowButton(cmdSupplier, !others);
  ShowButton(cmdPatron, !others);
  findChild<QAction*>("mnuDisplaySep")->setVisible(!others);
}

void frmLibraryRegistration::EnableRecord(bool enabled) {
  LibraryScreen::EnableRecord(enabled);
  Enable(cmdDelete, enabled);
  cmdMessageFormat->setEnabled(enabled);
}

// --- The record ---

QString frmLibraryRegistration::Columns() const {
  return ", PRIME_ADDRESS1, PRIME_ADDRESS2, PRIME_CITY, PRIME_PROV_STATE, PRIME_COUNTRY, PRIME_POST_ZIPCODE, "
         "FILE_FORMAT, DELIV_METHOD_COPY, DELIV_METHOD_LOAN, DELIV_FAX, DELIV_EMAIL, MSG_FORMAT, MSG_METHOD, MSG_FAX, "
         "MSG_EMAIL, INTERNET_ARIEL, ODYSSEY_ADDRESS, DELIVERY_SERVICE, DOCVIEW_ADDRESS, TIMEZONE";
}

void frmLibraryRegistration::ShowRecord(const Recordset& rows) {
  const auto orElse = [](const QString& code, const char* otherwise) { return code.isEmpty() ? otherwise : code; };
  ShowCode(cboFileFormat, orElse(Value(rows, "FILE_FORMAT"), "P"));
  ShowCode(cmbEmailMsgFormat, orElse(Value(rows, "MSG_FORMAT"), "T"));
  deliveryFax_->Show(Value(rows, "DELIV_FAX"));
  messagingFax_->Show(Value(rows, "MSG_FAX"));
  ShowMethod(cmbDeliveryMethodCopy, Value(rows, "DELIV_METHOD_COPY"), DeliveryDeactivated);
  ShowMethod(cmbDeliveryMethodLoan, Value(rows, "DELIV_METHOD_LOAN"), DeliveryDeactivated);
  ShowMethod(cboMsgMethod, Value(rows, "MSG_METHOD"), "The current Messaging Method has been deactivated.");
}

// The change to Mail is on the screen only, until the user updates. Where the list was not read, nobody knows whether a
// method is still active.
void frmLibraryRegistration::ShowMethod(CodeComboBox* box, const QString& stored, const QString& deactivated) {
  ShowCode(box, stored.isEmpty() ? "M" : stored);
  if (stored.isEmpty() || !box->HoldsUnknown() || !ListWasRead(box)) return;
  Tell(this, deactivated + "\n\nResetting to Mail.", MessageStyle::Information);
  ShowCode(box, "M");
}

void frmLibraryRegistration::ClearFields() {
  txtDeliveryFax->clear();
  txtMsgFax->clear();
  ChooseDefaults();
  deliveryFax_->Reset();
  messagingFax_->Reset();
  Enable(cmdAdd, true);
}

// --- Add ---

bool frmLibraryRegistration::RequiredFieldsGiven(const QString& hint) {
  Trim({txtLibrarySymbol, txtInstitution});
  if (txtLibrarySymbol->Text().isEmpty()) return Refuse("Library Symbol is a required field." + hint, txtLibrarySymbol);
  if (txtInstitution->Text().isEmpty()) return Refuse("Institution is a required field." + hint, txtInstitution);
  return true;
}

void frmLibraryRegistration::cmdAdd_Click() {
  const QString failed =
      "An error has occurred while attempting to add the Library.  If the error persists notify support.";
  RunUpdate("cmdAdd_Click", failed, [this] {
    if (!RequiredFieldsGiven({}) || !ValidateInput(ChosenMethods())) return;
    const QString symbol = txtLibrarySymbol->Text();
    qint32 id = 0;
    if (gclsOF->FindLibraryId(symbol, id)) {
      Refuse("Library Symbol '" + symbol + "' already exists.\n\nPlease enter a unique Library Symbol.",
             txtLibrarySymbol);
      return;
    }
    if (!GetNextLibraryID(id)) return TellNoNumber(id);
    ExecuteInTransaction(InsertStatement(id), WriteFailed);
    ShowAdded(id);
  });
}

void frmLibraryRegistration::TellNoNumber(qint32 id) {
  QString text = "An error has occurred while attempting to add the Library.\n\n";
  if (id == 0) {
    text += "There is a problem with the Next Library table.  Notify Support.";
  } else if (id == -1) {
    text += "  Please try again.\n\nIf the problem persists Notify Support.";
  } else {
    text += "If the problem persists Notify Support.";
  }
  Refuse(text, txtLibrarySymbol);
}

QString frmLibraryRegistration::InsertStatement(qint32 id) const {
  ColumnValues row;
  row.Bare("LIBRARY_ID", Sql::Number(id))
      .Bare("LIBRARY_ACTIVE", "N'Y'")
      .Literal("LIBRARY_SYMBOL", txtLibrarySymbol->Text())
      .Literal("INSTITUTION_NAME", txtInstitution->Text())
      .Bare("DATE_ENTERED", PresentDate())
      .Text("LIBRARY", txtLibraryName->Text())
      .Text("CONTACT", txtContact->Text());
  // A new library bills to its street address.
  AddAddress(row, "PRIME_");
  AddAddress(row, "BILL_");
  row.Literal("FILE_FORMAT", cboFileFormat->Code())
      .Literal("DELIV_METHOD_COPY", cmbDeliveryMethodCopy->Code())
      .Text("DELIV_METHOD_LOAN", cmbDeliveryMethodLoan->Code())
      .Text("DELIV_FAX", txtDeliveryFax->Text())
      .Text("DELIV_EMAIL", txtDeliveryEmail->Text())
      .Literal("MSG_FORMAT", cmbEmailMsgFormat->Code())
      .Literal("MSG_METHOD", cboMsgMethod->Code())
      .Text("MSG_FAX", txtMsgFax->Text())
      .Text("MSG_EMAIL", txtMsgEmail->Text())
      .Text("INTERNET_ARIEL", txtAriel->Text())
      .Text("ODYSSEY_ADDRESS", txtOdyssey->Text())
      .Text("DELIVERY_SERVICE", txtDeliveryService->Text())
      .Text("DOCVIEW_ADDRESS", txtDocview->Text())
      .Bare("REQUESTS_PROCESSED", "0")
      .Bare("WEIGHTING_FACTOR", "1.0")
      .Text("TIMEZONE", cmbTimeZone->Code());
  return "INSERT INTO " + Sql::Table("ID_LIBRARY") + " (" + row.Columns() + ") VALUES (" + row.Values() + ")";
}

void frmLibraryRegistration::AddAddress(ColumnValues& row, const QString& prefix) const {
  row.Text(prefix + "ADDRESS1", txtStreet1->Text())
      .Text(prefix + "ADDRESS2", txtStreet2->Text())
      .Text(prefix + "CITY", txtCity->Text())
      .Text(prefix + "PROV_STATE", txtStateProvince->Text())
      .Text(prefix + "COUNTRY", txtCountry->Text())
      .Text(prefix + "POST_ZIPCODE", txtZipPostalCode->Text());
}

void frmLibraryRegistration::ShowAdded(qint32 id) {
  TakeInHand({id, txtLibrarySymbol->Text(), "Y"});
  record().Shown();
  Tell(this, "Library Symbol: '" + library().symbol + "' has been added.", MessageStyle::Information);
}

// --- Update ---

void frmLibraryRegistration::cmdUpdate_Click() {
  RunUpdate("cmdUpdate_Click", Texts::NotifySupport, [this] {
    if (!HasRecordToUpdate() || !RequiredFieldsGiven("\nPlease enter a value.") || !ValidateInput(ChosenMethods()))
      return;
    if (!RowWasFound(Execute(UpdateStatement(), WriteFailed))) return;
    Tell(this, "Library Symbol: '" + library().symbol + "' has been updated.", MessageStyle::Information);
    record().Settled();
  });
}

// The symbol is never changed, whatever stands in the box; the billing address is another screen's.
QString frmLibraryRegistration::UpdateStatement() const {
  ColumnValues row;
  row.Literal("INSTITUTION_NAME", txtInstitution->Text())
      .Bare("LAST_MODIFIED", PresentDate())
      .Text("LIBRARY", txtLibraryName->Text())
      .Text("CONTACT", txtContact->Text());
  AddAddress(row, "PRIME_");
  row.Literal("FILE_FORMAT", cboFileFormat->Code())
      .Literal("DELIV_METHOD_COPY", cmbDeliveryMethodCopy->Code())
      .Text("DELIV_METHOD_LOAN", cmbDeliveryMethodLoan->Code())
      .Text("DELIV_FAX", txtDeliveryFax->Text())
      .Text("DELIV_EMAIL", txtDeliveryEmail->Text())
      .Literal("MSG_METHOD", cboMsgMethod->Code())
      .Text("MSG_FAX", txtMsgFax->Text())
      .Text("MSG_EMAIL", txtMsgEmail->Text())
      .Literal("MSG_FORMAT", cmbEmailMsgFormat->Code())
      .Text("INTERNET_ARIEL", txtAriel->Text())
      .Text("ODYSSEY_ADDRESS", txtOdyssey->Text())
      .Text("DELIVERY_SERVICE", txtDeliveryService->Text())
      .Text("DOCVIEW_ADDRESS", txtDocview->Text())
      .Text("TIMEZONE", cmbTimeZone->Code());
  return UpdateOfRecord(row);
}

// --- Delete ---

void frmLibraryRegistration::cmdDelete_Click() {
  // The refusal is the database's; its failure is told in these words whatever the cause.
  const QString refused = "This Library has Requests attached.  Unable to Delete.";
  Procedure(LogName("cmdDelete_Click"), this).OnFailure(refused).Run([this] {
    if (!HasRecord()) {
      Tell(this, "A record must be displayed before it can be Deleted.", MessageStyle::Stop);
      return;
    }
    if (!Confirm(this,
                 "If any Requests are attached to this record you will not be able to delete it.\n\n"
                 "Are you sure you wish to delete this record ?",
                 MessageStyle::Question | MessageStyle::DefaultButton2))
      return FocusSymbol();
    const qint64 deleted = ExecuteInTransaction(
        "DELETE FROM " + Sql::Table("ID_LIBRARY") + " WHERE    LIBRARY_ID = " + Sql::Number(library().id),
        "***** SQL error on ID_library (Delete) *****");
    if (!RowWasFound(deleted)) return;
    Tell(this, "Library deleted.", MessageStyle::Information);
    ClearScreen();
    FocusSymbol();
  });
}

// --- Other screens ---

void frmLibraryRegistration::cmdMessageFormat_Click() {
  Run("cmdMessageFormat_Click", [this] { ::ShowModal("frmDeliveryEmailTemplate", this); });
}

// What frmSupplierRegistration is given: the code of the library's first supplier, or the wish to add one. The answer
// No stops nothing; that form then starts without a code.
void frmLibraryRegistration::ReadSupplier() {
  gstrSupplierCode.clear();
  gbAddSupplier = false;
  if (gclsOF->LibraryId() < 1) return;
  bool found = false;
  gstrSupplierCode = FirstValue(
                         "SELECT   SUPPLIER_CODE "
                         " FROM " +
                             Sql::Table("ID_SUPPLIER") + " WHERE    LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()),
                         "***** SQL error on ID_SUPPLIER (Select) *****", &found)
                         .trimmed();
  if (!found) gbAddSupplier = Confirm(this, "Supplier does not exist, would you like to add one?");
}

bool frmLibraryRegistration::BorrowRight(const QString& function) {
  if (gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), function)) return true;
  return ::Refuse(this, Texts::NoAccess, MessageStyle::Stop, nullptr);
}

void frmLibraryRegistration::cmdSupplier_Click() {
  Run("cmdSupplier_Click", [this] {
    if (!GuardPassed(FactsOf(LibrarySibling::Registration).guard.siblingButton)) return;
    ReadSupplier();
    if (BorrowRight("Supplier Registration")) UnloadAndShow("frmSupplierRegistration");
  });
}

void frmLibraryRegistration::cmdPatron_Click() {
  Run("cmdPatron_Click", [this] {
    if (!GuardPassed(FactsOf(LibrarySibling::Registration).guard.siblingButton)) return;
    if (!BorrowRight("Patron Registration")) return;
    const qint32 library = gclsOF->LibraryId();
    UnloadAndShow("frmPatronRegistration", [library] { gclsOF->SetLibraryId(library); });
    gclsOF->SetLibraryId(0);
  });
}
