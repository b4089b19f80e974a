#pragma once

#include <QString>

class Connection;

// The counter of request numbers, one row of ID_NEXT_REQUEST.
namespace RequestCounter {

// Takes the next number for this client alone: the row is set only where it still holds what was read, and read again
// where another client was faster. 0 with a reason for the user when no number could be taken: no row, no number of
// eight digits left, or the row stayed busy.
int Take(Connection& connection, QString& reason);

}  // namespace RequestCounter
