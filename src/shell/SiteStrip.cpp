#include "shell/SiteStrip.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/OwnStyle.h"

SiteStrip::SiteStrip(QWidget* parent) : QLabel(parent) {
  setObjectName("lblSite");
  setTextFormat(Qt::PlainText);
  setText(gclsOF->SiteName());
  setAccessibleName("Site " + gclsOF->SiteName());
  setAlignment(Qt::AlignCenter);
  setContentsMargins(8, 3, 8, 3);
  QFont bold = font();
  bold.setBold(true);
  setFont(bold);
  if (gclsOF->SiteColour().isEmpty()) return;
  const QColor ground(gclsOF->SiteColour());
  QPalette colours = palette();
  colours.setColor(QPalette::Window, ground);
  const bool dark = Contrast::Of(ground, Qt::white) >= Contrast::Of(ground, Qt::black);
  colours.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
  setPalette(colours);
  setAutoFillBackground(true);
}

bool SiteStrip::IsSet() {
  return !gclsOF->SiteName().isEmpty() || !gclsOF->SiteColour().isEmpty();
}
