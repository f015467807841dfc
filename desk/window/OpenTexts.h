// OpenTexts: texts of a drawing that nothing ties to a beam for certain, and the pointing of each to its
// beam.
#pragma once

#include <optional>

#include "desk/Toolkit.h"
#include "desk/plan/FloorView.h"
#include "desk/window/Document.h"

namespace Desk {

class OpenTexts : public QDockWidget {
    Q_OBJECT

public:
    OpenTexts(Document& document, FloorView& floor, QWidget* parent);

    void Retranslate();
    // Leaves the text open whose beam was about to be pointed to.
    void EndPointing();

signals:
    void Said(const QString& text);  // for the status bar

private:
    void Fill();
    void StartPointing();
    void Take(const PlanPoint& at);
    // The number of the marked row, nothing for none.
    [[nodiscard]] std::optional<std::size_t> Marked() const;
    [[nodiscard]] QString TextOf(std::size_t row) const;

    Document& m_document;
    FloorView& m_floor;
    QTreeWidget* m_rows;
    QPushButton* m_point;
    std::vector<std::size_t> m_open;  // numbers of the rows' texts in the drawing
};

}  // namespace Desk
