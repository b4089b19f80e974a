#pragma once

#include <QString>
#include <QWidget>

#include "core/Record.h"

class frmTabulon;

// Which of the three writing buttons a tab's present condition allows, apart from the user's rights. The menu entries
// follow unless a page says that they are not touched.
struct ButtonCondition {
  bool add = true;
  bool update = true;
  bool remove = true;
  bool menuUntouched = false;  // the entries stay as the rights have them
};

// One tab of the main screen, or one sub-tab of it: a page that loads itself and owns the record in its fields. The
// shell asks the page on show which buttons make sense now; the operations of the tabs are named in the shell's table.
class TabPage : public QWidget {
  Q_OBJECT

 public:
  explicit TabPage(frmTabulon& shell);

  virtual ButtonCondition Condition() const { return {}; }
  // The page's part of ConfigureGrdTable and LoadDataInGrid.
  virtual void ConfigureGrid() {}
  virtual void LoadGrid() {}
  // Both in the frame that all of them have: a failure is told and logged, and the page goes on.
  void ConfigureGrdTable();
  bool LoadDataInGrid();
  // The record in the fields on show; that of the sub-tab in front where a page has sub-tabs.
  virtual Record& CurrentRecord() { return record_; }

 protected:
  frmTabulon& shell() const { return shell_; }
  Record& record() { return record_; }
  // A message with the main form's caption as title.
  int Tell(const QString& text, int style);
  // Exclamation and focus: how most tests of an entry end. Always False.
  bool Refuse(const QString& text, int style, QWidget* focus);

 private:
  frmTabulon& shell_;
  Record record_;
};

// A sub-tab: the tab hands the shell's buttons on to the one in front. Operations answer True when they went through; a
// page without one does nothing.
class SubPage : public TabPage {
  Q_OBJECT

 public:
  using TabPage::TabPage;

  // The page comes to the front.
  virtual void Enter() {}
  // Fields that were left as they stood are compared with the rows that were read anew.
  virtual void CompareAgain() {}
  virtual bool Add() { return false; }
  virtual bool Update() { return false; }
  virtual bool Delete() { return false; }
  virtual bool Clear() { return false; }
};
