// The statements of a placed request, letter for letter, in its three forms.
#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/clsAddRequest.h"
#include "support/Desk.h"

namespace {

class RequestStatementsTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Another(
        "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME, MSG_METHOD) VALUES (71, 'ONE', 'One', "
        "'E')");
    Another("UPDATE ID_NEXT_REQUEST SET NEXT_REQUEST = 42");
    Logon();
    gclsRequestInfo.Reset();
    gclsAddRequest.Reset();
    gstrRequestType = "REG";
    gstrRequestNotes1.clear();
    gstrRequestNote.clear();
    gclsOF->SetLibraryId(71);
    Clock::Set([] { return QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)); });
    now_ = gclsOF->SqlDate(Clock::Now());
  }
  void FromForms(const QString& publicationType) {
    clsRequestInfo& info = *gclsRequestInfo;
    info.CmdOkCliked = true;
    gclsAddRequest->CmdOkCliked = true;
    info.PublicationType = publicationType;
    info.ServiceType = "L";
    info.ServiceLevel = "X";
    info.RequestSource = "M";
    info.InfoSource = "A friend's word";
    info.CallNumber = "QA 76";
    info.PublicationDate = "1998";
    info.PublicationPlace = "Bergen";
    info.BibliographyNum = "B1";
    info.SystemNum = "S1";
  }
  // Of the request, its delivery and its place in the queue; keywords come after the commit.
  QStringList Written() {
    Statements();
    EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables());
    return Writing().filter("INSERT INTO ID_");
  }
  QString Opening(const QString& columns) const {
    return "INSERT INTO ID_REQUEST (REQUEST_NUMBER, SORT_KEY, LIBRARY_ID, REQUEST_TYPE, " + columns +
           ") VALUES (N'REG00000042', 42, 71, N'REG', ";
  }

  QString now_;
};

TEST_F(RequestStatementsTest, ABookNamesItsColumnsInTheirOrder) {
  FromForms("B");
  gclsRequestInfo->Author = "Moss, Ada";
  gclsRequestInfo->Title = "The Sea";
  gclsRequestInfo->ISBN = "1";
  gstrRequestNote = "Soon";
  EXPECT_EQ(
      Written().value(0),
      Opening("INFO_SOURCE, NOTES1, CALL_NUMBER, DATE_ENTERED, DATE_SUBMITTED, REQUEST_SRC, SERVICE_TYPE, "
              "SERVICE_LEVEL, AUTHOR, TITLE, PUBLISHER, PUBLICATION_YEAR, PUBLICATION_DATE, PUBLICATION_TYPE, "
              "PUBLICATION_PLACE, SERIES_TITLE, EDITION, ISBN, BIBLIOGRAPHY_NUM, BIBLIOGRAPHY, SYSTEM_NUMBER, "
              "SYSTEM_SOURCE, ADD_NUMS_LETTERS") +
          "N'A friend''s word', N'Soon', N'QA 76', " + now_ + ", " + now_ +
          ", N'M', N'L', N'X', N'Moss, Ada', N'The Sea', NULL, N'1998', N'1998', N'B', N'Bergen', NULL, NULL, N'1', "
          "N'B1', NULL, N'S1', NULL, NULL)");
}

TEST_F(RequestStatementsTest, AnArticleNamesItsColumnsInTheirOrder) {
  FromForms("J");
  gclsRequestInfo->TitleOfJournal = "Reeds";
  gclsRequestInfo->TitleOfArticle = "Winter";
  gclsRequestInfo->Pages = "1-2";
  EXPECT_EQ(Written().value(0),
            Opening("INFO_SOURCE, NOTES1, CALL_NUMBER, DATE_ENTERED, DATE_SUBMITTED, REQUEST_SRC, SERVICE_TYPE, "
                    "SERVICE_LEVEL, TITLE, ARTICLE_AUTHOR, ARTICLE_TITLE, PUBLICATION_YEAR, PUBLICATION_DATE, "
                    "PUBLICATION_TYPE, PUBLICATION_PLACE, VOLUME, ISSUE, ISSN, PAGES_REQUESTED, BIBLIOGRAPHY_NUM, "
                    "BIBLIOGRAPHY, SYSTEM_NUMBER, SYSTEM_SOURCE, ADD_NUMS_LETTERS") +
                "N'A friend''s word', NULL, N'QA 76', " + now_ + ", " + now_ +
                ", N'M', N'L', N'X', N'Reeds', NULL, N'Winter', N'1998', N'1998', N'J', N'Bergen', NULL, NULL, NULL, "
                "N'1-2', N'B1', NULL, N'S1', NULL, NULL)");
}

TEST_F(RequestStatementsTest, TheBareFormTheDeliveryAndTheQueue) {
  EXPECT_EQ(Written(),
            QStringList({Opening("SERVICE_TYPE, SERVICE_LEVEL, REQUEST_SRC, PUBLICATION_TYPE, DATE_ENTERED, "
                                 "DATE_SUBMITTED") +
                             "N'R', N'X', N'M', N'J', " + now_ + ", " + now_ + ")",
                         "INSERT INTO ID_DELIVERY (REQUEST_NUMBER, PROCESS_TYPE, MSG_METHOD, DELIV_METHOD) VALUES "
                         "(N'REG00000042', N'1', N'E', NULL)",
                         "INSERT INTO ID_QUEUE (REQUEST_NUMBER, EVENT_ID, QUEUE_TYPE, SUPPLIER_SEQ_SENT, DATE_UPDATE) "
                         "VALUES (N'REG00000042', 1000, N'0', 1, " +
                             now_ + ")"}));
}

}  // namespace
