#include "core/KeywordLists.h"

#include "platform/files/IniFile.h"

namespace {

QStringList ReadNumbered(const QString& file, const QString& prefix) {
  QStringList values;
  for (int number = 1;; ++number) {
    const QString value = IniFile::ReadValue(file, "Keywords", prefix + QString::number(number));
    if (value.isEmpty()) return values;
    values << value.toUpper();
  }
}

}  // namespace

KeywordLists ReadKeywordLists(const QString& settingsFile) {
  return {ReadNumbered(settingsFile, "NoiseString_"), ReadNumbered(settingsFile, "StopWord_")};
}
