// Thousands of random clicks: after each one the panel is compared in full with the model.
#include <gtest/gtest.h>

#include <random>

#include "tests/panels/steel/SteelPanel.h"
#include "tests/support/Seed.h"

namespace {

using namespace BeamSteelTemplate;
using SteelModel::State;

bool EndsInDigit(const std::string& text) { return text.back() >= '0' && text.back() <= '9'; }

// What holds of a panel in use whatever was done before, seen from the panel alone.
std::string BrokenInvariant(const State& s)
{
    for (std::size_t g = 0; g < 5; ++g) {
        std::string joined;
        for (std::size_t pos = 0; pos < s.pieces[g].size(); ++pos) {
            const std::string& piece = s.pieces[g][pos];
            const bool last = pos + 1 == s.pieces[g].size();
            joined += piece;
            if (last != (std::string(";, ").find(piece.back()) != std::string::npos) ||
                last == EndsInDigit(piece)) {
                return "terminator of " + piece;
            }
            if ((piece.find(')') != std::string::npos) != (last && g == 2)) {
                return "bracket of " + piece;
            }
        }
        if (joined != s.texts[g]) {
            return "text " + s.texts[g];
        }
        if ((s.firstRows[g] == -1) != joined.empty()) {
            return "first row of a group";
        }
        for (std::size_t pos = 0; pos < s.pieces[g].size(); ++pos) {
            const auto row = static_cast<std::size_t>(s.firstRows[g]) + pos;
            if (row >= s.rows.size() || s.rows[row] != s.pieces[g][pos] ||
                s.rowPos[row] != static_cast<int>(pos)) {
                return "row of " + s.pieces[g][pos];
            }
        }
    }
    if (s.rows.size() > 99 || s.rowType[s.rows.size()] != -1 || s.rowPos[s.rows.size()] != -1) {
        return "end of the rows";
    }
    return s.newPiece || s.row != -1 ? "" : "edit mode without a row";
}

class Session {
public:
    explicit Session(unsigned seed)
        : m_random(seed), m_eager(seed % 8 == 7),
          m_panel(m_eager ? (seed % 16 == 7 ? 0 : -1) : Kind(), Flip(), Flip())
    {
        Mirror();
        m_model.Init();
    }

    void Play(int clicks)
    {
        std::string last = "Init";
        for (int click = 0; click < clicks; ++click) {
            const State seen = m_panel.Seen();
            ASSERT_EQ(seen, m_model.Seen()) << "behind click " << click << ", " << last;
            if (!m_mustInit) {
                ASSERT_EQ(BrokenInvariant(seen), "") << "behind click " << click << ", " << last;
            }
            m_fullest = std::max(m_fullest, m_model.Rows());
            last = Step();
        }
    }

    int m_fullest = 0;

private:
    using Pick = void (SteelModel::Panel::*)(int);

    int Below(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }
    bool Flip() { return Below(2) == 0; }
    int Kind() { return Below(3) == 0 ? -1 : Below(10) - 1; }

    void Mirror()
    {
        m_model.kind = m_panel.m_dlg->m_nSteelKind;
        m_model.toItem = m_panel.m_dlg->m_bToItem;
        m_model.inParent = m_panel.m_dlg->m_bInParent;
    }

    std::string Step()
    {
        const int dice = m_mustInit ? 99 : Below(100);
        if (dice >= 98 && (!m_eager || m_mustInit)) {
            m_panel.Open(m_eager ? m_model.kind : Kind(), Flip(), Flip());
            Mirror();
            m_model.Init();
            m_mustInit = false;
            m_focus = 0;
            return "Init";
        }
        if (dice >= 96 && !m_eager) {
            const int ids[] = {SteeltypeList, VdiaList, SlashList, PosList, DeleteButton};
            m_panel.m_hands.RightClick(*m_panel.m_dlg, ids[Below(5)]);
            m_mustInit = m_model.Confirm();
            m_panel.m_dlg->ShowWindow(SW_SHOW);
            m_focus = 0;
            return "confirmation";
        }
        if (dice >= (m_eager ? 99 : 90)) {
            m_panel.Delete();
            m_model.Delete();
            m_focus = 0;
            return "delete";
        }
        if (dice >= 84 && m_focus != 0) {
            return Arrow();
        }
        return ClickAList(dice);
    }

    std::string ClickAList(int dice)
    {
        using Model = SteelModel::Panel;
        struct List {
            int id;
            Pick pick;
            int weight;
        };
        static constexpr List lists[] = {
            {SteeltypeList, &Model::PickType, 12},    {VdiaList, &Model::PickLater, 14},
            {PosList, &Model::PickRow, 10},           {SteelnumList, &Model::PickCount, 15},
            {SteeldiaList, &Model::PickDiameter, 16}, {SteelsymList, &Model::PickGrade, 5},
            {UpList, &Model::PickUpper, 5},           {DownList, &Model::PickLower, 6},
            {SepList, &Model::PickEnd, 17},
        };
        int at = m_eager ? Eager() : 0;
        for (int rest = dice; !m_eager && rest >= lists[at].weight && at < 8; ++at) {
            rest -= lists[at].weight;
        }
        const CListBox& list = *dynamic_cast<CListBox*>(m_panel.m_dlg->GetDlgItem(lists[at].id));
        if (list.GetCount() == 0) {
            return "nothing";
        }
        const int row = Below(list.GetCount());
        m_panel.Pick(lists[at].id, row);
        (m_model.*lists[at].pick)(row);
        m_focus = lists[at].id;
        m_focusPick = lists[at].pick;
        return "row " + std::to_string(row) + " of " + std::to_string(m_focus);
    }

    // The lists in the order that fills a panel fast, now and then another one.
    int Eager()
    {
        static constexpr int order[] = {1, 6, 7, 5, 3, 4};
        return Below(20) == 0 ? Below(3) * 2 : order[m_eagerStep++ % 6];
    }

    std::string Arrow()
    {
        const CListBox& list = *dynamic_cast<CListBox*>(m_panel.m_dlg->GetDlgItem(m_focus));
        const int now = list.GetCurSel();
        const bool down = Flip();
        const int row = now == -1 ? 0 : std::clamp(now + (down ? 1 : -1), 0, list.GetCount() - 1);
        m_panel.m_hands.Key(down ? VK_DOWN : VK_UP);
        if (row != now && list.GetCount() > 0) {
            (m_model.*m_focusPick)(row);
        }
        return "arrow to " + std::to_string(row) + " of " + std::to_string(m_focus);
    }

    std::minstd_rand m_random;
    bool m_eager;  // composes only, until the rows are full
    SteelPanel m_panel;
    SteelModel::Panel m_model;
    bool m_mustInit = false;
    int m_focus = 0;  // id of the list with the focus
    Pick m_focusPick = nullptr;
    int m_eagerStep = 0;
};

TEST(SteelRandom, PanelAgreesWithTheModelAfterEachClick)
{
    constexpr unsigned Sessions = 128;
    int fullest = 0;
    const unsigned first = FirstSeed(0);
    for (unsigned seed = first; seed < first + Sessions && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE(SeedName(seed));
        Session session(seed);
        session.Play(seed % 8 == 7 ? 2500 : 800);
        fullest = std::max(fullest, session.m_fullest);
    }
    EXPECT_EQ(fullest, 99);
}

}  // namespace
