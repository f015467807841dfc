// QtDisplay: shows the module's windows on the screen as frameless pop-ups of real controls.
#pragma once

#include <memory>

#include "desk/Toolkit.h"
#include "platform/windows/Display.h"

Q_DECLARE_OPAQUE_POINTER(HWND)  // so that signals carry handles

namespace Desk {

// At most one, made after the QApplication; while it exists it is the process's display.
class QtDisplay : public QObject, public Display {
    Q_OBJECT

public:
    explicit QtDisplay(QObject* parent = nullptr);
    ~QtDisplay() override;

    // The toolkit's logical pixels per pixel of the windows, across and down; 1 at first.
    // Screen positions are converted by it as well. Pop-ups that exist are resized at once.
    void SetZoom(double zoom);
    [[nodiscard]] double Zoom() const;

    // Shows a pop-up on top of the owner's window, below a field on the screen or above it where there is
    // no room. It takes the focus and returns it when it hides. A press elsewhere in the application
    // dismisses it as Esc does.
    void OpenBeside(HWND popUp, const QRect& field, QWidget* owner);

    // The widget of a window or control; null for an unknown handle.
    [[nodiscard]] QWidget* WidgetOf(HWND hWnd) const;

    void WindowCreated(const WindowRecord& window) override;
    void WindowChanged(const WindowRecord& window, WindowChange change) override;
    void WindowDestroyed(HWND hWnd) override;
    int ShowMessageBox(const CString& text) override;

signals:
    // A pop-up was shown or hidden.
    void Shown(HWND popUp);
    void Hidden(HWND popUp);

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

}  // namespace Desk
