#pragma once

#include <QString>

// "MANIFEST.ini" of the system's root directory, section "Ostana Manifest".
namespace Manifest {

QString Value(const QString& key);

// The rights line: the date of the manifest, or the current year where there is none.
QString RightsLine();

// Key of the registry under which the system's installer notes its edition and version.
QString VendorKey(const QString& version);

}  // namespace Manifest
