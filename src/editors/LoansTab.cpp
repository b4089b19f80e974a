#include "editors/LoansTab.h"

#include "core/ModuleState.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"
#include "shell/frmTabulon.h"

LoansTab::LoansTab(frmTabulon& shell) : TabPage(shell) {
  auto* const row = new QHBoxLayout;
  row->addWidget(cmdLoans);
  row->addStretch();
  QVBoxLayout* const column = Form::Column(this);
  column->addLayout(row);
  column->addStretch();
  connect(cmdLoans, &QPushButton::clicked, this,
          [this] { Procedure("frmTabulon.cmdLoans_Click").Step([this] { ShowModal("frmLoans", this); }); });
}

void LoansTab::Loans_Tab() {
  shell().EnableButtons("O");
  cmdLoans->setFocus();
}
