#include "desk/plan/FloorView.h"
