#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

const QString Blank = "Are you sure you wish to leave the message blank?";
const QString Unchanged = "Nothing has been changed.";
const QString Done = "Record has been updated.";

const char* const NotifyColumns[] = {"MSG_TXT_SUBJECT", "MSG_TXT_INSTRUCTIONS", "MSG_TXT_BASE_URL",
                                     "MSG_TXT_HEADER",  "MSG_TXT_REPORT",       "MSG_TXT_FOOTER",
                                     "MSG_PDF_SUBJECT", "MSG_PDF_REPORT",       "MSG_PDF_MESSAGE"};

class NoticeEmailTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Logon();
    gstrCoverRequestType = "ILL";
  }
  void Fill(const QStringList& assignments) {
    Another("UPDATE ID_COVER_INFO SET " + assignments.join(", ") + " WHERE REQUEST_TYPE = 'ILL'");
  }
  Screen& OpenNotice(const QString& form) {
    Screen& screen = Open(form);
    Statements();
    return screen;
  }
  QString Stored(const QString& column) {
    return Ask("SELECT " + column + " FROM ID_COVER_INFO WHERE REQUEST_TYPE = 'ILL'");
  }
  int Nulls(const QString& column) { return Count("ID_COVER_INFO", "REQUEST_TYPE = 'ILL' AND " + column + " IS NULL"); }
};

// --- The notify or cancel message ---

TEST_F(NoticeEmailTest, NotifyShowsTheRowOfTheRequestType) {
  Fill({"MSG_TXT_SUBJECT = 's'", "MSG_TXT_INSTRUCTIONS = 'i'", "MSG_TXT_BASE_URL = 'u'", "MSG_TXT_HEADER = 'h'",
        "MSG_TXT_REPORT = 'r.rpt'", "MSG_TXT_FOOTER = 'f'", "MSG_PDF_SUBJECT = 'ps'", "MSG_PDF_REPORT = 'pr.rpt'",
        "MSG_PDF_MESSAGE = 'pm'"});
  Statements();
  const Screen& screen = Open("frmNotifyPatronEmail");
  EXPECT_EQ(Statements(),
            (QStringList{"SELECT   REQUEST_TYPE_DESC FROM ID_REQUEST_TYPE WHERE    REQUEST_TYPE = 'ILL'",
                         "SELECT   MSG_TXT_SUBJECT, MSG_TXT_INSTRUCTIONS, MSG_TXT_BASE_URL, MSG_TXT_HEADER, "
                         "MSG_TXT_REPORT, MSG_TXT_FOOTER, MSG_PDF_SUBJECT, MSG_PDF_REPORT, MSG_PDF_MESSAGE FROM "
                         "ID_COVER_INFO WHERE    REQUEST_TYPE = 'ILL'"}));
  EXPECT_EQ(screen.Caption(), "Ostana - Notify/Cancel Email");
  EXPECT_EQ(Text("txtRequestType"), "ILL");
  EXPECT_EQ(Text("txtRequestTypeDesc"), "Requests of other libraries");
  EXPECT_TRUE(Find<TextBox>("txtRequestType")->isReadOnly());
  EXPECT_TRUE(Find<TextBox>("txtRequestTypeDesc")->isReadOnly());
  const std::pair<const char*, const char*> boxes[] = {
      {"txtTextSubject", "s"}, {"txtInstructions", "i"},   {"txtRequestLink", "u"},
      {"txtTextHeader", "h"},  {"txtTextReport", "r.rpt"}, {"txtTextFooter", "f"},
      {"txtPDFSubject", "ps"}, {"txtPDFReport", "pr.rpt"}, {"txtPDFMessage", "pm"}};
  for (const auto& [box, text] : boxes) EXPECT_EQ(Text(box), text) << box;
  EXPECT_TRUE(IsChecked("optText"));
}

TEST_F(NoticeEmailTest, TheOptionsShowOneMessageAndHideTheOther) {
  OpenNotice("frmNotifyPatronEmail");
  const QStringList text = {"lblTextSubject",         "txtTextSubject", "txtInstructions",
                            "txtRequestLink",         "txtTextHeader",  "txtTextReport",
                            "cmdBrowseTextDirectory", "txtTextFooter",  "lblTextFooter"};
  const QStringList pdf = {"lblPDFSubject", "txtPDFSubject", "txtPDFReport", "cmdBrowsePDFDirectory", "txtPDFMessage"};
  for (const char* option : {"optText", "optPDF", "optText"}) {
    Click(option);
    const bool isText = QString(option) == "optText";
    for (const QString& name : text) EXPECT_EQ(IsShown(name), isText) << name.toStdString();
    for (const QString& name : pdf) EXPECT_EQ(IsShown(name), !isText) << name.toStdString();
  }
}

TEST_F(NoticeEmailTest, NotifySavesBothMessagesWhicheverIsOnScreen) {
  Fill({"MSG_PDF_SUBJECT = 'kept'", "MSG_TXT_HEADER = 'old'"});
  const Screen& screen = OpenNotice("frmNotifyPatronEmail");
  Type("txtTextSubject", "O'Neill");
  Type("txtTextFooter", "one\ntwo");
  Click("optPDF");
  Type("txtPDFReport", "Pdf.rpt");
  Prompt().ExpectTitled(Done, 64, "Ostana - Notify/Cancel Email");
  Click("cmdOK");
  EXPECT_EQ(Writing(),
            QStringList{"UPDATE   ID_COVER_INFO SET      MSG_TXT_SUBJECT = 'O''Neill', MSG_TXT_INSTRUCTIONS = Null, "
                        "MSG_TXT_BASE_URL = Null, MSG_TXT_HEADER = 'old', MSG_TXT_REPORT = Null, MSG_TXT_FOOTER = "
                        "'one\ntwo', MSG_PDF_SUBJECT = 'kept', MSG_PDF_REPORT = 'Pdf.rpt', MSG_PDF_MESSAGE = Null "
                        "WHERE    REQUEST_TYPE = 'ILL'"});
  EXPECT_EQ(Stored("MSG_TXT_SUBJECT"), "O'Neill");
  EXPECT_EQ(Stored("MSG_TXT_FOOTER"), "one\ntwo");
  EXPECT_EQ(Ask("SELECT MSG_TXT_SUBJECT FROM ID_COVER_INFO WHERE REQUEST_TYPE = 'PAT'"), QString());
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(NoticeEmailTest, NotifyKeepsToItsLimits) {
  OpenNotice("frmNotifyPatronEmail");
  const std::pair<const char*, int> limits[] = {
      {"txtTextSubject", 100}, {"txtInstructions", 200}, {"txtRequestLink", 200}, {"txtTextHeader", 100},
      {"txtTextReport", 80},   {"txtPDFSubject", 100},   {"txtPDFReport", 80}};
  for (const auto& [box, limit] : limits) EXPECT_EQ(Find<TextBox>(box)->MaxLength(), limit) << box;
  EXPECT_EQ(Find<MemoBox>("txtTextFooter")->MaxLength(), 0);
  EXPECT_EQ(Find<MemoBox>("txtPDFMessage")->MaxLength(), 0);
}

TEST_F(NoticeEmailTest, NotifyAsksBeforeATextMessageIsLeftBlank) {
  Fill({"MSG_TXT_SUBJECT = 's'", "MSG_TXT_HEADER = 'h'"});
  Screen& screen = OpenNotice("frmNotifyPatronEmail");
  Type("txtTextHeader", "");
  Prompt().Expect(Blank, 36, MessageAnswer::No);
  Click("cmdOK");
  EXPECT_EQ(Focus(), "txtTextHeader");
  EXPECT_TRUE(Writing().isEmpty());
  EXPECT_TRUE(screen.isVisible());
  // One of the three is enough.
  for (const char* box : {"txtTextReport", "txtTextFooter"}) {
    Type(box, "x");
    Type(box, "");
  }
  Type("txtTextSubject", "subjects do not count");
  Prompt().Expect(Blank, 36, MessageAnswer::Yes).Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Nulls("MSG_TXT_HEADER"), 1);
  EXPECT_EQ(Stored("MSG_TXT_SUBJECT"), "subjects do not count");
}

TEST_F(NoticeEmailTest, NotifyAsksBeforeAPdfMessageIsLeftBlank) {
  Fill({"MSG_TXT_HEADER = 'h'", "MSG_PDF_SUBJECT = 'ps'"});
  OpenNotice("frmNotifyPatronEmail");
  Click("optPDF");
  Prompt().Expect(Blank, 36, MessageAnswer::No);
  Click("cmdOK");
  EXPECT_EQ(Focus(), "txtPDFReport");
  Type("txtPDFMessage", "m");
  Prompt().Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Stored("MSG_PDF_MESSAGE"), "m");
}

TEST_F(NoticeEmailTest, SavingEmptyBoxesSetsAllColumnsToNull) {
  QStringList assignments;
  for (const char* column : NotifyColumns) assignments.append(QString(column) + " = 'x'");
  Fill(assignments);
  OpenNotice("frmNotifyPatronEmail");
  for (const char* box :
       {"txtTextSubject", "txtInstructions", "txtRequestLink", "txtTextHeader", "txtTextReport", "txtTextFooter"})
    Type(box, "");
  Click("optPDF");
  for (const char* box : {"txtPDFSubject", "txtPDFReport", "txtPDFMessage"}) Type(box, "");
  Prompt().Expect(Blank, 36, MessageAnswer::Yes).Expect(Done, 64);
  Click("cmdOK");
  for (const char* column : NotifyColumns) EXPECT_EQ(Nulls(column), 1) << column;
}

TEST_F(NoticeEmailTest, UntouchedLineEndsStayAsTheyWereStored) {
  Fill({"MSG_TXT_FOOTER = 'one\r\ntwo'", "MSG_PDF_MESSAGE = 'three\r\nfour'"});
  OpenNotice("frmNotifyPatronEmail");
  EXPECT_EQ(Text("txtTextFooter"), "one\r\ntwo");
  Append("txtTextFooter", "\nfive");
  Prompt().Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Stored("MSG_TXT_FOOTER"), "one\r\ntwo\r\nfive");
  EXPECT_EQ(Stored("MSG_PDF_MESSAGE"), "three\r\nfour");
}

// --- What counts as a change ---

class EveryNotice : public NoticeEmailTest, public testing::WithParamInterface<const char*> {};

TEST_P(EveryNotice, AnUnchangedDialogSaysSoAndStaysOpen) {
  const Screen& screen = OpenNotice(GetParam());
  Prompt().Expect(Unchanged, 16);
  Click("cmdOK");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_P(EveryNotice, CancelLeavesWithoutAQuestion) {
  const Screen& screen = OpenNotice(GetParam());
  Type("txtTextSubject", "changed");
  Click("cmdCancel");
  EXPECT_FALSE(screen.isVisible());
  EXPECT_TRUE(Writing().isEmpty());
}

TEST_P(EveryNotice, ARowThatIsMissingStillShowsSuccess) {
  Another("DELETE FROM ID_COVER_INFO WHERE REQUEST_TYPE = 'ILL'");
  OpenNotice(GetParam());
  Type("txtTextReport", "Any.rpt");
  Prompt().Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Writing().size(), 1);
  EXPECT_EQ(Count("ID_COVER_INFO", "REQUEST_TYPE = 'ILL'"), 0);
}

TEST_P(EveryNotice, ATableThatCannotBeReadIsNotWrittenOver) {
  Another("ALTER TABLE ID_COVER_INFO RENAME TO ID_COVER_AWAY");
  Prompt().Expect("***** SQL error on ID_COVER_INFO (Select) *****", 16);
  const Screen& screen = OpenNotice(GetParam());
  EXPECT_FALSE(IsEnabled("cmdOK"));
  const QString form = GetParam();
  // The pickup dialog logs under the name of the form it was made from.
  EXPECT_EQ(LogLines().at(LogLines().size() - 3).mid(24),
            "* " + (form == "frmPickupLocationEmail" ? QString("frmNotifyPatronEmail") : form) + ".Form_Load");
  Click("cmdCancel");
  EXPECT_FALSE(screen.isVisible());
}

TEST_P(EveryNotice, AFailedUpdateStaysOpenAndIsLogged) {
  const Screen& screen = OpenNotice(GetParam());
  Type("txtTextReport", "Any.rpt");
  Another("ALTER TABLE ID_COVER_INFO RENAME TO ID_COVER_AWAY");
  Prompt().Expect("***** SQL error on ID_COVER_INFO (Update) *****", 16);
  Click("cmdOK");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Text("txtTextReport"), "Any.rpt");
  const QString query = Writing().value(0);
  const QString form = GetParam();
  const QStringList log = LogLines();
  // The loan notices alone do not log their statement.
  const bool logsQuery = form != "frmLoanNoticesEmail";
  const qsizetype end = log.size() - (logsQuery ? 1 : 0);
  EXPECT_EQ(log.at(end - 3).mid(24), "* " + (form == "frmPickupLocationEmail" ? QString("frmPickupLocation.cmdOk_Click")
                                                                              : form + ".cmdOK_Click"));
  EXPECT_EQ(log.at(end - 2).mid(24), "* ***** SQL error on ID_COVER_INFO (Update) *****");
  EXPECT_TRUE(log.at(end - 1).mid(24).startsWith("* Error: "));
  EXPECT_EQ(log.last().mid(24) == "* Query: " + query, logsQuery);
}

TEST_P(EveryNotice, Looks) {
  Fill({"MSG_TXT_SUBJECT = 'Your request'", "MSG_TXT_INSTRUCTIONS = 'Please answer within a week.'",
        "MSG_TXT_BASE_URL = 'https://requests.example.org/'", "MSG_TXT_HEADER = 'Dear reader,'",
        "MSG_TXT_REPORT = 'NotifyText.rpt'", "MSG_TXT_FOOTER = 'With kind regards'", "LOANS_TXT_SUBJECT = 'Your loan'",
        "LOANS_PDF_MESSAGE = 'The notice is attached.'", "GENERAL_SUBJECT = 'News'", "PICKUP_SUBJECT = 'Ready'"});
  OpenNotice(GetParam());
  Picture(QString("notice-") + GetParam());
  if (!Window()->findChild<QWidget*>("optPDF")) return;
  Click("optPDF");
  Picture(QString("notice-pdf-") + GetParam());
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EveryNotice,
                         testing::Values("frmNotifyPatronEmail", "frmLoanNoticesEmail", "frmGeneralEmail",
                                         "frmPickupLocationEmail"));

TEST_F(NoticeEmailTest, AClickOnAnOptionIsAChangeAndLoadingIsNone) {
  Fill({"MSG_TXT_HEADER = 'h'"});
  OpenNotice("frmNotifyPatronEmail");
  Prompt().Expect(Unchanged, 16);
  Click("cmdOK");
  // Even on the option that is set already.
  Click("optText");
  Prompt().Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Stored("MSG_TXT_HEADER"), "h");
}

// --- The other three ---

TEST_F(NoticeEmailTest, LoanNoticesSaveTheirSevenColumns) {
  const Screen& screen = OpenNotice("frmLoanNoticesEmail");
  EXPECT_EQ(screen.Caption(), "Ostana - Loan Notices Email");
  EXPECT_EQ(Window()->findChild<QWidget*>("txtInstructions"), nullptr);
  Type("txtTextHeader", "h");
  Click("optPDF");
  Type("txtPDFMessage", "m");
  Prompt().Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Writing(), QStringList{"UPDATE   ID_COVER_INFO SET      LOANS_TXT_SUBJECT = Null, LOANS_TXT_HEADER = 'h', "
                                   "LOANS_TXT_REPORT = Null, LOANS_TXT_FOOTER = Null, LOANS_PDF_SUBJECT = Null, "
                                   "LOANS_PDF_REPORT = Null, LOANS_PDF_MESSAGE = 'm' WHERE    REQUEST_TYPE = 'ILL'"});
}

TEST_F(NoticeEmailTest, LoanNoticesAskOnBothSides) {
  OpenNotice("frmLoanNoticesEmail");
  Type("txtTextSubject", "s");
  Prompt().Expect(Blank, 36, MessageAnswer::No);
  Click("cmdOK");
  EXPECT_EQ(Focus(), "txtTextHeader");
  Click("optPDF");
  Prompt().Expect(Blank, 36, MessageAnswer::No);
  Click("cmdOK");
  EXPECT_EQ(Focus(), "txtPDFReport");
}

TEST_F(NoticeEmailTest, ThePdfSubjectOfLoanNoticesHasNoLimitOfItsOwn) {
  OpenNotice("frmLoanNoticesEmail");
  EXPECT_EQ(Find<TextBox>("txtPDFSubject")->MaxLength(), 0);
  Click("optPDF");
  Type("txtPDFReport", "Any.rpt");
  Paste("txtPDFSubject", QString(101, 's'));
  Prompt().Expect("***** SQL error on ID_COVER_INFO (Update) *****", 16);
  Click("cmdOK");
  EXPECT_EQ(Text("txtPDFSubject").size(), 101);
  EXPECT_EQ(Nulls("LOANS_PDF_REPORT"), 1);
}

TEST_F(NoticeEmailTest, TheGeneralMessageIsTextOnlyAndAsksOnce) {
  Fill({"GENERAL_HEADER = 'h'"});
  const Screen& screen = OpenNotice("frmGeneralEmail");
  EXPECT_EQ(screen.Caption(), "Ostana - General Message Email");
  for (const char* name : {"optText", "optPDF", "txtPDFSubject", "cmdBrowsePDFDirectory"})
    EXPECT_EQ(Window()->findChild<QWidget*>(name), nullptr) << name;
  Type("txtTextHeader", "");
  Prompt().Expect(Blank, 36, MessageAnswer::No);
  Click("cmdOK");
  EXPECT_EQ(Focus(), "txtTextHeader");
  Prompt().Expect(Blank, 36, MessageAnswer::Yes).Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Writing(), QStringList{"UPDATE   ID_COVER_INFO SET      GENERAL_SUBJECT = Null, GENERAL_HEADER = Null, "
                                   "GENERAL_REPORT = Null, GENERAL_FOOTER = Null WHERE    REQUEST_TYPE = 'ILL'"});
}

TEST_F(NoticeEmailTest, ThePickupDialogAsksNothing) {
  Fill({"PICKUP_SUBJECT = 's'", "PICKUP_REPORT = 'r'"});
  const Screen& screen = OpenNotice("frmPickupLocationEmail");
  EXPECT_EQ(screen.Caption(), "Ostana - Pickup Location Email");
  Type("txtTextSubject", "");
  Type("txtTextReport", "");
  Prompt().Expect(Done, 64);
  Click("cmdOK");
  EXPECT_EQ(Writing(), QStringList{"UPDATE   ID_COVER_INFO SET      PICKUP_SUBJECT = Null, PICKUP_REPORT = Null, "
                                   "PICKUP_PDF_SUBJECT = Null, PICKUP_PDF_REPORT = Null WHERE    REQUEST_TYPE = "
                                   "'ILL'"});
}

// --- Reports ---

struct BrowseCase {
  const char *form, *option, *button, *box, *title;
};

class NoticeReports : public NoticeEmailTest, public testing::WithParamInterface<BrowseCase> {};

TEST_P(NoticeReports, AreChosenInTheFileDialogAndStoredWithoutTheirFolder) {
  const BrowseCase& entry = GetParam();
  OpenNotice(entry.form);
  if (*entry.option) Click(entry.option);
  Prompt().NextFile({});
  Click(entry.button);
  ASSERT_TRUE(Prompt().LastFileRequest().has_value());
  EXPECT_EQ(Prompt().LastFileRequest()->title, entry.title);
  EXPECT_EQ(Prompt().LastFileRequest()->filter, "*.rpt");
  EXPECT_EQ(Prompt().LastFileRequest()->directory, gclsOF->ApplicationPath() + "Reports");
  EXPECT_EQ(Text(entry.box), "");
  Prompt().NextFile(Folder() + "/Reports/My report.rpt");
  Click(entry.button);
  EXPECT_EQ(Text(entry.box), "My report.rpt");
  // It counts as a change.
  Prompt().Expect(Done, 64);
  Click("cmdOK");
  EXPECT_TRUE(Writing().value(0).contains(" = 'My report.rpt'"));
}

INSTANTIATE_TEST_SUITE_P(
    Dialogs, NoticeReports,
    testing::Values(
        BrowseCase{"frmNotifyPatronEmail", "", "cmdBrowseTextDirectory", "txtTextReport",
                   "Ostana - Select Text Report"},
        BrowseCase{"frmNotifyPatronEmail", "optPDF", "cmdBrowsePDFDirectory", "txtPDFReport",
                   "Ostana - Select PDF Report"},
        BrowseCase{"frmLoanNoticesEmail", "", "cmdBrowseTextDirectory", "txtTextReport", "Ostana - Select Text Report"},
        BrowseCase{"frmLoanNoticesEmail", "optPDF", "cmdBrowsePDFDirectory", "txtPDFReport", "Ostana - Select Report"},
        BrowseCase{"frmGeneralEmail", "", "cmdBrowseTextDirectory", "txtTextReport", "Ostana - Select Report"},
        BrowseCase{"frmPickupLocationEmail", "", "cmdBrowse", "txtTextReport", "Ostana - Select Text Report"},
        BrowseCase{"frmPickupLocationEmail", "optPDF", "cmdBrowse", "txtPDFReport", "Ostana - Select Text Report"}));

}  // namespace
