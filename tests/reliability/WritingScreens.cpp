#include "reliability/WritingScreens.h"

#include <QTabWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/Grid.h"

namespace {

using Opens = std::function<void(ReliabilityDesk&)>;

Opens Button(const char* name) {
  return [name](ReliabilityDesk& desk) { desk.Click(name); };
}
// A list that is kept in memory and stored when the dialog is closed.
void UpdateAndClose(ReliabilityDesk& desk) {
  desk.Click("cmdUpdate");
  desk.Click("cmdClose");
}

// The first row, unless a row is selected already.
void FirstRow(ReliabilityDesk& desk, const char* grid) {
  if (desk.Find<Grid>(grid)->Row() < 1) desk.SelectRow(grid, 1);
}

Opens Tab(int tab, const char* grid, const char* inner = nullptr, int innerTab = 0) {
  return [=](ReliabilityDesk& desk) {
    desk.EnterTab(tab);
    if (inner && desk.Find<QTabWidget>(inner)->currentIndex() != innerTab) desk.SelectTab(inner, innerTab);
    FirstRow(desk, grid);
  };
}

// A tab on which a list is chosen first.
Opens TabWithChoice(int tab, const char* combo, const char* code, const char* grid) {
  return [=](ReliabilityDesk& desk) {
    desk.EnterTab(tab);
    if (desk.Find<CodeComboBox>(combo)->Code() != QLatin1String(code)) desk.ChooseCode(combo, code);
    FirstRow(desk, grid);
  };
}

Opens Dialog(const char* form, const char* grid = nullptr, const char* inner = nullptr, int innerTab = 0) {
  return [=](ReliabilityDesk& desk) {
    desk.OpenDialog(form);
    if (inner && desk.Find<QTabWidget>(inner)->currentIndex() != innerTab) desk.SelectTab(inner, innerTab);
    if (grid) FirstRow(desk, grid);
  };
}

Opens Notice(const char* form) {
  return [=](ReliabilityDesk& desk) {
    gstrCoverRequestType = "REG";
    desk.OpenDialog(form);
  };
}

Opens OfLibrary(const char* form, const char* grid = nullptr) {
  return [=](ReliabilityDesk& desk) {
    glngNCIPLibraryId = ReliabilityDesk::Auenfels;
    desk.OpenLibraryScreen(form);
    if (grid) FirstRow(desk, grid);
  };
}

std::vector<WritingScreen> TabScreens() {
  using Shell = frmTabulon;
  const Opens update = Button("cmdUpdate");
  return {
      {"CodeTables",
       "ID_LIBRARY_CAT",
       {{"txt0Description", "LIBRARY_CAT_DESC"}},
       TabWithChoice(Shell::CodeTablesTab, "cmb0Tables", "ID_LIBRARY_CAT", "grd0TableDesc"),
       update},
      {"CoverPages",
       "ID_COVER_INFO",
       {{"txt1Header", "HEADER", Trimmed::No},
        {"txt1Footer", "FOOTER", Trimmed::No},
        {"txt1Message1", "MESSAGE_1", Trimmed::No},
        {"txt1message2", "MESSAGE_2", Trimmed::No}},
       Tab(Shell::CoverPagesTab, "grd1CoverInfo"),
       update},
      {"Departments",
       "ID_DEPARTMENT",
       {{"txt2Description", "DEPARTMENT_DESC"},
        {"txt2Address", "DEPARTMENT_ADDR"},
        {"txtNCIPDepartment", "NCIP_DEPARTMENT"}},
       Tab(Shell::DepartmentsTab, "grd2Department"),
       update},
      {"Printers", "ID_PRINTER", {{"txt3Printer", "PRINTER"}}, Tab(Shell::PrintersTab, "grd3Printer"), update},
      {"RequestType",
       "ID_REQUEST_TYPE",
       {{"txt9Description", "REQUEST_TYPE_DESC"}},
       Tab(Shell::RequestTypeTab, "grd9RequestType"),
       update},
      {"AuditLocations",
       "ID_STAT_LOCATION",
       {{"txt10aDescription", "STAT_LOCATION_DESC"}},
       Tab(Shell::AuditTab, "grd10aTable", "sstab10Audit", 0),
       update},
      {"AuditFunctions",
       "ID_STAT_FUNCTION",
       {{"txt10bDescription", "STAT_FUNCTION_DESC"}},
       Tab(Shell::AuditTab, "grd10bTable", "sstab10Audit", 1),
       update},
      {"ExceptionCodes",
       "ID_EXCEPTION_CODE",
       {{"txt8Description", "EXCEPTION_CODE_DESC"}},
       Tab(Shell::ExceptionsTab, "grd8Table", "sstab8Exception", 0),
       update},
      {"ValidExceptions",
       "ID_EXCEPTION_PROCESS",
       {{"txt8Message1", "MESSAGE"}},
       Tab(Shell::ExceptionsTab, "grd8Document", "sstab8Exception", 1),
       update},
      {"BillingRates",
       "ID_BILLING_RATE",
       {{"txt7BillingDescription", "BILLING_RATE_DESC"}},
       Tab(Shell::InvoicingTab, "grd7BillingRate", "sstab7Invoicing", 1),
       update},
  };
}

std::vector<WritingScreen> DialogScreens() {
  const Opens update = Button("cmdUpdate"), ok = Button("cmdOK");
  return {
      {"LoanPolicies",
       "ID_LOAN_CODE",
       {{"txt6aDescription", "LOAN_CODE_DESC", Trimmed::EndsAndUpper},
        {"txt6MessageRenewal", "REN_MSG"},
        {"txt6MessageRenewalRefused", "RR_MSG"},
        {"txt6MessageRecall", "REC_MSG"},
        {"txt6MessageOverdue1", "OV1_MSG"},
        {"txt6MessageOverdue2", "OV2_MSG"},
        {"txt6MessageOverdue3", "OV3_MSG"},
        {"txt6MessageFinal", "FIN_MSG"}},
       Dialog("frmLoans", "grd6aTable"),
       update},
      {"LoanStatuses",
       "ID_LOAN_STATUS",
       {{"txt6bDescription", "LOAN_STATUS_DESC"}},
       Dialog("frmLoans", "grd6bTable", "sstab6Loans", 1),
       update},
      {"CurrencyCodes",
       "ID_CURRENCY_CODE",
       {{"txtDescription", "CURRENCY_CODE_DESC"}, {"txtCountry", "CURRENCY_COUNTRY"}},
       Dialog("frmCurrencyCodes", "grdCurrencyCode"),
       update},
      {"ISONamespace",
       "ID_ISO_NAMESPACE",
       {{"txtDescription", "ISO_NAMESPACE_DESC"}},
       Dialog("frmISONamespace", "grdNameSpace"),
       update},
      {"GeneralMessages",
       "ID_GENERAL_MESSAGE",
       {{"txtDescription", "GENERAL_MESSAGE_DESC"},
        {"txtSubject", "GENERAL_MESSAGE_SUB"},
        {"txtMessage", "GENERAL_MESSAGE_MSG"}},
       Dialog("frmGeneralMessages", "grdGeneralMessage"),
       update},
      {"NotifyPatronMessages",
       "ID_PATRON_MESSAGE",
       {{"txtDescription", "PATRON_MESSAGE_DESC"},
        {"txtSubject", "PATRON_MESSAGE_SUB"},
        {"txtMessage", "PATRON_MESSAGE_MSG"}},
       Dialog("frmNotifyPatronMessages", "grdPatronMessage"),
       update},
      {"ItemType",
       "ID_ITEM_TYPE",
       {{"txtDescription", "ITEM_TYPE_DESC"}},
       Dialog("frmItemType", "grdItemType"),
       update},
      {"NotifyPatronEmail",
       "ID_COVER_INFO",
       {{"txtTextSubject", "MSG_TXT_SUBJECT", Trimmed::No},
        {"txtInstructions", "MSG_TXT_INSTRUCTIONS", Trimmed::No},
        {"txtRequestLink", "MSG_TXT_BASE_URL", Trimmed::No},
        {"txtTextHeader", "MSG_TXT_HEADER", Trimmed::No},
        {"txtTextReport", "MSG_TXT_REPORT", Trimmed::No},
        {"txtTextFooter", "MSG_TXT_FOOTER", Trimmed::No}},
       Notice("frmNotifyPatronEmail"),
       ok},
      {"LoanNoticesEmail",
       "ID_COVER_INFO",
       {{"txtTextSubject", "LOANS_TXT_SUBJECT", Trimmed::No},
        {"txtTextHeader", "LOANS_TXT_HEADER", Trimmed::No},
        {"txtTextReport", "LOANS_TXT_REPORT", Trimmed::No},
        {"txtTextFooter", "LOANS_TXT_FOOTER", Trimmed::No}},
       Notice("frmLoanNoticesEmail"),
       ok},
      {"GeneralEmail",
       "ID_COVER_INFO",
       {{"txtTextSubject", "GENERAL_SUBJECT", Trimmed::No},
        {"txtTextHeader", "GENERAL_HEADER", Trimmed::No},
        {"txtTextReport", "GENERAL_REPORT", Trimmed::No},
        {"txtTextFooter", "GENERAL_FOOTER", Trimmed::No}},
       Notice("frmGeneralEmail"),
       ok},
      {"PickupLocationEmail",
       "ID_COVER_INFO",
       {{"txtTextSubject", "PICKUP_SUBJECT", Trimmed::No}, {"txtTextReport", "PICKUP_REPORT", Trimmed::No}},
       Notice("frmPickupLocationEmail"),
       ok},
      {"ExceptionNotes",
       "ID_EXCEPTION_NOTE",
       {{"txtExceptionNote", "EXCEPTION_NOTE"}},
       [](ReliabilityDesk& desk) {
         gstrNotesExceptionCode = "BIB";
         gstrNotesProcessType = "SEA";
         desk.OpenDialog("frmAddExceptionNotes");
         desk.SelectRow("grdExceptionNote", 2);  // the first one stands in ID_EXCEPTION_PROCESS as well
       },
       UpdateAndClose},
  };
}

std::vector<WritingScreen> LibraryScreens() {
  const Opens update = Button("cmdUpdate"), ok = Button("cmdOK");
  const QStringList stamp{"LAST_MODIFIED"};
  return {
      {"LibraryRegistration",
       "ID_LIBRARY",
       {{"txtContact", "CONTACT", Trimmed::No},
        {"txtStreet2", "PRIME_ADDRESS2", Trimmed::No},
        {"txtCity", "PRIME_CITY", Trimmed::No},
        {"txtStateProvince", "PRIME_PROV_STATE", Trimmed::No},
        {"txtCountry", "PRIME_COUNTRY", Trimmed::No},
        {"txtZipPostalCode", "PRIME_POST_ZIPCODE", Trimmed::No}},
       OfLibrary("frmLibraryRegistration"),
       update,
       stamp},
      {"LibraryBilling",
       "ID_LIBRARY",
       {{"txtStreet1", "BILL_ADDRESS1", Trimmed::No},
        {"txtStreet2", "BILL_ADDRESS2", Trimmed::No},
        {"txtCity", "BILL_CITY", Trimmed::No},
        {"txtStateProvince", "BILL_PROV_STATE", Trimmed::No},
        {"txtCountry", "BILL_COUNTRY", Trimmed::No},
        {"txtZipPostalCode", "BILL_POST_ZIPCODE", Trimmed::No},
        {"txtBillingContact", "BILL_CONTACT"},
        {"txtAccountNumber", "LIBRARY_ACCOUNT", Trimmed::No}},
       OfLibrary("frmLibraryBillingInfo"),
       update,
       stamp},
      {"LibraryLogin", "ID_LIBRARY", {{"txtUserID", "USER_LOGIN"}}, OfLibrary("frmLibraryLoginInfo"), update, stamp},
      {"LibraryStatistical",
       "ID_LIBRARY",
       {{"txtDoclineSymbol", "DOCLINE_SYMBOL"}, {"txtFD", "FD_SYMBOL"}},
       OfLibrary("frmLibraryStatisticalInfo"),
       update,
       stamp},
      {"NCIPServer",
       "ID_NCIP_CONNECT",
       {{"txtServerAddress", "NCIP_HOST_ADDRESS"},
        {"txtApplicationProfile", "NCIP_APP_PROFILE"},
        {"txtServerAgency", "NCIP_SERVER_AGENCY_ID"},
        {"txtAgencySchema", "NCIP_AGENCY_ID_SCHEME"},
        {"txtToAgency", "NCIP_TO_AGENCY_ID"},
        {"txtFromAgency", "NCIP_FROM_AGENCY_ID"},
        {"txtAgencyAuthentication", "NCIP_FROM_AGENCY_AUTH"}},
       OfLibrary("frmNCIPServerConnection"),
       ok},
      {"NCIPProfile",
       "ID_NCIP_PROFILE",
       {{"txtDescription", "NCIP_PROFILE_DESC"}},
       OfLibrary("frmNCIPProfile", "grdNCIPProfile"),
       UpdateAndClose},
      {"NCIPStatusCodes",
       "ID_NCIP_STATUS",
       {{"txtNCIPStatusCode", "NCIP_STATUS"}},
       OfLibrary("frmNCIPStatusCodes", "grdNCIPStatusCodes"),
       UpdateAndClose},
      {"ISO18626",
       "ID_ISO18626_CONNECT",
       {{"txtHostAddress", "ISO18626_HOST_ADDRESS"}, {"txtUrl", "ISO18626_HOST_URL"}},
       Dialog("frmISO18626Connect", "grdISO18626Connections"),
       update},
  };
}

}  // namespace

const std::vector<WritingScreen>& WritingScreens() {
  static const std::vector<WritingScreen> screens = [] {
    std::vector<WritingScreen> all = TabScreens();
    for (const auto& more : {DialogScreens(), LibraryScreens()}) all.insert(all.end(), more.begin(), more.end());
    return all;
  }();
  return screens;
}
