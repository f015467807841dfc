// The callback setters, rankers, tables, the point and the wall bar reader.
#include "tests/surface/Surface.h"

namespace {

using Surface::All, Surface::InOrder, Surface::SlotOf;
using Texts = CStringArray&;

static_assert(std::is_same_v<BeamTypeFunc, void (*)(Texts)>);
static_assert(std::is_same_v<BeamNumberFunc, void (*)(CUIntArray&, Texts, CString)>);
static_assert(std::is_same_v<BeamSectionFunc, void (*)(Texts)>);
static_assert(std::is_same_v<BeamEleFunc, void (*)(Texts)>);
static_assert(std::is_same_v<BeamGujinFunc, void (*)(Texts)>);
static_assert(std::is_same_v<BeamSteelFunc, void (*)(Texts, CString)>);
static_assert(std::is_same_v<BeamMouseInputFunc, void (*)(void*, int, CString, int)>);
static_assert(All<void (*)(void (*)(Texts)), &SetBeamTypeFunc, &SetBeamSectionFunc, &SetBeamEleFunc,
                  &SetBeamGujinFunc>);
static_assert(All<void (*)(BeamNumberFunc), &SetBeamNumberFunc> &&
              All<void (*)(BeamSteelFunc), &SetBeamSteelFunc> &&
              All<void (*)(BeamMouseInputFunc), &SetBeamMouseInputFunc>);
static_assert(All<bool (*)(CString, int&, int&, int&, int&, int*), &AnalyseBarComment>);

using Base = HITNESS_RANKER;
static_assert(
    All<void (Base::*)(Texts), &Base::ProcessController, &Base::SelectFromProject, &Base::AdaptResultSize,
        &Base::AddPreferable, &Base::SortResult, &Base::GuessFromScratch, &Base::EliminateSameResult>);
static_assert(All<int Base::*, &Base::m_nHostWord> && std::has_virtual_destructor_v<Base>);

// What each class has of its own, and what it leaves to the base.
template <class R>
constexpr bool Derives =
    std::is_base_of_v<Base, R> && sizeof(R) >= sizeof(Base) &&
    std::is_default_constructible_v<R>&& All<
        void (R::*)(Texts), &R::ProcessController, &R::SelectFromProject,
        &R::GuessFromScratch>&& All<void (Base::*)(Texts), &R::AdaptResultSize, &R::AddPreferable>;
template <class R>
constexpr bool Copies = std::is_copy_constructible_v<R>&& std::is_copy_assignable_v<R>;

using Name = BEAMNAME_HITNESS_RANKER;
static_assert(Derives<Name> && !std::is_copy_constructible_v<Name> && !std::is_copy_assignable_v<Name>);
static_assert(All<void (Base::*)(Texts), &Name::SortResult, &Name::EliminateSameResult>);
static_assert(All<void (*)(CString, CString&), &Name::GetBeamType, &Name::GetBeamKuaAndXuantiao> &&
              All<void (*)(CString, int&), &Name::GetBeamXu>);
static_assert(All<void (Name::*)(CUIntArray&), &Name::FindXu> &&
              All<void (Name::*)(Texts), &Name::StrangeFuncForKL> &&
              All<void (Name::*)(CString), &Name::SetPreBeamName> &&
              All<int (Name::*)(), &Name::GetMostFixedBeamNameIndex>);
static_assert(All<CUIntArray Name::*, &Name::m_arUsedXu> &&
              All<CStringArray Name::*, &Name::m_arBeamType> &&
              All<CString Name::*, &Name::m_strPreBeamName> &&
              All<int Name::*, &Name::m_nPreXuStep, &Name::m_nProjectKind>);
static_assert(InOrder({offsetof(Name, m_nHostWord), offsetof(Name, m_arUsedXu),
                       offsetof(Name, m_arBeamType), offsetof(Name, m_strPreBeamName),
                       offsetof(Name, m_nPreXuStep), offsetof(Name, m_nProjectKind)}));

using Size = BEAMSIZE_HITNESS_RANKER;
static_assert(Derives<Size> && Copies<Size> && All<void (Size::*)(Texts), &Size::SortResult>);
static_assert(All<void (Size::*)(CString, int&), &Size::GetBeamWidth, &Size::GetBeamHeight>);
static_assert(All<int Size::*, &Size::m_nProjectKind> &&
              InOrder({offsetof(Size, m_nHostWord), offsetof(Size, m_nProjectKind)}));

using Level = BEAMLEVEL_HITNESS_RANKER;
static_assert(Derives<Level> && Copies<Level> && All<void (Level::*)(Texts), &Level::SortResult>);
static_assert(sizeof(Level) == sizeof(Base));

using Bars = CHABIAO_HITNESS_RANKER;
static_assert(Derives<Bars> && !std::is_copy_constructible_v<Bars> && !std::is_copy_assignable_v<Bars>);
static_assert(
    All<void (Bars::*)(Texts), &Bars::SortResult, &Bars::ChaBiao, &Bars::CutHead, &Bars::SortWithNumAndDia,
        &Bars::SortWithFlags, &Bars::MixedSort, &Bars::EliminateSameResult>);
static_assert(All<void (Bars::*)(int, int, SteelBiao*, CString), &Bars::SetPara> &&
              All<void (Bars::*)(Texts, int), &Bars::StampFlags> &&
              All<void (Bars::*)(Texts, CString), &Bars::GuessDuanbuJin> &&
              All<int (Bars::*)(), &Bars::FindIndexOfFocusByArFlags> &&
              All<int (Bars::*)(CString, CString), &Bars::CompareSteel, &Bars::ComparePieceSteel> &&
              All<void (Bars::*)(CString, int&, int&), &Bars::GetSteelNumAndDia> &&
              All<bool (*)(CString, CString), &Bars::EqualFirstDia>);
static_assert(All<int Bars::*, &Bars::m_nWidth, &Bars::m_nFocusIndex, &Bars::m_nProjectKind> &&
              All<double Bars::*, &Bars::m_dArea> && All<SteelBiao * Bars::*, &Bars::m_pSteelBiao> &&
              All<CString Bars::*, &Bars::m_strKind> && All<CUIntArray Bars::*, &Bars::m_arFlags>);
static_assert(InOrder({offsetof(Bars, m_nHostWord), offsetof(Bars, m_nWidth), offsetof(Bars, m_dArea),
                       offsetof(Bars, m_pSteelBiao), offsetof(Bars, m_strKind), offsetof(Bars, m_arFlags),
                       offsetof(Bars, m_nFocusIndex), offsetof(Bars, m_nProjectKind)}));

using Stirrups = GUJIN_HITNESS_RANKER;
static_assert(Derives<Stirrups> && !std::is_copy_constructible_v<Stirrups> &&
              !std::is_copy_assignable_v<Stirrups>);
static_assert(All<void (Stirrups::*)(Texts), &Stirrups::SortResult, &Stirrups::ChaBiao,
                  &Stirrups::StampFlags, &Stirrups::EliminateSameResult>);
static_assert(All<void (Stirrups::*)(int, int, int, GuJinBiao*), &Stirrups::SetPara> &&
              All<int (Stirrups::*)(CString, CString), &Stirrups::CompareGujin> &&
              All<int (Stirrups::*)(), &Stirrups::FindIndexOfFocusByArFlags>);
static_assert(All<int Stirrups::*, &Stirrups::m_nWidth, &Stirrups::m_nSeismic, &Stirrups::m_nGrade,
                  &Stirrups::m_nFocusIndex, &Stirrups::m_nProjectKind> &&
              All<GuJinBiao * Stirrups::*, &Stirrups::m_pGuJinBiao> &&
              All<CUIntArray Stirrups::*, &Stirrups::m_arFlags>);
static_assert(InOrder({offsetof(Stirrups, m_nHostWord), offsetof(Stirrups, m_nWidth),
                       offsetof(Stirrups, m_nSeismic), offsetof(Stirrups, m_nGrade),
                       offsetof(Stirrups, m_pGuJinBiao), offsetof(Stirrups, m_arFlags),
                       offsetof(Stirrups, m_nFocusIndex), offsetof(Stirrups, m_nProjectKind)}));

using BarItem = SteelBiaoItem;
static_assert(All<void (BarItem::*)(int, int, CString, CString), &BarItem::Init> &&
                  All<void (BarItem::*)(), &BarItem::CounterPartDiJin> &&
                  All < void(BarItem::*)(const BarItem&),
              &BarItem::operator=> && Copies<BarItem>);
static_assert(
    All<int BarItem::*, &BarItem::m_nWidth, &BarItem::m_nArea> &&
    All<CString BarItem::*, &BarItem::m_strTopJin, &BarItem::m_strTotalJin, &BarItem::m_strDiJin>);
static_assert(InOrder({offsetof(BarItem, m_nWidth), offsetof(BarItem, m_nArea),
                       offsetof(BarItem, m_strTopJin), offsetof(BarItem, m_strTotalJin),
                       offsetof(BarItem, m_strDiJin)}));
static_assert(All<void (SteelBiao::*)(), &SteelBiao::InintOnce> &&
              All<int (SteelBiao::*)(int, int, Texts), &SteelBiao::GetTopJin, &SteelBiao::GetTotalJin,
                  &SteelBiao::GetDiJin> &&
              All<int (SteelBiao::*)(int, int, CString, Texts), &SteelBiao::GetExactTotalJin>);
static_assert(InOrder({offsetof(SteelBiao, m_arBiao250), offsetof(SteelBiao, m_arBiao300),
                       offsetof(SteelBiao, m_arBiao400), offsetof(SteelBiao, m_arBiao450),
                       offsetof(SteelBiao, m_arBiao500), offsetof(SteelBiao, m_arBiao550),
                       offsetof(SteelBiao, m_arBiao600), offsetof(SteelBiao, m_arBiao350)}) &&
              sizeof(SteelBiao) == sizeof(void*) + 8 * sizeof(SteelBiao::m_arBiao250));

using StirrupItem = GuJinItem;
static_assert(All<void (StirrupItem::*)(int, int, double, CString), &StirrupItem::Init> &&
                  All < void(StirrupItem::*)(const StirrupItem&),
              &StirrupItem::operator=> && Copies<StirrupItem>);
static_assert(All<int StirrupItem::*, &StirrupItem::m_nWidth, &StirrupItem::m_nGrade> &&
              All<CString StirrupItem::*, &StirrupItem::m_strGuJin, &StirrupItem::m_strGuJinJiaMi> &&
              All<double StirrupItem::*, &StirrupItem::m_dRatio>);
static_assert(InOrder({offsetof(StirrupItem, m_nWidth), offsetof(StirrupItem, m_nGrade),
                       offsetof(StirrupItem, m_strGuJin), offsetof(StirrupItem, m_strGuJinJiaMi),
                       offsetof(StirrupItem, m_dRatio)}));
static_assert(All<void (GuJinBiao::*)(), &GuJinBiao::InintOnce> &&
              All<int (GuJinBiao::*)(int, int, int, Texts), &GuJinBiao::GetGuJin>);
static_assert(InOrder({offsetof(GuJinBiao, m_arBiao20), offsetof(GuJinBiao, m_arBiao25),
                       offsetof(GuJinBiao, m_arBiao30), offsetof(GuJinBiao, m_arBiao35),
                       offsetof(GuJinBiao, m_arBiao40)}) &&
              sizeof(GuJinBiao) == sizeof(void*) + 5 * sizeof(GuJinBiao::m_arBiao20));
static_assert(std::has_virtual_destructor_v<BarItem> && std::has_virtual_destructor_v<SteelBiao> &&
              std::has_virtual_destructor_v<StirrupItem> && std::has_virtual_destructor_v<GuJinBiao>);

static_assert(std::is_standard_layout_v<DPoint> && sizeof(DPoint) == 12 &&
              std::is_constructible_v<DPoint, float, float> && std::is_default_constructible_v<DPoint>);
static_assert(All<float DPoint::*, &DPoint::m_fX, &DPoint::m_fY> && All<int DPoint::*, &DPoint::m_nTag> &&
              InOrder({offsetof(DPoint, m_fX), offsetof(DPoint, m_fY), offsetof(DPoint, m_nTag)}));
static_assert(All < void(DPoint::*)(const DPoint&),
              &DPoint::operator=> && All<bool (DPoint::*)(const DPoint&) const,
              &DPoint::operator==> && All<void (DPoint::*)(float, float), &DPoint::AdjustCoord> &&
              All<void (DPoint::*)(double, double, double), &DPoint::RotateMe> &&
              All<void (DPoint::*)(float, float, float, float, float, float), &DPoint::TransformCoord>);

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
