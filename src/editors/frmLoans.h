#pragma once

#include <QPushButton>
#include <QTabWidget>

#include "platform/controls/FormLayout.h"
#include "shell/Screen.h"

class LoanPolicies;
class LoanStatuses;

// "Ostana - Configure Loans": the loan policies and the loan statuses, each a sub-tab with a page of its own. The
// form's buttons act on the sub-tab on show.
class frmLoans : public Screen {
  Q_OBJECT

 public:
  explicit frmLoans(QWidget* parent = nullptr);

  // What the two pages ask of their form.
  void LoadDataInGrid();
  int Tell(const QString& text, int style);
  // A message, then the focus; always False.
  bool Refuse(const QString& text, int style, QWidget* focus);
  void SetRecordModified(bool modified) { mbRecordModified = modified; }

 protected:
  void Form_Load() override;
  bool Form_QueryUnload() override;

 private:
  enum SubTab { LoanPolicy, LoanStatus };

  void BuildControls();
  void ConnectControls();
  void ApplyRights();
  void Loans_Tab();
  void sstab6Loans_Click(int previous);
  bool CloseButtonUpdate();
  void Loans_Add();
  void Loans_Update() { UpdateOn(sstab6Loans->currentIndex()); }
  bool UpdateOn(int subTab);
  void Loans_Delete();
  void ClearFields();
  bool OnPolicies() const { return sstab6Loans->currentIndex() == LoanPolicy; }

  bool mbRecordModified = false;
  int subTab_ = LoanPolicy;  // the one on show
  bool movingBack_ = false;

  QTabWidget* const sstab6Loans = new QTabWidget(this);
  LoanPolicies* const policies_;
  LoanStatuses* const statuses_;
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
