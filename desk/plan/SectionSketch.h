// SectionSketch: the cross section of one beam, drawn from its texts.
#pragma once

#include "desk/Project.h"
#include "desk/shell/Toolkit.h"

namespace Desk {

class SectionSketch : public QWidget {
    Q_OBJECT

public:
    explicit SectionSketch(QWidget* parent = nullptr);

    // Draws a beam, which is copied; null for an empty sketch.
    void SetBeam(const Beam* beam);
    void SetDark(bool dark);
};

}  // namespace Desk
