// Makes the project out of what was found in the file.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "desk/drawing/Parts.h"
#include "desk/project/ProjectFile.h"

namespace Desk {

namespace {

PlanPoint Along(const TextPlace& place, double length)
{
    const double angle = place.angle * std::numbers::pi / 180.0;
    return {place.at.x + length * std::cos(angle), place.at.y + length * std::sin(angle)};
}

// A second stretch of plain bars in a label is its bottom bars.
Field FieldIn(const Beam& beam, Field field)
{
    return field == Field::TopBars && !beam.topBars.empty() && beam.bottomBars.empty() ? Field::BottomBars
                                                                                       : field;
}

// The part of a line's length that is before the annotation is told by its bytes.
TextPlace PlaceOf(const TextLine& line, const Annotation& annotation)
{
    TextPlace place = line.place;
    if (!line.plain.empty()) {
        const auto part = static_cast<double>(annotation.at.begin) / static_cast<double>(line.plain.size());
        place.at = Along(place, line.length * part);
    }
    return place;
}

class DrawingReader {
public:
    DrawingReader(std::string bytes, const std::string& name, std::string_view companion)
        : m_parts(std::make_unique<Drawing::Parts>())
    {
        if (!companion.empty()) {
            m_kept = ParseProject(companion, CompanionFile(name).string());
        }
        m_parts->file = ReadEntities(std::move(bytes), name);
        m_parts->placed = PlaceEntities(m_parts->file, name);
        m_parts->found = FindTexts(m_parts->file, m_parts->placed);
    }

    std::unique_ptr<Drawing::Parts> Read()
    {
        FindOwners();
        m_parts->project.title = m_kept.title;
        m_parts->project.walls = std::move(m_kept.walls);
        m_parts->project.axesAcross = std::move(m_kept.axesAcross);
        m_parts->project.axesUp = std::move(m_kept.axesUp);
        m_parts->project.pointed = std::move(m_kept.pointed);
        m_parts->project.checksOff = std::move(m_kept.checksOff);
        m_parts->project.inFile = m_kept.inFile;
        ListTexts();
        AddBeams();
        AddInPlace();
        TakeKept();
        ShowRest();
        return std::move(m_parts);
    }

private:
    void FindOwners()
    {
        std::vector<bool> hasLabels(m_parts->file.layers.size(), false);
        for (const FoundLabel& label : m_parts->found.labels) {
            hasLabels[m_parts->placed.texts[m_parts->found.lines[label.lines.front()].placed].layer] = true;
        }
        std::vector<OutlineKind> kinds(hasLabels.size());
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            kinds[i] = hasLabels[i] ? OutlineKind::None : OutlineKindOf(LayerName(i));
        }
        std::vector<PlanLine> beams;
        std::vector<PlanLine> carriers;
        const LineList& placed = m_parts->placed.lines;
        for (std::size_t i = 0; i < placed.lines.size(); ++i) {
            const OutlineKind kind = kinds[placed.LayerOf(i)];
            if (kind == OutlineKind::Beam) {
                beams.push_back(placed.lines[i]);
            } else if (kind == OutlineKind::Carrier) {
                carriers.push_back(placed.lines[i]);
            }
        }
        ShowLines();
        std::map<std::size_t, PlanPoint> pointed;
        for (std::size_t i = 0; i < m_parts->found.labels.size(); ++i) {
            const TextLine& name = m_parts->found.lines[m_parts->found.labels[i].lines.front()];
            if (const auto at = m_kept.pointed.find(HandleOf(name)); at != m_kept.pointed.end()) {
                pointed.emplace(i, at->second);
            }
        }
        const double unit = m_parts->file.unitScale;
        m_parts->owners = std::make_unique<Owners>(m_parts->found, FindRuns(beams, unit),
                                                   FindRuns(carriers, unit), unit, pointed);
    }

    // In UTF-8.
    [[nodiscard]] std::string LayerName(std::size_t layer) const
    {
        return DecodeText(m_parts->file.layers[layer].name, m_parts->file.charset, false).text;
    }

    [[nodiscard]] std::string HandleOf(const TextLine& line) const
    {
        const std::string_view handle = m_parts->EntityOf(line).handle;
        return handle.empty() ? "#" + std::to_string(line.placed + 1) : std::string(handle);
    }

    // One entry a line; the label's lines are told first in which label they are.
    void ListTexts()
    {
        std::vector<std::size_t> textOf(m_parts->found.lines.size(), None);
        std::vector<std::size_t> shown = m_parts->found.inPlace;
        for (const FoundLabel& label : m_parts->found.labels) {
            shown.insert(shown.end(), label.lines.begin(), label.lines.end());
        }
        std::sort(shown.begin(), shown.end());
        for (const std::size_t index : shown) {
            const TextLine& line = m_parts->found.lines[index];
            textOf[index] = m_parts->texts.size();
            AnnotationText text;
            text.handle = HandleOf(line);
            text.text = DrawnText(line);
            text.place = line.place;
            m_parts->texts.push_back(std::move(text));
            m_parts->lineOf.push_back(index);
        }
        m_textOf = std::move(textOf);
    }

    [[nodiscard]] std::string DrawnText(const TextLine& line) const
    {
        const TextEntity& entity = m_parts->EntityOf(line);
        const std::string value = ValueOf(m_parts->file, entity);
        return DecodeText(
                   std::string_view(value).substr(line.whole.begin, line.whole.end - line.whole.begin),
                   m_parts->file.charset, entity.kind == TextKind::MText)
            .text;
    }

    void AddBeams()
    {
        for (std::size_t i = 0; i < m_parts->found.labels.size(); ++i) {
            const FoundLabel& label = m_parts->found.labels[i];
            Beam beam;
            std::vector<std::optional<Source>> sources(BeamFields().size());
            beam.places.resize(BeamFields().size());
            const std::string handle = HandleOf(m_parts->found.lines[label.lines.front()]);
            const OwnerBeam& owner = m_parts->owners->Beams()[i];
            for (const std::size_t index : label.lines) {
                const TextLine& line = m_parts->found.lines[index];
                AnnotationText& text = m_parts->texts[m_textOf[index]];
                text.label = handle;
                for (std::size_t k = 0; k < line.annotations.size(); ++k) {
                    const Field field = FieldIn(beam, line.annotations[k].field);
                    if (RowOf(field).ofBeam == nullptr || !(beam.*RowOf(field).ofBeam).empty()) {
                        continue;
                    }
                    beam.*RowOf(field).ofBeam = line.annotations[k].text;
                    sources[NumberOf(field)] = Source{index, k};
                    beam.places[NumberOf(field)] = PlaceOf(line, line.annotations[k]);
                    text.roles.emplace_back(RowOf(field).key);
                    text.refs.push_back({false, i, field});
                }
            }
            m_parts->texts[m_textOf[label.lines.front()]].open = owner.open;
            beam.plan = owner.plan;
            SetAxis(beam, owner, m_parts->file.unitScale);
            m_parts->project.beams.push_back(std::move(beam));
            m_parts->sources.push_back(std::move(sources));
        }
    }

    void AddInPlace()
    {
        for (std::size_t i = 0; i < m_parts->found.inPlace.size(); ++i) {
            const std::size_t index = m_parts->found.inPlace[i];
            AnnotationText& text = m_parts->texts[m_textOf[index]];
            text.inPlace = true;
            OwnerText owner = m_parts->owners->InPlace()[i];
            if (const auto at = m_parts->project.pointed.find(text.handle);
                !owner.beam && at != m_parts->project.pointed.end()) {
                owner = m_parts->owners->TextAt(index, at->second, {}).value_or(owner);
            }
            if (!owner.beam) {
                text.open = std::move(owner.open);
                text.roles = RolesAnywhere(m_parts->found.lines[index]);
                continue;
            }
            const FoundLabel& label = m_parts->found.labels[*owner.beam];
            text.label = HandleOf(m_parts->found.lines[label.lines.front()]);
            Beam& beam = m_parts->project.beams[*owner.beam];
            for (InPlace& each : InPlaceOf(*m_parts, m_textOf[index], owner)) {
                text.roles.emplace_back(RowOf(each.role).key);
                text.refs.push_back(
                    {false, *owner.beam, RowOf(each.role).field, static_cast<int>(beam.inPlace.size())});
                beam.inPlace.push_back(std::move(each));
            }
        }
    }

    // What an open text is for certain.
    static std::vector<std::string> RolesAnywhere(const TextLine& line)
    {
        std::vector<std::string> roles;
        for (const RoleRow& row : AllRoles()) {
            for (const Annotation& annotation : line.annotations) {
                if (annotation.field == row.field && annotation.field != Field::TopBars &&
                    annotation.field != Field::BottomBars) {
                    roles.emplace_back(row.key);
                }
            }
        }
        return roles;
    }

    // The k-th beam of a name keeps what the companion has for the k-th of it.
    void TakeKept()
    {
        std::multimap<std::string, const Beam*> kept;
        for (const Beam& beam : m_kept.beams) {
            kept.emplace(beam.name, &beam);
        }
        for (Beam& beam : m_parts->project.beams) {
            const auto found = kept.find(beam.name);
            if (found == kept.end()) {
                continue;
            }
            beam.area = found->second->area;
            beam.concreteGrade = found->second->concreteGrade;
            beam.seismicClass = found->second->seismicClass;
            beam.floor = found->second->floor;
            kept.erase(found);
        }
    }

    void ShowRest()
    {
        std::vector<bool> isAnnotation(m_parts->placed.texts.size(), false);
        for (const std::size_t line : m_parts->lineOf) {
            isAnnotation[m_parts->found.lines[line].placed] = true;
        }
        for (std::size_t i = 0; i < isAnnotation.size(); ++i) {
            const PlacedText& text = m_parts->placed.texts[i];
            if (!isAnnotation[i] && !text.isHidden) {
                ShowText(text);
            }
        }
    }

    // The lines that show become the backdrop; no one needs the others any more.
    void ShowLines()
    {
        LineList placed = std::exchange(m_parts->placed.lines, LineList());
        std::size_t kept = 0;
        for (std::size_t i = 0; i < placed.lines.size(); ++i) {
            if (!placed.IsHidden(i)) {
                placed.lines[kept++] = placed.lines[i];
            }
        }
        placed.lines.resize(kept);
        m_parts->behind.lines = std::move(placed.lines);
    }

    void ShowText(const PlacedText& text)
    {
        const bool isMText = text.text->kind == TextKind::MText;
        const std::string drawn =
            DecodeText(ValueOf(m_parts->file, *text.text), m_parts->file.charset, isMText).text;
        std::string shown;
        for (std::size_t begin = 0; begin <= drawn.size();) {
            const std::size_t end = std::min(drawn.find('\n', begin), drawn.size());
            shown += begin > 0 ? "\n" : "";
            shown += ShowPlain(PlainText(std::string_view(drawn).substr(begin, end - begin)));
            begin = end + 1;
        }
        TextPlace place = text.place;
        if (isMText && text.text->attachment <= 3) {  // its position is the upper edge
            const double angle = place.angle * std::numbers::pi / 180.0;
            place.at.x += place.height * std::sin(angle);
            place.at.y -= place.height * std::cos(angle);
        }
        m_parts->behind.texts.push_back({std::move(shown), place});
    }

    static constexpr std::size_t None = ~std::size_t{0};

    std::unique_ptr<Drawing::Parts> m_parts;
    Project m_kept;                     // what the companion holds
    std::vector<std::size_t> m_textOf;  // by line: index of the texts, or None
};

}  // namespace

std::size_t NumberOf(Field field)
{
    const std::span<const Field> fields = BeamFields();
    return static_cast<std::size_t>(std::find(fields.begin(), fields.end(), field) - fields.begin());
}

void SetAxis(Beam& beam, const OwnerBeam& owner, double unit)
{
    beam.start = owner.frame.At(owner.supports.front(), owner.axis);
    beam.end = owner.frame.At(owner.supports.back(), owner.axis);
    beam.spans.clear();
    beam.drawnWidth = owner.run ? std::round(owner.width / unit * 10.0) / 10.0 : 0.0;
    if (owner.run) {
        for (std::size_t i = 1; i < owner.supports.size(); ++i) {
            beam.spans.push_back((owner.supports[i] - owner.supports[i - 1]) / unit);
        }
    }
}

std::vector<InPlace> InPlaceOf(const Drawing::Parts& parts, std::size_t text, const OwnerText& owner)
{
    std::vector<InPlace> all;
    const TextLine& line = parts.found.lines[parts.lineOf[text]];
    for (const OwnerRole& role : owner.roles) {
        const Annotation& annotation = line.annotations[role.annotation];
        InPlace each;
        each.role = role.role;
        each.number = role.number;
        each.text = annotation.text;
        each.place = PlaceOf(line, annotation);
        each.drawn = static_cast<int>(text);
        all.push_back(std::move(each));
    }
    return all;
}

std::unique_ptr<Drawing::Parts> ReadParts(std::string bytes, const std::string& name,
                                          std::string_view companion)
{
    return DrawingReader(std::move(bytes), name, companion).Read();
}

}  // namespace Desk
