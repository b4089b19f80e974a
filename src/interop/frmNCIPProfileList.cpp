// The profile list: read from the table into the grid, and written back when the screen closes.
#include <QScopedValueRollback>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "interop/CodeLists.h"
#include "interop/ListRewrite.h"
#include "interop/StatementReport.h"
#include "interop/frmNCIPProfile.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

QString SelectFailed(const QString& table) {
  return "***** SQL error on " + table + " (Select) *****";
}

// What a cell shows for a code; one whose row is gone shows as itself.
QString Shown(const CodeComboBox& box, const QString& code, const QString& none) {
  if (code.isEmpty()) return none;
  return box.IndexOfCode(code) >= 0 ? box.DescriptionOf(code) : code;
}

}  // namespace

void frmNCIPProfile::Form_Load() {
  const QScopedValueRollback loading(mbLoading, true);
  Procedure("frmNCIPProfile.ReadOstanaInfo", this)
      .OnFailure("An error has occurred loading the form.  Please Notify Support.")
      .Run([this] { ReadOstanaInfo(); });
  ApplyRights();
  txtProfileCode->setFocus(Qt::OtherFocusReason);
}

// A list that was not read whole can be looked at and left, and nothing else.
void frmNCIPProfile::ApplyRights() {
  const bool whole = list_.MayBeWritten();
  cmdAdd->setEnabled(whole && rights_.add);
  cmdUpdate->setEnabled(whole && rights_.update);
  cmdDelete->setEnabled(whole && rights_.remove);
  cmdClear->setEnabled(whole && rights_.update && rights_.remove);
}

void frmNCIPProfile::ReadOstanaInfo() {
  Record::Reading reading(list_);
  reading.Replaces();
  grdNCIPProfile->Clear();
  FillLists();
  ReadProfiles();
  reading.Ended();
  if (grdNCIPProfile->Rows() == 1) return ShowCleared();
  grdNCIPProfile->SetRowQuietly(1);
  ShowRow(1);
}

void frmNCIPProfile::FillLists() {
  const auto fill = [](CodeComboBox* box, const QString& select, const QString& code, const QString& table,
                       const QString& tail = {}) {
    CodeLists::Fill(*box, select + " FROM " + Sql::Table(table) + tail, SelectFailed(table), code);
  };
  const QString suffix = gclsOF->LanguageSuffix();
  const QString methods = "SELECT   DELIV_METHOD, DELIV_METHOD_DESC" + suffix;
  fill(cmbPatronType, "SELECT   PATRON_TYPE, PATRON_TYPE_DESC" + suffix, "PATRON_TYPE", "ID_PATRON_TYPE");
  fill(cmbLoanCode, "SELECT LOAN_CODE, LOAN_CODE_DESC" + suffix, "LOAN_CODE", "ID_LOAN_CODE",
       " ORDER BY LOAN_CODE_DESC" + suffix);
  fill(cmbFileFormat, "SELECT *", "FILE_FORMAT", "ID_FILE_FORMAT");
  fill(cmbMessageFormat, "SELECT *", "MSG_FORMAT", "ID_MSG_FORMAT");
  fill(cmbBillingType, "SELECT *", "BILLING_TYPE", "ID_BILLING_TYPE");
  fill(cmbBillingRate, "SELECT BILLING_RATE, BILLING_RATE_DESC" + suffix, "BILLING_RATE", "ID_BILLING_RATE",
       " ORDER BY BILLING_RATE_DESC" + suffix);
  // Read once for each of the two boxes.
  for (DeliveryChoice* choice : {copy_, loan_}) fill(choice->MethodBox(), methods, "DELIV_METHOD", "ID_DELIV_METHOD");
  fill(copy_->PickupBox(), "SELECT   PICKUP_LOCATION, PICKUP_LOCATION_DESC" + suffix, "PICKUP_LOCATION",
       "ID_PICKUP_LOCATION",
       " WHERE    LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()) + " ORDER BY PICKUP_LOCATION_DESC" + suffix);
  CodeLists::Copy(*copy_->PickupBox(), *loan_->PickupBox());
}

void frmNCIPProfile::ReadProfiles() {
  codes_.clear();
  ForEachRow(
      "SELECT   * FROM " + Sql::Table("ID_NCIP_PROFILE") + " WHERE    LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()),
      SelectFailed("ID_NCIP_PROFILE"), [this](Recordset& rows) { LoadProfile(rows); });
}

void frmNCIPProfile::LoadProfile(const Recordset& rows) {
  QStringList cells(ColumnCount);
  Codes codes;
  cells[ProfileCode] = Value(rows, "NCIP_PROFILE");
  cells[Description] = Value(rows, "NCIP_PROFILE_DESC");
  for (const List& list : lists_) {
    codes[list.column] = Value(rows, list.field).trimmed();
    cells[list.column] = Shown(*list.box, codes[list.column], CodeLists::None);
  }
  const auto delivery = [&](const DeliveryChoice* choice, int allow, const QString& kind) {
    const int select = allow + 1, method = allow + 2, address = allow + 3;
    cells[allow] =
        DeliveryChoice::YesNo(Value(rows, allow == AllowCopy ? "NCIP_ALLOW_COPY" : "NCIP_ALLOW_LOAN") != "N");
    cells[select] = DeliveryChoice::YesNo(Value(rows, "NCIP_SELECT_DELIVERY_" + kind) != "N");
    codes[method] = Value(rows, "NCIP_DELIVERY_METHOD_" + kind).trimmed();
    cells[method] = Shown(*choice->MethodBox(), codes[method], CodeLists::None);
    codes[address] = Value(rows, "NCIP_DELIVERY_ADDRESS_" + kind);
    cells[address] =
        DeliveryChoice::IsPickup(codes[method]) ? Shown(*choice->PickupBox(), codes[address], {}) : codes[address];
  };
  delivery(copy_, AllowCopy, "C");
  delivery(loan_, AllowLoan, "L");
  AddRow(cells.mid(ProfileCode), codes);
}

// --- The row and its codes ---

int frmNCIPProfile::AddRow(const QStringList& cells, const Codes& codes) {
  const int row = grdNCIPProfile->AddRow(cells);
  grdNCIPProfile->SetRowData(row, ++lastKey_);
  codes_[lastKey_] = codes;
  return row;
}

const frmNCIPProfile::Codes& frmNCIPProfile::CodesOf(int row) const {
  return codes_.at(grdNCIPProfile->RowData(row));
}

int frmNCIPProfile::RowOnShow() const {
  for (int row = 1; row < grdNCIPProfile->Rows(); ++row)
    if (grdNCIPProfile->RowData(row) == keyOnShow_) return row;
  return 0;
}

// --- Writing ---

void frmNCIPProfile::cmdClose_Click() {
  if (UpdateIsWanted()) cmdUpdate_Click();
  profile_.Settled();
  if (!gbSettingsChanged || !list_.MayBeWritten()) {
    Unload();
    return;
  }
  const ListRewrite list = {
      "ID_NCIP_PROFILE",
      gclsOF->LibraryId(),
      "***** SQL error on ID_NCIP_STATUS (Delete) *****",  // another table's name, and known so
      "***** SQL error on ID_NCIP_PROFILE (Update) *****",
      "LIBRARY_ID, NCIP_PROFILE, NCIP_PROFILE_DESC, NCIP_PATRON_TYPE, NCIP_ALLOW_LOAN, NCIP_ALLOW_COPY, "
      "NCIP_SELECT_DELIVERY_C, NCIP_DELIVERY_METHOD_C, NCIP_DELIVERY_ADDRESS_C, NCIP_SELECT_DELIVERY_L, "
      "NCIP_DELIVERY_METHOD_L, NCIP_DELIVERY_ADDRESS_L, FILE_FORMAT, MSG_FORMAT, BILLING_TYPE, BILLING_RATE, LOAN_CODE",
      [this](int row) { return ValuesOf(row); }};
  StatementReport report;
  if (report.Try([&] { list.Run(*grdNCIPProfile, list_); })) {
    Tell(this, "Settings updated.", MessageStyle::Information);
    gbSettingsChanged = false;
    Unload();
    return;
  }
  gclsOF->WriteLog(
      QStringList{"frmNCIPProfile.cmdClose_Click", report.Label(), report.Statement(), report.NumberAndDescription()}
          .join(" - "),
      {}, "S");
  Tell(this, "An error has occurred writing settings to the database.  Please check the log file for more information.",
       MessageStyle::Stop);
}

QString frmNCIPProfile::ValuesOf(int row) const {
  const Codes& codes = CodesOf(row);
  const auto text = [&](Column column) { return Sql::National(grdNCIPProfile->Text(row, column)); };
  const auto code = [&](Column column) { return Sql::NationalOr(codes[column], "NULL"); };
  const auto flag = [&](Column column) { return QString(grdNCIPProfile->Text(row, column) == "No" ? "N'N'" : "N'Y'"); };
  return QStringList{Sql::Number(gclsOF->LibraryId()),
                     text(ProfileCode),
                     text(Description),
                     code(PatronType),
                     flag(AllowLoan),
                     flag(AllowCopy),
                     flag(SelectCopy),
                     code(MethodCopy),
                     code(AddressCopy),
                     flag(SelectLoan),
                     code(MethodLoan),
                     code(AddressLoan),
                     code(FileFormat),
                     code(MessageFormat),
                     code(BillingType),
                     code(BillingRate),
                     code(LoanCode)}
      .join(", ");
}
