#pragma once

#include <QString>

// A text of the engine's, such as a trigger's, on one line: its line ends are shown as symbols, so that no such text
// passes for an entry of a log of its own.
inline QString OneLine(QString text) {
  return text.replace(QLatin1Char('\r'), QChar(0x240D)).replace(QLatin1Char('\n'), QChar(0x240A));
}
