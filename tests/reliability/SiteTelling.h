#pragma once

#include <QMap>

#include "reliability/Answers.h"
#include "reliability/DatabaseContents.h"
#include "support/Walk.h"

// What a person sees on all screens of a site, as text: so that the same site can be compared from engine to engine.
struct SiteTelling {
  QMap<QString, QStringList> places;  // lines of each tab, dialog and search
  DatabaseContents stored;            // all rows after what was pressed
};

// How the rows of the site are before.
enum class SiteRows {
  Sample,   // as the sample site has them
  Crowded,  // descriptions that tie or are missing, numbers that are missing, letters of every kind
};

// In which order the rows of a table were put into it.
enum class RowsLie { AsEntered, TheOtherWayRound };  // the second on SQLite only

// Goes through every screen of the site on the engine that TABULON_TEST_ENGINE names, searches, and stores an order.
SiteTelling TellSite(SiteRows rows, RowsLie lie = RowsLie::AsEntered);
