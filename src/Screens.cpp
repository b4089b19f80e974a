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
#include "editors/LoansTab.h"
#include "editors/Miscellaneous.h"

void RegisterTabs(frmTabulon& shell) {
  shell.SetTab(frmTabulon::CodeTablesTab,
               MakeTab(&CodeTables::CodeTables_Tab, &CodeTables::CodeTables_Add, &CodeTables::CodeTables_Update,
                       &CodeTables::CodeTables_Delete, &CodeTables::CodeTables_Clear));
  shell.SetTab(frmTabulon::LoansTab, MakeTab(&LoansTab::Loans_Tab, nullptr, nullptr, nullptr, nullptr));
  shell.SetTab(frmTabulon::MiscellaneousTab,
               MakeTab(&Miscellaneous::Miscellaneous_Tab, nullptr, nullptr, nullptr, nullptr));
}

void RegisterDialogs() {
  RegisterScreen<frmSplash>("frmSplash");
  RegisterScreen<frmAboutOstana>("frmAboutOstana");
  RegisterScreen<frmAboutApp>("frmAboutApp");
  RegisterScreen<frmLibraryRegistration>("frmLibraryRegistration");
  RegisterScreen<frmLibraryLoginInfo>("frmLibraryLoginInfo");
  RegisterScreen<frmLibraryStatisticalInfo>("frmLibraryStatisticalInfo");
  RegisterScreen<frmLibraryBillingInfo>("frmLibraryBillingInfo");
  RegisterScreen<frmLibrarySearch>("frmLibrarySearch");
}
