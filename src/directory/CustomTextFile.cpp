#include "directory/CustomTextFile.h"

#include "platform/files/IniFile.h"

// A value of blanks is a value; around any other blanks mean nothing.
QString CustomText::Value(const QString& key) const {
  const QString text = IniFile::ReadValue(path_, section_, key);
  const QString trimmed = text.trimmed();
  return trimmed.isEmpty() ? text : trimmed;
}
