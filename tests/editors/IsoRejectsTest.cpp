#include <QTabWidget>

#include "editors/ExceptionDesk.h"
#include "platform/controls/CodeComboBox.h"

namespace {

using Texts = QStringList;

class IsoRejectsTest : public ExceptionDesk {
 protected:
  void EnterPage() { Enter(Iso); }
  void Fill(const QString& reject, const QString& message) {
    Choose("cmb8RejectType", reject);
    Choose("cmb8ISOMessage", message);
  }
};

// --- Lists, buttons and selection ---

TEST_F(IsoRejectsTest, EntryFillsListsAndGrid) {
  EnterPage();
  EXPECT_EQ(Entries("cmb8RejectType"), Texts({"(none)", "Alpha", "Beta", "Gamma"}));
  EXPECT_EQ(Entries("cmb8ISOMessage"), Texts({"At bindery", "Lost", "Not available"}));
  EXPECT_EQ(Text("cmb8RejectType"), "(none)");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
  EXPECT_EQ(Rows("grd8ISO"), 2);
  EXPECT_EQ(Cell("grd8ISO", 1, 1), "AAA");
  EXPECT_EQ(Cell("grd8ISO", 1, 2), "Alpha");
  EXPECT_EQ(Cell("grd8ISO", 1, 3), "Not available");
  SelectRow("grd8ISO", 1);
  Picture("iso-reject-codes");
}

TEST_F(IsoRejectsTest, TheButtonsAreOffAndTheMenuEntriesWork) {
  EnterPage();
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete"}) {
    EXPECT_TRUE(IsShown(button)) << button;
    EXPECT_FALSE(IsEnabled(button)) << button;
  }
  for (const char* entry : {"mnuOptionsAdd", "mnuOptionsUpdate", "mnuOptionsDelete"})
    EXPECT_TRUE(IsEnabled(entry)) << entry;
}

TEST_F(IsoRejectsTest, TheListsAreFilledOnTheFirstVisitAndTheGridOnEvery) {
  EnterPage();
  Another("INSERT INTO ID_EXCEPTION_ISO (EXCEPTION_CODE, ISO_UNFILLED) VALUES('BBB', 3)");
  Go(Codes);
  Statements();
  Go(Iso);
  EXPECT_EQ(Statements(), Texts({"SELECT   EXCEPTION_CODE, ISO_UNFILLED_DESC FROM ID_EXCEPTION_ISO I, ID_ISO_UNFILLED "
                                 "U WHERE    I.ISO_UNFILLED = U.ISO_UNFILLED ORDER BY EXCEPTION_CODE "}));
  EXPECT_EQ(Rows("grd8ISO"), 3);
}

TEST_F(IsoRejectsTest, AChoiceOfValidExceptionsIsCarriedOverTheRefill) {
  Enter(Valid);
  SelectRowOf("grd8Document", "REQ", 2);
  Another(
      "INSERT INTO ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE) VALUES('AAB', 'Aardvark', "
      "'B')");
  Go(Iso);
  EXPECT_EQ(Entries("cmb8RejectType").value(1), "Aardvark");
  EXPECT_EQ(Text("cmb8RejectType"), "Alpha");
  EXPECT_EQ(Text("txt8RejectTypeCode"), "AAA");
  EXPECT_EQ(Text("cmb8ISOMessage"), "Not available");
  EXPECT_EQ(Row("grd8ISO"), 1);
  EXPECT_EQ(Text("cmb8DocumentSupply"), "Alpha");
  EXPECT_EQ(Text("cmb8ProcessType"), "Request");
}

TEST_F(IsoRejectsTest, AChoiceWithoutAReasonEmptiesTheReason) {
  EnterPage();
  SelectRow("grd8ISO", 1);
  Go(Valid);
  Choose("cmb8DocumentSupply", "Beta");
  Go(Iso);
  EXPECT_EQ(Text("txt8RejectTypeCode"), "BBB");
  EXPECT_EQ(Text("cmb8RejectType"), "Beta");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
  EXPECT_EQ(Row("grd8ISO"), 0);
}

TEST_F(IsoRejectsTest, ChoosingARejectTypeGoesToItsRow) {
  EnterPage();
  Choose("cmb8RejectType", "Alpha");
  EXPECT_EQ(Row("grd8ISO"), 1);
  EXPECT_EQ(Text("txt8RejectTypeCode"), "AAA");
  EXPECT_EQ(Text("cmb8ISOMessage"), "Not available");
  Choose("cmb8RejectType", "Beta");
  EXPECT_EQ(Row("grd8ISO"), 0);
  EXPECT_EQ(Text("txt8RejectTypeCode"), "BBB");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
  SelectRow("grd8ISO", 1);
  EXPECT_EQ(Text("cmb8RejectType"), "Alpha");
  Choose("cmb8RejectType", "(none)");
  EXPECT_EQ(Row("grd8ISO"), 0);
  EXPECT_EQ(Text("txt8RejectTypeCode"), "");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
}

TEST_F(IsoRejectsTest, TheRecordOnShowIsFoundAgainOnComingBack) {
  EnterPage();
  SelectRow("grd8ISO", 1);
  Go(Groups);
  Go(Iso);
  EXPECT_EQ(Row("grd8ISO"), 1);
  EXPECT_EQ(Text("cmb8ISOMessage"), "Not available");
}

// --- Add ---

TEST_F(IsoRejectsTest, AddLooksUpTheReason) {
  EnterPage();
  Fill("Beta", "Lost");
  Prompt().ExpectTitled("Record Added", MessageStyle::Information, Shell().Caption());
  Statements();
  Trigger("mnuOptionsAdd");
  const QStringList statements = Statements();
  EXPECT_EQ(statements.mid(0, 2),
            Texts({"SELECT ISO_UNFILLED FROM ID_ISO_UNFILLED WHERE ISO_UNFILLED_DESC = N'Lost'",
                   "INSERT INTO ID_EXCEPTION_ISO (EXCEPTION_CODE, ISO_UNFILLED) VALUES('BBB', 3)"}));
  EXPECT_EQ(Cell("grd8ISO", Row("grd8ISO"), 1), "BBB");
  EXPECT_EQ(Text("cmb8ISOMessage"), "Lost");
}

TEST_F(IsoRejectsTest, AddTestsTypeReasonAndNumberInThisOrder) {
  EnterPage();
  ShowText("cmb8ISOMessage", "");
  Prompt().Expect("Please select a Valid Reject Code.", MessageStyle::Warning);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Focus(), "cmb8RejectType");
  Choose("cmb8RejectType", "Beta");
  Prompt().Expect("Please select a Valid ISO Reject Code.", MessageStyle::Warning);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Focus(), "cmb8ISOMessage");
  ShowText("cmb8ISOMessage", "12");
  Prompt().Expect("Please enter a Valid ISO Reject Code.", MessageStyle::Warning);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
  EXPECT_EQ(Focus(), "cmb8ISOMessage");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(IsoRejectsTest, ACodeWithARowCannotBeAddedTwiceOnAnyReason) {
  EnterPage();
  for (const QString& message : {QString("Not available"), QString("Lost")}) {
    Fill("Alpha", message);
    Prompt().Expect("This record already exists", MessageStyle::Warning);
    Trigger("mnuOptionsAdd");
    EXPECT_EQ(Row("grd8ISO"), 0);
    EXPECT_EQ(Text("cmb8RejectType"), "(none)");
    EXPECT_EQ(Text("txt8RejectTypeCode"), "");
    EXPECT_EQ(Text("cmb8ISOMessage"), "");
    EXPECT_EQ(Focus(), "cmb8RejectType");
  }
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(IsoRejectsTest, AReasonThatIsGoneIsZeroAndRefusedByTheDatabase) {
  EnterPage();
  Choose("cmb8RejectType", "Beta");
  ShowText("cmb8ISOMessage", "Unheard of");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Writing(), Texts({"INSERT INTO ID_EXCEPTION_ISO (EXCEPTION_CODE, ISO_UNFILLED) VALUES('BBB', 0)"}));
  EXPECT_EQ(Text("cmb8ISOMessage"), "Unheard of");
  EXPECT_EQ(Count("ID_EXCEPTION_ISO"), 1);
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_ISO (INSERT INTO) *****"));
}

TEST_F(IsoRejectsTest, TheReasonIsFoundOnlyInTheWorkingLanguage) {
  Start();
  ASSERT_FALSE(gcolLanguageCode.isEmpty());
  const QString suffix = "_" + gcolLanguageCode.last();
  Another("UPDATE ID_ISO_UNFILLED SET ISO_UNFILLED_DESC" + suffix + " = 'Perdu' WHERE ISO_UNFILLED = 3");
  Another("UPDATE ID_EXCEPTION_CODE SET EXCEPTION_CODE_DESC" + suffix + " = EXCEPTION_CODE_DESC");
  gclsOF->SetLanguageSuffix(suffix);
  SelectTab("sstabtables", frmTabulon::ExceptionsTab);
  Go(Iso);
  Choose("cmb8RejectType", "Beta");
  EXPECT_TRUE(Entries("cmb8ISOMessage").contains("Perdu"));
  EXPECT_FALSE(Entries("cmb8ISOMessage").contains("Lost"));
  // The words of another language are found nowhere.
  ShowText("cmb8ISOMessage", "Lost");
  Statements();
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Statements().value(0),
            "SELECT ISO_UNFILLED FROM ID_ISO_UNFILLED WHERE ISO_UNFILLED_DESC" + suffix + " = N'Lost'");
  Choose("cmb8ISOMessage", "Perdu");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Ask("SELECT ISO_UNFILLED FROM ID_EXCEPTION_ISO WHERE EXCEPTION_CODE = 'BBB'"), "3");
  EXPECT_EQ(Cell("grd8ISO", Row("grd8ISO"), 3), "Perdu");
}

TEST_F(IsoRejectsTest, ADuplicateOfAnotherClientEndsInTheWordsOfTheScreen) {
  EnterPage();
  Fill("Beta", "Lost");
  Another("INSERT INTO ID_EXCEPTION_ISO (EXCEPTION_CODE, ISO_UNFILLED) VALUES('BBB', 1)");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Trigger("mnuOptionsAdd");
  EXPECT_EQ(Text("cmb8RejectType"), "Beta");
  EXPECT_EQ(Text("cmb8ISOMessage"), "Lost");
  EXPECT_EQ(Rows("grd8ISO"), 2);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

// --- Update ---

TEST_F(IsoRejectsTest, UpdateWritesTheNumberOfTheReason) {
  EnterPage();
  SelectRow("grd8ISO", 1);
  Choose("cmb8ISOMessage", "At bindery");
  Statements();
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Statements(), Texts({"SELECT ISO_UNFILLED FROM ID_ISO_UNFILLED WHERE ISO_UNFILLED_DESC = N'At bindery'",
                                 "UPDATE ID_EXCEPTION_ISO SET ISO_UNFILLED = 2 WHERE EXCEPTION_CODE = 'AAA'"}));
  EXPECT_EQ(Cell("grd8ISO", 1, 3), "At bindery");
  EXPECT_EQ(Focus(), "cmb8RejectType");
}

TEST_F(IsoRejectsTest, UpdateTestsTypeReasonNumberChangeAndCodeInThisOrder) {
  EnterPage();
  Prompt().Expect("Please select a Valid Reject Code To update.", MessageStyle::Warning);
  Trigger("mnuOptionsUpdate");
  Choose("cmb8RejectType", "Beta");
  Prompt().Expect("Please select a Valid ISO Reject Code To update.", MessageStyle::Warning);
  Trigger("mnuOptionsUpdate");
  ShowText("cmb8ISOMessage", " 12 ");
  Prompt().Expect("Please enter a Valid ISO Reject Code to update.", MessageStyle::Warning);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
  EXPECT_EQ(Focus(), "cmb8ISOMessage");
  Choose("cmb8RejectType", "Alpha");
  Prompt().Expect("Nothing has been changed", MessageStyle::Warning);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Focus(), "cmb8RejectType");
  Fill("Beta", "Lost");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop);
  Trigger("mnuOptionsUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(IsoRejectsTest, AFailedUpdateIsRolledBack) {
  EnterPage();
  SelectRow("grd8ISO", 1);
  ShowText("cmb8ISOMessage", "Unheard of");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Cell("grd8ISO", 1, 3), "Not available");
  EXPECT_EQ(Ask("SELECT ISO_UNFILLED FROM ID_EXCEPTION_ISO WHERE EXCEPTION_CODE = 'AAA'"), "1");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_ISO (UPDATE) *****"));
}

TEST_F(IsoRejectsTest, ADroppedConnectionEndsInTheWordsOfTheScreen) {
  EnterPage();
  SelectRow("grd8ISO", 1);
  Choose("cmb8ISOMessage", "Lost");
  if (!DropConnection()) GTEST_SKIP() << "This engine has no server to lose";
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Trigger("mnuOptionsUpdate");
  EXPECT_EQ(Cell("grd8ISO", 1, 3), "Not available");
  EXPECT_EQ(Text("cmb8ISOMessage"), "Lost");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Trigger("mnuOptionsUpdate");
}

// --- Delete and Clear ---

TEST_F(IsoRejectsTest, DeleteAsksClearsAndGoesToTheRejectType) {
  EnterPage();
  SelectRow("grd8ISO", 1);
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::No);
  Trigger("mnuOptionsDelete");
  EXPECT_TRUE(Writing().isEmpty());
  Prompt()
      .Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes)
      .Expect("Record Deleted", MessageStyle::Information);
  Trigger("mnuOptionsDelete");
  EXPECT_EQ(Writing(), Texts({"DELETE FROM ID_EXCEPTION_ISO WHERE EXCEPTION_CODE = 'AAA'"}));
  EXPECT_EQ(Rows("grd8ISO"), 1);
  EXPECT_EQ(Text("cmb8RejectType"), "(none)");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
  EXPECT_EQ(Focus(), "cmb8RejectType");
}

TEST_F(IsoRejectsTest, DeleteTellsWhatIsMissing) {
  EnterPage();
  Prompt().Expect("Please choose a valid record to be deleted", MessageStyle::Warning);
  Trigger("mnuOptionsDelete");
  // A capital here.
  ShowText("cmb8ISOMessage", " ");
  Prompt().Expect("Please choose a valid record to be Deleted", MessageStyle::Warning);
  Trigger("mnuOptionsDelete");
  Choose("cmb8ISOMessage", "Lost");
  Prompt().Expect("Please choose a valid record to be Deleted", MessageStyle::Warning);
  Trigger("mnuOptionsDelete");
  Fill("Beta", "Lost");
  Prompt().Expect("Please choose a valid record to be Deleted", MessageStyle::Warning);
  Trigger("mnuOptionsDelete");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(IsoRejectsTest, ARowThatIsReferencedIsKept) {
  Another(
      "CREATE TABLE ID_USES_ISO (EXCEPTION_CODE VARCHAR(3), FOREIGN KEY (EXCEPTION_CODE) REFERENCES "
      "ID_EXCEPTION_ISO (EXCEPTION_CODE))");
  Another("INSERT INTO ID_USES_ISO VALUES('AAA')");
  EnterPage();
  SelectRow("grd8ISO", 1);
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes).Expect(Referenced, MessageStyle::Stop);
  Trigger("mnuOptionsDelete");
  EXPECT_EQ(Row("grd8ISO"), 1);
  EXPECT_EQ(Text("cmb8ISOMessage"), "Not available");
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_ISO (DELETE) *****"));
}

TEST_F(IsoRejectsTest, ClearEmptiesEverything) {
  EnterPage();
  SelectRow("grd8ISO", 1);
  Click("cmdClear");
  EXPECT_EQ(Text("cmb8RejectType"), "(none)");
  EXPECT_EQ(Text("txt8RejectTypeCode"), "");
  EXPECT_EQ(Text("cmb8ISOMessage"), "");
  EXPECT_EQ(Row("grd8ISO"), 0);
}

TEST_F(IsoRejectsTest, AReasonThatIsGoneFromTheListIsShown) {
  EnterPage();
  Another("UPDATE ID_ISO_UNFILLED SET ISO_UNFILLED_DESC = 'Not to be had' WHERE ISO_UNFILLED = 1");
  Go(Groups);
  Go(Iso);
  Click("cmdClear");
  SelectRow("grd8ISO", 1);
  EXPECT_EQ(Text("cmb8ISOMessage"), "Not to be had");
}

}  // namespace
