#pragma once

#include <QPushButton>

#include "platform/controls/FormLayout.h"
#include "shell/TabPage.h"

// Tab "Loans": the button that opens the loan policies and loan statuses.
class LoansTab : public TabPage {
  Q_OBJECT

 public:
  explicit LoansTab(frmTabulon& shell);
  void Loans_Tab();

 private:
  QPushButton* const cmdLoans = Form::Button(this, "cmdLoans", "Loa&ns", "Loan policies and loan statuses");
};
