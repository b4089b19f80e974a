#pragma once

#include <QStringList>
#include <optional>

#include "platform/ado/Recording.h"
#include "schema/TableContent.h"

// The recording of changes in a database: its tables and triggers. Failures are AdoErrors.
namespace History {

// What is recorded: the settings, and what users may do.
std::vector<const SchemaTable*> Tables();
bool IsRecorded(const SchemaTable& table);

// Whether the database has the tables of the history.
bool IsOn(Connection& connection);
// Makes the tables and triggers, or completes what is there: triggers of another version, or of a table that has other
// columns by now, are made anew. Number of triggers made.
int TurnOn(Connection& connection);
// Removes the triggers and the tables with all that was recorded.
void TurnOff(Connection& connection);
// What the triggers of the database lack, one sentence each; none where the history is off.
QStringList Gaps(Connection& connection);

// Removes what was recorded before a moment, "yyyy-MM-dd hh:mm:ss.zzz" in UTC. Number of changes removed.
qint64 Prune(Connection& connection, const QString& moment);
// From when on changes are recorded; nothing where the history is off.
std::optional<QString> Since(Connection& connection);
// The database's present moment.
QString Now(Connection& connection);

// The columns that tell a row in the history: those of the key, otherwise all.
QStringList KeyColumns(const SchemaTable& table, const std::vector<SchemaColumn>& columns);
// The text of a key in the history.
QString KeyText(const Row& key);
Row KeyCells(const QString& text);

}  // namespace History
