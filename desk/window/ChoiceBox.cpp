#include "desk/window/ChoiceBox.h"

namespace Desk {

ChoiceBox::ChoiceBox(QWidget* parent)
    : QWidget(parent), m_owner(new QLabel), m_present(new QLabel), m_typed(new QLineEdit),
      m_rows(new ChoiceRows), m_table(new QCheckBox), m_panel(new QPushButton)
{
    m_typed->setObjectName("typed");
    m_table->setObjectName("table");
    m_panel->setObjectName("panel");
    QFont large = m_owner->font();
    large.setBold(true);
    m_owner->setFont(large);
    m_present->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_typed->setClearButtonEnabled(true);

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_table);
    buttons->addStretch();
    buttons->addWidget(m_panel);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(m_owner);
    column->addWidget(m_present);
    column->addWidget(m_typed);
    column->addWidget(m_rows, 1);
    column->addLayout(buttons);

    m_typed->installEventFilter(this);
    connect(m_typed, &QLineEdit::textChanged, this, [this] { m_rows->Narrow(Typed()); });
    connect(m_rows, &ChoiceRows::Taken, this, &ChoiceBox::Taken);
    connect(m_table, &QCheckBox::toggled, this, &ChoiceBox::TableToggled);
    connect(m_panel, &QPushButton::clicked, this, &ChoiceBox::PanelAsked);
    Retranslate();
    Clear();
}

void ChoiceBox::SetChoices(const QString& owner, const QString& field, const QString& present,
                           const Ranking& ranking, bool areNames)
{
    m_isEmpty = false;
    setEnabled(true);
    m_owner->setText(owner + QStringLiteral("   ") + field);
    m_present->setText(present.isEmpty() ? tr("no text yet") : present);
    m_typed->setText(QString());  // not to be taken back within the line
    m_rows->Fill(ranking, present, areNames);
}

void ChoiceBox::Clear()
{
    m_isEmpty = true;
    setEnabled(false);
    m_owner->setText(tr("Click an annotation in the drawing"));
    m_present->clear();
    m_typed->setText(QString());
    m_rows->Empty();
}

void ChoiceBox::StartTyping(const QString& first)
{
    m_typed->setFocus(Qt::ShortcutFocusReason);
    m_typed->setText(m_typed->text() + first);
}

void ChoiceBox::Take(const QString& text)
{
    if (!text.isEmpty()) {
        emit Taken(text);
    }
}

// Keys that an empty line has no use for are the window's.
bool ChoiceBox::IsForWindow(const QKeyEvent& key) const
{
    const bool stepsByBeam =
        key.modifiers() == Qt::ControlModifier && (key.key() == Qt::Key_Left || key.key() == Qt::Key_Right);
    return m_typed->text().isEmpty() &&
           (stepsByBeam || key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo));
}

bool ChoiceBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && IsForWindow(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: return m_rows->MoveMark(key.key());
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (key.modifiers().testFlag(Qt::ControlModifier)) {  // as typed, whatever the rows hold
            Take(Typed());
        } else {
            const QString marked = m_rows->Marked();
            Take(marked.isEmpty() ? Typed() : marked);  // what no row contains is taken as typed
        }
        return true;
    case Qt::Key_Escape:
        if (m_typed->text().isEmpty()) {
            emit Left();
        } else {
            m_typed->clear();
        }
        return true;
    default: return QWidget::eventFilter(watched, event);
    }
}

void ChoiceBox::Retranslate()
{
    m_typed->setPlaceholderText(tr("Type to narrow, Enter takes"));
    m_typed->setToolTip(tr("Enter takes the marked text, Ctrl+Enter the text as typed"));
    m_table->setText(tr("&Table rows"));
    m_table->setToolTip(tr("Rows of the reference table for the beam's width and required steel"));
    m_panel->setText(tr("Compose... (F4)"));
    m_panel->setToolTip(tr("Opens the panel that composes the text by mouse"));
    if (m_isEmpty) {
        m_owner->setText(tr("Click an annotation in the drawing"));
    }
}

}  // namespace Desk
