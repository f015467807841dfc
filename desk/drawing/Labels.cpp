// Each distinct value is read once. A label's lines are found from its name downwards.
#include "desk/drawing/Labels.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <unordered_map>

namespace Desk {

namespace {

constexpr std::size_t LongestText = 400;  // bytes; what is longer is a note
constexpr std::size_t MostLines = 10;     // of a label
constexpr double CharacterWidth = 0.75;   // of an ASCII character, in text heights

// A line of a value as it was read, before it has a position.
struct ReadLineOf {
    std::size_t part = 0;
    std::string plain;
    std::vector<Stretch> spelled;
    Stretch whole;
    std::vector<Annotation> annotations;
    bool isWhole = false;
};

Stretch Through(const std::vector<Stretch>& spelled, const Stretch& at)
{
    return {spelled[at.begin].begin, spelled[at.end - 1].end};
}

bool MayBeAnnotation(std::string_view value)
{
    return value.size() <= LongestText && value.find_first_of("0123456789") != std::string_view::npos;
}

ReadLineOf ReadOne(const Decoded& decoded, const Stretch& at, std::size_t part)
{
    ReadLineOf line;
    line.part = part;
    line.whole = Through(decoded.spelled, at);
    const std::string_view drawn = std::string_view(decoded.text).substr(at.begin, at.end - at.begin);
    line.plain = PlainText(drawn, line.spelled);
    for (Stretch& stretch : line.spelled) {
        stretch = Through(decoded.spelled, {at.begin + stretch.begin, at.begin + stretch.end});
    }
    Reading reading = ReadText(drawn, Kind::Combined, Choices());
    line.annotations = std::move(reading.annotations);
    line.isWhole = reading.outcome == Outcome::Read;
    return line;
}

std::vector<ReadLineOf> ReadValue(std::string_view value, Charset charset, bool isMText)
{
    const Decoded decoded = DecodeText(value, charset, isMText);
    std::vector<ReadLineOf> lines;
    std::size_t part = 0;
    for (std::size_t begin = 0; begin <= decoded.text.size(); ++part) {
        const std::size_t end = std::min(decoded.text.find('\n', begin), decoded.text.size());
        if (end > begin) {
            if (ReadLineOf line = ReadOne(decoded, {begin, end}, part); !line.annotations.empty()) {
                lines.push_back(std::move(line));
            }
        }
        begin = end + 1;
    }
    return lines;
}

bool IsName(const TextLine& line)
{
    return line.annotations.front().field == Field::Name && line.annotations.front().at.begin == 0;
}

// Spaced bars without legs are a slab's; a bare number with decimals can be anything.
bool IsInPlace(const TextLine& line)
{
    const auto isDoubtful = [&line](const Annotation& annotation) {
        const bool isStirrup = annotation.field == Field::Stirrup;
        const bool isElevation = annotation.field == Field::Elevation;
        return (isStirrup && line.plain.find('(') == std::string::npos) ||
               (isElevation && line.plain.find_first_of("(+-") == std::string::npos &&
                line.plain.find("标高") == std::string::npos) ||
               annotation.field == Field::Name || annotation.field == Field::Erection ||
               annotation.field == Field::HorizontalBars;
    };
    return line.isWhole && !isDoubtful(line.annotations.front());
}

double LengthOf(const std::string& plain, double height)
{
    double length = 0.0;
    for (const char ch : plain) {
        const auto byte = static_cast<unsigned char>(ch);
        length += byte < 0x80 ? CharacterWidth : byte >= 0xC0 ? 1.0 : 0.0;
    }
    return length * height;
}

// Where a line of an MTEXT begins: its attachment is one of nine points of the whole.
TextPlace PlaceOfPart(const PlacedText& text, std::size_t part, std::size_t parts, double width)
{
    if (text.text->kind != TextKind::MText) {
        return text.place;
    }
    const double height = text.place.height;
    const double pitch = height * text.text->lineSpacing * 5.0 / 3.0;
    const double total = height + pitch * static_cast<double>(parts - 1);
    const int row = (text.text->attachment - 1) / 3;     // top, middle, bottom
    const int column = (text.text->attachment - 1) % 3;  // left, middle, right
    const double up = (row == 0   ? 0.0
                       : row == 1 ? total / 2.0
                                  : total) -
                      height - pitch * static_cast<double>(part);
    const double along = -width * column / 2.0;
    const double angle = text.place.angle * std::numbers::pi / 180.0;
    TextPlace place = text.place;
    place.at.x += along * std::cos(angle) - up * std::sin(angle);
    place.at.y += along * std::sin(angle) + up * std::cos(angle);
    return place;
}

class Finder {
public:
    Finder(const DxfFile& file, const Placed& placed) : m_file(file), m_placed(placed) {}

    FoundTexts Find()
    {
        ReadAll();
        FindLabels();
        FindLeaders();
        for (std::size_t i = 0; i < m_found.lines.size(); ++i) {
            if (!m_isTaken[i] && IsInPlace(m_found.lines[i])) {
                m_found.inPlace.push_back(i);
            }
        }
        return std::move(m_found);
    }

private:
    // Texts that can be lines of one label: a layer and a direction, in ascending order of u.
    struct Column {
        Frame frame;
        std::vector<std::pair<double, std::size_t>> byU;
    };
    using ColumnKey = std::pair<std::uint32_t, int>;

    void ReadAll()
    {
        std::unordered_map<std::string, std::vector<ReadLineOf>> known;
        for (std::size_t i = 0; i < m_placed.texts.size(); ++i) {
            const PlacedText& text = m_placed.texts[i];
            std::string value = ValueOf(m_file, *text.text);
            if (!MayBeAnnotation(value) || !(text.place.height > 0.0)) {
                continue;
            }
            const bool isMText = text.text->kind == TextKind::MText;
            value.push_back(isMText ? 'm' : 't');
            auto [found, isNew] = known.try_emplace(std::move(value));
            if (isNew) {
                const std::string_view key = found->first;
                found->second = ReadValue(key.substr(0, key.size() - 1), m_file.charset, isMText);
            }
            const std::size_t parts = found->second.empty() ? 0 : found->second.back().part + 1;
            for (const ReadLineOf& read : found->second) {
                const double length = LengthOf(read.plain, text.place.height);
                m_found.lines.push_back({i, read.part, PlaceOfPart(text, read.part, parts, length), length,
                                         read.plain, read.spelled, read.whole, read.annotations,
                                         read.isWhole});
            }
        }
        m_isTaken.assign(m_found.lines.size(), false);
    }

    [[nodiscard]] ColumnKey KeyOf(const TextLine& line) const
    {
        const double degrees = std::remainder(line.place.angle, 360.0);
        return {m_placed.texts[line.placed].layer, static_cast<int>(std::lround(degrees))};
    }
    static Frame FrameOf(const TextLine& line)
    {
        constexpr double Degree = std::numbers::pi / 180.0;
        const double degrees = std::remainder(line.place.angle, 360.0);
        return std::remainder(degrees, 90.0) == 0.0
                   ? Frame{std::round(std::cos(degrees * Degree)), std::round(std::sin(degrees * Degree))}
                   : Frame{std::cos(degrees * Degree), std::sin(degrees * Degree)};
    }

    void FindLabels()
    {
        for (std::size_t i = 0; i < m_found.lines.size(); ++i) {
            const TextLine& line = m_found.lines[i];
            Column& column = m_columns[KeyOf(line)];
            if (column.byU.empty()) {
                column.frame = FrameOf(line);
            }
            column.byU.emplace_back(column.frame.U(line.place.at), i);
        }
        for (auto& [key, column] : m_columns) {
            std::sort(column.byU.begin(), column.byU.end());
        }
        for (std::size_t i = 0; i < m_found.lines.size(); ++i) {
            if (IsName(m_found.lines[i])) {
                AddLabel(i);
            }
        }
    }

    void AddLabel(std::size_t name)
    {
        FoundLabel label;
        label.lines.push_back(name);
        m_isTaken[name] = true;
        const Column& column = m_columns.at(KeyOf(m_found.lines[name]));
        label.frame = column.frame;
        const double height = m_found.lines[name].place.height;
        double pitch = 0.0;
        while (label.lines.size() < MostLines) {
            const std::optional<Below> next = NextLine(column, label, height, pitch);
            if (!next) {
                break;
            }
            pitch = next->pitch;
            label.lines.push_back(next->line);
            m_isTaken[next->line] = true;
        }
        label.from = label.frame.U(m_found.lines[name].place.at);
        label.top = VOf(label, name) + height;
        label.bottom = VOf(label, label.lines.back());
        for (const std::size_t line : label.lines) {
            label.to = std::max(label.to, label.from + m_found.lines[line].length);
        }
        label.to = std::max(label.to, label.from);
        m_found.labels.push_back(std::move(label));
    }

    [[nodiscard]] double VOf(const FoundLabel& label, std::size_t line) const
    {
        return label.frame.V(m_found.lines[line].place.at);
    }

    struct Below {
        std::size_t line = 0;
        double pitch = 0.0;
    };

    // The line below at the same start: nearest first, at the label's pitch once that is known. Where lines
    // between were removed, a whole number of pitches below, if it says what the label does not say yet.
    [[nodiscard]] std::optional<Below> NextLine(const Column& column, const FoundLabel& label,
                                                double height, double pitch) const
    {
        const TextLine& from = m_found.lines[label.lines.back()];
        const double u = column.frame.U(from.place.at);
        const double v = column.frame.V(from.place.at);
        const bool isMText = m_placed.texts[from.placed].text->kind == TextKind::MText;
        const double least = pitch > 0.0 ? 0.85 * pitch : 0.85 * height;
        const double most = pitch > 0.0 ? 1.15 * pitch : (isMText ? 2.6 : 1.9) * height;
        const double side = 0.3 * height;
        std::optional<Below> best;
        double bestStep = 4.0 * height;
        for (auto at = std::lower_bound(column.byU.begin(), column.byU.end(),
                                        std::pair(u - side, std::size_t{0}));
             at != column.byU.end() && at->first <= u + side; ++at) {
            const TextLine& line = m_found.lines[at->second];
            const double step = v - column.frame.V(line.place.at);
            if (step < least || step > bestStep) {
                continue;
            }
            if (IsName(line)) {
                best.reset();
                bestStep = step;
            } else if (!m_isTaken[at->second] && std::abs(line.place.height - height) <= 0.1 * height) {
                const double steps = step <= most ? 1.0 : StepsBetween(step, height, pitch);
                if (steps == 1.0 || (steps > 1.0 && !isMText && SaysMore(label, line))) {
                    best = Below{at->second, step / steps};
                    bestStep = step;
                }
            }
        }
        return best;
    }

    // Two or three pitches; 0 for anything else.
    static double StepsBetween(double step, double height, double pitch)
    {
        for (const double steps : {2.0, 3.0}) {
            const bool fits = pitch > 0.0 ? std::abs(step - steps * pitch) <= 0.05 * pitch
                                          : step >= 0.99 * steps * height && step <= 1.11 * steps * height;
            if (fits) {
                return steps;
            }
        }
        return 0.0;
    }

    [[nodiscard]] bool SaysMore(const FoundLabel& label, const TextLine& line) const
    {
        return std::none_of(label.lines.begin(), label.lines.end(), [&](std::size_t index) {
            const std::vector<Annotation>& said = m_found.lines[index].annotations;
            return std::any_of(said.begin(), said.end(), [&line](const Annotation& one) {
                return std::any_of(line.annotations.begin(), line.annotations.end(),
                                   [&one](const Annotation& other) { return other.field == one.field; });
            });
        });
    }

    // Lines on a label's layer across its texts, in ascending order of u.
    void FindLeaders()
    {
        std::map<ColumnKey, std::vector<std::pair<double, const PlanLine*>>> across;
        std::map<std::uint32_t, std::vector<std::pair<ColumnKey, Frame>>> byLayer;
        for (const FoundLabel& label : m_found.labels) {
            const ColumnKey key = KeyOf(m_found.lines[label.lines.front()]);
            if (across.try_emplace(key).second) {
                byLayer[key.first].emplace_back(key, label.frame);
            }
        }
        for (std::size_t i = 0; i < m_placed.lines.lines.size(); ++i) {
            const auto labels = byLayer.find(m_placed.lines.LayerOf(i));
            if (labels == byLayer.end()) {
                continue;
            }
            const PlanLine& line = m_placed.lines.lines[i];
            for (const auto& [key, frame] : labels->second) {
                const double du = frame.U(line.to) - frame.U(line.from);
                const double dv = frame.V(line.to) - frame.V(line.from);
                if (std::abs(du) <= 0.03 * std::abs(dv)) {
                    across[key].emplace_back(frame.U(line.from), &line);
                }
            }
        }
        for (auto& [key, lines] : across) {
            std::sort(lines.begin(), lines.end());
        }
        std::map<const PlanLine*, std::pair<double, FoundLabel*>> nearest;
        for (FoundLabel& label : m_found.labels) {
            const auto [leader, side] =
                FindLeader(label, across[KeyOf(m_found.lines[label.lines.front()])]);
            if (leader == nullptr) {
                continue;
            }
            // Of two labels that one line could lead, it leads the nearer one.
            const auto [known, isNew] = nearest.try_emplace(leader, side, &label);
            if (!isNew && side < known->second.first) {
                known->second.second->leaderEnd.reset();
                known->second = {side, &label};
            } else if (!isNew) {
                label.leaderEnd.reset();
            }
        }
    }

    // It begins beside the label, a quarter of a text height before the start, and ends away from it.
    // Answers which line it is, and how far from where it is wanted.
    std::pair<const PlanLine*, double>
    FindLeader(FoundLabel& label, const std::vector<std::pair<double, const PlanLine*>>& lines) const
    {
        const PlanLine* leader = nullptr;
        const double height = m_found.lines[label.lines.front()].place.height;
        const double wanted = label.from - height / 4.0;
        double bestSide = 0.5 * height;
        double bestLength = 0.0;
        for (auto at =
                 std::lower_bound(lines.begin(), lines.end(),
                                  std::pair(wanted - bestSide, static_cast<const PlanLine*>(nullptr)));
             at != lines.end() && at->first <= wanted + 0.5 * height; ++at) {
            const PlanLine& line = *at->second;
            const double v0 = label.frame.V(line.from);
            const double v1 = label.frame.V(line.to);
            const auto fromName = [&](double v) {
                return std::max({0.0, label.top - height - v, v - label.top});
            };
            const auto fromBlock = [&](double v) {
                return std::max({0.0, label.bottom - v, v - label.top});
            };
            const bool isFirstFar = fromName(v0) > fromName(v1);
            const bool beginsHere =
                fromName(isFirstFar ? v1 : v0) <= 1.5 * height ||
                (fromBlock(isFirstFar ? v1 : v0) <= height && fromBlock(isFirstFar ? v0 : v1) > 0.0);
            const double length = std::abs(v1 - v0);
            const double side = std::abs(at->first - wanted);
            const bool isBetter = side < bestSide - 1e-6 || (side < bestSide + 1e-6 && length > bestLength);
            if (beginsHere && length > 0.5 * height && isBetter) {
                label.leaderEnd = isFirstFar ? line.from : line.to;
                bestSide = side;
                bestLength = length;
                leader = &line;
            }
        }
        return {leader, bestSide};
    }

    const DxfFile& m_file;
    const Placed& m_placed;
    FoundTexts m_found;
    std::vector<bool> m_isTaken;
    std::map<ColumnKey, Column> m_columns;
};

}  // namespace

FoundTexts FindTexts(const DxfFile& file, const Placed& placed) { return Finder(file, placed).Find(); }

}  // namespace Desk
