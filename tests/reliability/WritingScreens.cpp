#include "reliability/WritingScreens.h"

#include "platform/controls/Grid.h"
#include "reliability/WritingSteps.h"
#include "reliability/WritingTables.h"

namespace {

void TypeField(ReliabilityDesk& desk, const WritingField& field, const QString& text) {
  desk.Type(field.box, text);
  if (field.twin) desk.Type(field.twin, text);
}

// The row of the grid that holds what the marks showed.
void SelectMarked(ReliabilityDesk& desk, const char* grid, const std::vector<std::pair<int, QString>>& marks) {
  auto* const rows = desk.Find<Grid>(grid);
  for (int row = 1; row < rows->Rows(); ++row) {
    const bool found = std::all_of(marks.begin(), marks.end(),
                                   [&](const auto& mark) { return rows->Text(row, mark.first) == mark.second; });
    if (!found) continue;
    if (rows->Row() != row) desk.SelectRow(grid, row);
    return;
  }
  ADD_FAILURE() << grid << " does not hold the new record";
}

std::vector<std::pair<int, QString>> Shown(const ReliabilityDesk& desk, const std::vector<RowMark>& marks) {
  std::vector<std::pair<int, QString>> shown;
  for (const RowMark& mark : marks)
    shown.emplace_back(mark.column,
                       mark.code ? desk.Find<CodeComboBox>(mark.control)->Code() : desk.Text(mark.control));
  return shown;
}

}  // namespace

void WritingScreen::EnterChange(ReliabilityDesk& desk, int round) const {
  if (change) change(desk, round);
  for (const WritingField& field : fields) TypeField(desk, field, Steps::Mark(round));
}

void WritingScreen::EnterNew(ReliabilityDesk& desk, int round) const {
  if (empty) empty(desk);
  for (const WritingField& key : keys) TypeField(desk, key, Steps::FreeCode(desk, key.box, table, key.column));
  for (const WritingField& field : fields) TypeField(desk, field, Steps::Mark(round));
  if (choose) choose(desk, round);
}

std::vector<WritingAction> WritingScreen::Actions() const {
  std::vector<WritingAction> actions;
  if (write) {
    actions.push_back({"Update",
                       [screen = *this](ReliabilityDesk& desk, int round) {
                         screen.open(desk);
                         screen.EnterChange(desk, round);
                       },
                       write});
  }
  if (add) {
    actions.push_back({"Add",
                       [screen = *this](ReliabilityDesk& desk, int round) {
                         screen.open(desk);
                         screen.EnterNew(desk, round);
                       },
                       add});
  }
  if (remove) {
    actions.push_back({"Delete",
                       [screen = *this](ReliabilityDesk& desk, int round) {
                         screen.open(desk);
                         screen.EnterNew(desk, round);
                         const auto marks = Shown(desk, screen.marks);
                         screen.add(desk);
                         if (!screen.grid || desk.Said().Refusal()) return;
                         screen.open(desk);
                         SelectMarked(desk, screen.grid, marks);
                       },
                       remove});
  }
  actions.insert(actions.end(), moreActions.begin(), moreActions.end());
  return actions;
}

const std::vector<WritingScreen>& WritingScreens() {
  static const std::vector<WritingScreen> screens = [] {
    std::vector<WritingScreen> all;
    for (const auto& more : {WritingTabs(), WritingDialogs(), WritingLibraryScreens()})
      all.insert(all.end(), more.begin(), more.end());
    return all;
  }();
  return screens;
}

const std::vector<ScreenAction>& ScreenActions() {
  static const std::vector<ScreenAction> actions = [] {
    std::vector<ScreenAction> all;
    for (const WritingScreen& screen : WritingScreens())
      for (const WritingAction& action : screen.Actions()) all.push_back({&screen, action});
    return all;
  }();
  return actions;
}
