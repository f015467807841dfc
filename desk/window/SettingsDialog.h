// SettingsDialog: what a person sets once and for all. Each setting acts at once.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "desk/Toolkit.h"

namespace Desk {

class SettingsDialog : public QDialog {
    Q_OBJECT

public:
    // A box for each menu, whose checked entry it shows and whose entries it triggers; the menus are
    // borrowed.
    SettingsDialog(QWidget& over, const QList<QMenu*>& choices);

    // A number from least to most; changed is called with each new one. Caption and unit, "%1 s", are
    // source texts of the context "Desk".
    void AddNumber(const char* name, const char* caption, const char* unit, std::pair<int, int> range,
                   int value, const std::function<void(int)>& changed);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Number {
        QSpinBox* box;
        const char* caption;
        const char* unit;
    };

    void Retranslate();
    void SetCaption(QWidget& field, const QString& caption);

    QFormLayout* m_rows;
    std::vector<std::pair<QComboBox*, QMenu*>> m_choices;
    std::vector<Number> m_numbers;
    QDialogButtonBox* m_buttons;
};

}  // namespace Desk
