#include "desk/checks/CountBeam.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

#include "desk/checks/Lengths.h"
#include "desk/checks/Station.h"
#include "desk/reading/BeamName.h"

namespace Desk {

namespace {

constexpr double StockLength = 9000.0;  // mm; longer bars are lapped
constexpr double LapFactor = 1.4;       // of the anchorage: half of the bars lapped at one place, 8.4.4
constexpr double FirstStirrup = 50.0;   // mm from the support

struct BarKind {
    char grade = 'B';
    int diameter = 0;

    auto operator<=>(const BarKind&) const = default;
};

std::map<BarKind, int> CountsOf(const Bars& bars)
{
    std::map<BarKind, int> counts;
    ForEachTerm(bars, [&](const BarTerm& term) { counts[{term.grade, term.diameter}] += term.count; });
    return counts;
}

// Counts one beam.
class Count {
public:
    Count(const Beam& beam, std::size_t index)
        : m_beam(beam), m_index(index), m_kind(KindOf(beam.name)), m_spans(SpanLengths(beam)),
          m_isCantilever(ReadNameInAnyCase(beam.name).value_or(BeamName()).type == "XL")
    {
    }

    Quantities Of()
    {
        const double length = std::accumulate(m_spans.begin(), m_spans.end(), 0.0);
        for (std::size_t i = 0; i < m_spans.size(); ++i) {
            m_stations.push_back(SpanOf(m_beam, static_cast<int>(i) + 1));
        }
        if (!(length > 0.0)) {
            LeaveOut(Field::Section, Phrase("Desk", "the beam has no length"));
            return std::move(m_all);
        }
        m_all.beams = 1;
        m_all.beamLength = length / 1000.0;
        for (std::size_t i = 0; i < m_spans.size(); ++i) {
            CountSpan(m_stations[i], m_spans[i]);
        }
        CountThroughBars();
        CountSupports();
        return std::move(m_all);
    }

private:
    void LeaveOut(Field field, Message why, int inPlace = -1)
    {
        Field served = field;
        if (inPlace >= 0) {
            served = RowOf(m_beam.inPlace[static_cast<std::size_t>(inPlace)].role).field;
        }
        const FieldRef at{false, m_index, served, inPlace};
        const std::string& text = inPlace < 0 ? m_beam.*RowOf(field).ofBeam
                                              : m_beam.inPlace[static_cast<std::size_t>(inPlace)].text;
        const auto isSame = [&](const Uncounted& other) { return other.at == at; };
        if (std::none_of(m_all.uncounted.begin(), m_all.uncounted.end(), isSame)) {
            m_all.uncounted.push_back({at, text, std::move(why)});
        }
    }

    // The bars of a field, and an account of a text that is none.
    const Bars* BarsAt(const Station& at, Field field)
    {
        const std::optional<Bars>& bars = at.BarsOf(field);
        if (!bars && !at.Text(field).empty()) {
            LeaveOut(field, Phrase("Desk", "cannot be read"), at.inPlace[static_cast<std::size_t>(field)]);
        }
        return bars ? &*bars : nullptr;
    }

    [[nodiscard]] double Anchorage(const BarKind& kind) const
    {
        return AnchorageOf(kind.grade, kind.diameter, m_kind, m_beam);
    }

    // So many bars of a length in mm, with their laps.
    void Add(BarUse use, const BarKind& kind, double count, double length)
    {
        const double laps = std::max(0.0, std::ceil(length / StockLength) - 1.0);
        const double all = count * (length + laps * LapFactor * Anchorage(kind)) / 1000.0;
        const auto isBefore = [](const BarQuantity& bar, const BarKind& wanted) {
            return std::tie(bar.grade, bar.diameter) < std::tie(wanted.grade, wanted.diameter);
        };
        auto found = std::lower_bound(m_all.bars.begin(), m_all.bars.end(), kind, isBefore);
        if (found == m_all.bars.end() || found->grade != kind.grade || found->diameter != kind.diameter) {
            found = m_all.bars.insert(found, {kind.grade, kind.diameter, {}});
        }
        found->length[static_cast<std::size_t>(use)] += all;
    }

    template <class Extra>
    void AddAll(BarUse use, const Bars* bars, double length, Extra extraOf)
    {
        if (bars != nullptr) {
            ForEachTerm(*bars, [&](const BarTerm& term) {
                const BarKind kind{term.grade, term.diameter};
                Add(use, kind, term.count, length + extraOf(kind));
            });
        }
    }

    void CountSpan(const Station& at, double span)
    {
        const bool isSeismic = m_kind != BeamKind::Other;
        AddAll(BarUse::Bottom, BarsAt(at, Field::BottomBars), span, [&](const BarKind& kind) {
            return 2.0 * (isSeismic ? Anchorage(kind) : 12.0 * kind.diameter);
        });
        AddAll(BarUse::Erection, BarsAt(at, Field::Erection), span / 3.0,
               [](const BarKind&) { return 2.0 * 150.0; });
        AddAll(BarUse::Side, BarsAt(at, Field::Side), span,
               [](const BarKind& kind) { return 2.0 * 15.0 * kind.diameter; });
        AddAll(BarUse::Torsion, BarsAt(at, Field::Torsion), span,
               [&](const BarKind& kind) { return 2.0 * Anchorage(kind); });
        if (!at.section || at.section->width == 0) {
            const bool isEmpty = at.Text(Field::Section).empty();
            LeaveOut(Field::Section,
                     isEmpty ? Phrase("Desk", "the beam has no section") : Phrase("Desk", "cannot be read"),
                     at.inPlace[static_cast<std::size_t>(Field::Section)]);
            return;
        }
        const double width = at.section->width;
        const double height = MeanHeight(*at.section);
        m_all.concrete += width * height * span / 1e9;
        m_all.formwork += (width + 2.0 * height) * span / 1e6;
        if (at.stirrup) {
            CountStirrups(at, *at.stirrup, span);
        } else if (!at.Text(Field::Stirrup).empty()) {
            LeaveOut(Field::Stirrup, Phrase("Desk", "cannot be read"),
                     at.inPlace[static_cast<std::size_t>(Field::Stirrup)]);
        }
    }

    void CountStirrups(const Station& at, const Stirrup& stirrup, double span)
    {
        const int legs = std::max(2, stirrup.legs);
        const int tightLegs = stirrup.tightLegs > 0 ? stirrup.tightLegs : legs;
        const BarKind kind{stirrup.grade, stirrup.diameter};
        const double within = span - 2.0 * FirstStirrup;
        double zone = 0.0;
        if (stirrup.tightSpacing > 0) {
            zone = std::max((m_beam.seismicClass == 1 ? 2.0 : 1.5) * MeanHeight(*at.section), 500.0);
        }
        if (stirrup.tightSpacing > 0 && 2.0 * zone >= span) {
            Add(BarUse::Stirrup, kind, std::ceil(std::max(0.0, within) / stirrup.tightSpacing) + 1.0,
                StirrupLength(*at.section, m_beam.concreteGrade, stirrup.diameter, tightLegs));
            return;
        }
        if (zone > 0.0) {
            Add(BarUse::Stirrup, kind,
                2.0 * (std::ceil((zone - FirstStirrup) / stirrup.tightSpacing) + 1.0),
                StirrupLength(*at.section, m_beam.concreteGrade, stirrup.diameter, tightLegs));
            Add(BarUse::Stirrup, kind,
                std::max(0.0, std::ceil((span - 2.0 * zone) / stirrup.spacing) - 1.0),
                StirrupLength(*at.section, m_beam.concreteGrade, stirrup.diameter, legs));
        } else {
            Add(BarUse::Stirrup, kind, std::ceil(std::max(0.0, within) / stirrup.spacing) + 1.0,
                StirrupLength(*at.section, m_beam.concreteGrade, stirrup.diameter, legs));
        }
    }

    // Own through bars run over neighbouring spans; those in place are anchored on both sides of theirs.
    void CountThroughBars()
    {
        double stretch = 0.0;
        const Station* own = nullptr;
        const auto end = [&] {
            if (own != nullptr) {
                AddAll(BarUse::Top, BarsAt(*own, Field::TopBars), stretch,
                       [&](const BarKind& kind) { return 2.0 * Anchorage(kind); });
            }
            own = nullptr;
            stretch = 0.0;
        };
        for (std::size_t i = 0; i < m_spans.size(); ++i) {
            if (m_stations[i].inPlace[static_cast<std::size_t>(Field::TopBars)] < 0) {
                own = &m_stations[i];
                stretch += m_spans[i];
                continue;
            }
            end();
            own = &m_stations[i];
            stretch = m_spans[i];
            end();
        }
        end();
    }

    // Complete bars at a support, from 0; null for none.
    std::optional<Bars> BarsAtSupport(std::size_t support)
    {
        std::optional<Bars> most;
        bool hasSupports = false;
        for (std::size_t i = 0; i < m_beam.inPlace.size(); ++i) {
            const InPlace& text = m_beam.inPlace[i];
            if (text.role != Role::TopSupport || text.text.empty()) {
                continue;
            }
            hasSupports = true;
            if (text.number != static_cast<int>(support) + 1) {
                continue;
            }
            const std::optional<Bars> bars = ReadBars(text.text);
            if (!bars) {
                LeaveOut(Field::LeftEnd, Phrase("Desk", "cannot be read"), static_cast<int>(i));
            } else if (!most || most->Area() < bars->Area()) {
                most = bars;
            }
        }
        if (most) {
            return most;
        }
        const Bars* const left = BarsAt(m_stations.front(), Field::LeftEnd);
        const Bars* const right = BarsAt(m_stations.front(), Field::RightEnd);
        const Bars* bars = support == 0 ? left : support == m_spans.size() ? right : nullptr;
        if (support > 0 && support < m_spans.size() && !hasSupports) {
            bars = left == nullptr || (right != nullptr && right->Area() > left->Area()) ? right : left;
        }
        return bars == nullptr ? std::nullopt : std::optional(*bars);
    }

    // Bars beside the through bars reach a third of the span in, from the second row on a quarter; a
    // cantilever's all along it.
    void CountSupports()
    {
        for (std::size_t support = 0; support <= m_spans.size(); ++support) {
            const std::optional<Bars> bars = BarsAtSupport(support);
            if (!bars) {
                continue;
            }
            const bool isEnd = support == 0 || support == m_spans.size();
            const double before = support == 0 ? 0.0 : m_spans[support - 1];
            const double after = support == m_spans.size() ? 0.0 : m_spans[support];
            const double span = std::max(before, after);
            const Station& beside = m_stations[std::min(support, m_spans.size() - 1)];
            const std::optional<Bars>& through = beside.BarsOf(Field::TopBars);
            std::map<BarKind, int> more = CountsOf(*bars);
            if (through) {
                for (const auto& [kind, count] : CountsOf(*through)) {
                    more[kind] -= count;
                }
            }
            std::map<int, int> lower;  // bars below the first row, by diameter
            const BarRows rows = bars->RowsFromTop();
            for (std::size_t i = 1; i < rows.size(); ++i) {
                for (const int diameter : rows[i]) {
                    ++lower[diameter];
                }
            }
            for (const auto& [kind, count] : more) {
                const int inLower = std::clamp(lower[kind.diameter], 0, std::max(0, count));
                lower[kind.diameter] -= inLower;
                const auto add = [&, &kind = kind](int number, double part) {
                    const double reach = m_isCantilever ? span : span * part;
                    if (number > 0) {
                        Add(BarUse::Top, kind, number, isEnd ? reach + Anchorage(kind) : 2.0 * reach);
                    }
                };
                add(count - inLower, 1.0 / 3.0);
                add(inLower, 1.0 / 4.0);
            }
        }
    }

    const Beam& m_beam;
    std::size_t m_index;
    BeamKind m_kind;
    std::vector<double> m_spans;
    bool m_isCantilever;
    std::vector<Station> m_stations;
    Quantities m_all;
};

}  // namespace

Quantities CountBeam(const Beam& beam, std::size_t index) { return Count(beam, index).Of(); }

}  // namespace Desk
