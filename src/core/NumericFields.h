#pragma once

#include <QLabel>
#include <QString>

class TextBox;

// Sets gstrDecimalSeparator and its key code from the machine's locale.
void SetDecimalSeparator();

// The key code, 0 with a beep when refused. Backspace, Enter, digits, a minus in an empty box and one decimal
// separator of the locale pass; the two flags forbid minus and separator.
char16_t FilterNumericKey(char16_t key, const TextBox& box, bool noMinus, bool noDecimal);

// The common range check of a numeric box: formats the text by the pattern ("#####0.00", "##0") and writes it back;
// above the highest value, below its negative or a zero that is not allowed is told with style 16, the focus returns
// and the text is selected. True when the value may stay.
bool RangeMessage(TextBox& box, const QString& caption, const QString& highest, const QString& pattern,
                  bool zeroAllowed);

// Both on a box: filter while typing and pasting, range check on leaving.
void MakeNumeric(TextBox& box, const QLabel* label, const QString& highest, const QString& pattern,
                 bool zeroAllowed = true, bool noMinus = false, bool noDecimal = false);

namespace Numbers {
// Format as the basic formatting function does, with the locale's separator: "#####0.00", "##0", "###0.0000", "000.00".
QString Format(double value, const QString& pattern);
// True when the whole trimmed text is a number in the locale's writing (a "." counts on every locale).
bool IsNumeric(const QString& text);
// The number at the start of the text, the locale's separator or "."; 0 when there is none.
double Val(const QString& text);
// Of a text that is numeric: whether it has a digit other than 0 behind the separator, and what stands before it
// without leading zeros, every digit as written: "-12" for "-012.0".
bool HasFraction(const QString& text);
QString Whole(const QString& text);
// Two writings of one number, "5" and "5.00"; a blank text equals only another one.
bool Same(const QString& text, const QString& other);
}  // namespace Numbers
