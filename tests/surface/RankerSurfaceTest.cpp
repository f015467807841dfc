// The callback setters, rankers, tables, the point and the wall bar reader.
#include "tests/surface/Surface.h"

namespace {

using Surface::SlotOf;
using Texts = CStringArray&;
template <class Type, auto... Members>
constexpr bool All = (std::is_same_v<std::remove_const_t<decltype(Members)>, Type> && ...);

static_assert(std::is_same_v<BeamTypeFunc, void (*)(Texts)> &&
              std::is_same_v<BeamSectionFunc, BeamTypeFunc> && std::is_same_v<BeamEleFunc, BeamTypeFunc> &&
              std::is_same_v<BeamGujinFunc, BeamTypeFunc> &&
              std::is_same_v<BeamNumberFunc, void (*)(CUIntArray&, Texts, CString)> &&
              std::is_same_v<BeamSteelFunc, void (*)(Texts, CString)> &&
              std::is_same_v<BeamMouseInputFunc, void (*)(void*, int, CString, int)>);
static_assert(All<void (*)(BeamTypeFunc), &SetBeamTypeFunc, &SetBeamSectionFunc, &SetBeamEleFunc,
                  &SetBeamGujinFunc> &&
              All<void (*)(BeamNumberFunc), &SetBeamNumberFunc> &&
              All<void (*)(BeamSteelFunc), &SetBeamSteelFunc> &&
              All<void (*)(BeamMouseInputFunc), &SetBeamMouseInputFunc> &&
              All<bool (*)(CString, int&, int&, int&, int&, int*), &AnalyseBarComment>);

using Base = HITNESS_RANKER;
OWN(Base, void(Texts), ProcessController, SelectFromProject, AdaptResultSize, AddPreferable, SortResult,
    GuessFromScratch, EliminateSameResult);

// What each class has of its own, and what it leaves to the base.
template <class R, bool Copied>
constexpr bool Derives =
    std::is_base_of_v<Base, R>&& std::is_default_constructible_v<R>&& std::is_copy_constructible_v<R> ==
    Copied&& std::is_copy_assignable_v<R> ==
    Copied&& All<void (R::*)(Texts), &R::ProcessController, &R::SelectFromProject, &R::GuessFromScratch>&&
        All<void (Base::*)(Texts), &R::AdaptResultSize, &R::AddPreferable>;

using Name = BEAMNAME_HITNESS_RANKER;
static_assert(Derives<Name, false> &&
              All<void (Base::*)(Texts), &Name::SortResult, &Name::EliminateSameResult>);
STATIC(Name, void(CString, CString&), GetBeamType, GetBeamKuaAndXuantiao);
STATIC(Name, void(CString, int&), GetBeamXu);
OWN(Name, void(CUIntArray&), FindXu);
OWN(Name, void(Texts), StrangeFuncForKL);
OWN(Name, void(CString), SetPreBeamName);
OWN(Name, int(), GetMostFixedBeamNameIndex);
FIELDS(Name, int, m_nHostWord, CUIntArray, m_arUsedXu, CStringArray, m_arBeamType, CString,
       m_strPreBeamName, int, m_nPreXuStep, int, m_nProjectKind);

using Size = BEAMSIZE_HITNESS_RANKER;
static_assert(Derives<Size, true>);
OWN(Size, void(Texts), SortResult);
OWN(Size, void(CString, int&), GetBeamWidth, GetBeamHeight);
FIELDS(Size, int, m_nHostWord, int, m_nProjectKind);

using Level = BEAMLEVEL_HITNESS_RANKER;
static_assert(Derives<Level, true> && sizeof(Level) == sizeof(Base));
OWN(Level, void(Texts), SortResult);

using Bars = CHABIAO_HITNESS_RANKER;
static_assert(Derives<Bars, false>);
OWN(Bars, void(Texts), SortResult, ChaBiao, CutHead, SortWithNumAndDia, SortWithFlags, MixedSort,
    EliminateSameResult);
OWN(Bars, void(int, int, SteelBiao*, CString), SetPara);
OWN(Bars, void(Texts, int), StampFlags);
OWN(Bars, void(Texts, CString), GuessDuanbuJin);
OWN(Bars, int(), FindIndexOfFocusByArFlags);
OWN(Bars, int(CString, CString), CompareSteel, ComparePieceSteel);
OWN(Bars, void(CString, int&, int&), GetSteelNumAndDia);
STATIC(Bars, bool(CString, CString), EqualFirstDia);
FIELDS(Bars, int, m_nHostWord, int, m_nWidth, double, m_dArea, SteelBiao*, m_pSteelBiao, CString, m_strKind,
       CUIntArray, m_arFlags, int, m_nFocusIndex, int, m_nProjectKind);

using Stirrups = GUJIN_HITNESS_RANKER;
static_assert(Derives<Stirrups, false>);
OWN(Stirrups, void(Texts), SortResult, ChaBiao, StampFlags, EliminateSameResult);
OWN(Stirrups, void(int, int, int, GuJinBiao*), SetPara);
OWN(Stirrups, int(CString, CString), CompareGujin);
OWN(Stirrups, int(), FindIndexOfFocusByArFlags);
FIELDS(Stirrups, int, m_nHostWord, int, m_nWidth, int, m_nSeismic, int, m_nGrade, GuJinBiao*, m_pGuJinBiao,
       CUIntArray, m_arFlags, int, m_nFocusIndex, int, m_nProjectKind);

OWN(SteelBiaoItem, void(int, int, CString, CString), Init);
OWN(SteelBiaoItem, void(), CounterPartDiJin);
OWN(SteelBiaoItem, void(const SteelBiaoItem&), operator=);
FIELDS(SteelBiaoItem, int, m_nWidth, int, m_nArea, CString, m_strTopJin, CString, m_strTotalJin, CString,
       m_strDiJin);
OWN(SteelBiao, void(), InintOnce);
OWN(SteelBiao, int(int, int, Texts), GetTopJin, GetTotalJin, GetDiJin);
OWN(SteelBiao, int(int, int, CString, Texts), GetExactTotalJin);
using BarRows = decltype(SteelBiao::m_arBiao250);
FIELDS(SteelBiao, BarRows, m_arBiao250, BarRows, m_arBiao300, BarRows, m_arBiao400, BarRows, m_arBiao450,
       BarRows, m_arBiao500, BarRows, m_arBiao550, BarRows, m_arBiao600, BarRows, m_arBiao350);
static_assert(sizeof(SteelBiao) == sizeof(void*) + 8 * sizeof(BarRows));

OWN(GuJinItem, void(int, int, double, CString), Init);
OWN(GuJinItem, void(const GuJinItem&), operator=);
FIELDS(GuJinItem, int, m_nWidth, int, m_nGrade, CString, m_strGuJin, CString, m_strGuJinJiaMi, double,
       m_dRatio);
OWN(GuJinBiao, void(), InintOnce);
OWN(GuJinBiao, int(int, int, int, Texts), GetGuJin);
using StirrupRows = decltype(GuJinBiao::m_arBiao20);
FIELDS(GuJinBiao, StirrupRows, m_arBiao20, StirrupRows, m_arBiao25, StirrupRows, m_arBiao30, StirrupRows,
       m_arBiao35, StirrupRows, m_arBiao40);
static_assert(sizeof(GuJinBiao) == sizeof(void*) + 5 * sizeof(StirrupRows));
template <class... Classes>
constexpr bool HaveVirtualDestructors = (std::has_virtual_destructor_v<Classes> && ...);
static_assert(HaveVirtualDestructors<Base, SteelBiaoItem, SteelBiao, GuJinItem, GuJinBiao> &&
              std::is_copy_constructible_v<SteelBiaoItem> && std::is_copy_constructible_v<GuJinItem>);

static_assert(std::is_standard_layout_v<DPoint> && sizeof(DPoint) == 12 &&
              std::is_constructible_v<DPoint, float, float> && std::is_default_constructible_v<DPoint>);
FIELDS(DPoint, float, m_fX, float, m_fY, int, m_nTag);
OWN(DPoint, void(const DPoint&), operator=);
OWN(DPoint, bool(const DPoint&) const, operator==);
OWN(DPoint, void(float, float), AdjustCoord);
OWN(DPoint, void(double, double, double), RotateMe);
OWN(DPoint, void(float, float, float, float, float, float), TransformCoord);

TEST(Surface, RankersHaveTheirVirtualOperationsInOrder)
{
    std::size_t slot = 2;
    for (const auto step : {&Base::ProcessController, &Base::SelectFromProject, &Base::AdaptResultSize,
                            &Base::AddPreferable, &Base::SortResult, &Base::GuessFromScratch}) {
        EXPECT_EQ(SlotOf(step), slot++);
    }
    EXPECT_EQ(SlotOf(&Base::EliminateSameResult), 0U);
    EXPECT_EQ(SlotOf(&Bars::EliminateSameResult), 0U);
}

}  // namespace
