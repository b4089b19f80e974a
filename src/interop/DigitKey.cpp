#include "interop/DigitKey.h"

#include "platform/desktop/Prompts.h"

char16_t DigitKey(char16_t key) {
  constexpr char16_t Backspace = 8;
  if ((key >= u'0' && key <= u'9') || key == Backspace) return key;
  Prompts().Beep();
  return 0;
}
