// Edits of a drawing: the values of changed texts change, and not a byte besides.
#include <algorithm>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "desk/project/Failure.h"
#include "tests/drawing/Floors.h"
#include "tests/drawing/Told.h"
#include "tests/support/Seed.h"

namespace Desk {
namespace {

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

// Where two texts differ: what the first has there and the second instead.
std::pair<std::string, std::string> Difference(const std::string& before, const std::string& after)
{
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < shorter && before[head] == after[head]) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        ++tail;
    }
    return {before.substr(head, before.size() - head - tail),
            after.substr(head, after.size() - head - tail)};
}

// A drawing with lines of "\n" or "\r\n" whose long MTEXT values are in one piece: an edit leaves them in
// as many pieces as it finds, where a program that writes all anew divides them anew.
std::string InOnePiece(const std::string& bytes)
{
    std::istringstream lines(bytes);
    std::string joined;
    std::string piece;
    for (std::string code, value; std::getline(lines, code) && std::getline(lines, value);) {
        const int number = std::stoi(code);
        if (number == 3) {
            piece += value.substr(0, value.find('\r'));
            continue;
        }
        joined += number == 1 || piece.empty() ? "" : piece + '\n';
        joined += code + '\n' + (number == 1 ? piece : std::string()) + value + '\n';
        piece.clear();
    }
    return joined;
}

// A random text for the field; the same floor drawn with it is what the edited drawing must be.
TEST(WriteDrawing, RandomEditsGiveTheDrawingThatWouldHaveBeenMadeSo)
{
    const std::vector<Field> fields = {Field::Section,    Field::Stirrup, Field::TopBars,
                                       Field::BottomBars, Field::Side,    Field::Elevation};
    const auto texts = [](Field field) -> std::vector<std::string> {
        switch (field) {
        case Field::Section: return {"300x700", "350x800", "250x550/450", ""};
        case Field::Stirrup: return {"A10@100/200(4)", "D8@100(2)", "B12@150(2)", ""};
        case Field::TopBars: return {"2D25", "4A20 2/2", "2B25+2C22"};
        case Field::BottomBars: return {"6B25 2/4", "2A14", "5C20+1D16", ""};
        case Field::Side: return {"G6A12", "G4D14", ""};
        default: return {"(-1.200)", "(0.350)", ""};
        }
    };
    std::mt19937 random(FirstSeed(31));
    const auto below = [&](std::size_t count) { return random() % count; };
    for (const Shape& shape : Shapes) {
        DrawnFloor floor = SmallFloor();
        const std::string bytes = Draw(shape, floor);
        const Drawing drawing = Parsed(bytes);
        Project project = drawing.Get();
        ASSERT_EQ(drawing.Written(project), bytes) << shape.name;
        ASSERT_EQ(project.beams.size(), floor.labels.size()) << shape.name;
        // A line that is emptied takes its record along.
        const bool canEmpty = shape.labels == LabelAs::Lines;
        for (int step = 0; step < 40; ++step) {
            const bool inPlace = below(3) == 0;
            const std::size_t beam = below(project.beams.size());
            if (inPlace && !project.beams[beam].inPlace.empty()) {
                const std::size_t at = below(project.beams[beam].inPlace.size());
                InPlace& text = project.beams[beam].inPlace[at];
                const Drawing& same = drawing;
                const std::string& first = same.Get().beams[beam].inPlace[at].text;
                std::vector<std::string> choices = texts(RowOf(text.role).field);
                if (choices.size() < 3 || text.role == Role::Torsion || text.role == Role::TopSupport) {
                    choices = {text.role == Role::Torsion ? "N6D12" : "7D25 2/5", first, ""};
                }
                text.text = choices[below(choices.size())];
                const std::vector<DrawnText> drawn = SmallFloor().inPlace;
                const auto found = std::find_if(drawn.begin(), drawn.end(),
                                                [&](const DrawnText& one) { return one.text == first; });
                ASSERT_NE(found, drawn.end()) << first;
                floor.inPlace[static_cast<std::size_t>(found - drawn.begin())].text = text.text;
            } else {
                const Field field = fields[below(fields.size())];
                const std::vector<std::string> choices = texts(field);
                const std::string text = choices[below(choices.size())];
                const auto member = RowOf(field).ofBeam;
                if ((drawing.Get().beams[beam].*member).empty() || (text.empty() && !canEmpty)) {
                    continue;
                }
                project.beams[beam].*member = text;
                floor.labels[beam].texts.*member = text;
            }
            const auto [written, wanted] =
                Difference(InOnePiece(drawing.Written(project)), InOnePiece(Draw(shape, floor)));
            ASSERT_TRUE(written.empty() && wanted.empty())
                << shape.name << ", step " << step << ": written\n"
                << written << "\nwanted\n"
                << wanted;
        }
    }
}

TEST(WriteDrawing, ACombinedLineChangesInItsPart)
{
    struct Case {
        std::string drawn, name;
        Field field;
        std::string text, wanted;
    };
    // Each text takes the place of one line of a label.
    const std::vector<Case> cases = {
        {"2%%13214;3%%13216", "", Field::BottomBars, "4C18", "2%%13214;4%%13218"},
        {"2%%13214;3\\U+008416", "", Field::TopBars, "2B20", "2%%13120;3\\U+008416"},
        {" 2%%13214 ; 3%%13216 ", "", Field::TopBars, "2C16", " 2%%13216 ; 3%%13216 "},
        {"2%%132%%u14", "", Field::TopBars, "2C16", "2%%13216"},
        {"\xB1\xEA\xB8\xDF 55.350", "", Field::Elevation, "55.400", "\xB1\xEA\xB8\xDF 55.400"},
        {"%%1328@100/200(2) G4%%13212", "", Field::Side, "G6C12", "%%1328@100/200(2) G6%%13212"},
        {"%%1328@100/200(2)  2%%13222", "", Field::Stirrup, "C10@150(4)", "%%13210@150(4)  2%%13222"},
        {"2\xA2\x4C"
         "14;3%%13216",
         "", Field::BottomBars, "3C18",
         "2\xA2\x4C"
         "14;3%%13218"},
        {"2\xA2\x4C"
         "14",
         "", Field::TopBars, "4B25",
         "4\xA2\x4B"
         "25"},
    };
    for (const Case& one : cases) {
        DrawnFloor floor = SmallFloor();
        floor.labels[4].texts = Beam();
        floor.labels[4].texts.name = "L1(1)";
        floor.labels[4].texts.stirrup = "2C14;3C16";
        const std::string marker = "2%%13214;3%%13216";  // of L1(1)
        std::string bytes = Draw({}, floor);
        ASSERT_EQ(Count(bytes, marker), 1U);
        const auto with = [&](const std::string& text) {
            std::string changed = bytes;
            return changed.replace(changed.find(marker), marker.size(), text);
        };
        const Drawing drawing = Parsed(with(one.drawn));
        Project project = drawing.Get();
        std::string& text = project.beams.at(4).*RowOf(one.field).ofBeam;
        EXPECT_FALSE(text.empty()) << one.drawn;
        text = one.text;
        const auto [written, wanted] = Difference(drawing.Written(project), with(one.wanted));
        EXPECT_TRUE(written.empty() && wanted.empty())
            << one.drawn << ": " << written << "\nwanted " << wanted;
    }
}

TEST(WriteDrawing, ACharacterThatTheEncodingLacksBecomesItsEscape)
{
    for (const Shape& shape : Shapes) {
        const Drawing drawing = Parsed(Draw(shape, SmallFloor()));
        Project project = drawing.Get();
        project.beams[0].name = "KL1-☃主(2)";
        const std::string written = drawing.Written(project);
        const std::string wanted = shape.isUtf8 ? "KL1-☃主(2) 300x600" : "KL1-\\U+2603\xD6\xF7(2) 300x600";
        EXPECT_EQ(Count(written, wanted), 1U) << shape.name;
    }
}

TEST(WriteDrawing, ANewTextIsACopyOfItsNeighbourOnePitchOn)
{
    for (const Shape& shape : Shapes) {
        const std::string bytes = Draw(shape, SmallFloor());
        const Drawing drawing = Parsed(bytes);
        Project project = drawing.Get();
        project.beams[4].side = "G2C10";
        if (shape.labels == LabelAs::Attributes) {
            EXPECT_THROW(static_cast<void>(drawing.Written(project)), Failure);
            continue;
        }
        project.beams[4].elevation = "(-0.300)";
        project.beams[0].bottomBars = "3C25";  // joins the top bars
        const std::string written = drawing.Written(project);
        const Drawing again = Parsed(written);
        EXPECT_EQ(Told(again.Get()), Told(project)) << shape.name;
        if (shape.labels != LabelAs::Lines) {
            continue;
        }
        // Upright: one pitch to the right. Nothing is lost, and handles stay unique.
        const PlanPoint side = again.Get().beams[4].places.at(static_cast<std::size_t>(Field::Side)).at;
        EXPECT_EQ(Told({side.x / shape.scale, side.y / shape.scale}), "5300,2000") << shape.name;
        EXPECT_EQ(Count(written, "TEXT" + std::string(shape.lineEnd)),
                  Count(bytes, "TEXT" + std::string(shape.lineEnd)) + 2)
            << shape.name;
        if (shape.hasHandles) {
            std::vector<std::string> handles;
            for (const AnnotationText& text : again.Texts()) {
                handles.push_back(text.handle);
            }
            std::sort(handles.begin(), handles.end());
            EXPECT_EQ(std::adjacent_find(handles.begin(), handles.end()), handles.end()) << shape.name;
            const auto seed = [&](const std::string& file) {
                const std::string key = std::string("$HANDSEED") + shape.lineEnd;
                const std::size_t value = file.find(shape.lineEnd, file.find(key) + key.size());
                return std::stoul(file.substr(value), nullptr, 16);
            };
            EXPECT_EQ(seed(written), seed(bytes) + 2) << shape.name;
        }
    }
}

TEST(WriteDrawing, NewTextsInPlaceAreDrawnWhereTheyAreRead)
{
    for (const Shape& shape : Shapes) {
        const Drawing drawing = Parsed(Draw(shape, SmallFloor()));
        Project project = drawing.Get();
        for (const auto& [role, number, text] :
             std::vector<std::tuple<Role, int, const char*>>{{Role::Bottom, 1, "5C25"},
                                                             {Role::TopSpan, 1, "2C25"},
                                                             {Role::TopSupport, 1, "4C25"},
                                                             {Role::Stirrup, 1, "C12@100(2)"}}) {
            InPlace one;
            one.role = role;
            one.number = number;
            one.text = text;
            project.beams[1].inPlace.push_back(one);
        }
        const Drawing again = Parsed(drawing.Written(project));
        EXPECT_EQ(Told(again.Get()), Told(project)) << shape.name;
        for (const AnnotationText& text : again.Texts()) {
            EXPECT_FALSE(text.open.has_value()) << shape.name << ": " << text.text;
        }
    }
}

}  // namespace
}  // namespace Desk
