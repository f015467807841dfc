// Windows as a tree: their objects, their places, and how they go.
#include "platform/windows/private/WindowLayer.h"

#include <algorithm>
#include <utility>

#include "platform/windows/CButton.h"
#include "platform/windows/CEdit.h"
#include "platform/windows/CListBox.h"
#include "platform/windows/CStatic.h"
#include "platform/windows/CWinApp.h"

namespace WindowLayer {

namespace {

std::unique_ptr<CWnd> MakeObject(WindowKind kind)
{
    switch (kind) {
    case WindowKind::Label: return std::make_unique<CStatic>();
    case WindowKind::EditBox: return std::make_unique<CEdit>();
    case WindowKind::ListBox: return std::make_unique<CListBox>();
    case WindowKind::Button: return std::make_unique<CButton>();
    case WindowKind::Frame:
    case WindowKind::PopUp: break;
    }
    return std::make_unique<CWnd>();
}

// A window's pop-ups, its children and then itself, the same order for each of them.
void Gather(HWND hWnd, std::vector<HWND>& found)
{
    const WindowRecord* const window = Find(hWnd);
    for (const HWND popUp : window->popUps) {
        Gather(popUp, found);
    }
    for (const HWND child : window->children) {
        Gather(child, found);
    }
    found.push_back(hWnd);
}

}  // namespace

AppState& App() { return AfxGetApp()->State(); }

WindowRecord* Find(HWND hWnd) { return App().windows.Find(hWnd); }

CWnd* ObjectOf(WindowRecord& window)
{
    if (window.attached != nullptr) {
        return window.attached;
    }
    if (window.own == nullptr) {
        window.own = MakeObject(window.kind);
        window.own->m_hWnd = window.handle;
    }
    return window.own.get();
}

WindowRecord* ChildWithId(HWND hWnd, int nID)
{
    if (const WindowRecord* const window = Find(hWnd)) {
        for (const HWND handle : window->children) {
            WindowRecord* const child = Find(handle);
            if (child->id == nID) {
                return child;
            }
        }
    }
    return nullptr;
}

WindowRecord* HolderOf(HWND hWnd)
{
    WindowRecord* window = Find(hWnd);
    while (window != nullptr && window->IsControl()) {
        window = Find(window->parent);
    }
    return window;
}

CPoint ClientOrigin(const WindowRecord& window)
{
    CPoint origin = window.place.TopLeft();
    if (window.IsControl()) {
        if (const WindowRecord* const parent = Find(window.parent)) {
            const CPoint outer = ClientOrigin(*parent);
            origin = CPoint(origin.x + outer.x, origin.y + outer.y);
        }
    }
    return origin;
}

bool IsShown(const WindowRecord& window)
{
    const WindowRecord* const holder = HolderOf(window.handle);
    return window.visible && holder != nullptr && holder->visible;
}

bool TakesInput(const WindowRecord& window)
{
    const WindowRecord* const holder = HolderOf(window.handle);
    return window.enabled && window.kind != WindowKind::Label && holder != nullptr && holder->enabled;
}

void Tell(HWND hWnd, WindowChange change)
{
    Display* const display = App().display;
    const WindowRecord* const window = Find(hWnd);
    if (display != nullptr && window != nullptr) {
        display->WindowChanged(*window, change);
    }
}

void TellCreated(HWND hWnd)
{
    Display* const display = App().display;
    const WindowRecord* const window = Find(hWnd);
    if (display != nullptr && window != nullptr) {
        display->WindowCreated(*window);
    }
}

void PutText(WindowRecord& window, const CString& strText)
{
    window.text = strText;
    window.edit = {strText.GetLength(), '\0'};
    Tell(window.handle, WindowChange::Text);
}

void Destroy(HWND hWnd)
{
    AppState& app = App();
    const WindowRecord* const root = Find(hWnd);
    if (root == nullptr) {
        return;
    }
    const HWND parent = root->parent;
    std::vector<HWND> gone;
    Gather(hWnd, gone);
    const bool hadFocus = std::find(gone.begin(), gone.end(), app.focus) != gone.end();
    if (hadFocus) {
        app.focus = nullptr;
    }
    for (const HWND handle : gone) {
        const std::unique_ptr<WindowRecord> window = app.windows.Take(handle);
        if (window->attached != nullptr) {
            window->attached->m_hWnd = nullptr;
        }
        if (window->own != nullptr) {
            window->own->m_hWnd = nullptr;
            app.retired.push_back(std::move(window->own));
        }
    }
    if (Display* const display = app.display) {
        for (const HWND handle : gone) {
            display->WindowDestroyed(handle);
        }
    }
    if (hadFocus) {
        ReturnFocus(parent);
    }
}

void DropRetired()
{
    if (App().callDepth == 0) {
        App().retired.clear();
    }
}

}  // namespace WindowLayer

const WindowRecord* FindWindowRecord(HWND hWnd) { return WindowLayer::Find(hWnd); }

std::vector<HWND> AllWindows()
{
    std::vector<HWND> all;
    for (const HWND holder : WindowLayer::App().windows.Order()) {
        all.push_back(holder);
        for (const HWND child : WindowLayer::Find(holder)->children) {
            all.push_back(child);
        }
    }
    return all;
}
