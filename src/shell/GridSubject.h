#pragma once

#include <QString>
#include <map>
#include <optional>
#include <vector>

class Grid;

// Which rows of which table a grid shows, as the statement tells that filled it. What acts on a record from any list,
// such as its history, asks here.
namespace GridSubject {

// `fields`: the database columns by grid column, from 1 on.
void Set(Grid& grid, const QString& select, const std::vector<QString>& fields);

// Empty where the grid shows no rows of a table that the schema knows.
QString Table(const Grid& grid);
// The values of the columns that tell a row from the others, nothing for NULL, in their order; none where the grid does
// not show enough of it.
std::optional<std::vector<std::optional<QString>>> Key(const Grid& grid, int row);

}  // namespace GridSubject
