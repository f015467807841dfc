// The five panels and the two pickers behind one face, as a host makes and opens them.
#pragma once

#include <memory>
#include <optional>

#include "desk/console/panel/Watch.h"

namespace Desk::Panels {

enum class PanelKind { Name, Section, Elevation, Stirrup, Bars, HorizontalBars, VerticalBars };
enum class Route { Item, Parent, Host };

// What a host decides before it makes a panel.
struct Setup {
    PanelKind kind = PanelKind::Name;
    Route to = Route::Item;
    std::optional<CString> text;  // to open with; the bar panel takes none
    int barKind = -1;             // what the bar panel is open for
};

class Panel {
public:
    Panel() = default;
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;
    virtual ~Panel() = default;

    [[nodiscard]] virtual CDialog& Window() = 0;
    // Creates the window, hidden, and fills it.
    virtual void Open(CWnd* parent) = 0;
    // A new text into the open panel; false for the bar panel, which takes none.
    virtual bool SetText(const CString& text) = 0;
    // Opens the bar panel anew for a kind; false for any other panel.
    virtual bool SetKind(int /*kind*/) { return false; }
    [[nodiscard]] virtual Holding Held() const = 0;
};

// Item and host data are borrowed by the panel.
[[nodiscard]] std::unique_ptr<Panel> MakePanel(const Setup& setup, Watch& watch, CPropertyGridItem* item,
                                               void* hostData);

// The picker of a wall's horizontal or vertical bars: it delivers to the item alone.
[[nodiscard]] std::unique_ptr<Panel> MakePicker(const Setup& setup, Watch& watch, CPropertyGridItem& item);

[[nodiscard]] constexpr bool IsPicker(PanelKind kind)
{
    return kind == PanelKind::HorizontalBars || kind == PanelKind::VerticalBars;
}

[[nodiscard]] const char* TitleOf(PanelKind kind);

}  // namespace Desk::Panels
