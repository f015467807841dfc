// Random mouse, keys, calls and receivers over each panel: text, boxes and lists stay in step, and only
// what may be delivered is.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "platform/windows/WindowRecord.h"
#include "tests/panels/Panels.h"
#include "tests/support/Seed.h"

namespace {

class Chance {
public:
    explicit Chance(unsigned seed) : m_engine(seed) {}
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_engine); }
    bool OneIn(int count) { return Below(count) == 0; }
    template <class T, std::size_t Size>
    T Of(const T (&choices)[Size])
    {
        return choices[Below(static_cast<int>(Size))];
    }
    CPoint In(const CRect& rect)
    {
        return {rect.left - 3 + Below(rect.Width() + 6), rect.top - 3 + Below(rect.Height() + 6)};
    }
    CString Character()
    {
        static constexpr const char* Characters[] = {"A", "B", "K", "L", "0",        "1",   "2", "8",
                                                     "(", ")", "@", "/", "x",        "X",   "*", "-",
                                                     ".", " ", "5", "6", "\xCE\xDE", "\xCE"};
        return Of(Characters);
    }
    CString Text()
    {
        CString text;
        for (int characters = Below(12); characters > 0; --characters) {
            text += Character();
        }
        return text;
    }

private:
    std::mt19937 m_engine;
};

// What the boxes, or the rows, make of a text; a changed text is one of them. Written down once more here,
// as a person would put it, so that the panels' own rules do not vouch for themselves.
std::string NameOf(std::string type, const std::string& serial, std::string span,
                   const std::string& cantilever)
{
    if (span == "0") {
        span.clear();
    }
    const std::string suffix = span + cantilever;
    return type + serial + (suffix.empty() ? "" : "(" + suffix + ")");
}

bool MayCompose(const CBeamNameDlg& panel)
{
    const std::string mark = RowText(panel, 549);
    const std::string result(panel.m_strResult.View());
    return result == NameOf(BoxText(panel, 1316), BoxText(panel, 1643), BoxText(panel, 1654),
                            BoxText(panel, 1658)) ||
           result == NameOf(RowText(panel, 552), RowText(panel, 1062), RowText(panel, 547),
                            mark == "none" ? "" : mark);
}

bool MayCompose(const CBeamSecDlg& panel)
{
    const std::string result(panel.m_strResult.View());
    const std::string width = BoxText(panel, 1320);
    return result.starts_with(width) && result.ends_with(BoxText(panel, 1321)) &&
           result.size() == width.size() + 1 + BoxText(panel, 1321).size() &&
           std::string("xX*").find(result[width.size()]) != std::string::npos;
}

bool MayCompose(const CBeamLevelDlg& panel) { return panel.m_strResult == BoxText(panel, 1320).c_str(); }

bool MayCompose(const CBeamGujinDlg& panel)
{
    std::string parts[6];
    std::size_t part = 0;
    for (const int id : {1321, 1653, 1654, 1658, 1662, 1665}) {
        const std::string box = BoxText(panel, id);
        const std::size_t first = box.find_first_not_of(' ');
        parts[part++] =
            first == std::string::npos ? "" : box.substr(first, box.find_last_not_of(' ') - first + 1);
    }
    const auto& [grade, diameter, tight, tightLegs, spacing, legs] = parts;
    const auto bracketed = [](const std::string& count) {
        return count.empty() || count.find('(') != std::string::npos ? count : "(" + count + ")";
    };
    const std::string tightZone = tight.empty() ? "" : tight + bracketed(tightLegs) + "/";
    return panel.m_strResult == (grade + diameter + "@" + tightZone + spacing + bracketed(legs)).c_str();
}

// Whether each selected row stands for its box. Boxes and lists in template order belong together.
bool RowFits(const CBeamNameDlg&, const std::string& row, const std::string& box)
{
    return row == box || ((row == "none" || row == "0") && box.empty());
}
bool RowFits(const CBeamSecDlg&, const std::string& row, const std::string& box)
{
    return std::atoi(row.c_str()) == std::atoi(box.c_str());
}
bool RowFits(const CBeamLevelDlg&, const std::string&, const std::string&) { return true; }
bool RowFits(const CBeamGujinDlg&, const std::string& row, std::string box)
{
    std::erase(box, ' ');
    return row == box || row == "(" + box + ")" || (row == "none" && box.empty());
}

template <class Kit>
class Run : Stage<Kit> {
public:
    explicit Run(unsigned seed) : m_chance(seed), m_size(Base::Place().Width(), Base::Place().Height()) {}

    void Steps(int count)
    {
        for (int step = 0; step < count && !testing::Test::HasFailure(); ++step) {
            Step();
            ASSERT_NO_FATAL_FAILURE(Check()) << "step " << step;
        }
        EXPECT_GT(m_delivered, count / 50);
    }

private:
    using Base = Stage<Kit>;
    using Base::frame;
    using Base::hands;
    using Base::panel;
    using Base::receiver;

    void Step()
    {
        if (panel == nullptr || panel->m_hWnd == nullptr) {
            receiver.m_answer = nullptr;
            if (frame.m_hWnd == nullptr) {
                frame.CreateFrame(CRect(100, 100, 900, 700));
            }
            Base::Build();
        }
        if (panel->IsWindowVisible() == FALSE && !m_chance.OneIn(20)) {
            panel->ShowWindow(SW_SHOW);
        }
        receiver.Forget();
        m_before = panel->m_strResult;
        m_mayDeliver = false;
        switch (m_chance.Below(12)) {
        case 0: RightPress(); break;
        case 1: Prepare(); break;
        case 2: NewText(); break;
        case 3:
        case 4: Type(); break;
        case 5: Key(); break;
        case 6: DoubleClick(); break;
        case 7: hands.Drag(Anywhere(), Anywhere()); break;
        case 8: Raw(); break;
        default: hands.Click(Anywhere()); break;
        }
    }

    CPoint Anywhere() { return m_chance.In(Base::Place()); }

    void RightPress()
    {
        m_mayDeliver = true;
        m_chance.OneIn(4) ? panel->OnRButtonDown(0, CPoint())
                          : static_cast<void>(hands.RightClick(Anywhere()));
    }

    void DoubleClick()
    {
        m_mayDeliver = std::is_same_v<Kit, SectionKit>;
        hands.DoubleClick(Anywhere());
    }

    void Type()
    {
        hands.Click(*panel, Kit::Edit);
        hands.Type(m_chance.Character());
    }

    void Key()
    {
        static constexpr UINT Keys[] = {VK_ESCAPE, VK_TAB,  VK_RETURN, VK_BACK, VK_DELETE, VK_UP,  VK_DOWN,
                                        VK_LEFT,   VK_HOME, VK_END,    VK_NEXT, VK_SPACE,  VK_BACK};
        hands.Key(m_chance.Of(Keys));
    }

    // An event whose target, place and kind need not fit together.
    void Raw()
    {
        static constexpr UINT Messages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,
                                            WM_RBUTTONUP,   WM_KEYDOWN,   WM_CHAR,          WM_MOUSEWHEEL};
        const auto& children = FindWindowRecord(panel->m_hWnd)->children;
        const int child = m_chance.Below(static_cast<int>(children.size()) + 1);
        const HWND target = child == 0 ? panel->m_hWnd : children[static_cast<std::size_t>(child - 1)];
        const UINT message = m_chance.Of(Messages);
        m_mayDeliver = message == WM_RBUTTONDOWN || message == WM_LBUTTONDBLCLK;
        Hands::Send({target, message, static_cast<WPARAM>(m_chance.Below(256)),
                     MAKELPARAM(m_chance.Below(80), m_chance.Below(160)), 0, Anywhere()});
    }

    void NewText()
    {
        Kit::Show(*panel, m_chance.OneIn(2) ? CString(Kit::Text) : m_chance.Text());
        m_before = panel->m_strResult;
        if (m_chance.OneIn(4) && !std::is_same_v<Kit, NameKit>) {
            Kit::Init(*panel);
            m_before = panel->m_strResult;
        }
    }

    // Other receivers, and what they do to the panel.
    void Prepare()
    {
        panel->m_bToItem = m_chance.OneIn(2);
        panel->m_pItem = m_chance.OneIn(8) ? nullptr : &receiver;
        if constexpr (requires { panel->m_bInParent; }) {
            panel->m_bInParent = m_chance.OneIn(2);
            panel->m_pHostData = this;
        }
        switch (m_chance.Below(8)) {
        case 0: receiver.m_answer = [this] { panel.reset(); }; break;
        case 1: receiver.m_answer = [this] { panel->DestroyWindow(); }; break;
        case 2: receiver.m_answer = [this] { frame.DestroyWindow(); }; break;
        case 3: receiver.m_answer = [this] { panel->ShowWindow(SW_SHOW); }; break;
        case 4: receiver.m_answer = [this] { NewText(); }; break;
        default: receiver.m_answer = nullptr; break;
        }
    }

    void Check()
    {
        ASSERT_LE(receiver.Count(), m_mayDeliver ? 1U : 0U);
        m_delivered += static_cast<int>(receiver.Count());
        for (const Delivery& call : receiver.m_calls) {
            ASSERT_EQ(call.code, Kit::Code);
            ASSERT_EQ(call.mode, call.first == this ? Kit::HostMode : 1);
            ASSERT_NE(call.text, "");
        }
        for (const std::string& text : receiver.m_items) {
            ASSERT_NE(text, "");
        }
        ASSERT_TRUE((receiver.m_messages.empty() || std::is_same_v<Kit, NameKit>));
        if (panel == nullptr || panel->m_hWnd == nullptr) {
            return;
        }
        ASSERT_EQ(Base::Place().Width(), m_size.x);
        ASSERT_EQ(Base::Place().Height(), m_size.y);
        if (panel->m_strResult != m_before) {
            ASSERT_TRUE(MayCompose(*panel)) << m_before << " became " << panel->m_strResult;
        }
        std::vector<int> edits;
        std::vector<int> lists;
        for (const HWND child : FindWindowRecord(panel->m_hWnd)->children) {
            const WindowRecord& control = *FindWindowRecord(child);
            if (control.kind == WindowKind::EditBox) {
                edits.push_back(control.id);
            } else if (control.kind == WindowKind::ListBox && control.enabled) {
                lists.push_back(control.id);
            }
        }
        for (std::size_t i = 0; i < std::min(edits.size(), lists.size()); ++i) {
            const std::string row = RowText(*panel, lists[i]);
            ASSERT_TRUE(row == "-" || RowFits(*panel, row, BoxText(*panel, edits[i])))
                << row << " under " << BoxText(*panel, edits[i]);
        }
    }

    Chance m_chance;
    CString m_before;
    CPoint m_size;
    bool m_mayDeliver = false;
    int m_delivered = 0;
};

template <class Kit>
class PanelRandomTest : public testing::Test {
};
using Kits = testing::Types<NameKit, SectionKit, LevelKit, StirrupKit>;
TYPED_TEST_SUITE(PanelRandomTest, Kits);

TYPED_TEST(PanelRandomTest, StaysInStep)
{
    const unsigned first = FirstSeed(1);
    for (unsigned seed = first; seed < first + 20; ++seed) {
        SCOPED_TRACE(SeedName(seed));
        Run<TypeParam>(seed).Steps(2000);
    }
}

}  // namespace
