#pragma once

class QWidget;

// Windows that stand beside the work: they can be used while a dialog is open, which blocks all windows but its own.
namespace Beside {

// Shows the window above the dialog that is in front, else above `owner`; it outlives that dialog.
void Show(QWidget& window, QWidget* owner);

}  // namespace Beside
