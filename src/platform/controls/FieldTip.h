#pragma once

#include <QHelpEvent>
#include <QString>

class QWidget;

// What a pointer that rests on a field is told: the whole text where the field shows a part of it, what the screen says
// of the field, and the rule for what may stand there.
namespace FieldTip {

QString Of(const QWidget& field, const QString& text, int room, const QString& rule);
void Show(const QHelpEvent& event, QWidget& field, const QString& tip);

}  // namespace FieldTip
