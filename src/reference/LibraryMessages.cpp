#include "reference/LibraryMessages.h"

#include "core/FindLibrary.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/TextBox.h"
#include "reference/RecordDialog.h"

namespace LibraryMessages {

void FillFilter(CodeComboBox& box, const QString& table, const QString& failureLine) {
  // The statement has no order of its own, and engines give the rows of a DISTINCT in any.
  QStringList symbols;
  ForEachRow(QString("SELECT   DISTINCT LIBRARY_SYMBOL ") + "FROM " + Sql::Table("ID_LIBRARY") + " " +
                 "WHERE    LIBRARY_ID IN " + "         (SELECT LIBRARY_ID FROM " + Sql::Table(table) + ")",
             failureLine, [&](Recordset& rows) { symbols.append(Value(rows, 0)); });
  symbols.sort();
  box.Clear();
  box.Add(AllLibraries);
  for (const QString& symbol : symbols) box.Add(symbol);
  box.SetIndex(0);
}

bool IsKnownLibrary(QWidget* form, TextBox& symbol, qint32& id) {
  return gclsOF->FindLibraryId(symbol.TrimInPlace(), id) ||
         Reference::Refuse(form, "Please enter a Valid Library Symbol.", &symbol, MessageStyle::Warning);
}

bool IsKnownForRow(QWidget* form, TextBox& symbol, const QString& symbolOfRow, qint32& id) {
  if (!IsKnownLibrary(form, symbol, id)) return false;
  if (symbol.Text() == symbolOfRow) return true;
  symbol.SetText(symbolOfRow);
  return IsKnownLibrary(form, symbol, id);
}

bool FindInto(QWidget* form, TextBox& symbol) {
  const FoundLibrary found = FindLibrary(form);
  if (found.allowed) symbol.SetText(found.symbol);
  return found.allowed;
}

}  // namespace LibraryMessages
