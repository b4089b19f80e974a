#pragma once

#include <QFile>

// Opens a file that only grows, such as a log, or makes it: readable by its owner and group at the most, one append is
// one write. What is no file of its own (a link, a pipe, a device) is refused, so that nobody can turn the lines to
// another file or hold the program up.
bool OpenToAppend(QFile& file, const QString& path);
