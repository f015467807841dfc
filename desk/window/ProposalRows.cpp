#include "desk/window/ProposalRows.h"

#include <utility>

#include "desk/window/ChoiceDelegate.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

// How often a text is used where there is nothing else to say.
QString ReasonOf(const Proposal& proposal)
{
    const QString reason = Told(proposal.reason);
    return reason.isEmpty() ? ProposalRows::tr("used %1 x").arg(proposal.uses) : reason;
}

}  // namespace

ProposalRows::ProposalRows(QWidget* parent) : QListView(parent)
{
    setObjectName("proposals");
    setModel(&m_rows);
    setItemDelegate(new ChoiceDelegate(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::NoFocus);  // keys come from the drawing and from the line of texts
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(this, &QListView::clicked, this, [this](const QModelIndex& at) { Take(at.row()); });
    Retranslate();
}

void ProposalRows::Retranslate() { setAccessibleName(tr("Proposals")); }

void ProposalRows::Fill(const Proposed& proposed, const QString& present)
{
    m_proposed = proposed;
    m_rows.clear();
    m_keys.clear();
    for (const Proposal& proposal : m_proposed.texts) {
        const QString text = QString::fromStdString(proposal.text);
        QString reason = ReasonOf(proposal);
        const bool isPresent = text == present;
        reason = isPresent ? tr("as it is; %1").arg(reason) : reason;
        const QString key = m_proposed.haveKeys ? QString::number(m_keys.size() + 1) : QString();
        Add(key, text, reason, tr("%1\n%2\n%3 % of the votes").arg(text, reason).arg(proposal.share));
        if (isPresent) {
            QFont bold = font();
            bold.setBold(true);
            m_rows.item(m_rows.rowCount() - 1)->setFont(bold);
        }
    }
    if (m_proposed.beam) {
        QStringList texts;
        QStringList lines;
        for (const auto& [ref, text] : m_proposed.beam->texts) {
            texts << QString::fromStdString(text);
            lines << FieldName(ref.field) + QLatin1Char(' ') + texts.back();
        }
        const QString reason = Told(m_proposed.beam->reason);
        Add(QStringLiteral("0"), texts.join(QStringLiteral(", ")), reason,
            tr("The whole beam %1").arg(reason) + QLatin1Char('\n') + lines.join(QLatin1Char('\n')));
    }
    ShowKeys();
    setVisible(m_rows.rowCount() > 0);
    updateGeometry();
}

void ProposalRows::Add(const QString& key, const QString& text, const QString& reason, const QString& tip)
{
    auto* const row = new QStandardItem(text);
    row->setData(reason, ChoiceDelegate::After);
    row->setData(tip, Qt::ToolTipRole);
    row->setData(tr("%1: %2, %3").arg(key, text, reason), Qt::AccessibleTextRole);
    m_rows.appendRow(row);
    m_keys << key;
}

void ProposalRows::ShowKeys()
{
    for (int row = 0; row < m_rows.rowCount(); ++row) {
        m_rows.item(row)->setData(m_keysTake ? m_keys[row] : QString(), ChoiceDelegate::Lead);
    }
}

void ProposalRows::SetKeysTake(bool take)
{
    if (std::exchange(m_keysTake, take) != take) {
        ShowKeys();
    }
}

bool ProposalRows::TakeByKey(const QString& key)
{
    const qsizetype row = m_keysTake && !key.isEmpty() ? m_keys.indexOf(key) : -1;
    if (row < 0) {
        return false;
    }
    Take(static_cast<int>(row));
    return true;
}

void ProposalRows::Take(int row)
{
    const auto number = static_cast<std::size_t>(row);
    if (number < m_proposed.texts.size()) {
        const Proposal taken = m_proposed.texts[number];  // the rows are made anew in between
        emit Taken(QString::fromStdString(taken.text), ReasonOf(taken));
    } else {
        emit BeamTaken();
    }
}

QSize ProposalRows::sizeHint() const
{
    const int rows = m_rows.rowCount();
    return {200, rows > 0 ? rows * sizeHintForRow(0) + 2 * frameWidth() : 0};
}

}  // namespace Desk
