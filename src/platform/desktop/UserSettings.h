#pragma once

#include <QSettings>

// What the program remembers of the look that this user gave it: sizes, columns. Each site has its own, so that the
// windows of one do not take the shape of another's; the site without a name keeps its look at the root.
class UserSettings : public QSettings {
 public:
  UserSettings();

  // From here on; set once, when the site is known.
  static void SetSite(const QString& site);
};
