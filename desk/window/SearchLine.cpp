#include "desk/window/SearchLine.h"

#include <algorithm>

namespace Desk {

SearchLine::SearchLine(QWidget* parent) : QLineEdit(parent)
{
    setObjectName("search");
    setClearButtonEnabled(true);
    setMaximumWidth(260);
    // Once, though Enter on a completed name is signalled twice: by the line and by the completer.
    m_askSoon.setSingleShot(true);
    connect(&m_askSoon, &QTimer::timeout, this, &SearchLine::Asked);
    connect(this, &QLineEdit::returnPressed, &m_askSoon, qOverload<>(&QTimer::start));
}

void SearchLine::Complete(const Project& project)
{
    QSet<QString> names;
    for (const Beam& beam : project.beams) {
        names.insert(QString::fromStdString(beam.name));
    }
    for (const Wall& wall : project.walls) {
        names.insert(QString::fromStdString(wall.name));
    }
    names.remove(QString());
    QStringList sorted(names.begin(), names.end());
    QCollator order;
    order.setNumericMode(true);
    std::sort(sorted.begin(), sorted.end(), order);
    auto* const made = new QCompleter(sorted, this);
    made->setCaseSensitivity(Qt::CaseInsensitive);
    made->setFilterMode(Qt::MatchContains);
    connect(made, qOverload<const QString&>(&QCompleter::activated), &m_askSoon,
            qOverload<>(&QTimer::start));
    delete completer();
    setCompleter(made);
}

void SearchLine::Start()
{
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void SearchLine::Retranslate()
{
    setPlaceholderText(tr("Find a name or text (Ctrl+F)"));
    setAccessibleName(tr("Find"));
    setToolTip(tr("Ctrl+F comes here, Enter goes to the first annotation with the text, F3 to the next, "
                  "Shift+F3 to the one before"));
}

}  // namespace Desk
