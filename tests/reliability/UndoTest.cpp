// What the screens do is recorded as one transaction of their user; undone, the database is as it was. So are all of it
// together, and every state between is told as it was.
//
//   TABULON_UNDO_ACTIONS  how many actions are done and undone together, chosen at random; 25 when not set, 0 for all
//   TABULON_UNDO_SEED     which; told by a run that fails
#include <QRandomGenerator>
#include <algorithm>
#include <random>

#include "reliability/HistoryProof.h"
#include "reliability/WritingScreens.h"
#include "site/Undo.h"

namespace {

class UndoTest : public ReliabilityDesk {
 protected:
  bool WithHistory() const override { return true; }

  std::vector<HistoryTransaction> DoneSince(int last) {
    std::vector<HistoryTransaction> done = HistoryList::Read(Database().OtherClient(), HistoryFilter{.most = 100000});
    std::erase_if(done, [&](const HistoryTransaction& one) { return one.id <= last; });
    return done;
  }
  int Last() {
    const auto all = HistoryList::Read(Database().OtherClient(), HistoryFilter{.most = 1});
    return all.empty() ? 0 : all.front().id;
  }
  // True where passwords or card data could not come back.
  bool TakeBack(const std::vector<HistoryTransaction>& done) {
    std::vector<int> ids;
    for (const HistoryTransaction& one : done) ids.push_back(one.id);
    Connection& other = Database().OtherClient();
    Transaction transaction(other);
    const bool secrets = Undo(other, ids, false).Refusals().join(' ').contains("keeps no passwords");
    Undo undo(other, ids, secrets);
    EXPECT_EQ(undo.Refusals(), QStringList());
    EXPECT_EQ(undo.Notes().isEmpty(), !secrets);
    undo.Run();
    transaction.Commit();
    return secrets;
  }
  // Tables that only count on are neither settings nor rights.
  QStringList Changed(const WholeContent& before, bool butSecrets) {
    QStringList tables = Differences(before, WholeContentOf(Database().OtherClient()), butSecrets);
    tables.removeAll("ID_NEXT_LIBRARY");
    tables.removeAll("ID_NEXT_REQUEST");
    return tables;
  }
};

// --- One ---

class UndoActionTest : public UndoTest, public testing::WithParamInterface<ScreenAction> {};

TEST_P(UndoActionTest, TheDatabaseIsAsItWas) {
  const auto& [screen, action] = GetParam();
  action.prepare(*this, 1);
  ASSERT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
  const WholeContent before = WholeContentOf(Database().OtherClient());
  const int last = Last();
  action.press(*this);
  ASSERT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
  const std::vector<HistoryTransaction> done = DoneSince(last);
  if (screen->severalUnits) {
    EXPECT_GE(done.size(), 1U);
  } else {
    EXPECT_EQ(done.size(), 1U);
  }
  for (const HistoryTransaction& one : done) {
    EXPECT_EQ(one.user, "admin");
    EXPECT_EQ(one.program, "Tabulon");
  }
  const bool secrets = TakeBack(done);
  EXPECT_EQ(Changed(before, secrets), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Screens, UndoActionTest, testing::ValuesIn(ScreenActions()),
                         [](const auto& action) { return action.param.Name(); });

// --- All ---

int Number(const char* variable, int without) {
  bool given = false;
  const int number = qEnvironmentVariableIntValue(variable, &given);
  return given ? number : without;
}

class UndoAllTest : public UndoTest {
 protected:
  static std::vector<ScreenAction> Chosen(unsigned seed) {
    std::vector<ScreenAction> actions = ScreenActions();
    std::mt19937 random(seed);
    std::shuffle(actions.begin(), actions.end(), random);
    const int number = Number("TABULON_UNDO_ACTIONS", 25);
    if (number > 0 && size_t(number) < actions.size()) actions.resize(size_t(number));
    return actions;
  }
  // Two actions can ask for the same free code or the last entry of a list: the later one is left out.
  bool Do(const ScreenAction& chosen, int round) {
    chosen.action.prepare(*this, round);
    const bool prepared = !Said().Refusal() && !HasFailure();
    Said().Forget();
    if (prepared) chosen.action.press(*this);
    const bool done = prepared && !Said().Refusal();
    Said().Forget();
    return done;
  }
};

TEST_F(UndoAllTest, InRandomOrderAndBackwards) {
  const unsigned seed = unsigned(Number("TABULON_UNDO_SEED", int(QRandomGenerator::global()->bounded(1000000))));
  SCOPED_TRACE("TABULON_UNDO_SEED=" + std::to_string(seed));
  const WholeContent before = WholeContentOf(Database().OtherClient());
  const int last = Last();
  std::vector<HistoryProof> states;
  int round = 0, done = 0;
  for (const ScreenAction& chosen : Chosen(seed)) {
    SCOPED_TRACE(chosen.Name());
    states.emplace_back(Database().OtherClient());
    done += Do(chosen, ++round);
    ASSERT_FALSE(HasFailure());
  }
  RecordProperty("done", done);
  RecordProperty("states", int(states.size()));
  EXPECT_GT(done, round / 2);
  for (const HistoryProof& state : states)
    ASSERT_EQ(state.WhyNot(Database().OtherClient()), "") << state.Moment().toStdString();
  const bool secrets = TakeBack(DoneSince(last));
  EXPECT_EQ(Changed(before, secrets), QStringList());
}

}  // namespace
