#include "core/PasswordCipher.h"
#include "platform/ado/Recordset.h"
#include "support/TestDatabase.h"
#include "support/Texts.h"

namespace {

QString First(Connection& connection, const QString& sql) {
  Recordset rows;
  rows.Open(connection, sql);
  return rows.EOF_() ? QString() : rows.Fields(0).Value();
}

// Each case has a database as if it were the first.
TEST(TestDatabaseTest, NothingOfOneCaseReachesTheNext) {
  QString printers;
  {
    TestDatabase first;
    printers = First(first.OtherClient(), "SELECT COUNT(*) FROM ID_PRINTER");
    first.OtherClient().Execute("INSERT INTO ID_PRINTER (PRINTER) VALUES ('left over')");
    first.OtherClient().Execute("DELETE FROM ID_EXCEPTION_ISO");
    first.OtherClient().Execute("UPDATE ID_NEXT_LIBRARY SET NEXT_LIBRARY = 77");
  }
  TestDatabase second;
  EXPECT_EQ(First(second.OtherClient(), "SELECT COUNT(*) FROM ID_PRINTER"), printers);
  EXPECT_NE(First(second.OtherClient(), "SELECT COUNT(*) FROM ID_EXCEPTION_ISO"), "0");
  EXPECT_EQ(First(second.OtherClient(), "SELECT NEXT_LIBRARY FROM ID_NEXT_LIBRARY"), "10000000");
}

TEST(TestDatabaseTest, ACaseThatChangedTheTablesLeavesWholeOnesBehind) {
  {
    TestDatabase first;
    first.OtherClient().Execute("DROP TABLE ID_KEYWORD_TITLE");
    first.OtherClient().Execute("ALTER TABLE ID_EVENT DROP COLUMN EVENT_DESC_GER");
  }
  TestDatabase second;
  EXPECT_EQ(First(second.OtherClient(), "SELECT COUNT(*) FROM ID_KEYWORD_TITLE"), "0");
  EXPECT_EQ(First(second.OtherClient(), "SELECT EVENT_DESC_GER FROM ID_EVENT WHERE EVENT_ID = 9010"), "Delivered");
}

TEST(TestDatabaseTest, TwoAtOnceAreTwo) {
  TestDatabase first;
  TestDatabase second;
  first.OtherClient().Execute("DELETE FROM ID_ITEM_TYPE");
  EXPECT_NE(First(second.OtherClient(), "SELECT COUNT(*) FROM ID_ITEM_TYPE"), "0");
}

TEST(TestDatabaseTest, TheAdministratorMayDoEverything) {
  TestDatabase database;
  EXPECT_TRUE(PasswordRecord::Matches(
      "secret", First(database.OtherClient(), "SELECT USER_PASSWORD FROM ID_USER WHERE USER_ID = 'admin'")));
  for (const char* function : {"Tabulon", "Library Registration", "Patron Registration", "Supplier Registration"})
    EXPECT_EQ(
        First(database.OtherClient(), QString("SELECT ADD_FLAG || UPDATE_FLAG || DELETE_FLAG FROM ID_USER_FUNCTION "
                                              "WHERE USER_ID = 'admin' AND FUNCTION_NAME = '%1'")
                                          .arg(function)),
        "YYY");
  EXPECT_EQ(First(database.OtherClient(), "SELECT COUNT(*) FROM ID_LANGUAGE_CODE"), "3");
}

TEST(TestDatabaseTest, TheSampleIsThereWhenAskedFor) {
  TestDatabase plain;
  TestDatabase sample(true);
  EXPECT_EQ(First(plain.OtherClient(), "SELECT COUNT(*) FROM ID_LIBRARY"), "1");
  EXPECT_GT(First(sample.OtherClient(), "SELECT COUNT(*) FROM ID_LIBRARY").toInt(), 30);
}

}  // namespace
