// What is asked of a ranker for an annotation, and the list that it gives. Window, console, tour and hit
// rate ask here, so that all of them mean the same by a field.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "RankerModule.h"
#include "desk/project/Fields.h"

namespace Desk {

// A number that is not known is left out; the ranker gets 0 for it and the table is not asked.
struct Question {
    Ranker ranker = Ranker::Bars;
    std::string barKind = {};       // the bar ranker's kind text in UTF-8
    std::string heads = {};         // head characters of the field's texts, which the bar ranker cuts
    std::optional<int> width = {};  // of the beam, mm
    std::optional<int> area = {};   // required steel, mm²
    std::optional<int> grade = {};  // of the concrete
    std::optional<int> seismicClass = {};  // 1 to 4
    bool wantsTable = false;               // rows of the reference table after the candidates
    int projectKind = 2;  // the host's selector: others change what an empty project is offered

    bool operator==(const Question&) const = default;
};

// What the field of the beam asks: end bars go by the through bars that they lie on, where there are some,
// and each end by its own required area. Table rows come only where the field has some and the beam says
// what the table asks for.
[[nodiscard]] Question QuestionFor(const Beam& beam, Field field, bool wantsTable);

// The same for an annotation of a beam of the project. A text in place asks as the beam would there: as the
// field that it is instead of, with the section of its span. Between spans no required area of end bars is
// known.
[[nodiscard]] Question QuestionFor(const Project& project, const FieldRef& ref, bool wantsTable);

// Whether a ranker's texts are written so; of names the name rules decide. A text that is not, kept in a
// field in spite of it, is neither ranked nor proposed to other beams.
[[nodiscard]] bool IsInGrammar(const std::string& text, Ranker ranker);

// Calls use with the beam's own text of a field and those in place whose role it serves, empty ones too.
template <class Use>
void ForEachText(const Beam& beam, Field field, Use use)
{
    use(beam.*RowOf(field).ofBeam);
    for (const InPlace& text : beam.inPlace) {
        if (RowOf(text.role).field == field) {
            use(text.text);
        }
    }
}

// The bar texts of a beam that a kind text asks for, those in place and empty ones included: those of the
// fields that have the kind, else all end bars of a beam whose through bars are that text, of another beam
// none.
[[nodiscard]] std::vector<const std::string*> BarTexts(const Beam& beam, const std::string& barKind);

// A ranker's answer as it stands.
struct List {
    CStringArray texts;
    CUIntArray stamps;  // parallel to the texts where the ranker stamps, else empty
    int table = 0;      // the texts from here on are table rows
    int focus = -1;     // index of the text to put the focus on, -1 for none
    bool isStamped = false;
};

// Runs the question's ranker; a ProjectHost must live. Throws Failure for a kind that GBK does not hold.
[[nodiscard]] List RunRanker(const Question& question);

}  // namespace Desk
