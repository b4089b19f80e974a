// The table's rows for the tabs of the main screen.
#include "reliability/WritingSteps.h"
#include "reliability/WritingTables.h"

using namespace Steps;
using Shell = frmTabulon;

namespace {

// The buttons of the main screen.
WritingScreen OnMainScreen(WritingScreen screen, bool updates, bool adds, bool removes) {
  if (updates) screen.write = Button("cmdUpdate");
  if (adds) screen.add = Button("cmdAdd");
  if (removes) screen.remove = Button("cmdDelete");
  return screen;
}
WritingScreen Edited(WritingScreen screen) {
  return OnMainScreen(std::move(screen), true, true, true);
}
WritingScreen NeverDeleted(WritingScreen screen) {
  return OnMainScreen(std::move(screen), true, true, false);
}
WritingScreen OnlyUpdated(WritingScreen screen) {
  return OnMainScreen(std::move(screen), true, false, false);
}
WritingScreen NeverUpdated(WritingScreen screen) {
  return OnMainScreen(std::move(screen), false, true, true);
}

WritingScreen CodeTable(const char* name, const char* table, const char* code, const char* description) {
  return Edited({.name = name,
                 .place = "tab-00-code-tables",
                 .table = table,
                 .fields = {{"txt0Description", description}},
                 .open = TabWithChoice(Shell::CodeTablesTab, "cmb0Tables", table, "grd0TableDesc"),
                 .keys = {{"txt0Code", code, Trimmed::EndsAndUpper}},
                 .grid = "grd0TableDesc",
                 .marks = {{1, "txt0Code"}}});
}

WritingScreen Audit(const char* name, const char* place, const char* table, const char* code, const char* codeBox,
                    const char* description, const char* descriptionBox, const char* grid, int tab) {
  return NeverDeleted({.name = name,
                       .place = place,
                       .table = table,
                       .fields = {{descriptionBox, description}},
                       .open = Tab(Shell::AuditTab, grid, "sstab10Audit", tab),
                       .keys = {{codeBox, code, Trimmed::EndsAndUpper}}});
}

WritingScreen Methods(const char* name, const char* place, const char* table, const char* code, const char* codeBox,
                      const char* description, const char* descriptionBox, const char* grid, int tab) {
  return NeverDeleted({.name = name,
                       .place = place,
                       .table = table,
                       .fields = {{descriptionBox, description}},
                       .open = Tab(Shell::DeliveryTab, grid, "sstab5Delivery", tab),
                       .keys = {{codeBox, code, Trimmed::EndsAndUpper}},
                       .ownColumns = {"ACTIVE_FLAG", "PRINT_FLAG", "WEB_FLAG"}});  // No is stored for what was open
}

// A rate table that is priced by billing rate: its key is two lists, the rest are numbers.
WritingScreen Rate(const char* name, const char* caption, const char* table, const char* key, const char* number) {
  return Edited(
      {.name = name,
       .place = "tab-07-invoicing-0",
       .table = table,
       .open = TabWithChoice(Shell::InvoicingTab, "cmb7RateTable", caption, "grd7Table", "sstab7Invoicing", 0),
       .change = Number(number),
       .choose = FreePair("cmb7aBillingRate", "cmb7aDeliveryMethod", table, "BILLING_RATE", key),
       .grid = "grd7Table",
       .marks = {{1, "cmb7aBillingRate"}, {2, "cmb7aDeliveryMethod"}}});
}

std::vector<WritingScreen> Invoicing() {
  const auto rateTable = [](const char* caption) {
    return TabWithChoice(Shell::InvoicingTab, "cmb7RateTable", caption, "grd7Table", "sstab7Invoicing", 0);
  };
  return {
      Edited({.name = "CopyrightRates",
              .place = "tab-07-invoicing-0",
              .table = "ID_COPYRIGHT_CMP",
              .fields = {{"txt7Description", "COPYRIGHT_CMP_DESC", Trimmed::EndsAndUpper, Trimmed::Ends}},
              .open = rateTable("Copyright Comply"),
              .change = Number("txt7Surcharge"),
              .keys = {{"txt7Code", "COPYRIGHT_CMP", Trimmed::EndsAndUpper}},
              .grid = "grd7Table",
              .marks = {{1, "txt7Code"}}}),
      Rate("DeliveryRates", "Delivery Method Rates", "ID_RATE_DELIVERY", "DELIV_METHOD", "txt7aFlatFee"),
      Rate("SupplyRates", "Document Supply Rates", "ID_RATE_SUPPLY", "EXCEPTION_CODE", "txt7aFlatFee"),
      Rate("OutputRates", "Output Format Rates", "ID_RATE_OUTPUT", "OUTPUT_FORMAT", "txt7aFlatFee"),
      Rate("RejectRates", "Reject Code Rates", "ID_RATE_REJECT", "EXCEPTION_CODE", "txt7aFlatFee"),
      Rate("ServiceRates", "Service Level Rates", "ID_RATE_SERVICE", "SERVICE_LEVEL", "txt7aFlatFee"),
      Edited({.name = "AliasRates",
              .place = "tab-07-invoicing-0",
              .table = "ID_RATE_ALIAS",
              .open = rateTable("Billing Rate Alias"),
              .change = Another("cmb7Alias"),
              .choose =
                  [](ReliabilityDesk& desk, int round) {
                    // A library that supplies nobody yet, and one more that asks it in each round.
                    desk.ChooseAt("cmb7aBillingRate", desk.Find<CodeComboBox>("cmb7aBillingRate")->Count() - 1);
                    desk.ChooseAt("cmb7RequestingLibrary", round);
                  },
              .grid = "grd7Table",
              .marks = {{2, "cmb7aBillingRate"}, {4, "cmb7RequestingLibrary"}}}),
      Edited({.name = "BillingRates",
              .place = "tab-07-invoicing-1",
              .table = "ID_BILLING_RATE",
              .fields = {{"txt7BillingDescription", "BILLING_RATE_DESC"}},
              .open = Tab(Shell::InvoicingTab, "grd7BillingRate", "sstab7Invoicing", 1),
              .keys = {{"txt7BillingCode", "BILLING_RATE", Trimmed::EndsAndUpper}},
              .grid = "grd7BillingRate",
              .marks = {{1, "txt7BillingCode"}}}),
  };
}

std::vector<WritingScreen> Exceptions() {
  const auto tab = [](const char* grid, int inner) {
    return Tab(Shell::ExceptionsTab, grid, "sstab8Exception", inner);
  };
  return {
      Edited({.name = "ExceptionCodes",
              .place = "tab-08-exceptions-0",
              .table = "ID_EXCEPTION_CODE",
              .fields = {{"txt8Description", "EXCEPTION_CODE_DESC"}},
              .open = tab("grd8Table", 0),
              .keys = {{"txt8Code", "EXCEPTION_CODE", Trimmed::EndsAndUpper}},
              .grid = "grd8Table",
              .marks = {{1, "txt8Code"}}}),
      Edited({.name = "ValidExceptions",
              .place = "tab-08-exceptions-1",
              .table = "ID_EXCEPTION_PROCESS",
              .fields = {{"txt8Message1", "MESSAGE"}},
              .open = tab("grd8Document", 1),
              .choose = FreePair("cmb8DocumentSupply", "cmb8ProcessType", "ID_EXCEPTION_PROCESS", "EXCEPTION_CODE",
                                 "PROCESS_TYPE"),
              .grid = "grd8Document",
              .marks = {{1, "cmb8DocumentSupply", true}, {2, "cmb8ProcessType", true}}}),
      // A pair with one note at most, which is edited here.
      OnlyUpdated({.name = "ValidExceptionNote",
                   .place = "tab-08-exceptions-1",
                   .table = "ID_EXCEPTION_PROCESS",
                   .fields = {{"txt8Message1", "MESSAGE"}, {"txtExceptionNote", "EXCEPTION_NOTE"}},
                   .open =
                       [tab](ReliabilityDesk& desk) {
                         tab("grd8Document", 1)(desk);
                         if (desk.Cell("grd8Document", desk.Row("grd8Document"), 1) != "BND")
                           desk.SelectRowOf("grd8Document", "BND");
                       }}),
      NeverUpdated(
          {.name = "ExceptionGroups",
           .place = "tab-08-exceptions-2",
           .table = "ID_ACCESS_EXCEPTION",
           .open = TabWithChoice(Shell::ExceptionsTab, "cmb8AccessGroup", "ADM", "grd8dTable", "sstab8Exception", 2),
           .choose =
               FreePair("cmb8AccessGroup", "cmb8dException", "ID_ACCESS_EXCEPTION", "ACCESS_GROUP", "EXCEPTION_CODE"),
           .grid = "grd8dTable",
           .marks = {{1, "cmb8dException", true}}}),
      // Its buttons are off; the menu is on.
      {.name = "IsoRejects",
       .place = "tab-08-exceptions-3",
       .table = "ID_EXCEPTION_ISO",
       .open =
           [tab](ReliabilityDesk& desk) {
             // Enough codes to give a reason to.
             for (int code = 10; code < 40 && desk.Count("ID_EXCEPTION_CODE", "EXCEPTION_CODE = 'Y39'") == 0; ++code)
               desk.Another(QString("INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, "
                                    "EXCEPTION_TYPE) VALUES ('Y%1', 'Reason %1', 'R')")
                                .arg(code));
             tab("grd8ISO", 3)(desk);
           },
       .write = Entry("mnuOptionsUpdate"),
       .change = Another("cmb8ISOMessage"),
       .choose = Both(FreeEntry("cmb8RejectType", "ID_EXCEPTION_ISO", "EXCEPTION_CODE"), Another("cmb8ISOMessage")),
       .add = Entry("mnuOptionsAdd"),
       .grid = "grd8ISO",
       .marks = {{1, "txt8RejectTypeCode"}},
       .remove = Entry("mnuOptionsDelete")},
  };
}

}  // namespace

std::vector<WritingScreen> WritingTabs() {
  std::vector<WritingScreen> screens = {
      CodeTable("CodeTables", "ID_LIBRARY_CAT", "LIBRARY_CAT", "LIBRARY_CAT_DESC"),
      CodeTable("CodeTablesOfServices", "ID_SERVICE_TYPE", "SERVICE_TYPE", "SERVICE_TYPE_DESC"),
      CodeTable("CodeTablesOfAnswers", "ID_ACK_STATEMENT", "ACK_CODE", "ACK_STATEMENT"),
      CodeTable("CodeTablesOfCatalogues", "ID_CATALOG_CODE", "CATALOG_CODE", "CATALOG_CODE_DESC"),
      OnlyUpdated({.name = "CoverPages",
                   .place = "tab-01-cover-pages",
                   .table = "ID_COVER_INFO",
                   .fields = {{"txt1Header", "HEADER", Trimmed::No},
                              {"txt1Footer", "FOOTER", Trimmed::No},
                              {"txt1Message1", "MESSAGE_1", Trimmed::No},
                              {"txt1message2", "MESSAGE_2", Trimmed::No}},
                   .open = Tab(Shell::CoverPagesTab, "grd1CoverInfo")}),
      Edited({.name = "Departments",
              .place = "tab-02-departments",
              .table = "ID_DEPARTMENT",
              .fields = {{"txt2Description", "DEPARTMENT_DESC"},
                         {"txt2Address", "DEPARTMENT_ADDR"},
                         {"txtNCIPDepartment", "NCIP_DEPARTMENT"}},
              .open = Tab(Shell::DepartmentsTab, "grd2Department"),
              .keys = {{"txt2Department", "DEPARTMENT", Trimmed::EndsAndUpper}},
              .grid = "grd2Department",
              .marks = {{1, "txt2LibrarySymbol"}, {2, "txt2Department"}}}),
      Edited({.name = "Printers",
              .place = "tab-03-printers",
              .table = "ID_PRINTER",
              .fields = {{"txt3Printer", "PRINTER"}},
              .open = Tab(Shell::PrintersTab, "grd3Printer"),
              .grid = "grd3Printer",
              .marks = {{1, "txt3Printer"}}}),
      Edited({.name = "AutoRejects",
              .place = "tab-04-auto-rejects",
              .table = "ID_REJ_CALL_NUMBER",
              .open = TabWithChoice(Shell::AutoRejectsTab, "cmb4Tables", "ID_REJ_CALL_NUMBER", "grd4AutoReject"),
              .change = Another("cmb4RejectType"),
              .keys = {{"txt4Code", "CALL_NUMBER", Trimmed::EndsAndUpper}},
              .grid = "grd4AutoReject",
              .marks = {{1, "txt4Code"}}}),
      OnlyUpdated({.name = "RequestType",
                   .place = "tab-09-request-type",
                   .table = "ID_REQUEST_TYPE",
                   .fields = {{"txt9Description", "REQUEST_TYPE_DESC"}},
                   .open = Tab(Shell::RequestTypeTab, "grd9RequestType")}),
      Audit("AuditLocations", "tab-10-audit-codes-0", "ID_STAT_LOCATION", "STAT_LOCATION", "txt10aCode",
            "STAT_LOCATION_DESC", "txt10aDescription", "grd10aTable", 0),
      Audit("AuditFunctions", "tab-10-audit-codes-1", "ID_STAT_FUNCTION", "STAT_FUNCTION", "txt10bCode",
            "STAT_FUNCTION_DESC", "txt10bDescription", "grd10bTable", 1),
      Methods("DeliveryMethods", "tab-05-delivery-messaging-0", "ID_DELIV_METHOD", "DELIV_METHOD", "txt5aCode",
              "DELIV_METHOD_DESC", "txt5aDescription", "grd5aTable", 0),
      Methods("MessagingMethods", "tab-05-delivery-messaging-1", "ID_MSG_METHOD", "MSG_METHOD", "txt5bCode",
              "MSG_METHOD_DESC", "txt5bDescription", "grd5bTable", 1),
      Methods("RequestMethods", "tab-05-delivery-messaging-2", "ID_REQ_METHOD", "REQ_METHOD", "txt5cCode",
              "REQ_METHOD_DESC", "txt5cDescription", "grd5cTable", 2),
      Edited({.name = "PickupLocations",
              .place = "tab-05-delivery-messaging-3",
              .table = "ID_PICKUP_LOCATION",
              .fields = {{"txt5dDescription", "PICKUP_LOCATION_DESC"},
                         {"txt5dILSCode", "PICKUP_LOCATION_ILS"},
                         {"txt5dDeliverySystemCode", "DELIVERY_SYSTEM_CODE"}},
              .open = Tab(Shell::DeliveryTab, "grd5dTable", "sstab5Delivery", 3),
              .keys = {{"txt5dCode", "PICKUP_LOCATION", Trimmed::EndsAndUpper}},
              .grid = "grd5dTable",
              .marks = {{1, "txt5dLibrarySymbol"}, {2, "txt5dCode"}}}),
  };
  for (const auto& more : {Invoicing(), Exceptions()}) screens.insert(screens.end(), more.begin(), more.end());
  return screens;
}
