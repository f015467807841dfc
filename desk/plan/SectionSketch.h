// SectionSketch: the cross section of one beam, drawn from its texts.
#pragma once

#include "desk/Toolkit.h"
#include "desk/plan/SectionLayout.h"

namespace Desk {

class SectionSketch : public QWidget {
    Q_OBJECT

public:
    explicit SectionSketch(QWidget* parent = nullptr);

    // Draws a beam where the field counts; null for an empty sketch. Keeps nothing of the beam.
    void SetBeam(const Beam* beam, Field field = Field::TopBars);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintConcrete(QPainter& painter, const QTransform& toWidget) const;
    void PaintSizes(QPainter& painter, const QRectF& section) const;
    [[nodiscard]] static QString SteelOf(const SectionNote& note);
    [[nodiscard]] int NotesWidth() const;
    void PaintNotes(QPainter& painter, const QRectF& room, const QRectF& section) const;
    [[nodiscard]] QString Spoken() const;
    [[nodiscard]] QStringList Warnings() const;
    [[nodiscard]] bool IsFaulty(Field field) const;
    [[nodiscard]] QColor Warning() const;

    bool m_isEmpty = true;
    Field m_field = Field::TopBars;
    SectionLayout m_layout;
};

}  // namespace Desk
