#include "desk/ranking/Question.h"

#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"
#include "desk/ranking/Tables.h"
#include "desk/reading/Bars.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

namespace {

List Bare(HITNESS_RANKER& ranker)
{
    List list;
    ranker.ProcessController(list.texts);
    list.table = list.texts.GetSize();
    return list;
}

// The rankers of bars and stirrups stamp their texts and know a table.
template <class StampingRanker>
List Stamped(StampingRanker& ranker, const Question& question)
{
    ranker.m_nProjectKind = question.projectKind;
    List list = Bare(ranker);
    if (question.wantsTable) {
        ranker.ChaBiao(list.texts);
    }
    for (const unsigned int stamp : ranker.m_arFlags) {
        list.stamps.Add(stamp);
    }
    list.focus = ranker.FindIndexOfFocusByArFlags();
    list.isStamped = true;
    return list;
}

}  // namespace

Question QuestionFor(const Beam& beam, Field field, bool wantsTable)
{
    const FieldRow& row = RowOf(field);
    Question question;
    question.ranker = row.ranker;
    question.barKind = row.isOnThroughBars && ReadBars(beam.topBars) ? beam.topBars : row.barKind;
    question.heads = row.heads;
    if (const int width = WidthOf(beam.section); width > 0) {
        question.width = width;
    }
    question.grade = beam.concreteGrade;
    question.seismicClass = beam.seismicClass;
    if (row.requiredSteel != nullptr) {
        question.area = beam.area.*row.requiredSteel;
    }
    question.wantsTable = wantsTable && row.hasTableRows && question.width.has_value();
    return question;
}

Question QuestionFor(const Project& project, const FieldRef& ref, bool wantsTable)
{
    const Beam& beam = project.beams.at(ref.index);
    if (ref.inPlace < 0) {
        return QuestionFor(beam, ref.field, wantsTable);
    }
    const InPlace& text = beam.inPlace.at(static_cast<std::size_t>(ref.inPlace));
    const Field field = FieldAt(beam, text);
    Beam at = BeamAt(beam, text);
    at.topBars = beam.topBars;  // end bars lie on those of all spans
    Question question = QuestionFor(at, field, wantsTable);
    if (field == Field::LeftEnd && text.number > 1) {
        question.area.reset();
        question.wantsTable = false;
    }
    return question;
}

bool IsInGrammar(const std::string& text, Ranker ranker)
{
    switch (ranker) {
    case Ranker::Sections: return ReadSection(text).has_value();
    case Ranker::Elevations: return ReadElevation(text).has_value();
    case Ranker::Stirrups: return ReadStirrup(text).has_value();
    case Ranker::Bars: return ReadBars(text).has_value();
    case Ranker::Names:
    case Ranker::OtherWalls:
    case Ranker::None: break;
    }
    return true;
}

std::vector<const std::string*> BarTexts(const Beam& beam, const std::string& barKind)
{
    std::vector<const std::string*> texts;
    std::vector<const std::string*> onThroughBars;
    const auto take = [&](Field field, const std::string& text) {
        const FieldRow& row = RowOf(field);
        if (row.ranker == Ranker::Bars && barKind == row.barKind) {
            texts.push_back(&text);
        } else if (row.isOnThroughBars && barKind == beam.topBars) {
            onThroughBars.push_back(&text);
        }
    };
    for (const Field field : BeamFields()) {
        take(field, beam.*RowOf(field).ofBeam);
    }
    for (const InPlace& text : beam.inPlace) {
        take(FieldAt(beam, text), text.text);
    }
    return texts.empty() ? onThroughBars : texts;
}

List RunRanker(const Question& question)
{
    switch (question.ranker) {
    case Ranker::Names: {
        BEAMNAME_HITNESS_RANKER ranker;
        ranker.m_nProjectKind = question.projectKind;
        List list = Bare(ranker);
        list.focus = list.texts.IsEmpty() ? -1 : ranker.GetMostFixedBeamNameIndex();
        return list;
    }
    case Ranker::Sections: {
        BEAMSIZE_HITNESS_RANKER ranker;
        ranker.m_nProjectKind = question.projectKind;
        return Bare(ranker);
    }
    case Ranker::Elevations: {
        BEAMLEVEL_HITNESS_RANKER ranker;
        return Bare(ranker);
    }
    case Ranker::Stirrups: {
        GUJIN_HITNESS_RANKER ranker;
        ranker.SetPara(question.width.value_or(0), question.seismicClass.value_or(0),
                       question.grade.value_or(0), &StirrupTable());
        return Stamped(ranker, question);
    }
    case Ranker::Bars: {
        const std::optional<CString> kind = GbkFromUtf8(question.barKind);
        if (!kind) {
            throw Failure(question.barKind + ": holds a character that GBK does not have");
        }
        CHABIAO_HITNESS_RANKER ranker;
        ranker.SetPara(question.width.value_or(0), question.area.value_or(0), &BarTable(), *kind);
        return Stamped(ranker, question);
    }
    case Ranker::OtherWalls:
    case Ranker::None: break;
    }
    return {};
}

}  // namespace Desk
