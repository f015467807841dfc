// The five rankers.
#include <utility>

#include "c/private/Frame.h"
#include "c/private/Tables.h"
#include "c/private/Texts.h"

using namespace RankerC;

namespace {

std::unique_ptr<HITNESS_RANKER> MakeRanker(std::int32_t kind)
{
    switch (kind) {
    case RK_NAME: return std::make_unique<BEAMNAME_HITNESS_RANKER>();
    case RK_SECTION: return std::make_unique<BEAMSIZE_HITNESS_RANKER>();
    case RK_ELEVATION: return std::make_unique<BEAMLEVEL_HITNESS_RANKER>();
    case RK_STIRRUP: {
        auto ranker = std::make_unique<GUJIN_HITNESS_RANKER>();
        ranker->SetPara(0, 0, 0, &StirrupTable());
        return ranker;
    }
    case RK_BARS: {
        auto ranker = std::make_unique<CHABIAO_HITNESS_RANKER>();
        ranker->SetPara(0, 0, &BarTable(), CString());
        return ranker;
    }
    default: RefuseValue("kind", kind);
    }
}

template <class Wanted>
Wanted* As(Ranker& ranker)
{
    return dynamic_cast<Wanted*>(ranker.m_ranker.get());
}

template <class Wanted>
Wanted& NeedAs(Ranker& ranker, const char* name)
{
    Wanted* const found = As<Wanted>(ranker);
    if (found == nullptr) {
        throw Refusal{RK_BAD_ARGUMENT, std::string("this ranker is none of ") + name};
    }
    return *found;
}

// The candidates with their stamps, where the ranker has any.
void Deliver(Ranker& ranker, CStringArray&& texts, List& list)
{
    const CUIntArray* stamps = nullptr;
    if (const auto* const bars = As<CHABIAO_HITNESS_RANKER>(ranker)) {
        stamps = &bars->m_arFlags;
    } else if (const auto* const stirrups = As<GUJIN_HITNESS_RANKER>(ranker)) {
        stamps = &stirrups->m_arFlags;
    }
    std::vector<std::uint32_t> numbers;
    if (stamps != nullptr) {
        numbers.assign(stamps->begin(), stamps->end());
        numbers.resize(static_cast<std::size_t>(texts.GetSize()));
    }
    list.Changed();
    list.m_texts = std::move(texts);
    list.m_numbers = std::move(numbers);
}

}  // namespace

rk_status rk_ranker_create(rk_context context, int32_t kind, rk_ranker* ranker)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        Need(ranker, "ranker");
        EnterAs(std::make_shared<Ranker>(found, kind, MakeRanker(kind)), ranker);
    });
}

rk_status rk_ranker_destroy(rk_ranker ranker)
{
    return Guarded([&] { Leave(*Find<Ranker>(ranker)); });
}

rk_status rk_ranker_set_bars(rk_ranker ranker, int32_t width, int32_t area, const char* kind,
                             size_t kind_length)
{
    return Guarded([&] {
        const auto found = Find<Ranker>(ranker);
        auto& bars = NeedAs<CHABIAO_HITNESS_RANKER>(*found, "bars");
        bars.SetPara(width, area, &BarTable(), TextOf(*found->m_context, kind, kind_length, "kind"));
    });
}

rk_status rk_ranker_set_stirrups(rk_ranker ranker, int32_t width, int32_t seismic, int32_t grade)
{
    return Guarded([&] {
        const auto found = Find<Ranker>(ranker);
        NeedAs<GUJIN_HITNESS_RANKER>(*found, "stirrups").SetPara(width, seismic, grade, &StirrupTable());
    });
}

rk_status rk_ranker_set_project_kind(rk_ranker ranker, int32_t kind)
{
    return Guarded([&] {
        const auto found = Find<Ranker>(ranker);
        if (auto* const bars = As<CHABIAO_HITNESS_RANKER>(*found)) {
            bars->m_nProjectKind = kind;
        } else if (auto* const stirrups = As<GUJIN_HITNESS_RANKER>(*found)) {
            stirrups->m_nProjectKind = kind;
        } else if (auto* const sections = As<BEAMSIZE_HITNESS_RANKER>(*found)) {
            sections->m_nProjectKind = kind;
        } else {
            NeedAs<BEAMNAME_HITNESS_RANKER>(*found, "those with a project kind").m_nProjectKind = kind;
        }
    });
}

rk_status rk_ranker_run(rk_ranker ranker, rk_list project, rk_list result)
{
    return Guarded([&] {
        const auto found = Find<Ranker>(ranker);
        const auto texts = project != nullptr ? Find<List>(project) : nullptr;
        const auto list = Find<List>(result);
        CStringArray candidates;
        Frame frame(found->m_context, nullptr, texts != nullptr ? &texts->m_texts : nullptr);
        found->m_ranker->ProcessController(candidates);
        Deliver(*found, std::move(candidates), *list);
        frame.NeedNoFailure();
    });
}

rk_status rk_ranker_add_table_rows(rk_ranker ranker, rk_list result)
{
    return Guarded([&] {
        const auto found = Find<Ranker>(ranker);
        const auto list = Find<List>(result);
        CStringArray candidates = list->m_texts;
        if (auto* const bars = As<CHABIAO_HITNESS_RANKER>(*found)) {
            bars->ChaBiao(candidates);
        } else {
            NeedAs<GUJIN_HITNESS_RANKER>(*found, "bars or stirrups").ChaBiao(candidates);
        }
        Deliver(*found, std::move(candidates), *list);
    });
}

rk_status rk_ranker_focus(rk_ranker ranker, int32_t* index)
{
    return Guarded([&] {
        const auto found = Find<Ranker>(ranker);
        Need(index, "index");
        if (auto* const bars = As<CHABIAO_HITNESS_RANKER>(*found)) {
            *index = bars->FindIndexOfFocusByArFlags();
        } else if (auto* const stirrups = As<GUJIN_HITNESS_RANKER>(*found)) {
            *index = stirrups->FindIndexOfFocusByArFlags();
        } else if (auto* const names = As<BEAMNAME_HITNESS_RANKER>(*found)) {
            *index = names->GetMostFixedBeamNameIndex();
        } else {
            *index = -1;
        }
    });
}

rk_status rk_ranker_set_previous_name(rk_ranker ranker, const char* name, size_t name_length, int32_t* step)
{
    return Guarded([&] {
        const auto found = Find<Ranker>(ranker);
        auto& names = NeedAs<BEAMNAME_HITNESS_RANKER>(*found, "names");
        names.SetPreBeamName(TextOf(*found->m_context, name, name_length, "name"));
        if (step != nullptr) {
            *step = names.m_nPreXuStep;
        }
    });
}
