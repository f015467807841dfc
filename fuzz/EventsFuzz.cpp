// Strings of mouse and key events over the five panels: nothing may crash, and the bar panel's groups,
// pieces and rows stay in step.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "RankerModule.h"
#include "platform/windows/Hands.h"

namespace {

void Require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

// The fuzzer's bytes, taken one by one; 0 behind the last.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : m_data(data), m_left(size) {}

    [[nodiscard]] bool AtEnd() const { return m_left == 0; }
    int Next()
    {
        if (AtEnd()) {
            return 0;
        }
        --m_left;
        return *m_data++;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_left;
};

// A panel of any class: made once, opened anew whenever it has hidden itself.
struct Opened {
    virtual ~Opened() = default;
    virtual CDialog& Dialog() = 0;
    virtual void Open(int choice) = 0;
    virtual void Check() const {}
};

template <class Panel>
struct PanelOf : Opened {
    CDialog& Dialog() override { return m_panel; }
    void Open(int choice) override
    {
        m_panel.m_pItem = &m_item;
        m_panel.m_bToItem = (choice & 1) != 0;
        if (m_panel.m_hWnd == nullptr) {
            m_panel.Create(Panel::IDD, &m_frame);
            Start(choice, true);
        } else {
            Start(choice, false);
        }
        m_panel.ShowWindow(SW_SHOW);
    }
    void Start(int choice, bool first);

    explicit PanelOf(CWnd& frame) : m_frame(frame) {}
    CWnd& m_frame;
    CPropertyGridItem m_item;
    Panel m_panel;
};

template <>
void PanelOf<CBeamNameDlg>::Start(int choice, bool first)
{
    first ? m_panel.Init() : m_panel.SetFocusBeamname((choice & 2) != 0 ? "KL12(3A)" : "AL1");
}

template <>
void PanelOf<CBeamSecDlg>::Start(int choice, bool /*first*/)
{
    m_panel.Init((choice & 2) != 0 ? "300X600/500" : "300");
}

template <>
void PanelOf<CBeamLevelDlg>::Start(int choice, bool first)
{
    first ? m_panel.Init() : m_panel.SetFocusLevel((choice & 2) != 0 ? "(-0.350)" : "\xB1\xEA");
}

template <>
void PanelOf<CBeamGujinDlg>::Start(int choice, bool first)
{
    first ? m_panel.Init() : m_panel.SetFocusGujin((choice & 2) != 0 ? "A10@100(4)/200(2)" : "A8-200(2");
}

struct BarPanel : PanelOf<CBeamSteelDlg> {
    using PanelOf::PanelOf;

    void Check() const override
    {
        const int rows = m_panel.m_PosList.GetCount();
        int pieces = 0;
        for (const auto& group : m_panel.m_Group) {
            CString joined;
            for (const CString& piece : group.m_arrPiece) {
                joined += piece;
            }
            Require(joined == group.m_strSteel, "a group's text is not its pieces");
            Require(group.m_arrPiece.IsEmpty() == (group.m_nFirstRow == -1),
                    "a group without its first row");
            pieces += group.m_arrPiece.GetSize();
        }
        Require(rows == pieces, "not one row a piece");
        constexpr int GroupOf[] = {0, 1, 2, 3, 3, 4};
        for (int row = 0; row < 100; ++row) {
            const int type = m_panel.m_nRowType[row];
            Require((type == -1) == (row >= rows), "the row tables are not as long as the list");
            if (row < rows) {
                CString text;
                m_panel.m_PosList.GetText(row, text);
                Require(m_panel.m_Group[GroupOf[type]].m_arrPiece[m_panel.m_nRowPos[row]] == text,
                        "a row does not show its piece");
            }
        }
        Require(m_panel.m_bNewPiece || m_panel.m_PosList.GetCurSel() >= 0, "nothing selected to edit");
    }
};

template <>
void PanelOf<CBeamSteelDlg>::Start(int choice, bool /*first*/)
{
    m_panel.m_nSteelKind = choice / 4 % 10 - 1;
    m_panel.m_bInParent = (choice & 2) != 0;
    m_panel.Init();
}

std::unique_ptr<Opened> MakePanel(int which, CWnd& frame)
{
    switch (which % 5) {
    case 0: return std::make_unique<PanelOf<CBeamNameDlg>>(frame);
    case 1: return std::make_unique<PanelOf<CBeamSecDlg>>(frame);
    case 2: return std::make_unique<PanelOf<CBeamLevelDlg>>(frame);
    case 3: return std::make_unique<PanelOf<CBeamGujinDlg>>(frame);
    default: return std::make_unique<BarPanel>(frame);
    }
}

void Act(Hands& hands, const CWnd& panel, Bytes& bytes)
{
    CRect rect;
    panel.GetWindowRect(&rect);
    const int action = bytes.Next();
    const CPoint point(rect.left + bytes.Next() * rect.Width() / 250,
                       rect.top + bytes.Next() * rect.Height() / 250);
    switch (action % 12) {
    case 0: hands.DoubleClick(point); break;
    case 1: hands.RightClick(point); break;
    case 2: hands.Press(point); break;
    case 3: hands.Release(point); break;
    case 4: hands.Wheel(point, action < 128 ? 1 : -1); break;
    case 5: hands.Key(static_cast<UINT>(bytes.Next())); break;
    case 6: hands.Type(CString(static_cast<char>(bytes.Next() | 1))); break;
    default: hands.Click(point); break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    CWnd frame;
    frame.CreateFrame(CRect(0, 0, 800, 600));
    const std::unique_ptr<Opened> panel = MakePanel(bytes.Next(), frame);
    Hands hands;
    while (!bytes.AtEnd()) {
        if (!panel->Dialog().IsWindowVisible()) {
            panel->Open(bytes.Next());
        }
        Act(hands, panel->Dialog(), bytes);
        // A confirmed panel is hidden; its texts have lost their ends.
        if (panel->Dialog().IsWindowVisible()) {
            panel->Check();
        }
    }
    return 0;
}
