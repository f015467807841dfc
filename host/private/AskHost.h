// How the module's own rooms call the host's slots. An empty slot does nothing.
#pragma once

#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

namespace HostLink {

void AskBeamTypes(CStringArray& arType);
void AskBeamNumbers(CUIntArray& arXu, CStringArray& arSuffix, const CString& strType);
void AskSections(CStringArray& arResult);
void AskElevations(CStringArray& arResult);
void AskStirrups(CStringArray& arResult);
void AskBars(CStringArray& arResult, const CString& strKind);
void DeliverText(void* pTarget, int nMode, const CString& strText, int nCode);

}  // namespace HostLink
