#pragma once

#include <QByteArray>
#include <QString>

// Puts bytes in the place of a file: on a full disk the old file stays as it was, and its owner, group and mode stay in
// any case. A device or a pipe is written to and never replaced.
namespace WholeFile {

enum class Readers { AsBefore, OwnerOnly };

// False with a reason in the system's words.
bool Write(const QString& path, const QByteArray& bytes, QString* reason, Readers readers = Readers::AsBefore);

}  // namespace WholeFile
