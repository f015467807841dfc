#include "desk/plan/PanView.h"

#include <algorithm>
#include <cmath>

namespace Desk {

namespace {

constexpr double LeastPart = 0.005;  // of the scale that shows all
constexpr double MostTimes = 10.0;   // the scale that texts are read best at
constexpr double WheelStep = 1.2;    // a notch of the wheel
constexpr int KeySteps = 8;          // strokes of an arrow key across the view

}  // namespace

PanView::PanView(QWidget* parent) : QGraphicsView(parent)
{
    setScene(new QGraphicsScene(this));
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setResizeAnchor(QGraphicsView::NoAnchor);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAcceptDrops(false);  // they are the window's
    viewport()->setAcceptDrops(false);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void PanView::SetContent(const QRectF& content, double readingScale)
{
    m_content = content.isEmpty() ? QRectF(-1000, -1000, 2000, 2000) : content;
    m_readingScale = readingScale;
}

void PanView::Fit()
{
    fitInView(m_content, Qt::KeepAspectRatio);
    m_isFitted = true;
    Scaled();
}

double PanView::FittingScale() const
{
    return std::min(viewport()->width() / m_content.width(), viewport()->height() / m_content.height());
}

void PanView::ZoomAbout(const QPoint& inView, double factor)
{
    const QPointF before = mapToScene(inView);
    const double now = transform().m11();
    const double least = LeastPart * FittingScale();
    const double most = std::max(MostTimes * m_readingScale, FittingScale());
    const double by = std::clamp(now * factor, std::min(least, now), std::max(most, now)) / now;
    scale(by, by);
    Scaled();
    PanBy(inView - mapFromScene(before));
}

void PanView::PanBy(const QPoint& pixels)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - pixels.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - pixels.y());
    m_isFitted = false;
}

void PanView::mousePressEvent(QMouseEvent* event)
{
    m_pressed = m_panned = event->position().toPoint();
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        m_mayPan = true;
        m_isPanning = event->button() == Qt::MiddleButton;
    }
}

void PanView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint now = event->position().toPoint();
    m_isPanning = m_isPanning ||
                  (m_mayPan && (now - m_pressed).manhattanLength() >= QApplication::startDragDistance());
    if (m_isPanning) {
        viewport()->setCursor(Qt::ClosedHandCursor);
        PanBy(now - m_panned);
        m_panned = now;
    }
}

void PanView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_mayPan && !m_isPanning && event->button() == Qt::LeftButton) {
        emit NothingPicked();
    }
    m_mayPan = false;
    m_isPanning = false;
    viewport()->setCursor(Qt::ArrowCursor);
}

void PanView::wheelEvent(QWheelEvent* event)
{
    constexpr double Notch = 120.0;
    ZoomAbout(event->position().toPoint(), std::pow(WheelStep, event->angleDelta().y() / Notch));
    event->accept();
}

void PanView::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const QSize step = viewport()->size() / KeySteps;
    const int page = viewport()->height() - step.height();
    QPoint by;
    switch (event->key()) {
    case Qt::Key_Left: by = {step.width(), 0}; break;
    case Qt::Key_Right: by = {-step.width(), 0}; break;
    case Qt::Key_Up: by = {0, step.height()}; break;
    case Qt::Key_Down: by = {0, -step.height()}; break;
    case Qt::Key_PageUp: by = {0, page}; break;
    case Qt::Key_PageDown: by = {0, -page}; break;
    default: break;
    }
    if (!plain || by.isNull()) {
        event->ignore();
        return;
    }
    PanBy(by);
}

void PanView::showEvent(QShowEvent* event)
{
    QGraphicsView::showEvent(event);
    if (m_isFitted) {
        Fit();
    }
}

void PanView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_isFitted) {
        Fit();
    }
}

}  // namespace Desk
