#include "platform/ado/AdoError.h"
#include "support/Texts.h"
#include "tools/ToolDesk.h"

namespace {

// What the database itself refuses, the same on every engine: the screens rely on it.
class RefusalTest : public ToolDesk {
 protected:
  void SetUp() override {
    ToolDesk::SetUp();
    UseDatabase();
    for (int id : {1, 2})
      Execute(QString("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (%1, 'L%1', 'X')")
                  .arg(id));
  }

  // The description of the refusal; a statement that goes through fails the case.
  QString Refused(const QString& sql) {
    try {
      Execute(sql);
    } catch (const AdoError& error) {
      return error.Description();
    }
    ADD_FAILURE() << "not refused: " << sql.toStdString();
    return {};
  }
  bool IsDuplicate(const QString& sql) { return Refused(sql).contains("duplicate"); }
  bool IsReferenced(const QString& sql) { return Refused(sql).contains("REFERENCE"); }
};

TEST_F(RefusalTest, TextsLongerThanTheirColumn) {
  Refused("UPDATE ID_LIBRARY SET PRIME_CITY = '" + QString(41, 'x') + "' WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_EVENT SET EVENT_DESC_FRE = '" + QString(81, 'x') + "'");
  Refused("INSERT INTO ID_PRINTER (PRINTER) VALUES ('" + QString(41, 'x') + "')");
  // Characters count, not bytes.
  Execute("UPDATE ID_LIBRARY SET PRIME_CITY = '" + QString(40, QChar(0xfc)) + "' WHERE LIBRARY_ID = 1");
  QString smiles;
  for (int i = 0; i < 40; ++i) smiles += QString::fromUtf8("😀");
  Execute("UPDATE ID_LIBRARY SET PRIME_CITY = '" + smiles + "' WHERE LIBRARY_ID = 1");
  EXPECT_EQ(Ask("SELECT PRIME_CITY FROM ID_LIBRARY WHERE LIBRARY_ID = 1"), smiles);
}

TEST_F(RefusalTest, TextsInColumnsOfNumbersAndDates) {
  Refused("UPDATE ID_LIBRARY SET MAX_DAYS = 'many' WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_LIBRARY SET MAX_DAYS = '' WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_LIBRARY SET MAX_COST = 'zz' WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_LIBRARY SET NOTICE_SDATE = 'soon' WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_LIBRARY SET NOTICE_SDATE = '2026-02-30' WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_LIBRARY SET LAST_MODIFIED = '2026-10-32 10:00:00' WHERE LIBRARY_ID = 1");
  Execute(
      "UPDATE ID_LIBRARY SET MAX_DAYS = '5', NOTICE_SDATE = '2028-02-29', LAST_MODIFIED = '2026-03-29 02:30:00' WHERE "
      "LIBRARY_ID = 1");
  EXPECT_EQ(Ask("SELECT MAX_DAYS FROM ID_LIBRARY WHERE LIBRARY_ID = 1"), "5");
  EXPECT_EQ(Ask("SELECT LAST_MODIFIED FROM ID_LIBRARY WHERE LIBRARY_ID = 1"), "2026-03-29 02:30:00");
}

TEST_F(RefusalTest, NumbersBeyondTheirColumn) {
  Refused("UPDATE ID_LIBRARY SET MAX_COST = 10000 WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_LIBRARY SET WEIGHTING_FACTOR = 100 WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_LIBRARY SET MAX_DAYS = 2147483648 WHERE LIBRARY_ID = 1");
  Refused("UPDATE ID_EXCEPTION_CODE SET SERVICE_CHARGE = 1000 WHERE EXCEPTION_CODE = 'BIB'");
  Execute(
      "UPDATE ID_LIBRARY SET MAX_COST = 9999.99, WEIGHTING_FACTOR = 99.99, MAX_DAYS = 2147483647 WHERE LIBRARY_ID = 1");
  EXPECT_EQ(Ask("SELECT MAX_COST FROM ID_LIBRARY WHERE LIBRARY_ID = 1"), "9999.99");
}

TEST_F(RefusalTest, MissingValuesOfKeys) {
  Refused("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL) VALUES (3, 'L3')");
  Refused("INSERT INTO ID_PRINTER (DEVICE) VALUES ('x')");
}

TEST_F(RefusalTest, DuplicateKeysAreCalledSo) {
  EXPECT_TRUE(IsDuplicate("INSERT INTO ID_DELIV_METHOD (DELIV_METHOD) VALUES ('M')"));
  EXPECT_TRUE(
      IsDuplicate("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (3, 'L1', 'X')"));
  Execute("INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES (1, 'A', 'Desk')");
  EXPECT_TRUE(IsDuplicate(
      "INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES (1, 'B', 'Desk')"));
  Execute("INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES (2, 'A', 'Desk')");
  Execute("INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER) VALUES ('ABC')");
  EXPECT_TRUE(IsDuplicate("INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER) VALUES ('ABC')"));
  Execute("INSERT INTO ID_RATE_ALIAS (LIBRARY_ID, SUPPLIER_LIBRARY_ID, BILLING_RATE) VALUES (1, 2, 'A')");
}

TEST_F(RefusalTest, KeysThatDifferInLetterCaseOrAccentsAreTwo) {
  Execute("INSERT INTO ID_CUSTOMER_ID (CUSTOMER_ID) VALUES ('internal')");
  Execute("INSERT INTO ID_CUSTOMER_ID (CUSTOMER_ID) VALUES ('INTÉRNAL')");
  EXPECT_EQ(Count("ID_CUSTOMER_ID", "CUSTOMER_ID = 'internal'"), 1);
}

TEST_F(RefusalTest, RowsThatAreReferredToStay) {
  Execute("UPDATE ID_LIBRARY SET DELIV_METHOD_COPY = 'E', BILLING_RATE = 'C', LOAN_CODE = 'S' WHERE LIBRARY_ID = 1");
  EXPECT_TRUE(IsReferenced("DELETE FROM ID_DELIV_METHOD WHERE DELIV_METHOD = 'E'"));
  EXPECT_TRUE(IsReferenced("DELETE FROM ID_BILLING_RATE WHERE BILLING_RATE = 'C'"));
  EXPECT_TRUE(IsReferenced("DELETE FROM ID_LOAN_CODE WHERE LOAN_CODE = 'S'"));
  EXPECT_TRUE(IsReferenced("DELETE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE = 'BIB'"));
  EXPECT_TRUE(IsReferenced("UPDATE ID_LIBRARY SET DELIV_METHOD_LOAN = '9' WHERE LIBRARY_ID = 1"));
  Execute("DELETE FROM ID_BILLING_RATE WHERE BILLING_RATE = 'R'");
}

TEST_F(RefusalTest, DepartmentsAndPickupLocationsOfPatronsStay) {
  Execute("INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC) VALUES (1, 'BIO', 'Biology')");
  Execute("INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES (1, 'A', 'Desk')");
  Execute("INSERT INTO ID_PATRON (LIBRARY_ID, PATRON_ID, DEPARTMENT, PICKUP_LOCATION) VALUES (1, 'P', 'BIO', 'A')");
  EXPECT_TRUE(IsReferenced("DELETE FROM ID_DEPARTMENT WHERE DEPARTMENT = 'BIO'"));
  EXPECT_TRUE(IsReferenced("DELETE FROM ID_PICKUP_LOCATION WHERE PICKUP_LOCATION = 'A'"));
  EXPECT_TRUE(IsReferenced("UPDATE ID_PICKUP_LOCATION SET PICKUP_LOCATION = 'B' WHERE PICKUP_LOCATION = 'A'"));
}

TEST_F(RefusalTest, ALibraryWithRequestsStaysAndNobodysRequestsHaveALibrary) {
  Execute("INSERT INTO ID_REQUEST (REQUEST_NUMBER, LIBRARY_ID, REQUEST_TYPE) VALUES ('REG1', 1, 'REG')");
  EXPECT_TRUE(IsReferenced("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 1"));
  Execute("DELETE FROM ID_LIBRARY WHERE LIBRARY_ID = 2");
  Execute("INSERT INTO ID_REQUEST (REQUEST_NUMBER, LIBRARY_ID, REQUEST_TYPE) VALUES ('REG2', 9999999, 'REG')");
}

TEST_F(RefusalTest, CurrenciesAndItemTypesGoThoughTheyAreUsed) {
  Execute("UPDATE ID_LIBRARY SET CURRENCY_CODE = 'EUR' WHERE LIBRARY_ID = 1");
  Execute("DELETE FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = 'EUR'");
  Execute("INSERT INTO ID_ACCESS_ITEM_TYPE (ACCESS_GROUP, ITEM_TYPE) VALUES ('ADM', 'BOK')");
  Execute("DELETE FROM ID_ITEM_TYPE WHERE ITEM_TYPE = 'BOK'");
  Execute("INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID) VALUES (0)");
}

TEST_F(RefusalTest, NotesFollowTheirPairOfExceptionAndProcess) {
  Execute("INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE) VALUES ('BIB', 'SEA')");
  Execute(
      "INSERT INTO ID_EXCEPTION_NOTE (EXCEPTION_CODE, PROCESS_TYPE, EXCEPTION_NOTE_SEQ) VALUES ('BIB', 'SEA', '1')");
  Execute("UPDATE ID_EXCEPTION_PROCESS SET EXCEPTION_CODE = 'LOS', PROCESS_TYPE = 'REQ' WHERE EXCEPTION_CODE = 'BIB'");
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE", "EXCEPTION_CODE = 'LOS' AND PROCESS_TYPE = 'REQ'"), 1);
  Execute("DELETE FROM ID_EXCEPTION_PROCESS WHERE EXCEPTION_CODE = 'LOS'");
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE"), 0);
}

}  // namespace
