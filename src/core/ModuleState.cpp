#include "core/ModuleState.h"

#include "core/OstanaFunctions.h"
#include "core/WebServiceSettings.h"
#include "platform/ado/Recordset.h"

void ResetModuleState() {
  grsTable.Reset();  // before the connection that it may have read from
  gclsOF.Reset();
  gLogonDialog = nullptr;

  gstrErrorMessage.clear();
  gstrDecimalSeparator = ".";
  gintDecimalSeparatorKey = u'.';
  gcolLanguageCode.clear();
  gcolLanguageDesc.clear();
  gstrDefaultLanguageCode.clear();

  gbSkipGridEvents = false;
  gbSkipActivate = false;
  gLiveRecord = nullptr;
  gbFillingFields = false;
  gbTabGuardArmed = false;
  gstrButtonMode.clear();

  gLibraryMatches.clear();
  gclsRequestInfo.Reset();
  gclsAddRequest.Reset();
  gstrRequestType.clear();
  gstrRequestNotes1.clear();
  gstrRequestNote.clear();
  gbRequestAdded = false;

  gbLibraryActive = false;
  gbVetoUnload = false;
  gbCloseAfterRequest = false;
  gbUseLoadBalancing = false;
  gbAddSupplier = false;
  gstrSupplierCode.clear();
  gstrCoverRequestType.clear();
  glngNCIPLibraryId = 0;
  glngFoundLibraryId = 0;
  gstrNotesExceptionCode.clear();
  gstrNotesProcessType.clear();
  gbSaveExceptionNotes = false;
  gbSettingsChanged = false;
  gstrISO18626ConnectionId.clear();
  gbISO18626SelectionMode = true;

  gbUseWebService = false;
  gstrWebServiceName.clear();
  gWebService = WebServiceSettings();
}
