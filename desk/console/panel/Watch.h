// A record of what happens while a panel is driven: events and what finished them, notifications, texts
// delivered, message boxes, changes of the panel, in their order.
#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "desk/console/panel/Picture.h"
#include "platform/windows/Hands.h"

namespace Desk::Panels {

struct Effect {
    std::string words;            // for people
    nlohmann::ordered_json json;  // for programs
    bool isOutcome = false;       // a text was delivered or a message box shown
};

// One event on its way through the host's loop.
struct Event {
    std::string name;                // "WM_LBUTTONDOWN"
    std::string target;              // "list 552", "panel", "parent window"
    std::string detail;              // "at 12,40", the key, the character
    std::string finishedBy;          // whose PreTranslateMessage answered TRUE; empty: the target got it
    std::vector<Effect> offered;     // while it was offered
    std::vector<Effect> dispatched;  // while it was dispatched
};

// There is one at a time, since the module's callback and the message box name no object.
class Watch {
public:
    Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch();

    // The pointers that the callback may get for a window or for data of the host.
    void Know(HWND hPanel, const void* pParent, const void* pHostData);

    // Where effects are written from now on; null for nowhere.
    void WriteTo(std::vector<Effect>* effects) { m_effects = effects; }
    // Writes down what has changed since the last look.
    void Look();

    // One turn of the host's loop, written down; true when the event was finished before its target saw it.
    bool Pass(MSG event, std::vector<Event>* events);

    void Notified(const std::string& words) { Write({words, {{"notified", words}}}); }
    void DeliveredToItem(const CString& text);
    void DeliveredByCallback(const void* first, int mode, const CString& text, int code);
    void Said(const CString& message);
    // What the panel answered to the event that was offered last.
    void Answered(bool answer) { m_panelAnswered = answer; }

private:
    void Write(const Effect& effect);
    [[nodiscard]] std::string NameOfWindow(HWND hWnd) const;

    HWND m_hPanel = nullptr;
    const void* m_pParent = nullptr;
    const void* m_pHostData = nullptr;
    bool m_panelAnswered = false;
    Picture m_last;
    std::vector<Effect>* m_effects = nullptr;
};

// A user whose events are written down.
class WatchedHands : public Hands {
public:
    explicit WatchedHands(Watch& watch) : m_watch(watch) {}

    // Where the events are written from now on; null for nowhere.
    void WriteTo(std::vector<Event>* events) { m_events = events; }

protected:
    bool Feed(const MSG& event) override { return m_watch.Pass(event, m_events); }

private:
    Watch& m_watch;
    std::vector<Event>* m_events = nullptr;
};

}  // namespace Desk::Panels
