#pragma once

#include <QString>
#include <functional>

#include "core/Record.h"
#include "core/UserRights.h"

class CodeComboBox;
class Grid;
class QWidget;
class TextBox;

// What the two message screens share: texts that belong to libraries, a filter by library, a symbol box with a search.
namespace LibraryMessages {

inline const QString AllLibraries = "All libraries";

// "All libraries", on which the box then stands, and the symbols of the libraries that have rows in the table.
void FillFilter(CodeComboBox& box, const QString& table, const QString& failureLine);
// Id of the library whose symbol stands in the box; otherwise a warning and the focus on the box.
bool IsKnownLibrary(QWidget* form, TextBox& symbol, qint32& id);

// One of the two screens, as their common handlers see it. Column 1 of its grid is the library's symbol.
struct MessageScreen {
  QString name;  // of the form in the log
  QWidget* form;
  Grid* grid;
  TextBox* symbol;
  TextBox* code;  // has the focus behind a delete that fails
  Record* record;
  const FunctionRights* rights;
  int* currentRow;
  std::function<void(int row)> showRow;
};

// Another library in the filter: `populate` for all of them, `load` with the symbol of one.
void cmbShowMessages_Click(const MessageScreen& screen, CodeComboBox& filter, const std::function<void()>& populate,
                           const std::function<void(const QString& symbol)>& load);
// Another row: an edited record is offered to `update` first.
void RowChosen(const MessageScreen& screen, const std::function<void()>& update);
// Lets the user search a library and puts its symbol into the box, nothing when none was chosen.
void cmdFindLibrary_Click(const MessageScreen& screen);
// Deletes the row on show by the statement of the row and its library's id.
void cmdDelete_Click(const MessageScreen& screen, const QString& failureLine,
                     const std::function<QString(int row, qint32 libraryId)>& statement);

}  // namespace LibraryMessages
