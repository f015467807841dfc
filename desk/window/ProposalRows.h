// ProposalRows: the texts that an annotation most likely gets and a set for the whole beam, each with its
// reason and the key that takes it.
#pragma once

#include <optional>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/ranking/Proposals.h"

namespace Desk {

// What is proposed for an annotation.
struct Proposed {
    static constexpr std::size_t Most = 3;

    std::vector<Proposal> texts;
    std::optional<BeamProposal> beam;
    // Texts have keys: a name that is there is changed by a click alone.
    bool haveKeys = true;
};

class ProposalRows : public QListView {
    Q_OBJECT

public:
    explicit ProposalRows(QWidget* parent = nullptr);

    // The present text, where it is among them, is bold.
    void Fill(const Proposed& proposed, const QString& present);
    // Whether keys take: they do not while a text is typed.
    void SetKeysTake(bool take);
    [[nodiscard]] bool HasKeys() const { return m_keysTake && m_keys.join(QString()).size() > 0; }
    // Takes what a key, "1" to "3" or "0" for the whole beam, is for; false where it is for nothing.
    bool TakeByKey(const QString& key);
    void Retranslate();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

signals:
    void Taken(const QString& text, const QString& reason);
    void BeamTaken();

private:
    void Add(const QString& key, const QString& text, const QString& reason, const QString& tip);
    void Take(int row);
    void ShowKeys();

    Proposed m_proposed;
    QStandardItemModel m_rows;
    QStringList m_keys;  // of the rows, empty for a row without one
    bool m_keysTake = true;
};

}  // namespace Desk
