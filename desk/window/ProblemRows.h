// ProblemRows: what is wrong with the project, a problem a row.
#pragma once

#include "desk/Toolkit.h"
#include "desk/checks/Checks.h"

namespace Desk {

class ProblemRows : public QAbstractTableModel {
    Q_OBJECT

public:
    // Both borrowed.
    ProblemRows(const Project& project, const std::vector<Problem>& problems, QObject* parent);

    // Call Renew with what changes the problems.
    template <class Change>
    void Renew(const Change& change)
    {
        beginResetModel();
        change();
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Project& m_project;
    const std::vector<Problem>& m_problems;
};

}  // namespace Desk
