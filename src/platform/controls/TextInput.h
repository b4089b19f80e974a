#pragma once

#include <QString>

class QKeyEvent;

// What may enter a box by hand: keys, pasted, dropped and composed text alike.
namespace TextInput {

// A key that enters text: a printable one, without the modifiers of a shortcut (the two that make AltGr are none).
bool IsTyped(const QKeyEvent& event);

// Foreign text for a box of one line: line ends and tabs become a blank each, those at its ends and all other control
// characters are dropped.
QString OneLine(const QString& foreign);
// Foreign text for a box of several lines: every line end becomes "\n", tabs stay, other control characters go.
QString Lines(const QString& foreign);

// In capitals. Half of a surrogate pair stays what it is, so that nothing takes it for a letter later on: Qt makes one
// of it and of what stands behind it.
QString Upper(const QString& text);

// The beginning of the text that fits into that many UTF-16 units, never half a surrogate pair.
QString Fitting(const QString& text, qsizetype room);

}  // namespace TextInput
