// A panel driven step by step, as its host and its user would.
#pragma once

#include "desk/console/panel/Step.h"
#include "desk/console/panel/Watch.h"
#include "desk/project/Fields.h"

namespace Desk::Panels {

// What a host decides before it makes a panel.
struct Setup {
    PanelKind kind = PanelKind::Name;
    Receiver::Route to = Receiver::Route::Item;
    PanelUse use;  // the text to open with, or what the bar panel is open for
};

// What one step did.
struct Done {
    std::string source;           // the step as it was written
    std::vector<Event> events;    // what the user's hands sent
    std::vector<Effect> effects;  // of what the host did itself
    Picture picture;              // the panel after the step
};

// The panel has a frame window of the host as its parent, or none for the route to the host's data.
class Run {
public:
    explicit Run(const Setup& setup);

    // The panel as it opens: created, filled and shown.
    [[nodiscard]] Picture Now() const;
    // Throws Failure for a step that this panel cannot do in its present state.
    Done Do(const Step& step);

private:
    class Item : public CPropertyGridItem {
    public:
        explicit Item(Watch& watch);
        void SetValue(CString strValue) override;

    private:
        Watch& m_watch;
    };

    void DoAsUser(const Step& step);
    void DoAsHost(const Step& step);
    [[nodiscard]] const CWnd& FindBox(const Step& step) const;

    PanelKind m_kind;
    Watch m_watch;
    Item m_item;
    int m_hostData = 0;
    CWnd m_frame;
    std::unique_ptr<Panel> m_panel;
    WatchedHands m_hands;
};

}  // namespace Desk::Panels
