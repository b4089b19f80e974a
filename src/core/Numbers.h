#pragma once

#include <QString>

// Numbers in the writing of the machine's locale.

// Sets gstrDecimalSeparator and its key code from the machine's locale.
void SetDecimalSeparator();

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
// Nothing is there yet: blanks, or the sign and the separator that a number may begin with.
bool IsBlank(const QString& text);
// Two writings of one number, "5" and "5.00"; a blank text equals only another one.
bool Same(const QString& text, const QString& other);
}  // namespace Numbers
