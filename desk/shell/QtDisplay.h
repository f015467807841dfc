// QtDisplay: shows the module's windows on the screen as frameless pop-ups of real controls.
#pragma once

#include <memory>

#include "desk/Toolkit.h"
#include "platform/windows/Display.h"

Q_DECLARE_OPAQUE_POINTER(HWND)  // so that signals carry handles

namespace Desk {

// There is one, made after the QApplication; it is the process's display for as long as it lives.
class QtDisplay : public QObject, public Display {
    Q_OBJECT

public:
    explicit QtDisplay(QObject* parent = nullptr);
    ~QtDisplay() override;

    // How many of the toolkit's logical pixels a pixel of the windows is, across and down; 1 at first.
    // Places on the screen are converted by it as well. Takes hold of pop-ups that exist at once.
    void SetZoom(double zoom);
    [[nodiscard]] double Zoom() const;

    // Shows a pop-up below a field on the screen, or above it where there is no room, inside the screen,
    // above the window of the owner; it takes the focus, and when it hides the widget that had the focus
    // gets it back. A press elsewhere in the application dismisses it as Esc does.
    void OpenBeside(HWND popUp, const QRect& field, QWidget* owner);

    // The widget of a window or control; null for a handle that it does not show.
    [[nodiscard]] QWidget* WidgetOf(HWND hWnd) const;

    void WindowCreated(const WindowRecord& window) override;
    void WindowChanged(const WindowRecord& window, WindowChange change) override;
    void WindowDestroyed(HWND hWnd) override;
    int ShowMessageBox(const CString& text) override;

signals:
    // A pop-up has come or gone.
    void Shown(HWND popUp);
    void Hidden(HWND popUp);

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

}  // namespace Desk
