#pragma once

#include <QPalette>

// The colours that people have their desktops in.
namespace Palettes {

enum Colours { Light, Dark, HighContrast };
QPalette Of(Colours colours);

}  // namespace Palettes
