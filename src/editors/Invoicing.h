#pragma once

#include <QTabWidget>

#include "shell/TabPage.h"

class BillingRates;
class RateTables;

// Tab "Invoicing": the rate tables and the billing rate codes they price, each a sub-tab with a page of its own. The
// shell's buttons act on the sub-tab on show.
class Invoicing : public TabPage {
  Q_OBJECT

 public:
  explicit Invoicing(frmTabulon& shell);

  void Invoicing_Tab();
  bool Invoicing_Add();
  bool Invoicing_Update();
  bool Invoicing_Delete();
  bool Invoicing_Clear();

  Record& CurrentRecord() override { return Current().CurrentRecord(); }
  ButtonCondition Condition() const override;
  void ConfigureGrid() override;
  void LoadGrid() override;

 private:
  enum SubTab { InvoicingTables, BillingRateCodes };

  void sstab7invoicing_Click();
  bool OnBillingRates() const { return sstab7Invoicing->currentIndex() == BillingRateCodes; }
  TabPage& Current() const;

  QTabWidget* const sstab7Invoicing = new QTabWidget(this);
  RateTables* rates_ = nullptr;
  BillingRates* billing_ = nullptr;
};
