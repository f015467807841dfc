// Hands: events made and fed.
#include "platform/windows/Hands.h"

namespace {

const CListBox& ListOf(const CWnd& panel, int id)
{
    return dynamic_cast<const CListBox&>(*panel.GetDlgItem(id));
}

int LengthOf(const CWnd& box)
{
    CString text;
    box.GetWindowText(text);
    return text.GetLength();
}

}  // namespace

bool Hands::Send(const MSG& event)
{
    MSG msg = event;
    const bool bFinished = AfxPreTranslateMessage(&msg) != FALSE;
    if (!bFinished) {
        DispatchMessage(&msg);
    }
    return bFinished;
}

bool Hands::Press(CPoint point)
{
    m_pressed = WindowFromPoint(point);
    return Mouse(m_pressed, WM_LBUTTONDOWN, point, MK_LBUTTON);
}

bool Hands::Release(CPoint point)
{
    const HWND target = ::IsWindow(m_pressed) ? m_pressed : WindowFromPoint(point);
    m_pressed = nullptr;
    return Mouse(target, WM_LBUTTONUP, point, 0);
}

void Hands::Click(CPoint point)
{
    Press(point);
    Release(point);
}

void Hands::DoubleClick(CPoint point)
{
    Click(point);
    m_pressed = WindowFromPoint(point);
    Mouse(m_pressed, WM_LBUTTONDBLCLK, point, MK_LBUTTON);
    Release(point);
}

void Hands::Drag(CPoint from, CPoint to)
{
    Press(from);
    Release(to);
}

bool Hands::RightClick(CPoint point)
{
    const bool bFinished = Mouse(WindowFromPoint(point), WM_RBUTTONDOWN, point, MK_RBUTTON);
    Mouse(WindowFromPoint(point), WM_RBUTTONUP, point, 0);
    return bFinished;
}

void Hands::Wheel(CPoint point, int notches)
{
    Mouse(WindowFromPoint(point), WM_MOUSEWHEEL, point, MAKEWPARAM(0, notches * WHEEL_DELTA));
}

bool Hands::Key(UINT key, bool bShift)
{
    if (bShift) {
        KeyEvent(WM_KEYDOWN, VK_SHIFT);
    }
    const bool bFinished = KeyEvent(WM_KEYDOWN, key);
    const bool bCharacter =
        key == VK_BACK || key == VK_TAB || key == VK_RETURN || key == VK_ESCAPE || key == VK_SPACE;
    if (!bFinished && bCharacter) {
        KeyEvent(WM_CHAR, key);
    }
    KeyEvent(WM_KEYUP, key);
    if (bShift) {
        KeyEvent(WM_KEYUP, VK_SHIFT);
    }
    return bFinished;
}

void Hands::Type(const CString& text)
{
    for (const char byte : text.View()) {
        KeyEvent(WM_CHAR, static_cast<unsigned char>(byte));
    }
}

CPoint Hands::MiddleOf(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

CPoint Hands::OnRow(const CListBox& list, int row)
{
    constexpr int Inside = 5;  // pixels from the row's corner
    CRect rect;
    list.GetItemRect(row, &rect);
    CPoint point(rect.left + Inside, rect.top + Inside);
    list.ClientToScreen(&point);
    return point;
}

CPoint Hands::ReachRow(const CListBox& list, int row)
{
    CRect client;
    list.GetClientRect(&client);
    for (int turns = list.GetCount(); turns > 0; --turns) {
        CRect rect;
        list.GetItemRect(row, &rect);
        const bool bBefore = rect.left < client.left || rect.top < client.top;
        if (!bBefore && rect.right <= client.right && rect.bottom <= client.bottom) {
            break;
        }
        Wheel(MiddleOf(list), bBefore ? 1 : -1);
    }
    return OnRow(list, row);
}

void Hands::TypeInto(const CWnd& box, const CString& text)
{
    Click(MiddleOf(box));
    Key(VK_END);
    Type(text);
}

void Hands::Clear(const CWnd& box)
{
    TypeInto(box, CString());
    for (int left = LengthOf(box); left > 0 && LengthOf(box) > 0; --left) {
        Key(VK_BACK);
    }
}

void Hands::Click(const CWnd& panel, int id) { Click(MiddleOf(*panel.GetDlgItem(id))); }

void Hands::ClickRow(const CWnd& panel, int id, int row) { Click(ReachRow(ListOf(panel, id), row)); }

void Hands::DoubleClickRow(const CWnd& panel, int id, int row)
{
    DoubleClick(ReachRow(ListOf(panel, id), row));
}

bool Hands::RightClick(const CWnd& panel, int id) { return RightClick(MiddleOf(*panel.GetDlgItem(id))); }

void Hands::TypeInto(const CWnd& panel, int id, const CString& text)
{
    TypeInto(*panel.GetDlgItem(id), text);
}

void Hands::Retype(const CWnd& panel, int id, const CString& text)
{
    Clear(*panel.GetDlgItem(id));
    Type(text);
}

bool Hands::Feed(const MSG& event) { return Send(event); }

bool Hands::Mouse(HWND target, UINT message, CPoint point, WPARAM wParam)
{
    if (!::IsWindow(target)) {
        return false;
    }
    CPoint inside = point;
    CWnd::FromHandle(target)->ScreenToClient(&inside);
    return Feed({target, message, wParam, MAKELPARAM(inside.x, inside.y), m_time += 10, point});
}

bool Hands::KeyEvent(UINT message, WPARAM key)
{
    constexpr LPARAM FirstPress = 1;
    constexpr LPARAM WentUp = 0xC0000001;  // down before, up now, once
    const CWnd* const focus = CWnd::GetFocus();
    return focus != nullptr && focus->IsWindowVisible() &&
           Feed({focus->m_hWnd, message, key, message == WM_KEYUP ? WentUp : FirstPress, m_time += 10,
                 CPoint()});
}
