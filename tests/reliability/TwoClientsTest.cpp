// Two clients on one row, one list, one counter: the last one wins or the database refuses, never a mixture.
#include <thread>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/RequestCounter.h"
#include "platform/controls/Grid.h"
#include "reliability/WritingScreens.h"

namespace {

class TwoClientsTest : public ReliabilityDesk {
 protected:
  // The notes of one pair as the table has them, in their order.
  QStringList Notes() {
    QStringList notes;
    Recordset rows;
    rows.Open(
        Database().OtherClient(),
        "SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE = 'BIB' AND PROCESS_TYPE = 'SEA' ORDER "
        "BY EXCEPTION_NOTE_SEQ");
    for (; !rows.EOF_(); rows.MoveNext()) notes += rows.Fields(0).Value();
    return notes;
  }
};

TEST_F(TwoClientsTest, OnOneRowTheLastOneWins) {
  EnterTab(frmTabulon::CodeTablesTab);
  ChooseCode("cmb0Tables", "ID_LIBRARY_CAT");
  SelectRow("grd0TableDesc", 1);
  const QString code = Text("txt0Code");
  Type("txt0Description", "ours");
  Another("UPDATE ID_LIBRARY_CAT SET LIBRARY_CAT_DESC = 'theirs' WHERE LIBRARY_CAT = '" + code + "'");
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT LIBRARY_CAT_DESC FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = '" + code + "'"), "ours");
}

TEST_F(TwoClientsTest, ARowThatTheOtherOneDeletedIsNotWrittenAnew) {
  OpenDialog("frmGeneralMessages");
  SelectRow("grdGeneralMessage", 1);
  Type("txtSubject", "ours");
  Another("DELETE FROM ID_GENERAL_MESSAGE");
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT COUNT(*) FROM ID_GENERAL_MESSAGE"), "0");
  EXPECT_TRUE(Said().Refusal()) << Said().Transcript().toStdString();
}

TEST_F(TwoClientsTest, TheSecondToAddACodeIsRefusedByTheDatabase) {
  EnterTab(frmTabulon::CodeTablesTab);
  ChooseCode("cmb0Tables", "ID_LIBRARY_CAT");
  Type("txt0Code", "ZZ");
  Type("txt0Description", "ours");
  Another("INSERT INTO ID_LIBRARY_CAT (LIBRARY_CAT, LIBRARY_CAT_DESC) VALUES ('ZZ', 'theirs')");
  Said().Forget();
  Click("cmdAdd");
  EXPECT_EQ(Ask("SELECT LIBRARY_CAT_DESC FROM ID_LIBRARY_CAT WHERE LIBRARY_CAT = 'ZZ'"), "theirs");
  EXPECT_TRUE(Said().Refusal()) << Said().Transcript().toStdString();
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
}

TEST_F(TwoClientsTest, OfTwoListsOneIsStoredAsAWhole) {
  gstrNotesExceptionCode = "BIB";
  gstrNotesProcessType = "SEA";
  OpenDialog("frmAddExceptionNotes");
  const int count = Find<Grid>("grdExceptionNote")->Rows() - 1;
  SelectRow("grdExceptionNote", 2);
  Type("txtExceptionNote", "ours");
  Click("cmdUpdate");
  // The other client stores a shorter list while ours is on screen.
  Another("DELETE FROM ID_EXCEPTION_NOTE WHERE EXCEPTION_CODE = 'BIB' AND PROCESS_TYPE = 'SEA'");
  Another("INSERT INTO ID_EXCEPTION_NOTE VALUES ('BIB', 'SEA', 1, 'theirs')");
  Click("cmdClose");
  EXPECT_EQ(Notes().size(), count);
  EXPECT_EQ(Notes().count("ours"), 1);
  EXPECT_EQ(Notes().count("theirs"), 0);
}

TEST_F(TwoClientsTest, NoRequestNumberIsGivenTwice) {
  constexpr int Each = 25;
  std::vector<int> numbers[2];
  const auto take = [&](std::vector<int>& taken) {
    Connection connection(Database().Settings());
    connection.Open();
    QString reason;
    for (int i = 0; i < Each; ++i) {
      if (const int number = RequestCounter::Take(connection, reason)) taken.push_back(number);
    }
  };
  std::thread one([&] { take(numbers[0]); }), other([&] { take(numbers[1]); });
  one.join();
  other.join();
  QSet<int> distinct(numbers[0].begin(), numbers[0].end());
  distinct += QSet<int>(numbers[1].begin(), numbers[1].end());
  EXPECT_EQ(size_t(distinct.size()), numbers[0].size() + numbers[1].size());
  EXPECT_GE(distinct.size(), Each);  // a client that finds the row busy says so and takes none
}

TEST_F(TwoClientsTest, AListIsNotStoredOverALock) {
  if (TestDatabase::TestEngine() != Engine::Sqlite) GTEST_SKIP() << "a server keeps the second writer waiting";
  gstrNotesExceptionCode = "BIB";
  gstrNotesProcessType = "SEA";
  OpenDialog("frmAddExceptionNotes");
  SelectRow("grdExceptionNote", 2);
  Type("txtExceptionNote", "ours");
  Click("cmdUpdate");
  const QStringList before = Notes();
  Said().Forget();
  {
    Transaction theirs(Database().OtherClient());
    Another("UPDATE ID_EXCEPTION_NOTE SET EXCEPTION_NOTE = 'theirs' WHERE EXCEPTION_NOTE_SEQ = 1");
    Click("cmdClose");
    EXPECT_TRUE(Said().Refusal()) << Said().Transcript().toStdString();
  }
  EXPECT_EQ(Notes(), before);
  // The list is still on screen and goes through now.
  Click("cmdClose");
  EXPECT_EQ(Notes().count("ours"), 1);
}

}  // namespace
