#include "platform/desktop/UserSettings.h"

#include <QUrl>

namespace {
QString& Site() {
  static QString site;
  return site;
}
}  // namespace

UserSettings::UserSettings() {
  // A name may hold the mark that divides the parts of a key.
  if (!Site().isEmpty()) beginGroup("Sites/" + QString::fromLatin1(QUrl::toPercentEncoding(Site())));
}

void UserSettings::SetSite(const QString& site) {
  Site() = site;
}
