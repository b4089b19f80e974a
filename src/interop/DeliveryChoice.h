#pragma once

#include <QGroupBox>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"

// How one kind of request, copies or loans, is delivered by a profile: whether the kind is allowed, whether the
// requester chooses, and otherwise the method and its address. The address is a text, or a pickup location when the
// method's code is "P". Copies and loans behave alike, each with names of its own.
class DeliveryChoice : public QGroupBox {
  Q_OBJECT

 public:
  // Object names of the controls.
  struct Names {
    QString allowYes, allowNo;
    QString selectYes, selectNo;
    QString method, address, pickup;
  };
  // `kind` is "Copy" or "Loan", `caption` the same with a mnemonic.
  DeliveryChoice(QWidget* parent, const QString& kind, const QString& caption, const Names& names);

  // What a grid row holds of it.
  struct Values {
    bool allowed = true;
    bool selected = true;  // by the requester
    QString method;        // code; empty for "(None)"
    QString address;       // a pickup location's code when the method is "P"
  };

  void Show(const Values& values);
  void Clear() { Show({}); }
  // As it would be stored: trimmed already, an address that the method has no use for dropped.
  Values OnScreen() const;
  QString MethodText() const { return cmbDeliveryMethod_->Text(); }
  // What a grid cell shows for the address on screen.
  QString AddressText() const;
  // A method that delivers to a pickup location.
  static bool IsPickup(const QString& methodCode) { return methodCode.toUpper() == "P"; }
  static QString YesNo(bool yes) { return yes ? "Yes" : "No"; }

  // True when somebody has to choose the method and nobody did.
  bool MethodIsMissing() const;
  // Tests the address by the method; `reason` tells why it was refused.
  bool AddressIsValid(QString& reason) const;
  void TrimAddress() { txtDeliveryAddress_->TrimInPlace(); }
  CodeComboBox* MethodBox() const { return cmbDeliveryMethod_; }
  TextBox* AddressBox() const { return txtDeliveryAddress_; }
  CodeComboBox* PickupBox() const { return cmbPickupLocation_; }

 Q_SIGNALS:
  // Any text, list or option was changed.
  void Changed();

 private:
  void BuildControls();
  void rdAllow_Click();
  void cmbDeliveryMethod_Click();
  void EnableChoice(bool enabled);
  void ShowAddress(bool pickup);
  bool PickupIsChosen() const;

  const QString kind_;
  OptionGroup* const rdAllow_;
  OptionGroup* const rdDeliverySelect_;
  CodeComboBox* const cmbDeliveryMethod_;
  TextBox* const txtDeliveryAddress_;
  CodeComboBox* const cmbPickupLocation_;
};
