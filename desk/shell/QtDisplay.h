// QtDisplay: shows the module's windows on the screen as frameless pop-ups of real controls.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "desk/Toolkit.h"
#include "platform/windows/Display.h"

Q_DECLARE_OPAQUE_POINTER(HWND)  // so that signals carry handles

namespace Desk {

// The module's GBK bytes as UTF-8 and back, by functions of whoever makes the display. Bytes that are no
// character become U+FFFD; nothing comes back for a character that GBK lacks.
struct TextCodec {
    std::string (*utf8FromGbk)(const CString&);
    std::optional<CString> (*gbkFromUtf8)(std::string_view);
};

// At most one, made after the QApplication; while it exists it is the process's display.
class QtDisplay : public QObject, public Display {
    Q_OBJECT

public:
    explicit QtDisplay(const TextCodec& codec, QObject* parent = nullptr);
    ~QtDisplay() override;

    // The toolkit's logical pixels per pixel of the windows, across and down; 1 at first.
    // Screen positions are converted by it as well. Pop-ups that exist are resized at once.
    void SetZoom(double zoom);
    [[nodiscard]] double Zoom() const;

    // Shows a pop-up on top of the owner's window, below a field on the screen or above it where there is
    // no room, with a title over it. It takes the focus and returns it when it hides. A press or key
    // elsewhere in the application dismisses it as Esc does, while it shows what it opened with; else it
    // stays and asks, and the press is nobody's.
    void OpenBeside(HWND popUp, const QRect& field, QWidget* owner, const QString& title = {});

    // False where an open pop-up has composed something that is neither taken nor given up: then it asks.
    [[nodiscard]] bool MayHide(HWND popUp);

    [[nodiscard]] const TextCodec& Codec() const { return m_codec; }

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
    TextCodec m_codec;
};

// Of the display that exists.
[[nodiscard]] const TextCodec& Texts();

}  // namespace Desk
