#include "desk/shell/QtDisplay.h"
