#include "desk/window/Docks.h"

#include "desk/ranking/Ranking.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

void Raise(QDockWidget& dock)
{
    dock.show();
    dock.raise();
    dock.window()->activateWindow();  // it may float
}

}  // namespace

Docks::Docks(QMainWindow& window, const Document& document)
    : QObject(&window), m_document(document), m_choices(new ChoiceBox(&window)),
      m_properties(new PropertyGrid(&window)), m_sketch(new SectionSketch(&window)),
      m_choiceDock(AddDock(window, m_choices, "choiceDock")),
      m_propertyDock(AddDock(window, m_properties, "propertyDock")),
      m_sketchDock(AddDock(window, m_sketch, "sketchDock"))
{
    m_sketch->setObjectName("sketch");
    window.resizeDocks({m_choiceDock, m_propertyDock, m_sketchDock}, {340, 260, 280}, Qt::Vertical);
    window.resizeDocks({m_choiceDock, m_propertyDock, m_sketchDock}, {340, 340, 340}, Qt::Horizontal);

    connect(m_choices, &ChoiceBox::Taken, this, [this](const QString& text) {
        if (m_chosen) {
            emit Taken(*m_chosen, text);
        }
    });
    connect(m_choices, &ChoiceBox::PanelAsked, this, [this] {
        if (m_chosen) {
            emit PanelAsked(*m_chosen);
        }
    });
    connect(m_choices, &ChoiceBox::TableToggled, this, &Docks::ShowChoices);
    connect(m_choices, &ChoiceBox::Left, this, &Docks::Left);
    connect(m_properties, &PropertyGrid::Picked, this, &Docks::Picked);
    connect(m_properties, &PropertyGrid::Edited, this, &Docks::Taken);
    connect(m_properties, &PropertyGrid::DataEdited, this, &Docks::DataEdited);
    connect(m_properties, &PropertyGrid::PanelAsked, this, &Docks::PanelAskedInGrid);
}

QDockWidget* Docks::AddDock(QMainWindow& window, QWidget* inside, const char* name)
{
    auto* const dock = new QDockWidget(&window);
    dock->setObjectName(name);
    dock->setWidget(inside);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable |
                      QDockWidget::DockWidgetClosable);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    return dock;
}

QList<QAction*> Docks::Toggles() const
{
    return {m_choiceDock->toggleViewAction(), m_propertyDock->toggleViewAction(),
            m_sketchDock->toggleViewAction()};
}

void Docks::Show(const std::optional<FieldRef>& chosen)
{
    m_chosen = chosen;
    m_properties->Show(m_document.Get(), chosen);
    ShowSection();
    ShowChoices();
}

void Docks::ShowSection()
{
    if (!m_chosen || m_chosen->isWall) {
        m_sketch->SetBeam(nullptr);
        return;
    }
    const Beam& beam = m_document.Get().beams[m_chosen->index];
    if (m_chosen->inPlace < 0) {
        m_sketch->SetBeam(&beam, m_chosen->field);
        return;
    }
    const InPlace& text = beam.inPlace[static_cast<std::size_t>(m_chosen->inPlace)];
    const Beam at = BeamAt(beam, text);
    m_sketch->SetBeam(&at, FieldAt(beam, text));
}

void Docks::ShowChoices()
{
    if (!m_chosen) {
        m_choices->Clear();
        return;
    }
    const Project& project = m_document.Get();
    Ranking ranking;
    try {
        ranking = ChoicesFor(project, *m_chosen, m_choices->WantsTable());
    } catch (const Failure& failure) {
        emit Failed(Told(failure));
    }
    m_choices->SetChoices(OwnerName(project, *m_chosen), FieldName(project, *m_chosen),
                          QString::fromStdString(TextAt(project, *m_chosen)), ranking,
                          m_chosen->field == Field::Name);
    m_choices->SetPanelEnabled(PanelOf(*m_chosen) != PanelKind::None);
}

void Docks::Redraw()
{
    m_choiceDock->setWindowTitle(tr("Texts"));
    m_propertyDock->setWindowTitle(tr("Properties"));
    m_sketchDock->setWindowTitle(tr("Section"));
    m_choices->Retranslate();
    m_properties->Show(m_document.Get(), std::nullopt);  // its rows are made anew
    Show(m_chosen);
}

void Docks::StartTyping(const QString& first)
{
    Raise(*m_choiceDock);
    m_choices->StartTyping(first);
}

void Docks::StartEditing()
{
    Raise(*m_propertyDock);
    m_properties->EditMarked();
}

}  // namespace Desk
