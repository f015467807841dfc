// The bar panel opened on an annotation that stands there already.
#pragma once

#include "RankerModule.h"
#include "desk/project/Fields.h"

namespace Desk {

// Opens the panel for a field of a beam and enters its text piece by piece, the last one in work. Only
// what the field's kind allows can be chosen then. An empty text opens the panel as new.
void ShowBars(CBeamSteelDlg& panel, Field field, const CString& text);

}  // namespace Desk
