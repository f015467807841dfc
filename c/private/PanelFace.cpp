#include "c/private/PanelFace.h"

#include "c/private/Call.h"

namespace RankerC {

namespace {

// What differs between the panels: how they begin, take a text and tell their result.
void Start(CBeamSecDlg& panel) { panel.Init(CString()); }
void Start(CHBarPropertySheet& /*picker*/) {}
void Start(CVBarPropertySheet& /*picker*/) {}
template <class Panel>
void Start(Panel& panel)
{
    panel.Init();
}

void Show(CBeamNameDlg& panel, const CString& text) { panel.SetFocusBeamname(text); }
void Show(CBeamSecDlg& panel, const CString& text) { panel.Init(text); }
void Show(CBeamLevelDlg& panel, const CString& text) { panel.SetFocusLevel(text); }
void Show(CBeamGujinDlg& panel, const CString& text) { panel.SetFocusGujin(text); }
void Show(CBeamSteelDlg& panel, const CString& /*text*/) { panel.Init(); }

// Every event passes its keeper on the way in.
template <class Panel>
class Kept : public Panel {
public:
    explicit Kept(PanelKeeper& keeper) : m_keeper(keeper) {}
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        return m_keeper.Offer([this, pMsg] { return Panel::PreTranslateMessage(pMsg); });
    }

private:
    PanelKeeper& m_keeper;
};

template <class Panel>
class FaceOf : public PanelFace {
public:
    FaceOf(const rk_panel_options& options, void* hostData, PanelKeeper& keeper)
        : m_item(keeper), m_panel(keeper)
    {
        m_panel.m_pItem = &m_item;
        if constexpr (!IsPicker) {
            m_panel.m_bToItem = options.route == RK_TO_ITEM;
        }
        if constexpr (requires { m_panel.m_bInParent; }) {
            m_panel.m_bInParent = options.route == RK_TO_PARENT;
            m_panel.m_pHostData = hostData;
        }
        if constexpr (IsBars) {
            m_panel.m_nSteelKind = options.bar_kind;
        }
        if (!m_panel.Create(Panel::IDD)) {
            throw Refusal{RK_FAILED, "the panel's window could not be made"};
        }
        Start(static_cast<Panel&>(m_panel));
    }

    CDialog& Dialog() override { return m_panel; }

    bool SetText(const CString& text) override
    {
        if constexpr (IsPicker) {
            m_item.Put(text);
            m_panel.m_pItem = &m_item;
            m_panel.UpdateValue();
        } else {
            if (IsBars && !text.IsEmpty()) {
                return false;
            }
            Show(static_cast<Panel&>(m_panel), text);
        }
        return true;
    }

    [[nodiscard]] int Groups() const override { return IsBars ? BarGroups::Count : 1; }

    [[nodiscard]] CString Result(int group) const override
    {
        if constexpr (IsPicker) {
            return m_item.GetValue();
        } else if constexpr (IsBars) {
            return m_panel.m_Group[group].m_strSteel;
        } else {
            return m_panel.m_strResult;
        }
    }

    [[nodiscard]] bool ComposesNewPiece() const override
    {
        if constexpr (IsBars) {
            return m_panel.m_bNewPiece;
        }
        return false;
    }

private:
    static constexpr bool IsBars = std::is_same_v<Panel, CBeamSteelDlg>;
    static constexpr bool IsPicker =
        std::is_same_v<Panel, CHBarPropertySheet> || std::is_same_v<Panel, CVBarPropertySheet>;

    Item m_item;
    Kept<Panel> m_panel;
};

}  // namespace

void Item::SetValue(CString strValue)
{
    CPropertyGridItem::SetValue(strValue);
    m_keeper.Take(strValue);
}

std::unique_ptr<PanelFace> MakePanel(const rk_panel_options& options, void* hostData, PanelKeeper& keeper)
{
    switch (options.kind) {
    case RK_NAME_PANEL: return std::make_unique<FaceOf<CBeamNameDlg>>(options, hostData, keeper);
    case RK_SECTION_PANEL: return std::make_unique<FaceOf<CBeamSecDlg>>(options, hostData, keeper);
    case RK_ELEVATION_PANEL: return std::make_unique<FaceOf<CBeamLevelDlg>>(options, hostData, keeper);
    case RK_STIRRUP_PANEL: return std::make_unique<FaceOf<CBeamGujinDlg>>(options, hostData, keeper);
    case RK_BAR_PANEL: return std::make_unique<FaceOf<CBeamSteelDlg>>(options, hostData, keeper);
    case RK_HORIZONTAL_PICKER:
        return std::make_unique<FaceOf<CHBarPropertySheet>>(options, hostData, keeper);
    case RK_VERTICAL_PICKER: return std::make_unique<FaceOf<CVBarPropertySheet>>(options, hostData, keeper);
    default: RefuseValue("options->kind", options.kind);
    }
}

}  // namespace RankerC
