#include "editors/Miscellaneous.h"

#include <QGridLayout>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/WebServiceSettings.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"
#include "shell/frmTabulon.h"

Miscellaneous::Miscellaneous(frmTabulon& shell) : TabPage(shell) {
  auto* const grid = new QGridLayout;
  QPushButton* const buttons[] = {cmdPatronMessages,   cmdGeneralMessages,   cmdISO18626Connection, cmdServiceCode,
                                  cmdSuppliedItemType, cmd11LevelsOfService, cmd11Namespace,        cmd11CurrencyCode};
  for (int index = 0; index < 8; ++index) {
    buttons[index]->setMinimumSize(buttons[index]->sizeHint() * 1.2);
    grid->addWidget(buttons[index], index / 2, index % 2);
  }
  auto* const row = new QHBoxLayout;
  row->addLayout(grid);
  row->addStretch();
  QVBoxLayout* const column = Form::Column(this);
  column->addLayout(row);
  column->addStretch();

  Opens(cmdPatronMessages, "frmNotifyPatronMessages");
  Opens(cmdGeneralMessages, "frmGeneralMessages");
  Opens(cmdServiceCode, "frmServiceCode");
  Opens(cmdSuppliedItemType, "frmItemType");
  Opens(cmd11LevelsOfService, "frmISOServiceLevels");
  Opens(cmd11Namespace, "frmISONamespace");
  Opens(cmd11CurrencyCode, "frmCurrencyCodes");
  // Plain maintenance: no connection is handed in, none is taken back.
  connect(cmdISO18626Connection, &QPushButton::clicked, this, [this] {
    gstrISO18626ConnectionId.clear();
    gbISO18626SelectionMode = false;
    Procedure("frmTabulon.cmdISO18626Connection_Click").Step([this] { ShowModal("frmISO18626Connect", this); });
  });
}

void Miscellaneous::Opens(QPushButton* button, FormName formName) {
  connect(button, &QPushButton::clicked, this, [this, button, formName] {
    Procedure("frmTabulon." + button->objectName() + "_Click").Step([this, formName] { ShowModal(formName, this); });
  });
}

void Miscellaneous::Miscellaneous_Tab() {
  if (!gbUseWebService) {
    cmdSuppliedItemType->setEnabled(false);
    cmdServiceCode->setEnabled(false);
    const QString shown =
        gclsOF->ReadProfileString("Login", "DisplayItemTypeInLoanDocument", gclsOF->SystemFile("Ostana.INI"));
    if (shown == "Y") cmdSuppliedItemType->setEnabled(true);
  }
  shell().EnableButtons("O");
}
