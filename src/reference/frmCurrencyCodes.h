#pragma once

#include <QLabel>
#include <QPushButton>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/Editing.h"
#include "shell/Screen.h"

// "Currency Codes": the currencies and their exchange rates against the one base currency. The base is moved by a
// click on the grid's Base column and stored by Update.
class frmCurrencyCodes : public Screen {
  Q_OBJECT

 public:
  explicit frmCurrencyCodes(QWidget* parent = nullptr);

  void Form_Activate() override;

 protected:
  void Form_Load() override { PopulateForm(); }
  void CloseRequested() override { cmdClose_Click(); }

 private:
  enum Column { Marker, Code, Description, Country, Base, Exchange, Symbol };

  void BuildControls();
  void ConnectControls();
  void PopulateForm();
  void ShowRow(int row);

  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClose_Click();
  void grdCurrencyCode_SelChange();
  void grdCurrencyCode_Click(int row, int col);

  // Tests of an entry; each tells what it refuses and sets the focus.
  bool FieldsAreComplete();
  bool IsNewRecord();
  bool IsKnownRecord();

  QString NationalUpdate() const;
  QString PlainUpdate() const;
  QString RateInSql() const;
  void WriteGridRow(int row);

  // The base mark of the grid.
  int BaseRow() const;
  void MarkBase(int row);
  void ClearStoredBase();
  // What keeps exactly one base in the table when a row has been deleted.
  bool StoreBaseAfterDelete(bool wasBase, const QString& successor);

  // The record on the controls was edited.
  bool mbRecordChanged() const { return record_.Modified(); }

  Record record_;
  bool mbBaseChanged = false;  // the base mark was moved in the grid and is not stored yet
  bool mbToldEmpty = false;    // the empty table has been told in this showing
  int mintCurrentRow = 0;      // the row on the controls
  FieldList fields_;

  QLabel* const lblCurrencyCode = Form::Label(this, "lblCurrencyCode", "Currency C&ode:");
  TextBox* const txtCurrencyCode = new TextBox(this, "txtCurrencyCode", 3);
  QLabel* const lblDescription = Form::Label(this, "lblDescription", "D&escription:");
  TextBox* const txtDescription = new TextBox(this, "txtDescription", 50);
  QLabel* const lblCountry = Form::Label(this, "lblCountry", "Cou&ntry:");
  TextBox* const txtCountry = new TextBox(this, "txtCountry", 50);
  QLabel* const lblExchangeRate = Form::Label(this, "lblExchangeRate", "E&xchange Rate:");
  TextBox* const txtExchangeRate = new TextBox(this, "txtExchangeRate", 10);
  QLabel* const lblSymbol = Form::Label(this, "lblSymbol", "&Symbol:");
  CodeComboBox* const cmbSymbol = new CodeComboBox(this, "cmbSymbol");
  Grid* const grdCurrencyCode = new Grid(this, "grdCurrencyCode", 7);
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
