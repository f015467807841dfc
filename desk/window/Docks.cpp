#include "desk/window/Docks.h"

#include <utility>

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
    : QObject(&window), m_document(document), m_offers(document), m_choices(new ChoiceBox(&window)),
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
    connect(m_choices, &ChoiceBox::ProposalTaken, this, [this](const QString& text, const QString& reason) {
        if (m_chosen) {
            emit ProposalTaken({{*m_chosen, text}}, reason);
        }
    });
    connect(m_choices, &ChoiceBox::BeamTaken, this, &Docks::TakeForBeam);
    connect(m_choices, &ChoiceBox::GoOn, this, &Docks::GoOn);
    connect(m_choices, &ChoiceBox::PanelAsked, this, [this] {
        if (m_chosen) {
            emit PanelAsked(*m_chosen);
        }
    });
    connect(m_choices, &ChoiceBox::TableToggled, this, &Docks::ShowChoices);
    connect(m_choices, &ChoiceBox::Left, this, &Docks::Left);
    connect(m_properties, &PropertyGrid::Picked, this, &Docks::Picked);
    connect(m_properties, &PropertyGrid::Edited, this, &Docks::Edited);
    connect(m_properties, &PropertyGrid::DataEdited, this, &Docks::DataEdited);
    connect(m_properties, &PropertyGrid::PanelAsked, this, &Docks::PanelAskedInGrid);
    connect(&m_offers, &Offers::Renewed, this, [this] {
        m_chosen.reset();
        m_choices->Clear();
    });
    // A dock that comes into view catches up.
    connect(m_choiceDock, &QDockWidget::visibilityChanged, this, &Docks::ShowChoices);
    connect(m_propertyDock, &QDockWidget::visibilityChanged, this, &Docks::ShowProperties);
    connect(m_sketchDock, &QDockWidget::visibilityChanged, this, &Docks::ShowSection);
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

void Docks::Show(const std::optional<FieldRef>& chosen, std::size_t together)
{
    m_chosen = chosen;
    m_together = together;
    ShowProperties();
    ShowSection();
    ShowChoices();
}

// What is not in view is made when it comes into view.
void Docks::ShowProperties()
{
    if (m_properties->isVisible()) {
        m_properties->Show(m_document.Get(), m_chosen);
    }
}

void Docks::ShowSection()
{
    if (!m_sketch->isVisible()) {
        return;
    }
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
    if (!m_choices->isVisible()) {
        return;
    }
    static const Ranking none;
    const Project& project = m_document.Get();
    const Ranking* ranking = &none;
    try {
        ranking = &m_offers.RankingFor(*m_chosen, m_choices->WantsTable());
    } catch (const Failure& failure) {
        emit Failed(Told(failure));
    }
    const QString owner = OwnerName(project, *m_chosen);
    m_choices->SetChoices(m_together > 1 ? tr("%1 and %2 more").arg(owner).arg(m_together - 1) : owner,
                          FieldName(project, *m_chosen), QString::fromStdString(TextAt(project, *m_chosen)),
                          m_offers.ProposedFor(*m_chosen), *ranking, m_chosen->field == Field::Name);
    m_choices->SetPanelEnabled(PanelOf(*m_chosen) != PanelKind::None);
}

void Docks::TakeForBeam()
{
    const std::optional<BeamProposal> beam = m_chosen ? m_offers.ProposedFor(*m_chosen).beam : std::nullopt;
    if (beam) {
        std::vector<std::pair<FieldRef, QString>> texts;
        for (const auto& [ref, text] : beam->texts) {
            texts.emplace_back(ref, QString::fromStdString(text));
        }
        emit ProposalTaken(texts, Told(beam->reason));
    }
}

void Docks::Redraw()
{
    m_choiceDock->setWindowTitle(tr("Texts"));
    m_propertyDock->setWindowTitle(tr("Properties"));
    m_sketchDock->setWindowTitle(tr("Section"));
    m_choices->Retranslate();
    m_properties->setAccessibleName(m_propertyDock->windowTitle());
    m_sketch->setAccessibleName(m_sketchDock->windowTitle());
    m_properties->Show(m_document.Get(), std::nullopt);  // its rows are made anew
    Show(m_chosen, m_together);
}

void Docks::StartTyping(const QString& first)
{
    if (m_choices->isVisible() && m_choices->TakeByKey(first)) {
        return;
    }
    Raise(*m_choiceDock);
    m_choices->StartTyping(first);
}

void Docks::StartEditing()
{
    Raise(*m_propertyDock);
    ShowProperties();
    m_properties->EditMarked();
}

}  // namespace Desk
