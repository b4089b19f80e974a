#pragma once

class Grid;
class QWidget;

// Where the focus goes from a list to the record: to the first box that can be typed in on the list's page, else to the
// first field of another kind. Boxes that have text select it.
void GoToFirstField(const Grid& grid);

// On each list of the window Enter, F2 and the double click do so, unless somebody waits for them already.
void LeadFromListsToFields(const QWidget& window);
