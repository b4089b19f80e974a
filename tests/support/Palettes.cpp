#include "support/Palettes.h"

#include <QApplication>
#include <QStyle>

namespace {

QPalette DarkPalette() {
  QPalette dark;
  const QColor base(35, 38, 41), window(49, 54, 59), text(239, 240, 241), mid(99, 104, 109);
  dark.setColor(QPalette::Window, window);
  dark.setColor(QPalette::WindowText, text);
  dark.setColor(QPalette::Base, base);
  dark.setColor(QPalette::AlternateBase, window);
  dark.setColor(QPalette::Text, text);
  dark.setColor(QPalette::Button, window);
  dark.setColor(QPalette::ButtonText, text);
  dark.setColor(QPalette::BrightText, Qt::red);
  dark.setColor(QPalette::ToolTipBase, window);
  dark.setColor(QPalette::ToolTipText, text);
  dark.setColor(QPalette::Link, QColor(41, 128, 185));
  dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
  dark.setColor(QPalette::HighlightedText, QColor(20, 22, 24));
  dark.setColor(QPalette::Mid, mid);
  dark.setColor(QPalette::PlaceholderText, QColor(160, 164, 168));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    dark.setColor(QPalette::Disabled, role, QColor(127, 140, 141));
  return dark;
}

QPalette BlackAndWhite() {
  QPalette palette;
  for (const QPalette::ColorRole role :
       {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button, QPalette::ToolTipBase})
    palette.setColor(role, Qt::black);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                         QPalette::ToolTipText, QPalette::PlaceholderText, QPalette::Mid})
    palette.setColor(role, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(0x1a, 0xeb, 0xff));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  palette.setColor(QPalette::Link, Qt::yellow);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x3f, 0xf2, 0x3f));
  return palette;
}

}  // namespace

namespace Palettes {

QPalette Of(Colours colours) {
  switch (colours) {
    case Light:
      return QApplication::style()->standardPalette();
    case Dark:
      return DarkPalette();
    case HighContrast:
      return BlackAndWhite();
  }
  return {};
}

}  // namespace Palettes
