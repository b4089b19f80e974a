#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/clsAddRequest.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Desk.h"

namespace {

class RequestTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another(
        "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, MSG_METHOD, DELIV_METHOD_COPY) VALUES "
        "(71, 'ONE', 'One', 'E', 'M')");
    Logon();
    gstrRequestType = "REG";
    gclsOF->SetLibraryId(71);
    Clock::Set([] { return QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)); });
  }
  void FromForms(const QString& publicationType) {
    gclsRequestInfo->CmdOkCliked = true;
    gclsAddRequest->CmdOkCliked = true;
    gclsRequestInfo->PublicationType = publicationType;
    gclsRequestInfo->ServiceType = "L";
    gclsRequestInfo->ServiceLevel = "X";
    gclsRequestInfo->RequestSource = "M";
  }
  QString Stored(const QString& column) { return Ask("SELECT " + column + " FROM ID_REQUEST"); }
  QStringList Keywords(const QString& table) {
    QStringList words;
    Recordset rows;
    rows.Open(Database().OtherClient(), "SELECT KEYWORD FROM " + table);
    for (; !rows.EOF_(); rows.MoveNext()) words.append(rows.Fields(0).Value());
    words.sort();
    return words;
  }
};

TEST_F(RequestTest, WithoutDataFromTheFormsTheBareFormOfTypeRegIsWritten) {
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Stored("REQUEST_TYPE"), "REG");
  EXPECT_EQ(Stored("SERVICE_TYPE"), "R");
  EXPECT_EQ(Stored("SERVICE_LEVEL"), "X");
  EXPECT_EQ(Stored("REQUEST_SRC"), "M");
  EXPECT_EQ(Stored("PUBLICATION_TYPE"), "J");
  EXPECT_EQ(Stored("DATE_ENTERED").left(10), "2026-03-04");
  EXPECT_TRUE(Stored("REQUEST_NUMBER").startsWith("REG"));
  EXPECT_EQ(Stored("SORT_KEY").toInt(), Stored("REQUEST_NUMBER").right(8).toInt());
  EXPECT_EQ(Ask("SELECT MSG_METHOD FROM ID_DELIVERY"), "E");
  EXPECT_EQ(Ask("SELECT DELIV_METHOD FROM ID_DELIVERY"), "M");
  EXPECT_EQ(Ask("SELECT PROCESS_TYPE FROM ID_DELIVERY"), "1");
  EXPECT_EQ(Ask("SELECT EVENT_ID FROM ID_QUEUE"), "1000");
  EXPECT_EQ(Ask("SELECT QUEUE_TYPE FROM ID_QUEUE"), "0");
  EXPECT_TRUE(gbRequestAdded);
  // The statement's own words stay in the statement.
  EXPECT_EQ(gclsRequestInfo->ServiceType, "");
}

TEST_F(RequestTest, SiteNumber1002TakesServiceLevelC) {
  Setting("System", "SiteNumber", "1002");
  Logon();
  gclsOF->SetLibraryId(71);
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Stored("SERVICE_LEVEL"), "C");
}

TEST_F(RequestTest, ATitleOf250CharactersIsStoredWith200) {
  FromForms("B");
  gclsRequestInfo->Title = "  " + QString(250, QChar(0x00E9));
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Stored("TITLE"), QString(200, QChar(0x00E9)));
}

TEST_F(RequestTest, ABookIsWrittenWithItsColumns) {
  FromForms("B");
  gclsRequestInfo->Title = "The Sea's Edge";
  gclsRequestInfo->Author = "Moss, Ada";
  gclsRequestInfo->PublicationDate = "March 1998";
  gclsRequestInfo->ISBN = "978-0-00-000000-0";
  gclsRequestInfo->DateSubmitted = "2026-01-02";
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Stored("TITLE"), "The Sea's Edge");
  EXPECT_EQ(Stored("AUTHOR"), "Moss, Ada");
  EXPECT_EQ(Stored("PUBLICATION_YEAR"), "1998");
  EXPECT_EQ(Stored("ISBN"), "978-0-00-000000-0");
  EXPECT_EQ(Stored("DATE_SUBMITTED").left(10), "2026-01-02");
}

TEST_F(RequestTest, AnArticleIsWrittenWithItsColumns) {
  FromForms("J");
  gclsRequestInfo->TitleOfJournal = "Journal of Reeds";
  gclsRequestInfo->TitleOfArticle = "Reeds in winter";
  gclsRequestInfo->AuthorOfArticle = "O'Hara, Finn";
  gclsRequestInfo->Volume = "12";
  gstrRequestNotes1 = "Short";
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Stored("TITLE"), "Journal of Reeds");
  EXPECT_EQ(Stored("ARTICLE_TITLE"), "Reeds in winter");
  EXPECT_EQ(Stored("ARTICLE_AUTHOR"), "O'Hara, Finn");
  EXPECT_EQ(Stored("VOLUME"), "12");
  EXPECT_EQ(Stored("NOTES1"), "Short");
  EXPECT_EQ(Keywords("ID_KEYWORD_AUTHOR"), QStringList({"FINN", "OHARA"}));
}

TEST_F(RequestTest, KeywordsOfTitles) {
  FromForms("B");
  gclsRequestInfo->Title = "O'Neill's  well-known a NULLity, vol.2";
  gclsRequestInfo->CallNumber = "ab 123 " + QString(40, 'x');
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  // The apostrophe joins, the hyphen parts, one letter is no word, "NULL" goes also inside a word.
  EXPECT_EQ(Keywords("ID_KEYWORD_TITLE"), QStringList({"ITY", "KNOWN", "ONEILLS", "VOL", "WELL"}));
  EXPECT_EQ(Keywords("ID_KEYWORD_CALL_NO"), QStringList{("AB 123 " + QString(40, 'X')).left(25)});
}

TEST_F(RequestTest, NoiseStringsAndStopWordsAreNoKeywords) {
  Setting("Keywords", "NoiseString_1", "&quot;");
  Setting("Keywords", "StopWord_1", "the");
  FromForms("B");
  gclsRequestInfo->Title = "the &quot;sea&quot; and the sea";
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Keywords("ID_KEYWORD_TITLE"), QStringList({"AND", "SEA", "SEA"}));
}

TEST_F(RequestTest, AKeywordIsCutWithoutHalvingALetter) {
  FromForms("B");
  const QString letter = QString::fromUcs4(U"\U0001F4DA");
  gclsRequestInfo->Title = QString(199, 'X') + letter;
  gclsRequestInfo->CallNumber = QString(24, 'Y') + letter;
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Keywords("ID_KEYWORD_TITLE"), QStringList{QString(199, 'X')});
  EXPECT_EQ(Keywords("ID_KEYWORD_CALL_NO"), QStringList{QString(24, 'Y')});
}

TEST_F(RequestTest, WithoutADateOfSubmissionItIsThePresentMoment) {
  gclsRequestInfo->DateSubmitted = "  ";
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Stored("DATE_SUBMITTED").left(19), "2026-03-04 05:06:07");
}

// Neither an invented date nor a number taken in vain; and no line of an earlier failure in the log.
TEST_F(RequestTest, ADateOfSubmissionThatCannotBeReadIsAFailure) {
  const QString next = Ask("SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST");
  for (const char* text : {"2026-02-30", "04.03.2026", "soon"}) {
    gclsRequestInfo->DateSubmitted = text;
    gstrErrorMessage = "***** SQL error on ID_EARLIER (Select) *****";
    EXPECT_FALSE(gclsAddRequest->UpdateOstanaTables()) << text;
    EXPECT_TRUE(LogLines().join('\n').contains("The date of submission \"" + QString(text) + "\" cannot be read"));
    EXPECT_FALSE(LogLines().join('\n').contains("ID_EARLIER"));
  }
  EXPECT_EQ(Count("ID_REQUEST"), 0);
  EXPECT_EQ(Ask("SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST"), next);
}

TEST_F(RequestTest, AFailureOfTheKeywordsLeavesTheRequestInPlace) {
  FromForms("B");
  gclsRequestInfo->Title = "Reeds";
  Another("ALTER TABLE ID_KEYWORD_TITLE RENAME TO ID_KEYWORD_AWAY");
  Prompt().Expect("An error has occurred.  Please Notify Support.", 16);
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  Another("ALTER TABLE ID_KEYWORD_AWAY RENAME TO ID_KEYWORD_TITLE");
  EXPECT_EQ(Count("ID_REQUEST"), 1);
  EXPECT_TRUE(LogLines().join('\n').contains("frmMain.UpdateKeywordTables"));
}

TEST_F(RequestTest, WhenTheSecondOrThirdInsertFailsNothingIsWritten) {
  for (const QString table : {"ID_DELIVERY", "ID_QUEUE"}) {
    Another("ALTER TABLE " + table + " RENAME TO ID_AWAY");
    EXPECT_FALSE(gclsAddRequest->UpdateOstanaTables());
    Another("ALTER TABLE ID_AWAY RENAME TO " + table);
    EXPECT_EQ(Count("ID_REQUEST"), 0) << table.toStdString();
    EXPECT_EQ(Count("ID_DELIVERY"), 0);
    EXPECT_TRUE(LogLines().last().contains("***** SQL error on " + table + " (Insert) *****"));
  }
  EXPECT_FALSE(gbRequestAdded);
}

TEST_F(RequestTest, WithoutALibraryTheRequestBelongsToTheUnregistered) {
  gclsOF->SetLibraryId(0);
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
  EXPECT_EQ(Stored("LIBRARY_ID"), "9999999");
  EXPECT_EQ(gclsOF->LibraryId(), 0);
}

TEST_F(RequestTest, LengthsAreCutByCharactersAndNoLetterIsHalved) {
  QString cut;
  clsAddRequest::EnforceFieldLength("  abc  ", 2, cut);
  EXPECT_EQ(cut, "ab");
  clsAddRequest::EnforceFieldLength(QString::fromUtf8("a\xF0\x9F\x93\x9A"), 2, cut);
  EXPECT_EQ(cut, "a");
}

TEST_F(RequestTest, TheFormsOfOtherApplicationsAreEmpty) {
  for (const char* name : {"frmRequestArticle", "frmRequestBook", "frmQueryRequests", "frmPatronRegistration",
                           "frmSupplierRegistration"}) {
    const std::unique_ptr<Screen> form = MakeScreen(name, nullptr);
    EXPECT_EQ(form->Caption(), "Form1") << name;
    EXPECT_TRUE(form->findChildren<QWidget*>().isEmpty()) << name;
  }
}

}  // namespace
