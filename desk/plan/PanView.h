// PanView: a graphics view that is moved by drags and keys, and zoomed by the wheel.
#pragma once

#include "desk/Toolkit.h"

namespace Desk {

class PanView : public QGraphicsView {
    Q_OBJECT

public:
    explicit PanView(QWidget* parent = nullptr);

    // Shows the whole content, and goes on doing so when the size changes, until it is zoomed or moved.
    void Fit();

signals:
    void NothingPicked();  // a press without a drag where a derived view leaves presses to this one

protected:
    // What Fit shows, on the sheet, and the scale that texts are read best at, in pixels a mm.
    void SetContent(const QRectF& content, double readingScale);
    // What is at a point of the view stays there.
    void ZoomAbout(const QPoint& inView, double factor);
    void PanBy(const QPoint& pixels);
    virtual void Scaled() {}  // the scale has changed
    // A drag may have begun, so that the pointer points at nothing.
    [[nodiscard]] bool MayPan() const { return m_mayPan; }

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;   // zooms about the pointer
    void keyPressEvent(QKeyEvent* event) override;  // other keys than those that move are the window's
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] double FittingScale() const;

    QRectF m_content{-1000, -1000, 2000, 2000};
    double m_readingScale = 0.05;
    bool m_isFitted = true;
    bool m_isPanning = false;
    bool m_mayPan = false;
    QPoint m_pressed;  // in the view
    QPoint m_panned;
};

}  // namespace Desk
