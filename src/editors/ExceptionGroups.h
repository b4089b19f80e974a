#pragma once

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

class ExceptionCodes;
class ValidExceptions;

// Sub-tab "Exceptions by User Group": which exception codes the members of an access group may use. A row is nothing
// but its key, so there is no Update.
class ExceptionGroups : public SubPage {
  Q_OBJECT

 public:
  // Two of its messages send the focus to a box of another sub-tab.
  ExceptionGroups(frmTabulon& shell, ExceptionCodes& codes, ValidExceptions& valid);

  void ConfigureGrid() override { form_.Shape(); }
  ButtonCondition Condition() const override;
  void LoadGrid() override { PopulateGrid8dTable(); }
  bool Add() override;
  bool Delete() override;
  bool Clear() override;

  void PopulateAccessGroupCombo();

 private:
  enum Column { Marker, Code, Description };

  void BuildControls();
  void PopulateGrid8dTable();
  // Empty rows up to the grid's usual size, behind the records.
  void Pad();
  bool RefuseRow(int style);
  void cmb8AccessGroup_Click();
  void grd8dTable_SelChange();

  ExceptionCodes& codes_;
  ValidExceptions& valid_;

  CodeComboBox* const cmb8AccessGroup = new CodeComboBox(this, "cmb8AccessGroup");
  CodeComboBox* const cmb8dException = new CodeComboBox(this, "cmb8dException");
  Grid* const grd8dTable = new Grid(this, "grd8dTable", 3);
  GridForm form_{grd8dTable, record()};
};
