#pragma once

#include <QKeySequence>
#include <QObject>
#include <vector>

class QAction;
class QShortcut;

// The keys that lead through a day's work in a window with a list and fields: Ctrl+S stores (Update), Ctrl+Shift+S
// adds, Ctrl+N empties the fields, Ctrl+Up and Ctrl+Down go to the record before and after while the focus stays in its
// field. They act as a click would: the field that is left is checked first, and a button that is off does nothing.
// Delete has none, so that no slip of a finger deletes.
class RoundKeys : public QObject {
  Q_OBJECT

 public:
  explicit RoundKeys(QWidget& window);

  // The keys told beside an entry of a menu; they act by this class.
  static void Tell(QAction& entry, const QKeySequence& keys);

 private:
  void Press(const std::vector<const char*>& names);  // the first of them that there is
  void GoToNeighbour(int step);
  void Follow(QWidget* focus);

  QWidget& window_;
  QShortcut* before_;
  QShortcut* after_;
};
