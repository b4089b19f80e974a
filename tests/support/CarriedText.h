#pragma once

#include <QString>

// Appends a statement in the words of SQL Server, as a JSON string on a line of its own, to the file that
// TABULON_WRITE_CARRIED names, each only once. tests/sqlserver/check has parsers read them. Without the variable
// nothing happens.
void WriteCarried(const QString& statement);
