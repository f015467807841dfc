// What the user does to the system's controls, as events of the window layer.
#pragma once

#include <unordered_map>

#include "platform/windows/Display.h"
#include "win32/Scale.h"

// What input needs to know of the display.
class Shown {
public:
    [[nodiscard]] virtual Native::Handle NativeOf(HWND window) const = 0;
    [[nodiscard]] virtual HWND WindowOf(Native::Handle window) const = 0;  // null for none
    [[nodiscard]] virtual Scale ScaleOf(HWND window) const = 0;
    // The box, from its record.
    virtual void TakeText(const WindowRecord& box) = 0;
    // The system asks for another size.
    virtual void TakeDpi(HWND popUp, int dpi, int x, int y) = 0;
    // What it shows of its text is not what it opened with.
    [[nodiscard]] virtual bool IsUnfinished(HWND popUp) const = 0;

protected:
    ~Shown() = default;
};

// Each raw mouse and key event goes through the host's loop of the window layer before a control sees it.
// Only an edit box handles itself what the module has not taken, and reports the result; everything else is
// handled by the window layer and mirrored.
class Input final : public Native::Listener {
public:
    explicit Input(Shown& shown) : m_shown(shown) {}

    // The window layer gave a window the focus.
    void TakeFocus(HWND window);
    // A report of this box is being made: its control is ahead of the record.
    [[nodiscard]] bool IsReporting(HWND box) const { return m_reporting == box; }

    // While one lives, a change of a control is none by the user.
    class Mirroring {
    public:
        explicit Mirroring(Input& input) : m_input(input) { ++m_input.m_mirroring; }
        Mirroring(const Mirroring&) = delete;
        Mirroring& operator=(const Mirroring&) = delete;
        ~Mirroring() { --m_input.m_mirroring; }

    private:
        Input& m_input;
    };

    bool OnMouse(Native::Handle control, const Native::Event& event) override;
    bool OnKey(Native::Handle control, const Native::Event& event) override;
    void OnEdited(Native::Handle control) override;
    void OnFocused(Native::Handle control) override;
    void OnScrolled(Native::Handle list, int top) override;
    void OnClosed(Native::Handle popUp) override;
    void OnLeft(Native::Handle popUp) override;
    void OnDpi(Native::Handle popUp, int dpi, int x, int y) override;

private:
    bool Mouse(HWND window, const Native::Event& event, UINT message, WPARAM wParam, bool dispatch);
    bool Character(HWND window, const Native::Event& event, bool native);
    void Take(HWND popUp);
    // Offers an event and dispatches it unless it was taken; true when the module has taken it.
    bool Send(const MSG& event, bool dispatch);

    Shown& m_shown;
    HWND m_reporting = nullptr;
    HWND m_pushed = nullptr;  // the button under the left press
    int m_mirroring = 0;
    int m_sending = 0;
    bool m_keyWasTaken = false;  // the last key; its character goes with it
};
