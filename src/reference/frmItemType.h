#pragma once

#include <QPushButton>
#include <QTabWidget>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

// "Item Type": the kinds of supplied item with an optional charge, and which user groups may use which of them.
class frmItemType : public Screen {
  Q_OBJECT

 public:
  explicit frmItemType(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;
  bool Form_Unload() override;

 private:
  enum Tab { ItemTypeTab, AccessTab };
  enum Column { Marker, ItemType, Charge, Fixed, Description };
  enum Answer { No, Yes };  // elements of optFixedCharge

  void BuildControls();
  void ConnectControls();
  void LoadDataInGrid();
  void PopulateAccessGroupCombo();
  void FillAccessItemTypes();
  // Types of the chosen group.
  void PopulateItemTypeGrid();
  void sstabItemType_Click(int tab);
  void grdItemType_SelChange();
  void grdAccessItemType_SelChange();

  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void CloseButtonUpdate();

  void AddItemType();
  void DeleteItemType();
  void AddAccess();
  void DeleteAccess();

  // Tests of the first tab; each tells what it refuses and sets the focus.
  bool CodeIsComplete();
  bool DescriptionIsGiven();
  bool ChargeMayStay();

  bool RowIsOnScreen(int row) const;
  void WriteRow(int row);
  // Both NULL without a charge; `prefix` stands before the flag's literal.
  QString ChargeInSql() const;
  QString FixedInSql(const QString& prefix) const;
  QString FixedFlag() const;

  bool OnItemTypeTab() const { return sstabItemType->currentIndex() == ItemTypeTab; }

  // The record on the controls was edited.
  bool mbRecordChanged() const { return record_.Modified(); }

  Record record_;
  bool mbItemTypesChanged = false;  // since the second tab's list was filled

  QTabWidget* const sstabItemType = new QTabWidget(this);
  TextBox* const txtItemType = new TextBox(this, "txtItemType", 3);
  TextBox* const txtCharge = new TextBox(this, "txtCharge", 6);
  OptionGroup* const optFixedCharge = new OptionGroup(this, "optFixedCharge", {"No", "Yes"});
  TextBox* const txtDescription = new TextBox(this, "txtDescription", 50);
  Grid* const grdItemType = new Grid(this, "grdItemType", 5);
  CodeComboBox* const cmbAccessGroup = new CodeComboBox(this, "cmbAccessGroup");
  CodeComboBox* const cmbAccessItemType = new CodeComboBox(this, "cmbAccessItemType");
  Grid* const grdAccessItemType = new Grid(this, "grdAccessItemType", 2);
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
