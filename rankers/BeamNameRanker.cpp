// Free serials times span suffixes.
#include "rankers/BeamNameRanker.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "host/private/AskHost.h"
#include "platform/text/Numbers.h"
#include "rankers/private/RunSteps.h"

namespace {

// "%d" of a serial, which is a 32-bit word read as signed.
std::string_view SerialText(unsigned int serial, std::array<char, 12>& buffer)
{
    const auto value = static_cast<std::int32_t>(serial);
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())};
}

}  // namespace

void BEAMNAME_HITNESS_RANKER::ProcessController(CStringArray& arResult)
{
    arResult.RemoveAll();
    SelectFromProject(arResult);
    if (arResult.IsEmpty()) {
        GuessFromScratch(arResult);
    }
    StrangeFuncForKL(arResult);
    RunSteps::Finish(*this, arResult);
}

void BEAMNAME_HITNESS_RANKER::SelectFromProject(CStringArray& arResult)
{
    HostLink::AskBeamTypes(m_arBeamType);
    EliminateSameResult(m_arBeamType);
    // By index: a callback that runs this ranker again changes the array.
    for (int i = 0; i < m_arBeamType.GetSize(); ++i) {
        const CString type = m_arBeamType[i];
        m_arUsedXu.RemoveAll();
        CStringArray suffixes;
        HostLink::AskBeamNumbers(m_arUsedXu, suffixes, type);
        // Their order is free, since FindXu sorts them.
        std::sort(m_arUsedXu.begin(), m_arUsedXu.end());
        const auto repeats = std::unique(m_arUsedXu.begin(), m_arUsedXu.end());
        m_arUsedXu.SetSize(static_cast<int>(repeats - m_arUsedXu.begin()));
        EliminateSameResult(suffixes);
        CUIntArray free;
        FindXu(free);
        std::string name;
        for (const CString& suffix : suffixes) {
            for (const unsigned int serial : free) {
                std::array<char, 12> buffer{};
                name.assign(type.View()).append(SerialText(serial, buffer)).append(suffix.View());
                arResult.Add(std::string_view(name));
            }
        }
    }
    EliminateSameResult(arResult);
}

void BEAMNAME_HITNESS_RANKER::GuessFromScratch(CStringArray& arResult)
{
    static constexpr const char* Guesses[] = {
        "KL1(1)", "KZL1(1)", "WKL1(1)", "LL1(1)", "AL1", "BKL1", "JCL1(1)", "L1(1)", "JCL1(1)", "JCL2",
        "JCL3",   "LL1",     "LL2",     "AL1",    "AL2", "BKL1", "BKL2",    "L1",    "L2",
    };
    arResult.RemoveAll();
    for (const char* const guess : Guesses) {
        arResult.Add(guess);
    }
}

void BEAMNAME_HITNESS_RANKER::GetBeamType(CString strName, CString& strType)
{
    strType = strName.Left(strName.ReverseFind('L') + 1);
}

void BEAMNAME_HITNESS_RANKER::GetBeamXu(CString strName, int& nXu)
{
    const int typeEnd = strName.ReverseFind('L');
    if (typeEnd < 0) {
        nXu = 0;
        return;
    }
    const int bracket = strName.Find('(');
    const int end = bracket < 0 ? strName.GetLength() : bracket;
    nXu = NumberValue(strName.Mid(typeEnd + 1, end - typeEnd - 1).View());
}

void BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(CString strName, CString& strSuffix)
{
    const int bracket = strName.Find('(');
    strSuffix = bracket < 0 ? CString() : strName.Mid(bracket);
}

void BEAMNAME_HITNESS_RANKER::FindXu(CUIntArray& arFreeXu)
{
    // 64 bits, so that no neighbour of a serial wraps around.
    const auto offer = [&arFreeXu](std::int64_t serial) {
        if (serial > 0 && serial <= std::numeric_limits<std::int32_t>::max()) {
            arFreeXu.Add(static_cast<unsigned int>(serial));
        }
    };
    std::sort(m_arUsedXu.begin(), m_arUsedXu.end());
    const int count = m_arUsedXu.GetSize();
    if (count == 0) {
        return;
    }
    const auto used = [this](int i) { return static_cast<std::int64_t>(m_arUsedXu[i]); };
    offer(used(0) - 1);
    for (int i = 0; i + 1 < count; ++i) {
        if (used(i) + 1 != used(i + 1)) {
            offer(used(i) + 1);
        }
        if (i > 0 && used(i + 1) - used(i) > 2) {
            offer(used(i + 1) - 1);
        }
    }
    offer(used(count - 1) + 1);
}

void BEAMNAME_HITNESS_RANKER::StrangeFuncForKL(CStringArray& arResult)
{
    const auto holdsK = [](const CString& text) { return text.Find('K') >= 0; };
    if (m_nProjectKind == 2 && std::none_of(arResult.begin(), arResult.end(), holdsK)) {
        arResult.InsertAt(0, "KL1(1)");
    }
}

void BEAMNAME_HITNESS_RANKER::SetPreBeamName(CString strName)
{
    int serial = 0;
    GetBeamXu(strName, serial);
    if (m_strPreBeamName.IsEmpty()) {
        m_nPreXuStep = 0;
    } else {
        int previous = 0;
        GetBeamXu(m_strPreBeamName, previous);
        if (previous < serial) {
            m_nPreXuStep = serial;
        } else if (previous > serial) {
            m_nPreXuStep =
                serial == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : -serial;
        }
    }
    m_strPreBeamName = strName;
}

int BEAMNAME_HITNESS_RANKER::GetMostFixedBeamNameIndex() { return 0; }
