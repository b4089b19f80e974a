#pragma once

#include <QSize>

class QWidget;

// Windows that large letters, long captions or a small display make larger than the display.
namespace FitDisplay {

// Puts what stands side by side one under another, buttons and groups of fields, until the page is no wider than that;
// pixels. What cannot become narrower stays.
void Narrow(QWidget& page, int width);

// The same for a window, and what is still too high scrolls; the rows of buttons at its end, and what was marked by
// Form::KeepInSight at its beginning, stay in sight. Not larger than `room` afterwards, and no smaller than it needs.
void Fit(QWidget& window, QSize room);

}  // namespace FitDisplay
