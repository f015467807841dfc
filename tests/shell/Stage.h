// Panels with an item that notes what it gets, and a user's hand on the toolkit's widgets.
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QtTest/QtTest>

#include "desk/project/Encoding.h"
#include "desk/shell/Panel.h"
#include "desk/shell/PopUp.h"
#include "desk/shell/QtDisplay.h"
#include "platform/windows/Hands.h"

#include "RankerModule.h"

struct NotedItem : CPropertyGridItem {
    void SetValue(CString strValue) override { taken.emplace_back(strValue.View()); }
    std::vector<std::string> taken;
};

// All seven pop-ups, by their templates.
enum class Shown : UINT {
    Name = CBeamNameDlg::IDD,
    Section = CBeamSecDlg::IDD,
    Elevation = CBeamLevelDlg::IDD,
    Stirrup = CBeamGujinDlg::IDD,
    Bars = CBeamSteelDlg::IDD,
    Horizontal = CHBarPropertySheet::IDD,
    Vertical = CVBarPropertySheet::IDD
};
inline constexpr Shown AllShown[] = {Shown::Name, Shown::Section,    Shown::Elevation, Shown::Stirrup,
                                     Shown::Bars, Shown::Horizontal, Shown::Vertical};

class Stage {
public:
    explicit Stage(Shown kind)
        : made(Desk::MakePanel(static_cast<UINT>(kind), {Desk::Receiver::Route::Item, &item, nullptr}))
    {
        item.SetHWnd(this);
        panel = &made->Window();
        made->Create(nullptr);
        Desk::PanelUse use;
        use.barKind = 0;
        if (kind == Shown::Section) {
            use.text = "300x600";
        }
        made->Open(use);
        Rebind();
    }

    // A confirmed picker lets go of its item.
    void Rebind()
    {
        if (made->Held().bound) {
            made->Open({});
        }
        CRect rect;
        panel->GetWindowRect(&rect);
        panel->MoveWindow(100, 100, rect.Width(), rect.Height());
        panel->ShowWindow(SW_SHOW);
    }

    void Destroy()
    {
        panel = nullptr;
        made.reset();
    }

    // Everything that a person sees, and what went out.
    [[nodiscard]] std::string State() const
    {
        std::ostringstream state;
        state << (panel->IsWindowVisible() ? "shown" : "hidden");
        const CWnd* const focus = CWnd::GetFocus();
        for (const HWND child : FindWindowRecord(panel->m_hWnd)->children) {
            const WindowRecord& control = *FindWindowRecord(child);
            state << ' ' << control.id << (focus != nullptr && focus->m_hWnd == child ? "*" : "") << '='
                  << control.text.View() << ':' << control.list.selection << '/' << control.list.rows.size()
                  << '@' << control.list.top;
        }
        const CRect& place = FindWindowRecord(panel->m_hWnd)->place;
        state << " at " << place.left << ',' << place.top << " gave";
        for (const std::string& text : item.taken) {
            state << ' ' << text;
        }
        return state.str();
    }

    NotedItem item;
    std::unique_ptr<Desk::Panel> made;
    CDialog* panel = nullptr;
};

// Hands on the widgets: places are pixels of the window layer, as those of Hands.
class QtHands {
public:
    explicit QtHands(const Desk::QtDisplay& display) : m_display(display) {}

    void Click(CPoint point) { Mouse(point, Qt::LeftButton, QEvent::MouseButtonPress, true); }
    void RightClick(CPoint point) { Mouse(point, Qt::RightButton, QEvent::MouseButtonPress, true); }
    void DoubleClick(CPoint point)
    {
        Click(point);
        Mouse(point, Qt::LeftButton, QEvent::MouseButtonDblClick, true);
    }
    void Drag(CPoint from, CPoint to)
    {
        QPointer<QWidget> widget = Mouse(from, Qt::LeftButton, QEvent::MouseButtonPress, false);
        if (widget != nullptr) {
            Send(*widget, QEvent::MouseButtonRelease, to, Qt::LeftButton);
        }
    }
    void Wheel(CPoint point, int notches)
    {
        if (QWidget* const widget = At(point)) {
            const QPointF onScreen = Middle(point);
            QWheelEvent event(widget->mapFromGlobal(onScreen), onScreen, {}, {0, notches * WHEEL_DELTA},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget, &event);
        }
    }
    void Key(UINT key)
    {
        static const std::map<UINT, Qt::Key> keys = {
            {VK_TAB, Qt::Key_Tab},     {VK_UP, Qt::Key_Up},          {VK_DOWN, Qt::Key_Down},
            {VK_LEFT, Qt::Key_Left},   {VK_RIGHT, Qt::Key_Right},    {VK_HOME, Qt::Key_Home},
            {VK_END, Qt::Key_End},     {VK_BACK, Qt::Key_Backspace}, {VK_DELETE, Qt::Key_Delete},
            {VK_SPACE, Qt::Key_Space}, {VK_ESCAPE, Qt::Key_Escape},  {VK_RETURN, Qt::Key_Return}};
        if (QWidget* const widget = Focused()) {
            QTest::keyClick(widget, keys.at(key));
        }
    }
    void Type(const CString& text)
    {
        for (const QChar ch : QString::fromStdString(Desk::Utf8FromGbk(text))) {
            if (QWidget* const widget = Focused(); widget != nullptr && ch.unicode() < 128) {
                QTest::keyClick(widget, ch.toLatin1());
            } else if (widget != nullptr) {
                QInputMethodEvent event;
                event.setCommitString(ch);
                QApplication::sendEvent(widget, &event);
            }
        }
    }

    // The widget under a place, the viewport of a list.
    [[nodiscard]] QWidget* At(CPoint point) const
    {
        QWidget* const widget = m_display.WidgetOf(WindowFromPoint(point));
        const auto* const area = qobject_cast<QAbstractScrollArea*>(widget);
        return area != nullptr ? area->viewport() : widget;
    }
    [[nodiscard]] QPointF Middle(CPoint point) const
    {
        constexpr double Inside = 0.25;  // of the pixel, so that rounding to whole ones stays in it
        const double zoom = m_display.Zoom();
        return {(point.x + Inside) * zoom, (point.y + Inside) * zoom};
    }

private:
    [[nodiscard]] QWidget* Focused() const
    {
        const CWnd* const focus = CWnd::GetFocus();
        return focus != nullptr && focus->IsWindowVisible() ? m_display.WidgetOf(focus->m_hWnd) : nullptr;
    }
    QPointer<QWidget> Mouse(CPoint point, Qt::MouseButton button, QEvent::Type type, bool release)
    {
        QPointer<QWidget> widget = At(point);
        if (widget != nullptr) {
            Send(*widget, type, point, button);
        }
        if (widget != nullptr && release) {
            Send(*widget, QEvent::MouseButtonRelease, point, button);
        }
        return widget;
    }
    void Send(QWidget& widget, QEvent::Type type, CPoint point, Qt::MouseButton button) const
    {
        const QPointF onScreen = Middle(point);
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, widget.mapFromGlobal(onScreen), onScreen, button, held, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }

    const Desk::QtDisplay& m_display;
};
