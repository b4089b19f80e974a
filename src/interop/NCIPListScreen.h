#pragma once

#include "core/Record.h"
#include "interop/ListRewrite.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/Messages.h"
#include "shell/Screen.h"

// What the two small NCIP lists share. Rows are edited in a grid in memory: Add, Update and Delete touch the grid
// alone, and closing replaces the rows of the table in one transaction. Column 1 of the grid is the key.
class NCIPListScreen : public Screen {
  Q_OBJECT

 public:
  enum Column { Key = 1 };

 protected:
  NCIPListScreen(const QString& formName, const QString& caption, Grid* grid, QWidget* parent);

  void Form_Load() override;

  // --- What a list says of itself ---
  // Adds a row for each record of the table.
  virtual void ReadOstanaInfo() = 0;
  // The controls take the cells of the row.
  virtual void ShowRow(int row) = 0;
  virtual void EmptyControls() = 0;
  // What Clear does beyond that.
  virtual void ResetControls() {}
  // Tests the controls and puts the cells of the row together, from column 1 on. False when one was refused.
  virtual bool CellsOnScreen(QStringList& cells, bool forUpdate) = 0;
  virtual TextBox* KeyBox() const = 0;
  virtual QString DuplicateText(const QString& key) const = 0;
  virtual ListRewrite Rewrite() const = 0;

  // The grid under the fields, the buttons under the grid; Tab leads the same way.
  void Compose(QWidget* fields);
  // The frame of an event procedure.
  void Run(const QString& handler, const std::function<void()>& body);

  Grid* const grid_;
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "C&lear");
  QPushButton* const cmdCancel = Form::Button(this, "cmdCancel", "&Cancel");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "Cl&ose");

 private:
  void SelectRow(int row);
  void ApplyRights();
  void Grid_SelChange();
  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  void cmdClose_Click();

  // The list differs from the table.
  bool mbListChanged() const { return list_.Modified(); }

  Record list_;
};
