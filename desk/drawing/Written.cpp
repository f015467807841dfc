// Which values of the file change, and to what. Everything else is copied.
#include <algorithm>
#include <map>
#include <set>

#include "desk/drawing/GradeSpelling.h"
#include "desk/drawing/Parts.h"
#include "desk/drawing/Splices.h"

namespace Desk {

namespace {

std::string ComposeBars(const std::string& top, const std::string& erection, const std::string& bottom)
{
    std::string text = top;
    if (!erection.empty()) {
        text += (top.empty() ? "(" : "+(") + erection + ")";
    }
    return bottom.empty() ? text : text + ";" + bottom;
}

constexpr double UsualPitch = 325.0 / 300.0;  // from line to line of a label, in text heights

class Writer {
public:
    Writer(const Drawing::Parts& parts, const Project& edited)
        : m_parts(parts), m_edited(edited), m_spelling(parts), m_splices(parts)
    {
    }

    std::vector<std::string_view> Write()
    {
        if (m_edited.beams.size() < m_parts.project.beams.size()) {
            throw Failure(Phrase("Desk", "the drawing takes no beams that it has no label for"));
        }
        for (std::size_t i = 0; i < m_parts.project.beams.size(); ++i) {
            WriteBeam(i);
        }
        for (std::size_t i = m_parts.project.beams.size(); i < m_edited.beams.size(); ++i) {
            if (!IsEmptied(m_edited.beams[i])) {
                AddLabel(i);
            }
        }
        RemoveParts();
        return m_splices.Written();
    }

private:
    [[nodiscard]] const TextLine& LineOf(const Source& source) const
    {
        return m_parts.found.lines[source.line];
    }
    [[nodiscard]] const std::optional<Source>& SourceOf(std::size_t beam, Field field) const
    {
        return m_parts.sources[beam][NumberOf(field)];
    }

    void WriteBeam(std::size_t index)
    {
        const Beam& before = m_parts.project.beams[index];
        const Beam& now = m_edited.beams[index];
        m_newLines = 0;
        // New lines in the order in which labels have them.
        const auto write = [&](std::initializer_list<Field> fields) {
            for (const Field field : fields) {
                const std::string& text = now.*RowOf(field).ofBeam;
                if (text != before.*RowOf(field).ofBeam) {
                    WriteField(index, field, text);
                }
            }
        };
        write({Field::Name, Field::Section, Field::Stirrup});
        if (before.topBars != now.topBars || before.erection != now.erection ||
            before.bottomBars != now.bottomBars) {
            WriteBars(index, now);
        }
        write({Field::Torsion, Field::Side, Field::Elevation});
        WriteEnd(index, now.leftEnd, 1);
        WriteEnd(index, now.rightEnd, static_cast<int>(m_parts.owners->Beams()[index].supports.size()));
        for (std::size_t i = 0; i < now.inPlace.size(); ++i) {
            WriteInPlace(index, now.inPlace[i], i < before.inPlace.size() ? &before.inPlace[i] : nullptr);
        }
    }

    void WriteField(std::size_t beam, Field field, const std::string& text)
    {
        if (field == Field::Name && text.empty() && !IsEmptied(m_edited.beams[beam])) {
            throw Failure(Phrase("Desk", "%1: a label needs its name"), m_parts.project.beams[beam].name);
        }
        if (const std::optional<Source>& source = SourceOf(beam, field)) {
            text.empty() ? Remove(*source) : Replace(*source, text);
        } else if (field == Field::Section) {
            const std::optional<Source>& name = SourceOf(beam, Field::Name);
            Insert(*name, " " + text, true);
        } else {
            AddLine(beam, text, field != Field::Elevation);
        }
    }

    // The whole label goes.
    static bool IsEmptied(const Beam& beam)
    {
        return std::all_of(BeamFields().begin(), BeamFields().end(),
                           [&](Field field) { return (beam.*RowOf(field).ofBeam).empty(); });
    }

    // Top, erection and bottom bars share a line: "2C14+(2C12);3C14".
    void WriteBars(std::size_t beam, const Beam& now)
    {
        constexpr Field Group[] = {Field::TopBars, Field::Erection, Field::BottomBars};
        std::set<std::size_t> lines;
        std::vector<Source> present;
        bool isSame = true;  // the same ones are there
        for (const Field field : Group) {
            const std::optional<Source>& source = SourceOf(beam, field);
            isSame = isSame && source.has_value() != (now.*RowOf(field).ofBeam).empty();
            if (source) {
                lines.insert(source->line);
                present.push_back(*source);
            }
        }
        const std::string all = ComposeBars(now.topBars, now.erection, now.bottomBars);
        if (isSame) {
            for (const Field field : Group) {
                const std::string& text = now.*RowOf(field).ofBeam;
                if (text != m_parts.project.beams[beam].*RowOf(field).ofBeam) {
                    Replace(*SourceOf(beam, field), text);
                }
            }
        } else if (lines.size() == 1 && !all.empty()) {
            ReplaceGroup(present, all);
        } else {
            for (const Source& source : present) {
                Remove(source);
            }
            if (!all.empty()) {
                AddLine(beam, all, true);
            }
        }
    }

    void WriteEnd(std::size_t beam, const std::string& text, int support)
    {
        if (!text.empty()) {
            AddInPlace(beam, {Role::TopSupport, support, text, {}, -1, {}});
        }
    }

    void WriteInPlace(std::size_t beam, const InPlace& now, const InPlace* before)
    {
        const std::optional<Source> source = m_parts.SourceOf(before != nullptr ? *before : now);
        if (!source) {
            if (!now.text.empty()) {
                AddInPlace(beam, now);
            }
            return;
        }
        const std::string& was =
            before != nullptr ? before->text : LineOf(*source).annotations[source->annotation].text;
        if (now.text != was) {
            now.text.empty() ? Remove(*source) : Replace(*source, now.text);
        }
    }

    // The part of a line, in its plain text. An annotation whose part cannot be told has the line to
    // itself.
    [[nodiscard]] Stretch PartOf(const Source& source) const
    {
        const TextLine& line = LineOf(source);
        const Stretch at = line.annotations[source.annotation].at;
        if (at.end > at.begin) {
            return at;
        }
        if (line.annotations.size() > 1) {
            throw Failure(
                Phrase("Desk", "%1: this text of the drawing can only be changed in the drawing program"),
                ShowPlain(line.plain));
        }
        return {0, line.plain.size()};
    }

    void Replace(const Source& source, const std::string& text)
    {
        const Stretch part = PartOf(source);
        Put(LineOf(source), part,
            m_spelling.Spell(LineOf(source), part, text,
                             IsBars(LineOf(source).annotations[source.annotation].field)));
    }

    void ReplaceGroup(const std::vector<Source>& present, const std::string& text)
    {
        const TextLine& line = LineOf(present.front());
        Stretch all{line.plain.size(), 0};
        for (const Source& source : present) {
            Stretch part = PartOf(source);
            if (line.annotations[source.annotation].field == Field::Erection) {
                const std::size_t open = line.plain.rfind('(', part.begin);
                const std::size_t close = line.plain.find(')', part.end - 1);
                part.begin = open == std::string::npos ? part.begin : open;
                part.end = close == std::string::npos ? part.end : close + 1;
                while (part.begin > 0 &&
                       (line.plain[part.begin - 1] == '+' || line.plain[part.begin - 1] == ' ')) {
                    --part.begin;
                }
            }
            all = {std::min(all.begin, part.begin), std::max(all.end, part.end)};
        }
        if (all.begin == 1 && line.plain.front() == ';') {
            all.begin = 0;
        }
        Put(line, all, m_spelling.Spell(line, all, text, true));
    }

    void Insert(const Source& after, const std::string& text, bool isPlain)
    {
        const TextLine& line = LineOf(after);
        const std::size_t end = PartOf(after).end;
        Put(line, {end, end}, m_spelling.Spell(line, {end, end}, text, !isPlain));
    }

    static bool IsBars(Field field)
    {
        const Ranker ranker = RowOf(field).ranker;
        return ranker == Ranker::Bars || ranker == Ranker::Stirrups;
    }

    void Remove(const Source& source) { m_removed[source.line].insert(source.annotation); }

    // A line that says nothing more goes; of the others the part goes with what joins it to its neighbours.
    void RemoveParts()
    {
        for (const auto& [index, annotations] : m_removed) {
            const TextLine& line = m_parts.found.lines[index];
            const bool isEmptied = line.isWhole && annotations.size() == line.annotations.size() &&
                                   m_written.count(index) == 0;
            if (isEmptied) {
                RemoveLine(line);
                continue;
            }
            for (const std::size_t annotation : annotations) {
                Stretch part = PartOf({index, annotation});
                const auto joins = [&line](std::size_t at) {
                    return std::string_view(" ;,+(").find(line.plain[at]) != std::string_view::npos;
                };
                const bool isErection = line.annotations[annotation].field == Field::Erection;
                if (isErection && part.end < line.plain.size() && line.plain[part.end] == ')') {
                    ++part.end;
                }
                const bool isFirst = part.begin == 0;
                while (part.begin > 0 && joins(part.begin - 1)) {
                    --part.begin;
                }
                while (isFirst && part.end < line.plain.size() && line.plain[part.end] == ' ') {
                    ++part.end;
                }
                Put(line, part, "");
            }
        }
    }

    void RemoveLine(const TextLine& line)
    {
        const TextEntity& entity = m_parts.EntityOf(line);
        if (entity.kind == TextKind::Text) {
            m_splices.Remove(entity);
        } else {
            m_splices.Put(entity, line.whole, "");  // an attribute stays, and so do an MTEXT's other lines
        }
    }

    void Put(const TextLine& line, const Stretch& part, const std::string& text)
    {
        m_written.insert(static_cast<std::size_t>(&line - m_parts.found.lines.data()));
        Stretch value = line.whole;
        if (!line.spelled.empty()) {
            value.begin =
                part.begin < line.spelled.size() ? line.spelled[part.begin].begin : line.spelled.back().end;
            value.end = part.end > part.begin ? line.spelled[part.end - 1].end
                        : part.begin > 0      ? line.spelled[part.begin - 1].end
                                              : value.begin;
            value.begin = part.end > part.begin ? value.begin : value.end;
        }
        m_splices.Put(m_parts.EntityOf(line), value, text);
    }

    // One more line below a label's last one.
    void AddLine(std::size_t beam, const std::string& text, bool isBars)
    {
        const FoundLabel& label = m_parts.found.labels[beam];
        const TextLine& last = m_parts.found.lines[label.lines.back()];
        const TextEntity& entity = m_parts.EntityOf(last);
        const std::string spelled =
            m_spelling.Spell(last, {last.plain.size(), last.plain.size()}, text, isBars);
        ++m_newLines;
        if (entity.kind == TextKind::MText) {
            m_splices.Put(entity, {last.whole.end, last.whole.end}, "\\P" + spelled);
            return;
        }
        const double pitch = PitchOf(label) * m_newLines;
        const PlanPoint from = last.place.at;
        const PlanPoint step = label.frame.At(0.0, -pitch);
        m_splices.AddCopy(last, spelled, {from.x + step.x, from.y + step.y});
    }

    [[nodiscard]] double PitchOf(const FoundLabel& label) const
    {
        if (label.lines.size() < 2) {
            return UsualPitch * m_parts.found.lines[label.lines.front()].place.height;
        }
        const auto v = [&](std::size_t fromEnd) {
            return label.frame.V(m_parts.found.lines[label.lines[label.lines.size() - fromEnd]].place.at);
        };
        return v(2) - v(1);
    }

    // A label on an outline that had none, in lines from the name down.
    void AddLabel(std::size_t index)
    {
        const Beam& beam = m_edited.beams[index];
        const PlanPoint middle = MiddleOf(beam);
        const std::optional<OwnerBeam> owner = m_parts.owners->OutlineAt(middle, Labelled(m_edited, index));
        const TextLine* const like = owner ? m_parts.LabelLike(owner->frame, middle) : nullptr;
        if (like == nullptr || beam.places.empty()) {
            throw Failure(Phrase("Desk", "the drawing takes no beams that it has no label for"));
        }
        if (beam.name.empty()) {
            throw Failure(Phrase("Desk", "%1: a label needs its name"), std::to_string(index + 1));
        }
        const std::pair<std::string, bool> lines[] = {
            {beam.section.empty() ? beam.name : beam.name + " " + beam.section, false},
            {beam.stirrup, true},
            {ComposeBars(beam.topBars, beam.erection, beam.bottomBars), true},
            {beam.torsion, true},
            {beam.side, true},
            {beam.elevation, false}};
        const TextPlace& name = beam.places[NumberOf(Field::Name)];
        const Frame frame = Frame::Reading(name.angle);
        const Stretch end{like->plain.size(), like->plain.size()};
        double v = frame.V(name.at);
        for (const auto& [text, isBars] : lines) {
            if (!text.empty()) {
                m_splices.AddCopy(*like, m_spelling.Spell(*like, end, text, isBars),
                                  frame.At(frame.U(name.at), v));
                v -= UsualPitch * name.height;
            }
        }
        const auto beside = [&](const InPlace& text) {
            if (!text.text.empty()) {
                AddBeside(*owner, *like, text);
            }
        };
        beside({Role::TopSupport, 1, beam.leftEnd, {}, -1, {}});
        beside({Role::TopSupport, static_cast<int>(owner->supports.size()), beam.rightEnd, {}, -1, {}});
        for (const InPlace& text : beam.inPlace) {
            beside(text);
        }
    }

    // A text in place that the drawing does not have yet, beside its beam.
    void AddInPlace(std::size_t beam, const InPlace& text)
    {
        const OwnerBeam& owner = m_parts.owners->Beams()[beam];
        const TextLine* const like = Like(beam, owner.frame);
        if (like == nullptr) {
            throw Failure(
                Phrase("Desk",
                       "%1: the drawing has no text beside the beam that a new one could be made like"),
                m_parts.project.beams[beam].name);
        }
        AddBeside(owner, *like, text);
    }

    void AddBeside(const OwnerBeam& owner, const TextLine& like, const InPlace& text)
    {
        constexpr double FromEdge = 150.0;         // mm
        constexpr double AwayFromSupport = 100.0;  // mm
        const double unit = m_parts.file.unitScale;
        const double height = like.place.height;
        const double length = 0.75 * height * static_cast<double>(text.text.size());
        const auto last = static_cast<int>(owner.supports.size());
        const bool isSupport = text.role == Role::TopSupport;
        const int number = std::clamp(text.number, 1, isSupport ? last : last - 1);
        const double at = owner.supports[static_cast<std::size_t>(number - 1)];
        double u = at + AwayFromSupport * unit;
        if (isSupport && number == last) {
            u = at - AwayFromSupport * unit - length;
        } else if (!isSupport) {
            u = (at + owner.supports[static_cast<std::size_t>(number)] - length) / 2.0;
        }
        const bool isAbove = isSupport || text.role == Role::TopSpan;
        const double side = owner.width / 2.0 + FromEdge * unit;
        const double v = owner.axis + (isAbove ? side : -side - height);
        const bool isPositioned = text.place.height > 0.0;
        m_splices.AddCopy(like,
                          m_spelling.Spell(like, {like.plain.size(), like.plain.size()}, text.text,
                                           IsBars(RowOf(text.role).field)),
                          isPositioned ? text.place.at : owner.frame.At(u, v));
    }

    // A TEXT along the beam: one in place, else a line of its label.
    [[nodiscard]] const TextLine* Like(std::size_t beam, const Frame& frame) const
    {
        const auto fits = [&](const TextLine& line) {
            const Frame own = Frame::Reading(line.place.angle);
            return m_parts.EntityOf(line).kind == TextKind::Text && own.IsParallel(frame);
        };
        for (const InPlace& text : m_parts.project.beams[beam].inPlace) {
            if (const std::optional<Source> source = m_parts.SourceOf(text);
                source && fits(LineOf(*source))) {
                return &LineOf(*source);
            }
        }
        for (const std::size_t line : m_parts.found.labels[beam].lines) {
            if (fits(m_parts.found.lines[line])) {
                return &m_parts.found.lines[line];
            }
        }
        return nullptr;
    }

    const Drawing::Parts& m_parts;
    const Project& m_edited;
    GradeSpelling m_spelling;
    int m_newLines = 0;  // of the beam that is being written
    Splices m_splices;
    std::map<std::size_t, std::set<std::size_t>> m_removed;  // annotations by line
    std::set<std::size_t> m_written;                         // lines with a part put anew
};

}  // namespace

void WriteEdited(const Drawing::Parts& parts, const Project& edited,
                 const std::function<void(std::span<const std::string_view>)>& use)
{
    Writer writer(parts, edited);
    use(writer.Write());
}

}  // namespace Desk
