#include "desk/window/Shots.h"
#include "desk/project/Encoding.h"

#include <iostream>

#include "desk/project/Failure.h"
#include "desk/window/MainWindow.h"

namespace Desk {

namespace {

struct PanelShot {
    const char* file;
    Field field;
    bool wall;
};

constexpr PanelShot PanelShots[] = {
    {"panel-name", Field::Name, false},
    {"panel-section", Field::Section, false},
    {"panel-elevation", Field::Elevation, false},
    {"panel-stirrup", Field::Stirrup, false},
    {"panel-bars", Field::TopBars, false},
    {"picker-horizontal", Field::HorizontalBars, true},
    {"picker-vertical", Field::VerticalBars, true},
};

void SaveTo(const QDir& folder, const char* name, const QPixmap& picture)
{
    const QString file = folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
    if (!picture.save(file)) {
        throw Failure("the picture cannot be written: " + file.toStdString());
    }
    std::cout << file.toStdString() << "  " << picture.width() << " x " << picture.height() << '\n';
}

// The window with a panel over it, as on a screen.
QPixmap WithPanel(QWidget& window, QWidget& panel)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    painter.drawPixmap(window.mapFromGlobal(panel.mapToGlobal(QPoint())), panel.grab());
    return picture;
}

// The first beam or wall that has a text there, or else the first one.
FieldRef RefFor(const Project& project, const PanelShot& shot)
{
    const std::size_t count = shot.wall ? project.walls.size() : project.beams.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (const FieldRef ref{shot.wall, i, shot.field}; !TextAt(project, ref).empty()) {
            return ref;
        }
    }
    return {shot.wall, 0, shot.field};
}

// The texts for a beam in the middle that has none yet.
void ShootProposals(MainWindow& window, const QDir& folder)
{
    Document& document = window.TheDocument();
    const std::size_t beam = document.Get().beams.size() / 2;
    std::vector<std::pair<FieldRef, QString>> none;
    for (const Field field : {Field::Stirrup, Field::TopBars, Field::BottomBars, Field::Side}) {
        none.emplace_back(FieldRef{false, beam, field}, QString());
    }
    document.SetTexts(none);
    window.Choose(none.front().first);
    QCoreApplication::processEvents();
    SaveTo(folder, "proposals", window.findChild<QDockWidget*>("choiceDock")->grab());
    document.Changes().undo();
    document.DropRecoveryCopy();
}

void ShootPanels(MainWindow& window, const QDir& folder)
{
    const Project& project = window.TheDocument().Get();
    for (const PanelShot& shot : PanelShots) {
        const FieldRef ref = RefFor(project, shot);
        if (!Exists(project, ref)) {
            continue;
        }
        window.Choose(ref);
        window.OpenPanel();
        QCoreApplication::processEvents();
        QWidget* const panel = window.Display().WidgetOf(window.Panels().Window());
        if (panel == nullptr) {
            throw Failure(std::string("no panel opened for ") + shot.file);
        }
        SaveTo(folder, shot.file, panel->grab());
        if (shot.field == Field::TopBars) {
            SaveTo(folder, "window-with-panel", WithPanel(window, *panel));
        }
        CWnd::FromHandle(window.Panels().Window())->ShowWindow(SW_HIDE);
    }
}

}  // namespace

void TakeShots(const std::string& folder, const ShotOptions& options)
{
    const QTemporaryDir home;  // the person's own settings and recovery copies stay out of the pictures
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    const QDir out(QString::fromStdString(folder));
    if (!home.isValid() || !out.mkpath(QStringLiteral("."))) {
        throw Failure("the folder cannot be made: " + folder);
    }
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));  // it has no window manager
    int count = 1;
    char name[] = "beamdesk";
    char* arguments[] = {name, nullptr};
    QApplication application(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("beamdesk"));
    QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
    MainWindow window(display);
    window.SetAppearance(options.dark ? Appearance::Dark : Appearance::Light);
    window.SetLanguage(options.chinese ? Language::Chinese : Language::English);
    window.resize(options.width, options.height);
    window.show();
    if (options.project.empty()) {
        window.Files().OpenSample();
    } else {
        window.TheDocument().Open(
            QString::fromStdString(options.project));  // a fault is told on the console
    }
    if (window.TheDocument().Get().beams.empty()) {
        throw Failure("the project has no beam to show");
    }
    QCoreApplication::processEvents();
    window.Choose(RefFor(window.TheDocument().Get(), {"", Field::TopBars, false}));
    QCoreApplication::processEvents();
    SaveTo(out, "window", window.grab());
    ShootProposals(window, out);
    window.Choose(RefFor(window.TheDocument().Get(), {"", Field::TopBars, false}));
    constexpr double Closer = 2.2;  // so that the texts beside an open panel can be read
    window.Drawing().ZoomBy(Closer);
    ShootPanels(window, out);
}

}  // namespace Desk
