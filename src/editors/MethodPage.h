#pragma once

#include <vector>

#include "shell/GridForm.h"
#include "shell/TabPage.h"

class Grid;
class OptionGroup;
class TextBox;
struct MethodTable;

// The sub-tab of one table of methods. Methods are added and changed here, never deleted.
class MethodPage : public SubPage {
  Q_OBJECT

 public:
  // `method` lives as long as the program.
  MethodPage(frmTabulon& shell, const MethodTable& method);

  ButtonCondition Condition() const override { return {.add = true, .update = true, .remove = false}; }
  void ConfigureGrid() override { form_.Shape(); }
  // A stored "N" is an empty cell.
  void LoadGrid() override;
  void Enter() override;
  bool Add() override;
  bool Update() override;
  bool Clear() override;

 private:
  void BuildControls();
  void ConnectControls();
  void SelectFirstRow();
  void SelChange();
  // While the code is M, "Active" stands on Yes and is locked.
  void LockMailActive();
  int RowOf(const QString& code) const;

  bool EntryIsNew(const QString& code, const QString& description);
  QString InsertStatement(const QString& code, const QString& description) const;
  QString UpdateStatement(const QString& code, const QString& description) const;

  const MethodTable& method_;
  TextBox* const code_;
  TextBox* const description_;
  std::vector<OptionGroup*> pairs_;  // in the order of the table's flags
  Grid* const grid_;
  GridForm form_;
};
