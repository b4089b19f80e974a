#pragma once

#include "schema/TableContent.h"

// Export files on the disk; "-" is the standard input or output. std::runtime_error with the file's name.
namespace ExportFile {

std::vector<TableContent> Load(const QString& path);
// The file is replaced as a whole or not at all. With `secret` only its owner may read it.
void Save(const QString& path, const std::vector<TableContent>& tables, bool secret);

}  // namespace ExportFile
