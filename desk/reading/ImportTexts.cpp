// From readings to beams and walls.
#include "desk/reading/ImportTexts.h"

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

}  // namespace Desk
