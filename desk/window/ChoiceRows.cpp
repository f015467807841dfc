#include "desk/window/ChoiceRows.h"

#include "desk/window/ChoiceDelegate.h"

namespace Desk {

ChoiceRows::ChoiceRows(QWidget* parent) : QListView(parent)
{
    setObjectName("choices");
    setModel(&m_model);
    setItemDelegate(new ChoiceDelegate(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setFocusPolicy(Qt::NoFocus);  // the keyboard stays in the line above
    connect(this, &QListView::clicked, this, [this](const QModelIndex& at) {
        if (m_model.IsChoice(at.row())) {
            emit Taken(at.data().toString());
        }
    });
}

void ChoiceRows::Fill(const Ranking* ranking, const QString& present, bool areNames)
{
    m_model.SetRanking(ranking, present, areNames);
    Mark(m_model.Narrow({}), PositionAtCenter);
}

void ChoiceRows::Narrow(const QString& typed) { Mark(m_model.Narrow(typed)); }

void ChoiceRows::Mark(int row, ScrollHint hint)
{
    setCurrentIndex(m_model.index(row));
    if (row >= 0) {
        scrollTo(currentIndex(), hint);
    }
}

QString ChoiceRows::Marked() const
{
    const QModelIndex at = currentIndex();
    return m_model.IsChoice(at.row()) ? at.data().toString() : QString();
}

bool ChoiceRows::MoveMark(int key)
{
    constexpr int Page = 10;  // rows
    const int by = key == Qt::Key_Down || key == Qt::Key_PageDown ? 1 : -1;
    int row = currentIndex().row();
    if (row < 0) {
        Mark(m_model.rowCount() > 0 ? 1 : -1);
        return m_model.rowCount() > 0;
    }
    for (int left = key == Qt::Key_Up || key == Qt::Key_Down ? 1 : Page; left > 0; --left) {
        int next = row + by;
        while (next >= 0 && next < m_model.rowCount() && !m_model.IsChoice(next)) {
            next += by;
        }
        row = m_model.IsChoice(next) ? next : row;
    }
    Mark(row);
    return true;
}

}  // namespace Desk
