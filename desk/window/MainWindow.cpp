// The parts of the window and how they hang together.
#include "desk/window/MainWindow.h"

#include "desk/project/Failure.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Folders.h"

namespace Desk {

MainWindow::MainWindow(QtDisplay& display, QWidget* parent)
    : QMainWindow(parent), m_document(RecoveryFolder()), m_panels(display), m_display(display),
      m_floor(new FloorView(this)), m_choices(new ChoiceBox(this)), m_properties(new PropertyGrid(this)),
      m_sketch(new SectionSketch(this))
{
    setObjectName("desk");
    setMinimumSize(640, 420);  // the tool bar with its search, and something of the drawing
    m_floor->setObjectName("drawing");
    m_sketch->setObjectName("sketch");
    setCentralWidget(m_floor);
    MakeDocks();
    MakeActions();
    MakeMenus();
    MakeSearch();
    m_counts = new QLabel(this);
    statusBar()->addPermanentWidget(m_counts);
    Connect();
    m_display.SetZoom(m_settings.value("panelZoom", 1.25).toDouble());
    SetAppearance(static_cast<Appearance>(m_settings.value("appearance", 0).toInt()));
    SetLanguage(static_cast<Language>(m_settings.value("language", 0).toInt()));
    resize(QSize(1440, 900).boundedTo(screen()->availableSize()));
    restoreGeometry(m_settings.value("geometry").toByteArray());
    restoreState(m_settings.value("state").toByteArray());
    m_floor->setFocus();
}

void MainWindow::MakeDocks()
{
    const auto dock = [this](QWidget* inside, const char* name) {
        auto* const made = new QDockWidget(this);
        made->setObjectName(name);
        made->setWidget(inside);
        made->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable |
                          QDockWidget::DockWidgetClosable);
        addDockWidget(Qt::RightDockWidgetArea, made);
        return made;
    };
    m_choiceDock = dock(m_choices, "choiceDock");
    m_propertyDock = dock(m_properties, "propertyDock");
    m_sketchDock = dock(m_sketch, "sketchDock");
    resizeDocks({m_choiceDock, m_propertyDock, m_sketchDock}, {340, 260, 280}, Qt::Vertical);
    resizeDocks({m_choiceDock, m_propertyDock, m_sketchDock}, {340, 340, 340}, Qt::Horizontal);
}

void MainWindow::Connect()
{
    connect(m_floor, &FloorView::Picked, this, [this](const FieldRef& place) { Choose(place); });
    connect(m_floor, &FloorView::NothingPicked, this, [this] { Choose(std::nullopt); });
    connect(m_floor, &FloorView::PanelAsked, this, [this](const FieldRef& place) {
        Choose(place);
        OpenPanel();
    });
    connect(m_choices, &ChoiceBox::Taken, this, [this](const QString& text) {
        if (m_chosen) {
            Take(*m_chosen, text);
        }
    });
    connect(m_choices, &ChoiceBox::PanelAsked, this, &MainWindow::OpenPanel);
    connect(m_choices, &ChoiceBox::TableToggled, this, &MainWindow::ShowChoices);
    connect(m_choices, &ChoiceBox::Left, m_floor, [this] { m_floor->setFocus(); });
    connect(m_properties, &PropertyGrid::Picked, this, [this](const FieldRef& place) { Choose(place); });
    connect(m_properties, &PropertyGrid::Edited, this, &MainWindow::Take);
    connect(m_properties, &PropertyGrid::PanelAsked, this, [this](const FieldRef& place) {
        if (CommitEdit()) {
            Choose(place);
            m_panels.Open(place, QString::fromStdString(TextAt(m_document.Get(), place)),
                          m_properties->OnScreen(place), this);
        }
    });
    connect(&m_panels, &PanelHost::Composed, this, &MainWindow::Take);
    connect(&m_display, &QtDisplay::Shown, this, [this] {
        statusBar()->showMessage(tr("Panel: left button picks, right button takes the text, Esc leaves"));
    });
    connect(&m_display, &QtDisplay::Hidden, statusBar(), [this] { statusBar()->clearMessage(); });
    connect(&m_document, &Document::TextChanged, this, [this](const FieldRef& place) {
        m_floor->Refresh(place);
        Choose(place);  // undo and redo go where they change something
    });
    connect(&m_document, &Document::Replaced, this, [this] {
        m_panels.Close();  // it serves a place of the project before
        m_chosen.reset();
        m_floor->SetProject(&m_document.Get());
        FillSearchWords();
        ShowChosen();
    });
    connect(&m_document, &Document::FileChanged, this, &MainWindow::ShowTitle);
    connect(&m_document, &Document::RecoveryFailed, this,
            [this](const QString& why) { statusBar()->showMessage(why); });
    connect(&m_document.Changes(), &QUndoStack::cleanChanged, this, &MainWindow::ShowTitle);
}

void MainWindow::Choose(const std::optional<FieldRef>& place)
{
    m_chosen = place && Exists(m_document.Get(), *place) ? place : std::nullopt;
    statusBar()->clearMessage();  // it told of something else
    ShowChosen();
}

void MainWindow::OpenPanel()
{
    if (!m_chosen || !PanelHost::HasPanel(*m_chosen) || !CommitEdit()) {
        return;
    }
    const QRect inDrawing = m_floor->OnScreen(*m_chosen);
    const QRect drawing(m_floor->mapToGlobal(QPoint()), m_floor->size());
    const bool visible = m_floor->isVisible() && drawing.intersects(inDrawing);
    m_panels.Open(*m_chosen, QString::fromStdString(TextAt(m_document.Get(), *m_chosen)),
                  visible ? inDrawing : m_properties->OnScreen(*m_chosen), this);
}

void MainWindow::Take(const FieldRef& place, const QString& text)
{
    if (!Exists(m_document.Get(), place)) {
        return;  // of a project that is gone
    }
    const QString owner = OwnerName(m_document.Get(), place);  // a new name changes it
    const std::string before = TextAt(m_document.Get(), place);
    const QString refusal = m_document.SetText(place, text);
    m_isRefused = !refusal.isEmpty();
    if (m_isRefused) {
        Report(tr("The text was not taken"), refusal);
        ShowChosen();
        return;
    }
    const std::string& now = TextAt(m_document.Get(), place);
    if (now == before) {
        ShowChosen();  // a change has shown itself
    }
    statusBar()->showMessage(
        QStringLiteral("%1, %2: %3").arg(owner, FieldName(place.field), QString::fromStdString(now)));
}

bool MainWindow::CommitEdit()
{
    m_isRefused = false;
    m_properties->CommitEdit();
    return !m_isRefused;
}

// In the dock that holds the texts, wherever it is.
void MainWindow::TypeChoice(const QString& first)
{
    m_choiceDock->show();
    m_choiceDock->raise();
    m_choices->window()->activateWindow();  // it may float
    m_choices->StartTyping(first);
}

void MainWindow::ShowChosen()
{
    m_floor->SetChosen(m_chosen);
    m_properties->Show(m_document.Get(), m_chosen);
    const bool beam = m_chosen && !m_chosen->isWall;
    m_sketch->SetBeam(beam ? &m_document.Get().beams[m_chosen->index] : nullptr,
                      beam ? m_chosen->field : Field::TopBars);
    ShowChoices();
}

void MainWindow::ShowChoices()
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
        statusBar()->showMessage(QString::fromStdString(failure.what()));
    }
    m_choices->SetChoices(OwnerName(project, *m_chosen), FieldName(m_chosen->field),
                          QString::fromStdString(TextAt(project, *m_chosen)), ranking,
                          m_chosen->field == Field::Name);
    m_choices->SetPanelEnabled(PanelHost::HasPanel(*m_chosen));
}

void MainWindow::ShowTitle()
{
    const QString name =
        m_document.File().isEmpty() ? tr("Sample project") : QFileInfo(m_document.File()).fileName();
    setWindowTitle(QStringLiteral("%1[*] - beamdesk").arg(name));
    setWindowModified(m_document.IsChanged());
    const Project& project = m_document.Get();
    m_counts->setText(tr("%1 beams, %2 walls").arg(project.beams.size()).arg(project.walls.size()));
}

// A character typed in the drawing begins to narrow the texts.
void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (m_search->hasFocus()) {  // what it has no use for is for nobody else
        if (event->key() == Qt::Key_Escape) {
            m_floor->setFocus();
        }
        return;
    }
    const QString text = event->text();
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    if (m_chosen && plain && !text.isEmpty() && text.front().isPrint() && text != QLatin1String(" ")) {
        TypeChoice(text);
    } else if (m_chosen && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        StartTyping();
    } else if (event->key() == Qt::Key_Escape) {
        if (!event->isAutoRepeat()) {  // the key may still be down from leaving a panel
            Choose(std::nullopt);
        }
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_search != nullptr) {
        Retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::Report(const QString& what, const QString& why)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("beamdesk"), what, QMessageBox::Ok, this);
    box.setObjectName("report");
    box.setInformativeText(why);
    box.exec();
}

}  // namespace Desk
