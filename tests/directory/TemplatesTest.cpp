// The delivery e-mail and the annotation: per library, per patron and as the system's default.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

class TemplatesTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another(
        "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (71, 'ONE', 'First Library')");
    Another(
        "INSERT INTO ID_PATRON (LIBRARY_ID, PATRON_ID, PATRON_NAME, PATRON_SURNAME) VALUES (71, 'P1', 'Ada', "
        "'Moss')");
    Logon();
    gclsOF->SetLibraryId(71);
  }
};

class EmailTemplateTest : public TemplatesTest {
 protected:
  void Fill(const QString& subject, const QString& body) {
    Type("txtSubject", subject);
    Type("txtBody", body);
  }
};

TEST_F(EmailTemplateTest, ALibraryWithoutARowShowsEmptyBoxes) {
  Screen& screen = Open("frmDeliveryEmailTemplate");
  EXPECT_TRUE(screen.Caption().endsWith(" (Electronic Delivery)"));
  EXPECT_EQ(Text("txtInstitution"), "First Library");
  EXPECT_EQ(Text("txtSubject"), "");
  EXPECT_EQ(Text("txtBody"), "");
  EXPECT_TRUE(IsChecked("rdForExternalURLNo"));
}

TEST_F(EmailTemplateTest, SubjectAndBodyAreRequired) {
  Open("frmDeliveryEmailTemplate");
  Prompt().Expect("This field is required.", 16);
  Click("cmdOK");
  EXPECT_EQ(Focus(), "txtSubject");
  Type("txtSubject", "Your article");
  Prompt().Expect("This field is required.", 16);
  Click("cmdOK");
  EXPECT_EQ(Focus(), "txtBody");
}

TEST_F(EmailTemplateTest, TheFirstSaveInsertsAndTheNextUpdatesAndTheScreenStays) {
  Screen& screen = Open("frmDeliveryEmailTemplate");
  Fill("Your article", "It's here");
  Statements();
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID, EMAIL_SKIP_HEADER_FOOTER, "
                                   "EMAIL_MESSAGE_SUBJECT, EMAIL_MESSAGE_BODY) VALUES (71, N'Y', N'Your article', "
                                   "N'It''s here')"});
  Type("txtRequestInfo", "About");
  Click("rdSkipHeaderAndFooterNo");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Writing(),
            QStringList{"UPDATE ID_EMAIL_MESSAGE SET EMAIL_SKIP_HEADER_FOOTER = N'N', EMAIL_MESSAGE_SUBJECT = "
                        "N'Your article', EMAIL_MESSAGE_REQUEST = N'About', EMAIL_MESSAGE_BODY = N'It''s "
                        "here' WHERE    LIBRARY_ID = 71 AND      PATRON_ID IS NULL"});
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Count("ID_EMAIL_MESSAGE"), 1);
}

TEST_F(EmailTemplateTest, TheTwoFamiliesAreKeptApartInOneRow) {
  Open("frmDeliveryEmailTemplate");
  Fill("By mail", "mail body");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  Click("rdForExternalURLYes");
  EXPECT_EQ(Text("txtSubject"), "");
  Fill("By link", "link body");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ask("SELECT EMAIL_MESSAGE_SUBJECT FROM ID_EMAIL_MESSAGE"), "By mail");
  EXPECT_EQ(Ask("SELECT SED_MESSAGE_SUBJECT FROM ID_EMAIL_MESSAGE"), "By link");
  Click("rdForExternalURLNo");
  EXPECT_EQ(Text("txtSubject"), "By mail");
  EXPECT_EQ(Count("ID_EMAIL_MESSAGE"), 1);
}

TEST_F(EmailTemplateTest, SetSystemDefaultThenOkSavesIntoTheRowOfLibraryZero) {
  Open("frmDeliveryEmailTemplate");
  EXPECT_EQ(Text("cmdSetSystemDefault"), "&Set System Default");
  Click("cmdSetSystemDefault");
  EXPECT_EQ(Text("cmdSetSystemDefault"), "&Return");
  EXPECT_EQ(Find<QPushButton>("cmdSetSystemDefault")->toolTip(), "Return to previous template.");
  EXPECT_EQ(Text("txtInstitution"), "System Default");
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  Fill("Default", "for all");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ask("SELECT EMAIL_MESSAGE_BODY FROM ID_EMAIL_MESSAGE WHERE LIBRARY_ID = 0"), "for all");
  Click("cmdSetSystemDefault");
  EXPECT_EQ(Text("txtInstitution"), "First Library");
  EXPECT_EQ(Text("txtSubject"), "");
  EXPECT_TRUE(IsEnabled("cmdDelete"));
}

TEST_F(EmailTemplateTest, APatronHasARowOfHisOwn) {
  gclsOF->SetPatronId("P1");
  Open("frmDeliveryEmailTemplate");
  EXPECT_EQ(Text("txtPatronName"), "Ada Moss");
  Fill("For Ada", "hello");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ask("SELECT PATRON_ID FROM ID_EMAIL_MESSAGE WHERE LIBRARY_ID = 71"), "P1");
  Statements();
  Prompt()
      .Expect("Are you sure you wish to delete this record ?", 36, MessageAnswer::Yes)
      .Expect("Record deleted.", 64);
  Click("cmdDelete");
  EXPECT_EQ(Writing(), QStringList{"DELETE FROM ID_EMAIL_MESSAGE WHERE    LIBRARY_ID = 71 AND PATRON_ID = N'P1'"});
}

TEST_F(EmailTemplateTest, DeleteRemovesTheRowAndEmptiesTheBoxes) {
  Open("frmDeliveryEmailTemplate");
  Fill("Your article", "body");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  Prompt().Expect("Are you sure you wish to delete this record ?", 36, MessageAnswer::No);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_EMAIL_MESSAGE"), 1);
  Prompt()
      .Expect("Are you sure you wish to delete this record ?", 36, MessageAnswer::Yes)
      .Expect("Record deleted.", 64);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_EMAIL_MESSAGE"), 0);
  EXPECT_EQ(Text("txtSubject"), "");
}

TEST_F(EmailTemplateTest, ARowThatIsOnShowIsUpdatedWithoutAskingForItAgain) {
  Open("frmDeliveryEmailTemplate");
  Fill("Your article", "body");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  Statements();
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Statements().size(), 1);
}

TEST_F(EmailTemplateTest, ARowThatAnotherClientDeletedIsToldAndTheNextPressAddsIt) {
  Open("frmDeliveryEmailTemplate");
  Fill("Your article", "body");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  Another("DELETE FROM ID_EMAIL_MESSAGE");
  Prompt().Expect("Cannot add/update this record.", 16);
  Click("cmdOK");
  EXPECT_EQ(Count("ID_EMAIL_MESSAGE"), 0);
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ask("SELECT EMAIL_MESSAGE_SUBJECT FROM ID_EMAIL_MESSAGE"), "Your article");
}

TEST_F(EmailTemplateTest, ARowThatAnotherClientAddedMeanwhileIsNotDoubled) {
  Open("frmDeliveryEmailTemplate");
  Fill("Ours", "body");
  Another("INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID, EMAIL_MESSAGE_SUBJECT) VALUES (71, 'Theirs')");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Count("ID_EMAIL_MESSAGE"), 1);
  EXPECT_EQ(Ask("SELECT EMAIL_MESSAGE_SUBJECT FROM ID_EMAIL_MESSAGE"), "Ours");
}

TEST_F(EmailTemplateTest, ARefusedStatementIsToldAndLogged) {
  Open("frmDeliveryEmailTemplate");
  Fill("Your article", "body");
  Another("ALTER TABLE ID_EMAIL_MESSAGE RENAME TO ID_EMAIL_AWAY");
  Prompt().Expect("A problem occurred while updating this record.  If the problem persists contact support.", 16);
  Click("cmdOK");
  Another("ALTER TABLE ID_EMAIL_AWAY RENAME TO ID_EMAIL_MESSAGE");
  EXPECT_EQ(Text("txtSubject"), "Your article");
}

class AnnotationTest : public TemplatesTest {};

TEST_F(AnnotationTest, ALibraryWithoutARowShowsTheDefaults) {
  Open("frmLibraryAnnotationTemplate");
  EXPECT_TRUE(IsChecked("optUseAnnotationYes"));
  EXPECT_EQ(Text("cmbTextFontSize"), "8");
  EXPECT_EQ(Text("cmbTextOrientation"), "BottomLeft");
  EXPECT_EQ(Text("txtAnnotationText"), "");
}

TEST_F(AnnotationTest, TheFirstSaveInsertsAndTheNextUpdates) {
  Open("frmLibraryAnnotationTemplate");
  Type("txtAnnotationText", "Reader's copy");
  Statements();
  Prompt().Expect("Annotation Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Writing(), QStringList{"INSERT INTO ID_ANNOTATION ( LIBRARY_ID, PATRON_ID, USE_ANNOTATION, ANNOTATION, "
                                   "TEXT_FONT_SIZE, TEXT_ORIENTATION ) VALUES ( 71, NULL , N'Y', N'Reader''s copy', 8, "
                                   "N'BottomLeft')"});
  Type("txtAnnotationText", "");
  Choose("cmbTextFontSize", "12");
  Choose("cmbTextOrientation", "TopRight");
  Click("optUseAnnotationNo");
  Prompt().Expect("Annotation Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Writing(),
            QStringList{"UPDATE ID_ANNOTATION SET LIBRARY_ID = 71,USE_ANNOTATION = N'N' , ANNOTATION = NULL , "
                        "TEXT_FONT_SIZE = 12, TEXT_ORIENTATION = N'TopRight' WHERE        LIBRARY_ID  = 71 "
                        "AND PATRON_ID IS NULL"});
}

TEST_F(AnnotationTest, AValueOutsideItsListFallsBackToTheDefault) {
  Another(
      "INSERT INTO ID_ANNOTATION (LIBRARY_ID, USE_ANNOTATION, ANNOTATION, TEXT_FONT_SIZE, TEXT_ORIENTATION) VALUES "
      "(71, 'N', 'x', 99, 'Sideways')");
  Open("frmLibraryAnnotationTemplate");
  EXPECT_TRUE(IsChecked("optUseAnnotationNo"));
  EXPECT_EQ(Text("txtAnnotationText"), "x");
  EXPECT_EQ(Text("cmbTextFontSize"), "8");
  EXPECT_EQ(Text("cmbTextOrientation"), "BottomLeft");
}

TEST_F(AnnotationTest, TheDefaultOfTheSystemIsTheRowOfLibraryZero) {
  Open("frmLibraryAnnotationTemplate");
  Click("cmdSetSystemDefault");
  EXPECT_EQ(Text("txtInstitution"), "System Default");
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  Type("txtAnnotationText", "For all");
  Prompt().Expect("Annotation Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ask("SELECT ANNOTATION FROM ID_ANNOTATION WHERE LIBRARY_ID = 0"), "For all");
}

TEST_F(AnnotationTest, DeleteRemovesTheRow) {
  Another(
      "INSERT INTO ID_ANNOTATION (LIBRARY_ID, USE_ANNOTATION, ANNOTATION, TEXT_FONT_SIZE, TEXT_ORIENTATION) VALUES "
      "(71, 'Y', 'x', 8, 'TopLeft')");
  Open("frmLibraryAnnotationTemplate");
  Prompt()
      .Expect("Are you sure you wish to delete this record ?", 36, MessageAnswer::Yes)
      .Expect("Record deleted.", 64);
  Click("cmdDelete");
  EXPECT_EQ(Count("ID_ANNOTATION"), 0);
}

TEST_F(AnnotationTest, ARowThatIsOnShowIsUpdatedWithoutAskingForItAgain) {
  Another("INSERT INTO ID_ANNOTATION (LIBRARY_ID, USE_ANNOTATION, ANNOTATION) VALUES (71, 'Y', 'x')");
  Open("frmLibraryAnnotationTemplate");
  Type("txtAnnotationText", "y");
  Statements();
  Prompt().Expect("Annotation Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Statements().size(), 1);
  Another("DELETE FROM ID_ANNOTATION");
  Prompt().Expect("Cannot add record to database.", 16);
  Click("cmdOK");
  Prompt().Expect("Annotation Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ask("SELECT ANNOTATION FROM ID_ANNOTATION WHERE LIBRARY_ID = 71"), "y");
}

TEST_F(AnnotationTest, AFailureIsToldAndLoggedWithItsStatement) {
  Open("frmLibraryAnnotationTemplate");
  Type("txtAnnotationText", "x");
  Another("CREATE TABLE ID_BLOCK (A INTEGER)");
  Another("ALTER TABLE ID_ANNOTATION RENAME TO ID_ANNOTATION_AWAY");
  Prompt().Expect("A serious error has occurred.  Please contact suppler.", 16);
  Click("cmdOK");
  Another("ALTER TABLE ID_ANNOTATION_AWAY RENAME TO ID_ANNOTATION");
  Another("DROP TABLE ID_BLOCK");
}

// --- Reads that fail ---

// The two screens, and the table of each.
struct Template {
  const char* form;
  const char* table;
  const char* box;
};

class TemplateReadTest : public TemplatesTest, public testing::WithParamInterface<Template> {
 protected:
  void SetUp() override {
    TemplatesTest::SetUp();
    if (Table() == "ID_ANNOTATION") {
      Another(
          "INSERT INTO ID_ANNOTATION (LIBRARY_ID, USE_ANNOTATION, ANNOTATION, TEXT_FONT_SIZE, TEXT_ORIENTATION) VALUES "
          "(71, 'N', 'kept', 12, 'TopLeft')");
    } else {
      Another(
          "INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID, EMAIL_SKIP_HEADER_FOOTER, EMAIL_MESSAGE_SUBJECT, "
          "EMAIL_MESSAGE_BODY) VALUES (71, 'N', 'kept', 'kept')");
    }
  }
  static QString Table() { return GetParam().table; }
  void Break() { Another("ALTER TABLE " + Table() + " RENAME TO ID_TEST_AWAY"); }
  void Mend() { Another("ALTER TABLE ID_TEST_AWAY RENAME TO " + Table()); }
  QString Stored() {
    return Ask(Table() == "ID_ANNOTATION" ? "SELECT ANNOTATION FROM ID_ANNOTATION WHERE LIBRARY_ID = 71"
                                          : "SELECT EMAIL_MESSAGE_SUBJECT FROM ID_EMAIL_MESSAGE WHERE LIBRARY_ID = 71");
  }
};
INSTANTIATE_TEST_SUITE_P(Screens, TemplateReadTest,
                         testing::Values(Template{"frmDeliveryEmailTemplate", "ID_EMAIL_MESSAGE", "txtSubject"},
                                         Template{"frmLibraryAnnotationTemplate", "ID_ANNOTATION",
                                                  "txtAnnotationText"}));

TEST_P(TemplateReadTest, ATemplateThatCouldNotBeReadIsNotWritten) {
  Break();
  Prompt().ExpectStart("***** SQL error on " + Table(), 16);
  Open(GetParam().form);
  Mend();
  EXPECT_FALSE(IsEnabled("cmdOK"));
  EXPECT_FALSE(IsEnabled("cmdDelete"));
  EXPECT_EQ(Stored(), "kept");
}

TEST_P(TemplateReadTest, AFailedReadOfTheDefaultLeavesTheTemplateOnShow) {
  Open(GetParam().form);
  Break();
  Prompt().ExpectStart("***** SQL error on " + Table(), 16);
  Click("cmdSetSystemDefault");
  Mend();
  EXPECT_EQ(Text("cmdSetSystemDefault"), "&Set System Default");
  EXPECT_EQ(Text("txtInstitution"), "First Library");
  EXPECT_EQ(Text(GetParam().box), "kept");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  EXPECT_TRUE(IsEnabled("cmdDelete"));
  Click("cmdSetSystemDefault");
  EXPECT_EQ(Text("cmdSetSystemDefault"), "&Return");
  EXPECT_EQ(Text(GetParam().box), "");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  EXPECT_FALSE(IsEnabled("cmdDelete"));
}

TEST_P(TemplateReadTest, DeletingARowThatIsGoneSaysSo) {
  Open(GetParam().form);
  Another("DELETE FROM " + Table());
  Prompt()
      .Expect("Are you sure you wish to delete this record ?", 36, MessageAnswer::Yes)
      .Expect("Nothing was deleted.  Make sure you have a valid record selected.", 48);
  Click("cmdDelete");
}

TEST_F(EmailTemplateTest, TheFamilyThatIsOnShowIsNotReadAgain) {
  Open("frmDeliveryEmailTemplate");
  Fill("Your article", "body");
  Statements();
  Click("rdForExternalURLNo");
  EXPECT_TRUE(Statements().isEmpty());
  EXPECT_EQ(Text("txtSubject"), "Your article");
}

TEST_F(EmailTemplateTest, AFailedReadOfTheOtherFamilyLeavesTheOneOnShow) {
  Open("frmDeliveryEmailTemplate");
  Fill("Your article", "body");
  Another("ALTER TABLE ID_EMAIL_MESSAGE RENAME TO ID_TEST_AWAY");
  Prompt().ExpectStart("***** SQL error on ID_EMAIL_MESSAGE", 16);
  Click("rdForExternalURLYes");
  Another("ALTER TABLE ID_TEST_AWAY RENAME TO ID_EMAIL_MESSAGE");
  EXPECT_TRUE(IsChecked("rdForExternalURLNo"));
  EXPECT_EQ(Text("txtSubject"), "Your article");
  Prompt().Expect("Email settings Updated.", 64);
  Click("cmdOK");
  EXPECT_EQ(Ask("SELECT EMAIL_MESSAGE_SUBJECT FROM ID_EMAIL_MESSAGE"), "Your article");
}

// --- Log ---

TEST_F(EmailTemplateTest, AFailedStatementStandsInTheLog) {
  Open("frmDeliveryEmailTemplate");
  Fill("Your article", "body");
  Another("ALTER TABLE ID_EMAIL_MESSAGE RENAME COLUMN EMAIL_MESSAGE_BODY TO MOVED");
  Prompt().ExpectStart("A problem occurred while updating this record.", 16);
  Click("cmdOK");
  Another("ALTER TABLE ID_EMAIL_MESSAGE RENAME COLUMN MOVED TO EMAIL_MESSAGE_BODY");
  EXPECT_TRUE(LogHolds("* frmDeliveryEmailTemplate.cmdOK_Click"));
  EXPECT_TRUE(LogHolds("***** SQL Error on ID_EMAIL_MESSAGE (Insert) *****"));
  EXPECT_TRUE(LogHolds("* SQL statement: INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID, "));
}

TEST_F(AnnotationTest, AFailedReadLeavesItsQueryInTheLog) {
  Another("ALTER TABLE ID_ANNOTATION RENAME TO ID_TEST_AWAY");
  Prompt().Expect("***** SQL error on ID_ANNOTATION (Select) *****", 16);
  Open("frmLibraryAnnotationTemplate");
  Another("ALTER TABLE ID_TEST_AWAY RENAME TO ID_ANNOTATION");
  EXPECT_TRUE(LogHolds("* Query: SELECT   * FROM ID_ANNOTATION WHERE        LIBRARY_ID  = 71 AND PATRON_ID IS NULL"));
}

TEST_F(AnnotationTest, AFailedWriteLeavesFourLinesInTheLog) {
  Open("frmLibraryAnnotationTemplate");
  Type("txtAnnotationText", "Reader's copy");
  Another("ALTER TABLE ID_ANNOTATION RENAME COLUMN TEXT_ORIENTATION TO MOVED");
  Prompt().Expect("A serious error has occurred.  Please contact suppler.", 16);
  Click("cmdOK");
  Another("ALTER TABLE ID_ANNOTATION RENAME COLUMN MOVED TO TEXT_ORIENTATION");
  EXPECT_TRUE(LogHolds("* Insert Statement: INSERT INTO ID_ANNOTATION ( LIBRARY_ID, "));
  EXPECT_TRUE(LogHolds("* SQL Error: "));
  EXPECT_TRUE(LogHolds("* Values: 71, , Y, Reader's copy, 8, BottomLeft"));
  EXPECT_TRUE(
      LogHolds("* Fields: LIBRARY_ID, PATRON_ID, USE_ANNOTATION, ANNOTATION, TEXT_FONT_SIZE, "
               "TEXT_ORIENTATION"));
}

}  // namespace
