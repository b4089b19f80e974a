#include "directory/TimeZones.h"

#include <QFile>
#include <stdexcept>

// A resource of a library comes into the program only when it is asked for by name, outside of any namespace.
static void InitialiseResource() {
  Q_INIT_RESOURCE(timezones);
}

namespace {

QByteArray ResourceLines() {
  InitialiseResource();
  QFile resource(":/TIMEZONES/101");
  if (!resource.open(QIODevice::ReadOnly)) throw std::runtime_error("The program's list of time zones is missing.");
  return resource.readAll();
}

}  // namespace

std::vector<TimeZoneEntry> ReadTimeZones(const QByteArray& lines) {
  std::vector<TimeZoneEntry> zones;
  for (const QByteArray& line : lines.split('\n')) {
    const QList<QByteArray> fields = (line.endsWith('\r') ? line.chopped(1) : line).split('\t');
    if (fields.size() == 2) zones.push_back({QString::fromLatin1(fields[0]), QString::fromLatin1(fields[1])});
  }
  return zones;
}

const std::vector<TimeZoneEntry>& TimeZoneList() {
  static const std::vector<TimeZoneEntry> zones = ReadTimeZones(ResourceLines());
  return zones;
}
