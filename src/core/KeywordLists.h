#pragma once

#include <QString>
#include <QStringList>

// What never becomes a keyword of a request, in upper case: strings that are removed from titles and authors, and
// words that are left out.
struct KeywordLists {
  QStringList noiseStrings;
  QStringList stopWords;
};

// From section "Keywords" of the settings file: "NoiseString_1", "NoiseString_2", ... and "StopWord_1", ..., both read
// up to the first one that is missing or empty.
KeywordLists ReadKeywordLists(const QString& settingsFile);
