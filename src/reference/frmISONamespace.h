#pragma once

#include <QLabel>
#include <QPushButton>

#include "core/Record.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/Editing.h"
#include "shell/Screen.h"

// "ISO Namespace Registration": the registered namespaces, each with the name of the field it applies to.
class frmISONamespace : public Screen {
  Q_OBJECT

 public:
  explicit frmISONamespace(QWidget* parent = nullptr);

  void Form_Activate() override;

 protected:
  void Form_Load() override { PopulateForm(); }
  void CloseRequested() override { cmdClose_Click(); }

 private:
  enum Column { Marker, Namespace, Description, FieldName };

  void BuildControls();
  void ConnectControls();
  void PopulateForm();
  void ShowRow(int row);
  void grdNameSpace_SelChange();

  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClose_Click();

  // Tests of an entry; each tells what it refuses and sets the focus.
  bool IsNewRecord();
  bool IsKnownRecord();
  bool MayBeUpdated();
  bool MayBeUpdatedOnClose();

  // The record on the controls was edited.
  bool mbRecordChanged() const { return record_.Modified(); }

  Record record_;
  bool mbToldEmpty = false;  // the empty table has been told in this showing
  int mintCurrentRow = 0;    // the row on the controls
  FieldList fields_;

  TextBox* const txtNameSpace = new TextBox(this, "txtNameSpace", 10);
  TextBox* const txtDescription = new TextBox(this, "txtDescription", 50);
  TextBox* const txtFieldName = new TextBox(this, "txtFieldName", 20);
  Grid* const grdNameSpace = new Grid(this, "grdNameSpace", 4);
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
