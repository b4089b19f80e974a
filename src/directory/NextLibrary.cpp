#include "directory/NextLibrary.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Procedure.h"

namespace {

enum class Attempt { Taken, Empty, Overtaken };

Attempt TakeNumber(qint32& id) {
  gclsOF->Connection().EnsureOpen();
  Recordset rows;
  rows.CursorLocation = Recordset::Client;
  rows.CursorType = Recordset::Keyset;
  rows.LockType = Recordset::Pessimistic;
  rows.Open(gclsOF->Connection(),
            "SELECT   NEXT_LIBRARY "
            " FROM " +
                Sql::Table("ID_NEXT_LIBRARY"));
  if (rows.EOF_()) return Attempt::Empty;
  id = Value(rows, 0).toInt();
  const qint32 next = id + 1 == BehindLastLibraryNumber ? FirstWrappedLibraryNumber : id + 1;
  const auto failure = Procedure::Try([&] {
    rows.SetValue("NEXT_LIBRARY", QString::number(next));
    rows.Update();
  });
  if (!failure) return Attempt::Taken;
  if (failure->Number() != AdoNumber::RowChanged) throw *failure;
  rows.CancelUpdate();
  return Attempt::Overtaken;
}

}  // namespace

bool GetNextLibraryID(qint32& id) {
  id = 0;
  bool taken = false;
  const auto failure = Procedure::Try([&] {
    for (int attempt = 1; !taken; ++attempt) {
      const Attempt outcome = TakeNumber(id);
      if (outcome == Attempt::Empty) {
        id = 0;
        gclsOF->WriteLog("No records exist in Table ID_NEXT_LIBRARY.  Please verify table content.", {}, "L");
        return;
      }
      taken = outcome == Attempt::Taken;
      if (taken || attempt < MostLibraryNumberAttempts) continue;
      id = -1;
      gclsOF->WriteLog("Failed to get the next Library after 20 attempts.  Check the database.", {}, "L");
      return;
    }
  });
  if (failure)
    gclsOF->WriteLog("frmLibraryRegistration.GetNextLibraryID",
                     "Error: " + failure->NumberText() + " - " + failure->Description(), "L");
  return taken;
}
