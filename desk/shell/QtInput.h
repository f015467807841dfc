// What the user does to the widgets of pop-ups, as events of the window layer.
#pragma once

#include "desk/Toolkit.h"
#include "platform/windows/Events.h"
#include "platform/windows/UserInput.h"

namespace Desk {

class QtDisplay;
class Surface;

// One event filter on the application. Each raw mouse and key event of a pop-up goes through the host's
// loop before a control sees it. Only a line edit handles natively what the module has not taken, and
// reports the result; everything else is handled by the window layer and mirrored.
class QtInput : public QObject {
    Q_OBJECT

public:
    explicit QtInput(const QtDisplay& display) : m_display(display) {}

    void Know(QWidget& widget, HWND window);
    void Forget(QWidget& widget);
    // Reports the edits of a box's widget; feeds what the buttons over a pop-up stand for.
    void Follow(QLineEdit& line, HWND box);
    void Follow(Surface& surface, HWND popUp);
    // A report of this box is being made: its widget is ahead of the record.
    [[nodiscard]] bool IsReporting(HWND box) const { return m_reporting == box; }
    // The window layer gave a window the focus.
    void TakeFocus(QWidget& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] HWND WindowOf(const QObject* watched) const;
    bool OnMouse(HWND window, UINT message, const QPointF& onScreen, WPARAM wParam, bool native);
    bool OnPress(QWidget& widget, HWND window, const QMouseEvent& mouse, bool native);
    bool OnRelease(QWidget& widget, HWND window, const QMouseEvent& mouse, bool native);
    bool OnWheel(HWND window, const QWheelEvent& wheel);
    bool OnKey(HWND window, const QKeyEvent& key, bool native);
    enum class Elsewhere { NothingOpen, Dismissed, Asked };
    bool OnEventElsewhere(const QWidget& target, QEvent& event);
    Elsewhere Leave(const QWidget& target, bool mayAsk);
    void Take(HWND popUp);
    [[nodiscard]] Surface* SurfaceOf(HWND window) const;
    void Report(QLineEdit& line, HWND box);
    // Offers an event and dispatches it unless it was taken; true when the module has taken it.
    static bool Send(const MSG& event, bool dispatch);

    const QtDisplay& m_display;
    QHash<const QObject*, HWND> m_windows;  // widgets and the viewports of lists
    HWND m_reporting = nullptr;
    HWND m_pressed = nullptr;  // got the last left press, and gets the release
    bool m_isTakingFocus = false;
    bool m_isEaten = false;  // the last press elsewhere, until its release
};

}  // namespace Desk
