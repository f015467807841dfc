// PropertyGrid: the annotations and data of the chosen beam or wall, one property a row.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/project/Data.h"
#include "desk/project/Fields.h"

namespace Desk {

class PropertyGrid : public QTreeWidget {
    Q_OBJECT

public:
    explicit PropertyGrid(QWidget* parent = nullptr);

    // Shows the beam or wall of the annotation and marks its row; nothing for none. Does not signal.
    void Show(const Project& project, const std::optional<FieldRef>& ref);
    // The rectangle of the annotation's value, in pixels of the screen; null when it is not in the grid.
    [[nodiscard]] QRect OnScreen(const FieldRef& ref) const;
    // Starts editing the marked row in place.
    void EditMarked();
    // Ends editing in place and signals at once what it made.
    void CommitEdit();

signals:
    void Picked(const Desk::FieldRef& ref);
    void PanelAsked(const Desk::FieldRef& ref);
    void Edited(const Desk::FieldRef& ref, const QString& text);
    void DataEdited(const Desk::FieldRef& owner, Desk::Datum datum, const QString& text);

private:
    struct DataLine {
        Datum datum;
        QString caption;
        QString value;
    };
    struct Edit {
        FieldRef ref;
        std::optional<Datum> datum;  // nothing for the annotation itself
        QString text;
    };

    [[nodiscard]] static std::vector<DataLine> DataOf(const Project& project, const FieldRef& ref);
    void AddText(const FieldRef& ref);
    void AddData();
    void Fill(int row, const QString& caption, const QString& value);
    [[nodiscard]] std::optional<FieldRef> RefOf(QTreeWidgetItem* row) const;
    [[nodiscard]] QTreeWidgetItem* RowOf(const FieldRef& ref) const;

    void TellEdited();

    std::vector<FieldRef> m_refs;  // of the first rows
    std::vector<DataLine> m_data;  // of those after them
    std::optional<Edit> m_edited;  // not yet told
    bool m_isFilling = false;
};

}  // namespace Desk
