// PropertyGrid: all that the chosen beam or wall carries, one property a row.
#pragma once

#include <optional>

#include "desk/Place.h"
#include "desk/shell/Toolkit.h"

namespace Desk {

class PropertyGrid : public QTreeWidget {
    Q_OBJECT

public:
    explicit PropertyGrid(QWidget* parent = nullptr);

    // Shows the owner of the place and marks its row; nothing for none. Does not signal.
    void Show(const Project& project, const std::optional<Place>& place);
    // Where the place's value stands, in pixels of the screen; null when it is not in the grid.
    [[nodiscard]] QRect OnScreen(const Place& place) const;
    // Starts editing the marked row in place.
    void EditMarked();
    // Ends editing in place and signals at once what it made.
    void CommitEdit();

signals:
    void Picked(const Desk::Place& place);
    void PanelAsked(const Desk::Place& place);
    void Edited(const Desk::Place& place, const QString& text);

private:
    void AddText(const Project& project, const Place& place);
    void AddFixed(const QString& caption, const QString& value);
    [[nodiscard]] std::optional<Place> PlaceOf(const QTreeWidgetItem* row) const;
    [[nodiscard]] QTreeWidgetItem* RowOf(const Place& place) const;

    void TellEdited();

    std::optional<Place> m_owner;                       // its field does not count
    std::optional<std::pair<Place, QString>> m_edited;  // not yet told
    bool m_isFilling = false;
};

}  // namespace Desk
