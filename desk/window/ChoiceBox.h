// ChoiceBox: the ranked texts for the chosen annotation, narrowed by typing, taken by a click or Enter.
#pragma once

#include "desk/Toolkit.h"
#include "desk/ranking/Ranking.h"

namespace Desk {

class ChoiceBox : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget* parent = nullptr);

    // What the texts are for and what stands there now. The row to begin with is that of the present
    // text, or else the ranker's focus. Free names do not hold the present one: no row is marked then, so
    // that Enter renames nothing by mistake.
    void SetChoices(const QString& owner, const QString& field, const QString& present,
                    const Ranking& ranking, bool areNames);
    // Nothing is chosen.
    void Clear();
    // Puts the keyboard into the box; a first character may come along.
    void StartTyping(const QString& first = QString());

    [[nodiscard]] bool WantsTable() const { return m_table->isChecked(); }
    void SetPanelEnabled(bool enabled) { m_panel->setEnabled(enabled); }
    // The button that opens the panel, for its place on the screen.
    [[nodiscard]] QWidget* PanelButton() const { return m_panel; }

signals:
    void Taken(const QString& text);
    void PanelAsked();
    void TableToggled();
    void Left();  // Esc: the keyboard goes back to the drawing

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    void FillGroup(const QString& title, const Ranking& ranking, bool (*belongs)(Source));
    void AddRow(QTreeWidgetItem* group, const Candidate& candidate, bool focus);
    void Narrow();
    void Take(QTreeWidgetItem* row);
    void TakeTyped();
    bool MoveRow(int key);
    [[nodiscard]] bool IsForWindow(const QKeyEvent& key) const;

    QLabel* m_owner;
    QLabel* m_present;
    QLineEdit* m_typed;
    QTreeWidget* m_rows;
    QCheckBox* m_table;
    QPushButton* m_panel;
    QTreeWidgetItem* m_first = nullptr;  // the row to begin with
    QString m_presentText;
    Ranking m_ranking;
    QIcon m_noMark;
    bool m_areNames = false;
    bool m_isEmpty = true;
};

}  // namespace Desk
