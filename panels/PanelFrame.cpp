// Moving panels and delivering what they confirm.
#include "panels/PanelFrame.h"

#include "griditem/PropertyGridItem.h"
#include "host/HostLink.h"
#include "platform/windows/CStatic.h"

namespace PanelFrame {

void MoveBy(CWnd& panel, int x, int y)
{
    CRect rect;
    panel.GetWindowRect(&rect);
    panel.MoveWindow(rect.left + x, rect.top + y, rect.Width(), rect.Height(), TRUE);
}

bool IsEsc(const MSG& msg) { return msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE; }

bool IsOwnRightPress(const MSG& msg, HWND hWnd)
{
    if (msg.message != WM_RBUTTONDOWN || msg.hwnd == hWnd) {
        return msg.message == WM_RBUTTONDOWN;
    }
    const CWnd* const target = CWnd::FromHandle(msg.hwnd);
    return target != nullptr &&
           (target->IsWindowEnabled() == FALSE || dynamic_cast<const CStatic*>(target) != nullptr);
}

void Deliver(const CWnd& panel, const Route& route, CString strText)
{
    if (route.toItem) {
        if (route.item != nullptr) {
            route.item->SetValue(strText);
        }
    } else if (route.inParent) {
        HostLink::DeliverText(panel.GetParent(), 1, strText, route.code);
    } else {
        HostLink::DeliverText(route.hostData, route.hostMode, strText, route.code);
    }
}

}  // namespace PanelFrame
