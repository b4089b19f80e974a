#include "shell/NumericFields.h"

#include <QLocale>

#include "core/ModuleState.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/TextBox.h"
#include "shell/Messages.h"

namespace {

constexpr char16_t Backspace = 8, Enter = 13, Minus = u'-', NoKey = 0;

char16_t RefuseKey() {
  Prompts().Beep();
  return NoKey;
}

// What the range check says of a value; empty when it may stay.
QString WhyOutOfRange(double value, const QString& caption, const QString& highest, const QString& pattern,
                      bool zeroAllowed) {
  const double limit = Numbers::Val(highest);
  if (value > limit) return caption + " may not be greater than " + Numbers::Format(limit, pattern);
  if (value < -limit) return caption + " may not be less than -" + Numbers::Format(limit, pattern);
  if (value == 0 && !zeroAllowed) return caption + " may not be set to " + Numbers::Format(0, pattern);
  return {};
}

}  // namespace

char16_t FilterNumericKey(char16_t key, const TextBox& box, bool noMinus, bool noDecimal) {
  const bool digit = key >= u'0' && key <= u'9';
  if (digit || key == Backspace || key == Enter) return key;
  if (key == Minus) return !noMinus && box.Text().isEmpty() ? key : RefuseKey();
  if (key == gintDecimalSeparatorKey)
    return !noDecimal && !box.Text().contains(gstrDecimalSeparator) ? key : RefuseKey();
  return RefuseKey();
}

bool RangeMessage(TextBox& box, const QString& caption, const QString& highest, const QString& pattern,
                  bool zeroAllowed) {
  const QString text = box.Trimmed();
  if (text.isEmpty()) return true;
  if (Numbers::IsBlank(text)) {
    box.SetText({});
    return true;
  }
  if (Numbers::IsNumeric(text)) {
    const QString formatted = Numbers::Format(Numbers::Val(text), pattern);
    if (formatted != box.Text()) box.SetText(formatted);
  }
  const QString why = WhyOutOfRange(Numbers::Val(box.Text()), caption, highest, pattern, zeroAllowed);
  if (why.isEmpty()) return true;
  QWidget* const form = box.window();
  ShowMessage(why, MessageStyle::Stop, form->windowTitle(), {}, form);
  box.SelectAllAndFocus();
  return false;
}

QString NumericRule(const QString& highest, const QString& pattern, bool zeroAllowed, bool noMinus, bool noDecimal) {
  const QString most = Numbers::Format(Numbers::Val(highest), pattern), zero = Numbers::Format(0, pattern);
  QString rule = (noMinus ? zero : "-" + most) + " to " + most;
  if (!zeroAllowed) rule += ", not " + zero;
  return noDecimal ? rule : rule + "; decimal separator: " + gstrDecimalSeparator;
}

void MakeNumeric(TextBox& box, const QLabel* label, const QString& highest, const QString& pattern, bool zeroAllowed,
                 bool noMinus, bool noDecimal) {
  box.SetKeyPress([&box, noMinus, noDecimal](char16_t key) { return FilterNumericKey(key, box, noMinus, noDecimal); });
  box.SetRule(NumericRule(highest, pattern, zeroAllowed, noMinus, noDecimal));
  box.SetLeaveCheck([&box, label, highest, pattern, zeroAllowed] {
    return RangeMessage(box, label ? Form::PlainCaption(label->text()) : QString(), highest, pattern, zeroAllowed);
  });
}
