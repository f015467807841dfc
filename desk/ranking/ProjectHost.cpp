// The callbacks read the project anew at each question, so that an edit shows in the next run.
#include "desk/ranking/ProjectHost.h"

#include <stdexcept>
#include <string>

#include "RankerModule.h"
#include "desk/project/Encoding.h"
#include "desk/ranking/Question.h"

namespace Desk {

namespace {

const Project* g_project = nullptr;  // the project of the one living host

// Empty texts are annotations that a beam does not have.
void Deliver(CStringArray& to, const std::string& text)
{
    if (text.empty()) {
        return;
    }
    if (std::optional<CString> gbk = GbkFromUtf8(text)) {
        to.Add(*std::move(gbk));
    }
}

void DeliverAll(CStringArray& to, Field field)
{
    for (const Beam& beam : g_project->beams) {
        ForEachText(beam, field, [&to](const std::string& text) { Deliver(to, text); });
    }
}

struct NameParts {
    CString type;
    int serial = 0;
    CString suffix;
};

// Nothing for a name that has no type or no serial of its own.
std::optional<NameParts> PartsOf(const std::string& name)
{
    const std::optional<CString> gbk = GbkFromUtf8(name);
    if (!gbk) {
        return std::nullopt;
    }
    NameParts parts;
    BEAMNAME_HITNESS_RANKER::GetBeamType(*gbk, parts.type);
    BEAMNAME_HITNESS_RANKER::GetBeamXu(*gbk, parts.serial);
    BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(*gbk, parts.suffix);
    if (parts.type.IsEmpty() || parts.serial < 1) {
        return std::nullopt;
    }
    return parts;
}

void BeamTypes(CStringArray& arType)
{
    for (const Beam& beam : g_project->beams) {
        if (const std::optional<NameParts> parts = PartsOf(beam.name)) {
            arType.Add(parts->type);
        }
    }
}

void BeamNumbers(CUIntArray& arXu, CStringArray& arSuffix, CString strType)
{
    for (const Beam& beam : g_project->beams) {
        const std::optional<NameParts> parts = PartsOf(beam.name);
        if (parts && parts->type == strType) {
            arXu.Add(static_cast<unsigned int>(parts->serial));
            arSuffix.Add(parts->suffix);
        }
    }
}

void Sections(CStringArray& arResult) { DeliverAll(arResult, Field::Section); }
void Elevations(CStringArray& arResult) { DeliverAll(arResult, Field::Elevation); }
void Stirrups(CStringArray& arResult) { DeliverAll(arResult, Field::Stirrup); }

void BarsOfKind(CStringArray& arResult, CString strKind)
{
    const std::string kind = Utf8FromGbk(strKind);
    for (const Beam& beam : g_project->beams) {
        for (const std::string* text : BarTexts(beam, kind)) {
            Deliver(arResult, *text);
        }
    }
}

}  // namespace

ProjectHost::ProjectHost(const Project& project)
{
    if (g_project != nullptr) {
        throw std::logic_error("a second host while the first one lives");
    }
    g_project = &project;
    SetBeamTypeFunc(&BeamTypes);
    SetBeamNumberFunc(&BeamNumbers);
    SetBeamSectionFunc(&Sections);
    SetBeamEleFunc(&Elevations);
    SetBeamGujinFunc(&Stirrups);
    SetBeamSteelFunc(&BarsOfKind);
}

ProjectHost::~ProjectHost()
{
    SetBeamTypeFunc(nullptr);
    SetBeamNumberFunc(nullptr);
    SetBeamSectionFunc(nullptr);
    SetBeamEleFunc(nullptr);
    SetBeamGujinFunc(nullptr);
    SetBeamSteelFunc(nullptr);
    g_project = nullptr;
}

}  // namespace Desk
