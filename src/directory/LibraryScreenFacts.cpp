#include "directory/LibraryScreenFacts.h"

namespace {

const QString Record = "This record has been modified.";
const QString Registration = "The Library Registration has been modified for this record.";
// The Statistical screen names itself, and on Clear only.
const QString Statistical = "The Library Statistical Info has been modified for this record.";
const QString None;

const QStringList Maintenance = {"Tabulon", "User Maintenance"};

// The log names of some handlers are those of other screens; the log readers know them so.
const QString BillinRegistration = "frmLibraryBillinInfo.cmdRegistration_Click";
const QString AddRequestSearch = "frmAddRequest.cmdSearch_Click";

const HandOverTrace FromContact = {
    "cmdStatistics_Click.Unload frmLibraryrContactInfo - Start", "cmdContact_Click.Unload frmLibraryrContactInfo - End",
    "cmdContact_Click.frmLibraryStatisticalInfo.Show - Start", "cmdContact_Click.frmLibraryStatisticalInfo.Show - End"};
const HandOverTrace FromLoginAndBilling = {"cmdStatistics_Click.Unload frmLibraryBillinInfo - Start",
                                           "cmdStatistics_Click.Unload frmLibraryBillinInfo - End",
                                           "cmdStatistics_Click.frmLibraryStatisticalInfo.Show - Start",
                                           "cmdStatistics_Click.frmLibraryStatisticalInfo.Show - End"};

LibraryScreenFacts MakeRegistration() {
  return {"Ostana - Library Registration",
          "ReadLibraryFile",
          "Library Registration",
          "LoadLibraryRegistrationInfoText",
          {Record, Registration, Record, Record, Record, None},
          RequestOrder::RecordThenGuard,
          {"Administer Settings", "Tabulon", "User Maintenance"},
          {},
          {{"cmdSearch_Click", AddRequestSearch}}};
}

LibraryScreenFacts MakeContact() {
  return {"Ostana - Contact Information",
          "ReadLibraryContactInfo",
          "Contact Information",
          "frmLibrarycontactInfo.LoadLibraryContactText",
          {Registration, Registration, Record, None, None, Registration},
          RequestOrder::GuardThenRecord,
          Maintenance,
          FromContact,
          {{"cmdStatistics_Click", "frmLibraryrContactInfo.cmdStatistics_Click"}}};
}

LibraryScreenFacts MakeLogin() {
  return {"Ostana - Login Information",
          "ReadLibraryLoginInfo",
          "Login Information",
          "frmLibraryLoginInfo.LoadLibraryLoginText",
          {Registration, Registration, Record, Record, None, Registration},
          RequestOrder::GuardThenRecord,
          Maintenance,
          FromLoginAndBilling,
          {{"cmdRegistration_Click", BillinRegistration},
           {"cmdBook_Click", "frmLibraryLoginInfo.cmdLogin_Click"},
           {"cmdUpdate_Click", "frmLibraryLoginInfo.cmdUpdate"},
           {"PopulateComboBoxes", "frmLibraryLoginInfo.PopulateComboBox"}}};
}

LibraryScreenFacts MakeStatistics() {
  return {"Ostana - Statistical Information",
          "ReadLibraryStatisticalInfo",
          "Statistical Information",
          "LoadLibraryStatisticalInfoText",
          {Statistical, Registration, Record, None, None, Registration},
          RequestOrder::GuardThenRecord,
          Maintenance,
          {},
          {{"cmdSearch_Click", AddRequestSearch},
           {"cmdSearchDoclineSymbol_Click", "frmLibraryStatisticalInfo.cmdSearchVORNSymbol_Click"}}};
}

LibraryScreenFacts MakeBilling() {
  return {"Ostana - Billing Information",
          "ReadLibraryBillingInfo",
          "Billing Information",
          "frmLibrarybillingInfo.LoadLibraryBillingText",
          {Registration, Registration, Record, None, None, Registration},
          RequestOrder::GuardThenRecord,
          Maintenance,
          FromLoginAndBilling,
          {{"cmdSearch_Click", AddRequestSearch},
           {"cmdRegistration_Click", BillinRegistration},
           {"cmdBook_Click", "frmLibraryBillingInfo.cmdLogin_Click"}}};
}

}  // namespace

const LibrarySiblingDoor& DoorTo(LibrarySibling sibling) {
  static const std::array<LibrarySiblingDoor, AllLibrarySiblings.size()> doors = {{
      {"frmLibraryRegistration", "cmdRegistration", "Re&gistration", "mnuDisplayRegistration", None},
      {"frmLibraryContactInfo", "cmdContact", "Co&ntact", "mnuDisplayContact", "cmdContact_Click - Failed."},
      {"frmLibraryLoginInfo", "cmdLogin", "Log&in", "mnuDisplayLogin", None},
      {"frmLibraryStatisticalInfo", "cmdStatistics", "S&tatistics", "mnuDisplayStatistics",
       "cmdStatistics_Click - Failed."},
      {"frmLibraryBillingInfo", "cmdBilling", "&Billing", "mnuDisplayBilling", "cmdBilling_Click - failed."},
  }};
  return doors.at(static_cast<size_t>(sibling));
}

const LibraryScreenFacts& FactsOf(LibrarySibling sibling) {
  static const std::array<LibraryScreenFacts, AllLibrarySiblings.size()> facts = {
      MakeRegistration(), MakeContact(), MakeLogin(), MakeStatistics(), MakeBilling()};
  return facts.at(static_cast<size_t>(sibling));
}
