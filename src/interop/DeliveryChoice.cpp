#include "interop/DeliveryChoice.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "interop/CodeLists.h"
#include "platform/controls/FormLayout.h"

namespace {

// Kind of ValidateField by which the address of a method is tested; empty where it is not.
QString KindOfAddress(const QString& method, const QString& address) {
  if (method == "A") return address.contains('@') ? "E" : "A";
  if (method == "V") return "A";
  if (method == "E" || method == "S" || method == "W") return "E";
  return {};
}

// Methods that go to an address at all.
bool HasAddress(const QString& method) {
  static const QStringList methods = {"A", "V", "E", "S", "W", "F", "P"};
  return methods.contains(method);
}

}  // namespace

DeliveryChoice::DeliveryChoice(QWidget* parent, const QString& kind, const QString& caption, const Names& names)
    : QGroupBox(caption, parent),
      kind_(kind),
      rdAllow_(new OptionGroup(this, {{names.allowYes, "Yes"}, {names.allowNo, "No"}})),
      rdDeliverySelect_(new OptionGroup(this, {{names.selectYes, "Yes"}, {names.selectNo, "No"}})),
      cmbDeliveryMethod_(new CodeComboBox(this, names.method)),
      txtDeliveryAddress_(new TextBox(this, names.address, 80)),
      cmbPickupLocation_(new CodeComboBox(this, names.pickup)) {
  setObjectName("fraDelivery" + kind);
  BuildControls();
  connect(rdAllow_, &OptionGroup::Click, this, &DeliveryChoice::rdAllow_Click);
  connect(cmbDeliveryMethod_, &CodeComboBox::Click, this, &DeliveryChoice::cmbDeliveryMethod_Click);
  connect(rdAllow_, &OptionGroup::Click, this, &DeliveryChoice::Changed);
  connect(rdDeliverySelect_, &OptionGroup::Click, this, &DeliveryChoice::Changed);
  connect(cmbDeliveryMethod_, &CodeComboBox::Click, this, &DeliveryChoice::Changed);
  connect(cmbPickupLocation_, &CodeComboBox::Click, this, &DeliveryChoice::Changed);
  connect(txtDeliveryAddress_, &TextBox::Change, this, &DeliveryChoice::Changed);
}

void DeliveryChoice::BuildControls() {
  Form::Rows rows(this);
  rows.Add("lblAllow" + kind_, "Allow " + kind_ + ":", rdAllow_->Row());
  rows.Add("lblDeliverySelect" + kind_, "Delivery Select:", rdDeliverySelect_->Row());
  rows.Add("lblDeliveryMethod" + kind_, "Delivery Method:", cmbDeliveryMethod_);
  rows.Add("lblDeliveryAddress" + kind_, "Delivery Address:", txtDeliveryAddress_, cmbPickupLocation_);
  rows.Stretch();
  cmbPickupLocation_->setAccessibleName("Pickup location");
  cmbPickupLocation_->hide();
}

// --- Rules between the controls ---

void DeliveryChoice::rdAllow_Click() {
  const bool allowed = rdAllow_->IsSet(0);
  EnableChoice(allowed);
  if (allowed) return;
  cmbDeliveryMethod_->SetIndex(0);
  cmbDeliveryMethod_Click();
}

void DeliveryChoice::EnableChoice(bool enabled) {
  rdDeliverySelect_->SetEnabled(enabled);
  cmbDeliveryMethod_->setEnabled(enabled);
  txtDeliveryAddress_->setEnabled(enabled);
  cmbPickupLocation_->setEnabled(enabled);
}

void DeliveryChoice::cmbDeliveryMethod_Click() {
  ShowAddress(PickupIsChosen());
  if (cmbDeliveryMethod_->IsEmptyOrNone()) txtDeliveryAddress_->SetText({});
}

void DeliveryChoice::ShowAddress(bool pickup) {
  cmbPickupLocation_->setVisible(pickup);
  txtDeliveryAddress_->setVisible(!pickup);
}

bool DeliveryChoice::PickupIsChosen() const {
  return IsPickup(cmbDeliveryMethod_->Code());
}

// --- Values ---

void DeliveryChoice::Show(const Values& values) {
  rdAllow_->Select(values.allowed ? 0 : 1);
  rdDeliverySelect_->Select(values.selected ? 0 : 1);
  EnableChoice(values.allowed);
  CodeLists::ShowCode(*cmbDeliveryMethod_, values.method);
  const bool pickup = PickupIsChosen();
  CodeLists::ShowCode(*cmbPickupLocation_, pickup ? values.address : QString());
  txtDeliveryAddress_->SetText(pickup ? QString() : values.address);
  ShowAddress(pickup);
}

DeliveryChoice::Values DeliveryChoice::OnScreen() const {
  Values values;
  values.allowed = rdAllow_->IsSet(0);
  values.selected = rdDeliverySelect_->IsSet(0);
  values.method = cmbDeliveryMethod_->Code();
  if (PickupIsChosen())
    values.address = cmbPickupLocation_->Code();
  else if (values.method.isEmpty() || HasAddress(values.method.toUpper()))
    values.address = txtDeliveryAddress_->Text();
  return values;
}

QString DeliveryChoice::AddressText() const {
  if (PickupIsChosen()) return cmbPickupLocation_->IsNone() ? QString() : cmbPickupLocation_->Text();
  return OnScreen().address;
}

// --- Tests ---

bool DeliveryChoice::MethodIsMissing() const {
  return rdDeliverySelect_->IsSet(1) && cmbDeliveryMethod_->IsEmptyOrNone();
}

bool DeliveryChoice::AddressIsValid(QString& reason) const {
  const Values values = OnScreen();
  const QString kind = KindOfAddress(values.method.toUpper(), values.address);
  if (values.address.isEmpty() || kind.isEmpty() || gclsOF->ValidateField(kind, values.address)) return true;
  reason = gclsOF->LastError();
  return false;
}
