#pragma once

#include <QLabel>
#include <QString>

#include "core/Numbers.h"

class TextBox;

// The key code, 0 with a beep when refused. Backspace, Enter, digits, a minus in an empty box and one decimal
// separator of the locale pass; the two flags forbid minus and separator.
char16_t FilterNumericKey(char16_t key, const TextBox& box, bool noMinus, bool noDecimal);

// The common range check of a numeric box: formats the text by the pattern ("#####0.00", "##0") and writes it back;
// above the highest value, below its negative or a zero that is not allowed is told with style 16, the focus returns
// and the text is selected. A lone sign or separator is taken away. True when the value may stay.
bool RangeMessage(TextBox& box, const QString& caption, const QString& highest, const QString& pattern,
                  bool zeroAllowed);

// What may stand in such a box, for its tip: "-99.99 to 99.99; decimal separator: .".
QString NumericRule(const QString& highest, const QString& pattern, bool zeroAllowed, bool noMinus, bool noDecimal);

// All of it on a box: filter while typing and pasting, range check on leaving.
void MakeNumeric(TextBox& box, const QLabel* label, const QString& highest, const QString& pattern,
                 bool zeroAllowed = true, bool noMinus = false, bool noDecimal = false);
