#include "directory/frmLibraryStatisticalInfo.h"

#include <QLocale>
#include <QRegularExpression>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/ColumnValues.h"
#include "directory/LibrarySearch.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"

namespace {

const QString UsualService = "2";

QString Cost(const QString& stored) {
  return stored.isEmpty() ? QString() : Numbers::Format(Numbers::Val(stored), "###0.00");
}

// Long date and long time of the machine, the zone left out.
QString LongMoment(const QString& stored) {
  static const QRegularExpression zone("[ (]*t+\\)?\\s*");
  const QDateTime moment = QDateTime::fromString(stored, Qt::ISODate);
  if (!moment.isValid()) return stored;
  const QLocale locale;
  const QString time = locale.timeFormat(QLocale::LongFormat).remove(zone);
  return locale.toString(moment.date(), QLocale::LongFormat) + " " + locale.toString(moment.time(), time);
}

}  // namespace

// --- Lists ---

std::vector<CodeList> frmLibraryStatisticalInfo::CodeLists() const {
  const auto list = [](const QString& code, const QString& failed, std::vector<CodeComboBox*> boxes,
                       const QString& none = "(None)") {
    return CodeList{SelectCodes("SELECT   ", code, "ID_" + code), "***** SQL error on " + failed + " (Select) *****",
                    std::move(boxes), none};
  };
  return {list("VORN_SERVICE", "VORN_SERVICE ", {cmbServiceType}, {}),
          list("STATS_CAT_LIB", "ID_STATS_CAT_LIB", {cboStatsCat1, cboStatsCat2, cboStatsCat3}),
          list("LIBRARY_CAT", "LIBRARY_CAT ", {cboCategory}),
          list("LIBRARY_TYPE", "ID_LIBRARY_TYPE ", {cboLibraryType}),
          list("LOAN_CODE", "ID_LOAN_CODE ", {cmbLoanCode})};
}

void frmLibraryStatisticalInfo::ChooseDefaults() {
  ChooseUsualService();
  for (DefaultCode* code : Defaults()) code->Choose(this, ListWasRead(code->Box()));
}

// Nothing where the site does not have it.
void frmLibraryStatisticalInfo::ChooseUsualService() {
  cmbServiceType->SetIndex(cmbServiceType->IndexOfCode(UsualService));
}

void frmLibraryStatisticalInfo::ShowNoRecord() {
  SelectIFM(No);
  optRapidAllowLocal->Select(No);
  txtMaximumCost->SetText(defaultMaxCost_);
  txtMaximumDays->SetText(defaultMaxDays_);
}

// --- The record ---

QString frmLibraryStatisticalInfo::Columns() const {
  return ", VORN_SYMBOL, VORN_USER_ID, VORN_PASSWORD, VORN_SERVICE, VORN_USE_IFM, VORN_IFM_MAX_COST, BL_USER_ID, "
         "BL_PASSWORD, RAPID_CODE, RAPID_BRANCH_NAME, RAPID_USER_NAME, RAPID_ALLOW_LOCAL, RAPID_PASSWORD, "
         "DOCLINE_SYMBOL, NLNZ_SYMBOL, FD_SYMBOL, AGENT_SYMBOL, STATS_CAT_LIB1, STATS_CAT_LIB2, STATS_CAT_LIB3, "
         "LIBRARY_CAT, LIBRARY_TYPE, LOAN_CODE, MAX_COST, MAX_DAYS, DATE_ENTERED, LAST_MODIFIED";
}

void frmLibraryStatisticalInfo::ShowRecord(const Recordset& rows) {
  const QString service = Value(rows, "VORN_SERVICE");
  service.isEmpty() ? ChooseUsualService() : ShowCode(cmbServiceType, service);
  SelectIFM(Value(rows, "VORN_USE_IFM") == "Y" ? Yes : No);
  txtIFMMaxCost->SetText(Cost(Value(rows, "VORN_IFM_MAX_COST")));
  optRapidAllowLocal->Select(Value(rows, "RAPID_ALLOW_LOCAL") == "Y" ? Yes : No);
  txtMaximumCost->SetText(Cost(Value(rows, "MAX_COST")));
  txtDateEntered->SetText(LongMoment(Value(rows, "DATE_ENTERED")));
  txtDateLastUpdated->SetText(LongMoment(Value(rows, "LAST_MODIFIED")));
}

void frmLibraryStatisticalInfo::ClearFields() {
  for (TextBox* box : {txtMaximumCost, txtDateEntered, txtDateLastUpdated}) box->clear();
  SelectIFM(No);
  optRapidAllowLocal->Select(No);
  ChooseUsualService();
  // Not the defaults that the screen was loaded with.
  for (CodeComboBox* box : {cboStatsCat1, cboStatsCat2, cboStatsCat3, cboCategory, cboLibraryType, cmbLoanCode})
    box->SetCode({});
}

void frmLibraryStatisticalInfo::SelectIFM(Option option) {
  optUseIFM->Select(option);
  lblIFMMaxCost->setEnabled(option == Yes);
  txtIFMMaxCost->setEnabled(option == Yes);
  if (option == No) txtIFMMaxCost->clear();
}

void frmLibraryStatisticalInfo::optUseIFM_Click() {
  SelectIFM(optUseIFM->IsSet(Yes) ? Yes : No);
}

// --- Searches by an outside identity ---

void frmLibraryStatisticalInfo::SearchOutside(const OutsideSymbol& symbol) {
  Run(symbol.search->objectName() + "_Click", [&] {
    if (!GuardPassed(FactsOf(LibrarySibling::Statistics).guard.search)) return;
    SearchFrom(symbol.box, [&](const QString& text, qint32& id, qint32& count) {
      return SearchSymbol(text, id, count, symbol.column);
    });
  });
}

// --- Update ---

void frmLibraryStatisticalInfo::cmdUpdate_Click() {
  RunUpdate("cmdUpdate_Click", Texts::NotifySupport, [this] {
    if (!HasRecordToUpdate()) return;
    TrimShown();
    Trim({txtLibrarySymbol, txtIFMMaxCost, txtMaximumCost});
    if (!SymbolIsGiven() || !RapidIsValid() || !VornIsValid() || !BritishLibraryIsValid()) return;
    if (RowWasFound(ExecuteInTransaction(UpdateStatement(), "***** SQL error on ID_library (Insert) *****")))
      TellUpdated();
  });
}

// Rapid has no test of its characters, unlike the two logins below.
bool frmLibraryStatisticalInfo::RapidIsValid() {
  if (txtRapid->Text().isEmpty()) {
    const QString rest = txtRapidBranchName->Text() + txtRapidUserName->Text() + txtRapidPassword->Text() +
                         txtRapidConfirmPassword->Text();
    return rest.trimmed().isEmpty() || Refuse("Please enter a Rapid ILL Code.", txtRapid);
  }
  return txtRapidPassword->Text() == txtRapidConfirmPassword->Text() ||
         Refuse("Rapid ILL Password doesn't match the Confirm Password.", txtRapidConfirmPassword);
}

// The symbol carries all the rest.
bool frmLibraryStatisticalInfo::VornIsValid() {
  if (txtVORNSymbol->Text().isEmpty()) {
    for (TextBox* box : {txtVORNUserID, txtVORNPassword, txtVORNConfirmPassword, txtIFMMaxCost}) box->clear();
    cmbServiceType->SetIndex(-1);
    SelectIFM(No);
    return true;
  }
  if (txtVORNUserID->Text().isEmpty()) {
    txtVORNPassword->clear();
    txtVORNConfirmPassword->clear();
  } else if (!LoginIsValid(vornLogin_)) {
    return false;
  }
  return !optUseIFM->IsSet(Yes) || !Numbers::IsBlank(txtIFMMaxCost->Text()) ||
         Refuse("This is a required field.  Try again.", txtIFMMaxCost);
}

bool frmLibraryStatisticalInfo::BritishLibraryIsValid() {
  if (!txtBLUserID->Text().isEmpty()) return LoginIsValid(britishLibraryLogin_);
  txtBLPassword->clear();
  txtBLConfirmPassword->clear();
  return true;
}

bool frmLibraryStatisticalInfo::LoginIsValid(const Login& login) {
  const auto isClean = [](const TextBox* box) { return gclsOF->SqlEscape(box->Text()) == box->Text(); };
  if (!isClean(login.user)) return Refuse("User ID contains invalid characters.  Try again.", login.user);
  if (login.password->Text().isEmpty()) return Refuse("Password is required.", login.password);
  if (!isClean(login.password)) return Refuse("Password contains invalid characters.  Try again.", login.password);
  return login.password->Text() == login.confirm->Text() ||
         Refuse("Password confirmation failed.  Try again.", login.confirm);
}

QString frmLibraryStatisticalInfo::UpdateStatement() const {
  ColumnValues row;
  row.Bare("LAST_MODIFIED", PresentDate());
  AddVorn(row);
  AddBritishLibrary(row);
  AddRapid(row);
  row.Text("DOCLINE_SYMBOL", txtDoclineSymbol->Text())
      .Text("FD_SYMBOL", txtFD->Text())
      .Text("AGENT_SYMBOL", txtAgent->Text())
      .Text("NLNZ_SYMBOL", txtNewZealand->Text())
      .Number("MAX_COST", txtMaximumCost->Text())
      .Number("MAX_DAYS", txtMaximumDays->Text())
      .Text("STATS_CAT_LIB3", cboStatsCat3->Code())
      .Text("STATS_CAT_LIB1", cboStatsCat1->Code())
      .Text("STATS_CAT_LIB2", cboStatsCat2->Code())
      .Text("LIBRARY_CAT", cboCategory->Code())
      .Text("LOAN_CODE", cmbLoanCode->Code())
      .Text("LIBRARY_TYPE", cboLibraryType->Code());
  return UpdateOfRecord(row);
}

void frmLibraryStatisticalInfo::AddVorn(ColumnValues& row) const {
  if (txtVORNSymbol->Text().isEmpty()) {
    row.Null({"VORN_SYMBOL", "VORN_USER_ID", "VORN_PASSWORD", "VORN_SERVICE", "VORN_USE_IFM", "VORN_IFM_MAX_COST"});
    return;
  }
  const bool ifm = optUseIFM->IsSet(Yes);
  row.Literal("VORN_SYMBOL", txtVORNSymbol->Text())
      .Text("VORN_USER_ID", txtVORNUserID->Text())
      .Text("VORN_PASSWORD", txtVORNPassword->Text())
      .Text("VORN_SERVICE", cmbServiceType->Code())
      .Bare("VORN_USE_IFM", ifm ? "N'Y'" : "N'N'")
      .Number("VORN_IFM_MAX_COST", ifm ? txtIFMMaxCost->Text() : QString());
}

void frmLibraryStatisticalInfo::AddBritishLibrary(ColumnValues& row) const {
  if (txtBLUserID->Text().isEmpty())
    row.Null({"BL_USER_ID", "BL_PASSWORD"});
  else
    row.Literal("BL_USER_ID", txtBLUserID->Text()).Literal("BL_PASSWORD", txtBLPassword->Text());
}

void frmLibraryStatisticalInfo::AddRapid(ColumnValues& row) const {
  if (txtRapid->Text().isEmpty()) {
    row.Null({"RAPID_CODE", "RAPID_BRANCH_NAME", "RAPID_USER_NAME", "RAPID_ALLOW_LOCAL", "RAPID_PASSWORD"});
    return;
  }
  row.Literal("RAPID_CODE", txtRapid->Text())
      .Text("RAPID_BRANCH_NAME", txtRapidBranchName->Text())
      .Text("RAPID_USER_NAME", txtRapidUserName->Text())
      .Bare("RAPID_ALLOW_LOCAL", optRapidAllowLocal->IsSet(Yes) ? "N'Y'" : "N'N'")
      .Text("RAPID_PASSWORD", txtRapidPassword->Text());
}
