#include "tests/drawing/Floors.h"

#include <algorithm>
#include <cmath>

#include "desk/project/ProjectFile.h"

namespace Desk {

namespace {

constexpr double Column = 600;
constexpr double Gap = 100;  // between a beam's edge and the texts in place

bool IsUp(const Outline& outline) { return outline.from.x == outline.to.x; }

// The point so far along an outline's axis and so far to its left.
PlanPoint Along(const Outline& outline, double along, double left)
{
    return IsUp(outline) ? PlanPoint{outline.from.x - left, outline.from.y + along}
                         : PlanPoint{outline.from.x + along, outline.from.y + left};
}

// A text above or left of the beam, or on its other side.
DrawnText Beside(const DrawnFloor& floor, std::size_t outline, const std::string& text, double along,
                 bool isAbove, int line = 0)
{
    const Outline& beam = floor.outlines[outline];
    const double away = beam.width / 2 + Gap;
    const double left = isAbove ? away + Height * line : -away - Height * (line + 1);
    return {text, Along(beam, along, left), IsUp(beam) ? 90.0 : 0.0, outline};
}

// The name starts so far along the beam and so far to its left; the leader comes back to the axis.
DrawnLabel Label(const DrawnFloor& floor, std::size_t outline, Beam texts, double along, double left,
                 bool hasLeader = true)
{
    const Outline& beam = floor.outlines[outline];
    DrawnLabel label{std::move(texts), Along(beam, along, left), IsUp(beam) ? 90.0 : 0.0, {}, outline};
    if (hasLeader) {
        label.leaderEnd = Along(beam, along - Height / 4, 0);
    }
    return label;
}

void DrawOutline(DrawingMaker& maker, const Outline& beam, const std::vector<PlanPoint>& columns)
{
    // An edge ends at the face of a column, or of a beam where there is none.
    const auto face = [&](double along) {
        const PlanPoint at = Along(beam, along, 0);
        for (const PlanPoint& column : columns) {
            if (std::hypot(column.x - at.x, column.y - at.y) < 1) {
                return Column / 2;
            }
        }
        return 150.0;
    };
    for (std::size_t span = 0; span + 1 < beam.supports.size(); ++span) {
        const double begin = beam.supports[span] + face(beam.supports[span]);
        const double end = beam.supports[span + 1] - face(beam.supports[span + 1]);
        for (const double side : {-beam.width / 2, beam.width / 2}) {
            if (maker.TheShape().outlines == OutlineAs::Lines) {
                maker.Line(Along(beam, begin, side), Along(beam, end, side), "BEAM");
            } else {
                maker.Polyline({Along(beam, begin, side), Along(beam, end, side)}, false, "梁线");
            }
        }
    }
}

void DrawLabel(DrawingMaker& maker, const DrawnLabel& label)
{
    const bool isUp = label.angle == 90;
    const std::string layer = isUp ? "BEAM_TEXT_Y" : "BEAM_TEXT_X";
    const std::vector<std::string> lines = LinesOf(label.texts);
    if (label.leaderEnd) {
        const PlanPoint from{label.name.x - (isUp ? 0 : Height / 4),
                             label.name.y - (isUp ? Height / 4 : 0)};
        if (maker.TheShape().outlines == OutlineAs::Lines) {
            maker.Line(from, *label.leaderEnd, layer);
        } else {
            maker.Polyline({from, *label.leaderEnd}, false, layer);
        }
    }
    std::vector<TextPlace> places;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double down = Height * static_cast<double>(i);
        places.push_back(
            {{label.name.x + (isUp ? down : 0), label.name.y - (isUp ? 0 : down)}, label.angle, Height});
    }
    switch (maker.TheShape().labels) {
    case LabelAs::Lines:
        for (std::size_t i = 0; i < lines.size(); ++i) {
            maker.Text(places[i], lines[i], layer);
        }
        break;
    case LabelAs::Attributes: maker.Attributes(places, lines, layer); break;
    default: maker.MText(places[0], lines, layer);
    }
}

}  // namespace

std::vector<std::string> LinesOf(const Beam& texts)
{
    return {texts.name + (texts.section.empty() ? "" : " " + texts.section), texts.stirrup,
            texts.topBars + (texts.bottomBars.empty() ? "" : ";" + texts.bottomBars),
            texts.torsion + texts.side, texts.elevation};
}

void DrawOn(DrawingMaker& maker, const DrawnFloor& floor, const PlanPoint& moved)
{
    maker.Shift(moved);
    for (const Outline& outline : floor.outlines) {
        DrawOutline(maker, outline, floor.columns);
    }
    for (const PlanPoint& at : floor.columns) {
        constexpr double Half = Column / 2;
        maker.Polyline({{at.x - Half, at.y - Half},
                        {at.x + Half, at.y - Half},
                        {at.x + Half, at.y + Half},
                        {at.x - Half, at.y + Half}},
                       true, "COLUMN");
        maker.Circle({at.x, -4000}, 400, "AXIS");
    }
    for (const DrawnLabel& label : floor.labels) {
        DrawLabel(maker, label);
    }
    for (const DrawnText& text : floor.inPlace) {
        maker.Text({text.at, text.angle, Height}, text.text, "DIM_SYMB");
    }
    for (const DrawnText& text : floor.others) {
        if (maker.TheShape().labels == LabelAs::Lines) {
            maker.Text({text.at, text.angle, Height}, text.text, "PUB_TEXT");
        } else {
            maker.MText({text.at, text.angle, Height}, {text.text}, "PUB_TEXT");
        }
    }
    maker.Shift({});
}

std::string Draw(const Shape& shape, const DrawnFloor& floor)
{
    DrawingMaker maker(shape);
    const Insertion frames[] = {{{5000, -3000}, 90, 2}, {{-400, 700}, 30, 0.25}};
    for (int i = 0; i < shape.depth; ++i) {
        maker.BeginBlock(frames[i]);
    }
    DrawOn(maker, floor);
    for (int i = 0; i < shape.depth; ++i) {
        maker.EndBlock();
    }
    return maker.Bytes();
}

DrawnFloor SmallFloor()
{
    const auto beam = [](const char* name, const char* section = "", const char* stirrup = "",
                         const char* top = "", const char* bottom = "", const char* side = "",
                         const char* elevation = "") {
        Beam texts;
        texts.name = name;
        texts.section = section;
        texts.stirrup = stirrup;
        texts.topBars = top;
        texts.bottomBars = bottom;
        (*side == 'N' ? texts.torsion : texts.side) = side;
        texts.elevation = elevation;
        return texts;
    };
    DrawnFloor floor;
    floor.columns = {{0, 0}, {8000, 0}, {14000, 0}, {0, 6000}, {8000, 6000}, {14000, 6000}};
    floor.outlines = {{{0, 0}, {14000, 0}, 300, {0, 8000, 14000}},
                      {{0, 6000}, {14000, 6000}, 300, {0, 8000, 14000}},
                      {{0, 0}, {0, 6000}, 250, {0, 6000}},
                      {{14000, 0}, {14000, 6000}, 250, {0, 6000}},
                      {{4000, 0}, {4000, 6000}, 200, {0, 6000}}};
    floor.labels = {
        Label(floor, 0, beam("KL1(2)", "300x600", "C8@100/200(2)", "2C22", "", "G4C12"), 4600, -900),
        Label(floor, 1, beam("KL2(2)", "300x650", "A8@100(2)", "2C20", "3C25", "N4C14", "(-0.100)"), 2000,
              2000),
        Label(floor, 2, beam("KL3(1)", "250x500", "C8@100/200(2)", "2C18", "3C18"), 1500, 2000),
        Label(floor, 3, beam("KL3(1)"), 1500, 900),
        Label(floor, 4, beam("L1(1)", "200x400", "A6@200(2)", "2C14", "3C16"), 2000, -400, false)};
    floor.inPlace = {
        Beside(floor, 0, "4C22", 500, true),        Beside(floor, 0, "5C22 3/2", 6000, true),
        Beside(floor, 0, "2C22+2C20", 12000, true), Beside(floor, 1, "2C20+1C16", 10300, true),
        Beside(floor, 0, "3C20", 10500, false),     Beside(floor, 0, "C10@150(2)", 10500, false, 1),
        Beside(floor, 0, "G2C10", 10500, false, 2), Beside(floor, 0, "N2C16", 10500, false, 3),
        Beside(floor, 1, "300x500", 10500, false),  Beside(floor, 1, "(-0.050)", 10500, false, 1),
        Beside(floor, 2, "3C18+1C20", 4200, true),  Beside(floor, 2, "4C18", 2600, false)};
    floor.others = {{"二层梁配筋图", {4000, -6000}}, {"G0.2-0.2\\P0-2-2", {9800, 700}}};
    return floor;
}

DrawnFloor CrowdedFloor(unsigned seed)
{
    constexpr double Across = 8400;
    constexpr double Up = 7200;
    std::mt19937 random(seed);
    const auto below = [&random](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    const std::vector<Beam> samples = SampleProject().beams;

    DrawnFloor floor;
    const auto add = [&floor](PlanPoint from, PlanPoint to, double width, double span) {
        Outline outline{from, to, width, {}};
        for (double at = 0; at <= std::hypot(to.x - from.x, to.y - from.y); at += span) {
            outline.supports.push_back(at);
        }
        floor.outlines.push_back(outline);
    };
    for (int j = 0; j < 5; ++j) {
        add({0, j * Up}, {6 * Across, j * Up}, 300, Across);
    }
    for (int i = 0; i < 7; ++i) {
        add({i * Across, 0}, {i * Across, 4 * Up}, 350, Up);
        for (int j = 0; j < 5; ++j) {
            floor.columns.push_back({i * Across, j * Up});
        }
    }
    const std::size_t frameBeams = floor.outlines.size();
    for (int i = 0; i < 6; i += 2) {
        const double x = i * Across + Across / 2;
        add({x, 0}, {x, 4 * Up}, 250, Up);
        for (int j = 0; j < 4; ++j) {
            add({x + Across, j * Up}, {x + Across, j * Up + Up}, 250, Up);
            add({i * Across, j * Up + Up / 2}, {x, j * Up + Up / 2}, 200, Across / 2);
        }
    }
    for (std::size_t i = 0; i < floor.outlines.size(); ++i) {
        const Outline& outline = floor.outlines[i];
        const bool isFrame = i < frameBeams;
        const auto spans = outline.supports.size() - 1;
        Beam texts = samples[static_cast<std::size_t>(below(static_cast<int>(samples.size())))];
        // The short ones between come in groups of one name, of which the first is written out.
        const bool isAlone = !isFrame && spans == 1 && (i - frameBeams) % 9 > 2;
        const std::size_t serial = isAlone ? i - ((i - frameBeams) % 9 - 1) / 2 * 2 : i;
        texts.name =
            (isFrame ? "KL" : "L") + std::to_string(serial + 1) + "(" + std::to_string(spans) + ")";
        if (isAlone) {
            Beam alone;
            alone.name = texts.name;
            texts = alone;
        }
        const double span = outline.supports[1];
        // Labels are not printed over each other.
        const auto isClear = [&floor](const DrawnLabel& label) {
            return std::none_of(floor.labels.begin(), floor.labels.end(), [&](const DrawnLabel& other) {
                const bool isSame = other.angle == label.angle;
                const double across = isSame && label.angle == 90 ? 1800 : 2700;
                const double up = isSame && label.angle == 0 ? 1800 : 2700;
                return std::abs(other.name.x - label.name.x) < across &&
                       std::abs(other.name.y - label.name.y) < up;
            });
        };
        std::optional<DrawnLabel> label;
        for (int tries = 0; !label || (!isClear(*label) && tries < 100); ++tries) {
            const double along = span * below(static_cast<int>(spans)) + span * 0.05 * below(12) + 300;
            double left = (below(2) == 0 ? -700.0 : 1900.0) - 10 * below(20);
            if (i % 3 == 0) {
                left += (left < 0 ? -1 : 1) * (2000 + 10 * below(400));
            }
            label = Label(floor, i, texts, along, left, i % 3 == 0 || i % 8 != 5);
        }
        floor.labels.push_back(*label);
        for (std::size_t s = 0; isFrame && s < spans; ++s) {
            const double start = outline.supports[s];
            const Beam& drawn = samples[static_cast<std::size_t>(below(static_cast<int>(samples.size())))];
            floor.inPlace.push_back(Beside(floor, i, drawn.leftEnd, start + 400, true));
            floor.inPlace.push_back(Beside(floor, i, drawn.rightEnd, start + span - 2200, true));
            floor.inPlace.push_back(Beside(floor, i, drawn.bottomBars, start + span / 2 - 700, false));
        }
    }
    std::erase_if(floor.inPlace, [](const DrawnText& text) { return text.text.empty(); });
    return floor;
}

}  // namespace Desk
