#pragma once

// Key filter of the port boxes: digits and backspace pass; any other key is dropped with a beep.
char16_t DigitKey(char16_t key);
