#include "editors/Invoicing.h"

#include <QSignalBlocker>

#include "core/ModuleState.h"
#include "editors/BillingRates.h"
#include "editors/RateTables.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

Invoicing::Invoicing(frmTabulon& shell) : TabPage(shell) {
  rates_ = new RateTables(shell);
  billing_ = new BillingRates(shell, rates_->CodeBox());
  sstab7Invoicing->setObjectName("sstab7Invoicing");
  sstab7Invoicing->addTab(rates_, "Invoicing Tables");
  sstab7Invoicing->addTab(billing_, "Billing Rate Codes");
  Form::Column(this, {sstab7Invoicing});
  connect(sstab7Invoicing, &QTabWidget::currentChanged, this, &Invoicing::sstab7invoicing_Click);
}

TabPage& Invoicing::Current() const {
  if (OnBillingRates()) return *billing_;
  return *rates_;
}

ButtonCondition Invoicing::Condition() const {
  return Current().Condition();
}
void Invoicing::ConfigureGrid() {
  Current().ConfigureGrid();
}
void Invoicing::LoadGrid() {
  Current().LoadGrid();
}

void Invoicing::Invoicing_Tab() {
  {
    const QSignalBlocker quiet(sstab7Invoicing);
    sstab7Invoicing->setCurrentIndex(InvoicingTables);
  }
  gstrButtonMode = "F";
  rates_->Reset();
  shell().EnableButtons(gstrButtonMode);
  shell().buttonState();
}

void Invoicing::sstab7invoicing_Click() {
  Procedure procedure("frmTabulon.sstab7invoicing_Click", this);
  procedure.Run([this] {
    if (OnBillingRates()) {
      gstrButtonMode = "F";
      ConfigureGrdTable();
      LoadDataInGrid();
      billing_->SelectFirstRow();
    } else if (billing_->HasCurrentRow() && rates_->HasBillingRates()) {
      // A billing rate chosen there carries over.
      rates_->TakeBillingRate(billing_->CurrentCode());
    } else {
      Invoicing_Clear();
      Invoicing_Tab();
    }
    shell().EnableButtons(gstrButtonMode);
    shell().buttonState();
  });
}

bool Invoicing::Invoicing_Add() {
  return Procedure("frmTabulon.Invoicing_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    return OnBillingRates() ? billing_->Add() : rates_->Add();
  });
}

bool Invoicing::Invoicing_Update() {
  return Procedure("frmTabulon.Invoicing_Update", this).OnFailure(Texts::DatabaseError).Answers([&] {
    return OnBillingRates() ? billing_->Update() : rates_->Update();
  });
}

bool Invoicing::Invoicing_Delete() {
  return Procedure("frmTabulon.Invoicing_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    return OnBillingRates() ? billing_->Delete() : rates_->Delete();
  });
}

bool Invoicing::Invoicing_Clear() {
  if (OnBillingRates()) {
    billing_->Clear();
    billing_->FocusFirstInput();
  } else {
    rates_->Clear();
    rates_->FocusFirstInput();
  }
  return true;
}
