// From readings to beams and walls.
#include "desk/reading/ImportTexts.h"

#include <algorithm>

#include "desk/project/Encoding.h"
#include "desk/project/ProjectFile.h"

namespace Desk {

namespace {

template <class Item>
Item ItemOf(const DrawnText& drawn)
{
    Item item;
    item.inFile = DrawnInFile(drawn.text, drawn.line);
    return item;
}

}  // namespace

std::vector<ImportedText> ReadTexts(const TextsFile& file, const Choices& choices)
{
    std::vector<ImportedText> texts;
    texts.reserve(file.texts.size());
    for (const DrawnText& drawn : file.texts) {
        ImportedText text{drawn, KindOf(drawn.kind), {}};
        if (drawn.fault.empty()) {
            text.reading = ReadText(drawn.text, text.kind, choices);
        } else {
            text.reading.why = drawn.fault;
        }
        if (text.kind == Kind::Other) {
            text.reading.contradiction =
                "the kind \"" + drawn.kind + "\" is not known; the text alone decided";
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

Project ProjectOf(const std::vector<ImportedText>& texts, const std::string& title)
{
    Project project;
    project.title = title;
    for (const ImportedText& text : texts) {
        const std::vector<Annotation>& annotations = text.reading.annotations;
        if (annotations.empty()) {
            continue;
        }
        // Wall bars are always alone.
        if (annotations.front().field == Field::HorizontalBars) {
            Wall wall = ItemOf<Wall>(text.drawn);
            wall.horizontalBars = annotations.front().text;
            project.walls.push_back(std::move(wall));
            continue;
        }
        Beam beam = ItemOf<Beam>(text.drawn);
        for (const Annotation& annotation : annotations) {
            beam.*RowOf(annotation.field).ofBeam = annotation.text;
        }
        project.beams.push_back(std::move(beam));
    }
    return project;
}

std::string TitleFor(const std::filesystem::path& texts)
{
    const std::string title = texts.stem().string();
    const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < 0x20 || ch == 0x7F; };
    const bool isShowable = GbkFromUtf8(title) && std::none_of(title.begin(), title.end(), isControl);
    return isShowable ? title : "import";
}

}  // namespace Desk
