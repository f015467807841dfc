#include "desk/plan/OwnerTexts.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace Desk {

namespace {

constexpr double FieldGap = 160.0;    // mm between two texts of a line
constexpr double MostGap = 1600.0;    // mm between two texts of a drawn line that belong together
constexpr double EmptyWidth = 900.0;  // mm of a label without a text
constexpr double TextGap = 120.0;     // mm between a beam's edge and a text
constexpr double EndInset = 350.0;    // mm from a support to its text
constexpr double OutlineRoom = 0.16;  // text heights around a text

// Puts texts into lines.
class Lines {
public:
    void Add(Field field, const std::string& text, const char* before = "", const char* after = "")
    {
        if (text.empty()) {
            m_empty.push_back(field);
            return;
        }
        const QString drawn = before + QString::fromStdString(text) + after;
        const double width = TextWidth(drawn);
        const bool joined = *before == '+' || *before == ';';
        m_x += m_x > 0.0 && !joined ? FieldGap : 0.0;
        m_labels.push_back({field, drawn, QRectF(m_x, m_y, width, TextHeight)});
        m_x += width;
    }
    void End()
    {
        if (m_x > 0.0) {
            m_x = 0.0;
            m_y += LineStep;
        }
    }
    // Labels without a text are side by side in a line below.
    std::vector<Label> Take()
    {
        End();
        for (const Field field : m_empty) {
            m_labels.push_back({field, QString(), QRectF(m_x, m_y, EmptyWidth, TextHeight)});
            m_x += EmptyWidth + FieldGap;
        }
        return std::move(m_labels);
    }

private:
    std::vector<Label> m_labels;
    std::vector<Field> m_empty;
    double m_x = 0.0;
    double m_y = 0.0;
};

// Null for none.
const TextPlace* PlaceOf(const Beam& beam, Field field)
{
    const std::span<const Field> fields = BeamFields();
    const auto at =
        static_cast<std::size_t>(std::find(fields.begin(), fields.end(), field) - fields.begin());
    return at < beam.places.size() && beam.places[at].height > 0.0 ? &beam.places[at] : nullptr;
}

bool IsEnd(Field field) { return field == Field::LeftEnd || field == Field::RightEnd; }

// The lines of a label that a drawing places, in the frame of its name.
class LabelLines {
public:
    LabelLines(const Beam& beam, const TextPlace& name)
        : m_beam(beam), m_name(name), m_toSheet(FrameOf(name)), m_toFrame(m_toSheet.inverted())
    {
    }

    std::vector<Label> Take()
    {
        std::vector<Line> placed;
        std::vector<Field> others;
        for (const Field field : BeamFields()) {
            if (const TextPlace* const place = PlaceOf(m_beam, field)) {
                placed.push_back({field, *place, m_toFrame.map(OnSheet(place->at))});
            } else if (!IsEnd(field)) {
                others.push_back(field);
            }
        }
        // "2B25+(2B12);4B25" is one line, and what follows a text that became longer moves on.
        std::stable_sort(placed.begin(), placed.end(), [&](const Line& a, const Line& b) {
            return std::pair(std::round(a.at.y() / m_name.height), a.at.x()) <
                   std::pair(std::round(b.at.y() / m_name.height), b.at.x());
        });
        const Line* before = nullptr;
        for (const Line& line : placed) {
            const bool follows = before != nullptr && IsSameLine(*before, line);
            Put(line, follows);
            m_pitch = before != nullptr && !follows
                          ? std::min(m_pitch, std::max(line.at.y() - before->at.y(), m_name.height))
                          : m_pitch;
            before = &line;
        }
        AddBelow(others);
        return std::move(m_labels);
    }

private:
    struct Line {
        Field field;
        TextPlace place;
        QPointF at;  // in the name's frame
    };

    [[nodiscard]] bool IsSameLine(const Line& before, const Line& line) const
    {
        return std::abs(line.at.y() - before.at.y()) < m_name.height / 3.0;
    }

    void Put(const Line& line, bool follows)
    {
        const std::string& text = m_beam.*RowOf(line.field).ofBeam;
        QString drawn = QString::fromStdString(text);
        const bool after = follows && m_right > 0.0;  // of a text
        const bool joined = after && (line.field == Field::BottomBars || line.field == Field::Erection);
        if (!text.empty() && line.field == Field::Erection) {
            drawn = (joined ? "+(" : "(") + drawn + ')';
        } else if (!text.empty() && joined) {
            drawn = ';' + drawn;
        }
        double x = line.at.x();
        if (after && !text.empty()) {
            // How wide the drawing's own font is, it does not tell.
            const double unit = line.place.height / TextHeight;
            const double next = joined ? m_right : m_right + FieldGap * unit;
            x = x - next < MostGap * unit ? next : x;
        }
        m_anchor = after ? m_anchor : QPointF(x, line.at.y());
        Add(line.field, drawn, {x, line.at.y()}, line.place.height, line.place.angle);
        m_right = !text.empty() ? x + TextWidth(drawn, line.place.height) : follows ? m_right : 0.0;
        m_lowest = std::max(m_lowest, line.at.y());
    }

    void AddBelow(const std::vector<Field>& fields)
    {
        const double height = m_name.height;
        double y = m_lowest;
        for (const Field field : fields) {
            const QString text = QString::fromStdString(m_beam.*RowOf(field).ofBeam);
            if (!text.isEmpty()) {
                y += m_pitch;
                m_anchor = {0.0, y};
                Add(field, field == Field::Erection ? '(' + text + ')' : text, {0.0, y}, height,
                    m_name.angle);
            }
        }
        double x = 0.0;
        m_anchor = {0.0, y + m_pitch};
        for (const Field field : fields) {
            if ((m_beam.*RowOf(field).ofBeam).empty()) {
                Add(field, QString(), {x, y + m_pitch}, height, m_name.angle);
                x += (EmptyWidth + FieldGap) / TextHeight * height;
            }
        }
    }

    void Add(Field field, const QString& text, const QPointF& inFrame, double height, double angle)
    {
        const QPointF corner = m_toSheet.map(inFrame);
        const double width = text.isEmpty() ? EmptyWidth / TextHeight * height : TextWidth(text, height);
        m_labels.push_back({field, text, QRectF(corner.x(), corner.y() - height, width, height), -1, -angle,
                            m_toSheet.map(m_anchor)});
    }

    const Beam& m_beam;
    TextPlace m_name;
    QTransform m_toSheet;
    QTransform m_toFrame;
    std::vector<Label> m_labels;
    double m_right = 0.0;  // where the text before in the line ends
    QPointF m_anchor;      // where its line begins
    double m_lowest = 0.0;
    double m_pitch = 1.3 * m_name.height;
};

// Distances of the supports from the beam's start, on the plan: it can have another scale than the spans.
std::vector<double> SupportsOf(const Beam& beam, double length)
{
    std::vector<double> supports = {0.0};
    const double all = std::accumulate(beam.spans.begin(), beam.spans.end(), 0.0);
    for (const double span : beam.spans) {
        supports.push_back(supports.back() + (all > 0.0 ? span * length / all : 0.0));
    }
    if (supports.size() == 1) {
        supports.push_back(length);
    }
    return supports;
}

}  // namespace

void Label::Grow(double height)
{
    const double times = height / box.height();
    if (times > 1.0 && std::isfinite(times)) {
        box = QRectF(anchor + times * (box.topLeft() - anchor), times * box.size());
    }
}

QTransform Label::Turned() const
{
    const QPointF corner = box.bottomLeft();
    return QTransform::fromTranslate(corner.x(), corner.y())
        .rotate(turn.value_or(0.0))
        .translate(-corner.x(), -corner.y());
}

QPolygonF Label::Outline() const
{
    const double room = OutlineRoom * box.height();
    return Turned().map(QPolygonF(box.adjusted(-room, -room, room, room)));
}

double HeightOf(const Beam& beam)
{
    const auto placed = std::find_if(beam.places.begin(), beam.places.end(),
                                     [](const TextPlace& place) { return place.height > 0.0; });
    return placed != beam.places.end() ? placed->height : TextHeight;
}

std::vector<Label> BlockOf(const Beam& beam)
{
    if (PlaceOf(beam, Field::Name) != nullptr) {
        return {};
    }
    Lines lines;
    lines.Add(Field::Name, beam.name);
    lines.Add(Field::Section, beam.section);
    lines.End();
    lines.Add(Field::Stirrup, beam.stirrup);
    lines.End();
    lines.Add(Field::TopBars, beam.topBars);
    lines.Add(Field::Erection, beam.erection, beam.topBars.empty() ? "(" : "+(", ")");
    const bool first = beam.topBars.empty() && beam.erection.empty();
    lines.Add(Field::BottomBars, beam.bottomBars, first ? "" : ";");
    lines.End();
    lines.Add(Field::Side, beam.side);
    lines.Add(Field::Torsion, beam.torsion);
    lines.End();
    lines.Add(Field::Elevation, beam.elevation);
    return lines.Take();
}

std::vector<Label> BlockOf(const Wall& wall)
{
    Lines lines;
    const std::string thickness = "  " + std::to_string(wall.thickness);
    lines.Add(Field::Name, wall.name, "", wall.thickness > 0 ? thickness.c_str() : "");
    lines.End();
    lines.Add(Field::HorizontalBars, wall.horizontalBars);
    lines.End();
    lines.Add(Field::VerticalBars, wall.verticalBars);
    return lines.Take();
}

QSizeF SizeOf(const std::vector<Label>& block)
{
    QRectF all;
    for (const Label& label : block) {
        all |= label.text.isEmpty() ? QRectF() : label.box;
    }
    return all.size();
}

std::vector<Label> PlacedTexts(const Beam& beam)
{
    std::vector<Label> labels;
    if (const TextPlace* const name = PlaceOf(beam, Field::Name)) {
        labels = LabelLines(beam, *name).Take();
    }
    int number = 0;
    for (const InPlace& text : beam.inPlace) {
        if (const double height = text.place.height; height > 0.0) {
            const QString drawn = QString::fromStdString(text.text);
            const double width = TextWidth(drawn, height);
            const QPointF corner = OnSheet(text.place.at);
            labels.push_back({RowOf(text.role).field, drawn,
                              QRectF(corner.x(), corner.y() - height, std::max(width, height), height),
                              number, -text.place.angle, corner});
        }
        ++number;
    }
    return labels;
}

std::vector<Label> TextsBeside(const Beam& beam, const BeamBody& body)
{
    const double height = HeightOf(beam);
    const double unit = height / TextHeight;
    const std::vector<double> supports = SupportsOf(beam, body.length);
    std::vector<Label> labels;
    std::map<std::pair<bool, double>, int> lines;  // how many texts there are already, by side and middle
    // A text at a support is on the beam's side of its first and last one.
    const auto add = [&](Field field, int inPlace, const std::string& text, bool above, double at,
                         bool atSupport, const PlanPoint& by) {
        const QString drawn = QString::fromStdString(text);
        const double width = drawn.isEmpty() ? EmptyWidth * unit : TextWidth(drawn, height);
        const double middle = (body.isReversed ? -1.0 : 1.0) * (at - body.length / 2.0);
        double x = middle - width / 2.0;
        double fixed = middle;
        if (const double reach = body.length / 2.0; atSupport && std::abs(middle) > reach * 0.99) {
            const double inset = std::min(EndInset * unit, std::max(0.0, reach - width));
            x = middle < 0.0 ? middle + inset : middle - inset - width;
            fixed = middle < 0.0 ? x : x + width;
        }
        const bool isMoved = by.x != 0.0 || by.y != 0.0;
        const int line = drawn.isEmpty() || isMoved ? 0 : lines[{above, std::round(middle)}]++;
        const double gap = TextGap * unit;
        const double edge = above ? -body.width / 2.0 - gap : body.width / 2.0 + gap;
        const double y = above ? edge - line * LineStep * unit - height : edge + line * LineStep * unit;
        labels.push_back({field, drawn, QRectF(x + by.x, y - by.y, width, height), inPlace, std::nullopt,
                          QPointF(fixed + by.x, edge - by.y)});
    };
    if (PlaceOf(beam, Field::LeftEnd) == nullptr) {
        add(Field::LeftEnd, -1, beam.leftEnd, true, body.isReversed ? body.length : 0.0, true,
            beam.leftEndBy);
    }
    if (PlaceOf(beam, Field::RightEnd) == nullptr) {
        add(Field::RightEnd, -1, beam.rightEnd, true, body.isReversed ? 0.0 : body.length, true,
            beam.rightEndBy);
    }
    for (const InPlace& text : beam.inPlace) {
        if (text.place.height > 0.0) {
            continue;
        }
        const bool atSupport = text.role == Role::TopSupport;
        const auto last = static_cast<int>(supports.size()) - (atSupport ? 1 : 2);
        const auto number = static_cast<std::size_t>(std::clamp(text.number - 1, 0, last));
        const double at = atSupport ? supports[number] : (supports[number] + supports[number + 1]) / 2.0;
        add(RowOf(text.role).field, static_cast<int>(&text - beam.inPlace.data()), text.text,
            atSupport || text.role == Role::TopSpan, at, atSupport, text.movedBy);
    }
    return labels;
}

}  // namespace Desk
