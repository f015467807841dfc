// ChoiceRows: ranked texts in groups by where they come from, one of them marked.
#pragma once

#include "desk/Toolkit.h"
#include "desk/window/ChoiceModel.h"

namespace Desk {

class ChoiceRows : public QListView {
    Q_OBJECT

public:
    explicit ChoiceRows(QWidget* parent = nullptr);

    // Borrows the ranking until the next one; null for none. See ChoiceModel for what is marked.
    void Fill(const Ranking* ranking, const QString& present, bool areNames);
    // Shows the rows that contain what was typed.
    void Narrow(const QString& typed);
    // Moves the mark by an arrow or page key; false when there is no row.
    bool MoveMark(int key);
    // The marked text, empty when no row is marked.
    [[nodiscard]] QString Marked() const;

signals:
    void Taken(const QString& text);  // by a click

private:
    void Mark(int row, ScrollHint hint = EnsureVisible);

    ChoiceModel m_model;
};

}  // namespace Desk
