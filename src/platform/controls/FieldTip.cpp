#include "platform/controls/FieldTip.h"

#include <QToolTip>
#include <QWidget>

namespace FieldTip {

QString Of(const QWidget& field, const QString& text, int room, const QString& rule) {
  QStringList lines;
  const bool isCut = QFontMetricsF(field.font()).horizontalAdvance(text) > room;
  for (const QString& line : {isCut ? text : QString(), field.toolTip(), rule})
    if (!line.isEmpty()) lines.append(line);
  return lines.join(u'\n');
}

void Show(const QHelpEvent& event, QWidget& field, const QString& tip) {
  if (tip.isEmpty()) return QToolTip::hideText();
  QToolTip::showText(event.globalPos(), Qt::convertFromPlainText(tip), &field);
}

}  // namespace FieldTip
