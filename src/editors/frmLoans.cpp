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
      statuses_(new LoanStatuses(*this)),
      pages_{policies_, statuses_} {
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
  connect(cmdUpdate, &QPushButton::clicked, this, [this] { Loans_Update(Front()); });
  connect(cmdDelete, &QPushButton::clicked, this, &frmLoans::Loans_Delete);
  connect(cmdClear, &QPushButton::clicked, this, [this] { Front().Clear(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
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
  rights_ = gclsOF->Rights();
  cmdAdd->setEnabled(rights_.add);
  cmdUpdate->setEnabled(rights_.update);
  cmdDelete->setEnabled(rights_.remove);
  cmdClear->setEnabled(rights_.update && rights_.remove);
}

void frmLoans::LoadDataInGrid() {
  Procedure procedure("frmLoans.LoadDataInGrid", this);
  const Hourglass hourglass;
  procedure.Run([this] {
    for (LoansPage* page : pages_) page->Load();
  });
}

void frmLoans::Loans_Tab() {
  LoadDataInGrid();
  Front().Enter();
}

// The questions are those of the main screen's tabs: No takes the user back to the record, freshly loaded.
void frmLoans::sstab6Loans_Click(int previous) {
  Procedure procedure("frmLoans.sstab6Loans_Click", this);
  procedure.Run([&] {
    LoansPage& left = *pages_.at(static_cast<size_t>(previous));
    const bool modified = left.record().Modified() && rights_.update;
    const bool update = CloseButtonUpdate(left);
    const bool goesOn = update ? Loans_Update(left) : !modified;
    if (!goesOn) {
      const QScopedValueRollback back(movingBack_, true);
      sstab6Loans->setCurrentIndex(previous);
      if (update) return;
    }
    Loans_Tab();
  });
}

bool frmLoans::CloseButtonUpdate(LoansPage& page) {
  if (!page.record().Modified() || !rights_.update) return false;
  return Tell(this, "A record has been modified.\nDo you wish to apply the updates before continuing?",
              MessageStyle::Question) != MessageAnswer::No;
}

bool frmLoans::Form_QueryUnload() {
  if (!CloseButtonUpdate(Front())) return false;
  Loans_Update(Front());
  return true;
}

void frmLoans::Loans_Add() {
  if (Procedure("frmLoans.Loans_Add", this).OnFailure(Texts::DatabaseError).Answers([this] { return Front().Add(); }))
    Front().record().Settled();
}

bool frmLoans::Loans_Update(LoansPage& page) {
  const bool done =
      Procedure("frmLoans.Loans_Update", this).OnFailure(Texts::DatabaseError).Answers([&] { return page.Update(); });
  if (done) page.record().Settled();
  return done;
}

void frmLoans::Loans_Delete() {
  if (Procedure("frmLoans.Loans_Delete", this).OnFailure(DeleteFailureText).Answers([this] {
        return Front().Delete();
      }))
    Front().record().Settled();
}
