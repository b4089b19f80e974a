// The window of the recorded changes.
#include <QAction>
#include <QFile>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/ado/Connection.h"
#include "sitescreens/frmChanges.h"
#include "support/Desk.h"

namespace {

class ChangesTest : public SampleDesk {
 protected:
  bool WithHistory() const override { return true; }

  void SetUp() override {
    SampleDesk::SetUp();
    Logon();
  }
  void Write(const QString& sql) { gclsOF->Connection().Execute(sql); }
  void SetPeriod(int days) {
    Write(QString("UPDATE ID_LOAN_CODE SET LON_PERIOD = %1 WHERE LOAN_CODE = 'N'").arg(days));
  }
  QString Period() { return Ask("SELECT LON_PERIOD FROM ID_LOAN_CODE WHERE LOAN_CODE = 'N'"); }
  QStringList Line(const QString& grid, int row) const {
    QStringList cells;
    for (int col = 1; col <= 5; ++col) cells += Cell(grid, row, col);
    return cells;
  }
};

TEST_F(ChangesTest, ShowsTheNewestFirstInTheWordsOfTheScreens) {
  const QString before = Period();
  SetPeriod(99);
  Write("UPDATE ID_LIBRARY SET LOAN_CODE = 'N', USER_PASSWORD = 'hidden' WHERE LIBRARY_ID = 9999999");
  Open("frmChanges");
  ASSERT_EQ(Rows("grdTransactions"), 3);
  EXPECT_EQ(Cell("grdTransactions", 1, 3), "admin");
  EXPECT_EQ(Cell("grdTransactions", 1, 5), "The libraries");
  EXPECT_EQ(Cell("grdTransactions", 2, 5), "Loan policies");
  EXPECT_EQ(Row("grdTransactions"), 1);
  const QString loan = Ask("SELECT LOAN_CODE_DESC FROM ID_LOAN_CODE WHERE LOAN_CODE = 'N'");
  EXPECT_EQ(Line("grdChanges", 1).mid(3), (QStringList{"", "N - " + loan}));
  EXPECT_EQ(Line("grdChanges", 2).mid(4), QStringList{"***"});
  SelectRow("grdTransactions", 2);
  EXPECT_EQ(Line("grdChanges", 1), (QStringList{"Loan policies", "N", "Loan Period", before, "99"}));
}

TEST_F(ChangesTest, FindsByUserTableTextAndMoment) {
  SetPeriod(99);
  Write("UPDATE ID_LIBRARY SET NOTE = 'needle' WHERE LIBRARY_ID = 9999999");
  Another("UPDATE ID_LIBRARY SET NOTE = 'other' WHERE LIBRARY_ID = 9999999");
  Open("frmChanges");
  EXPECT_EQ(Rows("grdTransactions"), 4);
  Type("txtUser", "admin");
  Click("cmdShow");
  EXPECT_EQ(Rows("grdTransactions"), 3);
  Choose("cmbTable", "The libraries");
  Click("cmdShow");
  EXPECT_EQ(Rows("grdTransactions"), 2);
  Type("txtUser", "");
  Type("txtText", "needle");
  Click("cmdShow");
  EXPECT_EQ(Rows("grdTransactions"), 3);
  Type("txtTo", "2000-01-01");
  Click("cmdShow");
  EXPECT_EQ(Rows("grdTransactions"), 1);
  EXPECT_FALSE(IsEnabled("cmdUndo"));
  Type("txtFrom", "soon");
  Prompt().Expect("The moment is not valid.  It is written as 2024-01-31 or 2024-01-31 17:00.", MessageStyle::Warning);
  Click("cmdShow");
  EXPECT_EQ(Focus(), "txtFrom");
}

TEST_F(ChangesTest, OpensOnOneRecord) {
  SetPeriod(99);
  Write("UPDATE ID_LIBRARY SET NOTE = 'x' WHERE LIBRARY_ID = 9999999");
  WhenShown("frmChanges", [&](Screen&) {
    EXPECT_EQ(Rows("grdTransactions"), 2);
    EXPECT_TRUE(Text("lblRecord").startsWith("Record: Loan policies, N"));
    Click("cmdAllRecords");
    EXPECT_EQ(Rows("grdTransactions"), 3);
  });
  frmChanges::ShowRecord("ID_LOAN_CODE", "N", nullptr);
}

TEST_F(ChangesTest, UndoShowsWhatItWritesAsksAndCanBeUndone) {
  const QString before = Period();
  SetPeriod(99);
  Open("frmChanges");
  const QString question = "1 rows would be written as the list shows.\n\nUndo the changes?";
  Prompt().Expect(question, MessageStyle::Question, MessageAnswer::No);
  Click("cmdUndo");
  EXPECT_EQ(Period(), "99");
  Prompt().Expect(question, MessageStyle::Question, MessageAnswer::Yes);
  Click("cmdUndo");
  EXPECT_EQ(Period(), before);
  EXPECT_EQ(Rows("grdTransactions"), 3);
  EXPECT_EQ(Line("grdChanges", 1), (QStringList{"Loan policies", "N", "Loan Period", "99", before}));
  Prompt().Expect(question, MessageStyle::Question, MessageAnswer::Yes);
  Click("cmdUndo");
  EXPECT_EQ(Period(), "99");
}

TEST_F(ChangesTest, UndoesTheMarkedOnesTogether) {
  const QString before = Period();
  SetPeriod(98);
  SetPeriod(99);
  Open("frmChanges");
  Click("cmdMark");
  SelectRow("grdTransactions", 2);
  Click("cmdMark");
  Prompt().Expect("1 rows would be written as the list shows.\n\nUndo the changes?", MessageStyle::Question,
                  MessageAnswer::Yes);
  Click("cmdUndo");
  EXPECT_EQ(Period(), before);
}

TEST_F(ChangesTest, RefusesWhatHasChangedSince) {
  SetPeriod(98);
  Another("UPDATE ID_LOAN_CODE SET LON_PERIOD = 97 WHERE LOAN_CODE = 'N'");
  Open("frmChanges");
  SelectRow("grdTransactions", 2);
  Prompt().ExpectStart("Transaction ", MessageStyle::Warning);
  Click("cmdUndo");
  EXPECT_EQ(Period(), "97");
}

TEST_F(ChangesTest, RefusesWhatTheUserMayNotDo) {
  SetPeriod(98);
  Another("UPDATE ID_USER_FUNCTION SET UPDATE_FLAG = 'N' WHERE USER_ID = 'admin' AND FUNCTION_NAME = 'Tabulon'");
  Logon();
  Open("frmChanges");
  SelectRow("grdTransactions", 2);
  Prompt().Expect("You do not have access to this function", MessageStyle::Stop);
  Click("cmdUndo");
  EXPECT_EQ(Period(), "98");
}

class NoChangesTest : public SampleDesk {};

TEST_F(NoChangesTest, ASiteThatRecordsNothingSaysSo) {
  Logon();
  Statements();
  Open("frmChanges");
  EXPECT_EQ(Statements(), QStringList());
  EXPECT_TRUE(Text("lblRecord").startsWith("This site does not record changes."));
  EXPECT_FALSE(IsEnabled("cmdShow"));
}

TEST_F(NoChangesTest, TheMenuOpensIt) {
  Start();
  bool shown = false;
  WhenShown("frmChanges", [&](Screen&) { shown = true; });
  Trigger("mnuSiteChanges");
  EXPECT_TRUE(shown);
}

}  // namespace
