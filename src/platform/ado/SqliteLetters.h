#pragma once

#include <QString>

class QSqlDatabase;

// LIKE of SQLite for all letters: the engine's own one ignores the case of ASCII letters only.
namespace SqliteLetters {

// Replaces LIKE in an open session. A reason for the user when the driver's SQLite is not the one that this program is
// linked with: its handle would mean nothing here.
QString ReplaceLike(QSqlDatabase& database);

// True when the text fits the pattern, in which "%" stands for any letters and "_" for one. Two letters are equal when
// their capitals are; "ß" is "SS". `escape` makes the sign behind it an ordinary one; 0 for none.
bool Fits(const QString& text, const QString& pattern, char32_t escape = 0);

}  // namespace SqliteLetters
