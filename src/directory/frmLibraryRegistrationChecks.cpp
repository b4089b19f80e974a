// What the registration screen tests before it writes: the shapes of addresses, then which of them the chosen methods
// need.
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/FaxInput.h"
#include "directory/frmLibraryRegistration.h"
#include "shell/Messages.h"

// An address that a method needs and what is told when it is missing.
struct frmLibraryRegistration::RequiredAddress {
  const char* code;  // of the method; "" stands for every method that has no line of its own
  TextBox* box;
  QString message;
};

frmLibraryRegistration::Methods frmLibraryRegistration::ChosenMethods() const {
  return {cmbDeliveryMethodCopy->Code(), cmbDeliveryMethodLoan->Code(), cboMsgMethod->Code()};
}

bool frmLibraryRegistration::ValidateInput(const Methods& methods) {
  return AddressesAreWellFormed() && RequiredAddressesGiven(methods);
}

// --- Shapes ---

bool frmLibraryRegistration::AddressesAreWellFormed() {
  return FaxIsValid(*deliveryFax_, txtDeliveryFax, "The Delivery Fax Number is not valid.") &&
         EmailIsValid(txtDeliveryEmail, "The Delivery E-mail Address is not valid.") &&
         FaxIsValid(*messagingFax_, txtMsgFax, "The Messaging Fax Number is not valid.") &&
         EmailIsValid(txtMsgEmail, "The Messaging E-mail Address is not valid.") && ArielIsValid() && OdysseyIsValid();
}

bool frmLibraryRegistration::FaxIsValid(const FaxInput& fax, TextBox* box, const QString& message) {
  const QString text = box->Text();
  if (text.isEmpty() || !fax.IsFormatting()) return true;
  return (FaxInput::IsShaped(text) && gclsOF->ValidateField("F", text)) || Refuse(message, box);
}

bool frmLibraryRegistration::EmailIsValid(TextBox* box, const QString& message) {
  return box->Text().isEmpty() || gclsOF->ValidateField("E", box->Text()) || Refuse(message, box);
}

bool frmLibraryRegistration::ArielIsValid() {
  const QString text = txtAriel->Text();
  if (text.isEmpty()) return true;
  if (text.contains('@')) {
    return gclsOF->ValidateField("E", text) ||
           Refuse(
               Form::PlainCaption(lblAriel->text()) + " is not a valid E-mail Address. Please enter a valid Address.",
               txtAriel);
  }
  QString reason;
  if (gclsOF->ValidateNetworkAddress(text, reason)) return true;
  ShowMessage(reason, MessageStyle::Stop, "Ostana - " + Caption(), {}, this);
  txtAriel->SelectAllAndFocus();
  return false;
}

bool frmLibraryRegistration::OdysseyIsValid() {
  return txtOdyssey->Trimmed().count('/') <= 1 ||
         Refuse("The Delivery Odyssey Address can have only one site.", txtOdyssey);
}

// --- Addresses that the methods need ---

// The three lists differ on purpose: wordings, the street test behind the delivery service, the full stop behind the
// street, and the codes that have no line of their own under messaging.
bool frmLibraryRegistration::RequiredAddressesGiven(const Methods& methods) {
  const QString deliveryEmail = "The Delivery E-mail address is required for the current Delivery Method.";
  const QString messagingEmail = "The Messaging E-mail address is required for the current Messaging Method.";
  const QString deliveryStreet = "The Street Address is required for the current Delivery Method";
  const QString messagingStreet = "The Street Address is required for the current Messaging Method";

  // What both delivery methods need alike, behind the line for Ariel.
  const std::vector<RequiredAddress> both = {
      {"O", txtOdyssey, "The Odyssey Address is required for the current Delivery Method."},
      {"C", txtDeliveryService, "The Delivery Service is required for the current Delivery Method."},
      {"C", txtStreet1, deliveryStreet},
      {"E", txtDeliveryEmail, deliveryEmail},
      {"S", txtDeliveryEmail, deliveryEmail},
      {"W", txtDeliveryEmail, deliveryEmail},
      {"F", txtDeliveryFax, "The Delivery Fax Number is required for the current Delivery Method."},
      {"V", txtDocview, "The Docview Number is required for the current Delivery Method."},
      {"", txtStreet1, deliveryStreet}};
  std::vector<RequiredAddress> copy = both, loan = both;
  copy.insert(copy.begin(),
              {"A", txtAriel, Form::PlainCaption(lblAriel->text()) + " is required for the current Delivery Method."});
  loan.insert(loan.begin(), {"A", txtAriel, "The Ariel Address is required for the current Delivery Method."});
  const std::vector<RequiredAddress> message = {
      {"A", txtAriel, "The Ariel Address is required for the current Messaging Method."},
      {"C", txtDeliveryService, "The Delivery Service is required for the current Messaging Method."},
      {"E", txtMsgEmail, messagingEmail},
      {"W", txtMsgEmail, messagingEmail},
      {"F", txtMsgFax, "The Messaging Fax Number is required for the Messaging Method."},
      {"V", txtDocview, "The Docview Number is required for the current Messaging Method."},
      {"", txtStreet1, messagingStreet}};

  const auto given = [this](const QString& method, const std::vector<RequiredAddress>& needs) {
    const bool special =
        std::any_of(needs.begin(), needs.end(), [&](const RequiredAddress& need) { return method == need.code; });
    for (const RequiredAddress& need : needs) {
      if ((special ? method : QString("")) != need.code) continue;
      const bool empty = need.box == txtOdyssey ? need.box->Trimmed().isEmpty() : need.box->Text().isEmpty();
      if (empty) return Refuse(need.message, need.box);
    }
    return true;
  };
  return given(methods.copy, copy) && given(methods.loan, loan) && given(methods.messaging, message);
}
