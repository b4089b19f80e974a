#pragma once

#include <QtGlobal>

class TextBox;
class QString;
class QWidget;

// What the boxes for a library's symbol have in common.
namespace LibrarySymbol {

// Trims the box. Id of the library whose symbol it holds, letter for letter: 0 when it is empty, -1 when there is none.
qint32 IdOf(TextBox& box);

// The "Find Library" button beside the box: the symbol of the library found goes into it; with none found the box keeps
// its text and takes the focus.
void Find(TextBox& box, QWidget* form, const QString& logName);

}  // namespace LibrarySymbol
