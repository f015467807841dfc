#include "desk/window/ScreenReport.h"

#include <memory>

#include "desk/project/Encoding.h"
#include "desk/window/MainWindow.h"

namespace Desk {

namespace {

constexpr int Interval = 100;  // ms

QJsonArray Json(const QRect& rect) { return {rect.x(), rect.y(), rect.width(), rect.height()}; }

QRect OnScreen(const QWidget& widget) { return {widget.mapToGlobal(QPoint()), widget.size()}; }

QJsonArray RowsOf(const QAbstractItemView& view)
{
    QJsonArray rows;
    const QRect inView = view.viewport()->rect();
    for (QModelIndex index = view.indexAt({2, 2}); index.isValid();) {
        const QRect rect = view.visualRect(index);
        if (!inView.intersects(rect)) {
            break;
        }
        const QRect onScreen(view.viewport()->mapToGlobal(rect.topLeft()), rect.size());
        rows.push_back(QJsonObject{{"text", index.data().toString()},
                                   {"place", Json(onScreen)},
                                   {"current", view.currentIndex().row() == index.row() &&
                                                   view.currentIndex().parent() == index.parent()}});
        const auto* const tree = qobject_cast<const QTreeView*>(&view);
        index = tree != nullptr ? tree->indexBelow(index) : index.sibling(index.row() + 1, index.column());
    }
    return rows;
}

QJsonObject Describe(const QWidget& widget)
{
    QJsonObject told{{"place", Json(OnScreen(widget))}, {"enabled", widget.isEnabled()}};
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
        told["text"] = line->text();
    } else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
        told["text"] = button->text();
    } else if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        told["text"] = label->text();
    } else if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget)) {
        told["rows"] = RowsOf(*view);
    }
    return told;
}

// Buttons of message boxes have no names of their own.
void DescribeWindow(const QWidget& top, QJsonObject& widgets)
{
    int button = 0;
    for (const QWidget* const widget : top.findChildren<QWidget*>()) {
        if (!widget->isVisible()) {
            continue;
        }
        QString name = widget->objectName();
        if (qobject_cast<const QPushButton*>(widget) != nullptr && name.isEmpty()) {
            name = QStringLiteral("button%1").arg(button++);
        }
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_"))) {
            widgets[top.objectName() + '/' + name] = Describe(*widget);
        }
    }
}

QJsonArray Annotations(MainWindow& window)
{
    QJsonArray told;
    FloorView& drawing = window.Drawing();
    const Project& project = window.TheDocument().Get();
    const QRect view = OnScreen(*drawing.viewport());
    const auto tell = [&](const FieldRef& ref) {
        const QRect rect = drawing.OnScreen(ref);
        const std::string& text = TextAt(project, ref);
        if (!text.empty() && view.contains(rect.center())) {
            told.push_back(QJsonObject{{"wall", ref.isWall},
                                       {"index", static_cast<qint64>(ref.index)},
                                       {"field", static_cast<int>(ref.field)},
                                       {"inPlace", ref.inPlace},
                                       {"text", QString::fromStdString(text)},
                                       {"place", Json(rect)}});
        }
    };
    for (const bool wall : {false, true}) {
        for (std::size_t i = 0; i < (wall ? project.walls.size() : project.beams.size()); ++i) {
            for (const FieldRef& ref : RefsOf(project, {wall, i})) {
                tell(ref);
            }
        }
    }
    return told;
}

QJsonObject PanelControls(const QtDisplay& display, HWND panel)
{
    QJsonObject told;
    const WindowRecord* const record = FindWindowRecord(panel);
    if (record == nullptr) {
        return told;
    }
    for (const HWND child : record->children) {
        const WindowRecord& control = *FindWindowRecord(child);
        const QWidget* const widget = display.WidgetOf(child);
        if (widget == nullptr || control.id == IDC_STATIC) {
            continue;
        }
        QJsonObject each{{"place", Json(OnScreen(*widget))},
                         {"text", QString::fromStdString(Utf8FromGbk(control.text))}};
        QJsonArray rows;
        for (const CString& row : control.list.rows) {
            rows.push_back(QString::fromStdString(Utf8FromGbk(row)));
        }
        each["rows"] = rows;
        each["selection"] = control.list.selection;
        each["top"] = control.list.top;
        told[QString::number(control.id)] = each;
    }
    return told;
}

}  // namespace

QJsonObject ScreenReport(MainWindow& window)
{
    QJsonObject widgets;
    for (const QWidget* const top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && !top->objectName().isEmpty()) {
            DescribeWindow(*top, widgets);
        }
    }
    QJsonObject told{{"title", window.windowTitle()},
                     {"changed", window.TheDocument().IsChanged()},
                     {"active", QApplication::activeWindow() != nullptr},
                     {"status", window.statusBar()->currentMessage()},
                     {"widgets", widgets},
                     {"annotations", Annotations(window)},
                     {"panel", PanelControls(window.Display(), window.Panels().Window())},
                     {"panelZoom", window.Display().Zoom()}};
    // Where the plan's origin is on the screen, and pixels a mm.
    const QPoint origin = window.Drawing().OnScreen(PlanPoint());
    told["plan"] = QJsonArray{origin.x(), origin.y(), window.Drawing().transform().m11()};
    if (const std::optional<FieldRef>& chosen = window.Chosen()) {
        told["chosen"] = QJsonObject{{"wall", chosen->isWall},
                                     {"index", static_cast<qint64>(chosen->index)},
                                     {"field", static_cast<int>(chosen->field)},
                                     {"inPlace", chosen->inPlace}};
    }
    return told;
}

void KeepScreenReport(MainWindow& window, const QString& file)
{
    auto* const timer = new QTimer(&window);
    const auto last = std::make_shared<QByteArray>();
    QObject::connect(timer, &QTimer::timeout, &window, [&window, file, last] {
        const QByteArray now = QJsonDocument(ScreenReport(window)).toJson();
        QSaveFile out(file);
        if (now != *last && out.open(QIODevice::WriteOnly) && out.write(now) == now.size() &&
            out.commit()) {
            *last = now;
        }
    });
    timer->start(Interval);
}

}  // namespace Desk
