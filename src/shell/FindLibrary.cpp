#include "shell/FindLibrary.h"

#include <QScopedValueRollback>
#include <QWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screen.h"
#include "shell/Screens.h"

namespace {

const QString LibraryRegistration = "Library Registration";
const QString SelectLibraryFailed = "***** SQL error on ID_LIBRARY (Select) *****";

// What a borrowed right changes, put back on every path; the function by validating for it again.
class SessionKept {
 public:
  SessionKept()
      : function_(gclsOF->CurrentFunction()), calling_(gclsOF->CallingFunction()), library_(gclsOF->LibraryId()) {}
  ~SessionKept() {
    gclsOF->SetLibraryId(library_);
    gclsOF->SetCallingFunction(calling_);
    // On the way out of a failure its message is still to be told.
    const QScopedValueRollback inForce(gstrErrorMessage);
    Procedure("FindLibrary").Step([this] {
      gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), function_);
    });
  }
  SessionKept(const SessionKept&) = delete;
  SessionKept& operator=(const SessionKept&) = delete;

 private:
  QString function_;
  QString calling_;
  qint32 library_;
};

}  // namespace

FoundLibrary FindLibrary(QWidget* form, int refusedStyle) {
  FoundLibrary found;
  {
    const SessionKept session;
    {
      const Hourglass hourglass;
      gclsOF->SetLibraryId(0);
      found.allowed = gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), LibraryRegistration);
    }
    if (!found.allowed) {
      ShowMessage(Texts::NoAccess, refusedStyle, form->window()->windowTitle(), {}, form);
      return found;
    }
    gclsOF->SetCallingFunction(LibraryRegistration);
    ShowModal("frmLibraryRegistration", form);
    found.id = gclsOF->LibraryId();
    if (found.id > 0) found.symbol = LibrarySymbolOf(found.id);
  }
  return found;
}

QString LibrarySymbolOf(qint32 id) {
  return FirstValue(
      "SELECT   LIBRARY_SYMBOL FROM " + Sql::Table("ID_LIBRARY") + " WHERE    LIBRARY_ID = " + Sql::Number(id),
      SelectLibraryFailed);
}

qint32 LibraryIdOfExactSymbol(const QString& symbol, QString (*quoted)(const QString&), const QString& failureLine) {
  qint32 id = -1;
  ForEachRow("SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  " + Sql::Table("ID_LIBRARY") +
                 " WHERE LIBRARY_SYMBOL = " + quoted(symbol),
             failureLine, [&](Recordset& rows) {
               if (Value(rows, 0) == symbol) id = Value(rows, 1).toInt();
             });
  return id;
}
