#include "core/Numbers.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>

#include "core/ModuleState.h"

void SetDecimalSeparator() {
  const bool comma = QLocale().toString(9.99, 'f', 2) == "9,99";
  gstrDecimalSeparator = comma ? "," : ".";
  gintDecimalSeparatorKey = comma ? u',' : u'.';
}

namespace Numbers {

namespace {

constexpr int SignificantDigits = 15;  // what a double holds of a decimal number

// The places that a pattern asks for.
struct Places {
  qsizetype whole = 0;             // zeros before the point
  qsizetype decimals = 0;          // places behind the point
  qsizetype requiredDecimals = 0;  // zeros among them

  explicit Places(const QString& pattern)
      : whole(pattern.section('.', 0, 0).count('0')),
        decimals(pattern.section('.', 1).size()),
        requiredDecimals(pattern.section('.', 1).count('0')) {}
};

// Adds one unit in the last place of a text of digits with one point.
QString Incremented(QString digits) {
  for (qsizetype at = digits.size() - 1; at >= 0; --at) {
    if (digits[at] == '.') continue;
    if (digits[at] != '9') {
      digits[at] = QChar(digits[at].unicode() + 1);
      return digits;
    }
    digits[at] = '0';
  }
  return '1' + digits;
}

// "whole.decimals" with that many decimals, a half rounded away from zero as people do, on the decimal digits: 1.005 is
// 1.01 although its binary form lies a little below.
QString Rounded(double magnitude, qsizetype decimals) {
  const int wholeDigits = magnitude < 1 ? 0 : int(std::floor(std::log10(magnitude))) + 1;
  const int precision = qMax(int(decimals) + 1, SignificantDigits - wholeDigits);
  QString digits = QString::number(magnitude, 'f', precision);
  const qsizetype cut = digits.indexOf('.') + 1 + decimals;
  const bool up = digits[cut] >= '5';
  digits.truncate(cut);
  return up ? Incremented(digits) : digits;
}

// The locale's separator and "." mean the same.
QString WithPointOnly(const QString& text) {
  return gstrDecimalSeparator == "," ? QString(text).replace(',', '.') : text;
}

}  // namespace

QString Format(double value, const QString& pattern) {
  if (!std::isfinite(value)) return QString::number(value);
  const Places places(pattern);
  const QString digits = Rounded(std::abs(value), places.decimals);
  QString whole = digits.section('.', 0, 0);
  while (whole.startsWith('0')) whole.remove(0, 1);
  QString decimals = digits.section('.', 1);
  while (decimals.size() > places.requiredDecimals && decimals.endsWith('0')) decimals.chop(1);
  const bool zero = whole.isEmpty() && decimals.count('0') == decimals.size();
  QString text = value < 0 && !zero ? QStringLiteral("-") : QString();
  text += whole.rightJustified(places.whole, '0');
  if (places.decimals > 0) text += gstrDecimalSeparator + decimals;
  return text;
}

bool IsNumeric(const QString& text) {
  static const QRegularExpression number("^[+-]?(\\d+\\.?\\d*|\\.\\d+)$");
  return number.match(WithPointOnly(text.trimmed())).hasMatch();
}

double Val(const QString& text) {
  static const QRegularExpression number("^\\s*([+-]?(\\d+\\.?\\d*|\\.\\d+))");
  return number.match(WithPointOnly(text)).captured(1).toDouble();
}

bool HasFraction(const QString& text) {
  static const QRegularExpression fraction("\\..*[1-9]");
  return WithPointOnly(text).contains(fraction);
}

QString Whole(const QString& text) {
  static const QRegularExpression whole("^([+-]?)0*(\\d*)");
  const QRegularExpressionMatch match = whole.match(WithPointOnly(text.trimmed()));
  const QString digits = match.captured(2);
  if (digits.isEmpty()) return QStringLiteral("0");
  return match.captured(1) == "-" ? '-' + digits : digits;
}

bool IsBlank(const QString& text) {
  static const QRegularExpression blank("^\\s*[+-]?[.,]?\\s*$");
  return blank.match(text).hasMatch();
}

bool Same(const QString& text, const QString& other) {
  const bool blank = IsBlank(text);
  return blank == IsBlank(other) && (blank || Val(text) == Val(other));
}

}  // namespace Numbers
