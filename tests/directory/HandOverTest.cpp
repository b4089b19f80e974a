// One record goes with the user from screen to screen.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "shell/Screen.h"
#include "shell/Screens.h"

namespace {

class HandOverTest : public LibraryDesk {
 protected:
  QStringList TracedHandOver() const { return LogLines().filter("_Click.").filter(QRegularExpression("Start|End")); }
};

TEST_F(HandOverTest, TheRecordGoesThroughAllScreens) {
  Begin(North);
  QStringList seen;
  const auto then = [&](const QString& form, const QString& button) {
    WhenShown(form, [this, &seen, form, button](Screen&) {
      seen.append(form + " " + Text("txtLibrarySymbol"));
      if (!button.isEmpty()) Click(button);
    });
  };
  then("frmLibraryLoginInfo", "cmdStatistics");
  then("frmLibraryStatisticalInfo", "cmdBilling");
  then("frmLibraryBillingInfo", "");
  InSession("frmLibraryRegistration", [this] { Click("cmdLogin"); });
  EXPECT_EQ(seen, QStringList(
                      {"frmLibraryLoginInfo NORTH", "frmLibraryStatisticalInfo NORTH", "frmLibraryBillingInfo NORTH"}));
}

TEST_F(HandOverTest, AMenuEntryHandsOverToo) {
  Begin(South);
  bool shown = false;
  WhenShown("frmLibraryRegistration", [&](Screen&) { shown = Text("txtLibrarySymbol") == "SOUTH"; });
  InSession("frmLibraryBillingInfo", [this] { Trigger("mnuDisplayRegistration"); });
  EXPECT_TRUE(shown);
}

// Registration asks in the button, the others while they unload; the words differ.
TEST_F(HandOverTest, YesOnASiblingButtonSavesAndStaysTheSecondPressMoves) {
  Begin(North);
  WhenShown("frmLibraryLoginInfo", [](Screen&) {});
  InSession("frmLibraryRegistration", [this] {
    Type("txtCity", "Leeds");
    Prompt().Expect(GuardText(Modified), MessageStyle::Question, MessageAnswer::Yes);
    Prompt().Expect("Library Symbol: 'NORTH' has been updated.", MessageStyle::Information);
    Click("cmdLogin");
    EXPECT_EQ(Window()->objectName(), "frmLibraryRegistration");
    EXPECT_EQ(Column("PRIME_CITY"), "Leeds");
    Click("cmdLogin");
  });
  WhenShown("frmLibraryRegistration", [](Screen&) {});
  InSession("frmLibraryBillingInfo", [this] {
    Type("txtCity", "York");
    Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::Yes);
    Prompt().Expect("Library Symbol: (NORTH) has been updated.", MessageStyle::Information);
    Click("cmdRegistration");
    EXPECT_TRUE(gbVetoUnload);
    EXPECT_EQ(Window()->objectName(), "frmLibraryBillingInfo");
    EXPECT_EQ(Column("BILL_CITY"), "York");
    Click("cmdRegistration");
    EXPECT_FALSE(gbVetoUnload);
  });
}

TEST_F(HandOverTest, NoOnASiblingButtonMovesWithoutTheEdits) {
  Begin(North);
  WhenShown("frmLibraryBillingInfo", [](Screen&) {});
  InSession("frmLibraryStatisticalInfo", [this] {
    Type("txtFD", "F1");
    Prompt().Expect(GuardText(Registered), MessageStyle::Question, MessageAnswer::No);
    Click("cmdBilling");
  });
  EXPECT_NE(Column("FD_SYMBOL"), "F1");
}

TEST_F(HandOverTest, LoginAndBillingTraceTheWayToStatistics) {
  Begin(North);
  WhenShown("frmLibraryStatisticalInfo", [](Screen&) {});
  InSession("frmLibraryLoginInfo", [this] { Click("cmdStatistics"); });
  QStringList texts;
  for (const QString& line : TracedHandOver()) texts.append(line.section("* ", 1));
  EXPECT_EQ(texts, QStringList({"cmdStatistics_Click.Unload frmLibraryBillinInfo - Start",
                                "cmdStatistics_Click.Unload frmLibraryBillinInfo - End",
                                "cmdStatistics_Click.frmLibraryStatisticalInfo.Show - Start",
                                "cmdStatistics_Click.frmLibraryStatisticalInfo.Show - End"}));
}

TEST_F(HandOverTest, RegistrationTracesNothing) {
  Begin(North);
  WhenShown("frmLibraryStatisticalInfo", [](Screen&) {});
  InSession("frmLibraryRegistration", [this] { Click("cmdStatistics"); });
  EXPECT_EQ(TracedHandOver(), QStringList());
}

TEST_F(HandOverTest, WithoutTracingNothingIsWritten) {
  Setting("System", "Tracing", "N");
  Begin(North);
  WhenShown("frmLibraryStatisticalInfo", [](Screen&) {});
  InSession("frmLibraryBillingInfo", [this] { Click("cmdStatistics"); });
  EXPECT_EQ(TracedHandOver(), QStringList());
}

// A screen that is no part of a chain has nowhere to hand the record to; that is what a failed hand-over looks like.
TEST_F(HandOverTest, AFailedHandOverIsToldAndTraced) {
  OpenLibrary("frmLibraryLoginInfo", North);
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Find<QPushButton>("cmdBilling")->click();
  EXPECT_TRUE(LogHolds("frmLibraryLoginInfo.cmdBilling_Click"));
  EXPECT_TRUE(LogHolds("cmdBilling_Click - failed."));
}

}  // namespace
