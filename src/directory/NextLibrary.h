#pragma once

#include <QtGlobal>

// Library numbers have eight digits at the most; behind the last one comes the first of eight digits again.
inline constexpr qint32 BehindLastLibraryNumber = 100000000;
inline constexpr qint32 FirstWrappedLibraryNumber = 10000000;
inline constexpr int MostLibraryNumberAttempts = 20;

// Takes the next free number from the one row of ID_NEXT_LIBRARY: read, add one, write where nobody else wrote
// meanwhile. On False the id is 0 when there is no row, -1 when other clients were faster each time, anything else
// after another failure; the log tells why.
bool GetNextLibraryID(qint32& id);
