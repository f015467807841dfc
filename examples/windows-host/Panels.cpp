// Panels made, opened on a text, and what they deliver.
#include "examples/windows-host/Panels.h"

#include <utility>

#include "RankerModule.h"
#include "win32/Win32Display.h"

namespace {

// The property item that the panels serve.
class Item final : public CPropertyGridItem {
public:
    std::function<void(const CString&)> taken;

    void SetValue(CString value) override
    {
        CPropertyGridItem::SetValue(value);
        if (taken) {
            taken(value);
        }
    }
};

// One class of panel: how it is made, and how it takes a text.
struct Kind {
    const char* name;
    std::unique_ptr<CDialog> (*make)(Item& item);
    void (*open)(CDialog& panel, Item& item, const CString& text);
};

template <class Dialog>
std::unique_ptr<CDialog> Make(Item& item)
{
    auto made = std::make_unique<Dialog>();
    made->m_pItem = &item;
    made->Create(Dialog::IDD);
    return made;
}

template <class Picker>
void OpenPicker(CDialog& panel, Item& item, const CString& text)
{
    auto& picker = static_cast<Picker&>(panel);
    picker.m_pItem = &item;  // a picker that has been confirmed lets go of it
    item.CPropertyGridItem::SetValue(text);
    picker.UpdateValue();
}

void OpenBars(CDialog& panel, Item& /*item*/, const CString& text)
{
    auto& bars = static_cast<CBeamSteelDlg&>(panel);
    bars.m_nSteelKind = 0;  // the top bars alone
    bars.Init();
    if (!text.IsEmpty()) {
        BarGroup& group = bars.m_Group[0];
        bars.AddToTail(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, 0, text + " ");
    }
}

constexpr Kind Kinds[] = {
    {"name", &Make<CBeamNameDlg>,
     [](CDialog& panel, Item&, const CString& text) {
         auto& name = static_cast<CBeamNameDlg&>(panel);
         name.Init();
         name.SetFocusBeamname(text);
     }},
    {"section", &Make<CBeamSecDlg>,
     [](CDialog& panel, Item&, const CString& text) { static_cast<CBeamSecDlg&>(panel).Init(text); }},
    {"elevation", &Make<CBeamLevelDlg>,
     [](CDialog& panel, Item&, const CString& text) {
         auto& level = static_cast<CBeamLevelDlg&>(panel);
         level.Init();
         level.SetFocusLevel(text);
     }},
    {"stirrup", &Make<CBeamGujinDlg>,
     [](CDialog& panel, Item&, const CString& text) {
         auto& stirrup = static_cast<CBeamGujinDlg&>(panel);
         stirrup.Init();
         stirrup.SetFocusGujin(text);
     }},
    {"bars", &Make<CBeamSteelDlg>, &OpenBars},
    {"hbars", &Make<CHBarPropertySheet>, &OpenPicker<CHBarPropertySheet>},
    {"vbars", &Make<CVBarPropertySheet>, &OpenPicker<CVBarPropertySheet>},
};

}  // namespace

class Panels::Private {
public:
    explicit Private(void* owner) : display(owner) {}

    Win32Display display;  // outlives the windows that it shows
    Item item;
    const Kind* kind = nullptr;  // of the panel
    std::unique_ptr<CDialog> panel;
};

Panels::Panels(void* owner, Taken taken) : m_private(std::make_unique<Private>(owner))
{
    m_private->item.SetHWnd(this);  // a picker serves no item without a window; any address will do
    m_private->item.taken = [shown = m_private.get(), tell = std::move(taken)](const CString& text) {
        tell(shown->kind->name, std::string(text.View()));
    };
}

Panels::~Panels() = default;

void Panels::UsePerMonitorDpi() { Win32Display::UsePerMonitorDpi(); }

std::vector<std::string> Panels::Names()
{
    std::vector<std::string> names;
    for (const Kind& kind : Kinds) {
        names.emplace_back(kind.name);
    }
    return names;
}

bool Panels::Open(const std::string& name, const std::string& text, int left, int top, int right,
                  int bottom)
{
    for (const Kind& kind : Kinds) {
        if (kind.name == name) {
            m_private->panel.reset();
            m_private->panel = kind.make(m_private->item);
            m_private->kind = &kind;
            kind.open(*m_private->panel, m_private->item, CString(text.c_str()));
            m_private->display.OpenBeside(m_private->panel->m_hWnd, CRect(left, top, right, bottom));
            return true;
        }
    }
    return false;
}

bool Panels::IsOpen() const
{
    return m_private->panel != nullptr && m_private->panel->IsWindowVisible() != FALSE;
}

void* Panels::Window() const
{
    return IsOpen() ? m_private->display.NativeOf(m_private->panel->m_hWnd) : nullptr;
}

void* Panels::Control(int id) const
{
    const CWnd* const control = IsOpen() ? m_private->panel->GetDlgItem(id) : nullptr;
    return control != nullptr ? m_private->display.NativeOf(control->m_hWnd) : nullptr;
}
