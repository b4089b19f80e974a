#pragma once

#include <QString>
#include <QStringList>

class IniText;

// The system's INI files: sections in brackets, "key=value" lines, ";" or "#" at the start of a line opens a comment.
// Section and key are found without regard to letter case; blanks around both and around a value are dropped, unless
// the value is enclosed in double quotes, which are then dropped themselves. UTF-8, UTF-16 with a byte order mark, or
// Latin-1 where the bytes are not valid UTF-8. A file over 16 MiB counts as unreadable.
namespace IniFile {

inline constexpr int LongestValue = 500;  // characters

// The value, cut to maxLength characters; empty when file, section or key is missing. A value of blanks only is kept.
QString ReadValue(const QString& path, const QString& section, const QString& key, int maxLength = LongestValue);

// The whole file, for who wants many values of one moment. False with a reason for the user when it is absent, too
// large or not text.
bool Read(const QString& path, IniText& text, QString* reason);
// The value in a text that was read, cut like that of ReadValue.
QString Value(const IniText& text, const QString& section, const QString& key, int maxLength = LongestValue);

QStringList Sections(const QString& path);
QStringList Keys(const QString& path, const QString& section);

// Sets one value and leaves all else as it stands: comments, order, line ends, encoding. The file is replaced in one
// step, so a full disk leaves the old one. False with a reason when it could not be written.
bool WriteValue(const QString& path, const QString& section, const QString& key, const QString& value, QString* reason);

}  // namespace IniFile

namespace Files {
// The file of that name in the directory without regard to letter case; the name joined as it stands when none exists.
QString FindIgnoringCase(const QString& directory, const QString& name);
}  // namespace Files
