#pragma once

#include <QString>
#include <QStringList>

#include "platform/ado/ConnectionSettings.h"

// What the settings file "Ostana.INI" says of a site: the database and the switches of the system.
struct SiteSettings {
  ConnectionSettings connection;
  int databaseType = 0;  // the override of the settings, otherwise the engine's own
  bool singleInstance = false;
  bool tracing = false;
  bool singleLanguage = false;
  bool faxAvailable = true;
  QString dateDisplayFormat;  // "yyyy-MM-dd" unless set
  QString contactName;
  QString institutionName;
  QString customConfigFile;  // name without directory; may be empty
  QString statementLog;      // full path of the file every statement is written to; empty for none
  qint32 siteNumber = 0;
  QString applicationPath;  // root directory of the system, ending in a separator
  QString settingsFile;     // full path
};

// Root directory of the system, ending in a separator: OSTANA_HOME of the environment, else the current directory when
// it holds the settings file, else the folder of the program. The current directory is nobody's choice: a file of it
// that belongs to another user, or that everybody may write, is refused by LoadSiteSettings.
QString FindApplicationPath();

// What everybody on the machine could read of the site's secrets: a sentence for each such file. Empty where others are
// kept out, and where the file system knows no such rights.
QStringList ReadableByOthers(const SiteSettings& settings);

// Key file of the site, beside its settings file.
QString KeyFileOf(const QString& settingsFile);

// Reads section "Database <site>" when there is one, else "Database", and section "System". On False `error` tells the
// user what is wrong and what to do.
bool LoadSiteSettings(const QString& site, SiteSettings& settings, QString& error);
