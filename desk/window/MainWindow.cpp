#include "desk/window/MainWindow.h"
