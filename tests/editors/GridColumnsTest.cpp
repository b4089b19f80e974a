// Headings and widths of the grids of all tabs.
#include "core/ModuleState.h"
#include "support/Desk.h"

namespace {

struct GridOfTab {
  const char* name;
  int tab;
  const char* subTabs;  // empty where the tab has none
  int subTab;
  const char* rateTable;
  const char* grid;
  QStringList columns;  // heading and twips from the marker on; "-" behind a hidden one
};

void PrintTo(const GridOfTab& grid, std::ostream* out) {
  *out << grid.name;
}

class GridColumnsTest : public SampleDesk, public testing::WithParamInterface<GridOfTab> {};

TEST_P(GridColumnsTest, AreTheOnesTold) {
  const GridOfTab& told = GetParam();
  Start();
  SelectTab("sstabtables", told.tab);
  if (*told.subTabs) SelectTab(told.subTabs, told.subTab);
  if (*told.rateTable) Choose("cmb7RateTable", told.rateTable);
  Shell().ConfigureGrdTable();
  auto* const grid = Find<Grid>(told.grid);
  QStringList columns;
  for (int col = 0; col < grid->Cols(); ++col)
    columns.append(grid->Text(0, col) + (grid->ColHidden(col) ? QString("-") : QString::number(grid->ColWidth(col))));
  EXPECT_EQ(columns, told.columns);
}

constexpr auto Rates = "sstab7Invoicing";
constexpr auto Exceptions = "sstab8Exception";

INSTANTIATE_TEST_SUITE_P(
    Tabs, GridColumnsTest,
    testing::Values(
        GridOfTab{
            "CodeTables",
            0,
            "",
            0,
            "",
            "grd0TableDesc",
            {"200", "1770", "Description5000", "Delivery Type-", "Web-", "Library Symbol-", "Default-", "Library Id-"}},
        GridOfTab{"CoverPages",
                  1,
                  "",
                  0,
                  "",
                  "grd1CoverInfo",
                  {"200", "Request Type 1770", "Header2000", "Footer2000", "Message 12500", "Message 22500", "-", "-"}},
        GridOfTab{"Printers", 3, "", 0, "", "grd3Printer", {"400", "Printer Name2000", "Device5620"}},
        GridOfTab{"AutoRejects", 4, "", 0, "", "grd4AutoReject", {"400", "Reject Field2500", "Reject Type6000", "-"}},
        GridOfTab{"DeliveryMethods",
                  5,
                  "sstab5Delivery",
                  0,
                  "",
                  "grd5aTable",
                  {"400", "Code1000", "Description7400", "Active1000", "Print1000", "Patron-"}},
        GridOfTab{"MessagingMethods",
                  5,
                  "sstab5Delivery",
                  1,
                  "",
                  "grd5bTable",
                  {"400", "Code1000", "Description6500", "Active1000", "Print1000", "Patron1000"}},
        GridOfTab{"RequestMethods",
                  5,
                  "sstab5Delivery",
                  2,
                  "",
                  "grd5cTable",
                  {"400", "Code1000", "Description8500", "Active1000"}},
        GridOfTab{"PickupLocations",
                  5,
                  "sstab5Delivery",
                  3,
                  "",
                  "grd5dTable",
                  {"400", "Library Symbol1800", "Code700", "ILS Code1800", "Delivery Code1500", "Description4000"}},
        GridOfTab{"Copyright",
                  7,
                  Rates,
                  0,
                  "Copyright Comply",
                  "grd7Table",
                  {"400", "Code1000", "Surcharge2000", "Description7520"}},
        GridOfTab{"SupplyRates",
                  7,
                  Rates,
                  0,
                  "Document Supply Rates",
                  "grd7Table",
                  {"400", "Billing Rate4500", "Document Supply2300", "Flat Fee750", "Unit Size750", "Free Exp.750",
                   "Per Exp.750"}},
        GridOfTab{"RejectRates",
                  7,
                  Rates,
                  0,
                  "Reject Code Rates",
                  "grd7Table",
                  {"400", "Billing Rate6200", "Reject Type3000", "Surcharge500"}},
        GridOfTab{"AliasRates",
                  7,
                  Rates,
                  0,
                  "Billing Rate Alias",
                  "grd7Table",
                  {"400", "-", "Supplying Library2000", "Supplying Unit2000", "Requesting Library2000",
                   "New Billing Rate2000"}},
        GridOfTab{"BillingRates",
                  7,
                  Rates,
                  1,
                  "",
                  "grd7BillingRate",
                  {"400", "Code1000", "Description7020", "Invoice Flag Override1800"}},
        GridOfTab{"ExceptionCodes",
                  8,
                  Exceptions,
                  0,
                  "",
                  "grd8Table",
                  {"400", "Code1000", "Type1000", "Description6000", "Service Charge-"}},
        GridOfTab{"ValidExceptions",
                  8,
                  Exceptions,
                  1,
                  "",
                  "grd8Document",
                  {"400", "Type750", "Process750", "Message3000", "Reroute1190", "Delivery1260", "Exception Note3500"}},
        GridOfTab{"ExceptionGroups", 8, Exceptions, 2, "", "grd8dTable", {"400", "Exception3000", "Description6000"}},
        GridOfTab{"IsoRejects",
                  8,
                  Exceptions,
                  3,
                  "",
                  "grd8ISO",
                  {"400", "Code1000", "Description3020", "ISO Reject Code5000"}},
        GridOfTab{
            "RequestTypes",
            9,
            "",
            0,
            "",
            "grd9RequestType",
            {"400", "Code600", "Description4000", "Library Symbol2500", "Customer ID2500", "Invoice Flag1000", "-"}},
        GridOfTab{"AuditLocations", 10, "sstab10Audit", 0, "", "grd10aTable", {"400", "Code1000", "Description8020"}},
        GridOfTab{"AuditFunctions",
                  10,
                  "sstab10Audit",
                  1,
                  "",
                  "grd10bTable",
                  {"400", "Code1000", "Description6000", "Display1000"}}),
    [](const auto& grid) { return std::string(grid.param.name); });

}  // namespace
