// Windows as a tree: their objects, their places, and how they go.
#include "platform/windows/private/WindowLayer.h"

#include <algorithm>
#include <utility>

#include "platform/windows/CButton.h"
#include "platform/windows/CEdit.h"
#include "platform/windows/CListBox.h"
#include "platform/windows/CStatic.h"

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
    const Window* const window = Find(hWnd);
    for (const HWND popUp : window->popUps) {
        Gather(popUp, found);
    }
    for (const HWND child : window->children) {
        Gather(child, found);
    }
    found.push_back(hWnd);
}

}  // namespace

LayerState& State()
{
    static auto* const state = new LayerState;  // windows of static objects may go after everything else
    return *state;
}

Window* Find(HWND hWnd) { return State().windows.Find(hWnd); }

CWnd* ObjectOf(Window& window)
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

Window* ChildWithId(HWND hWnd, int nID)
{
    if (const Window* const window = Find(hWnd)) {
        for (const HWND handle : window->children) {
            Window* const child = Find(handle);
            if (child->id == nID) {
                return child;
            }
        }
    }
    return nullptr;
}

Window* HolderOf(HWND hWnd)
{
    Window* window = Find(hWnd);
    while (window != nullptr && window->IsControl()) {
        window = Find(window->parent);
    }
    return window;
}

CRect PlaceOf(int x, int y, std::int64_t nWidth, std::int64_t nHeight)
{
    const auto length = [](std::int64_t wanted) {
        return static_cast<int>(std::clamp<std::int64_t>(wanted, 0, CPoint::Farthest));
    };
    const CPoint corner = CPoint(x, y).Clamped();
    return {corner.x, corner.y, corner.x + length(nWidth), corner.y + length(nHeight)};
}

CRect PlaceOf(const RECT& rect)
{
    return PlaceOf(rect.left, rect.top, static_cast<std::int64_t>(rect.right) - rect.left,
                   static_cast<std::int64_t>(rect.bottom) - rect.top);
}

CPoint ClientOrigin(const Window& window)
{
    CPoint origin = window.place.TopLeft();
    if (window.IsControl()) {
        if (const Window* const parent = Find(window.parent)) {
            const CPoint outer = ClientOrigin(*parent);
            origin = CPoint(origin.x + outer.x, origin.y + outer.y);
        }
    }
    return origin;
}

bool IsShown(const Window& window)
{
    const Window* const holder = HolderOf(window.handle);
    return window.visible && holder != nullptr && holder->visible;
}

bool TakesInput(const Window& window)
{
    const Window* const holder = HolderOf(window.handle);
    return window.enabled && window.kind != WindowKind::Label && holder != nullptr && holder->enabled;
}

void Tell(HWND hWnd, WindowChange change)
{
    Display* const display = State().display;
    const Window* const window = Find(hWnd);
    if (display != nullptr && window != nullptr) {
        display->WindowChanged(*window, change);
    }
}

void TellCreated(HWND hWnd)
{
    Display* const display = State().display;
    const Window* const window = Find(hWnd);
    if (display != nullptr && window != nullptr) {
        display->WindowCreated(*window);
    }
}

void SetCaret(Window& box, int nCaret)
{
    box.caret = nCaret;
    box.pendingLead = '\0';
}

void PutText(Window& window, const CString& strText)
{
    window.text = strText;
    SetCaret(window, strText.GetLength());
    Tell(window.handle, WindowChange::Text);
}

void Destroy(HWND hWnd)
{
    LayerState& state = State();
    const Window* const root = Find(hWnd);
    if (root == nullptr) {
        return;
    }
    const HWND parent = root->parent;
    std::vector<HWND> gone;
    Gather(hWnd, gone);
    const bool hadFocus = std::find(gone.begin(), gone.end(), state.focus) != gone.end();
    if (hadFocus) {
        state.focus = nullptr;
    }
    for (const HWND handle : gone) {
        const std::unique_ptr<Window> window = state.windows.Take(handle);
        if (window->attached != nullptr) {
            window->attached->m_hWnd = nullptr;
        }
        if (window->own != nullptr) {
            window->own->m_hWnd = nullptr;
            state.retired.push_back(std::move(window->own));
        }
    }
    if (Display* const display = state.display) {
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
    if (State().callDepth == 0) {
        State().retired.clear();
    }
}

}  // namespace WindowLayer
