// Each panel as a host uses it: which text it opens with, how it takes a new one, what it holds.
#include "desk/console/panel/Panel.h"

#include <iterator>

#include "desk/console/panel/Watched.h"
#include "desk/project/Encoding.h"

namespace Desk::Panels {

const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* map, UINT message, UINT code, int id)
{
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnCall != nullptr; ++entry) {
            if (entry->nMessage == message && entry->nCode == code && entry->nID == id) {
                return entry;
            }
        }
    }
    return nullptr;
}

namespace {

template <class Dialog>
void SetRoute(Dialog& dialog, Route to, CPropertyGridItem* item, void* hostData)
{
    dialog.m_bToItem = to == Route::Item;
    dialog.m_pItem = item;
    if constexpr (requires { dialog.m_bInParent; }) {
        dialog.m_bInParent = to == Route::Parent;
        dialog.m_pHostData = hostData;
    }
}

// How each class takes its text; the template id is that of its window.
struct NameRules {
    using Dialog = CBeamNameDlg;
    static constexpr UINT Template = 540;
    static void Fill(Dialog& dialog, const Setup& setup)
    {
        dialog.m_strResult = setup.text.value_or(CString());
        dialog.Init();
    }
    static void Take(Dialog& dialog, const CString& text) { dialog.SetFocusBeamname(text); }
};

struct SectionRules {
    using Dialog = CBeamSecDlg;
    static constexpr UINT Template = 364;
    static void Fill(Dialog& dialog, const Setup& setup) { dialog.Init(setup.text.value_or(CString())); }
    static void Take(Dialog& dialog, const CString& text) { dialog.Init(text); }
};

struct ElevationRules {
    using Dialog = CBeamLevelDlg;
    static constexpr UINT Template = 542;
    static void Fill(Dialog& dialog, const Setup& setup)
    {
        dialog.Init();
        if (setup.text) {
            dialog.SetFocusLevel(*setup.text);
        }
    }
    static void Take(Dialog& dialog, const CString& text) { dialog.SetFocusLevel(text); }
};

struct StirrupRules {
    using Dialog = CBeamGujinDlg;
    static constexpr UINT Template = 367;
    static void Fill(Dialog& dialog, const Setup& setup)
    {
        dialog.m_strResult = setup.text.value_or(CString());
        dialog.Init();
    }
    static void Take(Dialog& dialog, const CString& text) { dialog.SetFocusGujin(text); }
};

struct BarRules {
    using Dialog = CBeamSteelDlg;
    static constexpr UINT Template = Dialog::IDD;
    static void Fill(Dialog& dialog, const Setup& setup)
    {
        dialog.m_nSteelKind = setup.barKind;
        dialog.Init();
    }
};

Holding HeldBy(const CBeamSteelDlg& dialog)
{
    Holding holding;
    for (std::size_t i = 0; i < std::size(dialog.m_Group); ++i) {
        const BarGroup& group = dialog.m_Group[i];
        if (group.m_arrPiece.GetSize() == 0 && group.m_strSteel.IsEmpty()) {
            continue;
        }
        Group held = {static_cast<int>(i), Utf8FromGbk(group.m_strSteel), {}};
        for (int at = 0; at < group.m_arrPiece.GetSize(); ++at) {
            held.pieces.push_back(Utf8FromGbk(group.m_arrPiece.GetAt(at)));
        }
        holding.groups.push_back(std::move(held));
    }
    holding.editedRow = dialog.m_bNewPiece ? -1 : dialog.m_PosList.GetCurSel();
    return holding;
}

template <class Dialog>
Holding HeldBy(const Dialog& dialog)
{
    return {Utf8FromGbk(dialog.m_strResult), {}, -1, {}};
}

template <class Rules>
class PanelOf final : public Panel {
public:
    PanelOf(const Setup& setup, Watch& watch, CPropertyGridItem* item, void* hostData)
        : m_setup(setup), m_dialog(watch)
    {
        SetRoute(m_dialog, setup.to, item, hostData);
    }

    CDialog& Window() override { return m_dialog; }

    void Open(CWnd* parent) override
    {
        m_dialog.Create(Rules::Template, parent);
        m_dialog.WatchControls();
        Rules::Fill(m_dialog, m_setup);
    }

    bool SetText([[maybe_unused]] const CString& text) override
    {
        if constexpr (requires { Rules::Take(m_dialog, text); }) {
            Rules::Take(m_dialog, text);
            return true;
        } else {
            return false;
        }
    }

    bool SetKind(int kind) override
    {
        if (m_setup.kind != PanelKind::Bars) {
            return false;
        }
        m_setup.barKind = kind;
        Rules::Fill(m_dialog, m_setup);
        return true;
    }

    [[nodiscard]] Holding Held() const override
    {
        return HeldBy(static_cast<const typename Rules::Dialog&>(m_dialog));
    }

private:
    Setup m_setup;
    Watched<typename Rules::Dialog> m_dialog;
};

}  // namespace

std::unique_ptr<Panel> MakePanel(const Setup& setup, Watch& watch, CPropertyGridItem* item, void* hostData)
{
    switch (setup.kind) {
    case PanelKind::Name: return std::make_unique<PanelOf<NameRules>>(setup, watch, item, hostData);
    case PanelKind::Section: return std::make_unique<PanelOf<SectionRules>>(setup, watch, item, hostData);
    case PanelKind::Elevation:
        return std::make_unique<PanelOf<ElevationRules>>(setup, watch, item, hostData);
    case PanelKind::Stirrup: return std::make_unique<PanelOf<StirrupRules>>(setup, watch, item, hostData);
    case PanelKind::HorizontalBars:
    case PanelKind::VerticalBars: return MakePicker(setup, watch, *item);
    case PanelKind::Bars: break;
    }
    return std::make_unique<PanelOf<BarRules>>(setup, watch, item, hostData);
}

const char* TitleOf(PanelKind kind)
{
    switch (kind) {
    case PanelKind::Name: return "Beam name panel";
    case PanelKind::Section: return "Section panel";
    case PanelKind::Elevation: return "Elevation panel";
    case PanelKind::Stirrup: return "Stirrup panel";
    case PanelKind::HorizontalBars: return "Horizontal wall bar picker";
    case PanelKind::VerticalBars: return "Vertical wall bar picker";
    case PanelKind::Bars: break;
    }
    return "Bar panel";
}

}  // namespace Desk::Panels
