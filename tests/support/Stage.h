// Panels with an item that notes what it gets, and one random user for every kind of hands.
#pragma once

#include <functional>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "desk/shell/Panel.h"
#include "platform/windows/WindowRecord.h"

#include "RankerModule.h"

struct NotedItem : CPropertyGridItem {
    void SetValue(CString strValue) override
    {
        taken.emplace_back(strValue.View());
        if (onTaken) {
            onTaken();
        }
    }
    std::vector<std::string> taken;
    std::function<void()> onTaken;
};

// All seven pop-ups, by their templates.
enum class Shown : UINT {
    Name = CBeamNameDlg::IDD,
    Section = CBeamSecDlg::IDD,
    Elevation = CBeamLevelDlg::IDD,
    Stirrup = CBeamGujinDlg::IDD,
    Bars = CBeamSteelDlg::IDD,
    Horizontal = CHBarPropertySheet::IDD,
    Vertical = CVBarPropertySheet::IDD
};
inline constexpr Shown AllShown[] = {Shown::Name, Shown::Section,    Shown::Elevation, Shown::Stirrup,
                                     Shown::Bars, Shown::Horizontal, Shown::Vertical};

class Stage {
public:
    explicit Stage(Shown kind)
        : made(Desk::MakePanel(static_cast<UINT>(kind), {Desk::Receiver::Route::Item, &item, nullptr}))
    {
        item.SetHWnd(this);
        panel = &made->Window();
        made->Create(nullptr);
        Desk::PanelUse use;
        use.barKind = 0;
        if (kind == Shown::Section) {
            use.text = "300x600";
        }
        made->Open(use);
        Rebind();
    }

    // A confirmed picker lets go of its item.
    void Rebind()
    {
        if (made->Held().bound) {
            made->Open({});
        }
        CRect rect;
        panel->GetWindowRect(&rect);
        panel->MoveWindow(100, 100, rect.Width(), rect.Height());
        panel->ShowWindow(SW_SHOW);
    }

    void Destroy()
    {
        panel = nullptr;
        made.reset();
    }

    // Everything that a person sees, and what went out.
    [[nodiscard]] std::string State() const
    {
        std::ostringstream state;
        state << (panel->IsWindowVisible() ? "shown" : "hidden");
        const CWnd* const focus = CWnd::GetFocus();
        for (const HWND child : FindWindowRecord(panel->m_hWnd)->children) {
            const WindowRecord& control = *FindWindowRecord(child);
            state << ' ' << control.id << (focus != nullptr && focus->m_hWnd == child ? "*" : "") << '='
                  << control.text.View() << ':' << control.list.selection << '/' << control.list.rows.size()
                  << '@' << control.list.top;
        }
        const CRect& place = FindWindowRecord(panel->m_hWnd)->place;
        state << " at " << place.left << ',' << place.top << " gave";
        for (const std::string& text : item.taken) {
            state << ' ' << text;
        }
        return state.str();
    }

    NotedItem item;
    std::unique_ptr<Desk::Panel> made;
    CDialog* panel = nullptr;
};

// One random action; the numbers drawn do not depend on what the actions do.
template <class AnyHands>
void Act(AnyHands& hands, Stage& stage, std::mt19937& random)
{
    const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    const std::vector<HWND>& children = FindWindowRecord(stage.panel->m_hWnd)->children;
    const WindowRecord& control = *FindWindowRecord(children[below(children.size())]);
    const CWnd& window = *CWnd::FromHandle(control.handle);
    CRect place;
    window.GetWindowRect(&place);
    const CPoint point(place.left + static_cast<int>(below(static_cast<std::size_t>(place.Width()))),
                       place.top + static_cast<int>(below(static_cast<std::size_t>(place.Height()))));
    constexpr UINT Keys[] = {VK_TAB, VK_UP,   VK_DOWN,   VK_LEFT,  VK_RIGHT, VK_HOME,
                             VK_END, VK_BACK, VK_DELETE, VK_SPACE, VK_END};
    constexpr const char* Typed[] = {"1", "20", "3", "x", "A", "-", ".", "(", "\xCE\xDE"};
    const std::size_t key = below(std::size(Keys));
    const std::size_t typed = below(std::size(Typed));
    const std::size_t action = below(20);
    if (!stage.panel->IsWindowVisible()) {
        stage.Rebind();
        return;
    }
    const bool selects = control.kind == WindowKind::EditBox && (action == 2 || action == 5);
    switch (selects ? 6 : action) {  // a line edit selects by them, which the windows know nothing of
    case 0: hands.RightClick(point); break;
    case 1: hands.Wheel(point, typed % 2 == 0 ? 1 : -1); break;
    case 2: hands.DoubleClick(point); break;
    case 3:
    case 4: hands.Key(Keys[key]); break;
    case 5: hands.Drag(place.TopLeft(), CPoint(place.left + 3, place.top - 5)); break;
    default:
        hands.Click(point);
        if (control.kind == WindowKind::EditBox) {
            hands.Key(VK_END);  // where a press puts the caret depends on the font
            hands.Type(Typed[typed]);
        }
        break;
    }
}

template <class AnyHands>
std::vector<std::string> Play(AnyHands& hands, Shown kind, unsigned seed, int steps,
                              const std::function<void(const Stage&)>& look)
{
    std::mt19937 random(seed);
    Stage stage(kind);
    if constexpr (requires { hands.Begin(stage); }) {
        hands.Begin(stage);
    }
    std::vector<std::string> states;
    for (int step = 0; step < steps; ++step) {
        Act(hands, stage, random);
        states.push_back(stage.State());
        look(stage);
    }
    return states;
}
