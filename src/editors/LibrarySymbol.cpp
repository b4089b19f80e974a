#include "editors/LibrarySymbol.h"

#include "core/SqlText.h"
#include "platform/controls/TextBox.h"
#include "shell/FindLibrary.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

qint32 LibrarySymbol::IdOf(TextBox& box) {
  const QString symbol = box.TrimInPlace();
  if (symbol.isEmpty()) return 0;
  return LibraryIdOfExactSymbol(symbol, Sql::Plain, "***** SQL error on OSTANA.ID_LIBRARY (Select) *****");
}

void LibrarySymbol::Find(TextBox& box, QWidget* form, const QString& logName) {
  Procedure procedure(logName, form);
  procedure.OnFailure(Texts::NotifySupport).Run([&] {
    const FoundLibrary found = FindLibrary(form);
    if (found.id > 0)
      box.SetText(found.symbol);
    else
      box.setFocus();
  });
}
