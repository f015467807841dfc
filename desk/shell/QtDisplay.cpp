// From records to widgets. The way back is in QtInput.cpp.
#include "desk/shell/QtDisplay.h"

#include "desk/shell/PopUp.h"
#include "desk/shell/QtInput.h"
#include "desk/shell/Surface.h"
#include "platform/windows/CWnd.h"

namespace Desk {

class QtDisplay::Private {
public:
    explicit Private(QtDisplay& owner) : display(owner), input(owner) {}

    [[nodiscard]] QWidget* Find(HWND handle) const { return widgets.value(handle); }
    [[nodiscard]] Scale Now() const { return Scale(zoom); }

    void Make(const WindowRecord& window)
    {
        if (window.kind == WindowKind::Frame) {
            return;
        }
        QWidget* made = nullptr;
        if (window.kind == WindowKind::PopUp) {
            auto* const surface = new Surface(window);
            input.Follow(*surface, window.handle);
            made = surface;
        } else if (auto* const surface = qobject_cast<Surface*>(Find(window.parent))) {
            made = MakeControl(window, &surface->Panel());
            if (auto* const line = qobject_cast<QLineEdit*>(made)) {
                input.Follow(*line, window.handle);
            }
            // Tab and template order agree; where two overlap the earlier one is on top.
            made->lower();
            made->show();
        }
        if (made == nullptr) {
            return;
        }
        widgets.insert(window.handle, made);
        input.Know(*made, window.handle);
        TakeAll(*made, window);
    }

    void TakeAll(QWidget& widget, const WindowRecord& window) const
    {
        Place(widget, window);
        TakeText(widget, window);
        if (auto* const list = qobject_cast<ListWidget*>(&widget)) {
            list->TakeRows(window, Now());
        }
        if (window.IsControl()) {
            widget.setEnabled(window.enabled);
            widget.setVisible(window.visible);
        }
    }

    void Place(QWidget& widget, const WindowRecord& window) const
    {
        if (auto* const surface = qobject_cast<Surface*>(&widget)) {
            surface->TakePlace(window, Now());
        } else {
            TakePlace(widget, window, Now());
        }
    }

    // What can be chosen may depend on what is chosen in other lists.
    void DimLists(HWND popUp) const
    {
        if (const QWidget* const surface = Find(popUp)) {
            for (const ListWidget* const list : surface->findChildren<ListWidget*>()) {
                list->viewport()->update();
            }
        }
    }

    // Shows or hides a pop-up, which takes the keyboard and returns it.
    void TakeVisible(Surface& surface, const WindowRecord& window)
    {
        if (window.visible == surface.isVisible()) {
            return;
        }
        if (window.visible) {
            if (openOver == nullptr) {
                before = QApplication::focusWidget();
            }
            surface.Begin(window);
            surface.show();
            surface.raise();
            surface.activateWindow();
            emit display.Shown(window.handle);
        } else {
            surface.hide();
            if (before != nullptr && before->window() != &surface) {
                before->window()->activateWindow();
                before->setFocus(Qt::PopupFocusReason);
            }
            before = nullptr;
            emit display.Hidden(window.handle);
        }
        openOver = window.visible ? &surface : nullptr;
    }

    QtDisplay& display;
    QtInput input;
    double zoom = 1.0;
    QHash<HWND, QWidget*> widgets;
    QPointer<QWidget> before;    // had the keyboard when the pop-up was shown
    QPointer<QWidget> openOver;  // the pop-up that is open
};

QtDisplay::QtDisplay(const TextCodec& codec, QObject* parent)
    : QObject(parent), m_private(std::make_unique<Private>(*this)), m_codec(codec)
{
    qApp->installEventFilter(&m_private->input);
    SetDisplay(this);
}

QtDisplay::~QtDisplay()
{
    SetDisplay(nullptr);
    for (QWidget* const widget : std::as_const(m_private->widgets)) {
        if (widget->isWindow()) {
            delete widget;
        }
    }
}

void QtDisplay::SetZoom(double zoom)
{
    m_private->zoom = zoom;
    for (const HWND window : AllWindows()) {
        if (QWidget* const widget = WidgetOf(window)) {
            m_private->TakeAll(*widget, *FindWindowRecord(window));
        }
    }
}

double QtDisplay::Zoom() const { return m_private->zoom; }

void QtDisplay::OpenBeside(HWND popUp, const QRect& field, QWidget* owner, const QString& title)
{
    auto* const surface = qobject_cast<Surface*>(WidgetOf(popUp));
    CWnd* const window = CWnd::FromHandle(popUp);
    if (surface == nullptr || window == nullptr) {
        return;
    }
    surface->SetTitle(title);
    surface->setAccessibleName(title);
    NameControls(*FindWindowRecord(popUp), [this](HWND control) { return WidgetOf(control); });
    surface->TakePlace(*FindWindowRecord(popUp), m_private->Now());
    constexpr int Gap = 4;
    const QScreen* screen = QGuiApplication::screenAt(field.center());
    screen = screen != nullptr ? screen : QGuiApplication::primaryScreen();
    const int pixel = qCeil(Zoom());  // by which the surface may be off where it was asked to be
    const QRect room = screen->availableGeometry().adjusted(pixel, pixel, -pixel, -pixel);
    const QSize size = surface->size();
    int y = field.bottom() + Gap;
    if (y + size.height() > room.bottom()) {
        y = field.top() - Gap - size.height();
    }
    const QPoint corner(qBound(room.left(), field.left(), qMax(room.left(), room.right() - size.width())),
                        qBound(room.top(), y, qMax(room.top(), room.bottom() - size.height())));
    const CPoint at = m_private->Now().FromWidget(QPointF(corner + surface->PanelCorner()));
    CRect place;
    window->GetWindowRect(&place);
    if (owner != nullptr) {
        surface->winId();  // makes the native window, whose owner is set next
        owner->window()->winId();
        surface->windowHandle()->setTransientParent(owner->window()->windowHandle());
    }
    window->MoveWindow(at.x, at.y, place.Width(), place.Height());
    window->ShowWindow(SW_SHOW);
}

bool QtDisplay::MayHide(HWND popUp)
{
    auto* const surface = qobject_cast<Surface*>(WidgetOf(popUp));
    const bool asks =
        surface != nullptr && surface->isVisible() && surface->IsUnfinished(*FindWindowRecord(popUp));
    if (asks) {
        surface->Ask(true);
    }
    return !asks;
}

QWidget* QtDisplay::WidgetOf(HWND hWnd) const { return m_private->Find(hWnd); }

void QtDisplay::WindowCreated(const WindowRecord& window) { m_private->Make(window); }

void QtDisplay::WindowChanged(const WindowRecord& window, WindowChange change)
{
    QWidget* const widget = WidgetOf(window.handle);
    if (widget == nullptr) {
        return;
    }
    auto* const list = qobject_cast<ListWidget*>(widget);
    switch (change) {
    case WindowChange::Place:
        m_private->Place(*widget, window);
        if (list != nullptr) {
            list->TakeRows(window, m_private->Now());
        }
        break;
    case WindowChange::Text:
    case WindowChange::Caret:
        if (!m_private->input.IsReporting(window.handle)) {
            TakeText(*widget, window);
        }
        break;
    case WindowChange::Rows:
        if (list != nullptr) {
            list->TakeRows(window, m_private->Now());
        }
        m_private->DimLists(window.parent);
        break;
    case WindowChange::Selection:
        if (list != nullptr) {
            list->TakeSelection(window);
        }
        m_private->DimLists(window.parent);
        break;
    case WindowChange::Scroll:
        if (list != nullptr) {
            list->TakeTop(window);
        }
        break;
    case WindowChange::Visible:
        if (window.IsControl()) {
            widget->setVisible(window.visible);
        } else {
            m_private->TakeVisible(static_cast<Surface&>(*widget), window);
        }
        break;
    case WindowChange::Enabled:
        if (window.IsControl()) {
            widget->setEnabled(window.enabled);
        }
        break;
    case WindowChange::Focus: m_private->input.TakeFocus(*widget); break;
    case WindowChange::Order:
        if (widget->isWindow()) {
            widget->raise();
        }
        break;
    }
}

void QtDisplay::WindowDestroyed(HWND hWnd)
{
    QWidget* const widget = m_private->widgets.take(hWnd);
    if (widget == nullptr) {
        return;
    }
    const bool shown = widget->isWindow() && widget->isVisible();
    m_private->input.Forget(*widget);
    widget->hide();
    widget->deleteLater();  // it may be handling an event
    if (shown) {
        if (m_private->before != nullptr) {
            m_private->before->window()->activateWindow();
            m_private->before->setFocus(Qt::PopupFocusReason);
        }
        m_private->before = nullptr;
        m_private->openOver = nullptr;
        emit Hidden(hWnd);
    }
}

int QtDisplay::ShowMessageBox(const CString& text)
{
    QMessageBox box(QMessageBox::Information, QStringLiteral("beamdesk"), Desk::Shown(text),
                    QMessageBox::Ok, m_private->openOver);
    box.setObjectName("message");
    box.exec();
    return IDOK;
}

const TextCodec& Texts() { return static_cast<const QtDisplay*>(GetDisplay())->Codec(); }

}  // namespace Desk
