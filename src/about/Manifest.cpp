#include "about/Manifest.h"

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

namespace Manifest {

QString Value(const QString& key) {
  return gclsOF->ReadProfileString("Ostana Manifest", key, gclsOF->SystemFile("MANIFEST.ini"));
}

QString RightsLine() {
  QString date = Value("Copyright-Date");
  if (date.isEmpty()) date = QString::number(Clock::Today().year());
  return "Copyright " + date + ". All rights reserved.";
}

QString VendorKey(const QString& version) {
  return "SOFTWARE\\Ostana\\" + version;
}

}  // namespace Manifest
