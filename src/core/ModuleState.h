#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "core/Logon.h"

#include "core/Record.h"

class OstanaFunctions;
class Recordset;
class clsAddRequest;
class clsRequestInfo;

// The state of the whole program on one page, under the names that every screen and every log reader knows. One
// process, one thread: nothing here is locked. ResetModuleState makes all of it new, as at process start.

// Created at its first use.
template <class T>
class OnFirstUse {
 public:
  T* operator->() { return &Get(); }
  T& operator*() { return Get(); }
  T& Get() {
    if (!instance_) instance_ = std::make_shared<T>();
    return *instance_;
  }
  void Reset() { instance_.reset(); }

 private:
  std::shared_ptr<T> instance_;
};

inline OnFirstUse<OstanaFunctions> gclsOF;  // the common services
inline OnFirstUse<Recordset> grsTable;      // the recordset that the main form's screens share
inline LogonQuestion gLogonDialog;          // what asks instead of the dialog frmLogon while it is set

inline QString gstrErrorMessage;               // failure message in force, set before a risky statement
inline QString gstrDecimalSeparator = ".";     // of the machine's locale, "." or ","
inline char16_t gintDecimalSeparatorKey = 46;  // its character code, 46 or 44
inline QStringList gcolLanguageCode;           // language codes, in the order of their descriptions
inline QStringList gcolLanguageDesc;           // their descriptions, index by index
inline QString gstrDefaultLanguageCode;        // the code marked as default; empty when none is

inline bool gbSkipGridEvents = false;  // code moves a grid's selection; grid events ignore the move
inline bool gbSkipActivate = false;    // the next Form_Activate does nothing but clear it
inline bool gbFillingFields = false;   // code fills fields; change handlers leave the mark of the record alone
inline bool gbTabGuardArmed = false;   // the question before leaving a changed record may be asked
inline QString gstrButtonMode;         // EnableButtons' letter of the current tab or code table

// The search for libraries and the placing of a request.
struct LibraryMatch {
  qint32 LibraryID = 0;
  QString LibrarySymbol;
};
inline std::vector<LibraryMatch> gLibraryMatches;   // rows of the last search, in the order of the column searched
inline OnFirstUse<clsRequestInfo> gclsRequestInfo;  // what the request forms collected
inline OnFirstUse<clsAddRequest> gclsAddRequest;    // on whose behalf
inline QString gstrRequestType;                     // REQUEST_TYPE of the request
inline QString gstrRequestNotes1;                   // short free text for NOTES1
inline QString gstrRequestNote;                     // the request note
inline bool gbRequestAdded = false;                 // a request was written

// Hand-over between screens.
inline bool gbLibraryActive = false;         // the library read last may be given requests
inline bool gbVetoUnload = false;            // the unload guard stopped a hand-over
inline bool gbCloseAfterRequest = false;     // set by request forms of other applications
inline bool gbUseLoadBalancing = false;      // "UseLoadBalancing" of the settings
inline bool gbAddSupplier = false;           // input of frmSupplierRegistration
inline QString gstrSupplierCode;             // input of frmSupplierRegistration
inline QString gstrCoverRequestType;         // request type of the notice e-mail dialogs
inline qint32 glngNCIPLibraryId = 0;         // owner of the NCIP connection and the unit mapping
inline qint32 glngFoundLibraryId = 0;        // library found by the contact screen's look-up
inline QString gstrNotesExceptionCode;       // pair whose notes frmAddExceptionNotes edits: exception code
inline QString gstrNotesProcessType;         // and process type
inline bool gbSaveExceptionNotes = false;    // its note list differs from the table
inline bool gbSettingsChanged = false;       // the profile list differs from its table
inline QString gstrISO18626ConnectionId;     // hand-over of the connection picker, both ways
inline bool gbISO18626SelectionMode = true;  // the connection screen is opened as a picker

// The record that the main screen works on; null before its first page.
inline std::function<const Record*()> gLiveRecord;

// A field of the current tab has changed.
class RecordModifiedFlag {
 public:
  operator bool() const {
    const Record* const record = gLiveRecord ? gLiveRecord() : nullptr;
    return record != nullptr && record->Modified();
  }
};
inline constexpr RecordModifiedFlag gbRecordModified;

// True while code moves a grid's selection; the former value comes back on leaving.
class SkipGridEvents {
 public:
  SkipGridEvents() : before_(gbSkipGridEvents) { gbSkipGridEvents = true; }
  ~SkipGridEvents() { gbSkipGridEvents = before_; }
  SkipGridEvents(const SkipGridEvents&) = delete;
  SkipGridEvents& operator=(const SkipGridEvents&) = delete;

 private:
  bool before_;
};

// The same for gbFillingFields.
class FillingFields {
 public:
  FillingFields() : before_(gbFillingFields) { gbFillingFields = true; }
  ~FillingFields() { gbFillingFields = before_; }
  FillingFields(const FillingFields&) = delete;
  FillingFields& operator=(const FillingFields&) = delete;

 private:
  bool before_;
};

void ResetModuleState();
