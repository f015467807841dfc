// The module's five panels and two pickers as a host uses them: made, bound to a receiver, opened on a
// text.
#pragma once

#include <memory>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "RankerModule.h"

namespace Desk {

// Who gets the text of a panel that is confirmed. Item and host data are borrowed; a picker delivers to
// the item alone, and only while the item is attached.
struct Receiver {
    enum class Route { Item, Parent, HostData };
    Route route = Route::Item;
    CPropertyGridItem* item = nullptr;
    void* hostData = nullptr;
};

// What a panel is opened on. The bar panel takes its text in bare pieces such as "2B25", all of one type.
struct PanelUse {
    std::optional<CString> text;  // nothing: what the panel holds after Init
    int barKind = -1;             // the bar panel's m_nSteelKind
    int pieceType = 0;
    std::vector<CString> pieces;
};

// What a panel holds besides what its controls show: its text, or groups and mode of the bar panel. Of a
// picker the value of its item, and whether it is bound to it.
struct Holding {
    // One group of the bar panel that is not empty.
    struct Group {
        int number = 0;
        CString text;
        std::vector<CString> pieces;

        bool operator==(const Group&) const = default;
    };

    std::optional<CString> text;
    std::vector<Group> groups;
    int editedRow = -1;  // of the bar panel; -1 while it composes a new piece
    std::optional<bool> bound;

    bool operator==(const Holding&) const = default;
};

class Panel {
public:
    Panel() = default;
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;
    virtual ~Panel() = default;

    [[nodiscard]] virtual CDialog& Window() = 0;
    // The window, hidden; the parent may be null.
    virtual void Create(CWnd* parent) = 0;
    // To be called after Create, and again for each further use.
    virtual void Open(const PanelUse& use) = 0;
    [[nodiscard]] virtual Holding Held() const = 0;
};

// How each class is filled: at first with Init, later without; and what it holds then.
namespace PanelRules {

void Fill(CBeamNameDlg& panel, const PanelUse& use, bool isFirst);
void Fill(CBeamSecDlg& panel, const PanelUse& use, bool isFirst);
void Fill(CBeamLevelDlg& panel, const PanelUse& use, bool isFirst);
void Fill(CBeamGujinDlg& panel, const PanelUse& use, bool isFirst);
void Fill(CBeamSteelDlg& panel, const PanelUse& use, bool isFirst);

[[nodiscard]] Holding HeldBy(const CBeamSteelDlg& panel);

template <class Dialog>
inline constexpr bool IsPicker =
    std::is_base_of_v<CHBarPropertySheet, Dialog> || std::is_base_of_v<CVBarPropertySheet, Dialog>;

}  // namespace PanelRules

template <class Dialog>
class MadePanel final : public Panel {
public:
    template <class... Arguments>
    explicit MadePanel(const Receiver& receiver, Arguments&&... arguments)
        : m_receiver(receiver), m_dialog(std::forward<Arguments>(arguments)...)
    {
        m_dialog.m_pItem = receiver.item;
        if constexpr (requires { m_dialog.m_bToItem; }) {
            m_dialog.m_bToItem = receiver.route == Receiver::Route::Item;
        }
        if constexpr (requires { m_dialog.m_bInParent; }) {
            m_dialog.m_bInParent = receiver.route == Receiver::Route::Parent;
            m_dialog.m_pHostData = receiver.hostData;
        }
    }

    CDialog& Window() override { return m_dialog; }
    void Create(CWnd* parent) override { m_dialog.Create(Dialog::IDD, parent); }

    void Open(const PanelUse& use) override
    {
        if constexpr (!PanelRules::IsPicker<Dialog>) {
            PanelRules::Fill(m_dialog, use, std::exchange(m_isFirst, false));
        } else if (m_dialog.m_pItem = m_receiver.item; use.text) {
            m_receiver.item->CPropertyGridItem::SetValue(*use.text);
            m_dialog.UpdateValue();
        }
    }

    [[nodiscard]] Holding Held() const override
    {
        Holding holding;
        if constexpr (PanelRules::IsPicker<Dialog>) {
            holding.text = m_receiver.item->GetValue();
            holding.bound = m_dialog.m_pItem != nullptr;
        } else if constexpr (requires { m_dialog.m_strResult; }) {
            holding.text = m_dialog.m_strResult;
        } else {
            holding = PanelRules::HeldBy(m_dialog);
        }
        return holding;
    }

private:
    Receiver m_receiver;
    Dialog m_dialog;
    bool m_isFirst = true;
};

// Whether a click on a row of a list would choose it now, as the list's panel stands.
[[nodiscard]] bool CanChoose(const CListBox& list, int row);

// A panel or picker by the id of its template; null for any other id. As<Dialog> is the class that is made
// for one of the module's classes, from the arguments.
template <template <class> class As = std::type_identity_t, class... Arguments>
[[nodiscard]] std::unique_ptr<Panel> MakePanel(UINT idTemplate, const Receiver& receiver,
                                               Arguments&&... arguments)
{
    switch (idTemplate) {
    case CBeamNameDlg::IDD: return std::make_unique<MadePanel<As<CBeamNameDlg>>>(receiver, arguments...);
    case CBeamSecDlg::IDD: return std::make_unique<MadePanel<As<CBeamSecDlg>>>(receiver, arguments...);
    case CBeamLevelDlg::IDD: return std::make_unique<MadePanel<As<CBeamLevelDlg>>>(receiver, arguments...);
    case CBeamGujinDlg::IDD: return std::make_unique<MadePanel<As<CBeamGujinDlg>>>(receiver, arguments...);
    case CBeamSteelDlg::IDD: return std::make_unique<MadePanel<As<CBeamSteelDlg>>>(receiver, arguments...);
    case CHBarPropertySheet::IDD:
        return std::make_unique<MadePanel<As<CHBarPropertySheet>>>(receiver, arguments...);
    case CVBarPropertySheet::IDD:
        return std::make_unique<MadePanel<As<CVBarPropertySheet>>>(receiver, arguments...);
    default: return nullptr;
    }
}

}  // namespace Desk
