#pragma once

#include <QString>

// Where the sources and the built programs lie, without a closing separator.
QString SourceFolder();
QString BuildFolder();
