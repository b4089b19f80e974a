#pragma once

#include <QString>
#include <vector>

struct TimeZoneEntry {
  QString displayText;
  QString id;  // as Windows names its zones
};

// The zones of the program's resource ":/TIMEZONES/101", in order of their offset.
const std::vector<TimeZoneEntry>& TimeZoneList();
// Lines ended by CR LF, each a display text, a TAB and an id; a line of another shape is skipped.
std::vector<TimeZoneEntry> ReadTimeZones(const QByteArray& lines);
