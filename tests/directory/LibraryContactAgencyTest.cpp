// The two lists of ISO 18626 agency ids on the contact screen, by the buttons and in the cells.
#include <QRegularExpression>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "shell/Screen.h"

namespace {

const QString Caption = "Ostana - Contact Information";
const QString Receive = "grdISO18626AgencyIdReceive", Send = "grdISO18626AgencyIdSend";
const QString BadLength =
    "The Agency Id entered is not valid. The Agency Id must be between 1 and 20 characters in length.";
const QString Repeated = "The Agency Id entered already exists. Please enter a different Agency Id.";
const QString OtherLibrary =
    "The Agency Id entered is already assigned to another Library. The Agency Id must be unique. Please enter a "
    "different value.";
const QString NoSystem = "The External ILL System selected is not valid. Please select an External ILL System .";
const QString SystemTaken =
    "There is already an Agency ID for the selected External ILL System. Please select a different ILL System.";

class LibraryContactAgencyTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    AddReceive(North, "N1");
    AddReceive(North, "N2");
    AddReceive(South, "S1");
    AddSend(North, "TALVERNE", "OUT1");
    AddSend(South, "OTHER", "SOUTH OUT");
  }
  void AddReceive(qint32 library, const QString& id) {
    Another("INSERT INTO ID_ISO18626_AGENCY_ID_RECEIVE (ISO18626_AGENCY_ID, LIBRARY_ID) VALUES ('" + id + "', " +
            QString::number(library) + ")");
  }
  void AddSend(qint32 library, const QString& system, const QString& id) {
    Another("INSERT INTO ID_ISO18626_AGENCY_ID_SEND (LIBRARY_ID, EXTERNAL_ILL_SYSTEM, ISO18626_AGENCY_ID) VALUES (" +
            QString::number(library) + ", '" + system + "', '" + id + "')");
  }
  void OpenScreen(qint32 id = North) { OpenLibrary("frmLibraryContactInfo", id); }

  // The editor that is open in a grid; editors of former cells are gone first.
  QWidget* Editor(const QString& grid) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QList<QWidget*> editors = Find<Grid>(grid)->viewport()->findChildren<QWidget*>(
        QRegularExpression("^qt_grid_"), Qt::FindDirectChildrenOnly);
    return editors.isEmpty() ? nullptr : editors.last();
  }
  bool IsEditing(const QString& grid) { return Editor(grid) != nullptr; }
  // Types into the open editor, which stays open.
  void TypeCell(const QString& grid, const QString& text) {
    auto* const box = qobject_cast<TextBox*>(Editor(grid));
    ASSERT_TRUE(box);
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
  }
  void PickCell(const QString& grid, const QString& text) {
    auto* const list = qobject_cast<CodeComboBox*>(Editor(grid));
    ASSERT_TRUE(list);
    list->setFocus();
    list->SetText(text);
  }
  // The editor hands its text over when the key has been dealt with.
  void EnterCell(const QString& grid) {
    QTest::keyClick(Editor(grid), Qt::Key_Return);
    QCoreApplication::processEvents();
  }
  void EscapeCell(const QString& grid) {
    QTest::keyClick(Editor(grid), Qt::Key_Escape);
    QCoreApplication::processEvents();
  }
  void EditCell(const QString& grid, int row, int col, const QString& text) {
    Find<Grid>(grid)->setFocus();
    Find<Grid>(grid)->EditCell(row, col);
    if (qobject_cast<CodeComboBox*>(Editor(grid)))
      PickCell(grid, text);
    else
      TypeCell(grid, text);
    EnterCell(grid);
  }
  void Refuses(const QString& text) { Prompt().ExpectTitled(text, MessageStyle::Warning, Caption); }
  void Saves() {
    Statements();
    Prompt().ExpectStart("Library Symbol: (", MessageStyle::Information);
    Click("cmdUpdate");
  }
  QStringList Column1(const QString& grid, int col = 1) {
    QStringList cells;
    for (int row = 1; row < Rows(grid); ++row) cells.append(Cell(grid, row, col));
    cells.sort();
    return cells;
  }
  void ExpectNewRow(const QString& kind, bool open) {
    EXPECT_EQ(IsEnabled("cmdAddISO18626AgencyId" + kind), !open);
    EXPECT_EQ(IsEnabled("cmdDeleteISO18626AgencyId" + kind), !open);
    EXPECT_EQ(IsShown("fraNewAgencyId" + kind), open);
  }
};

// --- Receive ---

TEST_F(LibraryContactAgencyTest, TheListsAreThoseOfTheLibrary) {
  OpenScreen();
  EXPECT_EQ(Column1(Receive), (QStringList{"N1", "N2"}));
  EXPECT_EQ(Cell(Send, 1, 1), "Talverne");
  EXPECT_EQ(Cell(Send, 1, 2), "OUT1");
  EXPECT_EQ(Rows(Send), 2);
  EXPECT_EQ(Cell(Receive, 0, 1), "Agency Id");
  ExpectNewRow("Receive", false);
  ExpectNewRow("Send", false);
}

TEST_F(LibraryContactAgencyTest, ANewIdIsSavedAndWritten) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdReceive");
  EXPECT_EQ(Rows(Receive), 4);
  ExpectNewRow("Receive", true);
  ExpectNewRow("Send", false);
  ASSERT_TRUE(IsEditing(Receive));
  TypeCell(Receive, " it's new ");
  Statements();
  Click("cmdSaveAgencyIdReceive");
  EXPECT_EQ(Statements(), QStringList{"SELECT DISTINCT LIBRARY_ID FROM ID_ISO18626_AGENCY_ID_RECEIVE WHERE    "
                                      "ISO18626_AGENCY_ID = N'it''s new'"})
      << "tested once";
  ExpectNewRow("Receive", false);
  Find<Grid>(Receive)->Sort(1, Qt::AscendingOrder);
  Saves();
  const QString insert = "INSERT INTO ID_ISO18626_AGENCY_ID_RECEIVE (ISO18626_AGENCY_ID, LIBRARY_ID) VALUES (N'";
  EXPECT_EQ(Writing().mid(1, 2),
            (QStringList{"DELETE FROM ID_ISO18626_AGENCY_ID_RECEIVE WHERE LIBRARY_ID= 101",
                         insert + "it''s new', 101); " + insert + "N1', 101); " + insert + "N2', 101); "}));
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "LIBRARY_ID = 101"), 3);
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "LIBRARY_ID = 102"), 1);
}

TEST_F(LibraryContactAgencyTest, AnIdOf21CharactersOrNoneIsRefusedBySave) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdReceive");
  Refuses(BadLength);
  Click("cmdSaveAgencyIdReceive");
  EXPECT_TRUE(IsEditing(Receive)) << "back in the cell";
  TypeCell(Receive, "123456789012345678901");
  Refuses(BadLength);
  Click("cmdSaveAgencyIdReceive");
  ASSERT_TRUE(IsEditing(Receive));
  TypeCell(Receive, "   ");
  Refuses(BadLength);
  Click("cmdSaveAgencyIdReceive");
  TypeCell(Receive, "12345678901234567890");
  Click("cmdSaveAgencyIdReceive");
  ExpectNewRow("Receive", false);
}

TEST_F(LibraryContactAgencyTest, AnIdOf21CharactersOrNoneIsRefusedInTheCell) {
  OpenScreen();
  const int row = Find<Grid>(Receive)->FindRow("N1", 1);
  for (const char* text : {"", "  ", "123456789012345678901"}) {
    Refuses(BadLength);
    EditCell(Receive, row, 1, text);
    EXPECT_EQ(Cell(Receive, row, 1), "N1") << "the old text is back";
    ASSERT_TRUE(IsEditing(Receive));
    EscapeCell(Receive);
  }
  EditCell(Receive, row, 1, " N9 ");
  EXPECT_EQ(Cell(Receive, row, 1), "N9");
  Saves();
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "LIBRARY_ID = 101 AND ISO18626_AGENCY_ID = 'N9'"), 1);
}

TEST_F(LibraryContactAgencyTest, AnIdInUseIsRefusedForReceiving) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdReceive");
  TypeCell(Receive, "N2");
  Refuses(Repeated);
  Click("cmdSaveAgencyIdReceive");
  TypeCell(Receive, "S1");
  Refuses(OtherLibrary);
  Click("cmdSaveAgencyIdReceive");
  Click("cmdCancelAgencyIdReceive");
  EXPECT_EQ(Rows(Receive), 3);
  ExpectNewRow("Receive", false);
  const int row = Find<Grid>(Receive)->FindRow("N1", 1);
  Refuses(Repeated);
  EditCell(Receive, row, 1, "N2");
  EscapeCell(Receive);
  Refuses(OtherLibrary);
  EditCell(Receive, row, 1, "S1");
  EscapeCell(Receive);
  EXPECT_EQ(Column1(Receive), (QStringList{"N1", "N2"}));
}

TEST_F(LibraryContactAgencyTest, AnIdDoesNotClashWithItself) {
  OpenScreen();
  const int row = Find<Grid>(Receive)->FindRow("N1", 1);
  EditCell(Receive, row, 1, "N3");
  EditCell(Receive, row, 1, "N1");
  EXPECT_EQ(Cell(Receive, row, 1), "N1");
  // Taken from the list and put back, while the table still holds it for this library.
  SelectRow(Receive, row);
  Click("cmdDeleteISO18626AgencyIdReceive");
  Click("cmdAddISO18626AgencyIdReceive");
  TypeCell(Receive, "N1");
  Click("cmdSaveAgencyIdReceive");
  EXPECT_EQ(Column1(Receive), (QStringList{"N1", "N2"}));
}

TEST_F(LibraryContactAgencyTest, LeavingANewCellByEnterTestsItToo) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdReceive");
  TypeCell(Receive, "S1");
  Refuses(OtherLibrary);
  EnterCell(Receive);
  EXPECT_EQ(Cell(Receive, 3, 1), "");
  ASSERT_TRUE(IsEditing(Receive));
  TypeCell(Receive, "N5");
  EnterCell(Receive);
  ExpectNewRow("Receive", true);
  Click("cmdSaveAgencyIdReceive");
  ExpectNewRow("Receive", false);
}

TEST_F(LibraryContactAgencyTest, ARowNotSavedYetIsNotWritten) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdReceive");
  TypeCell(Receive, "HALF");
  EnterCell(Receive);
  Type("txtNote", "changed");
  Saves();
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "LIBRARY_ID = 101"), 2);
  ExpectNewRow("Receive", true);
  Click("cmdSaveAgencyIdReceive");
  Saves();
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "ISO18626_AGENCY_ID = 'HALF'"), 1);
}

TEST_F(LibraryContactAgencyTest, CancelWithAnOpenCellTestsNothing) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdReceive");
  TypeCell(Receive, "S1");
  Click("cmdCancelAgencyIdReceive");
  EXPECT_EQ(Column1(Receive), (QStringList{"N1", "N2"}));
  ExpectNewRow("Receive", false);
  EXPECT_FALSE(IsEditing(Receive));
}

TEST_F(LibraryContactAgencyTest, AnotherRecordDropsTheNewRow) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdReceive");
  Type("txtLibrarySymbol", "SOUTH");
  Click("cmdSearch");
  EXPECT_EQ(Column1(Receive), QStringList{"S1"});
  ExpectNewRow("Receive", false);
  EXPECT_EQ(Cell(Send, 1, 2), "SOUTH OUT");
}

TEST_F(LibraryContactAgencyTest, DeleteTakesTheSelectedRowAndCountsAsAChange) {
  OpenScreen();
  Click("cmdDeleteISO18626AgencyIdReceive");
  EXPECT_EQ(Rows(Receive), 3) << "no row was selected";
  SelectRowOf(Receive, "N1");
  Click("cmdDeleteISO18626AgencyIdReceive");
  SelectRowOf(Send, "OUT1", 2);
  Click("cmdDeleteISO18626AgencyIdSend");
  Saves();
  EXPECT_EQ(Writing().mid(1),
            (QStringList{"DELETE FROM ID_ISO18626_AGENCY_ID_RECEIVE WHERE LIBRARY_ID= 101",
                         "INSERT INTO ID_ISO18626_AGENCY_ID_RECEIVE (ISO18626_AGENCY_ID, LIBRARY_ID) VALUES (N'N2', "
                         "101); ",
                         "DELETE FROM ID_ISO18626_AGENCY_ID_SEND WHERE LIBRARY_ID= 101"}));
}

TEST_F(LibraryContactAgencyTest, AFailedTestIsTold) {
  OpenScreen();
  Another("ALTER TABLE ID_ISO18626_AGENCY_ID_RECEIVE RENAME TO ID_TEST_GONE");
  Click("cmdAddISO18626AgencyIdReceive");
  TypeCell(Receive, "N5");
  Prompt().ExpectTitled(
      "An error occurred trying to add the new ISO 18626 Agency ID for receiving messages. Please Notify Support.",
      MessageStyle::Stop, Caption);
  Click("cmdSaveAgencyIdReceive");
  EXPECT_TRUE(LogHolds("* frmLibraryContactInfo.cmdSaveAgencyIdReceive_Click"));
  Click("cmdCancelAgencyIdReceive");
  Prompt().Expect("An error occurred. Please Notify Support.", MessageStyle::Stop);
  EditCell(Receive, 1, 1, "N6");
}

// --- Send ---

TEST_F(LibraryContactAgencyTest, ANewSendIdGoesWithASystem) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdSend");
  ExpectNewRow("Send", true);
  ASSERT_TRUE(qobject_cast<CodeComboBox*>(Editor(Send)));
  Refuses(NoSystem);
  Click("cmdSaveAgencyIdSend");
  ASSERT_TRUE(qobject_cast<CodeComboBox*>(Editor(Send))) << "back in the cell that was refused";
  PickCell(Send, "DOCLINE");
  Refuses(BadLength);
  Click("cmdSaveAgencyIdSend");
  ASSERT_TRUE(qobject_cast<TextBox*>(Editor(Send)));
  TypeCell(Send, "SOUTH OUT");
  Click("cmdSaveAgencyIdSend");
  ExpectNewRow("Send", false);
  Find<Grid>(Send)->Sort(1, Qt::AscendingOrder);
  Saves();
  const QString insert =
      "INSERT INTO ID_ISO18626_AGENCY_ID_SEND (LIBRARY_ID, EXTERNAL_ILL_SYSTEM, ISO18626_AGENCY_ID) VALUES (101, N'";
  EXPECT_EQ(Writing().last(), insert + "DOCLINE', N'SOUTH OUT'); " + insert + "TALVERNE', N'OUT1'); ");
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_SEND", "ISO18626_AGENCY_ID = 'SOUTH OUT'"), 2)
      << "an id may repeat across libraries for sending";
}

TEST_F(LibraryContactAgencyTest, ASystemHasOneSendIdOnly) {
  OpenScreen();
  Click("cmdAddISO18626AgencyIdSend");
  PickCell(Send, "Talverne");
  Refuses(SystemTaken);
  EnterCell(Send);
  EXPECT_EQ(Cell(Send, 2, 1), "");
  PickCell(Send, "Other system");
  QTest::keyClick(Editor(Send), Qt::Key_Tab);
  ASSERT_TRUE(qobject_cast<TextBox*>(Editor(Send))) << "Tab goes on to the id";
  TypeCell(Send, "OUT2");
  Click("cmdSaveAgencyIdSend");
  ExpectNewRow("Send", false);
  const int row = Find<Grid>(Send)->FindRow("OUT2", 2);
  Refuses(SystemTaken);
  EditCell(Send, row, 1, "Talverne");
  EXPECT_EQ(Cell(Send, row, 1), "Other system");
  EscapeCell(Send);
  EditCell(Send, row, 1, "DOCLINE");
  Refuses(BadLength);
  EditCell(Send, row, 2, "123456789012345678901");
  EscapeCell(Send);
  Saves();
  EXPECT_EQ(Ask("SELECT ISO18626_AGENCY_ID FROM ID_ISO18626_AGENCY_ID_SEND WHERE LIBRARY_ID = 101 AND "
                "EXTERNAL_ILL_SYSTEM = 'DOCLINE'"),
            "OUT2");
}

TEST_F(LibraryContactAgencyTest, ALoadedSystemKeepsItsCodeAmongEqualDescriptions) {
  Another("INSERT INTO ID_ILL_SYSTEM (ILL_SYSTEM, ILL_SYSTEM_DESC) VALUES ('AAA', 'Talverne')");
  OpenScreen();
  EditCell(Send, 1, 2, "OUT9");
  Saves();
  EXPECT_EQ(Ask("SELECT EXTERNAL_ILL_SYSTEM FROM ID_ISO18626_AGENCY_ID_SEND WHERE LIBRARY_ID = 101"), "TALVERNE");
}

// --- What was not read is not replaced ---

TEST_F(LibraryContactAgencyTest, ListsThatCouldNotBeReadAreNotReplaced) {
  for (const QString table : {"ID_ISO18626_AGENCY_ID_RECEIVE", "ID_ISO18626_AGENCY_ID_SEND", "ID_ILL_SYSTEM"}) {
    Begin(North);
    Another("ALTER TABLE " + table + " RENAME TO ID_TEST_AWAY");
    Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
    Open("frmLibraryContactInfo");
    Another("ALTER TABLE ID_TEST_AWAY RENAME TO " + table);
    EXPECT_FALSE(IsEnabled("cmdUpdate"));
    Type("txtNote", "mine");
    Statements();
    // There is nothing that the question could save.
    Click("cmdClear");
    EXPECT_TRUE(Writing().isEmpty());
    EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "LIBRARY_ID = 101"), 2);
    EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_SEND", "LIBRARY_ID = 101"), 1);
  }
}

TEST_F(LibraryContactAgencyTest, TheListsOfTheLibraryBeforeAreNotStoredUnderTheNext) {
  OpenScreen(South);
  Another("ALTER TABLE ID_ISO18626_AGENCY_ID_SEND RENAME TO ID_TEST_AWAY");
  Type("txtLibrarySymbol", "NORTH");
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Click("cmdSearch");
  Another("ALTER TABLE ID_TEST_AWAY RENAME TO ID_ISO18626_AGENCY_ID_SEND");
  EXPECT_EQ(gclsOF->LibraryId(), South) << "the library in hand is the one on show";
  EXPECT_EQ(Text("txtInstitution"), "SOUTH INSTITUTE");
  EXPECT_EQ(Column1(Receive), QStringList{"S1"});
  Type("txtNote", "mine");
  Prompt().ExpectStart("The Library Registration", MessageStyle::Question, MessageAnswer::Yes);
  Prompt().Expect("Library Symbol: (SOUTH) has been updated.", MessageStyle::Information);
  Click("cmdSearch");
  EXPECT_EQ(Column("NOTE", South), "mine");
  EXPECT_EQ(Column("NOTE", North), QString());
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "LIBRARY_ID = 101"), 2);
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_RECEIVE", "LIBRARY_ID = 102"), 1);
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_SEND", "LIBRARY_ID = 101"), 1);
  EXPECT_EQ(Count("ID_ISO18626_AGENCY_ID_SEND", "LIBRARY_ID = 102"), 1);
}

TEST_F(LibraryContactAgencyTest, AnIdThatCouldNotBeTestedDoesNotStayInTheCell) {
  OpenScreen();
  const int row = Find<Grid>(Receive)->FindRow("N1", 1);
  Another("ALTER TABLE ID_ISO18626_AGENCY_ID_RECEIVE RENAME TO ID_TEST_AWAY");
  Prompt().Expect("An error occurred. Please Notify Support.", MessageStyle::Stop);
  EditCell(Receive, row, 1, "S1");
  Another("ALTER TABLE ID_TEST_AWAY RENAME TO ID_ISO18626_AGENCY_ID_RECEIVE");
  EXPECT_EQ(Cell(Receive, row, 1), "N1");
  Prompt().ExpectStart("Nothing has been changed.", MessageStyle::Stop);
  Click("cmdUpdate");
}

}  // namespace
