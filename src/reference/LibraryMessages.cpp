#include "reference/LibraryMessages.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "reference/RecordDialog.h"
#include "shell/FindLibrary.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

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
         Refuse(form, "Please enter a Valid Library Symbol.", MessageStyle::Warning, &symbol);
}

namespace {

constexpr int Library = 1;

// The id of the library of the row on show: that row is deleted, whatever symbol was typed over.
bool IsKnownForRow(const MessageScreen& screen, const QString& symbolOfRow, qint32& id) {
  if (!IsKnownLibrary(screen.form, *screen.symbol, id)) return false;
  if (screen.symbol->Text() == symbolOfRow) return true;
  screen.symbol->SetText(symbolOfRow);
  return IsKnownLibrary(screen.form, *screen.symbol, id);
}

}  // namespace

void cmbShowMessages_Click(const MessageScreen& screen, CodeComboBox& filter, const std::function<void()>& populate,
                           const std::function<void(const QString&)>& load) {
  Procedure procedure(screen.name + ".cmbShowMessages_Click", screen.form);
  procedure.OnFailure(Reference::NotifySupport).Run([&] {
    const QString symbol = filter.Text();
    if (symbol == AllLibraries) return populate();
    qint32 id = 0;
    if (gclsOF->FindLibraryId(symbol, id)) return load(symbol);
    Refuse(screen.form, "Please enter a Valid Library Symbol.", MessageStyle::Warning, &filter);
  });
}

void RowChosen(const MessageScreen& screen, const std::function<void()>& update) {
  const int row = screen.grid->Row();
  if (gbSkipGridEvents || row == 0) return;
  // Update writes the row that was left; the new one is shown also when it was refused.
  if (Reference::WantsChangesApplied(screen.form, *screen.record, *screen.rights)) update();
  screen.showRow(row);
}

void cmdFindLibrary_Click(const MessageScreen& screen) {
  Procedure procedure(screen.name + ".cmdFindLibrary_Click", screen.form);
  procedure.OnFailure(Texts::NotifySupport).Run([&] {
    const FoundLibrary found = FindLibrary(screen.form);
    if (!found.allowed) return;
    screen.symbol->SetText(found.symbol);
    screen.record->Touched();
  });
}

void cmdDelete_Click(const MessageScreen& screen, const QString& failureLine,
                     const std::function<QString(int, qint32)>& statement) {
  using namespace Reference;
  Procedure procedure(screen.name + ".cmdDelete_Click", screen.form);
  procedure.Finally([&] { screen.code->setFocus(); }).Run([&] {
    if (screen.grid->Rows() == 1) {
      Tell(screen.form, "There are no records to delete.", MessageStyle::Stop);
      return;
    }
    if (!Confirm(screen.form, Words::DeleteQuestion, MessageStyle::Question | MessageStyle::DefaultButton2)) return;
    qint32 libraryId = 0;
    const int row = *screen.currentRow;
    if (row == 0 || !IsKnownForRow(screen, screen.grid->Text(row, Library), libraryId)) return;
    Transaction transaction(gclsOF->Connection());
    if (!DeleteRecord(screen.form, statement(row, libraryId), failureLine, screen.code)) return;
    transaction.Commit();
    screen.grid->RemoveRow(row);
    screen.showRow(screen.grid->Rows() > 1 ? 1 : 0);
    Tell(screen.form, Words::Deleted, MessageStyle::Information);
  });
}

}  // namespace LibraryMessages
