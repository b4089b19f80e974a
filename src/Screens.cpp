#include "Screens.h"

#include "about/frmAboutApp.h"
#include "about/frmAboutOstana.h"
#include "about/frmSplash.h"
#include "directory/ForeignForm.h"
#include "directory/frmDeliveryEmailTemplate.h"
#include "directory/frmLibraryAnnotationTemplate.h"
#include "directory/frmLibraryBillingInfo.h"
#include "directory/frmLibraryContactInfo.h"
#include "directory/frmLibraryLoginInfo.h"
#include "directory/frmLibraryRegistration.h"
#include "directory/frmLibrarySearch.h"
#include "directory/frmLibrarySequence.h"
#include "directory/frmLibraryStatisticalInfo.h"
#include "editors/Audit.h"
#include "editors/AutoRejects.h"
#include "editors/CodeTables.h"
#include "editors/CoverPages.h"
#include "editors/Delivery.h"
#include "editors/Departments.h"
#include "editors/Exceptions.h"
#include "editors/Invoicing.h"
#include "editors/LoansTab.h"
#include "editors/Miscellaneous.h"
#include "editors/Printers.h"
#include "editors/RequestType.h"
#include "editors/frmAddExceptionNotes.h"
#include "editors/frmLoans.h"
#include "interop/frmAPIServerConnection.h"
#include "interop/frmISO18626Connect.h"
#include "interop/frmNCIPProfile.h"
#include "interop/frmNCIPServerConnection.h"
#include "interop/frmNCIPStatusCodes.h"
#include "interop/frmNCIPUnitLibraryMapping.h"
#include "reference/frmCurrencyCodes.h"
#include "reference/frmGeneralEmail.h"
#include "reference/frmGeneralMessages.h"
#include "reference/frmISONamespace.h"
#include "reference/frmISOServiceLevels.h"
#include "reference/frmItemType.h"
#include "reference/frmLoanNoticesEmail.h"
#include "reference/frmNotifyPatronEmail.h"
#include "reference/frmNotifyPatronMessages.h"
#include "reference/frmPickupLocationEmail.h"
#include "reference/frmServiceCode.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "shell/frmTabulon.h"
#include "sitescreens/frmChanges.h"

void RegisterTabs(frmTabulon& shell) {
  shell.SetTab(frmTabulon::CodeTablesTab,
               MakeTab(&CodeTables::CodeTables_Tab, &CodeTables::CodeTables_Add, &CodeTables::CodeTables_Update,
                       &CodeTables::CodeTables_Delete, &CodeTables::CodeTables_Clear));
  shell.SetTab(frmTabulon::CoverPagesTab, MakeTab(&CoverPages::CoverPages_Tab, nullptr, &CoverPages::CoverPages_Update,
                                                  nullptr, &CoverPages::CoverPages_Clear));
  shell.SetTab(frmTabulon::DepartmentsTab,
               MakeTab(&Departments::Departments_Tab, &Departments::Departments_Add, &Departments::Departments_Update,
                       &Departments::Departments_Delete, &Departments::Departments_Clear));
  shell.SetTab(frmTabulon::PrintersTab,
               MakeTab(&Printers::Printers_Tab, &Printers::Printers_Add, &Printers::Printers_Update,
                       &Printers::Printers_Delete, &Printers::Printers_Clear));
  shell.SetTab(frmTabulon::AutoRejectsTab,
               MakeTab(&AutoRejects::AutoRejects_Tab, &AutoRejects::AutoRejects_Add, &AutoRejects::AutoRejects_Update,
                       &AutoRejects::AutoRejects_Delete, &AutoRejects::AutoRejects_Clear));
  shell.SetTab(frmTabulon::RequestTypeTab,
               MakeTab(&RequestType::RequestType_Tab, nullptr, &RequestType::RequestType_Update, nullptr,
                       &RequestType::RequestType_Clear));
  shell.SetTab(frmTabulon::AuditTab,
               MakeTab(&Audit::Audit_Tab, &Audit::Audit_Add, &Audit::Audit_Update, nullptr, &Audit::Audit_Clear));
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
  RegisterScreen<frmChanges>("frmChanges");
  Grid::ExtendMenus(&frmChanges::AddEntry);
  RegisterScreen<frmAboutApp>("frmAboutApp");
  RegisterScreen<frmCurrencyCodes>("frmCurrencyCodes");
  RegisterScreen<frmISOServiceLevels>("frmISOServiceLevels");
  RegisterScreen<frmISONamespace>("frmISONamespace");
  RegisterScreen<frmGeneralMessages>("frmGeneralMessages");
  RegisterScreen<frmNotifyPatronMessages>("frmNotifyPatronMessages");
  RegisterScreen<frmServiceCode>("frmServiceCode");
  RegisterScreen<frmItemType>("frmItemType");
  RegisterScreen<frmNotifyPatronEmail>("frmNotifyPatronEmail");
  RegisterScreen<frmLoanNoticesEmail>("frmLoanNoticesEmail");
  RegisterScreen<frmGeneralEmail>("frmGeneralEmail");
  RegisterScreen<frmPickupLocationEmail>("frmPickupLocationEmail");
  RegisterScreen<frmAddExceptionNotes>("frmAddExceptionNotes");
  RegisterScreen<frmLoans>("frmLoans");
  RegisterScreen<frmLibraryRegistration>("frmLibraryRegistration");
  RegisterScreen<frmLibraryContactInfo>("frmLibraryContactInfo");
  RegisterScreen<frmLibraryLoginInfo>("frmLibraryLoginInfo");
  RegisterScreen<frmLibraryStatisticalInfo>("frmLibraryStatisticalInfo");
  RegisterScreen<frmLibraryBillingInfo>("frmLibraryBillingInfo");
  RegisterScreen<frmLibrarySearch>("frmLibrarySearch");
  RegisterScreen<frmLibrarySequence>("frmLibrarySequence");
  RegisterScreen<frmDeliveryEmailTemplate>("frmDeliveryEmailTemplate");
  RegisterScreen<frmLibraryAnnotationTemplate>("frmLibraryAnnotationTemplate");
  for (const QString name :
       {"frmRequestArticle", "frmRequestBook", "frmQueryRequests", "frmPatronRegistration", "frmSupplierRegistration"})
    RegisterScreen(name, [name](QWidget* owner) { return std::make_unique<ForeignForm>(name, owner); });
  RegisterScreen<frmISO18626Connect>("frmISO18626Connect");
  RegisterScreen<frmNCIPServerConnection>("frmNCIPServerConnection");
  RegisterScreen<frmAPIServerConnection>("frmAPIServerConnection");
  RegisterScreen<frmNCIPStatusCodes>("frmNCIPStatusCodes");
  RegisterScreen<frmNCIPUnitLibraryMapping>("frmNCIPUnitLibraryMapping");
  RegisterScreen<frmNCIPProfile>("frmNCIPProfile");
  for (const QString form : FormName::All)
    if (!RegisteredScreens().contains(form)) throw std::logic_error("No screen is registered as " + form.toStdString());
}

void OpenMainScreen(frmTabulon& shell) {
  RegisterTabs(shell);
  shell.Form_Initialize();
  shell.show();
  shell.Form_Activate();
}
