// The table of writing screens is whole, and each action of it does what it is called.
#include "reliability/WritingScreens.h"

#include <QSet>

#include "support/Walk.h"

namespace {

class WritingActionTest : public ReliabilityDesk, public testing::WithParamInterface<ScreenAction> {};

// Twice, since every suite goes on with the screen that the action before has left.
TEST_P(WritingActionTest, ChangesRowsOfItsTable) {
  const auto& [screen, action] = GetParam();
  for (int round = 1; round <= 2; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    action.prepare(*this, round);
    ASSERT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
    Said().Forget();
    const TableContents before = ContentsOf(Database().OtherClient(), screen->table);
    action.press(*this);
    const TableContents after = ContentsOf(Database().OtherClient(), screen->table);
    EXPECT_FALSE(Said().Refusal());
    EXPECT_EQ(!before.Without(after).isEmpty(), action.name != "Add");
    EXPECT_EQ(!after.Without(before).isEmpty(), action.name != "Delete");
    ASSERT_FALSE(HasFailure()) << Said().Transcript().toStdString();
    Said().Forget();
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, WritingActionTest, testing::ValuesIn(ScreenActions()),
                         [](const auto& action) { return action.param.Name(); });

}  // namespace
