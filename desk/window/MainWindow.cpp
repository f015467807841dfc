#include "desk/window/MainWindow.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

#include "desk/window/FieldNames.h"
#include "desk/window/Folders.h"

namespace Desk {

MainWindow::MainWindow(QtDisplay& display, QWidget* parent)
    : QMainWindow(parent), m_document(RecoveryFolder()), m_panels(display), m_display(display),
      m_floor(new FloorView(this)), m_docks(new Docks(*this, m_document)),
      m_openTexts(new OpenTexts(m_document, *m_floor, this)),
      m_problems(new Problems(m_document, *m_floor, this)), m_menus(new Menus(*this)),
      m_selection(new Selection(m_document, *m_floor, *m_docks, m_panels, *this)),
      m_editing(new Editing(m_document, *m_selection, *this)),
      m_tools(new PlanTools(m_document, *m_floor, *m_editing)),
      m_files(new ProjectFiles(m_document, *this, m_menus->Recent(),
                               [this] { return m_selection->EndEdit(); })),
      m_exchanges(new ImportExport(m_document, *m_files, *this)), m_search(new SearchLine),
      m_counts(new QLabel(this)), m_help(new HelpWindow(*this))
{
    setObjectName("desk");
    m_counts->setObjectName("counts");
    // The tool bar with its search, and something of the drawing, on any screen and below a title bar.
    const QSize room =
        screen()->availableSize() - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    setMinimumSize(QSize(640, 420).boundedTo(room));
    m_floor->setObjectName("drawing");
    setCentralWidget(m_floor);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    addDockWidget(Qt::BottomDockWidgetArea, m_openTexts);
    addDockWidget(Qt::BottomDockWidgetArea, m_problems);
    resizeDocks({m_openTexts}, {150}, Qt::Vertical);
    setAcceptDrops(true);
    auto* const gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_menus->ToolBar().addWidget(gap);
    m_menus->ToolBar().addWidget(m_search);
    statusBar()->addPermanentWidget(&m_problems->Count());
    statusBar()->addPermanentWidget(m_counts);
    m_document.SetRecoveryDelay(std::chrono::seconds(Get(RecoverySeconds)));
    AddSettings();
    ConnectParts();
    ConnectCommands();
    m_display.SetZoom(m_settings.value("panelZoom", 1.25).toDouble());
    SetAppearance(static_cast<Appearance>(m_settings.value("appearance", 0).toInt()));
    SetLanguage(static_cast<Language>(m_settings.value("language", 0).toInt()));
    resize(QSize(1440, 900).boundedTo(room));
    restoreGeometry(m_settings.value("geometry").toByteArray());
    resize(size().boundedTo(room));
    m_floor->SetLeastTextSize(Get(TextPixels));
    restoreState(m_settings.value("state").toByteArray());
    m_floor->setFocus();
}

// The settings file may have been changed by hand.
int MainWindow::Get(const NumberSetting& setting) const
{
    return std::clamp(m_settings.value(setting.key, setting.usual).toInt(), setting.range.first,
                      setting.range.second);
}

// What the View menu sets: which docks show, and one of several each.
void MainWindow::AddSettings()
{
    m_menus->View().addActions(m_docks->Toggles());
    m_menus->View().addAction(m_openTexts->toggleViewAction());
    m_menus->View().addAction(m_problems->toggleViewAction());
    m_menus->View().addSeparator();
    m_menus->AddChoice(QT_TRANSLATE_NOOP("Desk", "&Language"),
                       {QT_TRANSLATE_NOOP("Desk", "As the system"), "中文", "English"},
                       m_settings.value("language", 0).toInt(),
                       [this](int number) { SetLanguage(static_cast<Language>(number)); });
    m_menus->AddChoice(QT_TRANSLATE_NOOP("Desk", "&Appearance"),
                       {QT_TRANSLATE_NOOP("Desk", "As the system"), QT_TRANSLATE_NOOP("Desk", "Light"),
                        QT_TRANSLATE_NOOP("Desk", "Dark")},
                       m_settings.value("appearance", 0).toInt(),
                       [this](int number) { SetAppearance(static_cast<Appearance>(number)); });
    static constexpr double Zooms[] = {1.0, 1.25, 1.5, 2.0};
    const double zoom = m_settings.value("panelZoom", Zooms[1]).toDouble();
    const auto at = std::find(std::begin(Zooms), std::end(Zooms), zoom) - std::begin(Zooms);
    m_menus->AddChoice(QT_TRANSLATE_NOOP("Desk", "&Panel size"), {"100 %", "125 %", "150 %", "200 %"},
                       static_cast<int>(at), [this](int number) {
                           m_settings.setValue("panelZoom", Zooms[number]);
                           m_display.SetZoom(Zooms[number]);
                       });
}

void MainWindow::ConnectParts()
{
    const auto show = [this](auto* part) {
        connect(part, &std::remove_pointer_t<decltype(part)>::Said, statusBar(),
                [this](const QString& text) { statusBar()->showMessage(text); });
    };
    show(m_selection);
    show(m_openTexts);
    show(m_problems);
    show(m_editing);
    show(m_tools);
    show(m_exchanges);
    show(m_files);
    connect(m_problems, &Problems::Picked, m_selection, &Selection::Choose);
    connect(m_docks, &Docks::DataEdited, m_editing, &Editing::SetData);
    connect(m_search, &SearchLine::Asked, this, [this] {
        m_floor->setFocus();  // where a character typed begins to narrow the texts
        m_selection->Find(m_search->Wanted(), 1);
    });
    connect(m_floor, &FloorView::MenuAsked, this,
            [this](const QPoint& at) { m_menus->OnPlan().popup(at); });
    connect(m_floor, &FloorView::TipAsked, this, [this](const FieldRef& ref, const QPoint& at) {
        QToolTip::showText(at, OwnerTip(m_document.Get(), ref), m_floor->viewport());
    });
    connect(m_files, &ProjectFiles::Saved, this, [this](const QString& file) {
        ShowTitle();
        statusBar()->showMessage(tr("Saved: %1").arg(file));
    });
    connect(&m_display, &QtDisplay::Shown, this, [this] {
        statusBar()->showMessage(
            tr("Panel: left button picks, right button or Enter takes the text, Esc leaves"));
    });
    connect(&m_display, &QtDisplay::Hidden, statusBar(), [this] { statusBar()->clearMessage(); });
    connect(&m_document, &Document::Replaced, m_search, [this] { m_search->Complete(m_document.Get()); });
    connect(&m_document, &Document::OwnersChanged, this, [this] {
        m_search->Complete(m_document.Get());
        ShowTitle();
    });
    connect(&m_document, &Document::FileChanged, this, &MainWindow::ShowTitle);
    connect(&m_document, &Document::RecoveryFailed, this,
            [this](const QString& why) { statusBar()->showMessage(why); });
    connect(&m_document.Changes(), &QUndoStack::cleanChanged, this, &MainWindow::ShowTitle);
}

void MainWindow::ShowTitle()
{
    const QString name = m_document.IsReadOnly() ? tr("%1 (read only)") : QStringLiteral("%1");
    setWindowTitle(QStringLiteral("%1[*] - beamdesk").arg(name.arg(m_document.Name())));
    setWindowModified(m_document.IsChanged());
    const Project& project = m_document.Get();
    m_counts->setText(tr("%1 beams, %2 walls").arg(project.beams.size()).arg(project.walls.size()));
}

void MainWindow::SetAppearance(Appearance appearance)
{
    m_settings.setValue("appearance", static_cast<int>(appearance));
    m_floor->SetDark(ApplyAppearance(appearance));
    m_docks->Redraw();
}

void MainWindow::SetLanguage(Language language)
{
    m_settings.setValue("language", static_cast<int>(language));
    ApplyLanguage(language);
    m_menus->Retranslate();
    m_search->Retranslate();
    m_openTexts->Retranslate();
    m_problems->Retranslate();
    m_tools->Retranslate();
    m_docks->Redraw();
    m_selection->Retranslate();
    m_counts->setToolTip(tr("The beams and walls of the project"));
    statusBar()->setAccessibleName(tr("Status line"));
    ShowTitle();
}

}  // namespace Desk
