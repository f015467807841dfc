#include "desk/shell/Keys.h"

namespace Desk {

UINT KeyCode(const QKeyEvent& key)
{
    const int code = key.key();
    if ((code >= Qt::Key_0 && code <= Qt::Key_9) || (code >= Qt::Key_A && code <= Qt::Key_Z)) {
        return static_cast<UINT>(code);  // the same numbers
    }
    if (code >= Qt::Key_F1 && code <= Qt::Key_F12) {
        constexpr UINT FirstFunctionKey = 112;
        return FirstFunctionKey + static_cast<UINT>(code - Qt::Key_F1);
    }
    switch (code) {
    case Qt::Key_Backspace: return VK_BACK;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return VK_TAB;
    case Qt::Key_Return:
    case Qt::Key_Enter: return VK_RETURN;
    case Qt::Key_Shift: return VK_SHIFT;
    case Qt::Key_Control: return VK_CONTROL;
    case Qt::Key_Escape: return VK_ESCAPE;
    case Qt::Key_Space: return VK_SPACE;
    case Qt::Key_PageUp: return VK_PRIOR;
    case Qt::Key_PageDown: return VK_NEXT;
    case Qt::Key_End: return VK_END;
    case Qt::Key_Home: return VK_HOME;
    case Qt::Key_Left: return VK_LEFT;
    case Qt::Key_Up: return VK_UP;
    case Qt::Key_Right: return VK_RIGHT;
    case Qt::Key_Down: return VK_DOWN;
    case Qt::Key_Delete: return VK_DELETE;
    default: return 0;
    }
}

bool IsForLineEdit(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: return false;
    default: return key.key() < Qt::Key_F1 || key.key() > Qt::Key_F35;
    }
}

bool IsRightPress(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Menu: return true;
    case Qt::Key_F10: return key.modifiers().testFlag(Qt::ShiftModifier);
    case Qt::Key_Return:
    case Qt::Key_Enter: return (key.modifiers() & (Qt::ShiftModifier | Qt::AltModifier)) == Qt::NoModifier;
    default: return false;
    }
}

}  // namespace Desk
