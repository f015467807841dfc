// Moving panels and delivering what they confirm.
#include "panels/private/PanelFrame.h"

#include "griditem/PropertyGridItem.h"
#include "host/private/AskHost.h"
#include "platform/windows/CStatic.h"

namespace PanelFrame {

void Move(CWnd& panel, CPoint from, CPoint to)
{
    from = from.Clamped();
    to = to.Clamped();
    CRect rect;
    panel.GetWindowRect(&rect);
    panel.MoveWindow(rect.left + to.x - from.x, rect.top + to.y - from.y, rect.Width(), rect.Height(),
                     TRUE);
}

bool IsOwnRightPress(const MSG& msg, HWND hPanel)
{
    if (msg.message != WM_RBUTTONDOWN || msg.hwnd == hPanel) {
        return msg.message == WM_RBUTTONDOWN;
    }
    const CWnd* const target = CWnd::FromHandle(msg.hwnd);
    return target != nullptr &&
           (target->IsWindowEnabled() == FALSE || dynamic_cast<const CStatic*>(target) != nullptr);
}

void ForwardRightPress(CWnd& panel, const MSG& msg)
{
    if (msg.message == WM_RBUTTONDOWN) {
        panel.SendMessage(WM_RBUTTONDOWN);
    }
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
