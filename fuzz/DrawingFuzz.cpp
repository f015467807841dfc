// Drawings: whatever the bytes, reading gives a drawing or a failure; a drawing that was read is written as
// the same bytes, and one changed text changes the value that holds it and nothing else.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

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

// The lines that differ, of texts of which one line was changed.
bool DiffersInOneLine(const std::string& before, const std::string& after)
{
    std::size_t head = 0;
    std::size_t tail = 0;
    const std::size_t shorter = std::min(before.size(), after.size());
    while (head < shorter && before[head] == after[head]) {
        ++head;
    }
    while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        ++tail;
    }
    return before.substr(head, before.size() - head - tail).find('\n') == std::string::npos &&
           after.substr(head, after.size() - head - tail).find('\n') == std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    try {
        const Drawing drawing = Drawing::Parse(bytes, "fuzz.dxf");
        Require(drawing.Written(drawing.Get()) == bytes, "other bytes without a change", bytes);
        // One of the texts, by the data.
        std::vector<FieldRef> refs;
        for (const AnnotationText& text : drawing.Texts()) {
            Require(text.refs.empty() || text.refs.size() == text.roles.size(), "roles without refs",
                    bytes);
            refs.insert(refs.end(), text.refs.begin(), text.refs.end());
        }
        if (refs.empty()) {
            return 0;
        }
        const FieldRef ref = refs[(size + data[size / 2]) % refs.size()];
        Require(Exists(drawing.Get(), ref), "a text of no annotation", bytes);
        Project edited = drawing.Get();
        TextAt(edited, ref) = NewText(ref.field);
        const std::string written = drawing.Written(edited);
        const Drawing again = Drawing::Parse(written, "fuzz.dxf");
        Require(DiffersInOneLine(bytes, written), "more than one line changed", written);
        Require(again.Texts().size() == drawing.Texts().size(), "other texts after a change", written);
        Require(Exists(again.Get(), ref) && TextAt(again.Get(), ref) == TextAt(edited, ref),
                "the change is not read back", written);
    } catch (const Failure& failure) {
        Require(std::string(failure.what()).find("fuzz.dxf") == 0, "a failure without its file",
                failure.what());
    }
    return 0;
}
