#include "desk/window/ChoiceBox.h"

namespace Desk {

ChoiceBox::ChoiceBox(QWidget* parent)
    : QWidget(parent), m_owner(new QLabel), m_present(new QLabel), m_typed(new QLineEdit),
      m_proposals(new ProposalRows), m_rows(new ChoiceRows), m_table(new QCheckBox),
      m_panel(new QPushButton)
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
    column->addWidget(m_proposals);
    column->addWidget(m_rows, 1);
    column->addLayout(buttons);

    m_typed->installEventFilter(this);
    connect(m_typed, &QLineEdit::textChanged, this, [this] { m_rows->Narrow(Typed()); });
    connect(m_typed, &QLineEdit::textEdited, this, [this] { SetTyping(true); });
    connect(m_proposals, &ProposalRows::Taken, this, &ChoiceBox::ProposalTaken);
    connect(m_proposals, &ProposalRows::BeamTaken, this, &ChoiceBox::BeamTaken);
    connect(m_rows, &ChoiceRows::Taken, this, &ChoiceBox::Taken);
    connect(m_table, &QCheckBox::toggled, this, &ChoiceBox::TableToggled);
    connect(m_panel, &QPushButton::clicked, this, &ChoiceBox::PanelAsked);
    Retranslate();
    Clear();
}

void ChoiceBox::SetChoices(const QString& owner, const QString& field, const QString& present,
                           const Proposed& proposed, const Ranking& ranking, bool areNames)
{
    m_isEmpty = false;
    setEnabled(true);
    m_owner->setText(owner + QStringLiteral("   ") + field);
    m_present->setText(present.isEmpty() ? tr("no text yet") : present);
    {
        const QSignalBlocker quiet(m_typed);
        m_typed->setText(QString());  // not to be taken back within the line
    }
    m_proposals->Fill(proposed, present);
    SetTyping(false);
    m_rows->Fill(&ranking, present, areNames);
}

void ChoiceBox::Clear()
{
    m_isEmpty = true;
    setEnabled(false);
    m_owner->setText(tr("Click an annotation in the drawing"));
    m_present->clear();
    m_proposals->Fill({}, {});
    m_rows->Fill(nullptr, {}, false);
    m_typed->setText(QString());
    SetTyping(false);
}

void ChoiceBox::StartTyping(const QString& first)
{
    m_typed->setFocus(Qt::ShortcutFocusReason);
    m_typed->setText(m_typed->text() + first);
    SetTyping(true);
}

// While a text is typed digits are its characters, and the proposals show no keys.
void ChoiceBox::SetTyping(bool typing)
{
    m_isTyping = typing;
    m_proposals->SetKeysTake(!typing);
    m_typed->setPlaceholderText(!m_proposals->HasKeys() ? tr("Type to narrow, Enter takes")
                                                        : tr("Enter to type, 1 to 3 take a proposal"));
}

void ChoiceBox::Take(const QString& text)
{
    if (!text.isEmpty()) {
        emit Taken(text);
        emit Left();
    }
}

// Keys that an empty line has no use for are the window's.
bool ChoiceBox::IsForWindow(const QKeyEvent& key) const
{
    const bool stepsByBeam =
        key.modifiers() == Qt::ControlModifier && (key.key() == Qt::Key_Left || key.key() == Qt::Key_Right);
    const bool clears =
        key.key() == Qt::Key_Delete && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return m_typed->text().isEmpty() &&
           (stepsByBeam || clears || key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo));
}

bool ChoiceBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && IsForWindow(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        SetTyping(true);
    }
    return (event->type() == QEvent::KeyPress && HandleKey(*static_cast<QKeyEvent*>(event))) ||
           QWidget::eventFilter(watched, event);
}

bool ChoiceBox::HandleKey(const QKeyEvent& key)
{
    const bool isEmpty = m_typed->text().isEmpty();
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: SetTyping(true); return m_rows->MoveMark(key.key());
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!m_isTyping) {
            SetTyping(true);
        } else if (key.modifiers().testFlag(Qt::ControlModifier)) {  // as typed, whatever the rows hold
            Take(Typed());
        } else {
            const QString marked = m_rows->Marked();
            Take(marked.isEmpty() ? Typed() : marked);  // what no row contains is taken as typed
        }
        return true;
    case Qt::Key_Escape:
        if (isEmpty) {
            emit Left();
        } else {
            m_typed->clear();
        }
        SetTyping(false);
        return true;
    case Qt::Key_Space:
        if (isEmpty) {
            emit GoOn();
        }
        return isEmpty;
    default: return isEmpty && TakeByKey(key.text());
    }
}

void ChoiceBox::Retranslate()
{
    SetTyping(false);
    m_proposals->Retranslate();
    m_typed->setAccessibleName(tr("Text"));
    m_rows->setAccessibleName(tr("Texts"));
    setAccessibleName(tr("Texts"));
    m_typed->setToolTip(tr("Enter takes the marked text, Ctrl+Enter the text as typed.\n"
                           "In the drawing 1 to 3 take a proposal and 0 the whole beam's; Enter, Ctrl+T or "
                           "a click here first types a text that begins with such a digit."));
    m_table->setText(tr("&Table rows"));
    m_table->setToolTip(tr("Rows of the reference table for the beam's width and required steel"));
    m_panel->setText(tr("Compose... (F4)"));
    m_panel->setToolTip(tr("Opens the panel that composes the text by mouse (F4)"));
    if (m_isEmpty) {
        m_owner->setText(tr("Click an annotation in the drawing"));
    }
}

}  // namespace Desk
