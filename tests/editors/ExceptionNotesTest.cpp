#include "editors/ExceptionDesk.h"
#include "platform/controls/MemoBox.h"
#include "shell/Screen.h"

namespace {

using Texts = QStringList;

class ExceptionNotesTest : public ExceptionDesk {
 protected:
  void OpenNotes(const QString& code = "BBB", const QString& process = "REN") {
    Logon();
    gstrNotesExceptionCode = code;
    gstrNotesProcessType = process;
    screen_ = &Open("frmAddExceptionNotes");
    Statements();
  }
  void AddNote(const QString& note) {
    Type("txtExceptionNote", note);
    Click("cmdAdd");
  }
  QStringList Notes() const {
    QStringList notes;
    for (int row = 1; row < Rows("grdExceptionNote"); ++row) notes.append(Cell("grdExceptionNote", row, 1));
    return notes;
  }
  bool IsOpen() const { return screen_->isVisible(); }
  QString Stored() {
    return Ask("SELECT COUNT(*) FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE = 'BBB'") + " " +
           Ask("SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE = 'BBB' AND EXCEPTION_NOTE_SEQ = 1") +
           " " +
           Ask("SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE = 'BBB' AND EXCEPTION_NOTE_SEQ = 2");
  }

  Screen* screen_ = nullptr;
};

TEST_F(ExceptionNotesTest, OpensWithTheNotesInTheirOrder) {
  Another("UPDATE ID_EXCEPTION_NOTE SET EXCEPTION_NOTE_SEQ = 9 WHERE EXCEPTION_NOTE = 'First'");
  OpenNotes();
  EXPECT_EQ(screen_->Caption(), "Ostana - Add Exception Notes");
  EXPECT_EQ(Text("txtExceptionCode"), "BBB");
  EXPECT_EQ(Cell("grdExceptionNote", 0, 1), "Exception Note");
  EXPECT_EQ(Notes(), Texts({"Second", "First"}));
  EXPECT_EQ(Text("cmdClear"), "Clea&r");
  Picture("exception-notes");
}

TEST_F(ExceptionNotesTest, AFailedReadIsTold) {
  Another("ALTER TABLE ID_EXCEPTION_NOTE RENAME TO ID_GONE");
  Prompt().ExpectTitled("***** SQL ERROR ON ID_EXCEPTION_NOTE (SELECT) *****", MessageStyle::Stop,
                        "Ostana - Add Exception Notes");
  OpenNotes();
  EXPECT_TRUE(Notes().isEmpty());
}

TEST_F(ExceptionNotesTest, AClickShowsTheNote) {
  OpenNotes();
  SelectRow("grdExceptionNote", 2);
  EXPECT_EQ(Text("txtExceptionNote"), "Second");
  Type("txtExceptionNote", "other");
  SelectRow("grdExceptionNote", 2);
  EXPECT_EQ(Text("txtExceptionNote"), "Second");
}

TEST_F(ExceptionNotesTest, AddTrimsAndRefusesEmptyAndRepeatedNotes) {
  OpenNotes();
  Prompt().Expect("Exception note is a required field.", MessageStyle::Stop);
  AddNote("  ");
  Prompt().Expect("The Exception Note 'First' has already been added.", MessageStyle::Stop);
  AddNote(" First ");
  // The whole cell counts.
  AddNote(" Fir ");
  EXPECT_EQ(Notes(), Texts({"First", "Second", "Fir"}));
  EXPECT_TRUE(gbSaveExceptionNotes);
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionNotesTest, UpdateNeedsARowAndANote) {
  Another("DELETE FROM ID_EXCEPTION_NOTE");
  OpenNotes();
  Prompt().Expect("There are currently no rows to Update.", MessageStyle::Stop);
  Click("cmdUpdate");
  AddNote("One");
  SelectRow("grdExceptionNote", 1);
  Type("txtExceptionNote", " ");
  Prompt().Expect("Exception note is a required field.", MessageStyle::Stop);
  Click("cmdUpdate");
  Type("txtExceptionNote", " Two ");
  Click("cmdUpdate");
  EXPECT_EQ(Notes(), Texts({"Two"}));
}

TEST_F(ExceptionNotesTest, DeleteNeedsARow) {
  OpenNotes();
  Prompt().Expect("Please select a row to delete.", MessageStyle::Stop);
  Click("cmdDelete");
  SelectRow("grdExceptionNote", 1);
  Click("cmdDelete");
  EXPECT_EQ(Notes(), Texts({"Second"}));
}

TEST_F(ExceptionNotesTest, ClearAsks) {
  OpenNotes();
  Type("txtExceptionNote", "text");
  Prompt().Expect("Are you sure you wish to clear the screen?", MessageStyle::Question, MessageAnswer::No);
  Click("cmdClear");
  EXPECT_EQ(Text("txtExceptionNote"), "text");
  Prompt().Expect("Are you sure you wish to clear the screen?", MessageStyle::Question, MessageAnswer::Yes);
  Click("cmdClear");
  EXPECT_EQ(Text("txtExceptionNote"), "");
  EXPECT_EQ(Notes(), Texts({"First", "Second"}));
}

TEST_F(ExceptionNotesTest, UpAndDownMoveTheCurrentNote) {
  OpenNotes();
  Click("cmdUp");
  Click("cmdDown");
  EXPECT_FALSE(gbSaveExceptionNotes);
  SelectRow("grdExceptionNote", 2);
  Click("cmdDown");
  EXPECT_FALSE(gbSaveExceptionNotes);
  Click("cmdUp");
  EXPECT_EQ(Notes(), Texts({"Second", "First"}));
  EXPECT_EQ(Row("grdExceptionNote"), 1);
  Click("cmdUp");
  EXPECT_EQ(Notes(), Texts({"Second", "First"}));
  Click("cmdDown");
  EXPECT_EQ(Notes(), Texts({"First", "Second"}));
}

TEST_F(ExceptionNotesTest, NoHeadingSortsTheNotes) {
  Another("UPDATE ID_EXCEPTION_NOTE SET EXCEPTION_NOTE = 'Zzz' WHERE EXCEPTION_NOTE = 'First'");
  OpenNotes();
  SortBy("grdExceptionNote", 1);
  EXPECT_EQ(Notes(), Texts({"Zzz", "Second"}));
}

TEST_F(ExceptionNotesTest, CloseReplacesTheWholeList) {
  OpenNotes();
  AddNote("It's third");
  SelectRow("grdExceptionNote", 2);
  Click("cmdUp");
  Prompt().ExpectTitled("Settings updated.", MessageStyle::Information, "Ostana - Add Exception Notes");
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  const QString into =
      "INSERT INTO ID_EXCEPTION_NOTE (EXCEPTION_CODE, PROCESS_TYPE, EXCEPTION_NOTE_SEQ, "
      "EXCEPTION_NOTE) VALUES('BBB', 'REN', ";
  EXPECT_EQ(Writing(),
            Texts({"DELETE FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE = 'BBB' AND PROCESS_TYPE = 'REN'",
                   into + "'1', 'Second')", into + "'2', 'First')", into + "'3', 'It''s third')",
                   "UPDATE ID_EXCEPTION_PROCESS SET EXCEPTION_NOTE = 'Second' WHERE EXCEPTION_CODE = 'BBB' AND "
                   "PROCESS_TYPE = 'REN'"}));
  EXPECT_EQ(Stored(), "3 Second First");
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE", "EXCEPTION_CODE = 'AAA'"), 1);
}

TEST_F(ExceptionNotesTest, DeletingTheOnlyNoteSetsTheDefaultToNull) {
  OpenNotes("AAA", "REQ");
  SelectRow("grdExceptionNote", 1);
  Click("cmdDelete");
  Prompt().Expect("Settings updated.", MessageStyle::Information);
  Click("cmdClose");
  EXPECT_EQ(Writing(), Texts({"DELETE FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE = 'AAA' AND PROCESS_TYPE = 'REQ'",
                              "UPDATE ID_EXCEPTION_PROCESS SET EXCEPTION_NOTE = Null WHERE EXCEPTION_CODE = 'AAA' AND "
                              "PROCESS_TYPE = 'REQ'"}));
  EXPECT_EQ(Count("ID_EXCEPTION_PROCESS", "PROCESS_TYPE = 'REQ' AND EXCEPTION_NOTE IS NULL"), 1);
}

TEST_F(ExceptionNotesTest, CloseWithoutAChangeWritesNothing) {
  OpenNotes();
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(ExceptionNotesTest, CancelAndEscapeLeaveTheStoredListAlone) {
  OpenNotes();
  AddNote("Third");
  Click("cmdCancel");
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(gbSaveExceptionNotes);
  OpenNotes();
  AddNote("Third");
  Press("txtExceptionNote", Qt::Key_Escape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Stored(), "2 First Second");
}

TEST_F(ExceptionNotesTest, AFailureOfTheThirdInsertLeavesTheOldListWhole) {
  // The third note is refused: it stands in the list of another pair already.
  Another("CREATE UNIQUE INDEX NOTE_ONCE ON ID_EXCEPTION_NOTE (EXCEPTION_NOTE)");
  OpenNotes();
  SelectRow("grdExceptionNote", 1);
  Type("txtExceptionNote", "Changed");
  Click("cmdUpdate");
  AddNote("Only note");
  Statements();
  Prompt().ExpectTitled("An error has occurred.  Please Notify Support.\n\nUnable to update the Exception notes.",
                        MessageStyle::Stop, "Ostana - Add Exception Notes");
  Click("cmdClose");
  const QStringList writing = Writing();
  ASSERT_EQ(writing.size(), 4);
  EXPECT_TRUE(writing[3].endsWith("'3', 'Only note')"));
  EXPECT_EQ(Stored(), "2 First Second");
  EXPECT_EQ(Ask("SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_PROCESS WHERE EXCEPTION_CODE = 'BBB'"), "First");
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_TRUE(LogHolds("***** SQL error on ID_EXCEPTION_NOTE (Insert) *****"));
  // The list on screen is still there to be corrected.
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Notes(), Texts({"Changed", "Second", "Only note"}));
  SelectRow("grdExceptionNote", 3);
  Click("cmdDelete");
  Prompt().Expect("Settings updated.", MessageStyle::Information);
  Click("cmdClose");
  EXPECT_EQ(Stored(), "2 Changed Second");
}

TEST_F(ExceptionNotesTest, APairThatAnotherClientDeletedIsRefused) {
  OpenNotes();
  AddNote("Third");
  Another("DELETE FROM ID_EXCEPTION_PROCESS WHERE EXCEPTION_CODE = 'BBB'");
  Prompt().Expect("An error has occurred.  Please Notify Support.\n\nUnable to update the Exception notes.",
                  MessageStyle::Stop);
  Click("cmdClose");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Count("ID_EXCEPTION_NOTE", "EXCEPTION_CODE = 'BBB'"), 0);
}

TEST_F(ExceptionNotesTest, ADroppedConnectionLeavesTheOldListWhole) {
  OpenNotes();
  AddNote("Third");
  if (!DropConnection()) GTEST_SKIP() << "This engine has no server to lose";
  Prompt().Expect("An error has occurred.  Please Notify Support.\n\nUnable to update the Exception notes.",
                  MessageStyle::Stop);
  Click("cmdClose");
  EXPECT_EQ(Stored(), "2 First Second");
  EXPECT_TRUE(IsOpen());
  Prompt().Expect("Settings updated.", MessageStyle::Information);
  Click("cmdClose");
  EXPECT_EQ(Stored(), "3 First Second");
}

TEST_F(ExceptionNotesTest, ARightThatIsMissingIsMissingHere) {
  TakeAway("UPDATE_FLAG");
  OpenNotes();
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  EXPECT_TRUE(IsEnabled("cmdDelete"));
  for (const char* button : {"cmdUpdate", "cmdUp", "cmdDown"}) EXPECT_FALSE(IsEnabled(button)) << button;
}

// --- A list that was not read whole ---

TEST_F(ExceptionNotesTest, NotesThatWereNotReadAreNotReplaced) {
  Another("ALTER TABLE ID_EXCEPTION_NOTE RENAME TO ID_GONE");
  Prompt().Expect("***** SQL ERROR ON ID_EXCEPTION_NOTE (SELECT) *****", MessageStyle::Stop);
  OpenNotes();
  Another("ALTER TABLE ID_GONE RENAME TO ID_EXCEPTION_NOTE");
  for (const char* button : {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdUp", "cmdDown"})
    EXPECT_FALSE(IsEnabled(button)) << button;
  Type("txtExceptionNote", "New");
  Click("cmdClose");
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_EQ(Stored(), "2 First Second");
}

TEST_F(ExceptionNotesTest, AListThatWasReadAfterAFailureIsWrittenAgain) {
  Another("ALTER TABLE ID_EXCEPTION_NOTE RENAME TO ID_GONE");
  Prompt().Expect("***** SQL ERROR ON ID_EXCEPTION_NOTE (SELECT) *****", MessageStyle::Stop);
  OpenNotes();
  Click("cmdClose");
  Another("ALTER TABLE ID_GONE RENAME TO ID_EXCEPTION_NOTE");
  OpenNotes();
  AddNote("Third");
  Prompt().Expect("Settings updated.", MessageStyle::Information);
  Click("cmdClose");
  EXPECT_EQ(Stored(), "3 First Second");
}

TEST_F(ExceptionNotesTest, UpdateWithoutACurrentRowSaysSo) {
  OpenNotes();
  Type("txtExceptionNote", "New");
  Prompt().Expect("Please select a row to update.", MessageStyle::Stop);
  Click("cmdUpdate");
  EXPECT_EQ(Notes(), Texts({"First", "Second"}));
}

TEST_F(ExceptionNotesTest, OneNoteInTwoLineEndsIsOneNote) {
  Another("UPDATE ID_EXCEPTION_NOTE SET EXCEPTION_NOTE = 'one\r\ntwo' WHERE EXCEPTION_NOTE = 'First'");
  OpenNotes();
  Prompt().ExpectStart("The Exception Note 'one\ntwo'", MessageStyle::Stop);
  AddNote("one\ntwo");
  EXPECT_EQ(Notes(), Texts({"one\r\ntwo", "Second"}));
}

TEST_F(ExceptionNotesTest, ANoteKeepsTheLineEndsOfAnotherProgram) {
  Another("UPDATE ID_EXCEPTION_NOTE SET EXCEPTION_NOTE = 'one\r\ntwo' WHERE EXCEPTION_NOTE = 'First'");
  OpenNotes();
  SelectRow("grdExceptionNote", 1);
  Append("txtExceptionNote", "\nthree");
  Click("cmdUpdate");
  Prompt().Expect("Settings updated.", MessageStyle::Information);
  Click("cmdClose");
  EXPECT_EQ(Stored(), "2 one\r\ntwo\r\nthree Second");
}

}  // namespace
