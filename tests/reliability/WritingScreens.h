#pragma once

#include <ostream>
#include <vector>

#include "reliability/ReliabilityDesk.h"

// The screens that write what a user enters: where each is, how it is opened with a record on it, its free text fields
// with their columns, and what it does to a record. The reliability suites run one case for each row of this table or
// for each action of it; WritingScreensTest tells when a screen, a box or a button of the program is missing here.
enum class Trimmed { No, Ends, EndsAndUpper };

struct WritingField {
  const char* box;
  const char* column;
  Trimmed trimmed = Trimmed::Ends;
  Trimmed trimmedOnAdd = trimmed;
  const char* twin = nullptr;  // a box that must hold the same text, as the confirmation of a password
};

using Step = std::function<void(ReliabilityDesk&)>;
// `round` is a number that no other preparation of the case has; texts and codes of a record are made from it.
using Preparation = std::function<void(ReliabilityDesk&, int round)>;

// Where a new record is found again: the text of a control, or the code of a list, in that column of the grid.
struct RowMark {
  int column;
  const char* control;
  bool code = false;
};

struct WritingAction {
  QString name;         // "Update", "Add", "Delete", or what else the screen does
  Preparation prepare;  // all is entered and the press alone is missing; a new record to be deleted is stored before
  Step press;
};

struct WritingScreen {
  const char* name = nullptr;
  const char* place = nullptr;  // the tab, sub-tab or dialog, as Walk names it
  const char* table = nullptr;
  std::vector<WritingField> fields = {};
  // Opens the screen, or goes on with the open one, with the record to be changed in its fields.
  Step open = {};
  Step write = {};          // stores the change; none where records are only added and deleted
  Preparation change = {};  // what a change consists of besides the fields
  // --- New records; the one that `open` shows is the pattern ---
  Step empty = {};                      // where the pattern has to be cleared away first
  std::vector<WritingField> keys = {};  // boxes whose text tells a record from the others
  Preparation choose = {};              // lists that do, and what else a new record needs
  Step add = {};
  const char* grid = nullptr;  // where it is found again before it is deleted; none when it is still in the fields
  std::vector<RowMark> marks = {};
  Step remove = {};
  // --- Peculiarities ---
  QStringList ownColumns = {};  // columns that the screen sets by itself: when, by whom
  QString alsoWrites = {};      // another table that holds the text as well
  QStringList counters = {};    // tables that count on, also for an action that fails afterwards
  bool severalUnits = false;    // one transaction for each table, as the screen's users know it
  std::vector<WritingAction> moreActions = {};

  std::vector<WritingAction> Actions() const;
  // Changes the record on show: the fields and what a change consists of besides.
  void EnterChange(ReliabilityDesk& desk, int round) const;
  // Makes a record that is not there yet and enters it on the open screen.
  void EnterNew(ReliabilityDesk& desk, int round) const;
};

const std::vector<WritingScreen>& WritingScreens();

inline void PrintTo(const WritingScreen& screen, std::ostream* out) {
  *out << screen.name;
}

// An action with the screen that it belongs to: the parameter of the suites that try every action.
struct ScreenAction {
  const WritingScreen* screen;
  WritingAction action;
  std::string Name() const { return screen->name + ("_" + action.name.toStdString()); }
};
const std::vector<ScreenAction>& ScreenActions();

inline void PrintTo(const ScreenAction& action, std::ostream* out) {
  *out << action.Name();
}
