// MainWindow: the drafting desk in a window.
#pragma once
