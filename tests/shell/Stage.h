// A user's hand on the toolkit's widgets.
#pragma once

#include <map>

#include <gtest/gtest.h>

#include <QtTest/QtTest>

#include "desk/project/Encoding.h"
#include "desk/shell/PopUp.h"
#include "desk/shell/QtDisplay.h"
#include "platform/windows/Hands.h"
#include "tests/support/Stage.h"

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
