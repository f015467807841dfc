// The window layer's names as hosts and panels write them: each call compiles and gives its type.
#include <concepts>

#include "tests/surface/Surface.h"

namespace Surface {

template <class Type, std::same_as<Type>... Given>
void Give(Given...)
{
}

// Never run: the calls only have to compile.
void Texts(CString s, const CString& c, const char* p)
{
    Give<int>(c.GetLength(), c.Find(p), c.Find('a', 1));
    Give<bool>(c.IsEmpty(), c == p, c != c, c < c);
    Give<char>(c.GetAt(0), c[0]);
    Give<CString>(CString(p), c.Left(1), c.Right(1), c.Mid(1), c.Mid(1, 1), c + p, c + c, s += c);
    Give<const char*>(static_cast<const char*>(c));
    s.Empty(), s.TrimLeft(), s.TrimRight(), s.Format("%d", 1);
}

template <class Array, class Item>
void Arrays(Array a, const Array& c, Item item)
{
    Give<int>(c.GetSize(), a.Add(item));
    Give<Item>(c.GetAt(0), c[0], a[0] = item);
    a.SetAt(0, item), a.SetAtGrow(0, item), a.InsertAt(0, item), a.InsertAt(0, item, 2), a.RemoveAt(0);
    a.RemoveAt(0, 2), a.RemoveAll(), a.SetSize(1), a.SetSize(1, -1);
}
template void Arrays(CStringArray, const CStringArray&, CString);
template void Arrays(CUIntArray, const CUIntArray&, unsigned int);

template <class Window>
void Windows(Window& w, const Window& c, CRect r, CPoint p, CString s, MSG* msg)
{
    Give<HWND>(c.m_hWnd, c.GetSafeHwnd());
    Give<CWnd*>(Window::FromHandle(c.m_hWnd), Window::GetFocus(), c.GetParent(), c.GetDlgItem(1),
                c.GetTopWindow(), c.GetNextWindow(), w.SetFocus());
    Give<int>(c.GetDlgCtrlID());
    Give<BOOL>(w.ShowWindow(SW_SHOW), w.EnableWindow(FALSE), c.IsWindowVisible(), c.IsWindowEnabled(),
               w.DestroyWindow(), w.CreateFrame(r), w.PreTranslateMessage(msg), w.UpdateData());
    Give<LRESULT>(w.SendMessage(WM_CHAR, 1, 1));
    w.MoveWindow(0, 0, 1, 1), c.GetWindowRect(&r), c.GetClientRect(&r), c.ScreenToClient(&p);
    c.ClientToScreen(&p), w.SetWindowText(s), c.GetWindowText(s);
}
template void Windows(CDialog&, const CDialog&, CRect, CPoint, CString, MSG*);
template void Windows(CEdit&, const CEdit&, CRect, CPoint, CString, MSG*);
template void Windows(CButton&, const CButton&, CRect, CPoint, CString, MSG*);
template void Windows(CStatic&, const CStatic&, CRect, CPoint, CString, MSG*);

void Rows(CListBox& l, const CListBox& c, CString s, CRect r)
{
    Give<int>(l.AddString(s), l.InsertString(0, s), l.DeleteString(0), c.GetCount(), c.GetCurSel(),
              l.SetCurSel(-1), c.GetItemRect(0, &r), c.GetTopIndex());
    c.GetText(0, s), l.ResetContent(), l.SetColumnWidth(90), l.SetTopIndex(0);
}

FIELDS(MSG, HWND, hwnd, UINT, message, WPARAM, wParam, LPARAM, lParam, DWORD, time, POINT, pt);
static_assert(WM_KEYDOWN == 0x100 && WM_CHAR == 0x102 && WM_LBUTTONDOWN == 0x201 && WM_LBUTTONUP == 0x202 &&
              WM_LBUTTONDBLCLK == 0x203 && WM_RBUTTONDOWN == 0x204 && WM_RBUTTONUP == 0x205 &&
              WM_MOUSEWHEEL == 0x20A && VK_ESCAPE == 27);
static_assert(std::is_same_v<decltype(&AfxPreTranslateMessage), BOOL (*)(MSG*)> &&
              std::is_same_v<decltype(&DispatchMessage), LRESULT (*)(const MSG*)> &&
              std::is_same_v<decltype(&IsWindow), BOOL (*)(HWND)> &&
              std::is_same_v<decltype(&SetMessageBoxFunc), void (*)(int (*)(const CString&))>);

}  // namespace Surface
