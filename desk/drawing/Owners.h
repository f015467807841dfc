// Which beam a text belongs to. What nothing tells for certain stays open.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "desk/drawing/Bundle.h"
#include "desk/drawing/Labels.h"
#include "desk/drawing/Plans.h"
#include "desk/project/Failure.h"
#include "desk/project/Fields.h"

namespace Desk {

// The beam of a label.
struct OwnerBeam {
    Frame frame;
    double axis = 0.0;             // v
    double width = 0.0;            // as drawn
    std::vector<double> supports;  // u, two at least; the first and the last are the ends
    std::optional<std::size_t> run;
    int plan = 0;                 // of those side by side in the drawing, from 1; 0 where none is near
    std::optional<Message> open;  // why the drawing does not tell which beam it is
};

// What a text in place is, for each of its annotations.
struct OwnerRole {
    Role role = Role::Bottom;
    int number = 1;
    std::size_t annotation = 0;
};

struct OwnerText {
    std::optional<std::size_t> beam;  // index of the label
    std::vector<OwnerRole> roles;
    std::optional<Message> open;
};

class Owners {
public:
    // Outlines as drawn, of beams and of the walls and columns that carry them; unit as for FindRuns;
    // pointed: labels whose beam a person has pointed to, and where.
    Owners(const FoundTexts& texts, std::vector<BeamRun> runs, std::vector<BeamRun> carriers, double unit,
           const std::map<std::size_t, PlanPoint>& pointed);

    [[nodiscard]] const std::vector<OwnerBeam>& Beams() const { return m_beams; }  // parallel to the labels
    [[nodiscard]] const std::vector<OwnerText>& InPlace() const
    {
        return m_inPlace;
    }  // parallel to texts.inPlace

    // The outline at a position as a beam of its own: between the labelled beams that lie on it too, given
    // by their ends. Nothing where there is no outline, where there are several, and on a labelled beam.
    [[nodiscard]] std::optional<OwnerBeam> OutlineAt(const PlanPoint& at,
                                                     const std::vector<PlanLine>& labelled) const;

    // The same for a text whose beam a person points to by a position on it; nothing where none is. The
    // label is one of texts.labels, the line one of texts.lines.
    [[nodiscard]] std::optional<OwnerBeam> BeamAt(std::size_t label, const PlanPoint& at) const;
    // Labels of pointed lie where that says.
    [[nodiscard]] std::optional<OwnerText> TextAt(std::size_t line, const PlanPoint& at,
                                                  const std::map<std::size_t, PlanPoint>& pointed) const;

private:
    // Where a beam can rest: a gap of its outline, or a beam that crosses it.
    struct Rest {
        double at = 0.0;    // u
        double size = 0.0;  // of the gap, or the width of what crosses
        bool isGap = false;
    };

    void FindBeams();
    void CutRun(std::size_t run, std::vector<std::size_t> labels);
    [[nodiscard]] OwnerBeam BeamOn(std::size_t run, std::size_t label, double from, double to,
                                   const std::vector<Rest>& rests) const;
    [[nodiscard]] OwnerBeam BeamWithoutOutline(const FoundLabel& label, double width) const;
    [[nodiscard]] std::optional<std::size_t> RunFor(std::size_t label, std::optional<Message>& open) const;
    [[nodiscard]] std::vector<std::size_t> RunsAt(const PlanPoint& at, const Frame& frame,
                                                  bool onAxis) const;
    [[nodiscard]] std::vector<std::size_t> RunsNear(const FoundLabel& label) const;
    [[nodiscard]] std::vector<Rest> RestsOf(std::size_t run) const;

    // A floor that is drawn twice, with the labels of one direction on each plan.
    void FindTwins();
    [[nodiscard]] int DirectionsOn(int plan) const;  // 1 lying labels, 2 upright ones, 3 both, 0 none

    void FindInPlace();
    [[nodiscard]] OwnerText OwnerOf(const TextLine& line, const std::vector<Bundle>& beams) const;
    [[nodiscard]] std::vector<OwnerRole> RolesOf(const TextLine& line, const OwnerBeam& beam) const;

    [[nodiscard]] double DrawnWidth(std::size_t label) const;  // by its section; 0 without one
    [[nodiscard]] int
    SpansOf(std::size_t label) const;  // by its name, with cantilevers; 0 where that gives none
    [[nodiscard]] double PositionOf(std::size_t label, const Frame& frame) const;

    const FoundTexts& m_texts;
    std::vector<BeamRun> m_runs;  // beams, then walls and columns
    double m_unit;
    std::vector<Bundle> m_runBundles;   // of beams
    std::vector<Bundle> m_restBundles;  // of all that a beam can rest on
    std::vector<OwnerBeam> m_beams;
    // By run without a label: the beams that the other plan has there, and how far away it has them.
    struct Twin {
        std::size_t beam = 0;
        PlanPoint shift;
    };
    std::map<std::size_t, std::vector<Twin>> m_twins;
    std::optional<Plans> m_plans;
    std::vector<OwnerText> m_inPlace;
};

}  // namespace Desk
