#pragma once

#include <QPushButton>
#include <QTabWidget>
#include <array>

#include "core/UserRights.h"
#include "platform/controls/FormLayout.h"
#include "shell/Screen.h"

class LoanPolicies;
class LoanStatuses;
class LoansPage;

// "Ostana - Configure Loans": the loan policies and the loan statuses, each a sub-tab with a page of its own. The
// form's buttons act on the sub-tab on show.
class frmLoans : public Screen {
  Q_OBJECT

 public:
  explicit frmLoans(QWidget* parent = nullptr);

  // Reads the rows of both pages.
  void LoadDataInGrid();

 protected:
  void Form_Load() override;
  bool Form_QueryUnload() override;

 private:
  void BuildControls();
  void ConnectControls();
  void ApplyRights();
  void Loans_Tab();
  void sstab6Loans_Click(int previous);
  // Whether the user wants the changed record of the page to be written before it is left.
  bool CloseButtonUpdate(LoansPage& page);
  void Loans_Add();
  bool Loans_Update(LoansPage& page);
  void Loans_Delete();
  LoansPage& Front() const { return *pages_.at(static_cast<size_t>(subTab_)); }

  FunctionRights rights_;
  int subTab_ = 0;  // the one on show
  bool movingBack_ = false;

  QTabWidget* const sstab6Loans = new QTabWidget(this);
  LoanPolicies* const policies_;
  LoanStatuses* const statuses_;
  const std::array<LoansPage*, 2> pages_;  // in the order of the sub-tabs
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
