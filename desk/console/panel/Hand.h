// A user's mouse and keyboard as a host feeds them to the windows, each event written down.
#pragma once

#include "desk/console/panel/Watch.h"

namespace Desk::Panels {

// Positions are pixels of the screen. A mouse event goes to the window that shows there, a release to
// the one that got the press, a key to the window with the focus; where there is none the event is lost.
class Hand {
public:
    Hand(HWND hPanel, Watch& watch) : m_hPanel(hPanel), m_watch(watch) {}

    // Where the events are written from now on.
    void WriteTo(std::vector<Event>* events) { m_events = events; }

    void Press(CPoint point);
    void Release(CPoint point);
    // Press, release, double click, release.
    void DoubleClick(CPoint point);
    void RightClick(CPoint point);
    // Notches above 0 turn away from the user, towards the first row.
    void Wheel(CPoint point, int notches);

    // Down, the character that belongs to the key unless the press was finished by then, up.
    void Key(UINT key, bool shift = false);
    // Each byte of a GBK text as one typed character.
    void Type(const CString& text);

private:
    void Mouse(HWND target, UINT message, CPoint point, WPARAM wParam);
    bool KeyEvent(UINT message, WPARAM key);
    // One turn of the host's loop; true when the event was finished before its target saw it.
    bool Send(MSG msg, const std::string& detail);
    [[nodiscard]] std::string NameOfWindow(HWND hWnd) const;

    HWND m_hPanel;
    Watch& m_watch;
    std::vector<Event>* m_events = nullptr;
    HWND m_pressed = nullptr;
    DWORD m_time = 0;
};

}  // namespace Desk::Panels
