#include <QApplication>

#include "core/ModuleState.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

const QString DatabaseError =
    "A database error has occurred.  Please verify your data entry\nand your Database structure.";
const QString NoRecord = "You need select a record to Update";

class CoverPagesTest : public Desk {
 protected:
  void Enter(const QString& arguments = "\"\" \"admin\" \"secret\"") {
    Start(arguments);
    SelectTab("sstabtables", frmTabulon::CoverPagesTab);
    Statements();
  }
  QString Stored(const QString& column, const QString& type = "ILL") {
    return Ask("SELECT " + column + " FROM ID_COVER_INFO WHERE REQUEST_TYPE = '" + type + "'");
  }
  void Update() {
    Prompt().Expect("Record Updated", 64);
    Click("cmdUpdate");
  }
};

TEST_F(CoverPagesTest, TheTabOpensOnTheFirstRequestType) {
  Start();
  Statements();
  SelectTab("sstabtables", frmTabulon::CoverPagesTab);
  EXPECT_EQ(Statements(),
            QStringList{"SELECT RT.REQUEST_TYPE, RT.REQUEST_TYPE_DESC, CI.HEADER, CI.FOOTER, CI.MESSAGE_1, "
                        "CI.MESSAGE_2 FROM ID_COVER_INFO CI, ID_REQUEST_TYPE RT WHERE  RT.REQUEST_TYPE = "
                        "CI.REQUEST_TYPE ORDER BY RT.REQUEST_TYPE"});
  EXPECT_EQ(Rows("grd1CoverInfo"), 5);
  EXPECT_EQ(Row("grd1CoverInfo"), 1);
  EXPECT_EQ(Cell("grd1CoverInfo", 1, 1), "ILL - Requests of other libraries");
  EXPECT_EQ(Text("txt1RequestType"), "ILL");
  EXPECT_EQ(Text("txt1Description"), "Requests of other libraries");
  EXPECT_EQ(Text("txt1Header"), "Interlibrary loan");
  EXPECT_EQ(Text("txt1Footer"), "Thank you for using our service");
  EXPECT_EQ(Text("txt1Message1"), "");
  // The focus that goes to the type is handed on.
  EXPECT_EQ(Focus(), "txt1Header");
  for (const char* hidden : {"cmdAdd", "cmdDelete", "mnuOptionsAdd", "mnuOptionsDelete"})
    EXPECT_FALSE(IsShown(hidden)) << hidden;
  for (const char* shown : {"cmdUpdate", "cmdClear"}) EXPECT_TRUE(IsShown(shown)) << shown;
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(CoverPagesTest, TheDescriptionIsThatOfTheWorkingLanguage) {
  Another("UPDATE ID_REQUEST_TYPE SET REQUEST_TYPE_DESC_FRE = 'Autres' WHERE REQUEST_TYPE = 'ILL'");
  Enter("\"\" \"admin\" \"secret\" \"\" \"_FRE\"");
  EXPECT_EQ(Text("txt1Description"), "Autres");
  EXPECT_EQ(Cell("grd1CoverInfo", 1, 1), "ILL - Autres");
}

TEST_F(CoverPagesTest, UpdateWritesTheFourTextsUnderTheLowerCaseName) {
  Enter();
  SelectRow("grd1CoverInfo", 3);
  EXPECT_EQ(Text("txt1RequestType"), "REG");
  Type("txt1Header", "O'Neill");
  Type("txt1Footer", " with blanks ");
  Type("txt1Message1", "one\ntwo");
  EXPECT_TRUE(gbRecordModified);
  Update();
  EXPECT_EQ(Writing(),
            QStringList{"UPDATE  id_cover_info SET HEADER = N'O''Neill', FOOTER = N' with blanks ', MESSAGE_1 = "
                        "N'one\ntwo', MESSAGE_2 = NULL where REQUEST_TYPE ='REG'"});
  EXPECT_EQ(Stored("HEADER", "REG"), "O'Neill");
  EXPECT_EQ(Stored("MESSAGE_1", "REG"), "one\ntwo");
  EXPECT_EQ(Cell("grd1CoverInfo", 3, 2), "O'Neill");
  EXPECT_EQ(Cell("grd1CoverInfo", 3, 3), " with blanks ");
  EXPECT_EQ(Cell("grd1CoverInfo", 3, 4), "one\ntwo");
  EXPECT_EQ(Row("grd1CoverInfo"), 3);
  EXPECT_FALSE(gbRecordModified);
}

TEST_F(CoverPagesTest, EmptyingATextStoresNull) {
  Another("UPDATE ID_COVER_INFO SET MESSAGE_1 = 'a', MESSAGE_2 = 'b' WHERE REQUEST_TYPE = 'ILL'");
  Enter();
  for (const char* box : {"txt1Header", "txt1Footer", "txt1Message1", "txt1message2"}) Type(box, "");
  Update();
  EXPECT_EQ(Writing(), QStringList{"UPDATE  id_cover_info SET HEADER = NULL, FOOTER = NULL, MESSAGE_1 = NULL, "
                                   "MESSAGE_2 = NULL where REQUEST_TYPE ='ILL'"});
  EXPECT_EQ(Count("ID_COVER_INFO",
                  "REQUEST_TYPE = 'ILL' AND HEADER IS NULL AND FOOTER IS NULL AND MESSAGE_1 IS NULL "
                  "AND MESSAGE_2 IS NULL"),
            1);
}

TEST_F(CoverPagesTest, AMessageOfExactlyAThousandCharactersIsAcceptedAndNoMore) {
  Enter();
  const QString text = QString(499, 'x') + "\n" + QString(500, 'y');
  Paste("txt1Message1", text + "z");
  Append("txt1Message1", "z");
  EXPECT_EQ(Text("txt1Message1"), text);
  Paste("txt1message2", QString(1000, 'm'));
  Update();
  EXPECT_EQ(Stored("MESSAGE_1"), text);
  EXPECT_EQ(Stored("MESSAGE_2").size(), 1000);
}

TEST_F(CoverPagesTest, HeaderAndFooterTakeSixtyCharacters) {
  Enter();
  Type("txt1Header", QString(65, 'h'));
  Type("txt1Footer", QString(65, 'f'));
  EXPECT_EQ(Text("txt1Header").size(), 60);
  EXPECT_EQ(Text("txt1Footer").size(), 60);
}

TEST_F(CoverPagesTest, AnUnchangedRowIsNotWritten) {
  Enter();
  Type("txt1Header", "else");
  EXPECT_TRUE(gbRecordModified);
  Type("txt1Header", "Interlibrary loan");
  EXPECT_FALSE(gbRecordModified);
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  EXPECT_EQ(Focus(), "txt1Header");
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(CoverPagesTest, WithoutARowUpdateAndTheNoticesAskForOne) {
  Enter();
  Click("cmdClear");
  for (const char* box :
       {"txt1RequestType", "txt1Description", "txt1Header", "txt1Footer", "txt1Message1", "txt1message2"})
    EXPECT_EQ(Text(box), "") << box;
  EXPECT_EQ(Row("grd1CoverInfo"), 0);
  EXPECT_EQ(Rows("grd1CoverInfo"), 5);
  EXPECT_FALSE(gbRecordModified);
  Type("txt1Header", "lost");
  EXPECT_TRUE(gbRecordModified);
  for (const char* button : {"cmdUpdate", "cmdNotifyPatron", "cmdLoanNotices", "cmdGeneral", "cmdPickup"}) {
    Prompt().Expect(NoRecord, 48);
    Click(button);
  }
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_F(CoverPagesTest, StoredLineEndsAreNoChangeAndStay) {
  Another("UPDATE ID_COVER_INFO SET MESSAGE_1 = 'one\r\ntwo', MESSAGE_2 = 'three\r\nfour' WHERE REQUEST_TYPE = 'ILL'");
  Enter();
  EXPECT_EQ(Text("txt1Message1"), "one\r\ntwo");
  EXPECT_FALSE(gbRecordModified);
  Prompt().Expect("Nothing has been changed", 48);
  Click("cmdUpdate");
  Append("txt1Message1", "!");
  EXPECT_TRUE(gbRecordModified);
  Press("txt1Message1", Qt::Key_Backspace);
  EXPECT_EQ(Text("txt1Message1"), "one\r\ntwo");
  EXPECT_FALSE(gbRecordModified);
  Type("txt1message2", "three\nfive");
  Update();
  EXPECT_EQ(Stored("MESSAGE_1"), "one\r\ntwo");
  EXPECT_EQ(Stored("MESSAGE_2"), "three\r\nfive");
}

TEST_F(CoverPagesTest, TheCodeOfARowIsNotReadOutOfItsText) {
  Another("INSERT INTO ID_REQUEST_TYPE (REQUEST_TYPE, REQUEST_TYPE_DESC) VALUES ('A-', '- odd - name')");
  Another("INSERT INTO ID_COVER_INFO (REQUEST_TYPE, HEADER) VALUES ('A-', 'odd')");
  Enter();
  SelectRowOf("grd1CoverInfo", "odd", 2);
  EXPECT_EQ(Text("txt1RequestType"), "A-");
  EXPECT_EQ(Text("txt1Description"), "- odd - name");
  Type("txt1Header", "even");
  Update();
  EXPECT_EQ(Stored("HEADER", "A-"), "even");
}

TEST_F(CoverPagesTest, TheReadOnlyBoxesAreNotEntered) {
  Enter();
  Find<TextBox>("txt1RequestType")->setFocus();
  EXPECT_EQ(Focus(), "txt1Header");
  Find<TextBox>("txt1Footer")->setFocus();
  Find<TextBox>("txt1Description")->setFocus();
  EXPECT_EQ(Focus(), "txt1Header");
  EXPECT_TRUE(Find<TextBox>("txt1RequestType")->isReadOnly());
  EXPECT_TRUE(Find<TextBox>("txt1Description")->isReadOnly());
  // Backwards the keyboard passes them too.
  Press("txt1Header", Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_NE(Focus(), "txt1Header");
}

TEST_F(CoverPagesTest, EachButtonOpensItsDialogOfTheSelectedType) {
  Enter();
  SelectRow("grd1CoverInfo", 2);
  const std::pair<const char*, const char*> notices[] = {{"cmdNotifyPatron", "frmNotifyPatronEmail"},
                                                         {"cmdLoanNotices", "frmLoanNoticesEmail"},
                                                         {"cmdGeneral", "frmGeneralEmail"},
                                                         {"cmdPickup", "frmPickupLocationEmail"}};
  for (const auto& [button, form] : notices) {
    QString type;
    WhenShown(form, [&](Screen& screen) { type = screen.findChild<TextBox*>("txtRequestType")->Text(); });
    Click(button);
    EXPECT_EQ(type, "PAT") << button;
    EXPECT_EQ(gstrCoverRequestType, "PAT");
  }
}

TEST_F(CoverPagesTest, TheNoticeButtonsSayWhatTheyDo) {
  Enter();
  EXPECT_EQ(Find<QWidget>("cmdNotifyPatron")->toolTip(),
            "Configure the Email message and Patron Notification report for the selected request type.");
  EXPECT_EQ(Find<QWidget>("cmdLoanNotices")->toolTip(),
            "Configure the Email message and Loan Notices report for the selected request type.");
  EXPECT_EQ(Find<QWidget>("cmdGeneral")->toolTip(),
            "Configure the Email message and General Notification report for the selected request type.");
  EXPECT_EQ(Text("cmdPickup"), "&Pickup");
  EXPECT_EQ(Text("cmdLoanNotices"), "L&oan Notices");
}

TEST_F(CoverPagesTest, ARefusedUpdateLeavesScreenAndTableAsTheyWere) {
  Another("ALTER TABLE ID_COVER_INFO RENAME COLUMN FOOTER TO FOOTING");
  Start();
  Prompt().Expect("***** SQL error on OSTANA.ID_COVER_INFO OR ID_REQUEST_TYPE (Select) *****", 16);
  SelectTab("sstabtables", frmTabulon::CoverPagesTab);
  EXPECT_EQ(Rows("grd1CoverInfo"), 1);
  Another("ALTER TABLE ID_COVER_INFO RENAME COLUMN FOOTING TO FOOTER");
  SelectTab("sstabtables", frmTabulon::LoansTab);
  SelectTab("sstabtables", frmTabulon::CoverPagesTab);
  Another("ALTER TABLE ID_COVER_INFO RENAME COLUMN FOOTER TO FOOTING");
  Type("txt1Header", "new");
  Prompt().Expect(DatabaseError, 16);
  Click("cmdUpdate");
  EXPECT_EQ(Text("txt1Header"), "new");
  EXPECT_EQ(Cell("grd1CoverInfo", 1, 2), "Interlibrary loan");
  EXPECT_TRUE(gbRecordModified);
  EXPECT_EQ(Stored("HEADER"), "Interlibrary loan");
  const QStringList log = LogLines();
  ASSERT_GE(log.size(), 3);
  EXPECT_TRUE(log[log.size() - 3].endsWith("* frmTabulon.CoverPages_Update"));
  EXPECT_EQ(log[log.size() - 2].mid(24), "* ***** SQL error on OSTANA.ID_COVER_INFO (UPDATE) *****");
}

TEST_F(CoverPagesTest, AHeadingSortsTheGridAndKeepsTheRecord) {
  Enter();
  SelectRow("grd1CoverInfo", 2);
  SortBy("grd1CoverInfo", 2);
  SortBy("grd1CoverInfo", 2);
  EXPECT_EQ(Cell("grd1CoverInfo", Row("grd1CoverInfo"), 6), "PAT");
  EXPECT_EQ(Text("txt1RequestType"), "PAT");
  Type("txt1Header", "sorted");
  Update();
  EXPECT_EQ(Stored("HEADER", "PAT"), "sorted");
}

TEST_F(CoverPagesTest, Looks) {
  Another(
      "UPDATE ID_COVER_INFO SET MESSAGE_1 = 'We are pleased to send you the document.', MESSAGE_2 = 'Please keep "
      "the cover sheet with the document.' WHERE REQUEST_TYPE = 'ILL'");
  Enter();
  Picture("cover-pages");
}

TEST_F(CoverPagesTest, ATextKeepsTheLineEndsOfAnotherProgram) {
  Another("UPDATE ID_COVER_INFO SET MESSAGE_1 = 'one\r\ntwo' WHERE REQUEST_TYPE = 'ILL'");
  Enter();
  EXPECT_FALSE(gbRecordModified);
  Type("txt1Header", "other");
  Update();
  EXPECT_EQ(Stored("MESSAGE_1"), "one\r\ntwo");
}

TEST_F(CoverPagesTest, TheFocusThatComesWithTheWindowIsHandedOnToo) {
  Enter();
  // As under a message box: the window is not the active one while the focus is set in it.
  QWidget other;
  other.show();
  other.activateWindow();
  QApplication::setActiveWindow(&other);
  Find<TextBox>("txt1RequestType")->setFocus();
  ASSERT_EQ(Focus(), "txt1RequestType");
  other.hide();
  Shell().activateWindow();
  QApplication::setActiveWindow(&Shell());
  EXPECT_EQ(Focus(), "txt1Header");
}

}  // namespace
