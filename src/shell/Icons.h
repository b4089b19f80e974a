#pragma once

#include <QIcon>

// One of the program's own pictures: "add", "update", "up" and so on, files of src/shell/icons.
QIcon OwnIcon(const char* name);
