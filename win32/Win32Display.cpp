// From records to the system's controls. The way back is in Input.cpp.
#include "win32/Win32Display.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/windows/CWnd.h"
#include "win32/Input.h"
#include "win32/Texts.h"

namespace {

constexpr int FontHeight = 12;     // of a 9-point font
constexpr int ScrollBarWidth = 6;  // pixels of the window layer

Native::Shape ShapeOf(const WindowRecord& control)
{
    Native::Shape shape;
    shape.align = Has(control.style, ControlStyle::AlignCenter)  ? Native::Align::Center
                  : Has(control.style, ControlStyle::AlignRight) ? Native::Align::Right
                                                                 : Native::Align::Left;
    shape.digitsOnly = Has(control.style, ControlStyle::DigitsOnly);
    switch (control.kind) {
    case WindowKind::EditBox: shape.kind = Native::Kind::EditBox; break;
    case WindowKind::Button: shape.kind = Native::Kind::Button; break;
    case WindowKind::ListBox:
        shape.kind = control.IsMultiColumn() ? Native::Kind::ListOfColumns : Native::Kind::ListBox;
        break;
    default: break;
    }
    return shape;
}

// The texts of the boxes, and the pieces of a list of columns: what is composed.
std::vector<CString> Composition(HWND popUp)
{
    std::vector<CString> texts;
    for (const HWND child : FindWindowRecord(popUp)->children) {
        const WindowRecord& control = *FindWindowRecord(child);
        if (control.kind == WindowKind::EditBox) {
            texts.push_back(control.text);
        } else if (control.kind == WindowKind::ListBox && control.IsMultiColumn()) {
            texts.insert(texts.end(), control.list.rows.begin(), control.list.rows.end());
        }
    }
    return texts;
}

}  // namespace

class Win32Display::Private final : public Shown {
public:
    explicit Private(Native::Handle hostWindow) : input(*this), owner(hostWindow) {}

    struct PopUp {
        Scale scale;
        std::vector<CString> before;  // its composition as it opened
    };

    [[nodiscard]] Native::Handle NativeOf(HWND window) const override
    {
        const auto found = natives.find(window);
        return found != natives.end() ? found->second : nullptr;
    }
    [[nodiscard]] HWND WindowOf(Native::Handle window) const override
    {
        const auto found = windows.find(window);
        return found != windows.end() ? found->second : nullptr;
    }
    [[nodiscard]] Scale ScaleOf(HWND window) const override
    {
        const WindowRecord* const record = FindWindowRecord(window);
        const HWND holder = record != nullptr && record->IsControl() ? record->parent : window;
        const auto found = popUps.find(holder);
        return found != popUps.end() ? found->second.scale : Scale();
    }
    [[nodiscard]] bool IsUnfinished(HWND popUp) const override
    {
        const auto found = popUps.find(popUp);
        return found != popUps.end() && Composition(popUp) != found->second.before;
    }

    void Make(const WindowRecord& window)
    {
        Native::Handle made = nullptr;
        if (window.kind == WindowKind::PopUp) {
            made = Native::MakePopUp(owner, input);
            popUps[window.handle].scale = Scale::OfDpi(Native::DpiOf(made));
        } else if (Native::Handle popUp = NativeOf(window.parent)) {
            made = Native::MakeControl(ShapeOf(window), window.id, popUp, input);
        }
        if (made != nullptr) {
            natives[window.handle] = made;
            windows[made] = window.handle;
            TakeAll(window);
        }
    }

    void TakeAll(const WindowRecord& window)
    {
        TakePlace(window);
        if (window.IsControl()) {
            TakeText(window);
            TakeRows(window);
            Native::Enable(NativeOf(window.handle), window.enabled);
            Native::Show(NativeOf(window.handle), window.visible);
        } else if (window.visible) {
            TakeVisible(window);
        }
    }

    void TakePlace(const WindowRecord& window)
    {
        const Scale scale = ScaleOf(window.handle);
        const Native::Handle native = NativeOf(window.handle);
        Native::Place(native, scale.ToSystem(window.place));
        const WindowRecord* const holder = FindWindowRecord(window.parent);
        if (window.IsControl() && holder != nullptr && holder->shape != nullptr) {
            fonts.Use(native, Texts::Shown(holder->shape->font),
                      scale.ToSystem(FontHeight) - (scale.Row() > RowHeight ? 1 : 0));
        }
    }

    void TakeText(const WindowRecord& window) override
    {
        const Input::Mirroring scope(input);
        const Native::Handle native = NativeOf(window.handle);
        const std::wstring text = Texts::Shown(window.text);
        const bool isBox = window.kind == WindowKind::EditBox;
        if (!isBox || Native::TextOf(native) != text) {
            Native::SetText(native, text);
        }
        if (isBox && !Native::HasSelection(native)) {
            Native::SetCaret(native, Texts::ShownPosition(window.text, window.caret));
        }
    }

    void TakeRows(const WindowRecord& list)
    {
        if (list.kind != WindowKind::ListBox) {
            return;
        }
        const Scale scale = ScaleOf(list.handle);
        Native::Rows rows;
        rows.height = scale.Row();
        rows.columnWidth = scale.ToSystem(list.list.columnWidth);
        for (const CString& text : list.list.rows) {
            rows.texts.push_back(Texts::Shown(text));
        }
        Native::SetRows(NativeOf(list.handle), rows);
        TakeView(list);
    }

    void TakeView(const WindowRecord& list)
    {
        Native::View view;
        view.selection = list.list.selection;
        view.top = list.list.top;
        view.count = list.RowCount();
        view.inView = list.RowsInView();
        // One row of columns has no room for a bar: wheel and arrow keys scroll.
        view.barWidth = list.IsMultiColumn() ? 0 : ScaleOf(list.handle).ToSystem(ScrollBarWidth);
        Native::SetView(NativeOf(list.handle), view);
    }

    // A pop-up takes the keyboard and returns it.
    void TakeVisible(const WindowRecord& window)
    {
        const Native::Handle native = NativeOf(window.handle);
        if (window.visible) {
            if (open == nullptr) {
                before = Native::Focused();
            }
            open = window.handle;
            popUps[window.handle].before = Composition(window.handle);
            Native::Show(native, true);
            const CWnd* const focus = CWnd::GetFocus();
            input.TakeFocus(focus != nullptr ? focus->m_hWnd : nullptr);
        } else {
            GiveBack(window.handle);
            Native::Show(native, false);
        }
    }

    void GiveBack(HWND popUp)
    {
        if (open == popUp) {
            open = nullptr;
            if (const Native::Handle receiver = std::exchange(before, nullptr)) {
                Native::Focus(receiver);
            }
        }
    }

    void TakeDpi(HWND popUp, int dpi, int x, int y) override
    {
        const Scale scale = Scale::OfDpi(dpi);
        popUps[popUp].scale = scale;
        const CRect& place = FindWindowRecord(popUp)->place;
        CWnd::FromHandle(popUp)->MoveWindow(scale.FromSystem(x), scale.FromSystem(y), place.Width(),
                                            place.Height());
        TakePlace(*FindWindowRecord(popUp));
        for (const HWND child : FindWindowRecord(popUp)->children) {
            TakeAll(*FindWindowRecord(child));
        }
    }

    Input input;
    Native::Handle owner;
    Native::Fonts fonts;
    std::unordered_map<HWND, Native::Handle> natives;
    std::unordered_map<Native::Handle, HWND> windows;
    std::unordered_map<HWND, PopUp> popUps;
    HWND open = nullptr;              // the pop-up that was shown last
    Native::Handle before = nullptr;  // had the keyboard when it was shown
};

Win32Display::Win32Display(void* owner) : m_private(std::make_unique<Private>(owner)) { SetDisplay(this); }

Win32Display::~Win32Display()
{
    SetDisplay(nullptr);
    while (!m_private->popUps.empty()) {
        WindowDestroyed(m_private->popUps.begin()->first);
    }
}

bool Win32Display::UsePerMonitorDpi() { return Native::UsePerMonitorDpi(); }

void* Win32Display::NativeOf(HWND hWnd) const { return m_private->NativeOf(hWnd); }

double Win32Display::ZoomOf(HWND hWnd) const { return m_private->ScaleOf(hWnd).Zoom(); }

void Win32Display::OpenBeside(HWND hPopUp, const CRect& field)
{
    CWnd* const window = CWnd::FromHandle(hPopUp);
    if (window == nullptr || NativeOf(hPopUp) == nullptr) {
        return;
    }
    constexpr int Gap = 4;
    const Scale scale = Scale::OfDpi(Native::DpiAt(field.left, field.top));
    m_private->popUps[hPopUp].scale = scale;
    const Native::Area room = Native::RoomAround(field.left, field.top);
    const CRect place = FindWindowRecord(hPopUp)->place;
    const Native::Area size = scale.ToSystem(CRect(0, 0, place.Width(), place.Height()));
    int y = field.bottom + Gap;
    if (y + size.height > room.y + room.height) {
        y = field.top - Gap - size.height;
    }
    const int x = std::max(room.x, std::min<int>(field.left, room.x + room.width - size.width));
    y = std::max(room.y, std::min(y, room.y + room.height - size.height));
    m_private->TakeDpi(hPopUp, Native::DpiAt(field.left, field.top), x, y);
    window->ShowWindow(SW_SHOW);
}

void Win32Display::WindowCreated(const WindowRecord& window)
{
    if (window.kind != WindowKind::Frame) {
        m_private->Make(window);
    }
}

void Win32Display::WindowChanged(const WindowRecord& window, WindowChange change)
{
    const Native::Handle native = NativeOf(window.handle);
    if (native == nullptr) {
        return;
    }
    switch (change) {
    case WindowChange::Place:
        m_private->TakePlace(window);
        m_private->TakeRows(window);
        break;
    case WindowChange::Text:
    case WindowChange::Caret:
        if (!m_private->input.IsReporting(window.handle)) {
            m_private->TakeText(window);
        }
        break;
    case WindowChange::Rows: m_private->TakeRows(window); break;
    case WindowChange::Selection:
    case WindowChange::Scroll: m_private->TakeView(window); break;
    case WindowChange::Visible:
        if (window.IsControl()) {
            Native::Show(native, window.visible);
        } else {
            m_private->TakeVisible(window);
        }
        break;
    case WindowChange::Enabled: Native::Enable(native, window.enabled); break;
    case WindowChange::Focus: m_private->input.TakeFocus(window.handle); break;
    case WindowChange::Order: Native::Raise(native); break;
    }
}

void Win32Display::WindowDestroyed(HWND hWnd)
{
    const Native::Handle native = NativeOf(hWnd);
    if (native == nullptr) {
        return;
    }
    m_private->GiveBack(hWnd);
    m_private->popUps.erase(hWnd);
    m_private->natives.erase(hWnd);
    m_private->windows.erase(native);
    Native::Destroy(native);
}

int Win32Display::ShowMessageBox(const CString& strText)
{
    const Native::Handle above = m_private->open != nullptr ? NativeOf(m_private->open) : m_private->owner;
    Native::ShowMessage(above, Texts::Shown(strText));
    return IDOK;
}
