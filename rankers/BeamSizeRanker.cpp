// Sections of the project and common sections, in the order of their sizes.
#include "rankers/BeamSizeRanker.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "host/private/AskHost.h"
#include "platform/text/Numbers.h"
#include "rankers/private/Order.h"
#include "rankers/private/RunSteps.h"

namespace {

constexpr std::size_t None = std::string_view::npos;

// The first kind of separator that occurs at all decides.
std::size_t SeparatorOf(std::string_view text)
{
    for (const char separator : {'x', 'X', '*'}) {
        const std::size_t position = text.find(separator);
        if (position != None) {
            return position;
        }
    }
    return None;
}

// Width and height of a section text; nothing for a text without a separator.
std::optional<int> WidthOf(std::string_view text)
{
    const std::size_t separator = SeparatorOf(text);
    if (separator == None) {
        return std::nullopt;
    }
    return NumberValue(text.substr(0, separator));
}

std::optional<int> HeightOf(std::string_view text)
{
    const std::size_t separator = SeparatorOf(text);
    if (separator == None) {
        return std::nullopt;
    }
    std::size_t end = text.find('/');
    if (end == None) {
        end = text.find(' ');
    }
    if (end == None) {
        end = text.size();
    }
    return end <= separator ? 0 : NumberValue(text.substr(separator + 1, end - separator - 1));
}

// Sorts by one size, ties as they stand. A text without a separator is compared with whatever was
// read on its side before, -1 at first. That is no strict weak order, so a list with such a text
// goes through the exchange pass itself.
void SortBySize(CStringArray& arResult, std::optional<int> (*sizeOf)(std::string_view))
{
    std::vector<std::optional<int>> sizes;
    sizes.reserve(static_cast<std::size_t>(arResult.GetSize()));
    for (const CString& text : arResult) {
        sizes.push_back(sizeOf(text.View()));
    }
    const auto size = [&sizes](int position) { return sizes[static_cast<std::size_t>(position)]; };
    const auto isRead = [](const std::optional<int>& value) { return value.has_value(); };
    if (std::all_of(sizes.begin(), sizes.end(), isRead)) {
        const auto less = [&size](int a, int b) { return *size(a) < *size(b); };
        Order::Apply(Order::Sorted(arResult.GetSize(), less), arResult);
        return;
    }
    int left = -1;
    int right = -1;
    const auto mustExchange = [&](int a, int b) {
        left = size(a).value_or(left);
        right = size(b).value_or(right);
        return left > right;
    };
    Order::Apply(Order::ExchangePass(Order::Present(arResult.GetSize()), mustExchange), arResult);
}

}  // namespace

void BEAMSIZE_HITNESS_RANKER::ProcessController(CStringArray& arResult)
{
    arResult.RemoveAll();
    SelectFromProject(arResult);
    if (!RunSteps::FinishWithGuesses(*this, arResult)) {
        return;
    }
    const auto isSpecial = [](CString text) {
        text.TrimLeft();
        return text.GetAt(0) == 'Y';
    };
    const auto firstOrdinary = std::find_if_not(arResult.begin(), arResult.end(), isSpecial);
    arResult.RemoveAt(0, static_cast<int>(firstOrdinary - arResult.begin()));
}

void BEAMSIZE_HITNESS_RANKER::SelectFromProject(CStringArray& arResult)
{
    HostLink::AskSections(arResult);
    EliminateSameResult(arResult);
}

void BEAMSIZE_HITNESS_RANKER::SortResult(CStringArray& arResult)
{
    if (arResult.GetSize() < 2) {
        return;
    }
    SortBySize(arResult, HeightOf);
    SortBySize(arResult, WidthOf);
}

void BEAMSIZE_HITNESS_RANKER::GuessFromScratch(CStringArray& arResult)
{
    static constexpr const char* Guesses[] = {
        "250x500", "300x500", "350x500", "400x500", "450x500",
        "250x600", "300x600", "350x600", "400x600", "450x600",
    };
    const bool wasEmpty = arResult.IsEmpty();
    for (const char* const guess : Guesses) {
        arResult.Add(guess);
    }
    if (wasEmpty && m_nProjectKind != 2) {
        arResult.InsertAt(0, "300x1200");
    }
}

void BEAMSIZE_HITNESS_RANKER::GetBeamWidth(CString strSection, int& nWidth)
{
    nWidth = WidthOf(strSection.View()).value_or(nWidth);
}

void BEAMSIZE_HITNESS_RANKER::GetBeamHeight(CString strSection, int& nHeight)
{
    nHeight = HeightOf(strSection.View()).value_or(nHeight);
}
