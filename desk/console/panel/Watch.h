// What happens while a panel is driven, written down in order: events and who finished them,
// notifications, texts delivered, message boxes, changes of the panel.
#pragma once

#include <string>
#include <vector>

#include "desk/console/panel/Picture.h"

namespace Desk::Panels {

// A confirmed text as it reached the host: by SetValue of the item, or by the mouse-input callback.
struct Delivery {
    bool toItem = true;
    std::string receiver;  // of the callback: "parent window", "host data", "null", "another pointer"
    int mode = 0;
    std::string text;
    int code = 0;
};

enum class EffectKind { Notified, Delivered, Message, Changed };

struct Effect {
    EffectKind kind = EffectKind::Changed;
    std::string words;  // for people; of a message box its text
    Delivery delivery;  // when it is one
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
    void WriteTo(std::vector<Effect>* effects);
    // Writes down what has changed since the last look.
    void Look();

    void Notified(const std::string& words) { Write({EffectKind::Notified, words, {}}); }
    void DeliveredToItem(const CString& text);
    void DeliveredByCallback(const void* first, int mode, const CString& text, int code);
    void Said(const CString& message);

    // Whether the panel answered TRUE to the event that was offered last.
    bool panelAnswered = false;

private:
    void Write(Effect effect);

    HWND m_hPanel = nullptr;
    const void* m_pParent = nullptr;
    const void* m_pHostData = nullptr;
    Picture m_last;
    std::vector<Effect>* m_effects = nullptr;
};

}  // namespace Desk::Panels
