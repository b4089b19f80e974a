// Loading the grid of each tab while one of its tables is missing: the failure line of that statement, letter for
// letter, in the message and in the log, and a grid that is left with its heading row.
#include "support/Desk.h"

namespace {

struct MissingTable {
  const char* name;
  int tab;
  const char* subTabs;  // empty where the tab has none
  int subTab;
  const char* rateTable;  // chosen on the tab of the invoicing tables
  const char* grid;
  const char* table;
  const char* line;
};

void PrintTo(const MissingTable& missing, std::ostream* out) {
  *out << missing.name;
}

class GridFailureTest : public SampleDesk, public testing::WithParamInterface<MissingTable> {};

TEST_P(GridFailureTest, TheLineOfTheStatementIsShownAndLogged) {
  const MissingTable& missing = GetParam();
  Start();
  SelectTab("sstabtables", missing.tab);
  if (*missing.subTabs) SelectTab(missing.subTabs, missing.subTab);
  if (*missing.rateTable) Choose("cmb7RateTable", missing.rateTable);
  const QString table = missing.table;
  Another("ALTER TABLE " + table + " RENAME TO ID_AWAY");
  Prompt().ExpectTitled(missing.line, 16, "Ostana - System Maintenance");
  Shell().LoadDataInGrid();
  Another("ALTER TABLE ID_AWAY RENAME TO " + table);
  EXPECT_EQ(Rows(missing.grid), 1);
  const QStringList log = LogLines();
  ASSERT_GE(log.size(), 3);
  EXPECT_TRUE(log[log.size() - 3].endsWith("  * frmTabulon.LoadDataInGrid")) << log[log.size() - 3].toStdString();
  EXPECT_EQ(log[log.size() - 2], QString(24, ' ') + "* " + missing.line);
  EXPECT_TRUE(log.last().startsWith(QString(24, ' ') + "* Error: -2147217900 - ")) << log.last().toStdString();
}

constexpr auto Rates = "sstab7Invoicing";
constexpr auto Exceptions = "sstab8Exception";

INSTANTIATE_TEST_SUITE_P(
    Tabs, GridFailureTest,
    testing::Values(MissingTable{"CoverPages", 1, "", 0, "", "grd1CoverInfo", "ID_COVER_INFO",
                                 "***** SQL error on OSTANA.ID_COVER_INFO OR ID_REQUEST_TYPE (Select) *****"},
                    MissingTable{"Departments", 2, "", 0, "", "grd2Department", "ID_DEPARTMENT",
                                 "***** SQL error on OSTANA.ID_DEPARTMENT (Select) *****"},
                    MissingTable{"Printers", 3, "", 0, "", "grd3Printer", "ID_PRINTER",
                                 "***** SQL error on OSTANA.ID_PRINTER (Select) *****"},
                    MissingTable{"DeliveryMethods", 5, "sstab5Delivery", 0, "", "grd5aTable", "ID_DELIV_METHOD",
                                 "***** SQL error on OSTANA.ID_DELIV_METHOD (Select) *****"},
                    MissingTable{"MessagingMethods", 5, "sstab5Delivery", 1, "", "grd5bTable", "ID_MSG_METHOD",
                                 "***** SQL error on OSTANA.ID_MSG_METHOD (Select) *****"},
                    MissingTable{"RequestMethods", 5, "sstab5Delivery", 2, "", "grd5cTable", "ID_REQ_METHOD",
                                 "***** SQL error on OSTANA.ID_REQ_METHOD (Select) *****"},
                    MissingTable{"PickupLocations", 5, "sstab5Delivery", 3, "", "grd5dTable", "ID_PICKUP_LOCATION",
                                 "***** SQL error on OSTANA.ID_PICKUP_LOCATION (Select)*****"},
                    MissingTable{"Copyright", 7, Rates, 0, "Copyright Comply", "grd7Table", "ID_COPYRIGHT_CMP",
                                 "***** SQL error on OSTANA.ID_COPYRIGHT_CMP (Select) *****"},
                    MissingTable{"DeliveryRates", 7, Rates, 0, "Delivery Method Rates", "grd7Table", "ID_RATE_DELIVERY",
                                 "***** SQL error on OSTANA.ID_RATE_DELIVERY (Select) *****"},
                    MissingTable{"DeliveryRatesMethods", 7, Rates, 0, "Delivery Method Rates", "grd7Table",
                                 "ID_DELIV_METHOD", "***** SQL error on OSTANA.ID_DELIVERY_METHOD (Select) *****"},
                    MissingTable{"SupplyRates", 7, Rates, 0, "Document Supply Rates", "grd7Table", "ID_RATE_SUPPLY",
                                 "***** SQL error on OSTANA.ID_RATE_SUPPLY (Select) *****"},
                    MissingTable{"SupplyRatesCodes", 7, Rates, 0, "Document Supply Rates", "grd7Table",
                                 "ID_EXCEPTION_CODE", "***** SQL error on OSTANA.ID_EXCEPTION_CODE (Select) *****"},
                    MissingTable{"OutputRates", 7, Rates, 0, "Output Format Rates", "grd7Table", "ID_RATE_OUTPUT",
                                 "***** SQL error on OSTANA.ID_RATE_OUTPUT (Select) *****"},
                    MissingTable{"OutputRatesFormats", 7, Rates, 0, "Output Format Rates", "grd7Table",
                                 "ID_OUTPUT_FORMAT", "***** SQL error on OSTANA.ID_OUTPUT_FORMAT (Select) *****"},
                    MissingTable{"RejectRates", 7, Rates, 0, "Reject Code Rates", "grd7Table", "ID_RATE_REJECT",
                                 "***** SQL error on OSTANA.ID_RATE_REJECT (Select) *****"},
                    MissingTable{"RejectRatesBillingRates", 7, Rates, 0, "Reject Code Rates", "grd7Table",
                                 "ID_BILLING_RATE", "***** SQL error on OSTANA.ID_DBILLING_RATE (Select) *****"},
                    MissingTable{"ServiceRates", 7, Rates, 0, "Service Level Rates", "grd7Table", "ID_RATE_SERVICE",
                                 "***** SQL error on OSTANA.ID_RATE_SERVICE (Select) *****"},
                    MissingTable{"ServiceRatesLevels", 7, Rates, 0, "Service Level Rates", "grd7Table",
                                 "ID_SERVICE_LEVEL", "***** SQL error on OSTANA.ID_SERVICE_LEVEL (Select) *****"},
                    MissingTable{"AliasRates", 7, Rates, 0, "Billing Rate Alias", "grd7Table", "ID_RATE_ALIAS",
                                 "***** SQL error on OSTANA.ID_RATE_ALIAS (Select) *****"},
                    MissingTable{"AliasRatesLibraries", 7, Rates, 0, "Billing Rate Alias", "grd7Table", "ID_LIBRARY",
                                 "***** SQL error on OSTANA.ID_LIBRARY (Select) *****"},
                    MissingTable{"BillingRates", 7, Rates, 1, "", "grd7BillingRate", "ID_BILLING_RATE",
                                 "***** SQL error on OSTANA.ID_BILLING_RATE (Select) *****"},
                    MissingTable{"ExceptionCodes", 8, Exceptions, 0, "", "grd8Table", "ID_EXCEPTION_CODE",
                                 "***** SQL error on OSTANA.ID_EXCEPTION_CODE (Select) *****"},
                    MissingTable{"ExceptionProcesses", 8, Exceptions, 1, "", "grd8Document", "ID_EXCEPTION_PROCESS",
                                 "***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (Select) *****"},
                    MissingTable{"IsoReasons", 8, Exceptions, 3, "", "grd8ISO", "ID_EXCEPTION_ISO",
                                 "***** SQL error on OSTANA.ID_EXCEPTION_ISO (Select) *****"},
                    MissingTable{"RequestTypes", 9, "", 0, "", "grd9RequestType", "ID_REQUEST_TYPE",
                                 "***** SQL error on OSTANA.ID_REQUEST_TYPE (Select) *****"},
                    MissingTable{"AuditLocations", 10, "sstab10Audit", 0, "", "grd10aTable", "ID_STAT_LOCATION",
                                 "***** SQL error on ID_STAT_LOCATION (Select) *****"},
                    MissingTable{"AuditFunctions", 10, "sstab10Audit", 1, "", "grd10bTable", "ID_STAT_FUNCTION",
                                 "***** SQL error on OSTANA.ID_STAT_FUNCTION (Select) *****"}),
    [](const auto& missing) { return std::string(missing.param.name); });

}  // namespace
