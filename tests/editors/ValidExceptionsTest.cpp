#include <QLabel>

#include "editors/ExceptionDesk.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/MemoBox.h"

namespace {

using Texts = QStringList;

class ValidExceptionsTest : public ExceptionDesk {
 protected:
  // Rows of the grid.
  static constexpr int AlphaLoan = 1, BetaRenewal = 2, AlphaRequest = 3;

  void EnterPage() {
    Enter(Valid);
    Statements();
  }
  QStringList RowCells(int row) const {
    QStringList cells;
    for (int column = 1; column <= 6; ++column) cells.append(Cell("grd8Document", row, column));
    return cells;
  }
  void ChoosePair(const QString& code, const QString& process) {
    Choose("cmb8DocumentSupply", code);
    Choose("cmb8ProcessType", process);
  }
};

// --- Lists and selection ---

TEST_F(ValidExceptionsTest, EntryFillsListsAndGrid) {
  EnterPage();
  EXPECT_EQ(Entries("cmb8DocumentSupply"), Texts({"(none)", "Alpha", "Beta", "Gamma"}));
  EXPECT_EQ(Entries("cmb8ProcessType"), Texts({"(none)", "Loan", "Renewal", "Request"}));
  EXPECT_EQ(Entries("cmb8Reroute1"), Texts({"(none)", "Next", "Reroute", "Passive", "Hold", "SUP1"}));
  EXPECT_EQ(Entries("cmb8DeliverySource"), Texts({"Messaging Method", "Delivery Method", "Print Locally"}));
  EXPECT_EQ(Text("cmb8DocumentSupply"), "(none)");
  EXPECT_EQ(Text("cmb8ProcessType"), "(none)");
  EXPECT_EQ(Text("cmb8Reroute1"), "(none)");
  EXPECT_EQ(Text("cmb8DeliverySource"), "Messaging Method");
  EXPECT_EQ(Rows("grd8Document"), 4);
  EXPECT_EQ(RowCells(AlphaLoan), Texts({"AAA", "LON", "Alpha loan", "Next", "M", ""}));
  EXPECT_EQ(RowCells(BetaRenewal), Texts({"BBB", "REN", "", "Hold", "P", "First"}));
  EXPECT_EQ(RowCells(AlphaRequest), Texts({"AAA", "REQ", "Alpha request", "", "D", "Only note"}));
  EXPECT_EQ(Row("grd8Document"), 0);
}

TEST_F(ValidExceptionsTest, ASupplierCodeOfTwoLibrariesIsOneEntry) {
  Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES(9002, 'XXX8', 'Other')");
  Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE, SUPPLIER_CAT) VALUES(9002, 'SUP1', 'I')");
  EnterPage();
  EXPECT_EQ(Entries("cmb8Reroute1").count("SUP1"), 1);
}

TEST_F(ValidExceptionsTest, SelectingARowFillsTheBoxes) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  EXPECT_EQ(Text("txt8Process1(0)"), "AAA");
  EXPECT_EQ(Text("txt8Process1(1)"), "REQ");
  EXPECT_EQ(Text("txt8Type"), "B");
  EXPECT_EQ(Text("txt8Message1"), "Alpha request");
  EXPECT_EQ(Text("cmb8ProcessType"), "Request");
  EXPECT_EQ(Text("cmb8DocumentSupply"), "Alpha");
  EXPECT_EQ(Text("cmb8Reroute1"), "(none)");
  EXPECT_EQ(Text("cmb8DeliverySource"), "Delivery Method");
  EXPECT_EQ(Text("txtExceptionNote"), "Only note");
  EXPECT_FALSE(gbRecordModified);
  EXPECT_EQ(Statements(), Texts({" SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE ='AAA' AND   "
                                 "PROCESS_TYPE = 'REQ'"}));
  SelectRow("grd8Document", BetaRenewal);
  EXPECT_EQ(Text("cmb8Reroute1"), "Hold");
  EXPECT_EQ(Text("cmb8DeliverySource"), "Print Locally");
  SelectRow("grd8Document", AlphaLoan);
  EXPECT_EQ(Text("cmb8DeliverySource"), "Messaging Method");
  Picture("valid-exceptions");
}

TEST_F(ValidExceptionsTest, TwoProcessTypesOfOneCodeNeverSwapRows) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  EXPECT_EQ(Row("grd8Document"), AlphaRequest);
  EXPECT_EQ(Text("txt8Process1(1)"), "REQ");
  EXPECT_EQ(Text("txt8Message1"), "Alpha request");
  SelectRow("grd8Document", AlphaLoan);
  EXPECT_EQ(Row("grd8Document"), AlphaLoan);
  EXPECT_FALSE(gbSkipGridEvents);
}

TEST_F(ValidExceptionsTest, ACodeThatRejectsNothingShowsNone) {
  Another("INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE, REROUTE) VALUES('NNN', 'REQ', 'GONE')");
  EnterPage();
  SelectRowOf("grd8Document", "NNN");
  EXPECT_EQ(Text("cmb8DocumentSupply"), "(none)");
  EXPECT_EQ(Text("txt8Process1(0)"), "NNN");
  EXPECT_EQ(Text("txt8Type"), "N");
  // A target that is no longer in the list is shown, and a missing channel is not that of another row.
  EXPECT_EQ(Text("cmb8Reroute1"), "GONE");
  EXPECT_EQ(Text("cmb8DeliverySource"), "");
}

TEST_F(ValidExceptionsTest, SeveralNotesAreOnlyForTheDialog) {
  EnterPage();
  SelectRow("grd8Document", BetaRenewal);
  EXPECT_FALSE(IsEnabled("lblExceptionNote"));
  EXPECT_FALSE(IsEnabled("txtExceptionNote"));
  EXPECT_TRUE(IsEnabled("cmdMoreNotes"));
  EXPECT_EQ(Text("txtExceptionNote"), "First");
  SelectRow("grd8Document", AlphaRequest);
  EXPECT_TRUE(IsEnabled("lblExceptionNote"));
  EXPECT_TRUE(IsEnabled("txtExceptionNote"));
  EXPECT_TRUE(IsEnabled("cmdMoreNotes"));
}

TEST_F(ValidExceptionsTest, ALoanHasItsNoteControlsSwitchedOff) {
  EnterPage();
  SelectRow("grd8Document", AlphaLoan);
  EXPECT_FALSE(IsEnabled("lblExceptionNote"));
  EXPECT_FALSE(IsEnabled("txtExceptionNote"));
  EXPECT_FALSE(IsEnabled("cmdMoreNotes"));
  SelectRow("grd8Document", AlphaRequest);
  EXPECT_TRUE(IsEnabled("cmdMoreNotes"));
}

TEST_F(ValidExceptionsTest, TheNoteOfSeveralSendsToTheButton) {
  EnterPage();
  SelectRow("grd8Document", BetaRenewal);
  const QString words =
      "This Exception Code has multiple Exception Note records.\n\n"
      "Use the 'More Notes' button to modify the Exception Notes.";
  auto* const note = Find<MemoBox>("txtExceptionNote");
  note->setEnabled(true);  // as a keyboard tool may reach it
  Prompt().Expect(words, MessageStyle::Stop);
  note->setFocus();
  EXPECT_EQ(Focus(), "cmdMoreNotes");
  bool refused = false;
  Prompt().Expect(words, MessageStyle::Stop);
  Q_EMIT note->KeyPress(refused);
  EXPECT_TRUE(refused);
  EXPECT_EQ(Focus(), "cmdMoreNotes");
  EXPECT_EQ(Text("txtExceptionNote"), "First");
}

TEST_F(ValidExceptionsTest, AFailedReadOfTheNotesIsTold) {
  EnterPage();
  Another("ALTER TABLE ID_EXCEPTION_NOTE RENAME TO ID_GONE");
  Prompt().Expect("***** SQL error on OSTANA.ID_EXCEPTION_NOTE (SELECT) *****", MessageStyle::Stop);
  SelectRow("grd8Document", AlphaRequest);
  EXPECT_EQ(Text("txt8Message1"), "Alpha request");
}

TEST_F(ValidExceptionsTest, ChoosingARejectTypeGoesToItsFirstRow) {
  EnterPage();
  Choose("cmb8DocumentSupply", "Beta");
  EXPECT_EQ(Row("grd8Document"), BetaRenewal);
  EXPECT_EQ(Text("txt8Process1(0)"), "BBB");
  EXPECT_EQ(Text("txt8Type"), "C");
  EXPECT_EQ(Text("cmb8ProcessType"), "Renewal");
  EXPECT_EQ(Text("cmb8Reroute1"), "Hold");
  Choose("cmb8DocumentSupply", "Alpha");
  EXPECT_EQ(Row("grd8Document"), AlphaLoan);
}

TEST_F(ValidExceptionsTest, ChoosingARejectTypeWithoutARowLeavesTheGrid) {
  EnterPage();
  SelectRow("grd8Document", AlphaLoan);
  Choose("cmb8DocumentSupply", "Gamma");
  EXPECT_EQ(Row("grd8Document"), 0);
  EXPECT_EQ(Text("txt8Message1"), "");
  EXPECT_EQ(Text("txt8Process1(0)"), "CCC");
  EXPECT_EQ(Text("txt8Type"), "L");
  // The rest stays for the pair to be added.
  EXPECT_EQ(Text("cmb8ProcessType"), "Loan");
}

TEST_F(ValidExceptionsTest, ChoosingNoRejectTypeReloadsAndClears) {
  EnterPage();
  SelectRow("grd8Document", AlphaLoan);
  Another("DELETE FROM ID_EXCEPTION_NOTE");
  Another("DELETE FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'REN'");
  Choose("cmb8DocumentSupply", "(none)");
  EXPECT_EQ(Rows("grd8Document"), 3);
  EXPECT_EQ(Row("grd8Document"), 0);
  EXPECT_EQ(Text("txt8Process1(0)"), "");
  EXPECT_EQ(Text("txt8Process1(1)"), "");
  EXPECT_EQ(Text("txt8Message1"), "");
}

TEST_F(ValidExceptionsTest, ChoosingAProcessTypeShowsItsCode) {
  EnterPage();
  Choose("cmb8ProcessType", "Renewal");
  EXPECT_EQ(Text("txt8Process1(1)"), "REN");
  Choose("cmb8ProcessType", "(none)");
  EXPECT_EQ(Text("txt8Process1(1)"), "");
}

TEST_F(ValidExceptionsTest, EachFieldMarksTheRecordAsModified) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  Append("txt8Message1", "x");
  EXPECT_TRUE(gbRecordModified);
  Type("txt8Message1", "Alpha request");
  EXPECT_FALSE(gbRecordModified);
  Append("txtExceptionNote", "x");
  EXPECT_TRUE(gbRecordModified);
  Type("txtExceptionNote", "Only note");
  EXPECT_FALSE(gbRecordModified);
  for (const auto& [combo, other, same] :
       {std::tuple{"cmb8ProcessType", "Renewal", "Request"}, std::tuple{"cmb8Reroute1", "Hold", "(none)"},
        std::tuple{"cmb8DeliverySource", "Print Locally", "Delivery Method"}}) {
    Choose(combo, other);
    EXPECT_TRUE(gbRecordModified) << combo;
    Choose(combo, same);
    EXPECT_FALSE(gbRecordModified) << combo;
  }
}

TEST_F(ValidExceptionsTest, TheRecordOnShowIsFoundAgainOnComingBack) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  Go(Groups);
  Go(Valid);
  EXPECT_EQ(Row("grd8Document"), AlphaRequest);
  EXPECT_EQ(Text("cmb8DocumentSupply"), "Alpha");
}

// --- Add ---

TEST_F(ValidExceptionsTest, AddWritesPlainQuotes) {
  EnterPage();
  ChoosePair("Gamma", "Request");
  Type("txt8Message1", " It's closed ");
  Choose("cmb8Reroute1", "SUP1");
  Choose("cmb8DeliverySource", "Print Locally");
  Type("txtExceptionNote", " Ask 'em ");
  Prompt().ExpectTitled("Record Added", MessageStyle::Information, Shell().Caption());
  Click("cmdAdd");
  EXPECT_EQ(Writing(), Texts({"INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE, MESSAGE, REROUTE, "
                              "DELIVERY, EXCEPTION_NOTE) VALUES('CCC', 'REQ', 'It''s closed', 'SUP1', 'P', 'Ask "
                              "''em')"}));
  EXPECT_EQ(RowCells(Row("grd8Document")), Texts({"CCC", "REQ", "It's closed", "SUP1", "P", "Ask 'em"}));
  EXPECT_EQ(Focus(), "txt8Message1");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ValidExceptionsTest, PassiveIsStoredAsNullAndShownAsNone) {
  EnterPage();
  ChoosePair("Gamma", "Request");
  Choose("cmb8Reroute1", "Passive");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(Writing(), Texts({"INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE, MESSAGE, REROUTE, "
                              "DELIVERY, EXCEPTION_NOTE) VALUES('CCC', 'REQ', NULL, Null, 'M', NULL)"}));
  EXPECT_EQ(Count("ID_EXCEPTION_PROCESS", "EXCEPTION_CODE = 'CCC' AND REROUTE IS NULL"), 1);
  EXPECT_EQ(Cell("grd8Document", Row("grd8Document"), 4), "");
  SelectRow("grd8Document", AlphaLoan);
  SelectRowOf("grd8Document", "CCC");
  EXPECT_EQ(Text("cmb8Reroute1"), "(none)");
}

TEST_F(ValidExceptionsTest, AddTestsPairDuplicateAndRerouteInThisOrder) {
  EnterPage();
  Choose("cmb8ProcessType", "Loan");
  Prompt().Expect("Please choose Document Supply and Process Type.", MessageStyle::Warning);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt8Message1");
  Choose("cmb8DocumentSupply", "Gamma");
  Choose("cmb8ProcessType", "(none)");
  Prompt().Expect("Please choose Document Supply and Process Type.", MessageStyle::Warning);
  Click("cmdAdd");
  // A pair of the grid is told before its missing reroute.
  SelectRow("grd8Document", AlphaRequest);
  Prompt().Expect("This Code already exists.", MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "txt8Message1");
  Choose("cmb8ProcessType", "Renewal");
  Type("txt8Message1", " trimmed ");
  Prompt().Expect("Please select a valid value.", MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Focus(), "cmb8Reroute1");
  EXPECT_EQ(Text("txt8Message1"), "trimmed");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ValidExceptionsTest, ADuplicateOfAnotherClientEndsInTheWordsOfTheScreen) {
  EnterPage();
  ChoosePair("Gamma", "Request");
  Type("txt8Message1", "Mine");
  Choose("cmb8Reroute1", "Next");
  Another("INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE, MESSAGE) VALUES('CCC', 'REQ', 'Theirs')");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Click("cmdAdd");
  EXPECT_EQ(Text("txt8Message1"), "Mine");
  EXPECT_EQ(Text("cmb8Reroute1"), "Next");
  EXPECT_EQ(Rows("grd8Document"), 4);
  EXPECT_TRUE(gbRecordModified);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (INSERT INTO) *****"));
}

TEST_F(ValidExceptionsTest, AMessageOfAThousandCharactersIsTakenAndNoMore) {
  EnterPage();
  ChoosePair("Gamma", "Request");
  Paste("txt8Message1", QString(1001, 'x'));
  EXPECT_EQ(Text("txt8Message1").size(), 1000);
  Choose("cmb8Reroute1", "Next");
  Prompt().Expect("Record Added", MessageStyle::Information);
  Click("cmdAdd");
  EXPECT_EQ(Ask("SELECT MESSAGE FROM ID_EXCEPTION_PROCESS WHERE EXCEPTION_CODE = 'CCC'").size(), 1000);
}

// --- Update ---

TEST_F(ValidExceptionsTest, UpdateOfAnUntouchedRow) {
  EnterPage();
  for (const int row : {AlphaLoan, BetaRenewal, AlphaRequest}) {
    SelectRow("grd8Document", row);
    Prompt().Expect("Nothing has been changed", MessageStyle::Warning);
    Click("cmdUpdate");
    EXPECT_EQ(Focus(), "txt8Message1");
  }
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ValidExceptionsTest, LineEndsOfAnotherProgramAreNoChange) {
  EnterPage();
  Another("UPDATE ID_EXCEPTION_PROCESS SET MESSAGE = 'one\r\ntwo' WHERE PROCESS_TYPE = 'REQ'");
  Go(Groups);
  Go(Valid);
  SelectRow("grd8Document", AlphaLoan);
  SelectRow("grd8Document", AlphaRequest);
  EXPECT_EQ(Text("txt8Message1"), "one\r\ntwo");
  Prompt().Expect("Nothing has been changed", MessageStyle::Warning);
  Click("cmdUpdate");
}

TEST_F(ValidExceptionsTest, UpdateWritesRowAndCells) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  Type("txt8Message1", " ");
  Choose("cmb8DeliverySource", "Messaging Method");
  Type("txtExceptionNote", "");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  // "(none)" is the empty reroute of a pair that is in the table.
  EXPECT_EQ(Writing(), Texts({"UPDATE ID_EXCEPTION_PROCESS SET EXCEPTION_CODE = 'AAA', PROCESS_TYPE = 'REQ', MESSAGE "
                              "= NULL, REROUTE = Null, DELIVERY = 'M', EXCEPTION_NOTE = NULL WHERE EXCEPTION_CODE = "
                              "'AAA' AND PROCESS_TYPE = 'REQ'"}));
  EXPECT_EQ(RowCells(AlphaRequest), Texts({"AAA", "REQ", "", "", "M", ""}));
  EXPECT_EQ(Focus(), "txt8Message1");
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(ValidExceptionsTest, UpdateWithPassiveLeavesAnEmptyCell) {
  EnterPage();
  SelectRow("grd8Document", AlphaLoan);
  Choose("cmb8Reroute1", "Passive");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().join("").contains("REROUTE = Null, DELIVERY = 'M'"));
  EXPECT_EQ(Cell("grd8Document", AlphaLoan, 4), "");
  SelectRow("grd8Document", BetaRenewal);
  SelectRow("grd8Document", AlphaLoan);
  EXPECT_EQ(Text("cmb8Reroute1"), "(none)");
}

TEST_F(ValidExceptionsTest, UpdateRenamesAPairAndItsNotesComeAlong) {
  EnterPage();
  SelectRow("grd8Document", BetaRenewal);
  Choose("cmb8ProcessType", "Request");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Writing(), Texts({"UPDATE ID_EXCEPTION_PROCESS SET EXCEPTION_CODE = 'BBB', PROCESS_TYPE = 'REQ', MESSAGE "
                              "= NULL, REROUTE = 'Hold', DELIVERY = 'P', EXCEPTION_NOTE = 'First' WHERE "
                              "EXCEPTION_CODE = 'BBB' AND PROCESS_TYPE = 'REN'"}));
  EXPECT_EQ(RowCells(BetaRenewal), Texts({"BBB", "REQ", "", "Hold", "P", "First"}));
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE", "EXCEPTION_CODE = 'BBB' AND PROCESS_TYPE = 'REQ'"), 2);
  EXPECT_EQ(Count("ID_EXCEPTION_PROCESS", "PROCESS_TYPE = 'REN'"), 0);
}

TEST_F(ValidExceptionsTest, UpdateTestsListsRerouteAndRowInThisOrder) {
  EnterPage();
  Prompt().Expect("Please select a record to Update.", MessageStyle::Stop);
  Click("cmdUpdate");
  Choose("cmb8DocumentSupply", "Gamma");
  Prompt().Expect("Please select a valid value.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "cmb8ProcessType");
  Choose("cmb8ProcessType", "Request");
  Prompt().Expect("Please select a valid value.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "cmb8Reroute1");
  Choose("cmb8Reroute1", "Next");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ValidExceptionsTest, UpdateOfAnEmptyTable) {
  Another("DELETE FROM ID_EXCEPTION_NOTE");
  Another("DELETE FROM ID_EXCEPTION_PROCESS");
  EnterPage();
  ChoosePair("Gamma", "Request");
  Choose("cmb8Reroute1", "Next");
  Prompt().Expect("This Code Does not exists. Please select a Valid Code to Update.", MessageStyle::Stop);
  Click("cmdUpdate");
}

TEST_F(ValidExceptionsTest, ARenameIntoAPairThatExistsIsRefusedByTheDatabase) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  Choose("cmb8ProcessType", "Loan");
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(RowCells(AlphaRequest), Texts({"AAA", "REQ", "Alpha request", "", "D", "Only note"}));
  EXPECT_EQ(Text("cmb8ProcessType"), "Loan");
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE", "PROCESS_TYPE = 'REQ'"), 1);
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

TEST_F(ValidExceptionsTest, ADroppedConnectionLosesNothingOnScreen) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  Append("txt8Message1", "!");
  if (!DropConnection()) GTEST_SKIP() << "This engine has no server to lose";
  Prompt().Expect(DatabaseError, MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Text("txt8Message1"), "Alpha request!");
  EXPECT_EQ(Cell("grd8Document", AlphaRequest, 3), "Alpha request");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT MESSAGE FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'REQ'"), "Alpha request!");
}

// --- Delete and Clear ---

TEST_F(ValidExceptionsTest, DeleteLeavesTheNotesToTheDatabase) {
  EnterPage();
  SelectRow("grd8Document", BetaRenewal);
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
  Prompt()
      .Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes)
      .Expect("Record Deleted", MessageStyle::Information);
  Click("cmdDelete");
  EXPECT_EQ(Writing(),
            Texts({"DELETE FROM ID_EXCEPTION_PROCESS WHERE EXCEPTION_CODE = 'BBB' AND PROCESS_TYPE = 'REN'"}));
  EXPECT_EQ(Rows("grd8Document"), 3);
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE", "EXCEPTION_CODE = 'BBB'"), 0);
}

TEST_F(ValidExceptionsTest, DeleteNeedsARowAndItsPair) {
  EnterPage();
  const QString words = "Please select a valid record from the table.";
  Prompt().Expect(words, MessageStyle::Stop);
  Click("cmdDelete");
  ChoosePair("Gamma", "Request");
  Prompt().Expect(words, MessageStyle::Stop);
  Click("cmdDelete");
  SelectRow("grd8Document", AlphaLoan);
  Choose("cmb8ProcessType", "(none)");
  Prompt().Expect(words, MessageStyle::Stop);
  Click("cmdDelete");
  // Another pair in the lists than in the row.
  Choose("cmb8ProcessType", "Request");
  Prompt().Expect(words, MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ValidExceptionsTest, APairThatIsReferencedIsKept) {
  Another(
      "CREATE TABLE ID_USES_PAIR (EXCEPTION_CODE VARCHAR(3), PROCESS_TYPE VARCHAR(3), FOREIGN KEY (EXCEPTION_CODE, "
      "PROCESS_TYPE) REFERENCES ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE))");
  Another("INSERT INTO ID_USES_PAIR VALUES('AAA', 'LON')");
  EnterPage();
  SelectRow("grd8Document", AlphaLoan);
  Prompt().Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes).Expect(Referenced, MessageStyle::Stop);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_EXCEPTION_PROCESS", "PROCESS_TYPE = 'LON'"), 1);
  EXPECT_EQ(Row("grd8Document"), AlphaLoan);
  EXPECT_TRUE(LogHolds("***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (DELETE) *****"));
}

TEST_F(ValidExceptionsTest, ClearLeavesTheRejectTypeButNotItsCode) {
  EnterPage();
  SelectRow("grd8Document", BetaRenewal);
  Click("cmdClear");
  EXPECT_EQ(Text("cmb8DocumentSupply"), "Beta");
  EXPECT_EQ(Text("txt8Process1(0)"), "");
  EXPECT_EQ(Text("txt8Process1(1)"), "");
  EXPECT_EQ(Text("txt8Type"), "");
  EXPECT_EQ(Text("txt8Message1"), "");
  EXPECT_EQ(Text("txtExceptionNote"), "");
  EXPECT_EQ(Text("cmb8ProcessType"), "(none)");
  EXPECT_EQ(Text("cmb8Reroute1"), "(none)");
  EXPECT_EQ(Text("cmb8DeliverySource"), "Messaging Method");
  EXPECT_EQ(Row("grd8Document"), 0);
  EXPECT_TRUE(IsEnabled("txtExceptionNote"));
}

TEST_F(ValidExceptionsTest, ClearOnNoRejectTypeLeavesTheCode) {
  Another("INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE) VALUES('NNN', 'REQ')");
  EnterPage();
  SelectRowOf("grd8Document", "NNN");
  Click("cmdClear");
  EXPECT_EQ(Text("txt8Process1(0)"), "NNN");
}

// --- More Notes ---

TEST_F(ValidExceptionsTest, MoreNotesReloadsNoteAndState) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  WhenShown("frmAddExceptionNotes", [this](Screen&) {
    EXPECT_EQ(Text("txtExceptionCode"), "AAA");
    EXPECT_EQ(Cell("grdExceptionNote", 1, 1), "Only note");
    SelectRow("grdExceptionNote", 1);
    Type("txtExceptionNote", "New first");
    Click("cmdUpdate");
    Type("txtExceptionNote", "And second");
    Click("cmdAdd");
    Prompt().Expect("Settings updated.", MessageStyle::Information);
    Click("cmdClose");
  });
  Click("cmdMoreNotes");
  EXPECT_EQ(Cell("grd8Document", AlphaRequest, 6), "New first");
  EXPECT_EQ(Text("txtExceptionNote"), "New first");
  EXPECT_FALSE(IsEnabled("txtExceptionNote"));
  EXPECT_EQ(Row("grd8Document"), AlphaRequest);
}

TEST_F(ValidExceptionsTest, MoreNotesWithoutTheOnlyNoteEmptiesTheCell) {
  EnterPage();
  SelectRow("grd8Document", AlphaRequest);
  WhenShown("frmAddExceptionNotes", [this](Screen&) {
    SelectRow("grdExceptionNote", 1);
    Click("cmdDelete");
    Prompt().Expect("Settings updated.", MessageStyle::Information);
    Click("cmdClose");
  });
  Click("cmdMoreNotes");
  EXPECT_EQ(Cell("grd8Document", AlphaRequest, 6), "");
  EXPECT_EQ(Text("txtExceptionNote"), "");
  EXPECT_TRUE(IsEnabled("txtExceptionNote"));
}

TEST_F(ValidExceptionsTest, ATextKeepsTheLineEndsOfAnotherProgram) {
  Another(
      "UPDATE ID_EXCEPTION_PROCESS SET MESSAGE = 'one\r\ntwo', EXCEPTION_NOTE = 'a\r\nb' WHERE PROCESS_TYPE = 'REQ'");
  Enter(Valid);
  SelectRow("grd8Document", 3);
  EXPECT_FALSE(gbRecordModified);
  Choose("cmb8DeliverySource", "Print Locally");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT MESSAGE FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'REQ'"), "one\r\ntwo");
  EXPECT_EQ(Ask("SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'REQ'"), "a\r\nb");
}

TEST_F(ValidExceptionsTest, AChannelThatIsInNoListIsKept) {
  Another("UPDATE ID_EXCEPTION_PROCESS SET DELIVERY = 'X' WHERE PROCESS_TYPE = 'REQ'");
  Enter(Valid);
  SelectRow("grd8Document", 3);
  EXPECT_EQ(Text("cmb8DeliverySource"), "X");
  Type("txt8Message1", "Other");
  Prompt().Expect("Record Updated", MessageStyle::Information);
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT DELIVERY FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'REQ'"), "X");
}

TEST_F(ValidExceptionsTest, NotesThatCouldNotBeCountedAreLeftToTheDialog) {
  Enter(Valid);
  SelectRow("grd8Document", 3);
  EXPECT_TRUE(IsEnabled("txtExceptionNote"));
  Another("ALTER TABLE ID_EXCEPTION_NOTE RENAME TO ID_AWAY");
  Prompt().Expect("***** SQL error on OSTANA.ID_EXCEPTION_NOTE (SELECT) *****", MessageStyle::Stop);
  SelectRow("grd8Document", 2);
  Another("ALTER TABLE ID_AWAY RENAME TO ID_EXCEPTION_NOTE");
  EXPECT_FALSE(IsEnabled("txtExceptionNote"));
}

TEST_F(ValidExceptionsTest, ARowThatIsGoneIsNeitherUpdatedNorDeleted) {
  Enter(Valid);
  SelectRow("grd8Document", 1);
  Another("DELETE FROM ID_EXCEPTION_PROCESS WHERE PROCESS_TYPE = 'LON'");
  Type("txt8Message1", "Other");
  Prompt().Expect("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop);
  Click("cmdUpdate");
  Prompt()
      .Expect(DeleteQuestion, MessageStyle::Question, MessageAnswer::Yes)
      .Expect("Please select a valid record from the table.", MessageStyle::Stop);
  Click("cmdDelete");
}

}  // namespace
