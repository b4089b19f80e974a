#include "platform/controls/OwnStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <cmath>

namespace {

constexpr double EnoughForText = 4.5, EnoughForMarks = 3;
constexpr int TabPadding = 12;  // pixels that a tab is narrower, so that twelve of them stand beside each other on 1024

QColor Between(const QColor& a, const QColor& b, double part) {
  const auto mix = [part](float x, float y) { return static_cast<float>(x + (y - x) * part); };
  return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor Edge(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  return Contrast::Against(Between(window, palette.color(QPalette::WindowText), 0.35), window, EnoughForMarks);
}

double Linear(double part) {
  return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

}  // namespace

namespace Contrast {

double Of(const QColor& a, const QColor& b) {
  const double one = Luminance(a), other = Luminance(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QColor Against(const QColor& colour, const QColor& other, double enough) {
  const QColor end = Luminance(colour) < Luminance(other) ? Qt::black : Qt::white;
  for (double part = 0; part < 1; part += 0.02)
    if (const QColor stepped = Between(colour, end, part); Of(stepped, other) >= enough) return stepped;
  return end;
}

QColor GroundFor(const QColor& letters) {
  const QColor light = Between(letters, Qt::white, 0.92), dark = Between(letters, Qt::black, 0.85);
  return Of(letters, light) >= Of(letters, dark) ? light : dark;
}

}  // namespace Contrast

OwnStyle::OwnStyle(const QString& base) : QProxyStyle(base.isEmpty() ? nullptr : QStyleFactory::create(base)) {}

void OwnStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    const QColor text = palette.color(group, QPalette::HighlightedText);
    palette.setColor(group, QPalette::Highlight,
                     Contrast::Against(palette.color(group, QPalette::Highlight), text, EnoughForText));
  }
}

int OwnStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
  return metric == PM_TabBarTabHSpace ? pixels - TabPadding : pixels;
}

void OwnStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool isMark = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
  const bool isFrame = element == PE_FrameGroupBox || element == PE_FrameLineEdit || element == PE_Frame;
  // In light colours the style's own frames are seen well.
  if (!isMark && !(isFrame && IsDark(option->palette))) return;
  const bool isGroup = element == PE_FrameGroupBox;
  const bool isOn = option->state.testFlag(State_Enabled);
  const bool hasFocus = element == PE_FrameLineEdit && option->state.testFlag(State_HasFocus);
  if (hasFocus) return;
  const QColor window = option->palette.color(QPalette::Window);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(isOn && !isGroup ? Edge(option->palette) : Between(window, Edge(option->palette), 0.6));
  painter->setBrush(Qt::NoBrush);
  const QRectF around = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
  if (element == PE_IndicatorRadioButton)
    painter->drawEllipse(around);
  else
    painter->drawRoundedRect(around, 2, 2);
  painter->restore();
}
