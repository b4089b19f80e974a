#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

// The text of an INI file. It is never cut into stored lines: what no procedure touches stays as it was, and a file of
// a million empty lines costs no more than its size. Works in memory only.
class IniText {
 public:
  // False when the bytes are no text: they hold a character U+0000, or half of one of UTF-16.
  bool Decode(const QByteArray& bytes);
  // In the encoding that Decode found, UTF-8 for a new text. False when that encoding lacks a character.
  bool Encode(QByteArray& bytes) const;

  // Empty when section or key is missing.
  QString Value(const QString& section, const QString& key) const;
  void SetValue(const QString& section, const QString& key, const QString& value);
  QStringList Sections() const;
  QStringList Keys(const QString& section) const;

 private:
  enum class Encoding { Utf8, Utf8WithMark, Utf16Little, Utf16Big, Latin1 };
  enum class Kind { Other, Section, Entry };

  struct Line {
    Kind kind = Kind::Other;
    QStringView name;     // of a section or a key
    qsizetype value = 0;  // where the value of an entry begins, blanks skipped
    qsizetype stop = 0;   // end of the line without its line end
    qsizetype next = 0;   // start of the next line
  };
  struct Place {
    Line entry;                   // Other when the key is missing
    qsizetype endOfSection = -1;  // behind the section's last entry; -1 when the section is missing
  };

  Line LineAt(qsizetype start) const;
  // Calls the body for each line until it answers False.
  void ForEachLine(const std::function<bool(const Line&)>& body) const;
  Place Find(const QString& section, const QString& key) const;
  QString LineEnd() const;

  Encoding encoding_ = Encoding::Utf8;
  QString text_;
};
