#pragma once

#include <vector>

#include "shell/Editing.h"
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

  QString GridKey() const override;
  ButtonCondition Condition() const override { return {.add = true, .update = true, .remove = false}; }
  // A stored "N" is an empty cell.
  void LoadGrid() override;
  void Enter() override;
  bool Add() override;
  bool Update() override;
  bool Delete() override { return false; }
  bool Clear() override;

 private:
  enum Column { Marker, Code, Description, FirstFlag };

  void BuildControls();
  void ConnectControls();
  void SelectFirstRow();
  void SelChange();
  // While the code is M, "Active" stands on Yes and is locked.
  void LockMailActive();
  void FlagClicked(size_t flag, int element);
  int ColumnOf(size_t flag) const { return FirstFlag + static_cast<int>(flag); }

  void TrimEntry();
  bool EntryIsNew(const QString& code, const QString& description);
  QString InsertStatement(const QString& code, const QString& description) const;
  QString UpdateStatement(const QString& code, const QString& description) const;

  const MethodTable& method_;
  TextBox* const code_;
  TextBox* const description_;
  std::vector<OptionGroup*> pairs_;  // in the order of the table's flags
  Grid* const grid_;
  FieldList fields_;
};
