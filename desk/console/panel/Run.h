// A panel driven step by step, as its host and its user would.
#pragma once

#include "desk/console/panel/Hand.h"
#include "desk/console/panel/Panel.h"
#include "desk/console/panel/Step.h"

namespace Desk::Panels {

// What one step did.
struct Done {
    std::string source;           // the step as it was written
    std::vector<Event> events;    // what the user's hand sent
    std::vector<Effect> effects;  // of what the host did itself
    Picture picture;              // the panel behind the step
};

// The panel lives in a frame window of the host, for Route::Host without one.
class Run {
public:
    explicit Run(const Setup& setup);

    // The panel as it opens: created, filled and shown.
    [[nodiscard]] Picture Now() const;
    // Throws Failure for a step that this panel cannot do as it stands.
    Done Do(const Step& step);

private:
    class Item : public CPropertyGridItem {
    public:
        explicit Item(Watch& watch) : m_watch(watch) {}
        void SetValue(CString strValue) override;

    private:
        Watch& m_watch;
    };

    void DoAsUser(const Step& step);
    void DoAsHost(const Step& step);
    void Type(const Step& step);
    void Clear(const Step& step);
    void GoIntoBox(const Step& step);

    Watch m_watch;
    Item m_item;
    int m_hostData = 0;
    CWnd m_frame;
    std::unique_ptr<Panel> m_panel;
    std::unique_ptr<Hand> m_hand;
};

}  // namespace Desk::Panels
