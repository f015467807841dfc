// The seven callback slots through which the module asks the host about the project and hands
// confirmed texts back.
#pragma once

#include "host/Export.h"
#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

// Callbacks return nothing and answer by filling the arrays they are given, which belong to the
// module. All run synchronously on the host's user-interface thread.

// Beam types of the project, such as "KL". The array still holds what the ranker's last run left.
using BeamTypeFunc = void (*)(CStringArray&);
// Serials in use for a beam type and the span suffixes seen with it, each with its brackets. Both
// arrays come empty; if either stays so, the type yields no candidate.
using BeamNumberFunc = void (*)(CUIntArray&, CStringArray&, CString);
// Section texts of the project.
using BeamSectionFunc = void (*)(CStringArray&);
// Elevation texts of the project.
using BeamEleFunc = void (*)(CStringArray&);
// Stirrup annotations of the project.
using BeamGujinFunc = void (*)(CStringArray&);
// Bar annotations of the project, for the kind text given to the bar ranker's SetPara.
using BeamSteelFunc = void (*)(CStringArray&, CString);
// A confirmed text: parent window or host data, mode, text, code of what the text is.
using BeamMouseInputFunc = void (*)(void*, int, CString, int);

// Each slot is null when the module is loaded and holds the newest pointer given; a null pointer
// empties it. A ranker whose slot is empty runs as if the project held nothing.
RANKER_API void SetBeamTypeFunc(BeamTypeFunc func);
RANKER_API void SetBeamNumberFunc(BeamNumberFunc func);
RANKER_API void SetBeamSectionFunc(BeamSectionFunc func);
RANKER_API void SetBeamEleFunc(BeamEleFunc func);
RANKER_API void SetBeamGujinFunc(BeamGujinFunc func);
RANKER_API void SetBeamSteelFunc(BeamSteelFunc func);
RANKER_API void SetBeamMouseInputFunc(BeamMouseInputFunc func);

// The seven slots together, for a layer that puts callbacks of its own in for the time of a call.
struct HostSlots {
    BeamTypeFunc type = nullptr;
    BeamNumberFunc number = nullptr;
    BeamSectionFunc section = nullptr;
    BeamEleFunc elevation = nullptr;
    BeamGujinFunc stirrup = nullptr;
    BeamSteelFunc bars = nullptr;
    BeamMouseInputFunc mouseInput = nullptr;
};
// Fills all seven and answers what they held.
RANKER_API HostSlots ExchangeHostSlots(const HostSlots& slots);
