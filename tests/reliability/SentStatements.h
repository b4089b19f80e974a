#pragma once

#include <QString>
#include <vector>

// What the actions of the screens send to the database of the sample site, exactly, a round trip for each statement.
// Where a statement is repeated for each row of a list it shows: "3 x insert". A table stands without its "ID_", a join
// under its first table.
struct Sent {
  const char* screen;
  const char* action;
  int count;
  const char* statements;  // in short
  // Each begins and ends with a round trip of its own.
  int transactions = 0;
  // Tables whose columns are looked up in the server's catalogue, once in a session.
  int catalogue = 0;
};

const std::vector<Sent>& SentStatements();

// Null where the table has no such row.
const Sent* FindSent(const QString& screen, const QString& action);

// A row of the table in docs/engines.md.
QString DocumentLine(const Sent& sent);

// "SELECT LIBRARY_ID FROM ID_LIBRARY ..." is "read LIBRARY"; equal ones in a row are counted.
QString InShort(const QStringList& statements);
