#pragma once

#include "site/HistoryList.h"

// The settings of a site as they were.
namespace FormerState {

// A moment in UTC as people write it ("2024-01-31", "2024-01-31 10:00", "2024-01-31 10:00:00.000"), in the form of the
// history; nothing when it is none.
std::optional<QString> Moment(const QString& text);

// Contents of tables as they are now, taken back to the moment. std::runtime_error with the reason when the history
// does not reach it.
std::vector<TableContent> At(Connection& connection, std::vector<TableContent> now, const QString& moment);

}  // namespace FormerState
