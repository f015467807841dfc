#include "desk/ranking/ProjectHost.h"

#include <stdexcept>
#include <utility>

namespace Desk {

namespace {

const Delivery* g_delivery = nullptr;  // of the one living host

void BeamTypes(CStringArray& arType)
{
    for (const Delivery::Names& names : g_delivery->names) {
        arType.Add(names.type);
    }
}

void BeamNumbers(CUIntArray& arXu, CStringArray& arSuffix, CString strType)
{
    for (const Delivery::Names& names : g_delivery->names) {
        if (names.type == strType) {
            arXu = names.serials;
            arSuffix = names.suffixes;
        }
    }
}

void DeliveredTexts(CStringArray& arResult)
{
    for (const CString& text : g_delivery->texts) {
        arResult.Add(text);
    }
}

void BarsOfKind(CStringArray& arResult, CString /*strKind*/) { DeliveredTexts(arResult); }

}  // namespace

ProjectHost::ProjectHost(Delivery delivery) : m_delivery(std::move(delivery))
{
    if (g_delivery != nullptr) {
        throw std::logic_error("a second host while the first one lives");
    }
    g_delivery = &m_delivery;
    SetBeamTypeFunc(&BeamTypes);
    SetBeamNumberFunc(&BeamNumbers);
    SetBeamSectionFunc(&DeliveredTexts);
    SetBeamEleFunc(&DeliveredTexts);
    SetBeamGujinFunc(&DeliveredTexts);
    SetBeamSteelFunc(&BarsOfKind);
}

ProjectHost::~ProjectHost()
{
    SetBeamTypeFunc(nullptr);
    SetBeamNumberFunc(nullptr);
    SetBeamSectionFunc(nullptr);
    SetBeamEleFunc(nullptr);
    SetBeamGujinFunc(nullptr);
    SetBeamSteelFunc(nullptr);
    g_delivery = nullptr;
}

}  // namespace Desk
