// A label's beam by its leader, else by the only parallel run near it; then runs with several labels are
// cut.
#include "desk/drawing/Owners.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <tuple>

#include "desk/reading/BeamName.h"
#include "desk/reading/Section.h"

namespace Desk {

namespace {

constexpr double UsualWidth = 250.0;     // mm, of a beam whose width nothing tells
constexpr double HalfNominal = 2000.0;   // mm, half of a beam that has no outline
constexpr double InPlaceReach = 1000.0;  // mm from a beam's edge to its texts in place
constexpr double EndReach = 700.0;       // mm, half of the widest beam or wall that another one rests on
constexpr double NextToFace = 60.0;      // mm from a face that still count as at it
constexpr double SameWidth = 12.0;       // mm
constexpr double SameRest = 300.0;       // mm from a gap to the axis of what makes it

// The bundle of a direction, made when there is none.
template <class Bundle>
Bundle& BundleOf(std::vector<Bundle>& bundles, const Frame& frame)
{
    for (Bundle& bundle : bundles) {
        if (std::abs(bundle.frame.cosine - frame.cosine) < 1e-3 &&
            std::abs(bundle.frame.sine - frame.sine) < 1e-3) {
            return bundle;
        }
    }
    return bundles.emplace_back(Bundle{frame, {}});
}

template <class Bundle>
void Sort(std::vector<Bundle>& bundles)
{
    for (Bundle& bundle : bundles) {
        std::sort(bundle.byAxis.begin(), bundle.byAxis.end());
    }
}

// Calls use(index) for what lies between two v of a bundle.
template <class Bundle, class Use>
void ForEachBetween(const Bundle& bundle, double from, double to, Use use)
{
    for (auto at =
             std::lower_bound(bundle.byAxis.begin(), bundle.byAxis.end(), std::pair(from, std::size_t{0}));
         at != bundle.byAxis.end() && at->first <= to; ++at) {
        use(at->second);
    }
}

struct Box {
    double fromU, toU, fromV, toV;
};

// A text in another frame.
Box BoxOf(const TextLine& line, const Frame& frame)
{
    const double angle = line.place.angle * std::numbers::pi / 180.0;
    const PlanPoint& at = line.place.at;
    const PlanPoint along{line.length * std::cos(angle), line.length * std::sin(angle)};
    const PlanPoint up{-line.place.height * std::sin(angle), line.place.height * std::cos(angle)};
    Box box{frame.U(at), frame.U(at), frame.V(at), frame.V(at)};
    for (const PlanPoint& corner :
         {PlanPoint{at.x + along.x, at.y + along.y}, PlanPoint{at.x + up.x, at.y + up.y},
          PlanPoint{at.x + along.x + up.x, at.y + along.y + up.y}}) {
        box.fromU = std::min(box.fromU, frame.U(corner));
        box.toU = std::max(box.toU, frame.U(corner));
        box.fromV = std::min(box.fromV, frame.V(corner));
        box.toV = std::max(box.toV, frame.V(corner));
    }
    return box;
}

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
        const auto [low, high] = std::minmax(bundle.frame.V(a), bundle.frame.V(b));
        const auto [from, to] = std::minmax(bundle.frame.U(a), bundle.frame.U(b));
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

int Owners::DirectionsOn(int plan) const
{
    int directions = 0;
    for (const OwnerBeam& beam : m_beams) {
        if (beam.plan == plan && beam.run) {
            directions |= beam.frame.cosine > beam.frame.sine ? 1 : 2;
        }
    }
    return directions;
}

void Owners::FindTwins()
{
    constexpr int MostPlans = 40;
    std::map<std::size_t, std::vector<std::size_t>> ofRun;
    for (std::size_t i = 0; i < m_beams.size(); ++i) {
        if (m_beams[i].run) {
            ofRun[*m_beams[i].run].push_back(i);
        }
    }
    for (int a = 1; a <= std::min(MostPlans, m_plans->Count()); ++a) {
        for (int b = 1; b <= std::min(MostPlans, m_plans->Count()); ++b) {
            if (DirectionsOn(a) + DirectionsOn(b) != 3 || DirectionsOn(a) == 3 || DirectionsOn(b) == 3) {
                continue;
            }
            const std::optional<PlanPoint> shift = m_plans->ShiftBetween(a, b);
            for (std::size_t run = 0; shift && run < m_plans->Runs(); ++run) {
                const std::optional<std::size_t> same = m_plans->Of(run) == b && ofRun.count(run) == 0
                                                            ? m_plans->Same(run, *shift)
                                                            : std::nullopt;
                const auto labelled = same ? ofRun.find(*same) : ofRun.end();
                if (labelled != ofRun.end()) {
                    for (const std::size_t beam : labelled->second) {
                        m_twins[run].push_back({beam, *shift});
                    }
                }
            }
        }
    }
}

void Owners::FindInPlace()
{
    std::vector<Bundle> beams;
    for (std::size_t i = 0; i < m_beams.size(); ++i) {
        BundleOf(beams, m_beams[i].frame).byAxis.emplace_back(m_beams[i].axis, i);
    }
    Sort(beams);
    m_inPlace.reserve(m_texts.inPlace.size());
    for (const std::size_t line : m_texts.inPlace) {
        m_inPlace.push_back(OwnerOf(m_texts.lines[line], beams));
    }
}

OwnerText Owners::OwnerOf(const TextLine& line, const std::vector<Bundle>& beams) const
{
    constexpr double Far = 1e300;
    OwnerText owner;
    double best = Far;
    double second = Far;
    const Frame reading = Frame::Reading(line.place.angle);
    const double reach = (InPlaceReach + 700.0) * m_unit + line.place.height;
    std::vector<std::size_t> runsWithLabel;
    PlanPoint shift;
    double bestAxis = Far;
    double bestBeyond = Far;
    // Beams end to end are no rivals: the text is beside the one or the other.
    const auto offer = [&](const Box& box, double axis, double width, const Piece& extent,
                           std::optional<std::size_t> beam, const PlanPoint& away) {
        const double middle = (box.fromU + box.toU) / 2.0;
        const double beyond = std::max({0.0, extent.from - middle, middle - extent.to});
        if (beyond > SameRest * m_unit) {
            return false;
        }
        const double gap = std::max({0.0, box.fromV - (axis + width / 2.0), axis - width / 2.0 - box.toV});
        const bool isSameAxis = std::abs(axis - bestAxis) <= m_unit;
        if (isSameAxis ? beyond < bestBeyond : gap < best) {
            second = isSameAxis ? second : best;
            best = gap;
            bestAxis = axis;
            bestBeyond = beyond;
            owner.beam = beam;
            shift = away;
        } else if (!isSameAxis) {
            second = std::min(second, gap);
        }
        return true;
    };
    for (const Bundle& bundle : beams) {
        if (bundle.frame.IsParallel(reading)) {
            const Box box = BoxOf(line, bundle.frame);
            ForEachBetween(bundle, box.fromV - reach, box.toV + reach, [&](std::size_t i) {
                const OwnerBeam& beam = m_beams[i];
                const Piece extent{beam.supports.front(), beam.supports.back()};
                if (!beam.open && offer(box, beam.axis, beam.width, extent, i, {}) && beam.run) {
                    runsWithLabel.push_back(*beam.run);
                }
            });
        }
    }
    for (const Bundle& bundle : m_runBundles) {
        if (bundle.frame.IsParallel(reading)) {
            const Box box = BoxOf(line, bundle.frame);
            ForEachBetween(bundle, box.fromV - reach, box.toV + reach, [&](std::size_t i) {
                const BeamRun& run = m_runs[i];
                if (std::find(runsWithLabel.begin(), runsWithLabel.end(), i) == runsWithLabel.end()) {
                    const auto twins = m_twins.find(i);
                    if (twins == m_twins.end()) {
                        offer(box, run.axis, run.width, {run.From(), run.To()}, std::nullopt, {});
                        return;
                    }
                    for (const Twin& twin : twins->second) {
                        const std::vector<double>& supports = m_beams[twin.beam].supports;
                        const double away = bundle.frame.U(twin.shift);
                        offer(box, run.axis, run.width, {supports.front() + away, supports.back() + away},
                              twin.beam, twin.shift);
                    }
                }
            });
        }
    }
    if (best > InPlaceReach * m_unit) {
        owner.beam.reset();
        owner.open = Phrase("Desk", "no parallel beam is near");
    } else if (second <= 2.0 * best + line.place.height / 2.0) {
        owner.beam.reset();
        owner.open = Phrase("Desk", "two beams are about as near as each other");
    } else if (!owner.beam) {
        owner.open = Phrase("Desk", "the beam beside it has no label");
    } else {
        TextLine there = line;
        there.place.at = {line.place.at.x - shift.x, line.place.at.y - shift.y};
        owner.roles = RolesOf(there, m_beams[*owner.beam]);
        if (owner.roles.empty()) {
            owner.beam.reset();
            owner.open = Phrase("Desk", "it is nothing that a support or a span has");
        }
    }
    return owner;
}

// Top bars are above a beam, or left of one that goes up; near an end of a span they are its support's.
std::vector<OwnerRole> Owners::RolesOf(const TextLine& line, const OwnerBeam& beam) const
{
    const Box box = BoxOf(line, beam.frame);
    const double middle = (box.fromU + box.toU) / 2.0;
    const bool isAbove = (box.fromV + box.toV) / 2.0 > beam.axis;
    const auto next = std::upper_bound(beam.supports.begin() + 1, beam.supports.end() - 1, middle);
    const int span = static_cast<int>(next - beam.supports.begin());
    const double from = *(next - 1);
    const double to = *next;
    const double off = middle - (from + to) / 2.0;
    const double room = std::max((to - from) / 2.0 - (box.toU - box.fromU) / 2.0, (to - from) / 6.0);
    std::vector<OwnerRole> roles;
    for (std::size_t i = 0; i < line.annotations.size(); ++i) {
        switch (line.annotations[i].field) {
        case Field::TopBars:
            if (!isAbove) {
                roles.push_back({Role::Bottom, span, i});
            } else if (off < -room / 2.0) {
                roles.push_back({Role::TopSupport, span, i});
            } else if (off > room / 2.0) {
                roles.push_back({Role::TopSupport, span + 1, i});
            } else {
                roles.push_back({Role::TopSpan, span, i});
            }
            break;
        case Field::BottomBars: roles.push_back({Role::Bottom, span, i}); break;
        case Field::Stirrup: roles.push_back({Role::Stirrup, span, i}); break;
        case Field::Side: roles.push_back({Role::Side, span, i}); break;
        case Field::Torsion: roles.push_back({Role::Torsion, span, i}); break;
        case Field::Section: roles.push_back({Role::Section, span, i}); break;
        case Field::Elevation: roles.push_back({Role::Elevation, span, i}); break;
        default: break;
        }
    }
    return roles;
}

std::optional<OwnerText> Owners::TextAt(std::size_t line, const PlanPoint& at,
                                        const std::map<std::size_t, PlanPoint>& pointed) const
{
    std::vector<OwnerBeam> beams = m_beams;
    for (const auto& [label, there] : pointed) {
        beams[label] = BeamAt(label, there).value_or(beams[label]);
    }
    OwnerText owner;
    double best = SameRest * m_unit;
    for (std::size_t i = 0; i < beams.size(); ++i) {
        const OwnerBeam& beam = beams[i];
        const double u = beam.frame.U(at);
        const double gap = std::max(0.0, std::abs(beam.frame.V(at) - beam.axis) - beam.width / 2.0);
        if (u >= beam.supports.front() && u <= beam.supports.back() && gap < best) {
            best = gap;
            owner.beam = i;
        }
    }
    if (!owner.beam) {
        return std::nullopt;
    }
    owner.roles = RolesOf(m_texts.lines[line], beams[*owner.beam]);
    return owner.roles.empty() ? std::nullopt : std::optional(owner);
}

}  // namespace Desk
