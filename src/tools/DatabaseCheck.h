#pragma once

#include <QStringList>

#include "platform/ado/Connection.h"

// Compares a database with what the programs use.
struct DatabaseCheck {
  QStringList gaps;   // what is missing, one sentence each
  QStringList notes;  // what works and may surprise
};

// Without `languages` the site keeps one language and needs no language columns.
DatabaseCheck CheckDatabase(Connection& connection, bool languages);
