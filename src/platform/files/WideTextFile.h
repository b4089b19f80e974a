#pragma once

#include <QString>
#include <QStringList>

// Text files in the platform's wide encoding: UTF-16LE with a byte order mark, lines ended by CR LF.
namespace WideTextFile {

enum class Result { Written, NoDirectory, Failed };

// Opens for append, creating the file when missing, and writes the lines. Nothing is kept open.
Result AppendLines(const QString& path, const QStringList& lines);

// The file's lines, for the tools that read logs; empty when it cannot be read.
QStringList ReadLines(const QString& path);

}  // namespace WideTextFile
