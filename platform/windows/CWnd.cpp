// CWnd: an object's view of its window's record.
#include "platform/windows/CWnd.h"

#include <algorithm>

#include "platform/windows/DataExchange.h"
#include "platform/windows/private/WindowLayer.h"

using WindowLayer::Find;
using WindowLayer::ObjectOf;

namespace {

CWnd* ObjectAt(HWND hWnd)
{
    Window* const window = Find(hWnd);
    return window != nullptr ? ObjectOf(*window) : nullptr;
}

}  // namespace

const AFX_MSGMAP* CWnd::GetMessageMap() const { return GetThisMessageMap(); }

const AFX_MSGMAP* CWnd::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{}};
    static constexpr AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

CWnd::~CWnd()
{
    Window* const window = Find(m_hWnd);
    if (window == nullptr || window->attached != this) {
        return;
    }
    if (window->IsControl()) {
        window->attached = nullptr;
    } else {
        WindowLayer::Destroy(m_hWnd);
    }
}

void CWnd::DoDataExchange(CDataExchange* /*pDX*/) {}

BOOL CWnd::PreTranslateMessage(MSG* /*pMsg*/) { return FALSE; }

BOOL CWnd::CreateFrame(const CRect& rect)
{
    if (m_hWnd != nullptr) {
        return FALSE;
    }
    WindowLayer::DropRetired();
    Window& window = WindowLayer::State().windows.Add(WindowKind::Frame, nullptr);
    window.place = WindowLayer::PlaceOf(rect);
    window.attached = this;
    m_hWnd = window.handle;
    WindowLayer::TellCreated(m_hWnd);
    return TRUE;
}

BOOL CWnd::DestroyWindow()
{
    if (Find(m_hWnd) == nullptr) {
        return FALSE;
    }
    WindowLayer::Destroy(m_hWnd);
    return TRUE;
}

CWnd* CWnd::FromHandle(HWND hWnd) { return ObjectAt(hWnd); }

CWnd* CWnd::GetParent() const
{
    const Window* const window = Find(m_hWnd);
    return window != nullptr ? ObjectAt(window->parent) : nullptr;
}

CWnd* CWnd::GetDlgItem(int nID) const
{
    Window* const child = WindowLayer::ChildWithId(m_hWnd, nID);
    return child != nullptr ? ObjectOf(*child) : nullptr;
}

int CWnd::GetDlgCtrlID() const
{
    const Window* const window = Find(m_hWnd);
    return window != nullptr ? window->id : 0;
}

CWnd* CWnd::GetTopWindow() const
{
    const Window* const window = Find(m_hWnd);
    return window != nullptr && !window->children.empty() ? ObjectAt(window->children.front()) : nullptr;
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const
{
    const Window* const window = Find(m_hWnd);
    if (window == nullptr || !window->IsControl()) {
        return nullptr;
    }
    const std::vector<HWND>& siblings = Find(window->parent)->children;
    const auto place = std::find(siblings.begin(), siblings.end(), m_hWnd);
    if (nFlag == GW_HWNDPREV) {
        return place != siblings.begin() ? ObjectAt(*(place - 1)) : nullptr;
    }
    return nFlag == GW_HWNDNEXT && place + 1 != siblings.end() ? ObjectAt(*(place + 1)) : nullptr;
}

void CWnd::SetWindowText(const CString& strText)
{
    if (Window* const window = Find(m_hWnd)) {
        WindowLayer::PutText(*window, strText);
    }
}

void CWnd::GetWindowText(CString& rString) const
{
    const Window* const window = Find(m_hWnd);
    rString = window != nullptr ? window->text : CString();
}

CWnd* CWnd::SetFocus()
{
    CWnd* const before = GetFocus();
    WindowLayer::GiveFocus(m_hWnd);
    return before;
}

CWnd* CWnd::GetFocus() { return ObjectAt(WindowLayer::State().focus); }

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return WindowLayer::Call(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    if (Find(m_hWnd) == nullptr) {
        return FALSE;
    }
    const WindowLayer::InCall inCall;
    const WindowLayer::NotificationLock lock(m_hWnd);
    CDataExchange exchange(this, bSaveAndValidate);
    DoDataExchange(&exchange);
    return TRUE;
}

void CWnd::OnRButtonDown(UINT nFlags, CPoint point)
{
    DefWindowProc(WM_RBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y));
}

void CWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    DefWindowProc(WM_KEYDOWN, nChar, MAKELPARAM(static_cast<int>(nRepCnt), static_cast<int>(nFlags)));
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return WindowLayer::CallDefault(m_hWnd, message, wParam, lParam);
}
