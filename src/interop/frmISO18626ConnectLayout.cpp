// Controls of the ISO 18626 connection screen.
#include <QHBoxLayout>

#include "interop/DigitKey.h"
#include "interop/frmISO18626Connect.h"

frmISO18626Connect::frmISO18626Connect(QWidget* parent)
    : Screen("frmISO18626Connect", "Ostana - ISO 18626 Connection Configuration and Selection", parent) {
  BuildControls();
  ConnectControls();
}

void frmISO18626Connect::BuildControls() {
  grdISO18626Connections->setAccessibleName("ISO 18626 connections");
  const std::pair<QString, int> columns[] = {
      {"", 405}, {"Connection Id", 1995}, {"ILL System", 1995}, {"Authentication Type", 2445}, {"Host Address", 2805}};
  for (int col = 0; col < 5; ++col) {
    grdISO18626Connections->SetHeading(col, columns[col].first);
    grdISO18626Connections->SetColWidth(col, columns[col].second);
  }
  txtPort->SetKeyPress(DigitKey);
  lblProcessing->hide();

  auto* const top = new QHBoxLayout;
  top->setSpacing(16);
  top->addWidget(Fields(), 0, Qt::AlignTop);
  top->addWidget(Messages(), 1, Qt::AlignTop);
  QVBoxLayout* const column = Form::Column(this);
  column->addLayout(top);
  column->addWidget(grdISO18626Connections, 1);
  column->addWidget(lblProcessing);
  column->addWidget(Buttons());
  resize(1180, 700);
}

QWidget* frmISO18626Connect::Fields() {
  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lblConnectionID", "Connection Id:", txtConnectionID);
  rows.Add("lblILLSystem", "ILL System:", cmbILLSystem);
  rows.Add("lblVersion", "Protocol Version:", cmbVersion);
  rows.Add("lblAuthType", "Authentication Type:", cmbAuthType);
  rows.Add("lblConnectionType", "Connection Type:", cmbConnectionType);
  rows.Add("lblHostAddress", "Host Address:", txtHostAddress);
  rows.Add("lblUrl", "Host Url:", txtUrl);
  rows.Add("lblPort", "Port:", txtPort);
  Form::Require({txtConnectionID, cmbILLSystem, cmbVersion, cmbAuthType, cmbConnectionType, txtHostAddress, txtPort});
  return fields;
}

QWidget* frmISO18626Connect::Messages() {
  Form::Column(fraRequest, {chkRetryEnabled, chkTransferEnabled})->addStretch();
  Form::Column(fraPatronInfo, {chkPatronInfo, chkPatronEmail, chkPatronAddress})->addStretch();
  Form::Column(fraRequestingAgency, {chkActionCancel, chkActionRenew, chkActionNotification})->addStretch();
  Form::Column(fraSupplyingAgency, {chkReasonRequestResponse, chkReasonNotification})->addStretch();
  auto* const messages = new QWidget(this);
  auto* const grid = new QGridLayout(messages);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(fraRequest, 0, 0);
  grid->addWidget(fraPatronInfo, 1, 0);
  grid->addWidget(fraRequestingAgency, 0, 1);
  grid->addWidget(fraSupplyingAgency, 1, 1);
  return messages;
}

// The frame of the operations stands at the left end and makes room for cmdSelect when that is shown.
QWidget* frmISO18626Connect::Buttons() {
  auto* const inside = new QHBoxLayout(fraOperations);
  inside->setContentsMargins(8, 8, 8, 8);
  for (QPushButton* button : {cmdAdd, cmdUpdate, cmdDelete, btnClear, cmdClose}) inside->addWidget(button);
  cmdSelect->hide();
  auto* const buttons = new QWidget(this);
  auto* const row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(cmdSelect);
  row->addWidget(fraOperations);
  row->addStretch();
  return buttons;
}

void frmISO18626Connect::ConnectControls() {
  record_.Observe([this] { ShowRecordState(); });
  connect(grdISO18626Connections, &Grid::SelChange, this, &frmISO18626Connect::grdISO18626Connections_SelChange);
  connect(chkTransferEnabled, &QCheckBox::clicked, this, &frmISO18626Connect::chkTransferEnabled_Click);
  connect(chkPatronInfo, &QCheckBox::clicked, this, &frmISO18626Connect::chkPatronInfo_Click);
  connect(cmdAdd, &QPushButton::clicked, this, &frmISO18626Connect::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmISO18626Connect::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmISO18626Connect::cmdDelete_Click);
  connect(btnClear, &QPushButton::clicked, this, &frmISO18626Connect::btnClear_Click);
  connect(cmdSelect, &QPushButton::clicked, this, &frmISO18626Connect::cmdSelect_Click);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
}
