// A label's beam by its leader, else by the only parallel run near it; then runs with several labels are
// cut.
#include "desk/drawing/Owners.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <set>
#include <tuple>

#include "desk/reading/BeamName.h"
#include "desk/reading/Section.h"

namespace Desk {

namespace {

constexpr double UsualWidth = 250.0;    // mm, of a beam whose width nothing tells
constexpr double HalfNominal = 2000.0;  // mm, half of a beam that has no outline
constexpr double EndReach = 700.0;      // mm, half of the widest beam or wall that another one rests on
constexpr double NextToFace = 60.0;     // mm from a face that still count as at it
constexpr double SameWidth = 12.0;      // mm
constexpr double SameRest = 300.0;      // mm from a gap to the axis of what makes it

const std::string* TextOf(const FoundTexts& texts, const FoundLabel& label, Field field)
{
    for (const std::size_t line : label.lines) {
        for (const Annotation& annotation : texts.lines[line].annotations) {
            if (annotation.field == field) {
                return &annotation.text;
            }
        }
    }
    return nullptr;
}

}  // namespace

Owners::Owners(const FoundTexts& texts, std::vector<BeamRun> runs, std::vector<BeamRun> carriers,
               double unit, const std::map<std::size_t, PlanPoint>& pointed)
    : m_texts(texts), m_runs(std::move(runs)), m_unit(unit)
{
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        BundleOf(m_runBundles, m_runs[i].frame).byAxis.emplace_back(m_runs[i].axis, i);
    }
    m_plans.emplace(m_runs, unit);
    m_restBundles = m_runBundles;
    for (BeamRun& carrier : carriers) {
        BundleOf(m_restBundles, carrier.frame).byAxis.emplace_back(carrier.axis, m_runs.size());
        m_runs.push_back(std::move(carrier));
    }
    Sort(m_runBundles);
    Sort(m_restBundles);
    FindBeams();
    for (const auto& [label, at] : pointed) {
        if (std::optional<OwnerBeam> beam = BeamAt(label, at)) {
            m_beams[label] = std::move(*beam);
        }
    }
    for (OwnerBeam& beam : m_beams) {
        beam.plan =
            m_plans->At(beam.frame.At((beam.supports.front() + beam.supports.back()) / 2.0, beam.axis));
    }
    FindTwins();
    FindInPlace();
}

double Owners::DrawnWidth(std::size_t label) const
{
    const std::string* const section = TextOf(m_texts, m_texts.labels[label], Field::Section);
    return section == nullptr ? 0.0 : Desk::WidthOf(*section) * m_unit;
}

int Owners::SpansOf(std::size_t label) const
{
    const std::string* const name = TextOf(m_texts, m_texts.labels[label], Field::Name);
    const std::optional<BeamName> read = name == nullptr ? std::nullopt : ReadName(*name);
    if (!read || read->spans == 0) {
        return 0;
    }
    return read->spans + (read->cantilever == 'A' ? 1 : read->cantilever == 'B' ? 2 : 0);
}

double Owners::PositionOf(std::size_t label, const Frame& frame) const
{
    const FoundLabel& found = m_texts.labels[label];
    return frame.U(found.leaderEnd.value_or(
        found.frame.At((found.from + found.to) / 2.0, (found.top + found.bottom) / 2.0)));
}

void Owners::FindBeams()
{
    std::map<std::size_t, std::vector<std::size_t>> byRun;
    m_beams.resize(m_texts.labels.size());
    for (std::size_t i = 0; i < m_beams.size(); ++i) {
        std::optional<Message> open;
        if (const std::optional<std::size_t> run = RunFor(i, open)) {
            byRun[*run].push_back(i);
        } else {
            m_beams[i] = BeamWithoutOutline(m_texts.labels[i], DrawnWidth(i));
            m_beams[i].open = std::move(open);
        }
    }
    for (auto& [run, labels] : byRun) {
        CutRun(run, std::move(labels));
    }
}

std::optional<std::size_t> Owners::RunFor(std::size_t label, std::optional<Message>& open) const
{
    if (m_runBundles.empty()) {
        return std::nullopt;  // the label's own position is all that there is
    }
    const FoundLabel& found = m_texts.labels[label];
    std::vector<std::size_t> runs =
        found.leaderEnd ? RunsAt(*found.leaderEnd, found.frame, true) : RunsNear(found);
    if (const double width = DrawnWidth(label); runs.size() > 1 && width > 0.0) {
        std::erase_if(runs, [&](std::size_t run) {
            return std::abs(m_runs[run].width - width) > SameWidth * m_unit;
        });
    }
    if (runs.size() == 1) {
        return runs.front();
    }
    if (!runs.empty()) {
        open = found.leaderEnd ? Phrase("Desk", "its leader ends on several beams")
                               : Phrase("Desk", "several parallel beams are near");
    } else {
        open = found.leaderEnd ? Phrase("Desk", "its leader ends on no beam")
                               : Phrase("Desk", "it has no leader, and no parallel beam is near");
    }
    return std::nullopt;
}

std::vector<std::size_t> Owners::RunsAt(const PlanPoint& at, const Frame& frame, bool onAxis) const
{
    std::vector<std::size_t> runs;
    for (const Bundle& bundle : m_runBundles) {
        if (!bundle.frame.IsParallel(frame)) {
            continue;
        }
        const double v = bundle.frame.V(at);
        const double u = bundle.frame.U(at);
        const double reach = 700.0 * m_unit;
        ForEachBetween(bundle, v - reach, v + reach, [&](std::size_t i) {
            const BeamRun& run = m_runs[i];
            const double side = std::abs(v - run.axis);
            const bool isBeside = side <= (onAxis ? 0.25 : 0.5) * run.width + m_unit;
            if (isBeside && u >= run.From() - run.width && u <= run.To() + run.width) {
                runs.push_back(i);
            }
        });
    }
    return runs;
}

std::vector<std::size_t> Owners::RunsNear(const FoundLabel& label) const
{
    std::vector<std::size_t> runs;
    const double reach = label.top - label.bottom;
    for (const Bundle& bundle : m_runBundles) {
        if (!bundle.frame.IsParallel(label.frame)) {
            continue;
        }
        const PlanPoint a = label.frame.At(label.from, label.bottom);
        const PlanPoint b = label.frame.At(label.to, label.top);
        const auto [low, high] = std::minmax({bundle.frame.V(a), bundle.frame.V(b)});
        const auto [from, to] = std::minmax({bundle.frame.U(a), bundle.frame.U(b)});
        const double widest = 700.0 * m_unit;
        ForEachBetween(bundle, low - reach - widest, high + reach + widest,
                       [&, low = low, high = high, from = from, to = to](std::size_t i) {
                           const BeamRun& run = m_runs[i];
                           const double gap = std::max({0.0, low - (run.axis + run.width / 2.0),
                                                        run.axis - run.width / 2.0 - high});
                           if (gap <= reach && run.From() < to && run.To() > from) {
                               runs.push_back(i);
                           }
                       });
    }
    return runs;
}

OwnerBeam Owners::BeamWithoutOutline(const FoundLabel& label, double width) const
{
    OwnerBeam beam;
    const PlanPoint at = label.leaderEnd.value_or(label.frame.At(label.from, label.bottom));
    const double degrees = std::atan2(label.frame.sine, label.frame.cosine) * 180.0 / std::numbers::pi;
    beam.frame = Frame::Reading(degrees);
    beam.axis = beam.frame.V(at);
    beam.width = width > 0.0 ? width : UsualWidth * m_unit;
    beam.supports = {beam.frame.U(at) - HalfNominal * m_unit, beam.frame.U(at) + HalfNominal * m_unit};
    return beam;
}

std::vector<Owners::Rest> Owners::RestsOf(std::size_t run) const
{
    const BeamRun& own = m_runs[run];
    std::vector<Rest> rests;
    for (std::size_t i = 1; i < own.pieces.size(); ++i) {
        const double from = own.pieces[i - 1].to;
        const double to = own.pieces[i].from;
        rests.push_back({(from + to) / 2.0, to - from, true});
    }
    const PlanPoint first = own.frame.At(own.From() - EndReach * m_unit, own.axis);
    const PlanPoint last = own.frame.At(own.To() + EndReach * m_unit, own.axis);
    for (const Bundle& bundle : m_restBundles) {
        if (bundle.frame.IsParallel(own.frame)) {
            continue;
        }
        const double v0 = bundle.frame.V(first);
        const double v1 = bundle.frame.V(last);
        ForEachBetween(bundle, std::min(v0, v1), std::max(v0, v1), [&](std::size_t i) {
            const BeamRun& other = m_runs[i];
            const double part = (other.axis - v0) / (v1 - v0);
            const PlanPoint at{first.x + part * (last.x - first.x), first.y + part * (last.y - first.y)};
            const double u = own.frame.U(at);
            const double across = bundle.frame.U(at);
            const bool isGap = std::any_of(rests.begin(), rests.end(), [&](const Rest& rest) {
                return rest.isGap && std::abs(rest.at - u) <= SameRest * m_unit;
            });
            if (!isGap && across >= other.From() - own.width && across <= other.To() + own.width) {
                rests.push_back({u, other.width, false});
            }
        });
    }
    std::sort(rests.begin(), rests.end(), [](const Rest& a, const Rest& b) { return a.at < b.at; });
    return rests;
}

// Between two labels on one run the beams change: where the first one's spans end, else at the largest gap,
// else at the widest beam that crosses.
void Owners::CutRun(std::size_t run, std::vector<std::size_t> labels)
{
    const BeamRun& own = m_runs[run];
    const std::vector<Rest> rests = RestsOf(run);
    std::sort(labels.begin(), labels.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(PositionOf(a, own.frame), a) < std::pair(PositionOf(b, own.frame), b);
    });
    double from = own.From();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        double to = own.To();
        double next = to;
        if (i + 1 < labels.size()) {
            const double low = std::max(from, PositionOf(labels[i], own.frame));
            const double high = PositionOf(labels[i + 1], own.frame);
            const Rest* best = nullptr;
            int spans = 0;
            for (const Rest& rest : rests) {
                if (rest.at <= from + m_unit || rest.at >= high) {
                    continue;
                }
                spans += rest.isGap ? 1 : 0;
                if (rest.at <= low) {
                    continue;
                }
                if (rest.isGap && spans == SpansOf(labels[i])) {
                    best = &rest;
                    break;
                }
                if (best == nullptr ||
                    std::pair(rest.isGap, rest.size) > std::pair(best->isGap, best->size)) {
                    best = &rest;
                }
            }
            const bool isShared = best == nullptr;
            // They meet in the middle of a support; what is wider than one lies between them.
            const double apart = isShared || best->size <= 2.0 * SameRest * m_unit ? 0.0 : best->size / 2.0;
            to = isShared ? to : best->at - apart;
            next = isShared ? from : best->at + apart;
        }
        // A beam of one span ends at the gaps beside its label: more of the run is not its own.
        double first = from;
        double last = to;
        for (const Rest& rest : rests) {
            const bool isEnd = rest.isGap && SpansOf(labels[i]) == 1 && rest.at > from && rest.at < to;
            const double at = PositionOf(labels[i], own.frame);
            first = isEnd && rest.at <= at ? rest.at : first;
            last = isEnd && rest.at > at ? std::min(last, rest.at) : last;
        }
        m_beams[labels[i]] = BeamOn(run, labels[i], first, last, rests);
        from = next;
    }
}

OwnerBeam Owners::BeamOn(std::size_t run, std::size_t label, double from, double to,
                         const std::vector<Rest>& rests) const
{
    const BeamRun& own = m_runs[run];
    OwnerBeam beam;
    beam.frame = own.frame;
    beam.axis = own.axis;
    beam.width = own.width;
    beam.run = run;
    std::vector<Rest> inside;
    double first = from;
    double last = to;
    // An outline ends at the face of what the beam rests on.
    const auto reach = [this](const Rest& rest) { return rest.size / 2.0 + NextToFace * m_unit; };
    for (const Rest& rest : rests) {
        if (rest.at > from + m_unit && rest.at < to - m_unit) {
            inside.push_back(rest);
        } else if (!rest.isGap && rest.at <= from && from - rest.at <= reach(rest)) {
            first = rest.at;  // the last one is the nearest
        } else if (!rest.isGap && rest.at >= to && last == to && rest.at - to <= reach(rest)) {
            last = rest.at;
        }
    }
    // The supports that the name wants: gaps first, the larger ones, of equal ones those that make the
    // spans most alike.
    const int wanted = SpansOf(label) > 0
                           ? SpansOf(label) - 1
                           : static_cast<int>(std::count_if(inside.begin(), inside.end(),
                                                            [](const Rest& rest) { return rest.isGap; }));
    std::vector<double> taken;
    const auto uneven = [&](const Rest& rest) {
        const double span = (last - first) / (wanted + 1);
        return std::abs(std::remainder(rest.at - first, span));
    };
    std::sort(inside.begin(), inside.end(), [&](const Rest& a, const Rest& b) {
        const auto size = [this](const Rest& rest) { return std::llround(rest.size / m_unit); };
        return std::tuple(!a.isGap, -size(a), uneven(a), a.at) <
               std::tuple(!b.isGap, -size(b), uneven(b), b.at);
    });
    inside.resize(std::min(inside.size(), static_cast<std::size_t>(wanted)));
    for (const Rest& rest : inside) {
        taken.push_back(rest.at);
    }
    std::sort(taken.begin(), taken.end());
    beam.supports.push_back(first);
    beam.supports.insert(beam.supports.end(), taken.begin(), taken.end());
    beam.supports.push_back(last);
    return beam;
}

std::optional<OwnerBeam> Owners::BeamAt(std::size_t label, const PlanPoint& at) const
{
    const std::vector<std::size_t> runs = RunsAt(at, m_texts.labels[label].frame, false);
    if (runs.size() != 1) {
        return std::nullopt;
    }
    const BeamRun& run = m_runs[runs.front()];
    return BeamOn(runs.front(), label, run.From(), run.To(), RestsOf(runs.front()));
}

std::optional<OwnerBeam> Owners::OutlineAt(const PlanPoint& at, const std::vector<PlanLine>& labelled) const
{
    std::set<std::size_t> runs;
    for (const Bundle& bundle : m_runBundles) {
        for (const std::size_t run : RunsAt(at, bundle.frame, false)) {
            runs.insert(run);
        }
    }
    if (runs.size() != 1) {
        return std::nullopt;
    }
    const BeamRun& run = m_runs[*runs.begin()];
    const double u = run.frame.U(at);
    double from = run.From();
    double to = run.To();
    for (const PlanLine& beam : labelled) {
        const auto [first, last] = std::minmax({run.frame.U(beam.from), run.frame.U(beam.to)});
        const auto isOnRun = [&](const PlanPoint& end) {
            return std::abs(run.frame.V(end) - run.axis) <= run.width / 2.0;
        };
        if (!isOnRun(beam.from) || !isOnRun(beam.to)) {
            continue;
        }
        if (u >= first && u <= last) {
            return std::nullopt;
        }
        from = last < u ? std::max(from, last) : from;
        to = first > u ? std::min(to, first) : to;
    }
    OwnerBeam beam;
    beam.frame = run.frame;
    beam.axis = run.axis;
    beam.width = run.width;
    beam.run = *runs.begin();
    beam.supports = {from};
    for (std::size_t i = 1; i < run.pieces.size(); ++i) {
        const double gap = (run.pieces[i - 1].to + run.pieces[i].from) / 2.0;
        if (gap > from && gap < to) {
            beam.supports.push_back(gap);
        }
    }
    beam.supports.push_back(to);
    beam.plan = m_plans->At(beam.frame.At((from + to) / 2.0, beam.axis));
    return beam;
}

}  // namespace Desk
