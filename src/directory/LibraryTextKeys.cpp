#include "directory/LibraryTextKeys.h"

namespace {

// Billing, Login and Contact stand in the screens' own lists, so that each list is whole for its section.
constexpr TextKey Common[] = {
    {"LIBRARY_ScreenName", ""},
    {"LIBRARY_mnuFile", "mnuFile"},
    {"LIBRARY_mnuFileExit", "mnuFileExit"},
    {"LIBRARY_mnuDisplay", "mnuDisplay"},
    {"LIBRARY_mnuDisplayRegistration", "mnuDisplayRegistration"},
    {"LIBRARY_mnuDisplayStatistics", "mnuDisplayStatistics"},
    {"LIBRARY_mnuOptions", "mnuOptions"},
    {"LIBRARY_mnuOptionsUpdate", "mnuOptionsUpdate"},
    {"LIBRARY_mnuOptionsSearch", "mnuOptionsSearch"},
    {"LIBRARY_mnuOptionsClear", "mnuOptionsClear"},
    {"LIBRARY_mnuOptionsAdvanced", "mnuOptionsAdvanced"},
    {"LIBRARY_mnuRequest", "mnuRequest"},
    {"LIBRARY_mnuRequestArticle", "mnuRequestArticle"},
    {"LIBRARY_mnuRequestBook", "mnuRequestBook"},
    {"LIBRARY_mnuHelp", "mnuHelp"},
    {"LIBRARY_mnuHelpAboutOstana", "mnuHelpAboutOstana"},
    {"LIBRARY_mnuHelpAboutApplication", "mnuHelpAboutApplication"},
    {"LIBRARY_pbRegistration", "cmdRegistration"},
    {"LIBRARY_pbStatistics", "cmdStatistics"},
    {"LIBRARY_pbUpdate", "cmdUpdate"},
    {"LIBRARY_pbArticle", "cmdArticle"},
    {"LIBRARY_pbBook", "cmdBook"},
    {"LIBRARY_pbClose", "cmdClose"},
    {"LIBRARY_pbSearch", "cmdSearch"},
    {"LIBRARY_pbClear", "cmdClear"},
    {"LIBRARY_pbAdvanced", "cmdAdvanced"},
    {"LIBRARY_Found", "lblFound"},
    {"LIBRARY_LibraryInactiveMessage", "lblLibraryInactiveMessage"},
    {"LIBRARY_LibraryPendingMessage", "lblLibraryPendingMessage"},
    {"ID_LIBRARY.LIBRARY_SYMBOL", "lblLibrarySymbol"},
    {"ID_LIBRARY.INSTITUTION_NAME", "lblInstitution"},
    {"ID_LIBRARY.LIBRARY", "lblLibraryName"},
    {"ID_LIBRARY.CONTACT", "lblContact"},
};

}  // namespace

std::vector<TextKey> CommonTextKeys(LibrarySibling self) {
  const LibrarySiblingDoor& own = DoorTo(self);
  std::vector<TextKey> keys;
  for (const TextKey& key : Common)
    if (own.button != key.control && own.entry != key.control) keys.push_back(key);
  return keys;
}
