// The link to the database is lost before an action, behind each of its statements and in the middle of each of its
// requests: nothing half written, a message of the screen, and the next action works without a restart.
//
// A server ends the session, or the line breaks. SQLite has neither: its file is taken away and brought back, which its
// engine refuses to write to while it is gone.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "reliability/Effect.h"
#include "reliability/FarDesk.h"
#include "reliability/HistoryProof.h"
#include "reliability/WritingScreens.h"

namespace {

class LostLinkTest : public FarDesk, public testing::WithParamInterface<ScreenAction> {
 protected:
  const WritingScreen& Subject() const { return *GetParam().screen; }

  bool WithHistory() const override { return true; }
  void SetUp() override {
    FarDesk::SetUp();
    // On the other client, so that cutting runs no statement of its own to open it.
    proof_.emplace(Database().OtherClient());
  }

  void Prepare() {
    GetParam().action.prepare(*this, ++round_);
    prepared_ = !Said().Refusal();
    Said().Forget();
    before_ = Watched();
  }
  void Press() { GetParam().action.press(*this); }

  // The tables that the action writes; all of them as long as that is not known.
  DatabaseContents Watched() {
    if (whole_.isEmpty()) return ContentsOf(Database().OtherClient());
    DatabaseContents contents;
    for (const QString& table : whole_.keys()) contents[table] = ContentsOf(Database().OtherClient(), table);
    return contents;
  }
  Effect Done() {
    Effect effect = EffectOf(before_, Watched());
    for (const QString& counter : Subject().counters) effect.remove(counter);
    for (TableEffect& table : effect)
      for (const QString& column : Subject().ownColumns) table.columns.remove(column);
    return effect;
  }

  // One run that nothing disturbs tells what the action does.
  void RunWhole() {
    Prepare();
    all_ = before_;
    Press();
    whole_ = Done();
    ASSERT_TRUE(prepared_ && !Said().Refusal() && !whole_.isEmpty()) << Said().Transcript().toStdString();
  }

  // All of it or nothing, or some of the units of a screen that has several.
  bool IsWhole(const Effect& effect) const {
    if (!Subject().severalUnits) return effect == whole_;
    for (auto table = effect.begin(); table != effect.end(); ++table)
      if (!(whole_.value(table.key()) == *table)) return false;
    return !effect.isEmpty();
  }
  // What the action did while the link was lost. Had it nothing left to ask for, nobody was told.
  Effect MustBeAllOrNothing(bool mustTell) {
    RestoreLink();
    const Effect effect = Done();
    EXPECT_TRUE(effect.isEmpty() || IsWhole(effect))
        << "did " << Told(effect).toStdString() << ", and not " << Told(whole_).toStdString();
    if (effect.isEmpty() || mustTell) {
      EXPECT_TRUE(Said().Refusal()) << Said().Transcript().toStdString();
    }
    if (effect.isEmpty()) {
      EXPECT_FALSE(Said().Success()) << Said().Transcript().toStdString();
    }
    EXPECT_FALSE(gclsOF->Connection().InTransaction());
    return effect;
  }

  // The next action works. Where this one was written all the same, the screen shows what was before it, and perhaps
  // nobody has been told of the loss yet: then the user turns to another screen, which finds it, and comes back.
  void MustWorkAgain(bool staleScreen) {
    if (staleScreen) ToAnotherScreen();
    Said().Forget();
    Prepare();
    EXPECT_TRUE(prepared_);
    Press();
    EXPECT_EQ(Told(Done()), Told(whole_)) << Said().Transcript().toStdString();
    EXPECT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
    EXPECT_FALSE(gclsOF->Connection().InTransaction());
    Said().Forget();
  }

  void ToAnotherScreen() {
    if (Window() && Window()->objectName() != "frmTabulon") LeaveUnsaved();
    OpenDialog("frmISONamespace");
    LeaveUnsaved();
    if (!Window()) return;
    Click("cmdClear");
    EnterTab(Shell().Tab() == frmTabulon::PrintersTab ? frmTabulon::RequestTypeTab : frmTabulon::PrintersTab);
  }

  // Besides the tables that the action writes. What was written is recorded, and nothing else.
  void NothingElseMustHaveChanged() {
    EXPECT_EQ(proof_->WhyNot(Database().OtherClient()), "");
    for (const QString& table : Differences(all_, ContentsOf(Database().OtherClient())))
      EXPECT_TRUE(whole_.contains(table) || Subject().counters.contains(table)) << table.toStdString();
  }

  // One run for each request of the action, broken there.
  void BreakEachRequest(DelayingProxy::Break where) {
    if (!HasNetwork()) GTEST_SKIP() << "a file has no line";
    RunWhole();
    Prepare();
    const int before = Proxy().RoundTrips();
    Press();
    const int requests = Proxy().RoundTrips() - before;
    ASSERT_GT(requests, 0);
    for (int request = 1; request <= requests && !HasFailure(); ++request) {
      SCOPED_TRACE("in request " + std::to_string(request) + " of " + std::to_string(requests));
      Prepare();
      Proxy().BreakAt(request, where);
      Press();
      Proxy().BreakAt(0, where);
      const Effect effect = MustBeAllOrNothing(true);
      MustWorkAgain(!effect.isEmpty());
    }
    NothingElseMustHaveChanged();
  }

 private:
  std::optional<HistoryProof> proof_;
  int round_ = 0;
  bool prepared_ = false;
  DatabaseContents all_, before_;
  Effect whole_;
};

TEST_P(LostLinkTest, BeforeTheAction) {
  RunWhole();
  Prepare();
  CutLink();
  Press();
  EXPECT_TRUE(MustBeAllOrNothing(true).isEmpty());
  MustWorkAgain(false);
  NothingElseMustHaveChanged();
}

// Behind a statement is before the next one, and behind the last one of a transaction is before its commit.
TEST_P(LostLinkTest, BehindEachStatement) {
  RunWhole();
  Prepare();
  int statements = 0;
  AfterEachStatement([&](const StatementRecord&) { ++statements; });
  Press();
  AfterEachStatement({});
  ASSERT_GT(statements, 0);
  for (int cut = 1; cut <= statements && !HasFailure(); ++cut) {
    SCOPED_TRACE("behind statement " + std::to_string(cut) + " of " + std::to_string(statements));
    Prepare();
    int at = 0;
    AfterEachStatement([&](const StatementRecord&) {
      if (++at == cut) CutLink();
    });
    Press();
    AfterEachStatement({});
    ASSERT_GE(at, cut) << Said().Transcript().toStdString();
    const Effect effect = MustBeAllOrNothing(false);
    MustWorkAgain(!effect.isEmpty());
  }
  NothingElseMustHaveChanged();
}

// The server never runs it.
TEST_P(LostLinkTest, InTheMiddleOfARequest) {
  BreakEachRequest(DelayingProxy::Break::InRequest);
}

// The server has run it, which nobody can know: it is told as a failure and not repeated.
TEST_P(LostLinkTest, BeforeTheAnswer) {
  BreakEachRequest(DelayingProxy::Break::BeforeAnswer);
}

INSTANTIATE_TEST_SUITE_P(Screens, LostLinkTest, testing::ValuesIn(ScreenActions()),
                         [](const auto& action) { return action.param.Name(); });

}  // namespace
