#pragma once

#include <QSize>

class QWidget;

// The sizes that a user gave to the windows, kept in the user's own settings by form name, for each site apart.
namespace WindowMemory {

// What a window may take of its display.
QSize RoomFor(const QWidget& window);

// The size the user left the window with, else the one it has; never larger than its screen. The form is already built
// and not yet shown.
void Restore(QWidget& window);
// Keeps the size when the user changed it by hand since Restore. A size nobody chose is not kept: it would outlive the
// fonts and captions that it fits.
void Remember(QWidget& window);

}  // namespace WindowMemory
