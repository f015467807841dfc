// Drawings: whatever the bytes, reading gives a drawing or a failure; a drawing that was read is written as
// the same bytes, and one changed text changes the value that holds it and nothing else.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <utility>

#include "desk/drawing/Drawing.h"
#include "desk/project/Failure.h"

namespace {

using namespace Desk;

void Require(bool holds, const char* what, const std::string& text)
{
    if (!holds) {
        std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
        std::abort();
    }
}

const char* NewText(Field field)
{
    switch (field) {
    case Field::Name: return "KL77(7)";
    case Field::Section: return "777x888";
    case Field::Elevation: return "(-7.777)";
    case Field::Stirrup: return "D7@77/177(7)";
    case Field::Torsion: return "N7D7";
    case Field::Side: return "G7D7";
    default: return "7D7";
    }
}

// How many lines differ, of texts with as many lines; more than there are where the lines are fewer or
// more.
std::size_t DifferentLines(const std::string& before, const std::string& after)
{
    std::istringstream first(before);
    std::istringstream second(after);
    std::size_t count = 0;
    for (std::string one, other;;) {
        const bool hasOne = static_cast<bool>(std::getline(first, one));
        const bool hasOther = static_cast<bool>(std::getline(second, other));
        if (hasOne != hasOther) {
            return before.size() + after.size();
        }
        if (!hasOne) {
            return count;
        }
        count += one != other ? 1 : 0;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    try {
        const Drawing drawing = Drawing::Parse(bytes, "fuzz.dxf");
        Require(drawing.Written(drawing.Get()) == bytes, "other bytes without a change", bytes);
        // One of the texts, by the data.
        std::vector<std::pair<std::size_t, std::size_t>> all;  // a text, one of its annotations
        const std::vector<AnnotationText>& texts = drawing.Texts();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            Require(texts[i].refs.empty() || texts[i].refs.size() == texts[i].roles.size(),
                    "roles without refs", bytes);
            for (std::size_t k = 0; k < texts[i].refs.size(); ++k) {
                all.emplace_back(i, k);
            }
        }
        if (all.empty()) {
            return 0;
        }
        const auto [number, part] = all[(size + data[size / 2]) % all.size()];
        const FieldRef ref = texts[number].refs[part];
        Require(Exists(drawing.Get(), ref), "a text of no annotation", bytes);
        Project edited = drawing.Get();
        TextAt(edited, ref) = NewText(ref.field);
        const std::string written = drawing.Written(edited);
        const Drawing again = Drawing::Parse(written, "fuzz.dxf");
        // A long MTEXT's value lies in several lines, and what is changed can begin in one and end in the
        // next.
        Require(DifferentLines(bytes, written) <= 2, "other lines changed as well", written);
        Require(again.Texts().size() == drawing.Texts().size(), "other texts after a change", written);
        // A text in place that grows or shrinks can be nearer to the end of its beam, or beyond it.
        const AnnotationText& changed = again.Texts()[number];
        const bool isReadBack =
            changed.refs.size() > part && TextAt(again.Get(), changed.refs[part]) == TextAt(edited, ref);
        Require(isReadBack || (texts[number].inPlace && changed.open), "the change is not read back",
                written);
    } catch (const Failure& failure) {
        Require(std::string(failure.what()).find("fuzz.dxf") == 0, "a failure without its file",
                failure.what());
    }
    return 0;
}
