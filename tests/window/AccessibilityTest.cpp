// What a person without a mouse, or without sight of the screen, gets: names, the order of Tab, help, keys.
#include "desk/window/HelpTexts.h"
#include "tests/window/MainWindow.h"

namespace {

using namespace Desk;

QString NameOf(QWidget& widget)
{
    const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&widget);
    return told != nullptr ? told->text(QAccessible::Name) : QString();
}

QString Described(const QWidget& widget)
{
    return QStringLiteral("%1 \"%2\" in %3")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(),
             widget.parentWidget() != nullptr ? widget.parentWidget()->objectName() : QString());
}

// What the toolkit makes inside a widget, and what only holds others.
bool IsPart(const QWidget& widget)
{
    static const QSet<QByteArray> parts = {"QWidget",
                                           "QFrame",
                                           "QScrollBar",
                                           "QHeaderView",
                                           "QLineEditIconButton",
                                           "QSizeGrip",
                                           "QRubberBand",
                                           "QSplitter",
                                           "QStackedWidget",
                                           "QTipLabel",
                                           "QToolBarSeparator",
                                           "QToolBarExtension",
                                           "QMainWindowExtension",
                                           "QDialogButtonBox",
                                           "QDockWidgetGroupWindow"};
    return (parts.contains(widget.metaObject()->className()) && widget.focusPolicy() == Qt::NoFocus) ||
           parts.contains(widget.metaObject()->className()) ||
           widget.objectName().startsWith(QLatin1String("qt_"));
}

// All that show in a window, its own too, without a name.
QStringList Nameless(QWidget& window, int* count = nullptr)
{
    QStringList found;
    QList<QWidget*> all = window.findChildren<QWidget*>();
    all << &window;
    for (QWidget* const widget : all) {
        const bool shows =
            widget == &window || (widget->isVisibleTo(&window) && widget->window() == &window);
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const bool isEmpty = label != nullptr && label->text().isEmpty();
        if (!shows || IsPart(*widget) || isEmpty) {
            continue;
        }
        if (count != nullptr) {
            ++*count;
        }
        if (NameOf(*widget).trimmed().isEmpty()) {
            found << Described(*widget);
        }
    }
    return found;
}

using AccessibilityTest = MainWindowTest;

TEST_F(AccessibilityTest, EverythingThatShowsHasAName)
{
    for (const Language language : {Language::English, Language::Chinese}) {
        window.SetLanguage(language);
        window.findChild<QDockWidget*>("openTextsDock")->show();
        window.findChild<QDockWidget*>("problemsDock")->show();
        for (const FieldRef& chosen : {Bars, FieldRef{true, 0, Field::VerticalBars}}) {
            window.Choose(chosen);
            QCoreApplication::processEvents();
            int count = 0;
            EXPECT_EQ(Nameless(window, &count).join('\n').toStdString(), "");
            EXPECT_GT(count, 30);
        }
        for (const FieldRef& ref :
             {FieldRef{false, 0, Field::Name}, FieldRef{false, 0, Field::Section},
              FieldRef{false, 0, Field::Elevation}, FieldRef{false, 0, Field::Stirrup}, Bars,
              FieldRef{true, 0, Field::HorizontalBars}, FieldRef{true, 0, Field::VerticalBars}}) {
            window.Choose(ref);
            window.OpenPanel();
            QWidget* const panel = display.WidgetOf(window.Panels().Window());
            ASSERT_NE(panel, nullptr);
            EXPECT_EQ(Nameless(*panel).join('\n').toStdString(), "") << static_cast<int>(ref.field);
            window.Panels().Close();
        }
    }
    window.SetLanguage(Language::English);
}

// A modal one is looked at from within.
TEST_F(AccessibilityTest, DialogsHaveNames)
{
    QStringList seen;
    for (const char* const command : {"new", "replace", "inPlace", "settings", "quantities", "help"}) {
        window.Choose(Bars);
        QTimer::singleShot(0, &window, [&] {
            for (QWidget* const each : QApplication::topLevelWidgets()) {
                if (auto* const dialog = qobject_cast<QDialog*>(each); dialog && dialog->isVisible()) {
                    seen << dialog->objectName();
                    EXPECT_EQ(Nameless(*dialog).join('\n').toStdString(), "") << command;
                    dialog->close();
                }
            }
        });
        Trigger(command);
        QTest::qWait(1);
    }
    EXPECT_EQ(seen.join(' ').toStdString(), "newFloor replace inPlace settings quantities help");
}

TEST_F(AccessibilityTest, TabGoesThroughTheWindowAndComesBack)
{
    window.Choose(Bars);
    window.activateWindow();
    QWidget& drawing = window.Drawing();
    drawing.setFocus();
    QStringList order;
    do {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != &drawing && order.size() < 30);
    EXPECT_EQ(order.join(' ').toStdString(), "drawing typed table panel properties search problemCount");
}

TEST_F(AccessibilityTest, ThePlanAndTheSectionTellWhatIsChosen)
{
    const QWidget& sketch = Find<QWidget>("sketch");
    QAccessible::setActive(true);
    window.Choose(Bars);
    const QString before = window.Drawing().accessibleDescription();
    EXPECT_EQ(before.toStdString(), "KL1(7), Top through bars: " + Text(Bars));
    EXPECT_TRUE(sketch.accessibleDescription().contains(QString::fromStdString(Text(Bars))));
    window.TheDocument().SetText(Bars, "4B28");
    EXPECT_EQ(window.Drawing().accessibleDescription(), "KL1(7), Top through bars: 4B28");
    EXPECT_TRUE(sketch.accessibleDescription().contains("4B28"));
    Trigger("allSame");
    window.Choose(std::nullopt);
    EXPECT_EQ(window.Drawing().accessibleDescription(), "Nothing is chosen");
    EXPECT_EQ(sketch.accessibleDescription(), "");
}

TEST_F(AccessibilityTest, CommandsSayTheirKeys)
{
    QSet<QKeySequence> keys;
    for (const QAction* const command : window.findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
        const QKeySequence key = command->shortcut();
        if (!command->objectName().isEmpty() && !key.isEmpty()) {
            EXPECT_FALSE(command->statusTip().isEmpty()) << command->objectName().toStdString();
            EXPECT_TRUE(command->toolTip().contains(key.toString(QKeySequence::NativeText)));
            EXPECT_FALSE(keys.contains(key)) << key.toString().toStdString();
            keys.insert(key);
        }
    }
    EXPECT_GT(keys.size(), 40);
}

TEST_F(AccessibilityTest, HelpTellsEveryKeyInTheLanguageOfTheWindow)
{
    QTest::keyClick(&window, Qt::Key_F1);
    const auto& help = Find<QDialog>("help");
    const auto& text = Find<QTextBrowser>("helpText");
    ASSERT_TRUE(help.isVisible());
    EXPECT_FALSE(help.isModal());
    for (const QAction* const command : window.findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
        const QString key = command->shortcut().toString(QKeySequence::NativeText);
        EXPECT_TRUE(text.toPlainText().contains(key)) << key.toStdString();
    }
    EXPECT_TRUE(text.toPlainText().contains("takes the proposal for the whole beam"));
    window.SetLanguage(Language::Chinese);
    QCoreApplication::processEvents();
    static const QRegularExpression english("\\b(the|of|and|a|with)\\b");
    EXPECT_EQ(english.match(text.toPlainText().remove("University of Cincinnati")).captured().toStdString(),
              "");
    Trigger("about");
    EXPECT_TRUE(text.toPlainText().contains("nlohmann/json"));
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    window.SetLanguage(Language::English);
}

TEST_F(AccessibilityTest, SettingsActAtOnceAndAreKept)
{
    Trigger("settings");
    auto& dialog = Find<QDialog>("settings");
    auto& language = *dialog.findChild<QComboBox*>("choice0");
    language.setCurrentIndex(1);
    emit language.activated(1);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Find<QAction>("save").text().startsWith("保存"));
    EXPECT_EQ(dialog.windowTitle(), "设置");
    EXPECT_EQ(language.currentText(), "中文");
    language.setCurrentIndex(2);
    emit language.activated(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.windowTitle(), "Settings");
    dialog.findChild<QSpinBox*>("recoverySeconds")->setValue(30);
    EXPECT_EQ(window.TheDocument().RecoveryDelay(), std::chrono::seconds(30));
    dialog.close();
    EXPECT_EQ(MainWindow(display).TheDocument().RecoveryDelay(), std::chrono::seconds(30));
    QSettings().setValue("recoverySeconds", 1000000);
    EXPECT_EQ(MainWindow(display).TheDocument().RecoveryDelay(), std::chrono::seconds(600));
}

}  // namespace
