// ChoiceRows: ranked texts in groups by where they come from, one of them marked.
#pragma once

#include "desk/Toolkit.h"
#include "desk/ranking/Ranking.h"

namespace Desk {

class ChoiceRows : public QTreeWidget {
    Q_OBJECT

public:
    explicit ChoiceRows(QWidget* parent = nullptr);

    // Marks the row of the present text, or else that of the ranker's focus. Free names do not hold the
    // present one: no row is marked then, so that Enter renames nothing by mistake.
    void Fill(const Ranking& ranking, const QString& present, bool areNames);
    void Empty();
    // Shows the rows that contain what was typed, and marks the one that equals it, else the first one
    // that begins with it, else the first one.
    void Narrow(const QString& typed);
    // Moves the mark by an arrow or page key; false when there is no row.
    bool MoveMark(int key);
    // The marked text, empty when no row is marked.
    [[nodiscard]] QString Marked() const;

signals:
    void Taken(const QString& text);  // by a click

private:
    void AddGroup(const QString& title, const Ranking& ranking, bool (*belongs)(Source));
    void AddRow(QTreeWidgetItem* group, const Candidate& candidate, bool focus);
    void Mark(QTreeWidgetItem* row, QAbstractItemView::ScrollHint hint = QAbstractItemView::EnsureVisible);

    QTreeWidgetItem* m_first = nullptr;  // the row that is marked at first
    QString m_present;
    bool m_areNames = false;
    QIcon m_noMark;
};

}  // namespace Desk
