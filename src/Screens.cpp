#include "Screens.h"

#include "about/frmAboutApp.h"
#include "about/frmAboutOstana.h"
#include "about/frmSplash.h"
#include "core/Screens.h"
#include "core/frmTabulon.h"
#include "directory/frmLibraryBillingInfo.h"
#include "directory/frmLibraryLoginInfo.h"
#include "directory/frmLibraryRegistration.h"
#include "directory/frmLibrarySearch.h"
#include "directory/frmLibraryStatisticalInfo.h"
#include "editors/CodeTables.h"
#include "editors/Delivery.h"
#include "editors/Exceptions.h"
#include "editors/Invoicing.h"
#include "editors/LoansTab.h"
#include "editors/Miscellaneous.h"
#include "editors/frmAddExceptionNotes.h"
#include "editors/frmLoans.h"
#include "reference/frmCurrencyCodes.h"
#include "reference/frmGeneralMessages.h"
#include "reference/frmISONamespace.h"
#include "reference/frmISOServiceLevels.h"
#include "reference/frmItemType.h"
#include "reference/frmNotifyPatronMessages.h"
#include "reference/frmServiceCode.h"

void RegisterTabs(frmTabulon& shell) {
  shell.SetTab(frmTabulon::CodeTablesTab,
               MakeTab(&CodeTables::CodeTables_Tab, &CodeTables::CodeTables_Add, &CodeTables::CodeTables_Update,
                       &CodeTables::CodeTables_Delete, &CodeTables::CodeTables_Clear));
  shell.SetTab(frmTabulon::DeliveryTab,
               MakeTab(&Delivery::Delivery_Tab, &Delivery::Delivery_Add, &Delivery::Delivery_Update,
                       &Delivery::Delivery_Delete, &Delivery::Delivery_Clear));
  shell.SetTab(frmTabulon::LoansTab, MakeTab(&LoansTab::Loans_Tab, nullptr, nullptr, nullptr, nullptr));
  shell.SetTab(frmTabulon::ExceptionsTab,
               MakeTab(&Exceptions::EnterTab, &Exceptions::Exception_Add, &Exceptions::Exception_Update,
                       &Exceptions::Exception_Delete, &Exceptions::Exception_Clear));
  shell.SetTab(frmTabulon::InvoicingTab,
               MakeTab(&Invoicing::Invoicing_Tab, &Invoicing::Invoicing_Add, &Invoicing::Invoicing_Update,
                       &Invoicing::Invoicing_Delete, &Invoicing::Invoicing_Clear));
  shell.SetTab(frmTabulon::MiscellaneousTab,
               MakeTab(&Miscellaneous::Miscellaneous_Tab, nullptr, nullptr, nullptr, nullptr));
}

void RegisterDialogs() {
  RegisterScreen<frmSplash>("frmSplash");
  RegisterScreen<frmAboutOstana>("frmAboutOstana");
  RegisterScreen<frmAboutApp>("frmAboutApp");
  RegisterScreen<frmCurrencyCodes>("frmCurrencyCodes");
  RegisterScreen<frmISOServiceLevels>("frmISOServiceLevels");
  RegisterScreen<frmISONamespace>("frmISONamespace");
  RegisterScreen<frmGeneralMessages>("frmGeneralMessages");
  RegisterScreen<frmNotifyPatronMessages>("frmNotifyPatronMessages");
  RegisterScreen<frmServiceCode>("frmServiceCode");
  RegisterScreen<frmItemType>("frmItemType");
  RegisterScreen<frmAddExceptionNotes>("frmAddExceptionNotes");
  RegisterScreen<frmLoans>("frmLoans");
  RegisterScreen<frmLibraryRegistration>("frmLibraryRegistration");
  RegisterScreen<frmLibraryLoginInfo>("frmLibraryLoginInfo");
  RegisterScreen<frmLibraryStatisticalInfo>("frmLibraryStatisticalInfo");
  RegisterScreen<frmLibraryBillingInfo>("frmLibraryBillingInfo");
  RegisterScreen<frmLibrarySearch>("frmLibrarySearch");
}
