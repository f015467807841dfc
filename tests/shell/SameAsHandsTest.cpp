// The same user on real widgets and in memory: the same texts, rows, places and deliveries.
#include "Stage.h"

#include <map>
#include <random>

#include "tests/support/Seed.h"

namespace {

// One random action; the numbers drawn do not depend on what the actions do.
template <class AnyHands>
void Act(AnyHands& hands, Stage& stage, std::mt19937& random)
{
    const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    const std::vector<HWND>& children = FindWindowRecord(stage.panel->m_hWnd)->children;
    const WindowRecord& control = *FindWindowRecord(children[below(children.size())]);
    const CWnd& window = *CWnd::FromHandle(control.handle);
    CRect place;
    window.GetWindowRect(&place);
    const CPoint point(place.left + static_cast<int>(below(static_cast<std::size_t>(place.Width()))),
                       place.top + static_cast<int>(below(static_cast<std::size_t>(place.Height()))));
    constexpr UINT Keys[] = {VK_TAB, VK_UP,   VK_DOWN,   VK_LEFT,  VK_RIGHT, VK_HOME,
                             VK_END, VK_BACK, VK_DELETE, VK_SPACE, VK_END};
    constexpr const char* Typed[] = {"1", "20", "3", "x", "A", "-", ".", "(", "\xCE\xDE"};
    const std::size_t key = below(std::size(Keys));
    const std::size_t typed = below(std::size(Typed));
    const std::size_t action = below(20);
    if (!stage.panel->IsWindowVisible()) {
        stage.Rebind();
        return;
    }
    const bool selects = control.kind == WindowKind::EditBox && (action == 2 || action == 5);
    switch (selects ? 6 : action) {  // a line edit selects by them, which the windows know nothing of
    case 0: hands.RightClick(point); break;
    case 1: hands.Wheel(point, typed % 2 == 0 ? 1 : -1); break;
    case 2: hands.DoubleClick(point); break;
    case 3:
    case 4: hands.Key(Keys[key]); break;
    case 5: hands.Drag(place.TopLeft(), CPoint(place.left + 3, place.top - 5)); break;
    default:
        hands.Click(point);
        if (control.kind == WindowKind::EditBox) {
            hands.Key(VK_END);  // where a press puts the caret depends on the font
            hands.Type(Typed[typed]);
        }
        break;
    }
}

template <class AnyHands>
std::vector<std::string> Play(AnyHands& hands, Shown kind, unsigned seed, int steps,
                              const std::function<void(const Stage&)>& look)
{
    std::mt19937 random(seed);
    Stage stage(kind);
    std::vector<std::string> states;
    for (int step = 0; step < steps; ++step) {
        Act(hands, stage, random);
        states.push_back(stage.State());
        look(stage);
    }
    return states;
}

// Every widget shows what the record says.
void ExpectMirrored(const Stage& stage, const Desk::QtDisplay& display)
{
    for (const HWND child : FindWindowRecord(stage.panel->m_hWnd)->children) {
        const WindowRecord& control = *FindWindowRecord(child);
        const QWidget* const widget = display.WidgetOf(child);
        ASSERT_NE(widget, nullptr);
        if (const auto* const line = qobject_cast<const QLineEdit*>(widget)) {
            ASSERT_EQ(line->text(), Desk::Shown(control.text));
        } else if (const auto* const list = qobject_cast<const Desk::ListWidget*>(widget)) {
            const QModelIndexList selected = list->selectionModel()->selectedIndexes();
            ASSERT_EQ(selected.isEmpty() ? -1 : selected.front().row(), control.list.selection);
            ASSERT_EQ(list->model()->rowCount(), static_cast<int>(control.list.rows.size()));
            for (int row = 0; row < list->model()->rowCount(); ++row) {
                ASSERT_EQ(list->model()->index(row, 0).data().toString(),
                          Desk::Shown(control.list.rows[static_cast<std::size_t>(row)]));
            }
            if (!control.list.rows.empty()) {
                ASSERT_EQ(list->indexAt({2, 2}).row(), control.list.top);
            }
        }
    }
}

TEST(ShellAndHands, GiveTheSameTextsAsHandsInMemory)
{
    const unsigned seed = FirstSeed(std::random_device{}());
    SCOPED_TRACE(SeedName(seed));
    constexpr double Zooms[] = {1.0, 1.25, 1.5, 2.0};
    constexpr int Steps = 150;
    for (const Shown kind : AllShown) {
        SCOPED_TRACE("pop-up " + std::to_string(static_cast<int>(kind)));
        Hands inMemory;
        const std::vector<std::string> wanted = Play(inMemory, kind, seed, Steps, [](const Stage&) {});
        Desk::QtDisplay display{{Desk::Utf8FromGbk, Desk::GbkFromUtf8}};
        display.SetZoom(Zooms[(seed + static_cast<unsigned>(kind)) % 4]);
        const QTimer answers;  // message boxes are closed at once
        QObject::connect(&answers, &QTimer::timeout, [] {
            if (QWidget* const box = QApplication::activeModalWidget()) {
                box->close();
            }
        });
        const_cast<QTimer&>(answers).start(1);
        QtHands onWidgets(display);
        const std::vector<std::string> got =
            Play(onWidgets, kind, seed, Steps, [&](const Stage& stage) { ExpectMirrored(stage, display); });
        for (std::size_t step = 0; step < wanted.size(); ++step) {
            ASSERT_EQ(got[step], wanted[step])
                << "step " << step << ", before: " << (step > 0 ? wanted[step - 1] : std::string());
        }
    }
}

}  // namespace
