// A pop-up's surface: the module's panel under a strip of the shell's own, which says what the panel is for
// and what the mouse buttons do, and takes or cancels.
#pragma once

#include <vector>

#include "desk/shell/Scale.h"
#include "platform/windows/WindowRecord.h"

namespace Desk {

// No part of the strip takes the keyboard, and a press on it beside its buttons is one on the panel's bare
// surface: it can be dragged there, and the right button takes.
class Surface : public QWidget {
    Q_OBJECT

public:
    explicit Surface(const WindowRecord& popUp);

    // Holds the controls.
    [[nodiscard]] QWidget& Panel() { return *m_panel; }
    // To be followed by TakePlace.
    void SetTitle(const QString& title) { m_title = title; }
    // The panel goes where the window is, the strip above it; the surface is as wide as the wider one.
    void TakePlace(const WindowRecord& popUp, const Scale& scale);
    // The panel's, in the surface.
    [[nodiscard]] QPoint PanelCorner() const { return m_panel->pos(); }

    // Remembers what the panel shows of its text as it opens.
    void Begin(const WindowRecord& popUp);
    // What it shows of its text is not what it opened with.
    [[nodiscard]] bool IsUnfinished(const WindowRecord& popUp) const;
    // Asks whether to take it, in place of what the buttons do.
    void Ask(bool asks);

signals:
    void Taken();
    void Left();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString Hint() const;
    [[nodiscard]] static QString Question();
    void ShowTexts();

    const DialogTemplate* m_shape;
    QString m_title;
    QWidget* m_strip;
    QLabel* m_titleLabel;
    QPushButton* m_take;
    QPushButton* m_cancel;
    QLabel* m_hint;
    QWidget* m_panel;
    bool m_asks = false;
    std::vector<CString> m_before;
};

}  // namespace Desk
