#include "desk/plan/SectionSketch.h"
