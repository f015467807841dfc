// The controls of a pop-up, built from their records and kept equal to them.
#pragma once

#include <functional>

#include "desk/shell/Scale.h"
#include "platform/windows/Display.h"

namespace Desk {

// A list box: shows the record's rows, dimmed those that cannot be chosen now; the window layer handles the
// mouse.
class ListWidget : public QListView {
    Q_OBJECT

public:
    ListWidget(HWND list, QWidget* parent);

    void TakeRows(const WindowRecord& list, const Scale& scale);
    void TakeSelection(const WindowRecord& list);
    void TakeTop(const WindowRecord& list);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QScrollBar& Bar() const;
    void PaintCountsOutOfView(QPainter& painter) const;

    HWND m_list;
    bool m_isMultiColumn = false;
    bool m_isMirroring = false;
};

// The text of an edit box as Unicode, and its caret as a position in that.
[[nodiscard]] QString Shown(const CString& text);
[[nodiscard]] int CaretInWidget(const WindowRecord& box);

// Accessible names for a pop-up's boxes and lists, of the label before each, in the interface's language.
void NameControls(const WindowRecord& popUp, const std::function<QWidget*(HWND)>& widgetOf);

// A widget for a control, inside its pop-up's panel, equal to its record.
[[nodiscard]] QWidget* MakeControl(const WindowRecord& control, QWidget* panel);
void TakePlace(QWidget& widget, const WindowRecord& window, const Scale& scale);
// Caption, text of a box with its caret.
void TakeText(QWidget& widget, const WindowRecord& window);

}  // namespace Desk
