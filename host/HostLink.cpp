// The slots themselves, the only state of the module that outlives its objects.
#include "host/HostLink.h"

#include <utility>

#include "host/private/AskHost.h"

namespace {

HostSlots g_slots;

// The pointer is read once, so a callback may register another one while it runs.
template <class Func, class... Arguments>
void CallIfSet(Func func, Arguments&&... arguments)
{
    if (func != nullptr) {
        func(arguments...);
    }
}

}  // namespace

void SetBeamTypeFunc(BeamTypeFunc func) { g_slots.type = func; }
void SetBeamNumberFunc(BeamNumberFunc func) { g_slots.number = func; }
void SetBeamSectionFunc(BeamSectionFunc func) { g_slots.section = func; }
void SetBeamEleFunc(BeamEleFunc func) { g_slots.elevation = func; }
void SetBeamGujinFunc(BeamGujinFunc func) { g_slots.stirrup = func; }
void SetBeamSteelFunc(BeamSteelFunc func) { g_slots.bars = func; }
void SetBeamMouseInputFunc(BeamMouseInputFunc func) { g_slots.mouseInput = func; }

HostSlots ExchangeHostSlots(const HostSlots& slots) { return std::exchange(g_slots, slots); }

namespace HostLink {

void AskBeamTypes(CStringArray& arType) { CallIfSet(g_slots.type, arType); }

void AskBeamNumbers(CUIntArray& arXu, CStringArray& arSuffix, const CString& strType)
{
    CallIfSet(g_slots.number, arXu, arSuffix, strType);
}

void AskSections(CStringArray& arResult) { CallIfSet(g_slots.section, arResult); }
void AskElevations(CStringArray& arResult) { CallIfSet(g_slots.elevation, arResult); }
void AskStirrups(CStringArray& arResult) { CallIfSet(g_slots.stirrup, arResult); }

void AskBars(CStringArray& arResult, const CString& strKind) { CallIfSet(g_slots.bars, arResult, strKind); }

void DeliverText(void* pTarget, int nMode, const CString& strText, int nCode)
{
    CallIfSet(g_slots.mouseInput, pTarget, nMode, strText, nCode);
}

}  // namespace HostLink
