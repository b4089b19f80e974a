#pragma once

#include <QString>

// Turning what a user typed into a library.

inline constexpr int MostLibraryMatches = 50;  // rows of gLibraryMatches, which each search rebuilds

// Both answer True when the caller should go on: with an id of at least 1 for an exact hit, -1 when the record on show
// is meant, otherwise with the count of gLibraryMatches, 0 when a search with a wildcard ("%") found nothing. On False
// the user has been told. A "_" stands for itself.
bool SearchLibrarySymbol(bool recordDisplayed, const QString& displayedSymbol, const QString& text, qint32& libraryId,
                         qint32& count);
bool SearchSymbol(const QString& text, qint32& libraryId, qint32& count, const QString& column);

// True when a row holds exactly this text in the column; id is -1 when the text holds a wildcard, 0 otherwise.
bool FindLibrarySymbol(const QString& text, qint32& libraryId, const QString& column);

// The operand of a LIKE: the text as a quoted pattern, in which only "%" is a wildcard.
QString LikePattern(const QString& text, QString (*quoted)(const QString&));
