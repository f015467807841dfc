// ChoiceBox: the ranked texts for the chosen annotation, narrowed by typing, taken by a click or Enter.
#pragma once

#include "desk/Toolkit.h"
#include "desk/window/ChoiceRows.h"

namespace Desk {

class ChoiceBox : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget* parent = nullptr);

    // What the texts are for, the text that is there now, and the texts on offer: see ChoiceRows::Fill.
    void SetChoices(const QString& owner, const QString& field, const QString& present,
                    const Ranking& ranking, bool areNames);
    // Nothing is chosen.
    void Clear();
    // Puts the keyboard into the box; a first character may come along.
    void StartTyping(const QString& first = QString());

    [[nodiscard]] bool WantsTable() const { return m_table->isChecked(); }
    void SetPanelEnabled(bool enabled) { m_panel->setEnabled(enabled); }
    void Retranslate();

signals:
    void Taken(const QString& text);
    void PanelAsked();
    void TableToggled();
    void Left();  // Esc: the keyboard goes back to the drawing

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QString Typed() const { return m_typed->text().trimmed(); }
    void Take(const QString& text);
    [[nodiscard]] bool IsForWindow(const QKeyEvent& key) const;

    QLabel* m_owner;
    QLabel* m_present;
    QLineEdit* m_typed;
    ChoiceRows* m_rows;
    QCheckBox* m_table;
    QPushButton* m_panel;
    bool m_isEmpty = true;
};

}  // namespace Desk
