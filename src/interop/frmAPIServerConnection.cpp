#include "interop/frmAPIServerConnection.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "interop/CodeLists.h"
#include "interop/DigitKey.h"

namespace {

const ServerConnection::Facts Dialog = {"frmAPIServerConnection",
                                        "Ostana - API Server Connection",
                                        "cmbILSSystem",
                                        "txtAPIURL",
                                        "ID_API_CONNECT",
                                        "API_ILS_SYSTEM",
                                        "API_CONNECT_TYPE",
                                        "API_HOST_ADDRESS",
                                        "API_HOST_URL",
                                        "API_HOST_PORT",
                                        5,
                                        "frmAPIServerconnection.LoadForm",
                                        "frmAPIServerconnection.cmdOK",
                                        "frmAPIServerconnection.cmdDelete_Click"};

}  // namespace

frmAPIServerConnection::frmAPIServerConnection(QWidget* parent)
    : ServerConnection(Dialog, gclsOF->LibraryId(), parent) {
  BuildControls();
}

void frmAPIServerConnection::BuildControls() {
  txtPort->SetKeyPress(DigitKey);
  rdUseAllLocations->Select(0);
  rdUseAllLocations_Click();
  connect(rdUseAllLocations, &OptionGroup::Click, this, &frmAPIServerConnection::rdUseAllLocations_Click);

  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lblILSSystem", "ILS System:", cmbILSSystem);
  rows.Add("lblConnect", "Connection Type:", cmbConnect);
  rows.Add("lblServerAddress", "Server Address:", txtServerAddress);
  rows.Add("lblAPIURL", "API URL:", txtAPIURL);
  rows.Add(lblPort, txtPort);
  rows.Add("lblUseAllLocations",
           "Use All Locations:", rdUseAllLocations->RowWith({lblUseAllLocationsYes, lblUseAllLocationsNo}));
  rows.Add(lblValidLocations, txtValidLocations);
  Compose(fields);
  resize(620, 320);
}

// The list of locations counts only when not all of them apply.
void frmAPIServerConnection::rdUseAllLocations_Click() {
  lblValidLocations->setEnabled(rdUseAllLocations->IsSet(1));
  txtValidLocations->setEnabled(rdUseAllLocations->IsSet(1));
}

void frmAPIServerConnection::ShowRow(const Recordset& rows) {
  txtValidLocations->SetText(Value(rows, "API_HD_LOCATIONS"));
  rdUseAllLocations->Select(Value(rows, "API_ALL_LOCATIONS") == "Y" ? 0 : 1);
  rdUseAllLocations_Click();
}

void frmAPIServerConnection::TrimFields() {
  txtValidLocations->TrimInPlace();
}

ServerConnection::Columns frmAPIServerConnection::Values() const {
  const bool all = rdUseAllLocations->IsSet(0);
  const QString url = txtAPIURL->Text().isEmpty() ? QString("Null") : Sql::NationalAsItStands(txtAPIURL->Text());
  return {{"API_ILS_SYSTEM", Sql::National(cmbILSSystem->Code())},
          {"API_CONNECT_TYPE", Sql::National(cmbConnect->Code())},
          {"API_HOST_ADDRESS", Sql::National(txtServerAddress->Text())},
          {"API_HOST_URL", url},
          {"API_HOST_PORT", txtPort->Text()},
          {"API_ALL_LOCATIONS", all ? "N'Y'" : "N'N'"},
          {"API_HD_LOCATIONS", all ? QString("Null") : Sql::NationalOr(txtValidLocations->Text(), "Null")}};
}
