#include "Screens.h"

#include "about/frmAboutApp.h"
#include "about/frmAboutOstana.h"
#include "about/frmSplash.h"
#include "core/Screens.h"
#include "core/frmTabulon.h"
#include "editors/CodeTables.h"
#include "editors/LoansTab.h"
#include "editors/Miscellaneous.h"
#include "interop/frmAPIServerConnection.h"
#include "interop/frmISO18626Connect.h"
#include "interop/frmNCIPProfile.h"
#include "interop/frmNCIPServerConnection.h"
#include "interop/frmNCIPStatusCodes.h"
#include "interop/frmNCIPUnitLibraryMapping.h"

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
  RegisterScreen<frmISO18626Connect>("frmISO18626Connect");
  RegisterScreen<frmNCIPServerConnection>("frmNCIPServerConnection");
  RegisterScreen<frmAPIServerConnection>("frmAPIServerConnection");
  RegisterScreen<frmNCIPStatusCodes>("frmNCIPStatusCodes");
  RegisterScreen<frmNCIPUnitLibraryMapping>("frmNCIPUnitLibraryMapping");
  RegisterScreen<frmNCIPProfile>("frmNCIPProfile");
}
