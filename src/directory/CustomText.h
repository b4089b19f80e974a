#pragma once

#include <QString>
#include <functional>
#include <span>

#include "directory/CustomTextFile.h"

class QWidget;

// A key and the control that it renames: title of the form ("" as control), caption of a menu, entry, button, option,
// frame or label, heading of a grid's column, or, for a key that ends in "ToolTip", the control's tip.
struct TextKey {
  const char* key;
  const char* control;
  int column = 0;             // of a grid
  const char* tip = nullptr;  // the built-in one; captions are the layout's
};

// How a screen of the directory has its texts replaced.
struct CustomTextReader {
  QString logName;
  QString section;
  // What is shown, with this path, when the file is not there.
  std::function<QString(const QString& path)> missingText;
};

// The words of the record screens.
QString MissingCustomText(const QString& path);

// Puts the texts of the keys on the form's controls, then lets `further` read what is no caption. A failure is told
// and leaves the rest of the built-in texts; the screen opens in any case. A key whose control the form does not have
// is a std::logic_error.
void LoadCustomText(QWidget& form, const CustomTextReader& reader, std::span<const TextKey> keys,
                    const std::function<void(const CustomText&)>& further = {});
// The tips that the form has without a file.
void PutBuiltInTips(QWidget& form, std::span<const TextKey> keys);
// One key's text on its control.
void PutText(QWidget& form, const TextKey& key, const QString& text);
