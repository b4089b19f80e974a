#pragma once

#include <QPushButton>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "shell/Screen.h"

// "ISO Levels of Service": which service level of this system stands for an ISO service symbol. The rows are fixed;
// only the level changes. An update writes the whole table anew in one transaction.
class frmISOServiceLevels : public Screen {
  Q_OBJECT

 public:
  explicit frmISOServiceLevels(QWidget* parent = nullptr);

  void Form_Activate() override;

 protected:
  void Form_Load() override { PopulateForm(); }
  void CloseRequested() override { cmdClose_Click(); }

 private:
  // The level is held by its code; the box shows its description.
  enum Column { Marker, ServiceSymbol, Handling, Search, ServiceLevel };

  void BuildControls();
  void PopulateForm();
  void ShowRow(int row);
  void cmbServiceLevel_Click();
  void grdServiceLevel_SelChange();
  void cmdUpdate_Click();
  void cmdClose_Click();
  // Deletes all rows and inserts those of the grid.
  void RewriteTable();

  // A level was changed in the grid, the working copy of the table.
  bool mbRecordChanged() const { return record_.Modified(); }

  Record record_;
  bool mbToldEmpty = false;  // the empty table has been told in this showing

  CodeComboBox* const cmbServiceLevel = new CodeComboBox(this, "cmbServiceLevel");
  Grid* const grdServiceLevel = new Grid(this, "grdServiceLevel", 5);
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
