// A host in one file: answers what the project holds, ranks stirrups, lets the user change one in the
// stirrup panel, and takes what is confirmed.
#include <cstdio>

#include "RankerModule.h"

namespace {

// What the host's project holds. The module asks for it through a callback.
void AnswerStirrups(CStringArray& texts)
{
    for (const char* const text : {"A8@100/200(2)", "A10@100/200(4)", "A8@100/200(2)"}) {
        texts.Add(text);
    }
}

// One field of the host's own form. The panel hands its address back with the text.
struct Field {
    CString text;
};

void TakeText(void* target, int mode, CString text, int code)
{
    static_cast<Field*>(target)->text = text;
    std::printf("the callback got \"%s\", mode %d, code %d\n", static_cast<const char*>(text), mode, code);
}

// One item of the host's property grid.
class StirrupItem : public CPropertyGridItem {
public:
    void SetValue(CString value) override
    {
        CPropertyGridItem::SetValue(value);
        std::printf("the item got \"%s\"\n", static_cast<const char*>(value));
    }
};

// The event loop, one event: the panel sees each before its target does.
void Feed(MSG msg)
{
    if (!AfxPreTranslateMessage(&msg)) {
        DispatchMessage(&msg);
    }
}

// The desktop tells the host of mouse and keys. Here they are made up: a mouse event goes to the window
// that shows at the place, a key to the one with the focus.
void Mouse(UINT message, CPoint onScreen)
{
    const HWND target = WindowFromPoint(onScreen);
    if (CWnd* const window = CWnd::FromHandle(target)) {
        CPoint inside = onScreen;
        window->ScreenToClient(&inside);
        Feed({target, message, 0, MAKELPARAM(inside.x, inside.y), 0, onScreen});
    }
}

void Key(UINT key)
{
    if (const CWnd* const focus = CWnd::GetFocus()) {
        Feed({focus->m_hWnd, WM_KEYDOWN, key, 1, 0, CPoint()});
    }
}

// A click on a row of a panel's list, as a user makes it.
void ClickRow(const CListBox& list, int row)
{
    CRect rect;
    list.GetItemRect(row, &rect);
    CPoint place = rect.TopLeft();
    list.ClientToScreen(&place);
    Mouse(WM_LBUTTONDOWN, place);
    Mouse(WM_LBUTTONUP, place);
}

void RightClick(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    Mouse(WM_RBUTTONDOWN, rect.TopLeft());
}

}  // namespace

int main()
{
    constexpr UINT StirrupPanel = 367;  // the panel's template

    // 1. Callbacks first: rankers ask through them, panels deliver through the last one.
    SetBeamGujinFunc(&AnswerStirrups);
    SetBeamMouseInputFunc(&TakeText);

    // 2. A ranker run. The host owns ranker, table and list.
    GuJinBiao table;
    table.InintOnce();
    GUJIN_HITNESS_RANKER ranker;
    ranker.SetPara(300, 3, 30, &table);  // width in mm, seismic class, concrete grade
    CStringArray candidates;
    ranker.ProcessController(candidates);
    std::printf("%d candidates, the first \"%s\", the project's last at %d\n", candidates.GetSize(),
                static_cast<const char*>(candidates[0]), ranker.FindIndexOfFocusByArFlags());

    // 3. A panel, made once: construct, public fields, Create, Init. It serves a property item.
    CWnd frame;
    frame.CreateFrame(CRect(0, 0, 1200, 800));
    frame.ShowWindow(SW_SHOW);
    StirrupItem item;
    CBeamGujinDlg panel;
    panel.m_bToItem = true;
    panel.m_pItem = &item;
    panel.Create(StirrupPanel, &frame);
    panel.Init();

    // 4. Each use: the text, the place, show. Then the user's events arrive: row "(4)" of the legs,
    // and the right button, which confirms anywhere on the panel.
    CRect rect;
    panel.GetWindowRect(&rect);
    panel.SetFocusGujin(candidates[0]);
    panel.MoveWindow(300, 200, rect.Width(), rect.Height());
    panel.ShowWindow(SW_SHOW);
    ClickRow(panel.m_ZhishuList, 2);
    RightClick(panel.m_ZhishuList);
    std::printf("the panel is %s\n", panel.IsWindowVisible() ? "shown" : "hidden");

    // 5. The same panel for a field of the host's own: by the callback, with the field's address.
    Field field;
    panel.m_bToItem = false;
    panel.m_bInParent = false;
    panel.m_pHostData = &field;
    panel.SetFocusGujin(item.GetValue());
    panel.ShowWindow(SW_SHOW);
    ClickRow(panel.m_JiamizhishuList, 3);
    RightClick(panel);

    // 6. Esc dismisses: nothing is delivered.
    panel.ShowWindow(SW_SHOW);
    Key(VK_ESCAPE);
    std::printf("after Esc the panel is %s, the field still \"%s\"\n",
                panel.IsWindowVisible() ? "shown" : "hidden", static_cast<const char*>(field.text));

    // 7. Item, field and frame outlive the panel's last confirmation; objects destroy their windows.
    SetBeamGujinFunc(nullptr);
    SetBeamMouseInputFunc(nullptr);
    return 0;
}
