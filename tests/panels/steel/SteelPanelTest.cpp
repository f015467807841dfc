// The bar panel under a user's hands: the ways that people compose, correct, confirm and dismiss.
#include <gtest/gtest.h>

#include "tests/panels/steel/SteelPanel.h"

namespace {

using namespace BeamSteelTemplate;

// Rows of the columns, by what they show.
constexpr int Two = 1, Six = 5;
constexpr int D12 = 1, D14 = 2, D22 = 6, D25 = 7;
constexpr int Semicolon = 0, Comma = 1;

TEST(SteelPanel, ComposesAnAnnotationOfTwoDiameters)
{
    SteelPanel panel(0);
    struct Step {
        int list;
        int row;
        const char* text;
        Texts pieces;
        bool newPiece;
    };
    const Step steps[] = {
        {SteelnumList, Two, "", {}, true},
        {SteeldiaList, D25, "2B25 ", {"2B25 "}, false},
        {SteeldiaList, D22, "2B22 ", {"2B22 "}, false},
        {SepList, Semicolon, "2B22;", {"2B22;"}, false},
        {VdiaList, LaterRow, "2B22;", {"2B22;"}, true},
        {SteelnumList, Two, "2B22;", {"2B22;"}, true},
        {SteeldiaList, D25, "2B22+2B25 ", {"2B22", "+2B25 "}, false},
        {SepList, Semicolon, "2B22+2B25;", {"2B22", "+2B25;"}, false},
    };
    for (const Step& step : steps) {
        panel.Pick(step.list, step.row);
        const SteelModel::State seen = panel.Seen();
        EXPECT_EQ(seen.texts[0], step.text);
        EXPECT_EQ(seen.pieces[0], step.pieces);
        EXPECT_EQ(seen.rows, step.pieces);
        EXPECT_EQ(seen.newPiece, step.newPiece);
    }
    EXPECT_EQ(panel.Seen().row, 1);
    panel.Confirm();
    EXPECT_FALSE(panel.m_dlg->IsWindowVisible());
    EXPECT_EQ(panel.Sent(), (Texts{"parent 1 20 2B22+2B25;"}));
}

TEST(SteelPanel, TypesGoByKind)
{
    SteelPanel panel(-1);
    const CBeamSteelDlg& dlg = *panel.m_dlg;
    const Texts standard = {Gbk(u8"上部贯通筋").Text(), Gbk(u8"下部贯通筋").Text(),
                            Gbk(u8"+(架立筋)").Text(),  Gbk(u8"*扭筋").Text(),
                            Gbk(u8"N扭筋").Text(),      Gbk(u8"G侧面构造筋").Text()};
    const int first[] = {0, 0, 1, 2, 3, 5, 0, 0, 0, 0};
    for (const bool toItem : {false, true}) {
        for (int kind = -1; kind <= 8; ++kind) {
            Texts types = standard;
            if (kind >= 5) {
                types[1] = types[2] = std::string(10, ' ');
                types[0] = kind == 5   ? Gbk(u8"上部左端筋").Text()
                           : kind == 6 ? Gbk(u8"上部右端筋").Text()
                           : kind == 7 ? Gbk(u8"上部架立筋").Text()
                                       : Gbk(u8"下部纵筋").Text();
                types.resize(toItem || kind <= 6 ? 1 : 6);
            }
            panel.Open(kind, toItem, true);
            EXPECT_EQ(SteelPanel::RowsOf(dlg.m_SteeltypeList), types) << kind << toItem;
            EXPECT_EQ(dlg.m_SteeltypeList.GetCurSel(), first[kind + 1]) << kind << toItem;
        }
    }
}

TEST(SteelPanel, ErectionBarsKeepTheirBracketsInPlace)
{
    SteelPanel panel(2);
    panel.Compose(Two, D12, Semicolon);
    EXPECT_EQ(panel.Text(2), "+(2B12);");
    panel.Pick(VdiaList, LaterRow);
    panel.Compose(Two, D14, Semicolon);
    EXPECT_EQ(panel.Seen().pieces[2], (Texts{"+(2B12", "+2B14);"}));
    EXPECT_EQ(panel.Text(2), "+(2B12+2B14);");
    panel.Pick(SepList, Comma);
    EXPECT_EQ(panel.Text(2), "+(2B12+2B14),");
    panel.Delete();
    EXPECT_EQ(panel.Text(2), "+(2B12),");
    panel.Pick(VdiaList, BlankRow);  // has the same effect without the highlight
    panel.Compose(Two, D14);
    EXPECT_EQ(panel.Text(2), "+(2B12+2B14) ");
    panel.Pick(PosList, 0);
    panel.Delete();
    EXPECT_EQ(panel.Text(2), "+(2B14) ");
    EXPECT_EQ(panel.Seen().rows, Texts{"+(2B14) "});
    panel.Delete();
    EXPECT_EQ(panel.Seen().type, -1);
    panel.Compose(Two, D14);  // without a type nothing happens
    EXPECT_TRUE(panel.Seen().rows.empty());
}

TEST(SteelPanel, AGroupOpensBehindTheGroupOfTheRememberedRow)
{
    SteelPanel panel(-1);
    panel.Compose(Two, D22);
    panel.Pick(VdiaList, LaterRow);
    panel.Compose(Two, D25);
    panel.Pick(SteeltypeList, BarPiece::SideStructural);
    panel.Compose(Two, D12);
    panel.Pick(PosList, 0);
    panel.Pick(SteeltypeList, BarPiece::NTorsion);
    EXPECT_EQ(panel.Seen().row, -1);
    panel.Compose(Six, D14);
    EXPECT_EQ(panel.Seen().rows, (Texts{"2B22", "+2B25 ", "N6B14 ", "G2B12 "}));
    EXPECT_EQ(panel.Seen().firstRows, (std::array{0, -1, -1, 2, 3}));
    // The group's head says which torsion type it is.
    panel.Pick(SteeltypeList, BarPiece::StarTorsion);
    EXPECT_EQ(panel.Seen().type, BarPiece::NTorsion);
    EXPECT_EQ(panel.Seen().row, 2);
    panel.Delete();
    EXPECT_EQ(panel.Seen().row, 2);
    EXPECT_EQ(panel.Seen().type, BarPiece::SideStructural);
    EXPECT_EQ(panel.Seen().firstRows, (std::array{0, -1, -1, -1, 2}));
    panel.Confirm();
    EXPECT_EQ(panel.Sent(), (Texts{"parent 1 20 2B22+2B25 "}));
}

TEST(SteelPanel, ABlankTypeRowIsNoType)
{
    SteelPanel panel(8);
    panel.Pick(SteelnumList, Two);
    panel.Pick(SteeltypeList, 2);
    EXPECT_EQ(panel.Seen().type, -1);
    EXPECT_EQ(panel.Seen().count, Two);
    panel.Pick(SteeldiaList, D25);
    EXPECT_TRUE(panel.Seen().rows.empty());
    panel.Pick(SteeltypeList, 0);
    panel.Pick(VdiaList, LaterRow);  // the group is empty: nothing to be later than
    EXPECT_EQ(panel.Seen().later, -1);
    panel.Compose(Two, D25, Comma);
    panel.Pick(SteeltypeList, BarPiece::StarTorsion);
    panel.Compose(Two, D12, Semicolon);
    panel.Pick(SteeltypeList, BarPiece::SideStructural);
    panel.Compose(Six, D12);
    panel.Pick(UpList, 2);
    panel.Pick(DownList, 4);
    panel.Confirm();
    EXPECT_EQ(panel.Sent(), Texts{});  // a whole annotation does not go to a parent
    panel.m_dlg->m_bInParent = false;
    panel.m_dlg->ShowWindow(SW_SHOW);
    panel.Confirm();
    EXPECT_EQ(panel.Sent(), (Texts{"host 2 0 2B25", "host 0 8 *2B12", "host 0 9 G6B12 2/4 "}));
}

TEST(SteelPanel, AnItemGetsOneStrippedText)
{
    SteelPanel panel(2, true);
    panel.Compose(Two, D12, Semicolon);
    panel.Confirm();
    panel.Open(7, true, true);
    panel.Compose(Six, D25, Semicolon);
    panel.Confirm();
    panel.Open(6, true, true);
    panel.Compose(Six, D25, Semicolon);
    panel.Pick(UpList, 2);
    panel.Pick(DownList, 4);
    panel.Confirm();
    panel.Open(3, true, true);
    panel.Confirm();  // an empty text is a text
    panel.Open(-1, true, true);
    panel.Compose(Six, D25);
    panel.Confirm();  // all groups are no single field
    EXPECT_EQ(panel.Sent(), (Texts{"item 0 0 2B12", "item 0 0 6B25", "item 0 0 6B25 2/4;", "item 0 0 "}));
}

TEST(SteelPanel, NothingGoesOutWithoutRowsReceiverOrConfirmation)
{
    SteelPanel panel(0);
    panel.Confirm();
    EXPECT_FALSE(panel.m_dlg->IsWindowVisible());
    panel.Open(0, true, true);
    panel.Compose(Two, D12);
    panel.m_dlg->m_pItem = nullptr;
    panel.Confirm();
    panel.Open(0, false, true);
    panel.Compose(Two, D12);
    EXPECT_TRUE(panel.m_hands.Key(VK_ESCAPE));
    EXPECT_FALSE(panel.m_dlg->IsWindowVisible());
    EXPECT_EQ(panel.Text(0), "2B12 ");
    EXPECT_EQ(panel.Sent(), Texts{});
    panel.m_dlg->ShowWindow(SW_SHOW);
    SetBeamMouseInputFunc(nullptr);
    panel.Confirm();
    EXPECT_EQ(panel.Text(0), "2B12 ");
}

// Wherever the press lands its text goes out once.
TEST(SteelPanel, ARightPressAnywhereConfirmsOnce)
{
    SteelPanel panel(0);
    panel.Compose(Two, D12);
    CRect rect;
    panel.m_dlg->GetWindowRect(&rect);
    std::size_t presses = 0;
    for (int y = rect.top + 1; y < rect.bottom; y += 9) {
        for (int x = rect.left + 1; x < rect.right; x += 7) {
            panel.m_dlg->ShowWindow(SW_SHOW);
            panel.m_hands.RightClick(CPoint(x, y));
            ASSERT_EQ(panel.Sent().size(), ++presses) << x << ',' << y;
        }
    }
    for (const CWnd* child = panel.m_dlg->GetTopWindow(); child != nullptr;
         child = child->GetNextWindow()) {
        panel.m_dlg->ShowWindow(SW_SHOW);
        Hands::Send({child->m_hWnd, WM_RBUTTONDOWN, 0, 0, 0, {0, 0}});
        ASSERT_EQ(panel.Sent().size(), ++presses) << child->GetDlgCtrlID();
    }
}

TEST(SteelPanel, IsDraggedByAPressOnAnything)
{
    SteelPanel panel(0);
    CRect before;
    panel.m_dlg->GetWindowRect(&before);
    const CPoint from = Hands::OnRow(panel.m_dlg->m_SteelnumList, Two);
    panel.m_hands.Drag(from, CPoint(from.x + 30, from.y - 5));
    CRect after;
    panel.m_dlg->GetWindowRect(&after);
    EXPECT_EQ(after, CRect(before.left + 30, before.top - 5, before.right + 30, before.bottom - 5));
    EXPECT_EQ(panel.Seen().count, Two);
}

TEST(SteelPanel, ADoubleClickIsTwoClicksAndNoConfirmation)
{
    SteelPanel panel(0);
    panel.Pick(SteelnumList, Two);
    panel.m_hands.DoubleClickRow(*panel.m_dlg, SteeldiaList, D25);
    panel.m_hands.DoubleClickRow(*panel.m_dlg, PosList, 0);
    EXPECT_EQ(panel.Text(0), "2B25 ");
    EXPECT_EQ(panel.Sent(), Texts{});
    EXPECT_TRUE(panel.m_dlg->IsWindowVisible());
    bool hiddenBefore = false;
    panel.m_receiver.m_answer = [&] { hiddenBefore = panel.m_dlg->IsWindowVisible() == FALSE; };
    panel.Confirm();
    EXPECT_TRUE(hiddenBefore);
}

// What a receiver may do to the panel while it is being told.
TEST(SteelPanel, ReceiverMayTakeTheWindowOrThePanelAway)
{
    using Takes = void (*)(SteelPanel&);
    const Takes takes[] = {[](SteelPanel& panel) { panel.m_dlg->DestroyWindow(); },
                           [](SteelPanel& panel) { panel.m_dlg.reset(); },
                           [](SteelPanel& panel) { panel.m_frame.DestroyWindow(); }};
    const auto composed = [](bool toItem, bool inParent) {
        auto panel = std::make_unique<SteelPanel>(toItem || inParent ? 0 : 7, toItem, inParent);
        panel->Compose(Two, D12);
        if (!inParent) {
            panel->Pick(SteeltypeList, BarPiece::NTorsion);
            panel->Compose(Two, D14);
        }
        return panel;
    };
    for (const Takes take : takes) {
        for (const auto& [toItem, inParent] : {std::pair{true, true}, {false, true}, {false, false}}) {
            const auto panel = composed(toItem, inParent);
            panel->m_receiver.m_answer = [&panel, take] { take(*panel); };
            MSG press{panel->m_dlg->m_hWnd, WM_RBUTTONDOWN, 0, 0, 0, {0, 0}};
            EXPECT_EQ(panel->m_dlg->PreTranslateMessage(&press), FALSE);
            EXPECT_FALSE(IsWindow(press.hwnd));
            // All texts of the annotation arrive, also when the panel is gone behind the first.
            EXPECT_EQ(panel->Sent().size(), inParent ? 1U : 2U);
        }
    }
    const auto panel = composed(false, false);
    panel->m_receiver.m_answer = [&panel] { panel->Open(0, true, true); };
    panel->Confirm();
    EXPECT_EQ(panel->Sent(), (Texts{"host 2 0 2B12", "host 0 8 N2B14"}));
    EXPECT_TRUE(panel->m_dlg->IsWindowVisible());
    EXPECT_TRUE(panel->Seen().rows.empty());
}

TEST(SteelPanel, ReceiverDisablesWhatWasPressed)
{
    SteelPanel panel(-1);
    panel.Compose(Two, D12);
    panel.m_receiver.m_answer = [&panel] {
        panel.m_dlg->GetDlgItem(BeamSteelTemplate::SepList)->EnableWindow(FALSE);
    };
    EXPECT_TRUE(panel.Confirm());
    EXPECT_EQ(panel.Sent(), Texts{"parent 1 20 2B12 "});
}

void CallEverything(CBeamSteelDlg& dlg, int odd)
{
    dlg.ModiPieceSteel();
    dlg.IntegratePieceSteel();
    dlg.SetPosSel(odd);
    dlg.CoordinateWithType(odd, odd);
    dlg.CoordinateWithType(0, odd);
    dlg.SetTypeAndPos(0, 0, odd < 0 ? odd : odd + 100);
    dlg.m_nPosListSel = odd;
    BarGroup& group = dlg.m_Group[4];
    dlg.Insert(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, 5, "2B12;");
    dlg.Insert(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, odd, "2B12;");
    dlg.AddToTail(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, odd, "2B12;");
    dlg.OnSelchangeVdiaList();
    dlg.OnSelchangePosList();
    dlg.OnSelchangeSepList();
    dlg.m_nCurType = odd;
    dlg.m_nCurPos = odd;
    dlg.ModiPieceSteel();
    dlg.m_PosList.SetCurSel(-1);
    dlg.OnButtonDel();
}

TEST(SteelPanel, DirectCallsInOddStatesChangeNoText)
{
    CBeamSteelDlg bare;
    bare.OnSelchangeSteeltypeList();
    bare.Init();
    BarGroup& group = bare.m_Group[0];
    bare.AddToTail(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, 0, "2B12;");
    for (const int odd : {-1, -7, 6, 1000}) {
        CallEverything(bare, odd);
        SteelPanel panel(-1);
        panel.Compose(Two, D12);
        panel.Pick(VdiaList, LaterRow);
        panel.Compose(Two, D14);
        const SteelModel::State before = panel.Seen();
        CallEverything(*panel.m_dlg, odd);
        const SteelModel::State after = panel.Seen();
        EXPECT_EQ(after.texts, before.texts) << odd;
        EXPECT_EQ(after.pieces, before.pieces) << odd;
        EXPECT_EQ(after.rows, before.rows) << odd;
        EXPECT_EQ(after.rowType, before.rowType) << odd;
        panel.m_dlg->WashToScratch();
        EXPECT_TRUE(panel.Seen().rows.empty());
    }
    for (const BarGroup& empty : bare.m_Group) {
        EXPECT_EQ(empty.m_strSteel, "");
    }
}

// A host may call the operations that clicks lead to in an order that clicks never take.
TEST(SteelPanel, DirectCallsInGoodOrder)
{
    SteelPanel panel(-1);
    CBeamSteelDlg& dlg = *panel.m_dlg;
    const auto add = [&dlg](auto operation, int group, int type, const char* piece) {
        BarGroup& to = dlg.m_Group[group];
        (dlg.*operation)(to.m_arrPiece, to.m_strSteel, to.m_nFirstRow, type, piece);
    };
    add(&CBeamSteelDlg::AddToTail, 2, 2, "2B12,");
    add(&CBeamSteelDlg::AddToTail, 0, 0, "2B22,");
    dlg.m_nPosListSel = 1;
    add(&CBeamSteelDlg::Insert, 2, 2, "2B14,");  // its group has a place of its own
    EXPECT_EQ(panel.Seen().rows, (Texts{"+(2B12),", "2B22,"}));
    EXPECT_EQ(dlg.m_nPosListSel, 1);
    add(&CBeamSteelDlg::AddToTail, 2, 2, "2B14;");
    EXPECT_EQ(panel.Seen().rows, (Texts{"+(2B12", "2B22,", "+2B14);"}));
    EXPECT_EQ(panel.Text(2), "+(2B12+2B14);");
    dlg.SetPosSel(5);
    EXPECT_TRUE(panel.Seen().newPiece && panel.Seen().row == -1);
    dlg.OnSelchangePosList();
    EXPECT_TRUE(panel.Seen().newPiece && panel.Seen().curType == -1 && panel.Seen().curPos == -1);
    dlg.SetPosSel(0);
    EXPECT_TRUE(!panel.Seen().newPiece && panel.Seen().row == 1);
    dlg.SetListWithSteelStr("*8C16 2/6,", -1);
    EXPECT_EQ(panel.Seen().type, 3);
    EXPECT_EQ(panel.Seen().grade, 2);
    EXPECT_TRUE(dlg.CmpEssence("+(2B12);", "*2B12"));
    EXPECT_EQ(dlg.ReplaceSteel("2B22,", "+2B14);"), "+2B22),");
}

}  // namespace
