#include "editors/frmLoans.h"

#include <QScopedValueRollback>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/WebServiceSettings.h"
#include "editors/LoanPolicies.h"
#include "editors/LoanStatuses.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

frmLoans::frmLoans(QWidget* parent)
    : Screen("frmLoans", "Ostana - Configure Loans", parent),
      policies_(new LoanPolicies(*this)),
      statuses_(new LoanStatuses(*this)) {
  BuildControls();
  ConnectControls();
}

void frmLoans::BuildControls() {
  sstab6Loans->setObjectName("sstab6Loans");
  sstab6Loans->addTab(policies_, "Loan Policy");
  sstab6Loans->addTab(statuses_, "Loan Status");
  QVBoxLayout* const column = Form::Column(this, {sstab6Loans});
  column->addLayout(Form::ButtonRow({nullptr, cmdAdd, cmdUpdate, cmdDelete, cmdClear, cmdClose}));
  resize(1040, 680);
}

void frmLoans::ConnectControls() {
  connect(sstab6Loans, &QTabWidget::currentChanged, this, [this](int index) {
    const int previous = std::exchange(subTab_, index);
    if (!movingBack_) sstab6Loans_Click(previous);
  });
  connect(cmdAdd, &QPushButton::clicked, this, &frmLoans::Loans_Add);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmLoans::Loans_Update);
  connect(cmdDelete, &QPushButton::clicked, this, &frmLoans::Loans_Delete);
  connect(cmdClear, &QPushButton::clicked, this, &frmLoans::ClearFields);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
}

int frmLoans::Tell(const QString& text, int style) {
  return ShowMessage(text, style, Caption(), {}, this);
}

bool frmLoans::Refuse(const QString& text, int style, QWidget* focus) {
  Tell(text, style);
  if (focus) focus->setFocus();
  return false;
}

void frmLoans::Form_Load() {
  Procedure("frmLoans.Form_Load").Step([this] {
    ApplyRights();
    statuses_->ShowCharge(gbUseWebService);
    Loans_Tab();
  });
}

// A right that is missing on the main screen is missing here.
void frmLoans::ApplyRights() {
  cmdAdd->setEnabled(gclsOF->CanAdd());
  cmdUpdate->setEnabled(gclsOF->CanUpdate());
  cmdDelete->setEnabled(gclsOF->CanDelete());
  cmdClear->setEnabled(gclsOF->CanUpdate() && gclsOF->CanDelete());
}

void frmLoans::LoadDataInGrid() {
  Procedure procedure("frmLoans.LoadDataInGrid", this);
  const Hourglass hourglass;
  procedure.Run([this] {
    policies_->Load();
    statuses_->Load();
  });
}

void frmLoans::Loans_Tab() {
  LoadDataInGrid();
  if (OnPolicies())
    policies_->Enter();
  else
    statuses_->Enter();
  mbRecordModified = false;
}

// The questions are those of the main screen's tabs: No takes the user back to the record, freshly loaded.
void frmLoans::sstab6Loans_Click(int previous) {
  Procedure procedure("frmLoans.sstab6Loans_Click", this);
  procedure.Run([&] {
    const bool modified = mbRecordModified && cmdUpdate->isEnabled();
    const bool update = CloseButtonUpdate();
    const bool goesOn = update ? UpdateOn(previous) : !modified;
    if (!goesOn) {
      const QScopedValueRollback back(movingBack_, true);
      sstab6Loans->setCurrentIndex(previous);
      if (update) return;
    }
    Loans_Tab();
  });
}

bool frmLoans::CloseButtonUpdate() {
  if (!mbRecordModified || !cmdUpdate->isEnabled()) return false;
  return Tell("A record has been modified.\nDo you wish to apply the updates before continuing?",
              MessageStyle::Question) != MessageAnswer::No;
}

bool frmLoans::Form_QueryUnload() {
  if (!CloseButtonUpdate()) return false;
  Loans_Update();
  return true;
}

void frmLoans::Loans_Add() {
  Procedure procedure("frmLoans.Loans_Add", this);
  procedure.OnFailure(Texts::DatabaseError).Run([this] {
    if (OnPolicies() ? policies_->Add() : statuses_->Add()) mbRecordModified = false;
  });
}

bool frmLoans::UpdateOn(int subTab) {
  bool done = false;
  Procedure procedure("frmLoans.Loans_Update", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    done = subTab == LoanPolicy ? policies_->Update() : statuses_->Update();
    if (done) mbRecordModified = false;
  });
  return done;
}

void frmLoans::Loans_Delete() {
  Procedure procedure("frmLoans.Loans_Delete", this);
  procedure.OnFailure(DeleteFailureText).Run([this] {
    if (OnPolicies() ? policies_->Delete() : statuses_->Delete()) mbRecordModified = false;
  });
}

void frmLoans::ClearFields() {
  if (OnPolicies())
    policies_->Clear();
  else
    statuses_->Clear();
  mbRecordModified = false;
}
