// A row that another client has deleted: Update and Delete tell that there is none, and say nothing of success.
#include "core/ModuleState.h"
#include "support/Desk.h"

namespace {

const QString NoSuchCode = "This Code does not exist in the table.  Please select a Valid Code to Update.";
const QString NoSuchRow = "Please select a valid record from the table.";

struct Gone {
  const char* name;
  int tab;
  const char* subTabs;
  int subTab;
  const char* insert;
  const char* remove;
  const char* grid;
  const char* cell;  // in column 1
  const char* box;   // a change of it makes an Update worth while
  QString update;
  int style;
  QString question;  // of Delete; empty where there is none
  QString deleted;
  int deleteStyle;
};

void PrintTo(const Gone& gone, std::ostream* out) {
  *out << gone.name;
}

class GoneRowTest : public Desk, public testing::WithParamInterface<Gone> {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'One')");
  }
};

TEST_P(GoneRowTest, IsToldAsGone) {
  const Gone& gone = GetParam();
  Another(gone.insert);
  Start();
  SelectTab("sstabtables", gone.tab);
  if (*gone.subTabs) SelectTab(gone.subTabs, gone.subTab);
  SelectRowOf(gone.grid, gone.cell);
  Type(gone.box, "other");
  Another(gone.remove);
  Prompt().Expect(gone.update, gone.style);
  Click("cmdUpdate");
  EXPECT_TRUE(gbRecordModified);
  if (gone.question.isEmpty()) return;
  Prompt().Expect(gone.question, 36, MessageAnswer::Yes).Expect(gone.deleted, gone.deleteStyle);
  Click("cmdDelete");
}

const QString Sure = "Are you sure you wish to Delete this record?";

INSTANTIATE_TEST_SUITE_P(
    Tabs, GoneRowTest,
    testing::Values(
        Gone{"CoverPages", 1, "", 0, "UPDATE ID_COVER_INFO SET HEADER = 'x' WHERE REQUEST_TYPE = 'REG'",
             "DELETE FROM ID_COVER_INFO WHERE REQUEST_TYPE = 'REG'", "grd1CoverInfo", "REG - Regular requests",
             "txt1Header", NoSuchCode, 16, "", "", 0},
        Gone{"Departments", 2, "", 0,
             "INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC) VALUES (71, 'ZZZ', 'Zed')",
             "DELETE FROM ID_DEPARTMENT WHERE DEPARTMENT = 'ZZZ'", "grd2Department", "ONE", "txt2Description",
             NoSuchCode, 16, Sure, "Nothing was deleted.  Make sure you have a valid record selected.", 48},
        Gone{"Printers", 3, "", 0, "INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('Zed', 'z')",
             "DELETE FROM ID_PRINTER WHERE PRINTER = 'Zed'", "grd3Printer", "Zed", "txt3Printer", NoSuchCode, 16, "",
             "", 0},
        Gone{"MessagingMethods", 5, "sstab5Delivery", 1,
             "INSERT INTO ID_MSG_METHOD (MSG_METHOD, MSG_METHOD_DESC) VALUES ('Z', 'Zed')",
             "DELETE FROM ID_MSG_METHOD WHERE MSG_METHOD = 'Z'", "grd5bTable", "Z", "txt5bDescription", NoSuchCode, 16,
             "", "", 0},
        Gone{"PickupLocations", 5, "sstab5Delivery", 3,
             "INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES (71, 'Z', 'z')",
             "DELETE FROM ID_PICKUP_LOCATION WHERE LIBRARY_ID = 71", "grd5dTable", "ONE", "txt5dDescription",
             NoSuchCode, 16, "Are you sure you wish to Delete this location?",
             "Nothing was deleted.  Make sure you have a valid record selected.", 48},
        Gone{"BillingRates", 7, "sstab7Invoicing", 1,
             "INSERT INTO ID_BILLING_RATE (BILLING_RATE, BILLING_RATE_DESC) VALUES ('Z', 'Zed')",
             "DELETE FROM ID_BILLING_RATE WHERE BILLING_RATE = 'Z'", "grd7BillingRate", "Z", "txt7BillingDescription",
             NoSuchCode, 16, "This will Delete all Corresponding Document Supply Records.\n" + Sure, NoSuchRow, 16},
        Gone{"ExceptionCodes", 8, "sstab8Exception", 0,
             "INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE) VALUES ('ZZZ', 'Zed',"
             " 'B')",
             "DELETE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'ZZZ'", "grd8Table", "ZZZ", "txt8Description",
             NoSuchCode, 16, Sure, NoSuchRow, 16},
        Gone{"RequestTypes", 9, "", 0,
             "INSERT INTO ID_REQUEST_TYPE (REQUEST_TYPE, REQUEST_TYPE_DESC, INVOICE_FLAG) VALUES ('ZZZ', 'Zed', 'Y')",
             "DELETE FROM ID_REQUEST_TYPE WHERE REQUEST_TYPE = 'ZZZ'", "grd9RequestType", "ZZZ", "txt9Description",
             NoSuchCode, 16, "", "", 0},
        Gone{"AuditLocations", 10, "sstab10Audit", 0,
             "INSERT INTO ID_STAT_LOCATION (STAT_LOCATION, STAT_LOCATION_DESC) VALUES ('Z', 'Zed')",
             "DELETE FROM ID_STAT_LOCATION WHERE STAT_LOCATION = 'Z'", "grd10aTable", "Z", "txt10aDescription",
             NoSuchCode, 16, "", "", 0}),
    [](const auto& gone) { return std::string(gone.param.name); });

}  // namespace
