#pragma once

#include <QString>
#include <array>
#include <stdexcept>
#include <string_view>

// The name of a form that is opened by its name. A literal that is none of them does not compile.
class FormName {
 public:
  consteval FormName(const char* name) : name_(Known(name)) {}
  // For a name that is known at run time only. std::logic_error when there is no such form.
  static FormName Of(const QString& name);

  operator QString() const { return QString::fromLatin1(name_); }

  static constexpr std::array All = {
      "frmSplash", "frmAboutOstana", "frmAboutApp",
      // The tabs' dialogs
      "frmAddExceptionNotes", "frmLoans", "frmNotifyPatronEmail", "frmLoanNoticesEmail", "frmGeneralEmail",
      "frmPickupLocationEmail", "frmCurrencyCodes", "frmISOServiceLevels", "frmISONamespace", "frmGeneralMessages",
      "frmNotifyPatronMessages", "frmServiceCode", "frmItemType",
      // The directory of libraries
      "frmLibraryRegistration", "frmLibraryContactInfo", "frmLibraryLoginInfo", "frmLibraryStatisticalInfo",
      "frmLibraryBillingInfo", "frmLibrarySearch", "frmLibrarySequence", "frmDeliveryEmailTemplate",
      "frmLibraryAnnotationTemplate",
      // Forms of other applications
      "frmRequestArticle", "frmRequestBook", "frmQueryRequests", "frmPatronRegistration", "frmSupplierRegistration",
      // Connections
      "frmISO18626Connect", "frmNCIPServerConnection", "frmAPIServerConnection", "frmNCIPStatusCodes",
      "frmNCIPUnitLibraryMapping", "frmNCIPProfile",
      // The site as a whole
      "frmChanges"};

 private:
  struct Checked {};
  FormName(const char* name, Checked) : name_(name) {}
  static constexpr const char* Known(std::string_view name) {
    for (const char* const one : All)
      if (name == one) return one;
    throw std::logic_error("There is no form of this name");
  }

  const char* name_;
};
