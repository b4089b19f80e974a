#pragma once

#include <QString>
#include <functional>

class Grid;
class QPagedPaintDevice;

// A grid on paper: the visible columns as wide as what they hold, the headings on each page, long cells in several
// lines, and at the foot of each page where it comes from and which page it is. Landscape where the columns need it.
namespace GridPaper {

// What stands at the foot besides the number of the page: program, site, user, date. Empty unless set.
void SetOrigin(std::function<QString()> origin);

// False when the device cannot be begun or not be finished.
bool Print(const Grid& grid, const QString& title, QPagedPaintDevice& device);

}  // namespace GridPaper
