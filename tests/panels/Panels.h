// The four panels with a text, each with what tests of their common frame need to know of it.
#pragma once

#include <memory>

#include "platform/windows/Hands.h"
#include "tests/panels/Receiver.h"

struct NameKit {
    using Panel = CBeamNameDlg;
    static constexpr const char* Text = "KL3(2A)";
    static constexpr int Code = 8, Edit = 1654, List = 552, Row = 0;  // the row of the text
    static void Show(Panel& panel, const CString& text) { panel.SetFocusBeamname(text); }
    static void Init(Panel& panel) { panel.Init(); }
    static constexpr int HostMode = 1;  // always to the parent
};

struct SectionKit {
    using Panel = CBeamSecDlg;
    static constexpr const char* Text = "300x600";
    static constexpr int Code = 0, Edit = 1320, List = 1317, Row = 4;
    static void Show(Panel& panel, const CString& text) { panel.Init(text); }
    static void Init(Panel& panel) { panel.Init(panel.m_strResult); }
    static constexpr int HostMode = 0;
};

struct LevelKit {
    using Panel = CBeamLevelDlg;
    static constexpr const char* Text = "(-0.300)";
    static constexpr int Code = 7, Edit = 1320, List = 0, Row = 0;
    static void Show(Panel& panel, const CString& text) { panel.SetFocusLevel(text); }
    static void Init(Panel& panel) { panel.Init(); }
    static constexpr int HostMode = 2;
};

struct StirrupKit {
    using Panel = CBeamGujinDlg;
    static constexpr const char* Text = "A8@100/200(2)";
    static constexpr int Code = 1, Edit = 1653, List = 1062, Row = 1;
    static void Show(Panel& panel, const CString& text) { panel.SetFocusGujin(text); }
    static void Init(Panel& panel) { panel.Init(); }
    static constexpr int HostMode = 0;
};

// A panel in a frame window, shown with a text, delivering to the item.
template <class Kit>
struct Stage {
    using Panel = typename Kit::Panel;

    Stage()
    {
        frame.CreateFrame(CRect(100, 100, 900, 700));
        Build();
    }
    void Build()
    {
        panel = std::make_unique<Panel>();
        panel->m_pItem = &receiver;
        panel->Create(Panel::IDD, &frame);
        Kit::Init(*panel);
        Show(Kit::Text);
    }
    void Show(const CString& text)
    {
        Kit::Show(*panel, text);
        panel->ShowWindow(SW_SHOW);
    }
    [[nodiscard]] CRect Place() const
    {
        CRect rect;
        panel->GetWindowRect(&rect);
        return rect;
    }
    // The corner, which no control covers.
    [[nodiscard]] CPoint BareSurface() const { return Place().TopLeft(); }

    Receiver receiver;
    Hands hands;
    CWnd frame;
    std::unique_ptr<Panel> panel;
};

inline std::string BoxText(const CWnd& panel, int id)
{
    CString text;
    panel.GetDlgItem(id)->GetWindowText(text);
    return std::string(text.View());
}

// The selected row's text, "-" without one, "none" for the row that says so.
inline std::string RowText(const CWnd& panel, int id)
{
    const auto& list = dynamic_cast<const CListBox&>(*panel.GetDlgItem(id));
    CString text("-");
    if (list.GetCurSel() >= 0) {
        list.GetText(list.GetCurSel(), text);
    }
    return text == Gbk(u8"无") ? "none" : std::string(text.View());
}

// Box texts, and behind a bar the selected rows, each list's in the order of its box.
inline std::string Shown(const CWnd& panel, std::initializer_list<int> boxes,
                         std::initializer_list<int> lists)
{
    std::string shown;
    for (const int id : boxes) {
        shown += BoxText(panel, id) + ",";
    }
    shown += "|";
    for (const int id : lists) {
        shown += RowText(panel, id) + ",";
    }
    return shown;
}
