// PropertyGrid: all that the chosen beam or wall carries, one property a row.
#pragma once

#include <optional>

#include "desk/Toolkit.h"
#include "desk/project/Fields.h"

namespace Desk {

class PropertyGrid : public QTreeWidget {
    Q_OBJECT

public:
    explicit PropertyGrid(QWidget* parent = nullptr);

    // Shows the owner of the place and marks its row; nothing for none. Does not signal.
    void Show(const Project& project, const std::optional<FieldRef>& place);
    // Where the place's value stands, in pixels of the screen; null when it is not in the grid.
    [[nodiscard]] QRect OnScreen(const FieldRef& place) const;
    // Starts editing the marked row in place.
    void EditMarked();
    // Ends editing in place and signals at once what it made.
    void CommitEdit();

signals:
    void Picked(const Desk::FieldRef& place);
    void PanelAsked(const Desk::FieldRef& place);
    void Edited(const Desk::FieldRef& place, const QString& text);

private:
    void AddText(const Project& project, const FieldRef& place);
    void AddFixed(const QString& caption, const QString& value);
    [[nodiscard]] std::optional<FieldRef> PlaceOf(const QTreeWidgetItem* row) const;
    [[nodiscard]] QTreeWidgetItem* RowOf(const FieldRef& place) const;

    void TellEdited();

    std::optional<FieldRef> m_owner;                       // its field does not count
    std::optional<std::pair<FieldRef, QString>> m_edited;  // not yet told
    bool m_isFilling = false;
};

}  // namespace Desk
