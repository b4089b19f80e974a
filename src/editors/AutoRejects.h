#pragma once

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

// Tab "Auto Rejects": the lists by which a request is rejected automatically when a field of it holds a listed value.
// Which lists a site has is told by section "Tables" of the settings file; each is a table of its own.
class AutoRejects : public TabPage {
  Q_OBJECT

 public:
  explicit AutoRejects(frmTabulon& shell);

  void AutoRejects_Tab();
  bool AutoRejects_Add();
  bool AutoRejects_Update();
  bool AutoRejects_Delete();
  bool AutoRejects_Clear();

  void ConfigureGrid() override { form_.Shape(); }
  // Without a list there is nothing to write to.
  ButtonCondition Condition() const override;
  void LoadGrid() override;

 private:
  enum Column { Marker, ListedValue, RejectType, ExceptionCode };

  void BuildControls();
  void ConnectControls();
  void FillTables();
  void FillRejectTypes();
  void cmb4Tables_Click();
  void cmb4RejectType_Click();
  void grd4AutoReject_SelChange();

  bool TableSelected() const { return cmb4Tables->Index() > 0; }
  QString TableName() const { return cmb4Tables->Code(); }
  QString FailureLine(const QString& verb) const;
  bool RejectTypeIsThatOf(int row) const;
  // Nothing is entered; the list of the table stays.
  void EmptyEntry();
  bool IsUpdate(int row);
  bool IsInAnotherRow(int row) const;

  QStringList gstrRejectFields;    // field name of each entry of cmb4Tables, by list index
  QString gstrField, gstrExcCode;  // names of the two columns, of the recordset that filled the grid

  CodeComboBox* const cmb4Tables = new CodeComboBox(this, "cmb4Tables");  // the code is the table's name
  TextBox* const txt4Code = new TextBox(this, "txt4Code");
  CodeComboBox* const cmb4RejectType = new CodeComboBox(this, "cmb4RejectType");
  Grid* const grd4AutoReject = new Grid(this, "grd4AutoReject", 4);
  GridForm form_{grd4AutoReject, record()};
};
