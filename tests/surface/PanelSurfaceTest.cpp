// The panels, the pickers and their controls, and the property item.
#include "tests/surface/Surface.h"

namespace {

using Surface::IsOwn, Surface::SlotOf;
using Item = CPropertyGridItem;

template <class P>
constexpr bool IsPop = std::is_base_of_v<CDialog, P>&& std::is_constructible_v<P, CWnd*> !=
                       std::is_constructible_v<P, CString, CWnd*>&& std::is_default_constructible_v<P>&&
                           IsOwn<P, void(UINT, CPoint), decltype(&P::OnRButtonDown)>&&
                               IsOwn<P, void(UINT, UINT, UINT), decltype(&P::OnKeyDown)>;
// What all five panels have of their own.
template <class P>
constexpr bool IsPanel = IsPop<P>&& IsOwn<P, void(CPoint), decltype(&P::TestMoveWnd)>&& IsOwn<
    P, BOOL(MSG*), decltype(&P::PreTranslateMessage)>&& IsOwn<CDialog, BOOL(), decltype(&P::OnInitDialog)>;

using Name = CBeamNameDlg;
static_assert(Name::IDD == 540 && IsPanel<Name> && std::is_constructible_v<Name, CString>);
OWN(Name, void(), Init, IntegrateName, DecomposeBeamName, CoordinateEditWithList, CoordinateListWithEdit,
    OnSelchangeBntypeList, OnSelchangeBnxuantiaoList, OnSelchangeBnkuaList, OnSelchangeBnxuList,
    OnChangeBnkuaEdit, OnChangeBntypeEdit, OnChangeBnxuEdit, OnChangeBnxuantiaoEdit);
OWN(Name, void(CString), SetFocusBeamname);
OWN(Name, bool(), IntegrateNameFromEdit);
OWN(Name, void(MSG*), TranslateMessage);
FIELDS(Name, CString, m_strResult, Item*, m_pItem, bool, m_bToItem, int, m_nDownX, int, m_nDownY, CListBox,
       m_XuantiaoList, CListBox, m_XuList, CListBox, m_TypeList, CListBox, m_KuaList, CString,
       m_strBeamType, CString, m_strKua, CString, m_strXu, CString, m_strXuantiao);

using Section = CBeamSecDlg;
static_assert(Section::IDD == 364 && IsPanel<Section> && std::is_constructible_v<Section, CString>);
OWN(Section, void(CString), Init);
OWN(Section, void(), DecomposeChicun, IntegrateSec, CoordinateEditWithList, CoordinateListWithEdit,
    OnSelchangeBeamwidthList, OnSelchangeBeamheightList, OnChangeBeamwidthEdit, OnChangeBeamheightEdit);
OWN(Section, bool(), IntegrateChicunFromEdit);
OWN(Section, void(MSG*), TranslateMessage);
FIELDS(Section, CString, m_strResult, Item*, m_pItem, bool, m_bToItem, int, m_nDownX, int, m_nDownY, bool,
       m_bInParent, CString, m_strSeparator, void*, m_pHostData, CListBox, m_SeparatorList, CListBox,
       m_SeparatorColumn, CListBox, m_HeightList, CListBox, m_WidthList, CString, m_strWidth, CString,
       m_strHeight);

using Level = CBeamLevelDlg;
static_assert(Level::IDD == 542 && IsPanel<Level> && !std::is_constructible_v<Level, CString>);
OWN(Level, void(CString), SetFocusLevel, AddButNum);
OWN(Level, void(), Init, OnButton0, OnButton1, OnButton2, OnButton3, OnButton4, OnButton5, OnButton6,
    OnButton7, OnButton8, OnButton9, OnButtonDot, OnButtonBrack, OnButtonNegative, OnButtonBack,
    OnButtonClean);
FIELDS(Level, CString, m_strResult, Item*, m_pItem, bool, m_bToItem, int, m_nDownX, int, m_nDownY, bool,
       m_bInParent, void*, m_pHostData, CEdit, m_Edit, CString, m_strEditText);

using Stirrup = CBeamGujinDlg;
static_assert(Stirrup::IDD == 367 && IsPanel<Stirrup> && std::is_constructible_v<Stirrup, CString>);
OWN(Stirrup, void(CString), SetFocusGujin);
OWN(Stirrup, void(), Init, DecomposeGujin, IntegrateGuJin, CoordinateEditWithList, CoordinateListWithEdit,
    OnSelchangeZhishuList, OnSelchangeSteelsymList, OnSelchangeJiamizhishuList,
    OnSelchangeJiamiintervallist, OnSelchangeIntervalList, OnSelchangeDiaList, OnChangeEditInterval,
    OnChangeEditJiamiinterval, OnChangeEditJiamizhishu, OnChangeEditSteeldiameter, OnChangeEditSteeltype,
    OnChangeEditZhishu);
OWN(Stirrup, bool(), IntegrateChicunFromEdit);
OWN(Stirrup, void(MSG*), TranslateMessage);
FIELDS(Stirrup, CString, m_strResult, bool, m_bToItem, int, m_nDownX, int, m_nDownY, bool, m_bInParent,
       void*, m_pHostData, Item*, m_pItem, CListBox, m_ZhishuList, CListBox, m_SteelsymList, CListBox,
       m_JiamizhishuList, CListBox, m_JiamiintervalList, CListBox, m_IntervalList, CListBox, m_DiaList,
       CString, m_strInterval, CString, m_strJiamiInterval, CString, m_strJiamiZhishu, CString,
       m_strSteelDiameter, CString, m_strSteelType, CString, m_strZhishu);

using Steel = CBeamSteelDlg;
using Group = std::remove_all_extents_t<decltype(Steel::m_Group)>;
static_assert(Steel::IDD == 543 && IsPanel<Steel> && !std::is_constructible_v<Steel, CString>);
OWN(Steel, void(), Init, LikeJustCreate, WashToScratch, IntegratePieceSteel, ModiPieceSteel,
    OnSelchangeSteeltypeList, OnSelchangeVdiaList, OnSelchangePosList, OnSelchangeSteelnumList,
    OnSelchangeSteelsymList, OnSelchangeSteeldiaList, OnSelchangeSepList, OnSelchangeListUp,
    OnSelchangeListDown, OnButtonDel);
OWN(Steel, void(MSG*), TranslateMessage);
OWN(Steel, void(CString, int), SetListWithSteelStr);
OWN(Steel, void(int, int), CoordinateWithType);
OWN(Steel, void(int), SetPosSel);
OWN(Steel, void(int, int, int), SetTypeAndPos);
OWN(Steel, void(CStringArray&, CString&, int&, int, CString), AddToTail, Insert);
OWN(Steel, bool(CString, CString), CmpEssence);
OWN(Steel, CString(CString, CString), ReplaceSteel);
FIELDS(Group, CString, m_strSteel, CStringArray, m_arrPiece, int, m_nFirstRow);
FIELDS(Steel, int, m_nSteelKind, bool, m_bToItem, bool, m_bNewPiece, Group[5], m_Group, int[100],
       m_nRowType, int[100], m_nRowPos, int, m_nCurType, int, m_nCurPos, int, m_nPosListSel, Item*, m_pItem,
       int, m_nDownX, int, m_nDownY, bool, m_bInParent, void*, m_pHostData, CListBox, m_SlashList, CListBox,
       m_UpList, CListBox, m_DownList, CListBox, m_PosList, CListBox, m_VdiaList, CListBox, m_SteeltypeList,
       CListBox, m_SteelsymList, CListBox, m_SteelnumList, CListBox, m_SteeldiaList, CListBox, m_SepList);

using HBar = CHBarPropertySheet;
static_assert(HBar::IDD == 363 && IsPop<HBar>);
OWN(HBar, BOOL(), OnInitDialog);
OWN(HBar, void(), UpdateValue, OnSelchangeListHbarGrade, OnSelchangeListHbarDiameter,
    OnSelchangeListHbarTightspace, OnSelchangeListHbarNontightspace);
FIELDS(HBar, CColSpecList, m_TightList, CColSpecList, m_NonTightList, CColSpecList, m_GradeList,
       CColSpecList, m_DiameterList, CColSpecEdit, m_GradeEdit, CColSpecEdit, m_DiameterEdit, CColSpecEdit,
       m_NonTightEdit, CColSpecEdit, m_TightEdit, Item*, m_pItem, CStringArray, m_arrGrade, CStringArray,
       m_arrDiameter, CStringArray, m_arrTightSpace, CStringArray, m_arrNonTightSpace);
using VBar = CVBarPropertySheet;
static_assert(VBar::IDD == 365 && IsPop<VBar>);
OWN(VBar, BOOL(), OnInitDialog);
OWN(VBar, void(), UpdateValue, OnSelchangeListVbarGrade, OnSelchangeListVbarDiameter);
FIELDS(VBar, CColSpecEdit, m_GradeEdit, CColSpecEdit, m_DiameterEdit, CColSpecList, m_GradeList,
       CColSpecList, m_DiameterList, Item*, m_pItem, CStringArray, m_arrGrade, CStringArray, m_arrDiameter);
static_assert(std::is_base_of_v<CEdit, CColSpecEdit> && std::is_base_of_v<CListBox, CColSpecList> &&
              sizeof(CColSpecEdit) == sizeof(CEdit) && sizeof(CColSpecList) == sizeof(CListBox));

// Opens what a class keeps for those that derive from it.
struct OpenItem : Item {
    using Item::m_nID, Item::m_nIndex, Item::m_nFlags, Item::m_bReadOnly, Item::m_bVisible,
        Item::m_bCategory, Item::m_bExpanded, Item::m_bListShow, Item::m_nListExpand, Item::m_strValue,
        Item::m_strCaption, Item::m_strDescription, Item::m_pParent, Item::m_pGrid, Item::m_children,
        Item::m_constraints, Item::m_pfnExpand, Item::m_hWnd;
    using Item::OnAddChildItem, Item::OnDrawItemValue, Item::OnReadOnlyChanged;
};
using Expand = void (*)(Item*, long, long);
static_assert(std::is_default_constructible_v<Item> &&
              IsOwn<Item, void(), decltype(&OpenItem::OnAddChildItem)> &&
              IsOwn<Item, BOOL(CDC*, CRect), decltype(&OpenItem::OnDrawItemValue)>);
OWN(Item, void(CString), SetValue, SetCaption, SetDescription);
OWN(Item, CString() const, GetValue, GetCaption, GetDescription);
OWN(Item, UINT() const, GetID, GetFlag, GetFlags);
OWN(Item, BOOL() const, GetReadOnly, IsVisible, IsCategory, IsExpanded, GetListShowFlag, HasChilds);
OWN(Item, int() const, GetIndex, GetListExpandFlag);
OWN(Item, void(UINT), SetID, SetFlags);
OWN(Item, void(BOOL), SetReadOnly, SetListShowFlag);
OWN(Item, Item*() const, GetParentItem);
OWN(Item, CWnd*() const, GetGrid);
OWN(Item, POSITION() const, GetFirstChild);
OWN(Item, Item*(POSITION&) const, GetNextChild);
OWN(Item, void(Item*), AddChildItem);
OWN(Item, CItemConstraints*(), GetConstraints);
OWN(Item, void(Expand), SetItemExpandObjec);
OWN(Item, void*() const, GetHWnd);
OWN(Item, void(void*), SetHWnd);
FIELDS(OpenItem, int, m_nIndex, UINT, m_nID, UINT, m_nFlags, BOOL, m_bReadOnly, BOOL, m_bVisible, BOOL,
       m_bCategory, BOOL, m_bExpanded, BOOL, m_bListShow, int, m_nListExpand, CString, m_strValue, CString,
       m_strCaption, CString, m_strDescription, Item*, m_pParent, CWnd*, m_pGrid, CListItems, m_children,
       CItemConstraints, m_constraints, Expand, m_pfnExpand, void*, m_hWnd);
OWN(CItemConstraints, int(CString), AddConstraint);
OWN(CItemConstraints, void(int), SetCurrent);
OWN(CItemConstraints, int() const, GetCurrent);
OWN(CPropertyGridInplaceEdit, Item*() const, GetItem);
static_assert(std::is_base_of_v<CStringList, CItemConstraints> &&
              std::is_base_of_v<CList<Item*>, CListItems> &&
              std::is_base_of_v<CSpinButtonCtrl, CPropertyItemSpinInplaceButton>);

template <class C>
struct Open : C {
    static void ExpectOwnMessageMapInItsSlot()
    {
        EXPECT_TRUE((IsOwn<C, const AFX_MSGMAP*() const, decltype(&Open::GetMessageMap)>));
        EXPECT_EQ(SlotOf(&Open::GetMessageMap), 2U);
    }
    static void ExpectOwnDataExchangeInItsSlot()
    {
        EXPECT_TRUE((IsOwn<C, void(CDataExchange*), decltype(&Open::DoDataExchange)>));
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
