// What a button does with mouse and keys, its door for the user, and the controls without a say.
#include "platform/windows/CButton.h"
#include "platform/windows/CSpinButtonCtrl.h"
#include "platform/windows/CStatic.h"
#include "platform/windows/UserInput.h"
#include "platform/windows/private/WindowLayer.h"

namespace {

using namespace WindowLayer;

constexpr std::uintptr_t WasDownBefore = 1U << 30;  // in lParam of a key that repeats itself

// A click is a press and a release on the same button. The second press of a double click counts as
// a press like the first.
void Release(HWND hButton, CPoint point)
{
    LayerState& state = State();
    const bool bPressed = state.pressedButton == hButton;
    state.pressedButton = nullptr;
    const CRect& place = Find(hButton)->place;
    if (bPressed && CRect(0, 0, place.Width(), place.Height()).PtInRect(point)) {
        UserClicksButton(hButton);
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(CButton, CWnd)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CStatic, CWnd)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CSpinButtonCtrl, CWnd)
END_MESSAGE_MAP()

std::optional<LRESULT> WindowLayer::ButtonDefault(HWND hButton, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        State().pressedButton = hButton;
        GiveFocus(hButton);
        return 0;
    case WM_LBUTTONUP: Release(hButton, CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam))); return 0;
    case WM_KEYDOWN:
        if (wParam != VK_SPACE) {
            return std::nullopt;
        }
        if ((static_cast<std::uintptr_t>(lParam) & WasDownBefore) == 0) {
            UserClicksButton(hButton);
        }
        return 0;
    default: return std::nullopt;
    }
}

BOOL UserClicksButton(HWND hButton)
{
    const Window* const button = Find(hButton);
    if (button == nullptr || button->kind != WindowKind::Button || !TakesInput(*button)) {
        return FALSE;
    }
    NotifyParent(hButton, BN_CLICKED);
    return TRUE;
}
