// The panels, the pickers and their controls, and the property item.
#include "tests/surface/Surface.h"

namespace {

using Surface::All, Surface::InOrder, Surface::SlotOf;

// What all five panels have of their own.
template <class P>
constexpr bool IsPanel = std::is_base_of_v<CDialog, P>&& std::is_default_constructible_v<P>&&
    All<void (P::*)(CPoint), &P::TestMoveWnd>&& All<BOOL (P::*)(MSG*), &P::PreTranslateMessage>&&
        All<BOOL (CDialog::*)(), &P::OnInitDialog>&& All<void (P::*)(UINT, CPoint), &P::OnRButtonDown>&&
            All<void (P::*)(UINT, UINT, UINT), &P::OnKeyDown>&& All<CPropertyGridItem * P::*, &P::m_pItem>&&
                All<bool P::*, &P::m_bToItem>&& All<int P::*, &P::m_nDownX, &P::m_nDownY>;
template <class P>
constexpr bool HasParentOrHostData = All<bool P::*, &P::m_bInParent>&& All<void * P::*, &P::m_pHostData>;
template <class P>
constexpr bool TakesTextAndParent =
    std::is_constructible_v<P, CString>&& std::is_constructible_v<P, CString, CWnd*>;

using Name = CBeamNameDlg;
static_assert(Name::IDD == 540 && IsPanel<Name> && TakesTextAndParent<Name>);
static_assert(All<void (Name::*)(), &Name::Init, &Name::IntegrateName, &Name::DecomposeBeamName,
                  &Name::CoordinateEditWithList, &Name::CoordinateListWithEdit,
                  &Name::OnSelchangeBntypeList, &Name::OnSelchangeBnxuantiaoList,
                  &Name::OnSelchangeBnkuaList, &Name::OnSelchangeBnxuList, &Name::OnChangeBnkuaEdit,
                  &Name::OnChangeBntypeEdit, &Name::OnChangeBnxuEdit, &Name::OnChangeBnxuantiaoEdit> &&
              All<void (Name::*)(CString), &Name::SetFocusBeamname> &&
              All<bool (Name::*)(), &Name::IntegrateNameFromEdit> &&
              All<void (Name::*)(MSG*), &Name::TranslateMessage>);
static_assert(
    All<CListBox Name::*, &Name::m_XuantiaoList, &Name::m_XuList, &Name::m_TypeList, &Name::m_KuaList> &&
    All<CString Name::*, &Name::m_strResult, &Name::m_strBeamType, &Name::m_strKua, &Name::m_strXu,
        &Name::m_strXuantiao>);
static_assert(InOrder({offsetof(Name, m_strResult), offsetof(Name, m_pItem), offsetof(Name, m_bToItem),
                       offsetof(Name, m_nDownX), offsetof(Name, m_nDownY), offsetof(Name, m_XuantiaoList),
                       offsetof(Name, m_XuList), offsetof(Name, m_TypeList), offsetof(Name, m_KuaList),
                       offsetof(Name, m_strBeamType), offsetof(Name, m_strKua), offsetof(Name, m_strXu),
                       offsetof(Name, m_strXuantiao)}));

using Section = CBeamSecDlg;
static_assert(Section::IDD == 364 && IsPanel<Section> && TakesTextAndParent<Section> &&
              HasParentOrHostData<Section>);
static_assert(All<void (Section::*)(CString), &Section::Init> &&
              All<void (Section::*)(), &Section::DecomposeChicun, &Section::IntegrateSec,
                  &Section::CoordinateEditWithList, &Section::CoordinateListWithEdit,
                  &Section::OnSelchangeBeamwidthList, &Section::OnSelchangeBeamheightList,
                  &Section::OnChangeBeamwidthEdit, &Section::OnChangeBeamheightEdit> &&
              All<bool (Section::*)(), &Section::IntegrateChicunFromEdit> &&
              All<void (Section::*)(MSG*), &Section::TranslateMessage>);
static_assert(All<CListBox Section::*, &Section::m_SeparatorList, &Section::m_SeparatorColumn,
                  &Section::m_HeightList, &Section::m_WidthList> &&
              All<CString Section::*, &Section::m_strResult, &Section::m_strSeparator, &Section::m_strWidth,
                  &Section::m_strHeight>);
static_assert(InOrder({offsetof(Section, m_strResult), offsetof(Section, m_pItem),
                       offsetof(Section, m_bToItem), offsetof(Section, m_nDownX),
                       offsetof(Section, m_nDownY), offsetof(Section, m_bInParent),
                       offsetof(Section, m_strSeparator), offsetof(Section, m_pHostData),
                       offsetof(Section, m_SeparatorList), offsetof(Section, m_SeparatorColumn),
                       offsetof(Section, m_HeightList), offsetof(Section, m_WidthList),
                       offsetof(Section, m_strWidth), offsetof(Section, m_strHeight)}));

using Level = CBeamLevelDlg;
static_assert(Level::IDD == 542 && IsPanel<Level> && std::is_constructible_v<Level, CWnd*> &&
              !std::is_constructible_v<Level, CString> && HasParentOrHostData<Level>);
static_assert(
    All<void (Level::*)(CString), &Level::SetFocusLevel, &Level::AddButNum> &&
    All<void (Level::*)(), &Level::Init, &Level::OnButton0, &Level::OnButton1, &Level::OnButton2,
        &Level::OnButton3, &Level::OnButton4, &Level::OnButton5, &Level::OnButton6, &Level::OnButton7,
        &Level::OnButton8, &Level::OnButton9, &Level::OnButtonDot, &Level::OnButtonBrack,
        &Level::OnButtonNegative, &Level::OnButtonBack, &Level::OnButtonClean>);
static_assert(All<CEdit Level::*, &Level::m_Edit> &&
              All<CString Level::*, &Level::m_strResult, &Level::m_strEditText>);
static_assert(InOrder({offsetof(Level, m_strResult), offsetof(Level, m_pItem), offsetof(Level, m_bToItem),
                       offsetof(Level, m_nDownX), offsetof(Level, m_nDownY), offsetof(Level, m_bInParent),
                       offsetof(Level, m_pHostData), offsetof(Level, m_Edit),
                       offsetof(Level, m_strEditText)}));

using Stirrup = CBeamGujinDlg;
static_assert(Stirrup::IDD == 367 && IsPanel<Stirrup> && TakesTextAndParent<Stirrup> &&
              HasParentOrHostData<Stirrup>);
static_assert(
    All<void (Stirrup::*)(CString), &Stirrup::SetFocusGujin> &&
    All<void (Stirrup::*)(), &Stirrup::Init, &Stirrup::DecomposeGujin, &Stirrup::IntegrateGuJin,
        &Stirrup::CoordinateEditWithList, &Stirrup::CoordinateListWithEdit, &Stirrup::OnSelchangeZhishuList,
        &Stirrup::OnSelchangeSteelsymList, &Stirrup::OnSelchangeJiamizhishuList,
        &Stirrup::OnSelchangeJiamiintervallist, &Stirrup::OnSelchangeIntervalList,
        &Stirrup::OnSelchangeDiaList, &Stirrup::OnChangeEditInterval, &Stirrup::OnChangeEditJiamiinterval,
        &Stirrup::OnChangeEditJiamizhishu, &Stirrup::OnChangeEditSteeldiameter,
        &Stirrup::OnChangeEditSteeltype, &Stirrup::OnChangeEditZhishu> &&
    All<bool (Stirrup::*)(), &Stirrup::IntegrateChicunFromEdit> &&
    All<void (Stirrup::*)(MSG*), &Stirrup::TranslateMessage>);
static_assert(
    All<CListBox Stirrup::*, &Stirrup::m_ZhishuList, &Stirrup::m_SteelsymList, &Stirrup::m_JiamizhishuList,
        &Stirrup::m_JiamiintervalList, &Stirrup::m_IntervalList, &Stirrup::m_DiaList> &&
    All<CString Stirrup::*, &Stirrup::m_strResult, &Stirrup::m_strInterval, &Stirrup::m_strJiamiInterval,
        &Stirrup::m_strJiamiZhishu, &Stirrup::m_strSteelDiameter, &Stirrup::m_strSteelType,
        &Stirrup::m_strZhishu>);
static_assert(
    InOrder({offsetof(Stirrup, m_strResult), offsetof(Stirrup, m_bToItem), offsetof(Stirrup, m_nDownX),
             offsetof(Stirrup, m_nDownY), offsetof(Stirrup, m_bInParent), offsetof(Stirrup, m_pHostData),
             offsetof(Stirrup, m_pItem), offsetof(Stirrup, m_ZhishuList), offsetof(Stirrup, m_SteelsymList),
             offsetof(Stirrup, m_JiamizhishuList), offsetof(Stirrup, m_JiamiintervalList),
             offsetof(Stirrup, m_IntervalList), offsetof(Stirrup, m_DiaList),
             offsetof(Stirrup, m_strInterval), offsetof(Stirrup, m_strJiamiInterval),
             offsetof(Stirrup, m_strJiamiZhishu), offsetof(Stirrup, m_strSteelDiameter),
             offsetof(Stirrup, m_strSteelType), offsetof(Stirrup, m_strZhishu)}));

using Steel = CBeamSteelDlg;
using Group = std::remove_all_extents_t<decltype(Steel::m_Group)>;
static_assert(Steel::IDD == 543 && IsPanel<Steel> && std::is_constructible_v<Steel, CWnd*> &&
              HasParentOrHostData<Steel> && All<void (Steel::*)(MSG*), &Steel::TranslateMessage>);
static_assert(
    All<void (Steel::*)(), &Steel::Init, &Steel::LikeJustCreate, &Steel::WashToScratch,
        &Steel::IntegratePieceSteel, &Steel::ModiPieceSteel, &Steel::OnSelchangeSteeltypeList,
        &Steel::OnSelchangeVdiaList, &Steel::OnSelchangePosList, &Steel::OnSelchangeSteelnumList,
        &Steel::OnSelchangeSteelsymList, &Steel::OnSelchangeSteeldiaList, &Steel::OnSelchangeSepList,
        &Steel::OnSelchangeListUp, &Steel::OnSelchangeListDown, &Steel::OnButtonDel> &&
    All<void (Steel::*)(CString, int), &Steel::SetListWithSteelStr> &&
    All<void (Steel::*)(int, int), &Steel::CoordinateWithType> &&
    All<void (Steel::*)(int), &Steel::SetPosSel> &&
    All<void (Steel::*)(int, int, int), &Steel::SetTypeAndPos> &&
    All<void (Steel::*)(CStringArray&, CString&, int&, int, CString), &Steel::AddToTail, &Steel::Insert> &&
    All<bool (Steel::*)(CString, CString), &Steel::CmpEssence> &&
    All<CString (Steel::*)(CString, CString), &Steel::ReplaceSteel>);
static_assert(
    All<int Steel::*, &Steel::m_nSteelKind, &Steel::m_nCurType, &Steel::m_nCurPos, &Steel::m_nPosListSel> &&
    All<bool Steel::*, &Steel::m_bNewPiece> &&
    All<int (Steel::*)[100], &Steel::m_nRowType, &Steel::m_nRowPos> &&
    All<Group (Steel::*)[5], &Steel::m_Group> &&
    All<CListBox Steel::*, &Steel::m_SlashList, &Steel::m_UpList, &Steel::m_DownList, &Steel::m_PosList,
        &Steel::m_VdiaList, &Steel::m_SteeltypeList, &Steel::m_SteelsymList, &Steel::m_SteelnumList,
        &Steel::m_SteeldiaList, &Steel::m_SepList>);
static_assert(InOrder({offsetof(Group, m_strSteel), offsetof(Group, m_arrPiece),
                       offsetof(Group, m_nFirstRow)}) &&
              All<CString Group::*, &Group::m_strSteel> && All<CStringArray Group::*, &Group::m_arrPiece> &&
              All<int Group::*, &Group::m_nFirstRow>);
static_assert(InOrder(
    {offsetof(Steel, m_nSteelKind),   offsetof(Steel, m_bToItem),       offsetof(Steel, m_bNewPiece),
     offsetof(Steel, m_Group),        offsetof(Steel, m_nRowType),      offsetof(Steel, m_nRowPos),
     offsetof(Steel, m_nCurType),     offsetof(Steel, m_nCurPos),       offsetof(Steel, m_nPosListSel),
     offsetof(Steel, m_pItem),        offsetof(Steel, m_nDownX),        offsetof(Steel, m_nDownY),
     offsetof(Steel, m_bInParent),    offsetof(Steel, m_pHostData),     offsetof(Steel, m_SlashList),
     offsetof(Steel, m_UpList),       offsetof(Steel, m_DownList),      offsetof(Steel, m_PosList),
     offsetof(Steel, m_VdiaList),     offsetof(Steel, m_SteeltypeList), offsetof(Steel, m_SteelsymList),
     offsetof(Steel, m_SteelnumList), offsetof(Steel, m_SteeldiaList),  offsetof(Steel, m_SepList)}));

template <class P>
constexpr bool IsPicker = std::is_base_of_v<CDialog, P>&& std::is_constructible_v<P, CWnd*>&&
    All<BOOL (P::*)(), &P::OnInitDialog>&& All<void (P::*)(), &P::UpdateValue>&&
        All<void (P::*)(UINT, CPoint), &P::OnRButtonDown>&&
            All<void (P::*)(UINT, UINT, UINT), &P::OnKeyDown>&& All<CPropertyGridItem * P::*, &P::m_pItem>;
using HBar = CHBarPropertySheet;
static_assert(HBar::IDD == 363 && IsPicker<HBar> &&
              All<void (HBar::*)(), &HBar::OnSelchangeListHbarGrade, &HBar::OnSelchangeListHbarDiameter,
                  &HBar::OnSelchangeListHbarTightspace, &HBar::OnSelchangeListHbarNontightspace> &&
              All<CColSpecList HBar::*, &HBar::m_TightList, &HBar::m_NonTightList, &HBar::m_GradeList,
                  &HBar::m_DiameterList> &&
              All<CColSpecEdit HBar::*, &HBar::m_GradeEdit, &HBar::m_DiameterEdit, &HBar::m_NonTightEdit,
                  &HBar::m_TightEdit> &&
              All<CStringArray HBar::*, &HBar::m_arrGrade, &HBar::m_arrDiameter, &HBar::m_arrTightSpace,
                  &HBar::m_arrNonTightSpace>);
static_assert(InOrder({offsetof(HBar, m_TightList), offsetof(HBar, m_NonTightList),
                       offsetof(HBar, m_GradeList), offsetof(HBar, m_DiameterList),
                       offsetof(HBar, m_GradeEdit), offsetof(HBar, m_DiameterEdit),
                       offsetof(HBar, m_NonTightEdit), offsetof(HBar, m_TightEdit), offsetof(HBar, m_pItem),
                       offsetof(HBar, m_arrGrade), offsetof(HBar, m_arrDiameter),
                       offsetof(HBar, m_arrTightSpace), offsetof(HBar, m_arrNonTightSpace)}));
using VBar = CVBarPropertySheet;
static_assert(VBar::IDD == 365 && IsPicker<VBar> &&
              All<void (VBar::*)(), &VBar::OnSelchangeListVbarGrade, &VBar::OnSelchangeListVbarDiameter> &&
              All<CStringArray VBar::*, &VBar::m_arrGrade, &VBar::m_arrDiameter>);
static_assert(InOrder({offsetof(VBar, m_GradeEdit), offsetof(VBar, m_DiameterEdit),
                       offsetof(VBar, m_GradeList), offsetof(VBar, m_DiameterList), offsetof(VBar, m_pItem),
                       offsetof(VBar, m_arrGrade), offsetof(VBar, m_arrDiameter)}));
static_assert(std::is_base_of_v<CEdit, CColSpecEdit> && std::is_base_of_v<CListBox, CColSpecList> &&
              sizeof(CColSpecEdit) == sizeof(CEdit) && sizeof(CColSpecList) == sizeof(CListBox));

using Item = CPropertyGridItem;
static_assert(std::is_default_constructible_v<Item> &&
              All<void (Item::*)(CString), &Item::SetValue, &Item::SetCaption, &Item::SetDescription>);
static_assert(All<UINT (Item::*)() const, &Item::GetID, &Item::GetFlag, &Item::GetFlags> &&
              All<BOOL (Item::*)() const, &Item::GetReadOnly, &Item::IsVisible, &Item::IsCategory,
                  &Item::IsExpanded, &Item::GetListShowFlag, &Item::HasChilds> &&
              All<int (Item::*)() const, &Item::GetIndex, &Item::GetListExpandFlag> &&
              All<CString (Item::*)() const, &Item::GetValue, &Item::GetCaption, &Item::GetDescription> &&
              All<void (Item::*)(UINT), &Item::SetID, &Item::SetFlags> &&
              All<void (Item::*)(BOOL), &Item::SetReadOnly, &Item::SetListShowFlag> &&
              All<Item* (Item::*)() const, &Item::GetParentItem> &&
              All<CWnd* (Item::*)() const, &Item::GetGrid> &&
              All<POSITION (Item::*)() const, &Item::GetFirstChild> &&
              All<Item* (Item::*)(POSITION&) const, &Item::GetNextChild> &&
              All<void (Item::*)(Item*), &Item::AddChildItem> &&
              All<CItemConstraints* (Item::*)(), &Item::GetConstraints> &&
              All<void (Item::*)(void (*)(Item*, long, long)), &Item::SetItemExpandObjec> &&
              All<void* (Item::*)() const, &Item::GetHWnd> && All<void (Item::*)(void*), &Item::SetHWnd>);
static_assert(std::is_base_of_v<CStringList, CItemConstraints> &&
              All<int (CItemConstraints::*)(CString), &CItemConstraints::AddConstraint> &&
              All<void (CItemConstraints::*)(int), &CItemConstraints::SetCurrent> &&
              All<int (CItemConstraints::*)() const, &CItemConstraints::GetCurrent>);
static_assert(std::is_base_of_v<CList<Item*>, CListItems> &&
              std::is_base_of_v<CSpinButtonCtrl, CPropertyItemSpinInplaceButton> &&
              All<Item* (CPropertyGridInplaceEdit::*)() const, &CPropertyGridInplaceEdit::GetItem>);

// Opens what a class keeps for those that derive from it.
struct OpenItem : Item {
    using Item::m_nID, Item::m_nIndex, Item::m_nFlags, Item::m_bReadOnly, Item::m_bVisible,
        Item::m_bCategory, Item::m_bExpanded, Item::m_bListShow, Item::m_nListExpand, Item::m_strValue,
        Item::m_strCaption, Item::m_strDescription, Item::m_pParent, Item::m_pGrid, Item::m_children,
        Item::m_constraints, Item::m_pfnExpand, Item::m_hWnd;
    using Item::OnAddChildItem, Item::OnDrawItemValue, Item::OnReadOnlyChanged;
};
static_assert(All<void (Item::*)(), &OpenItem::OnAddChildItem> &&
              All<BOOL (Item::*)(CDC*, CRect), &OpenItem::OnDrawItemValue>);
static_assert(InOrder(
    {offsetof(OpenItem, m_nIndex), offsetof(OpenItem, m_nID), offsetof(OpenItem, m_nFlags),
     offsetof(OpenItem, m_bReadOnly), offsetof(OpenItem, m_bVisible), offsetof(OpenItem, m_bCategory),
     offsetof(OpenItem, m_bExpanded), offsetof(OpenItem, m_bListShow), offsetof(OpenItem, m_nListExpand),
     offsetof(OpenItem, m_strValue), offsetof(OpenItem, m_strCaption), offsetof(OpenItem, m_strDescription),
     offsetof(OpenItem, m_pParent), offsetof(OpenItem, m_pGrid), offsetof(OpenItem, m_children),
     offsetof(OpenItem, m_constraints), offsetof(OpenItem, m_pfnExpand), offsetof(OpenItem, m_hWnd)}));

template <class C>
struct Open : C {
    static void ExpectOwnMessageMapInItsSlot()
    {
        EXPECT_TRUE((All<const AFX_MSGMAP* (C::*)() const, &Open::GetMessageMap>));
        EXPECT_EQ(SlotOf(&Open::GetMessageMap), 2U);
    }
    static void ExpectOwnDataExchangeInItsSlot()
    {
        EXPECT_TRUE((All<void (C::*)(CDataExchange*), &Open::DoDataExchange>));
        EXPECT_EQ(SlotOf(&Open::DoDataExchange), 3U);
        ExpectOwnMessageMapInItsSlot();
    }
};

TEST(Surface, VirtualOperationsStandInOrder)
{
    EXPECT_EQ(SlotOf(&OpenItem::OnAddChildItem), 2U);
    EXPECT_EQ(SlotOf(&OpenItem::OnDrawItemValue), 3U);
    EXPECT_EQ(SlotOf(&Item::SetValue), 4U);
    EXPECT_EQ(SlotOf(&OpenItem::OnReadOnlyChanged), 6U);

    Open<Name>::ExpectOwnDataExchangeInItsSlot();
    Open<Section>::ExpectOwnDataExchangeInItsSlot();
    Open<Level>::ExpectOwnDataExchangeInItsSlot();
    Open<Stirrup>::ExpectOwnDataExchangeInItsSlot();
    Open<Steel>::ExpectOwnDataExchangeInItsSlot();
    Open<HBar>::ExpectOwnDataExchangeInItsSlot();
    Open<VBar>::ExpectOwnDataExchangeInItsSlot();
    Open<CColSpecEdit>::ExpectOwnMessageMapInItsSlot();
    Open<CColSpecList>::ExpectOwnMessageMapInItsSlot();
    EXPECT_EQ(SlotOf(&Name::PreTranslateMessage), 4U);
    EXPECT_EQ(SlotOf(&HBar::OnInitDialog), 5U);
}

}  // namespace
