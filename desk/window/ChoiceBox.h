// ChoiceBox: the texts for the chosen annotation: proposals, each taken by a click or its key, and the
// ranked ones, narrowed by typing and taken by a click or Enter.
#pragma once

#include "desk/Toolkit.h"
#include "desk/window/ChoiceRows.h"
#include "desk/window/ProposalRows.h"

namespace Desk {

class ChoiceBox : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget* parent = nullptr);

    // What the texts are for, the text that is there now, and the texts on offer; the ranking is borrowed
    // until the next one.
    void SetChoices(const QString& owner, const QString& field, const QString& present,
                    const Proposed& proposed, const Ranking& ranking, bool areNames);
    // Nothing is chosen.
    void Clear();
    // Takes a proposal by its key; false for a character that is a text's.
    bool TakeByKey(const QString& key) { return isEnabled() && m_proposals->TakeByKey(key); }
    // Puts the keyboard into the box, where digits are characters of a text now; a first one may come
    // along.
    void StartTyping(const QString& first = QString());

    [[nodiscard]] bool WantsTable() const { return m_table->isChecked(); }
    void SetPanelEnabled(bool enabled) { m_panel->setEnabled(enabled); }
    void Retranslate();

signals:
    void Taken(const QString& text);
    void ProposalTaken(const QString& text, const QString& reason);
    void BeamTaken();  // what is proposed for the whole beam
    void GoOn();       // Space: to the next annotation without a text
    void PanelAsked();
    void TableToggled();
    void Left();  // Esc or a text taken by a key: the keyboard goes back to the drawing

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QString Typed() const { return m_typed->text().trimmed(); }
    void Take(const QString& text);
    void SetTyping(bool typing);
    [[nodiscard]] bool IsForWindow(const QKeyEvent& key) const;
    bool HandleKey(const QKeyEvent& key);

    QLabel* m_owner;
    QLabel* m_present;
    QLineEdit* m_typed;
    ProposalRows* m_proposals;
    ChoiceRows* m_rows;
    QCheckBox* m_table;
    QPushButton* m_panel;
    bool m_isEmpty = true;
    bool m_isTyping = false;
};

}  // namespace Desk
