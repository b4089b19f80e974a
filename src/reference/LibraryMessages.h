#pragma once

#include <QString>

class CodeComboBox;
class QWidget;
class TextBox;

// What the two message screens share: texts that belong to libraries, a filter by library, a symbol box with a search.
namespace LibraryMessages {

inline const QString AllLibraries = "All libraries";

// "All libraries", on which the box then stands, and the symbols of the libraries that have rows in the table.
void FillFilter(CodeComboBox& box, const QString& table, const QString& failureLine);
// Id of the library whose symbol stands in the box; otherwise a warning and the focus on the box.
bool IsKnownLibrary(QWidget* form, TextBox& symbol, qint32& id);
// As IsKnownLibrary, with the id of the library of the row on show: that row is deleted, whatever symbol was typed
// over.
bool IsKnownForRow(QWidget* form, TextBox& symbol, const QString& symbolOfRow, qint32& id);
// Lets the user search a library and puts its symbol into the box, nothing when none was chosen. False when the right
// was refused and the box is as it was.
bool FindInto(QWidget* form, TextBox& symbol);

}  // namespace LibraryMessages
