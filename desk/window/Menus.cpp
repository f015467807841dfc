#include "desk/window/Menus.h"

namespace Desk {

namespace {

// A row of the menus: a menu's title, a command in it, or a line between commands.
struct Row {
    const char* command = nullptr;  // null for a title and a line
    const char* text = nullptr;     // null for a line
    const char* hint = nullptr;
    QKeySequence::StandardKey standardKey = QKeySequence::UnknownKey;
    QKeyCombination key = QKeyCombination::fromCombined(0);  // where there is no standard one
};

constexpr Row Title(const char* text) { return {nullptr, text}; }
constexpr Row Line{};

constexpr const char* RecentTitle = QT_TRANSLATE_NOOP("Desk", "Open &recent");
constexpr const char* ViewTitle = QT_TRANSLATE_NOOP("Desk", "&View");

// clang-format off
constexpr Row Rows[] = {
    Title(QT_TRANSLATE_NOOP("Desk", "&File")),
    {"new", QT_TRANSLATE_NOOP("Desk", "&New..."), QT_TRANSLATE_NOOP("Desk", "Makes an empty floor with its axes"), QKeySequence::New},
    {"open", QT_TRANSLATE_NOOP("Desk", "&Open..."), QT_TRANSLATE_NOOP("Desk", "Opens a project file or a drawing"), QKeySequence::Open},
    Title(RecentTitle),
    {"sample", QT_TRANSLATE_NOOP("Desk", "Open the &sample"), QT_TRANSLATE_NOOP("Desk", "Opens the sample project")},
    Line,
    {"save", QT_TRANSLATE_NOOP("Desk", "&Save"), QT_TRANSLATE_NOOP("Desk", "Saves the project or the drawing"), QKeySequence::Save},
    {"saveAs", QT_TRANSLATE_NOOP("Desk", "Save &as..."), QT_TRANSLATE_NOOP("Desk", "Saves under another name"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_S},
    Line,
    {"import", QT_TRANSLATE_NOOP("Desk", "&Import..."), QT_TRANSLATE_NOOP("Desk", "Makes a project of a drawing, or of the texts of one")},
    {"export", QT_TRANSLATE_NOOP("Desk", "&Export..."), QT_TRANSLATE_NOOP("Desk", "Writes a drawing (DXF) or a plan (PDF, SVG)"), {}, Qt::CTRL | Qt::Key_E},
    {"print", QT_TRANSLATE_NOOP("Desk", "&Print..."), QT_TRANSLATE_NOOP("Desk", "Prints the plan"), QKeySequence::Print},
    {"quantities", QT_TRANSLATE_NOOP("Desk", "Quan&tities..."), QT_TRANSLATE_NOOP("Desk", "Lists the steel, the concrete and the formwork that the floor takes")},
    Line,
    {"quit", QT_TRANSLATE_NOOP("Desk", "&Quit"), QT_TRANSLATE_NOOP("Desk", "Ends the program"), {}, Qt::CTRL | Qt::Key_Q},

    Title(QT_TRANSLATE_NOOP("Desk", "&Edit")),
    {"undo", QT_TRANSLATE_NOOP("Desk", "&Undo"), QT_TRANSLATE_NOOP("Desk", "Takes the last change back"), QKeySequence::Undo},
    {"redo", QT_TRANSLATE_NOOP("Desk", "&Redo"), QT_TRANSLATE_NOOP("Desk", "Makes the change again"), QKeySequence::Redo},
    Line,
    {"copyText", QT_TRANSLATE_NOOP("Desk", "&Copy the text"), QT_TRANSLATE_NOOP("Desk", "Copies the chosen annotation"), QKeySequence::Copy},
    {"copyTexts", QT_TRANSLATE_NOOP("Desk", "Copy all texts of the &beam"), QT_TRANSLATE_NOOP("Desk", "Copies all annotations of the chosen beam or wall but its name"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_C},
    {"paste", QT_TRANSLATE_NOOP("Desk", "&Paste"), QT_TRANSLATE_NOOP("Desk", "Gives what was copied to all chosen annotations"), QKeySequence::Paste},
    {"repeat", QT_TRANSLATE_NOOP("Desk", "Repeat the &last"), QT_TRANSLATE_NOOP("Desk", "Gives the text that was taken last to all chosen annotations"), {}, Qt::Key_Period},
    {"match", QT_TRANSLATE_NOOP("Desk", "&Match"), QT_TRANSLATE_NOOP("Desk", "Gives the chosen text to what is clicked; of a name all texts of its beam"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_M},
    Line,
    {"allSame", QT_TRANSLATE_NOOP("Desk", "Choose all with this &text"), QT_TRANSLATE_NOOP("Desk", "Chooses all annotations of the field that have the same text"), {}, Qt::CTRL | Qt::Key_G},
    {"allLike", QT_TRANSLATE_NOOP("Desk", "Choose all l&ike this beam"), QT_TRANSLATE_NOOP("Desk", "Chooses the annotation in all beams of the same type and section"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_G},
    Line,
    {"replace", QT_TRANSLATE_NOOP("Desk", "Find and r&eplace..."), QT_TRANSLATE_NOOP("Desk", "Replaces a text in the annotations of one kind or all"), {}, Qt::CTRL | Qt::Key_H},
    {"find", QT_TRANSLATE_NOOP("Desk", "&Find..."), QT_TRANSLATE_NOOP("Desk", "Finds annotations"), QKeySequence::Find},
    {"findNext", QT_TRANSLATE_NOOP("Desk", "Find &next"), QT_TRANSLATE_NOOP("Desk", "The next annotation found"), {}, Qt::Key_F3},
    {"findPrevious", QT_TRANSLATE_NOOP("Desk", "Find &previous"), QT_TRANSLATE_NOOP("Desk", "The previous annotation found"), {}, Qt::SHIFT | Qt::Key_F3},
    {"findAlike", QT_TRANSLATE_NOOP("Desk", "Find others with this &text"), QT_TRANSLATE_NOOP("Desk", "The next annotation with the same text"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_F},

    Title(QT_TRANSLATE_NOOP("Desk", "&Draw")),
    {"beam", QT_TRANSLATE_NOOP("Desk", "&Beam"), QT_TRANSLATE_NOOP("Desk", "New beams, each between two positions"), {}, Qt::CTRL | Qt::Key_B},
    {"wall", QT_TRANSLATE_NOOP("Desk", "&Wall"), QT_TRANSLATE_NOOP("Desk", "New walls, each between two positions"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_B},
    Line,
    {"copy", QT_TRANSLATE_NOOP("Desk", "&Copy"), QT_TRANSLATE_NOOP("Desk", "Copies the chosen beam or wall to other positions"), {}, Qt::CTRL | Qt::Key_D},
    {"move", QT_TRANSLATE_NOOP("Desk", "&Move"), QT_TRANSLATE_NOOP("Desk", "Moves the chosen beam or wall"), {}, Qt::CTRL | Qt::Key_M},
    {"turnRound", QT_TRANSLATE_NOOP("Desk", "&Turn round"), QT_TRANSLATE_NOOP("Desk", "Its end becomes its start"), {}, Qt::CTRL | Qt::Key_R},
    {"delete", QT_TRANSLATE_NOOP("Desk", "&Delete"), QT_TRANSLATE_NOOP("Desk", "Deletes the chosen beam or wall; of a drawing its label"), {}, Qt::CTRL | Qt::Key_Delete},

    Title(QT_TRANSLATE_NOOP("Desk", "&Annotation")),
    {"type", QT_TRANSLATE_NOOP("Desk", "&Type a text"), QT_TRANSLATE_NOOP("Desk", "Goes to the texts for the annotation"), {}, Qt::CTRL | Qt::Key_T},
    {"edit", QT_TRANSLATE_NOOP("Desk", "&Edit in place"), QT_TRANSLATE_NOOP("Desk", "Edits the property"), {}, Qt::Key_F2},
    {"panel", QT_TRANSLATE_NOOP("Desk", "&Compose in the panel"), QT_TRANSLATE_NOOP("Desk", "Opens the panel on the present text"), {}, Qt::Key_F4},
    Line,
    {"inPlace", QT_TRANSLATE_NOOP("Desk", "Text in p&lace..."), QT_TRANSLATE_NOOP("Desk", "One more text of the beam, at one support or along one span"), {}, Qt::CTRL | Qt::Key_I},
    {"clear", QT_TRANSLATE_NOOP("Desk", "&Remove"), QT_TRANSLATE_NOOP("Desk", "Removes the chosen annotation"), QKeySequence::Delete},
    Line,
    {"nextEmpty", QT_TRANSLATE_NOOP("Desk", "Next &without a text"), QT_TRANSLATE_NOOP("Desk", "The next annotation that a text is wanted for"), {}, Qt::Key_F6},
    {"nextProblem", QT_TRANSLATE_NOOP("Desk", "Next pr&oblem"), QT_TRANSLATE_NOOP("Desk", "The next annotation that has a problem"), {}, Qt::Key_F8},
    {"previousProblem", QT_TRANSLATE_NOOP("Desk", "Previous proble&m"), QT_TRANSLATE_NOOP("Desk", "The previous annotation that has a problem"), {}, Qt::SHIFT | Qt::Key_F8},
    {"nextField", QT_TRANSLATE_NOOP("Desk", "Next &annotation"), QT_TRANSLATE_NOOP("Desk", "The next annotation of the beam"), {}, Qt::CTRL | Qt::Key_Down},
    {"previousField", QT_TRANSLATE_NOOP("Desk", "&Previous annotation"), QT_TRANSLATE_NOOP("Desk", "The previous annotation of the beam"), {}, Qt::CTRL | Qt::Key_Up},
    {"nextOwner", QT_TRANSLATE_NOOP("Desk", "Next &beam"), QT_TRANSLATE_NOOP("Desk", "The same annotation of the next beam"), {}, Qt::CTRL | Qt::Key_Right},
    {"previousOwner", QT_TRANSLATE_NOOP("Desk", "P&revious beam"), QT_TRANSLATE_NOOP("Desk", "The same annotation of the previous beam"), {}, Qt::CTRL | Qt::Key_Left},

    Title(ViewTitle),
    {"fit", QT_TRANSLATE_NOOP("Desk", "&Fit"), QT_TRANSLATE_NOOP("Desk", "Shows the whole floor"), {}, Qt::CTRL | Qt::Key_0},
    {"zoomIn", QT_TRANSLATE_NOOP("Desk", "Zoom &in"), QT_TRANSLATE_NOOP("Desk", "Shows less, larger"), QKeySequence::ZoomIn},
    {"zoomOut", QT_TRANSLATE_NOOP("Desk", "Zoom &out"), QT_TRANSLATE_NOOP("Desk", "Shows more, smaller"), QKeySequence::ZoomOut},
    Line,

    Title(QT_TRANSLATE_NOOP("Desk", "&Help")),
    {"about", QT_TRANSLATE_NOOP("Desk", "&About beamdesk"), QT_TRANSLATE_NOOP("Desk", "What this program is")},
};
// clang-format on

// On the plan, null for a line.
constexpr const char* PlanMenu[] = {
    "panel",     "type",  "edit",  "inPlace", "clear",     nullptr,     "copyText", "paste",
    "repeat",    "match", nullptr, "allSame", "allLike",   "findAlike", nullptr,    "nextField",
    "nextOwner", nullptr, "copy",  "move",    "turnRound", "delete",    nullptr,    "fit"};
constexpr const char* OnBar[] = {"open", "save", "undo", "redo", "panel", "fit"};

QString Translated(const char* text) { return QCoreApplication::translate("Desk", text); }

// A menu's text without the key that Chinese menus append and without dots: "保存(&S)" is "保存".
QString OnToolBar(QString text)
{
    static const QRegularExpression key(QStringLiteral("\\(&.\\)"));
    return text.remove(key).remove(QLatin1Char('&')).remove(QStringLiteral("..."));
}

}  // namespace

Menus::Menus(QMainWindow& window)
    : QObject(&window), m_window(window), m_bar(window.addToolBar(QString())), m_onPlan(new QMenu(&window))
{
    QMenu* menu = nullptr;
    for (const Row& row : Rows) {
        if (row.text == nullptr) {
            menu->addSeparator();
        } else if (row.text == RecentTitle) {
            m_recent = menu->addMenu(QString());
            m_titles.push_back({m_recent, row.text});
        } else if (row.command == nullptr) {
            menu = window.menuBar()->addMenu(QString());
            m_titles.push_back({menu, row.text});
            m_view = row.text == ViewTitle ? menu : m_view;
        } else {
            auto* const action = new QAction(&window);
            action->setObjectName(row.command);
            action->setShortcut(row.standardKey != QKeySequence::UnknownKey ? QKeySequence(row.standardKey)
                                                                            : QKeySequence(row.key));
            window.addAction(action);
            menu->addAction(action);
            m_texts.push_back({action, row.text, row.hint});
        }
    }
    m_bar->setObjectName("toolBar");
    m_bar->setMovable(false);
    m_bar->toggleViewAction()->setEnabled(false);  // the search is in it
    m_bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const char* const command : PlanMenu) {
        if (command != nullptr) {
            m_onPlan->addAction(&Command(command));
        } else {
            m_onPlan->addSeparator();
        }
    }
    for (const char* const command : OnBar) {
        m_bar->addAction(&Command(command));
    }
}

QAction& Menus::Command(const char* name) const
{
    return *m_window.findChild<QAction*>(name, Qt::FindDirectChildrenOnly);
}

void Menus::Undoes(QUndoStack& changes)
{
    On("undo", &changes, &QUndoStack::undo);
    On("redo", &changes, &QUndoStack::redo);
    connect(&changes, &QUndoStack::canUndoChanged, &Command("undo"), &QAction::setEnabled);
    connect(&changes, &QUndoStack::canRedoChanged, &Command("redo"), &QAction::setEnabled);
    Command("undo").setEnabled(changes.canUndo());
    Command("redo").setEnabled(changes.canRedo());
}

void Menus::AddChoice(const char* title, std::initializer_list<const char*> entries, int checked,
                      const std::function<void(int)>& chosen)
{
    QMenu* const menu = m_view->addMenu(QString());
    m_titles.push_back({menu, title});
    auto* const group = new QActionGroup(menu);
    int number = 0;
    for (const char* const entry : entries) {
        QAction* const action = menu->addAction(QString());
        action->setCheckable(true);
        action->setChecked(number == checked);
        group->addAction(action);
        m_texts.push_back({action, entry, nullptr});
        connect(action, &QAction::triggered, this, [number, chosen] { chosen(number); });
        ++number;
    }
}

void Menus::Retranslate()
{
    for (const Texts& texts : m_texts) {
        const QString name = Translated(texts.name);
        texts.action->setText(name);
        texts.action->setIconText(OnToolBar(name));
        if (texts.hint != nullptr) {
            const QString keys = texts.action->shortcut().toString(QKeySequence::NativeText);
            const QString hint = Translated(texts.hint);
            texts.action->setStatusTip(hint);
            texts.action->setToolTip(keys.isEmpty() ? hint : QStringLiteral("%1 (%2)").arg(hint, keys));
        }
    }
    for (const auto& [menu, title] : m_titles) {
        menu->setTitle(Translated(title));
    }
}

}  // namespace Desk
