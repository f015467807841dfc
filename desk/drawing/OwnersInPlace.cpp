// Texts in place: the only near beam that goes their way, and what they are for it.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desk/drawing/Owners.h"

namespace Desk {

namespace {

constexpr double InPlaceReach = 1000.0;  // mm from a beam's edge to its texts in place
constexpr double Beyond = 300.0;         // mm past a beam's end that a text's middle may be

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

}  // namespace

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
        if (beyond > Beyond * m_unit) {
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
    double best = Beyond * m_unit;
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
