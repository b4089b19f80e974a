#pragma once

#include <QStringView>
#include <Qt>
#include <optional>
#include <vector>

// The order in which the cells of a column sort: by the collation of the machine's locale without regard to letter
// case (that of English where the locale is "C"), keys computed once for each cell. Cells that compare equal keep their
// order, downwards as well.
namespace GridOrder {

// order[i] is the index of the cell that stands at place i. Numeric: empty cells, then numbers by value, then texts.
std::vector<int> Order(const std::vector<QStringView>& cells, Qt::SortOrder order, bool numeric);

QChar DecimalSeparator();
// A whole cell that is a number: sign, digits and one decimal separator, the given one or ".".
std::optional<double> Number(QStringView cell, QChar separator);

}  // namespace GridOrder
