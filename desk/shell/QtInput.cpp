#include "desk/shell/QtInput.h"

#include <algorithm>
#include <utility>

#include "desk/shell/Keys.h"
#include "desk/shell/PopUp.h"
#include "desk/shell/QtDisplay.h"
#include "desk/shell/Surface.h"
#include "platform/text/GbkWalk.h"
#include "platform/windows/CWnd.h"
#include "platform/windows/WindowRecord.h"

namespace Desk {

namespace {

HWND FocusedWindow()
{
    const CWnd* const focus = CWnd::GetFocus();
    return focus != nullptr ? focus->m_hWnd : nullptr;
}

HWND HolderOf(HWND window)
{
    const WindowRecord* const record = FindWindowRecord(window);
    return record != nullptr && record->IsControl() ? record->parent : window;
}

bool IsShownPopUp(HWND window)
{
    const WindowRecord* const record = FindWindowRecord(window);
    return record != nullptr && record->kind == WindowKind::PopUp && record->visible;
}

struct EditedText {
    CString text;
    int caret = 0;  // byte position
};

// The text of a line edit in GBK. Only what the user entered is converted; bytes that show as a replacement
// mark keep their values. Nothing when it holds a character that GBK lacks.
std::optional<EditedText> EditedFrom(const CString& before, const QLineEdit& line)
{
    const QString shown = Shown(before);
    const QString now = line.text();
    std::vector<int> bytes{0};  // by characters shown: where each begins in the text
    for (int at = 0; at < before.GetLength();) {
        const int next = NextCharacter(before.View(), at);
        const qsizetype characters = Shown(before.Mid(at, next - at)).size();
        bytes.insert(bytes.end(), static_cast<std::size_t>(characters - 1), at);
        bytes.push_back(next);
        at = next;
    }
    if (static_cast<qsizetype>(bytes.size()) != shown.size() + 1) {
        return std::nullopt;
    }
    const qsizetype shorter = std::min(shown.size(), now.size());
    qsizetype head = 0;
    while (head < shorter && shown[head] == now[head]) {
        ++head;
    }
    qsizetype tail = 0;
    while (tail < shorter - head && shown[shown.size() - 1 - tail] == now[now.size() - 1 - tail]) {
        ++tail;
    }
    const auto byteAt = [&bytes](qsizetype character) {
        return bytes[static_cast<std::size_t>(character)];
    };
    const std::optional<CString> typed =
        Texts().gbkFromUtf8(now.mid(head, now.size() - head - tail).toStdString());
    if (!typed) {
        return std::nullopt;
    }
    const int typedEnd = byteAt(head) + typed->GetLength();
    const int tailStart = byteAt(shown.size() - tail);
    EditedText edited;
    edited.text = before.Left(byteAt(head)) + *typed + before.Mid(tailStart);
    const qsizetype cursor = line.cursorPosition();
    if (cursor <= head) {
        edited.caret = byteAt(cursor);
    } else if (cursor >= now.size() - tail) {
        edited.caret = typedEnd + byteAt(cursor - now.size() + shown.size()) - tailStart;
    } else {
        const std::optional<CString> part = Texts().gbkFromUtf8(now.mid(head, cursor - head).toStdString());
        edited.caret = byteAt(head) + (part ? part->GetLength() : 0);
    }
    return edited;
}

constexpr LPARAM KeyWentDown = 1;
constexpr LPARAM KeyStaysDown = 0x40000001;
constexpr LPARAM KeyWentUp = 0xC0000001;

MSG Escape(HWND popUp) { return {popUp, WM_KEYDOWN, VK_ESCAPE, KeyWentDown, 0, {}}; }

}  // namespace

void QtInput::Know(QWidget& widget, HWND window)
{
    m_windows.insert(&widget, window);
    if (const auto* const list = qobject_cast<QAbstractScrollArea*>(&widget)) {
        m_windows.insert(list->viewport(), window);
        list->viewport()->setContextMenuPolicy(Qt::PreventContextMenu);
    }
}

void QtInput::Forget(QWidget& widget)
{
    m_windows.remove(&widget);
    if (const auto* const list = qobject_cast<QAbstractScrollArea*>(&widget)) {
        m_windows.remove(list->viewport());
    }
}

void QtInput::Follow(QLineEdit& line, HWND box)
{
    connect(&line, &QLineEdit::textEdited, this, [this, &line, box] { Report(line, box); });
    connect(&line, &QLineEdit::cursorPositionChanged, this, [this, &line, box] {
        const WindowRecord* const record = FindWindowRecord(box);
        if (m_reporting == nullptr && record != nullptr && line.text() == Shown(record->text)) {
            Report(line, box);  // the text is the same: only the caret moves
        }
    });
}

void QtInput::Follow(Surface& surface, HWND popUp)
{
    connect(&surface, &Surface::Taken, this, [this, popUp] { Take(popUp); });
    connect(&surface, &Surface::Left, this, [popUp] { Send(Escape(popUp), true); });
}

void QtInput::TakeFocus(QWidget& widget)
{
    const QScopedValueRollback taking(m_isTakingFocus, true);
    const CWnd* const focus = CWnd::GetFocus();
    if (focus != nullptr && focus->m_hWnd == WindowOf(&widget)) {
        widget.setFocus(Qt::OtherFocusReason);
    }
}

HWND QtInput::WindowOf(const QObject* watched) const { return m_windows.value(watched); }

Surface* QtInput::SurfaceOf(HWND window) const
{
    return qobject_cast<Surface*>(m_display.WidgetOf(HolderOf(window)));
}

bool QtInput::Send(const MSG& event, bool dispatch)
{
    MSG msg = event;
    if (AfxPreTranslateMessage(&msg)) {
        return true;
    }
    if (dispatch) {
        DispatchMessage(&msg);
    }
    return false;
}

bool QtInput::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const HWND window = WindowOf(watched);
    if (window == nullptr) {
        const auto* const widget = qobject_cast<const QWidget*>(watched);
        return widget != nullptr && OnEventElsewhere(*widget, *event);
    }
    auto& widget = static_cast<QWidget&>(*watched);
    const bool native = qobject_cast<QLineEdit*>(&widget) != nullptr && widget.isEnabled();
    if (Surface* const surface = SurfaceOf(window);
        surface != nullptr && (type == QEvent::MouseButtonPress || type == QEvent::KeyPress)) {
        surface->Ask(false);  // the work goes on
    }
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return OnPress(widget, window, *static_cast<QMouseEvent*>(event), native);
    case QEvent::MouseButtonRelease:
        return OnRelease(widget, window, *static_cast<QMouseEvent*>(event), native);
    case QEvent::MouseMove: {
        const auto& mouse = *static_cast<QMouseEvent*>(event);
        const WPARAM held = mouse.buttons().testFlag(Qt::LeftButton) ? MK_LBUTTON : 0;
        return OnMouse(window, WM_MOUSEMOVE, mouse.globalPosition(), held, native);
    }
    case QEvent::Wheel: return OnWheel(window, *static_cast<QWheelEvent*>(event));
    case QEvent::ContextMenu: return true;
    case QEvent::Close:  // by the window manager
        Send(Escape(window), true);
        event->accept();
        return true;
    case QEvent::ShortcutOverride: event->accept(); return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return OnKey(window, *static_cast<QKeyEvent*>(event), native);
    case QEvent::FocusIn:
        if (CWnd* const target = CWnd::FromHandle(window); target != nullptr && !m_isTakingFocus &&
                                                           FocusedWindow() != window && native &&
                                                           IsShownPopUp(HolderOf(window))) {
            target->SetFocus();
        }
        return false;
    default: return false;
    }
}

// A null target no longer exists; a native control handles what the module did not take.
bool QtInput::OnMouse(HWND window, UINT message, const QPointF& onScreen, WPARAM wParam, bool native)
{
    CWnd* const target = CWnd::FromHandle(window);
    if (target == nullptr) {
        return true;
    }
    const CPoint place = Scale(m_display.Zoom()).FromWidget(onScreen);
    CPoint inside = place;
    target->ScreenToClient(&inside);
    const auto time = static_cast<DWORD>(QDateTime::currentMSecsSinceEpoch());
    const MSG msg{window, message, wParam, MAKELPARAM(inside.x, inside.y), time, place};
    return Send(msg, !native) || !native;
}

bool QtInput::OnPress(QWidget& widget, HWND window, const QMouseEvent& mouse, bool native)
{
    const bool again = mouse.type() == QEvent::MouseButtonDblClick;
    const QPointer<QWidget> alive(&widget);
    if (mouse.button() == Qt::LeftButton) {
        m_pressed = window;
        if (native && FocusedWindow() != window) {
            CWnd::FromHandle(window)->SetFocus();
        }
        const UINT message = again ? WM_LBUTTONDBLCLK : WM_LBUTTONDOWN;
        return OnMouse(window, message, mouse.globalPosition(), MK_LBUTTON, native) || alive == nullptr;
    }
    if (mouse.button() == Qt::RightButton) {
        // A line edit ignores it, the class of the box may not. Two quick presses count as two.
        OnMouse(window, WM_RBUTTONDOWN, mouse.globalPosition(), MK_RBUTTON, false);
        return true;
    }
    return !native;  // a line edit pastes by the middle button on some systems
}

bool QtInput::OnRelease(QWidget& widget, HWND window, const QMouseEvent& mouse, bool native)
{
    const QPointer<QWidget> alive(&widget);
    if (mouse.button() == Qt::LeftButton) {
        const HWND target = IsWindow(m_pressed) ? m_pressed : window;
        m_pressed = nullptr;
        return OnMouse(target, WM_LBUTTONUP, mouse.globalPosition(), 0, native) || alive == nullptr;
    }
    if (mouse.button() == Qt::RightButton) {
        OnMouse(window, WM_RBUTTONUP, mouse.globalPosition(), 0, false);
        return true;
    }
    return !native;
}

bool QtInput::OnWheel(HWND window, const QWheelEvent& wheel)
{
    const QPoint angle = wheel.angleDelta();
    const int turn = angle.y() != 0 ? angle.y() : angle.x();
    return OnMouse(window, WM_MOUSEWHEEL, wheel.globalPosition(), MAKEWPARAM(0, turn), false);
}

bool QtInput::OnKey(HWND window, const QKeyEvent& key, bool native)
{
    const bool down = key.type() == QEvent::KeyPress;
    if (!down && key.isAutoRepeat()) {
        return !native || !IsForLineEdit(key);  // the key is still down
    }
    const HWND focus = FocusedWindow();
    const HWND target = IsWindow(focus) && HolderOf(focus) == HolderOf(window) ? focus : window;
    const auto time = static_cast<DWORD>(QDateTime::currentMSecsSinceEpoch());
    const auto send = [&](UINT message, WPARAM code, bool dispatch) {
        const LPARAM went = message == WM_KEYUP  ? KeyWentUp
                            : key.isAutoRepeat() ? KeyStaysDown
                                                 : KeyWentDown;
        return Send({target, message, code, went, time, {}}, dispatch);
    };
    const bool shift = key.modifiers().testFlag(Qt::ShiftModifier) || key.key() == Qt::Key_Backtab;
    if (key.key() != Qt::Key_Shift) {  // an event of the Shift key may have been missed
        send(shift ? WM_KEYDOWN : WM_KEYUP, VK_SHIFT, false);
    }
    const bool nativeKey = native && IsForLineEdit(key);
    const UINT code = KeyCode(key);
    bool taken = false;
    if (code != 0) {
        taken = send(down ? WM_KEYDOWN : WM_KEYUP, code, !nativeKey);
    }
    if (down && !taken && IsRightPress(key)) {
        if (!key.isAutoRepeat()) {
            Take(HolderOf(window));
        }
        return true;
    }
    if (down && !taken && !key.text().isEmpty()) {
        const std::optional<CString> typed = Texts().gbkFromUtf8(key.text().toStdString());
        for (int i = 0; typed && i < typed->GetLength() && IsWindow(target); ++i) {
            taken = send(WM_CHAR, static_cast<unsigned char>(typed->GetAt(i)), !nativeKey) || taken;
        }
    }
    return taken || !nativeKey || !IsWindow(window);
}

// The right button's click in the middle of a pop-up, for what stands for it.
void QtInput::Take(HWND popUp)
{
    const WindowRecord* const record = FindWindowRecord(popUp);
    if (record == nullptr) {
        return;
    }
    const QPointF middle = Scale(m_display.Zoom()).ToWidget(record->place).center();
    OnMouse(popUp, WM_RBUTTONDOWN, middle, MK_RBUTTON, false);
    OnMouse(popUp, WM_RBUTTONUP, middle, 0, false);
}

// A press or a key in another window leaves the open pop-up. Where that asks first, nobody gets the event,
// nor what comes with it.
bool QtInput::OnEventElsewhere(const QWidget& target, QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: m_isEaten = Leave(target, true) == Elsewhere::Asked; return m_isEaten;
    case QEvent::MouseMove:
    case QEvent::ContextMenu: return m_isEaten;
    case QEvent::MouseButtonRelease: return std::exchange(m_isEaten, false);
    case QEvent::Close:  // by the window manager
        if (event.spontaneous() && Leave(target, true) == Elsewhere::Asked) {
            event.ignore();
            return true;
        }
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: break;
    default: return false;
    }
    switch (static_cast<const QKeyEvent&>(event).key()) {
    case Qt::Key_Escape:
        return event.type() == QEvent::KeyPress && Leave(target, false) != Elsewhere::NothingOpen;
    case Qt::Key_Control:
    case Qt::Key_Shift:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta: return false;
    default:
        if (Leave(target, true) == Elsewhere::Asked) {
            event.accept();
            return true;
        }
        return false;
    }
}

// As Esc: nothing is delivered. A pop-up whose text is composed and not taken may ask instead, and stays.
// A message box over the panel does not count as elsewhere.
QtInput::Elsewhere QtInput::Leave(const QWidget& target, bool mayAsk)
{
    if (QApplication::activeModalWidget() != nullptr ||
        qobject_cast<const QScrollBar*>(&target) != nullptr) {
        return Elsewhere::NothingOpen;
    }
    Elsewhere done = Elsewhere::NothingOpen;
    for (const HWND window : AllWindows()) {
        Surface* const surface = IsShownPopUp(window) ? SurfaceOf(window) : nullptr;
        if (surface == nullptr || target.window() == surface) {
            continue;
        }
        if (mayAsk && surface->IsUnfinished(*FindWindowRecord(window))) {
            surface->Ask(true);
            return Elsewhere::Asked;
        }
        Send(Escape(window), true);
        done = Elsewhere::Dismissed;
    }
    return done;
}

void QtInput::Report(QLineEdit& line, HWND box)
{
    const std::optional<EditedText> edited = EditedFrom(FindWindowRecord(box)->text, line);
    const QPointer<QLineEdit> alive(&line);
    BOOL taken = FALSE;
    if (edited) {
        const QScopedValueRollback reporting(m_reporting, box);
        taken = UserEditsText(box, edited->text, edited->caret);
    }
    const WindowRecord* const record = FindWindowRecord(box);
    if (alive != nullptr && record != nullptr && (!taken || line.text() != Shown(record->text))) {
        TakeText(line, *record);
    }
}

}  // namespace Desk
