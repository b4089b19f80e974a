#pragma once

#include <QSet>
#include <ostream>

#include "reliability/DatabaseContents.h"

// What an action does to a table, apart from the values: rows that went, rows that came, and the columns whose values
// differ between them. Two runs of one action on different records have the same effect; half of one has another.
struct TableEffect {
  int gone = 0, come = 0;
  QSet<QString> columns;
  bool operator==(const TableEffect& other) const {
    return gone == other.gone && come == other.come && columns == other.columns;
  }
};

// By table; tables that did not change are not in it.
using Effect = QMap<QString, TableEffect>;

Effect EffectOf(const DatabaseContents& before, const DatabaseContents& after);
QString Told(const Effect& effect);
inline void PrintTo(const Effect& effect, std::ostream* out) {
  *out << Told(effect).toStdString();
}
