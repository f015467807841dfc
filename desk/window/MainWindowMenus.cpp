// Menus, keys, and their texts in the interface's language.
#include <algorithm>
#include <iterator>

#include "desk/window/MainWindow.h"

namespace Desk {

namespace {

// A menu's text without the key that Chinese menus append and without dots: "保存(&S)" is "保存".
QString OnToolBar(QString text)
{
    static const QRegularExpression key(QStringLiteral("\\(&.\\)"));
    return text.remove(key).remove(QLatin1Char('&')).remove(QStringLiteral("..."));
}

}  // namespace

QAction* MainWindow::Add(const char* objectName, const char* name, const char* hint,
                         const QKeySequence& keys, void (MainWindow::*slot)())
{
    auto* const action = new QAction(this);
    action->setObjectName(objectName);
    action->setShortcut(keys);
    if (slot != nullptr) {
        connect(action, &QAction::triggered, this, slot);
    }
    addAction(action);
    m_commands.push_back({action, name, hint});
    m_actions.insert(objectName, action);
    return action;
}

void MainWindow::MakeActions()
{
    Add("open", "&Open...", "Opens a project file", QKeySequence::Open, &MainWindow::AskOpen);
    Add("sample", "Open the &sample", "Opens the sample project", {}, &MainWindow::OpenSample);
    Add("save", "&Save", "Saves the project", QKeySequence::Save, &MainWindow::SaveNow);
    Add("saveAs", "Save &as...", "Saves under another name", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
        &MainWindow::SaveAsNow);
    connect(Add("quit", "&Quit", "Ends the program", QKeySequence(Qt::CTRL | Qt::Key_Q), nullptr),
            &QAction::triggered, this, &QWidget::close);
    QUndoStack& changes = m_document.Changes();
    QAction* const undo = Add("undo", "&Undo", "Takes the last change back", QKeySequence::Undo, nullptr);
    QAction* const redo = Add("redo", "&Redo", "Makes the change again", QKeySequence::Redo, nullptr);
    connect(undo, &QAction::triggered, &changes, &QUndoStack::undo);
    connect(redo, &QAction::triggered, &changes, &QUndoStack::redo);
    connect(&changes, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&changes, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    undo->setEnabled(false);
    redo->setEnabled(false);
    Add("find", "&Find...", "Finds annotations", QKeySequence::Find, &MainWindow::StartSearch);
    Add("findNext", "Find &next", "The next annotation found", Qt::Key_F3, &MainWindow::FindNext);
    Add("findPrevious", "Find &previous", "The annotation found before", Qt::SHIFT | Qt::Key_F3,
        &MainWindow::FindPrevious);
    Add("type", "&Type a text", "Goes to the texts for the annotation", Qt::CTRL | Qt::Key_T,
        &MainWindow::StartTyping);
    Add("edit", "&Edit in place", "Edits the property", Qt::Key_F2, &MainWindow::StartEditing);
    Add("panel", "&Compose in the panel", "Opens the panel on the present text", Qt::Key_F4,
        &MainWindow::OpenPanel);
    Add("nextField", "Next &annotation", "The next annotation of the beam", Qt::CTRL | Qt::Key_Down,
        &MainWindow::NextField);
    Add("previousField", "Annotation &before", "The annotation of the beam before this one",
        Qt::CTRL | Qt::Key_Up, &MainWindow::PreviousField);
    Add("nextOwner", "Next &beam", "The same annotation of the next beam", Qt::CTRL | Qt::Key_Right,
        &MainWindow::NextOwner);
    Add("previousOwner", "Beam be&fore", "The same annotation of the beam before", Qt::CTRL | Qt::Key_Left,
        &MainWindow::PreviousOwner);
    Add("fit", "&Fit", "Shows the whole floor", Qt::CTRL | Qt::Key_0, &MainWindow::Fit);
    Add("zoomIn", "Zoom &in", "Shows less, larger", QKeySequence::ZoomIn, &MainWindow::ZoomIn);
    Add("zoomOut", "Zoom &out", "Shows more, smaller", QKeySequence::ZoomOut, &MainWindow::ZoomOut);
    Add("about", "&About beamdesk", "What this is", {}, &MainWindow::About);
}

void MainWindow::MakeMenus()
{
    const auto menu = [this](const char* name, std::initializer_list<const char*> actions) {
        QMenu* const made = menuBar()->addMenu(QString());
        m_menus.push_back({made, name});
        for (const char* const action : actions) {
            if (action == nullptr) {
                made->addSeparator();
            } else {
                made->addAction(m_actions.value(action));
            }
        }
        return made;
    };
    QMenu* const file = menu("&File", {"open", "sample", nullptr, "save", "saveAs", nullptr, "quit"});
    m_recent = new QMenu(this);
    m_menus.push_back({m_recent, "Open &recent"});
    file->insertMenu(m_actions.value("sample"), m_recent);
    FillRecent();
    menu("&Edit", {"undo", "redo", nullptr, "find", "findNext", "findPrevious"});
    menu("&Annotation",
         {"type", "edit", "panel", nullptr, "nextField", "previousField", "nextOwner", "previousOwner"});
    menu("&View", {"fit", "zoomIn", "zoomOut", nullptr});
    MakeChoiceMenus();
    menu("&Help", {"about"});

    QToolBar* const bar = addToolBar(QString());
    bar->setObjectName("toolBar");
    bar->setMovable(false);
    bar->toggleViewAction()->setEnabled(false);  // the search lives in it
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const char* const action : {"open", "save", "undo", "redo", "panel", "fit"}) {
        bar->addAction(m_actions.value(action));
    }
}

// The view's settings: one of several each.
void MainWindow::MakeChoiceMenus()
{
    QMenu* const view = m_menus.back().first;
    for (QDockWidget* const dock : {m_choiceDock, m_propertyDock, m_sketchDock}) {
        view->addAction(dock->toggleViewAction());
    }
    view->addSeparator();
    const auto choices = [this, view](const char* name, std::initializer_list<const char*> names, int now,
                                      auto chosen) {
        auto* const submenu = new QMenu(this);
        view->addMenu(submenu);
        m_menus.push_back({submenu, name});
        auto* const group = new QActionGroup(submenu);
        int number = 0;
        for (const char* const each : names) {
            QAction* const action = submenu->addAction(QString());
            action->setCheckable(true);
            action->setChecked(number == now);
            group->addAction(action);
            m_commands.push_back({action, each, nullptr});
            connect(action, &QAction::triggered, this, [number, chosen] { chosen(number); });
            ++number;
        }
    };
    choices("&Language", {"As the system", "中文", "English"}, m_settings.value("language", 0).toInt(),
            [this](int number) { SetLanguage(static_cast<Language>(number)); });
    choices("&Appearance", {"As the system", "Light", "Dark"}, m_settings.value("appearance", 0).toInt(),
            [this](int number) { SetAppearance(static_cast<Appearance>(number)); });
    static constexpr double Zooms[] = {1.0, 1.25, 1.5, 2.0};
    const double zoom = m_settings.value("panelZoom", Zooms[1]).toDouble();
    const auto at = std::find(std::begin(Zooms), std::end(Zooms), zoom) - std::begin(Zooms);
    choices("&Panel size", {"100 %", "125 %", "150 %", "200 %"}, static_cast<int>(at), [this](int number) {
        m_settings.setValue("panelZoom", Zooms[number]);
        m_display.SetZoom(Zooms[number]);
    });
}

void MainWindow::MakeSearch()
{
    auto* const bar = findChild<QToolBar*>("toolBar");
    auto* const gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    m_search = new QLineEdit;
    m_search->setObjectName("search");
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(260);
    bar->addWidget(m_search);
    // Once, though Enter on a completed name tells of it twice: by the line and by the completer.
    m_findSoon.setSingleShot(true);
    connect(&m_findSoon, &QTimer::timeout, this, &MainWindow::FindNext);
    connect(m_search, &QLineEdit::returnPressed, &m_findSoon, qOverload<>(&QTimer::start));
}

void MainWindow::SetAppearance(Appearance appearance)
{
    m_settings.setValue("appearance", static_cast<int>(appearance));
    const bool dark = ApplyAppearance(appearance);
    m_floor->SetDark(dark);
    m_properties->Show(m_document.Get(), std::nullopt);  // its rows and the marks have the old colours
    ShowChosen();
}

void MainWindow::SetLanguage(Language language)
{
    m_settings.setValue("language", static_cast<int>(language));
    ApplyLanguage(language);
    Retranslate();
}

void MainWindow::Retranslate()
{
    for (const Command& command : m_commands) {
        const QString text = tr(command.name);
        command.action->setText(text);
        command.action->setIconText(OnToolBar(text));
        if (command.hint != nullptr) {
            const QString keys = command.action->shortcut().toString(QKeySequence::NativeText);
            const QString hint = tr(command.hint);
            command.action->setStatusTip(hint);
            command.action->setToolTip(keys.isEmpty() ? hint : QStringLiteral("%1 (%2)").arg(hint, keys));
        }
    }
    for (const auto& [menu, name] : m_menus) {
        menu->setTitle(tr(name));
    }
    m_choiceDock->setWindowTitle(tr("Texts"));
    m_propertyDock->setWindowTitle(tr("Properties"));
    m_sketchDock->setWindowTitle(tr("Section"));
    m_search->setPlaceholderText(tr("Find a name or text (Ctrl+F)"));
    m_properties->Show(m_document.Get(), std::nullopt);  // its captions have the old language
    ShowChosen();
    ShowTitle();
}

void MainWindow::About()
{
    QMessageBox::about(this, QStringLiteral("beamdesk"),
                       tr("A small drafting desk for the annotations of reinforced-concrete beams and "
                          "walls: it offers the texts that you most likely want, and panels that compose "
                          "them by mouse."));
}

}  // namespace Desk
