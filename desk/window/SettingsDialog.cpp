#include "desk/window/SettingsDialog.h"

#include <algorithm>

namespace Desk {

SettingsDialog::SettingsDialog(QWidget& over, const QList<QMenu*>& choices)
    : QDialog(&over), m_rows(new QFormLayout), m_buttons(new QDialogButtonBox(QDialogButtonBox::Close))
{
    setObjectName("settings");
    auto* const column = new QVBoxLayout(this);
    column->addLayout(m_rows);
    column->addWidget(m_buttons);
    for (QMenu* const menu : choices) {
        auto* const box = new QComboBox;
        box->setObjectName(QStringLiteral("choice%1").arg(m_choices.size()));
        m_rows->addRow(QStringLiteral(" "), box);
        m_choices.emplace_back(box, menu);
        connect(box, &QComboBox::activated, this,
                [menu](int entry) { menu->actions().at(entry)->trigger(); });
    }
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    Retranslate();
}

void SettingsDialog::AddNumber(const char* name, const char* caption, const char* unit,
                               std::pair<int, int> range, int value,
                               const std::function<void(int)>& changed)
{
    auto* const box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(range.first, range.second);
    box->setValue(value);
    m_rows->addRow(QStringLiteral(" "), box);
    m_numbers.push_back({box, caption, unit});
    connect(box, &QSpinBox::valueChanged, this, changed);
    Retranslate();
}

void SettingsDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
}

// The caption is the box's accessible name too.
void SettingsDialog::SetCaption(QWidget& field, const QString& caption)
{
    qobject_cast<QLabel*>(m_rows->labelForField(&field))->setText(caption);
}

void SettingsDialog::Retranslate()
{
    setWindowTitle(tr("Settings"));
    m_buttons->button(QDialogButtonBox::Close)->setText(tr("Close"));
    for (const auto& [box, menu] : m_choices) {
        SetCaption(*box, menu->title());
        const QList<QAction*> entries = menu->actions();
        box->clear();
        for (const QAction* const entry : entries) {
            box->addItem(entry->text());
        }
        const auto isChecked = [](const QAction* entry) { return entry->isChecked(); };
        const auto checked = std::find_if(entries.begin(), entries.end(), isChecked);
        box->setCurrentIndex(static_cast<int>(checked - entries.begin()));
    }
    for (const Number& number : m_numbers) {
        SetCaption(*number.box, QCoreApplication::translate("Desk", number.caption));
        const QStringList unit =
            QCoreApplication::translate("Desk", number.unit).split(QStringLiteral("%1"));
        number.box->setPrefix(unit.front());
        number.box->setSuffix(unit.back());
    }
}

}  // namespace Desk
