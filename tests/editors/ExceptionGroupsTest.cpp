#include <QTabWidget>

#include "editors/ExceptionDesk.h"
#include "platform/controls/CodeComboBox.h"

namespace {

using Texts = QStringList;

class ExceptionGroupsTest : public ExceptionDesk {
 protected:
  void EnterPage(const QString& group = "Students") {
    Enter(Groups);
    if (!group.isEmpty()) Choose("cmb8AccessGroup", group);
    Statements();
  }
  int Records() const {
    int records = 0;
    for (int row = 1; row < Rows("grd8dTable"); ++row) records += Cell("grd8dTable", row, 1).isEmpty() ? 0 : 1;
    return records;
  }
};

// --- Lists, buttons and selection ---

TEST_F(ExceptionGroupsTest, EntryFillsTheListsAndShowsNoRows) {
  EnterPage({});
  EXPECT_EQ(Entries("cmb8AccessGroup"), Texts({"(none)", "Staff", "Students"}));
  EXPECT_EQ(Entries("cmb8dException"), Texts({"(none)", "Alpha", "Beta", "Gamma"}));
  EXPECT_EQ(Text("cmb8AccessGroup"), "(none)");
  EXPECT_EQ(Text("cmb8dException"), "(none)");
  EXPECT_EQ(Rows("grd8dTable"), 1);
}

TEST_F(ExceptionGroupsTest, ButtonsFollowTheGroupAndUpdateIsNeverAvailable) {
  EnterPage({});
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete"}) EXPECT_FALSE(IsEnabled(button)) << button;
  Choose("cmb8AccessGroup", "Students");
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_TRUE(IsEnabled("cmdDelete"));
  Choose("cmb8AccessGroup", "(none)");
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  // Back on the sub-tab the group is "(none)" again.
  Choose("cmb8AccessGroup", "Students");
  Go(Valid);
  EXPECT_TRUE(IsEnabled("cmdUpdate"));
  Go(Groups);
  EXPECT_EQ(Text("cmb8AccessGroup"), "(none)");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete"}) EXPECT_FALSE(IsEnabled(button)) << button;
}

TEST_F(ExceptionGroupsTest, UpdateOfTheMenuDoesNothing) {
  EnterPage();
  for (const char* entry : {"mnuOptionsAdd", "mnuOptionsUpdate", "mnuOptionsDelete"})
    EXPECT_TRUE(IsEnabled(entry)) << entry;
  Trigger("mnuOptionsUpdate");
  EXPECT_TRUE(Statements().isEmpty());
}

TEST_F(ExceptionGroupsTest, ChoosingAGroupShowsItsExceptions) {
  Enter(Groups);
  Choose("cmb8AccessGroup", "Students");
  EXPECT_EQ(Statements(),
            Texts({"SELECT   * FROM ID_ACCESS_EXCEPTION WHERE ACCESS_GROUP = 'STU' ORDER BY ACCESS_GROUP "}));
  EXPECT_EQ(Cell("grd8dTable", 1, 1), "AAA");
  EXPECT_EQ(Cell("grd8dTable", 1, 2), "Alpha");
  EXPECT_EQ(Cell("grd8dTable", 2, 1), "BBB");
  EXPECT_EQ(Row("grd8dTable"), 1);
  EXPECT_EQ(Text("cmb8dException"), "Alpha");
  EXPECT_EQ(Rows("grd8dTable"), 18);
  Picture("exceptions-by-user-group");
}

TEST_F(ExceptionGroupsTest, AGroupWithoutExceptionsSelectsNothing) {
  EnterPage("Staff");
  EXPECT_EQ(Records(), 0);
  EXPECT_EQ(Row("grd8dTable"), 0);
  EXPECT_EQ(Text("cmb8dException"), "(none)");
}

TEST_F(ExceptionGroupsTest, AGroupWithOneExceptionSelectsIt) {
  Another("INSERT INTO ID_ACCESS_EXCEPTION (ACCESS_GROUP, EXCEPTION_CODE) VALUES('STF', 'CCC')");
  EnterPage("Staff");
  EXPECT_EQ(Row("grd8dTable"), 1);
  EXPECT_EQ(Text("cmb8dException"), "Gamma");
}

TEST_F(ExceptionGroupsTest, AllRowsAreShownWhateverTheirCount) {
  for (const int count : {16, 17, 18, 40}) {
    Another("DELETE FROM ID_ACCESS_EXCEPTION WHERE ACCESS_GROUP = 'STF'");
    Another("DELETE FROM ID_EXCEPTION_CODE WHERE EXCEPTION_CODE LIKE 'X%'");
    for (int index = 0; index < count; ++index) {
      const QString code = QString("X%1").arg(index, 2, 10, QChar('0'));
      Another("INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE) VALUES('" + code +
              "', 'Kind " + code + "', 'B')");
      Another("INSERT INTO ID_ACCESS_EXCEPTION (ACCESS_GROUP, EXCEPTION_CODE) VALUES('STF', '" + code + "')");
    }
    if (count == 16) Enter(Groups);
    Choose("cmb8AccessGroup", "Staff");
    EXPECT_EQ(Records(), count);
    EXPECT_EQ(Rows("grd8dTable"), std::max(18, count + 1));
  }
}

TEST_F(ExceptionGroupsTest, AnEmptyRowPutsTheExceptionOnNone) {
  EnterPage();
  SelectRow("grd8dTable", 2);
  EXPECT_EQ(Text("cmb8dException"), "Beta");
  SelectRow("grd8dTable", 3);
  EXPECT_EQ(Text("cmb8dException"), "(none)");
}

TEST_F(ExceptionGroupsTest, TwoCodesOfOneDescriptionAreToldApart) {
  Another("UPDATE ID_EXCEPTION_CODE SET EXCEPTION_CODE_DESC = 'Alpha' WHERE EXCEPTION_CODE = 'BBB'");
  EnterPage();
  SelectRowOf("grd8dTable", "BBB");
  EXPECT_EQ(Find<CodeComboBox>("cmb8dException")->Code(), "BBB");
  SelectRowOf("grd8dTable", "AAA");
  EXPECT_EQ(Find<CodeComboBox>("cmb8dException")->Code(), "AAA");
}

TEST_F(ExceptionGroupsTest, ASortLeavesTheEmptyRowsAtTheEnd) {
  EnterPage();
  SelectRowOf("grd8dTable", "BBB");
  SortBy("grd8dTable", 1);
  SortBy("grd8dTable", 1);
  EXPECT_EQ(Cell("grd8dTable", 1, 1), "BBB");
  EXPECT_EQ(Cell("grd8dTable", 2, 1), "AAA");
  EXPECT_EQ(Cell("grd8dTable", Row("grd8dTable"), 1), "BBB");
  EXPECT_EQ(Rows("grd8dTable"), 18);
}

TEST_F(ExceptionGroupsTest, AFailedReadIsToldAndLeavesTheHeading) {
  Enter(Groups);
  Another("ALTER TABLE ID_ACCESS_EXCEPTION RENAME TO ID_GONE");
  Prompt().Expect("***** SQL error on OSTANA.ID_ACCESS_EXCEPTION (Select) *****", MessageStyle::Stop);
  Choose("cmb8AccessGroup", "Students");
  EXPECT_EQ(Rows("grd8dTable"), 1);
}

// --- Add ---

TEST_F(ExceptionGroupsTest, AddWritesBothKeys) {
  EnterPage();
  Choose("cmb8dException", "Gamma");
  Prompt().ExpectTitled("Record Added", MessageStyle::Information, Shell().Caption());
  Click("cmdAdd");
  EXPECT_EQ(Writing(), Texts({"INSERT INTO ID_ACCESS_EXCEPTION (ACCESS_GROUP, EXCEPTION_CODE ) VALUES('STU', 'CCC')"}));
  EXPECT_EQ(Cell("grd8dTable", Row("grd8dTable"), 1), "CCC");
  EXPECT_EQ(Text("cmb8dException"), "Gamma");
  EXPECT_EQ(Records(), 3);
}

TEST_F(ExceptionGroupsTest, AddNeedsGroupAndException) {
  EnterPage({});
  Prompt().Expect("Please enter a Valid Access Group.", MessageStyle::Warning);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Focus(), "cmb8AccessGroup");
  Choose("cmb8AccessGroup", "Staff");
  Prompt().Expect("Please enter a Valid Exception.", MessageStyle::Warning);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "cmb8dException");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionGroupsTest, ADuplicateEmptiesTheBoxesOfTheFirstSubTab) {
  EnterPage();
  Choose("cmb8dException", "Beta");
  Prompt().Expect("This record already exists", MessageStyle::Warning);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt8Code"), "");
  EXPECT_EQ(Text("txt8Description"), "");
  EXPECT_EQ(Text("txt8ServiceCharge"), "");
  EXPECT_EQ(Focus(), "txt8Code");
  EXPECT_EQ(Find<QTabWidget>("sstab8Exception")->currentIndex(), Groups);
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionGroupsTest, ADuplicateOfAnotherClientEndsInTheWordsOfTheScreen) {
  EnterPage("Staff");
  Choose("cmb8dException", "Gamma");
  Another("INSERT INTO ID_ACCESS_EXCEPTION (ACCESS_GROUP, EXCEPTION_CODE) VALUES('STF', 'CCC')");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Text("cmb8AccessGroup"), "Staff");
  EXPECT_EQ(Text("cmb8dException"), "Gamma");
  EXPECT_EQ(Records(), 0);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_ACCESS_EXCEPTION (INSERT INTO) *****"));
}

// --- Delete and Clear ---

TEST_F(ExceptionGroupsTest, DeleteAsksAndWritesBothKeys) {
  EnterPage();
  SelectRowOf("grd8dTable", "BBB");
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
  Prompt()
      .Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes)
      .Expect("Record Deleted", MessageStyle::Information);
  Click("cmdDelete");
  EXPECT_EQ(Writing(),
            Texts({"DELETE FROM ID_ACCESS_EXCEPTION WHERE ACCESS_GROUP = 'STU' AND EXCEPTION_CODE = 'BBB'"}));
  EXPECT_EQ(Records(), 1);
}

TEST_F(ExceptionGroupsTest, DeleteNeedsAGroupAndAnExceptionOfTheGrid) {
  EnterPage({});
  const QString words = "Please select a valid record from the table.";
  Prompt().Expect(words, MessageStyle::Warning);
  Trigger("mnuOptionsDelete");
  // The focus goes to a box of another sub-tab, and the sub-tab in front stays.
  EXPECT_EQ(Focus(), "txt8Message1");
  EXPECT_EQ(Find<QTabWidget>("sstab8Exception")->currentIndex(), Groups);
  Choose("cmb8AccessGroup", "Staff");
  Prompt().Expect(words, MessageStyle::Warning);
  Click("cmdDelete");
  Choose("cmb8dException", "Gamma");
  Prompt().Expect(words, MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionGroupsTest, AFailureOfDeleteNamesAnotherTableInTheLog) {
  EnterPage();
  Another("ALTER TABLE ID_ACCESS_EXCEPTION RENAME TO ID_GONE");
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes).Expect(Persists, MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_ACCESS_GROUP (DELETE) *****"));
  EXPECT_EQ(Records(), 2);
}

TEST_F(ExceptionGroupsTest, ARowThatIsReferencedIsKept) {
  Another(
      "CREATE TABLE ID_USES_ROW (ACCESS_GROUP VARCHAR(3), EXCEPTION_CODE VARCHAR(3), FOREIGN KEY (ACCESS_GROUP, "
      "EXCEPTION_CODE) REFERENCES ID_ACCESS_EXCEPTION (ACCESS_GROUP, EXCEPTION_CODE))");
  Another("INSERT INTO ID_USES_ROW VALUES('STU', 'AAA')");
  EnterPage();
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes).Expect(Referenced, MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Records(), 2);
}

TEST_F(ExceptionGroupsTest, ADroppedConnectionEndsInTheWordsOfTheScreen) {
  EnterPage();
  Choose("cmb8dException", "Gamma");
  if (!DropConnection()) GTEST_SKIP() << "This engine has no server to lose";
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Text("cmb8dException"), "Gamma");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
}

TEST_F(ExceptionGroupsTest, ClearShowsNoneInCapitals) {
  EnterPage();
  Click("cmdClear");
  EXPECT_EQ(Text("cmb8dException"), "(NONE)");
  EXPECT_EQ(Text("cmb8AccessGroup"), "Students");
  EXPECT_EQ(Row("grd8dTable"), 0);
  // It counts as "(none)".
  Prompt().Expect("Please enter a Valid Exception.", MessageStyle::Warning);
  Click("cmdAdd");
}

}  // namespace
