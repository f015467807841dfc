// The widget toolkit's headers. Include it in front of any other of the toolkit's.
#pragma once

// One of them names the X server's display in the global namespace, where the window layer has its own.
#define Display XServerDisplay
#include <QtGui/qguiapplication_platform.h>
#undef Display

#include <QtWidgets>
