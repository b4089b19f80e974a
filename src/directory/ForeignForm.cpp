#include "directory/ForeignForm.h"
