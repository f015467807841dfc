#include "desk/window/ChoiceModel.h"

#include <algorithm>

#include "desk/window/ChoiceDelegate.h"

namespace Desk {

namespace {

constexpr int Groups = 3;

int GroupOf(Source source)
{
    switch (source) {
    case Source::Guess: return 1;
    case Source::Table: return 2;
    default: return 0;
    }
}

}  // namespace

void ChoiceModel::SetRanking(const Ranking* ranking, const QString& present, bool areNames)
{
    m_ranking = ranking;
    m_present = present;
    m_areNames = areNames;
}

int ChoiceModel::Narrow(const QString& typed)
{
    beginResetModel();
    m_rows.clear();
    int same = -1;
    int begins = -1;
    const auto count = static_cast<int>(m_ranking != nullptr ? m_ranking->candidates.size() : 0);
    for (int group = 0; group < Groups; ++group) {
        bool hasTitle = false;
        for (int i = 0; i < count; ++i) {
            const Candidate& candidate = m_ranking->candidates[static_cast<std::size_t>(i)];
            if (GroupOf(candidate.source) != group) {
                continue;
            }
            const QString text = typed.isEmpty() ? QString() : QString::fromStdString(candidate.text);
            if (!text.contains(typed, Qt::CaseInsensitive)) {
                continue;
            }
            if (!hasTitle) {
                m_rows.push_back(-1 - group);
                hasTitle = true;
            }
            const auto row = static_cast<int>(m_rows.size());
            m_rows.push_back(i);
            if (!typed.isEmpty() && text.startsWith(typed, Qt::CaseInsensitive)) {
                begins = begins < 0 ? row : begins;
                same = text.size() == typed.size() ? row : same;
            }
        }
    }
    endResetModel();
    const int first = m_rows.empty() ? -1 : 1;
    return typed.isEmpty() ? FirstMark() : same >= 0 ? same : begins >= 0 ? begins : first;
}

int ChoiceModel::FirstMark() const
{
    if (m_rows.empty() || (m_areNames && !m_present.isEmpty())) {
        return -1;
    }
    const std::string present = m_present.toStdString();
    const auto isPresent = [&](int number) {
        return number >= 0 && m_ranking->candidates[static_cast<std::size_t>(number)].text == present;
    };
    auto found = std::find_if(m_rows.begin(), m_rows.end(), isPresent);
    if (found == m_rows.end() && m_ranking->focus >= 0) {
        found = std::find(m_rows.begin(), m_rows.end(), m_ranking->focus);
    }
    return found == m_rows.end() ? 1 : static_cast<int>(found - m_rows.begin());
}

int ChoiceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

bool ChoiceModel::IsChoice(int row) const
{
    return row >= 0 && row < rowCount() && m_rows[static_cast<std::size_t>(row)] >= 0;
}

QVariant ChoiceModel::data(const QModelIndex& index, int role) const
{
    const int number = m_rows.at(static_cast<std::size_t>(index.row()));
    if (number < 0) {
        return role == Qt::DisplayRole           ? QVariant(TitleOf(-1 - number))
               : role == ChoiceDelegate::IsAside ? QVariant(true)
                                                 : QVariant();
    }
    const Candidate& candidate = m_ranking->candidates[static_cast<std::size_t>(number)];
    const bool isFocus = number == m_ranking->focus;
    switch (role) {
    case Qt::DisplayRole: return QString::fromStdString(candidate.text);
    case Qt::FontRole:
        if (QFont bold; QString::fromStdString(candidate.text) == m_present) {
            bold.setBold(true);
            return bold;
        }
        return {};
    case Qt::ToolTipRole:
        return !isFocus     ? QVariant()
               : m_areNames ? tr("The first free name")
                            : tr("The last text that the project supports");
    case ChoiceDelegate::Lead: return isFocus ? QVariant(QStringLiteral("▸")) : QVariant();
    case ChoiceDelegate::AtRight: return UsesOf(candidate);
    default: return {};
    }
}

Qt::ItemFlags ChoiceModel::flags(const QModelIndex& index) const
{
    return IsChoice(index.row()) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                                 : Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

QString ChoiceModel::TitleOf(int group) const
{
    return group == 1   ? tr("Guesses")
           : group == 2 ? tr("From the table")
           : m_areNames ? tr("Free names of the project's kinds")
                        : tr("In the project");
}

QString ChoiceModel::UsesOf(const Candidate& candidate) const
{
    QString uses = candidate.uses > 0 ? tr("%1 x").arg(candidate.uses) : QString();
    if (m_areNames && candidate.uses > 0 && !candidate.writings.empty()) {
        uses += QLatin1Char(' ') + QString::fromStdString(candidate.writings.front().text);
    }
    return uses;
}

}  // namespace Desk
