#pragma once

#include <QString>

// Reads the languages of the site into gcolLanguageCode and gcolLanguageDesc, ordered by their description in the
// language of the suffix; an empty suffix is that of the common services.
void LoadLanguageCodes(const QString& suffix);
