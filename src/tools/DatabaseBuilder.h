#pragma once

#include <QStringList>

#include "platform/ado/Connection.h"
#include "schema/Languages.h"

// Makes the tables and rows of a database. Failures are AdoErrors.
namespace DatabaseBuilder {

enum class Rows { Reference, Sample };

// Makes a file of SQLite, or a database of a server, that is missing. True when it was made now. An SQLite file is made
// here and nowhere else: a connection never creates one.
bool MakeMissing(const ConnectionSettings& settings);

// True when the database holds tables of the system already.
bool HasTables(Connection& connection);

// Tables, keys, indexes and rows, with the language of the reference rows, English, and the further ones that are
// named. The rows of the sample need FRE and GER among them. What was made is gone again when it fails.
void Create(Connection& connection, Rows rows, const std::vector<Languages::Language>& further = {});

// Runs a script whose statements name tables without owner.
void RunScript(Connection& connection, const QString& text);

}  // namespace DatabaseBuilder
