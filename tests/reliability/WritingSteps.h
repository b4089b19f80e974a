#pragma once

#include "reliability/WritingScreens.h"

// The steps of which the table of writing screens is made.
namespace Steps {

Step Button(const char* name);
Step Entry(const char* menuEntry);
Step Then(Step first, Step second);
// A list that is kept in memory and stored when the dialog is closed.
Step AndClose(const char* button);

// A text that tells the round.
QString Mark(int round);

// --- Opening ---
// The first row, unless a row is selected already.
void FirstRow(ReliabilityDesk& desk, const char* grid);
Step Tab(int tab, const char* grid, const char* inner = nullptr, int innerTab = 0);
// A tab on which a list is chosen first; chosen anew when its grid is empty.
Step TabWithChoice(int tab, const char* combo, const char* code, const char* grid, const char* inner = nullptr,
                   int innerTab = 0);
Step Dialog(const char* form, const char* grid = nullptr, const char* inner = nullptr, int innerTab = 0);
// A list that is stored when its dialog is closed; what a failed closing has left in it is dropped.
Step ListOfLibrary(const char* form, const char* grid);
// A screen of the library in hand, read anew unless that library is on show.
Step OfLibrary(const char* form);
Step OfLibrary(const char* form, qint32 library);

// --- Entering ---
// Another entry of the list, never the one for none.
Preparation Another(const char* combo);
// Entries of two lists whose codes stand in no row of the table together.
Preparation FreePair(const char* one, const char* other, const char* table, const char* columnOfOne,
                     const char* columnOfOther);
// An entry whose code stands in no row of the table.
Preparation FreeEntry(const char* combo, const char* table, const char* column);
// A number with two decimals.
Preparation Number(const char* box);
Preparation Both(Preparation one, Preparation other);
// A code that no row of the table has in that column, as long as the box allows but of three letters at most.
QString FreeCode(ReliabilityDesk& desk, const QString& box, const QString& table, const QString& column);

}  // namespace Steps
