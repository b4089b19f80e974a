#pragma once

#include <QString>
#include <QWidget>

class frmTabulon;
class Grid;

// Which of the three writing buttons a tab's present condition allows, apart from the user's rights. The menu entries
// follow unless a page says that they are not touched.
struct ButtonCondition {
  bool add = true;
  bool update = true;
  bool remove = true;
  bool menuUntouched = false;  // the entries stay as the rights have them
};

// One tab of the main screen. The shell asks it which grid layout is in force and which buttons make sense now; its
// operations are named in the shell's table of tabs.
class TabPage : public QWidget {
  Q_OBJECT

 public:
  explicit TabPage(frmTabulon& shell);

  // Key of the layout and rows in force (GridTable.h); empty when there is none.
  virtual QString GridKey() const { return {}; }
  virtual ButtonCondition Condition() const { return {}; }
  // The tab's part of ConfigureGrdTable and LoadDataInGrid; by default the grid table's row of GridKey.
  virtual void ConfigureGrid();
  virtual void LoadGrid();
  // The grid that GridKey means.
  Grid* CurrentGrid() const;

 protected:
  frmTabulon& shell() const { return shell_; }
  // A message with the main form's caption as title.
  int Tell(const QString& text, int style);
  // Exclamation and focus: how most tests of an entry end. Always False.
  bool Refuse(const QString& text, int style, QWidget* focus);

 private:
  frmTabulon& shell_;
};
