#include "shell/Procedure.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "support/Desk.h"

namespace {

class ProcedureTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    Logon();
    form_.setWindowTitle("Ostana - A Form");
  }
  static void Fails() { Execute("UPDATE ID_NOWHERE SET A = 1", "***** SQL error on ID_NOWHERE (Update) *****"); }

  QWidget form_;
};

TEST_F(ProcedureTest, AFailureIsShownOnceAndLoggedInTwoLines) {
  Prompt().ExpectTitled("***** SQL error on ID_NOWHERE (Update) *****", 16, "Ostana - A Form");
  EXPECT_FALSE(Procedure("frmX.cmdY_Click", &form_).Run(Fails));
  const QStringList log = LogLines();
  ASSERT_GE(log.size(), 3);
  EXPECT_TRUE(log[log.size() - 3].endsWith("  * frmX.cmdY_Click"));
  EXPECT_EQ(log[log.size() - 2], QString(24, ' ') + "* ***** SQL error on ID_NOWHERE (Update) *****");
  EXPECT_TRUE(log.last().startsWith(QString(24, ' ') + "* Error: -2147217900 - ")) << log.last().toStdString();
}

TEST_F(ProcedureTest, TheClosingTextStandsInPlaceOfTheFailureLineWhichGoesToTheLog) {
  Prompt().Expect("It did not work.", 16);
  Procedure("frmX.cmdY_Click", &form_).OnFailure("It did not work.").Run(Fails);
  EXPECT_TRUE(LogLines().contains(QString(24, ' ') + "* ***** SQL error on ID_NOWHERE (Update) *****"));
}

TEST_F(ProcedureTest, AStepIsLoggedOnlyAndTheNextOneRuns) {
  Procedure procedure("frmX.Fill", &form_);
  EXPECT_FALSE(procedure.Step(Fails));
  bool next = false;
  EXPECT_TRUE(procedure.Step([&next] { next = true; }));
  EXPECT_TRUE(next);
}

TEST_F(ProcedureTest, AnOpenTransactionIsRolledBack) {
  Another("DELETE FROM ID_PRINTER");
  Prompt().Expect("***** SQL error on ID_NOWHERE (Update) *****", 16);
  Procedure("frmX.cmdY_Click", &form_).Run([] {
    gclsOF->Connection().BeginTrans();
    Execute("INSERT INTO ID_PRINTER (PRINTER) VALUES ('Desk')", "line");
    Fails();
  });
  EXPECT_FALSE(gclsOF->Connection().InTransaction());
  EXPECT_EQ(Count("ID_PRINTER"), 0);
}

TEST_F(ProcedureTest, AnUnexpectedFailureWithoutALineIsToldInTheCommonWords) {
  Prompt().Expect("An error has occurred.  Please Notify Support.", 16);
  Procedure("frmX.cmdY_Click", &form_).Run([] { throw std::runtime_error("out of luck"); });
  EXPECT_TRUE(LogLines().last().endsWith(" - out of luck"));
}

TEST_F(ProcedureTest, TheFailureMessageOfAnEarlierProcedureIsForgotten) {
  gstrErrorMessage = "left over";
  EXPECT_TRUE(Procedure("frmX.cmdY_Click", &form_).Run([] {}));
  EXPECT_EQ(gstrErrorMessage, "");
}

TEST_F(ProcedureTest, ASilentProcedureForgetsItAsWell) {
  gstrErrorMessage = "left over";
  EXPECT_FALSE(Procedure("frmX.Fill").Step([] { throw std::runtime_error("out of luck"); }));
  const QStringList log = LogLines();
  ASSERT_GE(log.size(), 2);
  EXPECT_TRUE(log[log.size() - 2].endsWith("  * frmX.Fill")) << log[log.size() - 2].toStdString();
  EXPECT_TRUE(log.last().endsWith(" - out of luck"));
}

}  // namespace
