#pragma once

#include <QString>

// What a site calls things: the custom text file, an INI file with one section for each screen of the directory. A key
// that is missing or empty leaves the built-in text alone.
class CustomText {
 public:
  CustomText(QString path, QString section) : path_(std::move(path)), section_(std::move(section)) {}
  // Empty when the key is missing.
  QString Value(const QString& key) const;

 private:
  QString path_;
  QString section_;
};
