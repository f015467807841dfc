// A host that delivers all of a project and reads it anew at each question, beside the desk's own, which
// delivers as little as it can; and projects on which they could differ.
#pragma once

#include <map>
#include <random>
#include <string>
#include <vector>

#include "RankerModule.h"
#include "desk/project/Encoding.h"
#include "desk/ranking/Question.h"
#include "tests/support/FakeHost.h"

namespace Desk {

class PlainHost {
public:
    explicit PlainHost(const Project& project)
    {
        s_project = &project;
        SetBeamTypeFunc([](CStringArray& types) {
            ForEachName([&](const CString& type, int, const CString&) { types.Add(type); });
        });
        SetBeamNumberFunc([](CUIntArray& serials, CStringArray& suffixes, CString wanted) {
            ForEachName([&](const CString& type, int serial, const CString& suffix) {
                if (type == wanted) {
                    serials.Add(static_cast<unsigned int>(serial));
                    suffixes.Add(suffix);
                }
            });
        });
        SetBeamSectionFunc([](CStringArray& texts) { DeliverAll(texts, Field::Section); });
        SetBeamEleFunc([](CStringArray& texts) { DeliverAll(texts, Field::Elevation); });
        SetBeamGujinFunc([](CStringArray& texts) { DeliverAll(texts, Field::Stirrup); });
        SetBeamSteelFunc([](CStringArray& texts, CString kind) {
            for (const Beam& beam : s_project->beams) {
                for (const std::string* const text : BarTexts(beam, Utf8FromGbk(kind))) {
                    Deliver(texts, *text);
                }
            }
        });
    }
    ~PlainHost() { EmptySlots(); }
    PlainHost(const PlainHost&) = delete;
    PlainHost& operator=(const PlainHost&) = delete;

private:
    static void Deliver(CStringArray& to, const std::string& text)
    {
        if (const std::optional<CString> gbk = GbkFromUtf8(text); gbk && !gbk->IsEmpty()) {
            to.Add(*gbk);
        }
    }
    static void DeliverAll(CStringArray& to, Field field)
    {
        for (const Beam& beam : s_project->beams) {
            ForEachText(beam, field, [&to](const std::string& text) { Deliver(to, text); });
        }
    }
    template <class Use>
    static void ForEachName(Use use)
    {
        for (const Beam& beam : s_project->beams) {
            const CString name = GbkFromUtf8(beam.name).value_or(CString());
            CString type;
            CString suffix;
            int serial = 0;
            BEAMNAME_HITNESS_RANKER::GetBeamType(name, type);
            BEAMNAME_HITNESS_RANKER::GetBeamXu(name, serial);
            BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(name, suffix);
            if (!type.IsEmpty() && serial > 0) {
                use(type, serial, suffix);
            }
        }
    }

    static inline const Project* s_project = nullptr;
};

// Another text for an annotation: few different ones, among them such as the rankers do not tell apart and
// such as no ranker gets.
inline std::string RandomText(std::mt19937& random, Field field)
{
    static const std::vector<std::string> bars = {
        "2B20",           "N2B20", "G2B20", "2B22+1B20", "2B22/1B20", "2B22+1B20/2B20",
        "2B22/1B20+2B20", "3B25",  "😀",     "",          ""};
    static const std::map<Field, std::vector<std::string>> others = {
        {Field::Name,
         {"KL1(1)", "KL2(1)", "KL4(2A)", "KL9(1)", "L2", "L7(3)", "KL", "KL(1)", "楼KL7", "x", ""}},
        {Field::Section, {"300x600", "300*600", "300X600", "300x700", "Y300x500", "odd", ""}},
        {Field::Elevation, {"-0.050", "-.05", "0.1500", "(0.1)", ""}},
        {Field::Stirrup, {"A8@200(2)", "B8@200(2)", "A8@100(2)/200(2)", "A8@100/200(2)", ""}},
        {Field::TopBars, {"2B20", "2B25", "as KL1", ""}}};
    const auto found = others.find(field);
    const std::vector<std::string>& texts = found == others.end() ? bars : found->second;
    return texts[random() % texts.size()];
}

inline Project RandomProject(std::mt19937& random, unsigned mostBeams)
{
    Project project;
    project.beams.resize(random() % mostBeams + 1);
    for (Beam& beam : project.beams) {
        for (const Field field : BeamFields()) {
            beam.*RowOf(field).ofBeam = RandomText(random, field);
        }
        beam.spans.resize(random() % 3, 6000);
        beam.area = {900, 1100, 1300, 1500};
        for (unsigned i = random() % 4; i > 0; --i) {
            const RoleRow& role = AllRoles()[random() % AllRoles().size()];
            beam.inPlace.push_back({role.role,
                                    static_cast<int>(random() % 3) + 1,
                                    RandomText(random, role.field),
                                    {},
                                    -1,
                                    {}});
        }
    }
    return project;
}

}  // namespace Desk
