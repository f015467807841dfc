// What the module sets up when it is loaded.
#include "platform/windows/CWinApp.h"

namespace {

// The platform layer is loaded before and torn down after the module, so that the object can be made and
// can go at any time.
class RankerModuleApp : public CWinApp {};

RankerModuleApp g_application;

}  // namespace
