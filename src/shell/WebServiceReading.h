#pragma once

#include "core/WebServiceSettings.h"

// Reads them. True when the run may go on. On False the user and the process have been told to end.
bool ReadWebServiceSettings();
