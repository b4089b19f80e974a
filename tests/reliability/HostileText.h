#pragma once

#include <rapidcheck.h>

#include <QString>
#include <ostream>

// A text as nobody should type it, and somebody will: signs that SQL, LIKE, ODBC or a shell give a meaning, letters
// outside of the first plane, halves of them, characters that show nothing, blanks at either end.
struct HostileText {
  QString text;
  // Half of a surrogate pair: no engine can store it, so the statement is refused unsent.
  bool HasLoneSurrogate() const;
};

// ASCII as it is, all else as \u1234.
QString Visible(const QString& text);
inline std::ostream& operator<<(std::ostream& out, const HostileText& hostile) {
  return out << '"' << Visible(hostile.text).toStdString() << '"';
}

rc::Gen<HostileText> HostileTexts();
