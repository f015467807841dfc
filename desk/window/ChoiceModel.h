// ChoiceModel: a ranking as rows in groups by where its texts come from. Nothing is made of a row before it
// shows, so that thousands of them cost nothing.
#pragma once

#include <vector>

#include "desk/Toolkit.h"
#include "desk/ranking/Ranking.h"

namespace Desk {

class ChoiceModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    // Shows all texts of the ranking, which is borrowed until the next one; null for none.
    void SetRanking(const Ranking* ranking, const QString& present, bool areNames);
    // Shows the texts that contain what was typed. Answers the row to mark, -1 for none: of the present
    // text, or else of the ranker's focus; when something was typed the one that equals it, else the first
    // one that begins with it, else the first one. Free names do not hold the present one: none is marked
    // then, so that Enter renames nothing by mistake.
    int Narrow(const QString& typed);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    // A text, no group's title.
    [[nodiscard]] bool IsChoice(int row) const;

private:
    [[nodiscard]] QString TitleOf(int group) const;
    [[nodiscard]] QString UsesOf(const Candidate& candidate) const;
    [[nodiscard]] int FirstMark() const;

    const Ranking* m_ranking = nullptr;
    std::vector<int> m_rows;  // number of the candidate, or -1 and below for the title of a group
    QString m_present;
    bool m_areNames = false;
};

}  // namespace Desk
