#pragma once

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

// Sub-tab "Billing Rate Codes": the billing rates that the rate tables price.
class BillingRates : public TabPage {
  Q_OBJECT

 public:
  // `codeOfRateTables` is the code box of the other sub-tab: an empty code sends the focus there.
  BillingRates(frmTabulon& shell, QWidget* codeOfRateTables);

  bool Add();
  bool Update();
  bool Delete();
  void Clear();
  void SelectFirstRow();
  void FocusFirstInput() { txt7BillingCode->setFocus(); }
  // Code of the current row; empty without one.
  QString CurrentCode() const;
  bool HasCurrentRow() const { return grd7BillingRate->Row() > 0; }

  void ConfigureGrid() override { form_.Shape(); }
  void LoadGrid() override;

 private:
  void BuildControls();
  void ConnectControls();
  void grd7BillingRate_SelChange();
  int RowOf(const QString& code) const;
  // "Y", "N" or empty.
  QString InvoiceFlagLetter() const { return cmb7InvoiceFlag->Code(); }

  QWidget* const codeOfRateTables_;
  TextBox* const txt7BillingCode = new TextBox(this, "txt7BillingCode", 1);
  TextBox* const txt7BillingDescription = new TextBox(this, "txt7BillingDescription", 50);
  CodeComboBox* const cmb7InvoiceFlag = new CodeComboBox(this, "cmb7InvoiceFlag");
  Grid* const grd7BillingRate = new Grid(this, "grd7BillingRate", 4);
  GridForm form_{grd7BillingRate, record()};
};
