#include "desk/window/ProblemRows.h"

#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

ProblemRows::ProblemRows(const Project& project, const std::vector<Problem>& problems, QObject* parent)
    : QAbstractTableModel(parent), m_project(project), m_problems(problems)
{
}

int ProblemRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_problems.size());
}

int ProblemRows::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 5; }

QVariant ProblemRows::data(const QModelIndex& index, int role) const
{
    const Problem& problem = m_problems[static_cast<std::size_t>(index.row())];
    if (role == Qt::ToolTipRole) {
        return QStringLiteral("%1\n%2").arg(Told(problem.message), Told(problem.rule->source));
    }
    if (role != Qt::DisplayRole || !Exists(m_project, problem.at)) {
        return {};
    }
    switch (index.column()) {
    case 0: return OwnerName(m_project, problem.at);
    case 1: return FieldName(m_project, problem.at);
    case 2: return QString::fromStdString(problem.text);
    case 3: return Told(problem.message);
    default: return Told(problem.rule->title);
    }
}

QVariant ProblemRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::ToolTipRole) {
        return tr("A click on a row chooses the annotation; its context menu switches the rule off");
    }
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const QString titles[] = {tr("Beam"), tr("Annotation"), tr("Text"), tr("Problem"), tr("Rule")};
    return titles[section];
}

}  // namespace Desk
